#include "form_support.h"

namespace mirolen {
namespace {

// ---- What all forms share ----

template <class Kind>
class EveryForm : public ShownForm<Kind> {
 protected:
  EveryForm() { fill(this->form, this->data); }
};
TYPED_TEST_SUITE(EveryForm, AllForms);

TYPED_TEST(EveryForm, HasTheCaptionAndTwoButtons) {
  EXPECT_EQ(this->form.Caption.get(), "Define Plot Options");
  EXPECT_EQ(this->form.OKbtn.Caption.get(), "OK");
  EXPECT_EQ(this->form.cancel.Caption.get(), "Cancel");
  EXPECT_EQ(this->form.DefaultButton, &this->form.OKbtn);
  EXPECT_EQ(this->form.CancelButton, &this->form.cancel);
}

TYPED_TEST(EveryForm, RedrawsOnlyAfterOk) {
  EXPECT_FALSE(this->form.Redraw());
  EXPECT_TRUE(this->ok());
  EXPECT_TRUE(this->form.Redraw());
  EXPECT_EQ(this->message(), "");
}

TYPED_TEST(EveryForm, CancelHidesWithoutRedraw) {
  this->cancel();
  EXPECT_FALSE(this->form.Visible);
  EXPECT_FALSE(this->form.Redraw());
}

TYPED_TEST(EveryForm, NewValuesForgetAnOk) {
  EXPECT_TRUE(this->ok());
  fill(this->form, this->data);
  EXPECT_FALSE(this->form.Redraw());
}

TYPED_TEST(EveryForm, LeavesTheWaferAsItIs) {
  EXPECT_TRUE(this->ok());
  this->cancel();
  EXPECT_EQ(this->data.test_diam, 200);
  EXPECT_EQ(this->data.WafDiam, 200);
  EXPECT_EQ(this->data.GetNop(), 0);
}

TYPED_TEST(EveryForm, TakesTypingAfterCancelToo) {
  this->cancel();
  for (Widget* widget : below(this->form))
    if (auto* field = dynamic_cast<TextField*>(widget)) field->Text("3");
  EXPECT_FALSE(this->form.Redraw());
}

TYPED_TEST(EveryForm, TheFocusStartsInTheForm) {
  ASSERT_TRUE(this->form.FirstFocus);
  const std::vector<Widget*> widgets = below(this->form);
  EXPECT_NE(std::find(widgets.begin(), widgets.end(), this->form.FirstFocus), widgets.end());
}

TYPED_TEST(EveryForm, OkAndCancelAreTheLastInTheTabOrder) {
  const std::vector<Widget*> widgets = below(this->form);
  ASSERT_GT(widgets.size(), 2u);
  EXPECT_EQ(widgets[widgets.size() - 2], &this->form.OKbtn);
  EXPECT_EQ(widgets.back(), &this->form.cancel);
}

/// What the fields of each form tell, in the order of the Tab key.
using Tips = std::vector<std::string>;
const std::string millimetres = "mm, more than 0.001 and less than ";
const std::string deviations = "standard deviations, more than 0.001 and less than 1000";
const std::string height = "height of the surface, more than 0.0000001 and less than 1000";
const std::string angle = "degrees, 0 to 360", coordinate = "mm, within the test diameter";
Tips tips(const frmPlotOpt2d&) { return {"mm, more than 0.01 and less than 51"}; }
Tips tips(const frmPlotOpt2ds&) { return {millimetres + "51", deviations}; }
Tips tips(const frmPlotOpt2DC&) { return {"unit of the interval, more than 0.009 and less than 1000"}; }
Tips tips(const frmPlotOpt2DB&) {
  const std::string bar_height = "mm a unit of the value, more than 0.0000001 and less than 1000";
  return {millimetres + "101", millimetres + "101", bar_height, angle, angle, angle};
}
Tips tips(const frmPlotOpt3d&) {
  return {millimetres + "51", millimetres + "51", height, angle, angle, angle};
}
Tips tips(const frmPlotOpt3ds&) {
  return {millimetres + "51", millimetres + "51", height, deviations, angle, angle, angle};
}
Tips tips(const frmPlotHist&) { return {"classes, more than 1 and less than 1000"}; }
Tips tips(const frmPlotOpt1D&) { return {angle, coordinate, coordinate, coordinate, coordinate}; }

TYPED_TEST(EveryForm, EachFieldTellsItsUnitAndRange) {
  Tips told;
  for (Widget* widget : below(this->form))
    if (dynamic_cast<TextField*>(widget)) told.push_back(widget->ToolTipText);
  EXPECT_EQ(told, tips(this->form));
}

// ---- The limits of OK ----

/// A field of a form, by a text just below its lower limit and so on, and its line of a message.
struct Limits {
  const char* label;
  std::vector<const char*> refused, accepted;
};

template <class Kind>
class Fields : public ShownForm<Kind> {
 protected:
  Fields() { fill(this->form, this->data); }

  void expect_limits(TextField& field, const Limits& limits) {
    const std::string usual = field.Text();
    const std::string label = limits.label;
    for (const char* text : limits.refused) {
      field.Text(text);
      EXPECT_FALSE(this->ok()) << text;
      EXPECT_EQ(this->message(), label + "not valid\n") << text;
      EXPECT_FALSE(this->form.Redraw());
    }
    field.Text("");
    EXPECT_FALSE(this->ok());
    EXPECT_EQ(this->message(), label + "can not be empty\n");
    for (const char* text : limits.accepted) {
      field.Text(text);
      EXPECT_TRUE(this->ok()) << text;
      EXPECT_EQ(this->message(), "") << text;
      EXPECT_TRUE(this->form.Redraw());
      this->form.Visible = true;
      fill(this->form, this->data);
    }
    field.Text(usual);
  }
};

using ColorMapForm = Fields<frmPlotOpt2d>;
using SigmaMapForm = Fields<frmPlotOpt2ds>;
using ContourForm = Fields<frmPlotOpt2DC>;
using BarForm = Fields<frmPlotOpt2DB>;
using SurfaceForm = Fields<frmPlotOpt3d>;
using SigmaSurfaceForm = Fields<frmPlotOpt3ds>;
using HistogramForm = Fields<frmPlotHist>;

TEST_F(ColorMapForm, HoldsTheResolution) {
  expect_limits(form.tresx,
                {"Resolution ", {"0", "0.0099", "0.01", "51", "51.01", "-5"}, {"0.0101", "50.99"}});
}

TEST_F(ColorMapForm, TheUpperLimitFollowsTheTestDiameterAndIsRounded) {
  data.test_diam = 194;  // 49.5, to the even 50
  expect_limits(form.tresx, {"Resolution ", {"50", "50.5"}, {"49.99"}});
  data.test_diam = 198;  // 50.5, to the even 50
  expect_limits(form.tresx, {"Resolution ", {"50"}, {"49.99"}});
  data.test_diam = 202;  // 51.5, to the even 52
  expect_limits(form.tresx, {"Resolution ", {"52"}, {"51.99"}});
}

TEST_F(ColorMapForm, AHugeTestDiameterIsNoError) {
  data.test_diam = 1e300;
  expect_limits(form.tresx, {"Resolution ", {"32767"}, {"32766"}});
}

TEST_F(SigmaMapForm, HoldsResolutionAndRange) {
  expect_limits(form.tresx, {"Resolution ", {"0.0009", "0.001", "51", "51.01"}, {"0.0011", "50.99"}});
  expect_limits(form.SSigma, {"Sigma Range ", {"0.0009", "0.001", "1000", "1000.1"}, {"0.0011", "999.9"}});
}

TEST_F(SigmaMapForm, TheUpperLimitIsRoundedToEven) {
  data.test_diam = 194;  // 49.5, to the even 50
  expect_limits(form.tresx, {"Resolution ", {"50"}, {"49.99"}});
}

TEST_F(ContourForm, HoldsTheInterval) {
  expect_limits(form.tdist, {"Interval ", {"0.0089", "0.009", "1000", "1000.1"}, {"0.0091", "999.9"}});
}

TEST_F(BarForm, HoldsSizesAndScale) {
  expect_limits(form.tresx, {"Bar width ", {"0.0009", "0.001", "101", "101.1"}, {"0.0011", "100.9"}});
  expect_limits(form.tresy, {"Bar depth ", {"0.0009", "0.001", "101", "101.1"}, {"0.0011", "100.9"}});
  expect_limits(form.tscale,
                {"Scale factor ", {"0.00000009", "0.0000001", "1000", "1000.1"}, {"0.00000011", "999.9"}});
}

TEST_F(BarForm, TheUpperLimitIsRoundedToEven) {
  data.test_diam = 199;  // 100.5, to the even 100
  expect_limits(form.tresx, {"Bar width ", {"100"}, {"99.99"}});
  expect_limits(form.tresy, {"Bar depth ", {"100"}, {"99.99"}});
}

TEST_F(SurfaceForm, HoldsStepsAndScale) {
  expect_limits(form.tresx, {"X Resolution ", {"0.0009", "0.001", "51", "51.1"}, {"0.0011", "50.9"}});
  expect_limits(form.tresy, {"Y Resolution ", {"0.0009", "0.001", "51", "51.1"}, {"0.0011", "50.9"}});
  expect_limits(form.tscale,
                {"Scale Factor ", {"0.00000009", "0.0000001", "1000", "1000.1"}, {"0.00000011", "999.9"}});
}

TEST_F(SurfaceForm, TheUpperLimitIsRoundedToEven) {
  data.test_diam = 194;  // 49.5, to the even 50
  expect_limits(form.tresx, {"X Resolution ", {"50"}, {"49.99"}});
  expect_limits(form.tresy, {"Y Resolution ", {"50"}, {"49.99"}});
}

TEST_F(SigmaSurfaceForm, HoldsStepsScaleAndRange) {
  expect_limits(form.tresx, {"X Resolution ", {"0.0009", "0.001", "51", "51.1"}, {"0.0011", "50.9"}});
  expect_limits(form.tresy, {"Y Resolution ", {"0.0009", "0.001", "51", "51.1"}, {"0.0011", "50.9"}});
  expect_limits(form.tscale,
                {"Scale Factor ", {"0.00000009", "0.0000001", "1000", "1000.1"}, {"0.00000011", "999.9"}});
  expect_limits(form.SSigma, {"Sigma Range ", {"0.0009", "0.001", "1000", "1000.1"}, {"0.0011", "999.9"}});
}

TEST_F(HistogramForm, HoldsTheResolution) {
  expect_limits(form.tresx, {"Resolution ", {"0.99", "1", "1000", "1000.1"}, {"1.01", "999.9"}});
}

// ---- Several faults ----

TEST_F(SigmaMapForm, TwoBadFieldsMakeOneBoxOfTwoLines) {
  form.tresx.Text("");
  form.SSigma.Text("0");
  EXPECT_FALSE(ok());
  EXPECT_EQ(message(), "Resolution can not be empty\nSigma Range not valid\n");
}

TEST_F(BarForm, LinesComeInTheOrderOfTheChecks) {
  form.tscale.Text("");
  form.tresy.Text("0");
  form.tresx.Text("");
  EXPECT_FALSE(ok());
  EXPECT_EQ(message(), "Bar width can not be empty\nBar depth not valid\nScale factor can not be empty\n");
}

TEST_F(SigmaSurfaceForm, TheRangeIsCheckedLast) {
  form.SSigma.Text("");
  form.tscale.Text("");
  form.tresx.Text("");
  form.tresy.Text("");
  EXPECT_FALSE(ok());
  EXPECT_EQ(message(),
            "X Resolution can not be empty\nY Resolution can not be empty\nScale Factor can not be empty\n"
            "Sigma Range can not be empty\n");
}

TEST_F(ColorMapForm, AfterAMendedFieldOkConfirms) {
  form.tresx.Text("99");
  EXPECT_FALSE(ok());
  EXPECT_EQ(message(), "Resolution not valid\n");
  form.tresx.Text("9");
  EXPECT_TRUE(ok());
  EXPECT_EQ(form.GetXRes(), 9);
}

// ---- Values in and out ----

TEST_F(ColorMapForm, GivesBackWhatItWasGiven) {
  form.SetValues(data, 2.5, true, QBColor(15));
  EXPECT_EQ(form.tresx.Text(), "2.5");
  EXPECT_TRUE(form.optMark(1).Value());
  EXPECT_FALSE(form.optMark(0).Value());
  EXPECT_TRUE(form.whiteback.Value());
  EXPECT_EQ(form.GetXRes(), 2.5);
  EXPECT_TRUE(form.GetMarkeSites());
  EXPECT_EQ(form.GetBackColor(), QBColor(15));
  form.SetValues(data, 7, false, QBColor(4));
  EXPECT_TRUE(form.optMark(0).Value());
  EXPECT_FALSE(form.whiteback.Value());
  EXPECT_FALSE(form.GetMarkeSites());
  EXPECT_EQ(form.GetBackColor(), 0x8000000Fu);
}

TEST_F(ColorMapForm, HasItsCaptions) {
  EXPECT_EQ(form.frmplot.Caption.get(), "2D Plot");
  EXPECT_EQ(form.lblresx.Caption.get(), "Resolution : ");
  EXPECT_EQ(form.frmmark.Caption.get(), "Marked Sites:");
  EXPECT_EQ(form.optMark(0).Caption.get(), "Hide");
  EXPECT_EQ(form.optMark(1).Caption.get(), "Show");
}

TEST_F(SigmaMapForm, GivesBackWhatItWasGiven) {
  form.SetValues(data, 2.5, true, QBColor(15), 1.25);
  EXPECT_EQ(form.SSigma.Text(), "1.25");
  EXPECT_EQ(form.GetXRes(), 2.5);
  EXPECT_EQ(form.GetSigRange(), 1.25);
  EXPECT_TRUE(form.GetMarkeSites());
  EXPECT_EQ(form.GetBackColor(), QBColor(15));
}

TEST_F(ContourForm, GivesBackWhatItWasGiven) {
  form.SetValues(data, 2.5, 2, 3, 0, QBColor(15));
  EXPECT_EQ(form.GetDist(), 2.5);
  EXPECT_TRUE(form.OptQuali(2).Value());
  EXPECT_TRUE(form.OptExcon(3).Value());
  EXPECT_TRUE(form.Optcol(0).Value());
  EXPECT_EQ(form.GetReso(), 2);
  EXPECT_EQ(form.GetMarkeSites(), 3);
  EXPECT_EQ(form.GetShowColor(), 0);
  EXPECT_EQ(form.GetBackColor(), QBColor(15));
}

TEST_F(ContourForm, ANumberWithoutAnOptionStaysUntilOneIsChosen) {
  form.SetValues(data, 1, 0, 1, -1, button_face);
  for (int i = 0; i < 3; ++i) EXPECT_FALSE(form.Optcol(i).Value());
  EXPECT_EQ(form.GetShowColor(), -1);
  form.Optcol(2).Value(true);
  EXPECT_EQ(form.GetShowColor(), 2);
}

TEST_F(ContourForm, ItsGroupsAreIndependent) {
  form.SetValues(data, 1, 0, 1, 0, button_face);
  form.OptQuali(1).Value(true);
  form.OptExcon(2).Value(true);
  EXPECT_EQ(form.GetReso(), 1);
  EXPECT_EQ(form.GetMarkeSites(), 2);
  EXPECT_EQ(form.GetShowColor(), 0);
}

TEST_F(BarForm, GivesBackWhatItWasGiven) {
  form.SetValues(data, 3, 4, 0.5, 10, 20, 30);
  EXPECT_EQ(form.GetResx(), 3);
  EXPECT_EQ(form.GetResy(), 4);
  EXPECT_EQ(form.GetPlotSccale(), 0.5);
  EXPECT_EQ(form.GetAlp(), 10);
  EXPECT_EQ(form.GetPhi(), 20);
  EXPECT_EQ(form.GetThet(), 30);
}

TEST_F(SurfaceForm, GivesBackWhatItWasGiven) {
  form.SetValues(data, 3, 4, 50, 10, 20, 30, 3, QBColor(15));
  EXPECT_EQ(form.GetResx(), 3);
  EXPECT_EQ(form.GetResy(), 4);
  EXPECT_EQ(form.GetPlotSccale(), 50);
  EXPECT_EQ(form.GetAlp(), 10);
  EXPECT_EQ(form.GetPhi(), 20);
  EXPECT_EQ(form.GetThet(), 30);
  EXPECT_EQ(form.GetPlotType(), 3);
  EXPECT_EQ(form.GetBackColor(), QBColor(15));
  form.optPlot(1).Value(true);
  EXPECT_EQ(form.GetPlotType(), 1);
}

TEST_F(SurfaceForm, HasItsLabels) {
  EXPECT_EQ(form.lblalph.Caption.get(), "Rotation:");
  EXPECT_EQ(form.lblphi.Caption.get(), "Rotation:");
  EXPECT_EQ(form.lblthet.Caption.get(), "Inclination:");
  EXPECT_EQ(form.lblscale.Caption.get(), "Scale:");
  EXPECT_EQ(form.lblresx.Caption.get(), "Resolution X:");
  EXPECT_EQ(form.lblresy.Caption.get(), "Resolution Y:");
}

TEST_F(SigmaSurfaceForm, GivesBackWhatItWasGiven) {
  form.SetValues(data, 3, 4, 50, 10, 20, 30, 0.75, QBColor(15));
  EXPECT_EQ(form.GetResx(), 3);
  EXPECT_EQ(form.GetResy(), 4);
  EXPECT_EQ(form.GetPlotSccale(), 50);
  EXPECT_EQ(form.GetAlp(), 10);
  EXPECT_EQ(form.GetPhi(), 20);
  EXPECT_EQ(form.GetThet(), 30);
  EXPECT_EQ(form.GetSigRange(), 0.75);
  EXPECT_EQ(form.GetBackColor(), QBColor(15));
}

TEST_F(HistogramForm, GivesBackWhatItWasGiven) {
  form.SetValues(data, 12, QBColor(15));
  EXPECT_EQ(form.GetResolution(), 12);
  EXPECT_EQ(form.GetBackColor(), QBColor(15));
}

// ---- Previews ----

std::size_t polygons(const PictureBox& box) {
  std::size_t count = 0;
  for (const recorded::Call& call : recording_of(box))
    count += std::holds_alternative<recorded::Polygon>(call);
  return count;
}

/// What a picture shows when it is drawn by hand.
template <class Draw>
Recording by_hand(const PictureBox& box, Draw draw) {
  RecordingSurface surface(box.pixel_size());
  SurfaceCanvas canvas(CanvasKind::picture_box, &surface);
  canvas.BackColor(box.toolkit().resolve(box.BackColor));
  draw(canvas);
  return surface.recording();
}

TEST_F(SurfaceForm, PreviewsAreDrawnAtOnce) {
  EXPECT_EQ(polygons(form.Plot), 25u);
  EXPECT_FALSE(recording_of(form.FNPlot).empty());
}

TEST_F(SurfaceForm, TheGridsPreviewFollowsRotationAndInclination) {
  const Recording before = recording_of(form.Plot);
  form.talph.Text("70");
  const Recording turned = recording_of(form.Plot);
  EXPECT_FALSE(turned == before);
  form.tthet.Text("80");
  EXPECT_FALSE(recording_of(form.Plot) == turned);
  const Recording now = recording_of(form.Plot);
  form.talph.Text("x");
  EXPECT_TRUE(recording_of(form.Plot) == now);
}

TEST_F(SurfaceForm, TheWafersPreviewIsTheWaferInTheView) {
  form.tphi.Text("70");
  form.tthet.Text("80");
  EXPECT_TRUE(recording_of(form.FNPlot) == by_hand(form.FNPlot, [&](PlotCanvas& canvas) {
                double x0 = 0, y0 = 0;
                data.FlatNotchShow(nullptr, canvas, x0, y0, 30, 70, 80);
              }));
}

TEST_F(SurfaceForm, AnglesThatAreNoneFallBack) {
  form.talph.Text("361");
  EXPECT_EQ(form.talph.Text(), "40");
  form.tthet.Text("1.5");
  EXPECT_EQ(form.tthet.Text(), "35");
  form.tphi.Text("360");
  EXPECT_EQ(form.GetPhi(), 360);
}

}  // namespace
}  // namespace mirolen
