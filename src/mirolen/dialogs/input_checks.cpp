#include "mirolen/dialogs/input_checks.h"

#include <charconv>
#include <cmath>
#include <optional>
#include <string>

#include "mirolen/core/DecimalSeparator.h"
#include "mirolen/core/translation.h"

namespace mirolen {
namespace {

constexpr std::string_view digits = "0123456789";

std::string_view without_blanks(std::string_view text) {
  const std::size_t first = text.find_first_not_of(" \t");
  if (first == std::string_view::npos) return {};
  return text.substr(first, text.find_last_not_of(" \t") - first + 1);
}

/// Takes the characters of a set off the front of a text.
std::string_view take(std::string_view& text, std::string_view set) {
  const std::size_t length = std::min(text.find_first_not_of(set), text.size());
  const std::string_view taken = text.substr(0, length);
  text.remove_prefix(length);
  return taken;
}

std::string_view take_sign(std::string_view& text) {
  const bool sign = text.starts_with('-') || text.starts_with('+');
  const std::string_view taken = text.substr(0, sign ? 1 : 0);
  text.remove_prefix(taken.size());
  return taken;
}

std::optional<double> numeric(std::string_view text) {
  text = without_blanks(text);
  const bool negative = take_sign(text) == "-";
  const std::string_view whole = take(text, digits);
  std::string_view decimals;
  if (const std::string separator = decimal_separator(); text.starts_with(separator)) {
    text.remove_prefix(separator.size());
    decimals = take(text, digits);
  }
  if (whole.empty() && decimals.empty()) return std::nullopt;

  std::string plain = "0";
  plain.append(whole).append(".").append(decimals);
  if (!text.empty() && std::string_view("eEdD").find(text.front()) != std::string_view::npos) {
    text.remove_prefix(1);
    const std::string_view sign = take_sign(text);
    const std::string_view exponent = take(text, digits);
    if (exponent.empty()) return std::nullopt;
    plain.append("e").append(sign == "-" ? sign : "").append(exponent);
  }
  if (!text.empty()) return std::nullopt;

  double value = 0;
  const auto [stop, error] = std::from_chars(plain.data(), plain.data() + plain.size(), value);
  if (error == std::errc::result_out_of_range) return std::nullopt;
  return negative ? -value : value;
}

}  // namespace

bool IsInRangeOrOpen(std::string_view text, double low, double high) {
  const std::optional<double> value = numeric(text);
  return !value || (*value > low && *value < high);
}

bool IsPlainInteger(std::string_view text) {
  return text.empty() || (numeric(text) && text.find_first_of("eE,.dD") == std::string_view::npos);
}

bool IsAngleOrOpen(std::string_view text) { return IsInRangeOrOpen(text, -1, 361) && IsPlainInteger(text); }

bool IsPlainDecimal(std::string_view text, bool minus_allowed) {
  if (text.empty()) return false;
  if (!minus_allowed && text == "-") return false;  // contract 13
  return numeric(text) && text.find_first_of("eEdD") == std::string_view::npos;
}

bool CheckNumberField(std::string_view text, double low, double high, std::string& message,
                      std::string_view label) {
  const auto refuse = [&](const std::string& reason) {
    message.append(label).append(reason).append("\n");
    return false;
  };
  if (text.empty()) return refuse(tr("can not be empty"));
  const std::optional<double> value = numeric(text);
  if (!value) return refuse(tr("must be numeric"));
  if (!(*value > low && *value < high)) return refuse(tr("not valid"));
  return true;
}

double number_in(std::string_view text) { return numeric(text).value_or(0); }

}  // namespace mirolen
