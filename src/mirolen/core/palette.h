#pragma once

#include <array>

#include "mirolen/core/RunTimeError.h"
#include "mirolen/core/numbers.h"

namespace mirolen {

/// The sixteen colours by number: 0 black, 1 blue, 2 green, 3 cyan, 4 red, 5 magenta, 6 brown, 7 light grey,
/// 8 grey, 9 to 14 the light ones in the same order (14 yellow), 15 white.
constexpr Color QBColor(int n) {
  constexpr Color bgr[16] = {0x000000, 0x800000, 0x008000, 0x808000, 0x000080, 0x800080, 0x008080, 0xC0C0C0,
                             0x808080, 0xFF0000, 0x00FF00, 0xFFFF00, 0x0000FF, 0xFF00FF, 0x00FFFF, 0xFFFFFF};
  if (n < 0 || n > 15) throw InvalidArgument("a palette has the colours 0 to 15");
  return bgr[n];
}

/// The colours of a new wafer: of its ten intervals, top of the scale first, and of a sigma plot above,
/// inside and below its range.
inline constexpr std::array default_interval_colors{QBColor(4), QBColor(12), QBColor(14), QBColor(10),
                                                    QBColor(6), QBColor(2),  QBColor(3),  QBColor(9),
                                                    QBColor(1), QBColor(5)};
inline constexpr std::array default_sigma_colors{QBColor(4), QBColor(2), QBColor(1)};

}  // namespace mirolen
