#pragma once

#include <memory>
#include <string>

#include "mirolen/render/Companions.h"
#include "mirolen/widgets/Widget.h"

namespace mirolen {

/// A box with a caption on its top edge, round other widgets.
class Frame : public Widget, public CaptionLabel {
 public:
  explicit Frame(Widget* container, std::string text = {})
      : Widget(WidgetKind::frame, container), Caption(*this, std::move(text)) {}

  Property<Widget, std::string> Caption;
  Property<Widget, bool> Border{*this, true};

  void caption(const std::string& text) override { Caption = text; }
};

/// A line of text. With AutoSize it is as wide as its text.
class Label : public Widget, public ValueLabel {
 public:
  explicit Label(Widget* container, std::string text = {})
      : Widget(WidgetKind::label, container), Caption(*this, std::move(text)) {}

  Property<Widget, std::string> Caption;
  Property<Widget, FontSpec> Font{*this, {}};
  Property<Widget, bool> AutoSize{*this, false};
  Property<Widget, bool> Centered{*this, false};

  void caption(const std::string& text) override { Caption = text; }
  void tool_tip(const std::string& text) override { ToolTipText = text; }
  void set_visible(bool visible) override { Visible = visible; }

  void changed() override;
};

class Button : public Widget {
 public:
  explicit Button(Widget* container, std::string text = {})
      : Widget(WidgetKind::button, container), Caption(*this, std::move(text)) {}

  Property<Widget, std::string> Caption;
};

/// A rectangle filled in its BackColor, with a black edge.
class Shape : public Widget, public ColorBox {
 public:
  explicit Shape(Widget* container) : Widget(WidgetKind::shape, container) {}

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
