#include "mirolen/core/Array.h"

#include <gtest/gtest.h>

#include <array>
#include <limits>
#include <vector>

#include "mirolen/core/RunTimeError.h"

namespace mirolen {
namespace {

using Values = std::vector<double>;

constexpr std::int32_t kLowest = std::numeric_limits<std::int32_t>::min();
constexpr std::int32_t kHighest = std::numeric_limits<std::int32_t>::max();

TEST(Array, IsEmptyWithTheLowerBoundOneByDefault) {
  const Array array;
  EXPECT_EQ(array.LBound(), 1);
  EXPECT_EQ(array.UBound(), 0);
  EXPECT_TRUE(array.values().empty());
  EXPECT_THROW(array(1), SubscriptOutOfRange);
  EXPECT_THROW(array(0), SubscriptOutOfRange);
}

TEST(Array, HoldsZerosBetweenItsBounds) {
  const Array array(-2, 3);
  EXPECT_EQ(array.LBound(), -2);
  EXPECT_EQ(array.UBound(), 3);
  for (std::int32_t index = -2; index <= 3; ++index) EXPECT_EQ(array(index), 0);
}

TEST(Array, CountsGivenValuesFromOneOrFromTheGivenLowerBound) {
  const Array from_one(Values{1.5, 2.5});
  EXPECT_EQ(from_one.LBound(), 1);
  EXPECT_EQ(from_one.UBound(), 2);
  EXPECT_EQ(from_one(1), 1.5);
  EXPECT_EQ(from_one(2), 2.5);
  const Array from_seven(Values{1.5, 2.5}, 7);
  EXPECT_EQ(from_seven.UBound(), 8);
  EXPECT_EQ(from_seven(7), 1.5);
  EXPECT_EQ(from_seven(8), 2.5);
}

TEST(Array, WritesTheElementItNames) {
  Array array(0, 2);
  array(1) = 4;
  EXPECT_EQ(array, Array({0, 4, 0}, 0));
}

TEST(Array, RefusesEveryIndexOutsideItsBounds) {
  Array array(2, 4);
  const Array& constant = array;
  for (const std::int32_t index : {1, 5, 0, -2, kLowest, kHighest}) {
    EXPECT_THROW(array(index), SubscriptOutOfRange) << index;
    EXPECT_THROW(constant(index), SubscriptOutOfRange) << index;
  }
}

TEST(Array, MayBeEmptyButNotLessThanEmpty) {
  EXPECT_EQ(Array(5, 4).values().size(), 0u);
  EXPECT_EQ(Array(5, 4).UBound(), 4);
  EXPECT_THROW(Array(5, 3), SubscriptOutOfRange);
  EXPECT_THROW(Array(1, -1), SubscriptOutOfRange);
  EXPECT_THROW(Array(kHighest, kLowest), SubscriptOutOfRange);
}

TEST(Array, WorksAtTheEndsOfTheIndexRange) {
  Array low(kLowest, kLowest + 1);
  low(kLowest + 1) = 3;
  EXPECT_EQ(low(kLowest + 1), 3);
  EXPECT_THROW(low(kHighest), SubscriptOutOfRange);
  EXPECT_THROW(low(0), SubscriptOutOfRange);
  EXPECT_EQ(Array(kLowest, kLowest).values().size(), 1u);
  const Array high(kHighest, kHighest);
  EXPECT_EQ(high.UBound(), kHighest);
  EXPECT_EQ(high(kHighest), 0);
  EXPECT_THROW(high(kLowest), SubscriptOutOfRange);
}

TEST(Array, EqualsAnArrayOfTheSameBoundsAndValuesOnly) {
  EXPECT_EQ(Array(Values{1, 2}), Array(Values{1, 2}));
  EXPECT_NE(Array(Values{1, 2}), Array(Values{1, 3}));
  EXPECT_NE(Array(Values{1, 2}), Array(Values{1, 2, 3}));
  EXPECT_NE(Array(Values{1, 2}, 1), Array(Values{1, 2}, 0));
}

TEST(ArrayView, HasTheBoundsOfTheArrayItLooksAt) {
  const Array array({4, 5, 6}, -1);
  const ArrayView view = array;
  EXPECT_EQ(view.LBound(), -1);
  EXPECT_EQ(view.UBound(), 1);
  EXPECT_EQ(view(-1), 4);
  EXPECT_EQ(view(1), 6);
  EXPECT_THROW(view(-2), SubscriptOutOfRange);
  EXPECT_THROW(view(2), SubscriptOutOfRange);
}

TEST(ArrayView, GivesDoublesOfTheHostTheLowerBoundOne) {
  const std::vector<double> numbers{7, 8};
  const ArrayView of_vector = numbers;
  EXPECT_EQ(of_vector.LBound(), 1);
  EXPECT_EQ(of_vector.UBound(), 2);
  EXPECT_EQ(of_vector(2), 8);
  const std::array<double, 3> plain{7, 8, 9};
  EXPECT_EQ(ArrayView(plain).UBound(), 3);
  EXPECT_EQ(ArrayView(plain, 0).UBound(), 2);
  EXPECT_EQ(ArrayView(plain, 0)(0), 7);
}

TEST(ArrayView, SeesWhatTheHostWritesLater) {
  std::vector<double> numbers{7, 8};
  const ArrayView view = numbers;
  numbers[1] = 80;
  EXPECT_EQ(view(2), 80);
}

TEST(ArrayView, KnowsWhichIndicesThereAre) {
  const Array array(2, 4);
  const ArrayView view = array;
  EXPECT_TRUE(view.has(2));
  EXPECT_TRUE(view.has(4));
  EXPECT_FALSE(view.has(1));
  EXPECT_FALSE(view.has(5));
  EXPECT_FALSE(view.has(std::numeric_limits<std::int64_t>::min()));
  EXPECT_FALSE(view.has(std::numeric_limits<std::int64_t>::max()));
  EXPECT_FALSE(ArrayView(Array()).has(1));
}

TEST(ArrayView, ReachesBeyondTheBoundsOfAnArray) {
  const std::vector<double> numbers{7, 8};
  const ArrayView view(numbers, kHighest);
  EXPECT_EQ(view.UBound(), std::int64_t{kHighest} + 1);
  EXPECT_EQ(view(std::int64_t{kHighest} + 1), 8);
}

}  // namespace
}  // namespace mirolen
