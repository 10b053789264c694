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
  std::optional<std::string> value;
};

using ReportRows = std::vector<ReportRow>;
using NumberText = std::function<std::string(double)>;

/// The rows of the statistics, with its numbers as number writes them.
ReportRows statistics_rows(const wafer& wafer, const NumberText& number);
/// The rows of the wafer's size, with its diameters as diameter writes them.
ReportRows size_rows(const wafer& wafer, const NumberText& diameter);
/// The rows of the wafer's header texts.
ReportRows remarks_rows(const wafer& wafer);

/// Calls write(text, left, top) for all labels of a block, and then for all values.
template <class Write>
void write_rows(const ReportRows& rows, double label_left, double value_left, double top, Write write) {
  for (ReportRow row : rows)
    if (row.label) write(*row.label, label_left, top + row.top);
  for (ReportRow row : rows)
    if (row.value) write(*row.value, value_left, top + row.top);
}

/// The first 15 characters of a header text.
std::string first_15(const std::string& text);

}  // namespace mirolen::print
