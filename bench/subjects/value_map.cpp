#include "subjects.h"

namespace mirolen::bench {
namespace {

void value_map(benchmark::State& state) { measure_named(state, "value_map"); }
BENCHMARK(value_map)->Apply(numbers_of_sites)->Unit(benchmark::kMicrosecond);

}  // namespace
}  // namespace mirolen::bench
