#include "mirolen/core/palette.h"
#include "mirolen/core/translation.h"
#include "mirolen/print/PrintWafer.h"
#include "mirolen/print/frame.h"
#include "mirolen/print/target.h"
#include "mirolen/print/text_writers.h"
#include "mirolen/render/StringFormat.h"

namespace mirolen {
PlotCanvas& print::canvas_of(const std::shared_ptr<PlotCanvas>& target) {
  if (!target) throw InvalidArgument(tr("there is nothing to print on"));
  return *target;
}

void PrintWafer::ResetPrinterObj() {
  PlotCanvas& target = print::canvas_of(PrinterObj);
  target.FontTransparent(true);
  FontSpec font = target.Font();
  font.Name = "Arial";
  font.size = 8;
  target.Font(font);
  target.ScaleMode(twips);
  target.DrawWidth(1);
  target.DrawStyle(solid_line);
  target.FillStyle(solid_fill);
  target.FillColor(QBColor(15));
  target.ForeColor(QBColor(0));
}

void PrintWafer::DrawLeftText(std::string& text, double left, double top, double width, std::int16_t color) {
  print::write_left(print::canvas_of(PrinterObj), text, left, top, width, color);
}

void PrintWafer::DrawCenterText(std::string& text, double center, double top, double width,
                                std::int16_t color) {
  PlotCanvas& target = print::canvas_of(PrinterObj);
  std::int16_t w = print::whole_width(target, text);
  while (w > width) {
    print::lose_both(text);  // contract 108
    w = print::whole_width(target, text);
  }
  const std::int16_t x = to_int16(center - w / 2.0);
  target.ForeColor(QBColor(color));
  target.FontTransparent(true);
  target.CurrentX(x);
  target.CurrentY(top);
  target.Print(text);
}

void PrintWafer::DrawRightText(std::string& text, double right, double top, double width,
                               std::int16_t color) {
  PlotCanvas& target = print::canvas_of(PrinterObj);
  std::int16_t w = print::whole_width(target, text);
  while (w > width) {
    print::lose_first(text);
    w = print::whole_width(target, text);
  }
  target.ForeColor(QBColor(color));
  target.FontTransparent(true);
  target.CurrentX(right - w);
  target.CurrentY(top);
  target.Print(text);
}

void PrintWafer::DrawFrame(const std::string& caption, double left, double top, double width, double height) {
  PlotCanvas& target = print::canvas_of(PrinterObj);
  ResetPrinterObj();
  target.ScaleMode(twips);
  target.DrawWidth(2);
  if (caption.empty())
    print::draw_closed_frame(target, left, top, width, height);
  else
    print::draw_captioned_frame(target, caption, left, top, width, height);
  ResetPrinterObj();
}

void PrintWafer::DrawSigmaChar(double left, double top, std::int16_t color) {
  PlotCanvas& target = print::canvas_of(PrinterObj);
  const FontSpec kept = target.Font();
  target.Font(FontSpec{"Symbol", 14});
  target.DrawStyle(solid_line);
  target.ForeColor(QBColor(color));
  target.CurrentX(left);
  target.CurrentY(top - target.TextHeight("s") / 4);
  target.Print("s");
  target.Font(kept);
}

std::string PrintWafer::FormatLbl(double value) const { return StringFormat::label_text(value); }

std::string PrintWafer::FormatNonZero(double value, std::string format) const {
  return print::format_non_zero(value, format);
}

}  // namespace mirolen
