#include "mirolen/print/report_rows.h"

#include <cmath>

#include "mirolen/core/translation.h"
#include "mirolen/print/layout.h"
#include "mirolen/print/text_writers.h"
#include "mirolen/render/StringFormat.h"
#include "mirolen/render/flat_ratio.h"

namespace mirolen::print {
namespace {

std::string percent(double value) {
  std::string format = "0.00";
  return format_non_zero(value, format) + " %";
}

/// The spread by the sum of the extremes; 0 where these cancel out.
double hi_lo(const wafer& wafer) {
  const double sum = checked(wafer.mini + wafer.maxi);
  return sum == 0 ? 0 : std::abs(divide(checked(wafer.maxi - wafer.mini), sum)) * 100;
}

std::optional<std::string> relative_deviation(const wafer& wafer) {
  if (wafer.mean > 0) return percent(std::abs(divide(wafer.StdDev, wafer.mean)) * 100);  // contract 27
  return std::nullopt;
}

}  // namespace

std::string first_15(const std::string& text) {
  std::string first = text;
  std::string rest = text;
  for (int character = 0; character < 15 && !rest.empty(); ++character) lose_first(rest);
  first.resize(text.size() - rest.size());
  return first;
}

ReportRows statistics_rows(const wafer& wafer, const NumberText& number) {
  const auto is = [number](const double& value) { return [number, &value] { return number(value); }; };
  return {{360, tr("Mean:"), is(wafer.mean)},
          {600, tr("Maximum:"), is(wafer.maxi)},
          {840, tr("Minimum:"), is(wafer.mini)},
          {1080, tr("Std. Dev:"), is(wafer.StdDev)},
          {1320, std::nullopt, [&wafer] { return relative_deviation(wafer); }},  // contract 102
          {1560, tr("Range:"), [&wafer, number] { return number(checked(wafer.maxi - wafer.mini)); }},
          {1800, tr("Hi/Lo Var:"), [&wafer] { return percent(hi_lo(wafer)); }},
          {2040, tr("Unit:"), [&wafer] { return first_15(wafer.Meas_unit); }}};
}

ReportRows size_rows(const wafer& wafer, const NumberText& diameter) {
  return {{360, tr("Wafer Diam:"), [&wafer, diameter] { return diameter(wafer.WafDiam) + " mm"; }},
          {600, tr("Test Diam:"), [&wafer, diameter] { return diameter(wafer.test_diam) + " mm"; }},
          {840, tr("No. Sites:"), [&wafer] { return StringFormat::plain_text(wafer.GetNop()); }},
          {1080, tr("Style:"), [&wafer] { return wafer.flat_ratio == notch ? tr("Notch") : tr("Flat"); }}};
}

ReportRows remarks_rows(const wafer& wafer) {
  const auto is = [](const std::string& text) { return [&text] { return first_15(text); }; };
  return {{360, tr("Operator ID:"), is(wafer.Operator)},
          {600, tr("FAB Name:"), is(wafer.FAB)},
          {840, tr("Equip Info:"), is(wafer.equip)},
          {1080, tr("Wafer ID:"), is(wafer.wafer)},
          {1320, tr("Lot:"), is(wafer.lot)},
          {1560, tr("Meas. Equip:"), is(wafer.meq)},
          {1800, tr("Special:"), is(wafer.Special)}};
}

}  // namespace mirolen::print
