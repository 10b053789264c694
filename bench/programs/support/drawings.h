#pragma once

#include <memory>
#include <span>
#include <string>

#include "mirolen/core/wafer.h"
#include "mirolen/render/SurfaceCanvas.h"

// The renderers as the measurements call them, each over the whole of a picture.
namespace mirolen::bench {

/// Pixels along a side of the picture that everything is drawn on.
inline constexpr int picture_side = 900;

/// Cells along a side of a surface of 10,000.
inline constexpr int surface_cells = 100;

struct Drawing {
  const char* name;
  void (*draw)(wafer& source, PlotCanvas& canvas);
};
std::span<const Drawing> drawings();

void draw_color_map(wafer& source, PlotCanvas& canvas, int cells);
void draw_sigma_map(wafer& source, PlotCanvas& canvas, int cells);
/// A surface of so many cells along a side, coloured and with edges.
void draw_surface(wafer& source, PlotCanvas& canvas, int cells);
/// Curves 1 % of the mean apart, over a net as fine as it can be.
void draw_contour(wafer& source, PlotCanvas& canvas);
/// A square colour map on a page, 15 cm wide.
void print_color_map(wafer& source, PlotCanvas& page, int cells);

/// Draws on a picture as a control does.
template <class Draw>
void on_picture(Surface& surface, const Draw& draw) {
  SurfaceCanvas canvas(CanvasKind::picture_box, &surface);
  draw(canvas);
}

}  // namespace mirolen::bench
