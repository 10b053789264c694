#include "mirolen/core/quick_home.h"

#include <gtest/gtest.h>

#include <cmath>
#include <vector>

#include "support/site_support.h"

namespace mirolen {
namespace {

SiteIndex index_of(double GridCell, std::int16_t HalfCells) {
  SiteIndex index;
  index.build(GridCell, HalfCells, std::vector<SiteIndex::Position>{{0, 0}});
  return index;
}

/// The lines between the cells along an axis, with the numbers next to them.
std::vector<double> places_about_lines(const SiteIndex& index) {
  std::vector<double> places;
  for (std::int64_t cell = -2; cell <= index.side() + 1; ++cell) {
    const double line = (static_cast<double>(cell - index.HalfCells()) - 0.5) * index.GridCell();
    for (double place = line, step = 0; step < 6; ++step, place = std::nextafter(place, kInfinity))
      places.push_back(place);
    for (double place = line, step = 0; step < 6; ++step, place = std::nextafter(place, -kInfinity))
      places.push_back(place);
  }
  return places;
}

void expect_the_home_where_sure(const SiteIndex& index, double x, double y) {
  const QuickHome home = quick_home(index, {x, y});
  if (!home.sure) return;
  const SiteIndex::Home slow = index.home(x, y);
  ASSERT_TRUE(index.contains(slow)) << x << ' ' << y;
  ASSERT_EQ(home.x, slow.x) << x << ' ' << y;
  ASSERT_EQ(home.y, slow.y) << x << ' ' << y;
}

TEST(QuickHome, IsTheHomeAboutTheLinesBetweenCells) {
  for (const double cell : {2.0, 2.5262, 11.21, 1.0 / 3}) {
    const SiteIndex index = index_of(cell, 7);
    for (const double place : places_about_lines(index)) {
      ASSERT_NO_FATAL_FAILURE(expect_the_home_where_sure(index, place, 0.1));
      ASSERT_NO_FATAL_FAILURE(expect_the_home_where_sure(index, 0.1, place));
    }
  }
}

TEST(QuickHome, IsNotSureOnALineBetweenCells) {
  const SiteIndex index = index_of(2, 7);
  for (double line = -15; line <= 15; line += 2) {
    EXPECT_FALSE(quick_home(index, {line, 0}).sure) << line;
    EXPECT_FALSE(quick_home(index, {0, line}).sure) << line;
  }
}

TEST(QuickHome, IsNotSureOutsideOfTheIndex) {
  const SiteIndex index = index_of(2, 7);
  for (const double far : {15.1, 16.0, 17.3, 1e5, 1e10, 1e300, kInfinity, kNaN})
    for (const double sign : {-1.0, 1.0}) {
      EXPECT_FALSE(quick_home(index, {sign * far, 0}).sure) << sign * far;
      EXPECT_FALSE(quick_home(index, {0, sign * far}).sure) << sign * far;
    }
  EXPECT_FALSE(quick_home(SiteIndex(), {0, 0}).sure);
}

class QuickHomeOfRandomPoints : public RandomInput {};

TEST_F(QuickHomeOfRandomPoints, IsSureInsideTheIndexAndTheHome) {
  for (int set = 0; set < 100; ++set) {
    const auto half_cells = static_cast<std::int16_t>(between(random, 0, 60));
    const SiteIndex index = index_of(std::exp(between(random, -5.0, 5.0)), half_cells);
    const double end = (half_cells + 0.499) * index.GridCell();
    for (int i = 0; i < 200; ++i) {
      const double x = between(random, -end, end), y = between(random, -end, end);
      ASSERT_TRUE(quick_home(index, {x, y}).sure) << x << ' ' << y;
      ASSERT_NO_FATAL_FAILURE(expect_the_home_where_sure(index, x, y));
    }
  }
}

class PairsOfRandomNumbers : public RandomInput {};

template <class Numbers>
std::vector<double> results(const Site& left, const Site& right) {
  const auto a = Numbers::of(left.x, left.y), b = Numbers::of(right.x, right.y);
  const auto whole = greater(lesser(a, Numbers::all(1e6)), Numbers::all(-1e6));
  std::vector<double> all;
  for (const auto& numbers : {whole, whole + b, whole - b, whole * b, whole / Numbers::all(7),
                              sqrt(whole * whole), lesser(a, b), greater(a, b)}) {
    for (const double number : {numbers.first(), numbers.second()})
      all.push_back(std::isnan(number) ? 0.5 : number);
    const auto cut = lesser(greater(numbers, Numbers::all(-2e9)), Numbers::all(2e9)).cut();
    all.insert(all.end(), {double(cut.first), double(cut.second), double(cut.fractions)});
  }
  return all;
}

TEST_F(PairsOfRandomNumbers, AreThePlainOnes) {
  const auto number = [this] {
    const double any = between(random, -100.0, 100.0);
    return one_of<double>(random, {any, std::round(any), 0.0, -0.0, kNaN, kInfinity, -kInfinity});
  };
  for (int round = 0; round < 2000; ++round) {
    const Site left{number(), number(), 0}, right{number(), number(), 0};
    ASSERT_EQ(results<Pair>(left, right), results<PlainPair>(left, right));
  }
}

}  // namespace
}  // namespace mirolen
