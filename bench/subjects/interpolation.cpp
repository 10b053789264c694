#include "subjects.h"
#include "support/node_work.h"

namespace mirolen::bench {
namespace {

void run(benchmark::State& state, const Work& work) {
  for (auto _ : state) work.run();
  state.counters["sum"] = work.result();
}

Work in_rows(const Sites& sites) {
  return node_work([w = loaded(sites)](const auto& x, const auto& y, auto& z) { w.Interpolation(x, y, z); });
}

Work one_by_one(const Sites& sites) {
  return node_work([w = loaded(sites)](const auto& x, const auto& y, auto& z) {
    for (std::size_t i = 0; i < x.size(); ++i) z[i] = w.Interpolation(x[i], y[i]);
  });
}

void rows_of_nodes(benchmark::State& state) {
  run(state, in_rows(uniform_sites(static_cast<int>(state.range(0)))));
}
BENCHMARK(rows_of_nodes)->Apply(numbers_of_sites)->Unit(benchmark::kMicrosecond);

void single_nodes(benchmark::State& state) {
  run(state, one_by_one(uniform_sites(static_cast<int>(state.range(0)))));
}
BENCHMARK(single_nodes)->Apply(numbers_of_sites)->Unit(benchmark::kMicrosecond);

void rows_of_nodes_on_dies(benchmark::State& state) { run(state, in_rows(die_sites())); }
BENCHMARK(rows_of_nodes_on_dies)->Unit(benchmark::kMicrosecond);

void single_nodes_on_dies(benchmark::State& state) { run(state, one_by_one(die_sites())); }
BENCHMARK(single_nodes_on_dies)->Unit(benchmark::kMicrosecond);

}  // namespace
}  // namespace mirolen::bench
