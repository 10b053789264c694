#include "mirolen/render/ContourInterval.h"

#include <cmath>

#include "mirolen/core/wafer.h"

namespace mirolen {
namespace {

/// What 100 percent are; 0 where all values are 0.
double reference(const wafer& wafer, double range) {
  if (wafer.mean != 0) return wafer.mean;
  if (range != 0) return range;
  if (std::abs(wafer.mean) < std::abs(wafer.maxi)) return wafer.maxi;
  if (std::abs(wafer.mean) < std::abs(wafer.mini)) return wafer.mini;
  return 0;
}

}  // namespace

double contour_interval_in_percent(const wafer& wafer, double range, double interval) {
  const double whole = reference(wafer, range);
  return whole == 0 ? 1 : divide(interval * 100, std::abs(whole));
}

}  // namespace mirolen
