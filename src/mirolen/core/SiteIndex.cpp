#include "mirolen/core/SiteIndex.h"

#include "mirolen/core/numbers.h"

namespace mirolen {

SiteIndex::SiteIndex(double GridCell, std::int16_t HalfCells, std::span<const Position> sites)
    : GridCell_(GridCell),
      HalfCells_(HalfCells),
      side_(2 * HalfCells + 1),
      first_(static_cast<std::size_t>(side_ * side_) + 1),
      sites_(sites.size()) {
  std::vector<std::uint32_t> cells;
  cells.reserve(sites.size());
  for (const Position& site : sites) {
    const std::int16_t cx = to_int16(site.x / GridCell + HalfCells);
    const std::int16_t cy = to_int16(site.y / GridCell + HalfCells);
    if (!contains(cx, cy)) throw SubscriptOutOfRange();
    cells.push_back(static_cast<std::uint32_t>(place(cx, cy)));
    ++first_[cells.back() + 1];
  }
  for (std::size_t i = 1; i < first_.size(); ++i) first_[i] += first_[i - 1];

  std::vector<std::uint32_t> next(first_.begin(), first_.end() - 1);
  for (std::size_t site = 0; site < cells.size(); ++site)
    sites_[next[cells[site]]++] = static_cast<std::int16_t>(site);
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
