#pragma once

#include "mirolen/core/wafer.h"

namespace mirolen {

/// The two ends that a colour scale spans. Limits that a user set are widened by an eighth of their span on
/// either side, so that the outer bands show what lies beyond them.
struct ScaleEnds {
  double high = 0;
  double low = 0;
  bool limited = false;
};

/// @throws OverflowError.
ScaleEnds scale_ends(const wafer& wafer);

/// The interval colour `col1` to `col10` of a band, 1 at the top of the scale. @throws SubscriptOutOfRange.
double& band_color(wafer& wafer, int band);
inline double band_color(const wafer& wafer, int band) {
  return band_color(const_cast<mirolen::wafer&>(wafer), band);
}

/// The band, 1 to 10, of a height under the finite top of a scale of ten steps; its lower end belongs to a
/// band. A scale of negative steps has the bands 1 and 10 only, and what is no number lies in 10.
int band_of(double height, double top, double step);

}  // namespace mirolen
