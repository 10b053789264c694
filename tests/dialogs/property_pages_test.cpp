#include <gtest/gtest.h>

#include <functional>

#include "fake_control.h"
#include "mirolen/dialogs/plan_pages.h"
#include "mirolen/dialogs/view_pages.h"
#include "mirolen/dialogs/view_preview.h"
#include "mirolen/widgets/Form.h"
#include "mirolen/widgets/Headless.h"
#include "support/CommaInForce.h"

namespace mirolen {
namespace {

using Writes = FakeControl::Writes;

Writes sorted(Writes writes) {
  std::sort(writes.begin(), writes.end(), [](auto& a, auto& b) { return a.first < b.first; });
  return writes;
}

/// A page with a control that it serves.
template <class Page>
class PageTest : public testing::Test {
 protected:
  explicit PageTest(FakeControl made) : control(std::move(made)) { select(); }

  void select() { page.SelectionChanged({control.object()}); }

  /// Each of these texts is replaced on the spot, and what takes its place is written.
  void expect_replaced(TextField& field, std::initializer_list<const char*> texts, const char* otherwise) {
    for (const char* text : texts) {
      select();
      field.Text("7");
      field.Text(text);
      EXPECT_EQ(field.Text(), otherwise) << '"' << text << '"';
      EXPECT_TRUE(page.Changed()) << '"' << text << '"';
    }
    EXPECT_TRUE(toolkit.messages.empty());
  }
  void expect_kept(TextField& field, std::initializer_list<const char*> texts) {
    for (const char* text : texts) {
      field.Text("7");
      select();
      field.Text("8");
      page.ApplyChanges();
      ASSERT_FALSE(page.Changed());
      field.Text(text);
      EXPECT_EQ(field.Text(), text);
      EXPECT_TRUE(page.Changed()) << '"' << text << '"';
    }
  }
  void expect_decimal(TextField& field, const char* otherwise) {
    expect_replaced(field, {"", "-", "x", "1e3", "1E3", "1d3", "1D3", "1,5", "1.2.3", " ", "5 5", "&H10"},
                    otherwise);
    expect_kept(field, {"0.25", "1.5", "-2", "+3", " 4 ", "9.", ".5", "0"});
  }
  void expect_angle(TextField& field, const char* otherwise) {
    expect_replaced(field, {"", "-1", "361", "360.5", "1.5", "1.", "1e2", "1,5", "x", "-", " ", "9999"},
                    otherwise);
    expect_kept(field, {"0", "1", "359", "360", " 90 ", "+45", "007"});
  }
  void expect_changed_by(const std::function<void()>& edit) {
    select();
    ASSERT_FALSE(page.Changed());
    edit();
    EXPECT_TRUE(page.Changed());
  }

  HeadlessToolkit toolkit;
  Form form{toolkit};
  FakeControl control;
  Page page{&form};
};

class LineScanAnglePage : public PageTest<LineScanAngleProp> {
 protected:
  LineScanAnglePage() : PageTest(fake_LineScan()) {}
};

TEST_F(LineScanAnglePage, TakesWholeDegreesAlone) { expect_angle(page.txtAngle, "0"); }

TEST_F(LineScanAnglePage, ReadsAndWritesTheAngle) {
  control.put("angle", std::int16_t{77});
  select();
  EXPECT_EQ(page.txtAngle.Text(), "77");
  page.txtAngle.Text("359");
  EXPECT_TRUE(page.ApplyChanges());
  EXPECT_EQ(control.writes, (Writes{{"angle", std::int16_t{359}}}));
}

class Plot2DPage : public PageTest<Plot2DProp> {
 protected:
  Plot2DPage() : PageTest(fake_Plot2D()) {}
};

TEST_F(Plot2DPage, ClearingTheResolutionPutsFiveIntoItAtOnce) {
  page.txtResolution.Text("7");
  page.txtResolution.Text("");
  EXPECT_EQ(page.txtResolution.Text(), "5");
}

TEST_F(Plot2DPage, TakesADecimalResolutionAlone) { expect_decimal(page.txtResolution, "5"); }

TEST_F(Plot2DPage, ReadsAndWritesItsProperties) {
  control.put("Resolution", 2.5);
  control.put("ShowSites", std::int32_t{-1});
  select();
  EXPECT_EQ(page.txtResolution.Text(), "2.5");
  EXPECT_TRUE(page.chkShowSites.Value());
  page.txtResolution.Text("3.25");
  page.chkShowSites.Value(false);
  EXPECT_TRUE(page.ApplyChanges());
  EXPECT_EQ(sorted(control.writes), (Writes{{"Resolution", 3.25}, {"ShowSites", std::int32_t{0}}}));
  page.chkShowSites.Value(true);
  page.ApplyChanges();
  EXPECT_EQ(control["ShowSites"], automation::Variant(std::int32_t{-1}));
}

TEST_F(Plot2DPage, IsChangedByEachField) {
  expect_changed_by([&] { page.txtResolution.Text("6"); });
  expect_changed_by([&] { page.chkShowSites.Value(true); });
}

TEST_F(Plot2DPage, IsNotChangedByASelectionAndTellsSo) {
  bool told = true;
  page.OnChanged = [&] { told = page.Changed(); };
  control.put("Resolution", 3.0);
  select();
  EXPECT_FALSE(page.Changed());
  EXPECT_FALSE(told);
}

TEST_F(Plot2DPage, ADefaultEqualToTheValueIsAChangeToo) {
  page.txtResolution.Text("x");
  EXPECT_EQ(page.txtResolution.Text(), "5");
  EXPECT_TRUE(page.Changed());
}

class Plot2DSPage : public PageTest<Plot2DSProp> {
 protected:
  Plot2DSPage() : PageTest(fake_Plot2DS()) {}
};

TEST_F(Plot2DSPage, TakesDecimalNumbersAlone) {
  expect_decimal(page.txtResolution, "5");
  expect_decimal(page.txtSigmaRange, "0.5");
}

TEST_F(Plot2DSPage, ReadsAndWritesItsProperties) {
  control.put("SigmaRange", 1.25);
  select();
  EXPECT_EQ(page.txtSigmaRange.Text(), "1.25");
  EXPECT_FALSE(page.chkShowSites.Value());
  page.txtSigmaRange.Text("2.75");
  EXPECT_TRUE(page.ApplyChanges());
  EXPECT_EQ(sorted(control.writes),
            (Writes{{"Resolution", 5.0}, {"ShowSites", std::int32_t{0}}, {"SigmaRange", 2.75}}));
}

class Plot2DCPage : public PageTest<Plot2DCProp> {
 protected:
  Plot2DCPage() : PageTest(fake_Plot2DC()) {}
};

TEST_F(Plot2DCPage, TakesADecimalIntervalAlone) { expect_decimal(page.txtInterval, "1"); }

TEST_F(Plot2DCPage, WritesEveryChoiceUnderItsNumber) {
  for (int quality = 0; quality <= 2; ++quality)
    for (int marks = 1; marks <= 3; ++marks)
      for (int colors = 0; colors <= 2; ++colors) {
        page.OptQuali(quality).Value(true);
        page.OptExcon(marks).Value(true);
        page.Optcol(colors).Value(true);
        page.chkPercent.Value(colors == 0);
        page.txtInterval.Text("2.5");
        control.writes.clear();
        EXPECT_TRUE(page.ApplyChanges());
        EXPECT_EQ(sorted(control.writes),
                  (Writes{{"Interval", 2.5},
                          {"IntervalInPercent", static_cast<std::int16_t>(colors == 0 ? 0 : -1)},
                          {"PlotColored", std::int32_t{colors}},
                          {"Resolution", std::int32_t{quality}},
                          {"marksites", std::int32_t{marks}}}));
        Plot2DCProp other(&form);
        other.SelectionChanged({control.object()});
        EXPECT_TRUE(other.OptQuali(quality).Value());
        EXPECT_TRUE(other.OptExcon(marks).Value());
        EXPECT_TRUE(other.Optcol(colors).Value());
        EXPECT_EQ(other.chkPercent.Value(), colors == 0);
      }
}

TEST_F(Plot2DCPage, ANumberWithoutAnOptionStays) {
  for (int colors = 0; colors <= 2; ++colors) EXPECT_FALSE(page.Optcol(colors).Value());
  page.OptQuali(2).Value(true);
  page.ApplyChanges();
  EXPECT_EQ(control["PlotColored"], automation::Variant(std::int32_t{-1}));
  EXPECT_EQ(control["Resolution"], automation::Variant(std::int32_t{2}));
}

TEST_F(Plot2DCPage, IsChangedByEachField) {
  expect_changed_by([&] { page.txtInterval.Text("6"); });
  expect_changed_by([&] { page.chkPercent.Value(true); });
  expect_changed_by([&] { page.OptQuali(1).Value(true); });
  expect_changed_by([&] { page.OptExcon(2).Value(true); });
  expect_changed_by([&] { page.Optcol(0).Value(true); });
}

class HistogrammPage : public PageTest<HistogrammProp> {
 protected:
  HistogrammPage() : PageTest(fake_Histogram()) {}
};

TEST_F(HistogrammPage, TakesADecimalResolutionAlone) { expect_decimal(page.txtResolution, "0.01"); }

TEST_F(HistogrammPage, WritesEveryChoiceUnderItsNumber) {
  for (int type = 4; type >= 1; --type) {
    control.writes.clear();
    page.optPlot(type).Value(true);
    page.txtResolution.Text("12");
    EXPECT_TRUE(page.ApplyChanges());
    EXPECT_EQ(sorted(control.writes), (Writes{{"PlotType", std::int32_t{type}}, {"Resolution", 12.0}}));
  }
}

TEST_F(HistogrammPage, IsChangedByEachField) {
  expect_changed_by([&] { page.txtResolution.Text("6"); });
  expect_changed_by([&] { page.optPlot(3).Value(true); });
}

template <class Page>
FakeControl fake_surface_of();
template <>
FakeControl fake_surface_of<Plot3DProp>() {
  return fake_Plot3D();
}
template <>
FakeControl fake_surface_of<Plot3DSProp>() {
  return fake_Plot3DS();
}

template <class Page>
class SurfacePage : public PageTest<Page> {
 protected:
  SurfacePage() : PageTest<Page>(fake_surface_of<Page>()) {}

  Recording expected_preview(double rotation, double inclination) const {
    RecordingSurface surface(this->page.Plot.pixel_size(), {15, 15});
    SurfaceCanvas canvas(CanvasKind::picture_box, &surface);
    canvas.BackColor(this->toolkit.resolve(this->page.Plot.BackColor));
    DrawViewPreview(canvas, rotation, inclination);
    return surface.recording();
  }
};
using Surfaces = testing::Types<Plot3DProp, Plot3DSProp>;
TYPED_TEST_SUITE(SurfacePage, Surfaces);

TYPED_TEST(SurfacePage, ChecksItsFields) {
  this->expect_decimal(this->page.txtXResolution, "5");
  this->expect_decimal(this->page.txtYResolution, "5");
  this->expect_decimal(this->page.txtPlotScale, "40");
  this->expect_angle(this->page.txtGridInclination, "35");
  this->expect_angle(this->page.txtGridRotation, "40");
  this->expect_angle(this->page.txtWaferRotation, "40");
}

TYPED_TEST(SurfacePage, WritesEachFieldToItsProperty) {
  auto& page = this->page;
  page.txtXResolution.Text("1.5");
  page.txtYResolution.Text("2.5");
  page.txtPlotScale.Text("30");
  page.txtGridInclination.Text("10");
  page.txtGridRotation.Text("20");
  page.txtWaferRotation.Text("300");
  EXPECT_TRUE(page.ApplyChanges());
  const Writes expected{{"GridInclination", std::int16_t{10}},
                        {"GridRotation", std::int16_t{20}},
                        {"PlotScale", std::int16_t{30}},
                        {"WaferRotation", std::int16_t{300}},
                        {"XResolution", 1.5},
                        {"YResolution", 2.5}};
  Writes written = sorted(this->control.writes);
  std::erase_if(written,
                [](const auto& write) { return write.first == "PlotType" || write.first == "SigmaRange"; });
  EXPECT_EQ(written, expected);
  EXPECT_EQ(this->control.writes.size(), 7u);

  TypeParam other(&this->form);
  other.SelectionChanged({this->control.object()});
  EXPECT_EQ(other.txtXResolution.Text(), "1.5");
  EXPECT_EQ(other.txtYResolution.Text(), "2.5");
  EXPECT_EQ(other.txtPlotScale.Text(), "30");
  EXPECT_EQ(other.txtGridInclination.Text(), "10");
  EXPECT_EQ(other.txtGridRotation.Text(), "20");
  EXPECT_EQ(other.txtWaferRotation.Text(), "300");
}

TYPED_TEST(SurfacePage, PreviewsTheGrid) {
  auto& page = this->page;
  EXPECT_EQ(recording_of(page.Plot), this->expected_preview(40, 35));
  page.txtGridRotation.Text("80");
  EXPECT_EQ(recording_of(page.Plot), this->expected_preview(80, 35));
  page.txtGridInclination.Text("60");
  EXPECT_EQ(recording_of(page.Plot), this->expected_preview(80, 60));
  page.txtGridRotation.Text("x");
  page.txtGridInclination.Text("");
  EXPECT_EQ(recording_of(page.Plot), this->expected_preview(40, 35));
  page.txtGridInclination.Text("0");
  EXPECT_EQ(recording_of(page.Plot), this->expected_preview(40, 0));
}

TYPED_TEST(SurfacePage, LeavesAValueThatDoesNotFitItsProperty) {
  this->page.txtPlotScale.Text("40000");
  this->page.txtXResolution.Text("3");
  EXPECT_NO_THROW(this->page.ApplyChanges());
  EXPECT_EQ(this->control["PlotScale"], automation::Variant(std::int16_t{40}));
  EXPECT_EQ(this->control["XResolution"], automation::Variant(3.0));
  this->page.txtPlotScale.Text("32767");
  this->page.ApplyChanges();
  EXPECT_EQ(this->control["PlotScale"], automation::Variant(std::int16_t{32767}));
}

class Plot3DPage : public SurfacePage<Plot3DProp> {};
class Plot3DSPage : public SurfacePage<Plot3DSProp> {};

TEST_F(Plot3DPage, WritesThePlotTypeUnderItsNumber) {
  for (int type = 3; type >= 1; --type) {
    page.optPlot(type).Value(true);
    EXPECT_TRUE(page.Changed());
    page.ApplyChanges();
    EXPECT_EQ(control["PlotType"], automation::Variant(std::int32_t{type}));
  }
}

TEST_F(Plot3DSPage, HasASigmaRange) {
  expect_decimal(page.txtSigmaRange, "0.5");
  page.txtSigmaRange.Text("1.75");
  page.ApplyChanges();
  EXPECT_EQ(control["SigmaRange"], automation::Variant(1.75));
}

TEST_F(Plot2DSPage, HasItsNumbersInTheLocaleOfTheUser) {
  {
    const CommaInForce comma;
    control.put("Resolution", 2.5);
    select();
    EXPECT_EQ(page.txtResolution.Text(), "2,5");
    page.txtResolution.Text("3.5");
    EXPECT_EQ(page.txtResolution.Text(), "5");
    page.txtResolution.Text("3,5");
    EXPECT_EQ(page.txtResolution.Text(), "3,5");
    page.txtSigmaRange.Text("");
    EXPECT_EQ(page.txtSigmaRange.Text(), "0,5");
    page.ApplyChanges();
  }
  EXPECT_EQ(sorted(control.writes),
            (Writes{{"Resolution", 3.5}, {"ShowSites", std::int32_t{0}}, {"SigmaRange", 0.5}}));
}

}  // namespace
}  // namespace mirolen
