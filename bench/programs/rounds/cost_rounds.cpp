// Answers the rounds of the library's operations by what they grow with: the sites, and the cells along a
// side of the grid. A work is named OPERATION/SITES/CELLS.

#include <QGuiApplication>
#include <stdexcept>

#include "mirolen/core/GlobalFunctions.h"
#include "support/node_work.h"
#include "support/picture_work.h"

namespace mirolen::bench {
namespace {

Work loading(int sites, int) {
  return {[from = uniform_sites(sites), target = std::make_shared<wafer>(bare_wafer())] {
    if (GlobalFunctions::LoadSiteArrays(false, *target, from.x, from.y, from.z) != 0)
      throw std::runtime_error("not loaded");
  }};
}

Work interpolation(int sites, int cells) {
  return node_work(
      [w = loaded(uniform_sites(sites))](const auto& x, const auto& y, auto& z) { w.Interpolation(x, y, z); },
      cells);
}

Work color_map(int sites, int cells) {
  return picture_work(sites,
                      [=](wafer& source, PlotCanvas& canvas) { draw_color_map(source, canvas, cells); });
}

Work surface(int sites, int cells) {
  return picture_work(sites, [=](wafer& source, PlotCanvas& canvas) { draw_surface(source, canvas, cells); });
}

Work contour(int sites, int) { return picture_work(sites, draw_contour); }

Works works() {
  constexpr int numbers_of_sites[] = {10, 100, 1000, 10'000, 32'767};
  constexpr int numbers_of_cells[] = {8, 40, 100, 200};
  const std::map<std::string, Work (*)(int, int)> operations{{"loading", loading},
                                                             {"interpolation", interpolation},
                                                             {"color_map", color_map},
                                                             {"surface", surface},
                                                             {"contour", contour}};
  Works all;
  for (const auto& [name, prepare] : operations)
    for (const int sites : numbers_of_sites)
      for (const int cells : numbers_of_cells)
        all[name + '/' + std::to_string(sites) + '/' + std::to_string(cells)] = [=, prepare = prepare] {
          return prepare(sites, cells);
        };
  return all;
}

}  // namespace
}  // namespace mirolen::bench

int main(int argc, char** argv) {
  if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  QGuiApplication app(argc, argv);
  return mirolen::bench::answer_rounds(mirolen::bench::works());
}
