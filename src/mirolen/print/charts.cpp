#include <array>

#include "mirolen/core/palette.h"
#include "mirolen/core/translation.h"
#include "mirolen/print/PrintWafer.h"
#include "mirolen/print/layout.h"
#include "mirolen/print/target.h"
#include "mirolen/render/StringFormat.h"

namespace mirolen {
namespace {

constexpr std::int16_t by_angle = 1;
constexpr std::int16_t samples = 88;

struct ChartBox {
  double left, top, width, height;
};

/// Five values down the left edge, from `maximal` to `Low`.
void print_value_labels(PrintWafer& page, const wafer& wafer, double x, const ChartBox& chart) {
  const double middle = (wafer.maximal + wafer.Low) / 2;
  const std::array values{wafer.maximal, (middle + wafer.maximal) / 2, middle, (middle + wafer.Low) / 2,
                          wafer.Low};
  for (std::size_t row = 0; row < values.size(); ++row) {
    std::string text = page.FormatLbl(values[row]);
    page.DrawLeftText(text, x, chart.top - 90 + 0.25 * static_cast<double>(row) * chart.height, 1000, 0);
  }
}

/// Under five columns of the chart the x and, a line lower, the y of the cut.
void print_coordinate_labels(PrintWafer& page, const wafer::Chord& cut, const ChartBox& chart) {
  const double dx = (cut.scanEndX - cut.scanStartX) / 4, dy = (cut.scanEndY - cut.scanStartY) / 4;
  const double row = chart.top + chart.height + 100;
  const double next_row = row + print::canvas_of(page.PrinterObj).TextHeight("0");
  for (int k = 0; k < 5; ++k) {
    const double column = chart.left + k * chart.width / 4;
    std::string x = StringFormat::format_number(cut.scanStartX + k * dx, "0.00");
    std::string y = StringFormat::format_number(cut.scanStartY + k * dy, "0.00");
    page.DrawCenterText(x, column, row, 1000, 0);
    page.DrawCenterText(y, column, next_row, 1000, 0);
  }
}

}  // namespace

void PrintWafer::Print_1DPlot(wafer& wafer, std::int16_t angle, std::int16_t PlotType, double RotationPointX,
                              double RotationPointY, double LineStartPointX, double LineStartPointY,
                              double LineEndPointX, double LineEndPointY, bool marksites,
                              const std::string& caption, double left, double top, double width,
                              double height, bool framed) {
  PlotCanvas& target = print::canvas_of(PrinterObj);
  ResetPrinterObj();
  if (framed) DrawFrame(caption, left, top, width, height);
  const double yb = top + height - 1555, xb = left + width - 1215;
  DrawFlatNotchBox(xb, yb + 360, wafer.flat_ratio, 0, print::from_above);
  DrawCutLine(wafer, angle, PlotType, RotationPointX, RotationPointY, LineStartPointX, LineStartPointY,
              LineEndPointX, LineEndPointY, xb + 138, yb + 810);
  if (PlotType == by_angle) {
    std::string text = tr("Angle: ") + StringFormat::plain_text(angle) + " °";
    DrawLeftText(text, xb, yb, 935, 0);
  }
  target.DrawWidth(print::line_width(target, 2, 1));

  const double label_width = 1.5 * target.TextWidth(FormatLbl(wafer.maximal));
  const ChartBox chart{left + label_width, top + 500, width - 1215 - 300 - label_width, height - 1015};
  print_value_labels(*this, wafer, left + width / 60, chart);
  print_coordinate_labels(*this,
                          wafer.scan_chord(PlotType, angle, RotationPointX, RotationPointY, LineStartPointX,
                                           LineStartPointY, LineEndPointX, LineEndPointY),
                          chart);
  wafer.D1Plot_AdjustLines(target, chart.left, chart.top, chart.width, chart.height);
  target.Line(line_flags, chart.left - 45, top + 355, chart.left + 45, top + 355, QBColor(1));
  target.Line(line_flags, chart.left, top + 310, chart.left, top + 400, QBColor(1));

  target.DrawWidth(print::line_width(target, 4, 2));
  const bool at_angle = PlotType == by_angle;
  const double x1 = at_angle ? RotationPointX : LineStartPointX;
  const double y1 = at_angle ? RotationPointY : LineStartPointY;
  wafer.D1Plot(target, samples, angle, at_angle, x1, y1, LineEndPointX, LineEndPointY, QBColor(4), chart.left,
               chart.top, chart.width, chart.height, print::on_page);
  if (marksites)
    wafer.D1Plot_MarkSites(target, nullptr, angle, at_angle, x1, y1, LineEndPointX, LineEndPointY, QBColor(4),
                           chart.left, chart.top, chart.width, chart.height, print::on_page);
  ResetPrinterObj();
}

void PrintWafer::DrawCutLine(const wafer& wafer, std::int16_t angle, std::int16_t PlotType,
                             double RotationPointX, double RotationPointY, double LineStartPointX,
                             double LineStartPointY, double LineEndPointX, double LineEndPointY, double left,
                             double top) {
  constexpr double size = 700;
  const wafer::Chord cut = wafer.scan_chord(PlotType, angle, RotationPointX, RotationPointY, LineStartPointX,
                                            LineStartPointY, LineEndPointX, LineEndPointY);
  double g = wafer.WafDiam / 50;
  if (g == 0) g = 1;
  double n = to_int16(checked(wafer.WafDiam / 2 / g + 2));
  if (n > 100) {
    n = 100;
    g = wafer.WafDiam / 196;
  }
  const double scale = divide(size, 2 * n * g);  // contract 104
  const double x0 = left + size / 2, y0 = top + size / 2;
  print::canvas_of(PrinterObj)
      .Line(line_flags, x0 + scale * cut.scanStartX, y0 - scale * cut.scanStartY, x0 + scale * cut.scanEndX,
            y0 - scale * cut.scanEndY, QBColor(2));
}

namespace {

/// The chart in its box, m from either side of the area and n from its top.
void print_histogram(PrintWafer& page, std::int16_t PlotType, wafer& wafer, double left, double top,
                     double width, double height, double Resolution, double n) {
  PlotCanvas& target = print::canvas_of(page.PrinterObj);
  const ResumeNext pass_over([] {});  // contract 105
  double m = 0;
  pass_over([&] { m = to_int16(0.08 * width); });
  pass_over([&] { page.ResetPrinterObj(); });
  pass_over([&] {
    target.Line(box_flags, left + m, top + n, left + width - m, top + height - 1.2 * n, QBColor(1));
  });
  pass_over([&] { target.ScaleMode(pixels); });
  pass_over([&] {
    double x0 = left + m, y0 = top + n, breite = width - 2 * m, hoehe = height - 2.2 * n;
    double chart_left = x0, chart_top = y0;
    std::int16_t laenge = 60;
    wafer.Statistic(PlotType, target, target, x0, y0, breite, hoehe, Resolution, laenge, chart_left,
                    chart_top, print::on_page);
  });
  pass_over([&] { target.ScaleMode(twips); });
  pass_over([&] { page.ResetPrinterObj(); });
}

}  // namespace

void PrintWafer::Print_Histo(std::int16_t PlotType, wafer& wafer, double left, double top, double width,
                             double height, double Resolution, double, const std::string& caption,
                             bool framed) {
  const ResumeNext pass_over([] {});
  pass_over([&] {
    if (framed) DrawFrame(caption, left, top, width, height);
  });
  print_histogram(*this, PlotType, wafer, left, top, width, height, Resolution, 600);
}

void PrintWafer::Print_Histo_THN(std::int16_t PlotType, wafer& wafer, double left, double top, double width,
                                 double height, double Resolution, double, const std::string&) {
  print_histogram(*this, PlotType, wafer, left, top, width, height, Resolution, 0);
}

}  // namespace mirolen
