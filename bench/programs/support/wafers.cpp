#include "support/wafers.h"

#include <cmath>
#include <cstdlib>
#include <fstream>
#include <random>
#include <stdexcept>

#include "mirolen/core/GlobalFunctions.h"

namespace mirolen::bench {
namespace {

constexpr double radius = test_diameter / 2;

bool on_test_disc(double x, double y) { return x * x + y * y <= radius * radius; }

double thickness(double x, double y) {
  return 100 + 0.002 * (x * x + y * y) + 3 * std::sin(x / 25) * std::cos(y / 40);
}

void add(Sites& sites, double x, double y) {
  sites.x.push_back(x);
  sites.y.push_back(y);
  sites.z.push_back(thickness(x, y));
}

}  // namespace

Sites uniform_sites(int count) {
  // Counted out by hand: a distribution of the standard library differs from one library to another.
  std::mt19937_64 random(20240601);
  const auto between_edges = [&] { return (static_cast<double>(random() >> 11) * 0x1p-53 * 2 - 1) * radius; };
  Sites sites;
  while (sites.count() < count) {
    const double x = between_edges(), y = between_edges();
    if (on_test_disc(x, y)) add(sites, x, y);
  }
  return sites;
}

Sites die_sites() {
  const double step = step_of(map_cells);
  Sites sites;
  for (int row = -12; row <= 12; ++row)
    for (int column = -16; column <= 16; ++column)
      if (on_test_disc(6 * column * step, 8 * row * step)) add(sites, 6 * column * step, 8 * row * step);
  return sites;
}

Sites sites_named(const std::string& name) {
  if (name == "dies") return die_sites();
  const int count = std::atoi(name.c_str());
  if (count <= 0) throw std::invalid_argument("no such sites: " + name);
  return uniform_sites(count);
}

wafer bare_wafer() {
  wafer made;
  made.WafDiam = wafer_diameter;
  made.WaferOrigRad = wafer_diameter / 2;
  made.test_diam = test_diameter;
  made.flat_ratio = 1.0;
  return made;
}

wafer loaded(const Sites& sites) {
  wafer made = bare_wafer();
  if (GlobalFunctions::LoadSiteArrays(false, made, sites.x, sites.y, sites.z) != 0)
    throw std::runtime_error("the sites cannot be loaded");
  return made;
}

void write_file(const Sites& sites, const std::string& name) {
  write_numbers({&sites.x, &sites.y, &sites.z}, name);
}

void write_numbers(const std::vector<const std::vector<double>*>& columns, const std::string& name) {
  std::ofstream file(name, std::ios::binary);
  for (const std::vector<double>* column : columns)
    file.write(reinterpret_cast<const char*>(column->data()),
               static_cast<std::streamsize>(column->size() * sizeof(double)));
  if (!file.flush()) throw std::runtime_error("cannot write " + name);
}

std::vector<NodeRow> node_rows(int cells) {
  const double step = step_of(cells);
  const int n = cells / 2;
  std::vector<NodeRow> rows;
  for (int j = n; j >= -n; --j) {
    NodeRow& row = rows.emplace_back();
    for (int i = -n; i <= n; ++i) {
      if (!on_test_disc(i * step, j * step)) continue;
      row.x.push_back(i * step);
      row.y.push_back(j * step);
    }
  }
  return rows;
}

}  // namespace mirolen::bench
