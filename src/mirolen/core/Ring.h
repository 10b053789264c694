#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdlib>

namespace mirolen {

/// The square ring of cells at a distance from a home cell.
struct Ring {
  std::int64_t x0, y0, distance;

  /// The nearest and the farthest ring that touch an index of side by side cells.
  struct Bounds {
    std::int64_t first, last;
    Bounds(std::int64_t x0, std::int64_t y0, std::int64_t side)
        : first(std::max({std::int64_t{1}, -x0, x0 - side + 1, -y0, y0 - side + 1})),
          last(std::max({std::abs(x0), std::abs(x0 - side + 1), std::abs(y0), std::abs(y0 - side + 1)})) {}
  };

  /// The turn of a cell among the home cell and the first ring round it, by its place from the home cell.
  static std::size_t turn(std::int64_t dx, std::int64_t dy) {
    constexpr std::size_t turns[3][3] = {{7, 6, 5}, {8, 0, 4}, {1, 2, 3}};
    return turns[dy + 1][dx + 1];
  }

  /// Visits the cells that lie within the index: the side of high y along +x, then along -y, -x and +y.
  template <class Visit>
  void visit(std::int64_t side, Visit visit_cell) const {
    const std::int64_t left = x0 - distance, right = x0 + distance;
    const std::int64_t low = y0 - distance, high = y0 + distance;
    const auto within = [&](std::int64_t line) { return line >= 0 && line < side; };
    const auto from = [](std::int64_t first) { return std::max(first, std::int64_t{0}); };
    const auto upto = [&](std::int64_t last) { return std::min(last, side - 1); };
    if (within(high))
      for (std::int64_t x = from(left); x <= upto(right - 1); ++x) visit_cell(x, high);
    if (within(right))
      for (std::int64_t y = upto(high); y >= from(low + 1); --y) visit_cell(right, y);
    if (within(low))
      for (std::int64_t x = upto(right); x >= from(left + 1); --x) visit_cell(x, low);
    if (within(left))
      for (std::int64_t y = from(low); y <= upto(high - 1); ++y) visit_cell(left, y);
  }
};

}  // namespace mirolen
