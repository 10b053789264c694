#include "mirolen/render/Screen.h"

#include "mirolen/render/PlotCanvas.h"

namespace mirolen {

Screen& screen() {
  thread_local Screen of_this_thread;
  return of_this_thread;
}

double twips_x(const PlotCanvas& canvas) {
  return canvas.kind() == CanvasKind::printer ? canvas.TwipsPerPixelX() : screen().TwipsPerPixelX;
}

double twips_y(const PlotCanvas& canvas) {
  return canvas.kind() == CanvasKind::printer ? canvas.TwipsPerPixelY() : screen().TwipsPerPixelY;
}

}  // namespace mirolen
