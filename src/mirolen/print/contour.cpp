#include <algorithm>
#include <cmath>

#include "mirolen/core/translation.h"
#include "mirolen/print/PrintWafer.h"
#include "mirolen/print/layout.h"
#include "mirolen/print/target.h"
#include "mirolen/render/ContourInterval.h"
#include "mirolen/render/StringFormat.h"

namespace mirolen {
namespace {

constexpr double interval_width = 1200;

std::string interval_text(double Interval, const std::string& suffix) {
  return tr("Interval: ") + StringFormat::plain_text(Interval) + suffix;
}

std::string suffix_of(bool percent, const std::string& unit) { return percent ? " %" : " " + unit; }

/// The range of the values, whatever the plot limits; 0 where it has no number.
double spread(const wafer& wafer) {
  const double spread = wafer.maxi - wafer.mini;
  return is_finite(spread) ? spread : 0;
}

}  // namespace

void PrintWafer::Print_Contour(wafer& wafer, double left, double top, double width, double height,
                               double Interval, bool IntervalInPercent, const std::string& MeasurementUnit,
                               std::int16_t marksites, std::int16_t Resolution, std::int16_t PlotColored,
                               const std::string& caption, bool framed) {
  PlotCanvas& target = print::canvas_of(PrinterObj);
  ResetPrinterObj();
  if (framed) DrawFrame(caption, left, top, width, height);
  const double yb = top + height - 1555, xb = left + width - 1215;
  DrawFlatNotchBox(xb, yb + 360, wafer.flat_ratio, 0, print::from_above);
  const double p = IntervalInPercent ? Interval : contour_interval_in_percent(wafer, spread(wafer), Interval);
  std::string text = interval_text(Interval, suffix_of(IntervalInPercent, MeasurementUnit));
  DrawLeftText(text, xb, yb, interval_width, 0);

  const double t = top + target.TextHeight("0");  // contract 96
  const double w = width - 1215;
  const print::Square at = print::centred(left, t, w, height, print::plot_size(w, height));
  // contract 106
  wafer.D2Contour(target, to_int16(at.size / 2), p, marksites, Resolution, PlotColored, at.left, at.top,
                  at.size, at.size, print::on_page);
  ResetPrinterObj();
}

void PrintWafer::Print_Contour_THN(wafer& wafer, double left, double top, double width, double height,
                                   double Interval, bool IntervalInPercent, std::int16_t marksites,
                                   std::int16_t Resolution, std::int16_t PlotColored,
                                   const std::string& caption, std::string& text, bool framed) {
  PlotCanvas& target = print::canvas_of(PrinterObj);
  ResetPrinterObj();
  const double h = target.TextHeight("0");
  const double size = framed ? print::plot_size(width, height - 3 * h) : std::min(width, height);
  // contract 65
  const double p = IntervalInPercent ? contour_interval_in_percent(wafer, wafer.range, Interval) : Interval;
  // contract 107
  wafer.D2Contour(target, to_int16(size / 2), p, marksites, Resolution, PlotColored, left, top, size, size,
                  print::on_page);
  ResetPrinterObj();
  if (framed) {
    DrawLeftText(text, left, top + 3 * h / 2 + size + h / 2, size, 0);
    DrawFrame(caption, left, top, width, height);
  }
  ResetPrinterObj();
}

void PrintWafer::Print_Contour_Legend(const wafer&, double left, double top, double Interval, bool percent,
                                      const std::string& unit) {
  ResetPrinterObj();
  std::string text = interval_text(Interval, suffix_of(percent, unit));
  DrawLeftText(text, left, top, interval_width, 0);
}

}  // namespace mirolen
