#pragma once

#include <benchmark/benchmark.h>

#include "mirolen/qt/ImageSurface.h"
#include "support/drawings.h"
#include "support/wafers.h"

namespace mirolen::bench {

/// The numbers of sites: few, a usual map, the most there can be.
inline void numbers_of_sites(benchmark::internal::Benchmark* b) {
  b->ArgName("sites")->Arg(10)->Arg(49)->Arg(1000)->Arg(10'000)->Arg(32'767);
}
/// Cells along a side.
inline void numbers_of_cells(benchmark::internal::Benchmark* b) {
  b->ArgName("cells")->Arg(8)->Arg(50)->Arg(100)->Arg(200)->Unit(benchmark::kMicrosecond);
}

/// Measures a drawing on a picture.
template <class Draw>
void measure_drawing(benchmark::State& state, int sites, const Draw& draw) {
  wafer source = loaded(uniform_sites(sites));
  qt::ImageSurface surface({picture_side, picture_side}, 1);
  for (auto _ : state) {
    on_picture(surface, [&](PlotCanvas& canvas) { draw(source, canvas); });
    benchmark::DoNotOptimize(&surface.pixels());  // with whatever the device has held back
  }
}

/// Measures one of `drawings()`, by the number of sites.
inline void measure_named(benchmark::State& state, const char* name) {
  for (const Drawing& drawing : drawings())
    if (std::string(drawing.name) == name)
      return measure_drawing(state, static_cast<int>(state.range(0)), drawing.draw);
  state.SkipWithError("no such drawing");
}

}  // namespace mirolen::bench
