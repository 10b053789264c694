#pragma once

#include <functional>
#include <span>
#include <string_view>

// The nine controls on a screen, for measurements of whole redraws. An application of Qt must be running; the
// platform "offscreen" will do.
namespace mirolen::bench {

inline constexpr int sites_of_faces = 10'000;

/// The names of the controls; those in perspective can be dragged.
std::span<const std::string_view> control_names();
std::span<const std::string_view> names_in_perspective();

/// What the plot of a control is drawn on.
enum class Ground {
  picture,  ///< Its widget, shown.
  nothing   ///< The same widgets, but every picture of the control is a NullSurface.
};

/// Draws the plot of a control anew and handles what events come of it. The control is loaded with
/// `sites_of_faces` sites, its grid is the finest (maps) or has 10,000 cells (surfaces), the shorter side of
/// its picture is 900 pixels.
std::function<void()> redrawing(std::string_view control, Ground ground);
/// A step of a drag that turns the plot of such a control.
std::function<void()> dragging(std::string_view control, Ground ground);

}  // namespace mirolen::bench
