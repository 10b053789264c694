#include "plain_surface.h"

#include <algorithm>
#include <cmath>

namespace mirolen {

void draw_surface(wafer& source, PlotCanvas& canvas, const SurfaceRequest& r) {
  source.D3Plot(canvas, r.resx, r.resy, r.fwscal, r.alp2, r.phi2, r.thet2, r.PlotStyle, r.SigmaRange,
                r.fprint, r.area.left, r.area.top, r.area.width, r.area.height, r.ShowDispl);
}

Lines PlainSurface::lines() {
  clear();
  find_levels();
  find_area();
  say_set("ForeColor", QBColor(0));
  say_set("DrawWidth", 1);
  say_set("DrawStyle", 0);
  find_grid();
  find_scale();
  if (w.GetNop() <= 3) return said;
  for (int j = 0; j < 2 * ny; ++j) {
    paint_row(j);
    refresh_picture_box();
  }
  return said;
}

void PlainSurface::find_levels() {
  topLevel = w.maxi;
  bottomLevel = w.mini;
  if (w.maximal != w.maxi || w.minimal != w.mini) {
    const double m = (w.maximal - w.minimal) / 8;
    bottomLevel = w.minimal - m;
    topLevel = w.maximal + m;
  }
  Low = scale_base(w.maxi, w.mini);
}

void PlainSurface::find_grid() {
  const double Pi = 4 * std::atan(1.0);
  plain_top_view = r.alp2 == 0 && r.phi2 == 0 && r.thet2 == 90 && !r.fprint;
  r.alp2 = r.alp2 * Pi / 180;
  r.thet2 = r.thet2 * Pi / 180;
  r.phi2 = r.phi2 * Pi / 180;
  nx = static_cast<int>(half_count(r.resx));
  ny = static_cast<int>(half_count(r.resy));
  d = r.phi2 - r.alp2;
}

double PlainSurface::half_count(double& res) {
  double n = 0;
  if (res > 0 && w.test_diam / 2 / res + 2 > 500.5) {
    res = w.test_diam / 1000;
    return 500;
  }
  statement([&] { n = rounded_to_16_bits(divided(w.test_diam / 2, res) + 2); });
  if (n >= 6) return n;
  res = w.test_diam / 8;
  return 6;
}

void PlainSurface::find_scale() {
  const double pxc = r.resx * std::cos(r.alp2), pyc = r.resy * std::cos(r.alp2);
  const double pxs = r.resx * std::sin(r.alp2), pys = r.resy * std::sin(r.alp2);
  const double sinT = std::sin(r.thet2), cosT = std::cos(r.thet2);
  double scaleX = 0, scaleY = 0;
  statement([&] { scaleX = divided((area.width - 6) / 2, std::abs(pxc) * nx + std::abs(pys) * ny); });
  scale = scaleX;
  if (sinT != 0 || r.fwscal != 0) {
    statement([&] {
      scaleY = divided(area.height - 6,
                       (sinT + sinT) * (std::abs(pxs) * nx + std::abs(pyc) * ny) + r.fwscal * cosT);
    });
    scale = std::min(scaleX, scaleY);
  }
  zScale = scale * r.fwscal;
  topLevel = h(topLevel);
  bottomLevel = h(bottomLevel);
  bandStep = (topLevel - bottomLevel) / 10;
}

double PlainSurface::height(int p, int q) const {
  const double x = (nx - p) * (r.resx * std::cos(d)) + (ny - q) * (r.resy * std::sin(d));
  const double y = (ny - q) * (r.resy * std::cos(d)) + (-nx + p) * (r.resx * std::sin(d));
  const double radius = w.test_diam / 2;
  const bool on_wafer = radius * radius > x * x + y * y && y > -(w.flat_ratio - 0.5) * w.WafDiam;
  return on_wafer ? h(w.Interpolation(x, y)) : 0;
}

PixelPoint PlainSurface::corner(int p, int q) const {
  const double pxc = r.resx * std::cos(r.alp2), pyc = r.resy * std::cos(r.alp2);
  const double pxs = r.resx * std::sin(r.alp2), pys = r.resy * std::sin(r.alp2);
  const double X = area.left + area.width / 2 + scale * ((nx - p) * pxc - (ny - q) * pys);
  const double Y = area.top + area.height -
                   scale * ((2 * nx - p) * pxs + (2 * ny - q) * pyc) * std::sin(r.thet2) -
                   height(p, q) * std::cos(r.thet2);
  return pixel(X, Y);
}

void PlainSurface::paint_row(int j) {
  for (int i = 0; i < 2 * nx; ++i) paint_cell(i, j);
}

void PlainSurface::paint_cell(int i, int j) {
  const PixelPoint points[] = {corner(i, j), corner(i + 1, j), corner(i + 1, j + 1), corner(i, j + 1)};
  say_set("DrawStyle", 0);
  say_set("FillColor", fill_color(height(i, j), height(i + 1, j), height(i, j + 1), height(i + 1, j + 1)));
  const bool solid = r.PlotStyle == 1 || r.PlotStyle == 3 || r.PlotStyle == 4 || r.PlotStyle == 5;
  say_set("FillStyle", solid ? 0 : 1);
  say("Polygon", polygon_line(points));
}

double PlainSurface::fill_color(double zA, double zB, double zC, double zD) const {
  if (r.PlotStyle != 1 && r.PlotStyle != 4 && r.PlotStyle != 5) return QBColor(15);
  const double zMean = (zA + zB + zC + zD) / 4;
  double color = level_color(zMean);
  if (zMean == 0) color = 15;
  if (zA == 0 || zB == 0 || zC == 0 || zD == 0) color = 15;
  if (color == 15) return plain_top_view ? 2147483648.0 : QBColor(15);
  return as_color(color);
}

double PlainSurface::level_color(double zMean) const {
  if (r.PlotStyle != 4) return topLevel == bottomLevel ? w.col6 : band_color(zMean, topLevel, bandStep);
  if (zMean < h(w.mean - r.SigmaRange * w.StdDev) && topLevel != bottomLevel) return w.ColS3;
  if (zMean > h(w.mean + r.SigmaRange * w.StdDev) && topLevel != bottomLevel) return w.ColS1;
  return w.ColS2;
}

}  // namespace mirolen
