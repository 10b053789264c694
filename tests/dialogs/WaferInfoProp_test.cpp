#include "mirolen/dialogs/WaferInfoProp.h"

#include <gtest/gtest.h>

#include "fake_control.h"
#include "mirolen/widgets/Form.h"
#include "mirolen/widgets/Headless.h"
#include "support/CommaInForce.h"

namespace mirolen {
namespace {

using Writes = FakeControl::Writes;

class WaferInfoPage : public testing::Test {
 protected:
  void SetUp() override { page.SelectionChanged({control.object()}); }

  Writes all(double diameter, double test, int style, bool hidden) const {
    return {{"WaferDiameter", diameter},
            {"TestDiameter", test},
            {"WaferStyle", std::int32_t{style}},
            {"HideLegend", hidden}};
  }
  /// What is written where the wafer's diameter stays.
  Writes all_of_the_same_wafer(double test, int style, bool hidden) const {
    Writes writes = all(0, test, style, hidden);
    writes.erase(writes.begin());
    return writes;
  }

  HeadlessToolkit toolkit;
  Form form{toolkit};
  FakeControl control = fake_of_all("Plot2DN");
  WaferInfoProp page{&form};
};

TEST_F(WaferInfoPage, HasItsTexts) {
  EXPECT_EQ(page.Caption.get(), "Wafer Size");
  EXPECT_EQ(page.lblWaferDiameter.Caption.get(), "Wafer diameter :");
  EXPECT_EQ(page.lblTestDiameter.Caption.get(), "Test diameter :");
  EXPECT_EQ(page.nfbox(1).Caption.get(), "Notch");
  EXPECT_EQ(page.nfbox(2).Caption.get(), "Flat");
  EXPECT_EQ(page.showLeg.Caption.get(), "Hide Plot Legend:");
}

TEST_F(WaferInfoPage, TakesTheValuesOfTheControlInHand) {
  EXPECT_EQ(page.txtWaferDiameter.Text(), "200");
  EXPECT_EQ(page.txtTestDiameter.Text(), "194");
  EXPECT_TRUE(page.nfbox(1).Value());
  EXPECT_FALSE(page.showLeg.Value());
  control.put("WaferDiameter", 150.25);
  control.put("TestDiameter", 0.5);
  control.put("WaferStyle", std::int32_t{2});
  control.put("HideLegend", true);
  page.SelectionChanged({control.object()});
  EXPECT_EQ(page.txtWaferDiameter.Text(), "150.25");
  EXPECT_EQ(page.txtTestDiameter.Text(), "0.5");
  EXPECT_TRUE(page.nfbox(2).Value());
  EXPECT_FALSE(page.nfbox(1).Value());
  EXPECT_TRUE(page.showLeg.Value());
  EXPECT_TRUE(control.writes.empty());
}

TEST_F(WaferInfoPage, TakesTheFirstOfSeveralControlsAndWritesToItAlone) {
  FakeControl other = fake_of_all("Plot2D");
  other.put("WaferDiameter", 100.0);
  page.SelectionChanged({other.object(), control.object()});
  EXPECT_EQ(page.txtWaferDiameter.Text(), "100");
  page.txtTestDiameter.Text("90");
  EXPECT_TRUE(page.ApplyChanges());
  EXPECT_EQ(other.writes, all_of_the_same_wafer(90, 1, false));
  EXPECT_TRUE(control.writes.empty());
}

TEST_F(WaferInfoPage, IsIdleWithoutAControl) {
  page.SelectionChanged({});
  page.txtWaferDiameter.Text("150");
  EXPECT_TRUE(page.ApplyChanges());
  EXPECT_TRUE(control.writes.empty());
}

TEST_F(WaferInfoPage, IsUnchangedAfterASelection) {
  EXPECT_FALSE(page.Changed());
  page.txtWaferDiameter.Text("250");
  control.put("WaferDiameter", 300.0);
  page.SelectionChanged({control.object()});
  EXPECT_FALSE(page.Changed());
}

TEST_F(WaferInfoPage, IsChangedByEveryField) {
  const std::vector<std::function<void()>> edits{
      [&] { page.txtWaferDiameter.Text("201"); }, [&] { page.txtTestDiameter.Text("195.5"); },
      [&] { page.nfbox(2).Value(true); }, [&] { page.showLeg.Value(true); }};
  int told = 0;
  page.OnChanged = [&] { told += page.Changed(); };
  for (const auto& edit : edits) {
    page.SelectionChanged({control.object()});
    told = 0;
    edit();
    EXPECT_TRUE(page.Changed());
    EXPECT_GT(told, 0);
  }
}

TEST_F(WaferInfoPage, PutsFixedNumbersInThePlaceOfBadText) {
  for (const char* bad : {"", "x", "-", "1e2", "1d2", "1,5", "2 0", " "}) {
    page.SelectionChanged({control.object()});
    page.txtWaferDiameter.Text("250");
    page.txtWaferDiameter.Text(bad);
    EXPECT_EQ(page.txtWaferDiameter.Text(), "200") << bad;
    page.txtTestDiameter.Text(bad);
    EXPECT_EQ(page.txtTestDiameter.Text(), "195") << bad;
    EXPECT_TRUE(page.Changed());
  }
}

TEST_F(WaferInfoPage, LeavesGoodText) {
  for (const char* good : {"1", "200.5", ".5", "-3", "+7", " 8 ", "199."}) {
    page.txtWaferDiameter.Text(good);
    page.txtTestDiameter.Text(good);
    EXPECT_EQ(page.txtWaferDiameter.Text(), good);
    EXPECT_EQ(page.txtTestDiameter.Text(), good);
  }
}

TEST_F(WaferInfoPage, WritesTheDiameterFirst) {
  page.txtWaferDiameter.Text("150.5");
  page.txtTestDiameter.Text("140.25");
  page.nfbox(2).Value(true);
  page.showLeg.Value(true);
  EXPECT_TRUE(page.ApplyChanges());
  EXPECT_EQ(control.writes, all(150.5, 140.25, 2, true));
  EXPECT_FALSE(page.Changed());
  EXPECT_TRUE(toolkit.messages.empty());
}

TEST_F(WaferInfoPage, LeavesDiametersThatAreTheControlsOwn) {
  page.txtWaferDiameter.Text("200.0");
  page.showLeg.Value(true);
  EXPECT_TRUE(page.ApplyChanges());
  EXPECT_EQ(control.writes, (Writes{{"WaferStyle", std::int32_t{1}}, {"HideLegend", true}}));
  control.writes.clear();
  control.put("WaferDiameter", 200 / 3.0);  // more digits than its text
  control.put("TestDiameter", 190 / 3.0);
  page.SelectionChanged({control.object()});
  page.nfbox(2).Value(true);
  EXPECT_TRUE(page.ApplyChanges());
  EXPECT_EQ(control.writes, (Writes{{"WaferStyle", std::int32_t{2}}, {"HideLegend", true}}));
}

TEST_F(WaferInfoPage, EqualDiametersPass) {
  page.txtTestDiameter.Text("200");
  EXPECT_TRUE(page.ApplyChanges());
  EXPECT_EQ(control.writes, all_of_the_same_wafer(200, 1, false));
}

TEST_F(WaferInfoPage, DiametersThatAreEqualInSinglePrecisionPass) {
  page.txtTestDiameter.Text("200.000001");
  EXPECT_TRUE(page.ApplyChanges());
  EXPECT_EQ(control.writes, all_of_the_same_wafer(200.000001, 1, false));
}

TEST_F(WaferInfoPage, ATestDiameterBeyondTheWaferIsRefusedAndTheRestWritten) {
  for (const char* beyond : {"200.0001", "201", "5000"}) {
    page.SelectionChanged({control.object()});
    control.writes.clear();
    toolkit.messages.clear();
    page.txtTestDiameter.Text(beyond);
    page.nfbox(2).Value(true);
    page.showLeg.Value(true);
    EXPECT_FALSE(page.ApplyChanges());
    EXPECT_EQ(control.writes, (Writes{{"WaferStyle", std::int32_t{2}}, {"HideLegend", true}}));
    EXPECT_EQ(toolkit.messages, (std::vector<HeadlessToolkit::Message>{
                                    {"Wafer diamter can not be less than test diameter", "Input Error"}}));
    EXPECT_EQ(page.txtTestDiameter.Text(), beyond);
    EXPECT_TRUE(page.Changed());
  }
}

TEST_F(WaferInfoPage, ADiameterBeyondSinglePrecisionStaysAway) {
  const std::string huge = "4" + std::string(38, '0');
  page.txtWaferDiameter.Text(huge);
  page.ApplyChanges();
  EXPECT_EQ(control.writes, (Writes{{"WaferStyle", std::int32_t{1}}, {"HideLegend", false}}));
}

TEST_F(WaferInfoPage, ShowsTheMarkThatIsChosen) {
  EXPECT_EQ(page.FNPic.pixel_size(), (SurfaceSize{34, 34}));
  const auto expected = [&](double flat_ratio) {
    wafer shown;
    shown.flat_ratio = flat_ratio;
    RecordingSurface surface({34, 34}, {15, 15});
    SurfaceCanvas canvas(CanvasKind::picture_box, &surface);
    canvas.BackColor(toolkit.resolve(page.FNPic.BackColor));
    double x0 = 0, y0 = 0;
    shown.FlatNotchShow(nullptr, canvas, x0, y0, 0, 0, 90);
    return surface.recording();
  };
  EXPECT_EQ(page.FNLabel.Caption.get(), "Notch");
  EXPECT_EQ(recording_of(page.FNPic), expected(1));
  page.nfbox(2).Value(true);
  EXPECT_EQ(page.FNLabel.Caption.get(), "Flat");
  EXPECT_EQ(recording_of(page.FNPic), expected(0.98));
  page.nfbox(1).Value(true);
  EXPECT_EQ(page.FNLabel.Caption.get(), "Notch");
  EXPECT_EQ(recording_of(page.FNPic), expected(1));
}

TEST_F(WaferInfoPage, ReadsAndShowsTheDecimalCommaOfItsLocale) {
  control.put("WaferDiameter", 150.5);
  {
    const CommaInForce comma;
    WaferInfoProp here(&form);
    here.SelectionChanged({control.object()});
    EXPECT_EQ(here.txtWaferDiameter.Text(), "150,5");
    here.txtTestDiameter.Text("149.5");
    EXPECT_EQ(here.txtTestDiameter.Text(), "195");
    here.txtTestDiameter.Text("149,25");
    EXPECT_TRUE(here.ApplyChanges());
  }
  EXPECT_EQ(control.writes, all_of_the_same_wafer(149.25, 1, false));
}

}  // namespace
}  // namespace mirolen
