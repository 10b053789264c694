#include "mirolen/core/QuickSearch.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <tuple>
#include <utility>
#include <vector>

#include "mirolen/core/Lanes.h"
#include "support/site_support.h"

namespace mirolen {
namespace {

constexpr double far_enough = 400;

/// A quick search of its own, over an index as a wafer of 200 mm has it.
struct Searched {
  std::vector<SiteIndex::Position> positions;
  std::vector<double> values;
  SiteIndex index;
  QuickSearch quick;

  void build() {
    const double cell =
        std::sqrt(100.0 * 100.0 * 4 * std::atan(1.0) * 4 / static_cast<double>(positions.size()));
    index.build(cell, static_cast<std::int16_t>(std::lround(100 / cell)), positions);
    quick.build(index, positions, values);
  }
  bool sure_at(double x, double y) const { return !std::isnan(quick.value(index, x, y, far_enough)); }
};

class QuickSearchOfRandomSites : public RandomInput {
 protected:
  Searched uniform_sites(int count) {
    Searched searched;
    while (static_cast<int>(searched.positions.size()) < count) {
      const double x = between(random, -97.0, 97.0), y = between(random, -97.0, 97.0);
      if (std::hypot(x, y) > 97) continue;
      searched.positions.push_back({x, y});
      searched.values.push_back(between(random, 1.0, 9.0));
    }
    searched.build();
    return searched;
  }
};

TEST_F(QuickSearchOfRandomSites, IsSureOfNearlyAllPoints) {
  for (const int count : {49, 1000, 32767}) {
    const Searched searched = uniform_sites(count);
    std::vector<double> x, y;
    for (int j = -60; j <= 60; ++j)
      for (int i = -60; i <= 60; ++i) x.push_back(i * 1.1), y.push_back(j * 1.1);
    std::vector<double> values(x.size());
    searched.quick.values(searched.index, x, y, far_enough, values);

    const auto unsure = static_cast<double>(
        std::count_if(values.begin(), values.end(), [](double value) { return std::isnan(value); }));
    EXPECT_LT(unsure / static_cast<double>(x.size()), 0.01) << count << " sites";
    for (std::size_t i = 0; i < x.size(); ++i) {
      if (std::isnan(values[i])) continue;
      EXPECT_EQ(values[i], searched.quick.value(searched.index, x[i], y[i], far_enough));
    }
  }
}

TEST_F(QuickSearchOfRandomSites, IsNotSureOutsideItsCells) {
  const Searched searched = uniform_sites(1000);
  for (const double far : {150.0, 1e5, 1e9, 1e300, kInfinity, kNaN}) {
    EXPECT_FALSE(searched.sure_at(far, 0)) << far;
    EXPECT_FALSE(searched.sure_at(0, -far)) << far;
  }
}

TEST_F(QuickSearchOfRandomSites, IsNotSureBeyondTheFarthestDistance) {
  const Searched searched = uniform_sites(1000);
  ASSERT_TRUE(searched.sure_at(3, 4));
  EXPECT_TRUE(std::isnan(searched.quick.value(searched.index, 3, 4, 0.5)));
}

TEST(QuickSearch, WithoutSitesIsNeverSure) {
  EXPECT_TRUE(std::isnan(QuickSearch().value(SiteIndex(), 0, 0, far_enough)));
}

double mean_of_the_four_nearest(const Searched& searched, double x, double y) {
  std::vector<std::pair<double, double>> sites;
  for (std::size_t i = 0; i < searched.positions.size(); ++i)
    sites.emplace_back(std::hypot(searched.positions[i].x - x, searched.positions[i].y - y),
                       searched.values[i]);
  std::sort(sites.begin(), sites.end());
  sites.resize(4);
  return weighted_mean(sites);
}

/// A grid whose pitch is 8 mm, and a value for each site.
Searched grid_of_sites() {
  Searched searched;
  for (int j = -8; j <= 8; ++j)
    for (int i = -8; i <= 8; ++i) {
      searched.positions.push_back({8.0 * i, 8.0 * j});
      searched.values.push_back(i + 100 * j);
    }
  searched.build();
  return searched;
}

TEST(QuickSearch, KeepsTheSitesMetFirstOfEqualDistances) {
  const Searched grid = grid_of_sites();
  EXPECT_EQ(grid.quick.value(grid.index, 4, 4, far_enough), (0 + 1 + 100 + 101) / 4.0);
  for (const auto& [x, y] : {std::pair{2.0, 0.0}, {4.0, 1.0}, {-12.0, 8.0}, {20.0, 20.0}})
    EXPECT_TRUE(grid.sure_at(x, y)) << x << ' ' << y;
}

TEST(QuickSearch, TakesTheValueOfASiteVeryNear) {
  const Searched grid = grid_of_sites();
  EXPECT_EQ(grid.quick.value(grid.index, 16 + 5e-5, 24 + 1e-5, far_enough), 2 + 300);
  EXPECT_EQ(grid.quick.value(grid.index, 16, 24, far_enough), 2 + 300);
}

TEST(QuickSearch, TakesTheFourNearestThoughSinglePrecisionRanksThemOtherwise) {
  // All seven lie within the error of their keys of each other, and the point lies far from the centre.
  Searched close;
  close.positions = {
      {0x1.006c1718f9ddap+7, 0x1.007ae0dba8e6ep+7}, {0x1.00302f0019f2cp+7, 0x1.00483ba94a25bp+7},
      {0x1.00307f7cdcb0dp+7, 0x1.0047f42fde534p+7}, {0x1.002ae8ffa4179p+7, 0x1.004e54be1a87p+7},
      {0x1.002bb311ee2f1p+7, 0x1.004d3e3508d19p+7}, {0x1.0065c74833633p+7, 0x1.00822f09f3e53p+7},
      {0x1.006a99385965bp+7, 0x1.007cf51fe91c9p+7}};
  close.values = {1, 2, 4, 8, 16, 32, 64};
  close.index.build(2.5262, 51, close.positions);
  close.quick.build(close.index, close.positions, close.values);

  const double x = 0x1.004b42fb348ebp+7, y = 0x1.0064f4ff78309p+7;
  const double value = close.quick.value(close.index, x, y, far_enough);
  EXPECT_DOUBLE_EQ(value, mean_of_the_four_nearest(close, x, y));
}

TEST(QuickSearch, TakesTheFourNearestThoughSinglePrecisionSpeaksForTheFifth) {
  // Far from the centre the point rounds towards one site, which rounds towards it, too; the other rounds
  // away.
  const double step = 0x1p-16, point = 129 + 0.49 * step, aside = 6553 * step;
  const double fifth = 129 - aside - 0.49 * step, fourth = 129 + aside + 0.51 * step;
  Searched close;
  close.positions = {
      {point, point + 0.01}, {point + 0.02, point}, {point, point - 0.03}, {fifth, fifth}, {fourth, fourth}};
  close.values = {1, 2, 4, 8, 16};
  close.index.build(2.5262, 51, close.positions);
  close.quick.build(close.index, close.positions, close.values);
  ASSERT_LT(fourth - point, point - fifth);
  ASSERT_GT(static_cast<float>(fourth) - static_cast<float>(point),
            static_cast<float>(point) - static_cast<float>(fifth));
  EXPECT_DOUBLE_EQ(close.quick.value(close.index, point, point, far_enough),
                   mean_of_the_four_nearest(close, point, point));
}

TEST(QuickSearch, OfPointsWithDifferentHomesKeepsToTheRingOfEach) {
  Searched searched;
  searched.positions = {{0.5, 0.5}, {0.5, -0.5}, {0.2, 0}, {3.001, 0}, {-2.9, 0}};
  searched.values = {1, 2, 4, 1000, 8};
  searched.index.build(2, 7, searched.positions);
  searched.quick.build(searched.index, searched.positions, searched.values);
  // The fourth site is nearer to the first three points than the fifth, but lies outside of their rings.
  const std::vector<double> x{0.99, 0.99, 0.99, 1.5}, y(4, 0.1);
  std::vector<double> values(4);
  searched.quick.values(searched.index, x, y, far_enough, values);
  EXPECT_EQ(values[0], searched.quick.value(searched.index, x[0], y[0], far_enough));
}

TEST(QuickSearch, IsSureOnlyOfSitesNearerThanTheFarthestDistance) {
  const Searched grid = grid_of_sites();
  // Four sites are the fourth nearest of the first point, one that of the second.
  for (const auto& [x, y, fourth] :
       {std::tuple{0.0, 4.0, std::sqrt(80)}, {1.0, 2.5, std::sqrt(7 * 7 + 5.5 * 5.5)}}) {
    EXPECT_TRUE(std::isnan(grid.quick.value(grid.index, x, y, fourth))) << x << ' ' << y;
    EXPECT_FALSE(std::isnan(grid.quick.value(grid.index, x, y, std::nextafter(fourth, 99)))) << x << ' ' << y;
  }
}

TEST(QuickSearch, OfPointsOfWhichOneIsNotANumberIsSureOfTheOthers) {
  const Searched grid = grid_of_sites();
  for (std::size_t odd = 0; odd < 4; ++odd) {
    std::vector<double> x{1, 1.5, 2, 2.5}, y(4, 1), values(4);
    x[odd] = kNaN;
    grid.quick.values(grid.index, x, y, far_enough, values);
    for (std::size_t k = 0; k < 4; ++k) {
      if (k == odd)
        EXPECT_TRUE(std::isnan(values[k])) << k;
      else
        EXPECT_EQ(values[k], grid.quick.value(grid.index, x[k], y[k], far_enough)) << k << " beside " << odd;
    }
  }
}

#ifdef MIROLEN_SSE
TEST(QuickSearch, IsNotMisledWhereTheProcessorTakesTheSmallestNumbersForZero) {
  const Searched grid = grid_of_sites();
  const unsigned mode = _mm_getcsr();
  constexpr unsigned denormals_are_zeros = 0x0040;
  for (std::size_t i = 0; i < grid.positions.size(); ++i) {
    const auto& [x, y] = grid.positions[i];
    _mm_setcsr(mode | denormals_are_zeros);
    const double value = grid.quick.value(grid.index, x, y, far_enough);
    _mm_setcsr(mode);
    EXPECT_EQ(value, grid.values[i]) << x << ' ' << y;
  }
}
#endif

TEST(QuickSearch, IsNotSureInACrowd) {
  Searched crowd;
  for (int i = 0; i < 500; ++i) {
    crowd.positions.push_back({20 + 0.01 * i, 30 + 0.001 * i * i});
    crowd.values.push_back(i);
  }
  for (auto& position : crowd.positions) position.y = std::fmod(position.y, 90);
  crowd.build();
  EXPECT_FALSE(crowd.sure_at(21, 31));
}

}  // namespace
}  // namespace mirolen
