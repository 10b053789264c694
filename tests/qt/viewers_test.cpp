// Colour maps as programs show them that smooth edges, each in its own way.
#include <cmath>

#include "mirolen/qt/PrintJob.h"
#include "qt/page_tools.h"
#include "qt/qt_support.h"

namespace mirolen {
namespace {

using namespace qt_test;
using qt::PrintJob;

/// A round map of cells in eight colours, with slow and with steep changes, in dots of a job.
struct Map {
  static constexpr int cells = 48, corner = 60;
  int edge;

  static Color band(int column, int row) {
    constexpr std::array<Color, 8> bands{0x800080, 0x800000, 0xFF0000, 0x808000,
                                         0x008000, 0x00FF00, 0x00FFFF, 0x0000FF};
    const double hill = 2 * std::sin(column / 6.) * std::cos(row / 8.) + (column > 30 && row > 10 ? 3 : 0);
    return bands[static_cast<std::size_t>(std::clamp(hill + 3, 0., 7.))];
  }
  static Color color(int column, int row) {
    const int x = 2 * column + 1 - cells, y = 2 * row + 1 - cells;
    return x * x + y * y > cells * cells ? white : band(column, row);
  }

  void draw(PlotCanvas& page) const {
    page.ScaleMode(pixels);
    page.DrawStyle(no_outline);
    page.FillStyle(solid_fill);
    for (int row = 0; row < cells; ++row)
      for (int column = cells; column-- > 0;) {
        if (color(column, row) == white) continue;
        page.FillColor(color(column, row));
        const int x = corner + edge * column, y = corner + edge * row;
        page.Polygon(std::array<PixelPoint, 4>{{{x, y}, {x + edge, y}, {x + edge, y + edge}, {x, y + edge}}});
      }
  }

  /// The colours of all that lies in a box of dots.
  std::set<Color> colors_in(const QRectF& dots) const {
    const auto cell = [this](double dot) { return static_cast<int>(std::floor((dot - corner) / edge)); };
    std::set<Color> colors;
    for (int row = cell(dots.top()); row <= cell(dots.bottom()); ++row)
      for (int column = cell(dots.left()); column <= cell(dots.right()); ++column) {
        const bool on_map = column >= 0 && row >= 0 && column < cells && row < cells;
        colors.insert(on_map ? color(column, row) : white);
      }
    return colors;
  }
};

std::array<int, 3> channels(Color color) {
  return {static_cast<int>(color & 0xFF), static_cast<int>(color >> 8 & 0xFF), static_cast<int>(color >> 16)};
}

constexpr int rounding = 3;  // of a channel

/// Whether a colour is a mixture of two others.
bool is_mixed_of(Color mixed, Color one, Color other) {
  const auto m = channels(mixed), a = channels(one), b = channels(other);
  double part = 0, widest = 0;
  for (std::size_t i = 0; i < 3; ++i)
    if (std::abs(b[i] - a[i]) > widest) {
      widest = std::abs(b[i] - a[i]);
      part = std::clamp(double(m[i] - a[i]) / (b[i] - a[i]), 0., 1.);
    }
  for (std::size_t i = 0; i < 3; ++i)
    if (std::abs(a[i] + part * (b[i] - a[i]) - m[i]) > rounding) return false;
  return true;
}

/// Whether a colour is a mixture of any others: looks for the one that comes nearest, each step adding of the
/// colour that lies furthest in the direction of what is missing.
bool is_mixed_of(Color mixed, const std::set<Color>& others) {
  using Mixture = std::array<double, 3>;
  const auto mixture = [](Color color) {
    const auto [red_part, green_part, blue_part] = channels(color);
    return Mixture{double(red_part), double(green_part), double(blue_part)};
  };
  const auto minus = [](const Mixture& a, const Mixture& b) {
    return Mixture{a[0] - b[0], a[1] - b[1], a[2] - b[2]};
  };
  const auto product = [](const Mixture& a, const Mixture& b) {
    return a[0] * b[0] + a[1] * b[1] + a[2] * b[2];
  };
  const Mixture wanted = mixture(mixed);
  Mixture nearest = mixture(*others.begin());
  for (int step = 0; step < 5000; ++step) {
    const Mixture missing = minus(wanted, nearest);
    if (std::ranges::all_of(missing, [](double channel) { return std::abs(channel) <= rounding; }))
      return true;
    const Color furthest =
        *std::ranges::max_element(others, {}, [&](Color other) { return product(missing, mixture(other)); });
    const Mixture way = minus(mixture(furthest), nearest);
    const double part = std::clamp(product(missing, way) / std::max(1e-9, product(way, way)), 0., 1.);
    for (std::size_t i = 0; i < 3; ++i) nearest[i] += part * way[i];
  }
  return false;
}

/// How far a colour may reach under another one, in dots.
constexpr double hair = 9;

struct Faults {
  int inside = 0, at_borders = 0;
  std::string first;
};

/// The pixels of a shown page that have a colour which does not belong there. A viewer may shift a page by
/// less than a pixel, so a pixel counts as inside a region if those round it do.
Faults faults_of(const QImage& shown, const Map& map, int dpi, double margin) {
  Faults faults;
  const double dots = double(PrintJob::resolution) / dpi;
  const int end = static_cast<int>(((Map::corner + map.edge * Map::cells) / dots) + margin * dpi) + 4;
  EXPECT_GE(shown.width(), end);
  EXPECT_GE(shown.height(), end);
  for (int y = 0; y < end; ++y)
    for (int x = 0; x < end; ++x) {
      const QPointF corner((x - 1) * dots - margin * PrintJob::resolution,
                           (y - 1) * dots - margin * PrintJob::resolution);
      const QRectF around(corner, QSizeF(3 * dots, 3 * dots));
      std::set<Color> colors = map.colors_in(around);
      if (colors.size() > 1) colors = map.colors_in(around.adjusted(-hair, -hair, hair, hair));
      const Color seen = pixel(shown, x, y);
      const bool right = colors.size() == 1   ? seen == *colors.begin()
                         : colors.size() == 2 ? is_mixed_of(seen, *colors.begin(), *colors.rbegin())
                                              : is_mixed_of(seen, colors);
      if (right) continue;
      ++(colors.size() == 1 ? faults.inside : faults.at_borders);
      if (faults.first.empty())
        faults.first = std::to_string(x) + ", " + std::to_string(y) + " is " + std::to_string(seen);
    }
  return faults;
}

QImage png(const char* program, const QStringList& arguments) {
  return QImage::fromData(output_of(program, arguments), "PNG").convertToFormat(QImage::Format_RGB32);
}

struct Viewer {
  const char* name;
  QImage (*show)(const QString& file, const QString& dpi);
  bool of_svg = false;

  friend void PrintTo(const Viewer& viewer, std::ostream* out) { *out << viewer.name; }
};

const Viewer viewers[] = {
    {"poppler_splash",
     [](const QString& file, const QString& dpi) {
       return png("pdftoppm", {"-png", "-r", dpi, "-singlefile", file});
     }},
    {"poppler_cairo",
     [](const QString& file, const QString& dpi) {
       return png("pdftocairo", {"-png", "-r", dpi, "-singlefile", file, "-"});
     }},
    {"mupdf",
     [](const QString& file, const QString& dpi) {
       return png("mutool", {"draw", "-q", "-F", "png", "-r", dpi, "-o", "-", file, "1"});
     }},
    {"ghostscript",
     [](const QString& file, const QString& dpi) {
       return png("gs",
                  {"-q", "-dBATCH", "-dNOPAUSE", "-sDEVICE=png16m", "-r" + dpi, "-sOutputFile=-", file});
     }},
    {"ghostscript_smooth",
     [](const QString& file, const QString& dpi) {
       return png("gs", {"-q", "-dBATCH", "-dNOPAUSE", "-sDEVICE=png16m", "-dGraphicsAlphaBits=4", "-r" + dpi,
                         "-sOutputFile=-", file});
     }},
    {"librsvg",
     [](const QString& file, const QString& dpi) {
       return png("rsvg-convert", {"-d", dpi, "-p", dpi, "-b", "white", file});
     },
     true}};

QPageLayout a6() {
  QPageLayout layout = PrintJob::a4();
  layout.setPageSize(QPageSize(QPageSize::A6), QMarginsF(10, 10, 10, 10));
  return layout;
}

class Viewers : public testing::TestWithParam<Viewer> {
 protected:
  QString file() const { return directory_.filePath(GetParam().of_svg ? "map.svg" : "map.pdf"); }
  void write(const Map& map) const {
    const auto job = GetParam().of_svg ? PrintJob::svg(file(), {85, 128}) : PrintJob::pdf(file(), a6());
    map.draw(*job);
    job->finish();
  }
  QImage shown(int dpi) const { return GetParam().show(file(), QString::number(dpi)); }
  double margin() const { return GetParam().of_svg ? 0 : SheetScale::margin; }

 private:
  QTemporaryDir directory_;
};

TEST_P(Viewers, ShowNoForeignColourInAMap) {
  for (const int edge : {4, 9, 17, 40}) {
    const Map map{edge};
    write(map);
    for (const int dpi : {72, 100, 150, 300}) {
      const Faults faults = faults_of(shown(dpi), map, dpi, margin());
      EXPECT_EQ(faults.inside, 0) << "cells of " << edge << " at " << dpi << ", " << faults.first;
      EXPECT_EQ(faults.at_borders, 0) << "cells of " << edge << " at " << dpi << ", " << faults.first;
    }
  }
}

TEST_P(Viewers, ShowAMapAsLargeAsItIs) {
  write({40});
  const QImage image = shown(100);
  const QRectF sheet = GetParam().of_svg ? QRectF(0, 0, 85, 128) : QRectF(0, 0, 105, 148);
  EXPECT_NEAR(image.width(), sheet.width() / 25.4 * 100, 1.5);
  EXPECT_NEAR(image.height(), sheet.height() / 25.4 * 100, 1.5);
}

INSTANTIATE_TEST_SUITE_P(All, Viewers, testing::ValuesIn(viewers),
                         [](const auto& param) { return std::string(param.param.name); });

TEST(Mixtures, AreToldFromOtherColours) {
  const Color grey = 0x808080;
  EXPECT_TRUE(is_mixed_of(grey, {black, white, red}));
  EXPECT_TRUE(is_mixed_of(0x404040, {black, white, red}));
  EXPECT_TRUE(is_mixed_of(0x555555, {red, green, blue}));
  EXPECT_FALSE(is_mixed_of(grey, {red, green, blue})) << "of which all mixtures are darker";
  EXPECT_FALSE(is_mixed_of(0x00C000, {black, white, red})) << "though each channel lies between theirs";
}

// What the tests above look for is there to be seen: cells that are painted one by one have seams.
TEST(PlainCells, HaveSeams) {
  const QTemporaryDir directory;
  const QString file = directory.filePath("map.pdf");
  const Map map{17};
  const auto job = PrintJob::pdf(file, a6());
  job->ScaleMode(pixels);
  for (int row = 0; row < Map::cells; ++row)
    for (int column = 0; column < Map::cells; ++column) {
      const double x = Map::corner + map.edge * column, y = Map::corner + map.edge * row;
      job->Line(filled_box_flags, x, y, x + map.edge - 1, y + map.edge - 1, Map::color(column, row));
    }
  job->finish();
  for (const Viewer& viewer : {viewers[1], viewers[2], viewers[4]})
    EXPECT_GT(faults_of(viewer.show(file, "100"), map, 100, SheetScale::margin).inside, 1000) << viewer.name;
}

}  // namespace
}  // namespace mirolen
