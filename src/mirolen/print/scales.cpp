#include <array>

#include "mirolen/print/PrintWafer.h"
#include "mirolen/print/target.h"
#include "mirolen/render/BandEnds.h"
#include "mirolen/render/ColorScale.h"
#include "mirolen/render/Screen.h"
#include "mirolen/render/StringFormat.h"

namespace mirolen {
namespace {

constexpr int bands = 10;

/// The boxes of a scale, which touch, in pixels of the page.
struct ScaleBoxes {
  double left, top;
  double pitch, width;
  SurfaceSize pixel;  // in twips

  /// Turns left and top into pixels and puts the target into its pixels.
  ScaleBoxes(PlotCanvas& target, double& from_left, double& from_top)
      : pixel{twips_x(target), twips_y(target)} {
    left = from_left = divide(from_left, pixel.width);
    top = from_top = divide(from_top, pixel.height);
    // The height counts by the pixels' width and the width by their height: no difference where they are
    // square. (contract 101)
    pitch = divide(240, pixel.width);
    width = divide(255, pixel.height);
    target.ScaleMode(pixels);
    target.FillStyle(solid_fill);
  }

  double row_top(int row) const { return top + row * pitch; }
  double text_top(int row) const { return row_top(row) + (pitch + pitch) / 10; }
  double text_width() const { return divide(2000, pixel.width); }

  void fill(PlotCanvas& target, int row, double color) const {
    target.FillColor(to_color(color));
    const std::int32_t x1 = to_int32(left), x2 = to_int32(left + width);
    const std::int32_t y1 = to_int32(row_top(row)), y2 = to_int32(row_top(row + 1));
    target.Polygon(std::array<PixelPoint, 4>{{{x1, y1}, {x2, y1}, {x2, y2}, {x1, y2}}});
  }
};

NumberField number_field(const ScaleEnds& ends) {
  const bool negative = ends.low < 0;
  bool narrow = false, useExp = false;
  const std::int16_t decimals = StringFormat::DecimalsFor(ends.high, negative ? 5 : 6, narrow);
  StringFormat::DecimalsFor(ends.high, negative ? 9 : 10, useExp);
  return useExp ? NumberField{9, 2, true} : NumberField{6, decimals, false};
}

/// The text of a band; the outer ones of a limited scale are open. (contract 100)
std::string band_text(int band, bool limited, const BandEnds& numbers) {
  if (limited && band == 1) return " > " + numbers.lower(band);
  if (limited && band == bands) return " < " + numbers.upper(band);
  return numbers.lower(band) + " - " + numbers.upper(band);
}

}  // namespace

void PrintWafer::DrawColoredScale(const wafer& wafer, double& left, double& top) {
  PlotCanvas& target = print::canvas_of(PrinterObj);
  ResetPrinterObj();
  const ScaleBoxes boxes(target, left, top);
  const ScaleEnds ends = scale_ends(wafer);
  const BandEnds numbers(ends, number_field(ends));
  const std::int16_t text_offset = to_int16(divide(450, boxes.pixel.width));
  for (int row = 0; row < bands; ++row) {
    std::string text = band_text(row + 1, ends.limited, numbers);
    DrawLeftText(text, boxes.left + text_offset, boxes.text_top(row), boxes.text_width(), 0);
    boxes.fill(target, row, band_color(wafer, row + 1));
  }
  ResetPrinterObj();
}

void PrintWafer::DrawSigmaScale(double& left, double& top, double sigma, const wafer& wafer) {
  PlotCanvas& target = print::canvas_of(PrinterObj);
  ResetPrinterObj();
  const ScaleBoxes boxes(target, left, top);
  const std::string range = FormatNonZero(sigma, "0.0");
  const double text_offset = divide(400, boxes.pixel.width);
  const auto print_row = [&](int row, const char* relation, double color) {
    std::string text = relation + range;
    const double text_left = boxes.left + text_offset;
    DrawLeftText(text, text_left, boxes.text_top(row), boxes.text_width(), 0);
    DrawSigmaChar(text_left + target.TextWidth(text) + text_offset / 8, boxes.row_top(row), 0);
    boxes.fill(target, row, color);
  };
  print_row(0, ">   ", wafer.ColS1);
  print_row(2, "+-  ", wafer.ColS2);
  print_row(4, "< - ", wafer.ColS3);
  ResetPrinterObj();
}

}  // namespace mirolen
