#include <gtest/gtest.h>

#include <clocale>
#include <functional>
#include <ostream>
#include <string>
#include <vector>

#include "mirolen/core/DecimalSeparator.h"
#include "mirolen/core/wafer.h"
#include "support/site_support.h"

namespace mirolen {
namespace {

/// The three ways to write site 1.
using Writer = std::function<void(wafer&, double x, double y, double z)>;

struct NamedWriter {
  std::string name;
  Writer write;
};

void PrintTo(const NamedWriter& writer, std::ostream* out) { *out << writer.name; }

class EachWriter : public testing::TestWithParam<NamedWriter> {
 protected:
  void SetUp() override { sample.SetNop(1); }
  void write(double z) { GetParam().write(sample, 3, 4, z); }
  void write(double x, double y, double z) { GetParam().write(sample, x, y, z); }

  wafer sample;
};

INSTANTIATE_TEST_SUITE_P(
    Store, EachWriter,
    testing::Values(NamedWriter{"SetGridValue",
                                [](wafer& w, double x, double y, double z) { w.SetGridValue(x, y, z); }},
                    NamedWriter{"SetGridValueD",
                                [](wafer& w, double x, double y, double z) { w.SetGridValueD(1, x, y, z); }},
                    NamedWriter{"OverwriteGridValue", [](wafer& w, double x, double y,
                                                         double z) { w.OverwriteGridValue(1, x, y, z); }}),
    [](const auto& writer) { return writer.param.name; });

TEST(NewWafer, IsEmpty) {
  const wafer sample;
  EXPECT_EQ(sample.GetNop(), 0);
  EXPECT_FALSE(sample.FW_NUll);
  EXPECT_FALSE(sample.FW_Negativ);
  EXPECT_TRUE(sample.changeResx);
  EXPECT_EQ(sample.WafDiam, 0);
  EXPECT_EQ(sample.WaferOrigRad, 0);
  EXPECT_EQ(sample.test_diam, 0);
  EXPECT_EQ(sample.FileDT + sample.filename + sample.DirFileName, "");
  EXPECT_THROW(site_of(sample, 1), SubscriptOutOfRange);
}

TEST(NewWafer, HasTheIntervalColoursFromRedToMagenta) {
  const wafer w;
  const std::vector<double> colours{w.col1, w.col2, w.col3, w.col4, w.col5,
                                    w.col6, w.col7, w.col8, w.col9, w.col10};
  const std::vector<double> expected{0x000080, 0x0000FF, 0x00FFFF, 0x00FF00, 0x008080,
                                     0x008000, 0x808000, 0xFF0000, 0x800000, 0x800080};
  EXPECT_EQ(colours, expected);
}

TEST(NewWafer, HasRedGreenAndBlueAsSigmaColours) {
  const wafer sample;
  EXPECT_EQ(sample.ColS1, 0x000080);
  EXPECT_EQ(sample.ColS2, 0x008000);
  EXPECT_EQ(sample.ColS3, 0x800000);
}

/// The first installed locale that writes a comma, put into force; empty if there is none.
std::string enter_comma_locale() {
  for (const char* name : {"de_DE.UTF-8", "de_DE.utf8", "fr_FR.UTF-8", "de_DE", "German"}) {
    if (std::setlocale(LC_NUMERIC, name) && std::localeconv()->decimal_point == std::string(",")) return name;
  }
  return {};
}

TEST(NewWafer, TakesTheDecimalSeparatorOfTheLocale) {
  const std::string before = std::setlocale(LC_NUMERIC, nullptr);
  std::setlocale(LC_NUMERIC, "C");
  const wafer with_point;
  EXPECT_EQ(decimal_separator(), ".");
  if (!enter_comma_locale().empty()) {
    const wafer with_comma;
    EXPECT_EQ(decimal_separator(), ",");
  }
  std::setlocale(LC_NUMERIC, before.c_str());
  const wafer as_before;
}

TEST(Reset, EmptiesTheStore) {
  wafer sample;
  store(sample, {{1, 2, 3}, {4, 5, 6}});
  sample.reset();
  EXPECT_EQ(sample.GetNop(), 0);
  EXPECT_THROW(site_of(sample, 1), SubscriptOutOfRange);
}

TEST(Reset, StartsAgainAtTheFirstSite) {
  wafer sample;
  store(sample, {{1, 2, 3}, {4, 5, 6}});
  sample.reset();
  sample.SetNop(2);
  sample.SetGridValue(7, 8, 9);
  EXPECT_EQ(sites_of(sample), (SiteList{{7, 8, 9}, {}}));
}

TEST(Reset, AloneClearsTheValueFlags) {
  wafer sample;
  load(sample, with_values({0, -1}));
  sample.SetNop(2);
  sample.SetGridValueD(1, 0, 0, 5);
  sample.SetGridValueD(2, 0, 0, 5);
  sample.MaxMin();
  EXPECT_TRUE(sample.FW_NUll);
  EXPECT_TRUE(sample.FW_Negativ);
  sample.reset();
  EXPECT_FALSE(sample.FW_NUll);
  EXPECT_FALSE(sample.FW_Negativ);
}

TEST(Reset, KeepsDiametersColoursTextsAndStatistics) {
  wafer sample;
  set_diameters(sample, 200, 190);
  sample.flat_ratio = 0.98;
  sample.col1 = 12345;
  sample.ColS3 = 54321;
  sample.Meas_unit = "nm";
  sample.lot = "A1";
  load(sample, with_values({1, 5}));
  sample.setMaximalMinial(9, 3);
  sample.reset();
  EXPECT_EQ(sample.WafDiam, 200);
  EXPECT_EQ(sample.WaferOrigRad, 100);
  EXPECT_EQ(sample.test_diam, 190);
  EXPECT_EQ(sample.flat_ratio, 0.98);
  EXPECT_EQ(sample.col1, 12345);
  EXPECT_EQ(sample.ColS3, 54321);
  EXPECT_EQ(sample.Meas_unit, "nm");
  EXPECT_EQ(sample.lot, "A1");
  EXPECT_EQ(sample.mean, 3);
  EXPECT_EQ(sample.maxi, 5);
  EXPECT_EQ(sample.Summe_Value, 6);
  EXPECT_EQ(sample.maximal, 9);
  EXPECT_EQ(sample.range, 6);
}

TEST(Reset, TwiceInARowIsHarmless) {
  wafer sample;
  store(sample, {{1, 2, 3}});
  sample.reset();
  sample.reset();
  EXPECT_EQ(sample.GetNop(), 0);
  load(sample, {{1, 2, 3}});
  EXPECT_EQ(sites_of(sample), (SiteList{{1, 2, 3}}));
}

TEST(SetNop, DiscardsWhatWasStored) {
  wafer sample;
  store(sample, {{1, 2, 3}, {4, 5, 6}});
  sample.SetNop(3);
  EXPECT_EQ(sample.GetNop(), 3);
  EXPECT_EQ(sites_of(sample), SiteList(3));
}

TEST(SetNop, DoesNotStartAgainAtTheFirstSite) {
  wafer sample;
  store(sample, {{1, 2, 3}});
  sample.SetNop(3);
  sample.SetGridValue(4, 5, 6);
  EXPECT_EQ(sites_of(sample), (SiteList{{}, {4, 5, 6}, {}}));
}

TEST(SetNop, RoundsHalfToEvenForTheRoomButKeepsTheNumber) {
  wafer sample;
  sample.SetNop(2.5);
  EXPECT_EQ(sample.GetNop(), 2.5);
  EXPECT_EQ(site_of(sample, 2), Site{});
  EXPECT_THROW(site_of(sample, 3), SubscriptOutOfRange);
  sample.SetNop(3.5);
  EXPECT_EQ(sample.GetNop(), 3.5);
  EXPECT_EQ(site_of(sample, 4), Site{});
  EXPECT_THROW(site_of(sample, 5), SubscriptOutOfRange);
}

TEST(SetNop, RefusesANumberThatIsNoCount) {
  for (const double number : {-1.0, -40000.0, 1e300, 4e9, kNaN, kInfinity, -kInfinity}) {
    wafer sample;
    EXPECT_THROW(sample.SetNop(number), RunTimeError) << number;
    EXPECT_THROW(site_of(sample, 1), SubscriptOutOfRange) << number;
  }
}

TEST(SetGridValue, AppendsTheSitesInTheirOrder) {
  wafer sample;
  const SiteList sites{{1, -2, 3}, {4, 5, 6}, {1, -2, 3}};
  store(sample, sites);
  EXPECT_EQ(sites_of(sample), sites);
}

TEST(SetGridValue, DropsASurplusSiteInSilence) {
  wafer sample;
  store(sample, {{1, 2, 3}, {4, 5, 6}});
  sample.SetGridValue(7, 8, -9);
  EXPECT_EQ(sites_of(sample), (SiteList{{1, 2, 3}, {4, 5, 6}}));
  EXPECT_FALSE(sample.FW_Negativ);
}

TEST(SetGridValue, DropsEverySiteBeforeThereIsRoom) {
  wafer sample;
  sample.SetGridValue(1, 2, 3);
  EXPECT_EQ(sample.GetNop(), 0);
  sample.SetNop(1);
  sample.SetGridValue(4, 5, 6);
  EXPECT_EQ(site_of(sample, 1), (Site{4, 5, 6}));
}

TEST(SetGridValue, StaysAtTheSiteBehindTheLastAfterASurplusSite) {
  wafer sample;
  store(sample, {{1, 2, 3}, {4, 5, 6}});
  sample.SetGridValue(7, 8, 9);
  sample.SetGridValue(7, 8, 9);
  sample.SetNop(4);
  sample.SetGridValue(10, 11, 12);
  EXPECT_EQ(sites_of(sample), (SiteList{{}, {}, {10, 11, 12}, {}}));
}

TEST(SetGridValueD, WritesTheGivenSite) {
  wafer sample;
  store(sample, {{1, 2, 3}, {4, 5, 6}, {7, 8, 9}});
  sample.SetGridValueD(2, -1, -2, 3.5);
  EXPECT_EQ(sites_of(sample), (SiteList{{1, 2, 3}, {-1, -2, 3.5}, {7, 8, 9}}));
}

TEST(SetGridValueD, DropsASiteBeyondTheLastInSilence) {
  wafer sample;
  store(sample, {{1, 2, 3}});
  sample.SetGridValueD(2, 4, 5, -6);
  sample.SetGridValueD(32767, 4, 5, 0);
  EXPECT_EQ(sites_of(sample), (SiteList{{1, 2, 3}}));
  EXPECT_FALSE(sample.FW_Negativ);
  EXPECT_FALSE(sample.FW_NUll);
}

TEST(SetGridValueD, RefusesASiteBelowTheFirst) {
  wafer sample;
  store(sample, {{1, 2, 3}});
  EXPECT_THROW(sample.SetGridValueD(0, 4, 5, 6), SubscriptOutOfRange);
  EXPECT_THROW(sample.SetGridValueD(-32768, 4, 5, 6), SubscriptOutOfRange);
  EXPECT_EQ(sites_of(sample), (SiteList{{1, 2, 3}}));
}

TEST(SetGridValueD, DoesNotMoveWhereTheNextSiteGoes) {
  wafer sample;
  sample.SetNop(3);
  sample.SetGridValueD(2, 1, 1, 1);
  sample.SetGridValue(2, 2, 2);
  EXPECT_EQ(sites_of(sample), (SiteList{{2, 2, 2}, {1, 1, 1}, {}}));
}

TEST(OverwriteGridValue, WritesTheGivenSite) {
  wafer sample;
  store(sample, {{1, 2, 3}, {4, 5, 6}});
  sample.OverwriteGridValue(1, -1, -2, 3.5);
  EXPECT_EQ(sites_of(sample), (SiteList{{-1, -2, 3.5}, {4, 5, 6}}));
}

TEST(OverwriteGridValue, RefusesEveryNumberThatIsNoSite) {
  wafer sample;
  store(sample, {{1, 2, 3}, {4, 5, 6}});
  for (const int number : {0, -1, 3, 32767, -32768}) {
    EXPECT_THROW(sample.OverwriteGridValue(static_cast<std::int16_t>(number), 7, 8, -9), SubscriptOutOfRange)
        << number;
  }
  EXPECT_EQ(sites_of(sample), (SiteList{{1, 2, 3}, {4, 5, 6}}));
  EXPECT_FALSE(sample.FW_Negativ);
}

TEST(OverwriteGridValue, LeavesTheStatisticsAsTheyAre) {
  wafer sample;
  load(sample, with_values({1, 5}));
  sample.OverwriteGridValue(1, 0, 0, 100);
  sample.SetGridValueD(2, 0, 0, 100);
  EXPECT_EQ(sample.mean, 3);
  EXPECT_EQ(sample.maxi, 5);
  EXPECT_EQ(sample.maximal, 5);
}

TEST(GetGridValue, PutsThePositionIntoElementsOneAndTwo) {
  wafer sample;
  store(sample, {{1, 2, 3}, {4, 5, 6}});
  Array position(0, 3);
  position(0) = 70;
  position(3) = 73;
  EXPECT_EQ(sample.GetGridValue(2, position), 6);
  EXPECT_EQ(position, Array({70, 4, 5, 73}, 0));
}

TEST(GetGridValue, RefusesANumberThatIsNoSite) {
  wafer sample;
  store(sample, {{1, 2, 3}});
  Array position(1, 2);
  for (const int number : {0, 2, -1, 32767, -32768}) {
    EXPECT_THROW(sample.GetGridValue(static_cast<std::int16_t>(number), position), SubscriptOutOfRange)
        << number;
  }
}

TEST(GetGridValue, NeedsElementsOneAndTwo) {
  wafer sample;
  store(sample, {{1, 2, 3}});
  for (Array position : {Array(), Array(1, 1), Array(2, 3), Array(0, 1)}) {
    EXPECT_THROW(sample.GetGridValue(1, position), SubscriptOutOfRange)
        << position.LBound() << " to " << position.UBound();
  }
}

TEST_P(EachWriter, StoresAValueNearerToZeroThanTheToleranceAsZero) {
  for (const double z : {1e-16, -1e-16, 9.999e-16, -9.999e-16, 5e-324}) {
    sample.reset();
    sample.SetNop(1);
    write(z);
    EXPECT_EQ(site_of(sample, 1), (Site{3, 4, 0})) << z;
    EXPECT_TRUE(sample.FW_NUll) << z;
    EXPECT_FALSE(sample.FW_Negativ) << z;
  }
}

TEST_P(EachWriter, KeepsAValueExactlyAtTheTolerance) {
  write(1e-15);
  EXPECT_EQ(site_of(sample, 1).z, 1e-15);
  EXPECT_FALSE(sample.FW_NUll);
  EXPECT_FALSE(sample.FW_Negativ);
}

TEST_P(EachWriter, KeepsANegativeValueAtTheToleranceAndSaysSo) {
  write(-1e-15);
  EXPECT_EQ(site_of(sample, 1).z, -1e-15);
  EXPECT_FALSE(sample.FW_NUll);
  EXPECT_TRUE(sample.FW_Negativ);
}

TEST_P(EachWriter, SaysThatAValueWasZero) {
  write(0);
  EXPECT_EQ(site_of(sample, 1).z, 0);
  EXPECT_TRUE(sample.FW_NUll);
  EXPECT_FALSE(sample.FW_Negativ);
}

TEST_P(EachWriter, LeavesTheFlagsAloneForAPositiveValue) {
  write(2.5);
  EXPECT_EQ(site_of(sample, 1), (Site{3, 4, 2.5}));
  EXPECT_FALSE(sample.FW_NUll);
  EXPECT_FALSE(sample.FW_Negativ);
}

TEST_P(EachWriter, RefusesNumbersThatAreNotFiniteAndStoresNothing) {
  for (const double bad : {kNaN, kInfinity, -kInfinity}) {
    EXPECT_THROW(write(bad, 1, 1), RunTimeError) << bad;
    EXPECT_THROW(write(1, bad, 1), RunTimeError) << bad;
    EXPECT_THROW(write(1, 1, bad), RunTimeError) << bad;
  }
  EXPECT_EQ(site_of(sample, 1), Site{});
  EXPECT_FALSE(sample.FW_NUll);
  EXPECT_FALSE(sample.FW_Negativ);
  sample.SetGridValue(3, 4, 5);
  EXPECT_EQ(site_of(sample, 1), (Site{3, 4, 5}));
}

}  // namespace
}  // namespace mirolen
