#pragma once

#include <cstdint>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "mirolen/core/numbers.h"

namespace mirolen {

using Lines = std::vector<std::string>;

/// The shortest text that reads back as the same number; no minus for zero, "-" for a number left out.
std::string text_of(double number);
std::string text_of(std::optional<double> number);

/// A call as one line: "Line 6 0 0 10 10 255".
template <class... Numbers>
std::string line_of(std::string_view member, Numbers... numbers) {
  std::string line(member);
  ((line += ' ' + text_of(numbers)), ...);
  return line;
}
/// A property set: "FillColor=255".
std::string set_line(std::string_view member, double number);
/// A property read: "ScaleLeft?".
std::string read_line(std::string_view member);

/// Keeps the calls of a fake as lines of text, and lets them fail on demand. A failing call leaves no line.
class CallLog {
 public:
  Lines lines;
  bool keeps_reads = false;

  /// From now on this member fails, whether it is called, set or read.
  void fail_in(const std::string& member) { failing_.insert(member); }
  /// The call, set or read with this number, from 1, fails once.
  void fail_at(int number) { failing_number_ = number; }
  int number_of_calls() const { return number_; }

  /// @throws CanvasError where this call is to fail.
  void call(const std::string& member, const std::string& line);
  void set(const std::string& member, double number) { call(member, set_line(member, number)); }
  void read(const std::string& member);

  /// How often a call of a member stands in the log, its sets and reads left out.
  int count(std::string_view member) const;
  /// The lines of one member's calls.
  Lines of(std::string_view member) const;
  /// What a property was last set to before a place in the log; nothing if it was not.
  std::optional<std::string> value_before(std::size_t place, std::string_view property) const;
  /// The place of the first call of a member; the end if there is none.
  std::size_t place_of(std::string_view member) const;

 private:
  void count_and_fail(const std::string& member);

  std::set<std::string> failing_;
  int failing_number_ = 0;
  int number_ = 0;
};

/// Where two logs part, in words; empty if they are equal.
std::string difference(const Lines& actual, const Lines& expected);
/// The same for logs whose numbers may differ by the tolerance.
std::string difference(const Lines& actual, const Lines& expected, double tolerance);

}  // namespace mirolen
