#pragma once

#include <string>

#include "mirolen/render/PlotCanvas.h"

namespace mirolen::print {

// A group box in the lines and the font of the canvas, whose upper edge lies a text height below top and its
// lower one as much below top + height.

/// The upper edge leaves room for the caption, which stands on it.
void draw_captioned_frame(PlotCanvas& canvas, const std::string& caption, double left, double top,
                          double width, double height);
void draw_closed_frame(PlotCanvas& canvas, double left, double top, double width, double height);

}  // namespace mirolen::print
