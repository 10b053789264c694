#pragma once

#include <string>
#include <string_view>

namespace mirolen {

// Checks of what a user types into a numeric field. A number is blanks around, one sign, digits with at most
// one decimal separator of the locale and at least one digit, and an exponent with e, E, d or D.

/// False only for a number at or beyond the limits; what is no number is not this check's business.
bool IsInRangeOrOpen(std::string_view text, double low, double high);

/// True for an empty text and for a number without exponent and separator.
bool IsPlainInteger(std::string_view text);

/// True for an empty text and for whole degrees from 0 to 360.
bool IsAngleOrOpen(std::string_view text);

/// True for a number without an exponent. A lone minus is none, with and without the flag.
bool IsPlainDecimal(std::string_view text, bool minus_allowed);

/// True for a number strictly between the limits. Otherwise the message gets a line more, which begins with
/// the label: the checks of a form add up to one message.
bool CheckNumberField(std::string_view text, double low, double high, std::string& message,
                      std::string_view label);

/// The number in a text; 0 where there is none.
double number_in(std::string_view text);

}  // namespace mirolen
