#pragma once

#include <array>

#include "mirolen/core/Block.h"
#include "mirolen/core/Pair.h"
#include "mirolen/core/QuickSearch.h"
#include "mirolen/core/numbers.h"

namespace mirolen {

/// The four candidates with the smallest keys: their distances and their values.
class QuickSearch::Winners {
 public:
  Winners(const Block& block, const std::array<float, 4>& keys, const Position& point) {
    const Site &a = block.site(keys[0]), &b = block.site(keys[1]);
    const Site &c = block.site(keys[2]), &d = block.site(keys[3]);
    D12_ = distances(point, a, b), D34_ = distances(point, c, d);
    z12_ = Pair::of(a.z, b.z), z34_ = Pair::of(c.z, d.z);
  }
  Winners(const std::array<double, 4>& D, const std::array<double, 4>& z)
      : D12_(Pair::of(D[0], D[1])),
        D34_(Pair::of(D[2], D[3])),
        z12_(Pair::of(z[0], z[1])),
        z34_(Pair::of(z[2], z[3])) {}

  double D4() const { return D34_.second(); }
  bool ascend() const {
    return D12_.first() < D12_.second() && D12_.second() < D34_.first() && D34_.first() < D34_.second();
  }

  /// `unsure` where it leaves the numbers.
  double mean() const {
    if (D12_.first() < on_a_site) return z12_.first();
    const Pair square12 = D12_ * D12_, square34 = D34_ * D34_;
    const double mean =
        sum(z12_ / square12, z34_ / square34) / sum(Pair::all(1) / square12, Pair::all(1) / square34);
    return is_finite(mean) ? mean : unsure;
  }

 private:
  /// Step by step as `distance`.
  static Pair distances(const Position& point, const Position& a, const Position& b) {
    const Pair dx = Pair::all(point.x) - Pair::of(a.x, b.x), dy = Pair::all(point.y) - Pair::of(a.y, b.y);
    return sqrt(dx * dx + dy * dy);
  }
  /// In the order of the search, which starts at 0.
  static double sum(Pair a, Pair b) { return 0 + a.first() + a.second() + b.first() + b.second(); }

  Pair D12_, D34_, z12_, z34_;
};

}  // namespace mirolen
