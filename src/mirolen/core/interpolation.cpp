#include <algorithm>
#include <array>
#include <cmath>

#include "mirolen/core/NearestFour.h"
#include "mirolen/core/Ring.h"
#include "mirolen/core/wafer.h"

namespace mirolen {
namespace {

constexpr double fewest_sites = 4;

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

}  // namespace

double wafer::Interpolation(double Xa, double Ya) const {
  double value = QuickSearch::unsure;
  if (quick_) value = Quick.value(SiteCells, Xa, Ya, farthest_sure_distance());
  return is_finite(value) ? value : searched_value(Xa, Ya);
}

void wafer::Interpolation(std::span<const double> Xa, std::span<const double> Ya,
                          std::span<double> values) const {
  if (Xa.size() != values.size() || Ya.size() != values.size()) throw SubscriptOutOfRange();
  if (quick_)
    Quick.values(SiteCells, Xa, Ya, farthest_sure_distance(), values);
  else
    std::fill(values.begin(), values.end(), QuickSearch::unsure);
  for (std::size_t i = 0; i < values.size(); ++i)
    if (!is_finite(values[i])) values[i] = searched_value(Xa[i], Ya[i]);
}

/// Sites that are nearer than both find their slots by their distance alone.
double wafer::farthest_sure_distance() const { return std::min(empty_slot(), filled_slot()); }

double wafer::empty_slot() const {
  const double R = test_diam / 2;
  const double sentinel = 9 * R * R;  // contract 52
  return is_finite(sentinel) ? sentinel : 0;
}

double wafer::searched_value(double Xa, double Ya) const {
  try {
    if (Nop < fewest_sites || !is_finite(Xa) || !is_finite(Ya)) return 0;
    if (Nop < sites_worth_an_index) return Interpolation_Einfach(Xa, Ya);
    return mean_of_near_sites(Xa, Ya);
  } catch (const RunTimeError&) {
    return 0;
  }
}

double wafer::mean_of_near_sites(double Xa, double Ya) const {
  NearestFour nearest(empty_slot(), filled_slot(), 0);
  const auto insert_cell = [&](std::int64_t cx, std::int64_t cy) {
    for (const std::int16_t site : SiteCells.cell(cx, cy)) {
      const Position& at = GridPos[static_cast<std::size_t>(site)];
      nearest.insert(site, distance({Xa, Ya}, at));
    }
  };

  const SiteIndex::Home home = SiteCells.home(Xa, Ya);
  const std::size_t indexed = SiteCells.sites().size();  // 0 in a wafer that was moved away
  if (home.countable && indexed > 0 && indexed <= GridVal.size()) {
    const Ring::Bounds bounds(home.x, home.y, SiteCells.side());
    if (SiteCells.contains(home)) insert_cell(home.x, home.y);

    // The reach starts as a part of a cell and grows by millimetres, and its square is held against a
    // distance: that is the measure that decides how many rings are looked at. (contract 54)
    double reach = SiteCells.to_line(Xa, Ya);
    for (std::int64_t ring = 1; ring <= bounds.last && nearest.farthest() > reach * reach; ++ring) {
      reach += SiteCells.GridCell();
      if (ring >= bounds.first) Ring{home.x, home.y, ring}.visit(SiteCells.side(), insert_cell);
    }
  }
  return value_from(nearest, [&](std::int32_t site) { return value_of(site + 1); });  // contract 55
}

double wafer::Interpolation_Einfach(double Xa, double Ya) const {
  if (Nop < fewest_sites) return 0;
  const double R = WafDiam / 2;
  const std::int16_t n = to_int16(Nop);
  NearestFour nearest(3 * R, 4 * R, 0);
  for (std::int32_t site = 1; site <= n; ++site) {
    const Position& at = position_of(site);
    nearest.insert(site, checked(distance({Xa, Ya}, at)));
  }
  return value_from(nearest, [&](std::int32_t site) { return value_of(site); });
}

}  // namespace mirolen
