#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace mirolen::StringFormat {

// Numbers as texts, with the decimal separator of the library. All work on 15 significant decimal digits,
// ties away from zero; a negative number that shows as zero has no minus. @throws InvalidArgument for a
// number that is not finite.

/// A number in a format of 0 (a digit always), # (a digit unless it is an outer zero), at most one "."
/// (always shown where there is one) and optionally an exponent: "E+" (sign always) or "E-" followed by 0 and
/// #. "0.0#" shows 2 as "2.0". "Scientific" stands for "0.00E+00".
std::string format_number(double value, std::string_view format);

/// A value rounded to so many decimals, as its text in that format reads; to a whole number for fewer than
/// none.
double rounded_to(double value, int decimals);

/// Plain text of a number: up to 15 significant digits, no trailing zeros, no blank in front; with an
/// exponent from 1E+15 up and where more than 15 places would stand behind the separator.
std::string plain_text(double value);

/// Places of the whole number nearest to value, one for its sign included: 5 takes 2. One more with hasSign.
/// useExp comes back true, and the width as that of one digit, where the value needs the exponent form.
std::int16_t IntegerWidth(double value, bool hasSign, bool& useExp);

/// Decimals that fit into a field of maxWidth beside the whole number. useExp comes back true where value
/// needs the exponent form: above 100000, and positive below 0.0001 (a negative number so small stays in
/// plain form).
std::int16_t DecimalsFor(double value, std::int16_t maxWidth, bool& useExp);

/// A value with a number of decimals (digits behind are cut, not rounded; below 1 none and no separator) in a
/// field of a width: shorter text is padded on its left, longer text cut there. A width of 0 or less:
/// neither.
std::string FormatField(double value, std::int16_t width, std::int16_t decimals, bool useExp);

/// The width of the field that holds a value with a number of decimals uncut.
std::int16_t FieldWidth(double value, std::int16_t decimals, bool useExp);

/// A value as the text of a caption: up to seven decimals below 1, four up to 10,000, two above; in exponent
/// form above 100,000 and below 1e-7.
std::string label_text(double value);

}  // namespace mirolen::StringFormat
