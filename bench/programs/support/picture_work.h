#pragma once

#include <memory>

#include "mirolen/qt/ImageSurface.h"
#include "support/Rounds.h"
#include "support/drawings.h"
#include "support/wafers.h"

namespace mirolen::bench {

/// The work of drawing on a picture. @param draw called with a wafer of so many sites and the canvas.
template <class Draw>
Work picture_work(int sites, Draw draw) {
  const auto source = std::make_shared<wafer>(loaded(uniform_sites(sites)));
  const auto surface = std::make_shared<qt::ImageSurface>(SurfaceSize{picture_side, picture_side}, 1);
  return {[=] {
    on_picture(*surface, [&](PlotCanvas& canvas) { draw(*source, canvas); });
    surface->pixels();  // with whatever the device has held back
  }};
}

}  // namespace mirolen::bench
