// Answers the rounds of the library's heart, and those of the plain algorithm that it is measured against. It
// knows no Qt, as a host may.

#include <cmath>
#include <iostream>
#include <limits>
#include <memory>
#include <stdexcept>

#include "mirolen/core/GlobalFunctions.h"
#include "rounds/plain_map.h"
#include "support/node_work.h"

namespace mirolen::bench {
namespace {

constexpr int matrix_of_surface = 100;
const char* const site_sets[] = {"49", "1000", "32767", "dies"};

std::shared_ptr<wafer> shared_wafer(const std::string& sites) {
  return std::make_shared<wafer>(loaded(sites_named(sites)));
}

void add_interpolation(Works& works, const std::string& sites) {
  works["row/" + sites] = [=] {
    return node_work(
        [w = shared_wafer(sites)](const auto& x, const auto& y, auto& z) { w->Interpolation(x, y, z); });
  };
  works["single/" + sites] = [=] {
    return node_work([w = shared_wafer(sites)](const auto& x, const auto& y, auto& z) {
      for (std::size_t i = 0; i < x.size(); ++i) z[i] = w->Interpolation(x[i], y[i]);
    });
  };
  works["plain/row/" + sites] = [=] {
    return node_work([w = std::make_shared<PlainWafer>(plain_loaded(sites_named(sites)))](
                         const auto& x, const auto& y, auto& z) {
      for (std::size_t i = 0; i < x.size(); ++i) z[i] = w->Interpolation(x[i], y[i]);
    });
  };
}

/// Writes the values at the nodes of a map, those outside as NaN, for peers that draw a matrix.
void write_matrix(const std::string& folder, int cells) {
  const wafer source = loaded(sites_named("1000"));
  const int side = cells + 1;
  std::vector<double> values(static_cast<std::size_t>(side * side), std::numeric_limits<double>::quiet_NaN());
  for (const NodeRow& row : node_rows(cells))
    for (std::size_t i = 0; i < row.x.size(); ++i) {
      const long column = std::lround(row.x[i] / step_of(cells)),
                 line = std::lround(row.y[i] / step_of(cells));
      values[static_cast<std::size_t>((cells / 2 - line) * side + cells / 2 + column)] =
          source.Interpolation(row.x[i], row.y[i]);
    }
  write_numbers({&values}, folder + "/" + std::to_string(side) + ".matrix");
}

void add_loading(Works& works, const std::string& folder) {
  works["load"] = [=] {
    const auto target = std::make_shared<wafer>(bare_wafer());
    return Work{[=, file = folder + "/32767.sites"] {
                  if (GlobalFunctions::LoadSiteFile(false, *target, file, 32767) != 0)
                    throw std::runtime_error("not loaded");
                },
                [=] { return target->mean; }};
  };
}

int answer(const std::string& folder) {
  Works works;
  for (const std::string sites : site_sets) {
    write_file(sites_named(sites), folder + "/" + sites + ".sites");
    add_interpolation(works, sites);
  }
  for (const int cells : {map_cells, matrix_of_surface}) write_matrix(folder, cells);
  add_loading(works, folder);
  return answer_rounds(works);
}

}  // namespace
}  // namespace mirolen::bench

int main(int argc, char** argv) {
  if (argc != 2) {
    std::cerr << "usage: " << argv[0] << " FOLDER\n"
              << "Writes sites and matrices into the folder, then answers rounds (see "
                 "programs/support/Rounds.h).\n";
    return 2;
  }
  return mirolen::bench::answer(argv[1]);
}
