#pragma once

#include "mirolen/core/PlainLanes.h"

#if defined(__has_builtin)
#if __has_builtin(__builtin_shufflevector)
#define MIROLEN_VECTOR_LANES
#endif
#endif

#ifdef MIROLEN_VECTOR_LANES
#include <cstring>

namespace mirolen {

/// PlainLanes as a vector of the compiler, for whatever registers the processor has.
class VectorLanes {
  using Floats = float __attribute__((vector_size(16)));
  using Integers = std::int32_t __attribute__((vector_size(16)));

 public:
  class Numbers {
   public:
    static constexpr std::int32_t most = PlainLanes::Numbers::most;

    static Numbers all(std::int32_t number) { return {Integers{number, number, number, number}}; }
    static Numbers from(std::int32_t number) { return {all(number).v + Integers{0, 1, 2, 3}}; }
    Numbers& operator+=(std::int32_t step) {
      v += step;
      return *this;
    }

    Integers v;
  };

  static VectorLanes all(float value) { return {Floats{value, value, value, value}}; }
  static VectorLanes load(const float* from) {
    VectorLanes result;
    std::memcpy(&result.v, from, sizeof result.v);
    return result;
  }
  void store(float* to) const { std::memcpy(to, &v, sizeof v); }
  float operator[](std::size_t lane) const { return v[lane]; }

  friend VectorLanes operator+(VectorLanes a, VectorLanes b) { return {a.v + b.v}; }
  friend VectorLanes operator-(VectorLanes a, VectorLanes b) { return {a.v - b.v}; }
  friend VectorLanes operator*(VectorLanes a, VectorLanes b) { return {a.v * b.v}; }
  friend VectorLanes lesser(VectorLanes a, VectorLanes b) { return {a.v < b.v ? a.v : b.v}; }
  friend VectorLanes greater(VectorLanes a, VectorLanes b) { return {a.v > b.v ? a.v : b.v}; }

  VectorLanes numbered(Numbers numbers) const {
    return {reinterpret_cast<Floats>((reinterpret_cast<Integers>(v) & ~Numbers::most) | numbers.v)};
  }
  VectorLanes first(std::uint32_t few, float otherwise) const {
    const Integers behind = Integers{1, 2, 3, 4} > static_cast<std::int32_t>(few);
    return {behind ? all(otherwise).v : v};
  }
  unsigned at_most(float bound) const {
    const Integers bits = (v <= all(bound).v) & Integers{1, 2, 4, 8};
    return static_cast<unsigned>(bits[0] | bits[1] | bits[2] | bits[3]);
  }
  VectorLanes halves_swapped() const { return {__builtin_shufflevector(v, v, 2, 3, 0, 1)}; }
  VectorLanes neighbours_swapped() const { return {__builtin_shufflevector(v, v, 1, 0, 3, 2)}; }
  static std::array<VectorLanes, 4> transposed(const std::array<VectorLanes, 4>& rows) {
    const auto& [a, b, c, d] = rows;
    const Floats low_ab = __builtin_shufflevector(a.v, b.v, 0, 4, 1, 5),
                 high_ab = __builtin_shufflevector(a.v, b.v, 2, 6, 3, 7),
                 low_cd = __builtin_shufflevector(c.v, d.v, 0, 4, 1, 5),
                 high_cd = __builtin_shufflevector(c.v, d.v, 2, 6, 3, 7);
    return {VectorLanes{__builtin_shufflevector(low_ab, low_cd, 0, 1, 4, 5)},
            VectorLanes{__builtin_shufflevector(low_ab, low_cd, 2, 3, 6, 7)},
            VectorLanes{__builtin_shufflevector(high_ab, high_cd, 0, 1, 4, 5)},
            VectorLanes{__builtin_shufflevector(high_ab, high_cd, 2, 3, 6, 7)}};
  }

  Floats v;
};

}  // namespace mirolen
#endif
