#pragma once

#include <QBrush>
#include <QPainterPath>
#include <QPen>
#include <algorithm>
#include <optional>
#include <span>

#include "mirolen/render/Surface.h"

// The pens, brushes and shapes of surfaces as those of a painter.
namespace mirolen::qt {

inline bool is_drawn(const Pen& pen) { return pen.style != Pen::Style::none; }

/// Far beyond every device, and well inside what a painter counts with.
inline double in_reach(double device) { return std::clamp(device, -1e6, 1e6); }

/// A pen for a device of which a pixel of the surface has ratio pixels.
QPen qpen(const Pen& pen, double ratio = 1);
QBrush qbrush(const Brush& brush);

/// An open arc, counter-clockwise from start to end in radians, in a rectangle.
QPainterPath arc_path(const QRectF& round, double start, double end);

/// Two opposite corners, the lesser one first.
struct UprightBox {
  PixelPoint from;
  PixelPoint to;
};
/// The box that a polygon is, if its edges are upright.
std::optional<UprightBox> upright_box(std::span<const PixelPoint> points);

/// A box without an outline, as the cells of a map are.
struct Cell {
  UprightBox box;
  Color color = 0;
};
/// Lets a cell grow over another one of its colour and height right beside it. @return whether that is one.
bool extend(Cell& cell, const Cell& other);

}  // namespace mirolen::qt
