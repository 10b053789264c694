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

  // In the scale units of the container: twips, or pixels on a picture whose scale is pixels.
  double left() const override { return Left / container_unit().width; }
  double top() const override { return Top / container_unit().height; }
  double width() const override { return Width / container_unit().width; }
  double height() const override { return Height / container_unit().height; }
  void Cls() override;
  void keep_as_background() override { background_image_ = Image(); }
  /// Takes away what `keep_as_background` kept.
  void forget_background() { background_image_ = nullptr; }
  void Refresh() override { SurfaceCanvas::Refresh(); }
  void move_to(double left, double top) override;
  void set_visible(bool visible) override { Visible = visible; }

  /// The size in whole pixels, 1 at least.
  SurfaceSize pixel_size() const;
  /// The surface behind the picture.
  Surface* device() const override;

 protected:
  void show_change() override;
  Color background() const override { return BackColor; }
  void set_background(Color color) override { BackColor = color; }
  Color resolve(Color color) const override { return toolkit().resolve(color); }

 private:
  SurfaceSize container_unit() const;
  std::unique_ptr<Surface> made_surface();
  void erase();

  std::shared_ptr<const mirolen::Image> background_image_;
  mutable std::unique_ptr<Surface> surface_;
  mutable SurfaceSize drawn_size_;
  mutable Color drawn_background_ = 0;
};

}  // namespace mirolen
