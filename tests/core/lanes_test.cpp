#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <bit>
#include <cmath>
#include <cstdint>
#include <string>
#include <type_traits>
#include <vector>

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

/// Ordinary numbers, and those at the ends of what there is.
Four four_of(Random& random) {
  Four four;
  for (float& lane : four) {
    const auto any = static_cast<float>(between(random, -100.0, 100.0));
    lane = one_of<float>(random,
                         {any, any, any, any, 0.0F, -0.0F, 1e-42F, 3e38F, static_cast<float>(kInfinity)});
  }
  return four;
}

template <class Lanes>
class LanesOfAnyKind : public RandomInput {};

struct KindOfLanes {
  template <class Lanes>
  static std::string GetName(int) {
    if (std::is_same_v<Lanes, PlainLanes>) return "Plain";
#ifdef MIROLEN_SSE
    if (std::is_same_v<Lanes, SseLanes>) return "Sse";
#endif
    return "Vector";
  }
};

using KindsOfLanes = testing::Types<PlainLanes
#ifdef MIROLEN_SSE
                                    ,
                                    SseLanes
#endif
#ifdef MIROLEN_VECTOR_LANES
                                    ,
                                    VectorLanes
#endif
                                    >;
TYPED_TEST_SUITE(LanesOfAnyKind, KindsOfLanes, KindOfLanes);

TYPED_TEST(LanesOfAnyKind, OfRandomNumbersAreThePlainOnes) {
  for (int round = 0; round < 1000; ++round) {
    const Four a = four_of(this->random), b = four_of(this->random);
    const std::int32_t number = between(this->random, 0, 500);
    const auto few = static_cast<std::uint32_t>(between(this->random, 0, 4));
    ASSERT_EQ(results<TypeParam>(a, b, number, few), results<PlainLanes>(a, b, number, few));
    const float bound = one_of<float>(this->random, {a[0], a[3], b[1]});
    ASSERT_EQ(TypeParam::load(a.data()).at_most(bound), PlainLanes::load(a.data()).at_most(bound));
  }
}

TYPED_TEST(LanesOfAnyKind, GiveTheSecondOfTwoWhereOneIsNotANumber) {
  const TypeParam nan = TypeParam::all(static_cast<float>(kNaN)), three = TypeParam::all(3);
  EXPECT_EQ(lesser(nan, three)[1], 3);
  EXPECT_EQ(greater(nan, three)[1], 3);
  EXPECT_TRUE(std::isnan(lesser(three, nan)[2]));
  EXPECT_TRUE(std::isnan(greater(three, nan)[2]));
}

TYPED_TEST(LanesOfAnyKind, KeepTheirFirstFew) {
  const TypeParam three = TypeParam::all(7).first(3, 1e38F);
  EXPECT_EQ(three[2], 7);
  EXPECT_EQ(three[3], 1e38F);
}

TYPED_TEST(LanesOfAnyKind, TellWhichOfThemAreNotAboveABound) {
  const Four four{5, -1, 7, static_cast<float>(kNaN)};
  EXPECT_EQ(TypeParam::load(four.data()).at_most(5), 0b0011U);
}

TYPED_TEST(LanesOfAnyKind, ChangePlacesWithTheirFours) {
  std::array<TypeParam, 4> rows;
  for (std::size_t row = 0; row < 4; ++row) {
    const auto ten = static_cast<float>(10 * row);
    const Four four{ten, ten + 1, ten + 2, ten + 3};
    rows[row] = TypeParam::load(four.data());
  }
  const std::array<TypeParam, 4> columns = TypeParam::transposed(rows);
  for (std::size_t row = 0; row < 4; ++row)
    for (std::size_t lane = 0; lane < 4; ++lane) EXPECT_EQ(columns[lane][row], rows[row][lane]);
}

TYPED_TEST(LanesOfAnyKind, CarryNumbersInTheirLowestBits) {
  using Numbers = typename TypeParam::Numbers;
  const TypeParam lanes = TypeParam::all(1).numbered(Numbers::from(Numbers::most - 3));
  EXPECT_EQ(std::bit_cast<std::int32_t>(lanes[3]) & Numbers::most, Numbers::most);
  EXPECT_EQ(std::bit_cast<std::int32_t>(lanes[0]) & Numbers::most, Numbers::most - 3);
  EXPECT_NEAR(lanes[3], 1, 0x1p-14);
}

}  // namespace
}  // namespace mirolen
