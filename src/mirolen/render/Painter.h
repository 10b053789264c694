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
  /// The same; none where there are too many.
  std::int16_t count_sites() {
    std::int16_t count = 0;
    resume([&] { count = sites(); });
    return count;
  }
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
  /// The base of a scale, a little below its lower end. @throws OverflowError.
  static double scale_base(double high, double low) {
    return high == low ? wafer::base_of_equal_limits(low) : checked(low - (high - low) * 0.1);
  }
  /// The height of a value on a scale that rises from `Low`, where it is 0, to its top.
  double height_on_scale(double value, double top, double height_of_top) const {
    return (value - wafer_.Low) * height_of_top / (top - wafer_.Low);
  }

  wafer& wafer_;
  PlotCanvas& canvas_;
  PlotArea& area_;
};

}  // namespace mirolen
