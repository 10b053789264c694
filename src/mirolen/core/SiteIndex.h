#pragma once

#include <cstdint>
#include <span>
#include <vector>

namespace mirolen {

/// The cells of a square index and the zero-based numbers of the sites in each, all in one contiguous array,
/// row by row (low y first).
class SiteIndex {
 public:
  /// The cell that a site falls into.
  struct Cell {
    std::int16_t cx = 0;
    std::int16_t cy = 0;
  };

  /// Builds side by side cells, numbered from 0, from the cell of each site; the sites of a cell keep their
  /// order. Cost: one pass over the cells and two over the sites. @throws SubscriptOutOfRange for a site
  /// outside.
  SiteIndex(std::int32_t side, std::span<const Cell> cells);
  /// The index that has no cell at all.
  SiteIndex() = default;

  bool contains(std::int64_t cx, std::int64_t cy) const {
    return cx >= 0 && cx < side_ && cy >= 0 && cy < side_;
  }
  /// The sites of a cell that the index contains.
  std::span<const std::int16_t> cell(std::int64_t cx, std::int64_t cy) const;

  std::int32_t side() const { return side_; }
  std::size_t sites() const { return sites_.size(); }

 private:
  std::size_t place(std::int64_t cx, std::int64_t cy) const {
    return static_cast<std::size_t>(cy * side_ + cx);
  }

  std::int32_t side_ = 0;
  std::vector<std::uint32_t> first_;
  std::vector<std::int16_t> sites_;
};

}  // namespace mirolen
