#pragma once

#include <gtest/gtest.h>

#include <cstdint>
#include <filesystem>
#include <limits>
#include <random>
#include <span>
#include <string>
#include <utility>
#include <vector>

#include "mirolen/core/wafer.h"

namespace mirolen {

struct Site {
  double x = 0, y = 0, z = 0;
  friend bool operator==(const Site&, const Site&) = default;
};

using SiteList = std::vector<Site>;

void PrintTo(const Site& site, std::ostream* out);

inline constexpr double kInfinity = std::numeric_limits<double>::infinity();
inline constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();

/// Sets all three lengths as a control does.
void set_diameters(wafer& target, double diameter, double test_diameter);
/// Everything up to `MaxMin`.
void store(wafer& target, const SiteList& sites);
void load(wafer& target, const SiteList& sites);
/// One site at the centre for each value.
SiteList with_values(const std::vector<double>& values);

/// Site by number, and all that there is room for.
Site site_of(const wafer& source, int number);
SiteList sites_of(const wafer& source);

std::vector<double> column(const SiteList& sites, double Site::*member);
/// The data file of these sites.
std::string file_bytes(const SiteList& sites);
std::string bytes_of(const std::vector<double>& numbers);

/// The mean of values by the inverse squares of their distances.
double weighted_mean(const std::vector<std::pair<double, double>>& distances_and_values);

/// A site list with the header x_mm,y_mm,z out of the example data.
SiteList read_sites(const std::string& name);

/// A path of its own in the folder for temporary files; whatever lies there in the end is removed.
class TemporaryFile {
 public:
  TemporaryFile();
  explicit TemporaryFile(const std::string& bytes);
  TemporaryFile(const TemporaryFile&) = delete;
  TemporaryFile& operator=(const TemporaryFile&) = delete;
  ~TemporaryFile();

  std::string name() const;
  const std::filesystem::path& path() const { return path_; }
  void write(const std::string& bytes) const;

 private:
  std::filesystem::path path_;
};

using Random = std::mt19937_64;

double between(Random& random, double low, double high);
int between(Random& random, int low, int high);
bool chance(Random& random, double probability);

template <class T>
const T& one_of(Random& random, const std::vector<T>& choices) {
  return choices[static_cast<std::size_t>(between(random, 0, static_cast<int>(choices.size()) - 1))];
}

/// Tests over random input: every failure tells the seed, and MIROLEN_SEED repeats a run. MIROLEN_EFFORT
/// makes them so many times as long: 1 in everyday use, 100 and more overnight.
class RandomInput : public testing::Test {
 protected:
  RandomInput();
  /// How many rounds to run where every day takes so many.
  static int rounds(int everyday);

 private:
  std::uint64_t seed_;
  testing::ScopedTrace trace_;

 protected:
  Random random;
};

}  // namespace mirolen
