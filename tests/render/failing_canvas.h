#pragma once

#include <functional>

#include "plain_renderer.h"

namespace mirolen {

/// An area on a page, in twips.
inline constexpr RecordingCanvas::Rectangle kPage{700, 1400, 4321, 3000};

/// Hands over a canvas of each kind, on the screen and on a page, for each member to fail always.
void for_each_failing_member(const std::function<void(const CanvasSetup&, std::int16_t ShowDispl)>& check);

/// Hands over a canvas of each kind for each call that a drawing makes on it to fail once.
void for_each_failing_call(const std::function<RecordingCanvas(const CanvasSetup&)>& draw,
                           const std::function<void(const CanvasSetup&)>& check);

/// That a renderer leaves the scale fields as `setMaximalMinial` does, also on a canvas that fails.
void expect_consistent_scale_fields(int sites, const std::function<void(wafer&, PlotCanvas&)>& draw);

}  // namespace mirolen
