#include <gtest/gtest.h>

#include <algorithm>
#include <bit>
#include <cmath>
#include <ostream>
#include <string>
#include <vector>

#include "mirolen/core/wafer.h"
#include "plain_wafer.h"
#include "support/site_support.h"

namespace mirolen {
namespace {

constexpr double kDiameter = 200;

class FiveSites : public testing::Test {
 protected:
  FiveSites() {
    set_diameters(sample, kDiameter, kDiameter);
    load(sample, {{0, 0, 10}, {40, 0, 20}, {0, 40, 30}, {-40, 0, 40}, {0, -40, 50}});
  }

  wafer sample;
};

/// A ring of n sites round the centre with the values 1 to n.
SiteList ring_of_sites(int n, double radius) {
  SiteList sites;
  for (int i = 0; i < n; ++i) {
    const double angle = 2 * 3.14159265358979 * i / n;
    sites.push_back({radius * std::cos(angle), radius * std::sin(angle), i + 1.0});
  }
  return sites;
}

TEST(Interpolation, IsZeroEverywhereWithThreeSites) {
  wafer sample;
  set_diameters(sample, kDiameter, kDiameter);
  load(sample, {{0, 0, 10}, {40, 0, 20}, {0, 40, 30}});
  for (const auto& [x, y] : {std::pair{0.0, 0.0}, {40.0, 0.0}, {12.0, -7.0}, {500.0, 500.0}}) {
    EXPECT_EQ(sample.Interpolation(x, y), 0);
    EXPECT_EQ(sample.Interpolation_Einfach(x, y), 0);
  }
}

TEST(Interpolation, IsZeroWithoutSites) {
  const wafer sample;
  EXPECT_EQ(sample.Interpolation(0, 0), 0);
  EXPECT_EQ(sample.Interpolation_Einfach(0, 0), 0);
}

TEST_F(FiveSites, GiveTheValueOfASiteOnThatSite) {
  EXPECT_EQ(sample.Interpolation_Einfach(40, 0), 20);
  EXPECT_EQ(sample.Interpolation(40, 0), 20);
}

TEST_F(FiveSites, GiveTheValueOfASiteWithinTheToleranceRoundIt) {
  EXPECT_EQ(sample.Interpolation_Einfach(40.00005, 0), 20);
  EXPECT_EQ(sample.Interpolation(40, -0.00005), 20);
}

TEST_F(FiveSites, GiveAWeightedMeanOutsideTheToleranceRoundASite) {
  const double x = 40.0002;
  const double aside = std::hypot(x, 40);
  // The sites above and below are equally far; both are among the four nearest, the one opposite is not.
  const double expected = weighted_mean({{x - 40, 20}, {x, 10}, {aside, 30}, {aside, 50}});
  EXPECT_DOUBLE_EQ(sample.Interpolation_Einfach(x, 0), expected);
  EXPECT_DOUBLE_EQ(sample.Interpolation(x, 0), expected);
  EXPECT_NE(sample.Interpolation(x, 0), 20);
}

TEST_F(FiveSites, WeighTheFourNearestByTheInverseSquareOfTheirDistance) {
  const double aside = std::hypot(10, 40);
  const double expected = weighted_mean({{10, 10}, {30, 20}, {aside, 30}, {aside, 50}});
  EXPECT_DOUBLE_EQ(sample.Interpolation(10, 0), expected);
  EXPECT_DOUBLE_EQ(sample.Interpolation_Einfach(10, 0), expected);
}

TEST_F(FiveSites, GiveZeroWhereFewerThanFourLieWithinOneAndAHalfDiameters) {
  EXPECT_EQ(sample.Interpolation(5000, 0), 0);
  EXPECT_THROW(sample.Interpolation_Einfach(5000, 0), RunTimeError);
}

TEST(Interpolation, OfFourEquallyFarSitesIsTheirMean) {
  wafer sample;
  set_diameters(sample, kDiameter, kDiameter);
  load(sample, {{32, 0, 1}, {0, 32, 2}, {-32, 0, 4}, {0, -32, 9}});
  EXPECT_EQ(sample.Interpolation(0, 0), 4);
  EXPECT_EQ(sample.Interpolation_Einfach(0, 0), 4);
}

TEST(Interpolation, KeepsTheFirstFourOfFiveEquallyFarSites) {
  wafer sample;
  set_diameters(sample, kDiameter, kDiameter);
  load(sample, {{32, 0, 1}, {0, 32, 2}, {-32, 0, 4}, {0, -32, 9}, {32, 0, 1000}});
  EXPECT_EQ(sample.Interpolation(0, 0), 4);
}

TEST(Interpolation, OfFewSitesGoesByTheWaferDiameterNotTheTestDiameter) {
  wafer sample;
  set_diameters(sample, kDiameter, 0);
  load(sample, {{32, 0, 1}, {0, 32, 2}, {-32, 0, 4}, {0, -32, 9}});
  EXPECT_EQ(sample.Interpolation(0, 0), 4);
}

TEST(Interpolation, WithoutATestDiameterIsTheValueOfTheFirstSite) {
  wafer sample;
  set_diameters(sample, kDiameter, 0);
  load(sample, ring_of_sites(12, 50));
  for (const auto& [x, y] : {std::pair{0.0, 0.0}, {-50.0, 0.0}, {70.0, 70.0}, {900.0, 0.0}}) {
    EXPECT_EQ(sample.Interpolation(x, y), 1) << x << ' ' << y;
  }
}

TEST(Interpolation, OnASiteOfManyIsItsValue) {
  wafer sample;
  set_diameters(sample, kDiameter, kDiameter);
  const SiteList sites = ring_of_sites(12, 50);
  load(sample, sites);
  for (const Site& site : sites) {
    EXPECT_EQ(sample.Interpolation(site.x, site.y), site.z);
    EXPECT_EQ(sample.Interpolation(site.x + 0.00005, site.y), site.z);
    EXPECT_NE(sample.Interpolation(site.x + 0.0002, site.y), site.z);
  }
}

/// 100 sites in cells of 35 mm: the given ones and, too far from the left half to be met there, the rest.
SiteList with_the_rest_far_right(SiteList sites) {
  sites.resize(100, {95, 0, 5});
  return sites;
}

TEST(Interpolation, CountsTheFirstOfTwoSitesFoundAgainAtFourRadii) {
  wafer sample;
  set_diameters(sample, kDiameter, kDiameter);
  load(sample, with_the_rest_far_right({{-88, 0, 1000}, {-80, 0, 1}}));
  EXPECT_DOUBLE_EQ(sample.Interpolation(-83, 0),
                   weighted_mean({{3, 1}, {5, 1000}, {400, 1000}, {400, 1000}}));
  load(sample, with_the_rest_far_right({{-80, 0, 1}, {-88, 0, 1000}}));
  EXPECT_DOUBLE_EQ(sample.Interpolation(-83, 0), weighted_mean({{3, 1}, {5, 1000}, {400, 1}, {400, 1}}));
}

TEST(Interpolation, FillsEmptySlotsWithTheFirstSiteInASmallTestCircle) {
  wafer sample;
  set_diameters(sample, kDiameter, 6);
  load(sample, with_the_rest_far_right({{90, 20, 1000}, {-80, 0, 1}}));
  EXPECT_DOUBLE_EQ(sample.Interpolation(-84, 0), weighted_mean({{4, 1}, {81, 1000}, {81, 1000}, {81, 1000}}));
}

TEST(Interpolation, FarOutsideFindsNothingAndTakesTheFirstSite) {
  wafer sample;
  set_diameters(sample, kDiameter, kDiameter);
  load(sample, ring_of_sites(12, 50));
  for (const double far : {3000.0, 1e5, 3e6, 1e9}) {
    EXPECT_NEAR(sample.Interpolation(far, 0), 1, 1e-12) << far;
    EXPECT_NEAR(sample.Interpolation(-far, -far), 1, 1e-12) << far;
  }
}

TEST(Interpolation, OutsideTheIndexStillFindsTheSitesInTheRings) {
  wafer sample;
  set_diameters(sample, kDiameter, kDiameter);
  load(sample, ring_of_sites(12, 90));
  // The first ring of cells of 102 mm meets three sites; the first of them fills the last slot.
  const double aside = std::hypot(250 - 90 * std::sqrt(0.75), 45);
  EXPECT_NEAR(sample.Interpolation(250, 0), weighted_mean({{160, 1}, {aside, 2}, {aside, 12}, {400, 1}}),
              1e-9);
}

TEST(Interpolation, StaysWithHomeCellNumbersBeyondSixteenBits) {
  wafer sample;
  set_diameters(sample, kDiameter, kDiameter);
  load(sample, ring_of_sites(12, 50));
  // So wide a test circle lets the search take sites from there; its rings still end far short of them.
  sample.test_diam = 10000;
  const double cell = std::sqrt(100 * 100 * 3.14159265358979 * 4 / 12);
  EXPECT_NEAR(sample.Interpolation(40000 * cell, 0), 1, 1e-12);
  EXPECT_NEAR(sample.Interpolation(0, -40000 * cell), 1, 1e-12);
}

TEST(Interpolation, WithoutAnIndexCellFindsNothingAndTakesTheFirstSite) {
  wafer sample;
  const SiteList sites = ring_of_sites(12, 50);
  EXPECT_THROW(load(sample, sites), RunTimeError);
  sample.test_diam = kDiameter;
  sample.WaferOrigRad = kDiameter / 2;
  EXPECT_NEAR(sample.Interpolation(sites[5].x, sites[5].y), 1, 1e-12);
  EXPECT_NEAR(sample.Interpolation(0, 0), 1, 1e-12);
}

TEST(Interpolation, NeverThrowsAndIsAlwaysANumber) {
  for (const int count : {0, 3, 5, 12}) {
    wafer sample;
    set_diameters(sample, kDiameter, kDiameter);
    if (count > 0) load(sample, ring_of_sites(count, 50));
    for (const double x : {0.0, 1e160, -1e308, 5e-324, kInfinity, -kInfinity, kNaN}) {
      for (const double y : {0.0, -1e160, kInfinity, kNaN}) {
        EXPECT_TRUE(std::isfinite(sample.Interpolation(x, y))) << count << ": " << x << ' ' << y;
      }
    }
  }
}

TEST(Interpolation, IsZeroWhereTheMeanLeavesTheNumbers) {
  wafer sample;
  set_diameters(sample, kDiameter, kDiameter);
  store(sample, {{0.001, 0, 1e305}, {0, 0.001, 1}, {-0.001, 0, 1}, {0, -0.001, 1}});
  EXPECT_EQ(sample.Interpolation(0, 0), 0);
  EXPECT_GT(sample.Interpolation(10, 0), 1e304);
}

TEST(Interpolation, IsZeroWhereTheMeanOfManySitesLeavesTheNumbers) {
  wafer sample;
  set_diameters(sample, kDiameter, kDiameter);
  SiteList sites{{0.001, 0, 1e305}, {0, 0.001, 1e305}, {-0.001, 0, 1e305}, {0, -1, 1e305}};
  for (int i = 0; i < 8; ++i) sites.push_back({90, 1.0 * i, 1});
  sample.SetNop(static_cast<double>(sites.size()));
  for (const Site& site : sites) sample.SetGridValue(site.x, site.y, site.z);
  EXPECT_THROW(sample.MaxMin(), OverflowError);
  EXPECT_EQ(sample.Interpolation(0, 0), 0);
}

TEST(Interpolation, OfAWaferThatWasMovedAwayIsZero) {
  for (const int count : {5, 12, 100}) {
    wafer sample;
    set_diameters(sample, kDiameter, kDiameter);
    load(sample, ring_of_sites(count, 60));
    const wafer taken = std::move(sample);
    EXPECT_NE(taken.Interpolation(1, 2), 0);
    EXPECT_EQ(sample.Interpolation(1, 2), 0) << count;  // NOLINT: that is the question
  }
}

TEST(Interpolation, OfManyPointsKeepsToTheRulesOfOne) {
  for (const int count : {0, 3, 5, 12}) {
    wafer sample;
    set_diameters(sample, kDiameter, kDiameter);
    if (count > 0) load(sample, ring_of_sites(count, 50));
    const std::vector<double> x{0, 50, kNaN, 1e160, -7, kInfinity, 3000}, y{0, 0, 1, 0, 9, 0, -3000};
    std::vector<double> values(x.size(), kNaN);
    sample.Interpolation(x, y, values);
    for (std::size_t i = 0; i < x.size(); ++i)
      EXPECT_EQ(values[i], sample.Interpolation(x[i], y[i])) << count << ": " << x[i] << ' ' << y[i];
  }
}

TEST(Interpolation, OfManyPointsRefusesArraysOfDifferentLengths) {
  const wafer sample;
  const std::vector<double> two(2), three(3);
  std::vector<double> values(3);
  EXPECT_THROW(sample.Interpolation(two, three, values), SubscriptOutOfRange);
  EXPECT_THROW(sample.Interpolation(three, two, values), SubscriptOutOfRange);
}

TEST(Interpolation, SearchesByCellsFromTenSitesUp) {
  SiteList sites{{-80, 0, 100}};
  sites.resize(10, {80, 0, 1});
  wafer sample;
  set_diameters(sample, kDiameter, kDiameter);
  load(sample, sites);
  // The cells are 112 mm wide: the search from the left ends before it comes to those on the right.
  EXPECT_NEAR(sample.Interpolation(-90, 0), 100, 1e-9);
  sites.pop_back();
  load(sample, sites);
  const double of_all = weighted_mean({{10, 100}, {170, 1}, {170, 1}, {170, 1}});
  EXPECT_DOUBLE_EQ(sample.Interpolation(-90, 0), of_all);
  EXPECT_LT(of_all, 99.5);
}

TEST(Interpolation, KeepsAnOldIndexUnusedBelowTenSites) {
  const SiteList ten = ring_of_sites(10, 40);
  const SiteList nine = ring_of_sites(9, 70);
  wafer sample;
  set_diameters(sample, kDiameter, kDiameter);
  load(sample, ten);
  const double before = sample.Interpolation(11, 13);
  load(sample, nine);
  EXPECT_EQ(sample.Interpolation(11, 13), sample.Interpolation_Einfach(11, 13));
  store(sample, ten);
  EXPECT_EQ(sample.Interpolation(11, 13), before);
}

TEST(Interpolation, SeesAnOverwrittenSiteWithoutNewStatistics) {
  SiteList sites = ring_of_sites(12, 50);
  wafer sample;
  set_diameters(sample, kDiameter, kDiameter);
  load(sample, sites);
  const Site moved{sites[3].x + 1, sites[3].y + 1, 77};
  sample.OverwriteGridValue(4, moved.x, moved.y, moved.z);
  EXPECT_EQ(sample.Interpolation(moved.x, moved.y), 77);
  EXPECT_NE(sample.Interpolation(sites[3].x, sites[3].y), sites[3].z);
}

// ---- Against the plain algorithm ----

enum class Layout { kUniform, kGrid, kDuplicates, kClusters, kLine, kCrowd, kCircles };

void PrintTo(Layout layout, std::ostream* out) {
  static const std::vector<std::string> names{"Uniform", "Grid",  "Duplicates", "Clusters",
                                              "Line",    "Crowd", "Circles"};
  *out << names[static_cast<std::size_t>(layout)];
}

Site anywhere(Random& random, double radius) {
  for (;;) {
    const Site site{between(random, -radius, radius), between(random, -radius, radius), 0};
    if (std::hypot(site.x, site.y) <= radius) return site;
  }
}

/// On one of three circles with 12, 16 and 24 places for sites, all exactly as far from the centre.
Site on_a_circle(Random& random, double unit) {
  const auto [far, near] =
      one_of<std::pair<int, int>>(random, {{5, 0}, {4, 3}, {8, 1}, {7, 4}, {18, 1}, {17, 6}, {15, 10}});
  const int across = chance(random, 0.5) ? far : -far, along = chance(random, 0.5) ? near : -near;
  return chance(random, 0.5) ? Site{across * unit, along * unit, 0} : Site{along * unit, across * unit, 0};
}

/// Positions inside the wafer; a grid has exact ties, its sites come row by row.
SiteList positions(Random& random, Layout layout, int count, double radius) {
  SiteList sites;
  const Site centre = anywhere(random, radius * 0.8);
  const double angle = between(random, 0.0, 6.28);
  const int side = static_cast<int>(std::ceil(std::sqrt(count)));
  const double pitch = radius / side;
  for (int i = 0; i < count; ++i) {
    Site site = anywhere(random, radius);
    const double spread = between(random, -0.1, 0.1) * radius;
    if (layout == Layout::kGrid) site = {(i % side - side / 2) * pitch, (i / side - side / 2) * pitch, 0};
    if (layout == Layout::kDuplicates && i > 0 && chance(random, 0.6)) site = one_of(random, sites);
    if (layout == Layout::kClusters) site = {centre.x + spread, centre.y + site.y * 0.01, 0};
    if (layout == Layout::kLine) site = {9 * spread * std::cos(angle), 9 * spread * std::sin(angle), 0};
    if (layout == Layout::kCrowd) site = {centre.x + site.x * 1e-4, centre.y + site.y * 1e-4, 0};
    if (layout == Layout::kCircles) site = on_a_circle(random, radius / 32);
    sites.push_back(site);
  }
  return sites;
}

/// The same data in both wafers.
struct Pair {
  wafer real;
  PlainWafer plain;
  double radius = 0;

  void set(double diameter, double test_diameter) {
    radius = diameter / 2;
    set_diameters(real, diameter, test_diameter);
    plain.WafDiam = diameter, plain.WaferOrigRad = diameter / 2, plain.test_diam = test_diameter;
  }

  void set_original_radius(double original) { real.WaferOrigRad = plain.WaferOrigRad = original; }

  void load_both(const SiteList& sites) {
    load(real, sites);
    plain.reset();
    plain.SetNop(static_cast<double>(sites.size()));
    for (const Site& site : sites) plain.SetGridValue(site);
    plain.MaxMin();
  }
};

void fill_with_random_sites(Random& random, Layout layout, int count, Pair& pair) {
  const double diameter = one_of<double>(random, {0.5, 2, 50, 100, 200, 300, 450});
  const double share = one_of<double>(random, {0, 1e-7, 1e-3, 0.03, 0.3, 0.98, 1, 1, 1, 2});
  pair.set(diameter, diameter * share);
  if (chance(random, 0.2))
    pair.set_original_radius(diameter * one_of<double>(random, {0, -0.5, 0.01, 0.03, 0.1, 1e300}));
  SiteList sites = positions(random, layout, count, pair.radius);
  const bool all_equal = chance(random, 0.15);
  const double low = between(random, -1000.0, 1000.0);
  for (Site& site : sites) site.z = all_equal ? low : between(random, low, low + 100);
  pair.load_both(sites);
}

/// On sites, a hair beside them, half way between two (ties on a grid), anywhere and outside.
Site point_of_interest(Random& random, const Pair& pair) {
  const Site site = one_of(random, pair.plain.sites());
  const Site other = one_of(random, pair.plain.sites());
  const double hair = between(random, -0.0002, 0.0002);
  switch (between(random, 0, 9)) {
    case 0:
      return site;
    case 1:
      return {site.x + hair, site.y, 0};
    case 2:
      return {(site.x + other.x) / 2, (site.y + other.y) / 2, 0};
    case 3:
      return {site.x, other.y, 0};
    case 4:
      return anywhere(random, 3 * pair.radius);
    case 5:
      return anywhere(random, 12 * pair.radius);
    case 6:
      return {0, 0, 0};
    default:
      return anywhere(random, pair.radius);
  }
}

void expect_same_bits(const Pair& pair, const Site& point, double result) {
  const double expected = pair.plain.Interpolation(point.x, point.y);
  ASSERT_EQ(std::bit_cast<std::uint64_t>(result), std::bit_cast<std::uint64_t>(expected))
      << result << " instead of " << expected << " at (" << point.x << ", " << point.y << ") among "
      << pair.plain.GetNop() << " sites, radius " << pair.radius << ", test diameter "
      << pair.plain.test_diam;
}

void expect_same_bits(const Pair& pair, const Site& point) {
  expect_same_bits(pair, point, pair.real.Interpolation(point.x, point.y));
}

/// Points along a line at equal steps, as renderers ask for them; now and then one lies elsewhere.
SiteList points_in_a_row(Random& random, const Pair& pair) {
  const Site start = point_of_interest(random, pair);
  const double step = pair.radius * one_of<double>(random, {1e-7, 0.001, 0.01, 0.02, 0.1, 0.7});
  const double angle = one_of<double>(random, {0, 0, 0, 1.5, 3.5, 6});
  SiteList points;
  for (int i = 0; i < between(random, 0, 60); ++i) {
    const Site next{start.x + i * step * std::cos(angle), start.y + i * step * std::sin(angle), 0};
    points.push_back(chance(random, 0.05) ? point_of_interest(random, pair) : next);
  }
  return points;
}

void expect_same_bits(const Pair& pair, const SiteList& points) {
  const std::vector<double> x = column(points, &Site::x), y = column(points, &Site::y);
  std::vector<double> results(points.size(), kNaN);
  pair.real.Interpolation(x, y, results);
  for (std::size_t i = 0; i < points.size(); ++i)
    ASSERT_NO_FATAL_FAILURE(expect_same_bits(pair, points[i], results[i])) << "point " << i << " of many";
}

class InterpolationOfRandomSites : public RandomInput, public testing::WithParamInterface<Layout> {
 protected:
  int some_count() {
    if (chance(random, 0.3)) return one_of<int>(random, {4, 5, 9, 10, 11, 2000});
    return static_cast<int>(std::exp(between(random, std::log(4.0), std::log(2000.0))));
  }
};

std::string name_of(const testing::TestParamInfo<Layout>& layout) {
  return testing::PrintToString(layout.param);
}

INSTANTIATE_TEST_SUITE_P(Layouts, InterpolationOfRandomSites,
                         testing::Values(Layout::kUniform, Layout::kGrid, Layout::kDuplicates,
                                         Layout::kClusters, Layout::kLine, Layout::kCrowd, Layout::kCircles),
                         name_of);

TEST_P(InterpolationOfRandomSites, EqualsThePlainAlgorithmToTheLastBit) {
  for (int set = 0; set < rounds(120); ++set) {
    Pair pair;
    fill_with_random_sites(random, GetParam(), some_count(), pair);
    for (int i = 0; i < 250; ++i) {
      ASSERT_NO_FATAL_FAILURE(expect_same_bits(pair, point_of_interest(random, pair)));
    }
  }
}

TEST_P(InterpolationOfRandomSites, OfManyPointsEqualsThePlainAlgorithmToTheLastBit) {
  for (int set = 0; set < rounds(120); ++set) {
    Pair pair;
    fill_with_random_sites(random, GetParam(), some_count(), pair);
    for (int i = 0; i < 10; ++i)
      ASSERT_NO_FATAL_FAILURE(expect_same_bits(pair, points_in_a_row(random, pair)));
  }
}

TEST_P(InterpolationOfRandomSites, EqualsThePlainAlgorithmAfterSitesWereOverwritten) {
  for (int set = 0; set < 10; ++set) {
    Pair pair;
    fill_with_random_sites(random, GetParam(), some_count(), pair);
    for (int i = 0; i < 100; ++i) {
      const int number = between(random, 1, static_cast<int>(pair.plain.GetNop()));
      Site site = anywhere(random, pair.radius);
      site.z = between(random, 1.0, 9.0);
      pair.real.OverwriteGridValue(static_cast<std::int16_t>(number), site.x, site.y, site.z);
      pair.plain.OverwriteGridValue(number, site);
      ASSERT_NO_FATAL_FAILURE(expect_same_bits(pair, point_of_interest(random, pair)));
    }
  }
}

TEST_P(InterpolationOfRandomSites, GivesTheSameResultForTheSamePoint) {
  Pair pair;
  fill_with_random_sites(random, GetParam(), 200, pair);
  std::vector<Site> points;
  std::vector<double> results;
  for (int i = 0; i < 200; ++i) {
    points.push_back(point_of_interest(random, pair));
    results.push_back(pair.real.Interpolation(points.back().x, points.back().y));
  }
  for (std::size_t i = points.size(); i-- > 0;) {
    EXPECT_EQ(pair.real.Interpolation(points[i].x, points[i].y), results[i]);
  }
}

/// Close by a line between cells the neighbours belong to another ring; a row of points crosses it step by
/// step.
TEST_P(InterpolationOfRandomSites, OfRowsAcrossALineBetweenCellsEqualsThePlainAlgorithm) {
  for (int set = 0; set < rounds(60); ++set) {
    Pair pair;
    fill_with_random_sites(random, GetParam(), between(random, 10, 60), pair);
    const double cell = std::sqrt(pair.radius * pair.radius * 4 * std::atan(1.0) * 4 / pair.plain.GetNop());
    for (int row = 0; row < 10; ++row) {
      const double line = (between(random, -1, 1) + 0.5) * cell,
                   along = between(random, -0.9, 0.9) * pair.radius;
      const double step = cell * one_of<double>(random, {1e-14, 1e-10, 1e-4, 0.002, 0.01});
      const bool upright = chance(random, 0.5);
      SiteList points;
      for (int i = -20; i <= 20; ++i) {
        const double across = line + i * step;
        points.push_back(upright ? Site{along, across, 0} : Site{across, along, 0});
      }
      ASSERT_NO_FATAL_FAILURE(expect_same_bits(pair, points));
    }
  }
}

class InterpolationOfShuffledSites : public RandomInput {
 protected:
  /// A grid whose sites are moved a little, so that no two are equally far from a point.
  SiteList sites_without_ties(int side) {
    SiteList sites;
    for (int i = 0; i < side * side; ++i) {
      const double x = (i % side - (side - 1) / 2.0) * 120 / side,
                   y = (i / side - (side - 1) / 2.0) * 120 / side;
      sites.push_back(
          {x + between(random, -2.0, 2.0), y + between(random, -2.0, 2.0), between(random, 1.0, 2.0)});
    }
    return sites;
  }

  void expect_same_results(int side) {
    wafer sample, shuffled;
    set_diameters(sample, kDiameter, kDiameter);
    set_diameters(shuffled, kDiameter, kDiameter);
    SiteList sites = sites_without_ties(side);
    load(sample, sites);
    std::shuffle(sites.begin(), sites.end(), random);
    load(shuffled, sites);
    for (int i = 0; i < 200; ++i) {
      const Site point = anywhere(random, 50);
      EXPECT_EQ(sample.Interpolation(point.x, point.y), shuffled.Interpolation(point.x, point.y));
    }
  }
};

TEST_F(InterpolationOfShuffledSites, OfFewSitesDoesNotDependOnTheirOrder) { expect_same_results(3); }

TEST_F(InterpolationOfShuffledSites, OfManySitesDoesNotDependOnTheirOrder) { expect_same_results(8); }

}  // namespace
}  // namespace mirolen
