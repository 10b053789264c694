#include <array>
#include <cmath>

#include "mirolen/core/palette.h"
#include "mirolen/core/translation.h"
#include "mirolen/print/PrintWafer.h"
#include "mirolen/print/layout.h"
#include "mirolen/print/target.h"
#include "mirolen/render/InclinedCircle.h"
#include "mirolen/render/Screen.h"
#include "mirolen/render/flat_ratio.h"

namespace mirolen {
namespace {

template <std::size_t count>
void cut_out(PlotCanvas& target, const std::array<SurfacePoint, count>& corners) {
  target.ForeColor(QBColor(15));
  target.FillColor(QBColor(15));
  target.FillStyle(solid_fill);
  std::array<PixelPoint, count> points;
  for (std::size_t i = 0; i < count; ++i) points[i] = rounded(corners[i]);
  target.Polygon(points);
}

void draw_red(PlotCanvas& target, SurfacePoint from, SurfacePoint to) {
  target.Line(line_flags, from.x, from.y, to.x, to.y, QBColor(12));
}

}  // namespace

void PrintWafer::DrawFlatNotchSymbol(double& x, double& y, double style, double& r, double rot, double incl) {
  PlotCanvas& target = print::canvas_of(PrinterObj);
  ResetPrinterObj();
  target.ScaleMode(pixels);
  target.DrawWidth(print::line_width(target, 2, 1));
  x = divide(x, twips_x(target));
  y = divide(y, twips_y(target));
  r = divide(r, twips_x(target));

  const double aspect = std::sin(incl * Pi / 180);
  const InclinedCircle P(x, y, aspect, Pi);
  target.ForeColor(QBColor(0));
  target.FillColor(QBColor(15));
  target.Circle(x, y, r, {}, {}, {}, aspect);
  if (style == notch) {
    const double turn = rot * Pi / 180;
    const SurfacePoint A = P(rot + 10, r + r / 3), B = P(rot - 10, r + r / 3);
    const SurfacePoint T{x + 0.8 * std::sin(turn) * r, y + 0.8 * std::cos(turn) * (aspect * r)};
    // B stands twice, and the last corner lies at A's x and B's y. (contract 103)
    cut_out(target, std::array{A, T, B, B, SurfacePoint{A.x, B.y}});
    draw_red(target, P(rot + 10, r), T);
    draw_red(target, T, P(rot - 10, r));
  } else {
    const double R = r / 4 + r;
    const SurfacePoint A = P(rot + 35, r), B = P(rot - 35, r), C = P(rot + 35, R), D = P(rot - 35, R);
    cut_out(target, std::array{A, B, D, C});
    draw_red(target, A, B);
  }
  ResetPrinterObj();
}

void PrintWafer::DrawFlatNotchBox(double left, double top, double style, double rot, double incl) {
  DrawFrame(style == notch ? tr("Notch") : tr("Flat"), left, top, 975, 1095);
  double x = left + 488, y = top + 800, r = 350;
  DrawFlatNotchSymbol(x, y, style, r, rot, incl);
}

}  // namespace mirolen
