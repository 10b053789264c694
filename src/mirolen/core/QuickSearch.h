#pragma once

#include <array>
#include <cstdint>
#include <limits>
#include <span>
#include <vector>

#include "mirolen/core/SiteIndex.h"

namespace mirolen {

struct FiveKeys;

/// A point nearer to a site than this takes the site's own value, millimetres.
constexpr double on_a_site = 0.0001;

/// The value at a point from the four sites nearest to it, at the price of one look: candidates are ranked at
/// single precision and without a branch, and the four winners are weighed at double precision in the very
/// steps of the search through the index. It answers only where it is sure that the search finds the same
/// four sites in the same order, so that both agree to the last bit. Elsewhere (sites far off, a crowd) it
/// answers `unsure`, and the search has to look.
class QuickSearch {
 public:
  static constexpr double unsure = std::numeric_limits<double>::quiet_NaN();

  /// Has no sites and is never sure.
  QuickSearch() = default;
  /// Takes the sites of an index, in the room of those before. Cost: one pass over them.
  void build(const SiteIndex& index, std::span<const SiteIndex::Position> positions,
             std::span<const double> values);

  /// The value at a point, from sites that are all nearer than farthest. index: the one it took them from.
  double value(const SiteIndex& index, double Xa, double Ya, double farthest) const;
  /// The same for as many points as there are results; points that follow each other closely cost least.
  void values(const SiteIndex& index, std::span<const double> Xa, std::span<const double> Ya, double farthest,
              std::span<double> results) const;

 private:
  using Position = SiteIndex::Position;
  struct Site : Position {
    double z = 0;
  };
  struct FourPoints {
    std::span<const double, 4> x, y;
  };
  class Block;
  class Winners;

  void values(const SiteIndex& index, const FourPoints& points, double farthest,
              std::span<double, 4> results) const;
  template <class Take>
  void visit_keys(const Block& block, const Position& point, Take take) const;
  FiveKeys nearest(const Block& block, const Position& point) const;
  std::array<FiveKeys, 4> nearest(const Block& block, const FourPoints& points) const;
  double weigh(const SiteIndex& index, const Block& block, const FiveKeys& keys, const Position& point,
               double farthest) const;
  double weigh_crowd(const SiteIndex& index, const Block& block, float bound, const Position& point,
                     double farthest) const;
  double weigh_in_order(const SiteIndex& index, const Block& block, std::span<const float> keys,
                        const Position& point, double farthest) const;
  float clear_of(float key) const;
  static bool surely_ends_behind_one_ring(const SiteIndex& index, double D4);
  static bool ends_behind_one_ring(const SiteIndex& index, const Position& point, double D4);

  std::size_t cell(std::int64_t cx, std::int64_t cy) const {
    return static_cast<std::size_t>((cy + 1) * stride_ + cx + 1);
  }

  float margin_ = 0;
  // Where the sites of each cell begin, row by row; round the cells of the index lies a rim of empty ones.
  std::int64_t stride_ = 0;
  std::vector<std::uint32_t> first_;
  std::vector<float> x_, y_;  // in the order of the index, as are the sites
  std::vector<Site> sites_;
};

}  // namespace mirolen
