#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

namespace mirolen {

/// The four nearest sites so far, nearest first. A distance that has found its slot is replaced by the marker
/// for the slots behind it; where the marker lies below the slots' first distance, the first site fills all
/// four. (contract 53)
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

}  // namespace mirolen
