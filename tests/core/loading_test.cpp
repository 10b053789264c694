#include <gtest/gtest.h>

#include <cmath>
#include <string>
#include <vector>

#include "mirolen/core/GlobalFunctions.h"
#include "mirolen/core/wafer.h"
#include "support/SpecialFiles.h"
#include "support/site_support.h"

namespace mirolen {
namespace {

using GlobalFunctions::ApplyPlotLimit;
using GlobalFunctions::ClipToTestDiameter;
using GlobalFunctions::LoadSiteArrays;
using GlobalFunctions::LoadSiteFile;
using Values = std::vector<double>;

constexpr bool kNoLimit = false;
constexpr bool kKeepLimit = true;

const SiteList kThree{{1, 10, 100}, {2, 20, 200}, {3, 30, 300}};
const SiteList kOld{{-1, -2, 8}, {-3, -4, 12}};

std::int16_t load_arrays(wafer& target, const SiteList& sites, bool keep = kNoLimit) {
  return LoadSiteArrays(keep, target, column(sites, &Site::x), column(sites, &Site::y),
                        column(sites, &Site::z));
}

std::int16_t load_bytes(wafer& target, const std::string& bytes, double nops, bool keep = kNoLimit) {
  return LoadSiteFile(keep, target, TemporaryFile(bytes).name(), nops);
}

/// A wafer that holds kOld, to see what a load leaves of it.
class Loading : public testing::Test {
 protected:
  Loading() {
    set_diameters(sample, 200, 190);
    load(sample, kOld);
  }

  void expect_untouched() const {
    EXPECT_EQ(sites_of(sample), kOld);
    expect_old_statistics();
  }

  void expect_old_statistics() const {
    EXPECT_EQ(sample.mean, 10);
    EXPECT_EQ(sample.Summe_Value, 20);
    EXPECT_EQ(sample.maxi, 12);
    EXPECT_EQ(sample.maximal, 12);
  }

  wafer sample;
};

class LoadSiteArraysTest : public Loading {};
class LoadSiteFileTest : public Loading {};

// ---- Arrays ----

TEST_F(LoadSiteArraysTest, ReplacesTheSitesAndComputesTheStatistics) {
  EXPECT_EQ(load_arrays(sample, kThree), 0);
  EXPECT_EQ(sites_of(sample), kThree);
  EXPECT_EQ(sample.mean, 200);
  EXPECT_EQ(sample.maximal, 300);
  EXPECT_EQ(sample.minimal, 100);
}

TEST_F(LoadSiteArraysTest, RefusesYOfAnotherLengthThanXAndZ) {
  const Values three(3, 1), four(4, 1), two(2, 1);
  EXPECT_EQ(LoadSiteArrays(kNoLimit, sample, three, four, three), 1);
  EXPECT_EQ(LoadSiteArrays(kNoLimit, sample, three, two, three), 1);
  EXPECT_EQ(LoadSiteArrays(kNoLimit, sample, two, three, four), 1);
  expect_untouched();
}

TEST_F(LoadSiteArraysTest, RefusesYOfAnotherLowerBoundThanXAndZ) {
  EXPECT_EQ(LoadSiteArrays(kNoLimit, sample, Array(1, 3), Array(0, 3), Array(1, 3)), 2);
  EXPECT_EQ(LoadSiteArrays(kNoLimit, sample, Array(0, 3), Array(1, 3), Array(2, 3)), 2);
  expect_untouched();
}

TEST_F(LoadSiteArraysTest, AnswersUpperBoundsBeforeLowerBounds) {
  EXPECT_EQ(LoadSiteArrays(kNoLimit, sample, Array(1, 3), Array(0, 4), Array(1, 3)), 1);
}

TEST_F(LoadSiteArraysTest, PassesAZTooShortAndFailsWhereItEnds) {
  const Values x{1, 2, 3}, y{10, 20, 30}, z{100, 200};
  EXPECT_THROW(LoadSiteArrays(kNoLimit, sample, x, y, z), SubscriptOutOfRange);
  EXPECT_EQ(sites_of(sample), (SiteList{{1, 10, 100}, {2, 20, 200}, {}}));
  expect_old_statistics();
}

TEST_F(LoadSiteArraysTest, PassesAZTooLongAndLeavesItsRest) {
  const Values x{1, 2, 3}, y{10, 20, 30}, z{100, 200, 300, 400};
  EXPECT_EQ(LoadSiteArrays(kNoLimit, sample, x, y, z), 0);
  EXPECT_EQ(sites_of(sample), kThree);
}

TEST_F(LoadSiteArraysTest, PassesAnXOfAnotherLengthAndGoesByIt) {
  const Values y{10, 20, 30}, z{100, 200, 300};
  EXPECT_EQ(LoadSiteArrays(kNoLimit, sample, Values{1, 2}, y, z), 0);
  EXPECT_EQ(sites_of(sample), (SiteList{{1, 10, 100}, {2, 20, 200}}));
  EXPECT_THROW(LoadSiteArrays(kNoLimit, sample, Values{1, 2, 3, 4}, y, z), SubscriptOutOfRange);
  EXPECT_EQ(sites_of(sample), (SiteList{{1, 10, 100}, {2, 20, 200}, {3, 30, 300}, {}}));
}

TEST_F(LoadSiteArraysTest, FailsAtTheEndOfArraysThatStartAtZero) {
  const Array x({1, 2, 3}, 0), y({10, 20, 30}, 0), z({100, 200, -300}, 0);
  EXPECT_THROW(LoadSiteArrays(kNoLimit, sample, x, y, z), SubscriptOutOfRange);
  EXPECT_EQ(sites_of(sample), (SiteList{{2, 20, 200}, {3, 30, -300}, {}}));
  EXPECT_TRUE(sample.FW_Negativ);
  expect_old_statistics();
}

TEST_F(LoadSiteArraysTest, FailsAtOnceForArraysThatStartAtTwo) {
  const Array array({1, 2, 3}, 2);
  EXPECT_THROW(LoadSiteArrays(kNoLimit, sample, array, array, array), SubscriptOutOfRange);
  EXPECT_EQ(sites_of(sample), SiteList(3));
  expect_old_statistics();
}

TEST_F(LoadSiteArraysTest, TakesTheCountFromXWhereOnlyTheBoundsOfOthersAgree) {
  const Array x({0, 1, 2}, 0), y(Values{10, 20}), z(Values{100, 200});
  EXPECT_THROW(LoadSiteArrays(kNoLimit, sample, x, y, z), SubscriptOutOfRange);
  EXPECT_EQ(sites_of(sample), (SiteList{{1, 10, 100}, {2, 20, 200}, {}}));
}

TEST_F(LoadSiteArraysTest, FailsOnArraysWithoutElements) {
  EXPECT_THROW(load_arrays(sample, {}), RunTimeError);
  EXPECT_EQ(sample.GetNop(), 0);
  expect_old_statistics();
}

TEST_F(LoadSiteArraysTest, KeepsThePlotLimitsInForceOnlyIfAsked) {
  sample.setMaximalMinial(500, 50);
  EXPECT_EQ(load_arrays(sample, kThree, kKeepLimit), 0);
  EXPECT_EQ(sample.maximal, 500);
  EXPECT_EQ(sample.minimal, 50);
  EXPECT_EQ(sample.range, 450);
  EXPECT_EQ(sample.Low, 50);
  EXPECT_EQ(sample.maxi, 300);
  EXPECT_EQ(load_arrays(sample, kThree), 0);
  EXPECT_EQ(sample.maximal, 300);
  EXPECT_EQ(sample.minimal, 100);
}

TEST_F(LoadSiteArraysTest, LoadsAsManySitesAsSixteenBitsCount) {
  Values numbers(32767, 1);
  numbers.back() = 2;
  EXPECT_EQ(LoadSiteArrays(kNoLimit, sample, numbers, numbers, numbers), 0);
  EXPECT_EQ(sample.GetNop(), 32767);
  EXPECT_EQ(site_of(sample, 32767), (Site{2, 2, 2}));
  EXPECT_EQ(sample.Summe_Value, 32768);
}

TEST_F(LoadSiteArraysTest, RefusesMoreSitesThanSixteenBitsCountBeforeItTouchesTheStore) {
  const Values numbers(32768, 1);
  EXPECT_THROW(LoadSiteArrays(kNoLimit, sample, numbers, numbers, numbers), RunTimeError);
  const Array from_below(-10, 32767);
  EXPECT_THROW(LoadSiteArrays(kNoLimit, sample, from_below, from_below, from_below), RunTimeError);
  expect_untouched();
}

TEST_F(LoadSiteArraysTest, RefusesBoundsThatDoNotFitSixteenBitsBeforeItTouchesTheStore) {
  const Array high(32768, 32769), low(-32769, -32760);
  EXPECT_THROW(LoadSiteArrays(kNoLimit, sample, high, high, high), RunTimeError);
  EXPECT_THROW(LoadSiteArrays(kNoLimit, sample, low, low, low), RunTimeError);
  expect_untouched();
}

TEST_F(LoadSiteArraysTest, AnswersBoundsThatDisagreeBeforeTheirSize) {
  const Values many(32768, 1), few(3, 1);
  EXPECT_EQ(LoadSiteArrays(kNoLimit, sample, many, few, many), 1);
  expect_untouched();
}

TEST_F(LoadSiteArraysTest, RefusesNumbersThatAreNotFiniteBeforeItTouchesTheStore) {
  for (const double bad : {kNaN, kInfinity, -kInfinity}) {
    for (double Site::*member : {&Site::x, &Site::y, &Site::z}) {
      for (std::size_t place = 0; place < kThree.size(); ++place) {
        SiteList sites = kThree;
        sites[place].*member = bad;
        EXPECT_THROW(load_arrays(sample, sites), RunTimeError);
        expect_untouched();
      }
    }
  }
}

TEST_F(LoadSiteArraysTest, AnswersBoundsThatDisagreeBeforeNumbersThatAreNotFinite) {
  const Values three(3, kNaN), four(4, kNaN);
  EXPECT_EQ(LoadSiteArrays(kNoLimit, sample, three, four, three), 1);
  EXPECT_EQ(LoadSiteArrays(kNoLimit, sample, Array(Values{kNaN, 1}, 1), Array(0, 2), Array(1, 2)), 2);
  expect_untouched();
}

TEST_F(LoadSiteArraysTest, LooksOnlyAtTheElementsToBeLoaded) {
  const Values x{1, 2, 3}, y{10, 20, 30}, z{100, 200, 300, kNaN};
  EXPECT_EQ(LoadSiteArrays(kNoLimit, sample, x, y, z), 0);
  EXPECT_EQ(sites_of(sample), kThree);
  const Array from_zero({kNaN, 2, 3}, 0);
  EXPECT_THROW(LoadSiteArrays(kNoLimit, sample, from_zero, from_zero, from_zero), SubscriptOutOfRange);
  EXPECT_EQ(sites_of(sample), (SiteList{{2, 2, 2}, {3, 3, 3}, {}}));
}

TEST_F(LoadSiteArraysTest, PassesOnTheErrorsOfTheStatistics) {
  SiteList sites(10, Site{0, 0, 1});
  sites.back().x = 1e6;
  EXPECT_THROW(load_arrays(sample, sites), RunTimeError);
  EXPECT_EQ(sites_of(sample), sites);
}

// ---- The binary file ----

TEST_F(LoadSiteFileTest, ReadsAllXThenAllYThenAllZ) {
  EXPECT_EQ(load_bytes(sample, bytes_of({1, 2, 3, 10, 20, 30, 100, 200, 300}), 3), 0);
  EXPECT_EQ(sites_of(sample), kThree);
  EXPECT_EQ(sample.mean, 200);
}

TEST_F(LoadSiteFileTest, ReadsLittleEndianDoubles) {
  const std::string one("\x00\x00\x00\x00\x00\x00\xF0\x3F", 8),
      minus_two("\x00\x00\x00\x00\x00\x00\x00\xC0", 8);
  EXPECT_EQ(load_bytes(sample, one + minus_two + one, 1), 0);
  EXPECT_EQ(site_of(sample, 1), (Site{1, -2, 1}));
}

TEST_F(LoadSiteFileTest, IgnoresWhatFollows) {
  EXPECT_EQ(load_bytes(sample, file_bytes(kThree) + bytes_of({kNaN, 7}) + "xyz", 3), 0);
  EXPECT_EQ(sites_of(sample), kThree);
}

TEST_F(LoadSiteFileTest, ReadsYAndZFromTheWrongPlacesForACountTooSmall) {
  const std::string bytes = bytes_of({1, 2, 3, 10, 20, 30, 100, 200, 300});
  EXPECT_EQ(load_bytes(sample, bytes, 2), 0);
  EXPECT_EQ(sites_of(sample), (SiteList{{1, 3, 20}, {2, 10, 30}}));
}

TEST_F(LoadSiteFileTest, ScramblesAndFillsWithZerosForACountTooLarge) {
  const std::string bytes = bytes_of({1, 2, 3, 10, 20, 30, 100, 200, 300});
  EXPECT_EQ(load_bytes(sample, bytes, 4), 0);
  EXPECT_EQ(sites_of(sample), (SiteList{{1, 20, 300}, {2, 30, 0}, {3, 100, 0}, {10, 200, 0}}));
  EXPECT_TRUE(sample.FW_NUll);
}

TEST_F(LoadSiteFileTest, PutsSitesThatTheFileDoesNotReachAtTheCentreWithZero) {
  EXPECT_EQ(load_bytes(sample, "", 3), 0);
  EXPECT_EQ(sites_of(sample), SiteList(3));
  EXPECT_TRUE(sample.FW_NUll);
  EXPECT_EQ(sample.Low, -0.001);
}

TEST_F(LoadSiteFileTest, TakesANumberHeldOnlyInPartAsZero) {
  std::string bytes = file_bytes(kThree);
  bytes.pop_back();
  EXPECT_EQ(load_bytes(sample, bytes, 3), 0);
  EXPECT_EQ(sites_of(sample), (SiteList{{1, 10, 100}, {2, 20, 200}, {3, 30, 0}}));
  EXPECT_EQ(load_bytes(sample, bytes.substr(0, 8 * 4 + 1), 3), 0);
  EXPECT_EQ(sites_of(sample), (SiteList{{1, 10, 0}, {2, 0, 0}, {3, 0, 0}}));
}

TEST_F(LoadSiteFileTest, AnswersFourForAMissingFileAndMakesNone) {
  const TemporaryFile missing;
  EXPECT_EQ(LoadSiteFile(kNoLimit, sample, missing.name(), 3), 4);
  EXPECT_FALSE(std::filesystem::exists(missing.path()));
  EXPECT_EQ(sites_of(sample), SiteList(3));
  expect_old_statistics();
}

TEST_F(LoadSiteFileTest, AnswersFourForWhatIsNoFile) {
  EXPECT_EQ(LoadSiteFile(kNoLimit, sample, "", 3), 4);
  const TemporaryFile folder;
  std::filesystem::create_directory(folder.path());
  EXPECT_EQ(LoadSiteFile(kNoLimit, sample, folder.name(), 3), 4);
}

TEST_F(LoadSiteFileTest, ReadsNothingButRegularFiles) {
  const TemporaryFile folder, bytes(file_bytes(kThree));
  std::filesystem::create_directory(folder.path());
  const SpecialFiles specials(folder.name());
  ASSERT_GE(specials.paths().size(), 6u);
  for (const std::string& special : specials.paths())
    EXPECT_EQ(LoadSiteFile(kNoLimit, sample, special, 3), 4) << special;
  EXPECT_TRUE(specials.stand());

  const std::string link = folder.name() + "/link";
  std::filesystem::create_symlink(bytes.path(), link);
  EXPECT_EQ(LoadSiteFile(kNoLimit, sample, link, 3), 0);
  EXPECT_EQ(sites_of(sample), kThree);
}

TEST_F(LoadSiteFileTest, OpensNamesOutsideAscii) {
  const TemporaryFile plain;
  auto path = plain.path();
  path += std::filesystem::path(u8"_\u00b5m");
  const std::u8string name = path.u8string();
  std::filesystem::rename(TemporaryFile(file_bytes(kThree)).path(), path);
  EXPECT_EQ(LoadSiteFile(kNoLimit, sample, {name.begin(), name.end()}, 3), 0);
  EXPECT_EQ(sites_of(sample), kThree);
  std::filesystem::remove(path);
}

TEST_F(LoadSiteFileTest, AnswersFourForACountThatIsNone) {
  for (const double nops : {-1.0, -1e300, 1e300, 4e9, kNaN, kInfinity, -kInfinity}) {
    load(sample, kOld);
    EXPECT_EQ(load_bytes(sample, file_bytes(kThree), nops), 4) << nops;
    EXPECT_THROW(site_of(sample, 1), SubscriptOutOfRange) << nops;
    expect_old_statistics();
  }
}

TEST_F(LoadSiteFileTest, AnswersFourForNoSites) {
  EXPECT_EQ(load_bytes(sample, file_bytes(kThree), 0), 4);
  EXPECT_EQ(sample.GetNop(), 0);
}

TEST_F(LoadSiteFileTest, AnswersFourForMoreSitesThanSixteenBitsCountWithTheOldOnesGone) {
  EXPECT_EQ(load_bytes(sample, bytes_of(Values(3 * 32768, 1)), 32768), 4);
  EXPECT_EQ(site_of(sample, 1), Site{});
  expect_old_statistics();
}

TEST_F(LoadSiteFileTest, LoadsAsManySitesAsSixteenBitsCount) {
  EXPECT_EQ(load_bytes(sample, bytes_of(Values(3 * 32767, 1)), 32767), 0);
  EXPECT_EQ(site_of(sample, 32767), (Site{1, 1, 1}));
  EXPECT_EQ(sample.Summe_Value, 32767);
}

TEST_F(LoadSiteFileTest, RoundsItsCountHalfToEven) {
  EXPECT_EQ(load_bytes(sample, bytes_of({1, 2, 10, 20, 100, 200}), 2.5), 0);
  EXPECT_EQ(sites_of(sample), (SiteList{{1, 10, 100}, {2, 20, 200}}));
  EXPECT_EQ(sample.GetNop(), 2);
  EXPECT_EQ(sample.mean, 150);
  EXPECT_EQ(load_bytes(sample, bytes_of({1, 2, 10, 20, 100, 200}), 1.5), 0);
  EXPECT_EQ(sites_of(sample), (SiteList{{1, 10, 100}, {2, 20, 200}}));
  EXPECT_EQ(sample.GetNop(), 2);
}

TEST_F(LoadSiteFileTest, LeavesAWholeNumberOfSitesBehindAFailure) {
  EXPECT_EQ(GlobalFunctions::LoadSiteFile(false, sample, "no such file", 3.5), 4);
  EXPECT_EQ(sample.GetNop(), 4);
  EXPECT_EQ(sites_of(sample), SiteList(4));
}

TEST_F(LoadSiteFileTest, AnswersFourWithAnEmptyStoreForNumbersThatAreNotFinite) {
  for (const double bad : {kNaN, kInfinity, -kInfinity}) {
    for (double Site::*member : {&Site::x, &Site::y, &Site::z}) {
      load(sample, kOld);
      SiteList sites = kThree;
      sites.back().*member = bad;
      EXPECT_EQ(load_bytes(sample, file_bytes(sites), 3), 4);
      EXPECT_EQ(sample.GetNop(), 0);
      expect_old_statistics();
    }
  }
}

TEST_F(LoadSiteFileTest, AnswersFourWhereTheStatisticsFail) {
  SiteList sites(10, Site{0, 0, 1});
  sites.back().x = 1e6;
  EXPECT_EQ(load_bytes(sample, file_bytes(sites), 10), 4);
  EXPECT_EQ(sites_of(sample), sites);
}

TEST_F(LoadSiteFileTest, KeepsThePlotLimitsInForceOnlyIfAsked) {
  sample.setMaximalMinial(500, 50);
  EXPECT_EQ(load_bytes(sample, file_bytes(kThree), 3, kKeepLimit), 0);
  EXPECT_EQ(sample.maximal, 500);
  EXPECT_EQ(sample.minimal, 50);
  EXPECT_EQ(sample.Low, 50);
  EXPECT_EQ(load_bytes(sample, file_bytes(kThree), 3), 0);
  EXPECT_EQ(sample.maximal, 300);
  EXPECT_EQ(sample.minimal, 100);
}

// ---- Both ways ----

void expect_same_wafer(const wafer& left, const wafer& right) {
  EXPECT_EQ(left.GetNop(), right.GetNop());
  EXPECT_EQ(sites_of(left), sites_of(right));
  EXPECT_EQ(left.FW_NUll, right.FW_NUll);
  EXPECT_EQ(left.FW_Negativ, right.FW_Negativ);
  EXPECT_EQ(left.mean, right.mean);
  EXPECT_EQ(left.StdDev, right.StdDev);
  EXPECT_EQ(left.maximal, right.maximal);
  EXPECT_EQ(left.minimal, right.minimal);
  EXPECT_EQ(left.HiLo, right.HiLo);
  EXPECT_EQ(left.Low, right.Low);
  for (double x = -90; x < 100; x += 30) EXPECT_EQ(left.Interpolation(x, 20), right.Interpolation(x, 20));
}

class LoadingRandomSites : public RandomInput {};

TEST_F(LoadingRandomSites, ByFileAndByArraysGivesTheSameWafer) {
  for (int round = 0; round < 60; ++round) {
    SiteList sites(static_cast<std::size_t>(between(random, 1, 300)));
    for (Site& site : sites) {
      site = {between(random, -90.0, 90.0), between(random, -90.0, 90.0), between(random, -2.0, 20.0)};
      if (chance(random, 0.01)) site.z = between(random, -2e-15, 2e-15);
    }
    const bool keep = chance(random, 0.5);
    wafer by_file, by_arrays;
    for (wafer* sample : {&by_file, &by_arrays}) {
      set_diameters(*sample, 200, 190);
      sample->setMaximalMinial(11, 3);
    }
    EXPECT_EQ(load_arrays(by_arrays, sites, keep), 0);
    EXPECT_EQ(load_bytes(by_file, file_bytes(sites), static_cast<double>(sites.size()), keep), 0);
    expect_same_wafer(by_file, by_arrays);
    EXPECT_EQ(by_file.maximal == 11, keep);
  }
}

TEST(LoadSiteArraysAndFile, AgreeOnMeasuredWafers) {
  for (const char* name : {"oxide_300mm/native_oxide_w01.csv", "film_300mm/slot1.csv"}) {
    const SiteList sites = read_sites(name);
    ASSERT_GT(sites.size(), 40u) << name;
    wafer by_file, by_arrays;
    set_diameters(by_file, 300, 294);
    set_diameters(by_arrays, 300, 294);
    EXPECT_EQ(load_arrays(by_arrays, sites), 0);
    EXPECT_EQ(load_bytes(by_file, file_bytes(sites), static_cast<double>(sites.size())), 0);
    EXPECT_EQ(sites_of(by_file), sites);
    expect_same_wafer(by_file, by_arrays);
  }
}

TEST(LoadSiteArrays, TakesALargeDefectMap) {
  const SiteList sites = read_sites("defects_200mm/defect_size.csv");
  ASSERT_GT(sites.size(), 12000u);
  wafer sample;
  set_diameters(sample, 200, 200);
  EXPECT_EQ(load_arrays(sample, sites), 0);
  EXPECT_EQ(sample.GetNop(), static_cast<double>(sites.size()));
  // Several defects may share a position.
  EXPECT_GE(sample.Interpolation(sites[0].x, sites[0].y), sample.mini);
  EXPECT_LE(sample.Interpolation(sites[0].x, sites[0].y), sample.maxi);
}

// ---- Plot limits ----

TEST(ApplyPlotLimit, SetsALowerAndAnUpperLimit) {
  wafer sample;
  load(sample, kThree);
  EXPECT_TRUE(ApplyPlotLimit(sample, 50, 150));
  EXPECT_EQ(sample.minimal, 50);
  EXPECT_EQ(sample.maximal, 150);
  EXPECT_EQ(sample.range, 100);
  EXPECT_EQ(sample.HiLo, 50);
  EXPECT_EQ(sample.Low, 50);
  EXPECT_EQ(sample.maxi, 300);
}

TEST(ApplyPlotLimit, RefusesEqualAndCrossedLimits) {
  wafer sample;
  load(sample, kThree);
  EXPECT_FALSE(ApplyPlotLimit(sample, 50, 50));
  EXPECT_FALSE(ApplyPlotLimit(sample, 150, 50));
  EXPECT_EQ(sample.minimal, 100);
  EXPECT_EQ(sample.maximal, 300);
  EXPECT_EQ(sample.range, 200);
}

// ---- Shrinking the test diameter ----

class ClipToTestDiameterTest : public testing::Test {
 protected:
  ClipToTestDiameterTest() { set_diameters(sample, 200, 190); }

  wafer sample;
};

TEST_F(ClipToTestDiameterTest, ChangesNothingWithAllSitesInside) {
  load(sample, {{10, 0, 1}, {0, 20, 3}});
  sample.setMaximalMinial(7, 5);
  ClipToTestDiameter(kNoLimit, sample, 100);
  EXPECT_EQ(sites_of(sample), (SiteList{{10, 0, 1}, {0, 20, 3}}));
  EXPECT_EQ(sample.test_diam, 190);
  EXPECT_EQ(sample.maximal, 7);
}

TEST_F(ClipToTestDiameterTest, ChangesNothingInAnEmptyStore) {
  EXPECT_NO_THROW(ClipToTestDiameter(kNoLimit, sample, 100));
  EXPECT_EQ(sample.test_diam, 190);
}

TEST_F(ClipToTestDiameterTest, KeepsASiteExactlyOnTheCircle) {
  load(sample, {{30, 40, 1}, {0, 0, 2}});
  ClipToTestDiameter(kNoLimit, sample, 100);
  EXPECT_EQ(sample.GetNop(), 2);
  ClipToTestDiameter(kNoLimit, sample, 99.999);
  EXPECT_EQ(sample.GetNop(), 1);
}

TEST_F(ClipToTestDiameterTest, KeepsTheFirstSitesWhicheverLieOutside) {
  load(sample, {{90, 0, 1}, {0, 0, 2}, {10, 0, 3}});
  ClipToTestDiameter(kNoLimit, sample, 100);
  EXPECT_EQ(sites_of(sample), (SiteList{{90, 0, 1}, {0, 0, 2}}));
  EXPECT_EQ(sample.test_diam, 100);
  EXPECT_EQ(sample.mean, 1.5);
  EXPECT_EQ(sample.maximal, 2);
}

TEST_F(ClipToTestDiameterTest, DropsAgainWhatItKeptOutside) {
  load(sample, {{90, 0, 1}, {0, 0, 2}, {10, 0, 3}});
  ClipToTestDiameter(kNoLimit, sample, 100);
  ClipToTestDiameter(kNoLimit, sample, 100);
  EXPECT_EQ(sites_of(sample), (SiteList{{90, 0, 1}}));
}

TEST_F(ClipToTestDiameterTest, DoesNotBringSitesBackWhenTheDiameterGrows) {
  load(sample, {{0, 0, 1}, {90, 0, 2}});
  ClipToTestDiameter(kNoLimit, sample, 100);
  ClipToTestDiameter(kNoLimit, sample, 190);
  EXPECT_EQ(sites_of(sample), (SiteList{{0, 0, 1}}));
}

TEST_F(ClipToTestDiameterTest, ForgetsTheValueFlagsOfDroppedSites) {
  load(sample, {{0, 0, 1}, {90, 0, -2}, {90, 0, 0}});
  ClipToTestDiameter(kNoLimit, sample, 100);
  EXPECT_FALSE(sample.FW_Negativ);
  EXPECT_FALSE(sample.FW_NUll);
}

TEST_F(ClipToTestDiameterTest, KeepsThePlotLimitsInForceOnlyIfAsked) {
  const SiteList sites{{0, 0, 1}, {5, 0, 3}, {90, 0, 2}};
  load(sample, sites);
  sample.setMaximalMinial(50, 10);
  ClipToTestDiameter(kKeepLimit, sample, 100);
  EXPECT_EQ(sample.GetNop(), 2);
  EXPECT_EQ(sample.maximal, 50);
  EXPECT_EQ(sample.minimal, 10);
  EXPECT_EQ(sample.maxi, 3);
  load(sample, sites);
  sample.setMaximalMinial(50, 10);
  ClipToTestDiameter(kNoLimit, sample, 100);
  EXPECT_EQ(sample.maximal, 3);
  EXPECT_EQ(sample.minimal, 1);
}

TEST_F(ClipToTestDiameterTest, FailsWithAnEmptyStoreWhenItDropsEverySite) {
  load(sample, {{30, 0, 1}, {40, 0, 3}});
  EXPECT_THROW(ClipToTestDiameter(kNoLimit, sample, 10), RunTimeError);
  EXPECT_EQ(sample.GetNop(), 0);
  EXPECT_THROW(site_of(sample, 1), SubscriptOutOfRange);
  EXPECT_EQ(sample.test_diam, 10);
  EXPECT_EQ(sample.mean, 2);
}

TEST_F(ClipToTestDiameterTest, CannotCountMoreSitesThanSixteenBits) {
  sample.SetNop(32768);
  EXPECT_THROW(ClipToTestDiameter(kNoLimit, sample, 100), OverflowError);
  EXPECT_EQ(sample.GetNop(), 32768);
}

}  // namespace
}  // namespace mirolen
