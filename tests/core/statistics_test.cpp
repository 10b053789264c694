#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <fstream>
#include <sstream>
#include <string>
#include <vector>

#include "mirolen/core/wafer.h"
#include "support/site_support.h"

namespace mirolen {
namespace {

const double kPi = 4 * std::atan(1.0);

/// A row of the statistics that the measuring tool itself wrote.
struct ToolRow {
  std::string file;
  std::size_t n = 0;
  double mean = 0, min = 0, max = 0, deviation = 0, percent = 0, three_deviations = 0, range = 0;
};

std::vector<ToolRow> tool_statistics() {
  std::ifstream file(MIROLEN_DATA "/oxide_300mm/TOOL_STATISTICS.csv");
  std::string line;
  std::getline(file, line);
  std::vector<ToolRow> rows;
  while (std::getline(file, line)) {
    std::replace(line.begin(), line.end(), ',', ' ');
    std::istringstream fields(line);
    ToolRow row;
    fields >> row.file >> row.n >> row.mean >> row.min >> row.max >> row.deviation >> row.percent >>
        row.three_deviations >> row.range;
    rows.push_back(row);
  }
  return rows;
}

double to_four_places(double value) { return std::round(value * 1e4) / 1e4; }

void expect_tool_statistics(const wafer& loaded, const ToolRow& row) {
  EXPECT_DOUBLE_EQ(to_four_places(loaded.mean), row.mean);
  EXPECT_DOUBLE_EQ(to_four_places(loaded.mini), row.min);
  EXPECT_DOUBLE_EQ(to_four_places(loaded.maxi), row.max);
  EXPECT_DOUBLE_EQ(to_four_places(loaded.StdDev), row.deviation);
  EXPECT_DOUBLE_EQ(to_four_places(3 * loaded.StdDev), row.three_deviations);
  // The tool took these from values that it had not rounded yet, which moves the last place by one at most.
  EXPECT_NEAR(to_four_places(loaded.StdDev / loaded.mean * 100), row.percent, 1.01e-4);
  EXPECT_NEAR(to_four_places(loaded.range), row.range, 1.01e-4);
}

TEST(MaxMin, AgreesWithTheMeasuringToolOnItsOwnWafers) {
  const auto rows = tool_statistics();
  ASSERT_EQ(rows.size(), 8u);
  for (const ToolRow& row : rows) {
    SCOPED_TRACE(row.file);
    const SiteList sites = read_sites("oxide_300mm/" + row.file);
    ASSERT_EQ(sites.size(), row.n);
    wafer sample;
    set_diameters(sample, 300, 294);
    load(sample, sites);
    expect_tool_statistics(sample, row);
  }
}

TEST(MaxMin, RefusesAnEmptyStore) {
  wafer sample;
  EXPECT_THROW(sample.MaxMin(), RunTimeError);
  load(sample, with_values({7}));
  sample.reset();
  EXPECT_THROW(sample.MaxMin(), RunTimeError);
  EXPECT_EQ(sample.mean, 7);
  sample.SetNop(0);
  EXPECT_THROW(sample.MaxMin(), RunTimeError);
}

TEST(MaxMin, OfOneSiteHasNoSpread) {
  wafer sample;
  load(sample, with_values({20}));
  EXPECT_EQ(sample.maxi, 20);
  EXPECT_EQ(sample.mini, 20);
  EXPECT_EQ(sample.mean, 20);
  EXPECT_EQ(sample.StdDev, 0);
  EXPECT_EQ(sample.range, 0);
  EXPECT_EQ(sample.HiLo, 0);
  EXPECT_DOUBLE_EQ(sample.Low, 17.999);
}

TEST(MaxMin, PutsTheScaleBaseBelowAllEqualPositiveValues) {
  wafer sample;
  load(sample, with_values({5, 5, 5}));
  EXPECT_DOUBLE_EQ(sample.Low, 4.499);
  EXPECT_EQ(sample.StdDev, 0);
}

TEST(MaxMin, PutsTheScaleBaseBelowAllEqualNegativeValues) {
  wafer sample;
  load(sample, with_values({-5, -5, -5}));
  EXPECT_DOUBLE_EQ(sample.Low, -5.501);
}

TEST(MaxMin, PutsTheScaleBaseJustBelowZeroForAllZeros) {
  wafer sample;
  load(sample, with_values({0, 0, 0}));
  EXPECT_EQ(sample.mean, 0);
  EXPECT_EQ(sample.StdDev, 0);
  EXPECT_EQ(sample.HiLo, 0);
  EXPECT_EQ(sample.Low, -0.001);
}

TEST(MaxMin, TakesTheSmallestValueAsScaleBaseOtherwise) {
  wafer sample;
  load(sample, with_values({4, -2, 1}));
  EXPECT_EQ(sample.Low, -2);
}

TEST(MaxMin, DividesTheSquaresOfTwoSitesByOne) {
  wafer sample;
  load(sample, with_values({1, 3}));
  EXPECT_EQ(sample.mean, 2);
  EXPECT_EQ(sample.StdDev, std::sqrt(2.0));
}

TEST(MaxMin, KeepsTheSignOfANegativeMean) {
  wafer sample;
  load(sample, with_values({-4, -3, -2}));
  EXPECT_EQ(sample.mean, -3);
  EXPECT_EQ(sample.StdDev, 1);
}

TEST(MaxMin, FindsTheExtremesWhereverTheyStand) {
  wafer sample;
  load(sample, with_values({2, 9, -1, 6}));
  EXPECT_EQ(sample.maxi, 9);
  EXPECT_EQ(sample.mini, -1);
  EXPECT_EQ(sample.Summe_Value, 16);
  EXPECT_EQ(sample.mean, 4);
  EXPECT_EQ(sample.range, 10);
  EXPECT_EQ(sample.HiLo, 125);
}

TEST(MaxMin, HasNoPercentSpreadWhereTheExtremesCancel) {
  wafer sample;
  load(sample, with_values({-3, 1, 3}));
  EXPECT_EQ(sample.HiLo, 0);
  EXPECT_EQ(sample.range, 6);
}

TEST(MaxMin, CancelsAPlotLimit) {
  wafer sample;
  load(sample, with_values({2, 6}));
  sample.setMaximalMinial(100, 50);
  sample.MaxMin();
  EXPECT_EQ(sample.maximal, 6);
  EXPECT_EQ(sample.minimal, 2);
  EXPECT_EQ(sample.range, 4);
  EXPECT_EQ(sample.HiLo, 50);
  EXPECT_EQ(sample.Low, 2);
}

TEST(MaxMin, CountsTheZerosOfSitesNeverFilled) {
  wafer sample;
  sample.SetNop(4);
  sample.SetGridValue(0, 0, 8);
  sample.MaxMin();
  EXPECT_EQ(sample.mean, 2);
  EXPECT_EQ(sample.mini, 0);
  EXPECT_EQ(sample.StdDev, 4);
}

TEST(MaxMin, RefusesASumBeyondTheNumbers) {
  wafer sample;
  store(sample, with_values({1e308, 1e308}));
  EXPECT_THROW(sample.MaxMin(), OverflowError);
  store(sample, with_values({1e200, -1e200}));
  EXPECT_THROW(sample.MaxMin(), OverflowError);
}

SiteList at_the_centre(std::size_t count, double value) {
  return with_values(std::vector<double>(count, value));
}

/// With 100 sites on 200 mm: cells of 35.449 mm, three from the centre to the edge, half a cell beyond the
/// last.
double end_of_index() { return 3.5 * std::sqrt(100 * 100 * kPi * 4 / 100); }

TEST(MaxMin, AcceptsASiteAsFarOutAsItsIndexReaches) {
  for (const double end = end_of_index();
       const Site& last : {Site{end - 0.01, 0, 1}, Site{0, end - 0.01, 1}, Site{0.01 - end, 0.01 - end, 1}}) {
    wafer sample;
    set_diameters(sample, 200, 200);
    SiteList sites = at_the_centre(100, 1);
    sites.back() = last;
    EXPECT_NO_THROW(load(sample, sites)) << last.x << ' ' << last.y;
  }
}

TEST(MaxMin, RefusesASiteFurtherOutThanItsIndexReaches) {
  for (const double end = end_of_index();
       const Site& last : {Site{end + 0.01, 0, 1}, Site{0, end + 0.01, 1}, Site{-0.01 - end, 0, 1},
                           Site{0, -0.01 - end, 1}, Site{1e9, 0, 1}, Site{0, -1e300, 1}}) {
    wafer sample;
    set_diameters(sample, 200, 200);
    SiteList sites = at_the_centre(100, 1);
    sites.back() = last;
    EXPECT_THROW(load(sample, sites), RunTimeError) << last.x << ' ' << last.y;
  }
}

TEST(MaxMin, HasBegunAnewWhenItsIndexFails) {
  wafer sample;
  set_diameters(sample, 200, 200);
  load(sample, with_values({3, 9}));
  SiteList sites = at_the_centre(10, 5);
  sites.back().x = 1000;
  EXPECT_THROW(load(sample, sites), RunTimeError);
  EXPECT_EQ(sample.maxi, 5);
  EXPECT_EQ(sample.mini, 5);
  EXPECT_EQ(sample.mean, 0);
  EXPECT_EQ(sample.StdDev, 0);
  EXPECT_EQ(sample.range, 0);
  EXPECT_EQ(sample.HiLo, 0);
  EXPECT_EQ(sample.Low, -0.001);
  EXPECT_EQ(sample.maximal, 9);
  EXPECT_EQ(sample.Summe_Value, 12);
}

TEST(MaxMin, TakesASiteFarOutsideWithFewerThanTenSites) {
  wafer sample;
  set_diameters(sample, 200, 200);
  SiteList sites = at_the_centre(9, 1);
  sites.back().x = 1e9;
  EXPECT_NO_THROW(load(sample, sites));
}

TEST(MaxMin, CannotIndexAWaferWithoutDiameter) {
  wafer sample;
  EXPECT_THROW(load(sample, at_the_centre(10, 1)), RunTimeError);
  EXPECT_NO_THROW(load(sample, at_the_centre(9, 1)));
}

TEST(MaxMin, CannotIndexMoreSitesThanSixteenBitsCount) {
  wafer sample;
  set_diameters(sample, 200, 200);
  sample.SetNop(32767);
  EXPECT_NO_THROW(sample.MaxMin());
  sample.SetNop(32768);
  EXPECT_THROW(sample.MaxMin(), OverflowError);
}

TEST(SetMaximalMinial, MovesTheScaleAndLeavesTheData) {
  wafer sample;
  load(sample, with_values({2, 6}));
  sample.setMaximalMinial(9, 3);
  EXPECT_EQ(sample.maximal, 9);
  EXPECT_EQ(sample.minimal, 3);
  EXPECT_EQ(sample.range, 6);
  EXPECT_EQ(sample.HiLo, 50);
  EXPECT_EQ(sample.Low, 3);
  EXPECT_EQ(sample.maxi, 6);
  EXPECT_EQ(sample.mini, 2);
  EXPECT_EQ(sample.mean, 4);
  EXPECT_EQ(sample.StdDev, std::sqrt(8.0));
}

TEST(SetMaximalMinial, ChangesNothingWhereItFails) {
  wafer sample;
  load(sample, with_values({2, 6}));
  for (const auto& [high, low] : {std::pair{1.5e308, 1e308}, {1.5e308, -1.5e308}, {1.7e308, 1.7e308}}) {
    EXPECT_THROW(sample.setMaximalMinial(high, low), OverflowError) << high << " " << low;
    EXPECT_EQ(sample.maximal, 6);
    EXPECT_EQ(sample.minimal, 2);
    EXPECT_EQ(sample.range, 4);
    EXPECT_EQ(sample.HiLo, 50);
    EXPECT_EQ(sample.Low, 2);
  }
}

TEST(SetMaximalMinial, DoesNotCheckTheOrder) {
  wafer sample;
  sample.setMaximalMinial(3, 9);
  EXPECT_EQ(sample.maximal, 3);
  EXPECT_EQ(sample.minimal, 9);
  EXPECT_EQ(sample.range, -6);
  EXPECT_EQ(sample.HiLo, 50);
  EXPECT_EQ(sample.Low, 9);
}

TEST(SetMaximalMinial, PutsTheScaleBaseBelowEqualLimits) {
  wafer sample;
  sample.setMaximalMinial(10, 10);
  EXPECT_DOUBLE_EQ(sample.Low, 8.999);
  sample.setMaximalMinial(-10, -10);
  EXPECT_DOUBLE_EQ(sample.Low, -11.001);
  sample.setMaximalMinial(0, 0);
  EXPECT_EQ(sample.Low, -0.001);
  EXPECT_EQ(sample.HiLo, 0);
}

TEST(SetMaximalMinial, HasNoPercentSpreadWhereTheLimitsCancel) {
  wafer sample;
  sample.setMaximalMinial(5, -5);
  EXPECT_EQ(sample.HiLo, 0);
  EXPECT_EQ(sample.range, 10);
}

TEST(SetMaximalMinial, RefusesASpreadBeyondTheNumbers) {
  wafer sample;
  EXPECT_THROW(sample.setMaximalMinial(1.5e308, -1.5e308), OverflowError);
}

TEST(GloblalValueSubMean, AddsTheSquaresOfTheDistancesToAGivenMean) {
  wafer sample;
  load(sample, with_values({1, 2, 6}));
  EXPECT_EQ(sample.Globlal_Value_Sub_Mean(2), 17);
  EXPECT_EQ(sample.Globlal_Value_Sub_Mean(0), 41);
}

TEST(GloblalValueSubMean, IsZeroOnAnEmptyStore) {
  const wafer sample;
  EXPECT_EQ(sample.Globlal_Value_Sub_Mean(3), 0);
}

TEST(GloblalValueSubMean, RefusesASumBeyondTheNumbers) {
  wafer sample;
  load(sample, with_values({1}));
  EXPECT_THROW(sample.Globlal_Value_Sub_Mean(1e200), OverflowError);
}

TEST(PointsOutCL, CountsTheSitesBeyondEachLimit) {
  wafer sample;
  load(sample, with_values({1, 2, 3, 4, 5, 6}));
  sample.Points_OutCL(2.5, 5.5);
  EXPECT_EQ(sample.NptLCL, 2);
  EXPECT_EQ(sample.NptUCL, 1);
}

TEST(PointsOutCL, CountsASiteOnALimitOnNeitherSide) {
  wafer sample;
  load(sample, with_values({1, 2, 3}));
  sample.Points_OutCL(1, 3);
  EXPECT_EQ(sample.NptLCL, 0);
  EXPECT_EQ(sample.NptUCL, 0);
}

TEST(PointsOutCL, CountsASiteOnBothSidesOfCrossedLimits) {
  wafer sample;
  load(sample, with_values({5}));
  sample.Points_OutCL(6, 4);
  EXPECT_EQ(sample.NptLCL, 1);
  EXPECT_EQ(sample.NptUCL, 1);
}

TEST(PointsOutCL, StartsFromZeroEachTimeAlsoOnAnEmptyStore) {
  wafer sample;
  load(sample, with_values({1, 9}));
  sample.Points_OutCL(5, 5);
  sample.Points_OutCL(5, 5);
  EXPECT_EQ(sample.NptLCL, 1);
  EXPECT_EQ(sample.NptUCL, 1);
  sample.reset();
  sample.Points_OutCL(5, 5);
  EXPECT_EQ(sample.NptLCL, 0);
  EXPECT_EQ(sample.NptUCL, 0);
}

TEST(Gauss, HasTheSamePeakWhateverTheDeviation) {
  for (const double spread : {0.001, 1.0, 500.0}) {
    wafer sample;
    load(sample, with_values({10 - spread, 10 + spread}));
    EXPECT_NEAR(sample.Gauss(10), 0.3989422804014327, 1e-12) << spread;
  }
}

TEST(Gauss, FallsWithTheDistanceInDeviations) {
  wafer sample;
  load(sample, with_values({-4, -3, -2}));
  EXPECT_NEAR(sample.Gauss(-2), 0.24197072451914337, 1e-15);
  EXPECT_NEAR(sample.Gauss(-4), 0.24197072451914337, 1e-15);
  EXPECT_NEAR(sample.Gauss(-1), 0.05399096651318806, 1e-15);
}

TEST(Gauss, NeedsADeviation) {
  wafer sample;
  load(sample, with_values({5, 5}));
  EXPECT_THROW(sample.Gauss(5), DivisionByZero);
}

class StatisticsOfRandomValues : public RandomInput {};

TEST_F(StatisticsOfRandomValues, AreThoseOfTwoPlainPasses) {
  for (int round = 0; round < 300; ++round) {
    const double scale = std::pow(10.0, between(random, -12, 12));
    std::vector<double> values(static_cast<std::size_t>(between(random, 2, 9)));
    for (double& value : values) {
      value = between(random, -scale, scale);
      if (std::abs(value) < 1e-15) value = 0;
    }
    double sum = 0, squares = 0;
    for (const double value : values) sum += value;
    const double mean = sum / static_cast<double>(values.size());
    for (const double value : values) squares += (value - mean) * (value - mean);
    wafer sample;
    load(sample, with_values(values));
    EXPECT_EQ(sample.Summe_Value, sum);
    EXPECT_EQ(sample.mean, mean);
    EXPECT_EQ(sample.StdDev, std::sqrt(squares / static_cast<double>(values.size() - 1)));
    EXPECT_EQ(sample.maxi, *std::max_element(values.begin(), values.end()));
    EXPECT_EQ(sample.mini, *std::min_element(values.begin(), values.end()));
  }
}

}  // namespace
}  // namespace mirolen
