#include "mirolen/qt/ImageSurface.h"

#include <gtest/gtest.h>

#include <QFontMetricsF>
#include <QThread>
#include <cmath>

#include "mirolen/core/wafer.h"
#include "mirolen/qt/Picture.h"
#include "mirolen/render/RecordingSurface.h"
#include "mirolen/render/SurfaceCanvas.h"
#include "qt/qt_support.h"

namespace mirolen {
namespace {

using namespace qt_test;
using qt::ImageSurface;

class ImageSurfaceAt : public testing::TestWithParam<double> {
 protected:
  int device(int logical) const { return static_cast<int>(std::floor(logical * GetParam() + 0.5)); }
  ImageSurface surface_{{60, 60}, GetParam()};
};
INSTANTIATE_TEST_SUITE_P(Ratios, ImageSurfaceAt, testing::Values(1, 1.1, 1.25, 1.5, 2, 3));

constexpr int cell_edges[] = {3, 10, 16, 23, 30, 36, 43};
constexpr Color cell_colors[] = {red, green, blue};

Color color_of_cell(int column, int row) { return cell_colors[(column + 2 * row) % 3]; }

void draw_cell(ImageSurface& surface, int column, int row) {
  const int left = cell_edges[column], right = cell_edges[column + 1];
  const int top = cell_edges[row], bottom = cell_edges[row + 1];
  const PixelPoint corners[] = {{right, top}, {left, top}, {left, bottom}, {right, bottom}};
  surface.polygon(no_pen, {color_of_cell(column, row)}, corners);
}

TEST_P(ImageSurfaceAt, CellsMeetEdgeToEdgeWithoutSeamOverlapOrBlend) {
  for (int row = 0; row < 6; ++row)
    for (int column = 0; column < 6; ++column) draw_cell(surface_, column, row);

  const auto cell_at = [&](int at) {
    int cell = -1;
    while (cell < 6 && at >= device(cell_edges[cell + 1])) ++cell;
    return cell < 6 ? cell : -1;
  };
  const QImage& image = surface_.pixels();
  for (int y = 0; y < image.height(); ++y)
    for (int x = 0; x < image.width(); ++x) {
      const int column = cell_at(x), row = cell_at(y);
      const Color expected = column < 0 || row < 0 ? white : color_of_cell(column, row);
      ASSERT_EQ(pixel(image, x, y), expected) << x << ", " << y;
    }
}

TEST_P(ImageSurfaceAt, CellsGiveTheSamePictureInEveryOrder) {
  ImageSurface backward({60, 60}, GetParam());
  for (int i = 0; i < 36; ++i) {
    draw_cell(surface_, i % 6, i / 6);
    draw_cell(backward, 5 - i % 6, 5 - i / 6);
  }
  EXPECT_EQ(surface_.pixels(), backward.pixels());
}

TEST_P(ImageSurfaceAt, AnUprightPolygonHasThePixelsThatAnyOtherWayToDrawItHas) {
  ImageSurface other({60, 60}, GetParam());
  for (int left = 2; left < 12; ++left) {
    const int right = left + 13, top = 2 * left, bottom = top + 15;
    const PixelPoint box[] = {{left, top}, {right, top}, {right, bottom}, {left, bottom}};
    const PixelPoint bent[] = {{left, top}, {left + 5, top}, {right, top}, {right, bottom}, {left, bottom}};
    const Brush brush{static_cast<Color>(0x100000 + left)};
    surface_.polygon(no_pen, brush, box);
    other.polygon(no_pen, brush, bent);
  }
  EXPECT_EQ(surface_.pixels(), other.pixels());
}

TEST_P(ImageSurfaceAt, ASlantedPolygonIsNotSmoothed) {
  const PixelPoint corners[] = {{5, 5}, {50, 17}, {33, 52}};
  surface_.polygon(no_pen, {red}, corners);
  EXPECT_EQ(colors_in(surface_.pixels()), (std::set<Color>{red, white}));
}

TEST_P(ImageSurfaceAt, AFilledBoxHasThePixelsOfBothItsCorners) {
  surface_.rectangle(no_pen, {red}, {{12, 9}, {5, 6}});
  for (int y = 0; y < surface_.pixels().height(); ++y)
    for (int x = 0; x < surface_.pixels().width(); ++x) {
      const bool inside = x >= device(5) && x < device(13) && y >= device(6) && y < device(10);
      ASSERT_EQ(pixel(surface_, x, y), inside ? red : white) << x << ", " << y;
    }
}

TEST_P(ImageSurfaceAt, AnUprightLineIsABoxOfItsWidth) {
  ImageSurface box({60, 60}, GetParam());
  surface_.line({blue, 1}, {30, 8}, {10, 8});
  box.rectangle(no_pen, {blue}, {{10, 8}, {30, 8}});
  surface_.line({blue, 3}, {40, 20}, {40, 50});
  box.rectangle(no_pen, {blue}, {{39, 19}, {41, 51}});
  EXPECT_EQ(surface_.pixels(), box.pixels());
}

TEST_P(ImageSurfaceAt, AnOutlineLiesOnTheBoxAndAPenOfNoneDrawsNothing) {
  surface_.rectangle({red}, {blue, false}, {{5, 5}, {20, 20}});
  EXPECT_EQ(pixel(surface_, device(5), device(12)), red);
  EXPECT_EQ(pixel(surface_, device(21) - 1, device(12)), red);
  EXPECT_EQ(pixel(surface_, device(21), device(12)), white);
  EXPECT_EQ(pixel(surface_, device(10), device(10)), white);

  const QImage before = surface_.pixels();
  surface_.line(no_pen, {0, 0}, {50, 40});
  surface_.rectangle(no_pen, {blue, false}, {{5, 5}, {50, 50}});
  surface_.ellipse(no_pen, {blue, false}, {30, 30}, {20, 20});
  EXPECT_EQ(surface_.pixels(), before);
}

TEST_P(ImageSurfaceAt, ADiscReachesItsRadiusAndNoFurther) {
  surface_.ellipse({red}, {red}, {30, 30}, {20, 10});
  EXPECT_EQ(pixel(surface_, device(30), device(30)), red);
  EXPECT_EQ(pixel(surface_, device(12), device(30)), red);
  EXPECT_EQ(pixel(surface_, device(7), device(30)), white);
  EXPECT_EQ(pixel(surface_, device(30), device(17)), white);
}

TEST_P(ImageSurfaceAt, AnArcRunsCounterClockwise) {
  surface_.arc({red, 2}, {30, 30}, {20, 20}, 0, 1.5707963);
  EXPECT_EQ(pixel(surface_, device(44), device(16)), red);
  EXPECT_EQ(pixel(surface_, device(16), device(44)), white);
  EXPECT_EQ(pixel(surface_, device(44), device(44)), white);
}

TEST_P(ImageSurfaceAt, TextIsAsLargeAsOnEveryOtherSurface) {
  const SurfaceSize here = surface_.measure({"Arial", 12}, "17.535 - 17.449");
  const SurfaceSize there = ImageSurface({60, 60}, 1).measure({"Arial", 12}, "17.535 - 17.449");
  EXPECT_NEAR(here.width, there.width, 0.06 * there.width);
  EXPECT_NEAR(here.height, there.height, 0.12 * there.height);
}

TEST_P(ImageSurfaceAt, TextWithABackgroundPaintsItsBoxFirst) {
  surface_.text({"Arial", 10}, black, green, {10, 20}, "II");
  EXPECT_EQ(pixel(surface_, device(10), device(20)), green);
  EXPECT_EQ(pixel(surface_, device(10) - 1, device(20)), white);
  EXPECT_EQ(colors_in(surface_.pixels()).count(green), 1u);
}

/// The colour map of some sites on a surface.
void draw_map(Surface& surface) {
  wafer wafer;
  wafer.WafDiam = wafer.test_diam = 100;
  wafer.WaferOrigRad = 50;
  wafer.flat_ratio = 1;
  wafer.SetNop(5);
  for (const auto& [x, y] : {std::pair(0, 0), {30, 0}, {0, 30}, {-30, 0}, {0, -30}})
    wafer.SetGridValue(x, y, 5 + x + 2 * y);
  wafer.MaxMin();
  SurfaceCanvas canvas(CanvasKind::picture_box, &surface);
  wafer.D2Plot(canvas, 3, 5, 0, -1, 0, 0, 0, 0, 0);
}

TEST_P(ImageSurfaceAt, AReplayedRecordingDrawsTheSamePicture) {
  RecordingSurface recorder({60, 60});
  draw_map(recorder);
  draw_map(surface_);
  ImageSurface replayed({60, 60}, GetParam());
  replay(recorder.recording(), replayed);
  EXPECT_EQ(surface_.pixels(), replayed.pixels());
  EXPECT_GT(colors_in(surface_.pixels()).size(), 8u);
}

TEST_P(ImageSurfaceAt, HasTheScreensPixels) {
  EXPECT_EQ(surface_.pixels().size(), QSize(device(60), device(60)));
  EXPECT_EQ(surface_.image().devicePixelRatio(), GetParam());
  EXPECT_EQ(surface_.size(), (SurfaceSize{60, 60}));
}

TEST(ImageSurface, MovedToAnotherScreenKeepsItsPictureAndTakesTheScreensPixels) {
  ImageSurface surface({20, 10}, 1);
  surface.clear(red);
  surface.change_ratio(2);
  EXPECT_EQ(surface.pixels().size(), QSize(40, 20));
  EXPECT_EQ(colors_in(surface.pixels()), std::set<Color>{red});
  surface.rectangle(no_pen, {blue}, {{19, 9}, {19, 9}});
  EXPECT_EQ(pixel(surface, 38, 18), blue);
  EXPECT_EQ(pixel(surface, 37, 18), red);
}

TEST(ImageSurface, SymbolTextIsGreek) {
  ImageSurface symbol({40, 40}, 2), greek({40, 40}, 2), latin({40, 40}, 2);
  symbol.text({"Symbol", 14}, black, {}, {2, 2}, "sm W");
  greek.text({"Arial", 14}, black, {}, {2, 2}, "σμ Ω");
  latin.text({"Arial", 14}, black, {}, {2, 2}, "sm W");
  EXPECT_EQ(symbol.pixels(), greek.pixels());
  EXPECT_NE(symbol.pixels(), latin.pixels());
}

TEST(ImageSurface, ASnapshotStaysAsItWas) {
  ImageSurface surface({10, 10}, 1);
  surface.clear(red);
  const auto snapshot = surface.snapshot();
  surface.clear(blue);
  EXPECT_EQ(colors_in(dynamic_cast<const qt::Picture&>(*snapshot).image()), std::set<Color>{red});
  EXPECT_EQ(snapshot->size(), (SurfaceSize{10, 10}));
}

TEST(ImageSurface, RestoresASnapshotAlsoOneOfAnotherScreen) {
  for (const double ratio : {1.0, 1.25, 2.0}) {
    ImageSurface surface({20, 10}, ratio);
    surface.rectangle(no_pen, {blue}, {{0, 0}, {9, 9}});
    const auto kept = surface.snapshot();
    const QImage before = surface.pixels();
    surface.clear(red);
    surface.restore(*kept);
    EXPECT_EQ(surface.pixels(), before) << ratio;

    ImageSurface finer({20, 10}, 4);
    finer.restore(*kept);
    EXPECT_EQ(pixel(finer, 30, 39), blue) << ratio;
    EXPECT_EQ(pixel(finer, 50, 0), white) << ratio;
  }
}

TEST(ImageSurface, LeavesOutASnapshotOfAnotherKind) {
  ImageSurface surface({10, 10}, 1);
  surface.restore(*RecordingSurface({10, 10}).snapshot());
  EXPECT_EQ(colors_in(surface.pixels()), std::set<Color>{white});
}

TEST(ImageSurface, ShowsAtOnceOnlyHowALongDrawingGrows) {
  std::vector<bool> shown;
  ImageSurface surface({10, 10}, 1, [&](bool at_once) { shown.push_back(at_once); });
  surface.refresh();
  QThread::msleep(35);
  surface.refresh();
  surface.refresh();
  QThread::msleep(35);
  surface.refresh();
  EXPECT_EQ(shown, (std::vector{false, true, false, true}));
}

TEST(ImageSurface, LeavesAnErasedPictureToTheEventLoop) {
  std::vector<bool> shown;
  ImageSurface surface({10, 10}, 1, [&](bool at_once) { shown.push_back(at_once); });
  QThread::msleep(35);
  surface.clear(red);
  surface.refresh();
  EXPECT_EQ(shown, std::vector{false});
}

TEST(ImageSurface, TakesPlacesFarOutsideThePicture) {
  ImageSurface surface({10, 10}, 2);
  surface.line({red}, {-1e300, 1e300}, {1e300, -1e299});
  surface.ellipse({red}, {blue, false}, {1e300, 0}, {1e300, 1});
  surface.rectangle(no_pen, {green}, {{-1e300, -1e300}, {1e300, 1e300}});
  EXPECT_EQ(colors_in(surface.pixels()), std::set<Color>{green});
}

TEST(ImageSurface, APictureTooLargeToBePaintedIsAnError) {
  EXPECT_THROW(ImageSurface({20000, 10}, 2), CanvasError);
  EXPECT_THROW(ImageSurface({10, std::nan("")}, 1), CanvasError);
  EXPECT_EQ(ImageSurface({32767, 1}, 1).pixels().width(), 32767);
}

}  // namespace
}  // namespace mirolen
