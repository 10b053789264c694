#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

namespace mirolen {

/// A one-dimensional array of Doubles that carries its lower bound, as arrays at the interface do.
/// The usual lower bound, and that of a default-constructed empty array, is 1.
class Array {
 public:
  Array() = default;
  /// Bounds as in (lower To upper), all elements 0. @throws SubscriptOutOfRange if upper < lower - 1.
  Array(std::int32_t lower, std::int32_t upper);
  /// The values with the bounds (lower To lower + size - 1). @throws SubscriptOutOfRange for an upper bound
  /// beyond 32 bits.
  explicit Array(std::vector<double> values, std::int32_t lower = 1);

  std::int32_t LBound() const { return lower_; }
  std::int32_t UBound() const {
    return static_cast<std::int32_t>(lower_ + static_cast<std::int64_t>(values_.size()) - 1);
  }

  /// @throws SubscriptOutOfRange outside the bounds.
  double& operator()(std::int32_t index);
  double operator()(std::int32_t index) const;

  /// The elements from the lower bound up, without their bounds.
  std::span<const double> values() const { return values_; }

  friend bool operator==(const Array&, const Array&) = default;

 private:
  std::int32_t lower_ = 1;
  std::vector<double> values_;
};

/// A read-only look at an Array, or at contiguous Doubles of the host, which have the lower bound 1.
/// Copies nothing: what it looks at must stay in place for the call.
class ArrayView {
 public:
  ArrayView(const Array& array) : values_(array.values()), lower_(array.LBound()) {}
  ArrayView(std::span<const double> values, std::int32_t lower = 1) : values_(values), lower_(lower) {}
  ArrayView(const std::vector<double>& values) : values_(values) {}

  std::int64_t LBound() const { return lower_; }
  std::int64_t UBound() const { return lower_ + static_cast<std::int64_t>(values_.size()) - 1; }
  bool has(std::int64_t index) const { return index >= LBound() && index <= UBound(); }

  /// @throws SubscriptOutOfRange outside the bounds.
  double operator()(std::int64_t index) const;

  /// The elements from one index to another, those of them that exist.
  std::span<const double> part(std::int64_t from, std::int64_t to) const;

 private:
  std::span<const double> values_;
  std::int64_t lower_ = 1;
};

}  // namespace mirolen
