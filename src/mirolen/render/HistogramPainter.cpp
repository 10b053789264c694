#include "mirolen/render/HistogramPainter.h"

#include <algorithm>
#include <cmath>

namespace mirolen {

void HistogramPainter::set_class_base() {
  const double low = wafer_.minimal;
  classBase_ = wafer_.maximal != low ? low : checked((low < 0 ? 1.1 * low : 0.9 * low) - 0.001);
}

void HistogramPainter::count() {
  if (classes() >= 0) counts_.assign(static_cast<std::size_t>(classes()) + 1, 0);
  if (!(wafer_.GetNop() > 3)) return;
  wafer_.GaussMax = 1;
  resume([&] { classWidth_ = class_width(); });
  Array position(1, 2);
  for (std::int32_t i = 1; i <= wafer_.GetNop(); ++i)
    resume([&] {
      const double value = wafer_.GetGridValue(to_int16(i), position);
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
    wafer_.GaussMax = wafer_.GaussMax / 0.4;
  });
}

}  // namespace mirolen
