#include "subjects.h"

namespace mirolen::bench {
namespace {

void bars(benchmark::State& state) { measure_named(state, "bars"); }
BENCHMARK(bars)->Apply(numbers_of_sites)->Unit(benchmark::kMicrosecond);

}  // namespace
}  // namespace mirolen::bench
