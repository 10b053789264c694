#include <concepts>

#include "control_support.h"

namespace mirolen {
namespace {

// ---- Sigma plots ----

void draw(Plot2DS& control, PlotCanvas& canvas) {
  wafer copy = control.wafobj;
  copy.D2Plot(canvas, control.Resolution(), 4, control.SigmaRange(),
              static_cast<std::int16_t>(control.ShowSites()), 0, 0, 0, 0, 0);
}
void draw(Plot3DS& control, PlotCanvas& canvas) {
  wafer copy = control.wafobj;
  copy.D3Plot(canvas, control.XResolution(), control.YResolution(), control.PlotScale(),
              control.GridRotation(), control.WaferRotation(), control.GridInclination(), 4,
              control.SigmaRange(), false, 0, 0, 0, 0, 0);
}

template <class Control>
class SigmaPlot : public ControlTest<Control> {
 protected:
  void SetUp() override { this->plot_square(); }
  void expect_plot_by_hand() {
    Twin twin(this->control.PLOTA, this->toolkit);
    draw(this->control, twin.canvas);
    ASSERT_GT(twin.recording().size(), 20u);
    EXPECT_EQ(difference(recording_of(this->control.PLOTA), twin.recording()), "");
  }
};

using SigmaControls = testing::Types<Plot2DS, Plot3DS>;
TYPED_TEST_SUITE(SigmaPlot, SigmaControls, ControlNames);

TYPED_TEST(SigmaPlot, IsThatOfItsWaferInTheTwoSteps) {
  this->expect_plot_by_hand();
  for (const double range : {0.1, 1.5, -1.0}) {
    this->control.SigmaRange(range);
    this->control.Plot();
    this->expect_plot_by_hand();
  }
}

TYPED_TEST(SigmaPlot, ThePlotFillsInTheRange) {
  this->control.SigmaRange(0);
  EXPECT_EQ(this->control.SigmaRange(), 0);
  this->control.Plot();
  EXPECT_EQ(this->control.SigmaRange(), 0.5);
}

TYPED_TEST(SigmaPlot, TheRangeIsKeptToldAndMakesThePlotStale) {
  this->control.SigmaRange(1.25);
  EXPECT_EQ(this->control.SigmaRange(), 1.25);
  EXPECT_FALSE(this->control.PlotValid);
  EXPECT_EQ(this->form.changes, Names{"SigmaRange"});
}

TYPED_TEST(SigmaPlot, HasThreeColoursOfItsOwn) {
  EXPECT_EQ(this->control.IntervalColor(0), 0x000080u);
  EXPECT_EQ(this->control.IntervalColor(1), 0x008000u);
  EXPECT_EQ(this->control.IntervalColor(2), 0x800000u);
  for (int i = 0; i < 3; ++i) this->control.IntervalColor(i, static_cast<Color>(0x11 * (i + 1)));
  EXPECT_EQ(this->control.wafobj.ColS1, 0x11);
  EXPECT_EQ(this->control.wafobj.ColS2, 0x22);
  EXPECT_EQ(this->control.wafobj.ColS3, 0x33);
  EXPECT_EQ(this->control.wafobj.col1, 0x80);
  EXPECT_EQ(this->form.changes, (Names{"IntervalColor0", "IntervalColor1", "IntervalColor2"}));
  EXPECT_FALSE(this->control.PlotValid);
}

TYPED_TEST(SigmaPlot, TheLegendHasThreeRows) {
  this->control.SigmaRange(1.5);
  this->control.IntervalColor(1, 0x123456);
  this->control.resize_to(7000, 5000);
  for (int row = 1; row <= 10; ++row) {
    const bool shown = row == 1 || row == 3 || row == 5;
    EXPECT_EQ(this->control.ScaleValue(row).Visible.get(), shown) << row;
    EXPECT_EQ(this->control.scalCol(row).Visible.get(), shown) << row;
  }
  EXPECT_EQ(this->control.ScaleValue(1).Caption.get(), ">   1.5");
  EXPECT_EQ(this->control.ScaleValue(3).Caption.get(), "+-  1.5");
  EXPECT_EQ(this->control.ScaleValue(5).Caption.get(), "< - 1.5");
  EXPECT_EQ(this->control.scalCol(1).BackColor.get(), 0x000080u);
  EXPECT_EQ(this->control.scalCol(3).BackColor.get(), 0x123456u);
  EXPECT_EQ(this->control.scalCol(5).BackColor.get(), 0x800000u);
}

TYPED_TEST(SigmaPlot, ThePlotBringsTheLegendUpToDate) {
  this->control.SigmaRange(1.5);
  this->control.IntervalColor(1, 0x123456);
  this->control.Plot();
  EXPECT_EQ(this->control.ScaleValue(1).Caption.get(), ">   1.5");
  EXPECT_EQ(this->control.scalCol(3).BackColor.get(), 0x123456u);
  EXPECT_EQ(this->control.lbldist.Caption.get(), "1.5");
}

TYPED_TEST(SigmaPlot, TheLegendFollowsTheDrawing) {
  this->control.SigmaRange(1.5);
  std::string caption_while_drawing;
  this->toolkit.on_draw = [&](const PictureBox& box, std::string_view) {
    if (&box == &this->control.PLOTA) caption_while_drawing = this->control.lbldist.Caption;
  };
  this->control.Plot();
  EXPECT_EQ(caption_while_drawing, "0.5");
  EXPECT_EQ(this->control.lbldist.Caption.get(), "1.5");
}

TYPED_TEST(SigmaPlot, TheLegendStaysThatOfTheOldPictureWhereTheDrawingFails) {
  this->control.SigmaRange(1.5);
  this->control.IntervalColor(1, 0x123456);
  this->toolkit.on_draw = [](const PictureBox&, std::string_view call) {
    throw CanvasError(std::string(call));
  };
  EXPECT_EQ(this->control.Plot(), 0);
  EXPECT_EQ(this->control.lbldist.Caption.get(), "0.5");
  EXPECT_EQ(this->control.scalCol(3).BackColor.get(), 0x008000u);
}

TYPED_TEST(SigmaPlot, TheBackgroundGoesBehindTheRangeToo) {
  this->control.BackColor(0x123456);
  EXPECT_EQ(this->control.frInt.BackColor.get(), 0x123456u);
}

// ---- Which plots are satisfied by the snapshot ----

template <class Control>
class Snapshot : public ControlTest<Control> {
 protected:
  void SetUp() override {
    this->place();
    this->control.load(square_of_sites());
    if constexpr (std::same_as<Control, Plot2DC>) this->control.Interval(20);
    this->control.Plot();
    this->forget_notices();
  }
};

template <class Control>
class StretchingPlot : public Snapshot<Control> {};
using StretchingControls = testing::Types<Plot2D, Plot2DC, Plot2DN, Plot2DB, Plot3D>;
TYPED_TEST_SUITE(StretchingPlot, StretchingControls, ControlNames);

TYPED_TEST(StretchingPlot, IsSatisfiedByTheSnapshot) {
  for (int plot = 0; plot < 3; ++plot) EXPECT_EQ(this->control.Plot(), 0);
  EXPECT_EQ(this->toolkit.redraws, 0);
  EXPECT_TRUE(this->control.RePlot.Stretch);
}

TYPED_TEST(StretchingPlot, IsDrawnWhenItIsStale) {
  this->control.SetPlotNotVaild();
  this->control.Plot();
  EXPECT_EQ(this->toolkit.redraws, 1);
  EXPECT_FALSE(this->control.RePlot.Stretch);
}

template <class Control>
class DrawingPlot : public Snapshot<Control> {};
TYPED_TEST_SUITE(DrawingPlot, SigmaControls, ControlNames);

TYPED_TEST(DrawingPlot, IsDrawnEachTime) {
  for (int plot = 1; plot <= 3; ++plot) {
    EXPECT_EQ(this->control.Plot(), 0);
    EXPECT_EQ(this->toolkit.redraws, plot);
    EXPECT_FALSE(this->control.RePlot.Stretch);
  }
}

TYPED_TEST(DrawingPlot, IsStretchedByAChangeOfSizeAllTheSame) {
  this->control.resize_to(9000, 7000);
  EXPECT_EQ(this->toolkit.redraws, 0);
  EXPECT_TRUE(this->control.RePlot.Stretch);
  this->control.Plot();
  EXPECT_EQ(this->toolkit.redraws, 1);
  EXPECT_FALSE(this->control.RePlot.Stretch);
  EXPECT_TRUE(this->control.PLOTA.Visible);
}

template <class Control>
class MapSize : public Snapshot<Control> {};
using MapControls = testing::Types<Plot2D, Plot2DS, Plot2DC, Plot2DN, Plot2DB, Plot3D, Plot3DS>;
TYPED_TEST_SUITE(MapSize, MapControls, ControlNames);

TYPED_TEST(MapSize, HasTheLeastSizesOfAllMaps) {
  this->control.resize_to(10, 10);
  EXPECT_EQ(this->control.Width.get(), 4500);
  EXPECT_EQ(this->control.Height.get(), 3180);
  this->control.HideLegend(true);
  this->control.resize_to(10, 10);
  EXPECT_EQ(this->control.Width.get(), 750);
  EXPECT_EQ(this->control.Height.get(), 750);
}

TYPED_TEST(MapSize, ThePlotsFrameIsAlmostSquare) {
  this->control.resize_to(9000, 5000);
  EXPECT_DOUBLE_EQ(this->control.Frplot.Width, 0.97 * this->control.Frplot.Height);
  EXPECT_EQ(this->control.Frplot.Height.get(), 5000);
  EXPECT_EQ(this->control.frmove.Left + this->control.frmove.Width, 9000);
}

TYPED_TEST(MapSize, TheLeastSizeShowsTheButton) {
  if (!this->control.Command1.Visible) return;
  if constexpr (!std::same_as<TypeParam, Plot2DC>) {  // its places are fixed for a taller column
    this->control.resize_to(0, 0);
    EXPECT_LE(this->control.frmove.Top + this->control.Command1.Top + this->control.Command1.Height, 3180);
    EXPECT_GE(this->control.frmove.Left, 0);
  }
}

// ---- Value map ----

class Plot2DNTest : public ControlTest<Plot2DN> {};

TEST_F(Plot2DNTest, WritesTheValuesOfItsWafer) {
  plot_square();
  Twin twin(control.PLOTA, toolkit);
  wafer copy = control.wafobj;
  copy.D2Number(twin.canvas, 0, 0, 0, 0, 0);
  EXPECT_EQ(calls_of<recorded::Text>(twin.recording()).size(), 25u);
  EXPECT_EQ(difference(recording_of(control.PLOTA), twin.recording()), "");
}

TEST_F(Plot2DNTest, ASecondDrawingIsLikeTheFirst) {
  plot_square();
  const Recording first = recording_of(control.PLOTA);
  control.SetPlotNotVaild();
  control.Plot();
  EXPECT_EQ(difference(recording_of(control.PLOTA), first), "");
}

TEST_F(Plot2DNTest, HasTenColours) {
  for (int i = 0; i < 10; ++i) control.IntervalColor(i, static_cast<Color>(i + 1));
  EXPECT_EQ(control.wafobj.col1, 1);
  EXPECT_EQ(control.wafobj.col10, 10);
}

// ---- Legend of the surface ----

class Plot3DLegend : public ControlTest<Plot3D> {};

TEST_F(Plot3DLegend, TellsTheTenBands) {
  plot_square();
  EXPECT_EQ(control.ScaleValue(1).Caption.get(), "100.00 -  90.00");
  EXPECT_EQ(control.scalCol(10).BackColor.get(), 0x800080u);
}

TEST_F(Plot3DLegend, TellsTheStepUnderTheBands) {
  plot_square();
  EXPECT_EQ(control.lbldist.Caption.get(), "10.0");
  control.SetPlotLimit(0, 25);
  EXPECT_EQ(control.lbldist.Caption.get(), "3.125") << "eight bands between limits, two beyond";
  control.BackColor(0x123456);
  EXPECT_EQ(control.frInt.BackColor.get(), 0x123456u);
}

}  // namespace
}  // namespace mirolen
