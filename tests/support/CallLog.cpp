#include "support/CallLog.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <iterator>
#include <sstream>

#include "mirolen/core/RunTimeError.h"

namespace mirolen {
namespace {

bool is_call_of(const std::string& line, std::string_view member) {
  return line == member || line.starts_with(std::string(member) + ' ');
}

Lines words_of(const std::string& line) {
  std::istringstream stream(line);
  return {std::istream_iterator<std::string>(stream), {}};
}

std::optional<double> number_in(const std::string& word) {
  double number = 0;
  const char* end = word.data() + word.size();
  const auto [stop, error] = std::from_chars(word.data(), end, number);
  if (error != std::errc() || stop != end) return std::nullopt;
  return number;
}

bool same_word(const std::string& one, const std::string& other, double tolerance) {
  if (one == other) return true;
  const auto a = number_in(one), b = number_in(other);
  return a && b && std::abs(*a - *b) <= tolerance;
}

bool same_line(const std::string& one, const std::string& other, double tolerance) {
  const Lines a = words_of(one), b = words_of(other);
  return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                    [&](const auto& x, const auto& y) { return same_word(x, y, tolerance); });
}

std::string line_or_end(const Lines& lines, std::size_t place) {
  return place < lines.size() ? lines[place] : "(the end)";
}

std::string tell_difference(const Lines& actual, const Lines& expected, std::size_t place) {
  std::ostringstream words;
  words << "line " << place << " of " << actual.size() << " (expected " << expected.size() << "):\n";
  for (std::size_t before = place - std::min<std::size_t>(place, 3); before < place; ++before)
    words << "    both: " << actual[before] << '\n';
  words << "  actual: " << line_or_end(actual, place) << '\n';
  words << "expected: " << line_or_end(expected, place) << '\n';
  return words.str();
}

template <class Same>
std::string first_difference(const Lines& actual, const Lines& expected, Same same) {
  const std::size_t both = std::min(actual.size(), expected.size());
  for (std::size_t place = 0; place < both; ++place)
    if (!same(actual[place], expected[place])) return tell_difference(actual, expected, place);
  return actual.size() == expected.size() ? "" : tell_difference(actual, expected, both);
}

}  // namespace

std::string text_of(double number) {
  char text[32];
  const auto end = std::to_chars(std::begin(text), std::end(text), number == 0 ? 0.0 : number).ptr;
  return {text, end};
}

std::string text_of(std::optional<double> number) { return number ? text_of(*number) : "-"; }

std::string set_line(std::string_view member, double number) {
  return std::string(member) + '=' + text_of(number);
}

std::string read_line(std::string_view member) { return std::string(member) + '?'; }

void CallLog::count_and_fail(const std::string& member) {
  if (++number_ == failing_number_ || failing_.contains(member)) throw CanvasError(member);
}

void CallLog::call(const std::string& member, const std::string& line) {
  count_and_fail(member);
  lines.push_back(line);
}

void CallLog::read(const std::string& member) {
  count_and_fail(member);
  if (keeps_reads) lines.push_back(read_line(member));
}

Lines CallLog::of(std::string_view member) const {
  Lines calls;
  std::copy_if(lines.begin(), lines.end(), std::back_inserter(calls),
               [&](const auto& line) { return is_call_of(line, member); });
  return calls;
}

int CallLog::count(std::string_view member) const { return static_cast<int>(of(member).size()); }

std::optional<std::string> CallLog::value_before(std::size_t place, std::string_view property) const {
  const std::string start = std::string(property) + '=';
  for (std::size_t before = std::min(place, lines.size()); before-- > 0;)
    if (lines[before].starts_with(start)) return lines[before].substr(start.size());
  return std::nullopt;
}

std::size_t CallLog::place_of(std::string_view member) const {
  const auto found =
      std::find_if(lines.begin(), lines.end(), [&](const auto& line) { return is_call_of(line, member); });
  return static_cast<std::size_t>(found - lines.begin());
}

std::string difference(const Lines& actual, const Lines& expected) {
  return first_difference(actual, expected, std::equal_to<>());
}

std::string difference(const Lines& actual, const Lines& expected, double tolerance) {
  return first_difference(actual, expected,
                          [&](const auto& a, const auto& b) { return same_line(a, b, tolerance); });
}

}  // namespace mirolen
