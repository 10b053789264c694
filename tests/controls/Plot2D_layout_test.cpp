#include <algorithm>
#include <cmath>

#include "control_support.h"

namespace mirolen {
namespace {

struct Rectangle {
  double left, top, width, height;
  friend bool operator==(const Rectangle&, const Rectangle&) = default;
};

Rectangle place_of(const Widget& widget) { return {widget.Left, widget.Top, widget.Width, widget.Height}; }

class Plot2DLayout : public Plot2DTest {
 protected:
  void SetUp() override {
    place();
    narrow_labels();
  }

  /// Everything from the side of the plot on.
  void expect_plot_side(double side) const {
    EXPECT_DOUBLE_EQ(control.Frplot.Width, 0.97 * side);
    EXPECT_EQ(control.Frplot.Height.get(), side);
    EXPECT_DOUBLE_EQ(control.PLOTA.Width, control.Frplot.Width - 2 * control.PLOTA.Left);
    EXPECT_DOUBLE_EQ(control.PLOTA.Height, control.Frplot.Height - control.PLOTA.Top - control.PLOTA.Left);
    EXPECT_EQ(place_of(control.RePlot), place_of(control.PLOTA));
  }
  void expect_legend_width(double m) const {
    EXPECT_EQ(control.legende.Width.get(), m);
    EXPECT_EQ(control.frleg.Width.get(), m + 240);
    EXPECT_EQ(control.Frame1.Width.get(), m + 450);
    EXPECT_EQ(control.frmove.Width.get(), m + 450);
    EXPECT_EQ(control.Command1.Width.get(), m + 240);
    EXPECT_EQ(control.FNLabel.Width.get(), m + 240);
  }
  void expect_size(double width, double height) const {
    EXPECT_EQ(control.Width.get(), width);
    EXPECT_EQ(control.Height.get(), height);
  }
};

TEST_F(Plot2DLayout, SetsTheScaleModeOfTheFormEachTime) {
  form.scale_mode = 3;
  control.resize_to(6000, 4000);
  EXPECT_EQ(form.scale_mode, 1);
  form.scale_mode = 6;
  control.HideLegend(true);
  EXPECT_EQ(form.scale_mode, 1);
}

TEST_F(Plot2DLayout, AFormWithoutScaleModeEndsIt) {
  FormWithoutScaleMode bare;
  OpenPlot2D on_bare(toolkit, bare);
  on_bare.InitProperties();
  const Rectangle before = place_of(on_bare.Frplot);
  const std::string caption = on_bare.ScaleValue(1).Caption;
  on_bare.load(square_of_sites());
  forget_notices();
  EXPECT_EQ(on_bare.Plot(), 0);
  on_bare.resize_to(6000, 4000);
  EXPECT_TRUE(on_bare.PlotShown);
  EXPECT_FALSE(on_bare.PlotValid);
  EXPECT_EQ(toolkit.redraws, 0);
  EXPECT_EQ(place_of(on_bare.Frplot), before);
  EXPECT_EQ(on_bare.ScaleValue(1).Caption.get(), caption);
  EXPECT_EQ(on_bare.MousePointer(), 0);
}

TEST_F(Plot2DLayout, PlacesLegendAndPlotSideBySide) {
  control.resize_to(6000, 4000);
  expect_size(6000, 4000);
  expect_legend_width(1695);
  EXPECT_EQ(control.frmove.Left.get(), 6000 - 2145);
  expect_plot_side(3855);
  EXPECT_DOUBLE_EQ(control.Frplot.Width, 3739.35);
}

TEST_F(Plot2DLayout, TheHeightLimitsAWideControl) {
  control.resize_to(12000, 4000);
  EXPECT_EQ(control.frmove.Left.get(), 12000 - 2145);
  expect_plot_side(4000);
}

TEST_F(Plot2DLayout, WithALegendTheLeastSizeIs4500By3180) {
  control.resize_to(1000, 1000);
  expect_size(4500, 3180);
  EXPECT_EQ(control.frmove.Left.get(), 4500 - 2145);
  expect_plot_side(4500 - 2145);
}

TEST_F(Plot2DLayout, EachLeastSizeIsRaisedByItself) {
  control.resize_to(4499, 5000);
  expect_size(4500, 5000);
  expect_plot_side(2355);
  control.resize_to(6000, 3179);
  expect_size(6000, 3180);
  expect_plot_side(3180);
  control.resize_to(4500, 3180);
  expect_size(4500, 3180);
  control.resize_to(0, 0);
  expect_size(4500, 3180);
  control.resize_to(-5000, -5000);
  expect_size(4500, 3180);
}

TEST_F(Plot2DLayout, RaisingItsSizeRendersOnce) {
  control.load(square_of_sites());
  control.resize_to(100, 100);
  EXPECT_EQ(toolkit.redraws, 1);
}

TEST_F(Plot2DLayout, AControlOfAnySizeIsLaidOutAlike) {
  control.load(square_of_sites());
  control.resize_to(60000, 50000);
  expect_plot_side(50000);
  EXPECT_EQ(control.frmove.Left.get(), 60000 - 2145);
  EXPECT_TRUE(control.PlotValid);
  EXPECT_FALSE(picture_is_blank());
  control.resize_to(1000000, 2000000);
  EXPECT_EQ(control.frmove.Left.get(), 1000000 - 2145);
  expect_plot_side(1000000 - 2145);
  control.HideLegend(true);
  control.resize_to(40000, 40000);
  expect_plot_side(40000);
}

TEST_F(Plot2DLayout, WithoutALegendThePlotTakesAll) {
  control.HideLegend(true);
  control.resize_to(6000, 4000);
  expect_plot_side(4000);
  control.resize_to(3000, 4000);
  expect_plot_side(3000);
  control.resize_to(750, 750);
  expect_plot_side(750);
}

TEST_F(Plot2DLayout, WithoutALegendTheLeastSizeIs750By750AndNothingElseIsDone) {
  control.HideLegend(true);
  control.load(square_of_sites());
  const Rectangle before = place_of(control.Frplot);
  forget_notices();
  control.resize_to(500, 2000);
  expect_size(750, 2000);
  control.resize_to(2000, 749);
  expect_size(2000, 750);
  control.resize_to(1, 1);
  expect_size(750, 750);
  EXPECT_EQ(place_of(control.Frplot), before);
  EXPECT_EQ(toolkit.redraws, 0);
}

TEST_F(Plot2DLayout, AHiddenLegendStaysWhereItWas) {
  control.resize_to(6000, 4000);
  control.HideLegend(true);
  control.resize_to(9000, 9000);
  EXPECT_EQ(control.frmove.Left.get(), 6000 - 2145);
}

TEST_F(Plot2DLayout, ShowingTheLegendAgainRaisesASmallControl) {
  control.HideLegend(true);
  control.resize_to(1000, 1000);
  expect_size(1000, 1000);
  control.HideLegend(false);
  expect_size(4500, 3180);
}

TEST_F(Plot2DLayout, TheWidestLabelWidensTheLegend) {
  control.ScaleValue(3).Width = 1400;
  control.ScaleValue(10).Width = 1500;
  control.ScaleValue(7).Width = 1450;
  control.resize_to(6000, 4000);
  expect_legend_width(1900);
  EXPECT_EQ(control.frmove.Left.get(), 6000 - 2350);
  expect_plot_side(3650);
}

TEST_F(Plot2DLayout, TheWidestLabelIsRoundedHalfToEven) {
  control.ScaleValue(10).Width = 1300.5;
  control.resize_to(6000, 4000);
  expect_legend_width(1700);
  control.ScaleValue(10).Width = 1301.5;
  control.resize_to(6000, 4000);
  expect_legend_width(1702);
}

TEST_F(Plot2DLayout, ALabelWithinTheLeastWidthDoesNotCount) {
  control.ScaleValue(1).Width = 1295;
  control.resize_to(6000, 4000);
  expect_legend_width(1695);
  control.ScaleValue(1).Width = 1295.25;
  control.resize_to(6000, 4000);
  expect_legend_width(1695);
}

TEST_F(Plot2DLayout, WideLabelsMayLeaveThePlotNoRoom) {
  control.ScaleValue(5).Width = 20000;
  control.resize_to(6000, 4000);
  expect_legend_width(20400);
  EXPECT_EQ(control.frmove.Left.get(), 6000 - 20850);
  EXPECT_EQ(control.MousePointer(), 0);
}

TEST_F(Plot2DLayout, TheLabelsOfTheDataCount) {
  control.ScaleValue(1).AutoSize = true;
  SiteColumns sites = sites_near_centre();
  sites.z = {123456.5, 223456.5, 323456.5, 423456.5, 523456.5};
  control.load(sites);
  control.resize_to(9000, 4000);
  const Label& label = control.ScaleValue(1);
  expect_legend_width(std::max(1695.0, std::nearbyint(label.Left + label.Width)));
}

TEST_F(Plot2DLayout, TheSideOfThePlotIsRoundedHalfToEven) {
  control.resize_to(9000, 3500.5);
  expect_plot_side(3500);
  control.resize_to(9000, 3501.5);
  expect_plot_side(3502);
  control.HideLegend(true);
  control.resize_to(1000.5, 4000);
  expect_plot_side(1000);
}

TEST_F(Plot2DLayout, TheUntoldPlacesStay) {
  const Rectangle frmove = place_of(control.frmove), frplot = place_of(control.Frplot),
                  plota = place_of(control.PLOTA);
  control.resize_to(9000, 7000);
  EXPECT_EQ(control.frmove.Top.get(), frmove.top);
  EXPECT_EQ(control.frmove.Height.get(), frmove.height);
  EXPECT_EQ(control.Frplot.Left.get(), frplot.left);
  EXPECT_EQ(control.Frplot.Top.get(), frplot.top);
  EXPECT_EQ(control.PLOTA.Left.get(), plota.left);
  EXPECT_EQ(control.PLOTA.Top.get(), plota.top);
}

TEST_F(Plot2DLayout, ThePictureFollowsItsOwnPlace) {
  control.PLOTA.Left = 75;
  control.PLOTA.Top = 210;
  control.resize_to(6000, 4000);
  EXPECT_DOUBLE_EQ(control.PLOTA.Width, 3739.35 - 150);
  EXPECT_DOUBLE_EQ(control.PLOTA.Height, 3855 - 285);
  EXPECT_EQ(place_of(control.RePlot), place_of(control.PLOTA));
}

TEST_F(Plot2DLayout, TheLegendIsBroughtUpToDateEvenWhenHidden) {
  control.HideLegend(true);
  control.load(square_of_sites());
  control.IntervalColor(0, 0x123456);
  control.resize_to(5000, 5000);
  EXPECT_EQ(control.scalCol(1).BackColor.get(), 0x123456u);
  EXPECT_EQ(control.ScaleValue(1).Caption.get(), "100.00 -  90.00");
}

TEST_F(Plot2DLayout, TheLegendIsBroughtUpToDateWhileThePlotIsStretched) {
  control.load(square_of_sites());
  control.Plot();
  control.wafobj.col1 = 0x654321;
  control.resize_to(5000, 5000);
  EXPECT_TRUE(stretched());
  EXPECT_EQ(control.scalCol(1).BackColor.get(), 0x654321u);
}

TEST_F(Plot2DLayout, SizesThatAreNotFiniteLeaveThePlotAsItIs) {
  control.resize_to(6000, 4000);
  const Rectangle before = place_of(control.Frplot);
  for (const double odd : {not_a_number, infinity}) {
    control.resize_to(odd, 4000);
    control.resize_to(6000, odd);
    control.resize_to(odd, odd);
    EXPECT_EQ(control.MousePointer(), 0);
    EXPECT_TRUE(std::isfinite(control.Frplot.Width) && std::isfinite(control.Frplot.Height));
  }
  control.resize_to(6000, 4000);
  EXPECT_EQ(place_of(control.Frplot), before);
}

TEST_F(Plot2DLayout, TheLeastSizeShowsLegendAndButton) {
  control.resize_to(0, 0);
  EXPECT_GE(control.frmove.Left, 0);
  EXPECT_LE(control.Command1.Left + control.Command1.Width, control.frmove.Width);
  const double column = control.frmove.Top;
  EXPECT_LE(column + control.Command1.Top + control.Command1.Height, control.Height);
  EXPECT_LE(column + control.Frame1.Top + control.frleg.Top + control.frleg.Height, control.Height);
}

TEST_F(Plot2DTest, ANumberLongerThanItsFieldWidensTheColumn) {
  place();
  SiteColumns sites = sites_near_centre();
  sites.z = {-12345.6, 5, 0, -100, -5000};
  control.load(sites);
  control.resize_to(6000, 4000);
  const Label& longest = control.ScaleValue(10);
  EXPECT_EQ(longest.Caption.get(), "-11110.540 - -12345.600");
  EXPECT_GT(longest.Left + longest.Width, 1695);
  EXPECT_EQ(control.legende.Width.get(), std::nearbyint(longest.Left + longest.Width));
  EXPECT_GT(control.PLOTA.Width, 1000);
}

struct Size {
  double width, height;
};

class Plot2DSizes : public Plot2DTest, public testing::WithParamInterface<Size> {};

TEST_P(Plot2DSizes, AreWorkedOutStepByStep) {
  place();
  control.load(square_of_sites());
  for (const bool hidden : {false, true}) {
    control.HideLegend(hidden);
    control.resize_to(GetParam().width, GetParam().height);
    double m = 1695;
    for (int i = 1; i <= 10; ++i) {
      const double right = control.ScaleValue(i).Left + control.ScaleValue(i).Width;
      if (right > m) m = std::nearbyint(right);
    }
    if (!hidden) {
      EXPECT_EQ(control.frmove.Width.get(), m + 450);
    }
    const double room = hidden ? control.ScaleWidth() : control.ScaleWidth() - m - 450;
    const double side = std::nearbyint(std::min(room, control.ScaleHeight()));
    EXPECT_DOUBLE_EQ(control.Frplot.Width, 0.97 * side);
    EXPECT_EQ(control.Frplot.Height.get(), side);
  }
}

INSTANTIATE_TEST_SUITE_P(Sizes, Plot2DSizes,
                         testing::Values(Size{4500, 3180}, Size{4800.25, 9000}, Size{7531, 3333.5},
                                         Size{30000, 20000}, Size{5000.5, 5000.5}));

}  // namespace
}  // namespace mirolen
