#pragma once

#include <algorithm>
#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <utility>

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

}  // namespace mirolen
