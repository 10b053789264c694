#include <gtest/gtest.h>

#include <QPainter>
#include <algorithm>
#include <cmath>
#include <random>

#include "mirolen/core/wafer.h"
#include "mirolen/qt/ImageSurface.h"
#include "mirolen/qt/Picture.h"
#include "mirolen/render/RecordingSurface.h"
#include "mirolen/render/SurfaceCanvas.h"
#include "qt/qt_support.h"

namespace mirolen {
namespace {

using namespace qt_test;
using qt::ImageSurface;

constexpr double ratios[] = {0.75, 1, 1.1, 1.25, 1.5, 2, 3};

QColor shown(Color color) {
  return QColor(static_cast<int>(color & 0xFF), static_cast<int>(color >> 8 & 0xFF),
                static_cast<int>(color >> 16));
}

/// Paints recorded polygons and discs on an image, each with a painter of its own.
struct PlainImage {
  QImage image;
  double ratio;

  void operator()(const recorded::Clear& call) { image.fill(shown(call.color)); }
  void operator()(const recorded::Polygon& call) {
    QPolygonF corners;
    for (const auto& [x, y] : call.points)
      corners << (call.pen.style == Pen::Style::none
                      ? QPointF(std::floor(x * ratio + 0.5), std::floor(y * ratio + 0.5))
                      : QPointF((x + 0.5) * ratio, (y + 0.5) * ratio));
    QPainter painter(&image);
    take(painter, call.pen, call.brush);
    painter.drawPolygon(corners);
  }
  void operator()(const recorded::Ellipse& call) {
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    take(painter, call.pen, call.brush);
    painter.drawEllipse(QPointF(call.centre.x + 0.5, call.centre.y + 0.5) * ratio, call.radii.width * ratio,
                        call.radii.height * ratio);
  }
  void operator()(const recorded::Refresh&) {}
  template <class Call>
  void operator()(const Call&) {
    FAIL() << "nothing that it paints";
  }

  void take(QPainter& painter, const Pen& pen, const Brush& brush) const {
    painter.setPen(pen.style == Pen::Style::none ? QPen(Qt::NoPen)
                                                 : QPen(shown(pen.color), pen.width * ratio, Qt::SolidLine,
                                                        Qt::RoundCap, Qt::MiterJoin));
    painter.setBrush(brush.solid ? QBrush(shown(brush.color)) : QBrush());
  }
};

/// Looks at the picture of a recording on a surface of its size and at the plain one.
void expect_plain_pixels(const RecordingSurface& recorder) {
  for (const double ratio : ratios) {
    ImageSurface surface(recorder.size(), ratio);
    PlainImage plain{QImage(surface.pixels().size(), QImage::Format_RGB32), ratio};
    plain.image.fill(Qt::white);
    replay(recorder.recording(), surface);
    for (const recorded::Call& call : recorder.recording()) std::visit(plain, call);
    EXPECT_EQ(surface.pixels(), plain.image)
        << recorder.size().width << " x " << recorder.size().height << " at " << ratio;
  }
}

/// Draws at random, the same for one seed.
class Sketcher {
 public:
  explicit Sketcher(unsigned seed) : random_(seed) {}

  int die(int sides) { return std::uniform_int_distribution<int>(0, sides - 1)(random_); }
  SurfaceSize size() { return {double(1 + die(120)), double(1 + die(90))}; }

  /// A box by any two of its corners, first along either edge; it may be empty.
  void box(Surface& onto, const Pen& pen, const Brush& brush, int width, int height) {
    int left = die(130) - 10, top = die(100) - 10, right = left + width, bottom = top + height;
    if (die(2)) std::swap(left, right);
    if (die(2)) std::swap(top, bottom);
    const bool by_column = die(2);
    const PixelPoint corners[] = {{left, top},
                                  by_column ? PixelPoint{left, bottom} : PixelPoint{right, top},
                                  {right, bottom},
                                  by_column ? PixelPoint{right, top} : PixelPoint{left, bottom},
                                  {left, top}};
    onto.polygon(pen, brush, std::span(corners).first(die(2) ? 4 : 5));
  }
  void polygon(Surface& onto) {
    const Brush brush{color(), die(5) > 0};
    const Pen pen = die(2) ? this->pen() : no_pen;
    if (die(3)) return box(onto, pen, brush, die(30), die(20));
    std::vector<PixelPoint> corners(static_cast<std::size_t>(die(6)));
    for (auto& [x, y] : corners) x = die(150) - 15, y = die(120) - 15;
    onto.polygon(pen, brush, corners);
  }
  /// Rows of cells with edges that neighbours share, leftward or rightward; some are left out, empty or
  /// another kind of call.
  void map(Surface& onto) {
    const int direction = die(2) ? 1 : -1;
    int top = die(20) - 10;
    for (int row = die(12); row >= 0; --row) {
      const int bottom = top + die(9);
      int from = direction > 0 ? die(30) - 10 : 120 - die(30);
      for (int cell = die(30); cell >= 0; --cell) {
        const int to = from + direction * die(8);
        const PixelPoint corners[] = {{from, top}, {to, top}, {to, bottom}, {from, bottom}};
        if (die(12)) onto.polygon(no_pen, {color()}, corners);
        if (die(25) == 0) polygon(onto);
        from = to;
      }
      if (die(2)) onto.refresh();
      top = die(8) ? bottom : top;
    }
  }
  void disc(Surface& onto) {
    onto.ellipse(pen(), {color(), die(2) == 0}, place(), {double(die(40)), double(die(40))});
  }
  /// One call of any kind.
  void anything(Surface& onto) {
    const Pen any_pen{color(), static_cast<std::int16_t>(1 + die(3)), static_cast<Pen::Style>(die(6))};
    const Brush brush{color(), die(3) > 0};
    switch (die(12)) {
      case 0:
        return onto.line(any_pen, place(), place());
      case 1:
        return onto.rectangle(any_pen, brush, {place(), place()});
      case 2:
        return disc(onto);
      case 3:
        return onto.arc(any_pen, place(), {double(die(40)), double(die(40))}, die(6), die(6));
      case 4:
        return onto.text({}, color(), die(2) ? std::optional(color()) : std::nullopt, place(), "Text");
      case 5:
        return onto.flood_fill(brush, {die(120), die(90)}, color());
      case 6:
        return onto.restore(*onto.snapshot());
      case 7:
        return die(9) ? onto.polygon(any_pen, brush, {}) : onto.clear(color());
      case 8:
        return polygon(onto);
      default:
        return map(onto);
    }
  }

 private:
  Color color() { return std::array{red, green, blue}[static_cast<std::size_t>(die(3))]; }
  SurfacePoint place() { return {die(240) / 2.0 - 5, die(180) / 2.0 - 5}; }
  Pen pen() { return {color(), static_cast<std::int16_t>(1 + die(4) / 3)}; }

  std::mt19937 random_;
};

class ImageSurfacePixels : public testing::TestWithParam<unsigned> {};
INSTANTIATE_TEST_SUITE_P(Seeds, ImageSurfacePixels, testing::Range(1u, 41u));

TEST_P(ImageSurfacePixels, AreThoseOfAPainterForEachCell) {
  Sketcher sketcher(GetParam());
  RecordingSurface recorder(sketcher.size());
  for (int i = 0; i < 4; ++i) sketcher.map(recorder);
  expect_plain_pixels(recorder);
}

TEST_P(ImageSurfacePixels, AreThoseOfAPainterForEachPolygonAndDisc) {
  Sketcher sketcher(GetParam());
  RecordingSurface recorder(sketcher.size());
  for (int i = 0; i < 60; ++i) sketcher.die(6) ? sketcher.polygon(recorder) : sketcher.disc(recorder);
  expect_plain_pixels(recorder);
}

TEST_P(ImageSurfacePixels, AreThoseOfASurfaceForEachCall) {
  for (const double ratio : ratios) {
    Sketcher sketcher(GetParam()), again(GetParam());
    const SurfaceSize size = sketcher.size();
    ASSERT_EQ(size, again.size());
    ImageSurface surface(size, ratio);
    std::shared_ptr<const Image> picture = surface.snapshot();
    for (int i = 0; i < 40; ++i) {
      sketcher.anything(surface);
      ImageSurface for_one_call(size, ratio);
      for_one_call.restore(*picture);
      again.anything(for_one_call);
      picture = for_one_call.snapshot();
    }
    EXPECT_EQ(surface.image(), dynamic_cast<const qt::Picture&>(*picture).image()) << ratio;
  }
}

class MapPixels : public testing::TestWithParam<int> {};
INSTANTIATE_TEST_SUITE_P(OfEdge, MapPixels, testing::Values(40, 77, 150, 233, 300, 411, 512));

TEST_P(MapPixels, AreThoseOfAPainterForEachCell) {
  wafer wafer;
  wafer.WafDiam = wafer.test_diam = 100;
  wafer.WaferOrigRad = 50;
  wafer.flat_ratio = 0.95;
  wafer.SetNop(40);
  std::mt19937 random(7);
  std::uniform_real_distribution<double> place(-35, 35), value(1, 9);
  for (int i = 0; i < 40; ++i) {
    const double x = place(random), y = place(random);
    wafer.SetGridValue(x, y, value(random));
  }
  wafer.MaxMin();
  RecordingSurface recorder({double(GetParam()), double(GetParam())});
  SurfaceCanvas canvas(CanvasKind::picture_box, &recorder);
  for (const auto& [resolution, style] : {std::pair(0.5, 5), {1.7, 4}}) {
    wafer.D2Plot(canvas, resolution, static_cast<std::int16_t>(style), 1, 0, 0, 0, 0, 0, 0);
    expect_plain_pixels(recorder);
  }
}

TEST(ImageSurface, ShowsItsLastCellToWhoeverReads) {
  const PixelPoint corners[] = {{2, 2}, {8, 2}, {8, 8}, {2, 8}};
  const auto drawn = [&] {
    auto surface = std::make_unique<ImageSurface>(SurfaceSize{10, 10}, 1);
    surface->polygon(no_pen, {red}, corners);
    return surface;
  };
  EXPECT_EQ(pixel(*drawn(), 5, 5), red);
  EXPECT_EQ(pixel(drawn()->image(), 5, 5), red);

  ImageSurface copy({10, 10}, 1);
  copy.restore(*drawn()->snapshot());
  EXPECT_EQ(pixel(copy, 5, 5), red);

  const auto moved = drawn();
  moved->change_ratio(2);
  EXPECT_EQ(pixel(*moved, 10, 10), red);

  const auto flooded = drawn();
  flooded->flood_fill({blue}, {5, 5}, white);
  EXPECT_EQ(pixel(*flooded, 5, 5), blue);

  const auto cleared = drawn();
  cleared->clear(green);
  EXPECT_EQ(colors_in(cleared->pixels()), std::set<Color>{green});
}

}  // namespace
}  // namespace mirolen
