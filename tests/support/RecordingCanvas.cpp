#include "support/RecordingCanvas.h"

namespace mirolen {

std::string polygon_line(std::span<const PixelPoint> points) {
  std::string line = "Polygon";
  for (const PixelPoint& point : points)
    line += ' ' + std::to_string(point.x) + ',' + std::to_string(point.y);
  return line;
}

void RecordingCanvas::Font(const FontSpec& font) {
  log.call("Font", line_of("Font=" + font.Name, font.size, font.bold, font.underline));
  font_ = font;
}

void RecordingCanvas::Cls() {
  log.call("Cls", "Cls");
  current_x_ = current_y_ = 0;
}

void RecordingCanvas::Line(std::int16_t flags, double x1, double y1, double x2, double y2,
                           std::optional<Color> color) {
  log.call("Line", line_of("Line", flags, x1, y1, x2, y2, std::optional<double>(color)));
}

void RecordingCanvas::Circle(double x, double y, double radius, std::optional<Color> color,
                             std::optional<double> start, std::optional<double> end, double aspect) {
  log.call("Circle", line_of("Circle", x, y, radius, std::optional<double>(color), start, end, aspect));
}

void RecordingCanvas::Print(std::string_view text) {
  log.call("Print", "Print " + std::string(text));
  current_y_ += character.height;
}

double RecordingCanvas::TextWidth(std::string_view text) const {
  return read("TextWidth", static_cast<double>(text.size()) * character.width);
}

double RecordingCanvas::TextHeight(std::string_view) const { return read("TextHeight", character.height); }

void RecordingCanvas::Polygon(std::span<const PixelPoint> points) {
  log.call("Polygon", polygon_line(points));
}

void RecordingCanvas::FloodFill(std::int32_t x, std::int32_t y, Color boundary) {
  log.call("FloodFill", line_of("FloodFill", x, y, boundary));
}

}  // namespace mirolen
