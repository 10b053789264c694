#include "control_support.h"

namespace mirolen {
namespace {

class Plot2DFailures : public Plot2DTest {
 protected:
  void fail_on(const PictureBox& picture) {
    toolkit.on_draw = [&picture](const PictureBox& box, std::string_view call) {
      if (&box == &picture) throw CanvasError(std::string(call));
    };
  }
  void fail_everywhere() {
    toolkit.on_draw = [](const PictureBox&, std::string_view call) { throw CanvasError(std::string(call)); };
  }
  void fail_at(int number) {
    toolkit.on_draw = [number, count = 0](const PictureBox&, std::string_view call) mutable {
      if (++count == number) throw CanvasError(std::string(call));
    };
  }

  /// All that a host may call, one after the other.
  void use_everything(OpenPlot2D& plot) {
    EXPECT_NO_THROW(plot.InitProperties());
    EXPECT_NO_THROW(plot.resize_to(6000, 4000));
    EXPECT_NO_THROW(plot.load(square_of_sites()));
    EXPECT_NO_THROW(plot.Plot());
    EXPECT_NO_THROW(plot.BackColor(0x445566));
    EXPECT_NO_THROW(plot.PlotCaption("text"));
    EXPECT_NO_THROW(plot.ShowSites(Sites::ShowSite));
    EXPECT_NO_THROW(plot.SetPlotLimit(10, 90));
    EXPECT_NO_THROW(plot.ReleasePlotLimit());
    EXPECT_NO_THROW(plot.HideLegend(true));
    EXPECT_NO_THROW(plot.TestDiameter(100));
    EXPECT_NO_THROW(plot.clear());
    EXPECT_NO_THROW(plot.WaferDiameter(300));
    EXPECT_NO_THROW(plot.SetDataFile("nowhere", 5));
    EXPECT_EQ(plot.MousePointer(), 0);
  }
};

TEST_F(Plot2DFailures, ACanvasThatFailsReachesNobody) {
  fail_everywhere();
  use_everything(control);
}

TEST_F(Plot2DFailures, APictureThatStartsToFailReachesNobody) {
  plot_square();
  fail_everywhere();
  use_everything(control);
}

TEST_F(Plot2DFailures, AToolkitWithoutPicturesReachesNobody) {
  toolkit.makes_surfaces = false;
  use_everything(control);
}

TEST_F(Plot2DFailures, AFormWithoutScaleModeReachesNobody) {
  FormWithoutScaleMode bare;
  OpenPlot2D on_bare(toolkit, bare);
  use_everything(on_bare);
}

TEST_F(Plot2DFailures, SettersStillTakeTheirLastStep) {
  plot_square();
  fail_everywhere();
  control.BackColor(0x445566);
  control.WaferDiameter(300);
  control.HideLegend(true);
  EXPECT_EQ(form.changes, (Names{"BackColor", "WaferDiameter", "HideLegend"}));
  EXPECT_EQ(control.BackColor(), 0x445566u);
}

TEST_F(Plot2DFailures, AWaferDiameterIsTakenThoughThePictureCannotBeErased) {
  plot_square();
  fail_everywhere();
  control.WaferDiameter(300);
  EXPECT_EQ(sites_of(control), SiteColumns{}) << "the data go first";
  EXPECT_EQ(form.changes, Names{"WaferDiameter"});
}

TEST_F(Plot2DFailures, LoadingGivesFourWhereThePictureCannotBeErased) {
  plot_square();
  fail_on(control.PLOTA);
  EXPECT_EQ(control.load(sites_near_centre()), 4);
}

TEST_F(Plot2DFailures, APlotThatCannotBeDrawnStillReturnsZero) {
  place();
  control.load(square_of_sites());
  fail_everywhere();
  EXPECT_EQ(control.Plot(), 0);
  EXPECT_EQ(control.MousePointer(), 0);
  EXPECT_TRUE(control.PlotShown);
}

TEST_F(Plot2DFailures, TheOldPictureStaysWhereTheSmallWaferFails) {
  plot_square();
  const Recording before = recording_of(control.PLOTA);
  control.SetPlotNotVaild();
  fail_on(control.FNPic);
  EXPECT_EQ(control.Plot(), 0);
  toolkit.on_draw = nullptr;
  EXPECT_EQ(difference(recording_of(control.PLOTA), before), "");
  EXPECT_FALSE(control.PlotValid);
  EXPECT_EQ(control.MousePointer(), 0);
}

TEST_F(Plot2DFailures, AFailedPlotIsDrawnByTheNext) {
  place();
  control.load(square_of_sites());
  fail_on(control.FNPic);
  control.Plot();
  toolkit.on_draw = nullptr;
  EXPECT_EQ(control.Plot(), 0);
  EXPECT_TRUE(control.PlotValid);
  EXPECT_FALSE(picture_is_blank());
}

TEST_F(Plot2DFailures, AnySingleCallMayFail) {
  place();
  control.load(sites_near_centre());
  control.Resolution(40);
  int calls = 0;
  toolkit.on_draw = [&](const PictureBox&, std::string_view) { ++calls; };
  control.Plot();
  ASSERT_GT(calls, 50);
  for (int number = 1; number <= calls; ++number) {
    control.SetPlotNotVaild();
    fail_at(number);
    EXPECT_EQ(control.Plot(), 0);
    EXPECT_EQ(control.MousePointer(), 0) << number;
    if (number % 2) control.resize_to(6000 + number, 5000);
    EXPECT_EQ(control.MousePointer(), 0) << number;
  }
}

TEST_F(Plot2DFailures, AHostThatThrowsFromPendingEventsEndsTheRedraw) {
  place();
  control.load(square_of_sites());
  toolkit.pending_events = [] { throw InvalidArgument("from the host"); };
  EXPECT_EQ(control.Plot(), 0);
  EXPECT_EQ(control.MousePointer(), 0);
  EXPECT_FALSE(control.PlotValid);
}

}  // namespace
}  // namespace mirolen
