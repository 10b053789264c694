#include "plain_wafer.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <cstddef>

namespace mirolen {
namespace {

const double kPi = 4 * std::atan(1.0);

double finite(double value) {
  if (!std::isfinite(value)) throw PlainFailure{};
  return value;
}

double quotient(double a, double b) {
  if (b == 0) throw PlainFailure{};
  return finite(a / b);
}

double to16(double value) {
  const double whole = half_even(finite(value));
  if (whole < -32768 || whole > 32767) throw PlainFailure{};
  return whole;
}

bool is_finite(const Site& site) {
  return std::isfinite(site.x) && std::isfinite(site.y) && std::isfinite(site.z);
}

double distance(double x, double y, const Site& site) {
  return std::sqrt(finite((x - site.x) * (x - site.x) + (y - site.y) * (y - site.y)));
}

/// The four slots of the search.
struct Slots {
  double D1, D2, D3, D4, marker;
  int site1 = 0, site2 = 0, site3 = 0, site4 = 0;

  Slots(double sentinel, double filled_slot)
      : D1(sentinel), D2(sentinel), D3(sentinel), D4(sentinel), marker(filled_slot) {}

  void insert(int s, double d) {
    if (d < D1) {
      D4 = D3, D3 = D2, D2 = D1, D1 = d;
      site4 = site3, site3 = site2, site2 = site1, site1 = s;
      d = marker;
    }
    if (d < D2) {
      D4 = D3, D3 = D2, D2 = d;
      site4 = site3, site3 = site2, site2 = s;
      d = marker;
    }
    if (d < D3) {
      D4 = D3, D3 = d;
      site4 = site3, site3 = s;
      d = marker;
    }
    if (d < D4) D4 = d, site4 = s;
  }

  bool on_first_site() const { return D1 == 0 || std::abs(D1) < 0.0001; }

  /// value tells the z of a slot's site.
  double weighted_mean(const std::function<double(int)>& value) const {
    const double above = finite(quotient(value(site1), D1 * D1) + quotient(value(site2), D2 * D2) +
                                quotient(value(site3), D3 * D3) + quotient(value(site4), D4 * D4));
    const double below =
        finite(quotient(1, D1 * D1) + quotient(1, D2 * D2) + quotient(1, D3 * D3) + quotient(1, D4 * D4));
    return quotient(above, below);
  }
};

double zero_if_failing(const std::function<double()>& statement) {
  try {
    return statement();
  } catch (const PlainFailure&) {
    return 0;
  }
}

double number_at(const std::string& bytes, std::size_t place) {
  if (8 * (place + 1) > bytes.size()) return 0;
  std::uint64_t bits = 0;
  for (std::size_t byte = 0; byte < 8; ++byte) {
    bits |= std::uint64_t{static_cast<unsigned char>(bytes[8 * place + byte])} << (8 * byte);
  }
  return std::bit_cast<double>(bits);
}

/// Element index of an array, which may be missing.
void refuse_not_finite(const Array& array, int index) {
  if (index >= array.LBound() && index <= array.UBound()) finite(array(index));
}

double element(const Array& array, int index) {
  if (index < array.LBound() || index > array.UBound()) throw PlainFailure{};
  return array(index);
}

}  // namespace

double half_even(double value) {
  const double floor = std::floor(value);
  const double rest = value - floor;
  if (rest != 0.5) return rest < 0.5 ? floor : floor + 1;
  return std::fmod(floor, 2) == 0 ? floor : floor + 1;
}

bool PlainWafer::interpolates() const {
  const auto near = [](const Site& site) { return std::abs(site.x) < 1e100 && std::abs(site.y) < 1e100; };
  return Nop < 10 || (indexed_ && std::all_of(sites_.begin(), sites_.end(), near));
}

void PlainWafer::reset() {
  NextSite = 1;
  Nop = 0;
  FW_NUll = FW_Negativ = false;
  sites_.clear();
  indexed_ = false;
}

void PlainWafer::SetNop(double number) {
  const double room = half_even(finite(number));
  if (room < 0 || room > 16'777'216) throw PlainFailure{};
  Nop = number;
  sites_.assign(static_cast<std::size_t>(room), Site{});
  indexed_ = false;
}

void PlainWafer::put(std::int64_t number, const Site& site) {
  if (!is_finite(site)) throw PlainFailure{};
  if (number < 1 || number > static_cast<std::int64_t>(sites_.size())) throw PlainFailure{};
  Site& stored = sites_[static_cast<std::size_t>(number - 1)];
  stored = site;
  if (site.z != 0 && (site.z >= 1e-15 || site.z <= -1e-15)) {
    if (site.z < 0) FW_Negativ = true;
  } else {
    FW_NUll = true;
    stored.z = 0;
  }
}

void PlainWafer::SetGridValue(const Site& site) {
  if (NextSite > Nop) return;
  put(static_cast<std::int64_t>(half_even(NextSite)), site);
  NextSite += 1;
}

void PlainWafer::SetGridValueD(int number, const Site& site) {
  if (number <= Nop) put(number, site);
}

void PlainWafer::OverwriteGridValue(int number, const Site& site) { put(number, site); }

void PlainWafer::set_scale(double high, double low) {
  HiLo = finite(high + low) == 0 ? 0 : finite(std::abs(quotient(range, high + low)) * 100);
  Low = high == low ? finite((low < 0 ? low * 1.1 : low * 0.9) - 0.001) : low;
}

void PlainWafer::MaxMin() {
  if (sites_.empty()) throw PlainFailure{};
  maxi = mini = sites_[0].z;
  HiLo = 0;
  Low = -0.001;
  range = mean = StdDev = 0;
  if (Nop >= 10) BuildSiteCells();
  double sum = 0;
  for (const Site& site : sites_) {
    sum = finite(sum + site.z);
    if (site.z > maxi) maxi = site.z;
    if (site.z < mini) mini = site.z;
  }
  maximal = maxi;
  minimal = mini;
  Summe_Value = sum;
  mean = quotient(sum, Nop);
  range = finite(maxi - mini);
  set_scale(maxi, mini);
  if (Nop < 2) return;
  double squares = 0;
  for (const Site& site : sites_) squares = finite(squares + finite((site.z - mean) * (site.z - mean)));
  StdDev = std::sqrt(quotient(squares, Nop - 1));
}

void PlainWafer::setMaximalMinial(double maxim, double minim) {
  finite(maxim + minim);  // a failure changes nothing
  range = finite(maxim - minim);
  maximal = maxim;
  minimal = minim;
  set_scale(maxim, minim);
}

void PlainWafer::BuildSiteCells() {
  indexed_ = false;
  const double R = WafDiam / 2;
  GridCell = std::sqrt(quotient(R * R * kPi * 4, to16(Nop)));
  HalfCells = to16(quotient(R, GridCell));
  const auto side = static_cast<std::size_t>(2 * HalfCells + 1);
  std::vector<std::vector<Cell>> cells(side, std::vector<Cell>(side));
  for (std::size_t i = 0; i < sites_.size(); ++i) {
    const double cx = to16(sites_[i].x / GridCell + HalfCells);
    const double cy = to16(sites_[i].y / GridCell + HalfCells);
    if (cx < 0 || cy < 0 || cx > 2 * HalfCells || cy > 2 * HalfCells) throw PlainFailure{};
    cells[static_cast<std::size_t>(cx)][static_cast<std::size_t>(cy)].push_back(static_cast<int>(i));
  }
  SiteCells = cells;
  indexed_ = true;
}

const PlainWafer::Cell* PlainWafer::cell(double cx, double cy) const {
  if (cx < 0 || cy < 0 || cx > 2 * HalfCells || cy > 2 * HalfCells) return nullptr;
  return &SiteCells[static_cast<std::size_t>(cx)][static_cast<std::size_t>(cy)];
}

double PlainWafer::Interpolation(double Xa, double Ya) const {
  if (Nop < 4) return 0;
  if (Nop < 10) return zero_if_failing([&] { return Interpolation_Einfach(Xa, Ya); });
  const double R = test_diam / 2;
  Slots slots(9 * R * R, 4 * WaferOrigRad);
  const auto insert_cell = [&](double x, double y) {
    if (const Cell* found = cell(x, y)) {
      for (const int s : *found) slots.insert(s, distance(Xa, Ya, sites_[static_cast<std::size_t>(s)]));
    }
  };
  const double cx = Xa / GridCell, cy = Ya / GridCell;
  const double home_x = half_even(cx + HalfCells), home_y = half_even(cy + HalfCells);
  const double fx = cx - std::floor(cx), fy = cy - std::floor(cy);
  const double ex = fx < 0.5 ? fx : 1 - fx, ey = fy < 0.5 ? fy : 1 - fy;
  double reach = ex < ey ? ex : ey;
  insert_cell(home_x, home_y);
  for (int ring = 1; slots.D4 > reach * reach; ++ring) {
    reach += GridCell;
    double x = home_x - ring, y = home_y + ring;
    double dx = 1, dy = 0;
    for (int side = 0; side < 4; ++side) {
      for (int step = 0; step < 2 * ring; ++step, x += dx, y += dy) insert_cell(x, y);
      const double old_dx = dx;
      dx = dy;
      dy = -old_dx;
    }
  }
  const auto value = [&](int s) { return sites_[static_cast<std::size_t>(s)].z; };
  if (slots.on_first_site()) return value(slots.site1);
  return zero_if_failing([&] { return slots.weighted_mean(value); });
}

double PlainWafer::Interpolation_Einfach(double Xa, double Ya) const {
  if (Nop < 4) return 0;
  const double R = WafDiam / 2;
  Slots slots(3 * R, 4 * R);
  for (std::size_t s = 1; s <= sites_.size(); ++s) {
    slots.insert(static_cast<int>(s), distance(Xa, Ya, sites_[s - 1]));
  }
  const auto value = [&](int s) {
    if (s < 1) throw PlainFailure{};
    return sites_[static_cast<std::size_t>(s - 1)].z;
  };
  if (slots.on_first_site()) return value(slots.site1);
  return slots.weighted_mean(value);
}

void PlainWafer::MaxMin_keeping(bool keep_limits) {
  const double high = maximal, low = minimal;
  MaxMin();
  if (keep_limits) setMaximalMinial(high, low);
}

int PlainWafer::LoadSiteArrays(bool keep_limits, const Array& x, const Array& y, const Array& z) {
  if (x.UBound() != y.UBound() && z.UBound() != y.UBound()) return 1;
  const double hi = to16(x.UBound());
  if (x.LBound() != y.LBound() && z.LBound() != y.LBound()) return 2;
  const double lo = to16(x.LBound());
  const int count = static_cast<int>(to16(hi - lo + 1));
  for (int j = 1; j <= count; ++j) {
    for (const Array* array : {&x, &y, &z}) refuse_not_finite(*array, j);
  }
  reset();
  SetNop(count);
  for (int j = 1; j <= count; ++j) SetGridValue({element(x, j), element(y, j), element(z, j)});
  MaxMin_keeping(keep_limits);
  return 0;
}

int PlainWafer::LoadSiteFile(bool keep_limits, const std::string* bytes, double nops) {
  try {
    reset();
    SetNop(std::nearbyint(nops));
    if (!bytes) throw PlainFailure{};
    const std::size_t n = sites_.size();
    SiteList read(n);
    for (std::size_t i = 0; i < n; ++i) {
      read[i] = {number_at(*bytes, i), number_at(*bytes, n + i), number_at(*bytes, 2 * n + i)};
      if (is_finite(read[i])) continue;
      reset();
      throw PlainFailure{};
    }
    to16(nops);
    for (const Site& site : read) SetGridValue(site);
    MaxMin_keeping(keep_limits);
    return 0;
  } catch (const PlainFailure&) {
    return 4;
  }
}

void PlainWafer::ClipToTestDiameter(bool keep_limits, double new_diameter) {
  const auto n = static_cast<std::size_t>(to16(Nop));
  const double square = finite(new_diameter / 2 * (new_diameter / 2));
  std::size_t kept = n;
  for (std::size_t i = 0; i < n; ++i) {
    if (square < finite(sites_[i].x * sites_[i].x + sites_[i].y * sites_[i].y)) --kept;
  }
  if (kept >= n) return;
  const SiteList first(sites_.begin(), sites_.begin() + static_cast<std::ptrdiff_t>(kept));
  reset();
  SetNop(static_cast<double>(kept));
  for (const Site& site : first) SetGridValue(site);
  test_diam = new_diameter;
  MaxMin_keeping(keep_limits);
}

}  // namespace mirolen
