#include "subjects.h"

namespace mirolen::bench {
namespace {

void histogram(benchmark::State& state) { measure_named(state, "histogram"); }
BENCHMARK(histogram)->Apply(numbers_of_sites)->Unit(benchmark::kMicrosecond);

}  // namespace
}  // namespace mirolen::bench
