#pragma once

#include <algorithm>
#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <utility>

#if defined(__SSE2__) || defined(_M_X64)
#include <emmintrin.h>
#define MIROLEN_SSE_LANES
#endif

namespace mirolen {

/// Four single-precision numbers worked on side by side, in plain loops. `lesser` and `greater` give their
/// second argument where either is NaN.
class PlainLanes {
 public:
  /// Whole numbers, one a lane, from 0 to `most`, small enough for the lowest bits of a lane.
  class Numbers {
   public:
    static constexpr std::int32_t most = 0x1FF;

    static Numbers all(std::int32_t number) { return {{number, number, number, number}}; }
    /// number, number + 1, ...
    static Numbers from(std::int32_t number) { return {{number, number + 1, number + 2, number + 3}}; }
    Numbers& operator+=(std::int32_t step) {
      for (std::int32_t& lane : v) lane += step;
      return *this;
    }

    std::array<std::int32_t, 4> v;
  };

  static PlainLanes all(float value) { return {{value, value, value, value}}; }
  static PlainLanes load(const float* from) { return {{from[0], from[1], from[2], from[3]}}; }
  void store(float* to) const { std::copy(v.begin(), v.end(), to); }
  float operator[](std::size_t lane) const { return v[lane]; }

  friend PlainLanes operator+(PlainLanes a, PlainLanes b) {
    return each(a, b, [](float x, float y) { return x + y; });
  }
  friend PlainLanes operator-(PlainLanes a, PlainLanes b) {
    return each(a, b, [](float x, float y) { return x - y; });
  }
  friend PlainLanes operator*(PlainLanes a, PlainLanes b) {
    return each(a, b, [](float x, float y) { return x * y; });
  }
  friend PlainLanes lesser(PlainLanes a, PlainLanes b) {
    return each(a, b, [](float x, float y) { return x < y ? x : y; });
  }
  friend PlainLanes greater(PlainLanes a, PlainLanes b) {
    return each(a, b, [](float x, float y) { return x > y ? x : y; });
  }

  /// The same, their lowest bits replaced by numbers.
  PlainLanes numbered(Numbers numbers) const {
    PlainLanes result = *this;
    for (std::size_t i = 0; i < result.v.size(); ++i)
      result.v[i] =
          std::bit_cast<float>((std::bit_cast<std::int32_t>(result.v[i]) & ~Numbers::most) | numbers.v[i]);
    return result;
  }
  /// The first few; otherwise in the other lanes.
  PlainLanes first(std::uint32_t few, float otherwise) const {
    PlainLanes result = *this;
    for (std::size_t i = few; i < result.v.size(); ++i) result.v[i] = otherwise;
    return result;
  }
  /// A bit for each lane, the lowest for the first one: whether it is not above the bound.
  unsigned at_most(float bound) const {
    unsigned bits = 0;
    for (std::size_t i = 0; i < v.size(); ++i) bits |= unsigned{v[i] <= bound} << i;
    return bits;
  }
  PlainLanes halves_swapped() const { return {{v[2], v[3], v[0], v[1]}}; }
  PlainLanes neighbours_swapped() const { return {{v[1], v[0], v[3], v[2]}}; }
  /// The first lanes of the four, the second ones, and so on.
  static std::array<PlainLanes, 4> transposed(std::array<PlainLanes, 4> rows) {
    for (std::size_t i = 0; i < 4; ++i)
      for (std::size_t k = 0; k < i; ++k) std::swap(rows[i].v[k], rows[k].v[i]);
    return rows;
  }

  std::array<float, 4> v;

 private:
  template <class Operation>
  static PlainLanes each(PlainLanes a, PlainLanes b, Operation operation) {
    for (std::size_t i = 0; i < a.v.size(); ++i) a.v[i] = operation(a.v[i], b.v[i]);
    return a;
  }
};

#ifdef MIROLEN_SSE_LANES
/// PlainLanes in one register.
class SseLanes {
 public:
  class Numbers {
   public:
    static constexpr std::int32_t most = PlainLanes::Numbers::most;

    static Numbers all(std::int32_t number) { return {_mm_set1_epi32(number)}; }
    static Numbers from(std::int32_t number) {
      return {_mm_add_epi32(_mm_set1_epi32(number), _mm_set_epi32(3, 2, 1, 0))};
    }
    Numbers& operator+=(std::int32_t step) {
      v = _mm_add_epi32(v, _mm_set1_epi32(step));
      return *this;
    }

    __m128i v;
  };

  static SseLanes all(float value) { return {_mm_set1_ps(value)}; }
  static SseLanes load(const float* from) { return {_mm_loadu_ps(from)}; }
  void store(float* to) const { _mm_storeu_ps(to, v); }
  float operator[](std::size_t lane) const {
    std::array<float, 4> lanes;
    store(lanes.data());
    return lanes[lane];
  }

  friend SseLanes operator+(SseLanes a, SseLanes b) { return {_mm_add_ps(a.v, b.v)}; }
  friend SseLanes operator-(SseLanes a, SseLanes b) { return {_mm_sub_ps(a.v, b.v)}; }
  friend SseLanes operator*(SseLanes a, SseLanes b) { return {_mm_mul_ps(a.v, b.v)}; }
  friend SseLanes lesser(SseLanes a, SseLanes b) { return {_mm_min_ps(a.v, b.v)}; }
  friend SseLanes greater(SseLanes a, SseLanes b) { return {_mm_max_ps(a.v, b.v)}; }

  SseLanes numbered(Numbers numbers) const {
    const __m128i high = _mm_and_si128(_mm_castps_si128(v), _mm_set1_epi32(~Numbers::most));
    return {_mm_castsi128_ps(_mm_or_si128(high, numbers.v))};
  }
  SseLanes first(std::uint32_t few, float otherwise) const {
    const __m128 behind =
        _mm_castsi128_ps(_mm_cmpgt_epi32(_mm_set_epi32(4, 3, 2, 1), _mm_set1_epi32(static_cast<int>(few))));
    return {_mm_or_ps(_mm_andnot_ps(behind, v), _mm_and_ps(behind, _mm_set1_ps(otherwise)))};
  }
  unsigned at_most(float bound) const {
    return static_cast<unsigned>(_mm_movemask_ps(_mm_cmple_ps(v, _mm_set1_ps(bound))));
  }
  SseLanes halves_swapped() const { return {_mm_shuffle_ps(v, v, _MM_SHUFFLE(1, 0, 3, 2))}; }
  SseLanes neighbours_swapped() const { return {_mm_shuffle_ps(v, v, _MM_SHUFFLE(2, 3, 0, 1))}; }
  static std::array<SseLanes, 4> transposed(std::array<SseLanes, 4> rows) {
    _MM_TRANSPOSE4_PS(rows[0].v, rows[1].v, rows[2].v, rows[3].v);
    return rows;
  }

  __m128 v;
};
using Lanes = SseLanes;
#else
using Lanes = PlainLanes;
#endif

}  // namespace mirolen
