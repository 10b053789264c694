#pragma once

#include <cstdint>
#include <span>
#include <vector>

namespace mirolen {

/// A site as the index holds it, position and zero-based number side by side.
struct IndexedSite {
  double x = 0;
  double y = 0;
  std::int16_t number = 0;
};

/// The cells of a square index and the sites in each, all in one contiguous array, row by row (low y first).
class SiteIndex {
 public:
  /// A site with the cell that it falls into.
  struct Entry {
    std::int16_t cx = 0;
    std::int16_t cy = 0;
    IndexedSite site;
  };

  /// Builds side by side cells, numbered from 0; the sites of a cell keep the order of the entries.
  /// Cost: one pass over cells and two over entries. @throws SubscriptOutOfRange for an entry outside.
  SiteIndex(std::int32_t side, std::span<const Entry> entries);
  /// The index that has no cell at all.
  SiteIndex() = default;

  bool contains(std::int64_t cx, std::int64_t cy) const {
    return cx >= 0 && cx < side_ && cy >= 0 && cy < side_;
  }
  /// The sites of a cell that the index contains.
  std::span<const IndexedSite> cell(std::int64_t cx, std::int64_t cy) const;

  std::int32_t side() const { return side_; }
  std::size_t sites() const { return sites_.size(); }

 private:
  std::size_t place(std::int64_t cx, std::int64_t cy) const {
    return static_cast<std::size_t>(cy * side_ + cx);
  }

  std::int32_t side_ = 0;
  std::vector<std::uint32_t> first_;
  std::vector<IndexedSite> sites_;
};

}  // namespace mirolen
