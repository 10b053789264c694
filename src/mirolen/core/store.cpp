#include <algorithm>
#include <cmath>

#include "mirolen/core/translation.h"
#include "mirolen/core/wafer.h"

namespace mirolen {
namespace {

constexpr std::int32_t largest_store = 1 << 24;
constexpr double nearly_zero = 1e-15;

}  // namespace

void wafer::reset() {
  NextSite = 1;
  Nop = 0;
  FW_NUll = false;
  FW_Negativ = false;
  FirstUse = true;
  quick_ = false;
  GridPos.clear();
  GridVal.clear();
}

void wafer::SetNop(double Number) {
  refuse_unless_finite({Number}, translatable("the number of sites"));
  if (Number > largest_store) throw OutOfMemory();
  const std::int32_t n = to_int32(Number);
  if (n < 0) throw SubscriptOutOfRange();

  const auto room = static_cast<std::size_t>(n);
  GridPos.reserve(room);  // only these can fail
  GridVal.reserve(room);
  GridPos.assign(room, {});
  GridVal.assign(room, 0);
  Nop = Number;
  quick_ = false;
}

void wafer::SetGridValue(double x, double y, double Z) {
  if (NextSite > Nop) return;  // contract 20
  store_site(to_int32(NextSite), x, y, Z);
  NextSite += 1;
}

void wafer::SetGridValueD(std::int16_t i, double x, double y, double Z) {
  if (i > Nop) return;
  store_site(i, x, y, Z);
}

void wafer::OverwriteGridValue(std::int16_t i, double x, double y, double Z) { store_site(i, x, y, Z); }

double wafer::GetGridValue(std::int16_t ind, Array& gr) const {
  const Position& position = position_of(ind);
  gr(1) = position.x;
  gr(2) = position.y;
  return value_of(ind);
}

void wafer::store_site(std::int32_t site, double x, double y, double Z) {
  const std::size_t at = place_of(site);
  refuse_unless_finite({x, y, Z}, translatable("a site's number"));
  quick_ = false;
  GridPos[at] = {x, y};
  GridVal[at] = cleaned(Z);
}

void wafer::append_sites(std::span<const double> x, std::span<const double> y, std::span<const double> Z) {
  const double room = std::max(Int(Nop) - (NextSite - 1), 0.0);
  const std::size_t count = std::min(x.size(), static_cast<std::size_t>(room));
  const auto first = static_cast<std::ptrdiff_t>(NextSite) - 1;
  Position* const positions = GridPos.data() + first;
  double* const values = GridVal.data() + first;
  for (std::size_t i = 0; i < count; ++i) {
    positions[i] = {x[i], y[i]};
    values[i] = cleaned(Z[i]);
  }
  quick_ = false;
  NextSite += static_cast<double>(count);
}

/// The value as it is stored.
double wafer::cleaned(double Z) {
  const bool zero = std::abs(Z) < nearly_zero;
  if (zero) FW_NUll = true;
  if (!zero && Z < 0) FW_Negativ = true;
  return zero ? 0 : Z;
}

std::size_t wafer::place_of(std::int32_t site) const {
  if (site < 1 || site > static_cast<std::int32_t>(GridVal.size())) throw SubscriptOutOfRange();
  return static_cast<std::size_t>(site) - 1;
}

}  // namespace mirolen
