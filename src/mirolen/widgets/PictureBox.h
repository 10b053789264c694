#pragma once

#include <memory>

#include "mirolen/render/Companions.h"
#include "mirolen/render/SurfaceCanvas.h"
#include "mirolen/widgets/Widget.h"

namespace mirolen {

/// A picture that the renderers draw on, in pixels. What is drawn stays until it is erased or the box takes
/// another size in pixels or another BackColor.
class PictureBox : public Widget, public SurfaceCanvas, public IndicatorMark {
 public:
  explicit PictureBox(Widget* container)
      : Widget(WidgetKind::picture_box, container), SurfaceCanvas(CanvasKind::picture_box, nullptr) {}

  using Widget::BackColor;

  /// A copy of what is drawn.
  std::shared_ptr<const mirolen::Image> Image() const { return device()->snapshot(); }

  double left() const override { return Left; }
  double top() const override { return Top; }
  double width() const override { return Width; }
  double height() const override { return Height; }
  void Refresh() override { SurfaceCanvas::Refresh(); }
  void changed() override;
  void move_to(double left, double top) override { Move(left, top); }
  void set_visible(bool visible) override { Visible = visible; }

  /// The size in whole pixels, 1 at least.
  SurfaceSize pixel_size() const;
  /// The surface behind the picture.
  Surface* device() const override;

 protected:
  Color background() const override { return BackColor; }
  void set_background(Color color) override { BackColor = color; }
  Color resolve(Color color) const override { return toolkit().resolve(color); }

 private:
  mutable std::unique_ptr<Surface> surface_;
  mutable SurfaceSize drawn_size_;
  mutable Color drawn_background_ = 0;
};

}  // namespace mirolen
