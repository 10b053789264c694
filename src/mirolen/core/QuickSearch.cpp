#include "mirolen/core/QuickSearch.h"

#include <algorithm>
#include <array>
#include <bit>
#include <limits>

#include "mirolen/core/Block.h"
#include "mirolen/core/FiveSmallest.h"
#include "mirolen/core/Lanes.h"
#include "mirolen/core/Ring.h"
#include "mirolen/core/Winners.h"
#include "mirolen/core/numbers.h"
#include "mirolen/core/quick_home.h"

namespace mirolen {
namespace {

constexpr std::int32_t at_once = 4;
constexpr std::size_t largest_crowd = 16;

}  // namespace

void QuickSearch::build(const SiteIndex& index, std::span<const SiteIndex::Position> positions,
                        std::span<const double> values) {
  // Beyond these sizes single precision would not hold the squares.
  const bool holds = index.GridCell() > 1e-9 && index.GridCell() < 1e9;
  sites_.resize(holds ? index.sites().size() : 0);
  if (!holds) return;
  const double coordinate_error = (index.HalfCells() + 1) * index.GridCell() * 0x1p-24;
  margin_ = static_cast<float>(3 * 9 * coordinate_error * coordinate_error * (0x1p17 + 1));
  stride_ = index.side() + 2;
  first_.resize(static_cast<std::size_t>(stride_ * stride_) + 1);
  std::size_t cell = 0;
  std::uint32_t end = 0;
  for (std::int64_t cy = -1; cy <= index.side(); ++cy)
    for (std::int64_t cx = -1; cx <= index.side(); ++cx) {
      first_[cell++] = end;
      if (index.contains(cx, cy)) end = index.run(cx, cy).last;
    }
  first_[cell] = end;
  // The last ones are read by fours, too.
  x_.resize(sites_.size() + at_once);
  y_.resize(sites_.size() + at_once);
  for (std::size_t place = 0; place < sites_.size(); ++place) {
    const auto site = static_cast<std::size_t>(index.sites()[place]);
    sites_[place] = {positions[site], values[site]};
    x_[place] = static_cast<float>(positions[site].x);
    y_[place] = static_cast<float>(positions[site].y);
  }
}

/// A site of a greater key than this is farther than any of at most this key. With e for the error of a
/// coordinate, the square of a distance d errs by 6de + 9e^2 at most, and the number in the lowest bits and
/// rounding move it by little more than 2^-14 of it. 6de is not above 2^-17 d^2 + 2^17 9e^2; that counts
/// twice.
inline float QuickSearch::clear_of(float key) const { return key * (1 + 2.5F * 0x1p-14F) + margin_; }

double QuickSearch::value(const SiteIndex& index, double Xa, double Ya, double farthest) const {
  const Position point{Xa, Ya};
  const QuickHome home = quick_home(index, point);
  if (!home.sure || sites_.empty()) return unsure;
  const Block block(*this, home, home);
  return block.fits() ? weigh(index, block, nearest(block, point), point, farthest) : unsure;
}

/// Calls take with the keys of all candidates, four at once; lanes without a candidate hold `nothing`.
template <class Take>
void QuickSearch::visit_keys(const Block& block, const Position& point, Take take) const {
  const Lanes X = Lanes::all(static_cast<float>(point.x)), Y = Lanes::all(static_cast<float>(point.y));
  const auto key = [&](std::uint32_t place, Lanes::Numbers number) {
    const Lanes dx = Lanes::load(&x_[place]) - X, dy = Lanes::load(&y_[place]) - Y;
    return (dx * dx + dy * dy).numbered(number);
  };
  for (std::size_t row = 0; row < block.rows(); ++row) {
    const auto [first, last] = block.run(row);
    Lanes::Numbers number = Lanes::Numbers::from(block.first_number(row));
    std::uint32_t place = first;
    for (; place + at_once < last; place += at_once, number += at_once) take(key(place, number));
    take(key(place, number).first(last - place, FiveSmallest::nothing));
  }
}

inline FiveKeys QuickSearch::nearest(const Block& block, const Position& point) const {
  FiveSmallest five;
  visit_keys(block, point, [&](Lanes keys) { five.insert(keys); });
  five.join_lanes();
  return five.first_lane();
}

/// The same for four points that share a block, each in a lane of its own.
std::array<FiveKeys, 4> QuickSearch::nearest(const Block& block, const FourPoints& points) const {
  std::array<float, 4> x, y;
  for (std::size_t i = 0; i < 4; ++i) {
    x[i] = static_cast<float>(points.x[i]);
    y[i] = static_cast<float>(points.y[i]);
  }
  const Lanes X = Lanes::load(x.data()), Y = Lanes::load(y.data());
  FiveSmallest five;
  for (std::size_t row = 0; row < block.rows(); ++row) {
    const auto [first, last] = block.run(row);
    Lanes::Numbers number = Lanes::Numbers::all(block.first_number(row));
    const auto next_key = [&](std::uint32_t place) {
      const Lanes dx = Lanes::all(x_[place]) - X, dy = Lanes::all(y_[place]) - Y;
      const Lanes key = (dx * dx + dy * dy).numbered(number);
      number += 1;
      return key;
    };
    std::uint32_t place = first;
    for (; place + 4 <= last; place += 4) {
      const Lanes p = next_key(place), q = next_key(place + 1), r = next_key(place + 2);
      five.insert(p, q, r, next_key(place + 3));
    }
    for (; place < last; ++place) five.insert(next_key(place));
  }
  return five.lanes();
}

void QuickSearch::values(const SiteIndex& index, std::span<const double> Xa, std::span<const double> Ya,
                         double farthest, std::span<double> results) const {
  std::size_t i = 0;
  for (; i + 4 <= results.size(); i += 4)
    values(index, {Xa.subspan(i).first<4>(), Ya.subspan(i).first<4>()}, farthest,
           results.subspan(i).first<4>());
  for (; i < results.size(); ++i) results[i] = value(index, Xa[i], Ya[i], farthest);
}

void QuickSearch::values(const SiteIndex& index, const FourPoints& points, double farthest,
                         std::span<double, 4> results) const {
  const auto& [x, y] = points;
  const QuickHome low =
      quick_home(index, {std::min({x[0], x[1], x[2], x[3]}), std::min({y[0], y[1], y[2], y[3]})});
  const QuickHome high =
      quick_home(index, {std::max({x[0], x[1], x[2], x[3]}), std::max({y[0], y[1], y[2], y[3]})});
  std::fill(results.begin(), results.end(), unsure);
  const bool one_home = low.x == high.x && low.y == high.y;
  if (low.sure && high.sure && !sites_.empty() && high.x - low.x <= 2 && high.y - low.y <= 2) {
    const Block block(*this, low, high);
    // A block round more than one home has cells that a point's own ring lacks; they are at least so far off.
    const double nearer = one_home ? farthest : std::min(farthest, 0.999 * index.GridCell());
    if (block.fits()) {
      const std::array<FiveKeys, 4> keys = nearest(block, points);
      for (std::size_t k = 0; k < 4; ++k) results[k] = weigh(index, block, keys[k], {x[k], y[k]}, nearer);
      if (one_home) return;
    }
  }
  for (std::size_t k = 0; k < 4; ++k)
    if (!is_finite(results[k])) results[k] = value(index, x[k], y[k], farthest);
}

/// Whether the search, which holds the farthest distance against the square of its reach, looks at the ring
/// round the home cell and at no other, wherever in its cell the point lies: the reach starts between 0 and
/// 1/2 and then grows by a cell.
inline bool QuickSearch::surely_ends_behind_one_ring(const SiteIndex& index, double D4) {
  return D4 > 0.25 && D4 <= index.GridCell() * index.GridCell();
}

/// The value at a point from the candidates with the smallest keys, of which the last is the first that may
/// be left out.
double QuickSearch::weigh(const SiteIndex& index, const Block& block, const FiveKeys& keys,
                          const Position& point, double farthest) const {
  // A host may have the processor take the smallest keys, of sites at the point, for 0, without their
  // numbers.
  const bool numbered = keys.nearest[0] >= std::numeric_limits<float>::min();
  const float bound = clear_of(keys.nearest[3]);
  if (!(numbered && keys.fifth > bound)) return weigh_crowd(index, block, bound, point, farthest);
  const Winners winners(block, keys.nearest, point);
  if (winners.ascend() && winners.D4() < farthest && surely_ends_behind_one_ring(index, winners.D4()))
    return winners.mean();
  return weigh_in_order(index, block, keys.nearest, point, farthest);
}

/// The same where more than four candidates are hardly farther than the fourth, none of them beyond bound.
double QuickSearch::weigh_crowd(const SiteIndex& index, const Block& block, float bound,
                                const Position& point, double farthest) const {
  if (!(bound < FiveSmallest::nothing)) return unsure;
  std::array<float, largest_crowd> crowd;
  std::size_t count = 0;
  visit_keys(block, point, [&](Lanes keys) {
    for (unsigned near = keys.at_most(bound); near != 0; near &= near - 1)
      if (count++ < crowd.size()) crowd[count - 1] = keys[static_cast<std::size_t>(std::countr_zero(near))];
  });
  if (count > crowd.size()) return unsure;
  return weigh_in_order(index, block, std::span(crowd).first(count), point, farthest);
}

/// Weighs the four nearest of a few candidates; of equal distances the search keeps those that it meets
/// first: by their cells, and within a cell by their place.
double QuickSearch::weigh_in_order(const SiteIndex& index, const Block& block, std::span<const float> keys,
                                   const Position& point, double farthest) const {
  const SiteIndex::Home home = index.home(point.x, point.y);
  struct Candidate {
    double D, z;
    std::size_t met, rank;
  };
  std::array<Candidate, largest_crowd> candidates;
  for (std::size_t i = 0; i < keys.size(); ++i) {
    const Site& site = block.site(keys[i]);
    const auto place = static_cast<std::size_t>(&site - sites_.data());
    const std::int64_t dy = block.cell_y(keys[i]) - home.y;
    if (dy < -1 || dy > 1) return unsure;
    const std::uint32_t* middle = &first_[cell(home.x, home.y + dy)];
    const std::int64_t dx = (place >= middle[1]) - (place < middle[0]);
    candidates[i] = {distance(point, site), site.z, Ring::turn(dx, dy) * sites_.size() + place, 0};
  }
  for (std::size_t a = 0; a < keys.size(); ++a)
    for (std::size_t b = a + 1; b < keys.size(); ++b) {
      Candidate &A = candidates[a], &B = candidates[b];
      const bool b_first = (B.D < A.D) | ((B.D == A.D) & (B.met < A.met));
      A.rank += b_first;
      B.rank += !b_first;
    }
  std::array<double, 4> D, z;
  D.fill(unsure), z.fill(unsure);
  for (std::size_t i = 0; i < keys.size(); ++i)
    if (candidates[i].rank < 4) {
      D[candidates[i].rank] = candidates[i].D;
      z[candidates[i].rank] = candidates[i].z;
    }
  return D[3] < farthest && ends_behind_one_ring(index, point, D[3]) ? Winners(D, z).mean() : unsure;
}

bool QuickSearch::ends_behind_one_ring(const SiteIndex& index, const Position& point, double D4) {
  if (surely_ends_behind_one_ring(index, D4)) return true;
  const double reach = index.to_line(point.x, point.y), next = reach + index.GridCell();
  return D4 > reach * reach && D4 <= next * next;
}

}  // namespace mirolen
