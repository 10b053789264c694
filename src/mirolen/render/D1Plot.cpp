#include <cmath>

#include "mirolen/core/translation.h"
#include "mirolen/core/wafer.h"
#include "mirolen/render/Companions.h"
#include "mirolen/render/PlotCanvas.h"
#include "mirolen/render/Screen.h"
#include "mirolen/render/StringFormat.h"

namespace mirolen {
namespace {

constexpr double half_mark = 105;  // half of the width of a mark's picture, in twips

/// The chart on its canvas: its bottom left corner and its size.
struct ChartBox {
  double left = 0, bottom = 0, width = 0, height = 0;
};

ChartBox chart_box(const PlotCanvas& canvas, double left, double top, double width, double height,
                   std::int16_t ShowDisp) {
  if (ShowDisp == 1) return {left, top + height, width, height};
  return {0, canvas.ScaleHeight(), canvas.ScaleWidth(), canvas.ScaleHeight()};
}

/// As a single of four decimals, which is how places along the line are compared.
float to_four_decimals(double value) { return static_cast<float>(StringFormat::rounded_to(value, 4)); }

/// The line through a chord, and which sites lie on it.
struct ScanLine {
  bool vertical;
  double m = 0, b = 0;

  /// Sites count as on a vertical line only in the middle of the wafer. (contract 60)
  bool passes(double x, double y) const {
    return vertical ? x == 0 : static_cast<float>(y) == to_four_decimals(m * x + b);
  }
};

}  // namespace

double wafer::scan_height(double z, double box_bottom, double box_height) const {
  return box_bottom - divide((z - Low) * box_height, maximal - Low);
}

wafer::Chord wafer::chord(bool angle_mode, std::int16_t phi, double x1, double y1, double x2,
                          double y2) const {
  return angle_mode ? chord_from_angle(x1, y1, phi) : chord_from_line(x1, y1, x2, y2);
}

void wafer::D1Plot(PlotCanvas& Plot, std::int16_t resol, std::int16_t phi, bool D1Angle, double x1, double y1,
                   double x2, double y2, Color DrawCol, double left, double top, double width, double height,
                   std::int16_t ShowDisp) {
  const ChartBox box = chart_box(Plot, left, top, width, height, ShowDisp);
  if (Nop <= 3) return;
  // The sign is that of the data, also where limits are set. (contract 56)
  Low = maximal != minimal ? minimal : checked((mini < 0 ? minimal * 1.1 : minimal * 0.9) - 0.001);

  const Chord line = chord(D1Angle, phi, x1, y1, x2, y2);
  const bool a_point = to_four_decimals(line.scanStartX) == to_four_decimals(line.scanEndX) &&
                       to_four_decimals(line.scanStartY) == to_four_decimals(line.scanEndY);
  if (a_point) return;

  const double dx = divide(line.scanEndX - line.scanStartX, resol);
  const double dy = divide(line.scanEndY - line.scanStartY, resol);
  const double px = divide(box.width, resol);
  Plot.FillColor(DrawCol);  // contract 87
  double x = line.scanStartX, y = line.scanStartY;
  double z0 = Interpolation(x, y);
  for (int k = 1; k <= resol; ++k) {
    x += dx;
    y += dy;
    const double z1 = Interpolation(x, y);
    // contract 92
    Plot.Line(line_flags, (k - 1) * px + box.left, scan_height(z0, box.bottom, box.height), k * px + box.left,
              scan_height(z1, box.bottom, box.height), DrawCol);
    z0 = z1;
  }
}

void wafer::D1Plot_AdjustLines(PlotCanvas& Plot, double left, double top, double width, double height) const {
  const bool picture = Plot.kind() == CanvasKind::picture_box;
  const double step_x = (picture ? width - screen().TwipsPerPixelX : width) / 4;
  const double step_y = (picture ? height - screen().TwipsPerPixelY : height) / 4;
  auto x = static_cast<float>(left);  // contract 93
  for (int i = 0; i < 5; ++i) {
    Plot.Line(line_flags, x, top, x, top + height, QBColor(1));
    x = static_cast<float>(x + step_x);
  }
  auto y = static_cast<float>(top);
  for (int i = 0; i < 5; ++i) {
    Plot.Line(line_flags, left, y, left + width, y, QBColor(1));
    y = static_cast<float>(y + step_y);
  }
  if (!picture) return;
  Plot.Refresh();
  Plot.keep_as_background();
}

void wafer::D1Plot_MarkSites(PlotCanvas& Plot, SiteMarks* picgrid, std::int16_t phi, bool D1Angle, double x1,
                             double y1, double x2, double y2, Color DrawCol, double left, double top,
                             double width, double height, std::int16_t ShowDisp) const {
  const bool on_page = ShowDisp == 1;
  const ChartBox box = chart_box(Plot, left, top, width, height, ShowDisp);
  if (Nop <= 3) return;
  if (!on_page) picgrid->hide_all();
  int n = on_page ? 0 : picgrid->count();  // contract 91

  const Chord line = chord(D1Angle, phi, x1, y1, x2, y2);
  const double run = line.scanEndX - line.scanStartX, rise = line.scanEndY - line.scanStartY;
  if (run == 0 && rise == 0) return;
  ScanLine scan{run == 0};
  if (!scan.vertical) {
    scan.m = divide(rise, run);
    scan.b = checked(line.scanStartY - line.scanStartX * scan.m);
  }
  const double q = divide(box.width, square_root(checked(run * run + rise * rise)));

  const std::int16_t sites = to_int16(Nop);
  for (std::int32_t i = 1; i <= sites; ++i) {
    const auto [x, y] = position_of(i);
    const double z = value_of(i);
    if (!scan.passes(x, y)) continue;
    const double d = std::sqrt((x - line.scanStartX) * (x - line.scanStartX) +
                               (y - line.scanStartY) * (y - line.scanStartY));
    const double X = q * d + box.left;
    const double Y = scan_height(z, box.bottom, box.height);
    if (on_page) {
      Plot.FillStyle(solid_fill);
      Plot.Circle(X, Y, 50, DrawCol);
      Plot.FillStyle(transparent_fill);
    } else {
      if (n > picgrid->count()) picgrid->add();
      using StringFormat::plain_text;
      // contract 112
      picgrid->show(n - 1, X - half_mark, Y - half_mark,
                    "X = " + plain_text(x) + "  Y= " + plain_text(y) + tr(" FW = ") + plain_text(z));
      ++n;
    }
  }
}

void wafer::D1Plot_Show_lblXY(const AxisLabels& lblX, const AxisLabels& lblY, std::int16_t Plotopt,
                              std::int16_t phi, double x1, double y1, double x2, double y2, double x3,
                              double y3) const {
  const Chord line = scan_chord(Plotopt, phi, x1, y1, x2, y2, x3, y3);
  const double middle = (Low + maximal) / 2;
  const std::array values{Low, (middle + Low) / 2, middle, (middle + maximal) / 2, maximal};
  for (std::size_t k = 0; k < values.size(); ++k) lblY[k]->caption(scan_label(values[k]));

  const double dx = (line.scanEndX - line.scanStartX) / 4, dy = (line.scanEndY - line.scanStartY) / 4;
  const auto place = [](double x, double y) {
    return "X=" + StringFormat::format_number(x, "0.00") + "\nY=" + StringFormat::format_number(y, "0.00");
  };
  for (std::size_t k = 0; k < 4; ++k)
    lblX[k]->caption(
        place(line.scanStartX + static_cast<double>(k) * dx, line.scanStartY + static_cast<double>(k) * dy));
  lblX[4]->caption(place(line.scanEndX, line.scanEndY));
}

std::string wafer::scan_label(double value) const {
  bool useExp = false;
  const auto decimals = static_cast<std::int16_t>(7 - StringFormat::IntegerWidth(maximal, true, useExp));
  return StringFormat::FormatField(value, 0, decimals, useExp);
}

}  // namespace mirolen
