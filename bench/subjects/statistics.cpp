#include "subjects.h"

namespace mirolen::bench {
namespace {

void statistics_and_index(benchmark::State& state) {
  wafer source = loaded(uniform_sites(static_cast<int>(state.range(0))));
  for (auto _ : state) {
    source.MaxMin();
    benchmark::DoNotOptimize(source.StdDev);
  }
  state.SetItemsProcessed(state.iterations() * state.range(0));
}
BENCHMARK(statistics_and_index)->Apply(numbers_of_sites);

void points_beyond_limits(benchmark::State& state) {
  wafer source = loaded(uniform_sites(static_cast<int>(state.range(0))));
  for (auto _ : state) {
    source.Points_OutCL(105, 110);
    benchmark::DoNotOptimize(source.NptUCL);
  }
}
BENCHMARK(points_beyond_limits)->Apply(numbers_of_sites);

}  // namespace
}  // namespace mirolen::bench
