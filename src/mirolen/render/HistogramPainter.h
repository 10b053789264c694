#pragma once

#include <string>
#include <vector>

#include "mirolen/core/translation.h"
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
  double stat_resol;  // whole classes count alone
  std::int16_t& laenge;
  double& left;
  double& top;
  bool on_page;
};

/// A histogram, standing or lying: the order of its steps, its class counts, bars and Gauss curve. Where the
/// two differ, the step is the derived class's.
class HistogramPainter {
 public:
  void draw();

 protected:
  static constexpr Color red = 0x0000FF, blue = 0xFF0000;

  HistogramPainter(wafer& wafer, const HistogramRequest& request, double Pi)
      : wafer_(wafer), r_(request), Plot_(request.Plot), histPic_(request.histPic), Pi_(Pi) {
    r_.stat_resol = Int(r_.stat_resol);
  }
  virtual ~HistogramPainter() = default;

  /// Puts the lengths in the units and on the axes that the chart is drawn in.
  virtual void prepare_lengths() = 0;
  /// Puts the fallback lengths in force.
  virtual void fall_back() = 0;
  virtual void set_orientation() = 0;
  /// The class of a value inside the scale and at its ends; 0 for none.
  virtual double class_of(double value) const = 0;
  /// The point so far along the class axis and at a fraction of the count axis.
  virtual SurfacePoint point(double along, double fraction) const = 0;
  virtual void draw_count_axis() = 0;
  /// The ticks of a class, by its sides on the class axis.
  virtual void draw_class_ticks(double left_side, double right_side) = 0;
  /// What the marks are drawn with, before the first of them.
  virtual void set_mark_looks() = 0;
  virtual void draw_sigma_mark(int k) = 0;
  virtual void draw_axis_labels() = 0;
  virtual void draw_limits() = 0;

  template <class Statement>
  void resume(Statement&& statement) {
    ResumeNext([this] { fall_back(); })(statement);
  }

  /// The number of the class that a value strictly inside the scale falls into, not yet narrowed.
  double inner_class(double value) const {
    return round_half_even(divide(value - classBase_, classWidth_) + 0.5);  // contract 58
  }
  /// The curve at a value, as a fraction of the count axis.
  double curve(double value) const { return divide(wafer_.GaussMax, wafer_.maxHauf) * wafer_.Gauss(value); }
  /// Where a value stands on the class axis.
  double along_classes(double value) const {
    return divide((value - classBase_) * r_.breite, wafer_.maximal - classBase_);
  }
  double class_width() const { return divide(wafer_.maximal - classBase_, r_.stat_resol); }
  std::int32_t classes() const { return classes_; }
  bool has_curve() const { return wafer_.StdDev != 0 && wafer_.maxHauf != 0; }
  bool on_printer() const { return Plot_.kind() == CanvasKind::printer; }
  double twips_x() const { return mirolen::twips_x(Plot_); }
  double twips_y() const { return mirolen::twips_y(Plot_); }

  void line(PlotCanvas& canvas, double x1, double y1, double x2, double y2, Color color) {
    resume([&] { canvas.Line(line_flags, x1, y1, x2, y2, color); });
  }
  static std::string sigma_label(int k) { return k == 0 ? tr("Mean") : std::to_string(k) + "s"; }

  wafer& wafer_;
  HistogramRequest r_;
  PlotCanvas& Plot_;
  PlotCanvas& histPic_;
  double Pi_;
  double classBase_ = 0, classWidth_ = 0;
  double barBase_ = 0, barSign_ = 0;

 private:
  void make_classes();
  void set_class_base();
  void count();
  void fit_curve();
  void draw_classes();
  void draw_curve();
  void show_bars();

  /// @throws SubscriptOutOfRange for a class that there is not.
  std::int16_t& histCount(double number);
  double gauss_unit(double x) const { return 1 / std::sqrt(Pi_ + Pi_) * std::exp(x * x * -0.5); }
  bool has_classes() const { return wafer_.GetNop() > 3 && wafer_.maxHauf > 0; }

  std::int32_t classes_ = 0;
  std::vector<std::int16_t> counts_;
};

}  // namespace mirolen
