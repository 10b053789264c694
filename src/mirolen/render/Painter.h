#pragma once

#include "mirolen/core/wafer.h"
#include "mirolen/render/PlotArea.h"

namespace mirolen {

/// One call of a renderer: the wafer that it draws, the canvas, and the area that guards its statements. A
/// renderer whose steps share more than that is a class on this one; its members are the steps.
class Painter {
 protected:
  Painter(wafer& wafer, PlotCanvas& canvas, PlotArea& area) : wafer_(wafer), canvas_(canvas), area_(area) {}

  /// The number of sites. @throws OverflowError beyond 16 bits.
  std::int16_t sites() const { return to_int16(static_cast<double>(wafer_.GridVal.size())); }
  SurfacePoint position(std::int32_t site) const {
    const wafer::Position& at = wafer_.position_of(site);
    return {at.x, at.y};
  }
  double value(std::int32_t site) const { return wafer_.value_of(site); }

  /// Runs a statement that may fail, and goes on behind it.
  template <class Statement>
  void resume(Statement&& statement) {
    area_.resume(statement);
  }
  /// Shows progress on a picture box.
  void show() {
    if (canvas_.kind() == CanvasKind::picture_box) resume([&] { canvas_.Refresh(); });
  }
  /// The scale base for limits that are equal.
  static double base_of_equal_limits(double limit) { return wafer::base_of_equal_limits(limit); }

  wafer& wafer_;
  PlotCanvas& canvas_;
  PlotArea& area_;
};

}  // namespace mirolen
