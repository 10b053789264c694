#pragma once

#include <string_view>

namespace mirolen {

// Checks of what a user types into a numeric field. A number is blanks around, one sign, digits with at most
// one decimal separator of the locale and at least one digit, and an exponent with e, E, d or D.

/// False only for a number at or beyond the limits; what is no number is not this check's business.
bool IsInRangeOrOpen(std::string_view text, double low, double high);

/// True for an empty text and for a number without exponent and separator.
bool IsPlainInteger(std::string_view text);

/// The number in a text; 0 where there is none.
double number_in(std::string_view text);

}  // namespace mirolen
