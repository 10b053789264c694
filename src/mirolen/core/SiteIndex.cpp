#include "mirolen/core/SiteIndex.h"

#include <numeric>

#include "mirolen/core/numbers.h"
#include "mirolen/core/quick_home.h"

namespace mirolen {

void SiteIndex::clear() {
  GridCell_ = 0;
  HalfCells_ = 0;
  side_ = 0;
  first_.clear();
  sites_.clear();
}

void SiteIndex::build(double GridCell, std::int16_t HalfCells, std::span<const Position> sites) {
  GridCell_ = GridCell;
  HalfCells_ = HalfCells;
  side_ = 2 * HalfCells + 1;
  try {
    sort(sites);
  } catch (...) {
    clear();
    throw;
  }
}

void SiteIndex::sort(std::span<const Position> sites) {
  const std::vector<std::uint32_t> cells = cells_of(sites);
  // While the sites go to their places, first_ tells one cell later where the next one goes.
  first_.assign(static_cast<std::size_t>(side_ * side_) + 2, 0);
  for (const std::uint32_t cell : cells) ++first_[cell + 2];
  std::partial_sum(first_.begin(), first_.end(), first_.begin());
  sites_.resize(sites.size());
  for (std::size_t site = 0; site < cells.size(); ++site)
    sites_[first_[cells[site] + 1]++] = static_cast<std::int16_t>(site);
}

std::vector<std::uint32_t> SiteIndex::cells_of(std::span<const Position> sites) const {
  std::vector<std::uint32_t> cells(sites.size());
  const auto side = static_cast<std::uint32_t>(side_);
  bool sure = true;
  for (std::size_t i = 0; i < sites.size(); ++i) {
    const QuickHome home = quick_home(*this, sites[i]);
    sure &= home.sure;
    cells[i] = static_cast<std::uint32_t>(home.y) * side + static_cast<std::uint32_t>(home.x);
  }
  return sure ? cells : cells_with_care(sites);
}

std::vector<std::uint32_t> SiteIndex::cells_with_care(std::span<const Position> sites) const {
  std::vector<std::uint32_t> cells;
  cells.reserve(sites.size());
  for (const Position& site : sites) {
    const std::int16_t cx = to_int16(site.x / GridCell_ + HalfCells_);
    const std::int16_t cy = to_int16(site.y / GridCell_ + HalfCells_);
    if (!contains(cx, cy)) throw SubscriptOutOfRange();
    cells.push_back(static_cast<std::uint32_t>(place(cx, cy)));
  }
  return cells;
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
  const Run run = this->run(cx, cy);
  return {sites_.data() + run.first, run.last - run.first};
}

}  // namespace mirolen
