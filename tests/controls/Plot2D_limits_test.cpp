#include "control_support.h"

namespace mirolen {
namespace {

/// The data of the square run from 0 to 100.
class Plot2DLimits : public Plot2DTest {
 protected:
  void expect_limits(double low, double high) const {
    EXPECT_EQ(control.wafobj.minimal, low);
    EXPECT_EQ(control.wafobj.maximal, high);
  }
};

TEST_F(Plot2DLimits, AreTaken) {
  plot_square();
  EXPECT_TRUE(control.SetPlotLimit(10, 90));
  EXPECT_TRUE(control.PlotLimitSet);
  expect_limits(10, 90);
}

TEST_F(Plot2DLimits, DrawAtOnceWhenThereIsAPlot) {
  plot_square();
  control.SetPlotLimit(10, 90);
  EXPECT_EQ(toolkit.redraws, 1);
  EXPECT_TRUE(control.PlotValid);
}

TEST_F(Plot2DLimits, BeforeAnyPlotDrawNothingUntilIt) {
  place();
  control.load(square_of_sites());
  EXPECT_TRUE(control.SetPlotLimit(10, 90));
  expect_limits(10, 90);
  EXPECT_EQ(toolkit.redraws, 0);
  EXPECT_TRUE(picture_is_blank());
  EXPECT_EQ(control.Plot(), 0);
  EXPECT_EQ(toolkit.redraws, 1);
  expect_limits(10, 90);
  EXPECT_TRUE(control.ScaleValue(1).Caption.get().starts_with(" > "));
}

TEST_F(Plot2DLimits, ThatAreInForceChangeNothing) {
  plot_square();
  EXPECT_FALSE(control.SetPlotLimit(0, 100)) << "the data's own";
  EXPECT_FALSE(control.PlotLimitSet);
  EXPECT_EQ(toolkit.redraws, 0);
  control.SetPlotLimit(10, 90);
  toolkit.redraws = 0;
  EXPECT_FALSE(control.SetPlotLimit(10, 90));
  EXPECT_TRUE(control.PlotLimitSet);
  EXPECT_EQ(toolkit.redraws, 0);
}

TEST_F(Plot2DLimits, OfWhichOneDiffersAreNew) {
  plot_square();
  EXPECT_TRUE(control.SetPlotLimit(0, 90));
  EXPECT_TRUE(control.SetPlotLimit(5, 90));
}

TEST_F(Plot2DLimits, ThatAreEqualAreRefusedAndClearTheFlag) {
  plot_square();
  control.SetPlotLimit(10, 90);
  EXPECT_FALSE(control.SetPlotLimit(50, 50));
  EXPECT_FALSE(control.PlotLimitSet);
  expect_limits(10, 90);
}

TEST_F(Plot2DLimits, ThatAreEqualAndInForceChangeNothing) {
  place();
  const std::vector<double> place_of{1, 2, 3}, values{5, 5, 5};
  control.SetWaferData(place_of, place_of, values);
  control.PlotLimitSet = true;
  EXPECT_FALSE(control.SetPlotLimit(5, 5));
  EXPECT_TRUE(control.PlotLimitSet);
  expect_limits(5, 5);
}

TEST_F(Plot2DLimits, InTheWrongOrderAreRefused) {
  plot_square();
  control.SetPlotLimit(10, 90);
  EXPECT_FALSE(control.SetPlotLimit(90, 10));
  EXPECT_FALSE(control.PlotLimitSet);
  expect_limits(10, 90);
}

TEST_F(Plot2DLimits, ThatAreRefusedOrReleasedWithoutAChangeLeaveThePlotAlone) {
  plot_square();
  EXPECT_FALSE(control.SetPlotLimit(50, 50));
  control.ReleasePlotLimit();
  EXPECT_TRUE(control.PlotValid);
  EXPECT_EQ(toolkit.redraws, 0);
}

/// A change of size has drawn the plot, though nobody has asked for it yet.
TEST_F(Plot2DLimits, ThatChangeBeforeThePlotIsAskedForAreInIt) {
  place();
  ASSERT_EQ(control.load(square_of_sites()), 0);
  control.resize_to(6500, 4500);
  ASSERT_TRUE(control.PlotValid);
  EXPECT_TRUE(control.SetPlotLimit(4, 6));
  EXPECT_FALSE(control.PlotValid);
  control.Plot();
  ASSERT_TRUE(control.PlotValid);
  control.clear();
  control.resize_to(6000, 4000);
  ASSERT_TRUE(control.PlotValid);
  control.ReleasePlotLimit();
  EXPECT_FALSE(control.PlotValid);
}

TEST_F(Plot2DLimits, OutlastNewData) {
  plot_square();
  control.SetPlotLimit(10, 90);
  EXPECT_EQ(control.load(sites_near_centre()), 0);
  EXPECT_TRUE(control.PlotLimitSet);
  expect_limits(10, 90);
  EXPECT_EQ(control.Maximum(), 50);
}

TEST_F(Plot2DLimits, ThatWereRefusedDoNotOutlastNewData) {
  plot_square();
  control.SetPlotLimit(10, 90);
  control.SetPlotLimit(50, 50);
  control.load(sites_near_centre());
  expect_limits(10, 50);
}

TEST_F(Plot2DLimits, AreReleasedToTheData) {
  plot_square();
  control.SetPlotLimit(10, 90);
  toolkit.redraws = 0;
  control.ReleasePlotLimit();
  EXPECT_FALSE(control.PlotLimitSet);
  expect_limits(0, 100);
  EXPECT_EQ(toolkit.redraws, 1);
  control.load(sites_near_centre());
  expect_limits(10, 50);
}

TEST_F(Plot2DLimits, AreReleasedWithoutAPlotAndDrawNothing) {
  place();
  control.load(square_of_sites());
  control.SetPlotLimit(10, 90);
  control.ReleasePlotLimit();
  expect_limits(0, 100);
  EXPECT_EQ(toolkit.redraws, 0);
}

TEST_F(Plot2DLimits, TellNoChange) {
  plot_square();
  control.SetPlotLimit(10, 90);
  control.ReleasePlotLimit();
  EXPECT_TRUE(form.changes.empty());
}

TEST_F(Plot2DLimits, ThatAreNotFiniteAreRefused) {
  plot_square();
  control.SetPlotLimit(10, 90);
  for (const double odd : {not_a_number, infinity, -infinity}) {
    EXPECT_FALSE(control.SetPlotLimit(odd, 95)) << odd;
    EXPECT_FALSE(control.SetPlotLimit(5, odd)) << odd;
    EXPECT_FALSE(control.SetPlotLimit(odd, odd)) << odd;
    expect_limits(10, 90);
    EXPECT_EQ(control.MousePointer(), 0);
  }
}

TEST_F(Plot2DLimits, WhoseSpreadOverflowsAreRefused) {
  plot_square();
  control.SetPlotLimit(10, 90);
  EXPECT_FALSE(control.SetPlotLimit(-1.5e308, 1.5e308));
  expect_limits(10, 90);
  EXPECT_EQ(control.MousePointer(), 0);
}

}  // namespace
}  // namespace mirolen
