#pragma once

#include <cstdint>

namespace mirolen {

/// Style of the orientation mark.
enum class WaferSt : std::int32_t { Notch = 1, Flat = 2 };

/// Whether sites are marked on a plot.
enum class Sites : std::int32_t { ShowSite = -1, HideSite = 0 };

}  // namespace mirolen
