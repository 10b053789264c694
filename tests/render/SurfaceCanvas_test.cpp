#include "mirolen/render/SurfaceCanvas.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <functional>

#include "mirolen/render/RecordingSurface.h"
#include "support/site_support.h"

namespace mirolen {
namespace {

constexpr std::int16_t kTwips = 1, kPoints = 2, kPixels = 3, kInches = 5, kMillimetres = 6, kCentimetres = 7;

/// A canvas on a surface whose pixels are twice as high as wide.
struct Fixture {
  RecordingSurface surface{{300, 200}, {10, 20}};
  SurfaceCanvas canvas{CanvasKind::picture_box, &surface};

  template <class Call>
  const Call& only() const {
    EXPECT_EQ(surface.recording().size(), 1u);
    return std::get<Call>(surface.recording().at(0));
  }
  template <class Call>
  const Call& last() const {
    return std::get<Call>(surface.recording().at(surface.recording().size() - 1));
  }
};

class OnSurface : public testing::Test, protected Fixture {};

void expect_at(SurfacePoint actual, SurfacePoint expected) {
  EXPECT_DOUBLE_EQ(actual.x, expected.x);
  EXPECT_DOUBLE_EQ(actual.y, expected.y);
}

// ---- Scale ----

TEST_F(OnSurface, MeasuresItselfInEveryScaleMode) {
  const std::vector<std::tuple<std::int16_t, double, double>> sizes = {
      {kPixels, 300, 200},
      {kTwips, 3000, 4000},
      {kPoints, 150, 200},
      {kInches, 3000 / 1440.0, 4000 / 1440.0},
      {kMillimetres, 3000 / 1440.0 * 25.4, 4000 / 1440.0 * 25.4},
      {kCentimetres, 3000 / 1440.0 * 2.54, 4000 / 1440.0 * 2.54}};
  for (const auto& [mode, width, height] : sizes) {
    canvas.ScaleMode(mode);
    EXPECT_EQ(canvas.ScaleMode(), mode);
    EXPECT_DOUBLE_EQ(canvas.ScaleWidth(), width) << mode;
    EXPECT_DOUBLE_EQ(canvas.ScaleHeight(), height) << mode;
    EXPECT_EQ(canvas.ScaleLeft(), 0);
    EXPECT_EQ(canvas.ScaleTop(), 0);
  }
}

TEST_F(OnSurface, StartsInPixels) { EXPECT_EQ(canvas.ScaleMode(), kPixels); }

TEST_F(OnSurface, TellsTheResolutionOfItsSurface) {
  EXPECT_EQ(canvas.TwipsPerPixelX(), 10);
  EXPECT_EQ(canvas.TwipsPerPixelY(), 20);
}

TEST_F(OnSurface, ConvertsEachAxisByItsOwnResolution) {
  canvas.ScaleMode(kTwips);
  canvas.Line(line_flags, 100, 100, 200, 400, Color(255));
  expect_at(only<recorded::Line>().from, {10, 5});
  expect_at(only<recorded::Line>().to, {20, 20});
}

TEST_F(OnSurface, ConvertsEveryUnit) {
  for (const auto& [mode, twips] :
       std::vector<std::pair<std::int16_t, double>>{{kTwips, 1},
                                                    {kPoints, 20},
                                                    {kInches, 1440},
                                                    {kMillimetres, 1440 / 25.4},
                                                    {kCentimetres, 1440 / 2.54}}) {
    surface.forget();
    canvas.ScaleMode(mode);
    canvas.Line(line_flags, 0, 0, 3, 3, {});
    expect_at(only<recorded::Line>().to, {3 * twips / 10, 3 * twips / 20});
  }
}

TEST_F(OnSurface, DrawsACircleRoundOnPaperAlsoWhereItsPixelsAreNot) {
  canvas.ScaleMode(kTwips);
  canvas.Circle(1000, 1000, 200);
  const auto& circle = only<recorded::Ellipse>();
  expect_at(circle.centre, {100, 50});
  EXPECT_DOUBLE_EQ(circle.radii.width, 20);
  EXPECT_DOUBLE_EQ(circle.radii.height, 10);
}

TEST_F(OnSurface, TakesPolygonsAndSeedsInPixelsWhateverTheScale) {
  canvas.ScaleMode(kTwips);
  const PixelPoint points[] = {{1, 2}, {30, 4}, {5, 60}};
  canvas.Polygon(points);
  EXPECT_THAT(last<recorded::Polygon>().points, testing::ElementsAreArray(points));
  canvas.FloodFill(7, 8, 0x123456);
  EXPECT_EQ(last<recorded::FloodFill>().seed, (PixelPoint{7, 8}));
  EXPECT_EQ(last<recorded::FloodFill>().boundary, 0x123456u);
}

// ---- Shapes ----

TEST_F(OnSurface, DrawsALineInItsOwnColorOrInTheForeColor) {
  canvas.ForeColor(0x112233);
  canvas.DrawWidth(3);
  canvas.DrawStyle(0);
  canvas.Line(line_flags, 1, 2, 3, 4, Color(0xFF));
  EXPECT_EQ(last<recorded::Line>(), (recorded::Line{{0xFF, 3, Pen::Style::solid}, {1, 2}, {3, 4}}));
  canvas.Line(line_flags, 1, 2, 3, 4, {});
  EXPECT_EQ(last<recorded::Line>().pen.color, 0x112233u);
}

TEST_F(OnSurface, FillsABoxInTheGivenColorWhateverTheFillStyle) {
  for (const std::int16_t style : {solid_fill, transparent_fill}) {
    surface.forget();
    canvas.FillStyle(style);
    canvas.FillColor(0x00FF00);
    canvas.Line(filled_box_flags, 10, 20, 30, 40, Color(0xFF));
    const auto& box = only<recorded::Rectangle>();
    EXPECT_EQ(box.brush, (Brush{0xFF, true}));
    EXPECT_EQ(box.box, (SurfaceBox{{10, 20}, {30, 40}}));
    EXPECT_TRUE(box.pen.style == Pen::Style::none || box.pen.color == 0xFF);
  }
}

TEST_F(OnSurface, FillsABoxWithoutAColorInTheForeColor) {
  canvas.ForeColor(0x445566);
  canvas.Line(filled_box_flags, 0, 0, 1, 1, {});
  EXPECT_EQ(only<recorded::Rectangle>().brush, (Brush{0x445566, true}));
}

TEST_F(OnSurface, OutlinesABox) {
  canvas.DrawWidth(2);
  canvas.FillStyle(transparent_fill);
  canvas.Line(box_flags, 10, 20, 30, 40, Color(0xFF));
  const auto& box = only<recorded::Rectangle>();
  EXPECT_EQ(box.pen, (Pen{0xFF, 2, Pen::Style::solid}));
  EXPECT_FALSE(box.brush.solid);
  EXPECT_EQ(box.box, (SurfaceBox{{10, 20}, {30, 40}}));
}

TEST_F(OnSurface, FillsCirclesAndPolygonsOnlyInASolidStyle) {
  const PixelPoint points[] = {{0, 0}, {9, 0}, {0, 9}};
  canvas.FillColor(0x00AA00);
  for (const bool solid : {true, false}) {
    canvas.FillStyle(solid ? solid_fill : transparent_fill);
    canvas.Circle(50, 50, 10, Color(0xFF));
    EXPECT_EQ(last<recorded::Ellipse>().brush.solid, solid);
    EXPECT_EQ(last<recorded::Ellipse>().pen.color, 0xFFu);
    canvas.Polygon(points);
    EXPECT_EQ(last<recorded::Polygon>().brush.solid, solid);
    canvas.FloodFill(1, 1, 0);
    EXPECT_EQ(last<recorded::FloodFill>().brush.solid, solid);
    if (!solid) continue;
    EXPECT_EQ(last<recorded::FloodFill>().brush.color, 0x00AA00u);
  }
}

TEST_F(OnSurface, DrawsNoOutlineInStyleFive) {
  const PixelPoint points[] = {{0, 0}, {9, 0}, {0, 9}};
  canvas.DrawStyle(no_outline);
  canvas.Circle(50, 50, 10, Color(0xFF));
  EXPECT_EQ(last<recorded::Ellipse>().pen.style, Pen::Style::none);
  canvas.Polygon(points);
  EXPECT_EQ(last<recorded::Polygon>().pen.style, Pen::Style::none);
  canvas.Line(box_flags, 0, 0, 5, 5, Color(0xFF));
  EXPECT_EQ(last<recorded::Rectangle>().pen.style, Pen::Style::none);
  canvas.DrawStyle(solid_line);
  canvas.Polygon(points);
  EXPECT_EQ(last<recorded::Polygon>().pen.style, Pen::Style::solid);
}

TEST_F(OnSurface, OutlinesPolygonsInTheForeColor) {
  const PixelPoint points[] = {{0, 0}, {9, 0}, {0, 9}};
  canvas.ForeColor(0x0000CC);
  canvas.DrawWidth(4);
  canvas.Polygon(points);
  EXPECT_EQ(only<recorded::Polygon>().pen, (Pen{0x0000CC, 4, Pen::Style::solid}));
}

TEST_F(OnSurface, SqueezesACircleByItsAspect) {
  canvas.Circle(50, 60, 20, {}, {}, {}, 0.25);
  const auto& flat = last<recorded::Ellipse>();
  EXPECT_EQ(flat.radii, (SurfaceSize{20, 5}));
  expect_at(flat.centre, {50, 60});
  canvas.Circle(50, 60, 20, {}, {}, {}, 2);
  EXPECT_DOUBLE_EQ(last<recorded::Ellipse>().radii.height, 2 * last<recorded::Ellipse>().radii.width);
}

TEST_F(OnSurface, DrawsAnArcBetweenTwoAngles) {
  canvas.ForeColor(0x12);
  canvas.Circle(50, 60, 20, {}, 1.5, 3.25, 0.5);
  const auto& arc = only<recorded::Arc>();
  EXPECT_EQ(arc.start, 1.5);
  EXPECT_EQ(arc.end, 3.25);
  EXPECT_EQ(arc.radii, (SurfaceSize{20, 10}));
  EXPECT_EQ(arc.pen.color, 0x12u);
}

TEST_F(OnSurface, ErasesToTheBackColorAndReturnsToTheOrigin) {
  canvas.BackColor(0xC0C0C0);
  canvas.CurrentX(40);
  canvas.CurrentY(50);
  canvas.Cls();
  EXPECT_EQ(only<recorded::Clear>().color, 0xC0C0C0u);
  EXPECT_EQ(canvas.CurrentX(), 0);
  EXPECT_EQ(canvas.CurrentY(), 0);
}

TEST_F(OnSurface, ShowsWhatWasDrawnOnRefresh) {
  canvas.Refresh();
  EXPECT_EQ(only<recorded::Refresh>(), recorded::Refresh{});
}

// ---- Text ----

TEST_F(OnSurface, PrintsAtTheTextPlaceInFontAndForeColor) {
  const FontSpec font{"Symbol", 14, true, false};
  canvas.Font(font);
  canvas.ForeColor(0xFF);
  canvas.FontTransparent(true);
  canvas.CurrentX(40);
  canvas.CurrentY(50);
  canvas.Print("sigma");
  EXPECT_EQ(only<recorded::Text>(), (recorded::Text{font, 0xFF, {}, {40, 50}, "sigma"}));
}

TEST_F(OnSurface, PaintsTheBackgroundOfTextThatIsNotTransparent) {
  canvas.BackColor(0xABCDEF);
  canvas.FontTransparent(false);
  canvas.Print("x");
  EXPECT_EQ(only<recorded::Text>().background, 0xABCDEFu);
}

TEST_F(OnSurface, MovesTheTextPlaceToTheNextLine) {
  for (const std::int16_t mode : {kPixels, kTwips, kMillimetres}) {
    canvas.ScaleMode(mode);
    canvas.CurrentY(30);
    canvas.Print("one");
    EXPECT_DOUBLE_EQ(canvas.CurrentY(), 30 + canvas.TextHeight("one")) << mode;
    EXPECT_GT(canvas.TextHeight("one"), 0);
  }
}

TEST_F(OnSurface, KeepsTheTextPlaceOverAChangeOfTheScale) {
  canvas.ScaleMode(kTwips);
  canvas.CurrentX(150);
  canvas.CurrentY(600);
  canvas.ScaleMode(kPixels);
  EXPECT_DOUBLE_EQ(canvas.CurrentX(), 15);
  EXPECT_DOUBLE_EQ(canvas.CurrentY(), 30);
  canvas.ScaleMode(kInches);
  EXPECT_DOUBLE_EQ(canvas.CurrentX(), 150 / 1440.0);
  canvas.ScaleMode(kTwips);
  EXPECT_DOUBLE_EQ(canvas.CurrentX(), 150);
  EXPECT_DOUBLE_EQ(canvas.CurrentY(), 600);
}

TEST_F(OnSurface, MeasuresTextInItsScale) {
  const SurfaceSize pixels_of_text = surface.measure(canvas.Font(), "width");
  EXPECT_DOUBLE_EQ(canvas.TextWidth("width"), pixels_of_text.width);
  EXPECT_DOUBLE_EQ(canvas.TextHeight("width"), pixels_of_text.height);
  canvas.ScaleMode(kTwips);
  EXPECT_DOUBLE_EQ(canvas.TextWidth("width"), pixels_of_text.width * 10);
  EXPECT_DOUBLE_EQ(canvas.TextHeight("width"), pixels_of_text.height * 20);
}

// ---- Colours of the system ----

TEST(SurfaceCanvasOfAHost, ResolvesEveryColorItDrawsWith) {
  struct Host : SurfaceCanvas {
    using SurfaceCanvas::SurfaceCanvas;
    Color resolve(Color color) const override { return color == 0x80000005 ? 0xF0F1F2 : color; }
  };
  RecordingSurface surface;
  Host canvas(CanvasKind::other, &surface);
  const Color system = 0x80000005;
  canvas.BackColor(system);
  canvas.FillColor(system);
  canvas.ForeColor(system);
  canvas.FillStyle(solid_fill);
  EXPECT_EQ(canvas.BackColor(), system);
  canvas.Cls();
  canvas.Circle(1, 1, 1);
  canvas.Line(filled_box_flags, 0, 0, 1, 1, system);
  canvas.FloodFill(0, 0, system);
  const Color shown = 0xF0F1F2;
  ASSERT_EQ(surface.recording().size(), 4u);
  EXPECT_EQ(std::get<recorded::Clear>(surface.recording()[0]).color, shown);
  EXPECT_EQ(std::get<recorded::Ellipse>(surface.recording()[1]).brush.color, shown);
  EXPECT_EQ(std::get<recorded::Ellipse>(surface.recording()[1]).pen.color, shown);
  EXPECT_EQ(std::get<recorded::Rectangle>(surface.recording()[2]).brush.color, shown);
  EXPECT_EQ(std::get<recorded::FloodFill>(surface.recording()[3]).brush.color, shown);
  EXPECT_EQ(std::get<recorded::FloodFill>(surface.recording()[3]).boundary, shown);
}

// ---- Errors ----

using Members = std::vector<std::pair<std::string, std::function<void(SurfaceCanvas&)>>>;

const Members& members_that_need_a_surface() {
  static const PixelPoint triangle[] = {{0, 0}, {9, 0}, {0, 9}};
  static const Members members = {{"Cls", [](auto& c) { c.Cls(); }},
                                  {"Refresh", [](auto& c) { c.Refresh(); }},
                                  {"Line", [](auto& c) { c.Line(line_flags, 0, 0, 1, 1, {}); }},
                                  {"Line", [](auto& c) { c.Line(filled_box_flags, 0, 0, 1, 1, {}); }},
                                  {"Circle", [](auto& c) { c.Circle(0, 0, 1); }},
                                  {"Circle", [](auto& c) { c.Circle(0, 0, 1, {}, 1, 2); }},
                                  {"Print", [](auto& c) { c.Print("text"); }},
                                  {"TextWidth", [](auto& c) { c.TextWidth("text"); }},
                                  {"TextHeight", [](auto& c) { c.TextHeight("text"); }},
                                  {"Polygon", [](auto& c) { c.Polygon(triangle); }},
                                  {"FloodFill", [](auto& c) { c.FloodFill(0, 0, 0); }},
                                  {"ScaleWidth", [](auto& c) { c.ScaleWidth(); }},
                                  {"ScaleHeight", [](auto& c) { c.ScaleHeight(); }},
                                  {"TwipsPerPixelX", [](auto& c) { c.TwipsPerPixelX(); }},
                                  {"TwipsPerPixelY", [](auto& c) { c.TwipsPerPixelY(); }}};
  return members;
}

TEST(SurfaceCanvasWithoutASurface, ThrowsTheNameOfTheMember) {
  for (const auto& [name, use] : members_that_need_a_surface()) {
    SurfaceCanvas canvas(CanvasKind::other, nullptr);
    try {
      use(canvas);
      ADD_FAILURE() << name << " did not throw";
    } catch (const CanvasError& error) {
      EXPECT_EQ(error.member, name);
    }
  }
}

TEST(SurfaceCanvasWithoutASurface, KeepsItsDrawingState) {
  SurfaceCanvas canvas(CanvasKind::printer, nullptr);
  canvas.FillColor(1);
  canvas.ForeColor(2);
  canvas.BackColor(3);
  canvas.FillStyle(solid_fill);
  canvas.DrawStyle(no_outline);
  canvas.DrawWidth(7);
  canvas.FontTransparent(false);
  canvas.Font({"Symbol", 9, true, true});
  EXPECT_EQ(canvas.kind(), CanvasKind::printer);
  EXPECT_EQ(canvas.FillColor(), 1u);
  EXPECT_EQ(canvas.ForeColor(), 2u);
  EXPECT_EQ(canvas.BackColor(), 3u);
  EXPECT_EQ(canvas.FillStyle(), solid_fill);
  EXPECT_EQ(canvas.DrawStyle(), no_outline);
  EXPECT_EQ(canvas.DrawWidth(), 7);
  EXPECT_FALSE(canvas.FontTransparent());
  EXPECT_EQ(canvas.Font(), (FontSpec{"Symbol", 9, true, true}));
}

TEST(SurfaceCanvasWithoutASurface, LetsAMapEndQuietly) {
  wafer source;
  set_diameters(source, 200, 200);
  load(source, {{0, 0, 1}, {10, 0, 2}, {0, 10, 3}, {10, 10, 4}});
  SurfaceCanvas canvas(CanvasKind::picture_box, nullptr);
  EXPECT_NO_THROW(source.D2Plot(canvas, 25, 5, 0, -1, 0, 0, 0, 0, 0));
}

TEST_F(OnSurface, RefusesScaleModesItDoesNotKnow) {
  for (const std::int16_t mode : {0, 4, 8, -1, 32767})
    EXPECT_THROW(canvas.ScaleMode(mode), InvalidArgument) << mode;
  EXPECT_EQ(canvas.ScaleMode(), kPixels);
}

TEST_F(OnSurface, RefusesStylesAndWidthsItDoesNotKnowAndKeepsTheOldOnes) {
  canvas.FillStyle(solid_fill);
  canvas.DrawStyle(no_outline);
  canvas.DrawWidth(3);
  for (const std::int16_t style : {-1, 99}) {
    EXPECT_THROW(canvas.FillStyle(style), RunTimeError);
    EXPECT_THROW(canvas.DrawStyle(style), RunTimeError);
  }
  for (const std::int16_t width : {0, -1}) EXPECT_THROW(canvas.DrawWidth(width), RunTimeError);
  EXPECT_EQ(canvas.FillStyle(), solid_fill);
  EXPECT_EQ(canvas.DrawStyle(), no_outline);
  EXPECT_EQ(canvas.DrawWidth(), 3);
}

TEST_F(OnSurface, RefusesPlacesThatAreNotFinite) {
  for (const double bad : {kNaN, kInfinity, -kInfinity}) {
    EXPECT_THROW(canvas.Line(line_flags, bad, 0, 1, 1, {}), RunTimeError);
    EXPECT_THROW(canvas.Line(filled_box_flags, 0, 0, 1, bad, {}), RunTimeError);
    EXPECT_THROW(canvas.Circle(0, bad, 1), RunTimeError);
    EXPECT_THROW(canvas.Circle(0, 0, bad), RunTimeError);
    EXPECT_THROW(canvas.Circle(0, 0, 1, {}, {}, {}, bad), RunTimeError);
    EXPECT_THROW(canvas.CurrentX(bad), RunTimeError);
    EXPECT_THROW(canvas.CurrentY(bad), RunTimeError);
  }
  EXPECT_THROW(canvas.Circle(0, 0, -1), RunTimeError);
  EXPECT_THROW(canvas.Line(7, 0, 0, 1, 1, {}), RunTimeError);
  EXPECT_TRUE(surface.recording().empty());
  EXPECT_EQ(canvas.CurrentX(), 0);
}

TEST_F(OnSurface, RefusesAnglesThatAreNotFinite) {
  for (const double bad : {kNaN, kInfinity, -kInfinity}) {
    EXPECT_THROW(canvas.Circle(0, 0, 1, {}, bad, 1), RunTimeError);
    EXPECT_THROW(canvas.Circle(0, 0, 1, {}, 1, bad), RunTimeError);
  }
  EXPECT_TRUE(surface.recording().empty());
}

TEST_F(OnSurface, RefusesPlacesWhosePixelsLeaveTheRangeOfADouble) {
  canvas.ScaleMode(kInches);
  EXPECT_THROW(canvas.Line(line_flags, 1e307, 0, 1, 1, {}), RunTimeError);
  EXPECT_THROW(canvas.Circle(0, 0, 1e307), RunTimeError);
  EXPECT_THROW(canvas.CurrentY(1e307), RunTimeError);
  EXPECT_TRUE(surface.recording().empty());
}

TEST(SurfaceCanvasOfNoResolution, TakesTheConversionForAnError) {
  RecordingSurface surface({300, 200}, {0, 0});
  SurfaceCanvas canvas(CanvasKind::other, &surface);
  canvas.ScaleMode(kTwips);
  EXPECT_THROW(canvas.ScaleWidth(), RunTimeError);
  EXPECT_THROW(canvas.Line(line_flags, 0, 0, 10, 10, {}), RunTimeError);
  EXPECT_TRUE(surface.recording().empty());
}

}  // namespace
}  // namespace mirolen
