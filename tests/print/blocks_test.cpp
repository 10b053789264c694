#include <gmock/gmock.h>

#include "print_support.h"
#include "support/legend_numbers.h"
#include "support/translators.h"

namespace mirolen {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::Not;
using testing::Test;

constexpr auto kRemarks = [](auto& page, Given& g) { page.DrawWaferRemarks(g.w, g.left, g.top); };
constexpr auto kSize = [](auto& page, Given& g) { page.DrawWaferSize(g.w, g.left, g.top); };
constexpr auto kStatistics = [](auto& page, Given& g) { page.DrawWaferStatistics(g.w, g.left, g.top); };
constexpr auto kLegend = [](auto& page, Given& g) { page.DrawColoredLegend(g.w, g.left, g.top, g.framed); };
constexpr auto kScale = [](auto& page, Given& g) { page.DrawColoredScale(g.w, g.left, g.top); };
constexpr auto kSigmaLegend = [](auto& page, Given& g) {
  page.DrawSigmaLegend(g.w, g.left, g.top, g.x, g.framed);
};
constexpr auto kBareSigmaLegend = [](auto& page, Given& g) {
  page.DrawSigmaLegend_No_Frame(g.w, g.left, g.top, g.x);
};
constexpr auto kSigmaScale = [](auto& page, Given& g) { page.DrawSigmaScale(g.left, g.top, g.x, g.w); };

/// Every block and every scale.
void expect_all_as_worked_out(const PageSetup& setup, const Given& given) {
  expect_as_worked_out(setup, given, kRemarks);
  expect_as_worked_out(setup, given, kSize);
  expect_as_worked_out(setup, given, kStatistics);
  expect_as_worked_out(setup, given, kLegend);
  expect_as_worked_out(setup, given, kScale);
  expect_as_worked_out(setup, given, kSigmaLegend);
  expect_as_worked_out(setup, given, kBareSigmaLegend);
  expect_as_worked_out(setup, given, kSigmaScale);
}

Given with(const wafer& w) {
  Given given;
  given.w = w;
  given.x = 1.5;
  return given;
}

/// The texts that an operation prints, in their order.
template <class Operation>
Lines texts(const Given& given, Operation operation, const PageSetup& setup = {}) {
  Lines printed_texts;
  for (const std::string& line : printed(setup, given, operation).lines)
    if (line.starts_with("Print ")) printed_texts.push_back(line.substr(6));
  return printed_texts;
}

wafer values(double mini, double maxi, double mean, double StdDev) {
  wafer w = sample_wafer();
  w.mini = w.minimal = mini;
  w.maxi = w.maximal = maxi;
  w.mean = mean;
  w.StdDev = StdDev;
  return w;
}

wafer with_remarks() {
  wafer w = sample_wafer();
  w.Operator = "Jürgen Müller-Lüdenscheidt";
  w.FAB = "F1";
  w.equip = "";
  w.wafer = "W-0000000000001";
  w.lot = "444444444444444444";
  w.meq = "meq";
  w.Special = "東京東京東京東京東京";
  w.filename = "file";
  return w;
}

// ---- Blocks ----

TEST(ReportBlocks, AreAsWorkedOutOnEveryPage) {
  for (const CanvasKind kind : {CanvasKind::printer, CanvasKind::picture_box, CanvasKind::other})
    for (const SurfaceSize twips : {SurfaceSize{2.4, 4.8}, {4.8, 2.4}, {15, 15}})
      for (const bool framed : {true, false}) {
        Given given = with(with_remarks());
        given.framed = framed;
        expect_all_as_worked_out({kind, twips, {15, 12}, "", 0}, given);
      }
}

TEST(ReportBlocks, WriteAllLabelsAndThenAllValues) {
  EXPECT_THAT(texts(with(sample_wafer(7, 1)), kSize),
              ElementsAre("Size ", "Wafer Diam:", "Test Diam:", "No. Sites:", "Style:", "200.00 mm",
                          "190.00 mm", "7", "Notch"));
  EXPECT_THAT(texts(with(values(1, 3, 2, 0.5)), kStatistics),
              ElementsAre("Statistics ", "Mean:", "Maximum:", "Minimum:", "Std. Dev:", "Range:", "Hi/Lo Var:",
                          "Unit:", "2.0", "3.0", "1.0", "0.5", "25.00 %", "2.0", "50.00 %", "µm"));
}

// Its capitals are wider: two labels lose their colons to the width of the column.
TEST(ReportBlocks, SpeakTheLanguageInForce) {
  const TranslatorInForce loud(shouted);
  EXPECT_THAT(texts(with(sample_wafer(7, 1)), kSize),
              ElementsAre("SIZE ", "WAFER DIAM", "TEST DIAM:", "NO. SITES:", "STYLE:", "200.00 mm",
                          "190.00 mm", "7", "NOTCH"));
  EXPECT_EQ(texts(with(sample_wafer(7, 0.98)), kSize).back(), "FLAT");
  EXPECT_THAT(texts(with(values(1, 3, 2, 0.5)), kStatistics),
              ElementsAre("STATISTICS ", "MEAN:", "MAXIMUM:", "MINIMUM:", "STD. DEV:", "RANGE:", "HI/LO VAR:",
                          "UNIT:", "2.0", "3.0", "1.0", "0.5", "25.00 %", "2.0", "50.00 %", "µm"));
  const Lines remarks = texts(with(sample_wafer()), kRemarks);
  EXPECT_THAT(Lines(remarks.begin(), remarks.begin() + 3),
              ElementsAre("WAFER REMARKS ", "OPERATOR ID", "FAB NAME:"));
  EXPECT_EQ(texts(with(sample_wafer()), kLegend).front(), "LEGEND ");
}

TEST(ReportBlocks, TellANotchByARatioOfExactlyOne) {
  for (const double ratio : {0.0, 0.98, 0.999999999, 1.000000001, 2.0})
    EXPECT_EQ(texts(with(sample_wafer(5, ratio)), kSize).back(), "Flat") << ratio;
  EXPECT_EQ(texts(with(sample_wafer(5, 1)), kSize).back(), "Notch");
}

TEST(ReportBlocks, WriteAZeroDeviationAndAZeroDiameterAsTheirFormats) {
  const Lines statistics = texts(with(values(5, 5, 5, 0)), kStatistics);
  EXPECT_EQ(statistics.at(11), "0.0");
  EXPECT_EQ(statistics.at(12), "0.00 %");
  wafer w = sample_wafer();
  w.WafDiam = w.test_diam = 0;
  const Lines size = texts(with(w), kSize);
  EXPECT_EQ(size.at(5), "00.00 mm");
  EXPECT_EQ(size.at(6), "00.00 mm");
}

TEST(ReportBlocks, LengthenSmallDiametersAndDeviations) {
  wafer w = values(1, 1.0000001, 1, 1e-7);
  w.WafDiam = 0.0004;
  EXPECT_EQ(texts(with(w), kSize).at(5), "00.0004 mm");
  EXPECT_EQ(texts(with(w), kStatistics).at(12), "0.00001 %");
}

TEST(ReportBlocks, LeaveTheRelativeDeviationOutUnlessTheMeanIsPositive) {
  for (const double mean : {0.0, -2.0}) {
    const Given given = with(values(-3, -1, mean, 0.5));
    EXPECT_EQ(texts(given, kStatistics).size(), 15u);
    EXPECT_THAT(printed({}, given, kStatistics).lines, Not(Contains("CurrentY=2720")));
    EXPECT_EQ(texts(given, kStatistics).at(13), "50.00 %");  // the spread has a value for any sign
  }
  EXPECT_THAT(printed({}, with(values(-3, -1, 1e-9, 0.5)), kStatistics).lines, Contains("CurrentY=2720"));
}

TEST(ReportBlocks, WriteTheSpreadOfOppositeExtremesWithoutDividing) {
  EXPECT_EQ(texts(with(values(-4, 4, 1, 1)), kStatistics).at(14), "0.00 %");
  EXPECT_EQ(texts(with(values(0, 0, 1, 1)), kStatistics).at(14), "0.00 %");
}

TEST(ReportBlocks, CutTextsToFifteenCharactersAndThenToTheirColumn) {
  const Lines remarks = texts(with(with_remarks()), kRemarks);
  ASSERT_EQ(remarks.size(), 15u);
  EXPECT_EQ(remarks.at(11), "W-0000000000001");
  EXPECT_EQ(remarks.at(12), "444444444");  // 975 twips take nine characters of 100
  EXPECT_EQ(first_fifteen("Jürgen Müller-Lüdenscheidt"), "Jürgen Müller-L");
  EXPECT_TRUE(std::string("Jürgen Müller-L").starts_with(remarks.at(8))) << remarks.at(8);
  wafer w = sample_wafer();
  w.Operator = "µµµµµµµµµµµµµµµµµ";
  const double fifteen = width_of("µµµµµµµµµµµµµµµ");
  const std::string written = texts(with(w), kRemarks).at(8);
  EXPECT_LE(width_of(written), 975);
  EXPECT_EQ(written.size() % 2, 0u);
  EXPECT_EQ(width_of(written), fifteen > 975 ? std::floor(975 / width_of("µ")) * width_of("µ") : fifteen);
  w.Meas_unit = "0000000000000000";  // sixteen
  EXPECT_EQ(texts(with(w), kStatistics).back(), "000000000000000");
}

TEST(ReportBlocks, RefuseNumbersThatLeaveTheRangeOfADouble) {
  for (const wafer& w : {values(-1.7e308, 1.7e308, 1, 1), values(1, 2, 1e-300, 1e300),
                         values(1.6e308, 1.7e308, 1, 1), values(-1.7e308, -1.6e308, -1, 1)}) {
    EXPECT_EQ(printed({}, with(w), kStatistics).error, typeid(OverflowError).name());
    expect_as_worked_out({}, with(w), kStatistics);
  }
}

TEST(ReportBlocks, KeepWhatIsWrittenBeforeAValueThatFails) {
  // The relative deviation is the fifth value.
  EXPECT_THAT(texts(with(values(1, 2, 1e-300, 1e300)), kStatistics),
              ElementsAre("Statistics ", "Mean:", "Maximum:", "Minimum:", "Std. Dev:", "Range:", "Hi/Lo Var:",
                          "Unit:", "1.E-300", "2.0", "1.0", "1.E+300"));
  // The sum of the extremes is needed by the last but one.
  const Lines lines = texts(with(values(1.6e308, 1.7e308, 1, 1)), kStatistics);
  ASSERT_EQ(lines.size(), 14u);
  EXPECT_EQ(lines.at(13), "1.E+307") << "the range";
}

// ---- Coloured scale ----

TEST(ColoredScale, RowsFallFromTopToBottom) {
  const Lines rows = texts(with(values(0, 10, 5, 1)), kScale);
  ASSERT_EQ(rows.size(), 10u);
  EXPECT_EQ(rows.at(0), " 9.000 - 10.000");
  EXPECT_EQ(rows.at(9), " 0.000 -  1.000");
}

TEST(ColoredScale, EndsOpenWhereItIsLimited) {
  for (const bool upper : {true, false}) {
    wafer w = values(0, 8, 5, 1);
    upper ? w.maxi = 9 : w.mini = -9;
    const Lines rows = texts(with(w), kScale);
    ASSERT_EQ(rows.size(), 10u);
    EXPECT_EQ(rows.at(0), " >  8.000");
    EXPECT_EQ(rows.at(1), " 7.000 -  8.000");
    EXPECT_EQ(rows.at(9), " <  0.000");
  }
}

TEST(ColoredScale, WidensItsFieldToTheLongestNumberSoThatNothingIsCut) {
  // Steps of 1235.06 with 5 - 2 decimals.
  const Lines rows = texts(with(values(-12345.6, 5, 1, 1)), kScale);
  ASSERT_EQ(rows.size(), 10u);
  EXPECT_EQ(rows.at(0), " -1230.060 -      5.000");
  EXPECT_EQ(rows.at(9), "-12345.600 - -11110.540");
}

class ColoredScaleOfAnyRange : public RandomInput {};

TEST_F(ColoredScaleOfAnyRange, ReadsBackToItsDecimals) {
  int read = 0;
  for (int round = 0; round < rounds(500); ++round) {
    const auto [low, high] = any_scale(random);
    SCOPED_TRACE(testing::Message() << "scale from " << low << " to " << high);
    const Lines rows = texts(with(values(low, high, 1, 1)), kScale);
    ASSERT_EQ(rows.size(), 10u);
    for (int row = 0; row < 10; ++row) {
      const std::string& text = rows.at(static_cast<std::size_t>(row));
      if (width_of(text) > 1850) continue;  // it may have lost its end to fit into 2,000
      SCOPED_TRACE(text);
      const std::vector<ReadNumber> numbers = numbers_of(text);
      ASSERT_EQ(numbers.size(), 2u);
      const double step = (high - low) / 10;
      expect_read_back(numbers[0], high - (row + 1) * step);
      expect_read_back(numbers[1], high - row * step);
      EXPECT_EQ(numbers[0].width, numbers[1].width);
      ++read;
    }
    if (HasFailure()) return;
  }
  EXPECT_GT(read, 1000);
}

TEST(ColoredScale, PutsBoxesThatTouchInPixels) {
  Given given = with(values(0, 10, 5, 1));
  given.left = 240;
  given.top = 480;
  const auto boxes = [&](const PageSetup& setup) {
    Lines polygons;
    for (const std::string& line : printed(setup, given, kScale).lines)
      if (line.starts_with("Polygon ")) polygons.push_back(line);
    return polygons;
  };
  // The height of a row counts by the width of a pixel, its width by the height.
  const Lines printer = boxes({CanvasKind::printer, {2.4, 4.8}, {15, 12}, "", 0});
  ASSERT_EQ(printer.size(), 10u);
  EXPECT_EQ(printer.at(0), "Polygon 100,100 153,100 153,200 100,200");
  EXPECT_EQ(printer.at(9), "Polygon 100,1000 153,1000 153,1100 100,1100");
  for (const CanvasKind kind : {CanvasKind::picture_box, CanvasKind::other}) {
    const Lines screen = boxes({kind, {2.4, 4.8}, {15, 12}, "", 0});
    EXPECT_EQ(screen.at(0), "Polygon 16,40 37,40 37,56 16,56");
    EXPECT_EQ(screen.at(1), "Polygon 16,56 37,56 37,72 16,72");
  }
}

TEST(ColoredScale, GivesItsPlaceBackInPixels) {
  Given given = with(sample_wafer());
  const Given scale = printed({}, given, kScale).after;
  EXPECT_DOUBLE_EQ(scale.left, 700 / 2.4);
  EXPECT_DOUBLE_EQ(scale.top, 1400 / 4.8);
  for (given.framed = false;; given.framed = true) {
    EXPECT_EQ(printed({}, given, kLegend).after.left, 700);
    const Given after = printed({}, given, kSigmaLegend).after;
    EXPECT_DOUBLE_EQ(after.left, given.framed ? 700 : 700 / 2.4);
    EXPECT_DOUBLE_EQ(after.top, given.framed ? 1400 : 1400 / 4.8);
    if (given.framed) break;
  }
}

TEST(ColoredScale, StartsAtTheGivenPlaceWithoutAFrame) {
  Given given = with(sample_wafer());
  given.framed = false;
  EXPECT_EQ(difference(printed({}, given, kLegend).lines, printed({}, given, kScale).lines), "");
  EXPECT_EQ(difference(printed({}, given, kSigmaLegend).lines, printed({}, given, kSigmaScale).lines), "");
  EXPECT_EQ(difference(printed({}, given, kSigmaLegend).lines, printed({}, given, kBareSigmaLegend).lines),
            "");
}

TEST(Scales, AreAsWorkedOutForEveryRange) {
  const std::pair<double, double> ranges[] = {{0, 10},      {-10, 10},     {-10, -2},        {5, 5},
                                              {0, 0},       {1e-9, 3e-9},  {-3e-9, -1e-9},   {1e5, 2e5},
                                              {-2e5, -1e5}, {99999, 1e5},  {-0.5, 100000.5}, {0, 12345.678},
                                              {10, 0},      {-1e-5, 1e-5}, {0, 1e200}};
  for (const auto& [low, high] : ranges)
    for (const double beyond : {0.0, 1.0, -1.0}) {
      Given given = with(values(low, high, 1, 1));
      given.w.maxi += beyond;
      expect_as_worked_out({}, given, kScale);
      given.w.mini -= beyond;
      expect_as_worked_out({}, given, kLegend);
    }
}

TEST(Scales, PaintTheColoursOfTheWafer) {
  Given given = with(sample_wafer());
  double wafer::*colors[] = {&wafer::col1,  &wafer::col2,  &wafer::col3, &wafer::col4, &wafer::col5,
                             &wafer::col6,  &wafer::col7,  &wafer::col8, &wafer::col9, &wafer::col10,
                             &wafer::ColS1, &wafer::ColS2, &wafer::ColS3};
  double color = 1000;
  for (double wafer::*member : colors) given.w.*member = ++color;
  given.w.col3 = 15;
  expect_as_worked_out({}, given, kScale);
  expect_as_worked_out({}, given, kSigmaScale);
}

// ---- Sigma scale ----

TEST(SigmaScale, WritesThreeRowsWithTheirSigma) {
  EXPECT_THAT(texts(with(sample_wafer()), kSigmaScale),
              ElementsAre(">   1.5", "s", "+-  1.5", "s", "< - 1.5", "s"));
}

TEST(SigmaScale, IsAsWorkedOutForEverySigma) {
  for (const double sigma : {0.0, 1.0, 3.0, 0.25, 0.04, 1e-12, -2.0, 123456.0, 1e20}) {
    Given given = with(sample_wafer());
    given.x = sigma;
    expect_as_worked_out_everywhere(given, kSigmaLegend);
  }
  Given given = with(sample_wafer());
  given.x = 0.04;
  EXPECT_EQ(texts(given, kSigmaScale).front(), ">   0.04");
  given.x = 0;
  EXPECT_EQ(texts(given, kSigmaScale).front(), ">   0.0");
}

TEST(SigmaScale, CutsALongRangeAndPutsTheSigmaBehindWhatIsLeft) {
  Given given = with(sample_wafer());
  given.x = 4e30;
  expect_as_worked_out_everywhere(given, kSigmaScale);
  EXPECT_LE(width_of(texts(given, kSigmaScale).front()), 2001);
  EXPECT_GT(width_of(texts(given, kSigmaScale).front()), 1900);
}

// ---- Targets that fail ----

TEST(Scales, DivideByNoPixelSizeOfZero) {
  const Given given = with(sample_wafer());
  for (const SurfaceSize twips : {SurfaceSize{0, 4.8}, {2.4, 0}}) {
    EXPECT_EQ(printed({CanvasKind::printer, twips, {15, 15}, "", 0}, given, kScale).error,
              typeid(DivisionByZero).name());
    EXPECT_EQ(printed({CanvasKind::other, {1, 1}, twips, "", 0}, given, kSigmaScale).error,
              typeid(DivisionByZero).name());
  }
}

TEST(Scales, RefusePlacesBeyond32Bits) {
  Given given = with(sample_wafer());
  given.left = 1e15;
  expect_as_worked_out({}, given, kScale);
  expect_as_worked_out({}, given, kSigmaScale);
  EXPECT_EQ(printed({}, given, kScale).error, typeid(OverflowError).name());
}

TEST(ReportBlocks, PassAFaultOfTheTargetOn) {
  const Given given = with(with_remarks());
  expect_as_worked_out_on_failing_pages(given, kRemarks);
  expect_as_worked_out_on_failing_pages(given, kSize);
  expect_as_worked_out_on_failing_pages(given, kStatistics);
  expect_as_worked_out_on_failing_pages(given, kLegend);
  expect_as_worked_out_on_failing_pages(given, kSigmaLegend);
}

class RandomBlocks : public RandomInput {};

TEST_F(RandomBlocks, AreAsWorkedOut) {
  for (int round = 0; round < 100 && !HasFailure(); ++round) {
    SCOPED_TRACE("round " + std::to_string(round));
    Given given = any_given(random);
    given.w.Operator = given.text;
    given.x = between(random, -1.0, 4.0);
    expect_all_as_worked_out(any_page(random), given);
  }
}

}  // namespace
}  // namespace mirolen
