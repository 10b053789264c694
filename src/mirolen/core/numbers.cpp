#include "mirolen/core/numbers.h"

#include "mirolen/core/RunTimeError.h"

namespace mirolen {

void raise_overflow() { throw OverflowError(tr("overflow")); }

void raise_integer_overflow() { throw OverflowError(tr("the value does not fit its integer type")); }

void raise_division_by_zero() { throw DivisionByZero(); }

void raise_negative_root() { throw InvalidArgument(tr("square root of a negative number")); }

void raise_not_finite(const char* what) { throw InvalidArgument(tr(what) + tr(" must be finite")); }

double round_half_even(double value) {
  const double below = std::floor(value);
  const double rest = value - below;
  if (rest < 0.5) return below;
  if (rest > 0.5) return below + 1;
  return std::fmod(below, 2) == 0 ? below : below + 1;
}

Color to_color_of_large(double value) {
  refuse_unless_finite({value}, translatable("a colour"));
  constexpr double modulus = 4294967296.0;
  const double rest = std::fmod(value, modulus);
  return static_cast<Color>(rest < 0 ? rest + modulus : rest);
}

}  // namespace mirolen
