#pragma once

#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>

#include "mirolen/core/Lanes.h"
#include "mirolen/core/QuickSearch.h"
#include "mirolen/core/quick_home.h"

namespace mirolen {

/// The cells round the homes of points that lie near each other, with all their neighbours, and the sites in
/// them: each row of cells is one run of sites. A candidate's number is made of its row and its place there.
class QuickSearch::Block {
 public:
  Block(const QuickSearch& search, const QuickHome& low, const QuickHome& high)
      : bottom_(low.y - 1), rows_(static_cast<std::size_t>(high.y - low.y + 3)) {
    fits_ = rows_ <= most_rows;
    const std::uint32_t* left = &search.first_[search.cell(low.x - 1, bottom_)];
    const std::int64_t width = high.x - low.x + 3;
    for (std::size_t row = 0; fits_ && row < rows_; ++row, left += search.stride_) {
      first_[row] = left[0];
      sites_[row] = search.sites_.data() + left[0];
      last_[row] = left[width];
      fits_ = left[width] - left[0] <= row_step;
    }
  }

  bool fits() const { return fits_; }
  std::size_t rows() const { return rows_; }
  SiteIndex::Run run(std::size_t row) const { return {first_[row], last_[row]}; }
  static std::int32_t first_number(std::size_t row) { return static_cast<std::int32_t>(row * row_step); }
  const Site& site(float key) const {
    const std::uint32_t number = number_of(key);
    return sites_[number / row_step][number % row_step];
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
  std::array<std::uint32_t, most_rows> first_, last_;
  std::array<const Site*, most_rows> sites_;
};

}  // namespace mirolen
