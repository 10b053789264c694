#include <algorithm>
#include <cstdio>

#include "control_support.h"

namespace mirolen {
namespace {

std::string row(const char* format, double one, double other) {
  char text[80];
  std::snprintf(text, sizeof text, format, one, other);
  return text;
}

class Plot2DPicture : public Plot2DTest {
 protected:
  void expect_direct_map(std::int16_t marks) const {
    Twin twin(control.PLOTA, toolkit);
    wafer copy = control.wafobj;
    copy.D2Plot(twin.canvas, control.Resolution(), 5, 0, marks, 0, 0, 0, 0, 0);
    ASSERT_GT(twin.recording().size(), 20u);
    EXPECT_EQ(difference(recording_of(control.PLOTA), twin.recording()), "");
  }
};

TEST_F(Plot2DPicture, IsTheColourMapOfItsWafer) {
  plot_square();
  expect_direct_map(0);
}

TEST_F(Plot2DPicture, FollowsEverySetting) {
  place();
  control.load(square_of_sites());
  control.WaferStyle(WaferSt::Flat);
  control.Resolution(11);
  control.ShowSites(Sites::ShowSite);
  control.TestDiameter(188);
  control.IntervalColor(0, 0x0A0B0C);
  control.SetPlotLimit(20, 70);
  control.Plot();
  expect_direct_map(-1);
}

TEST_F(Plot2DPicture, MarksTheSitesOnlyWhenAsked) {
  plot_square();
  const Recording without = recording_of(control.PLOTA);
  control.ShowSites(Sites::ShowSite);
  control.Plot();
  EXPECT_GT(recording_of(control.PLOTA).size(), without.size() + 25);
  control.ShowSites(Sites::HideSite);
  control.Plot();
  EXPECT_EQ(difference(recording_of(control.PLOTA), without), "");
}

TEST_F(Plot2DPicture, HasTheSizeOfThePlotsFrame) {
  place();
  control.load(square_of_sites());
  control.resize_to(9000, 8000);
  EXPECT_EQ(snapshot_size(), control.PLOTA.pixel_size());
  expect_direct_map(0);
}

TEST_F(Plot2DPicture, TheSmallWaferShowsTheOutline) {
  for (const WaferSt style : {WaferSt::Notch, WaferSt::Flat}) {
    place();
    control.WaferStyle(style);
    control.load(square_of_sites());
    control.Plot();
    Twin twin(control.FNPic, toolkit);
    double x0 = 34, y0 = 34;
    control.wafobj.FlatNotchShow(nullptr, twin.canvas, x0, y0, 30, 0, 90);
    EXPECT_EQ(difference(recording_of(control.FNPic), twin.recording()), "");
    EXPECT_EQ(control.FNLabel.Caption.get(), style == WaferSt::Flat ? "Flat" : "Notch");
  }
}

TEST_F(Plot2DPicture, TheSmallWaferHasADiscAndAMark) {
  plot_square();
  int discs = 0, marks = 0, lines = 0;
  for (const auto& call : recording_of(control.FNPic)) {
    discs += std::holds_alternative<recorded::Ellipse>(call);
    marks += std::holds_alternative<recorded::Polygon>(call);
    lines += std::holds_alternative<recorded::Line>(call);
  }
  EXPECT_EQ(discs, 1);
  EXPECT_EQ(marks, 1);
  EXPECT_EQ(lines, 1);
}

TEST_F(Plot2DPicture, TheSmallWaferIsDrawnBeforeThePlot) {
  place();
  control.load(square_of_sites());
  std::vector<const PictureBox*> order;
  toolkit.on_draw = [&](const PictureBox& box, std::string_view call) {
    if (call == "ellipse") order.push_back(&box);
  };
  control.Plot();
  toolkit.on_draw = nullptr;
  EXPECT_EQ(order, (std::vector<const PictureBox*>{&control.FNPic, &control.PLOTA}));
}

TEST_F(Plot2DPicture, TheLegendTellsTheTenBands) {
  plot_square();
  for (int i = 1; i <= 10; ++i) {
    const double top = 100 - (i - 1) * 10, bottom = 100 - i * 10;
    EXPECT_EQ(control.ScaleValue(i).Caption.get(), row("%6.2f - %6.2f", top, bottom));
    EXPECT_EQ(control.ScaleValue(i).ToolTipText.get(), row("%10.6f - %10.6f", top, bottom));
    EXPECT_EQ(control.scalCol(i).BackColor.get(), control.IntervalColor(i - 1));
  }
}

TEST_F(Plot2DPicture, TheLegendIsOpenAtBothEndsUnderLimits) {
  plot_square();
  ASSERT_TRUE(control.SetPlotLimit(10, 90));  // the scale is an eighth of 80 wider at both ends
  EXPECT_EQ(control.ScaleValue(1).Caption.get(), row(" > %6.2f", 90, 0));
  EXPECT_EQ(control.ScaleValue(2).Caption.get(), row("%6.2f - %6.2f", 90, 80));
  EXPECT_EQ(control.ScaleValue(9).Caption.get(), row("%6.2f - %6.2f", 20, 10));
  EXPECT_EQ(control.ScaleValue(10).Caption.get(), row(" < %6.2f", 10, 0));
}

TEST_F(Plot2DPicture, TheLegendFollowsItsColours) {
  plot_square();
  for (int i = 0; i < 10; ++i) control.IntervalColor(i, 0x10101u * static_cast<Color>(i + 1));
  control.Plot();
  for (int i = 0; i < 10; ++i)
    EXPECT_EQ(control.scalCol(i + 1).BackColor.get(), 0x10101u * static_cast<Color>(i + 1));
}

TEST_F(Plot2DPicture, TheBandsOfTheMapAreInTheColoursOfTheLegend) {
  plot_square();
  std::vector<Color> legend, unknown;
  for (int i = 0; i < 10; ++i) legend.push_back(control.IntervalColor(i));
  for (const auto& call : recording_of(control.PLOTA))
    if (const auto* cell = std::get_if<recorded::Polygon>(&call))
      if (std::find(legend.begin(), legend.end(), cell->brush.color) == legend.end())
        unknown.push_back(cell->brush.color);
  EXPECT_EQ(unknown, std::vector<Color>{});
}

}  // namespace
}  // namespace mirolen
