#include "mirolen/core/translation.h"
#include "mirolen/print/PrintWafer.h"
#include "mirolen/print/report_rows.h"
#include "mirolen/print/target.h"

namespace mirolen {
namespace {

constexpr double block_width = 2775, text_width = 975;
constexpr double label_column = 120, value_column = 1080;
constexpr double legend_height = 2895;

void print_block(PrintWafer& page, const std::string& caption, double left, double top, double height,
                 const print::ReportRows& rows) {
  page.DrawFrame(caption, left, top, block_width, height);
  print::write_rows(
      rows, left + label_column, left + value_column, top,
      [&](std::string& text, double x, double y) { page.DrawLeftText(text, x, y, text_width, 0); });
}

}  // namespace

void PrintWafer::DrawWaferRemarks(const wafer& wafer, double left, double top) {
  print_block(*this, tr("Wafer Remarks "), left, top, 1875, print::remarks_rows(wafer));  // contract 112
}

void PrintWafer::DrawWaferSize(const wafer& wafer, double left, double top) {
  const auto diameter = [this](double value) { return FormatNonZero(value, "00.00"); };
  print_block(*this, tr("Size "), left, top, 1155, print::size_rows(wafer, diameter));
}

void PrintWafer::DrawWaferStatistics(const wafer& wafer, double left, double top) {
  const auto number = [this](double value) { return FormatLbl(value); };
  print_block(*this, tr("Statistics "), left, top, 2115, print::statistics_rows(wafer, number));
}

void PrintWafer::DrawColoredLegend(const wafer& wafer, double left, double top, bool framed) {
  if (framed) {
    DrawFrame(tr("Legend "), left, top, block_width, legend_height);
    left += 120;
    top += 500;
  }
  DrawColoredScale(wafer, left, top);
}

void PrintWafer::DrawSigmaLegend(const wafer& wafer, double& left, double& top, double sigma, bool framed) {
  if (!framed) return DrawSigmaScale(left, top, sigma, wafer);  // contract 98
  DrawFrame(tr("Legend "), left, top, block_width, legend_height);
  double inner_left = left + 210, inner_top = top + 500;
  DrawSigmaScale(inner_left, inner_top, sigma, wafer);
}

void PrintWafer::DrawSigmaLegend_No_Frame(const wafer& wafer, double& left, double& top, double sigma) {
  DrawSigmaScale(left, top, sigma, wafer);
}

}  // namespace mirolen
