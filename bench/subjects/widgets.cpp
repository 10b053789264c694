#include <string>

#include "subjects.h"
#include "support/faces.h"

namespace mirolen::bench {
namespace {

using Action = std::function<void()> (*)(std::string_view control, Ground ground);

void add(const std::string& what, std::string_view control, Action action) {
  for (const Ground ground : {Ground::picture, Ground::nothing}) {
    const char* const on = ground == Ground::picture ? "/picture" : "/nothing";
    const std::string name = what + "/" + std::string(control) + on;
    const auto measure = [=](benchmark::State& state) {
      const std::function<void()> act = action(control, ground);
      for (auto _ : state) act();
    };
    benchmark::RegisterBenchmark(name.c_str(), measure)->Unit(benchmark::kMicrosecond);
  }
}

[[maybe_unused]] const bool added = [] {
  for (const std::string_view control : control_names()) add("redraw", control, redrawing);
  for (const std::string_view control : names_in_perspective()) add("drag", control, dragging);
  return true;
}();

}  // namespace
}  // namespace mirolen::bench
