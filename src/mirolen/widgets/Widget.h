#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "mirolen/core/numbers.h"
#include "mirolen/widgets/Container.h"
#include "mirolen/widgets/Property.h"
#include "mirolen/widgets/Toolkit.h"

namespace mirolen {

enum class WidgetKind {
  user_control,
  form,
  frame,
  label,
  button,
  option_button,
  check_box,
  text_field,
  up_down,
  shape,
  line,
  picture_box,
  image_box
};

/// Background of an ordinary widget: the system's colour of a button's face.
inline constexpr Color button_face = 0x8000000F;

/// A child of a control, as a plain object with state of its own. Lengths are twips, places relative to the
/// container's top left corner. It works without a toolkit's peer; with one, the peer shows it.
class Widget {
 public:
  /// A child of a container, which is never null and outlives it.
  Widget(WidgetKind kind, Widget* container);
  virtual ~Widget();
  Widget(const Widget&) = delete;
  Widget& operator=(const Widget&) = delete;

  Property<Widget, double> Left{*this, 0}, Top{*this, 0}, Width{*this, 0}, Height{*this, 0};
  Property<Widget, bool> Visible{*this, true};
  /// Takes the user's input; what does not is shown in grey.
  Property<Widget, bool> Enabled{*this, true};
  Property<Widget, Color> BackColor{*this, button_face};
  Property<Widget, std::string> ToolTipText{*this, {}};

  /// Places the widget; what is left out stays.
  void Move(double left, std::optional<double> top = {}, std::optional<double> width = {},
            std::optional<double> height = {});
  /// Repaints what is on the screen. A peer that fails is left behind.
  virtual void Refresh();
  /// Whether the user can see it, as far as this tree of widgets goes: nothing that it lies in is hidden.
  bool is_seen() const;
  /// Takes the keyboard focus.
  void SetFocus() { toolkit_.set_focus(*this); }

  // The user's events. A handler that is not set drops its event.
  std::function<void()> OnClick, OnDblClick;
  std::function<void(const MouseEvent&)> OnMouseDown, OnMouseMove, OnMouseUp;

  WidgetKind kind() const { return kind_; }
  Widget* container() const { return container_; }
  /// In the order of creation, which is also that of the display from back to front.
  const std::vector<Widget*>& children() const { return children_; }
  Toolkit& toolkit() const { return toolkit_; }
  Peer* peer() const { return peer_.get(); }

  /// Makes the peers of this widget and of all below it.
  void realize();
  /// Called by the properties at each change of a value. A peer that fails is left behind: the value holds,
  /// and no error comes out.
  void changed() noexcept;
  /// Shows once more what failed to be shown, here and in all below. @return whether anything was shown by
  /// that.
  bool catch_up();

 protected:
  /// Brings the screen up to date with the values. May throw.
  virtual void show_change();
  /// Lets `catch_up` show once more what the user may not see as it should be.
  void stay_behind() { behind_ = true; }

  /// The root of a tree of widgets.
  Widget(WidgetKind kind, Toolkit& toolkit);

 private:
  WidgetKind kind_;
  Toolkit& toolkit_;
  Widget* container_ = nullptr;
  std::vector<Widget*> children_;
  std::unique_ptr<Peer> peer_;
  bool behind_ = false;
};

}  // namespace mirolen
