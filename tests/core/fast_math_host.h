#pragma once

#include <cstdint>

#include "mirolen/core/numbers.h"

/// What a host that is compiled with -ffast-math gets of the library's inline functions.
namespace mirolen::fast_math_host {

bool finds_finite(double value);
std::int16_t to_16_bits(double value);
std::int32_t to_32_bits(double value);
Color color_of(double value);
double checked_value(double value);
double quotient(double a, double b);
double root(double value);
void refuse_what_is_not_finite(double value);

}  // namespace mirolen::fast_math_host
