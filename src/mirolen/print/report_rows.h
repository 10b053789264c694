#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "mirolen/core/wafer.h"

namespace mirolen::print {

/// A line of a report block. A label or a value that is left out is not written; an empty one is.
struct ReportRow {
  double top;  // below that of the block
  std::optional<std::string> label;
  std::function<std::optional<std::string>()> value;  // may throw RunTimeError
};

using ReportRows = std::vector<ReportRow>;
using NumberText = std::function<std::string(double)>;

// The rows tell of the wafer as it is when they are written.

/// The rows of the statistics, with its numbers as number writes them.
ReportRows statistics_rows(const wafer& wafer, const NumberText& number);
/// The rows of the wafer's size, with its diameters as diameter writes them.
ReportRows size_rows(const wafer& wafer, const NumberText& diameter);
/// The rows of the wafer's header texts.
ReportRows remarks_rows(const wafer& wafer);

/// Calls write(text, left, top) for all labels of a block, and then for one value after the other: one that
/// fails leaves those before it on the page.
template <class Write>
void write_rows(const ReportRows& rows, double label_left, double value_left, double top, Write write) {
  for (const ReportRow& row : rows)
    if (std::optional<std::string> label = row.label) write(*label, label_left, top + row.top);
  for (const ReportRow& row : rows)
    if (std::optional<std::string> value = row.value()) write(*value, value_left, top + row.top);
}

/// The first 15 characters of a header text.
std::string first_15(const std::string& text);

}  // namespace mirolen::print
