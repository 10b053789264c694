#include <array>
#include <cmath>

#include "mirolen/core/wafer.h"

namespace mirolen {
namespace {

constexpr double on_a_site = 0.0001;
constexpr double fewest_sites = 4;
constexpr double sites_worth_an_index = 10;
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
    if (!SiteCells.contains(cx, cy)) return;
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
    const std::int64_t last_ring = std::abs(x0) + std::abs(y0) + SiteCells.side();
    insert_cell(x0, y0);

    // The reach starts as a part of a cell and grows by millimetres, and its square is held against a
    // distance: that is the measure that decides how many rings are looked at.
    const double ex = to_nearest_line(cx);
    const double ey = to_nearest_line(cy);
    double reach = ex < ey ? ex : ey;
    for (std::int64_t ring = 1; ring <= last_ring && nearest.farthest() > reach * reach; ++ring) {
      reach += GridCell;
      std::int64_t x = x0 - ring;
      std::int64_t y = y0 + ring;
      for (std::int64_t dx = 1, dy = 0, side = 0; side < 4; ++side) {
        for (std::int64_t step = 0; step < 2 * ring; ++step, x += dx, y += dy) insert_cell(x, y);
        const std::int64_t turned = -dx;
        dx = dy;
        dy = turned;
      }
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
