#include "mirolen/core/numbers.h"

#include <limits>

namespace mirolen {
namespace {

template <class Integer>
Integer to_integer(double value) {
  const double rounded = round_half_even(value);
  const bool fits =
      rounded >= std::numeric_limits<Integer>::min() && rounded <= std::numeric_limits<Integer>::max();
  if (!fits) throw OverflowError("the value does not fit its integer type");
  return static_cast<Integer>(rounded);
}

}  // namespace

double round_half_even(double value) {
  const double below = std::floor(value);
  const double rest = value - below;
  if (rest < 0.5) return below;
  if (rest > 0.5) return below + 1;
  return std::fmod(below, 2) == 0 ? below : below + 1;
}

std::int16_t to_int16(double value) { return to_integer<std::int16_t>(value); }

std::int32_t to_int32(double value) { return to_integer<std::int32_t>(value); }

Color to_color(double value) {
  refuse_unless_finite({value}, "a colour");
  constexpr double modulus = 4294967296.0;
  const double rest = std::fmod(round_half_even(value), modulus);
  return static_cast<Color>(rest < 0 ? rest + modulus : rest);
}

}  // namespace mirolen
