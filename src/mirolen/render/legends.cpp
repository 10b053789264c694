#include "mirolen/render/BandEnds.h"
#include "mirolen/render/ColorScale.h"
#include "mirolen/render/Companions.h"
#include "mirolen/render/StringFormat.h"

namespace mirolen {
namespace {

constexpr int rows = 10;

struct LegendFields {
  NumberField caption;
  NumberField tool_tip;
};

/// A scale below zero takes its decimals from a narrower field, but is then written in the same one.
LegendFields legend_fields(const ScaleEnds& ends) {
  const bool negative = ends.low < 0;
  NumberField caption{static_cast<std::int16_t>(negative ? 5 : 6)};
  NumberField tool_tip{static_cast<std::int16_t>(negative ? 9 : 10)};
  bool useExp = false;
  caption.decimals = StringFormat::DecimalsFor(ends.high, caption.width, useExp);
  tool_tip.decimals = StringFormat::DecimalsFor(ends.high, tool_tip.width, useExp);
  if (useExp) {
    caption.width = 9;
    caption.decimals = 1;
  } else {
    caption.width = 6;
    tool_tip.width = 10;
  }
  caption.useExp = tool_tip.useExp = useExp;
  return {caption, tool_tip};
}

/// The text of a row; under user limits the end rows are open. (contract 100)
std::string row_text(int row, bool limited, const BandEnds& numbers) {
  if (limited && row == 1) return " > " + numbers.lower(row);
  if (limited && row == rows) return " < " + numbers.upper(row);
  return numbers.upper(row) + " - " + numbers.lower(row);
}

template <class Row>
auto& at(const std::array<Row*, rows>& collection, int row) {
  return *collection[static_cast<std::size_t>(row - 1)];
}

}  // namespace

void wafer::scale_colored(const LegendBoxes& scalCol, const LegendLabels& scallab) const {
  const ScaleEnds ends = scale_ends(*this);
  const LegendFields fields = legend_fields(ends);
  const BandEnds in_caption(ends, fields.caption), in_tool_tip(ends, fields.tool_tip);
  for (int i = 1; i <= rows; ++i) {
    at(scallab, i).caption(row_text(i, ends.limited, in_caption));
    at(scallab, i).tool_tip(row_text(i, ends.limited, in_tool_tip));
    at(scalCol, i).set_color(to_color(band_color(*this, i)));
  }
}

void wafer::scale_sigma(const LegendBoxes& scalCol, const LegendLabels& scallab, double SigmaRange) const {
  bool useExp = false;
  const std::int16_t decimals = StringFormat::DecimalsFor(SigmaRange, 3, useExp);
  const std::string sigma = StringFormat::FormatField(SigmaRange, 0, decimals, useExp);
  const auto show = [&](int row, const char* relation, double color) {
    at(scallab, row).caption(relation + sigma);
    at(scalCol, row).set_color(to_color(color));
  };
  show(1, ">   ", ColS1);
  show(3, "+-  ", ColS2);
  show(5, "< - ", ColS3);
  for (int i = 1; i <= rows; ++i) {
    const bool used = i == 1 || i == 3 || i == 5;
    at(scallab, i).set_visible(used);
    at(scalCol, i).set_visible(used);
  }
}

std::string wafer::FormatLbl(double dummy) const { return StringFormat::label_text(dummy); }

}  // namespace mirolen
