#include "mirolen/print/text_writers.h"

#include "mirolen/core/palette.h"
#include "mirolen/core/translation.h"
#include "mirolen/render/StringFormat.h"

namespace mirolen::print {
namespace {

bool continues_a_character(char byte) { return (static_cast<unsigned char>(byte) & 0xC0) == 0x80; }

void refuse_empty(const std::string& text) {
  if (text.empty()) throw InvalidArgument(tr("no room for a single character"));
}

}  // namespace

std::int16_t whole_width(const PlotCanvas& canvas, const std::string& text) {
  return to_int16(canvas.TextWidth(text));
}

void lose_first(std::string& text) {
  refuse_empty(text);
  std::size_t bytes = 1;
  while (bytes < text.size() && continues_a_character(text[bytes])) ++bytes;
  text.erase(0, bytes);
}

void lose_last(std::string& text) {
  refuse_empty(text);
  while (text.size() > 1 && continues_a_character(text.back())) text.pop_back();
  text.pop_back();
}

void lose_both(std::string& text) {
  std::string middle = text;
  lose_first(middle);
  lose_last(middle);
  text = std::move(middle);
}

void write_left(PlotCanvas& canvas, std::string& text, double left, double top, double width,
                std::int16_t color) {
  while (whole_width(canvas, text) > width) lose_last(text);
  canvas.DrawStyle(solid_line);
  canvas.ForeColor(QBColor(color));
  canvas.FontTransparent(true);
  canvas.CurrentX(left);
  canvas.CurrentY(top);
  canvas.Print(text);
}

std::string format_non_zero(double value, std::string& format) {
  if (value == 0) return format;  // contract 64
  std::string text;
  do {
    text = StringFormat::format_number(value, format);
    format += '0';
  } while (text.find_first_of("123456789") == std::string::npos);
  return text;
}

}  // namespace mirolen::print
