#pragma once

#include "mirolen/render/PlotCanvas.h"

namespace mirolen {

/// The side of a preview, in twips.
inline constexpr double preview_side = 1500;

/// Shows how the grid of a plot in perspective lies for a rotation and an inclination in degrees (90 is seen
/// from above): a board of 5 by 5 cells, turned as the plot turns, its corner cell red.
void DrawViewPreview(PlotCanvas& box, double rot, double incl);

}  // namespace mirolen
