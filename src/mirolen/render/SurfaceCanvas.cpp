#include "mirolen/render/SurfaceCanvas.h"

#include <array>
#include <cmath>

#include "mirolen/core/translation.h"

namespace mirolen {
namespace {

/// Twips of one scale unit; 0 for pixels, which depend on the device.
double twips_of(std::int16_t mode) {
  switch (mode) {
    case 1:
      return 1;
    case 2:
      return 20;
    case 3:
      return 0;
    case 5:
      return 1440;
    case 6:
      return 1440 / 25.4;
    case 7:
      return 1440 / 2.54;
    default:
      throw InvalidArgument("no such scale mode");
  }
}

constexpr const char* place = translatable("a place or size on a canvas");

Pen::Style pen_style(std::int16_t draw_style) {
  using enum Pen::Style;
  constexpr std::array styles{solid, dash, dot, dash_dot, dash_dot_dot, none, solid};
  return styles[static_cast<std::size_t>(draw_style)];
}

}  // namespace

Surface& SurfaceCanvas::surface(const char* member) const {
  Surface* const found = device();
  if (!found) throw CanvasError(member);
  return *found;
}

SurfaceSize SurfaceCanvas::unit(const char* member) const {
  const double in_twips = twips_of(scale_mode_);
  if (in_twips == 0) return {1, 1};
  const SurfaceSize per_pixel = surface(member).twips_per_pixel();
  return {divide(in_twips, per_pixel.width), divide(in_twips, per_pixel.height)};
}

SurfacePoint SurfaceCanvas::pixel(const char* member, double x, double y) const {
  const SurfaceSize scale = unit(member);
  refuse_unless_finite({x, y}, place);
  return {checked(x * scale.width), checked(y * scale.height)};
}

Pen SurfaceCanvas::pen(std::optional<Color> color) const {
  return {resolve(color.value_or(fore_color_)), draw_width_, pen_style(draw_style_)};
}

double SurfaceCanvas::ScaleWidth() const {
  return surface("ScaleWidth").size().width / unit("ScaleWidth").width;
}

double SurfaceCanvas::ScaleHeight() const {
  return surface("ScaleHeight").size().height / unit("ScaleHeight").height;
}

void SurfaceCanvas::ScaleMode(std::int16_t mode) {
  twips_of(mode);
  scale_mode_ = mode;
}

double SurfaceCanvas::TwipsPerPixelX() const { return surface("TwipsPerPixelX").twips_per_pixel().width; }

double SurfaceCanvas::TwipsPerPixelY() const { return surface("TwipsPerPixelY").twips_per_pixel().height; }

void SurfaceCanvas::FillStyle(std::int16_t style) {
  if (style < 0 || style > 7) throw InvalidArgument("no such fill style");
  fill_style_ = style;
}

void SurfaceCanvas::DrawStyle(std::int16_t style) {
  if (style < 0 || style > 6) throw InvalidArgument("no such draw style");
  draw_style_ = style;
}

void SurfaceCanvas::DrawWidth(std::int16_t width) {
  if (width < 1) throw InvalidArgument("a line is at least one pixel wide");
  draw_width_ = width;
}

double SurfaceCanvas::CurrentX() const { return text_place_.x / unit("CurrentX").width; }

void SurfaceCanvas::CurrentX(double x) { text_place_.x = pixel("CurrentX", x, 0).x; }

double SurfaceCanvas::CurrentY() const { return text_place_.y / unit("CurrentY").height; }

void SurfaceCanvas::CurrentY(double y) { text_place_.y = pixel("CurrentY", 0, y).y; }

void SurfaceCanvas::Cls() {
  surface("Cls").clear(resolve(background()));
  text_place_ = {};
}

void SurfaceCanvas::Refresh() { surface("Refresh").refresh(); }

void SurfaceCanvas::Line(std::int16_t flags, double x1, double y1, double x2, double y2,
                         std::optional<Color> color) {
  Surface& device = surface("Line");
  const SurfaceBox box{pixel("Line", x1, y1), pixel("Line", x2, y2)};
  const Pen outline = pen(color);
  switch (flags) {
    case line_flags:
      return device.line(outline, box.from, box.to);
    case box_flags:
      return device.rectangle(outline, brush(), box);
    case filled_box_flags:
      return device.rectangle({outline.color, 1, Pen::Style::none}, {outline.color, true}, box);
    default:
      throw InvalidArgument("no such kind of line");
  }
}

void SurfaceCanvas::Circle(double x, double y, double radius, std::optional<Color> color,
                           std::optional<double> start, std::optional<double> end, double aspect) {
  refuse_unless_finite({radius, aspect, start.value_or(0), end.value_or(0)}, place);
  if (radius < 0 || aspect < 0) throw InvalidArgument("a circle has no negative size");
  Surface& device = surface("Circle");
  const SurfacePoint centre = pixel("Circle", x, y);
  const SurfacePoint round = pixel("Circle", radius, radius);
  const SurfaceSize radii =
      aspect <= 1 ? SurfaceSize{round.x, round.y * aspect} : SurfaceSize{round.x / aspect, round.y};
  if (start && end) return device.arc(pen(color), centre, radii, *start, *end);
  device.ellipse(pen(color), brush(), centre, radii);
}

void SurfaceCanvas::Print(std::string_view text) {
  Surface& device = surface("Print");
  const std::optional<Color> behind =
      font_transparent_ ? std::nullopt : std::optional<Color>(resolve(background()));
  device.text(font_, resolve(fore_color_), behind, text_place_, text);
  text_place_ = {0, text_place_.y + device.measure(font_, text).height};
}

double SurfaceCanvas::TextWidth(std::string_view text) const {
  return surface("TextWidth").measure(font_, text).width / unit("TextWidth").width;
}

double SurfaceCanvas::TextHeight(std::string_view text) const {
  return surface("TextHeight").measure(font_, text).height / unit("TextHeight").height;
}

void SurfaceCanvas::Polygon(std::span<const PixelPoint> points) {
  surface("Polygon").polygon(pen({}), brush(), points);
}

void SurfaceCanvas::FloodFill(std::int32_t x, std::int32_t y, Color boundary) {
  surface("FloodFill").flood_fill(brush(), {x, y}, resolve(boundary));
}

}  // namespace mirolen
