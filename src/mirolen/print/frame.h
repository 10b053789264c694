#pragma once

#include <string>

#include "mirolen/render/PlotCanvas.h"

namespace mirolen::print {

// A group box in the lines and the font of the canvas, whose upper edge lies a text height below top and its
// lower one as much below top + height.

inline double as_it_is(double place) { return place; }

/// The upper edge leaves room for the caption, which stands on it. @param place makes a place on the canvas
/// of each sum of lengths.
void draw_captioned_frame(PlotCanvas& canvas, const std::string& caption, double left, double top,
                          double width, double height, double (*place)(double) = as_it_is);
void draw_closed_frame(PlotCanvas& canvas, double left, double top, double width, double height);

}  // namespace mirolen::print
