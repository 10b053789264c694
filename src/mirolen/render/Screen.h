#pragma once

#include <functional>
#include <string>

namespace mirolen {

class PlotCanvas;

/// What the renderers, which know no toolkit, need of the screen. Each thread has its own: a toolkit's, for
/// all controls, on theirs, and one without messages where a wafer is drawn on another.
struct Screen {
  /// Twips of a pixel, for a page target that is no printer.
  double TwipsPerPixelX = 15;
  double TwipsPerPixelY = 15;
  /// Shows a message modally; without one nothing is shown.
  std::function<void(const std::string& text, const std::string& title)> message;
};
Screen& screen();

/// Twips of a pixel by which a page's lengths are counted: a printer's own, otherwise those of the screen.
double twips_x(const PlotCanvas& canvas);
double twips_y(const PlotCanvas& canvas);

}  // namespace mirolen
