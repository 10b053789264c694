#include "control_support.h"

namespace mirolen {
namespace {

using Plot2DPlot = Plot2DTest;

TEST_F(Plot2DPlot, WithoutDataItIsRefusedAndDrawsNothing) {
  place();
  EXPECT_EQ(control.Plot(), 1);
  EXPECT_EQ(toolkit.redraws, 0);
  EXPECT_TRUE(picture_is_blank());
  EXPECT_FALSE(control.PlotShown);
}

TEST_F(Plot2DPlot, WithoutDataItFillsInNothing) {
  EXPECT_EQ(control.Plot(), 1);
  EXPECT_EQ(control.WaferDiameter(), 0);
  EXPECT_EQ(control.TestDiameter(), 0);
  EXPECT_EQ(control.Resolution(), 0);
  EXPECT_TRUE(form.changes.empty());
}

TEST_F(Plot2DPlot, DrawsTheData) {
  place();
  control.load(square_of_sites());
  EXPECT_EQ(control.Plot(), 0);
  EXPECT_EQ(toolkit.redraws, 1);
  EXPECT_FALSE(picture_is_blank());
  EXPECT_TRUE(control.PlotShown);
  EXPECT_TRUE(control.PlotValid);
}

TEST_F(Plot2DPlot, TwiceInARowRendersOnce) {
  plot_square();
  EXPECT_EQ(control.Plot(), 0);
  EXPECT_EQ(toolkit.redraws, 0);
}

TEST_F(Plot2DPlot, EverySetterOfALookMakesItRenderAgain) {
  const std::vector<std::function<void()>> setters{
      [&] { control.TestDiameter(190); },         [&] { control.Resolution(7); },
      [&] { control.WaferStyle(WaferSt::Flat); }, [&] { control.ShowSites(Sites::ShowSite); },
      [&] { control.PlotCaption("other"); },      [&] { control.IntervalColor(4, 0x123456); },
      [&] { control.SetPlotNotVaild(); },
  };
  plot_square();
  for (std::size_t i = 0; i < setters.size(); ++i) {
    setters[i]();
    EXPECT_FALSE(control.PlotValid) << i;
    EXPECT_EQ(toolkit.redraws, static_cast<int>(i)) << "a setter never redraws by itself";
    EXPECT_EQ(control.Plot(), 0);
    EXPECT_EQ(toolkit.redraws, static_cast<int>(i + 1));
    EXPECT_TRUE(control.PlotValid);
  }
}

TEST_F(Plot2DPlot, LaysTheControlOut) {
  place();
  control.load(square_of_sites());
  form.scale_mode = 3;
  control.Frplot.Width = 1;
  control.Plot();
  EXPECT_EQ(form.scale_mode, 1);
  EXPECT_GT(control.Frplot.Width, 1);
}

TEST_F(Plot2DPlot, MissingWaferDiameterErasesTheData) {
  control.resize_to(6000, 4000);
  ASSERT_EQ(control.load(sites_near_centre()), 0);
  forget_notices();
  EXPECT_EQ(control.Plot(), 0);
  EXPECT_EQ(form.changes, (Names{"WaferStyle", "WaferDiameter", "TestDiameter", "Resolution"}));
  EXPECT_EQ(control.WaferStyle(), WaferSt::Notch);
  EXPECT_EQ(control.wafobj.flat_ratio, 1.0);
  EXPECT_EQ(control.WaferDiameter(), 200);
  EXPECT_EQ(control.TestDiameter(), 200);
  EXPECT_EQ(control.Resolution(), 5);
  EXPECT_EQ(sites_of(control), SiteColumns{});
  EXPECT_FALSE(control.PlotShown);
  EXPECT_TRUE(picture_is_blank());
}

TEST_F(Plot2DPlot, FillsInWhatIsMissingBesidesTheDiameterAndDraws) {
  control.resize_to(6000, 4000);
  control.WaferDiameter(300);
  ASSERT_EQ(control.load(square_of_sites()), 0);
  forget_notices();
  EXPECT_EQ(control.Plot(), 0);
  EXPECT_EQ(form.changes, (Names{"WaferStyle", "TestDiameter", "Resolution"}));
  EXPECT_EQ(control.TestDiameter(), 300);
  EXPECT_EQ(control.Resolution(), 5);
  EXPECT_EQ(toolkit.redraws, 1);
  EXPECT_EQ(sites_of(control), square_of_sites());
}

TEST_F(Plot2DPlot, FillsInNothingThatIsSet) {
  place();
  control.load(square_of_sites());
  control.Plot();
  EXPECT_TRUE(form.changes.empty());
}

TEST_F(Plot2DPlot, ATestDiameterBeyondTheWaferBecomesTheWafers) {
  place();
  control.load(square_of_sites());
  control.TestDiameter(250);
  forget_notices();
  EXPECT_EQ(control.Plot(), 0);
  EXPECT_EQ(control.TestDiameter(), 200);
  EXPECT_EQ(form.changes, Names{"TestDiameter"});
}

TEST_F(Plot2DPlot, ATestDiameterWithinTheWaferStays) {
  place();
  control.load(square_of_sites());
  control.TestDiameter(200);
  forget_notices();
  control.Plot();
  EXPECT_EQ(control.TestDiameter(), 200);
  EXPECT_TRUE(form.changes.empty());
}

TEST_F(Plot2DPlot, OfFewSitesStillSucceeds) {
  place();
  ASSERT_EQ(control.SetWaferData(std::vector{1.0}, std::vector{2.0}, std::vector{3.0}), 0);
  EXPECT_EQ(control.Plot(), 0);
  EXPECT_TRUE(control.PlotValid);
}

TEST_F(Plot2DPlot, AChangeOfSizeDrawsDataThatWereNotPlottedYet) {
  place();
  control.load(square_of_sites());
  control.resize_to(6100, 4100);
  EXPECT_EQ(toolkit.redraws, 1);
  EXPECT_TRUE(control.PlotValid);
  EXPECT_FALSE(control.PlotShown);
}

TEST_F(Plot2DPlot, ClearingKeepsTheData) {
  plot_square();
  control.clear();
  EXPECT_TRUE(picture_is_blank());
  EXPECT_FALSE(control.PlotShown);
  EXPECT_FALSE(control.PlotValid);
  EXPECT_EQ(sites_of(control), square_of_sites());
  EXPECT_EQ(control.Plot(), 0);
  EXPECT_EQ(toolkit.redraws, 1);
  EXPECT_FALSE(picture_is_blank());
}

TEST_F(Plot2DPlot, ClearingLeavesNothingOfAStretchedPlotToSee) {
  plot_square();
  control.resize_to(7000, 5000);
  ASSERT_TRUE(stretched());
  control.clear();
  EXPECT_TRUE(control.PLOTA.Visible || !control.RePlot.Picture.get());
  control.resize_to(7000, 5000);
  EXPECT_TRUE(control.PLOTA.Visible);
}

struct HighResolution {
  double test_diameter;
  const char* text;
};

class ResolutionMessage : public Plot2DTest, public testing::WithParamInterface<HighResolution> {};

TEST_P(ResolutionMessage, TellsTheLargestPossibleOne) {
  place();
  control.load(sites_near_centre());
  control.TestDiameter(GetParam().test_diameter);
  ASSERT_EQ(control.Resolution(), 5);
  forget_notices();
  EXPECT_EQ(control.Plot(), 0);
  EXPECT_EQ(form.changes, Names{"Resolution"});
  ASSERT_EQ(toolkit.messages.size(), 1u);
  EXPECT_EQ(toolkit.messages[0].text, GetParam().text);
  EXPECT_EQ(toolkit.messages[0].title, "Standard resolution to high ");
  EXPECT_EQ(toolkit.messages[0].icon, MessageIcon::critical);
  EXPECT_EQ(control.Resolution(), GetParam().test_diameter / 4);
  EXPECT_TRUE(control.PlotValid);
}

INSTANTIATE_TEST_SUITE_P(Diameters, ResolutionMessage,
                         testing::Values(HighResolution{16, "Maximal possible resolution is 4 mm"},
                                         HighResolution{15, "Maximal possible resolution is 3.75 mm"},
                                         HighResolution{10, "Maximal possible resolution is 2.5 mm"},
                                         HighResolution{40.0 / 3,
                                                        "Maximal possible resolution is 3.33333333333333 mm"},
                                         HighResolution{19.6, "Maximal possible resolution is 4.9 mm"}));

TEST_F(Plot2DPlot, AQuarterOfTheTestDiameterIsNoReasonForAMessage) {
  place();
  control.load(sites_near_centre());
  control.TestDiameter(20);
  control.Plot();
  EXPECT_TRUE(toolkit.messages.empty());
  EXPECT_EQ(control.Resolution(), 5);
}

TEST_F(Plot2DPlot, TheMessageComesBehindPendingEventsAndBeforeThePicture) {
  place();
  control.load(sites_near_centre());
  control.TestDiameter(16);
  std::size_t messages_at_events = 99, messages_at_drawing = 99;
  toolkit.pending_events = [&] { messages_at_events = toolkit.messages.size(); };
  toolkit.on_draw = [&](const PictureBox& box, std::string_view call) {
    if (&box == &control.PLOTA && call == "ellipse") messages_at_drawing = toolkit.messages.size();
  };
  control.Plot();
  toolkit.on_draw = nullptr;
  EXPECT_EQ(messages_at_events, 0u);
  EXPECT_EQ(messages_at_drawing, 1u);
}

TEST_F(Plot2DPlot, TheMessageComesOnce) {
  place();
  control.load(sites_near_centre());
  control.TestDiameter(16);
  control.Plot();
  control.SetPlotNotVaild();
  control.Plot();
  EXPECT_EQ(toolkit.messages.size(), 1u);
}

}  // namespace
}  // namespace mirolen
