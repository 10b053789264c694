#include "mirolen/core/QuickSearch.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cmath>
#include <limits>

#include "mirolen/core/FiveSmallest.h"
#include "mirolen/core/Lanes.h"
#include "mirolen/core/NearestFour.h"
#include "mirolen/core/Ring.h"

namespace mirolen {
namespace {

constexpr std::int32_t at_once = 4;
constexpr double infinity = std::numeric_limits<double>::infinity();

}  // namespace

/// The cells round the homes of points that lie near each other, with all their neighbours, and the sites in
/// them: each row of cells is one run of sites. A candidate's number is made of its row and its place there.
class QuickSearch::Block {
 public:
  Block(const QuickSearch& search, const SiteIndex::Home& low, const SiteIndex::Home& high)
      : bottom_(low.y - 1), rows_(static_cast<std::size_t>(high.y - low.y + 3)) {
    fits_ = rows_ <= most_rows;
    const std::uint32_t* left = &search.first_[search.cell(low.x - 1, bottom_)];
    const std::int64_t width = high.x - low.x + 3;
    for (std::size_t row = 0; fits_ && row < rows_; ++row, left += search.stride_) {
      runs_[row] = {left[0], left[width]};
      fits_ = runs_[row].last - runs_[row].first <= row_step;
    }
  }

  bool fits() const { return fits_; }
  std::size_t rows() const { return rows_; }
  const SiteIndex::Run& run(std::size_t row) const { return runs_[row]; }
  static std::int32_t first_number(std::size_t row) { return static_cast<std::int32_t>(row * row_step); }
  std::size_t place(float key) const {
    const std::uint32_t number = number_of(key);
    return runs_[number / row_step].first + number % row_step;
  }
  /// The y of the candidate's cell.
  std::int64_t cell_y(float key) const { return bottom_ + number_of(key) / row_step; }

 private:
  static std::uint32_t number_of(float key) {
    return std::bit_cast<std::uint32_t>(key) & Lanes::Numbers::most;
  }

  static constexpr std::uint32_t row_step = 64;
  static constexpr std::size_t most_rows = (Lanes::Numbers::most + 1) / row_step;

  std::int64_t bottom_;
  std::size_t rows_;
  bool fits_;
  std::array<SiteIndex::Run, most_rows> runs_;
};

QuickSearch::QuickSearch(const SiteIndex& index, std::span<const SiteIndex::Position> positions,
                         std::span<const double> values) {
  // Beyond these sizes single precision would not hold the squares.
  if (!(index.GridCell() > 1e-9 && index.GridCell() < 1e9)) return;
  coordinate_error_ = (index.HalfCells() + 1) * index.GridCell() * 0x1p-24;
  stride_ = index.side() + 2;
  first_.resize(static_cast<std::size_t>(stride_ * stride_) + 1);
  std::size_t cell = 0;
  std::uint32_t end = 0;
  for (std::int64_t cy = -1; cy <= index.side(); ++cy)
    for (std::int64_t cx = -1; cx <= index.side(); ++cx) {
      first_[cell++] = end;
      if (index.contains(cx, cy)) end = index.run(cx, cx, cy).last;
    }
  first_[cell] = end;
  sites_.resize(index.sites().size());
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

double QuickSearch::value(const SiteIndex& index, double Xa, double Ya, double farthest) const {
  return value(index, Point{{Xa, Ya}, index.home(Xa, Ya)}, farthest);
}

double QuickSearch::value(const SiteIndex& index, const Point& point, double farthest) const {
  if (sites_.empty() || !index.contains(point.home)) return unsure;
  const Block block(*this, point.home, point.home);
  return block.fits() ? weigh(index, block, nearest(block, point), point, farthest) : unsure;
}

QuickSearch::Keys QuickSearch::nearest(const Block& block, const Point& point) const {
  const Lanes X = Lanes::all(static_cast<float>(point.x)), Y = Lanes::all(static_cast<float>(point.y));
  const auto key = [&](std::uint32_t place, Lanes::Numbers number) {
    const Lanes dx = Lanes::load(&x_[place]) - X, dy = Lanes::load(&y_[place]) - Y;
    return (dx * dx + dy * dy).numbered(number);
  };
  FiveSmallest five;
  for (std::size_t row = 0; row < block.rows(); ++row) {
    const auto [first, last] = block.run(row);
    Lanes::Numbers number = Lanes::Numbers::from(block.first_number(row));
    std::uint32_t place = first;
    for (; place + at_once < last; place += at_once, number += at_once) five.insert(key(place, number));
    five.insert(key(place, number).first(last - place));
  }
  five.join_lanes();
  return five.lane(0);
}

/// The same for four points that share a block, each in a lane of its own.
std::array<QuickSearch::Keys, 4> QuickSearch::nearest(const Block& block, const FourPoints& points) const {
  std::array<float, 4> x, y;
  for (std::size_t i = 0; i < 4; ++i) {
    x[i] = static_cast<float>(points[i].x);
    y[i] = static_cast<float>(points[i].y);
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
  return {five.lane(0), five.lane(1), five.lane(2), five.lane(3)};
}

void QuickSearch::values(const SiteIndex& index, std::span<const double> Xa, std::span<const double> Ya,
                         double farthest, std::span<double> results) const {
  SiteIndex::Interior cell;  // where the points before lie
  for (std::size_t i = 0; i < results.size(); i += 4) {
    const std::size_t count = std::min<std::size_t>(4, results.size() - i);
    FourPoints points;
    bool in_cell = true;
    for (std::size_t k = 0; k < 4; ++k) {
      const std::size_t at = i + std::min(k, count - 1);
      points[k] = {{Xa[at], Ya[at]}, cell.home};
      in_cell &= cell.contains(points[k]);
    }
    if (!in_cell) {
      for (Point& point : points) point.home = index.home(point.x, point.y);
      cell = index.interior(points[3].home);
    }
    const std::array<double, 4> four = values(index, points, farthest);
    std::copy_n(four.begin(), count, results.begin() + static_cast<std::ptrdiff_t>(i));
  }
}

std::array<double, 4> QuickSearch::values(const SiteIndex& index, const FourPoints& points,
                                          double farthest) const {
  SiteIndex::Home low = points[0].home, high = low;
  bool inside = !sites_.empty();
  for (const Point& point : points) {
    inside &= index.contains(point.home);
    low.x = std::min(low.x, point.home.x), high.x = std::max(high.x, point.home.x);
    low.y = std::min(low.y, point.home.y), high.y = std::max(high.y, point.home.y);
  }
  std::array<double, 4> results{unsure, unsure, unsure, unsure};
  const bool one_home = low.x == high.x && low.y == high.y;
  if (inside && high.x - low.x <= 2 && high.y - low.y <= 2) {
    const Block block(*this, low, high);
    // A block round more than one home has cells that a point's own ring lacks; they are at least so far off.
    const double nearer = one_home ? farthest : std::min(farthest, 0.999 * index.GridCell());
    if (block.fits()) {
      const std::array<Keys, 4> keys = nearest(block, points);
      for (std::size_t k = 0; k < 4; ++k) results[k] = weigh(index, block, keys[k], points[k], nearer);
      if (one_home) return results;
    }
  }
  for (std::size_t k = 0; k < 4; ++k)
    if (std::isnan(results[k])) results[k] = value(index, points[k], farthest);
  return results;
}

/// How far a key can lie from its squared distance: coordinates, differences, squares and sum are rounded,
/// and the lowest bits hold a number instead.
double QuickSearch::error_of_key(double distance) const {
  const double e = coordinate_error_;
  return 6 * distance * e + 9 * e * e + distance * distance * 0x1p-13;
}

/// Whether the search, which holds the farthest distance against the square of its reach, looks at the ring
/// round the home cell and at no other. The reach starts between 0 and 1/2 and then grows by a cell.
bool QuickSearch::ends_behind_one_ring(const SiteIndex& index, const Point& point, double D4) {
  const double cell = index.GridCell();
  if (D4 > 0.25 && D4 <= cell * cell) return true;
  const double reach = index.to_line(point.x, point.y), next = reach + cell;
  return D4 > reach * reach && D4 <= next * next;
}

double QuickSearch::weigh(const SiteIndex& index, const Block& block, const Keys& keys, const Point& point,
                          double farthest) const {
  if (!(keys[3] < FiveSmallest::nothing)) return unsure;
  std::array<double, 4> z, D;
  for (std::size_t slot = 0; slot < 4; ++slot) {
    const Site& site = sites_[block.place(keys[slot])];
    D[slot] = distance(point, site);
    z[slot] = site.z;
  }
  // The keys may rank the winners wrongly: the last of them need not be the farthest.
  const double D4 = std::max({D[0], D[1], D[2], D[3]});
  if (!(keys[4] > D4 * D4 + error_of_key(D4))) return weigh_first_met(index, keys, point, farthest);
  if (!(D4 < farthest)) return unsure;
  if (!(D[0] < D[1] && D[1] < D[2] && D[2] < D[3])) put_in_order(index, block, keys, point, D, z);
  return ends_behind_one_ring(index, point, D4) ? mean_of(D, z) : unsure;
}

/// Sorts the winners by their distance, and equal ones as the search meets them: by their cells, and within a
/// cell by their place.
void QuickSearch::put_in_order(const SiteIndex& index, const Block& block, const Keys& keys,
                               const Point& point, std::array<double, 4>& D, std::array<double, 4>& z) const {
  std::array<std::size_t, 4> met, rank{};
  for (std::size_t slot = 0; slot < 4; ++slot) {
    const std::size_t place = block.place(keys[slot]);
    const std::int64_t cy = block.cell_y(keys[slot]);
    const SiteIndex::Run middle = index.run(point.home.x, point.home.x, cy);
    const std::int64_t dx = (place >= middle.last) - (place < middle.first);
    met[slot] = Ring::turn(dx, cy - point.home.y) * sites_.size() + place;
  }
  for (std::size_t a = 0; a < 4; ++a)
    for (std::size_t b = a + 1; b < 4; ++b) {
      const bool b_first = D[b] < D[a] || (D[b] == D[a] && met[b] < met[a]);
      ++rank[b_first ? a : b];
    }
  const auto by_slot = D, values = z;
  for (std::size_t slot = 0; slot < 4; ++slot) {
    D[rank[slot]] = by_slot[slot];
    z[rank[slot]] = values[slot];
  }
}

/// Of equal distances the search keeps the sites that it meets first. Looks in its order, once more, at the
/// sites that are hardly farther than the fourth.
double QuickSearch::weigh_first_met(const SiteIndex& index, const Keys& keys, const Point& point,
                                    double farthest) const {
  const double fourth = keys[3];
  const double bound = fourth + 2 * error_of_key(std::sqrt(fourth) + 8 * coordinate_error_);
  NearestFour nearest(infinity, infinity, 0);
  const auto insert_cell = [&](std::int64_t cx, std::int64_t cy) {
    const auto [first, last] = index.run(cx, cx, cy);
    for (std::uint32_t place = first; place < last; ++place)
      if (square_of_distance(point, sites_[place]) <= bound)
        nearest.insert(static_cast<std::int32_t>(place), distance(point, sites_[place]));
  };
  insert_cell(point.home.x, point.home.y);
  Ring{point.home.x, point.home.y, 1}.visit(index.side(), insert_cell);

  const double D4 = nearest.farthest();
  if (!(D4 < farthest) || !ends_behind_one_ring(index, point, D4)) return unsure;
  std::array<double, 4> z, D;
  for (std::size_t slot = 0; slot < 4; ++slot) {
    D[slot] = nearest.distance(slot);
    z[slot] = sites_[static_cast<std::size_t>(nearest.site(slot))].z;
  }
  return mean_of(D, z);
}

double QuickSearch::mean_of(const std::array<double, 4>& D, const std::array<double, 4>& z) {
  if (D[0] < on_a_site) return z[0];
  double weighted = 0, weights = 0;
  for (std::size_t slot = 0; slot < 4; ++slot) {
    const double square = D[slot] * D[slot];
    weighted += z[slot] / square;
    weights += 1 / square;
  }
  const double mean = weighted / weights;
  return std::isfinite(mean) ? mean : unsure;
}

}  // namespace mirolen
