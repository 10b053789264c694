#include "mirolen/core/GlobalFunctions.h"

#include <bit>
#include <cmath>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <vector>

#include "mirolen/core/translation.h"

namespace mirolen::GlobalFunctions {
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

void refuse_odd_elements(const ArrayView& array, std::int32_t n) {
  for (std::int32_t j = 1; j <= n; ++j)
    if (array.has(j)) refuse_unless_finite({array(j)}, site_number);
}

double from_little_endian(const char* bytes) {
  char native[sizeof(double)];
  for (std::size_t i = 0; i < sizeof native; ++i)
    native[i] = bytes[std::endian::native == std::endian::little ? i : sizeof native - 1 - i];
  double number;
  std::memcpy(&number, native, sizeof number);
  return number;
}

/// The first count numbers of a file, 0 where it holds none.
std::vector<double> read_numbers(const std::string& datafile, std::size_t count) {
  const std::filesystem::path path(std::u8string(datafile.begin(), datafile.end()));
  std::error_code unknown;
  if (std::filesystem::is_directory(path, unknown)) throw FileError(datafile + tr(" is a directory"));
  std::ifstream file(path, std::ios::binary);
  if (!file) throw FileError(tr("cannot open ") + datafile);

  std::vector<char> bytes(count * sizeof(double));
  file.read(bytes.data(), static_cast<std::streamsize>(bytes.size()));
  const auto whole = static_cast<std::size_t>(file.gcount()) / sizeof(double);
  std::vector<double> numbers(count);
  for (std::size_t i = 0; i < whole; ++i) numbers[i] = from_little_endian(&bytes[i * sizeof(double)]);
  return numbers;
}

void load_file(bool PlotLimitSet, wafer& wafer, const std::string& datafile, double nops) {
  const KeptLimits limits(PlotLimitSet, wafer);
  wafer.reset();
  wafer.SetNop(nops);
  const auto n = static_cast<std::size_t>(to_int16(nops));
  const std::vector<double> numbers = read_numbers(datafile, 3 * n);
  for (const double number : numbers) {
    if (std::isfinite(number)) continue;
    wafer.reset();
    refuse_unless_finite({number}, site_number);
  }
  for (std::size_t i = 0; i < n; ++i) wafer.SetGridValue(numbers[i], numbers[n + i], numbers[2 * n + i]);
  wafer.MaxMin();
  limits.put_back(wafer);
}

}  // namespace

std::int16_t LoadSiteArrays(bool PlotLimitSet, wafer& wafer, const ArrayView& x, const ArrayView& y,
                            const ArrayView& Z) {
  // One of x and Z may differ from y and pass: too short an array is then found when it is read.
  if (x.UBound() != y.UBound() && Z.UBound() != y.UBound()) return 1;
  const std::int16_t hi = to_int16(static_cast<double>(x.UBound()));
  if (x.LBound() != y.LBound() && Z.LBound() != y.LBound()) return 2;
  const std::int16_t lo = to_int16(static_cast<double>(x.LBound()));
  const std::int16_t n = to_int16(hi - lo + 1);
  for (const ArrayView& array : {x, y, Z}) refuse_odd_elements(array, n);

  const KeptLimits limits(PlotLimitSet, wafer);
  wafer.reset();
  wafer.SetNop(n);
  for (std::int32_t j = 1; j <= n; ++j) wafer.SetGridValue(x(j), y(j), Z(j));
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
  for (std::int32_t k = 0; k < kept; ++k) {
    const Site& site = sites[static_cast<std::size_t>(k)];
    wafer.SetGridValue(site.x, site.y, site.z);
  }
  wafer.test_diam = new_diameter;
  wafer.MaxMin();
  limits.put_back(wafer);
}

}  // namespace mirolen::GlobalFunctions
