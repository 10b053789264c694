#include "mirolen/core/DecimalSeparator.h"

#include <algorithm>
#include <array>
#include <atomic>
#include <cstdio>

namespace mirolen {
namespace {

/// A text so short that it is read and written whole, by wafers on any thread.
using Separator = std::array<char, 8>;

std::atomic<Separator> separator{Separator{"."}};

/// As a number shows it: `localeconv` would hand out what all threads write to.
Separator separator_in_force() {
  std::array<char, 1 + sizeof(Separator)> zero{};
  const auto length = static_cast<std::size_t>(std::snprintf(zero.data(), zero.size(), "%#.0f", 0.0));
  Separator found{"."};
  if (length < zero.size()) std::copy(zero.begin() + 1, zero.end(), found.begin());
  return found;
}

}  // namespace

std::string decimal_separator() { return separator.load(std::memory_order_relaxed).data(); }

DecimalSeparatorFromLocale::DecimalSeparatorFromLocale() {
  separator.store(separator_in_force(), std::memory_order_relaxed);
}

}  // namespace mirolen
