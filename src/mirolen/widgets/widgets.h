#pragma once

#include <memory>
#include <string>

#include "mirolen/core/translation.h"
#include "mirolen/render/Companions.h"
#include "mirolen/widgets/Widget.h"

namespace mirolen {

/// A box with a caption on its top edge, round other widgets.
class Frame : public Widget, public CaptionLabel {
 public:
  explicit Frame(Widget* container, std::string_view text = {})
      : Widget(WidgetKind::frame, container), Caption(*this, tr(text)) {}

  Property<Widget, std::string> Caption;
  Property<Widget, bool> Border{*this, true};

  void caption(const std::string& text) override { Caption = text; }
};

/// A line of text. With AutoSize it is as wide as its text.
class Label : public Widget, public ValueLabel {
 public:
  explicit Label(Widget* container, std::string_view text = {})
      : Widget(WidgetKind::label, container), Caption(*this, tr(text)) {}

  Property<Widget, std::string> Caption;
  Property<Widget, FontSpec> Font{*this, {}};
  Property<Widget, bool> AutoSize{*this, false};
  Property<Widget, bool> Centered{*this, false};
  /// The letter of the caption that takes the focus to the widget behind the label; 0 for none.
  Property<Widget, char> AccessKey{*this, 0};

  void caption(const std::string& text) override { Caption = text; }
  void tool_tip(const std::string& text) override { ToolTipText = text; }
  void set_visible(bool visible) override { Visible = visible; }

  void changed() override;
};

class Button : public Widget {
 public:
  explicit Button(Widget* container, std::string_view text = {})
      : Widget(WidgetKind::button, container), Caption(*this, tr(text)) {}

  Property<Widget, std::string> Caption;
  /// The letter of the caption that presses the button; 0 for none.
  Property<Widget, char> AccessKey{*this, 0};
};

/// A choice among its siblings, the option buttons of the same container: choosing one un-chooses the others.
/// Choosing another, by program or by the user, raises OnClick.
class OptionButton : public Widget {
 public:
  explicit OptionButton(Widget* container, std::string_view text = {})
      : Widget(WidgetKind::option_button, container), Caption(*this, tr(text)) {}

  Property<Widget, std::string> Caption;
  /// The letter of the caption that chooses it; 0 for none.
  Property<Widget, char> AccessKey{*this, 0};
  bool Value() const { return value_; }
  void Value(bool value);

 private:
  bool value_ = false;
};

/// A box that is ticked or not. Another value, by program or by the user, raises OnClick.
class CheckBox : public Widget {
 public:
  explicit CheckBox(Widget* container, std::string_view text = {})
      : Widget(WidgetKind::check_box, container), Caption(*this, tr(text)) {}

  Property<Widget, std::string> Caption;
  /// The letter of the caption that ticks and unticks it; 0 for none.
  Property<Widget, char> AccessKey{*this, 0};
  bool Value() const { return value_; }
  void Value(bool value);

 private:
  bool value_ = false;
};

/// A line of text that the user edits. Setting another text, by program or by typing, raises OnChange.
class TextField : public Widget {
 public:
  explicit TextField(Widget* container) : Widget(WidgetKind::text_field, container) {}

  const std::string& Text() const { return text_; }
  void Text(const std::string& text);

  std::function<void()> OnChange;
  /// A key that goes down, by its code: 38 is up, 40 is down.
  std::function<void(int key)> OnKeyDown;
  /// The focus is about to go to another widget of the form; false keeps it.
  std::function<bool()> OnLeave;

 private:
  std::string text_;
};

/// A spin button over whole numbers. Setting another value, by program or by the user, raises OnChange.
class UpDown : public Widget {
 public:
  explicit UpDown(Widget* container) : Widget(WidgetKind::up_down, container) {}

  Property<Widget, int> Min{*this, 0}, Max{*this, 100}, Increment{*this, 1};
  int Value() const { return value_; }
  /// Holds the value to Min and Max.
  void Value(int value);

  std::function<void()> OnChange;

 private:
  int value_ = 0;
};

/// A rectangle filled in its BackColor with a black edge, or a cross in it.
class Shape : public Widget, public ColorBox, public IndicatorMark {
 public:
  enum class Form { rectangle, cross };

  explicit Shape(Widget* container) : Widget(WidgetKind::shape, container) {}

  Property<Widget, Form> Look{*this, Form::rectangle};

  double width() const override { return Width; }
  double height() const override { return Height; }
  void move_to(double left, double top) override { Move(left, top); }
  void set_color(Color color) override { BackColor = color; }
  void set_visible(bool visible) override { Visible = visible; }
};

/// A straight line between two points of its container, in the container's scale units.
class LineShape : public Widget, public IndicatorLine {
 public:
  explicit LineShape(Widget* container) : Widget(WidgetKind::line, container) {}

  Property<Widget, double> X1{*this, 0}, Y1{*this, 0}, X2{*this, 0}, Y2{*this, 0};

  void set_ends(double x1, double y1, double x2, double y2) override;
};

/// Shows an image, in its own size or stretched to the widget.
class ImageBox : public Widget {
 public:
  explicit ImageBox(Widget* container) : Widget(WidgetKind::image_box, container) {}

  Property<Widget, std::shared_ptr<const Image>> Picture{*this, nullptr};
  Property<Widget, bool> Stretch{*this, false};
};

/// The control as its container sees it: the root of its widgets.
class UserControl : public Widget {
 public:
  explicit UserControl(Toolkit& toolkit) : Widget(WidgetKind::user_control, toolkit) {}

  /// The inner size, in twips.
  double ScaleWidth() const { return Width; }
  double ScaleHeight() const { return Height; }

  Property<Widget, std::int16_t> MousePointer{*this, 0};
  Property<Widget, std::shared_ptr<const Image>> MouseIcon{*this, nullptr};

  /// The control has got the keyboard focus.
  std::function<void()> OnEnterFocus;
};

}  // namespace mirolen
