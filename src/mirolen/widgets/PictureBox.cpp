#include "mirolen/widgets/PictureBox.h"

#include <algorithm>

namespace mirolen {

SurfaceSize PictureBox::pixel_size() const {
  const SurfaceSize pixel = toolkit().twips_per_pixel();
  return {std::max(1.0, round_half_even(Width / pixel.width)),
          std::max(1.0, round_half_even(Height / pixel.height))};
}

Surface* PictureBox::device() const {
  const SurfaceSize size = pixel_size();
  if (!surface_ || !(drawn_size_ == size)) {
    surface_ = toolkit().make_surface(const_cast<PictureBox&>(*this));
    drawn_size_ = size;
    drawn_background_ = BackColor;
  }
  return surface_.get();
}

SurfaceSize PictureBox::container_unit() const {
  const auto* picture = dynamic_cast<const PictureBox*>(container());
  return picture && picture->ScaleMode() == pixels ? toolkit().twips_per_pixel() : SurfaceSize{1, 1};
}

void PictureBox::move_to(double left, double top) {
  Move(left * container_unit().width, top * container_unit().height);
}

void PictureBox::Cls() {
  SurfaceCanvas::Cls();
  if (background_image_) device()->restore(*background_image_);
}

void PictureBox::changed() {
  if (surface_ && drawn_background_ != BackColor) {
    drawn_background_ = BackColor;
    try {
      surface_->clear(toolkit().resolve(BackColor));
    } catch (const RunTimeError&) {
      // A picture that cannot be erased now is erased by the next drawing.
    }
  }
  Widget::changed();
}

}  // namespace mirolen
