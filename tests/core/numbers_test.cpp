#include "mirolen/core/numbers.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "mirolen/core/palette.h"
#include "support/site_support.h"

namespace mirolen {
namespace {

TEST(RoundHalfEven, TakesTiesToTheEvenNumber) {
  EXPECT_EQ(round_half_even(0.5), 0);
  EXPECT_EQ(round_half_even(1.5), 2);
  EXPECT_EQ(round_half_even(2.5), 2);
  EXPECT_EQ(round_half_even(-0.5), 0);
  EXPECT_EQ(round_half_even(-1.5), -2);
  EXPECT_EQ(round_half_even(-2.5), -2);
  EXPECT_EQ(round_half_even(2.4999999), 2);
  EXPECT_EQ(round_half_even(2.5000001), 3);
  EXPECT_EQ(round_half_even(1e300), 1e300);
}

TEST(ToInt16, RefusesWhatDoesNotFit) {
  EXPECT_EQ(to_int16(32767.5 - 0.01), 32767);
  EXPECT_EQ(to_int16(-32768.5), -32768);
  EXPECT_THROW(to_int16(32767.5), OverflowError);
  EXPECT_THROW(to_int16(-32769), OverflowError);
  EXPECT_THROW(to_int16(std::numeric_limits<double>::quiet_NaN()), OverflowError);
}

TEST(ToInt32, RefusesWhatDoesNotFit) {
  EXPECT_EQ(to_int32(2147483647.4), 2147483647);
  EXPECT_THROW(to_int32(2147483647.5), OverflowError);
  EXPECT_THROW(to_int32(-2147483649.0), OverflowError);
}

TEST(ToColor, WrapsAt32Bits) {
  EXPECT_EQ(to_color(16777215), 0xFFFFFFu);
  EXPECT_EQ(to_color(-1), 0xFFFFFFFFu);
  EXPECT_EQ(to_color(4294967296.0 + 7), 7u);
  EXPECT_EQ(to_color(-2147483633.0), 0x8000000Fu);
  EXPECT_THROW(to_color(std::numeric_limits<double>::infinity()), InvalidArgument);
}

/// The colour in the plainest words.
Color plain_color(double value) {
  const double below = std::floor(value), rest = value - below;
  const bool up = rest > 0.5 || (rest == 0.5 && std::fmod(below, 2) != 0);
  const double wrapped = std::fmod(up ? below + 1 : below, 4294967296.0);
  return static_cast<Color>(static_cast<std::int64_t>(wrapped < 0 ? wrapped + 4294967296.0 : wrapped));
}

class ToColorOfRandomNumbers : public RandomInput {};

TEST_F(ToColorOfRandomNumbers, RoundsAndWrapsAsToldInTheWholeRangeOfDouble) {
  for (int round = 0; round < 20000; ++round) {
    const double scale = std::ldexp(1, between(random, 0, 1023));
    const double usual = between(random, 0.0, 16777216.0), any = between(random, -1.0, 1.0) * scale;
    for (const double value : {usual, any})
      for (const double near :
           {value, std::floor(value), std::floor(value) + 0.5, std::nextafter(std::floor(value) + 0.5, 0.0)})
        ASSERT_EQ(to_color(near), plain_color(near)) << near;
  }
  for (const double edge : {4294967295.5, -0.5, 0x1p52, -0x1p52, 0x1p52 - 0.5, 0.5 - 0x1p52, 0x1p53 + 2})
    EXPECT_EQ(to_color(edge), plain_color(edge)) << edge;
}

TEST(Divide, RaisesWhereArithmeticWouldLeaveTheNumbers) {
  EXPECT_EQ(divide(6, 4), 1.5);
  EXPECT_THROW(divide(1, 0), DivisionByZero);
  EXPECT_THROW(divide(0, 0), DivisionByZero);
  EXPECT_THROW(divide(1e300, 1e-300), OverflowError);
  EXPECT_THROW(square_root(-1e-300), InvalidArgument);
}

TEST(QBColor, HoldsRedInTheLowByte) {
  EXPECT_EQ(QBColor(0), 0x000000u);
  EXPECT_EQ(QBColor(1), 0x800000u);   // blue
  EXPECT_EQ(QBColor(3), 0x808000u);   // cyan
  EXPECT_EQ(QBColor(4), 0x000080u);   // red
  EXPECT_EQ(QBColor(12), 0x0000FFu);  // light red
  EXPECT_EQ(QBColor(14), 0x00FFFFu);  // yellow
  EXPECT_EQ(QBColor(15), 0xFFFFFFu);
  EXPECT_THROW(QBColor(16), InvalidArgument);
  EXPECT_THROW(QBColor(-1), InvalidArgument);
}

}  // namespace
}  // namespace mirolen
