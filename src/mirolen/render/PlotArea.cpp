#include "mirolen/render/PlotArea.h"

#include "mirolen/core/RunTimeError.h"
#include "mirolen/render/Screen.h"

namespace mirolen {
namespace {

constexpr double fallback_twips_per_pixel = 4.8;  // contract 67

thread_local std::int64_t failures_of_canvases = 0;

/// Called while an error is handled.
bool is_of_canvas() {
  try {
    throw;
  } catch (const CanvasError&) {
    return true;
  } catch (...) {
    return false;
  }
}

}  // namespace

std::int64_t PlotArea::canvas_failures() { return failures_of_canvases; }

void PlotArea::clear() {
  if (on_page_) return;
  resume([&] { canvas_.Cls(); });
  resume([&] { canvas_.Refresh(); });
}

void PlotArea::locate() {
  if (in_twips()) {
    resume([&] { left = edge(divide(page_.left, twips_x(canvas_))); });
    resume([&] { width = edge(divide(page_.width, twips_x(canvas_))); });
    resume([&] { top = edge(divide(page_.top, twips_y(canvas_))); });
    resume([&] { height = height_edge(divide(page_.height, twips_y(canvas_))); });
  } else {
    resume([&] { left = edge(canvas_.ScaleLeft()); });
    resume([&] { width = edge(canvas_.ScaleWidth()); });
    resume([&] { top = edge(canvas_.ScaleTop()); });
    resume([&] { height = height_edge(canvas_.ScaleHeight()); });
  }
}

void PlotArea::fall_back() {
  if (is_of_canvas()) ++failures_of_canvases;
  const auto keep_if_too_large = [](double& target, auto value) {
    try {
      target = value();
    } catch (const OverflowError&) {
      // What even the fallback cannot hold stays as it was.
    }
  };
  keep_if_too_large(left, [&] { return edge(page_.left / fallback_twips_per_pixel); });
  keep_if_too_large(width, [&] { return edge(page_.width / fallback_twips_per_pixel); });
  keep_if_too_large(top, [&] { return edge(page_.top / fallback_twips_per_pixel); });
  keep_if_too_large(height, [&] { return height_edge(page_.height / fallback_twips_per_pixel); });
}

}  // namespace mirolen
