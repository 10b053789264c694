#include "mirolen/qt/CellMap.h"

#include <QPainter>
#include <QRegion>
#include <numeric>
#include <vector>

#include "mirolen/qt/translate.h"

namespace mirolen::qt {
namespace {

PixelPoint in_reach(PixelPoint corner) {
  return {static_cast<std::int32_t>(qt::in_reach(corner.x)),
          static_cast<std::int32_t>(qt::in_reach(corner.y))};
}

QRect rect_of(const UprightBox& box) {
  return QRect(box.from.x, box.from.y, box.to.x - box.from.x, box.to.y - box.from.y);
}

bool is_as_high(const UprightBox& one, const UprightBox& other) {
  return one.from.y == other.from.y && one.to.y == other.to.y;
}

/// The region of each colour.
template <class Rows>
std::map<Color, QRegion> regions_of(const Rows& rows) {
  std::map<Color, std::vector<QRect>> boxes;
  for (const auto& [top, row] : rows)
    for (const auto& [box, color] : row) boxes[color].push_back(rect_of(box));
  std::map<Color, QRegion> regions;
  for (const auto& [color, its_boxes] : boxes)
    regions[color].setRects(its_boxes.data(), static_cast<int>(its_boxes.size()));
  return regions;
}

/// A region and all that it passes on its way by a distance along one axis. It goes in as few steps as leave
/// no gap: none is longer than its thinnest part and what it has passed by then.
QRegion swept(QRegion region, const QPoint& axis, int distance) {
  int thinnest = distance;
  for (const QRect& box : region) thinnest = std::min(thinnest, axis.x() ? box.width() : box.height());
  for (int passed = 0; passed < distance;) {
    const int step = std::min(passed + thinnest, distance - passed);
    region |= region.translated(axis * step);
    passed += step;
  }
  return region;
}

/// A region and what lies no further from it than a width.
QRegion grown(const QRegion& region, int width) {
  return swept(swept(region, {1, 0}, 2 * width), {0, 1}, 2 * width).translated(-width, -width);
}

/// The corners of a region's outline, row by row: a corner that two boxes have in common lies within an edge,
/// or where two of them cross.
std::vector<QPoint> corners_of(const QRegion& region) {
  std::vector<QPoint> all;
  for (const QRect& box : region)
    for (const int y : {box.y(), box.y() + box.height()})
      for (const int x : {box.x(), box.x() + box.width()}) all.emplace_back(x, y);
  std::ranges::sort(all, {}, [](const QPoint& corner) { return std::pair(corner.y(), corner.x()); });
  std::vector<QPoint> corners;
  for (const QPoint& corner : all)
    if (!corners.empty() && corners.back() == corner)
      corners.pop_back();
    else
      corners.push_back(corner);
  return corners;
}

/// For each corner the one at the other end of its upright edge.
std::vector<std::size_t> upright_edges(const std::vector<QPoint>& corners) {
  std::vector<std::size_t> by_column(corners.size()), other_end(corners.size());
  std::iota(by_column.begin(), by_column.end(), std::size_t{0});
  std::ranges::stable_sort(by_column, {}, [&](std::size_t at) { return corners[at].x(); });
  for (std::size_t i = 0; i < by_column.size(); i += 2) {
    other_end[by_column[i]] = by_column[i + 1];
    other_end[by_column[i + 1]] = by_column[i];
  }
  return other_end;
}

/// The outline of a region, to be filled by the odd-even rule.
QPainterPath outline_of(const QRegion& region) {
  const std::vector<QPoint> corners = corners_of(region);
  const std::vector<std::size_t> other_end = upright_edges(corners);
  QPainterPath path;
  std::vector<bool> drawn(corners.size());
  for (std::size_t start = 0; start < corners.size(); ++start) {
    if (drawn[start]) continue;
    path.moveTo(corners[start]);
    for (std::size_t at = start; !drawn[at]; at = other_end[at]) {
      if (at != start) path.lineTo(corners[at]);
      drawn[at] = true;
      at ^= 1;  // along a level edge: corners of a row come in pairs
      path.lineTo(corners[at]);
      drawn[at] = true;
    }
  }
  return path;
}

/// A pixel of a viewer that shows the page as large as it is, in those of the device.
int hair_of(const QPaintDevice& device) {
  constexpr int viewer = 72;  // dots per inch
  return (std::max(device.logicalDpiX(), device.logicalDpiY()) + viewer - 1) / viewer;
}

}  // namespace

void CellMap::add(const Cell& cell) {
  const UprightBox box{in_reach(cell.box.from), in_reach(cell.box.to)};
  if (box.from.x == box.to.x || box.from.y == box.to.y) return;
  if (keep({box, cell.color})) return;
  end();
  keep({box, cell.color});
}

bool CellMap::keep(const Cell& cell) {
  Row* const row = row_of(cell.box);
  if (!row) return false;
  if (row->empty() || cell.box.from.x >= row->back().box.to.x) {
    if (row->empty() || !extend(row->back(), cell)) row->push_back(cell);
    return true;
  }
  if (cell.box.to.x <= row->front().box.from.x) {
    if (!extend(row->front(), cell)) row->push_front(cell);
    return true;
  }
  return false;
}

CellMap::Row* CellMap::row_of(const UprightBox& box) {
  if (present_ && is_as_high(present_->front().box, box)) return present_;
  const auto next = rows_.lower_bound(box.from.y);
  if (next != rows_.end()) {
    if (is_as_high(next->second.front().box, box)) return present_ = &next->second;
    if (next->first < box.to.y) return nullptr;
  }
  if (next != rows_.begin() && std::prev(next)->second.front().box.to.y > box.from.y) return nullptr;
  return present_ = &rows_[box.from.y];
}

void CellMap::end() {
  if (rows_.empty()) return;
  const std::map<Color, QRegion> regions = regions_of(rows_);
  rows_.clear();
  present_ = nullptr;
  QRegion to_come;
  for (const auto& [color, region] : regions) to_come |= region;
  const int hair = hair_of(*painter_.device());
  for (const auto& [color, region] : regions) {
    to_come -= region;
    painter_.fillPath(outline_of(region | (grown(region, hair) & to_come)), qcolor_of(color));
  }
}

}  // namespace mirolen::qt
