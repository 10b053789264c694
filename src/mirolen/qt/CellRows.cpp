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
  for (std::size_t i = 0; i < row.size(); ++i) {
    UprightBox reach = row[i].box;
    if (i + 1 < row.size() && row[i + 1].box.from.x == reach.to.x)
      reach.to.x = std::min(row[i + 1].box.to.x, reach.to.x + (reach.to.y - reach.from.y));
    const std::vector<UprightBox> under = parts_along(reach, following);
    const bool whole = under.size() == 1 && under[0].from.x == reach.from.x && under[0].to.x == reach.to.x;
    painter_.setBrush(qcolor_of(row[i].color));
    if (!whole) fill(reach);
    for (const UprightBox& part : under) fill(part);
  }
}

void CellRows::fill(const UprightBox& box) {
  painter_.drawRect(box.from.x, box.from.y, box.to.x - box.from.x, box.to.y - box.from.y);
}

}  // namespace mirolen::qt
