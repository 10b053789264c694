#pragma once

#include <cmath>
#include <cstdint>
#include <span>
#include <vector>

#include "mirolen/core/numbers.h"

namespace mirolen {

/// The sites of a wafer by square cells round its centre: the zero-based numbers of the sites in each cell,
/// all in one contiguous array, row by row (low y first). Cells are numbered from 0 both ways; the middle one
/// has the number `HalfCells` and lies round the centre.
class SiteIndex {
 public:
  struct Position {
    double x = 0, y = 0;  ///< Millimetres.
  };
  /// The cell that a point lies in.
  struct Home {
    std::int64_t x = 0, y = 0;
    bool countable = false;  ///< Whether its numbers fit 16 bits; they are told only then.
  };

  /// The index that has no cell at all.
  SiteIndex() = default;
  /// Has no cell any more, but keeps its room.
  void clear();
  /// Sorts sites into cells of GridCell millimetres; the sites of a cell keep their order. Cost: two passes
  /// over the sites and one over the cells. @throws SubscriptOutOfRange for a site outside, OverflowError for
  /// one farther than cells can be counted; then it is clear.
  void build(double GridCell, std::int16_t HalfCells, std::span<const Position> sites);

  double GridCell() const { return GridCell_; }
  std::int16_t HalfCells() const { return HalfCells_; }
  std::int64_t side() const { return side_; }

  Home home(double Xa, double Ya) const;
  /// From a point in a countable cell to the nearest line between cells, as a part of a cell.
  double to_line(double Xa, double Ya) const;
  bool contains(std::int64_t cx, std::int64_t cy) const {
    return cx >= 0 && cx < side_ && cy >= 0 && cy < side_;
  }
  bool contains(const Home& home) const { return home.countable && contains(home.x, home.y); }
  /// The sites of a cell that the index contains.
  std::span<const std::int16_t> cell(std::int64_t cx, std::int64_t cy) const;
  /// Where they begin and end among all sites.
  struct Run {
    std::uint32_t first, last;
  };
  Run run(std::int64_t cx, std::int64_t cy) const {
    const std::size_t cell = place(cx, cy);
    return {first_[cell], first_[cell + 1]};
  }
  /// All sites, cell after cell.
  std::span<const std::int16_t> sites() const { return sites_; }

 private:
  void sort(std::span<const Position> sites);
  std::vector<std::uint32_t> cells_of(std::span<const Position> sites) const;
  std::vector<std::uint32_t> cells_with_care(std::span<const Position> sites) const;
  std::size_t place(std::int64_t cx, std::int64_t cy) const {
    return static_cast<std::size_t>(cy * side_ + cx);
  }

  double GridCell_ = 0;
  std::int16_t HalfCells_ = 0;
  std::int64_t side_ = 0;
  std::vector<std::uint32_t> first_;
  std::vector<std::int16_t> sites_;
};

inline double distance(const SiteIndex::Position& a, const SiteIndex::Position& b) {
  return std::sqrt((a.x - b.x) * (a.x - b.x) + (a.y - b.y) * (a.y - b.y));
}

// In the header, since every interpolation begins with it.
inline SiteIndex::Home SiteIndex::home(double Xa, double Ya) const {
  constexpr double rounds_to_16_bits = 32767.5;
  const double x = Xa / GridCell_ + HalfCells_, y = Ya / GridCell_ + HalfCells_;
  if (!(std::abs(x) < rounds_to_16_bits && std::abs(y) < rounds_to_16_bits)) return {};
  return {nearest_whole(x), nearest_whole(y), true};
}

}  // namespace mirolen
