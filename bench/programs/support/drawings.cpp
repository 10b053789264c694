#include "support/drawings.h"

#include "mirolen/core/palette.h"
#include "support/wafers.h"

namespace mirolen::bench {
namespace {

enum MapStyle : std::int16_t { sigma_classes = 4, ten_bands = 5 };

void draw_values(wafer& source, PlotCanvas& canvas) { source.D2Number(canvas, 0, 0, 0, 0, 0); }

void draw_bars(wafer& source, PlotCanvas& canvas) {
  source.D2BeamPlot(canvas, 5, 5, 1, 40, 40, 35, false, 0, 0, 0, 0, 0);
}

void draw_histogram(wafer& source, PlotCanvas& canvas) {
  double x0 = 0, y0 = 0, width = canvas.ScaleWidth(), height = canvas.ScaleHeight(), left = 0, top = 0;
  std::int16_t tick = 4;
  source.Statistic(1, canvas, canvas, x0, y0, width, height, 10, tick, left, top, 0);
}

void draw_line_scan(wafer& source, PlotCanvas& canvas) {
  canvas.Cls();
  source.D1Plot(canvas, 88, 30, true, 0, 0, 0, 0, QBColor(4), 0, 0, 0, 0, 0);
}

constexpr Drawing all[] = {
    {"color_map", [](wafer& w, PlotCanvas& canvas) { draw_color_map(w, canvas, map_cells); }},
    {"sigma_map", [](wafer& w, PlotCanvas& canvas) { draw_sigma_map(w, canvas, map_cells); }},
    {"contour", draw_contour},
    {"surface", [](wafer& w, PlotCanvas& canvas) { draw_surface(w, canvas, surface_cells); }},
    {"bars", draw_bars},
    {"value_map", draw_values},
    {"histogram", draw_histogram},
    {"line_scan", draw_line_scan},
};

}  // namespace

std::span<const Drawing> drawings() { return all; }

void draw_color_map(wafer& source, PlotCanvas& canvas, int cells) {
  source.D2Plot(canvas, step_of(cells), ten_bands, 0, 0, 0, 0, 0, 0, 0);
}

void draw_sigma_map(wafer& source, PlotCanvas& canvas, int cells) {
  source.D2Plot(canvas, step_of(cells), sigma_classes, 1, 0, 0, 0, 0, 0, 0);
}

void draw_surface(wafer& source, PlotCanvas& canvas, int cells) {
  // The renderer adds two cells at every edge of the test circle.
  constexpr std::int16_t bands_with_edges = 1;
  const double step = test_diameter / 2 / (cells / 2 - 2);
  source.D3Plot(canvas, step, step, 40, 40, 40, 35, bands_with_edges, 0, false, 0, 0, 0, 0, 0);
}

void draw_contour(wafer& source, PlotCanvas& canvas) {
  source.D2Contour(canvas, picture_side / 2 - 5, 1, 0, 1, 2, 0, 0, 0, 0, 0);
}

void print_color_map(wafer& source, PlotCanvas& page, int cells) {
  constexpr double side = 15 / 2.54 * 1440;  // twips
  constexpr std::int16_t on_page = 1;
  source.D2Plot(page, step_of(cells), ten_bands, 0, 0, 0, 0, side, side, on_page);
}

}  // namespace mirolen::bench
