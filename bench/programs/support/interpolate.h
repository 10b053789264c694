#pragma once

#include <cstddef>
#include <span>

#include "mirolen/core/wafer.h"

namespace mirolen::bench {

/// Interpolates at many points: in one call where the wafer has such a member, otherwise point by point.
template <class Wafer>
void interpolate(const Wafer& wafer, std::span<const double> x, std::span<const double> y,
                 std::span<double> z) {
  if constexpr (requires { wafer.Interpolation(x, y, z); }) {
    wafer.Interpolation(x, y, z);
  } else {
    for (std::size_t i = 0; i < x.size(); ++i) z[i] = wafer.Interpolation(x[i], y[i]);
  }
}

}  // namespace mirolen::bench
