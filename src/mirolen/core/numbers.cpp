#include "mirolen/core/numbers.h"

#include "mirolen/core/translation.h"

namespace mirolen {

double round_half_even(double value) {
  const double below = std::floor(value);
  const double rest = value - below;
  if (rest < 0.5) return below;
  if (rest > 0.5) return below + 1;
  return std::fmod(below, 2) == 0 ? below : below + 1;
}

Color to_color(double value) {
  refuse_unless_finite({value}, translatable("a colour"));
  constexpr double modulus = 4294967296.0;
  const double rest = std::fmod(round_half_even(value), modulus);
  return static_cast<Color>(rest < 0 ? rest + modulus : rest);
}

}  // namespace mirolen
