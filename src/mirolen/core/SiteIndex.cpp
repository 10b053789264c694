#include "mirolen/core/SiteIndex.h"

#include "mirolen/core/RunTimeError.h"

namespace mirolen {

SiteIndex::SiteIndex(std::int32_t side, std::span<const Cell> cells)
    : side_(side), first_(static_cast<std::size_t>(side) * side + 1), sites_(cells.size()) {
  for (const Cell& cell : cells) {
    if (!contains(cell.cx, cell.cy)) throw SubscriptOutOfRange();
    ++first_[place(cell.cx, cell.cy) + 1];
  }
  for (std::size_t i = 1; i < first_.size(); ++i) first_[i] += first_[i - 1];

  std::vector<std::uint32_t> next(first_.begin(), first_.end() - 1);
  for (std::size_t site = 0; site < cells.size(); ++site)
    sites_[next[place(cells[site].cx, cells[site].cy)]++] = static_cast<std::int16_t>(site);
}

std::span<const std::int16_t> SiteIndex::cell(std::int64_t cx, std::int64_t cy) const {
  const std::size_t at = place(cx, cy);
  return {sites_.data() + first_[at], first_[at + 1] - first_[at]};
}

}  // namespace mirolen
