#pragma once

#include <array>
#include <cmath>
#include <cstddef>
#include <cstdint>

#include "mirolen/core/sse.h"

namespace mirolen {

/// Two double-precision numbers worked on side by side, such as x and y. `lesser` and `greater` give their
/// second argument where either is NaN.
class PlainPair {
 public:
  static PlainPair all(double value) { return {{value, value}}; }
  static PlainPair of(double first, double second) { return {{first, second}}; }

  friend PlainPair operator+(PlainPair a, PlainPair b) { return {{a.v[0] + b.v[0], a.v[1] + b.v[1]}}; }
  friend PlainPair operator-(PlainPair a, PlainPair b) { return {{a.v[0] - b.v[0], a.v[1] - b.v[1]}}; }
  friend PlainPair operator*(PlainPair a, PlainPair b) { return {{a.v[0] * b.v[0], a.v[1] * b.v[1]}}; }
  friend PlainPair operator/(PlainPair a, PlainPair b) { return {{a.v[0] / b.v[0], a.v[1] / b.v[1]}}; }
  friend PlainPair lesser(PlainPair a, PlainPair b) {
    return {{a.v[0] < b.v[0] ? a.v[0] : b.v[0], a.v[1] < b.v[1] ? a.v[1] : b.v[1]}};
  }
  friend PlainPair greater(PlainPair a, PlainPair b) {
    return {{a.v[0] > b.v[0] ? a.v[0] : b.v[0], a.v[1] > b.v[1] ? a.v[1] : b.v[1]}};
  }

  friend PlainPair sqrt(PlainPair a) { return {{std::sqrt(a.v[0]), std::sqrt(a.v[1])}}; }
  double first() const { return v[0]; }
  double second() const { return v[1]; }

  /// Both without their fractions, and whether both had one. They fit 32 bits.
  struct Cut {
    std::int32_t first, second;
    bool fractions;
  };
  Cut cut() const {
    const auto a = static_cast<std::int32_t>(v[0]), b = static_cast<std::int32_t>(v[1]);
    return {a, b, static_cast<double>(a) != v[0] && static_cast<double>(b) != v[1]};
  }

  std::array<double, 2> v;
};

#ifdef MIROLEN_SSE
/// PlainPair in one register.
class SsePair {
 public:
  static SsePair all(double value) { return {_mm_set1_pd(value)}; }
  static SsePair of(double first, double second) { return {_mm_set_pd(second, first)}; }

  friend SsePair operator+(SsePair a, SsePair b) { return {_mm_add_pd(a.v, b.v)}; }
  friend SsePair operator-(SsePair a, SsePair b) { return {_mm_sub_pd(a.v, b.v)}; }
  friend SsePair operator*(SsePair a, SsePair b) { return {_mm_mul_pd(a.v, b.v)}; }
  friend SsePair operator/(SsePair a, SsePair b) { return {_mm_div_pd(a.v, b.v)}; }
  friend SsePair lesser(SsePair a, SsePair b) { return {_mm_min_pd(a.v, b.v)}; }
  friend SsePair greater(SsePair a, SsePair b) { return {_mm_max_pd(a.v, b.v)}; }

  friend SsePair sqrt(SsePair a) { return {_mm_sqrt_pd(a.v)}; }
  double first() const { return _mm_cvtsd_f64(v); }
  double second() const { return _mm_cvtsd_f64(_mm_unpackhi_pd(v, v)); }

  using Cut = PlainPair::Cut;
  Cut cut() const {
    const __m128i whole = _mm_cvttpd_epi32(v);
    const int without_fraction = _mm_movemask_pd(_mm_cmpeq_pd(_mm_cvtepi32_pd(whole), v));
    return {_mm_cvtsi128_si32(whole), _mm_cvtsi128_si32(_mm_shuffle_epi32(whole, 1)), without_fraction == 0};
  }

  __m128d v;
};
using Pair = SsePair;
#else
using Pair = PlainPair;
#endif

}  // namespace mirolen
