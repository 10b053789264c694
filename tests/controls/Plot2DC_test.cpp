#include <algorithm>
#include <cmath>

#include "control_support.h"

namespace mirolen {
namespace {

class Plot2DCTest : public ControlTest<Plot2DC> {
 protected:
  /// The distance under data with these statistics.
  double distance_with(double mean, double high, double low) {
    control.wafobj.mean = mean;
    control.wafobj.maxi = high;
    control.wafobj.mini = low;
    return control.distance();
  }
  void expect_curves(double distance) {
    Twin twin(control.PLOTA, toolkit);
    const double side = std::min(control.PLOTA.ScaleWidth(), control.PLOTA.ScaleHeight());
    wafer copy = control.wafobj;
    copy.D2Contour(twin.canvas, static_cast<std::int16_t>(std::nearbyint(side / 2 - 5)), distance,
                   static_cast<std::int16_t>(control.marksites()),
                   static_cast<std::int16_t>(control.Resolution()),
                   static_cast<std::int16_t>(control.PlotColored()), 0, 0, 0, 0, 0);
    ASSERT_GT(twin.recording().size(), 20u);
    EXPECT_EQ(difference(recording_of(control.PLOTA), twin.recording()), "");
  }
};

// ---- The interval ----

TEST_F(Plot2DCTest, AnIntervalOf0OrBelowBecomes1) {
  place();
  for (const auto& [told, kept] :
       {std::pair{0.0, 1.0}, {-5.0, 1.0}, {-0.0, 1.0}, {0.25, 0.25}, {1e300, 1e300}}) {
    control.Interval(told);
    EXPECT_EQ(control.Interval(), kept) << told;
  }
}

TEST_F(Plot2DCTest, InPercentTheIntervalIsTheDistance) {
  place();
  control.Interval(2.5);
  control.IntervalInPercent(0);
  EXPECT_EQ(distance_with(50, 100, 0), 2.5);
  EXPECT_EQ(distance_with(0, 0, 0), 2.5);
}

TEST_F(Plot2DCTest, InTheUnitItIsInPercentOfTheMean) {
  place();
  control.Interval(2.5);
  for (const std::int16_t flag : {-1, 1, 7}) {
    control.IntervalInPercent(flag);
    EXPECT_EQ(distance_with(50, 100, 0), 5);
    EXPECT_EQ(distance_with(-50, 100, 0), 5);
  }
}

TEST_F(Plot2DCTest, AMeanOf0IsReplacedByRangeThenByAnExtreme) {
  place();
  control.Interval(2);
  control.IntervalInPercent(-1);
  EXPECT_EQ(distance_with(0, 20, -20), 5);
  EXPECT_EQ(distance_with(0, -20, 20), 5);
  EXPECT_EQ(distance_with(0, 20, 20), 10);
  EXPECT_EQ(distance_with(0, -10, -10), 20);
  EXPECT_EQ(distance_with(0, 0, 0), 1);
}

TEST_F(Plot2DCTest, PlotLimitsDoNotMoveTheCurvesOfAMeanOf0) {
  place();
  SiteColumns sites = square_of_sites();
  for (std::size_t i = 0; i < sites.z.size(); ++i) sites.z[i] = static_cast<double>(i) - 12;
  control.load(sites);
  ASSERT_EQ(control.mean(), 0);
  control.Interval(3);
  control.IntervalInPercent(-1);
  control.SetPlotLimit(-1, 1);
  EXPECT_EQ(control.distance(), 12.5) << "percent of 24, the spread of the data";
}

TEST_F(Plot2DCTest, TheIntervalIsShownAsItWasSet) {
  place();
  control.load(square_of_sites());
  control.MeasurementUnit("nm");
  control.Interval(12.5);
  control.IntervalInPercent(-1);
  control.Plot();
  EXPECT_EQ(control.lbldist.Caption.get(), "12.5 nm");
  control.IntervalInPercent(0);
  control.Plot();
  EXPECT_EQ(control.lbldist.Caption.get(), "12.5 %");
  control.Interval(20);
  control.MeasurementUnit("");
  control.IntervalInPercent(1);
  control.Plot();
  EXPECT_EQ(control.lbldist.Caption.get(), "20 ");
}

TEST_F(Plot2DCTest, BothFormsOfTheLegendShowTheInterval) {
  place();
  control.load(square_of_sites());
  control.Interval(30);
  control.IntervalInPercent(0);
  for (const DrawColEnum colors : {DrawColEnum::Ten_ColorPlot, DrawColEnum::Three_ColorPlot}) {
    control.PlotColored(colors);
    control.Plot();
    EXPECT_EQ((colors == DrawColEnum::Ten_ColorPlot ? control.lbldist : control.lbldist0).Caption.get(),
              "30 %");
  }
}

// ---- Settings ----

TEST_F(Plot2DCTest, SettingsAreKeptToldAndMakeThePlotStale) {
  plot_square();
  const std::pair<const char*, std::function<void()>> settings[] = {
      {"Interval", [&] { control.Interval(3); }},
      {"IntervalInPercent", [&] { control.IntervalInPercent(1); }},
      {"MeasurementUnit", [&] { control.MeasurementUnit("nm"); }},
      {"marksites", [&] { control.marksites(ExconEnum::Converted); }},
      {"Resolution", [&] { control.Resolution(ResoEnum::Automatic); }},
      {"PlotColored", [&] { control.PlotColored(DrawColEnum::Three_ColorPlot); }},
      {"ScaleType", [&] { control.ScaleType(-17); }},
      {"MeanCurveColor", [&] { control.MeanCurveColor(1); }},
      {"UpperCurveColor", [&] { control.UpperCurveColor(2); }},
      {"LowerCurveColor", [&] { control.LowerCurveColor(3); }}};
  for (const auto& [name, set] : settings) {
    control.PlotValid = true;
    form.changes.clear();
    set();
    EXPECT_FALSE(control.PlotValid) << name;
    EXPECT_EQ(form.changes, Names{name});
  }
  EXPECT_EQ(toolkit.redraws, 0);
  EXPECT_EQ(control.MeasurementUnit(), "nm");
  EXPECT_EQ(control.marksites(), ExconEnum::Converted);
  EXPECT_EQ(control.Resolution(), ResoEnum::Automatic);
  EXPECT_EQ(control.PlotColored(), DrawColEnum::Three_ColorPlot);
  EXPECT_EQ(control.ScaleType(), -17);
  EXPECT_EQ(control.IntervalInPercent(), 1);
}

TEST_F(Plot2DCTest, TheBackgroundGoesToBothLegendsAndTheirText) {
  place();
  control.BackColor(0x123456);
  for (const Widget* frame : {&control.frleg0, &control.frleg, &control.frInt})
    EXPECT_EQ(frame->BackColor.get(), 0x123456u);
}

TEST_F(Plot2DCTest, ColourFieldsThatAreNotFiniteDoNotThrow) {
  control.wafobj.ColS1 = control.wafobj.ColS2 = control.wafobj.ColS3 = not_a_number;
  EXPECT_EQ(control.MeanCurveColor(), 0u);
  EXPECT_EQ(control.UpperCurveColor(), 0u);
  EXPECT_EQ(control.LowerCurveColor(), 0u);
}

TEST_F(Plot2DCTest, TheCurveColoursAreThoseOfTheWafer) {
  EXPECT_EQ(control.MeanCurveColor(), 0x008000u);
  EXPECT_EQ(control.UpperCurveColor(), 0x000080u);
  EXPECT_EQ(control.LowerCurveColor(), 0x800000u);
  control.MeanCurveColor(0x111111);
  control.UpperCurveColor(0x222222);
  control.LowerCurveColor(0x333333);
  EXPECT_EQ(control.wafobj.ColS2, 0x111111);
  EXPECT_EQ(control.wafobj.ColS1, 0x222222);
  EXPECT_EQ(control.wafobj.ColS3, 0x333333);
  EXPECT_EQ(control.MeanCurveColor(), 0x111111u);
  EXPECT_EQ(control.UpperCurveColor(), 0x222222u);
  EXPECT_EQ(control.LowerCurveColor(), 0x333333u);
}

TEST_F(Plot2DCTest, ThePlotFillsInTheInterval) {
  control.wafobj.WafDiam = 200, control.wafobj.WaferOrigRad = 100;
  control.load(square_of_sites());
  EXPECT_EQ(control.Interval(), 0);
  control.Plot();
  EXPECT_EQ(control.Interval(), 1);
}

// ---- The legend ----

TEST_F(Plot2DCTest, TheLegendHasTwoForms) {
  place();
  const double left = control.frmove.Left, top = control.frmove.Top, width = control.frmove.Width;
  for (const int colors : {2, 1, 2, 0, 2, -1, 3}) {
    control.PlotColored(static_cast<DrawColEnum>(colors));
    const bool ten = colors == 2;
    EXPECT_EQ(control.frleg0.Visible.get(), !ten);
    EXPECT_EQ(control.frleg.Visible.get(), ten);
    EXPECT_EQ(control.frmove.Height.get(), ten ? 5580 : 4440);
    EXPECT_EQ(control.FNLabel.Left.get(), 120);
    EXPECT_EQ(control.FNLabel.Top.get(), ten ? 3330 : 1920);
    EXPECT_EQ(control.Command1.Left.get(), 120);
    EXPECT_EQ(control.Command1.Top.get(), ten ? 5100 : 3840);
    EXPECT_EQ(control.frmove.Left.get(), left);
    EXPECT_EQ(control.frmove.Top.get(), top);
    EXPECT_EQ(control.frmove.Width.get(), width);
  }
}

TEST_F(Plot2DCTest, ANewControlHasTheLegendWithoutRows) {
  place();
  EXPECT_EQ(static_cast<int>(control.PlotColored()), -1);
  EXPECT_TRUE(control.frleg0.Visible);
  EXPECT_FALSE(control.frleg.Visible);
}

// ---- Plot ----

TEST_F(Plot2DCTest, DrawsTheCurvesInEveryColouring) {
  place();
  control.load(square_of_sites());
  control.IntervalInPercent(0);
  control.Interval(20);
  for (const int colors : {-1, 0, 1, 2})
    for (const ExconEnum marks : {ExconEnum::Exact, ExconEnum::Converted, ExconEnum::None}) {
      control.PlotColored(static_cast<DrawColEnum>(colors));
      control.marksites(marks);
      EXPECT_EQ(control.Plot(), 0);
      expect_curves(20);
    }
  for (const ResoEnum resolution : {ResoEnum::LowQuality, ResoEnum::HighQuality, ResoEnum::Automatic}) {
    control.Resolution(resolution);
    control.Plot();
    expect_curves(20);
  }
}

TEST_F(Plot2DCTest, DrawsAnIntervalOfTheUnitConverted) {
  place();
  control.load(square_of_sites());
  control.IntervalInPercent(-1);
  control.Interval(20);
  control.Plot();
  expect_curves(20 * 100 / control.mean());
}

TEST_F(Plot2DCTest, ANewControlDrawsInBlack) {
  place();
  control.load(square_of_sites());
  control.Interval(20);
  control.marksites(ExconEnum::None);
  control.Plot();
  for (const auto& line : calls_of<recorded::Line>(recording_of(control.PLOTA)))
    EXPECT_EQ(line.pen.color, 0u);
}

TEST_F(Plot2DCTest, ItsPlotIsStretchedWhileItIsValid) {
  place();
  control.load(square_of_sites());
  control.Interval(20);
  control.Plot();
  EXPECT_TRUE(control.PlotValid);
  EXPECT_EQ(toolkit.redraws, 1);
  control.Plot();
  control.resize_to(9000, 8000);
  EXPECT_EQ(toolkit.redraws, 1);
  EXPECT_TRUE(control.RePlot.Stretch);
}

// ---- Size ----

TEST_F(Plot2DCTest, TheColumnOnlyMovesToTheRightEdge) {
  place();
  const double width = control.frmove.Width;
  const double button = control.Command1.Width, label = control.FNLabel.Width;
  SiteColumns sites = square_of_sites();
  for (double& z : sites.z) z = z * 1000 + 123456;
  control.load(sites);
  control.PlotColored(DrawColEnum::Ten_ColorPlot);
  for (const double size : {5000.0, 9000.0, 12000.0}) {
    control.resize_to(size, 6000);
    EXPECT_EQ(control.frmove.Width.get(), width);
    EXPECT_EQ(control.frmove.Left.get(), size - width);
    EXPECT_EQ(control.Command1.Width.get(), button);
    EXPECT_EQ(control.FNLabel.Width.get(), label);
    const double side = std::min(size - width, 6000.0);
    EXPECT_DOUBLE_EQ(control.Frplot.Width, 0.97 * std::nearbyint(side));
    EXPECT_EQ(control.Frplot.Height.get(), std::nearbyint(side));
  }
}

TEST_F(Plot2DCTest, TheLeastSizesAreThoseOfAllMaps) {
  place();
  control.resize_to(100, 100);
  EXPECT_EQ(control.Width.get(), 4500);
  EXPECT_EQ(control.Height.get(), 3180);
  control.HideLegend(true);
  control.resize_to(100, 100);
  EXPECT_EQ(control.Width.get(), 750);
  EXPECT_EQ(control.Height.get(), 750);
}

// ---- A form that has no room for the least size ----

/// Holds a control to a size, whatever it asks for, and keeps what it asked for.
class NarrowForm : public Peer {
 public:
  NarrowForm(UserControl& control, const SurfaceSize& room, std::vector<SurfaceSize>& wishes)
      : control_(control), room_(room), wishes_(wishes) {}
  void changed() override {
    if (control_.Width <= room_.width && control_.Height <= room_.height) return;
    wishes_.push_back({control_.Width, control_.Height});
    control_.Width = std::min<double>(control_.Width, room_.width);
    control_.Height = std::min<double>(control_.Height, room_.height);
  }
  void refresh() override {}
  std::uintptr_t handle() const override { return 0; }

 private:
  UserControl& control_;
  const SurfaceSize room_;
  std::vector<SurfaceSize>& wishes_;
};

class NarrowToolkit : public SpyToolkit {
 public:
  explicit NarrowToolkit(const SurfaceSize& room) : room_(room) {}
  std::unique_ptr<Peer> make_peer(Widget& widget) override {
    if (widget.container()) return nullptr;
    return std::make_unique<NarrowForm>(dynamic_cast<UserControl&>(widget), room_, wishes);
  }
  std::vector<SurfaceSize> wishes;

 private:
  const SurfaceSize room_;
};

/// The sizes that a control asks for, and at last has, in a room.
template <class Control>
std::vector<SurfaceSize> sizes_in(const SurfaceSize& room) {
  NarrowToolkit toolkit(room);
  HeadlessContainer form;
  Open<Control> control(toolkit, form);
  control.InitProperties();
  EXPECT_EQ(control.load(square_of_sites()), 0);
  const double column = control.frmove.Left;
  control.Move(0, 0, room.width, room.height);
  toolkit.wishes.clear();
  control.resize_to(room.width, room.height);
  EXPECT_EQ(control.frmove.Left.get(), column) << "nothing is laid out";
  EXPECT_EQ(toolkit.redraws, 0);
  toolkit.wishes.push_back({control.Width, control.Height});
  return toolkit.wishes;
}

TEST(Plot2DCInANarrowForm, AsksForTheSecondLeastSizeAndStops) {
  EXPECT_EQ(sizes_in<Plot2DC>({2000, 1000}),
            (std::vector<SurfaceSize>{{4500, 1000}, {2000, 3180}, {3420, 1000}, {2000, 1335}, {2000, 1000}}));
  EXPECT_EQ(sizes_in<Plot2DC>({4000, 9000}), (std::vector<SurfaceSize>{{4500, 9000}, {4000, 9000}}));
  EXPECT_EQ(sizes_in<Plot2DC>({9000, 3000}), (std::vector<SurfaceSize>{{9000, 3180}, {9000, 3000}}));
}

TEST(MapsInANarrowForm, AskOnceAndStop) {
  const std::vector<SurfaceSize> once{{4500, 1000}, {2000, 3180}, {2000, 1000}};
  EXPECT_EQ(sizes_in<Plot2D>({2000, 1000}), once);
  EXPECT_EQ(sizes_in<Plot3DS>({2000, 1000}), once);
}

}  // namespace
}  // namespace mirolen
