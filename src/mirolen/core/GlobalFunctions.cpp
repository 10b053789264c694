#include "mirolen/core/GlobalFunctions.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <cstddef>
#include <filesystem>
#include <fstream>
#include <span>
#include <vector>

#include "mirolen/core/translation.h"

namespace mirolen {

using Numbers = std::span<const double>;

/// What a wafer lets nobody else do.
class SiteLoad {
 public:
  /// Stores the sites that have all three numbers, which are finite. @return how many there are.
  static std::size_t append(wafer& wafer, Numbers x, Numbers y, Numbers Z) {
    const std::size_t whole = std::min({x.size(), y.size(), Z.size()});
    wafer.append_sites(x.first(whole), y.first(whole), Z.first(whole));
    return whole;
  }
};

namespace GlobalFunctions {
namespace {

/// The plot limits in force before a load, put back behind it.
class KeptLimits {
 public:
  KeptLimits(bool PlotLimitSet, const wafer& wafer)
      : set_(PlotLimitSet), maximal_(wafer.maximal), minimal_(wafer.minimal) {}
  void put_back(wafer& wafer) const {
    if (set_) wafer.setMaximalMinial(maximal_, minimal_);
  }

 private:
  bool set_;
  double maximal_;
  double minimal_;
};

constexpr const char* site_number = "a site's number";

bool all_finite(Numbers numbers) {
  bool finite = true;
  for (const double number : numbers) finite &= is_finite(number);
  return finite;
}

/// The elements from 1 to n, up to the first that is missing. (contract 19)
Numbers first_elements(const ArrayView& array, std::int32_t n) {
  return array.has(1) ? array.part(1, n) : Numbers();
}

/// The first count numbers of a file, 0 where it holds none. (contract 21)
std::vector<double> read_numbers(const std::string& datafile, std::size_t count) {
  const std::filesystem::path path(std::u8string(datafile.begin(), datafile.end()));
  std::error_code unknown;
  // A pipe would keep the reader waiting, and so would some devices.
  if (std::filesystem::exists(path, unknown) && !std::filesystem::is_regular_file(path, unknown))
    throw FileError(datafile + ": " + tr("not a regular file"));
  std::ifstream file;
  file.rdbuf()->pubsetbuf(nullptr, 0);
  file.open(path, std::ios::binary);
  if (!file) throw FileError(tr("cannot open ") + datafile);

  std::vector<double> numbers(count);
  const auto bytes = std::as_writable_bytes(std::span(numbers));
  file.read(reinterpret_cast<char*>(bytes.data()), static_cast<std::streamsize>(bytes.size()));
  const auto held = bytes.first(static_cast<std::size_t>(file.gcount()));
  std::ranges::fill(held.last(held.size() % sizeof(double)), std::byte{});
  if constexpr (std::endian::native == std::endian::big)
    for (auto rest = bytes; !rest.empty(); rest = rest.subspan(sizeof(double)))
      std::ranges::reverse(rest.first(sizeof(double)));
  return numbers;
}

void load_file(bool PlotLimitSet, wafer& wafer, const std::string& datafile, double nops) {
  const KeptLimits limits(PlotLimitSet, wafer);
  wafer.reset();
  wafer.SetNop(round_half_even(nops));
  const auto n = static_cast<std::size_t>(to_int16(nops));
  const std::vector<double> numbers = read_numbers(datafile, 3 * n);
  if (!all_finite(numbers)) {
    wafer.reset();
    raise_not_finite(site_number);
  }
  const Numbers all(numbers);
  SiteLoad::append(wafer, all.first(n), all.subspan(n, n), all.last(n));
  wafer.MaxMin();
  limits.put_back(wafer);
}

}  // namespace

std::int16_t LoadSiteArrays(bool PlotLimitSet, wafer& wafer, const ArrayView& x, const ArrayView& y,
                            const ArrayView& Z) {
  // One of x and Z may differ from y and pass: too short an array is then found when it is read.
  if (x.UBound() != y.UBound() && Z.UBound() != y.UBound()) return 1;  // contract 18
  const std::int16_t hi = to_int16(static_cast<double>(x.UBound()));
  if (x.LBound() != y.LBound() && Z.LBound() != y.LBound()) return 2;
  const std::int16_t lo = to_int16(static_cast<double>(x.LBound()));
  const std::int16_t n = to_int16(hi - lo + 1);
  for (const ArrayView& array : {x, y, Z})
    if (!all_finite(array.part(1, n))) raise_not_finite(site_number);

  const KeptLimits limits(PlotLimitSet, wafer);
  wafer.reset();
  wafer.SetNop(n);
  const std::size_t whole =
      SiteLoad::append(wafer, first_elements(x, n), first_elements(y, n), first_elements(Z, n));
  if (whole < static_cast<std::size_t>(n)) throw SubscriptOutOfRange();
  wafer.MaxMin();
  limits.put_back(wafer);
  return 0;
}

std::int16_t LoadSiteFile(bool PlotLimitSet, wafer& wafer, const std::string& datafile, double nops) {
  try {
    load_file(PlotLimitSet, wafer, datafile, nops);
    return 0;
  } catch (const std::exception&) {
    return 4;
  }
}

bool ApplyPlotLimit(wafer& wafer, double LPL, double UPL) {
  if (!(LPL < UPL)) return false;
  wafer.setMaximalMinial(UPL, LPL);
  return true;
}

void ClipToTestDiameter(bool PlotLimitSet, wafer& wafer, double new_diameter) {
  struct Site {
    double x, y, z;
  };
  const std::int16_t n = to_int16(wafer.GetNop());
  const double square = checked(new_diameter / 2 * (new_diameter / 2));
  std::vector<Site> sites;
  std::int32_t kept = 0;
  Array position(1, 2);
  for (std::int32_t i = 1; i <= n; ++i) {
    const double z = wafer.GetGridValue(static_cast<std::int16_t>(i), position);
    const Site site{position(1), position(2), z};
    sites.push_back(site);
    if (!(square < checked(site.x * site.x + site.y * site.y))) ++kept;
  }
  if (kept >= n) return;

  const KeptLimits limits(PlotLimitSet, wafer);
  wafer.reset();
  wafer.SetNop(kept);
  for (std::int32_t k = 0; k < kept; ++k) {  // contract 51
    const Site& site = sites[static_cast<std::size_t>(k)];
    wafer.SetGridValue(site.x, site.y, site.z);
  }
  wafer.test_diam = new_diameter;
  wafer.MaxMin();
  limits.put_back(wafer);
}

}  // namespace GlobalFunctions
}  // namespace mirolen
