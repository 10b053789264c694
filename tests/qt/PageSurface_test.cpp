#include "mirolen/qt/PageSurface.h"

#include <QBuffer>
#include <QPainter>
#include <QPainterPath>
#include <QPdfWriter>
#include <QRegularExpression>
#include <QSvgGenerator>
#include <QTemporaryDir>
#include <random>

#include "mirolen/qt/PrintJob.h"
#include "mirolen/qt/translate.h"
#include "mirolen/render/RecordingSurface.h"
#include "qt/page_tools.h"
#include "qt/qt_support.h"

namespace mirolen {
namespace {

using namespace qt_test;
using qt::PageSurface;

constexpr Brush red_brush{red}, blue_brush{blue};

std::array<PixelPoint, 4> box(int left, int top, int right, int bottom) {
  return {PixelPoint{left, top}, {right, top}, {right, bottom}, {left, bottom}};
}

/// Paints each box for itself.
class PlainPage : public PageSurface {
 public:
  PlainPage(QPainter& painter, const QPaintDevice& device)
      : PageSurface(painter, device), plain_painter_(painter) {}

  void polygon(const Pen& pen, const Brush& brush, std::span<const PixelPoint> points) override {
    const auto upright = qt::upright_box(points);
    if (qt::is_drawn(pen) || !brush.solid || !upright) return PageSurface::polygon(pen, brush, points);
    const QPoint from(upright->from.x, upright->from.y), to(upright->to.x, upright->to.y);
    plain_painter_.fillRect(QRect(from, to - QPoint(1, 1)), qt::qcolor_of(brush.color));
  }

 private:
  QPainter& plain_painter_;
};

/// What a surface paints on white.
template <class Page, class Draw>
QImage picture(Draw draw, QSize size = {260, 260}) {
  QImage image(size, QImage::Format_RGB32);
  image.fill(Qt::white);
  QPainter painter(&image);
  Page page(painter, image);
  draw(page);
  page.end_page();
  return image;
}

class Cells : public testing::TestWithParam<int> {
 protected:
  Cells() : random_(std::random_device{}()) {}

  int die(int sides) { return std::uniform_int_distribution<int>(0, sides - 1)(random_); }
  Color any_color() { return std::array{red, green, blue, black}[static_cast<std::size_t>(die(4))]; }

  /// Draws at random, the same for one seed.
  template <class Draw>
  void expect_same_pixels(Draw draw) {
    const unsigned seed = random_();
    const auto drawn = [&](Surface& page) {
      random_.seed(seed);
      draw(page);
    };
    EXPECT_EQ(picture<PageSurface>(drawn), picture<PlainPage>(drawn)) << "seed " << seed;
  }
  /// Cells of a map, in one of the orders in which they may come, some left out.
  void draw_map(Surface& page, int edge) {
    const bool leftward = die(2), upward = die(2), by_columns = die(4) == 0;
    const int count = 120 / edge, left = die(40), top = die(40);
    for (int line = 0; line < count; ++line)
      for (int place = 0; place < count; ++place) {
        if (die(9) == 0) continue;
        const int along = (leftward ? count - 1 - place : place), across = (upward ? count - 1 - line : line);
        const int x = left + edge * (by_columns ? across : along);
        const int y = top + edge * (by_columns ? along : across);
        page.polygon(no_pen, Brush{any_color()}, box(x, y, x + edge, y + edge));
        if (place == 0 && die(3) == 0) page.refresh();
      }
  }
  void draw_any_box(Surface& page, int edge) {
    const int x = edge * die(12), y = edge * die(12);
    page.polygon(no_pen, Brush{any_color()}, box(x, y, x + edge * die(4), y + edge * (1 + die(2) * die(2))));
  }
  void draw_something_else(Surface& page) {
    const double x = die(200), y = die(200);
    const Pen pen{any_color(), static_cast<std::int16_t>(1 + die(3))};
    switch (die(7)) {
      case 0:
        return page.line(pen, {x, y}, {y, x});
      case 1:
        return page.rectangle(pen, Brush{any_color(), die(2) == 0}, {{x, y}, {x + die(40), y + die(40)}});
      case 2:
        return page.ellipse(pen, Brush{any_color(), die(2) == 0}, {x, y}, {double(die(20)), double(die(20))});
      case 3:
        return page.text(FontSpec{}, pen.color, white, {x, y}, "Text");
      case 4:
        return page.polygon(pen, Brush{any_color()}, box(die(90), die(90), 90 + die(90), 90 + die(90)));
      case 5:
        return page.polygon(no_pen, Brush{any_color(), false}, box(0, 0, 90, 90));
      default:
        return page.arc(pen, {x, y}, {20, 10}, 0, 2);
    }
  }

 private:
  std::mt19937 random_;
};

TEST_P(Cells, OfAMapGiveThePixelsOfOneBoxEach) {
  for (int round = 0; round < 20; ++round)
    expect_same_pixels([this](Surface& page) { draw_map(page, GetParam()); });
}

TEST_P(Cells, AnywhereGiveThePixelsOfOneBoxEach) {
  for (int round = 0; round < 20; ++round)
    expect_same_pixels([this](Surface& page) {
      for (int i = 0; i < 300; ++i) draw_any_box(page, GetParam());
    });
}

TEST_P(Cells, AmongOtherCallsGiveThePixelsOfOneBoxEach) {
  for (int round = 0; round < 20; ++round)
    expect_same_pixels([this](Surface& page) {
      for (int i = 0; i < 5; ++i) {
        draw_map(page, GetParam());
        draw_something_else(page);
        for (int k = 0; k < 20; ++k) {
          draw_any_box(page, GetParam());
          if (die(5) == 0) draw_something_else(page);
        }
      }
    });
}

INSTANTIATE_TEST_SUITE_P(OfEdge, Cells, testing::Values(1, 2, 3, 7, 17));

TEST(PageSurface, PaintsBoxesFarOutside) {
  const auto far = [](Surface& page) {
    constexpr int most = std::numeric_limits<std::int32_t>::max(), least = -most - 1;
    page.polygon(no_pen, red_brush, box(least, 10, 100, 20));
    page.polygon(no_pen, blue_brush, box(100, 10, most, 20));
    page.polygon(no_pen, blue_brush, box(100, 20, 110, most));
  };
  const QImage image = picture<PageSurface>(far);
  EXPECT_EQ(pixel(image, 0, 15), red);
  EXPECT_EQ(pixel(image, 99, 10), red);
  EXPECT_EQ(pixel(image, 100, 19), blue);
  EXPECT_EQ(pixel(image, 109, 259), blue);
  EXPECT_EQ(pixel(image, 0, 20), white);
  EXPECT_EQ(pixel(image, 99, 20), white);
}

TEST(PageSurface, ShapesCoverThePixelsThatTheyName) {
  const QImage image = picture<PageSurface>([](Surface& page) {
    page.rectangle(no_pen, red_brush, {{10, 10}, {19, 14}});
    page.rectangle(Pen{blue, 1}, Brush{0, false}, {{30, 10}, {39, 14}});
    page.line(Pen{green, 3}, {10, 30}, {40, 30});
    page.line(Pen{green, 3, Pen::Style::none}, {10, 60}, {40, 60});
  });
  EXPECT_EQ(pixel(image, 9, 10), white);
  EXPECT_EQ(pixel(image, 10, 10), red);
  EXPECT_EQ(pixel(image, 19, 14), red);
  EXPECT_EQ(pixel(image, 20, 14), white);
  EXPECT_EQ(pixel(image, 19, 15), white);
  EXPECT_EQ(pixel(image, 30, 10), blue);
  EXPECT_EQ(pixel(image, 39, 14), blue);
  EXPECT_EQ(pixel(image, 34, 12), white);
  for (const int y : {29, 30, 31}) EXPECT_EQ(pixel(image, 20, y), green);
  for (const int y : {28, 32, 60}) EXPECT_EQ(pixel(image, 20, y), white);
}

TEST(PageSurface, RefusesWhatAPageCannotDo) {
  picture<PageSurface>([](PageSurface& page) {
    EXPECT_THROW(page.flood_fill(red_brush, {1, 1}, black), CanvasError);
    EXPECT_THROW(page.snapshot(), CanvasError);
    EXPECT_THROW(page.restore(RecordedImage({1, 1}, {})), CanvasError);
  });
}

TEST(PageSurface, MeasuresInPixelsOfTheDevice) {
  QBuffer file;
  file.open(QIODevice::WriteOnly);
  QPdfWriter writer(&file);
  writer.setResolution(600);
  QPainter painter(&writer);
  const PageSurface page(painter, writer);
  EXPECT_DOUBLE_EQ(page.twips_per_pixel().width, 2.4);
  EXPECT_DOUBLE_EQ(page.twips_per_pixel().height, 2.4);
  const SurfaceSize size = page.measure(FontSpec{"Arial", 8}, "Mean:");
  // Eight points are 66.7 dots.
  EXPECT_NEAR(size.height, 66.7 * 1.15, 4);
  EXPECT_NEAR(size.width, 66.7 * 2.78, 2);
}

// ---- Maps in files ----

/// The calls of a printed colour map of 200 by 200 cells.
Recording printed_map() {
  class Page : public SurfaceCanvas {
   public:
    Page() : SurfaceCanvas(CanvasKind::printer, &surface) {}
    RecordingSurface surface{{4500, 6500}, {2.4, 2.4}};
  };
  qt::Plot2D face;
  std::vector<double> x, y, z;
  for (int i = -90; i <= 90; i += 15)
    for (int j = -90; j <= 90; j += 15) {
      if (i * i + j * j > 95 * 95) continue;
      x.push_back(i);
      y.push_back(j);
      z.push_back(50 + 30 * std::sin(i / 30.) * std::cos(j / 25.) + i * 0.1);
    }
  face.setWaferDiameter(200);
  face.setTestDiameter(200);
  face.SetWaferData(x, y, z);
  face.setResolution(1);
  const auto page = std::make_shared<Page>();
  face.setPrinterObj(page);
  face.PrintPlot(0, 0, 9000, 9000, true);
  return page->surface.recording();
}

template <class Page>
QByteArray pdf_of(const Recording& recording) {
  QBuffer file;
  file.open(QIODevice::WriteOnly);
  QPdfWriter writer(&file);
  writer.setResolution(600);
  QPainter painter(&writer);
  Page page(painter, writer);
  replay(recording, page);
  page.end_page();
  painter.end();
  return file.data();
}

/// What a page writes of a drawing, at the resolution of a file.
template <class Page, class Draw>
QByteArray svg_of(Draw draw) {
  QBuffer file;
  file.open(QIODevice::WriteOnly);
  QSvgGenerator generator;
  generator.setOutputDevice(&file);
  generator.setResolution(qt::PrintJob::resolution);
  QPainter painter(&generator);
  Page page(painter, generator);
  draw(page);
  page.end_page();
  painter.end();
  return file.data();
}

TEST(PageSurface, AMapMakesASmallFile) {
  const Recording map = printed_map();
  const auto is_cell = [](const recorded::Call& call) {
    return std::holds_alternative<recorded::Polygon>(call);
  };
  ASSERT_GT(std::ranges::count_if(map, is_cell), 30000);
  const qsizetype merged = pdf_of<PageSurface>(map).size(), plain = pdf_of<PlainPage>(map).size();
  EXPECT_LT(merged, 17000);
  EXPECT_GT(plain, 8 * merged);
  const QByteArray svg = svg_of<PageSurface>([&map](Surface& page) { replay(map, page); });
  EXPECT_LT(svg.size(), 65000);
}

/// The operators of a page's content, in their order.
QList<QByteArray> lines_of_page(const QByteArray& pdf) {
  const qsizetype from = pdf.indexOf("stream\n") + 7, to = pdf.indexOf("\nendstream", from);
  const QByteArray any_size(4, '\0');
  return qUncompress(any_size + pdf.mid(from, to - from)).split('\n');
}

void draw_chess_board(Surface& page) {
  for (int row = 0; row < 8; ++row)
    for (int column = 8; column-- > 0;) {
      const int x = 100 * column, y = 100 * row;
      page.polygon(no_pen, (row + column) % 2 ? blue_brush : red_brush, box(x, y, x + 100, y + 100));
    }
}

TEST(PageSurface, EachColorOfAMapIsOneShape) {
  const auto shapes = [](const QByteArray& svg) { return svg.count("<path") + svg.count("<rect"); };
  EXPECT_EQ(shapes(svg_of<PlainPage>(draw_chess_board)), 64);
  EXPECT_EQ(shapes(svg_of<PageSurface>(draw_chess_board)), 2);
}

TEST(PageSurface, EachColorOfAMapIsOneShapeInAPdf) {
  RecordingSurface board({4500, 6500}, {2.4, 2.4});
  draw_chess_board(board);
  const auto fills = [](const QByteArray& pdf) {
    return std::ranges::count_if(lines_of_page(pdf),
                                 [](const QByteArray& line) { return line == "f" || line == "f*"; });
  };
  EXPECT_EQ(fills(pdf_of<PlainPage>(board.recording())), 64);
  EXPECT_EQ(fills(pdf_of<PageSurface>(board.recording())), 2);
}

/// The area of the boxes that a path has, by the odd-even rule, as two shapes of a map have it.
double area(const QPainterPath& path) {
  double twice = 0;
  for (const QPolygonF& loop : path.simplified().toFillPolygons())
    for (qsizetype i = 0; i + 1 < loop.size(); ++i)
      twice += loop[i].x() * loop[i + 1].y() - loop[i + 1].x() * loop[i].y();
  return std::abs(twice) / 2;
}

/// The outlines in a file, in their order.
std::vector<QPainterPath> paths_in(const QByteArray& svg) {
  std::vector<QPainterPath> paths;
  static const QRegularExpression data(" d=\"([^\"]*)\""), place("([ML])(-?[\\d.]+),(-?[\\d.]+)");
  for (auto path = data.globalMatch(QString::fromUtf8(svg)); path.hasNext();) {
    QPainterPath& outline = paths.emplace_back();
    for (auto corner = place.globalMatch(path.next().captured(1)); corner.hasNext();) {
      const auto match = corner.next();
      const QPointF at(match.captured(2).toDouble(), match.captured(3).toDouble());
      match.captured(1) == "M" ? outline.moveTo(at) : outline.lineTo(at);
    }
  }
  return paths;
}

TEST(PageSurface, ColorsOfAMapLieOnEachOtherOnlyByAHair) {
  // A pixel of a viewer of 72 dots an inch, rounded up.
  constexpr int hair = 9;
  const auto shapes = paths_in(svg_of<PageSurface>([](Surface& page) {
    page.polygon(no_pen, blue_brush, box(500, 0, 1000, 300));
    page.polygon(no_pen, red_brush, box(0, 0, 500, 300));
    page.polygon(no_pen, red_brush, box(0, 300, 1000, 600));
  }));
  ASSERT_EQ(shapes.size(), 2u);
  EXPECT_EQ(area(shapes[0]) + area(shapes[1]), 1000 * 600 + hair * (500 + 300) - hair * hair);
  EXPECT_EQ(std::min(area(shapes[0]), area(shapes[1])), 500 * 300) << "the last one";
  EXPECT_EQ(shapes[0].boundingRect() | shapes[1].boundingRect(), QRectF(0, 0, 1000, 600));
}

// ---- Pens ----

/// The widths of the pens that a drawing is given in a file of 600 dots an inch, in points.
template <class Draw>
double pen_width(Draw draw) {
  static const QRegularExpression width("stroke=\"#[^\"]*\"[^>]*stroke-width=\"([\\d.]+)\"");
  const QRegularExpressionMatch found = width.match(QString::fromUtf8(svg_of<PageSurface>(draw)));
  EXPECT_TRUE(found.hasMatch());
  return found.captured(1).toDouble() * 72 / qt::PrintJob::resolution;
}

TEST(PageSurface, DrawsLinesHalfAPointWideForEachOfTheirPixels) {
  for (const std::int16_t width : {1, 2, 4, 40}) {
    const Pen pen{red, width};
    const double points = 0.5 * width;
    EXPECT_NEAR(pen_width([&](Surface& page) { page.line(pen, {0, 0}, {90, 50}); }), points, 1e-3);
    EXPECT_NEAR(pen_width([&](Surface& page) { page.arc(pen, {50, 50}, {40, 20}, 0, 2); }), points, 1e-3);
    EXPECT_NEAR(pen_width([&](Surface& page) {
                  page.ellipse(pen, blue_brush, {50, 50}, {40, 20});
                }),
                points, 1e-3);
    EXPECT_NEAR(pen_width([&](Surface& page) {
                  page.rectangle(pen, Brush{0, false}, {{5, 5}, {50, 50}});
                }),
                points, 1e-3);
  }
}

TEST(PageSurface, OutlinesAPolygonThinButNotTooThin) {
  const auto outline = [](std::int16_t width) {
    return pen_width([&](Surface& page) { page.polygon(Pen{red, width}, blue_brush, box(5, 5, 90, 90)); });
  };
  EXPECT_NEAR(outline(1), 0.15, 1e-3);
  EXPECT_NEAR(outline(2), 2 * 0.12, 1e-3) << "pixels of 600 dots an inch";
  EXPECT_NEAR(outline(10), 10 * 0.12, 1e-3);
}

TEST(PageSurface, KeepsTheWidthWhereAPixelIsWideEnough) {
  const QImage image = picture<PageSurface>([](PageSurface& page) {
    page.line(Pen{green, 3}, {10, 30}, {40, 30});
    page.line(Pen{green, 1}, {10, 50}, {40, 50});
  });
  for (const int y : {29, 30, 31, 50}) EXPECT_EQ(pixel(image, 20, y), green);
  for (const int y : {28, 32, 49, 51}) EXPECT_EQ(pixel(image, 20, y), white);
}

// ---- Seams ----

/// The largest amount of green, which red and blue have none of, between the cells of a chess board.
template <class Page>
int light_between_cells() {
  Recording board;
  constexpr int edge = 45;
  for (int row = 0; row < 30; ++row)
    for (int column = 30; column-- > 0;) {
      const int x = 600 + edge * column, y = 600 + edge * row;
      const auto corners = box(x, y, x + edge, y + edge);
      board.emplace_back(recorded::Polygon{
          no_pen, (row / 3 + column / 2) % 2 ? red_brush : blue_brush, {corners.begin(), corners.end()}});
    }
  const TemporaryFile file(pdf_of<Page>(board), "board.pdf");
  const QImage image = smooth_image(file.path, 96);
  int light = 0;
  // The writer's own margins lie round the board; its middle is full of cells.
  const QRect middle(150, 150, 100, 100);
  for (int y = middle.top(); y <= middle.bottom(); ++y)
    for (int x = middle.left(); x <= middle.right(); ++x) light = std::max(light, qGreen(image.pixel(x, y)));
  return light;
}

TEST(PageSurface, NoBackgroundShowsBetweenCellsWhereEdgesAreSmoothed) {
  EXPECT_GT(light_between_cells<PlainPage>(), 20) << "the viewer shows seams";
  EXPECT_LE(light_between_cells<PageSurface>(), 3);
}

}  // namespace
}  // namespace mirolen
