#pragma once

#include <deque>

#include "mirolen/qt/painting.h"

class QPainter;

namespace mirolen::qt {

/// Paints the cells of a map, which come row by row, with few boxes: those of a row in one colour as one,
/// with those of other colours that lie between on top of it.
///
/// The pixels are those of one box a cell. A viewer that smooths edges would show the background through
/// every seam of two boxes, so the one that is painted first reaches under the other.
class CellRows {
 public:
  /// The painter stays the caller's.
  explicit CellRows(QPainter& painter) : painter_(painter) {}

  /// Paints a cell, now or later; it may lie anywhere.
  void add(const Cell& cell);
  /// Paints what is kept back, before anything else is painted.
  void end();

 private:
  /// Cells of one height side by side, apart or touching, from left to right.
  using Row = std::deque<Cell>;

  /// Whether the cell belongs to the present row, which then has it.
  bool extend_row(const Cell& cell);
  void paint(const Row& row, const Row& following);
  void fill(const UprightBox& box);

  QPainter& painter_;
  Row before_, row_;  // kept back: the present row and the one it touches, of which nothing is painted
};

}  // namespace mirolen::qt
