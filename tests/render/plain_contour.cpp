#include "plain_contour.h"

#include <cmath>

#include "support/site_support.h"

namespace mirolen {

void draw_contour(wafer& source, PlotCanvas& canvas, const ContourRequest& r) {
  source.D2Contour(canvas, r.st, r.distance, r.marked_sites, r.reso, r.colored, r.area.left, r.area.top,
                   r.area.width, r.area.height, r.ShowDispl);
}

Lines PlainContour::lines() {
  clear();
  cx = ShowDispl == 1 ? wanted.left + wanted.width / 2 : setup.scale.width / 2;
  cy = ShowDispl == 1 ? wanted.top + wanted.height / 2 : setup.scale.height / 2;
  S = r.st / (w.WafDiam / 2);
  draw_disc();
  if (w.GetNop() <= 3) return said;
  build_mesh();
  const double s = spacing();
  if (s < w.range / 10000) {
    cross_out();
    return said;
  }
  draw_curves(s);
  say_set("ForeColor", 0);
  say_set("DrawWidth", 1);
  draw_marks();
  say_set("FillStyle", 1);
  say("Circle", line_of("Circle", cx, cy, r.st, QBColor(0)) + " - - 1");
  cut_flat();
  return said;
}

void PlainContour::draw_disc() {
  say_set("FillStyle", 0);
  say_set("FillColor", QBColor(15));
  say_set("DrawStyle", 0);
  say_set("DrawWidth", 1);
  say("Circle", line_of("Circle", cx, cy, r.st, QBColor(0)) + " - - 1");
  say_set("ForeColor", 0);
  cut_flat();
  refresh_screen();
}

void PlainContour::refresh_screen() {
  if (ShowDispl != 1) say("Refresh", "Refresh");
}

void PlainContour::cut_flat() {
  if (w.flat_ratio == 1 || setup.kind != CanvasKind::picture_box) return;
  const double f = 2 * w.flat_ratio - 1, h = std::sqrt(1 - f * f), y = cy + f * r.st;
  const double H = rounded_to_16_bits(setup.scale.height);
  say("Line", line_of("Line", 38, cx - r.st * h, y, cx + r.st * h, H, RecordingCanvas().BackColor()));
  say("Line", line_of("Line", 6, cx - r.st * h, y, cx + r.st * h, y, QBColor(12)));
}

void PlainContour::build_mesh() {
  const double Pi = 4 * std::atan(1.0), Nop = w.GetNop();
  rings = 10;
  if (r.reso == 0) rings = 5;
  if (r.reso < 0 || r.reso > 1)
    for (int k = 9; k >= 2; --k)
      if (Nop <= (2 * k + 1) * (2 * k + 1)) rings = k;
  nodes = {{0, 0}};
  std::vector<int> first = {0};
  for (int i = 1; i <= rings; ++i) {
    first.push_back(static_cast<int>(nodes.size()));
    const double radius = i * w.test_diam / (2 * rings);
    for (int j = 0; j < 8 * i; ++j) {
      const double angle = j * (Pi / (4 * i));
      nodes.push_back({radius * std::cos(angle), radius * std::sin(angle)});
    }
  }
  const auto node = [&](int ring, int j) {
    return ring == 0 ? 0 : first[static_cast<std::size_t>(ring)] + j % (8 * ring);
  };
  for (int i = 1; i <= rings; ++i)
    for (int sector = 0; sector < 8; ++sector)
      for (int j = 0; j < i; ++j) {
        const int inner = sector * (i - 1) + j, outer = sector * i + j;
        triangles.push_back({node(i - 1, inner), node(i, outer), node(i, outer + 1)});
        if (j < i - 1) triangles.push_back({node(i - 1, inner), node(i - 1, inner + 1), node(i, outer + 1)});
      }
  for (const SurfacePoint& at : nodes) values.push_back(w.Interpolation(at.x, at.y));
}

double PlainContour::spacing() const {
  const double s = std::abs(w.mean) * r.distance / 100;
  if (s < (w.maxi - w.mini) / 10000) return (w.maxi - w.mini) * r.distance / 100;
  if (std::abs(w.mean) < std::abs(w.maxi)) return std::abs(w.maxi) * r.distance / 100;
  if (std::abs(w.mean) < std::abs(w.mini)) return std::abs(w.mini) * r.distance / 100;
  return s;
}

void PlainContour::cross_out() {
  if (ShowDispl == 1 && wanted.left < 0) return;
  const RecordingCanvas::Rectangle box =
      ShowDispl == 1 ? wanted : RecordingCanvas::Rectangle{0, 0, setup.scale.width, setup.scale.height};
  const double right = box.left + box.width, bottom = box.top + box.height;
  say_set("DrawWidth", 2);
  say("Line", line_of("Line", 6, box.left, box.top, right, bottom, QBColor(4)));
  say("Line", line_of("Line", 6, box.left, bottom, right, box.top, QBColor(4)));
}

void PlainContour::draw_curves(double s) {
  say_set("DrawWidth", 2);
  draw_level(w.mean, w.ColS2);
  refresh_picture_box();
  say_set("DrawWidth", 1);
  if (w.mean + s == w.mean) return;
  for (double level = w.mean + s; level < w.maximal; level += s) {
    draw_level(level, w.ColS1);
    refresh_screen();
    if (level + s == level) break;
  }
  for (double level = w.mean - s; level > w.mini; level -= s) {
    draw_level(level, w.ColS3);
    refresh_screen();
    if (level - s == level) break;
  }
}

void PlainContour::draw_level(double level, double color) {
  double hi = w.maximal, lo = w.minimal;
  if (w.maximal != w.maxi || w.minimal != w.mini) {
    const double e = (w.maximal - w.minimal) / 8;
    hi += e;
    lo -= e;
  }
  if (r.colored == 2) color = band_color(level, hi, (hi - lo) / 10);
  say_set("ForeColor", r.colored == 1 || r.colored == 2 ? as_color(color) : 0);
  for (const auto& triangle : triangles) draw_piece(level, triangle);
}

void PlainContour::draw_piece(double level, const std::array<int, 3>& triangle) {
  const int edges[3][2] = {{0, 1}, {0, 2}, {1, 2}};
  SurfacePoint first, second;
  int crossed = 0;
  for (const auto& edge : edges) {
    const auto a = static_cast<std::size_t>(triangle[static_cast<std::size_t>(edge[0])]);
    const auto b = static_cast<std::size_t>(triangle[static_cast<std::size_t>(edge[1])]);
    const double f = values[a], g = values[b];
    if (f == g || level < std::min(f, g) || level > std::max(f, g)) continue;
    const SurfacePoint at{nodes[a].x - (nodes[a].x - nodes[b].x) * (f - level) / (f - g),
                          nodes[a].y - (nodes[a].y - nodes[b].y) * (f - level) / (f - g)};
    ++crossed;
    if (crossed == 1 && edge[0] != 1)
      first = at;
    else
      second = at;
  }
  if (crossed < 2) return;
  say("Line",
      line_of("Line", 6, cx + S * first.x, cy - S * first.y, cx + S * second.x, cy - S * second.y) + " -");
}

void PlainContour::draw_marks() {
  if (r.marked_sites == 2)
    for (const SurfacePoint& node : nodes) draw_plus(node.x, node.y);
  if (r.marked_sites == 1)
    for (const Site& site : sites_of(w)) draw_plus(site.x, site.y);
}

void PlainContour::draw_plus(double x, double y) {
  const double X = std::nearbyint(cx + S * x), Y = std::nearbyint(cy - S * y), c = ShowDispl == 1 ? 45 : 3;
  say("Line", line_of("Line", 6, X - c, Y, X + c, Y, QBColor(0)));
  say("Line", line_of("Line", 6, X, Y - c, X, Y + c, QBColor(0)));
}

}  // namespace mirolen
