#pragma once

#include <cstdint>

namespace mirolen {

/// Style of the orientation mark.
enum class WaferSt : std::int32_t { Notch = 1, Flat = 2 };

/// Whether sites are marked on a plot.
enum class Sites : std::int32_t { ShowSite = -1, HideSite = 0 };  // contract 7

/// How a line scan's line is told.
enum class PlotTypeEnumLineScan : std::int32_t { vbAngle = 1, vbline = 2 };  // contract 7

/// What a contour plot marks: the sites, the nodes of its mesh, nothing.
enum class ExconEnum : std::int32_t { Exact = 1, Converted = 2, None = 3 };  // contract 7

/// Mesh of a contour plot.
enum class ResoEnum : std::int32_t { LowQuality = 0, HighQuality = 1, Automatic = 2 };

/// Colours of a contour plot's curves.
enum class DrawColEnum : std::int32_t { BWhitePlot = 0, Three_ColorPlot = 1, Ten_ColorPlot = 2 };

/// Look of a surface. HiddenWireFrame shows every edge, WireFrame hides what lies behind.
enum class PlotTypeEnum : std::int32_t { PolyEdge = 1, HiddenWireFrame = 2, WireFrame = 3 };  // contract 8

/// Where a histogram's base line lies.
enum class PlotTyEnum : std::int32_t { vbbottom = 1, vbTop = 2, vbLeft = 3, vbRight = 4 };  // contract 7

}  // namespace mirolen
