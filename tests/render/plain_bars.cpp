#include "plain_bars.h"

#include <algorithm>
#include <cmath>

namespace mirolen {
namespace {

double radians(double degrees) { return degrees * (4 * std::atan(1.0)) / 180; }

}  // namespace

void draw_bars(wafer& source, PlotCanvas& canvas, const BarRequest& r) {
  source.D2BeamPlot(canvas, r.bx, r.by, r.fwscal, r.alp2, r.phi2, r.thet2, r.fprint, r.area.left, r.area.top,
                    r.area.width, r.area.height, r.ShowDispl);
}

Lines PlainBars::lines() {
  clear();
  find_levels();
  find_area();
  find_factors();
  find_scale();
  say_set("ForeColor", QBColor(0));
  say_set("FillColor", QBColor(15));
  if (setup.kind == CanvasKind::picture_box && ShowDispl != 1) say("Cls", "Cls");
  find_centre();
  say_set("FillStyle", 0);
  say_set("DrawStyle", 0);
  say_set("DrawWidth", 1);
  say("Circle", line_of("Circle", cx, cy, S * w.WafDiam / 2) + " - - - " + text_of(sinT));
  for (const Site& site : turned_sites_farthest_first()) {
    paint_bar(site);
    if (ShowDispl != 1) refresh_picture_box();
  }
  return said;
}

void PlainBars::find_levels() {
  bottomLevel = w.minimal;
  topLevel = w.maximal;
  if (w.maximal != w.maxi || w.minimal != w.mini) {
    const double m = (w.maximal - w.minimal) / 8;
    bottomLevel = w.minimal - m;
    topLevel = w.maximal + m;
  }
  Low = scale_base(topLevel, bottomLevel);
}

void PlainBars::find_factors() {
  const double a = radians(r.alp2), bx = r.bx / 2, by = r.by / 2;
  sinT = std::sin(radians(r.thet2));
  cosT = std::cos(radians(r.thet2));
  ax = bx * std::cos(a);
  ay = bx * std::sin(a) * sinT;
  bxp = -by * std::sin(a);
  byp = by * std::cos(a) * sinT;
}

void PlainBars::find_scale() {
  double hNeed = sinT * w.WafDiam + 2 * (std::abs(ay) + std::abs(byp));
  if (topLevel - Low > 0) hNeed += (topLevel - Low) * r.fwscal * cosT;
  if (bottomLevel - Low < 0) hNeed -= (bottomLevel - Low) * r.fwscal * cosT;
  const double wNeed = 2 * (std::abs(ax) + std::abs(bxp)) + w.WafDiam;
  const double sY = hNeed == 0 ? kInfinity : (area.height - 10) / hNeed;
  const double sX = wNeed == 0 ? kInfinity : (area.width - 10) / wNeed;
  S = std::min(sX, sY);
  ax *= S;
  ay *= S;
  bxp *= S;
  byp *= S;
}

void PlainBars::find_centre() {
  cx = area.left + area.width / 2;
  cy = area.height - ((w.WafDiam / 2) * sinT * S + (std::abs(ay) + std::abs(byp)));
  if (bottomLevel - Low < 0) cy -= (bottomLevel - Low) * r.fwscal * cosT * S;
  cy = cy + area.top - 5;
}

std::vector<Site> PlainBars::turned_sites_farthest_first() const {
  const double a = radians(r.phi2);
  std::vector<Site> turned;
  for (const auto& [x, y, z] : sites_of(w))
    turned.push_back({std::cos(a) * x - std::sin(a) * y, std::sin(a) * x + std::cos(a) * y, z});
  std::sort(turned.begin(), turned.end(), [](const Site& one, const Site& other) { return one.y > other.y; });
  return turned;
}

void PlainBars::paint_bar(const Site& site) {
  const double yo = sinT * site.y * S, h = (site.z - Low) * r.fwscal * cosT * S, xo = S * site.x;
  const SurfacePoint P1{xo - ax - bxp + cx, cy - (yo - ay - byp)}, T1{P1.x, P1.y - h};
  const SurfacePoint P2{xo + ax - bxp + cx, cy - (yo + ay - byp)}, T2{P2.x, P2.y - h};
  const SurfacePoint P3{xo + ax + bxp + cx, cy - (yo + ay + byp)}, T3{P3.x, P3.y - h};
  const SurfacePoint P4{xo - ax + bxp + cx, cy - (yo - ay + byp)}, T4{P4.x, P4.y - h};
  const double color = band_color(site.z, topLevel, (topLevel - bottomLevel) / 10);
  if (r.thet2 > 0) quad(T1, T2, T3, T4, color);
  if (r.thet2 == 90) return;
  if (r.alp2 < 90 || r.alp2 > 270) quad(P1, P2, T2, T1, color);
  if (r.alp2 > 0 && r.alp2 < 180) quad(P1, T1, T4, P4, color);
  if (r.alp2 > 90 && r.alp2 < 270) quad(P4, T4, T3, P3, color);
  if (r.alp2 > 180 && r.alp2 < 360) quad(P3, P2, T2, T3, color);
}

void PlainBars::quad(SurfacePoint a, SurfacePoint b, SurfacePoint c, SurfacePoint d, double color) {
  const PixelPoint points[] = {pixel(a.x, a.y), pixel(b.x, b.y), pixel(c.x, c.y), pixel(d.x, d.y)};
  say_set("FillColor", as_color(color));
  say_set("FillStyle", 0);
  say("Polygon", polygon_line(points));
}

}  // namespace mirolen
