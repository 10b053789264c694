#include <cmath>

#include "control_support.h"

namespace mirolen {
namespace {

const double odd_numbers[] = {not_a_number, infinity, -infinity, 1e308, -1e308, 5e-324, -0.0, 1e-15};

class Plot2DNumbers : public Plot2DTest {
 protected:
  void expect_usable() {
    EXPECT_TRUE(std::isfinite(control.WaferDiameter()));
    EXPECT_TRUE(std::isfinite(control.TestDiameter()));
    EXPECT_TRUE(std::isfinite(control.Resolution()));
    EXPECT_EQ(control.MousePointer(), 0);
  }
};

TEST_F(Plot2DNumbers, NoSettingThrowsAndThePlotGoesOn) {
  for (const double v : odd_numbers) {
    place();
    control.load(square_of_sites());
    control.TestDiameter(v);
    control.Resolution(v);
    expect_usable();
    control.Plot();
    expect_usable();
    control.WaferDiameter(v);
    control.load(sites_near_centre());
    control.Plot();
    expect_usable();
    control.SetPlotLimit(v, 1);
    control.SetPlotLimit(0, v);
    control.resize_to(v, v);
    expect_usable();
    EXPECT_TRUE(std::isfinite(control.Interpolation(v, v)));
  }
}

TEST_F(Plot2DNumbers, ExtremeValuesNeitherThrowNorStayInThePointer) {
  place();
  for (const double scale : {1e308, 1e-308, -1e308, 0.0}) {
    SiteColumns sites = sites_near_centre();
    for (std::size_t i = 0; i < sites.z.size(); ++i) sites.z[i] = i % 2 ? scale : -scale;
    control.load(sites);
    control.Plot();
    expect_usable();
    control.range();
    control.HiLo();
    control.StdDevPercent();
  }
}

TEST_F(Plot2DNumbers, ColourFieldsThatAreNotFiniteDoNotThrow) {
  plot_square();
  for (const double v : {not_a_number, infinity, -infinity, 1e300}) {
    control.wafobj.col3 = v;
    EXPECT_NO_THROW(control.IntervalColor(2)) << v;
    control.SetPlotNotVaild();
    EXPECT_EQ(control.Plot(), 0);
    EXPECT_EQ(control.MousePointer(), 0);
  }
}

TEST_F(Plot2DNumbers, IntervalsBeyondTheTenDoNotThrow) {
  place();
  for (const int interval : {-1, 10, 2147483647, -2147483647 - 1}) {
    EXPECT_NO_THROW(control.IntervalColor(interval)) << interval;
    EXPECT_NO_THROW(control.IntervalColor(interval, 0)) << interval;
  }
}

TEST_F(Plot2DNumbers, FieldsOfTheWaferThatTheHostSpoiltDoNotThrow) {
  for (const double v : odd_numbers) {
    for (auto field : {&wafer::test_diam, &wafer::WafDiam, &wafer::flat_ratio, &wafer::maximal,
                       &wafer::minimal, &wafer::maxi, &wafer::mini, &wafer::mean}) {
      OpenPlot2D spoilt(toolkit, form);
      spoilt.InitProperties();
      spoilt.load(sites_near_centre());
      spoilt.wafobj.*field = v;
      EXPECT_NO_THROW(spoilt.resize_to(6000, 4000));
      EXPECT_NO_THROW(spoilt.Plot());
      EXPECT_NO_THROW(spoilt.HiLo());
      EXPECT_NO_THROW(spoilt.range());
      EXPECT_NO_THROW(spoilt.StdDevPercent());
      EXPECT_EQ(spoilt.MousePointer(), 0);
    }
  }
}

}  // namespace
}  // namespace mirolen
