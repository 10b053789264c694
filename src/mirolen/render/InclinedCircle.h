#pragma once

#include <cmath>

#include "mirolen/render/Surface.h"

namespace mirolen {

/// Points of the wafer's outline as it is seen inclined: by angle (degrees, 0 at the bottom, turning toward
/// +x) and radius. aspect is the outline's height by its width.
class InclinedCircle {
 public:
  InclinedCircle(double x0, double y0, double aspect, double Pi)
      : x0_(x0), y0_(y0), aspect_(aspect), Pi_(Pi) {}

  SurfacePoint operator()(double angle, double radius) const {
    const double a = angle * Pi_ / 180;
    return {x0_ + radius * std::sin(a), y0_ + radius * aspect_ * std::cos(a)};
  }

 private:
  double x0_, y0_, aspect_, Pi_;
};

inline PixelPoint rounded(SurfacePoint point) { return {to_int32(point.x), to_int32(point.y)}; }

}  // namespace mirolen
