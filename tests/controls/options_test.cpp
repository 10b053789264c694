#include <algorithm>
#include <map>
#include <type_traits>

#include "control_support.h"
#include "mirolen/automation/PropertyBag.h"
#include "mirolen/dialogs/frmPlotHist.h"
#include "mirolen/dialogs/frmPlotOpt1D.h"
#include "mirolen/dialogs/frmPlotOpt2DB.h"
#include "mirolen/dialogs/frmPlotOpt2DC.h"
#include "mirolen/dialogs/frmPlotOpt2d.h"
#include "mirolen/dialogs/frmPlotOpt2ds.h"
#include "mirolen/dialogs/frmPlotOpt3d.h"
#include "mirolen/dialogs/frmPlotOpt3ds.h"

namespace mirolen {
namespace {

template <class Control>
constexpr bool has_options = !std::is_same_v<Control, Plot2DN>;

template <class Control>
Button& options_button(Control& control) {
  if constexpr (std::is_base_of_v<LineScan, Control>)
    return control.btnoptions;
  else
    return control.Command1;
}

/// A control whose option form meets a user.
template <class Control>
class OptionsTest : public ControlTest<Control> {
 protected:
  /// Lets the user act on each form of a kind.
  template <class Kind>
  void user(std::function<void(Kind&)> act) {
    this->toolkit.on_modal = [this, act = std::move(act)](Form& form) {
      ++forms;
      act(dynamic_cast<Kind&>(form));
    };
  }
  /// Counts the forms, and cancels them.
  void count_forms() {
    this->toolkit.on_modal = [this](Form&) { ++forms; };
  }
  /// All stored settings by their keys.
  std::map<std::string, automation::Variant> stored() {
    automation::MemoryPropertyBag bag;
    automation::WriteProperties(this->object(), bag);
    return bag.values;
  }

  int forms = 0;
};

// ---- What all controls share ----

template <class Control>
class EveryControlsOptions : public OptionsTest<Control> {};
TYPED_TEST_SUITE(EveryControlsOptions, AllControls, ControlNames);

TYPED_TEST(EveryControlsOptions, OneFormIsShown) {
  this->plot_square();
  this->count_forms();
  this->control.ShowPlotOption();
  EXPECT_EQ(this->forms, has_options<TypeParam> ? 1 : 0);
}

TYPED_TEST(EveryControlsOptions, TheButtonDoesTheSame) {
  this->plot_square();
  this->count_forms();
  ASSERT_TRUE(options_button(this->control).OnClick);
  options_button(this->control).OnClick();
  EXPECT_EQ(this->forms, has_options<TypeParam> ? 1 : 0);
}

TYPED_TEST(EveryControlsOptions, ACallByNameDoesTheSame) {
  this->plot_square();
  this->count_forms();
  std::vector<automation::Variant> none;
  automation::invoke(this->object(), "ShowPlotOption", automation::MemberKind::method, none);
  EXPECT_EQ(this->forms, has_options<TypeParam> ? 1 : 0);
}

TYPED_TEST(EveryControlsOptions, ACancelledFormChangesNothing) {
  this->plot_square();
  const auto before = this->stored();
  const Recording picture = recording_of(this->control.PLOTA);
  this->toolkit.on_modal = [](Form& form) {
    for (Widget* widget : widgets_of(form)) {
      if (auto* field = dynamic_cast<TextField*>(widget)) field->Text("3");
      if (auto* option = dynamic_cast<OptionButton*>(widget)) option->Value(true);
      if (auto* box = dynamic_cast<CheckBox*>(widget)) box->Value(!box->Value());
    }
    form.Close();
  };
  this->control.ShowPlotOption();
  EXPECT_TRUE(this->stored() == before);
  EXPECT_EQ(this->form.changes, Names{});
  EXPECT_EQ(this->toolkit.redraws, 0);
  EXPECT_TRUE(recording_of(this->control.PLOTA) == picture);
}

TYPED_TEST(EveryControlsOptions, OkWithoutAnEditKeepsTheSettings) {
  this->plot_square();
  if constexpr (std::is_same_v<TypeParam, LineScan>) this->control.angle(30);
  const auto before = this->stored();
  this->toolkit.on_modal = [](Form& form) { form.DefaultButton->OnClick(); };
  this->control.ShowPlotOption();
  EXPECT_TRUE(this->stored() == before);
  EXPECT_EQ(this->control.MousePointer(), 0);
  EXPECT_TRUE(this->toolkit.messages.empty());
}

TYPED_TEST(EveryControlsOptions, BadInputKeepsTheFormAndTheControl) {
  if (!has_options<TypeParam>) return;
  this->plot_square();
  const auto before = this->stored();
  bool still_open = false;
  this->toolkit.on_modal = [&](Form& form) {
    for (Widget* widget : widgets_of(form)) {
      if (auto* field = dynamic_cast<TextField*>(widget)) field->Text("");
      if (auto* option = dynamic_cast<OptionButton*>(widget)) option->Value(true);
    }
    form.DefaultButton->OnClick();
    still_open = form.Visible;
  };
  this->control.ShowPlotOption();
  EXPECT_TRUE(still_open);
  ASSERT_EQ(this->toolkit.messages.size(), 1u);
  EXPECT_EQ(this->toolkit.messages[0].title, "Input Error");
  EXPECT_TRUE(this->stored() == before);
}

TYPED_TEST(EveryControlsOptions, NoSecondFormOpensOverTheFirst) {
  this->plot_square();
  this->toolkit.on_modal = [&](Form&) {
    ++this->forms;
    this->control.ShowPlotOption();
  };
  this->control.ShowPlotOption();
  EXPECT_EQ(this->forms, has_options<TypeParam> ? 1 : 0);
  this->control.ShowPlotOption();
  EXPECT_EQ(this->forms, has_options<TypeParam> ? 2 : 0);
}

TYPED_TEST(EveryControlsOptions, NoErrorLeavesThem) {
  this->plot_square();
  this->toolkit.on_modal = [&](Form&) {
    ++this->forms;
    throw OutOfMemory();
  };
  EXPECT_NO_THROW(this->control.ShowPlotOption());
  this->count_forms();
  this->control.ShowPlotOption();
  EXPECT_EQ(this->forms, has_options<TypeParam> ? 2 : 0);
  this->toolkit.on_modal = [](Form& form) { form.DefaultButton->OnClick(); };
  this->toolkit.on_draw = [](const PictureBox&, std::string_view) { throw CanvasError("a call"); };
  EXPECT_NO_THROW(this->control.ShowPlotOption());
  EXPECT_EQ(this->control.MousePointer(), 0);
}

TYPED_TEST(EveryControlsOptions, WorkWithoutData) {
  this->place();
  this->toolkit.on_modal = [](Form& form) { form.DefaultButton->OnClick(); };
  EXPECT_NO_THROW(this->control.ShowPlotOption());
  EXPECT_EQ(this->toolkit.redraws, 0);
  EXPECT_FALSE(this->control.PlotShown);
}

TYPED_TEST(EveryControlsOptions, WorkOnAControlWithoutSettings) {
  this->toolkit.on_modal = [](Form& form) { form.DefaultButton->OnClick(); };
  EXPECT_NO_THROW(this->control.ShowPlotOption());
}

// ---- The colour map ----

class ColorMapOptions : public OptionsTest<Plot2D> {};

TEST_F(ColorMapOptions, TheFormShowsTheSettings) {
  plot_square();
  control.Resolution(2.5);
  control.ShowSites(Sites::ShowSite);
  user<frmPlotOpt2d>([](frmPlotOpt2d& shown) {
    EXPECT_EQ(shown.tresx.Text(), "2.5");
    EXPECT_TRUE(shown.optMark(1).Value());
    EXPECT_FALSE(shown.whiteback.Value());
    EXPECT_EQ(shown.tresx.ToolTipText.get(), "mm, more than 0.01 and less than 51");
  });
  control.WaferDiameter(200);
  control.TestDiameter(200);
  control.ShowPlotOption();
  EXPECT_EQ(forms, 1);
}

TEST_F(ColorMapOptions, OkTakesTheSettingsAndDraws) {
  plot_square();
  user<frmPlotOpt2d>([](frmPlotOpt2d& shown) {
    shown.tresx.Text("10");
    shown.optMark(1).Value(true);
    shown.OKbtn.OnClick();
  });
  control.ShowPlotOption();
  EXPECT_EQ(control.Resolution(), 10);
  EXPECT_EQ(control.ShowSites(), Sites::ShowSite);
  EXPECT_EQ(toolkit.redraws, 1);
  EXPECT_TRUE(control.PlotValid);
  Twin twin(control.PLOTA, toolkit);
  control.wafobj.D2Plot(twin.canvas, 10, 5, 0, -1, 0, 0, 0, 0, 0);
  EXPECT_EQ(difference(recording_of(control.PLOTA), twin.recording()), "");
}

TEST_F(ColorMapOptions, ChangesAreTold) {
  plot_square();
  user<frmPlotOpt2d>([](frmPlotOpt2d& shown) {
    shown.tresx.Text("10");
    shown.OKbtn.OnClick();
  });
  control.ShowPlotOption();
  EXPECT_NE(std::find(form.changes.begin(), form.changes.end(), "Resolution"), form.changes.end());
}

TEST_F(ColorMapOptions, AWhiteBackgroundComesAndGoes) {
  plot_square();
  bool white = true;
  user<frmPlotOpt2d>([&](frmPlotOpt2d& shown) {
    EXPECT_EQ(shown.whiteback.Value(), !white);
    shown.whiteback.Value(white);
    shown.OKbtn.OnClick();
  });
  control.ShowPlotOption();
  for (const Widget* widget : std::initializer_list<const Widget*>{
           &control, &control.PLOTA, &control.frmove, &control.legende, &control.FNPic, &control.FNLabel,
           &control.Frplot, &control.frleg, &control.Frame1})
    EXPECT_EQ(widget->BackColor, QBColor(15));
  white = false;
  control.ShowPlotOption();
  EXPECT_EQ(control.BackColor(), 0x8000000Fu);
  EXPECT_EQ(control.PLOTA.BackColor, 0x8000000Fu);
}

TEST_F(ColorMapOptions, ABackgroundOfTheHostStaysWithoutAnotherChoice) {
  plot_square();
  control.BackColor(QBColor(3));
  user<frmPlotOpt2d>([](frmPlotOpt2d& shown) { shown.OKbtn.OnClick(); });
  control.ShowPlotOption();
  EXPECT_EQ(control.BackColor(), QBColor(3));
}

TEST_F(ColorMapOptions, AResolutionBeyondAQuarterIsHeldToIt) {
  plot_square();  // the test diameter is 194
  user<frmPlotOpt2d>([](frmPlotOpt2d& shown) {
    shown.tresx.Text("49");
    shown.OKbtn.OnClick();
  });
  control.ShowPlotOption();
  EXPECT_EQ(control.Resolution(), 48.5);
}

TEST_F(ColorMapOptions, ARedrawThatCutsTheResolutionAsksForIt) {
  plot_square();
  control.Resolution(40);
  control.TestDiameter(120);
  forget_notices();
  user<frmPlotOpt2d>([&](frmPlotOpt2d& shown) {
    EXPECT_EQ(toolkit.messages.size(), 1u);
    EXPECT_EQ(shown.tresx.Text(), "30");
    EXPECT_EQ(control.MousePointer(), 11);
    shown.tresx.Text("20");
    shown.OKbtn.OnClick();
  });
  EXPECT_EQ(control.Plot(), 0);
  EXPECT_EQ(forms, 1);
  EXPECT_EQ(toolkit.messages,
            (std::vector<HeadlessToolkit::Message>{{"Maximal possible resolution is 30 mm",
                                                    "Standard resolution to high ", MessageIcon::critical}}));
  EXPECT_EQ(control.Resolution(), 20);
  EXPECT_EQ(toolkit.redraws, 2);  // that of the options lies within the one that asked
  EXPECT_TRUE(control.PlotValid);
  EXPECT_EQ(control.MousePointer(), 0);
  Twin twin(control.PLOTA, toolkit);
  control.wafobj.D2Plot(twin.canvas, 20, 5, 0, 0, 0, 0, 0, 0, 0);
  EXPECT_EQ(difference(recording_of(control.PLOTA), twin.recording()), "");
}

TEST_F(ColorMapOptions, ARedrawGoesOnAfterACancelledForm) {
  plot_square();
  control.Resolution(40);
  control.TestDiameter(120);
  forget_notices();
  count_forms();
  EXPECT_EQ(control.Plot(), 0);
  EXPECT_EQ(forms, 1);
  EXPECT_EQ(control.Resolution(), 30);
  EXPECT_EQ(toolkit.redraws, 1);
  EXPECT_TRUE(control.PlotValid);
}

TEST_F(ColorMapOptions, ARedrawWithAGoodResolutionAsksNothing) {
  plot_square();
  count_forms();
  control.SetPlotNotVaild();
  control.Plot();
  EXPECT_EQ(forms, 0);
}

// ---- The others ----

class SigmaMapOptions : public OptionsTest<Plot2DS> {};

TEST_F(SigmaMapOptions, OkTakesTheSettingsAndDrawsWithItsLegend) {
  plot_square();
  user<frmPlotOpt2ds>([](frmPlotOpt2ds& shown) {
    EXPECT_EQ(shown.SSigma.Text(), "0.5");
    shown.tresx.Text("10");
    shown.SSigma.Text("1.5");
    shown.optMark(1).Value(true);
    shown.whiteback.Value(true);
    shown.OKbtn.OnClick();
  });
  control.ShowPlotOption();
  EXPECT_EQ(control.Resolution(), 10);
  EXPECT_EQ(control.SigmaRange(), 1.5);
  EXPECT_EQ(control.ShowSites(), Sites::ShowSite);
  EXPECT_EQ(control.PLOTA.BackColor, QBColor(15));
  EXPECT_EQ(control.lbldist.Caption.get(), "1.5");
  EXPECT_EQ(toolkit.redraws, 1);
}

TEST_F(SigmaMapOptions, ARedrawThatCutsTheResolutionAsksForIt) {
  plot_square();
  control.Resolution(40);
  control.TestDiameter(120);
  user<frmPlotOpt2ds>([](frmPlotOpt2ds&) {});
  control.Plot();
  EXPECT_EQ(forms, 1);
}

class ContourOptions : public OptionsTest<Plot2DC> {};

TEST_F(ContourOptions, OkTakesTheSettingsAndDraws) {
  plot_square();
  user<frmPlotOpt2DC>([](frmPlotOpt2DC& shown) {
    EXPECT_EQ(shown.tdist.Text(), "1");
    EXPECT_TRUE(shown.OptQuali(0).Value());
    EXPECT_TRUE(shown.OptExcon(1).Value());
    shown.tdist.Text("25");
    shown.OptQuali(1).Value(true);
    shown.OptExcon(3).Value(true);
    shown.Optcol(2).Value(true);
    shown.whiteback.Value(true);
    shown.OKbtn.OnClick();
  });
  control.ShowPlotOption();
  EXPECT_EQ(control.Interval(), 25);
  EXPECT_EQ(control.Resolution(), ResoEnum::HighQuality);
  EXPECT_EQ(control.marksites(), ExconEnum::None);
  EXPECT_EQ(control.PlotColored(), DrawColEnum::Ten_ColorPlot);
  EXPECT_TRUE(control.frleg.Visible);
  EXPECT_EQ(control.PLOTA.BackColor, QBColor(15));
  EXPECT_EQ(toolkit.redraws, 1);
  EXPECT_TRUE(control.PlotValid);
}

TEST_F(ContourOptions, AColourThatIsNoneStays) {
  plot_square();
  ASSERT_EQ(static_cast<int>(control.PlotColored()), -1);
  user<frmPlotOpt2DC>([](frmPlotOpt2DC& shown) { shown.OKbtn.OnClick(); });
  control.ShowPlotOption();
  EXPECT_EQ(static_cast<int>(control.PlotColored()), -1);
}

/// Types a view into a form.
void type_view(ViewOptions& shown) {
  shown.tresx.Text("8");
  shown.tresy.Text("9");
  shown.tscale.Text("7");
  shown.talph.Text("10");
  shown.tphi.Text("200");
  shown.tthet.Text("80");
}

class BarOptions : public OptionsTest<Plot2DB> {};

TEST_F(BarOptions, OkTakesTheSettingsAndDraws) {
  plot_square();
  user<frmPlotOpt2DB>([](frmPlotOpt2DB& shown) {
    EXPECT_EQ(shown.tscale.Text(), "1");
    EXPECT_EQ(shown.tthet.Text(), "35");
    type_view(shown);
    shown.OKbtn.OnClick();
  });
  control.ShowPlotOption();
  EXPECT_EQ(control.BeamWidth(), 8);
  EXPECT_EQ(control.BeamHeight(), 9);
  EXPECT_EQ(control.BeamScale(), 7);
  EXPECT_EQ(control.GridRotation(), 10);
  EXPECT_EQ(control.WaferRotation(), 200);
  EXPECT_EQ(control.GridInclination(), 80);
  EXPECT_EQ(toolkit.redraws, 1);
}

class SurfaceOptionsTest : public OptionsTest<Plot3D> {};

TEST_F(SurfaceOptionsTest, OkTakesTheSettingsAndDraws) {
  plot_square();
  user<frmPlotOpt3d>([](frmPlotOpt3d& shown) {
    EXPECT_TRUE(shown.optPlot(1).Value());
    type_view(shown);
    shown.optPlot(3).Value(true);
    shown.whiteback.Value(true);
    shown.OKbtn.OnClick();
  });
  control.ShowPlotOption();
  EXPECT_EQ(control.XResolution(), 8);
  EXPECT_EQ(control.YResolution(), 9);
  EXPECT_EQ(control.PlotScale(), 7);
  EXPECT_EQ(control.GridRotation(), 10);
  EXPECT_EQ(control.WaferRotation(), 200);
  EXPECT_EQ(control.GridInclination(), 80);
  EXPECT_EQ(control.PlotType(), PlotTypeEnum::WireFrame);
  EXPECT_EQ(control.PLOTA.BackColor, QBColor(15));
  EXPECT_EQ(toolkit.redraws, 1);
}

TEST_F(SurfaceOptionsTest, AnglesThatTheControlDoesNotKnowBecomeItsOwn) {
  plot_square();
  user<frmPlotOpt3d>([](frmPlotOpt3d& shown) {
    shown.talph.Text("92");
    shown.tphi.Text("360");
    shown.tthet.Text("92");
    shown.OKbtn.OnClick();
  });
  control.GridRotation(1);
  control.WaferRotation(1);
  control.GridInclination(1);
  control.ShowPlotOption();
  EXPECT_EQ(control.GridRotation(), 40);
  EXPECT_EQ(control.WaferRotation(), 40);
  EXPECT_EQ(control.GridInclination(), 35);
}

class SigmaSurfaceOptions : public OptionsTest<Plot3DS> {};

TEST_F(SigmaSurfaceOptions, OkTakesTheSettingsAndDrawsWithItsLegend) {
  plot_square();
  user<frmPlotOpt3ds>([](frmPlotOpt3ds& shown) {
    type_view(shown);
    shown.SSigma.Text("1.5");
    shown.OKbtn.OnClick();
  });
  control.ShowPlotOption();
  EXPECT_EQ(control.XResolution(), 8);
  EXPECT_EQ(control.YResolution(), 9);
  EXPECT_EQ(control.PlotScale(), 7);
  EXPECT_EQ(control.SigmaRange(), 1.5);
  EXPECT_EQ(control.lbldist.Caption.get(), "1.5");
  EXPECT_EQ(control.GridRotation(), 10);
  EXPECT_EQ(toolkit.redraws, 1);
}

class HistogramOptions : public OptionsTest<Histogram> {};

TEST_F(HistogramOptions, OkTakesTheSettingsAndDraws) {
  plot_square();
  const Recording before = recording_of(control.PLOTA);
  user<frmPlotHist>([](frmPlotHist& shown) {
    EXPECT_EQ(shown.tresx.Text(), "10");
    EXPECT_TRUE(shown.whiteback.Value());
    shown.tresx.Text("4");
    shown.OKbtn.OnClick();
  });
  control.ShowPlotOption();
  EXPECT_EQ(control.Resolution(), 4);
  EXPECT_FALSE(recording_of(control.PLOTA) == before);
  EXPECT_EQ(control.BackColor(), button_face);
}

TEST_F(HistogramOptions, AnotherBackgroundIsThatOfAllSurfaces) {
  plot_square();
  user<frmPlotHist>([](frmPlotHist& shown) {
    shown.whiteback.Value(!shown.whiteback.Value());
    shown.OKbtn.OnClick();
  });
  control.ShowPlotOption();
  EXPECT_EQ(control.PLOTA.BackColor, button_face);
  control.ShowPlotOption();
  EXPECT_EQ(control.PLOTA.BackColor, QBColor(15));
  EXPECT_EQ(control.histPic.BackColor, QBColor(15));
}

class LineOptions : public OptionsTest<LineScan> {};

TEST_F(LineOptions, TheFormShowsTheLine) {
  plot_square();
  control.SetLineOrAngle(PlotTypeEnumLineScan::vbline, 0, 0, 0, -10.5, -20, 30, 40);
  control.ShowSites(true);
  user<frmPlotOpt1D>([](frmPlotOpt1D& shown) {
    EXPECT_TRUE(shown.optline(1).Value());
    EXPECT_EQ(shown.resx(0).Text(), "-10.5");
    EXPECT_EQ(shown.resy(0).Text(), "-20");
    EXPECT_EQ(shown.resx(1).Text(), "30");
    EXPECT_EQ(shown.resy(1).Text(), "40");
    EXPECT_TRUE(shown.optMark(1).Value());
  });
  control.ShowPlotOption();
  EXPECT_EQ(forms, 1);
}

TEST_F(LineOptions, OkTakesAnAngle) {
  plot_square();
  const Recording before = recording_of(control.PLOTA);
  user<frmPlotOpt1D>([](frmPlotOpt1D& shown) {
    shown.AngleValue.Text("70");
    shown.optMark(1).Value(true);
    shown.OKbtn.OnClick();
  });
  control.ShowPlotOption();
  EXPECT_EQ(control.PlotType(), PlotTypeEnumLineScan::vbAngle);
  EXPECT_EQ(control.angle(), 70);
  EXPECT_EQ(control.AngleValue.Text(), "70");
  EXPECT_TRUE(control.ShowSites());
  EXPECT_FALSE(recording_of(control.PLOTA) == before);
  EXPECT_EQ(form.changes, (Names{"Angle", "ShowSites"}));
}

TEST_F(LineOptions, AFullTurnIsNone) {
  plot_square();
  control.angle(5);
  user<frmPlotOpt1D>([](frmPlotOpt1D& shown) {
    shown.AngleValue.Text("360");
    shown.OKbtn.OnClick();
  });
  control.ShowPlotOption();
  EXPECT_EQ(control.angle(), 0);
}

TEST_F(LineOptions, OkTakesPointsWithTheirDecimals) {
  plot_square();
  user<frmPlotOpt1D>([](frmPlotOpt1D& shown) {
    shown.optline(1).Value(true);
    shown.resx(0).Text("-20.5");
    shown.resx(1).Text("30");
    shown.resy(1).Text("-0.25");
    shown.OKbtn.OnClick();
  });
  control.ShowPlotOption();
  EXPECT_EQ(control.PlotType(), PlotTypeEnumLineScan::vbline);
  EXPECT_TRUE(control.FNLabel(1).Visible);
  std::int16_t angle = 0;
  double x1 = 0, y1 = 0, x2 = 0, y2 = 0;
  control.GetLineOrAngle(angle, x1, y1, x2, y2);
  EXPECT_EQ(x1, -20.5);
  EXPECT_EQ(y1, 0);
  EXPECT_EQ(x2, 30);
  EXPECT_EQ(y2, -0.25);
  EXPECT_EQ(form.changes,
            (Names{"PlotType", "LineStartPointX", "LineEndPointX", "LineEndPointY", "ShowSites"}));
}

TEST_F(LineOptions, ThePointOfTheAngleStays) {
  plot_square();
  control.RotationPointX(12);
  control.RotationPointY(-7);
  user<frmPlotOpt1D>([](frmPlotOpt1D& shown) {
    shown.AngleValue.Text("70");
    shown.OKbtn.OnClick();
  });
  control.ShowPlotOption();
  EXPECT_EQ(control.RotationPointX(), 12);
  EXPECT_EQ(control.RotationPointY(), -7);
}

TEST_F(LineOptions, ALineIsDrawnFromItsPoints) {
  plot_square();
  user<frmPlotOpt1D>([](frmPlotOpt1D& shown) {
    shown.optline(1).Value(true);
    shown.resx(0).Text("-50");
    shown.resx(1).Text("50");
    shown.OKbtn.OnClick();
  });
  control.ShowPlotOption();
  const Recording from_the_form = recording_of(control.PLOTA);
  control.Plot();
  EXPECT_EQ(difference(recording_of(control.PLOTA), from_the_form), "");
}

}  // namespace
}  // namespace mirolen
