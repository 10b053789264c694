#include "mirolen/render/StringFormat.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstdio>
#include <cstdlib>

#include "mirolen/core/DecimalSeparator.h"
#include "mirolen/core/numbers.h"
#include "mirolen/core/translation.h"

namespace mirolen::StringFormat {
namespace {

constexpr int significant_digits = 15;
/// No Double has a digit that is kept beyond as many places behind the separator.
constexpr int most_decimals = 324 + significant_digits;

/// A number as decimal digits: 0.d1 d2 d3 ... times 10^exponent. Zero has no digits.
struct Decimal {
  bool negative = false;
  std::string digits;
  int exponent = 0;

  explicit Decimal(double value) : negative(std::signbit(value)) {
    refuse_unless_finite({value}, translatable("a number to be shown"));
    // More digits than are kept, so that a tie is seen as one.
    std::array<char, 48> text{};
    std::snprintf(text.data(), text.size(), "%.*e", 2 * significant_digits, std::abs(value));
    const char* e = std::find(text.data(), text.data() + text.size(), 'e');
    std::copy_if(static_cast<const char*>(text.data()), e, std::back_inserter(digits),
                 [](char c) { return c >= '0' && c <= '9'; });
    exponent = std::atoi(e + 1) + 1;
    drop_trailing_zeros();
    if (zero()) exponent = 0;
    round_to(significant_digits - exponent);
  }

  /// Keeps so many digits behind the separator, ties away from zero.
  void round_to(int places) {
    const int kept = exponent + places;
    if (kept >= static_cast<int>(digits.size())) return;
    if (kept < 0) {
      digits.clear();
      return;
    }
    const bool up = digits[static_cast<std::size_t>(kept)] >= '5';
    digits.resize(static_cast<std::size_t>(kept));
    if (up) increment();
    drop_trailing_zeros();
  }

  bool zero() const { return digits.empty(); }
  /// The digit at a power of ten; '0' where none is kept.
  char digit(int power) const {
    const int at = exponent - 1 - power;
    return at >= 0 && at < static_cast<int>(digits.size()) ? digits[static_cast<std::size_t>(at)] : '0';
  }
  int lowest_power() const { return exponent - static_cast<int>(digits.size()); }

 private:
  void increment() {
    auto last = digits.rbegin();
    for (; last != digits.rend() && *last == '9'; ++last) *last = '0';
    if (last != digits.rend()) {
      ++*last;
    } else {
      digits.insert(digits.begin(), '1');
      ++exponent;
    }
  }
  void drop_trailing_zeros() { digits.resize(digits.find_last_not_of('0') + 1); }
};

/// A format taken apart.
struct Pattern {
  int whole_digits = 0;  // always shown before the separator
  int whole_places = 0;  // 0 and # before the separator
  bool separator = false;
  int decimals_always = 0;  // always shown behind it
  int decimals_most = 0;    // 0 and # behind it
  bool exponent = false;
  bool exponent_sign = false;
  int exponent_digits = 0;

  explicit Pattern(std::string_view format) {
    const std::size_t e = format.find('E');
    const std::string_view mantissa = format.substr(0, e);
    const std::size_t point = std::min(mantissa.find('.'), mantissa.size());
    const std::string_view before = mantissa.substr(0, point);
    const std::string_view behind = mantissa.substr(std::min(point + 1, mantissa.size()));
    separator = point < mantissa.size();
    whole_digits = zeros(before);
    whole_places = static_cast<int>(before.size());
    decimals_always = zeros(behind);
    decimals_most = static_cast<int>(behind.size());
    if (e == std::string_view::npos) return;
    exponent = true;
    exponent_sign = format.substr(e).starts_with("E+");
    exponent_digits = zeros(format.substr(e));
  }

 private:
  static int zeros(std::string_view text) {
    return static_cast<int>(std::count(text.begin(), text.end(), '0'));
  }
};

std::string exponent_text(const Pattern& pattern, int exponent) {
  std::string digits = std::to_string(std::abs(exponent));
  const auto missing = pattern.exponent_digits - static_cast<int>(digits.size());
  if (missing > 0) digits.insert(0, static_cast<std::size_t>(missing), '0');
  return (exponent < 0 ? "E-" : pattern.exponent_sign ? "E+" : "E") + digits;
}

/// The number with "." as its separator.
std::string in_pattern(double value, const Pattern& pattern) {
  Decimal number(value);
  int exponent = 0;
  if (pattern.exponent && !number.zero()) {
    number.round_to(pattern.decimals_most + pattern.whole_places - number.exponent);
    exponent = number.exponent - pattern.whole_places;
    number.exponent = pattern.whole_places;
  }
  number.round_to(pattern.decimals_most);

  std::string text = number.negative && !number.zero() ? "-" : "";
  for (int power = std::max(number.exponent, pattern.whole_digits) - 1; power >= 0; --power)
    text += number.digit(power);
  if (pattern.separator) text += '.';
  const int decimals =
      number.zero() ? pattern.decimals_always : std::max(pattern.decimals_always, -number.lowest_power());
  for (int place = 1; place <= decimals; ++place) text += number.digit(-place);
  if (pattern.exponent) text += exponent_text(pattern, exponent);
  return text;
}

std::string localized(std::string text) {
  const std::size_t point = text.find('.');
  if (point != std::string::npos) text.replace(point, 1, decimal_separator());
  return text;
}

/// Plain text with "." as its separator.
std::string plain(double value) {
  const Decimal number(value);
  if (number.zero()) return "0";
  const bool with_exponent =
      number.exponent > significant_digits || number.lowest_power() < -significant_digits;
  std::string text = in_pattern(value, Pattern(with_exponent ? "0.##############E+00" : "0.###############"));
  if (const std::size_t bare = text.find(".E"); bare != std::string::npos) text.erase(bare, 1);
  if (text.ends_with('.')) text.pop_back();
  return text;
}

/// Length of a number's text with a place for the sign and no zero before the separator. (contract 61)
std::int16_t text_length(double value) {
  std::string text = plain(std::abs(value));
  if (text.starts_with("0.")) text.erase(0, 1);
  return static_cast<std::int16_t>(text.size() + 1);
}

/// A value with a number of decimals, as far as so many zeros behind its digits reach, with "." as its
/// separator.
std::string with_decimals(double value, std::int16_t decimals, std::size_t zeros, bool useExp) {
  std::string text = in_pattern(value, Pattern(useExp ? "0.00E+00" : "0.0#########"));
  const std::size_t e = std::min(text.find('E'), text.size());
  const std::string exponent = text.substr(e);
  text = text.substr(0, e) + std::string(zeros, '0');

  const std::size_t point = text.find('.');
  // contract 63
  text.resize(std::min(text.size(), decimals < 1 ? point : point + 1 + static_cast<std::size_t>(decimals)));
  return text + exponent;
}

}  // namespace

std::string format_number(double value, std::string_view format) {
  return localized(in_pattern(value, Pattern(format == "Scientific" ? "0.00E+00" : format)));
}

double rounded_to(double value, int decimals) {
  const auto places = static_cast<std::size_t>(std::clamp(decimals, 0, most_decimals));
  const std::string text = in_pattern(value, Pattern("0." + std::string(places, '0')));
  double number = 0;
  std::from_chars(text.data(), text.data() + text.size(), number);
  return number;
}

std::string plain_text(double value) { return localized(plain(value)); }

std::int16_t IntegerWidth(double value, bool hasSign, bool& useExp) {
  useExp = !(std::abs(value) >= 0.0001 && std::abs(value) <= 100000);
  const std::int16_t width = useExp ? std::int16_t{1} : text_length(round_half_even(value));
  return static_cast<std::int16_t>(hasSign ? width + 1 : width);
}

std::int16_t DecimalsFor(double value, std::int16_t maxWidth, bool& useExp) {
  const int m = value < 0 ? maxWidth - 1 : maxWidth;
  useExp = !(std::abs(value) <= 100000 && (std::abs(value) >= 0.0001 || value <= 0));  // contract 62
  if (useExp) return static_cast<std::int16_t>(m >= 9 ? m - 7 : 2);

  const double whole = round_half_even(value);
  const double fraction = value - whole;
  if (fraction == 0 && m == 0) return 0;
  const int decimals = m < 1 ? text_length(fraction) - 2 : m - text_length(whole);
  return static_cast<std::int16_t>(std::max(decimals, 0));
}

std::string FormatField(double value, std::int16_t width, std::int16_t decimals, bool useExp) {
  const std::size_t padding = static_cast<std::size_t>(std::max(width + decimals, 0));
  std::string text = with_decimals(value, decimals, padding, useExp);
  if (width > 0) {
    text.insert(0, padding, ' ');
    const auto field = static_cast<std::size_t>(width);
    if (text.size() > field) text.erase(0, text.size() - field);
  }
  return localized(text);
}

std::int16_t FieldWidth(double value, std::int16_t decimals, bool useExp) {
  const std::size_t padding = static_cast<std::size_t>(std::max<int>(decimals, 0));
  return static_cast<std::int16_t>(with_decimals(value, decimals, padding, useExp).size());
}

std::string label_text(double value) {
  if (value == 0) return format_number(0, "0.0");
  const double size = std::abs(value);
  const char* format = size < 1 ? "0.0######" : size <= 10000 ? "0.0###" : "0.0#";
  const bool plain = size >= 1e-7 && size <= 100000;
  return format_number(value, plain ? format : "0.###E+#0");
}

}  // namespace mirolen::StringFormat
