#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdio>
#include <limits>

#include "plain_histogram.h"
#include "sample_wafers.h"

namespace mirolen {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

const std::string kGreen = text_of(QBColor(2));
const std::string kTick = text_of(QBColor(1));

/// A chart as it was drawn: one canvas twice on a page, otherwise one for bars and one for ticks and texts.
struct DrawnChart {
  DrawnChart(const wafer& wafer, const ChartCanvases& canvases, const ChartRequest& request)
      : source(wafer), r(request), plot(canvases.setup.kind), own_hist(canvases.setup.kind) {
    plot.place = canvases.place;
    plot.twips_per_pixel = canvases.setup.twips_per_pixel;
    for (RecordingCanvas* canvas : {&plot, &own_hist})
      if (!canvases.setup.fails_in.empty()) canvas->log.fail_in(canvases.setup.fails_in);
    EXPECT_NO_THROW(draw_chart(source, plot, r.ShowDisp == 1 ? plot : own_hist, r))
        << describe(canvases.setup);
  }

  Lines bars() const { return boxes(38); }
  Lines boxes(int flags) const {
    Lines found;
    for (const std::string& line : plot.log.of("Line"))
      if (line.starts_with("Line " + std::to_string(flags) + ' ')) found.push_back(line);
    return found;
  }
  const RecordingCanvas& hist() const { return r.ShowDisp == 1 ? plot : own_hist; }
  Lines texts() const { return texts_of("Print "); }
  Lines texts_of(const std::string& start) const {
    Lines found;
    for (const std::string& thing : drawn_things(hist().lines()))
      if (thing.starts_with(start)) found.push_back(thing);
    return found;
  }

  wafer source;
  ChartRequest r;
  RecordingCanvas plot, own_hist;
};

void expect_same_chart(const DrawnChart& drawn, const PlainHistogram& plain) {
  EXPECT_EQ(difference(drawn_things(drawn.plot.lines()), drawn_things(plain.plot), 1e-7), "");
  EXPECT_EQ(difference(drawn_things(drawn.own_hist.lines()), drawn_things(plain.hist_of_its_own), 1e-7), "");
  EXPECT_EQ(drawn.source.maxHauf, plain.maxHauf);
  EXPECT_DOUBLE_EQ(drawn.source.GaussMax, plain.GaussMax);
  EXPECT_DOUBLE_EQ(drawn.r.x0, plain.r.x0);
  EXPECT_DOUBLE_EQ(drawn.r.y0, plain.r.y0);
  EXPECT_DOUBLE_EQ(drawn.r.breite, plain.r.breite);
  EXPECT_DOUBLE_EQ(drawn.r.hoehe, plain.r.hoehe);
  EXPECT_DOUBLE_EQ(drawn.r.left, plain.r.left);
  EXPECT_DOUBLE_EQ(drawn.r.top, plain.r.top);
  EXPECT_EQ(drawn.r.laenge, plain.r.laenge);
}

void expect_as_worked_out(const wafer& source, const ChartCanvases& canvases, const ChartRequest& request) {
  SCOPED_TRACE(describe(canvases.setup) +
               line_of("; type, classes, ShowDisp:", request.PlotType, request.stat_resol, request.ShowDisp));
  PlainHistogram plain(source, canvases, request);
  plain.draw();
  expect_same_chart(DrawnChart(source, canvases, request), plain);
}

ChartRequest chart_of_type(std::int16_t PlotType) {
  ChartRequest request;
  request.PlotType = PlotType;
  return request;
}

ChartRequest page_of_type(std::int16_t PlotType) {
  return {PlotType, 1500, 3000, 3000, 1800, 8, 60, 1500, 3000, 1};
}

/// Four classes of 1 from 0 to 4, without a curve. By ties to the even class 2 goes into the second class and
/// 3 into the fourth: 2, 2, 0 and 3 sites.
wafer steps() {
  wafer source = wafer_with(with_values({0, 0.5, 1, 2, 3, 4, 4}));
  source.StdDev = 0;
  return source;
}

Lines bars_of(const wafer& source, std::int16_t PlotType) {
  return DrawnChart(source, {}, chart_of_type(PlotType)).bars();
}

// ---- Worked out by hand ----

TEST(Statistic, StandsBarsOnTheBottomEdge) {
  EXPECT_EQ(difference(bars_of(steps(), 1),
                       {"Line 38 0 20 25 60 " + kGreen, "Line 38 25 20 50 60 " + kGreen,
                        "Line 38 75 0 100 60 " + kGreen},
                       1e-9),
            "");
}

TEST(Statistic, HangsBarsFromTheTopEdge) {
  EXPECT_EQ(difference(bars_of(steps(), 2),
                       {"Line 38 0 40 25 0 " + kGreen, "Line 38 25 40 50 0 " + kGreen,
                        "Line 38 75 60 100 0 " + kGreen},
                       1e-9),
            "");
}

TEST(Statistic, LaysBarsOnTheLeftEdge) {
  EXPECT_EQ(difference(bars_of(steps(), 3),
                       {"Line 38 66.66666666667 60 0 45 " + kGreen,
                        "Line 38 66.66666666667 45 0 30 " + kGreen, "Line 38 100 15 0 0 " + kGreen},
                       1e-9),
            "");
}

TEST(Statistic, LaysBarsOnTheRightEdge) {
  EXPECT_EQ(difference(bars_of(steps(), 4),
                       {"Line 38 33.33333333333 60 100 45 " + kGreen,
                        "Line 38 33.33333333333 45 100 30 " + kGreen, "Line 38 0 15 100 0 " + kGreen},
                       1e-9),
            "");
}

TEST(Statistic, OutlinesEachBarInBlack) {
  for (const std::int16_t type : {1, 2, 3, 4}) {
    const DrawnChart chart(steps(), {}, chart_of_type(type));
    Lines outlines = chart.boxes(22);
    ASSERT_EQ(outlines.size(), 3u);
    for (std::size_t i = 0; i < 3; ++i) {
      const std::string bar = chart.bars()[i];
      EXPECT_EQ(outlines[i], "Line 22" + bar.substr(7, bar.rfind(' ') - 7) + " 0");
    }
  }
}

TEST(Statistic, NumbersTheCountAxis) {
  ChartRequest request;
  request.x0 = 50;
  request.y0 = 10;
  // Ticks at 70 - m * 20; numbers of one character stand two of them before the axis, at its middle height.
  const DrawnChart up(steps(), {}, request);
  EXPECT_THAT(up.own_hist.log.of("Line")[0], "Line 6 46 50 50 50 " + kTick);
  EXPECT_THAT(up.own_hist.log.of("Line")[2], "Line 6 46 10 50 10 " + kTick);
  EXPECT_THAT(up.texts()[0], testing::StartsWith("Print 1 at 38 44 "));
  EXPECT_THAT(up.texts()[2], testing::StartsWith("Print 3 at 38 4 "));
  request.PlotType = 2;
  const DrawnChart down(steps(), {}, request);
  EXPECT_THAT(down.texts()[0], testing::StartsWith("Print 2 at 38 44 "));
  EXPECT_THAT(down.texts()[2], testing::StartsWith("Print 0 at 38 4 "));
}

TEST(Statistic, TicksTheClassesOnTheScreen) {
  ChartRequest request;
  request.x0 = 50;
  request.y0 = 10;
  const Lines lines = DrawnChart(steps(), {}, request).own_hist.log.of("Line");
  ASSERT_EQ(lines.size(), 3u + 2 * 5);
  EXPECT_EQ(lines[3], "Line 6 50 54 50 70 " + kTick);  // from the axis' x on, behind the picture of the bars
  EXPECT_EQ(lines[4], "Line 6 75 76 75 70 " + kTick);
  EXPECT_EQ(lines[11], "Line 6 150 54 150 70 " + kTick);
  EXPECT_EQ(lines[12], "Line 6 150 76 150 70 " + kTick);
}

TEST(Statistic, LabelsTheClassBoundariesUnderTheChart) {
  // The base 0 takes 6 - 2 = 4 decimals: 36 units, more than the 25 of a class.
  const DrawnChart narrow(steps(), {}, {});
  const Lines ends = narrow.texts();
  ASSERT_EQ(ends.size(), 3u + 2);
  EXPECT_THAT(ends[3], testing::StartsWith("Print 0.0000 at 12 80 "));
  EXPECT_THAT(ends[4], testing::StartsWith("Print 4.0000 at 112 80 "));
  ChartCanvases wide;
  wide.place = {30, 20, 400, 60};
  const Lines all = DrawnChart(steps(), wide, {}).texts();
  ASSERT_EQ(all.size(), 3u + 5);
  EXPECT_THAT(all[4], testing::StartsWith("Print 1.0000 at 112 80 "));
  EXPECT_THAT(all[6], testing::StartsWith("Print 3.0000 at 312 80 "));
  EXPECT_THAT(all[7], testing::StartsWith("Print 4.0000 at 412 80 "));
}

TEST(Statistic, DecidesAboutInnerLabelsByTheBoundaryBehindTheLastClass) {
  // 8.909 to 9.9 in four classes: 10.1477 takes 42 units, the other labels 36.
  wafer source = wafer_with(with_values({9.9}));
  source.maxHauf = 0;
  ChartCanvases canvases;
  canvases.place = {0, 0, 4 * 40, 60};
  EXPECT_EQ(DrawnChart(source, canvases, {}).texts().size(), 2u);
  canvases.place = {0, 0, 4 * 43, 60};
  EXPECT_EQ(DrawnChart(source, canvases, {}).texts().size(), 5u);
}

TEST(Statistic, LabelsOnlyTheEndsOfALyingChart) {
  for (const std::int16_t type : {3, 4}) {
    const Lines texts = DrawnChart(steps(), {}, chart_of_type(type)).texts();
    ASSERT_EQ(texts.size(), 2u);
    EXPECT_THAT(texts[0], testing::StartsWith("Print 0 at 30 80 "));
    EXPECT_THAT(texts[1], testing::StartsWith("Print 3 at 121 80 "));  // half of "3.0" before 130
  }
}

TEST(Statistic, TicksTheCountsOfALyingChart) {
  ChartRequest request = chart_of_type(3);
  request.x0 = 50;
  request.y0 = 10;
  EXPECT_EQ(
      difference(DrawnChart(steps(), {}, request).own_hist.log.of("Line"),
                 {"Line 6 83.33333333333 74 83.33333333333 70 " + kTick,
                  "Line 6 116.66666666667 74 116.66666666667 70 " + kTick, "Line 6 150 74 150 70 " + kTick},
                 1e-9),
      "");
}

TEST(Statistic, DrawsThePlotLimitsWithTheirNames) {
  wafer source = steps();
  source.vLcl = 1;
  source.vUcl = 3;
  const DrawnChart chart(source, {}, {});
  EXPECT_THAT(chart.boxes(6), ElementsAre("Line 6 25 0 25 60 " + kTick, "Line 6 75 0 75 60 " + kTick));
  EXPECT_THAT(chart.texts_of("Print LCL"),
              ElementsAre(testing::StartsWith("Print LCL at 46 90 in 12582912")));
  EXPECT_THAT(chart.texts_of("Print UCL"),
              ElementsAre(testing::StartsWith("Print UCL at 96 90 in 12582912")));
  EXPECT_THAT(drawn_things(chart.plot.lines()), testing::Contains("Line 6 25 0 25 60 " + kTick + " width 4"));
}

TEST(Statistic, EndsALimitAtTheHeightAloneAlsoBelowAnOffset) {
  wafer source = steps();
  source.vUcl = 2;
  ChartRequest request;
  request.top = 7;
  EXPECT_THAT(DrawnChart(source, {}, request).boxes(6),
              ElementsAre("Line 6 0 7 0 60 " + kTick, "Line 6 50 7 50 60 " + kTick));
}

TEST(Statistic, DrawsNoLimitsThatAreEqual) {
  wafer source = steps();
  source.vLcl = source.vUcl = 2;
  EXPECT_THAT(DrawnChart(source, {}, {}).boxes(6), IsEmpty());
  EXPECT_THAT(DrawnChart(source, {}, {}).texts_of("Print LCL"), IsEmpty());
}

TEST(Statistic, DrawsTheControlLimitsBesidesThePlotLimits) {
  const SharedLimits limits(true, 0.8, 3.2);
  wafer source = steps();
  EXPECT_EQ(difference(DrawnChart(source, {}, {}).boxes(6),
                       {"Line 6 20 0 20 60 " + kTick, "Line 6 80 0 80 60 " + kTick}, 1e-9),
            "");
  source.vUcl = 1;
  EXPECT_EQ(difference(DrawnChart(source, {}, {}).boxes(6),
                       {"Line 6 0 0 0 60 " + kTick, "Line 6 25 0 25 60 " + kTick,
                        "Line 6 20 0 20 60 " + kTick, "Line 6 80 0 80 60 " + kTick},
                       1e-9),
            "");
}

TEST(Statistic, DrawsTheControlLimitsAloneOnALyingChart) {
  wafer source = steps();
  source.vLcl = 1;
  source.vUcl = 3;
  EXPECT_THAT(DrawnChart(source, {}, chart_of_type(3)).boxes(6), IsEmpty());
  const SharedLimits limits(true, 1, 3);
  const DrawnChart chart(source, {}, chart_of_type(3));
  EXPECT_THAT(chart.boxes(6), ElementsAre("Line 6 100 45 0 45 8388608", "Line 6 100 15 0 15 8388608"));
  EXPECT_THAT(chart.texts_of("Print LCL"), ElementsAre(testing::StartsWith("Print LCL at 0 39 in 16711680")));
  EXPECT_THAT(chart.texts_of("Print UCL"), ElementsAre(testing::StartsWith("Print UCL at 0 9 in 16711680")));
}

TEST(Statistic, IgnoresControlLimitsThatAreDisowned) {
  const SharedLimits limits(false, 1, 3);
  for (const std::int16_t type : {1, 2, 3, 4})
    EXPECT_THAT(DrawnChart(steps(), {}, chart_of_type(type)).boxes(6), IsEmpty());
}

// ---- Counting ----

TEST(Statistic, PilesUpValuesBeyondTheLimitsInTheEndClasses) {
  wafer source = wafer_with(with_values({-5, 0.5, 1.6, 7, 9}));
  source.StdDev = 0;
  source.setMaximalMinial(4, 0);
  EXPECT_EQ(difference(bars_of(source, 1),
                       {"Line 38 0 0 25 60 " + kGreen, "Line 38 25 30 50 60 " + kGreen,
                        "Line 38 75 0 100 60 " + kGreen},
                       1e-9),
            "");
}

TEST(Statistic, DropsValuesBeyondTheLimitsFromALyingChart) {
  wafer source = wafer_with(with_values({-5, 0, 0.5, 1.6, 4, 7, 9}));
  source.StdDev = 0;
  source.setMaximalMinial(4, 0);
  EXPECT_EQ(difference(bars_of(source, 3),
                       {"Line 38 100 60 0 45 " + kGreen, "Line 38 50 45 0 30 " + kGreen,
                        "Line 38 50 15 0 0 " + kGreen},
                       1e-9),
            "");
}

TEST(Statistic, DrawsNeitherBarsNorTicksOfALyingChartWithoutAValueInside) {
  wafer source = wafer_with(with_values({-5, -6, 7, 9}));
  source.StdDev = 0;
  source.setMaximalMinial(4, 0);
  const DrawnChart chart(source, {}, chart_of_type(4));
  EXPECT_EQ(chart.source.maxHauf, 0);
  EXPECT_THAT(chart.bars(), IsEmpty());
  EXPECT_EQ(chart.own_hist.log.count("Line"), 0);
}

TEST(Statistic, LeavesTheLargestCountAndTheCurvesScaleWithoutADeviation) {
  for (const std::int16_t type : {1, 2, 3, 4}) {
    const DrawnChart chart(steps(), {}, chart_of_type(type));
    EXPECT_EQ(chart.source.maxHauf, 3);
    EXPECT_EQ(chart.source.GaussMax, 1);
    EXPECT_THAT(chart.boxes(6), IsEmpty());
    for (const char* label : {"Print -1s", "Print Mean", "Print 1s"})
      EXPECT_THAT(chart.texts_of(label), IsEmpty());
  }
}

TEST(Statistic, KeepsTheLastCountsForThreeSites) {
  for (const std::int16_t type : {1, 2, 3, 4}) {
    wafer source = wafer_with(with_values({1, 2, 3}));
    source.maxHauf = 5;
    source.GaussMax = 17;
    const DrawnChart fitted(source, {}, chart_of_type(type));
    EXPECT_EQ(fitted.source.maxHauf, 5);
    EXPECT_EQ(fitted.source.GaussMax, 0);
    EXPECT_THAT(fitted.bars(), IsEmpty());
    source.StdDev = 0;
    const DrawnChart plain(source, {}, chart_of_type(type));
    EXPECT_EQ(plain.source.maxHauf, 5);
    EXPECT_EQ(plain.source.GaussMax, 17);
  }
}

TEST(Statistic, StartsALittleBelowEqualValues) {
  // Base -0.001: all sites lie at the upper end, in the last class.
  wafer source = wafer_with(with_values({0, 0, 0, 0}));
  EXPECT_EQ(difference(bars_of(source, 1), {"Line 38 75 0 100 60 " + kGreen}, 1e-9), "");
  ChartCanvases wide;
  wide.place = {0, 0, 1000, 60};
  EXPECT_THAT(DrawnChart(source, wide, {}).texts_of("Print -0.001").size(), 1u);
}

TEST(Statistic, CountsInWholeClassesAlone) {
  // Three classes of 4/3 from 0 to 4: 0, 0.5 and 1 go into the first, 2 into the second, the rest into the
  // third.
  ChartRequest request;
  request.stat_resol = 3.5;
  const double third = 100 / 3.0;
  EXPECT_EQ(difference(DrawnChart(steps(), {}, request).bars(),
                       {line_of("Line", 38, 0, 0, third, 60, QBColor(2)),
                        line_of("Line", 38, third, 40, 2 * third, 60, QBColor(2)),
                        line_of("Line", 38, 2 * third, 0, 100, 60, QBColor(2))},
                       1e-9),
            "");
}

TEST(Statistic, DrawsTheSameChartForEveryFractionOfAClass) {
  for (const std::int16_t type : {1, 2, 3, 4})
    for (ChartRequest whole : {chart_of_type(type), page_of_type(type)}) {
      ChartRequest fraction = whole;
      for (fraction.stat_resol += 0.25; fraction.stat_resol < whole.stat_resol + 1;
           fraction.stat_resol += 0.25) {
        const DrawnChart expected(wafer_with(spiral(30)), {}, whole),
            drawn(wafer_with(spiral(30)), {}, fraction);
        EXPECT_EQ(difference(drawn.plot.lines(), expected.plot.lines()), "") << fraction.stat_resol;
        EXPECT_EQ(difference(drawn.own_hist.lines(), expected.own_hist.lines()), "") << fraction.stat_resol;
      }
    }
}

TEST(Statistic, FailsOnceForMoreSitesThanSixteenBitsCount) {
  wafer source = wafer_with({});
  source.SetNop(40000);
  for (const std::int16_t type : {1, 2, 3, 4}) {
    const DrawnChart chart(source, {}, {type, 48, 48, 480, 480, 4, 48, 96, 96, 0});
    EXPECT_EQ(chart.r.x0, 10);
    EXPECT_EQ(chart.r.hoehe, 100);
    EXPECT_EQ(chart.r.laenge, 10);
    EXPECT_EQ(chart.r.left, 20);
    EXPECT_EQ(chart.source.maxHauf, 0);
    EXPECT_THAT(chart.bars(), IsEmpty());
  }
}

// ---- The curve ----

TEST(Statistic, ScalesTheCurveToTheCountOfTheNormalLawRoundTheMean) {
  wafer source = wafer_with(with_values({0, 1, 1, 2, 2, 2, 2, 3, 3, 4}));
  source.mean = 2;
  source.StdDev = 1;  // as wide as a class: 38.3 % of the sites stand within half of it
  const DrawnChart chart(source, {}, {});
  EXPECT_NEAR(chart.source.GaussMax * 0.4, 10 * 0.3829, 0.03);
  EXPECT_EQ(chart.source.maxHauf, 6);
}

TEST(Statistic, RaisesTheLargestCountToTheCurve) {
  wafer source = wafer_with(with_values({0, 1.2, 2.2, 4}));
  source.mean = 2;
  source.StdDev = 0.25;  // 95.5 % of 4 sites
  EXPECT_EQ(DrawnChart(source, {}, {}).source.maxHauf, 4);
}

TEST(Statistic, MarksOnlySigmasStrictlyInsideTheChart) {
  wafer source = steps();
  source.mean = 2;
  source.StdDev = 1;  // two deviations stand exactly at the ends
  for (const std::int16_t type : {1, 2, 3, 4}) {
    const DrawnChart chart(source, {}, chart_of_type(type));
    Lines marks;
    for (const char* label : {"-3s", "-2s", "-1s", "Mean", "1s", "2s", "3s"})
      if (!chart.texts_of(std::string("Print ") + label).empty()) marks.push_back(label);
    EXPECT_THAT(marks, ElementsAre("-1s", "Mean", "1s"));
  }
}

TEST(Statistic, RunsMarksPastTheBaseAndNamesThemInTheirFonts) {
  wafer source = steps();
  source.mean = 2;
  source.StdDev = 1;
  const auto mark_ends_at = [&](std::int16_t type, const std::string& end) {
    const DrawnChart chart(source, {}, chart_of_type(type));
    EXPECT_THAT(chart.boxes(6), testing::Contains(testing::HasSubstr(end + text_of(QBColor(4))))) << type;
  };
  mark_ends_at(1, " 25 70 ");
  mark_ends_at(2, " 25 0 ");
  mark_ends_at(3, " -5 45 ");
  mark_ends_at(4, " 105 45 ");
  const DrawnChart standing(source, {}, {}), lying(source, {}, chart_of_type(3));
  EXPECT_THAT(standing.texts_of("Print -1s").at(0), testing::HasSubstr("at 46 90 in 128 font MS Sans Serif"));
  EXPECT_THAT(standing.texts_of("Print Mean").at(0),
              testing::HasSubstr("at 68 90 in 128 font MS Sans Serif"));
  EXPECT_THAT(lying.texts_of("Print -1s").at(0), testing::HasSubstr("at 0 39 in 128 font Symbol"));
  EXPECT_THAT(lying.texts_of("Print Mean").at(0), testing::HasSubstr("at 0 24 in 128 font Arial"));
}

TEST(Statistic, NamesMarksInNewFontsWhateverFontTheCanvasHas) {
  wafer source = steps();
  source.mean = 2;
  source.StdDev = 1;
  const FontSpec of_the_host{"Arial", 14, true, true};
  const auto texts_of_chart = [&](ChartRequest request, const std::string& start) {
    RecordingCanvas plot, own_hist;
    RecordingCanvas& hist = request.ShowDisp == 1 ? plot : own_hist;
    hist.Font(of_the_host);
    draw_chart(source, plot, hist, request);
    Lines found;
    for (const std::string& thing : drawn_things(hist.lines()))
      if (thing.starts_with(start)) found.push_back(thing);
    return found;
  };
  for (const std::int16_t type : {3, 4})
    for (const ChartRequest& request : {chart_of_type(type), page_of_type(type)}) {
      EXPECT_THAT(texts_of_chart(request, "Print 1s"), ElementsAre(testing::HasSubstr("font Symbol 8 0 0")));
      EXPECT_THAT(texts_of_chart(request, "Print Mean"), ElementsAre(testing::HasSubstr("font Arial 8 0 0")));
    }
  for (const std::int16_t type : {1, 2}) {
    EXPECT_THAT(texts_of_chart(chart_of_type(type), "Print 1s"),
                ElementsAre(testing::HasSubstr("font MS Sans Serif 8 0 0")));
    EXPECT_THAT(texts_of_chart(page_of_type(type), "Print 1s"),
                ElementsAre(testing::HasSubstr("font Arial 14 1 1")));
    for (const ChartRequest& request : {chart_of_type(type), page_of_type(type)})
      EXPECT_THAT(texts_of_chart(request, "Print Mean"),
                  ElementsAre(testing::HasSubstr("font MS Sans Serif 8 0 0")));
  }
}

TEST(Statistic, BridgesTheStretchAboveTheChartWithOnePiece) {
  wafer source = wafer_with(with_values({0, 1.2, 2.2, 4}));
  source.mean = 2;
  source.StdDev = 0.594;
  // 60 % of 4 sites are 2.36, rounded to 2: the peak stands at 1.177 of the chart. Above 1 the curve is
  // within 0.57 deviations, 8.5 units: from 42 to 58. All seven marks are inside.
  const Lines lines = DrawnChart(source, {}, {}).boxes(6);
  ASSERT_EQ(lines.size(), 7u + 100 - 17);
  const std::string before = lines[7 + 40], bridge = lines[7 + 41];
  EXPECT_THAT(before, testing::StartsWith("Line 6 40 "));
  EXPECT_THAT(bridge, testing::StartsWith("Line 6 58 "));
  double x1 = 0, y1 = 0, x2 = 0, y2 = 0;
  ASSERT_EQ(std::sscanf(bridge.c_str(), "Line 6 %lf %lf %lf %lf", &x1, &y1, &x2, &y2), 4);
  EXPECT_NEAR(y1, y2, 1e-9);  // 41 and 59 stand equally far from the peak
}

/// A canvas on which one line fails.
class CanvasWithAFailingLine : public RecordingCanvas {
 public:
  explicit CanvasWithAFailingLine(int failing) : failing_(failing) {}
  void Line(std::int16_t flags, double x1, double y1, double x2, double y2,
            std::optional<Color> color) override {
    if (failing_-- == 0) throw CanvasError("Line");
    RecordingCanvas::Line(flags, x1, y1, x2, y2, color);
  }

 private:
  int failing_;
};

TEST(Statistic, GoesOnBehindAPieceOfTheCurveThatFails) {
  wafer source = steps();
  source.mean = 2;
  source.StdDev = 1;
  // Three bars with their outlines and three marks come first; then the pieces to 1 and to 2.
  CanvasWithAFailingLine plot(3 * 2 + 3 + 2 - 1);
  RecordingCanvas hist;
  ChartRequest request;
  draw_chart(source, plot, hist, request);
  const auto height = [&](int p) {
    return 12.5 * (1 - source.GaussMax / source.maxHauf * source.Gauss(4.0 / 100 * p));
  };
  const Lines lines = plot.log.of("Line");
  EXPECT_EQ(difference({lines.at(10)}, {line_of("Line", 6, 2, height(2), 3, height(3), QBColor(4))}, 1e-9),
            "");
}

TEST(Statistic, SurvivesNumbersThatAreNone) {
  constexpr double odd[] = {std::numeric_limits<double>::quiet_NaN(),
                            std::numeric_limits<double>::infinity(),
                            1e300,
                            -1e300,
                            2e9,
                            -3,
                            0};
  for (const std::int16_t type : {1, 2, 3, 4})
    for (const double number : odd) {
      ChartRequest request = chart_of_type(type);
      request.stat_resol = number;
      EXPECT_THAT(DrawnChart(steps(), {}, request).bars(), IsEmpty()) << number;
      wafer source = steps();
      source.maximal = number;
      const DrawnChart without_scale(source, {}, chart_of_type(type));
      source.minimal = number;
      const DrawnChart without_ends(source, {}, chart_of_type(type));
    }
}

// ---- The page ----

TEST(Statistic, TurnsTheCallersLengthsToPixelsOnAPage) {
  ChartCanvases printer;
  printer.setup.kind = CanvasKind::printer;
  printer.setup.twips_per_pixel = {10, 20};
  const ChartRequest standing = DrawnChart(steps(), printer, page_of_type(1)).r;
  EXPECT_EQ(standing.x0, 150);
  EXPECT_EQ(standing.y0, 150);
  EXPECT_EQ(standing.breite, 300);
  EXPECT_EQ(standing.hoehe, 90);
  EXPECT_EQ(standing.left, 150);
  EXPECT_EQ(standing.top, 150);
  EXPECT_EQ(standing.laenge, 3);
  const ChartRequest lying = DrawnChart(steps(), printer, page_of_type(3)).r;
  EXPECT_EQ(lying.breite, 90);
  EXPECT_EQ(lying.hoehe, 300);
  EXPECT_EQ(lying.laenge, 3);
  const ScreenOf screen(10, 20);
  printer.setup.kind = CanvasKind::other;
  EXPECT_EQ(DrawnChart(steps(), printer, page_of_type(1)).r.laenge, 3);
  EXPECT_EQ(DrawnChart(steps(), printer, page_of_type(3)).r.laenge, 6);
}

TEST(Statistic, ExchangesWidthAndHeightOfALyingChart) {
  const ChartRequest after = DrawnChart(steps(), {}, chart_of_type(4)).r;
  EXPECT_EQ(after.breite, 60);
  EXPECT_EQ(after.hoehe, 100);
  const ChartRequest standing = DrawnChart(steps(), {}, chart_of_type(2)).r;
  EXPECT_EQ(standing.breite, 100);
  EXPECT_EQ(standing.hoehe, 60);
}

TEST(Statistic, DividesTheCallersLengthsOnceForEachFailure) {
  ChartCanvases printer;
  printer.setup.kind = CanvasKind::printer;
  printer.setup.twips_per_pixel = {10, 20};
  printer.setup.fails_in = "TwipsPerPixelX";  // asked for x0, breite and left
  const double thrice = 4.8 * 4.8 * 4.8;
  const ChartRequest after = DrawnChart(steps(), printer, page_of_type(1)).r;
  EXPECT_DOUBLE_EQ(after.x0, 1500 / thrice);
  EXPECT_DOUBLE_EQ(after.left, 1500 / thrice);
  EXPECT_DOUBLE_EQ(after.y0, 3000 / thrice / 20);
  EXPECT_DOUBLE_EQ(after.hoehe, 1800 / thrice / 20);
  EXPECT_DOUBLE_EQ(after.top, 3000 / thrice / 20);
  EXPECT_EQ(after.breite, 3000);
  EXPECT_EQ(after.laenge, 0);  // 60, 12, 2, 0
}

TEST(Statistic, ExchangesTheLengthsOfALyingChartAgainForAFailure) {
  ChartCanvases canvases;
  canvases.setup.fails_in = "FillColor";
  const ChartRequest lying = DrawnChart(steps(), canvases, chart_of_type(3)).r;
  EXPECT_DOUBLE_EQ(lying.breite, 100 / 4.8);
  EXPECT_DOUBLE_EQ(lying.hoehe, 60 / 4.8);
  EXPECT_EQ(lying.laenge, 1);
  const ChartRequest standing = DrawnChart(steps(), canvases, {}).r;
  EXPECT_EQ(standing.breite, 100);
  EXPECT_DOUBLE_EQ(standing.hoehe, 60 / 4.8);
}

TEST(Statistic, RefreshesOnTheScreenAlone) {
  for (const std::int16_t type : {1, 2, 3, 4}) {
    const DrawnChart bare(steps(), {}, chart_of_type(type));
    EXPECT_EQ(bare.own_hist.log.count("Refresh"), 1);
    EXPECT_EQ(bare.plot.log.count("Refresh"), 2);
    const DrawnChart curved(wafer_with(spiral(20)), {}, chart_of_type(type));
    EXPECT_EQ(curved.plot.log.count("Refresh"), 3);
    const DrawnChart page(wafer_with(spiral(20)), {}, page_of_type(type));
    EXPECT_EQ(page.plot.log.count("Refresh"), 0);
  }
}

// ---- Against a plain computation ----

void expect_every_type_as_worked_out(const wafer& source, const ChartCanvases& canvases = {}) {
  for (const std::int16_t type : {1, 2, 3, 4}) {
    ChartRequest on_screen{type, 29, 19, 200, 120, 12, 4, 3, 2, 0};
    expect_as_worked_out(source, canvases, on_screen);
    expect_as_worked_out(source, canvases, page_of_type(type));
  }
}

TEST(StatisticComputed, EveryKindOfCanvas) {
  const wafer source = wafer_with(spiral(49));
  for (const CanvasKind kind : kKinds)
    for (const SurfaceSize twips : {SurfaceSize{15, 15}, {4.8, 4.8}, {10, 20}}) {
      ChartCanvases canvases;
      canvases.setup.kind = kind;
      canvases.setup.twips_per_pixel = twips;
      canvases.place = {40, 30, 720, 300};
      expect_every_type_as_worked_out(source, canvases);
    }
}

TEST(StatisticComputed, EveryRangeOfValuesWithAndWithoutLimits) {
  const std::vector<std::pair<double, double>> limits = {{45, 40}, {1000, -1000}, {-40, -45}, {300000, 0}};
  for (const auto value : {bowl, falling, mixed, tiny, same, nothing}) {
    wafer source = wafer_with(spiral(30, value));
    expect_every_type_as_worked_out(source);
    for (const auto& [upper, lower] : limits) {
      source.setMaximalMinial(upper, lower);
      expect_every_type_as_worked_out(source);
    }
  }
}

TEST(StatisticComputed, EveryLimit) {
  wafer source = wafer_with(spiral(30));
  for (const bool shown : {false, true}) {
    const SharedLimits limits(shown, 42, 55);
    source.vLcl = 38;
    source.vUcl = shown ? 38 : 60;
    expect_every_type_as_worked_out(source);
    source.vUcl = 52;
    expect_every_type_as_worked_out(source);
  }
}

TEST(StatisticComputed, EachFailingMemberWithTheDivisionsInPlace) {
  for (const char* member : {"FillColor", "DrawWidth", "ForeColor", "CurrentX", "CurrentY", "Print",
                             "Refresh", "TwipsPerPixelX", "TwipsPerPixelY"})
    for (const CanvasKind kind : kKinds) {
      ChartCanvases canvases;
      canvases.setup.kind = kind;
      canvases.setup.fails_in = member;
      expect_every_type_as_worked_out(wafer_with(spiral(30)), canvases);
    }
}

class StatisticOfRandomInput : public RandomInput {};

TEST_F(StatisticOfRandomInput, MatchesThePlainComputation) {
  for (int round = 0; round < 300; ++round) {
    SCOPED_TRACE("round " + std::to_string(round));
    wafer source = any_wafer(random);
    if (source.GetNop() <= 3) continue;
    ChartCanvases canvases;
    canvases.setup.kind = any_setup(random).kind;
    canvases.setup.twips_per_pixel = {between(random, 1.0, 30.0), between(random, 1.0, 30.0)};
    canvases.place = {between(random, 0.0, 90.0), 0, between(random, 50.0, 900.0),
                      between(random, 50.0, 300.0)};
    if (chance(random, 0.3)) source.vUcl = between(random, -3.0, 9.0);
    const SharedLimits limits(chance(random, 0.3), between(random, -3.0, 9.0), between(random, -3.0, 9.0));
    ChartRequest request;
    request.PlotType = static_cast<std::int16_t>(between(random, 1, 4));
    request.ShowDisp = static_cast<std::int16_t>(between(random, 0, 1));
    const double unit = request.ShowDisp == 1 ? 15 : 1;
    request.x0 = unit * between(random, 0.0, 100.0);
    request.y0 = unit * between(random, 0.0, 100.0);
    request.breite = unit * between(random, 30.0, 400.0);
    request.hoehe = unit * between(random, 30.0, 400.0);
    request.left = unit * between(random, 0.0, 100.0);
    request.top = unit * between(random, 0.0, 100.0);
    request.stat_resol = chance(random, 0.5) ? between(random, 1, 40) : between(random, 1.0, 40.0);
    expect_as_worked_out(source, canvases, request);
    if (HasFailure()) return;
  }
}

}  // namespace
}  // namespace mirolen
