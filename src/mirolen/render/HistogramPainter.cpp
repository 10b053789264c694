#include "mirolen/render/HistogramPainter.h"

#include <algorithm>
#include <cmath>

namespace mirolen {

void HistogramPainter::draw() {
  prepare_lengths();
  resume([&] { Plot_.FillColor(QBColor(2)); });  // contract 87
  resume([&] { Plot_.DrawWidth(1); });
  set_orientation();
  resume([&] { set_class_base(); });
  count();
  fit_curve();
  draw_count_axis();
  if (has_classes()) draw_classes();
  if (!r_.on_page) resume([&] { histPic_.Refresh(); });
  show_bars();
  if (has_curve()) {
    resume([&] { Plot_.DrawWidth(2); });
    set_mark_looks();
    for (int k = -3; k <= 3; ++k) draw_sigma_mark(k);
    draw_curve();
  }
  draw_axis_labels();
  draw_limits();
  show_bars();
  resume([&] { Plot_.DrawWidth(1); });
}

void HistogramPainter::set_class_base() {
  const double low = wafer_.minimal;
  classBase_ = wafer_.maximal != low ? low : checked((low < 0 ? 1.1 * low : 0.9 * low) - 0.001);
}

void HistogramPainter::make_classes() {
  constexpr std::int32_t most_classes = 1 << 24;
  const std::int32_t number = to_int32(r_.stat_resol);
  if (number < 0) throw SubscriptOutOfRange();
  if (number > most_classes) throw OutOfMemory();
  counts_.assign(static_cast<std::size_t>(number) + 1, 0);
  classes_ = number;
}

void HistogramPainter::count() {
  resume([&] { make_classes(); });
  if (!(wafer_.GetNop() > 3)) return;
  wafer_.GaussMax = 1;
  resume([&] { classWidth_ = class_width(); });
  std::int16_t sites = 0;  // none where there are more than are counted: one failure, not one a site
  resume([&] { sites = to_int16(wafer_.GetNop()); });
  Array position(1, 2);
  for (std::int32_t i = 1; i <= sites; ++i)
    resume([&] {
      const double value = wafer_.GetGridValue(static_cast<std::int16_t>(i), position);
      if (const double number = class_of(value); number != 0) ++histCount(number);
    });
  wafer_.maxHauf = counts_.size() > 1 ? *std::max_element(counts_.begin() + 1, counts_.end()) : 0;
}

std::int16_t& HistogramPainter::histCount(double number) {
  const std::int32_t at = to_int32(number);
  if (at < 0 || at >= static_cast<std::int32_t>(counts_.size())) throw SubscriptOutOfRange();
  return counts_[static_cast<std::size_t>(at)];
}

/// The curve's height is the count that the normal law puts into the class round the mean, by ten strips over
/// half of its width.
void HistogramPainter::fit_curve() {
  if (wafer_.StdDev == 0) return;
  resume([&] {
    wafer_.GaussMax = 0;
    const double h = divide(classWidth_, wafer_.StdDev) / 2 / 10;
    for (int m = 1; m <= 10; ++m) wafer_.GaussMax += gauss_unit(m * h);
    wafer_.GaussMax = checked((wafer_.GaussMax + wafer_.GaussMax) * h * wafer_.GetNop());
    if (wafer_.maxHauf < wafer_.GaussMax) wafer_.maxHauf = to_int16(wafer_.GaussMax);
    wafer_.GaussMax = wafer_.GaussMax / 0.4;  // contract 57
  });
}

void HistogramPainter::draw_classes() {
  const double s = r_.breite / r_.stat_resol;
  for (int b = 1; b <= classes(); ++b) {
    if (const double height = histCount(b); height > 0) {
      const SurfacePoint from = point((b - 1) * s, height / wafer_.maxHauf), to = point(s * b, 0);
      resume([&] { Plot_.Line(filled_box_flags, from.x, from.y, to.x, to.y, to_color(wafer_.ColS2)); });
      resume([&] { Plot_.Line(box_flags, from.x, from.y, to.x, to.y, QBColor(0)); });
    }
    draw_class_ticks((b - 1) * s, s * b);
  }
  draw_class_ticks(r_.stat_resol * s, r_.breite);
}

void HistogramPainter::draw_curve() {
  resume([&] { histPic_.ForeColor(blue); });
  resume([&] { Plot_.DrawWidth(on_printer() ? 4 : 2); });
  double f0 = 0;
  resume([&] { f0 = curve(classBase_); });
  std::int32_t last = 0;
  resume([&] { last = to_int32(Int(r_.breite)); });
  double f1 = 0;
  for (double p = 1; p <= last; ++p) {
    resume([&] { f1 = curve(divide(wafer_.maximal - classBase_, r_.breite) * p + classBase_); });
    if (f0 > 1 || f1 > 1) continue;  // contract 88
    resume([&] {
      const SurfacePoint from = point(p - 1, f0), to = point(p, f1);
      Plot_.Line(line_flags, from.x, from.y, to.x, to.y, to_color(wafer_.ColS1));
    });
    f0 = f1;
  }
  show_bars();
  resume([&] { Plot_.DrawWidth(1); });
}

void HistogramPainter::show_bars() {
  if (!r_.on_page) resume([&] { Plot_.Refresh(); });
}

}  // namespace mirolen
