#include <gmock/gmock.h>

#include "print_support.h"

namespace mirolen {
namespace {

using testing::Contains;
using testing::HasSubstr;
using testing::Not;
using testing::StartsWith;

constexpr auto kSymbol = [](auto& page, Given& g) {
  page.DrawFlatNotchSymbol(g.left, g.top, g.w.flat_ratio, g.r, g.x, g.y);
};
constexpr auto kBox = [](auto& page, Given& g) {
  page.DrawFlatNotchBox(g.left, g.top, g.w.flat_ratio, g.x, g.y);
};
constexpr auto k2D = [](auto& page, Given& g) {
  page.Print_2DPlot(g.w, g.left, g.top, g.width, g.height, 40, g.caption, 1, g.framed);
};
constexpr auto k2DN = [](auto& page, Given& g) {
  page.Print_2DNPlot(g.w, g.left, g.top, g.width, g.height, g.caption, g.framed);
};
constexpr auto k2DSigma = [](auto& page, Given& g) {
  page.Print_2DSigmaPlot(g.w, g.left, g.top, g.width, g.height, 40, 0.7, g.caption, 1, g.framed);
};
constexpr auto k3D = [](auto& page, Given& g) {
  page.Print_3DPlot(g.w, g.left, g.top, g.width, g.height, 2, 60, 70, 0.5, 30, g.x, g.y, g.caption, g.framed);
};
constexpr auto k3DSigma = [](auto& page, Given& g) {
  page.Print_3DSigmaPlot(g.w, g.left, g.top, g.width, g.height, 60, 70, 0.5, 30, g.x, g.y, 0.7, g.caption,
                         g.framed);
};
constexpr auto k2DB = [](auto& page, Given& g) {
  page.Print_2DBPlot(g.w, g.left, g.top, g.width, g.height, 6, 9, 0.4, 30, g.x, g.y, g.caption, g.framed);
};
constexpr auto k2DCompact = [](auto& page, Given& g) {
  page.Print_2DPlot_THN(g.w, g.left, g.top, g.width, g.height, 40, g.caption, g.text);
};
constexpr auto k2DSigmaCompact = [](auto& page, Given& g) {
  page.Print_2DSigmaPlot_THN(g.w, g.left, g.top, g.width, g.height, 40, g.x, 0.7, g.caption);
};
constexpr auto kGridNumber = [](auto& page, Given& g) {
  page.Print_2DVGridPlot(g.w, g.left, g.top, g.width, g.height, g.caption, g.framed);
};
constexpr auto kGridPos = [](auto& page, Given& g) {
  page.Print_GridPosPlot(g.w, g.left, g.top, g.width, g.height, g.caption);
};
constexpr auto kPercent = [](auto& page, Given& g) {
  page.Print_Contour(g.w, g.left, g.top, g.width, g.height, 7.5, true, "nm", 1, 0, 2, g.caption, g.framed);
};
constexpr auto kAbsolute = [](auto& page, Given& g) {
  page.Print_Contour(g.w, g.left, g.top, g.width, g.height, 3.25, false, "nm", 0, 1, 1, g.caption, g.framed);
};
constexpr auto kPercentCompact = [](auto& page, Given& g) {
  page.Print_Contour_THN(g.w, g.left, g.top, g.width, g.height, 3.25, true, 1, 0, 2, g.caption, g.text,
                         g.framed);
};
constexpr auto kAbsoluteCompact = [](auto& page, Given& g) {
  page.Print_Contour_THN(g.w, g.left, g.top, g.width, g.height, 7.5, false, 0, 0, 0, g.caption, g.text,
                         g.framed);
};
constexpr auto kPercentLegend = [](auto& page, Given& g) {
  page.Print_Contour_Legend(g.w, g.left, g.top, g.r, true, "nm");
};
constexpr auto kAbsoluteLegend = [](auto& page, Given& g) {
  page.Print_Contour_Legend(g.w, g.left, g.top, g.r, false, "nm");
};

/// Calls check(operation) for every plot.
template <class Check>
void for_all_plots(Check check) {
  check(k2D);
  check(k2DN);
  check(k2DSigma);
  check(k3D);
  check(k3DSigma);
  check(k2DB);
  check(k2DCompact);
  check(k2DSigmaCompact);
  check(kGridNumber);
  check(kGridPos);
  check(kPercent);
  check(kAbsolute);
  check(kPercentCompact);
  check(kAbsoluteCompact);
}

Given sample(double flat_ratio = 1, int sites = 6) {
  Given given;
  given.w = sample_wafer(sites, flat_ratio);
  given.x = 30;  // turned by
  given.y = 50;  // seen at
  return given;
}

Lines of(const Outcome& outcome, const std::string& member) {
  Lines lines;
  for (const std::string& line : outcome.lines)
    if (line.starts_with(member + ' ')) lines.push_back(line);
  return lines;
}

// ---- The orientation mark ----

TEST(OrientationSymbol, IsAsWorkedOutTurnedAndInclined) {
  for (const double style : {1.0, 0.98, 0.0, 2.0})
    for (const double rot : {0.0, 30.0, 90.0, -45.0, 180.0, 270.5, 725.0})
      for (const double incl : {90.0, 60.0, 1.0, 0.0, -30.0}) {
        Given given = sample(style);
        given.x = rot;
        given.y = incl;
        expect_as_worked_out_everywhere(given, kSymbol);
        expect_as_worked_out({}, given, kBox);
      }
}

TEST(OrientationSymbol, HasItsMarkAtTheBottom) {
  Given given = sample();
  given.left = 1500;
  given.top = 3000;
  given.r = 1500;
  given.x = 0;
  given.y = 90;
  const PageSetup setup{CanvasKind::printer, {15, 15}, {1, 1}, "", 0};
  const Outcome notch = printed(setup, given, kSymbol);
  EXPECT_EQ(of(notch, "Circle"), Lines{"Circle 100 200 100 - - - 1"});
  EXPECT_EQ(of(notch, "Polygon"), Lines{"Polygon 123,331 100,280 77,331 77,331 123,331"});
  EXPECT_EQ(difference(of(notch, "Line"),
                       {"Line 6 117.36481776669304 298.4807753012208 100 280 255",
                        "Line 6 100 280 82.63518223330696 298.4807753012208 255"},
                       1e-9),
            "");
  given.w.flat_ratio = 0.98;
  const Outcome flat = printed(setup, given, kSymbol);
  EXPECT_EQ(of(flat, "Polygon"), Lines{"Polygon 157,282 43,282 28,302 172,302"});
  EXPECT_EQ(of(flat, "Line").size(), 1u);
}

TEST(OrientationSymbol, GivesItsPlaceAndRadiusBackInPixels) {
  const Given after = printed({}, sample(), kSymbol).after;
  EXPECT_DOUBLE_EQ(after.left, 700 / 2.4);
  EXPECT_DOUBLE_EQ(after.top, 1400 / 4.8);
  EXPECT_DOUBLE_EQ(after.r, 350 / 2.4);
}

TEST(OrientationSymbol, HasLinesTwoWideOnAPrinterAlone) {
  for (const CanvasKind kind : {CanvasKind::printer, CanvasKind::picture_box, CanvasKind::other}) {
    const Lines lines = printed({kind, {2.4, 4.8}, {15, 12}, "", 0}, sample(), kSymbol).lines;
    EXPECT_EQ(std::count(lines.begin(), lines.end(), "DrawWidth=2"), kind == CanvasKind::printer ? 1 : 0);
  }
}

TEST(OrientationSymbol, OnAPictureCountsByThePixelsOfTheScreen) {
  const Given after =
      printed({CanvasKind::picture_box, {2.4, 4.8}, {15, 12}, "", 0}, sample(), kSymbol).after;
  EXPECT_DOUBLE_EQ(after.left, 700 / 15.0);
  EXPECT_DOUBLE_EQ(after.top, 1400 / 12.0);
}

TEST(OrientationBox, TellsEveryStyleButOneAFlat) {
  for (const double ratio : {0.98, 0.9999999, 1.0000001, 0.0, 5.0})
    EXPECT_THAT(printed({}, sample(ratio), kBox).lines, Contains("Print Flat"));
  EXPECT_THAT(printed({}, sample(1), kBox).lines, Contains("Print Notch"));
}

// ---- All plots ----

TEST(PrintedPlots, AreAsWorkedOutOnEveryPage) {
  for_all_plots([](auto plot) {
    expect_as_worked_out_everywhere(sample(), plot);
    expect_as_worked_out_everywhere(sample(0.98), plot);
  });
}

TEST(PrintedPlots, AreAsWorkedOutWideTallAndSmall) {
  for (const auto& [width, height] : {std::pair{9000.0, 3000.0},
                                      {3000.0, 9000.0},
                                      {1250.0, 1250.0},
                                      {4500.0, 4500.0},
                                      {5750.0, 4500.0},
                                      {2.0, 3.0},
                                      {-500.0, 800.0}})
    for (const bool framed : {true, false}) {
      Given given = sample();
      given.width = width;
      given.height = height;
      given.framed = framed;
      for_all_plots([&](auto plot) { expect_as_worked_out({}, given, plot); });
    }
}

TEST(PrintedPlots, AreAsWorkedOutWithAndWithoutSites) {
  for (const int sites : {0, 1, 3, 4, 12})
    for_all_plots([&](auto plot) {
      Given given = sample(1, sites);
      if (sites == 0) given.w.mean = 1;
      expect_as_worked_out({}, given, plot);
    });
}

TEST(PrintedPlots, ShowTheirCaptionInAFrameOnly) {
  Given bare = sample();
  bare.framed = false;
  for_all_plots(
      [](auto plot) { EXPECT_THAT(printed({}, sample(), plot).lines, Contains("Print Thickness")); });
  const auto expect_no_caption = [&](auto plot) {
    EXPECT_THAT(printed({}, bare, plot).lines, Not(Contains("Print Thickness")));
  };
  const auto expect_mark_alone = [&](auto plot) {
    expect_no_caption(plot);
    EXPECT_THAT(printed({}, bare, plot).lines, Contains("Print Notch"));
  };
  expect_mark_alone(k2D);
  expect_mark_alone(k2DN);
  expect_mark_alone(k2DSigma);
  expect_mark_alone(k3D);
  expect_mark_alone(k3DSigma);
  expect_mark_alone(k2DB);
  expect_mark_alone(kPercent);
  expect_no_caption(kGridNumber);
  expect_no_caption(kPercentCompact);
}

TEST(PrintedPlots, AndTheirOrientationBoxStandInTheSamePlaceWithoutAFrame) {
  Given bare = sample();
  bare.framed = false;
  const auto expect_same_place = [&](auto plot) {
    EXPECT_EQ(of(printed({}, bare, plot), "Circle"), of(printed({}, sample(), plot), "Circle"));
  };
  expect_same_place(k2D);
  expect_same_place(k2DSigma);
  expect_same_place(k3D);
  expect_same_place(kAbsolute);
}

TEST(PrintedPlots, AreLimitedByTheLowerOfHeightAndWidthBesideTheBox) {
  const auto disc = [](double width, double height) {
    Given given = sample();
    given.left = given.top = 0;
    given.width = width;
    given.height = height;
    const PageSetup setup{CanvasKind::printer, {1, 1}, {1, 1}, "", 0};
    return of(printed(setup, given, k2DN), "Circle").at(1);
  };
  // Squares of 1800 twips: in the middle across, a line of 184.8 twips below the middle.
  EXPECT_THAT(disc(9000, 2000), StartsWith("Circle 3875 1184"));
  EXPECT_THAT(disc(3250, 6000), StartsWith("Circle 1000 3184"));
}

TEST(PrintedPlots, ChangeOnlyTheWidthAndOnlyBesideTheOrientationBox) {
  const auto width_after = [](auto plot) {
    const Given after = printed({}, sample(), plot).after;
    EXPECT_EQ(after.left, 700);
    EXPECT_EQ(after.top, 1400);
    EXPECT_EQ(after.height, 4500);
    return after.width;
  };
  EXPECT_EQ(width_after(k2D), 4750);
  EXPECT_EQ(width_after(k2DN), 4750);
  EXPECT_EQ(width_after(k2DSigma), 4750);
  EXPECT_EQ(width_after(k3D), 4750);
  EXPECT_EQ(width_after(k3DSigma), 4750);
  EXPECT_EQ(width_after(k2DB), 4750);
}

TEST(PrintedPlots, LeaveTheReportState) {
  for_all_plots([](auto plot) {
    const auto page = std::make_shared<Page>(PageSetup{});
    PrintWafer print;
    print.PrinterObj = page;
    Given given = sample();
    page->Font({"Courier", 30});
    plot(print, given);
    EXPECT_EQ(page->ScaleMode(), twips);
    EXPECT_EQ(page->DrawWidth(), 1);
    EXPECT_EQ(page->FillStyle(), solid_fill);
    EXPECT_EQ(page->ForeColor(), 0u);
    EXPECT_EQ(page->Font(), FontSpec{});
  });
}

TEST(PrintedPlots, FrameTheTwoPlainMapsLastAndTheOthersFirst) {
  const auto frame_is_last = [](auto plot) {
    const Outcome outcome = printed({}, sample(), plot);
    const auto caption = std::find(outcome.lines.begin(), outcome.lines.end(), "Print Thickness");
    const auto mark = std::find(outcome.lines.begin(), outcome.lines.end(), "Print Notch");
    return mark < caption;
  };
  EXPECT_TRUE(frame_is_last(k2D));
  EXPECT_TRUE(frame_is_last(k2DN));
  EXPECT_FALSE(frame_is_last(k2DSigma));
  EXPECT_FALSE(frame_is_last(k3D));
  EXPECT_FALSE(frame_is_last(k3DSigma));
  EXPECT_FALSE(frame_is_last(k2DB));
  EXPECT_FALSE(frame_is_last(kPercent));
}

TEST(PrintedPlots, GoOnWithAnAreaNarrowerThanTheOrientationBox) {
  Given given = sample();
  given.width = 1000;
  const Outcome outcome = printed({}, given, k2D);
  EXPECT_EQ(outcome.error, "");
  EXPECT_EQ(outcome.after.width, -250);
  EXPECT_THAT(outcome.lines, Contains("Print Thickness"));
}

TEST(PrintedPlots, ShowAnOrientationOfHeightZeroFromTheSide) {
  Given given = sample();
  given.y = 0;
  EXPECT_THAT(of(printed({}, given, k3D), "Circle").front(), HasSubstr(" - - - 0"));
}

TEST(PrintedPlots, RoundTheStyleOfASurfaceHalfToEven) {
  for (const double PlotType : {1.0, 1.5, 2.5, 3.0, 3.5, 4.0}) {
    const auto plot = [PlotType](auto& page, Given& g) {
      page.Print_3DPlot(g.w, g.left, g.top, g.width, g.height, PlotType, 60, 70, 0.5, 30, 10, 40, g.caption,
                        g.framed);
    };
    expect_as_worked_out({}, sample(), plot);
  }
  const auto beyond = [](auto& page, Given& g) {
    page.Print_3DPlot(g.w, g.left, g.top, g.width, g.height, 40000, 60, 70, 0.5, 30, 10, 40, g.caption,
                      g.framed);
  };
  EXPECT_EQ(printed({}, sample(), beyond).error, typeid(OverflowError).name());
}

TEST(PrintedPlots, CutTheLineBelowACompactMapToItsWidth) {
  Given given = sample();
  given.text = "4444444444444444444444444444444444444444444444444444444444444444";
  EXPECT_EQ(printed({}, given, k2DCompact).after.text.size(), 40u);  // 0.9 * 4500 twips
  EXPECT_EQ(printed({}, given, kAbsoluteCompact).after.text.size(), 35u);
  given.framed = false;
  EXPECT_EQ(printed({}, given, kAbsoluteCompact).after.text, given.text);
  EXPECT_EQ(of(printed({}, given, kAbsoluteCompact), "Print"), Lines{});
}

// ---- Contours ----

TEST(PrintedContours, ShowTheIntervalAsGiven) {
  EXPECT_THAT(printed({}, sample(), kPercent).lines, Contains(StartsWith("Print Interval: 7.5")));
  EXPECT_THAT(printed({}, sample(), kAbsolute).lines, Contains(StartsWith("Print Interval: 3.2")));
  Given given = sample();
  const auto legend = [&](double interval) {
    given.r = interval;
    expect_as_worked_out({}, given, kAbsoluteLegend);
    return of(printed({}, given, kPercentLegend), "Print").front();
  };
  EXPECT_EQ(legend(5), "Print Interval: 5 %");
  EXPECT_EQ(legend(0), "Print Interval: 0 %");
  EXPECT_EQ(legend(-2), "Print Interval: -2 %");
  EXPECT_THAT(legend(0.1), StartsWith("Print Interval: 0.1"));
  EXPECT_THAT(legend(2e15), StartsWith("Print Interval: 2E+1"));
}

/// The levels of the curves by their number, for that is what a spacing gives.
std::size_t segments(const Given& given, double percent) {
  const auto plot = [percent](auto& page, Given& g) {
    page.Print_Contour(g.w, g.left, g.top, g.width, g.height, percent, true, "nm", 0, 1, 1, g.caption, false);
  };
  return of(printed({}, given, plot), "Line").size();
}

TEST(PrintedContours, TakeTheSpreadForAMeanOfZeroAndTheSizeOfANegativeOne) {
  struct Reference {
    double mean, maxi, mini, hundred;
  };
  for (const Reference& r :
       {Reference{-40, 1, 1, 40}, {0, 25, -25, 50}, {0, -30, -30, 30}, {40, 50, 30, 40}}) {
    Given given = sample();
    given.framed = false;
    given.w.mean = r.mean;
    given.w.maxi = r.maxi;
    given.w.mini = r.mini;
    given.w.range = 12345;  // the plot limits'
    expect_as_worked_out({}, given, kAbsolute);
    const Lines lines = of(printed({}, given, kAbsolute), "Line");
    ASSERT_FALSE(lines.empty());
    EXPECT_EQ(lines.size(), segments(given, 3.25 * 100 / r.hundred)) << r.mean;
  }
}

TEST(PrintedContours, AndTheirLegendNeedNoMean) {
  Given given = sample();
  given.w.mean = 0;
  for (const Outcome& outcome : {printed({}, given, kAbsolute), printed({}, given, kAbsoluteLegend),
                                 printed({}, given, kPercent), printed({}, given, kPercentCompact)})
    EXPECT_EQ(outcome.error, "");
}

TEST(PrintedContours, WriteTheirLegendInTheReportState) {
  const auto page = std::make_shared<Page>(PageSetup{});
  PrintWafer print;
  print.PrinterObj = page;
  Given given = sample();
  page->Font({"Courier", 30});
  page->ScaleMode(pixels);
  kPercentLegend(print, given);
  EXPECT_EQ(page->Font(), FontSpec{});
  EXPECT_EQ(page->ScaleMode(), twips);
  expect_as_worked_out_everywhere(given, kPercentLegend);
}

TEST(PrintedContours, TakeAStandInForAMeanOfZeroInTheCompactForm) {
  struct Extremes {
    double mean, range, maxi, mini;
  };
  Given given = sample();
  for (const Extremes& e : {Extremes{-40, 3, 1, 1},
                            {0, 30, 90, -90},
                            {0, -30, 90, -90},
                            {0, 0, -25, 17},
                            {0, 0, 0, -17},
                            {0, 0, 0, 0}}) {
    given.w.mean = e.mean;
    given.w.range = e.range;
    given.w.maxi = e.maxi;
    given.w.mini = e.mini;
    expect_as_worked_out({}, given, kPercentCompact);
    expect_as_worked_out({}, given, kAbsoluteCompact);
  }
}

TEST(PrintedContours, RefuseARadiusBeyond16Bits) {
  Given given = sample();
  given.width = given.height = 80000;
  for (const Outcome& outcome : {printed({}, given, kPercent), printed({}, given, kPercentCompact)})
    EXPECT_EQ(outcome.error, typeid(OverflowError).name());
}

// ---- Targets that fail ----

TEST(PrintedPlots, PassAFaultOfTheTargetOn) {
  Given given = sample(1, 4);
  expect_as_worked_out_on_failing_pages(given, kSymbol);
  expect_as_worked_out_on_failing_pages(given, kPercentLegend);
  given.width = 3500;
  given.height = 2500;
  for_all_plots([&](auto plot) {
    PageSetup setup;
    const int calls = printed(setup, given, plot).calls;
    const int last_in_turn = 130;
    for (int number = 1; number <= calls && !testing::Test::HasFailure();
         number += number < last_in_turn || number > calls - last_in_turn ? 1 : 1 + calls / 40) {
      setup.fails_at = number;
      expect_as_worked_out(setup, given, plot);
    }
  });
}

// ---- Random pages ----

class RandomPlots : public RandomInput {};

TEST_F(RandomPlots, AreAsWorkedOut) {
  for (int round = 0; round < 25 && !HasFailure(); ++round) {
    SCOPED_TRACE("round " + std::to_string(round));
    Given given = any_given(random);
    given.x = between(random, -400.0, 400.0);
    given.y = between(random, 0.0, 90.0);
    const PageSetup setup = any_page(random);
    for_all_plots([&](auto plot) { expect_as_worked_out(setup, given, plot); });
    expect_as_worked_out(setup, given, kSymbol);
    expect_as_worked_out(setup, given, kAbsoluteLegend);
  }
}

}  // namespace
}  // namespace mirolen
