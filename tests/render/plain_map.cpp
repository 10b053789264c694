#include "plain_map.h"

#include <algorithm>
#include <cmath>

namespace mirolen {

void draw_map(wafer& source, PlotCanvas& canvas, const MapRequest& request) {
  source.D2Plot(canvas, request.res, request.PlotStyle, request.SigmaRange, request.marksites,
                request.area.left, request.area.top, request.area.width, request.area.height,
                request.ShowDispl);
}

Lines PlainMap::lines() {
  set_up();
  if (w.GetNop() > 3) paint_map();
  if (request.marksites != 0) mark_sites();
  return said;
}

void PlainMap::set_up() {
  clear();
  find_scale_limits();
  find_area();
  find_mark_sizes();
  find_grid_size();
  statement(
      [&] { S = std::min(divided(area.width - 6, 2 * n * res), divided(area.height - 6, 2 * n * res)); });
  cx = area.left + area.width / 2;
  cy = area.top + area.height / 2;
  I = S * (1 - (hi - lo) * 0.1 / (hi - Low)) / 10;
  L = -(w.flat_ratio - 0.5) * w.WafDiam;
}

void PlainMap::find_scale_limits() {
  hi = w.maximal;
  lo = w.minimal;
  if (w.maximal != w.maxi || w.minimal != w.mini) {
    const double e = (w.maximal - w.minimal) / 8;
    lo = w.minimal - e;
    hi = w.maximal + e;
  }
  Low = scale_base(hi, lo);
}

void PlainMap::find_mark_sizes() {
  if (setup.kind != CanvasKind::printer) return;
  a = b = c = 0;
  statement([&] { a = rounded_to_16_bits(12 * twips_x()); });
  statement([&] { b = rounded_to_16_bits(4 * twips_y()); });
  statement([&] { c = rounded_to_16_bits(6 * twips_x()); });
}

void PlainMap::find_grid_size() {
  const double d = request.PlotStyle == 5 && request.SigmaRange != 0 ? w.WafDiam : w.test_diam;
  res = request.res;
  double wanted = 0;
  statement([&] { wanted = std::nearbyint(divided(d / 2, res)); });
  if (wanted < 4) res = w.test_diam / 8;
  if (wanted > 100) res = d / 200;
  n = static_cast<int>(std::clamp(wanted, 4.0, 100.0));
}

double PlainMap::norm(double z) const { return (z - Low) * S / (hi - Low); }

bool PlainMap::inside(double x, double y) const {
  const double radius = w.test_diam / 2;
  return y > L && x * x + y * y <= radius * radius;
}

double PlainMap::node(int column, int line) const {
  const double x = column * res, y = line * res;
  return norm(inside(x, y) ? w.Interpolation(x, y) : Low);
}

double PlainMap::beyond(int column, int line) const {
  return norm(w.Interpolation(column * res, line * res));
}

void PlainMap::paint_map() {
  say_set("FillStyle", 0);
  say_set("FillColor", QBColor(15));
  say_set("DrawStyle", 0);
  say_set("DrawWidth", 1);
  say("Circle", line_of("Circle", cx, cy, S * w.test_diam / 2, QBColor(15)) + " - - 1");
  row.clear();
  for (int i = 0; i <= 2 * n; ++i) row.push_back(node(n - i, n));
  for (int j = 0; j < 2 * n; ++j) {
    paint_row(j);
    refresh_picture_box();
  }
  refresh_picture_box();
}

void PlainMap::paint_row(int j) {
  const std::vector<double> above = row;
  for (int i = 0; i <= 2 * n; ++i) row[static_cast<std::size_t>(i)] = node(n - i, n - j - 1);
  for (std::size_t i = 0; i + 1 < row.size(); ++i)
    paint_cell(n - static_cast<int>(i), n - j, above[i], above[i + 1], row[i + 1], row[i]);
}

void PlainMap::paint_cell(int column, int line, double zA, double zB, double zC, double zD) {
  const int count = (zA == 0) + (zB == 0) + (zD == 0) + (zC == 0);
  if (count == 1 || count == 2) {
    if (zA == 0) zA = beyond(column, line);
    if (zB == 0) zB = beyond(column - 1, line);
    if (zC == 0) zC = beyond(column - 1, line - 1);
    if (zD == 0) zD = beyond(column, line - 1);
  }
  const double zc = (zA + zB + zD + zC) / 4;
  say_set("DrawStyle", 5);
  const double color = zc == 0 || count > 2 ? 15.0 : color_of(zc);
  if (color == 15.0) return;
  say_set("FillColor", as_color(color));
  say_set("FillStyle", 0);
  say("Polygon", cell_polygon(column, line));
}

double PlainMap::color_of(double zc) const {
  if (request.PlotStyle != 5) return sigma_color(zc);
  return hi == lo ? w.col6 : band_color(zc, S, I);
}

double PlainMap::sigma_color(double zc) const {
  const double m1 = norm(w.mean - request.SigmaRange * w.StdDev);
  const double m2 = norm(request.SigmaRange * w.StdDev + w.mean);
  if (w.maxi != w.mini && zc < m1) return w.ColS3;
  if (w.maxi != w.mini && zc > m2) return w.ColS1;
  return w.ColS2;
}

PixelPoint PlainMap::node_pixel(int column, int line) const {
  return pixel(cx + column * res * S, cy - line * res * S);
}

std::string PlainMap::cell_polygon(int column, int line) const {
  const PixelPoint points[] = {node_pixel(column, line), node_pixel(column - 1, line),
                               node_pixel(column - 1, line - 1), node_pixel(column, line - 1)};
  return polygon_line(points);
}

void PlainMap::mark_sites() {
  Array position(1, 2);
  for (int k = 1; k <= w.GetNop(); ++k) {
    const double z = w.GetGridValue(static_cast<std::int16_t>(k), position);
    mark(cx + S * position(1), cy - S * position(2), z >= w.mean);
    refresh_picture_box();
  }
}

void PlainMap::mark(double px, double py, bool plus) {
  filled_box(px, py, a, b, 15);
  if (plus) filled_box(px, py, b, a, 15);
  filled_box(px, py, c, 0, 0);
  if (plus) filled_box(px, py, 0, c, 0);
}

void PlainMap::filled_box(double x, double y, double half_width, double half_height, int color) {
  say("Line",
      line_of("Line", 38, x - half_width, y - half_height, x + half_width, y + half_height, QBColor(color)));
}

}  // namespace mirolen
