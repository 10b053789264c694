#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

#if defined(__SSE2__) || defined(_M_X64)
#include <emmintrin.h>
#define MIROLEN_SSE_PAIR
#endif

namespace mirolen {

/// The x and the y of something, worked on side by side. `lesser` and `greater` give their second argument
/// where either is NaN.
class PlainPair {
 public:
  static PlainPair all(double value) { return {{value, value}}; }
  static PlainPair of(double x, double y) { return {{x, y}}; }

  friend PlainPair operator+(PlainPair a, PlainPair b) { return {{a.v[0] + b.v[0], a.v[1] + b.v[1]}}; }
  friend PlainPair operator/(PlainPair a, PlainPair b) { return {{a.v[0] / b.v[0], a.v[1] / b.v[1]}}; }
  friend PlainPair lesser(PlainPair a, PlainPair b) {
    return {{a.v[0] < b.v[0] ? a.v[0] : b.v[0], a.v[1] < b.v[1] ? a.v[1] : b.v[1]}};
  }
  friend PlainPair greater(PlainPair a, PlainPair b) {
    return {{a.v[0] > b.v[0] ? a.v[0] : b.v[0], a.v[1] > b.v[1] ? a.v[1] : b.v[1]}};
  }

  /// Both without their fractions, and whether both had one. They fit 32 bits.
  struct Cut {
    std::int32_t x, y;
    bool fractions;
  };
  Cut cut() const {
    const auto x = static_cast<std::int32_t>(v[0]), y = static_cast<std::int32_t>(v[1]);
    return {x, y, static_cast<double>(x) != v[0] && static_cast<double>(y) != v[1]};
  }

  std::array<double, 2> v;
};

#ifdef MIROLEN_SSE_PAIR
/// PlainPair in one register.
class SsePair {
 public:
  static SsePair all(double value) { return {_mm_set1_pd(value)}; }
  static SsePair of(double x, double y) { return {_mm_set_pd(y, x)}; }

  friend SsePair operator+(SsePair a, SsePair b) { return {_mm_add_pd(a.v, b.v)}; }
  friend SsePair operator/(SsePair a, SsePair b) { return {_mm_div_pd(a.v, b.v)}; }
  friend SsePair lesser(SsePair a, SsePair b) { return {_mm_min_pd(a.v, b.v)}; }
  friend SsePair greater(SsePair a, SsePair b) { return {_mm_max_pd(a.v, b.v)}; }

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
