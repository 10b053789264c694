#include "control_support.h"

namespace mirolen {
namespace {

/// The host acts from the pending events of the first redraw.
class Plot2DReentry : public Plot2DTest {
 protected:
  void during_redraw(std::function<void()> act) {
    toolkit.pending_events = [this, act = std::move(act)] {
      if (!acted_) {
        acted_ = true;
        act();
      }
    };
  }
  std::int16_t plot() {
    const std::int16_t result = control.Plot();
    EXPECT_TRUE(acted_);
    EXPECT_EQ(control.MousePointer(), 0);
    return result;
  }

 private:
  bool acted_ = false;
};

TEST_F(Plot2DReentry, PendingEventsRunOnceARedraw) {
  place();
  control.load(square_of_sites());
  int runs = 0;
  toolkit.pending_events = [&] { ++runs; };
  control.Plot();
  EXPECT_EQ(runs, 1);
  control.Plot();
  EXPECT_EQ(runs, 1);
}

TEST_F(Plot2DReentry, APlotWithinAPlotDrawsTwice) {
  place();
  control.load(square_of_sites());
  during_redraw([&] { EXPECT_EQ(control.Plot(), 0); });
  EXPECT_EQ(plot(), 0);
  EXPECT_EQ(toolkit.redraws, 2);
  EXPECT_TRUE(control.PlotValid);
  EXPECT_FALSE(picture_is_blank());
}

TEST_F(Plot2DReentry, NewDataAreTheOnesDrawn) {
  place();
  control.load(square_of_sites());
  during_redraw([&] { EXPECT_EQ(control.load(sites_near_centre()), 0); });
  EXPECT_EQ(plot(), 0);
  EXPECT_EQ(sites_of(control), sites_near_centre());
  const Recording first = recording_of(control.PLOTA);
  control.SetPlotNotVaild();
  control.Plot();
  EXPECT_EQ(difference(recording_of(control.PLOTA), first), "");
}

TEST_F(Plot2DReentry, AChangeOfSizeIsTheOneDrawn) {
  place();
  control.load(square_of_sites());
  during_redraw([&] { control.resize_to(9000, 8000); });
  EXPECT_EQ(plot(), 0);
  EXPECT_EQ(control.Width.get(), 9000);
  EXPECT_EQ(snapshot_size(), control.PLOTA.pixel_size());
  EXPECT_FALSE(picture_is_blank());
}

TEST_F(Plot2DReentry, DataThatGoAreNotDrawn) {
  place();
  control.load(square_of_sites());
  during_redraw([&] { control.WaferDiameter(300); });
  EXPECT_EQ(plot(), 0);
  EXPECT_EQ(sites_of(control), SiteColumns{});
}

TEST_F(Plot2DReentry, SettingsThatChangeAreTheOnesDrawn) {
  place();
  control.load(square_of_sites());
  during_redraw([&] {
    control.ShowSites(Sites::ShowSite);
    control.Resolution(10);
  });
  EXPECT_EQ(plot(), 0);
  const Recording first = recording_of(control.PLOTA);
  control.SetPlotNotVaild();
  control.Plot();
  EXPECT_EQ(difference(recording_of(control.PLOTA), first), "");
}

TEST_F(Plot2DReentry, AResolutionThatBecomesTooHighIsTold) {
  place();
  control.load(sites_near_centre());
  during_redraw([&] { control.TestDiameter(16); });
  EXPECT_EQ(plot(), 0);
  EXPECT_EQ(toolkit.messages.size(), 1u);
}

TEST_F(Plot2DReentry, EveryMemberMayBeCalled) {
  const std::vector<std::function<void()>> acts{
      [&] { control.clear(); },
      [&] { control.HideLegend(true); },
      [&] { control.SetPlotLimit(10, 20); },
      [&] { control.ReleasePlotLimit(); },
      [&] { control.TestDiameter(0); },
      [&] { control.BackColor(1); },
      [&] { control.InitProperties(); },
      [&] { control.resize_to(0, 0); },
      [&] { control.SetPlotNotVaild(); },
      [&] { control.SetDataFile("nowhere", 3); },
  };
  for (const auto& act : acts) {
    place();
    control.HideLegend(false);
    control.load(square_of_sites());
    int depth = 0;
    toolkit.pending_events = [&] {
      if (depth++ == 0) act();
    };
    EXPECT_EQ(control.Plot(), 0);
    EXPECT_EQ(depth > 0, true);
    EXPECT_EQ(control.MousePointer(), 0);
    EXPECT_TRUE(!stretched() || !control.PLOTA.Visible);
  }
}

}  // namespace
}  // namespace mirolen
