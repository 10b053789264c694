#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <bit>
#include <cstdint>

#include "mirolen/core/Lanes.h"
#include "support/site_support.h"

namespace mirolen {
namespace {

using Four = std::array<float, 4>;
using Bits = std::array<std::uint32_t, 4>;

template <class Lanes>
Bits bits_of(const Lanes& lanes) {
  return {std::bit_cast<std::uint32_t>(lanes[0]), std::bit_cast<std::uint32_t>(lanes[1]),
          std::bit_cast<std::uint32_t>(lanes[2]), std::bit_cast<std::uint32_t>(lanes[3])};
}

/// The result of every operation on two fours, one after the other.
template <class Lanes>
std::vector<Bits> results(const Four& left, const Four& right, std::int32_t number, std::uint32_t few) {
  const Lanes a = Lanes::load(left.data()), b = Lanes::load(right.data());
  auto counting = Lanes::Numbers::from(number), same = Lanes::Numbers::all(number);
  counting += 4;
  same += 1;
  Bits stored;
  Four four;
  b.store(four.data());
  std::transform(four.begin(), four.end(), stored.begin(),
                 [](float lane) { return std::bit_cast<std::uint32_t>(lane); });
  return {bits_of(a),
          bits_of(Lanes::all(left[2])),
          bits_of(a + b),
          bits_of(a - b),
          bits_of(a * b),
          bits_of(lesser(a, b)),
          bits_of(greater(a, b)),
          bits_of(a.numbered(counting)),
          bits_of(a.numbered(same)),
          bits_of(a.first(few, 3.5F)),
          bits_of(a.halves_swapped()),
          bits_of(a.neighbours_swapped()),
          stored};
}

Four four_of(Random& random) {
  Four four;
  for (float& lane : four) lane = static_cast<float>(between(random, -100.0, 100.0));
  return four;
}

class LanesOfRandomNumbers : public RandomInput {};

TEST_F(LanesOfRandomNumbers, AreThePlainOnes) {
  for (int round = 0; round < 1000; ++round) {
    const Four a = four_of(random), b = four_of(random);
    const std::int32_t number = between(random, 0, 500);
    const auto few = static_cast<std::uint32_t>(between(random, 0, 4));
    ASSERT_EQ(results<Lanes>(a, b, number, few), results<PlainLanes>(a, b, number, few));
    const float bound = a[static_cast<std::size_t>(between(random, 0, 3))];
    ASSERT_EQ(Lanes::load(a.data()).at_most(bound), PlainLanes::load(a.data()).at_most(bound));
  }
}

TEST(Lanes, GiveTheSecondOfTwoWhereOneIsNotANumber) {
  const auto check = []<class Lanes>(Lanes) {
    const float nan = static_cast<float>(kNaN);
    EXPECT_EQ(lesser(Lanes::all(nan), Lanes::all(3))[1], 3);
    EXPECT_EQ(greater(Lanes::all(nan), Lanes::all(3))[1], 3);
    EXPECT_TRUE(std::isnan(lesser(Lanes::all(3), Lanes::all(nan))[2]));
    EXPECT_TRUE(std::isnan(greater(Lanes::all(3), Lanes::all(nan))[2]));
  };
  check(PlainLanes::all(0));
  check(Lanes::all(0));
}

TEST(Lanes, KeepTheirFirstFew) {
  const Lanes three = Lanes::all(7).first(3, 1e38F);
  EXPECT_EQ(three[2], 7);
  EXPECT_EQ(three[3], 1e38F);
}

TEST(Lanes, TellWhichOfThemAreNotAboveABound) {
  const Four four{5, -1, 7, 5.5F};
  EXPECT_EQ(Lanes::load(four.data()).at_most(5), 0b0011U);
  EXPECT_EQ(PlainLanes::load(four.data()).at_most(5), 0b0011U);
}

TEST(Lanes, ChangePlacesWithTheirFours) {
  const auto check = []<class Lanes>(Lanes) {
    std::array<Lanes, 4> rows;
    for (std::size_t row = 0; row < 4; ++row) {
      const auto ten = static_cast<float>(10 * row);
      const Four four{ten, ten + 1, ten + 2, ten + 3};
      rows[row] = Lanes::load(four.data());
    }
    const std::array<Lanes, 4> columns = Lanes::transposed(rows);
    for (std::size_t row = 0; row < 4; ++row)
      for (std::size_t lane = 0; lane < 4; ++lane) EXPECT_EQ(columns[lane][row], rows[row][lane]);
  };
  check(PlainLanes::all(0));
  check(Lanes::all(0));
}

TEST(Lanes, CarryNumbersInTheirLowestBits) {
  const Lanes lanes = Lanes::all(1).numbered(Lanes::Numbers::from(Lanes::Numbers::most - 3));
  EXPECT_EQ(std::bit_cast<std::int32_t>(lanes[3]) & Lanes::Numbers::most, Lanes::Numbers::most);
  EXPECT_EQ(std::bit_cast<std::int32_t>(lanes[0]) & Lanes::Numbers::most, Lanes::Numbers::most - 3);
  EXPECT_NEAR(lanes[3], 1, 0x1p-14);
}

}  // namespace
}  // namespace mirolen
