#include "control_support.h"

namespace mirolen {
namespace {

template <class Control>
class Angles : public ControlTest<Control> {
 protected:
  void SetUp() override { this->plot_square(); }
};

using PerspectiveControls = testing::Types<Plot2DB, Plot3D, Plot3DS>;
TYPED_TEST_SUITE(Angles, PerspectiveControls, ControlNames);

TYPED_TEST(Angles, TheWafersRotationIs0To359AndElse40) {
  const std::pair<int, int> values[] = {{-1, 0},    {-32768, 0}, {0, 0},      {1, 1},       {92, 92},
                                        {359, 359}, {360, 40},   {32767, 40}, {-0x7FFF, 0}, {361, 40}};
  for (const auto& [told, kept] : values) {
    this->control.WaferRotation(7);
    this->control.WaferRotation(static_cast<std::int16_t>(told));
    EXPECT_EQ(this->control.WaferRotation(), kept) << told;
  }
}

TYPED_TEST(Angles, TheGridsRotationIs0To91AndElse40) {
  const std::pair<int, int> values[] = {{-1, 0},  {-32768, 0}, {0, 0},    {90, 90},
                                        {91, 91}, {92, 40},    {360, 40}, {32767, 40}};
  for (const auto& [told, kept] : values) {
    this->control.GridRotation(7);
    this->control.GridRotation(static_cast<std::int16_t>(told));
    EXPECT_EQ(this->control.GridRotation(), kept) << told;
  }
}

TYPED_TEST(Angles, TheInclinationIs0To91AndElse35) {
  const std::pair<int, int> values[] = {{-1, 0},  {-32768, 0}, {0, 0},    {90, 90},
                                        {91, 91}, {92, 35},    {360, 35}, {32767, 35}};
  for (const auto& [told, kept] : values) {
    this->control.GridInclination(7);
    this->control.GridInclination(static_cast<std::int16_t>(told));
    EXPECT_EQ(this->control.GridInclination(), kept) << told;
  }
}

TYPED_TEST(Angles, OfTheGridMakeThePlotStaleThatOfTheWaferDoesNot) {
  this->control.WaferRotation(100);
  EXPECT_TRUE(this->control.PlotValid);
  this->control.GridRotation(10);
  EXPECT_FALSE(this->control.PlotValid);
  this->control.PlotValid = true;
  this->control.GridInclination(10);
  EXPECT_FALSE(this->control.PlotValid);
}

TYPED_TEST(Angles, AreToldToTheHostAndNotDrawn) {
  this->control.WaferRotation(100);
  this->control.GridRotation(10);
  this->control.GridInclination(20);
  EXPECT_EQ(this->form.changes, (Names{"WaferRotation", "GridRotation", "GridInclination"}));
  EXPECT_EQ(this->toolkit.redraws, 0);
}

TYPED_TEST(Angles, TheMiniatureFollowsTheView) {
  this->control.WaferRotation(100);
  this->control.GridInclination(20);
  this->control.Plot();
  Twin twin(this->control.FNPic, this->toolkit);
  double x0 = 34, y0 = 34;
  this->control.wafobj.FlatNotchShow(nullptr, twin.canvas, x0, y0, 30, 100, 20);
  EXPECT_EQ(difference(recording_of(this->control.FNPic), twin.recording()), "");
}

template <class Control>
class SurfaceSettings : public ControlTest<Control> {
 protected:
  void SetUp() override { this->plot_square(); }
};

using SurfaceControls = testing::Types<Plot3D, Plot3DS>;
TYPED_TEST_SUITE(SurfaceSettings, SurfaceControls, ControlNames);

TYPED_TEST(SurfaceSettings, StepsAreHeldToAQuarterOfTheTestDiameterWithoutAWord) {
  const std::pair<double, double> values[] = {{0, 5},       {-0.001, 5},    {-1e300, 5},   {0.5, 0.5},
                                              {48.5, 48.5}, {48.501, 48.5}, {1e300, 48.5}, {2.25, 2.25}};
  for (const auto& [told, kept] : values) {
    this->control.XResolution(told);
    EXPECT_EQ(this->control.XResolution(), kept) << told;
    this->control.YResolution(told);
    EXPECT_EQ(this->control.YResolution(), kept) << told;
  }
  EXPECT_TRUE(this->toolkit.messages.empty());
}

TYPED_TEST(SurfaceSettings, ASmallTestDiameterCutsTheDefaultStepToo) {
  this->control.TestDiameter(10);
  this->control.XResolution(0);
  EXPECT_EQ(this->control.XResolution(), 2.5);
}

TYPED_TEST(SurfaceSettings, AStepTellsTheWafer) {
  this->control.wafobj.changeResx = false;
  this->control.XResolution(7);
  EXPECT_TRUE(this->control.wafobj.changeResx);
  this->control.wafobj.changeResx = false;
  this->control.YResolution(7);
  EXPECT_TRUE(this->control.wafobj.changeResx);
}

TYPED_TEST(SurfaceSettings, EachStepIsItsOwn) {
  this->control.XResolution(7);
  this->control.YResolution(11);
  EXPECT_EQ(this->control.XResolution(), 7);
  EXPECT_EQ(this->control.YResolution(), 11);
}

TYPED_TEST(SurfaceSettings, AHeightBelow1Becomes0) {
  const std::pair<int, int> values[] = {{0, 0}, {-5, 0}, {-32768, 0}, {1, 1}, {40, 40}, {32767, 32767}};
  for (const auto& [told, kept] : values) {
    this->control.PlotScale(static_cast<std::int16_t>(told));
    EXPECT_EQ(this->control.PlotScale(), kept) << told;
  }
}

TYPED_TEST(SurfaceSettings, MakeThePlotStaleAndAreTold) {
  const std::pair<const char*, std::function<void()>> settings[] = {
      {"XResolution", [&] { this->control.XResolution(7); }},
      {"YResolution", [&] { this->control.YResolution(7); }},
      {"PlotScale", [&] { this->control.PlotScale(7); }}};
  for (const auto& [name, set] : settings) {
    this->control.PlotValid = true;
    this->form.changes.clear();
    set();
    EXPECT_FALSE(this->control.PlotValid) << name;
    EXPECT_EQ(this->form.changes, Names{name});
  }
  EXPECT_EQ(this->toolkit.redraws, 0);
}

TYPED_TEST(SurfaceSettings, AreFilledInByThePlot) {
  Open<TypeParam> fresh(this->toolkit, this->form);
  fresh.load(square_of_sites());
  EXPECT_EQ(fresh.XResolution(), 0);
  fresh.wafobj.WafDiam = 200, fresh.wafobj.WaferOrigRad = 100;
  fresh.load(square_of_sites());
  fresh.Plot();
  EXPECT_EQ(fresh.XResolution(), 5);
  EXPECT_EQ(fresh.YResolution(), 5);
}

class Plot3DType : public ControlTest<Plot3D> {
 protected:
  std::vector<recorded::Polygon> cells() { return calls_of<recorded::Polygon>(recording_of(control.PLOTA)); }
};

TEST_F(Plot3DType, IsKeptAndMakesThePlotStale) {
  plot_square();
  control.PlotType(PlotTypeEnum::WireFrame);
  EXPECT_EQ(control.PlotType(), PlotTypeEnum::WireFrame);
  EXPECT_FALSE(control.PlotValid);
  EXPECT_EQ(form.changes, Names{"PlotType"});
}

TEST_F(Plot3DType, ReachesTheRenderer) {
  plot_square();
  for (const PlotTypeEnum type :
       {PlotTypeEnum::PolyEdge, PlotTypeEnum::HiddenWireFrame, PlotTypeEnum::WireFrame}) {
    control.PlotType(type);
    control.Plot();
    Twin twin(control.PLOTA, toolkit);
    wafer copy = control.wafobj;
    copy.D3Plot(twin.canvas, 5, 5, 40, 40, 40, 35, static_cast<std::int16_t>(type), 0, false, 0, 0, 0, 0, 0);
    EXPECT_EQ(difference(recording_of(control.PLOTA), twin.recording()), "");
  }
}

TEST_F(Plot3DType, IsKeptIn16Bits) {
  plot_square();
  control.PlotType(PlotTypeEnum::WireFrame);
  form.changes.clear();
  control.PlotValid = true;
  control.PlotType(static_cast<PlotTypeEnum>(65537));
  EXPECT_EQ(control.PlotType(), PlotTypeEnum::WireFrame);
  EXPECT_TRUE(control.PlotValid);
  EXPECT_EQ(form.changes, Names{});
}

TEST_F(Plot3DType, IsFilledInByThePlot) {
  control.wafobj.WafDiam = 200, control.wafobj.WaferOrigRad = 100;
  control.load(square_of_sites());
  control.Plot();
  EXPECT_EQ(control.PlotType(), PlotTypeEnum::PolyEdge);
}

class Plot2DBSettings : public ControlTest<Plot2DB> {};

TEST_F(Plot2DBSettings, ReachTheRenderer) {
  plot_square();
  control.BeamWidth(9);
  control.BeamHeight(3);
  control.BeamScale(0.5);
  control.GridRotation(20);
  control.WaferRotation(70);
  control.GridInclination(60);
  control.Plot();
  Twin twin(control.PLOTA, toolkit);
  wafer copy = control.wafobj;
  copy.D2BeamPlot(twin.canvas, 9, 3, 0.5, 20, 70, 60, false, 0, 0, 0, 0, 0);
  EXPECT_EQ(difference(recording_of(control.PLOTA), twin.recording()), "");
}

TEST_F(Plot2DBSettings, AFootprintOf0IsFilledInByThePlot) {
  plot_square();
  control.BeamWidth(0);
  control.BeamHeight(0);
  control.BeamScale(0);
  control.Plot();
  EXPECT_EQ(control.BeamWidth(), 5);
  EXPECT_EQ(control.BeamHeight(), 5);
  EXPECT_EQ(control.BeamScale(), 0);
}

TEST_F(Plot2DBSettings, AreToldAndMakeThePlotStale) {
  plot_square();
  control.BeamWidth(9);
  EXPECT_FALSE(control.PlotValid);
  control.BeamHeight(3);
  control.BeamScale(2);
  EXPECT_EQ(form.changes, (Names{"BeamWidth", "BeamHeight", "BeamScale"}));
}

}  // namespace
}  // namespace mirolen
