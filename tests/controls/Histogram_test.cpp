#include <algorithm>

#include "control_support.h"

namespace mirolen {
namespace {

class HistogramTest : public ControlTest<Histogram> {
 protected:
  static int rectangles_of(const Open<Histogram>& histogram) {
    return static_cast<int>(calls_of<recorded::Rectangle>(recording_of(histogram.PLOTA)).size());
  }
  /// The same chart drawn by hand on a control of the same size and settings.
  void expect_chart_by_hand() {
    Open<Histogram> twin(toolkit, form);
    twin.InitProperties();
    twin.resize_to(control.Width, control.Height);
    twin.BackColor(control.BackColor());
    ASSERT_EQ(twin.PLOTA.pixel_size(), control.PLOTA.pixel_size());
    twin.PLOTA.Cls();
    twin.histPic.Cls();
    double x0 = twin.PLOTA.left() - 1, y0 = twin.PLOTA.top() - 1;
    double breite = twin.PLOTA.width(), hoehe = twin.PLOTA.height(), left = 0, top = 0;
    std::int16_t laenge = 4;
    wafer copy = control.wafobj;
    copy.Statistic(static_cast<std::int16_t>(control.PlotType()), twin.PLOTA, twin.histPic, x0, y0, breite,
                   hoehe, control.Resolution(), laenge, left, top, 0);
    EXPECT_GT(rectangles_of(twin), 2);
    EXPECT_EQ(difference(recording_of(control.PLOTA), recording_of(twin.PLOTA)), "");
    EXPECT_EQ(difference(recording_of(control.histPic), recording_of(twin.histPic)), "");
  }
  /// Whether a call draws bars.
  template <class Call>
  bool draws(Call call) {
    int drawn = 0;
    toolkit.on_draw = [&](const PictureBox& box, std::string_view name) {
      drawn += &box == &control.PLOTA && name == "rectangle";
    };
    call();
    toolkit.on_draw = nullptr;
    return drawn > 0;
  }
};

// ---- Settings ----

TEST_F(HistogramTest, StandsOnOneOfFourSides) {
  place();
  for (const int side : {2, 3, 4, 1, 0, 5, -1, 100}) {
    control.PlotType(static_cast<PlotTyEnum>(side));
    EXPECT_EQ(static_cast<int>(control.PlotType()), side >= 1 && side <= 4 ? side : 1) << side;
  }
}

TEST_F(HistogramTest, TheNumberOfClassesIsRoundedHalfToEvenAnd0Becomes10) {
  place();
  const std::pair<double, double> values[] = {
      {0, 10},    {-0.0, 10}, {7, 7},     {2.5, 2},  {3.5, 4},       {-3, -3},        {1.49, 1},
      {0.25, 10}, {0.5, 10},  {-0.5, 10}, {0.51, 1}, {32767, 32767}, {-32768, -32768}};
  for (const auto& [told, kept] : values) {
    control.Resolution(told);
    EXPECT_EQ(control.Resolution(), kept) << told;
  }
}

TEST_F(HistogramTest, AnotherNumberOfClassesThanFitsChangesNothing) {
  place();
  control.Resolution(7);
  form.changes.clear();
  for (const double odd : {32768.0, -40000.0, 1e300, infinity, not_a_number}) {
    EXPECT_NO_THROW(control.Resolution(odd));
    EXPECT_EQ(control.Resolution(), 7) << odd;
  }
  EXPECT_EQ(form.changes, Names{});
}

TEST_F(HistogramTest, ClassesAndSideMakeThePlotStaleTheColoursDoNot) {
  plot_square();
  control.PlotValid = true;
  control.BeamColor(1);
  control.GaussCurveColor(2);
  EXPECT_TRUE(control.PlotValid);
  control.Resolution(5);
  EXPECT_FALSE(control.PlotValid);
  control.PlotValid = true;
  control.PlotType(PlotTyEnum::vbTop);
  EXPECT_FALSE(control.PlotValid);
  EXPECT_EQ(form.changes, (Names{"BeamColor", "GaussCurveColor", "Resolution", "PlotType"}));
}

TEST_F(HistogramTest, BarsAreGreenAndTheCurveIsRedUntilToldOtherwise) {
  EXPECT_EQ(control.BeamColor(), 0x008000u);
  EXPECT_EQ(control.GaussCurveColor(), 0x000080u);
  control.BeamColor(0xABCDEF);
  control.GaussCurveColor(0x123456);
  EXPECT_EQ(control.BeamColor(), 0xABCDEFu);
  EXPECT_EQ(control.GaussCurveColor(), 0x123456u);
  EXPECT_EQ(control.wafobj.ColS2, 0xABCDEF);
  EXPECT_EQ(control.wafobj.ColS1, 0x123456);
}

TEST_F(HistogramTest, ANewOneHas10ClassesAtTheBottom) {
  control.InitProperties();
  EXPECT_EQ(control.Resolution(), 10);
  EXPECT_EQ(control.PlotType(), PlotTyEnum::vbbottom);
  EXPECT_EQ(form.changes,
            (Names{"TestDiameter", "WaferDiameter", "WaferStyle", "Resolution", "HideLegend", "PlotType"}));
}

TEST_F(HistogramTest, ItsLabelsAreInTheSymbolFont) {
  for (int i = 0; i < 2; ++i) EXPECT_EQ(control.lblX(i).Font.get().Name, "Symbol");
}

TEST_F(HistogramTest, TheBorderIsThatOfTheFrame) {
  place();
  control.Borderstyle(0);
  EXPECT_FALSE(control.frmhist.Border);
  control.Borderstyle(1);
  EXPECT_TRUE(control.frmhist.Border);
}

// ---- Limits ----

TEST_F(HistogramTest, LimitsAreTakenInAnyOrderAndLeaveTheScale) {
  place();
  control.load(square_of_sites());
  for (const auto& [low, high] : {std::pair{10.0, 90.0}, {90.0, 10.0}, {50.0, 50.0}, {10.0, 90.0}}) {
    EXPECT_TRUE(control.SetPlotLimit(low, high));
    EXPECT_TRUE(control.PlotLimitSet);
    EXPECT_EQ(control.wafobj.vLcl, low);
    EXPECT_EQ(control.wafobj.vUcl, high);
    EXPECT_EQ(control.wafobj.maximal, 100);
    EXPECT_EQ(control.wafobj.minimal, 0);
  }
  EXPECT_TRUE(control.SetPlotLimit(10, 90)) << "the same again";
  control.ReleasePlotLimit();
  EXPECT_FALSE(control.PlotLimitSet);
  EXPECT_EQ(control.wafobj.vLcl, 0);
  EXPECT_EQ(control.wafobj.vUcl, 0);
}

TEST_F(HistogramTest, NewDataBringTheirOwnScaleWhateverTheLimits) {
  place();
  control.SetPlotLimit(10, 90);
  for (const double height : {100.0, 5.0}) {
    SiteColumns sites = square_of_sites();
    for (double& z : sites.z) z *= height / 100;
    control.load(sites);
    EXPECT_EQ(control.wafobj.maximal, height);
    EXPECT_EQ(control.wafobj.minimal, 0);
    EXPECT_EQ(control.wafobj.vUcl, 90);
  }
}

TEST_F(HistogramTest, LimitsBeforeTheFirstDataLeaveTheirScale) {
  place();
  ASSERT_TRUE(control.SetPlotLimit(10, 90));
  ASSERT_EQ(control.load(square_of_sites()), 0);
  EXPECT_EQ(control.wafobj.minimal, 0);
  EXPECT_EQ(control.wafobj.maximal, 100);
}

TEST_F(HistogramTest, LimitsAreDrawnAtOnceOnlyWhenThereIsAPlot) {
  place();
  control.load(square_of_sites());
  EXPECT_FALSE(draws([&] { control.SetPlotLimit(10, 90); }));
  EXPECT_FALSE(draws([&] { control.ReleasePlotLimit(); }));
  control.Plot();
  const Recording without = recording_of(control.PLOTA);
  EXPECT_TRUE(draws([&] { control.SetPlotLimit(10, 90); }));
  EXPECT_NE(difference(recording_of(control.PLOTA), without), "");
  EXPECT_TRUE(draws([&] { control.ReleasePlotLimit(); }));
  EXPECT_EQ(difference(recording_of(control.PLOTA), without), "");
}

TEST_F(HistogramTest, ControlLimitsShowInTheNextPlotOfEveryHistogram) {
  plot_square();
  Open<Histogram> other(toolkit, form);
  other.InitProperties();
  other.resize_to(6000, 4000);
  const Recording without = recording_of(control.PLOTA);
  other.ShowControlLimit(20, 80);
  EXPECT_EQ(difference(recording_of(control.PLOTA), without), "") << "nothing is drawn before the plot";
  control.Plot();
  EXPECT_NE(difference(recording_of(control.PLOTA), without), "");
  const Recording with = recording_of(control.PLOTA);
  control.ResetControlLimit();
  EXPECT_EQ(difference(recording_of(control.PLOTA), with), "");
  control.Plot();
  EXPECT_EQ(difference(recording_of(control.PLOTA), without), "");
}

TEST_F(HistogramTest, AnotherControlClearsTheControlLimitsOfAll) {
  plot_square();
  const Recording without = recording_of(control.PLOTA);
  control.ShowControlLimit(20, 80);
  const Open<Histogram> other(toolkit, form);
  control.Plot();
  EXPECT_EQ(difference(recording_of(control.PLOTA), without), "");
}

// ---- Redraw ----

TEST_F(HistogramTest, IsTheChartOfItsWafer) {
  plot_square();
  expect_chart_by_hand();
}

TEST_F(HistogramTest, FollowsEverySetting) {
  place();
  control.load(square_of_sites());
  control.BeamColor(0x112233);
  control.GaussCurveColor(0x332211);
  for (const int side : {1, 2, 3, 4}) {
    control.Resolution(3 + side);
    control.PlotType(static_cast<PlotTyEnum>(side));
    control.Plot();
    expect_chart_by_hand();
  }
}

TEST_F(HistogramTest, EveryPlotDraws) {
  plot_square();
  EXPECT_TRUE(draws([&] { EXPECT_EQ(control.Plot(), 0); }));
  EXPECT_TRUE(draws([&] { EXPECT_EQ(control.Plot(), 0); }));
}

TEST_F(HistogramTest, WithoutDataThereIsNoPlot) {
  place();
  EXPECT_FALSE(draws([&] { EXPECT_EQ(control.Plot(), 1); }));
  EXPECT_FALSE(control.PlotShown);
}

TEST_F(HistogramTest, AnOddNumberOfClassesLeavesAUsableControl) {
  place();
  control.Resolution(-3);
  control.load(square_of_sites());
  EXPECT_EQ(control.Plot(), 0);
  EXPECT_EQ(control.Resolution(), -3);
  EXPECT_EQ(control.MousePointer(), 0);
}

TEST_F(HistogramTest, TheMousePointerIsAnHourglassWhileDrawing) {
  place();
  control.load(square_of_sites());
  int drawn = 0, wrong = 0;
  toolkit.on_draw = [&](const PictureBox&, std::string_view call) {
    if (call != "rectangle") return;
    ++drawn;
    wrong += control.MousePointer() != 11;
  };
  control.Plot();
  toolkit.on_draw = nullptr;
  EXPECT_GT(drawn, 0);
  EXPECT_EQ(wrong, 0);
  EXPECT_EQ(control.MousePointer(), 0);
}

TEST_F(HistogramTest, ClearWipesTheChartAndItsTexts) {
  plot_square();
  control.clear();
  EXPECT_EQ(rectangles_of(control), 0);
  EXPECT_TRUE(calls_of<recorded::Text>(recording_of(control.histPic)).empty());
  EXPECT_FALSE(control.PlotShown);
}

// ---- Size ----

TEST_F(HistogramTest, ASideBelow2000Becomes2100AndNothingElseIsDone) {
  place();
  control.load(square_of_sites());
  control.Plot();
  const double width = control.frmhist.Width, height = control.frmhist.Height;
  EXPECT_FALSE(draws([&] { control.resize_to(1999, 5000); }));
  EXPECT_EQ(control.Width.get(), 2100);
  EXPECT_EQ(control.Height.get(), 5000);
  EXPECT_FALSE(draws([&] { control.resize_to(5000, 0); }));
  EXPECT_EQ(control.Width.get(), 5000);
  EXPECT_EQ(control.Height.get(), 2100);
  control.resize_to(-1, -1);
  EXPECT_EQ(control.Width.get(), 2100);
  EXPECT_EQ(control.Height.get(), 2100);
  EXPECT_EQ(control.frmhist.Width.get(), width);
  EXPECT_EQ(control.frmhist.Height.get(), height);
}

class HistogramSizes : public HistogramTest, public testing::WithParamInterface<std::pair<double, double>> {
 protected:
  void expect_frame(double width, double height) const {
    EXPECT_EQ(control.Command1.Top.get(), height - control.Command1.Height);
    EXPECT_EQ(control.Command1.Left.get(), width - control.Command1.Width);
    EXPECT_EQ(control.frmhist.Width.get(), width);
    EXPECT_EQ(control.frmhist.Height.get(), control.Command1.Visible ? control.Command1.Top - 120 : height);
    EXPECT_EQ(control.histPic.Left.get(), control.frmhist.Left + 120);
    EXPECT_EQ(control.histPic.Top.get(), control.frmhist.Top + 240);
    EXPECT_EQ(control.histPic.Width.get(), width - 240);
    EXPECT_EQ(control.histPic.Height.get(), control.frmhist.Height - 360);
  }
  void expect_lines() const {
    const double width = control.PLOTA.width(), height = control.PLOTA.height();
    EXPECT_EQ(control.Line1(1).X2.get(), width);
    EXPECT_EQ(control.Line1(0).Y2.get(), height);
    EXPECT_EQ(control.Line1(2).X1.get(), width - 1);
    EXPECT_EQ(control.Line1(2).X2.get(), width - 1);
    EXPECT_EQ(control.Line1(2).Y2.get(), height);
    EXPECT_EQ(control.Line1(3).Y1.get(), height - 1);
    EXPECT_EQ(control.Line1(3).X2.get(), width);
    EXPECT_EQ(control.Line1(3).Y2.get(), height - 1);
    const double x = control.PLOTA.left(), y = height + control.PLOTA.top() - 1;
    const auto ends = [](const LineShape& line) {
      return std::vector<double>{line.X1, line.Y1, line.X2, line.Y2};
    };
    EXPECT_EQ(ends(control.Line2), (std::vector{x, y, x - 7, y}));
    EXPECT_EQ(ends(control.Line3), (std::vector{x, y, x, y + 7}));
  }
};

TEST_P(HistogramSizes, AreWorkedOutStepByStep) {
  const auto [width, height] = GetParam();
  place();
  for (const bool hidden : {false, true}) {
    control.HideLegend(hidden);
    EXPECT_EQ(control.Command1.Visible.get(), !hidden);
    const double left = control.PLOTA.left(), top = control.PLOTA.top();
    control.resize_to(width, height);
    expect_frame(width, height);
    EXPECT_DOUBLE_EQ(control.PLOTA.left(), left);
    EXPECT_DOUBLE_EQ(control.PLOTA.top(), top);
    EXPECT_NEAR(control.PLOTA.width(), control.histPic.ScaleWidth() - left - 40, 1e-9);
    EXPECT_NEAR(control.PLOTA.height(), control.histPic.ScaleHeight() - top - 40, 1e-9);
    expect_lines();
  }
}

TEST_P(HistogramSizes, AToldPlaceOfTheChartWins) {
  const auto [width, height] = GetParam();
  place();
  control.resize_to(width, height);
  const double left = control.PLOTA.left();
  control.SetChartDim(600, 900);
  expect_frame(width, height);
  EXPECT_DOUBLE_EQ(control.PLOTA.left(), left);
  EXPECT_NEAR(control.PLOTA.top(), 600 / 15.0 - control.histPic.Top / 15, 1e-9);
  EXPECT_NEAR(control.PLOTA.width(), control.histPic.ScaleWidth() - left - 20, 1e-9);
  EXPECT_NEAR(control.PLOTA.height(), 900 / 15.0, 1e-9);
  expect_lines();
  control.SetChartDim(0, 900);
  EXPECT_NEAR(control.PLOTA.width(), control.histPic.ScaleWidth() - left - 40, 1e-9);
}

INSTANTIATE_TEST_SUITE_P(Histogram, HistogramSizes,
                         testing::Values(std::pair{2000.0, 2000.0}, std::pair{6000.0, 4000.0},
                                         std::pair{12345.0, 3000.0}, std::pair{2500.0, 9000.0}));

TEST_F(HistogramTest, EveryChangeOfSizeOfAShownPlotDraws) {
  place();
  control.load(square_of_sites());
  EXPECT_FALSE(draws([&] { control.resize_to(5000, 5000); }));
  control.Plot();
  EXPECT_TRUE(draws([&] { control.resize_to(7000, 5000); }));
  expect_chart_by_hand();
  EXPECT_TRUE(draws([&] { control.resize_to(7000, 5000); }));
  EXPECT_TRUE(draws([&] { control.HideLegend(true); }));
  EXPECT_TRUE(draws([&] { control.SetChartDim(600, 900); }));
  control.clear();
  EXPECT_FALSE(draws([&] { control.resize_to(5000, 5000); }));
}

TEST_F(HistogramTest, AChangeOfSizeSetsTheScaleModeOfTheForm) {
  form.scale_mode = 3;
  control.resize_to(6000, 4000);
  EXPECT_EQ(form.scale_mode, 1);
}

TEST_F(HistogramTest, NeitherOddLimitsNorOddPlacesThrow) {
  plot_square();
  for (const double odd : {not_a_number, infinity, -infinity, 1e308, -1e308, 5e-324}) {
    EXPECT_NO_THROW(control.SetPlotLimit(odd, 1));
    EXPECT_NO_THROW(control.SetPlotLimit(0, odd));
    EXPECT_NO_THROW(control.ShowControlLimit(odd, odd));
    EXPECT_NO_THROW(control.SetChartDim(odd, 900));
    EXPECT_NO_THROW(control.SetChartDim(600, odd));
    EXPECT_EQ(control.Plot(), 0);
    EXPECT_EQ(control.MousePointer(), 0);
  }
}

}  // namespace
}  // namespace mirolen
