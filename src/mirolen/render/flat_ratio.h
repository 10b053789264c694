#pragma once

namespace mirolen {

/// The `flat_ratio` of a wafer with a notch; any other is one of a flat.
inline constexpr double notch = 1;  // contract 29

}  // namespace mirolen
