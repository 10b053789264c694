#include "mirolen/render/PlotArea.h"

namespace mirolen {
namespace {

constexpr double fallback_twips_per_pixel = 4.8;

}  // namespace

void PlotArea::locate() {
  if (in_twips()) {
    resume([&] { left = divide(page_.left, twips_x()); });
    resume([&] { width = divide(page_.width, twips_x()); });
    resume([&] { top = divide(page_.top, twips_y()); });
    resume([&] { height = divide(page_.height, twips_y()); });
  } else {
    resume([&] { left = canvas_.ScaleLeft(); });
    resume([&] { width = canvas_.ScaleWidth(); });
    resume([&] { top = canvas_.ScaleTop(); });
    resume([&] { height = canvas_.ScaleHeight(); });
  }
}

void PlotArea::fall_back() {
  left = page_.left / fallback_twips_per_pixel;
  width = page_.width / fallback_twips_per_pixel;
  top = page_.top / fallback_twips_per_pixel;
  height = page_.height / fallback_twips_per_pixel;
}

double PlotArea::twips_x() const {
  return canvas_.kind() == CanvasKind::printer ? canvas_.TwipsPerPixelX()
                                               : screen_resolution().TwipsPerPixelX;
}

double PlotArea::twips_y() const {
  return canvas_.kind() == CanvasKind::printer ? canvas_.TwipsPerPixelY()
                                               : screen_resolution().TwipsPerPixelY;
}

}  // namespace mirolen
