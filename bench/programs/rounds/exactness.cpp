// Checks that what is fast is also the same: values to the last bit, pictures to the last pixel.

#include <QApplication>
#include <QImage>
#include <QTemporaryDir>
#include <cstring>
#include <iostream>

#include "mirolen/core/GlobalFunctions.h"
#include "mirolen/qt/ImageSurface.h"
#include "rounds/plain_map.h"
#include "support/PolygonSurface.h"
#include "support/drawings.h"

namespace mirolen::bench {
namespace {

int failures = 0;

void expect(bool good, const std::string& what) {
  std::cout << (good ? "same      " : "DIFFERENT ") << what << '\n';
  if (!good) ++failures;
}

/// How many values of two rows differ in any bit.
std::size_t differing_bits(const std::vector<double>& a, const std::vector<double>& b) {
  std::size_t differing = 0;
  for (std::size_t i = 0; i < a.size(); ++i) differing += std::memcmp(&a[i], &b[i], sizeof a[i]) != 0;
  return differing;
}

void check_values(const std::string& sites) {
  const wafer fast = loaded(sites_named(sites));
  const PlainWafer plain = plain_loaded(sites_named(sites));
  expect(fast.mean == plain.mean && fast.StdDev == plain.StdDev, "statistics of sites: " + sites);
  std::size_t in_rows = 0, alone = 0, nodes = 0;
  for (const auto& [x, y] : node_rows()) {
    std::vector<double> row(x.size()), single, told;
    fast.Interpolation(x, y, row);
    for (std::size_t i = 0; i < x.size(); ++i) {
      single.push_back(fast.Interpolation(x[i], y[i]));
      told.push_back(plain.Interpolation(x[i], y[i]));
    }
    in_rows += differing_bits(row, told);
    alone += differing_bits(single, told);
    nodes += x.size();
  }
  const auto of_nodes = [&](std::size_t n) {
    return std::to_string(n) + " of " + std::to_string(nodes) + " differ";
  };
  expect(in_rows == 0, "values in rows, sites: " + sites + ", " + of_nodes(in_rows));
  expect(alone == 0, "single values, sites: " + sites + ", " + of_nodes(alone));
}

void check_file(const std::string& sites) {
  const Sites written = sites_named(sites);
  const QTemporaryDir folder;
  const std::string name = folder.filePath("sites").toStdString();
  write_file(written, name);
  wafer read = bare_wafer();
  bool same = GlobalFunctions::LoadSiteFile(false, read, name, written.count()) == 0;
  Array place(1, 2);
  for (int site = 0; same && site < written.count(); ++site) {
    const auto at = static_cast<std::size_t>(site);
    const double z = read.GetGridValue(static_cast<std::int16_t>(site + 1), place);
    same = z == written.z[at] && place(1) == written.x[at] && place(2) == written.y[at];
  }
  const PlainWafer plain = plain_loaded(written);
  expect(same && read.mean == plain.mean && read.StdDev == plain.StdDev, "a file with sites: " + sites);
}

template <class Draw>
QImage drawn_in_polygons(int side, const Draw& draw) {
  QImage image(side, side, QImage::Format_RGB32);
  QPainter painter(&image);
  PolygonSurface surface(painter);
  draw(surface);
  return image;
}

template <class Draw>
QImage drawn(int side, const Draw& draw) {
  qt::ImageSurface surface({double(side), double(side)}, 1);
  on_picture(surface, draw);
  return surface.pixels();
}

/// A drawing on the library's picture and on the plain one.
template <class Draw>
void check_drawing(const std::string& what, int side, const Draw& draw) {
  expect(drawn(side, draw) == drawn_in_polygons(side, [&](Surface& surface) { on_picture(surface, draw); }),
         what + ", with drawPolygon");
}

void check_maps(const std::string& sites, int cells, int side) {
  wafer fast = loaded(sites_named(sites));
  const PlainWafer plain = plain_loaded(sites_named(sites));
  const auto map = [&](PlotCanvas& canvas) { draw_color_map(fast, canvas, cells); };
  const std::string what = "map of " + std::to_string(cells) + " cells a side on " + std::to_string(side) +
                           " pixels, sites: " + sites;
  check_drawing(what, side, map);
  check_drawing("sigma " + what, side, [&](PlotCanvas& canvas) { draw_sigma_map(fast, canvas, cells); });
  expect(drawn(side, map) ==
             drawn_in_polygons(side, [&](Surface& surface) { draw_plain_map(plain, surface, cells); }),
         what + ", in the plainest words");
}

void check_surface() {
  wafer fast = loaded(sites_named("1000"));
  check_drawing("surface", picture_side,
                [&](PlotCanvas& canvas) { draw_surface(fast, canvas, surface_cells); });
}

}  // namespace
}  // namespace mirolen::bench

int main(int argc, char** argv) {
  using namespace mirolen::bench;
  if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  QApplication app(argc, argv);
  for (const std::string sites : {"49", "1000", "32767", "dies"}) {
    check_values(sites);
    check_file(sites);
    for (const int cells : {8, 50, 120, map_cells}) check_maps(sites, cells, picture_side);
    for (const int side : {97, 450, 901}) check_maps(sites, map_cells, side);
  }
  check_surface();
  return failures == 0 ? 0 : 1;
}
