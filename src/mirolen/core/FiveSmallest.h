#pragma once

#include <array>
#include <cstddef>
#include <limits>

#include "mirolen/core/Lanes.h"

namespace mirolen {

/// Five keys, smallest first.
struct FiveKeys {
  alignas(16) std::array<float, 4> nearest;
  float fifth;
};

/// The five smallest keys that each lane has met, smallest first. A key is a squared distance whose lowest
/// bits carry the candidate's number. Of a lane that met NaN alone they are NaN.
class FiveSmallest {
 public:
  /// The key of a place that no candidate has taken.
  static constexpr float nothing = std::numeric_limits<float>::max();

  void insert(Lanes key) {
    pass(a_, key);
    pass(b_, key);
    pass(c_, key);
    pass(d_, key);
    e_ = lesser(e_, key);
  }

  /// Four keys at once, for two thirds of the price.
  void insert(Lanes p, Lanes q, Lanes r, Lanes s) {
    order(p, q);
    order(r, s);
    order(p, r);
    order(q, s);
    order(q, r);
    b_ = lesser(s, b_), c_ = lesser(r, c_), d_ = lesser(q, d_), e_ = lesser(p, e_);
    order_hill();
  }

  /// Makes them the five smallest of all lanes together.
  void join_lanes() {
    join([](Lanes lanes) { return lanes.halves_swapped(); });
    join([](Lanes lanes) { return lanes.neighbours_swapped(); });
  }

  /// Those of the first lane, and of each.
  FiveKeys first_lane() const { return lanes()[0]; }
  std::array<FiveKeys, 4> lanes() const {
    const std::array<Lanes, 4> nearest = Lanes::transposed({a_, b_, c_, d_});
    std::array<FiveKeys, 4> result;
    for (std::size_t i = 0; i < 4; ++i) {
      nearest[i].store(result[i].nearest.data());
      result[i].fifth = e_[i];
    }
    return result;
  }

 private:
  /// Keeps the lesser of a place's key and this one, and passes the greater on.
  static void pass(Lanes& place, Lanes& key) {
    const Lanes more = greater(key, place);
    place = lesser(place, key);
    key = more;
  }
  /// Puts two keys in order.
  static void order(Lanes& low, Lanes& high) { pass(low, high); }

  /// Of two ascending rows, one of them reversed, the lesser of each pair are the five smallest of both.
  template <class Other>
  void join(Other other) {
    const Lanes a = other(a_), b = other(b_), c = other(c_), d = other(d_), e = other(e_);
    a_ = lesser(a_, e), b_ = lesser(b_, d), c_ = lesser(c_, c), d_ = lesser(d_, b), e_ = lesser(e_, a);
    order_hill();
  }
  /// Puts keys in order that rise and then fall: the least is at an end, and four exchanges order the others.
  void order_hill() {
    order(a_, e_);
    order(e_, c_);
    order(b_, d_);
    order(e_, b_);
    order(c_, d_);
    const Lanes last = d_;
    d_ = c_, c_ = b_, b_ = e_, e_ = last;
  }

  // Not an array, so that they stay in registers.
  Lanes a_ = Lanes::all(nothing), b_ = a_, c_ = a_, d_ = a_, e_ = a_;
};

}  // namespace mirolen
