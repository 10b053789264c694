#include "mirolen/core/Array.h"

#include <algorithm>
#include <limits>

#include "mirolen/core/RunTimeError.h"

namespace mirolen {
namespace {

std::size_t length_of(std::int32_t lower, std::int32_t upper) {
  const std::int64_t length = std::int64_t{upper} - lower + 1;
  if (length < 0) throw SubscriptOutOfRange();
  return static_cast<std::size_t>(length);
}

}  // namespace

Array::Array(std::int32_t lower, std::int32_t upper) : lower_(lower), values_(length_of(lower, upper)) {}

Array::Array(std::vector<double> values, std::int32_t lower) : lower_(lower), values_(std::move(values)) {
  const std::int64_t upper = std::int64_t{lower} + static_cast<std::int64_t>(values_.size()) - 1;
  using Bound = std::numeric_limits<std::int32_t>;
  if (upper > Bound::max() || upper < Bound::min()) throw SubscriptOutOfRange();
}

double& Array::operator()(std::int32_t index) {
  if (index < LBound() || index > UBound()) throw SubscriptOutOfRange();
  return values_[static_cast<std::size_t>(std::int64_t{index} - lower_)];
}

double Array::operator()(std::int32_t index) const { return const_cast<Array&>(*this)(index); }

double ArrayView::operator()(std::int64_t index) const {
  if (!has(index)) throw SubscriptOutOfRange();
  return values_[static_cast<std::size_t>(index - lower_)];
}

std::span<const double> ArrayView::part(std::int64_t from, std::int64_t to) const {
  from = std::max(from, LBound());
  to = std::min(to, UBound());
  if (from > to) return {};
  return values_.subspan(static_cast<std::size_t>(from - lower_), static_cast<std::size_t>(to - from + 1));
}

}  // namespace mirolen
