#include "mirolen/qt/PageSurface.h"

#include <QFontMetricsF>
#include <QPaintDevice>
#include <QPainter>

#include "mirolen/qt/translate.h"

namespace mirolen::qt {
namespace {

constexpr double twips_per_inch = 1440, points_per_inch = 72;

// In points: of each pixel of a line's width, and of a whole outline.
constexpr double least_line = 0.5, least_outline = 0.15;

QPointF centre_of(SurfacePoint pixel) { return {in_reach(pixel.x + 0.5), in_reach(pixel.y + 0.5)}; }

QRectF area_of(const SurfaceBox& box) {
  const auto [left, right] = std::minmax(box.from.x, box.to.x);
  const auto [top, bottom] = std::minmax(box.from.y, box.to.y);
  return QRectF(QPointF(in_reach(left), in_reach(top)), QPointF(in_reach(right + 1), in_reach(bottom + 1)));
}

}  // namespace

PageSurface::PageSurface(QPainter& painter, const QPaintDevice& device)
    : painter_(painter), device_(device), cells_(painter) {}

SurfaceSize PageSurface::size() const {
  return {static_cast<double>(device_.width()), static_cast<double>(device_.height())};
}

SurfaceSize PageSurface::twips_per_pixel() const {
  return {twips_per_inch / device_.logicalDpiX(), twips_per_inch / device_.logicalDpiY()};
}

QPainter& PageSurface::painter() {
  cells_.end();
  return painter_;
}

double PageSurface::pixels_per_point() const { return device_.logicalDpiX() / points_per_inch; }

QPen PageSurface::line_pen(const Pen& pen) const {
  return qpen(pen, std::max(1., least_line * pixels_per_point()));
}

QPen PageSurface::outline_pen(const Pen& pen) const {
  return qpen(pen, std::max(1., least_outline * pixels_per_point() / pen.width));
}

void PageSurface::clear(Color color) {
  painter().fillRect(QRectF(0, 0, size().width, size().height), qcolor_of(color));
}

void PageSurface::line(const Pen& pen, SurfacePoint from, SurfacePoint to) {
  if (!is_drawn(pen)) return;
  painter().setPen(line_pen(pen));
  painter_.drawLine(centre_of(from), centre_of(to));
}

void PageSurface::rectangle(const Pen& pen, const Brush& brush, const SurfaceBox& box) {
  if (brush.solid) painter().fillRect(area_of(box), qcolor_of(brush.color));
  if (!is_drawn(pen)) return;
  painter().setPen(line_pen(pen));
  painter_.setBrush(Qt::NoBrush);
  painter_.drawRect(QRectF(centre_of(box.from), centre_of(box.to)).normalized());
}

void PageSurface::ellipse(const Pen& pen, const Brush& brush, SurfacePoint centre, SurfaceSize radii) {
  painter().setPen(line_pen(pen));
  painter_.setBrush(qbrush(brush));
  painter_.drawEllipse(centre_of(centre), in_reach(radii.width), in_reach(radii.height));
}

void PageSurface::arc(const Pen& pen, SurfacePoint centre, SurfaceSize radii, double start, double end) {
  const QPointF middle = centre_of(centre), reach(in_reach(radii.width), in_reach(radii.height));
  painter().strokePath(arc_path(QRectF(middle - reach, middle + reach), start, end), line_pen(pen));
}

void PageSurface::polygon(const Pen& pen, const Brush& brush, std::span<const PixelPoint> points) {
  if (points.empty()) return;
  if (!is_drawn(pen)) {
    if (!brush.solid) return;
    if (const std::optional<UprightBox> box = upright_box(points)) return cells_.add({*box, brush.color});
  }
  const double to_centre = is_drawn(pen) ? 0.5 : 0;
  QPolygonF corners;
  for (const auto& [x, y] : points) corners << QPointF(in_reach(x + to_centre), in_reach(y + to_centre));
  painter().setPen(outline_pen(pen));
  painter_.setBrush(qbrush(brush));
  painter_.drawPolygon(corners);
}

void PageSurface::text(const FontSpec& font, Color color, std::optional<Color> background, SurfacePoint place,
                       std::string_view text) {
  if (background) {
    const SurfaceSize size = measure(font, text);
    painter().fillRect(QRectF(in_reach(place.x), in_reach(place.y), size.width, size.height),
                       qcolor_of(*background));
  }
  painter().setFont(font_of(font, device_, device_.logicalDpiY() / pixels_per_inch));
  painter_.setPen(qcolor_of(color));
  const double ascent = QFontMetricsF(painter_.font(), &device_).ascent();
  painter_.drawText(QPointF(in_reach(place.x), in_reach(place.y + ascent)), shown_text(font, text));
}

SurfaceSize PageSurface::measure(const FontSpec& font, std::string_view text) const {
  const QFontMetricsF metrics(font_of(font, device_, device_.logicalDpiY() / pixels_per_inch), &device_);
  return {metrics.horizontalAdvance(shown_text(font, text)), metrics.height()};
}

void PageSurface::flood_fill(const Brush&, PixelPoint, Color) { throw CanvasError("FloodFill"); }

std::shared_ptr<const Image> PageSurface::snapshot() const { throw CanvasError("Image"); }

void PageSurface::restore(const Image&) { throw CanvasError("Image"); }

}  // namespace mirolen::qt
