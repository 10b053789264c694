#include "support/site_support.h"

#include <bit>
#include <cstdlib>
#include <fstream>
#include <ostream>
#include <sstream>
#include <stdexcept>

namespace mirolen {
namespace {

std::uint64_t wanted_seed() {
  if (const char* told = std::getenv("MIROLEN_SEED")) return std::strtoull(told, nullptr, 10);
  return std::random_device{}();
}

std::filesystem::path unused_path() {
  std::random_device random;
  const auto folder = std::filesystem::temp_directory_path();
  for (;;) {
    const auto path =
        folder / ("mirolen_" + std::to_string(random()) + "_" + std::to_string(random()) + ".dat");
    if (!std::filesystem::exists(path)) return path;
  }
}

void append_little_endian(std::string& bytes, double number) {
  const auto bits = std::bit_cast<std::uint64_t>(number);
  for (int shift = 0; shift < 64; shift += 8) bytes += static_cast<char>((bits >> shift) & 0xFF);
}

}  // namespace

void PrintTo(const Site& site, std::ostream* out) {
  *out << '(' << site.x << ", " << site.y << "; " << site.z << ')';
}

void set_diameters(wafer& target, double diameter, double test_diameter) {
  target.WafDiam = diameter;
  target.WaferOrigRad = diameter / 2;
  target.test_diam = test_diameter;
}

void store(wafer& target, const SiteList& sites) {
  target.reset();
  target.SetNop(static_cast<double>(sites.size()));
  for (const Site& site : sites) target.SetGridValue(site.x, site.y, site.z);
}

void load(wafer& target, const SiteList& sites) {
  store(target, sites);
  target.MaxMin();
}

SiteList with_values(const std::vector<double>& values) {
  SiteList sites;
  for (const double value : values) sites.push_back({0, 0, value});
  return sites;
}

Site site_of(const wafer& source, int number) {
  Array position(1, 2);
  const double z = source.GetGridValue(static_cast<std::int16_t>(number), position);
  return {position(1), position(2), z};
}

SiteList sites_of(const wafer& source) {
  SiteList sites;
  const int count = static_cast<int>(std::nearbyint(source.GetNop()));
  for (int number = 1; number <= count && number <= 32767; ++number) sites.push_back(site_of(source, number));
  return sites;
}

std::vector<double> column(const SiteList& sites, double Site::*member) {
  std::vector<double> values;
  for (const Site& site : sites) values.push_back(site.*member);
  return values;
}

std::string bytes_of(const std::vector<double>& numbers) {
  std::string bytes;
  for (const double number : numbers) append_little_endian(bytes, number);
  return bytes;
}

std::string file_bytes(const SiteList& sites) {
  return bytes_of(column(sites, &Site::x)) + bytes_of(column(sites, &Site::y)) +
         bytes_of(column(sites, &Site::z));
}

double weighted_mean(const std::vector<std::pair<double, double>>& distances_and_values) {
  double above = 0, below = 0;
  for (const auto& [distance, value] : distances_and_values) {
    above += value / (distance * distance);
    below += 1 / (distance * distance);
  }
  return above / below;
}

SiteList read_sites(const std::string& name) {
  std::ifstream file(std::filesystem::path(MIROLEN_DATA) / name);
  if (!file) throw std::runtime_error("no example data " + name);
  std::string line;
  std::getline(file, line);
  SiteList sites;
  for (char comma; std::getline(file, line);) {
    Site site;
    if (std::istringstream(line) >> site.x >> comma >> site.y >> comma >> site.z) sites.push_back(site);
  }
  return sites;
}

TemporaryFile::TemporaryFile() : path_(unused_path()) {}

TemporaryFile::TemporaryFile(const std::string& bytes) : TemporaryFile() { write(bytes); }

TemporaryFile::~TemporaryFile() {
  std::error_code ignored;
  std::filesystem::remove(path_, ignored);
}

std::string TemporaryFile::name() const {
  const std::u8string text = path_.u8string();
  return {text.begin(), text.end()};
}

void TemporaryFile::write(const std::string& bytes) const {
  std::ofstream file(path_, std::ios::binary | std::ios::trunc);
  file.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
  if (!file.flush()) throw std::runtime_error("cannot write a temporary file");
}

double between(Random& random, double low, double high) {
  return std::uniform_real_distribution<double>(low, high)(random);
}

int between(Random& random, int low, int high) {
  return std::uniform_int_distribution<int>(low, high)(random);
}

bool chance(Random& random, double probability) { return std::bernoulli_distribution(probability)(random); }

RandomInput::RandomInput()
    : seed_(wanted_seed()),
      trace_(__FILE__, __LINE__, "MIROLEN_SEED=" + std::to_string(seed_)),
      random(seed_) {
  RecordProperty("MIROLEN_SEED", std::to_string(seed_));
}

int RandomInput::rounds(int everyday) {
  const char* effort = std::getenv("MIROLEN_EFFORT");
  return effort ? everyday * std::max(1, std::atoi(effort)) : everyday;
}

}  // namespace mirolen
