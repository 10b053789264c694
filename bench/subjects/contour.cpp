#include "subjects.h"

namespace mirolen::bench {
namespace {

void contour(benchmark::State& state) { measure_named(state, "contour"); }
BENCHMARK(contour)->Apply(numbers_of_sites)->Unit(benchmark::kMicrosecond);

}  // namespace
}  // namespace mirolen::bench
