#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <string>
#include <utility>
#include <vector>

#include "support/site_support.h"

namespace mirolen {

// The numbers of a legend's rows, read back.

/// A number as a legend writes it, and what one unit of the last place that it tells is.
struct ReadNumber {
  double value, last_place;
  std::size_t width;  // with the blanks in front
};

inline ReadNumber read_number(const std::string& field) {
  const std::size_t e = std::min(field.find('E'), field.size()), point = field.find('.');
  double decimals = static_cast<double>(point < e ? e - point - 1 : 0), exponent = 0;
  if (e < field.size()) {
    exponent = std::stod(field.substr(e + 1));
    decimals = std::min(decimals, 2.0);  // the exponent form rounds to two and pads with zeros
  }
  return {std::stod(field), std::pow(10, exponent - decimals), field.size()};
}

/// A boundary may have lost digits behind its last place, and behind its fifteenth, and nothing else.
inline void expect_read_back(const ReadNumber& number, double boundary) {
  EXPECT_LE(std::abs(number.value - boundary), number.last_place * 1.0001 + 1e-14 * std::abs(boundary));
  const bool shows_as_zero = number.value == 0 && std::abs(boundary) < 5e-11;
  EXPECT_TRUE(shows_as_zero || std::signbit(number.value) == (boundary < 0)) << boundary;
}

/// The numbers of a row's text: two round " - ", one behind " > " or " < ".
inline std::vector<ReadNumber> numbers_of(const std::string& text) {
  if (text.starts_with(" > ") || text.starts_with(" < ")) return {read_number(text.substr(3))};
  const std::size_t dash = text.find(" - ");
  return {read_number(text.substr(0, dash)), read_number(text.substr(dash + 3))};
}

/// The ends of a scale, from 1e-6 to 1e7 in size, and now and then far beyond.
inline std::pair<double, double> any_scale(Random& random) {
  const auto any_number = [&] {
    const double size = std::pow(10, between(random, -6.0, chance(random, 0.1) ? 140.0 : 7.0));
    return chance(random, 0.5) ? size : -size;
  };
  const double a = any_number(), b = chance(random, 0.1) ? 0 : any_number();
  return {std::min(a, b), std::max(a, b)};
}

}  // namespace mirolen
