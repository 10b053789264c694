#include "failing_canvas.h"

#include <gtest/gtest.h>

#include "sample_wafers.h"

namespace mirolen {
namespace {

CanvasSetup setup_of(CanvasKind kind) { return {kind, {5, 7, 250, 206}, {12, 18}, "", 0}; }

}  // namespace

void for_each_failing_member(const std::function<void(const CanvasSetup&, std::int16_t)>& check) {
  for (const char* member :
       {"Cls",       "Refresh",        "ScaleLeft",     "ScaleTop",  "ScaleWidth", "ScaleHeight",
        "FillColor", "FillStyle",      "DrawStyle",     "DrawWidth", "ForeColor",  "Circle",
        "Polygon",   "Line",           "CurrentX",      "CurrentY",  "TextWidth",  "TextHeight",
        "Print",     "TwipsPerPixelX", "TwipsPerPixelY"})
    for (const CanvasKind kind : kKinds)
      for (const std::int16_t ShowDispl : {0, 1}) {
        CanvasSetup setup = setup_of(kind);
        setup.fails_in = member;
        check(setup, ShowDispl);
      }
}

void for_each_failing_call(const std::function<RecordingCanvas(const CanvasSetup&)>& draw,
                           const std::function<void(const CanvasSetup&)>& check) {
  for (const CanvasKind kind : kKinds) {
    CanvasSetup setup = setup_of(kind);
    const int calls = draw(setup).log.number_of_calls();
    ASSERT_GT(calls, 20);
    for (setup.fails_at = 1; setup.fails_at <= calls; ++setup.fails_at) check(setup);
  }
}

void expect_consistent_scale_fields(int sites, const std::function<void(wafer&, PlotCanvas&)>& draw) {
  for (const auto& [upper, lower] :
       std::vector<std::pair<double, double>>{{60, 20}, {7, 7}, {-3, -3}, {1, -1}})
    for (const char* failing : {"", "Cls", "Circle", "Polygon", "Print", "ScaleWidth"}) {
      wafer source = wafer_with(spiral(sites));
      source.setMaximalMinial(upper, lower);
      wafer copy = source;
      copy.Low = 12345;
      copy.range = copy.HiLo = -1;
      CanvasSetup setup;
      setup.fails_in = failing;
      RecordingCanvas canvas = setup.canvas();
      draw(copy, canvas);
      expect_same_fields(copy, source);
    }
}

}  // namespace mirolen
