#include "fast_math_host.h"

namespace mirolen::fast_math_host {

bool finds_finite(double value) { return is_finite(value); }
std::int16_t to_16_bits(double value) { return to_int16(value); }
std::int32_t to_32_bits(double value) { return to_int32(value); }
Color color_of(double value) { return to_color(value); }
double checked_value(double value) { return checked(value); }
double quotient(double a, double b) { return divide(a, b); }
double root(double value) { return square_root(value); }
void refuse_what_is_not_finite(double value) { refuse_unless_finite({value}, "a number"); }

}  // namespace mirolen::fast_math_host
