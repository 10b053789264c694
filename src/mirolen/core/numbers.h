#pragma once

#include <bit>
#include <cmath>
#include <cstdint>
#include <initializer_list>
#include <limits>
#include <string>

#include "mirolen/core/RunTimeError.h"
#include "mirolen/core/translation.h"

namespace mirolen {

/// A colour value: 0x00BBGGRR, or 0x80000000 plus the index of a system colour.
using Color = std::uint32_t;

// The errors of what follows, which keep out of its way so that it stays small.
[[noreturn]] void raise_overflow();
[[noreturn]] void raise_integer_overflow();
[[noreturn]] void raise_division_by_zero();
[[noreturn]] void raise_negative_root();
[[noreturn]] void raise_not_finite(const char* what);

/// The size of a number as bits, which order as sizes do, with infinity and NaN above them all. It is what
/// tells those two apart in a host that is compiled with -ffast-math, where no comparison does.
constexpr std::uint64_t size_bits(double value) {
  return std::bit_cast<std::uint64_t>(value) & 0x7FFF'FFFF'FFFF'FFFF;
}
/// Whether a number is neither infinite nor NaN.
constexpr bool is_finite(double value) { return size_bits(value) < 0x7FF0'0000'0000'0000; }
/// Whether a number is nearer to 0 than a limit; NaN never is.
constexpr bool is_within(double value, double limit) { return size_bits(value) < size_bits(limit); }

/// Rounds to a whole number, ties to the even one, whatever rounding mode the host has set.
double round_half_even(double value);

/// Below this a number may have a fraction.
constexpr double largest_fraction = 0x1p52;

/// round_half_even of a number within largest_fraction.
inline std::int64_t nearest_whole(double value) {
  const auto cut = static_cast<std::int64_t>(value);
  const std::int64_t below = cut - (static_cast<double>(cut) > value);
  const double rest = value - static_cast<double>(below);
  return below + ((rest > 0.5) | ((rest == 0.5) & ((below & 1) == 1)));
}

/// round_half_even into 16 or 32 bits. @throws OverflowError where the result does not fit (NaN never does).
template <class Integer>
Integer to_integer(double value) {
  using Limits = std::numeric_limits<Integer>;
  if (is_within(value, largest_fraction)) {
    const std::int64_t whole = nearest_whole(value);
    if (whole >= Limits::min() && whole <= Limits::max()) return static_cast<Integer>(whole);
  }
  raise_integer_overflow();
}
inline std::int16_t to_int16(double value) { return to_integer<std::int16_t>(value); }
inline std::int32_t to_int32(double value) { return to_integer<std::int32_t>(value); }

/// to_color of a number beyond largest_fraction, or of one that is not finite.
Color to_color_of_large(double value);

/// The 32-bit colour that a Double carries: rounded, modulo 2^32. @throws InvalidArgument if not finite.
inline Color to_color(double value) {
  if (is_within(value, largest_fraction)) return static_cast<Color>(nearest_whole(value));
  return to_color_of_large(value);
}

/// The largest whole number that is not above value.
inline double Int(double value) { return std::floor(value); }

/// @throws InvalidArgument, naming what, for a number that is infinite or NaN.
inline void refuse_unless_finite(std::initializer_list<double> numbers, const char* what) {
  for (const double number : numbers)
    if (!is_finite(number)) raise_not_finite(what);
}

/// The value of an arithmetic expression. @throws OverflowError if it became infinite or NaN on the way.
inline double checked(double value) {
  if (!is_finite(value)) raise_overflow();
  return value;
}

/// a / b. @throws DivisionByZero, OverflowError.
inline double divide(double a, double b) {
  if (b == 0) raise_division_by_zero();
  return checked(a / b);
}

/// @throws InvalidArgument for a negative number.
inline double square_root(double value) {
  if (value < 0) raise_negative_root();
  return std::sqrt(checked(value));
}

}  // namespace mirolen
