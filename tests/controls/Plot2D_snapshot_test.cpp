#include "control_support.h"

namespace mirolen {
namespace {

class Plot2DSnapshot : public Plot2DTest {
 protected:
  bool shows_picture() const { return control.PLOTA.Visible && !stretched(); }
  bool shows_snapshot() const { return !control.PLOTA.Visible && stretched(); }
};

TEST_F(Plot2DSnapshot, HoldsWhatWasDrawn) {
  plot_square();
  ASSERT_TRUE(control.RePlot.Picture.get());
  EXPECT_EQ(difference(recording_of(control.RePlot.Picture.get()), recording_of(control.PLOTA)), "");
  EXPECT_TRUE(shows_picture());
}

TEST_F(Plot2DSnapshot, IsStretchedByAChangeOfSizeAndNothingIsRendered) {
  plot_square();
  const auto snapshot = control.RePlot.Picture.get();
  for (const double size : {7000.0, 5000.0, 9000.0}) {
    control.resize_to(size, size);
    EXPECT_TRUE(shows_snapshot());
    EXPECT_EQ(toolkit.redraws, 0);
    EXPECT_EQ(control.RePlot.Picture.get(), snapshot);
    EXPECT_EQ(control.RePlot.Width.get(), control.PLOTA.Width.get());
    EXPECT_TRUE(control.PlotValid);
  }
}

TEST_F(Plot2DSnapshot, IsStretchedByAnotherPlot) {
  plot_square();
  control.Plot();
  EXPECT_TRUE(shows_snapshot());
}

TEST_F(Plot2DSnapshot, OfAStalePlotIsReplacedAtTheNextChangeOfSize) {
  plot_square();
  control.resize_to(7000, 5000);
  const auto snapshot = control.RePlot.Picture.get();
  control.SetPlotNotVaild();
  EXPECT_TRUE(shows_snapshot()) << "the drawing stays until then";
  control.resize_to(8000, 6000);
  EXPECT_EQ(toolkit.redraws, 1);
  EXPECT_TRUE(shows_picture());
  EXPECT_NE(control.RePlot.Picture.get(), snapshot);
  EXPECT_EQ(snapshot_size(), control.PLOTA.pixel_size());
}

TEST_F(Plot2DSnapshot, IsGoneBeforePendingEventsRun) {
  plot_square();
  control.resize_to(7000, 5000);
  control.SetPlotNotVaild();
  bool seen = false;
  toolkit.pending_events = [&] {
    seen = true;
    EXPECT_TRUE(shows_picture());
    EXPECT_EQ(control.RePlot.Picture.get(), nullptr);
    EXPECT_FALSE(control.PlotValid);
  };
  control.Plot();
  EXPECT_TRUE(seen);
}

TEST_F(Plot2DSnapshot, ThatIsNotStretchedStaysUntilTheNewOne) {
  plot_square();
  control.SetPlotNotVaild();
  const auto snapshot = control.RePlot.Picture.get();
  toolkit.pending_events = [&] { EXPECT_EQ(control.RePlot.Picture.get(), snapshot); };
  control.Plot();
  EXPECT_NE(control.RePlot.Picture.get(), snapshot);
}

TEST_F(Plot2DSnapshot, StaysByAChangeOfBackground) {
  plot_square();
  control.BackColor(0x445566);
  control.resize_to(7000, 5000);
  EXPECT_EQ(toolkit.redraws, 0);
  EXPECT_TRUE(shows_snapshot());
}

TEST_F(Plot2DSnapshot, IsNotMadeWithoutData) {
  place();
  control.resize_to(7000, 5000);
  EXPECT_EQ(toolkit.redraws, 0);
  EXPECT_EQ(control.RePlot.Picture.get(), nullptr);
  EXPECT_FALSE(control.PlotValid);
  EXPECT_FALSE(stretched());
}

TEST_F(Plot2DSnapshot, NewDataAreRendered) {
  plot_square();
  control.resize_to(7000, 5000);
  control.load(sites_near_centre());
  EXPECT_EQ(control.Plot(), 0);
  EXPECT_EQ(toolkit.redraws, 1);
  EXPECT_TRUE(shows_picture());
}

TEST_F(Plot2DSnapshot, NewDataAfterAnotherWaferDiameterAreRendered) {
  plot_square();
  control.resize_to(7000, 5000);
  control.WaferDiameter(300);
  control.load(square_of_sites());
  EXPECT_TRUE(control.PLOTA.Visible);
  EXPECT_EQ(control.Plot(), 0);
  EXPECT_EQ(toolkit.redraws, 1);
  EXPECT_TRUE(shows_picture());
}

TEST_F(Plot2DSnapshot, TheMousePointerIsAnHourglassWhileDrawing) {
  place();
  control.load(square_of_sites());
  int wrong = 0, drawn = 0, pointer_at_events = 0;
  toolkit.pending_events = [&] { pointer_at_events = control.MousePointer(); };
  toolkit.on_draw = [&](const PictureBox& box, std::string_view call) {
    if (call == "clear" || (&box != &control.PLOTA && &box != &control.FNPic)) return;
    ++drawn;
    if (control.MousePointer() != 11) ++wrong;
  };
  control.Plot();
  toolkit.on_draw = nullptr;
  EXPECT_GT(drawn, 10);
  EXPECT_EQ(wrong, 0);
  EXPECT_EQ(pointer_at_events, 11);
  EXPECT_EQ(control.MousePointer(), 0);
}

TEST_F(Plot2DSnapshot, ThePointerOfTheHostIsLostAfterARedraw) {
  place();
  control.load(square_of_sites());
  control.MousePointer(5);
  control.Plot();
  EXPECT_EQ(control.MousePointer(), 0);
}

TEST_F(Plot2DSnapshot, ThePointerOfTheHostIsLostWithoutDataToo) {
  place();
  control.MousePointer(5);
  control.resize_to(7000, 5000);
  EXPECT_EQ(control.MousePointer(), 0);
}

TEST_F(Plot2DSnapshot, ThePointerOfTheHostOutlastsAStretch) {
  plot_square();
  control.MousePointer(5);
  control.resize_to(7000, 5000);
  EXPECT_EQ(control.MousePointer(), 5);
}

}  // namespace
}  // namespace mirolen
