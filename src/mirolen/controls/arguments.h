#pragma once

#include <algorithm>
#include <cstdint>
#include <initializer_list>
#include <limits>
#include <type_traits>

#include "mirolen/core/numbers.h"

// What a member of a control takes: a number that is not finite, or that its place cannot hold, changes
// nothing.
namespace mirolen {

inline bool all_finite(std::initializer_list<double> numbers) {
  return std::all_of(numbers.begin(), numbers.end(), [](double number) { return is_finite(number); });
}

/// Whether a number, rounded half to even, is one of the integer's. NaN never is.
template <class Integer>
bool fits(double number) {
  using Limits = std::numeric_limits<Integer>;
  const double whole = round_half_even(number);
  return is_finite(number) && whole >= Limits::min() && whole <= Limits::max();
}

/// Whether the renderers, which take the numbers of enumerations as 16 bits, can take a value.
template <class Enumeration>
requires std::is_enum_v<Enumeration>
bool fits_16_bits(Enumeration value) { return fits<std::int16_t>(static_cast<double>(value)); }

}  // namespace mirolen
