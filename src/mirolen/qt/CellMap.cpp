#include "mirolen/qt/CellRows.h"

#include <QPainter>
#include <vector>

#include "mirolen/qt/translate.h"

namespace mirolen::qt {
namespace {

PixelPoint in_reach(PixelPoint corner) {
  return {static_cast<std::int32_t>(qt::in_reach(corner.x)),
          static_cast<std::int32_t>(qt::in_reach(corner.y))};
}

UprightBox both(const UprightBox& a, const UprightBox& b) {
  return {{std::min(a.from.x, b.from.x), std::min(a.from.y, b.from.y)},
          {std::max(a.to.x, b.to.x), std::max(a.to.y, b.to.y)}};
}

/// The boxes of a row in the order in which they are painted. That of a colour that comes again reaches under
/// all that lies between; any other one reaches under its neighbour.
template <class Row>
std::vector<Cell> nested(const Row& row) {
  std::vector<Cell> boxes;
  std::vector<std::size_t> open;  // those that the last cell lies in, the innermost last
  std::int32_t end = 0;
  for (const Cell& cell : row) {
    if (cell.box.from.x != end) open.clear();
    end = cell.box.to.x;
    const auto same = std::ranges::find(open, cell.color, [&](std::size_t at) { return boxes[at].color; });
    if (same != open.end()) {
      boxes[*same].box.to.x = end;
      open.erase(same + 1, open.end());
      continue;
    }
    if (!open.empty()) {
      UprightBox& beside = boxes[open.back()].box;
      beside.to.x = std::min(end, beside.to.x + (beside.to.y - beside.from.y));
    }
    open.push_back(boxes.size());
    boxes.push_back(cell);
  }
  return boxes;
}

/// The parts of a box's width over which a row lies, as high as both of them.
template <class Row>
std::vector<UprightBox> parts_along(const UprightBox& box, const Row& row) {
  std::vector<UprightBox> parts;
  for (const auto& run : row) {
    const std::int32_t from = std::max(box.from.x, run.box.from.x), to = std::min(box.to.x, run.box.to.x);
    if (from >= to) continue;
    if (!parts.empty() && parts.back().to.x == from) {
      parts.back().to.x = to;
      continue;
    }
    UprightBox part = both(box, run.box);
    part.from.x = from;
    part.to.x = to;
    parts.push_back(part);
  }
  return parts;
}

}  // namespace

void CellRows::add(const Cell& cell) {
  const UprightBox box{in_reach(cell.box.from), in_reach(cell.box.to)};
  if (box.from.x == box.to.x || box.from.y == box.to.y) return;
  if (extend_row({box, cell.color})) return;
  const bool touches =
      !row_.empty() && (row_.front().box.to.y == box.from.y || box.to.y == row_.front().box.from.y);
  if (touches) {
    paint(before_, row_);
    before_.swap(row_);
    row_.clear();
  } else {
    end();
  }
  row_.push_back({box, cell.color});
}

bool CellRows::extend_row(const Cell& cell) {
  if (row_.empty()) return false;
  Cell &first = row_.front(), &last = row_.back();
  const UprightBox& box = cell.box;
  if (box.from.y != first.box.from.y || box.to.y != first.box.to.y) return false;
  if (box.from.x >= last.box.to.x) {
    if (!extend(last, cell)) row_.push_back(cell);
    return true;
  }
  if (box.to.x <= first.box.from.x) {
    if (!extend(first, cell)) row_.push_front(cell);
    return true;
  }
  return false;
}

void CellRows::end() {
  paint(before_, row_);
  before_.clear();
  paint(row_, {});
  row_.clear();
}

void CellRows::paint(const Row& row, const Row& following) {
  if (row.empty()) return;
  painter_.setPen(Qt::NoPen);
  for (const auto& [box, color] : nested(row)) {
    const std::vector<UprightBox> under = parts_along(box, following);
    const bool whole = under.size() == 1 && under[0].from.x == box.from.x && under[0].to.x == box.to.x;
    painter_.setBrush(qcolor_of(color));
    if (!whole) fill(box);
    for (const UprightBox& part : under) fill(part);
  }
}

void CellRows::fill(const UprightBox& box) {
  painter_.drawRect(box.from.x, box.from.y, box.to.x - box.from.x, box.to.y - box.from.y);
}

}  // namespace mirolen::qt
