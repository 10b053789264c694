#include <gtest/gtest.h>

#include "mirolen/core/wafer.h"
#include "mirolen/render/SurfaceCanvas.h"
#include "qt/qt_support.h"

namespace mirolen {
namespace {

using namespace qt_test;
using qt::ImageSurface;

class FloodFillAt : public testing::TestWithParam<double> {
 protected:
  FloodFillAt() { surface_.rectangle({black}, {white, false}, {{10, 10}, {30, 30}}); }
  Color logical(int x, int y) const {
    const double at = GetParam();
    return pixel(surface_, static_cast<int>((x + 0.5) * at), static_cast<int>((y + 0.5) * at));
  }
  ImageSurface surface_{{60, 60}, GetParam()};
};
INSTANTIATE_TEST_SUITE_P(Ratios, FloodFillAt, testing::Values(1, 1.25, 2));

TEST_P(FloodFillAt, FillsUpToTheBoundaryAndLeavesIt) {
  surface_.flood_fill({red}, {20, 20}, black);
  for (int at = 0; at < 60; ++at) {
    const bool boundary = at == 10 || at == 30, inside = at > 10 && at < 30;
    EXPECT_EQ(logical(at, 20), boundary ? black : inside ? red : white) << at;
    EXPECT_EQ(logical(20, at), boundary ? black : inside ? red : white) << at;
  }
  EXPECT_EQ(logical(11, 11), red);
  EXPECT_EQ(logical(29, 29), red);
}

TEST_P(FloodFillAt, GoesRoundCornersAndOverWhatHasItsColourAlready) {
  surface_.line({black}, {20, 10}, {20, 28});
  surface_.line({red}, {11, 29}, {29, 29});
  surface_.flood_fill({red}, {12, 12}, black);
  EXPECT_EQ(logical(28, 12), red);
  EXPECT_EQ(logical(40, 12), white);
}

TEST_P(FloodFillAt, FillsInTheColourOfTheBoundaryToo) {
  surface_.flood_fill({black}, {20, 20}, black);
  EXPECT_EQ(logical(15, 25), black);
  EXPECT_EQ(logical(40, 40), white);
}

TEST_P(FloodFillAt, DoesNothingFromTheBoundaryFromOutsideOrWithoutABrush) {
  const QImage before = surface_.pixels();
  surface_.flood_fill({red}, {10, 20}, black);
  surface_.flood_fill({red}, {-1, 5}, black);
  surface_.flood_fill({red}, {5, 60}, black);
  surface_.flood_fill({red, false}, {20, 20}, black);
  EXPECT_EQ(surface_.pixels(), before);
}

TEST_P(FloodFillAt, DoesNotLeakOutOfTheOpenArcOfAWafer) {
  for (const double flat_ratio : {1.0, 0.98}) {
    surface_.clear(white);
    SurfaceCanvas canvas(CanvasKind::picture_box, &surface_);
    canvas.FillColor(green);
    canvas.BackColor(0xC0C0C0);
    wafer wafer;
    wafer.flat_ratio = flat_ratio;
    double x0 = 30, y0 = 30;
    wafer.FlatNotchShow1(nullptr, canvas, x0, y0, 20, 25, 70);
    EXPECT_EQ(logical(1, 1), 0xC0C0C0u) << flat_ratio;
    EXPECT_EQ(logical(58, 30), 0xC0C0C0u) << flat_ratio;
    EXPECT_NE(logical(30, 30), 0xC0C0C0u) << flat_ratio;
  }
}

}  // namespace
}  // namespace mirolen
