#include <algorithm>
#include <array>
#include <cmath>

#include "mirolen/core/wafer.h"

namespace mirolen {
namespace {

constexpr double on_a_site = 0.0001;
constexpr double fewest_sites = 4;
constexpr double largest_cell_number = 32767;

/// The four nearest sites so far, nearest first. A distance that has found its slot is replaced by the marker
/// for the slots behind it; where the marker lies below the slots' first distance, the first site fills all
/// four.
class NearestFour {
 public:
  NearestFour(double first_distance, double marker, std::int32_t first_site) : marker_(marker) {
    distance_.fill(first_distance);
    site_.fill(first_site);
  }

  void insert(std::int32_t site, double d) {
    for (std::size_t slot = 0; slot < 4; ++slot) {
      if (!(d < distance_[slot])) continue;
      for (std::size_t i = 3; i > slot; --i) {
        distance_[i] = distance_[i - 1];
        site_[i] = site_[i - 1];
      }
      distance_[slot] = d;
      site_[slot] = site;
      d = marker_;
    }
  }

  double nearest() const { return distance_[0]; }
  double farthest() const { return distance_[3]; }
  std::int32_t site(std::size_t slot) const { return site_[slot]; }
  double distance(std::size_t slot) const { return distance_[slot]; }

 private:
  double marker_;
  std::array<double, 4> distance_;
  std::array<std::int32_t, 4> site_;
};

double distance(double Xa, double Ya, double x, double y) {
  return std::sqrt((Xa - x) * (Xa - x) + (Ya - y) * (Ya - y));
}

/// The value for the four slots, given the value of a site by its number.
template <class ValueOf>
double value_from(const NearestFour& nearest, ValueOf value_of) {
  if (nearest.nearest() < on_a_site) return value_of(nearest.site(0));
  double weighted = 0;
  double weights = 0;
  for (std::size_t slot = 0; slot < 4; ++slot) {
    const double square = checked(nearest.distance(slot) * nearest.distance(slot));
    weighted = checked(weighted + divide(value_of(nearest.site(slot)), square));
    weights = checked(weights + 1 / square);
  }
  return divide(weighted, weights);
}

/// Distance to the nearest cell line along one axis, in cells.
double to_nearest_line(double cells) {
  const double rest = cells - Int(cells);
  return rest < 0.5 ? rest : 1 - rest;
}

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

}  // namespace

double wafer::Interpolation(double Xa, double Ya) const {
  try {
    if (Nop < fewest_sites || !std::isfinite(Xa) || !std::isfinite(Ya)) return 0;
    if (Nop < sites_worth_an_index) return Interpolation_Einfach(Xa, Ya);
    return mean_of_near_sites(Xa, Ya);
  } catch (const RunTimeError&) {
    return 0;
  }
}

double wafer::mean_of_near_sites(double Xa, double Ya) const {
  const double R = test_diam / 2;
  const double sentinel = 9 * R * R;
  NearestFour nearest(std::isfinite(sentinel) ? sentinel : 0, 4 * WaferOrigRad, 0);
  const auto insert_cell = [&](std::int64_t cx, std::int64_t cy) {
    for (const std::int16_t site : SiteCells.cell(cx, cy)) {
      const Position& at = GridPos[static_cast<std::size_t>(site)];
      nearest.insert(site, distance(Xa, Ya, at.x, at.y));
    }
  };

  const double cx = Xa / GridCell;
  const double cy = Ya / GridCell;
  const double homeX = round_half_even(cx + HalfCells);
  const double homeY = round_half_even(cy + HalfCells);
  const bool reachable = std::abs(homeX) <= largest_cell_number && std::abs(homeY) <= largest_cell_number;
  if (GridCell != 0 && reachable && SiteCells.sites() <= GridVal.size()) {
    const auto x0 = static_cast<std::int64_t>(homeX);
    const auto y0 = static_cast<std::int64_t>(homeY);
    const Ring::Bounds bounds(x0, y0, SiteCells.side());
    if (SiteCells.contains(x0, y0)) insert_cell(x0, y0);

    // The reach starts as a part of a cell and grows by millimetres, and its square is held against a
    // distance: that is the measure that decides how many rings are looked at.
    const double ex = to_nearest_line(cx);
    const double ey = to_nearest_line(cy);
    double reach = ex < ey ? ex : ey;
    for (std::int64_t ring = 1; ring <= bounds.last && nearest.farthest() > reach * reach; ++ring) {
      reach += GridCell;
      if (ring >= bounds.first) Ring{x0, y0, ring}.visit(SiteCells.side(), insert_cell);
    }
  }
  return value_from(nearest, [&](std::int32_t site) { return value_of(site + 1); });
}

double wafer::Interpolation_Einfach(double Xa, double Ya) const {
  if (Nop < fewest_sites) return 0;
  const double R = WafDiam / 2;
  const std::int16_t n = to_int16(Nop);
  NearestFour nearest(3 * R, 4 * R, 0);
  for (std::int32_t site = 1; site <= n; ++site) {
    const Position& at = position_of(site);
    nearest.insert(site, checked(distance(Xa, Ya, at.x, at.y)));
  }
  return value_from(nearest, [&](std::int32_t site) { return value_of(site); });
}

}  // namespace mirolen
