#include "support/PolygonSurface.h"

#include <QPolygonF>

namespace mirolen::bench {
namespace {

QColor color_of(Color color) { return QColor(color & 0xFF, color >> 8 & 0xFF, color >> 16 & 0xFF); }

QPen pen_of(const Pen& pen) {
  if (pen.style == Pen::Style::none) return QPen(Qt::NoPen);
  return QPen(color_of(pen.color), pen.width, Qt::SolidLine, Qt::RoundCap, Qt::MiterJoin);
}

QBrush brush_of(const Brush& brush) {
  return brush.solid ? QBrush(color_of(brush.color)) : QBrush(Qt::NoBrush);
}

}  // namespace

void PolygonSurface::clear(Color color) {
  painter_.fillRect(QRectF(0, 0, size().width, size().height), color_of(color));
}

void PolygonSurface::ellipse(const Pen& pen, const Brush& brush, SurfacePoint centre, SurfaceSize radii) {
  painter_.setRenderHint(QPainter::Antialiasing);
  painter_.setPen(pen_of(pen));
  painter_.setBrush(brush_of(brush));
  painter_.drawEllipse(QPointF(centre.x + 0.5, centre.y + 0.5), radii.width, radii.height);
  painter_.setRenderHint(QPainter::Antialiasing, false);
}

void PolygonSurface::polygon(const Pen& pen, const Brush& brush, std::span<const PixelPoint> points) {
  // An outline runs through the centres of its pixels, an area without one ends at their edges.
  const double to_centre = pen.style == Pen::Style::none ? 0 : 0.5;
  QPolygonF corners;
  for (const PixelPoint& point : points) corners << QPointF(point.x + to_centre, point.y + to_centre);
  painter_.setPen(pen_of(pen));
  painter_.setBrush(brush_of(brush));
  painter_.drawPolygon(corners);
}

}  // namespace mirolen::bench
