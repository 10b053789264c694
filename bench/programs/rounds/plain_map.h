#pragma once

#include "core/plain_wafer.h"
#include "mirolen/render/Surface.h"
#include "support/wafers.h"

namespace mirolen::bench {

/// A wafer with the sites, in the plainest words.
PlainWafer plain_loaded(const Sites& sites);

/// Draws the colour map of a wafer with a notch over a whole picture in the plainest words: each node is
/// interpolated by itself, each cell is a polygon of its own.
void draw_plain_map(const PlainWafer& source, Surface& surface, int cells);

}  // namespace mirolen::bench
