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
    surface_ = const_cast<PictureBox&>(*this).made_surface();
    drawn_size_ = size;
    drawn_background_ = BackColor;
  }
  return surface_.get();
}

// A renderer may go on where a picture cannot be made or erased, so the picture itself keeps in mind that it
// is not what it should be.

std::unique_ptr<Surface> PictureBox::made_surface() {
  try {
    return toolkit().make_surface(*this);
  } catch (...) {
    stay_behind();
    throw;
  }
}

void PictureBox::Cls() {
  try {
    erase();
  } catch (...) {
    stay_behind();
    throw;
  }
}

void PictureBox::erase() {
  SurfaceCanvas::Cls();
  drawn_background_ = BackColor;
  if (background_image_) device()->restore(*background_image_);
}

SurfaceSize PictureBox::container_unit() const {
  const auto* picture = dynamic_cast<const PictureBox*>(container());
  return picture && picture->ScaleMode() == pixels ? toolkit().twips_per_pixel() : SurfaceSize{1, 1};
}

void PictureBox::move_to(double left, double top) {
  Move(left * container_unit().width, top * container_unit().height);
}

void PictureBox::show_change() {
  if (surface_ && drawn_background_ != BackColor) {
    surface_->clear(toolkit().resolve(BackColor));
    drawn_background_ = BackColor;
  }
  Widget::show_change();
}

}  // namespace mirolen
