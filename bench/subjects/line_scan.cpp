#include "subjects.h"

namespace mirolen::bench {
namespace {

void line_scan(benchmark::State& state) { measure_named(state, "line_scan"); }
BENCHMARK(line_scan)->Apply(numbers_of_sites)->Unit(benchmark::kMicrosecond);

}  // namespace
}  // namespace mirolen::bench
