#pragma once

#include <cstdint>

#include "mirolen/core/Pair.h"
#include "mirolen/core/SiteIndex.h"

namespace mirolen {

/// The cell of an index that a point lies in, found in a few steps.
struct QuickHome {
  std::int32_t x, y;
  bool sure;  ///< False outside of the index, on a line between cells, and within rounding of one.
};

inline QuickHome quick_home(const SiteIndex& index, const SiteIndex::Position& point) {
  // Rounding by cutting errs just where nothing is cut off, and the index ends there, too.
  const Pair low = Pair::all(-0.5), high = Pair::all(static_cast<double>(index.side()) - 0.5);
  const Pair place = Pair::of(point.x, point.y) / Pair::all(index.GridCell()) + Pair::all(index.HalfCells());
  const auto [x, y, fractions] = (greater(lesser(place, high), low) + Pair::all(0.5)).cut();
  return {x, y, fractions};
}

}  // namespace mirolen
