#pragma once

#include <functional>
#include <string>
#include <vector>

#include "mirolen/core/wafer.h"

// The wafers and the grid that all measurements share.
namespace mirolen::bench {

inline constexpr double wafer_diameter = 200, test_diameter = 194;  // mm
/// Cells along a side of the finest map.
inline constexpr int map_cells = 200;

struct Sites {
  std::vector<double> x, y, z;
  int count() const { return static_cast<int>(x.size()); }
};

/// Sites spread evenly at random over the test circle, the same ones each time.
Sites uniform_sites(int count);
/// The centres of dies, 6 by 8 cells of the finest map. Half of the map's nodes lie as far from one die as
/// from another, to the last bit or nearly so.
Sites die_sites();
/// A set of sites by its name: "dies", or the number of uniform ones.
Sites sites_named(const std::string& name);

/// A wafer with its diameters and a notch, without sites.
wafer bare_wafer();
wafer loaded(const Sites& sites);

/// The data file of sites: all x, all y, all z.
void write_file(const Sites& sites, const std::string& name);
/// Columns of numbers, one behind the other. @throws std::runtime_error.
void write_numbers(const std::vector<const std::vector<double>*>& columns, const std::string& name);

/// Millimetres between the nodes of a map with so many cells along a side.
inline double step_of(int cells) { return test_diameter / cells; }

/// The nodes of a grid line that lie on the test circle or within, from left to right.
struct NodeRow {
  std::vector<double> x, y;
};
/// All grid lines of a map, from the top down.
std::vector<NodeRow> node_rows(int cells = map_cells);

}  // namespace mirolen::bench
