#pragma once

#include <array>
#include <cmath>
#include <cstddef>

#include "mirolen/core/Block.h"
#include "mirolen/core/QuickSearch.h"

namespace mirolen {

/// The four nearest candidates: their distances and their values.
struct QuickSearch::Winners {
  std::array<double, 4> D, z;

  Winners() { D.fill(unsure); }
  Winners(const Block& block, const std::array<float, 4>& keys, const Position& point) {
    for (std::size_t slot = 0; slot < 4; ++slot) {
      const Site& site = block.site(keys[slot]);
      D[slot] = distance(point, site);
      z[slot] = site.z;
    }
  }

  bool ascend() const { return D[0] < D[1] && D[1] < D[2] && D[2] < D[3]; }

  double mean() const {
    if (D[0] < on_a_site) return z[0];
    double weighted = 0, weights = 0;
    for (std::size_t slot = 0; slot < 4; ++slot) {
      const double square = D[slot] * D[slot];
      weighted += z[slot] / square;
      weights += 1 / square;
    }
    const double mean = weighted / weights;
    return std::isfinite(mean) ? mean : unsure;
  }
};

}  // namespace mirolen
