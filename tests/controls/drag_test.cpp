#include "control_support.h"

namespace mirolen {
namespace {

// Drawn by hand as the three controls are to draw, with the steps of the grid given.
void draw(Plot2DB& control, PlotCanvas& canvas, double) {
  wafer copy = control.wafobj;
  copy.D2BeamPlot(canvas, control.BeamWidth(), control.BeamHeight(), control.BeamScale(),
                  control.GridRotation(), control.WaferRotation(), control.GridInclination(), false, 0, 0, 0,
                  0, 0);
}
void draw_surface(SurfaceFrame& control, PlotCanvas& canvas, double step, std::int16_t style, double range) {
  wafer copy = control.wafobj;
  copy.D3Plot(canvas, step, step, control.PlotScale(), control.GridRotation(), control.WaferRotation(),
              control.GridInclination(), style, range, false, 0, 0, 0, 0, 0);
}
void draw(Plot3D& control, PlotCanvas& canvas, double step) {
  draw_surface(control, canvas, step, static_cast<std::int16_t>(control.PlotType()), 0);
}
void draw(Plot3DS& control, PlotCanvas& canvas, double step) {
  draw_surface(control, canvas, step, 4, control.SigmaRange());
}

constexpr double full_step = 5;

/// The control is 6000 by 4000 twips, which is 400 by 266 2/3 pixels: 90 degrees each.
template <class Control>
class Drag : public ControlTest<Control> {
 protected:
  void SetUp() override { this->plot_square(); }

  static void press(Widget& on, float x, float y) { on.OnMouseDown({1, 0, x, y}); }
  static void move(Widget& on, float x, float y) { on.OnMouseMove({1, 0, x, y}); }
  static void release(Widget& on, float x, float y) { on.OnMouseUp({1, 0, x, y}); }

  void expect_angles(int rotation, int inclination) const {
    EXPECT_EQ(this->control.GridRotation(), rotation);
    EXPECT_EQ(this->control.GridInclination(), inclination);
  }
  void expect_drawn_with_step(double step) {
    Twin twin(this->control.PLOTA, this->toolkit);
    draw(this->control, twin.canvas, step);
    ASSERT_GT(calls_of<recorded::Polygon>(twin.recording()).size(), 20u);
    EXPECT_EQ(difference(recording_of(this->control.PLOTA), twin.recording()), "");
    EXPECT_EQ(difference(recording_of(this->control.RePlot.Picture.get()), twin.recording()), "");
  }
  void expect_miniature_of_the_view() {
    Twin twin(this->control.FNPic, this->toolkit);
    double x0 = 34, y0 = 34;
    this->control.wafobj.FlatNotchShow(nullptr, twin.canvas, x0, y0, 30, this->control.WaferRotation(),
                                       this->control.GridInclination());
    EXPECT_EQ(difference(recording_of(this->control.FNPic), twin.recording()), "");
  }
  bool shows_picture() const { return this->control.PLOTA.Visible && !this->control.RePlot.Stretch; }
};

using PerspectiveControls = testing::Types<Plot2DB, Plot3D, Plot3DS>;
TYPED_TEST_SUITE(Drag, PerspectiveControls, ControlNames);

TYPED_TEST(Drag, BeginsWithTheCoarseGridAndThePresentAngles) {
  this->press(this->control.PLOTA, 100, 100);
  this->expect_angles(40, 35);
  this->expect_drawn_with_step(22);  // 194 / 9
  this->expect_miniature_of_the_view();
}

TYPED_TEST(Drag, TheCoarseStepIsRoundedHalfToEven) {
  this->control.TestDiameter(184.5);
  this->press(this->control.PLOTA, 100, 100);
  this->expect_drawn_with_step(20);
}

TYPED_TEST(Drag, LetsPendingEventsRunBeforeItDraws) {
  this->control.resize_to(6000, 4000);
  ASSERT_FALSE(this->shows_picture());
  int runs = 0;
  this->toolkit.pending_events = [&] {
    ++runs;
    EXPECT_TRUE(this->shows_picture());
  };
  this->press(this->control.PLOTA, 100, 100);
  EXPECT_EQ(runs, 1);
}

TYPED_TEST(Drag, TurnsBy90DegreesOverTheWholeControl) {
  this->press(this->control.PLOTA, 200, 100);
  this->move(this->control.PLOTA, 200 - 40, 100 - 26);  // 9 degrees, and 8.775
  this->expect_angles(49, 44);
  this->move(this->control.PLOTA, 200, 100);
  this->expect_angles(40, 35);
  this->move(this->control.PLOTA, 200 + 80, 100 + 50);  // 18 degrees, and 16.875
  this->expect_angles(22, 18);
}

TYPED_TEST(Drag, AnglesAreRoundedHalfToEven) {
  this->control.resize_to(6000, 6000);
  this->press(this->control.PLOTA, 100, 100);
  this->move(this->control.PLOTA, 90, 110);  // 2.25 and -2.25 degrees
  this->expect_angles(42, 33);
  this->move(this->control.PLOTA, 70, 130);  // 4.5 and -4.5
  this->expect_angles(46, 29);
  this->move(this->control.PLOTA, 40, 160);  // 6.75 and -6.75
  this->expect_angles(53, 22);
}

TYPED_TEST(Drag, FollowsTheSizeOfTheControl) {
  this->control.resize_to(12000, 12000);
  this->press(this->control.PLOTA, 100, 100);
  this->move(this->control.PLOTA, 20, 180);  // a tenth of 800 pixels
  this->expect_angles(49, 26);
}

TYPED_TEST(Drag, StepsAddUp) {
  this->press(this->control.PLOTA, 200, 100);
  for (int step = 1; step <= 4; ++step)
    this->move(this->control.PLOTA, static_cast<float>(200 + 20 * step), 100);
  this->expect_angles(40 - 4 * 4, 35);  // 4.5 degrees a step, each rounded to 4
}

TYPED_TEST(Drag, AMoveOfLessThanHalfADegreeDoesNothing) {
  this->press(this->control.PLOTA, 100, 100);
  const auto snapshot = this->control.RePlot.Picture.get();
  this->move(this->control.PLOTA, 102, 101);
  this->expect_angles(40, 35);
  EXPECT_EQ(this->control.RePlot.Picture.get(), snapshot);
  this->move(this->control.PLOTA, 104, 101);  // 0.9 degrees from the press, which it is measured from
  this->expect_angles(39, 35);
  EXPECT_NE(this->control.RePlot.Picture.get(), snapshot);
}

TYPED_TEST(Drag, ClipsTheAnglesAt0And90) {
  this->press(this->control.PLOTA, 200, 100);
  this->move(this->control.PLOTA, -300, -300);
  this->expect_angles(90, 90);
  this->expect_drawn_with_step(22);
  this->move(this->control.PLOTA, 700, 700);
  this->expect_angles(0, 0);
  this->expect_drawn_with_step(22);
  this->move(this->control.PLOTA, 700 - 40, 700);
  this->expect_angles(9, 0);
}

TYPED_TEST(Drag, TakesAnAngleOf91BackTo90) {
  this->control.GridInclination(91);
  this->control.GridRotation(91);
  this->press(this->control.PLOTA, 100, 100);
  this->expect_angles(91, 91);
  this->move(this->control.PLOTA, 96, 97);
  this->expect_angles(90, 90);
}

TYPED_TEST(Drag, EachStepDrawsMiniatureAndCoarsePlot) {
  this->press(this->control.PLOTA, 100, 100);
  this->move(this->control.PLOTA, 60, 80);
  this->expect_drawn_with_step(22);
  this->expect_miniature_of_the_view();
}

TYPED_TEST(Drag, EachAngleThatChangesIsToldOnce) {
  this->press(this->control.PLOTA, 200, 100);
  EXPECT_TRUE(this->form.changes.empty());
  this->move(this->control.PLOTA, 160, 74);
  EXPECT_EQ(this->form.changes, (Names{"GridInclination", "GridRotation"}));
  this->move(this->control.PLOTA, 120, 74);
  EXPECT_EQ(this->form.changes, (Names{"GridInclination", "GridRotation", "GridRotation"}));
  this->form.changes.clear();
  this->move(this->control.PLOTA, 120, -900);
  this->move(this->control.PLOTA, 120, -1800);
  EXPECT_EQ(this->form.changes, Names{"GridInclination"}) << "90 stays 90";
  this->release(this->control.PLOTA, 120, -1800);
  EXPECT_EQ(this->form.changes.size(), 1u);
}

TYPED_TEST(Drag, LeavesTheWafersRotation) {
  this->press(this->control.PLOTA, 100, 100);
  this->move(this->control.PLOTA, 60, 80);
  this->release(this->control.PLOTA, 60, 80);
  EXPECT_EQ(this->control.WaferRotation(), 40);
}

TYPED_TEST(Drag, ThePictureIsNotValidUntilTheRelease) {
  this->press(this->control.PLOTA, 100, 100);
  EXPECT_FALSE(this->control.PlotValid);
  this->move(this->control.PLOTA, 60, 80);
  EXPECT_FALSE(this->control.PlotValid);
  this->release(this->control.PLOTA, 60, 80);
  EXPECT_TRUE(this->control.PlotValid);
  EXPECT_TRUE(this->shows_picture());
}

TYPED_TEST(Drag, TheReleaseDrawsInFull) {
  this->press(this->control.PLOTA, 100, 100);
  this->move(this->control.PLOTA, 60, 80);
  this->forget_notices();
  this->release(this->control.PLOTA, 60, 80);
  EXPECT_EQ(this->toolkit.redraws, 1);
  this->expect_drawn_with_step(full_step);
}

TYPED_TEST(Drag, APressWithoutAMoveIsDrawnInFullAgain) {
  this->press(this->control.PLOTA, 100, 100);
  this->release(this->control.PLOTA, 100, 100);
  this->expect_angles(40, 35);
  this->expect_drawn_with_step(full_step);
  EXPECT_TRUE(this->control.PlotValid);
}

TYPED_TEST(Drag, TheReleaseIsToldToTheHostAsItCame) {
  this->press(this->control.PLOTA, 100, 100);
  this->control.PLOTA.OnMouseUp({2, 3, 60.5f, -80});
  EXPECT_EQ(this->form.events, Names{"MouseUp 2 3 60.5 -80"});
}

TYPED_TEST(Drag, TheHostHearsOfTheReleaseBeforeThePlotIsDrawn) {
  this->press(this->control.PLOTA, 100, 100);
  std::size_t told = 0;
  this->toolkit.pending_events = [&] { told = this->form.events.size(); };
  this->release(this->control.PLOTA, 100, 100);
  EXPECT_EQ(told, 1u);
}

TYPED_TEST(Drag, EndsWithTheRelease) {
  this->press(this->control.PLOTA, 100, 100);
  this->release(this->control.PLOTA, 100, 100);
  this->move(this->control.PLOTA, 0, 0);
  this->expect_angles(40, 35);
  EXPECT_TRUE(this->control.PlotValid);
}

TYPED_TEST(Drag, AMoveWithoutAPressDoesNothing) {
  this->move(this->control.PLOTA, 0, 0);
  this->expect_angles(40, 35);
  EXPECT_TRUE(this->control.PlotValid);
  this->expect_drawn_with_step(full_step);
}

TYPED_TEST(Drag, NeedsNoPermission) {
  this->control.EnableRotation = false;
  this->press(this->control.PLOTA, 100, 100);
  this->move(this->control.PLOTA, 60, 100);
  this->expect_angles(49, 35);
}

TYPED_TEST(Drag, NeedsData) {
  Open<TypeParam> empty(this->toolkit, this->form);
  empty.InitProperties();
  this->forget_notices();
  empty.PLOTA.OnMouseDown({1, 0, 100, 100});
  empty.PLOTA.OnMouseMove({1, 0, 0, 0});
  EXPECT_EQ(empty.GridRotation(), 40);
  EXPECT_EQ(empty.GridInclination(), 35);
  EXPECT_EQ(empty.RePlot.Picture.get(), nullptr);
  empty.PLOTA.OnMouseUp({1, 0, 0, 0});
  EXPECT_EQ(this->form.events, Names{"MouseUp 1 0 0 0"});
  EXPECT_EQ(empty.MousePointer(), 0);
}

TYPED_TEST(Drag, WorksOnTheSnapshotInItsTwips) {
  this->control.resize_to(6000, 4000);
  ASSERT_FALSE(this->control.PLOTA.Visible);
  Widget& snapshot = this->control.RePlot;
  this->press(snapshot, 15 * 200, 15 * 100);
  EXPECT_TRUE(this->shows_picture());
  this->move(snapshot, 15 * (200 - 40), 15 * (100 - 26));
  this->expect_angles(49, 44);
  this->expect_drawn_with_step(22);
  this->release(snapshot, 15 * 160, 15 * 74);
  EXPECT_EQ(this->form.events, Names{"MouseUp 1 0 2400 1110"});
  this->expect_drawn_with_step(full_step);
}

TYPED_TEST(Drag, CannotLeaveTheRangeWhateverTheMove) {
  this->press(this->control.PLOTA, 100, 100);
  for (const float odd : {1e30f, -1e30f, static_cast<float>(infinity), static_cast<float>(not_a_number)}) {
    EXPECT_NO_THROW(this->move(this->control.PLOTA, odd, odd));
    EXPECT_GE(this->control.GridRotation(), 0);
    EXPECT_LE(this->control.GridRotation(), 90);
    EXPECT_GE(this->control.GridInclination(), 0);
    EXPECT_LE(this->control.GridInclination(), 90);
  }
  EXPECT_NO_THROW(this->release(this->control.PLOTA, 0, 0));
  EXPECT_EQ(this->control.MousePointer(), 0);
}

TYPED_TEST(Drag, DataThatVanishWhileDraggingAreNoTrouble) {
  this->press(this->control.PLOTA, 100, 100);
  this->control.WaferDiameter(200);
  EXPECT_NO_THROW(this->move(this->control.PLOTA, 60, 80));
  EXPECT_NO_THROW(this->release(this->control.PLOTA, 60, 80));
  EXPECT_FALSE(this->control.PlotValid);
  EXPECT_EQ(this->control.MousePointer(), 0);
}

// ---- The coarse grid next to the full one ----

template <class Control>
class SurfaceDrag : public ControlTest<Control> {};

using SurfaceControls = testing::Types<Plot3D, Plot3DS>;
TYPED_TEST_SUITE(SurfaceDrag, SurfaceControls, ControlNames);

TYPED_TEST(SurfaceDrag, HasFarFewerCellsThanTheFullPlot) {
  this->plot_square();
  const auto cells = [&] { return calls_of<recorded::Polygon>(recording_of(this->control.PLOTA)).size(); };
  EXPECT_EQ(cells(), 42u * 42);  // twice 194 / 2 / 5 + 2, rounded
  this->control.PLOTA.OnMouseDown({1, 0, 0, 0});
  EXPECT_EQ(cells(), 12u * 12);
  this->control.PLOTA.OnMouseMove({1, 0, 50, 50});
  EXPECT_EQ(cells(), 12u * 12);
  this->control.PLOTA.OnMouseUp({1, 0, 50, 50});
  EXPECT_EQ(cells(), 42u * 42);
}

TYPED_TEST(SurfaceDrag, LeavesTheResolutions) {
  this->plot_square();
  this->control.XResolution(7);
  this->control.YResolution(11);
  this->control.PLOTA.OnMouseDown({1, 0, 0, 0});
  this->control.PLOTA.OnMouseUp({1, 0, 0, 0});
  EXPECT_EQ(this->control.XResolution(), 7);
  EXPECT_EQ(this->control.YResolution(), 11);
}

}  // namespace
}  // namespace mirolen
