#include <cmath>
#include <map>

#include "control_support.h"
#include "dialogs/page_monkey.h"
#include "mirolen/automation/PropertyBag.h"
#include "mirolen/dialogs/WaferInfoProp.h"
#include "mirolen/dialogs/plan_pages.h"
#include "mirolen/dialogs/view_pages.h"

namespace mirolen {
namespace {

using automation::Variant;

/// A control and the dialog of its properties.
template <class Control>
class PagesOf : public ControlTest<Control> {
 protected:
  PagesOf() {
    this->control.InitProperties();
    this->control.TestDiameter(194);  // the wafer's own setter does not change it
    this->forget_notices();
  }

  /// Lets a user work with the dialog.
  void shown_to(const std::function<void(PropertyDialog&)>& user) {
    this->toolkit.on_modal = [&](Form& form) { user(dynamic_cast<PropertyDialog&>(form)); };
    PropertyDialog dialog(this->toolkit, {this->object()});
    dialog.Show();
  }
  static WaferInfoProp& wafer_page(PropertyDialog& dialog) {
    return dynamic_cast<WaferInfoProp&>(dialog.page(0));
  }
  /// All that the control stores.
  std::map<std::string, Variant> settings() {
    automation::MemoryPropertyBag bag;
    WriteProperties(this->object(), bag);
    return bag.values;
  }
};

template <class Control>
class PagesOfAll : public PagesOf<Control> {};
TYPED_TEST_SUITE(PagesOfAll, AllControls, ControlNames);

TYPED_TEST(PagesOfAll, ShowTheWaferOfTheControl) {
  this->control.WaferDiameter(150.5);
  this->control.TestDiameter(140.25);
  this->control.WaferStyle(WaferSt::Flat);
  this->control.HideLegend(true);
  this->shown_to([&](PropertyDialog& dialog) {
    EXPECT_EQ(this->wafer_page(dialog).txtWaferDiameter.Text(), "150.5");
    EXPECT_EQ(this->wafer_page(dialog).txtTestDiameter.Text(), "140.25");
    EXPECT_TRUE(this->wafer_page(dialog).nfbox(2).Value());
    EXPECT_TRUE(this->wafer_page(dialog).showLeg.Value());
  });
}

TYPED_TEST(PagesOfAll, WriteTheWaferOfTheControl) {
  this->shown_to([&](PropertyDialog& dialog) {
    this->wafer_page(dialog).txtWaferDiameter.Text("300");
    this->wafer_page(dialog).txtTestDiameter.Text("290.5");
    this->wafer_page(dialog).nfbox(2).Value(true);
    this->wafer_page(dialog).showLeg.Value(true);
    dialog.OKbtn.OnClick();
    EXPECT_FALSE(dialog.Visible);
  });
  EXPECT_EQ(this->control.WaferDiameter(), 300);
  EXPECT_EQ(this->control.TestDiameter(), 290.5);
  EXPECT_EQ(this->control.WaferStyle(), WaferSt::Flat);
  EXPECT_TRUE(this->control.HideLegend());
  EXPECT_EQ(this->form.changes, (Names{"WaferDiameter", "TestDiameter", "WaferStyle", "HideLegend"}));
}

TYPED_TEST(PagesOfAll, RefuseATestDiameterBeyondTheWafer) {
  this->shown_to([&](PropertyDialog& dialog) {
    this->wafer_page(dialog).txtTestDiameter.Text("201");
    this->wafer_page(dialog).nfbox(2).Value(true);
    dialog.OKbtn.OnClick();
    EXPECT_TRUE(dialog.Visible);
  });
  EXPECT_EQ(this->control.WaferDiameter(), 200);
  EXPECT_EQ(this->control.TestDiameter(), 194);
  EXPECT_EQ(this->control.WaferStyle(), WaferSt::Flat);
  EXPECT_EQ(this->toolkit.messages.size(), 1u);
}

TYPED_TEST(PagesOfAll, WriteNothingWithoutAnEdit) {
  const auto before = this->settings();
  this->shown_to([](PropertyDialog& dialog) { dialog.OKbtn.OnClick(); });
  EXPECT_EQ(this->settings(), before);
  EXPECT_EQ(this->form.changes, Names{});
}

TYPED_TEST(PagesOfAll, AppliedAsTheyAreLeaveTheSettings) {
  const auto before = this->settings();
  this->shown_to([&](PropertyDialog& dialog) {
    for (int i = 0; i < dialog.pages(); ++i) EXPECT_TRUE(dialog.page(i).ApplyChanges());
  });
  EXPECT_EQ(this->settings(), before);
}

TYPED_TEST(PagesOfAll, KeepTheDataWhereADiameterStays) {
  this->plot_square();
  this->control.WaferDiameter(150.123456789012345);  // more digits than its text
  this->control.TestDiameter(140.1);
  ASSERT_EQ(this->control.load(sites_near_centre()), 0);
  this->forget_notices();
  this->shown_to([&](PropertyDialog& dialog) {
    this->wafer_page(dialog).showLeg.Value(true);
    dialog.OKbtn.OnClick();
  });
  EXPECT_EQ(sites_of(this->control), sites_near_centre());
  EXPECT_TRUE(this->control.HideLegend());
  for (const std::string& change : this->form.changes) EXPECT_FALSE(change.ends_with("Diameter")) << change;
}

TYPED_TEST(PagesOfAll, WriteEachDiameterThatIsAnother) {
  this->place();
  ASSERT_EQ(this->control.load(sites_near_centre()), 0);
  this->shown_to([&](PropertyDialog& dialog) {
    this->wafer_page(dialog).txtTestDiameter.Text("150");
    dialog.OKbtn.OnClick();
  });
  EXPECT_EQ(this->control.TestDiameter(), 150);
  EXPECT_EQ(sites_of(this->control), sites_near_centre());
  this->shown_to([&](PropertyDialog& dialog) {
    this->wafer_page(dialog).txtWaferDiameter.Text("300");
    dialog.OKbtn.OnClick();
  });
  EXPECT_EQ(this->control.WaferDiameter(), 300);
  EXPECT_EQ(sites_of(this->control), SiteColumns{});
}

TYPED_TEST(PagesOfAll, OfTwoControlsCompareEachWithItsOwnDiameter) {
  this->place();
  HeadlessContainer other_form;
  Open<TypeParam> other(this->toolkit, other_form);
  other.InitProperties();
  other.WaferDiameter(150);
  other.load(sites_near_centre());
  this->control.load(sites_near_centre());
  this->toolkit.on_modal = [&](Form& form) {
    auto& dialog = dynamic_cast<PropertyDialog&>(form);
    this->wafer_page(dialog).nfbox(2).Value(true);
    dialog.OKbtn.OnClick();
  };
  PropertyDialog(this->toolkit, {this->object(), described(static_cast<TypeParam&>(other))}).Show();
  EXPECT_EQ(sites_of(this->control), sites_near_centre());
  EXPECT_EQ(other.WaferDiameter(), 200) << "that of the first control, written to all";
  EXPECT_EQ(sites_of(other), SiteColumns{});
  EXPECT_EQ(other.WaferStyle(), WaferSt::Flat);
}

TYPED_TEST(PagesOfAll, ChangeNothingWhenCancelled) {
  const auto before = this->settings();
  this->shown_to([](PropertyDialog& dialog) {
    PageMonkey user(dialog, 1);
    dialog.apply.OnClick = [] {};
    for (int step = 0; step < 200; ++step) user.act();
    dialog.cancel.OnClick();
  });
  EXPECT_EQ(this->settings(), before);
  EXPECT_EQ(this->form.changes, Names{});
}

TYPED_TEST(PagesOfAll, WithstandRandomTyping) {
  const unsigned long long seed = wanted_seed();
  SCOPED_TRACE("MIROLEN_SEED=" + std::to_string(seed));
  this->place();
  this->shown_to([&](PropertyDialog& dialog) {
    PageMonkey user(dialog, seed);
    for (int step = 0; step < 1000; ++step) user.act();
  });
  EXPECT_GT(this->control.WaferDiameter(), 0);
  EXPECT_TRUE(std::isfinite(this->control.WaferDiameter()));
  EXPECT_GE(this->control.TestDiameter(), 0);
  for (const HeadlessToolkit::Message& message : this->toolkit.messages)
    EXPECT_EQ(message.text, "Wafer diamter can not be less than test diameter");
  this->control.WaferDiameter(200);  // a small wafer that was typed has no room for them
  EXPECT_EQ(this->control.load(square_of_sites()), 0);
  EXPECT_EQ(this->control.MousePointer(), 0);
}

class LineScanPages : public PagesOf<LineScan> {};

TEST_F(LineScanPages, SetTheAngle) {
  shown_to([&](PropertyDialog& dialog) {
    auto& page = dynamic_cast<LineScanAngleProp&>(dialog.page(1));
    page.txtAngle.Text("123");
    dialog.apply.OnClick();
    EXPECT_EQ(control.angle(), 123);
    page.txtAngle.Text("360");
    dialog.apply.OnClick();
    EXPECT_EQ(control.angle(), 0);
    EXPECT_EQ(page.txtAngle.Text(), "0");
  });
  EXPECT_TRUE(toolkit.messages.empty());
}

class Plot2DPages : public PagesOf<Plot2D> {};

TEST_F(Plot2DPages, ShowWhatTheControlMakesOfAValue) {
  shown_to([&](PropertyDialog& dialog) {
    auto& page = dynamic_cast<Plot2DProp&>(dialog.page(1));
    page.txtResolution.Text("1000");
    page.chkShowSites.Value(true);
    dialog.apply.OnClick();
    EXPECT_EQ(control.Resolution(), 48.5);
    EXPECT_EQ(page.txtResolution.Text(), "48.5");
    EXPECT_EQ(control.ShowSites(), Sites::ShowSite);
    page.txtResolution.Text("");
    dialog.apply.OnClick();
    EXPECT_EQ(control.Resolution(), 5);
  });
}

class Plot2DSPages : public PagesOf<Plot2DS> {};

TEST_F(Plot2DSPages, SetTheSigmaRange) {
  shown_to([&](PropertyDialog& dialog) {
    dynamic_cast<Plot2DSProp&>(dialog.page(1)).txtSigmaRange.Text("1.25");
    dialog.OKbtn.OnClick();
  });
  EXPECT_EQ(control.SigmaRange(), 1.25);
  EXPECT_EQ(control.Resolution(), 5);
}

class Plot2DCPages : public PagesOf<Plot2DC> {};

TEST_F(Plot2DCPages, SetTheCurves) {
  shown_to([&](PropertyDialog& dialog) {
    auto& page = dynamic_cast<Plot2DCProp&>(dialog.page(1));
    EXPECT_FALSE(page.chkPercent.Value());
    page.txtInterval.Text("2.5");
    page.chkPercent.Value(true);
    page.OptQuali(2).Value(true);
    page.OptExcon(3).Value(true);
    page.Optcol(1).Value(true);
    dialog.OKbtn.OnClick();
  });
  EXPECT_EQ(control.Interval(), 2.5);
  EXPECT_EQ(control.IntervalInPercent(), 0);
  EXPECT_EQ(control.Resolution(), ResoEnum::Automatic);
  EXPECT_EQ(control.marksites(), ExconEnum::None);
  EXPECT_EQ(control.PlotColored(), DrawColEnum::Three_ColorPlot);
}

class Plot3DPages : public PagesOf<Plot3D> {};

TEST_F(Plot3DPages, SetTheSurface) {
  shown_to([&](PropertyDialog& dialog) {
    auto& page = dynamic_cast<Plot3DProp&>(dialog.page(1));
    page.txtXResolution.Text("2");
    page.txtYResolution.Text("3");
    page.txtPlotScale.Text("50");
    page.txtGridInclination.Text("20");
    page.txtGridRotation.Text("30");
    page.txtWaferRotation.Text("270");
    page.optPlot(3).Value(true);
    dialog.OKbtn.OnClick();
  });
  EXPECT_EQ(control.XResolution(), 2);
  EXPECT_EQ(control.YResolution(), 3);
  EXPECT_EQ(control.PlotScale(), 50);
  EXPECT_EQ(control.GridInclination(), 20);
  EXPECT_EQ(control.GridRotation(), 30);
  EXPECT_EQ(control.WaferRotation(), 270);
  EXPECT_EQ(control.PlotType(), PlotTypeEnum::WireFrame);
}

class Plot3DSPages : public PagesOf<Plot3DS> {};

TEST_F(Plot3DSPages, SetTheSurface) {
  shown_to([&](PropertyDialog& dialog) {
    auto& page = dynamic_cast<Plot3DSProp&>(dialog.page(1));
    page.txtSigmaRange.Text("1.5");
    page.txtGridRotation.Text("90");
    dialog.OKbtn.OnClick();
  });
  EXPECT_EQ(control.SigmaRange(), 1.5);
  EXPECT_EQ(control.GridRotation(), 90);
}

class HistogramPages : public PagesOf<Histogram> {};

TEST_F(HistogramPages, SetTheChart) {
  shown_to([&](PropertyDialog& dialog) {
    auto& page = dynamic_cast<HistogrammProp&>(dialog.page(1));
    EXPECT_EQ(page.txtResolution.Text(), "10");
    page.txtResolution.Text("12");
    page.optPlot(4).Value(true);
    dialog.OKbtn.OnClick();
  });
  EXPECT_EQ(control.Resolution(), 12);
  EXPECT_EQ(control.PlotType(), PlotTyEnum::vbRight);
}

}  // namespace
}  // namespace mirolen
