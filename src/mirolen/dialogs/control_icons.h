#pragma once

#include <cstdint>

#include "mirolen/render/PlotCanvas.h"

namespace mirolen {

/// Pixels of a side of an icon.
inline constexpr int icon_side = 32;

/// Draws the icon of a control, by the number of its type (1 to 9), on a canvas whose scale is pixels. Any
/// other type leaves the canvas blank.
void draw_control_icon(PlotCanvas& canvas, std::int16_t type);

}  // namespace mirolen
