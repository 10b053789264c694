#include "mirolen/core/SiteIndex.h"

#include <algorithm>
#include <numeric>

#include "mirolen/core/numbers.h"

namespace mirolen {
namespace {

/// nearest_whole of a number from -1/2 up.
std::uint32_t nearest_index(double value) {
  const auto cut = static_cast<std::int32_t>(value);
  const double rest = value - cut;
  return static_cast<std::uint32_t>(cut + ((rest > 0.5) | ((rest == 0.5) & (cut & 1))));
}

}  // namespace

SiteIndex::SiteIndex(double GridCell, std::int16_t HalfCells, std::span<const Position> sites)
    : GridCell_(GridCell),
      HalfCells_(HalfCells),
      side_(2 * HalfCells + 1),
      first_(static_cast<std::size_t>(side_ * side_) + 2),
      sites_(sites.size()) {
  const std::vector<std::uint32_t> cells = cells_of(sites);
  // While the sites go to their places, first_ tells one cell later where the next one goes.
  for (const std::uint32_t cell : cells) ++first_[cell + 2];
  std::partial_sum(first_.begin(), first_.end(), first_.begin());
  for (std::size_t site = 0; site < cells.size(); ++site)
    sites_[first_[cells[site] + 1]++] = static_cast<std::int16_t>(site);
}

std::vector<std::uint32_t> SiteIndex::cells_of(std::span<const Position> sites) const {
  // What rounds half to even lies within these just if its cell does.
  const double low = -0.5, high = static_cast<double>(side_) - 0.5;
  const double cell = GridCell_, middle = HalfCells_;
  const auto side = static_cast<std::uint32_t>(side_);
  std::vector<std::uint32_t> cells(sites.size());
  bool inside = true;
  for (std::size_t i = 0; i < sites.size(); ++i) {
    const double x = sites[i].x / cell + middle, y = sites[i].y / cell + middle;
    inside &= (x >= low) & (x <= high) & (y >= low) & (y <= high);
    const std::uint32_t cx = nearest_index(std::max(low, std::min(high, x))),
                        cy = nearest_index(std::max(low, std::min(high, y)));
    cells[i] = cy * side + cx;
  }
  if (!inside) refuse_one_outside(sites);
  return cells;
}

void SiteIndex::refuse_one_outside(std::span<const Position> sites) const {
  for (const Position& site : sites) {
    const std::int16_t cx = to_int16(site.x / GridCell_ + HalfCells_);
    const std::int16_t cy = to_int16(site.y / GridCell_ + HalfCells_);
    if (!contains(cx, cy)) throw SubscriptOutOfRange();
  }
}

SiteIndex::Interior SiteIndex::interior(const Home& home) const {
  if (!home.countable) return {};
  constexpr double half = 0.5 - 1e-9;  // of a cell; the rest is left to rounding
  const double x = static_cast<double>(home.x - HalfCells_), y = static_cast<double>(home.y - HalfCells_);
  return {home, (x - half) * GridCell_, (x + half) * GridCell_, (y - half) * GridCell_,
          (y + half) * GridCell_};
}

double SiteIndex::to_line(double Xa, double Ya) const {
  const auto along = [this](double millimetres) {
    const double cells = millimetres / GridCell_;
    const double rest = cells - Int(cells);
    return rest < 0.5 ? rest : 1 - rest;
  };
  const double ex = along(Xa), ey = along(Ya);
  return ex < ey ? ex : ey;
}

std::span<const std::int16_t> SiteIndex::cell(std::int64_t cx, std::int64_t cy) const {
  const Run run = this->run(cx, cx, cy);
  return {sites_.data() + run.first, run.last - run.first};
}

}  // namespace mirolen
