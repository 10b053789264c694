#include "mirolen/core/SiteIndex.h"

#include "mirolen/core/RunTimeError.h"

namespace mirolen {

SiteIndex::SiteIndex(std::int32_t side, std::span<const Entry> entries)
    : side_(side), first_(static_cast<std::size_t>(side) * side + 1), sites_(entries.size()) {
  for (const Entry& entry : entries) {
    if (!contains(entry.cx, entry.cy)) throw SubscriptOutOfRange();
    ++first_[place(entry.cx, entry.cy) + 1];
  }
  for (std::size_t i = 1; i < first_.size(); ++i) first_[i] += first_[i - 1];

  std::vector<std::uint32_t> next(first_.begin(), first_.end() - 1);
  for (const Entry& entry : entries) sites_[next[place(entry.cx, entry.cy)]++] = entry.site;
}

std::span<const IndexedSite> SiteIndex::cell(std::int64_t cx, std::int64_t cy) const {
  const std::size_t at = place(cx, cy);
  return {sites_.data() + first_[at], first_[at + 1] - first_[at]};
}

}  // namespace mirolen
