#include "plain_site_texts.h"

#include <algorithm>

#include "mirolen/render/StringFormat.h"
#include "support/site_support.h"

namespace mirolen {
namespace {

double text_width(const std::string& text) {
  return RecordingCanvas().character.width * static_cast<double>(text.size());
}

}  // namespace

void PlainSiteTexts::draw_disc() {
  clear();
  find_area();
  statement(
      [&] { S = std::min(divided(area.width - 6, w.test_diam), divided(area.height - 6, w.test_diam)); });
  cx = area.left + area.width / 2;
  cy = area.top + area.height / 2;
  say_set("ForeColor", QBColor(0));
  say_set("FillStyle", 0);
  say_set("FillColor", QBColor(15));
  say_set("DrawStyle", 0);
  say_set("DrawWidth", 1);
  say("Circle", line_of("Circle", cx, cy, S * w.test_diam / 2) + " - - - 1");
}

void PlainSiteTexts::write(double x, double y, const std::string& text) {
  const double px = cx + S * x, py = cy - S * y;
  statement([&] {
    const double width = property("TextWidth", text_width(text));
    call("CurrentX", set_line("CurrentX", px - width / 2));
  });
  statement([&] {
    const double height = property("TextHeight", RecordingCanvas().character.height);
    call("CurrentY", set_line("CurrentY", py - height / 2));
  });
  say("Print", "Print " + text);
  refresh_picture_box();
}

Lines PlainSiteTexts::numbers() {
  draw_disc();
  int number = 0;
  for (const auto& [x, y, z] : sites_of(w)) write(x, y, std::to_string(++number));
  return said;
}

Lines PlainSiteTexts::values() {
  draw_disc();
  bool useExp = false;
  const int width = StringFormat::IntegerWidth(w.maximal, true, useExp);
  const auto decimals = static_cast<std::int16_t>(useExp ? 3 : 7 - width);
  for (const auto& [x, y, z] : sites_of(w)) {
    say_set("ForeColor", as_color(color_of(z)));
    write(x, y, StringFormat::FormatField(z, -1, decimals, useExp));
  }
  return said;
}

double PlainSiteTexts::color_of(double z) const {
  if (w.maximal == w.minimal) return w.col6;
  const double Low = scale_base(w.maximal, w.minimal);
  const double I = S * (1 - (w.maximal - w.minimal) * 0.1 / (w.maximal - Low)) / 10;
  return band_color((z - Low) * S / (w.maximal - Low), S, I);
}

}  // namespace mirolen
