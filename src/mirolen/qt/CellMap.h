#pragma once

#include <deque>
#include <map>

#include "mirolen/qt/painting.h"

class QPainter;

namespace mirolen::qt {

/// Paints the cells of a map, which come row by row, as one shape for each colour.
///
/// The pixels are those of one box a cell. A viewer that smooths edges mixes the colours along them, so the
/// shapes do not lie on each other: no colour comes through within another. Only at a border one of the two
/// reaches under the other one, no further than needed to keep the background from showing through.
class CellMap {
 public:
  /// The painter stays the caller's.
  explicit CellMap(QPainter& painter) : painter_(painter) {}

  /// Paints a cell, now or later; it may lie anywhere.
  void add(const Cell& cell);
  /// Paints what is kept back, before anything else is painted.
  void end();

 private:
  /// Cells of one height side by side, apart or touching, from left to right.
  using Row = std::deque<Cell>;

  /// @return false for a cell that may lie on one of those kept back.
  bool keep(const Cell& cell);
  /// The row of a box, perhaps a new one; null for one that lies across a row.
  Row* row_of(const UprightBox& box);

  QPainter& painter_;
  std::map<std::int32_t, Row> rows_;  // kept back, by their tops; no row lies on another
  Row* present_ = nullptr;            // that of the last cell
};

}  // namespace mirolen::qt
