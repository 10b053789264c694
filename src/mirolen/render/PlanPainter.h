#pragma once

#include <algorithm>

#include "mirolen/render/Painter.h"

namespace mirolen {

/// A painter of the wafer in plan view. It leaves the canvas's scale as it is and maps by one factor for both
/// axes; wafer y grows upward.
class PlanPainter : protected Painter {
 protected:
  using Painter::Painter;

  /// Fits so many millimetres each way into the area.
  void fit(double millimetres) {
    resume([&] {
      const double x = divide(area_.width - margin, millimetres);
      const double y = divide(area_.height - margin, millimetres);
      S_ = std::min(x, y);
    });
    set_centre();
  }
  void set_centre() {
    cx_ = area_.left + area_.width / 2;
    cy_ = area_.top + area_.height / 2;
  }
  SurfacePoint on_canvas(SurfacePoint at) const { return {cx_ + S_ * at.x, cy_ - S_ * at.y}; }

  /// Sets the canvas for the disc under the map or the texts.
  void prepare_disc() {
    resume([&] { canvas_.FillStyle(solid_fill); });
    resume([&] { canvas_.FillColor(QBColor(15)); });
    resume([&] { canvas_.DrawStyle(solid_line); });
    resume([&] { canvas_.DrawWidth(1); });
  }

  /// The height of a value on a scale that has the height S at its top.
  double norm(double z, double top) const { return height_on_scale(z, top, S_); }
  /// The height of one of ten bands on that scale.
  double band_height(double high, double low) const {
    return checked(S_ * (1 - divide((high - low) * 0.1, high - wafer_.Low)) / 10);
  }

  double S_ = 0, cx_ = 0, cy_ = 0;  // scale units per millimetre, and the wafer's centre

 private:
  static constexpr double margin = 6;  // scale units left free in width and height
};

}  // namespace mirolen
