#pragma once

#include <memory>
#include <string>

#include "mirolen/core/translation.h"
#include "mirolen/render/Companions.h"
#include "mirolen/widgets/Widget.h"

namespace mirolen {

/// What has a caption, in the language in force.
class Captioned : public Widget {
 public:
  Property<Widget, std::string> Caption;

 protected:
  Captioned(WidgetKind kind, Widget* container, std::string_view text)
      : Widget(kind, container), Caption(*this, tr(text)) {}
  Captioned(WidgetKind kind, Toolkit& toolkit, std::string_view text)
      : Widget(kind, toolkit), Caption(*this, tr(text)) {}
};

/// What the keyboard reaches by a letter of the caption: a button is pressed, an option is chosen, a box is
/// ticked or unticked, a label gives the focus to the widget behind it.
class Keyed : public Captioned {
 public:
  /// 0 for none.
  Property<Widget, char> AccessKey{*this, 0};

 protected:
  using Captioned::Captioned;
};

/// A box with a caption on its top edge, round other widgets.
class Frame : public Captioned, public CaptionLabel {
 public:
  explicit Frame(Widget* container, std::string_view text = {})
      : Captioned(WidgetKind::frame, container, text) {}

  Property<Widget, bool> Border{*this, true};

  void caption(const std::string& text) override { Caption = text; }
};

/// A line of text. With AutoSize it is as wide as its text.
class Label : public Keyed, public ValueLabel {
 public:
  explicit Label(Widget* container, std::string_view text = {}) : Keyed(WidgetKind::label, container, text) {}

  Property<Widget, FontSpec> Font{*this, {}};
  Property<Widget, bool> AutoSize{*this, false};
  Property<Widget, bool> Centered{*this, false};

  void caption(const std::string& text) override { Caption = text; }
  void tool_tip(const std::string& text) override { ToolTipText = text; }
  void set_visible(bool visible) override { Visible = visible; }

 protected:
  void show_change() override;
};

class Button : public Keyed {
 public:
  explicit Button(Widget* container, std::string_view text = {})
      : Keyed(WidgetKind::button, container, text) {}
};

/// A choice among its siblings, the option buttons of the same container: choosing one un-chooses the others.
/// Choosing another, by program or by the user, raises OnClick.
class OptionButton : public Keyed {
 public:
  explicit OptionButton(Widget* container, std::string_view text = {})
      : Keyed(WidgetKind::option_button, container, text) {}

  bool Value() const { return value_; }
  void Value(bool value);

 private:
  bool value_ = false;
};

/// A box that is ticked or not. Another value, by program or by the user, raises OnClick.
class CheckBox : public Keyed {
 public:
  explicit CheckBox(Widget* container, std::string_view text = {})
      : Keyed(WidgetKind::check_box, container, text) {}

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
