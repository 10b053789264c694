#include <gmock/gmock.h>

#include "print_support.h"

namespace mirolen {
namespace {

using testing::Contains;
using testing::HasSubstr;
using testing::Not;

/// A cut of a cross-section.
struct Cut {
  int angle = 30, PlotType = 1;
  double rx = 5, ry = -8, x1 = -60, y1 = 20, x2 = 50, y2 = -10;
  bool marks = true;
};

auto cross_section(const Cut& c) {
  return [c](auto& page, Given& g) {
    page.Print_1DPlot(g.w, static_cast<std::int16_t>(c.angle), static_cast<std::int16_t>(c.PlotType), c.rx,
                      c.ry, c.x1, c.y1, c.x2, c.y2, c.marks, g.caption, g.left, g.top, g.width, g.height,
                      g.framed);
  };
}

auto cut_line(const Cut& c) {
  return [c](auto& page, Given& g) {
    page.DrawCutLine(g.w, static_cast<std::int16_t>(c.angle), static_cast<std::int16_t>(c.PlotType), c.rx,
                     c.ry, c.x1, c.y1, c.x2, c.y2, g.left, g.top);
  };
}

auto histogram(int PlotType, double classes) {
  return [=](auto& page, Given& g) {
    page.Print_Histo(static_cast<std::int16_t>(PlotType), g.w, g.left, g.top, g.width, g.height, classes, g.r,
                     g.caption, g.framed);
  };
}

auto compact_histogram(int PlotType, double classes) {
  return [=](auto& page, Given& g) {
    page.Print_Histo_THN(static_cast<std::int16_t>(PlotType), g.w, g.left, g.top, g.width, g.height, classes,
                         g.r, g.caption);
  };
}

Given sample(int sites = 12) {
  Given given;
  given.w = sample_wafer(sites);
  given.w.OverwriteGridValue(1, 10, 0, 44.5);  // on a horizontal cut
  given.w.OverwriteGridValue(2, 0, 30, 43);    // on a vertical one
  given.w.Low = 35;
  return given;
}

Lines of(const Outcome& outcome, const std::string& member) {
  Lines lines;
  for (const std::string& line : outcome.lines)
    if (line.starts_with(member + ' ')) lines.push_back(line);
  return lines;
}

// ---- Cross-section ----

TEST(PrintedCrossSection, IsAsWorkedOutAtEveryAngle) {
  for (const int angle : {0, 30, 45, 89, 90, 91, 135, 180, 200, 270, 359, 360})
    for (const bool marks : {true, false}) {
      Cut cut;
      cut.angle = angle;
      cut.rx = cut.ry = 0;
      cut.marks = marks;
      expect_as_worked_out_everywhere(sample(), cross_section(cut));
      cut.rx = 20;
      cut.ry = -30;
      expect_as_worked_out({}, sample(), cross_section(cut));
    }
}

TEST(PrintedCrossSection, IsAsWorkedOutAlongALine) {
  for (const int PlotType : {2, 0, 3})
    for (const Cut& cut : {Cut{30, PlotType},
                           {30, PlotType, 5, 5, -50, 0, 50, 0},
                           {0, PlotType, 0, 0, 0, -20, 0, 40},
                           {0, PlotType, 0, 0, 40, 20, -10, -30}})
      expect_as_worked_out_everywhere(sample(), cross_section(cut));
}

TEST(PrintedCrossSection, IsAsWorkedOutWithLimitsAndFewSites) {
  for (const int sites : {2, 3, 4, 9})
    for (const bool limits : {true, false}) {
      Given given = sample(sites);
      if (limits) given.w.setMaximalMinial(45, 42);
      expect_as_worked_out_everywhere(given, cross_section({}));
    }
  Given same = sample();
  same.w.setMaximalMinial(-7, -7);
  expect_as_worked_out({}, same, cross_section({}));
}

TEST(PrintedCrossSection, TellsItsAngleOnlyWhenCutByOne) {
  Cut cut;
  EXPECT_THAT(printed({}, sample(), cross_section(cut)).lines, Contains("Print Angle: 30 °"));
  cut.PlotType = 2;
  EXPECT_THAT(of(printed({}, sample(), cross_section(cut)), "Print"), Not(Contains(HasSubstr("Angle"))));
}

TEST(PrintedCrossSection, LabelsItsValuesFromLowUpward) {
  Given given = sample();
  given.w.maximal = 75;
  given.w.Low = 35;
  given.w.mini = given.w.minimal = 1;
  given.framed = false;
  const Lines texts = of(printed({}, given, cross_section({})), "Print");
  EXPECT_THAT(Lines(texts.begin() + 2, texts.begin() + 7),
              testing::ElementsAre("Print 75.0", "Print 65.0", "Print 55.0", "Print 45.0", "Print 35.0"));
}

TEST(PrintedCrossSection, LabelsTheCutFromEndToEnd) {
  Cut cut{0, 1, 0, 0};
  Given given = sample();
  given.framed = false;
  const Lines texts = of(printed({}, given, cross_section(cut)), "Print");
  EXPECT_THAT(
      Lines(texts.begin() + 7, texts.begin() + 17),
      testing::UnorderedElementsAre("Print -95.00", "Print 0.00", "Print -47.50", "Print 0.00", "Print 0.00",
                                    "Print 0.00", "Print 47.50", "Print 0.00", "Print 95.00", "Print 0.00"));
}

TEST(PrintedCrossSection, HasItsCurveWiderThanItsFrame) {
  for (const CanvasKind kind : {CanvasKind::printer, CanvasKind::picture_box, CanvasKind::other}) {
    const bool printer = kind == CanvasKind::printer;
    const Lines lines = printed({kind, {2.4, 4.8}, {15, 12}, "", 0}, sample(), cross_section({})).lines;
    std::string width;
    bool grid = false, curve = false;
    for (const std::string& line : lines) {
      if (line.starts_with("DrawWidth=")) width = line.substr(10);
      if (line.starts_with("Line ") && line.ends_with(" 8388608")) {
        EXPECT_EQ(width, printer ? "2" : "1");
        grid = true;
      }
      if (line.starts_with("Line ") && line.ends_with(" 128")) {
        EXPECT_EQ(width, printer ? "4" : "2");
        curve = true;
      }
    }
    EXPECT_TRUE(grid && curve);
  }
}

TEST(PrintedCrossSection, GetsNarrowBesideAWideLabel) {
  Given given = sample();
  given.w.maximal = 0.1234567;
  given.w.Low = 0;
  for (const double width : {3000.0, 2000.0, 500.0, -1000.0}) {
    given.width = width;
    expect_as_worked_out({}, given, cross_section({}));
  }
}

TEST(PrintedCrossSection, ThatMissesTheWaferIsRefused) {
  Cut cut{45, 1, 500, 0};
  expect_as_worked_out({}, sample(), cross_section(cut));
  EXPECT_NE(printed({}, sample(), cross_section(cut)).error, "");
}

TEST(PrintedCrossSection, ReachesThePageAsFarAsItsTargetGoes) {
  Given given = sample(4);
  given.framed = true;
  expect_as_worked_out_on_failing_pages(given, cross_section({0, 1, 0, 0}));
  expect_as_worked_out_on_failing_pages(given, cross_section({30, 2}));
}

// ---- The cut on the small wafer ----

TEST(CutLine, CrossesTheCentreOfItsSquare) {
  Given given = sample();
  given.left = 1000;
  given.top = 2000;
  const PageSetup setup;
  // 27 units of 4 mm each way on 350 twips: 95 mm are 307.87 twips.
  EXPECT_EQ(difference(printed(setup, given, cut_line({0, 2, 0, 0, -50, 0, 50, 0})).lines,
                       {"Line 6 1042.1296296296296 2350 1657.8703703703704 2350 32768"}, 1e-9),
            "");
  const Lines up = printed(setup, given, cut_line({0, 2, 0, 0, 0, -50, 0, 50})).lines;
  EXPECT_EQ(difference(up, {"Line 6 1350 2657.8703703703704 1350 2042.1296296296296 32768"}, 1e-9), "");
}

TEST(CutLine, IsAsWorkedOutForEveryDiameter) {
  for (const double diameter : {0.0, 1e-300, 0.5, 25.0, 200.0, 450.0, 1e6}) {
    Given given = sample();
    given.w.WafDiam = diameter;
    for (const int angle : {0, 45, 90, 180, 360}) expect_as_worked_out({}, given, cut_line({angle, 1}));
    expect_as_worked_out({}, given, cut_line({0, 2}));
  }
}

// ---- Histogram ----

TEST(PrintedHistogram, IsAsWorkedOutInEveryOrientation) {
  for (const int PlotType : {1, 2, 3, 4})
    for (const double classes : {1.0, 7.0}) {
      expect_as_worked_out_everywhere(sample(), histogram(PlotType, classes));
      expect_as_worked_out_everywhere(sample(), compact_histogram(PlotType, classes));
    }
}

TEST(PrintedHistogram, IsAsWorkedOutWithFewSitesAndLimits) {
  for (const int sites : {2, 3, 4, 20}) {
    Given given = sample(sites);
    expect_as_worked_out({}, given, histogram(1, 6));
    given.w.vLcl = 41;
    given.w.vUcl = 46;
    given.w.setMaximalMinial(46, 41);
    expect_as_worked_out({}, given, histogram(1, 6));
    expect_as_worked_out({}, given, compact_histogram(4, 6));
  }
}

TEST(PrintedHistogram, StandsInABox) {
  Given given = sample();
  given.width = 6006.25;  // a margin of 480.5 goes to the even 480
  EXPECT_EQ(of(printed({}, given, histogram(1, 5)), "Line 22").front(),
            "Line 22 1180 2000 6226.25 5180 8388608");
  EXPECT_EQ(of(printed({}, given, compact_histogram(1, 5)), "Line 22").front(),
            "Line 22 1180 1400 6226.25 5900 8388608");
}

TEST(PrintedHistogram, ReadsNeitherTheFurtherValueNorACompactCaption) {
  Given given = sample(), other = sample();
  other.r = -12345;
  EXPECT_EQ(printed({}, given, histogram(2, 5)).lines, printed({}, other, histogram(2, 5)).lines);
  other.caption = "another";
  EXPECT_EQ(printed({}, given, compact_histogram(2, 5)).lines,
            printed({}, other, compact_histogram(2, 5)).lines);
}

TEST(PrintedHistogram, GoesOnAfterEveryFault) {
  Given given = sample(5);
  given.width = 700;
  given.height = 1500;
  for (const int PlotType : {1, 3}) {
    expect_as_worked_out_on_failing_pages(given, histogram(PlotType, 4));
    expect_as_worked_out_on_failing_pages(given, compact_histogram(PlotType, 4));
  }
  PageSetup setup;
  for (setup.fails_at = 1; setup.fails_at < 60; ++setup.fails_at)
    EXPECT_EQ(printed(setup, given, histogram(1, 4)).error, "");
}

TEST(PrintedHistogram, GoesOnWithoutAMarginWhereItsWidthIsBeyond16Bits) {
  Given given = sample();
  given.width = 1e6;
  const PageSetup setup{CanvasKind::printer, {240, 480}, {15, 12}, "", 0};
  expect_as_worked_out(setup, given, histogram(1, 5));
  const Outcome outcome = printed(setup, given, histogram(1, 5));
  EXPECT_EQ(outcome.error, "");
  EXPECT_EQ(of(outcome, "Line 22").front(), "Line 22 700 2000 1000700 5180 8388608");
}

TEST(PrintedHistogram, LeavesTheReportState) {
  const auto page = std::make_shared<Page>(PageSetup{});
  PrintWafer print;
  print.PrinterObj = page;
  Given given = sample();
  histogram(3, 5)(print, given);
  EXPECT_EQ(page->ScaleMode(), twips);
  EXPECT_EQ(page->Font(), FontSpec{});
  EXPECT_EQ(page->ForeColor(), 0u);
}

// ---- Random pages ----

class RandomCharts : public RandomInput {};

TEST_F(RandomCharts, AreAsWorkedOut) {
  for (int round = 0; round < 80 && !HasFailure(); ++round) {
    SCOPED_TRACE("round " + std::to_string(round));
    const Given given = any_given(random);
    const PageSetup setup = any_page(random);
    const double far = given.w.test_diam / 2;
    Cut cut{between(random, 0, 360), between(random, 1, 2)};
    for (double Cut::*member : {&Cut::rx, &Cut::ry, &Cut::x1, &Cut::y1, &Cut::x2, &Cut::y2})
      cut.*member = between(random, -far, far);
    cut.marks = chance(random, 0.5);
    expect_as_worked_out(setup, given, cross_section(cut));
    const int orientation = between(random, 1, 4), classes = between(random, 1, 20);
    expect_as_worked_out(setup, given, histogram(orientation, classes));
    expect_as_worked_out(setup, given, compact_histogram(orientation, classes));
  }
}

}  // namespace
}  // namespace mirolen
