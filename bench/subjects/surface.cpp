#include "subjects.h"

namespace mirolen::bench {
namespace {

void surface_by_cells(benchmark::State& state) {
  measure_drawing(state, 1000, [&](wafer& w, PlotCanvas& canvas) {
    draw_surface(w, canvas, static_cast<int>(state.range(0)));
  });
}
// The renderer takes 12 cells a side at least.
BENCHMARK(surface_by_cells)
    ->ArgName("cells")
    ->Arg(12)
    ->Arg(50)
    ->Arg(100)
    ->Arg(200)
    ->Unit(benchmark::kMicrosecond);

void surface(benchmark::State& state) { measure_named(state, "surface"); }
BENCHMARK(surface)->Apply(numbers_of_sites)->Unit(benchmark::kMicrosecond);

}  // namespace
}  // namespace mirolen::bench
