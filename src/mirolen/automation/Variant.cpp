#include "mirolen/automation/Variant.h"

#include <array>
#include <charconv>
#include <cmath>

#include "mirolen/core/numbers.h"

namespace mirolen::automation {
namespace {

[[noreturn]] void refuse(Type from, Type to) {
  throw InvalidArgument(std::string("no reading of ") + name_of(from) + " as " + name_of(to));
}

double number_in(const std::string& text, Type to) {
  double number = 0;
  const char* const end = text.data() + text.size();
  const auto [stop, error] = std::from_chars(text.data(), end, number);
  if (error != std::errc() || stop != end || !is_finite(number)) refuse(Type::text, to);
  return number;
}

double number_of(const Variant& value, Type to) {
  if (const auto* flag = std::get_if<bool>(&value)) return *flag ? -1 : 0;
  if (const auto* small = std::get_if<std::int16_t>(&value)) return *small;
  if (const auto* whole = std::get_if<std::int32_t>(&value)) return *whole;
  if (const auto* real = std::get_if<double>(&value)) return *real;
  if (const auto* text = std::get_if<std::string>(&value)) return number_in(*text, to);
  refuse(type_of(value), to);
}

std::string text_of(const Variant& value) {
  if (std::holds_alternative<bool>(value)) return std::get<bool>(value) ? "True" : "False";
  constexpr double whole_below = 1e15;
  constexpr int digits = 15;
  const double number = checked(number_of(value, Type::text));
  const bool whole = std::trunc(number) == number && std::abs(number) < whole_below;
  const auto format = whole ? std::chars_format::fixed : std::chars_format::general;
  std::array<char, 32> text{};
  const auto end =
      std::to_chars(text.data(), text.data() + text.size(), number, format, whole ? 0 : digits).ptr;
  return {text.data(), end};
}

}  // namespace

const char* name_of(Type type) {
  constexpr std::array names{"nothing", "boolean", "16-bit integer", "32-bit integer",
                             "Double",  "text",    "Double array",   "object"};
  return names[static_cast<std::size_t>(type)];
}

Variant converted(const Variant& value, Type to) {
  if (type_of(value) == to) return value;
  switch (to) {
    case Type::boolean:
      return checked(number_of(value, to)) != 0;
    case Type::int16:
      return to_int16(number_of(value, to));
    case Type::int32:
      return to_int32(number_of(value, to));
    case Type::real:
      return checked(number_of(value, to));
    case Type::text:
      return text_of(value);
    default:
      refuse(type_of(value), to);
  }
}

}  // namespace mirolen::automation
