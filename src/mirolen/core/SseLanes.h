#pragma once

#include "mirolen/core/PlainLanes.h"
#include "mirolen/core/sse.h"

#ifdef MIROLEN_SSE

namespace mirolen {

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

}  // namespace mirolen
#endif
