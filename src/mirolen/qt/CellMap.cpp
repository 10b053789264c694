#include "mirolen/qt/CellMap.h"

#include <QPaintEngine>
#include <QPainter>
#include <QRegion>
#include <numeric>
#include <span>
#include <tuple>
#include <vector>

#include "mirolen/qt/translate.h"

namespace mirolen::qt {
namespace {

PixelPoint in_reach(PixelPoint corner) {
  return {static_cast<std::int32_t>(qt::in_reach(corner.x)),
          static_cast<std::int32_t>(qt::in_reach(corner.y))};
}

bool is_as_high(const UprightBox& one, const UprightBox& other) {
  return one.from.y == other.from.y && one.to.y == other.to.y;
}

/// Touching cells of a row, from a place to another one.
struct Stretch {
  std::int32_t from, to;
  bool is_own;  // all are of the colour in question
};

/// Calls `use` for all that a part of a row has of a colour and of those to come.
template <class Row, class Use>
void for_each_room(Color color, const Row& row, std::int32_t from, std::int32_t to, const Use& use) {
  auto cell = std::ranges::partition_point(row, [&](const Cell& it) { return it.box.to.x <= from; });
  const auto end = std::find_if(cell, row.end(), [&](const Cell& it) { return it.box.from.x >= to; });
  while ((cell = std::find_if(cell, end, [&](const Cell& it) { return it.color >= color; })) != end) {
    Stretch room{std::max(from, cell->box.from.x), cell->box.from.x, true};
    for (; cell != end && cell->box.from.x == room.to && cell->color >= color; ++cell) {
      room.to = cell->box.to.x;
      room.is_own &= cell->color == color;
    }
    room.to = std::min(to, room.to);
    use(room);
  }
}

/// The boxes that the shapes of all colours are made of: the cells, each with a hair of what is to come round
/// it. Those of one colour may lie on each other.
template <class Rows>
class Shapes {
 public:
  Shapes(const Rows& rows, std::int32_t hair) : rows_(rows), hair_(hair) {
    for (auto row = rows.begin(); row != rows.end(); ++row)
      for (const Cell& cell : row->second) add(cell, row);
  }

  const std::map<Color, std::vector<UprightBox>>& boxes() const { return boxes_; }

 private:
  using Place = typename Rows::const_iterator;
  using Row = typename Rows::mapped_type;

  void add(const Cell& cell, Place row) {
    UprightBox box = reaching_sideways(cell, row->second);
    for (Place above = row; above != rows_.begin() && bottom_of(*--above) > cell.box.from.y - hair_;)
      reach_into(above->second, cell, box);
    for (Place below = row; ++below != rows_.end() && below->first < cell.box.to.y + hair_;)
      reach_into(below->second, cell, box);
    boxes_[cell.color].push_back(box);
  }

  UprightBox reaching_sideways(const Cell& cell, const Row& row) const {
    UprightBox box = cell.box;
    const std::int32_t from = box.from.x - hair_, to = box.to.x + hair_;
    for_each_room(cell.color, row, from, to, [&](const Stretch& room) {
      if (room.to <= cell.box.from.x || room.from >= cell.box.to.x) return;
      box.from.x = room.from;
      box.to.x = room.to;
    });
    return box;
  }

  /// The box of a cell reaches into another row as a whole; where not all of it may, strips beside it do.
  void reach_into(const Row& row, const Cell& cell, UprightBox& box) {
    const std::int32_t top = std::max(row.front().box.from.y, cell.box.from.y - hair_);
    const std::int32_t bottom = std::min(row.front().box.to.y, cell.box.to.y + hair_);
    for_each_room(cell.color, row, box.from.x, box.to.x, [&](const Stretch& room) {
      if (room.is_own) return;
      if (room.from == box.from.x && room.to == box.to.x && top <= box.to.y && bottom >= box.from.y) {
        box.from.y = std::min(box.from.y, top);
        box.to.y = std::max(box.to.y, bottom);
      } else {
        boxes_[cell.color].push_back({{room.from, top}, {room.to, bottom}});
      }
    });
  }

  static std::int32_t bottom_of(const typename Rows::value_type& row) { return row.second.front().box.to.y; }

  const Rows& rows_;
  const std::int32_t hair_;
  std::map<Color, std::vector<UprightBox>> boxes_;
};

/// Boxes with those in one that stand on each other and are of one width.
std::vector<QRectF> merged(std::vector<UprightBox> boxes) {
  std::ranges::sort(boxes, {},
                    [](const UprightBox& box) { return std::tuple(box.from.x, box.to.x, box.from.y); });
  std::vector<QRectF> whole;
  for (const auto& [from, to] : boxes) {
    const QRectF box(from.x, from.y, to.x - from.x, to.y - from.y);
    QRectF* const last = whole.empty() ? nullptr : &whole.back();
    if (last && last->left() == box.left() && last->width() == box.width() && box.top() <= last->bottom())
      last->setBottom(std::max(last->bottom(), box.bottom()));
    else
      whole.push_back(box);
  }
  return whole;
}

QRegion region_of(std::span<const QRectF> boxes) {
  if (boxes.size() == 1) return boxes.front().toRect();
  const std::size_t half = boxes.size() / 2;
  return region_of(boxes.first(half)) | region_of(boxes.subspan(half));
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

/// Lets the run at an end of a row grow by a cell. @return whether the cell continues one.
template <class Row>
bool grow(Row& row, const Cell& cell) {
  Cell &first = row.front(), &last = row.back();
  if (!is_as_high(first.box, cell.box)) return false;
  if (cell.color == last.color && cell.box.from.x == last.box.to.x) {
    last.box.to = in_reach(cell.box.to);
    return true;
  }
  if (cell.color == first.color && cell.box.to.x == first.box.from.x) {
    first.box.from = in_reach(cell.box.from);
    return true;
  }
  return false;
}

/// A pixel of a viewer that shows the page as large as it is, in those of the device.
int hair_of(const QPaintDevice& device) {
  constexpr int viewer = 72;  // dots per inch
  return (std::max(device.logicalDpiX(), device.logicalDpiY()) + viewer - 1) / viewer;
}

/// Paints boxes as one shape. The engine for PDF keeps them together, and they are shorter there than their
/// outline.
void fill(QPainter& painter, const std::vector<QRectF>& boxes, Color color) {
  if (painter.paintEngine()->type() != QPaintEngine::Pdf)
    return painter.fillPath(outline_of(region_of(boxes)), qcolor_of(color));
  painter.setPen(Qt::NoPen);
  painter.setBrush(qcolor_of(color));
  painter.drawRects(boxes.data(), static_cast<int>(boxes.size()));
}

}  // namespace

void CellMap::add(const Cell& cell) {
  if (present_ && grow(*present_, cell)) return;  // as most cells of a map do
  const UprightBox box{in_reach(cell.box.from), in_reach(cell.box.to)};
  if (box.from.x == box.to.x || box.from.y == box.to.y) return;
  if (keep({box, cell.color})) return;
  end();
  keep({box, cell.color});
}

bool CellMap::keep(const Cell& cell) {
  Row* const row = row_of(cell.box);
  if (!row) return false;
  if (!row->empty() && grow(*row, cell)) return true;
  if (row->empty() || cell.box.from.x >= row->back().box.to.x) {
    row->push_back(cell);
    return true;
  }
  if (cell.box.to.x <= row->front().box.from.x) {
    row->push_front(cell);
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
  const Shapes shapes(rows_, hair_of(*painter_.device()));
  for (const auto& [color, boxes] : shapes.boxes()) fill(painter_, merged(boxes), color);
  rows_.clear();
  present_ = nullptr;
}

}  // namespace mirolen::qt
