#pragma once

#include <memory>

#include "mirolen/render/PlotCanvas.h"

namespace mirolen::print {

/// The canvas behind a target. @throws InvalidArgument without one.
PlotCanvas& canvas_of(const std::shared_ptr<PlotCanvas>& target);

/// Width of lines on a printer, whose pixels are small, and elsewhere.
inline std::int16_t line_width(const PlotCanvas& canvas, std::int16_t on_printer, std::int16_t elsewhere) {
  return canvas.kind() == CanvasKind::printer ? on_printer : elsewhere;
}

}  // namespace mirolen::print
