#include "mirolen/render/ColorScale.h"

#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <limits>
#include <random>

namespace mirolen {
namespace {

/// A band lies from its lower end up to that of the band above; the first and the last have no other end.
int plain_band(double height, double top, double step) {
  int band = height >= top - step ? 1 : 10;
  for (int k = 2; k <= 9; ++k)
    if (top - k * step <= height && height < top - (k - 1) * step) band = k;
  return height < top - 9 * step ? 10 : band;
}

TEST(ColorScale, ABandBeginsAtItsLowerEnd) {
  for (int k = 1; k <= 9; ++k) {
    EXPECT_EQ(band_of(100 - 10 * k, 100, 10), k);
    EXPECT_EQ(band_of(std::nextafter(100 - 10 * k, 0), 100, 10), k + 1);
  }
  EXPECT_EQ(band_of(1e300, 100, 10), 1);
  EXPECT_EQ(band_of(-1e300, 100, 10), 10);
}

TEST(ColorScale, BandsAreThePlainOnesOnScalesOfAnySteps) {
  constexpr double infinity = std::numeric_limits<double>::infinity();
  constexpr double nan = std::numeric_limits<double>::quiet_NaN();
  constexpr std::array odd{0.0, -0.0, 1.0, -0.1, 1e308, -1e308, 5e-324, infinity, -infinity, nan};
  constexpr unsigned seed = 20;
  std::mt19937 random(seed);
  const auto die = [&](int sides) { return std::uniform_int_distribution(0, sides - 1)(random); };
  std::uniform_real_distribution<double> any(-3, 3);
  const auto number = [&] { return die(4) ? any(random) : odd[static_cast<std::size_t>(die(10))]; };
  for (int i = 0; i < 200000; ++i) {
    const double top = any(random), step = number();
    double height = die(2) ? top - die(11) * step : 5 * number();
    if (die(4) == 0) height = std::nextafter(height, die(2) ? infinity : -infinity);
    ASSERT_EQ(band_of(height, top, step), plain_band(height, top, step))
        << height << " under " << top << " by " << step << ", seed " << seed;
  }
}

}  // namespace
}  // namespace mirolen
