#include <array>
#include <cmath>

#include "mirolen/core/translation.h"
#include "mirolen/core/wafer.h"
#include "mirolen/render/Companions.h"
#include "mirolen/render/InclinedCircle.h"
#include "mirolen/render/PlotCanvas.h"
#include "mirolen/render/flat_ratio.h"

namespace mirolen {
namespace {

void draw_line(PlotCanvas& canvas, SurfacePoint from, SurfacePoint to, std::optional<Color> color = {}) {
  canvas.Line(line_flags, from.x, from.y, to.x, to.y, color);
}

void set_disc_state(PlotCanvas& canvas) {
  canvas.FillStyle(solid_fill);
  canvas.FillColor(QBColor(15));
  canvas.DrawStyle(solid_line);
  canvas.DrawWidth(1);
}

/// Covers a part of the disc in the picture's background.
template <std::size_t count>
void cut_out(PlotCanvas& canvas, const std::array<SurfacePoint, count>& corners) {
  const Color background = canvas.BackColor();
  canvas.ForeColor(background);
  canvas.FillColor(background);
  canvas.FillStyle(solid_fill);
  std::array<PixelPoint, count> points;
  for (std::size_t i = 0; i < count; ++i) points[i] = rounded(corners[i]);
  canvas.Polygon(points);
}

/// A start or end angle of the open arc, in radians.
double arc_angle(double degrees, double Pi) {
  const double turned = degrees + 270;
  return to_int16(turned > 360 ? turned - 360 : turned) * Pi / 180;
}

}  // namespace

// contract 13
void wafer::FlatNotchShow(CaptionLabel* FNLabel, PlotCanvas& FNPic, double& x0, double& y0, double,
                          double phi, double thet) const {
  x0 = FNPic.ScaleWidth() / 2;
  y0 = FNPic.ScaleHeight() / 2;
  const double R = (y0 < x0 ? y0 : x0) - 7;
  const double k = std::sin(thet * Pi / 180);
  const InclinedCircle P(x0, y0, k, Pi);

  FNPic.ForeColor(QBColor(0));
  FNPic.FillColor(QBColor(15));
  FNPic.Cls();
  set_disc_state(FNPic);
  FNPic.Circle(x0, y0, R, {}, {}, {}, k);

  if (flat_ratio == notch) {
    if (FNLabel) FNLabel->caption(tr("Notch"));
    const SurfacePoint A = P(phi + 10, R), B = P(phi - 10, R), C = P(phi, 0.8 * R), D = P(phi, 1.05 * R);
    cut_out(FNPic, std::array{A, C, B, D, A});
    draw_line(FNPic, A, C, QBColor(12));  // contract 78
  } else {
    if (FNLabel) FNLabel->caption(tr("Flat"));
    const double R2 = R + R / 3;
    const SurfacePoint A = P(phi + 35, R), B = P(phi - 35, R), C = P(phi + 35, R2), D = P(phi - 35, R2);
    cut_out(FNPic, std::array{A, B, D, C});
    draw_line(FNPic, A, B, QBColor(12));
  }
  FNPic.Refresh();
}

void wafer::FlatNotchShow1(CaptionLabel* FNLabel, PlotCanvas& FNPic, double& x0, double& y0, double halb_a,
                           double phi, double thet) const {
  const double k = std::sin(thet * Pi / 180);
  const InclinedCircle P(x0, y0, k, Pi);
  const auto open_arc = [&](double half_opening) {
    FNPic.Circle(x0, y0, halb_a, {}, arc_angle(phi + half_opening, Pi), arc_angle(phi - half_opening, Pi), k);
  };
  const auto fill = [&] { FNPic.FloodFill(to_int32(x0), to_int32(y0), FNPic.ForeColor()); };

  set_disc_state(FNPic);
  FNPic.Cls();
  FNPic.DrawWidth(2);
  if (flat_ratio == notch) {
    if (FNLabel) FNLabel->caption(tr("Notch"));
    open_arc(10);
    const SurfacePoint A = P(phi + 11, halb_a), B = P(phi - 11, halb_a), C = P(phi, 0.8 * halb_a);
    draw_line(FNPic, A, C);
    draw_line(FNPic, C, B);
    fill();
    draw_line(FNPic, A, C, QBColor(12));
  } else {
    if (FNLabel) FNLabel->caption(tr("Flat"));
    open_arc(34);
    const SurfacePoint A = P(phi + 35, halb_a), B = P(phi - 35, halb_a);
    draw_line(FNPic, A, B);
    fill();
    draw_line(FNPic, A, B, QBColor(12));
  }
  FNPic.Refresh();
}

}  // namespace mirolen
