#include "subjects.h"

namespace mirolen::bench {
namespace {

constexpr int usual_sites = 1000;

void color_map_by_cells(benchmark::State& state) {
  measure_drawing(state, usual_sites, [&](wafer& w, PlotCanvas& canvas) {
    draw_color_map(w, canvas, static_cast<int>(state.range(0)));
  });
}
BENCHMARK(color_map_by_cells)->Apply(numbers_of_cells);

void color_map(benchmark::State& state) { measure_named(state, "color_map"); }
BENCHMARK(color_map)->Apply(numbers_of_sites)->Unit(benchmark::kMicrosecond);

void sigma_map_by_cells(benchmark::State& state) {
  measure_drawing(state, usual_sites, [&](wafer& w, PlotCanvas& canvas) {
    draw_sigma_map(w, canvas, static_cast<int>(state.range(0)));
  });
}
BENCHMARK(sigma_map_by_cells)->Apply(numbers_of_cells);

void sigma_map(benchmark::State& state) { measure_named(state, "sigma_map"); }
BENCHMARK(sigma_map)->Apply(numbers_of_sites)->Unit(benchmark::kMicrosecond);

}  // namespace
}  // namespace mirolen::bench
