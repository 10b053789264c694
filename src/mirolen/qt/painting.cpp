#include "mirolen/qt/painting.h"

#include <cmath>
#include <numbers>

#include "mirolen/qt/translate.h"

namespace mirolen::qt {
namespace {

Qt::PenStyle style_of(Pen::Style style) {
  using enum Pen::Style;
  switch (style) {
    case dash:
      return Qt::DashLine;
    case dot:
      return Qt::DotLine;
    case dash_dot:
      return Qt::DashDotLine;
    case dash_dot_dot:
      return Qt::DashDotDotLine;
    case none:
      return Qt::NoPen;
    default:
      return Qt::SolidLine;
  }
}

}  // namespace

QPen qpen(const Pen& pen, double ratio) {
  const Qt::PenCapStyle cap = pen.style == Pen::Style::solid ? Qt::RoundCap : Qt::FlatCap;
  return QPen(qcolor_of(pen.color), pen.width * ratio, style_of(pen.style), cap, Qt::MiterJoin);
}

QBrush qbrush(const Brush& brush) {
  return brush.solid ? QBrush(qcolor_of(brush.color)) : QBrush(Qt::NoBrush);
}

QPainterPath arc_path(const QRectF& round, double start, double end) {
  constexpr double degrees = 180 / std::numbers::pi;
  const double turn = std::fmod(end - start, 2 * std::numbers::pi);
  QPainterPath path;
  path.arcMoveTo(round, start * degrees);
  path.arcTo(round, start * degrees, (turn < 0 ? turn + 2 * std::numbers::pi : turn) * degrees);
  return path;
}

std::optional<UprightBox> upright_box(std::span<const PixelPoint> points) {
  if (points.size() == 5 && points[4] == points[0]) points = points.first(4);
  if (points.size() != 4) return std::nullopt;
  const PixelPoint a = points[0], b = points[1], c = points[2], d = points[3];
  const bool upright = (a.y == b.y && b.x == c.x && c.y == d.y && d.x == a.x) ||
                       (a.x == b.x && b.y == c.y && c.x == d.x && d.y == a.y);
  if (!upright) return std::nullopt;
  return UprightBox{{std::min(a.x, c.x), std::min(a.y, c.y)}, {std::max(a.x, c.x), std::max(a.y, c.y)}};
}

bool extend(Cell& cell, const Cell& other) {
  UprightBox& box = cell.box;
  const bool alike =
      other.color == cell.color && other.box.from.y == box.from.y && other.box.to.y == box.to.y;
  if (!alike) return false;
  if (other.box.from.x == box.to.x)
    box.to.x = other.box.to.x;
  else if (other.box.to.x == box.from.x)
    box.from.x = other.box.from.x;
  else
    return false;
  return true;
}

}  // namespace mirolen::qt
