#pragma once

#include <string>
#include <vector>

#include "mirolen/core/wafer.h"
#include "mirolen/render/PlotCanvas.h"
#include "mirolen/render/Screen.h"

namespace mirolen {

/// What a histogram was asked for, in the caller's own variables: they are converted and, where a step fails,
/// divided in place.
struct HistogramRequest {
  PlotCanvas& Plot;     // bars, marks and curve
  PlotCanvas& histPic;  // ticks and texts
  double& x0;
  double& y0;
  double& breite;
  double& hoehe;
  double stat_resol;
  std::int16_t& laenge;
  double& left;
  double& top;
  bool on_page;
};

/// What the standing and the lying histogram share: class counts, the fit of the Gauss curve, lines and
/// texts. What a failing step does to the lengths differs, and is the derived class's.
class HistogramPainter {
 protected:
  HistogramPainter(wafer& wafer, const HistogramRequest& request, double Pi)
      : wafer_(wafer), r_(request), Plot_(request.Plot), histPic_(request.histPic), Pi_(Pi) {}
  virtual ~HistogramPainter() = default;

  /// Puts the fallback lengths in force.
  virtual void fall_back() = 0;
  /// The class of a value inside the scale and at its ends; 0 for none.
  virtual double class_of(double value) const = 0;

  template <class Statement>
  void resume(Statement&& statement) {
    ResumeNext([this] { fall_back(); })(statement);
  }

  void set_class_base();
  void count();
  void fit_curve();

  /// @throws SubscriptOutOfRange for a class that there is not.
  std::int16_t& histCount(double number);
  /// The number of the class that a value strictly inside the scale falls into, not yet narrowed.
  double inner_class(double value) const {
    return round_half_even(divide(value - classBase_, classWidth_) + 0.5);
  }
  /// The curve at a value, as a fraction of the count axis.
  double curve(double value) const { return divide(wafer_.GaussMax, wafer_.maxHauf) * wafer_.Gauss(value); }
  /// Where a value stands on a class axis of a length.
  double along(double value, double length) const {
    return divide((value - classBase_) * length, wafer_.maximal - classBase_);
  }
  double class_width() const { return divide(wafer_.maximal - classBase_, r_.stat_resol); }
  int classes() const { return static_cast<int>(round_half_even(r_.stat_resol)); }
  bool has_classes() const { return wafer_.GetNop() > 3 && wafer_.maxHauf > 0; }
  bool has_curve() const { return wafer_.StdDev != 0 && wafer_.maxHauf != 0; }
  bool on_printer() const { return Plot_.kind() == CanvasKind::printer; }
  double twips_x() const { return on_printer() ? Plot_.TwipsPerPixelX() : screen().TwipsPerPixelX; }
  double twips_y() const { return on_printer() ? Plot_.TwipsPerPixelY() : screen().TwipsPerPixelY; }

  void line(PlotCanvas& canvas, double x1, double y1, double x2, double y2, Color color) {
    resume([&] { canvas.Line(line_flags, x1, y1, x2, y2, color); });
  }
  /// One bar, filled and then outlined.
  void bar(double x1, double y1, double x2, double y2) {
    resume([&] { Plot_.Line(filled_box_flags, x1, y1, x2, y2, to_color(wafer_.ColS2)); });
    resume([&] { Plot_.Line(box_flags, x1, y1, x2, y2, QBColor(0)); });
  }
  static std::string sigma_label(int k) { return k == 0 ? "Mean" : std::to_string(k) + "s"; }

  wafer& wafer_;
  HistogramRequest r_;
  PlotCanvas& Plot_;
  PlotCanvas& histPic_;
  double Pi_;
  double classBase_ = 0, classWidth_ = 0;
  double barBase_ = 0, barSign_ = 0;

 private:
  double gauss_unit(double x) const { return 1 / std::sqrt(Pi_ + Pi_) * std::exp(x * x * -0.5); }

  std::vector<std::int16_t> counts_;
};

}  // namespace mirolen
