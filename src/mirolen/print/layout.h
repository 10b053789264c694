#pragma once

#include <algorithm>
#include <cstdint>

namespace mirolen::print {

/// `ShowDispl` of a renderer on a page.
inline constexpr std::int16_t on_page = 1;
/// Inclination of a wafer seen from above.
inline constexpr double from_above = 90;

/// The square of a plot on the page.
struct Square {
  double left, top, size;
};

/// The size of a plot in an area.
inline double plot_size(double width, double height) { return std::min(width, height) * 0.9; }

/// A square of a size in the middle of an area.
inline Square centred(double left, double top, double width, double height, double size) {
  return {left + (width - size) / 2, top + (height - size) / 2, size};
}

}  // namespace mirolen::print
