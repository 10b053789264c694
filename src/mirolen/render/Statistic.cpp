#include <cmath>

#include "mirolen/core/translation.h"
#include "mirolen/render/ControlLimits.h"
#include "mirolen/render/HistogramPainter.h"
#include "mirolen/render/Screen.h"
#include "mirolen/render/StringFormat.h"

namespace mirolen {
namespace {

constexpr Color limit_text_color = 0xC00000;

/// The standing histogram: bars grow up from the bottom edge or down from the top edge.
class StandingHistogram : public HistogramPainter {
 public:
  StandingHistogram(wafer& wafer, const HistogramRequest& request, bool from_bottom, double Pi)
      : HistogramPainter(wafer, request, Pi), from_bottom_(from_bottom) {}

 private:
  void prepare_lengths() override;
  void fall_back() override;
  void set_orientation() override;
  double class_of(double value) const override;
  SurfacePoint point(double along, double fraction) const override {
    return {along + r_.left, y_of(fraction)};
  }
  void draw_count_axis() override;
  void draw_class_ticks(double left_side, double right_side) override;
  void set_mark_looks() override;
  void draw_sigma_mark(int k) override;
  void draw_axis_labels() override;
  void draw_limits() override;

  void draw_limit_pair(double low, double high);
  void draw_limit(double limit, const std::string& name);
  void write_below(double px, const std::string& text);
  void label(double centre, double top, double value);
  std::string text_of(double value) const;
  double y_of(double fraction) const {
    return barBase_ + r_.top - barSign_ * (r_.hoehe - r_.hoehe * fraction);
  }

  bool from_bottom_;
  double markOver_ = 0;
  std::int16_t axisBottom_ = 0, tickLeft_ = 0;
  std::int16_t decimals_ = 0;  // of the class labels, and their form
  bool useExp_ = false;
};

void StandingHistogram::fall_back() {  // contract 67
  for (double* length : {&r_.x0, &r_.y0, &r_.hoehe, &r_.left, &r_.top}) *length /= 4.8;
  r_.laenge = to_int16(r_.laenge / 4.8);
}

void StandingHistogram::prepare_lengths() {
  if (!r_.on_page) return;
  for (double* across : {&r_.x0, &r_.breite, &r_.left}) resume([&] { *across = divide(*across, twips_x()); });
  for (double* down : {&r_.y0, &r_.hoehe, &r_.top}) resume([&] { *down = divide(*down, twips_y()); });
  resume([&] { r_.laenge = to_int16(divide(r_.laenge, twips_y())); });
}

void StandingHistogram::set_orientation() {
  resume([&] { axisBottom_ = to_int16(r_.hoehe + r_.y0); });
  barBase_ = from_bottom_ ? 0 : r_.hoehe;
  barSign_ = from_bottom_ ? -1 : 1;
  markOver_ = from_bottom_ ? 10 : 0;
  resume([&] { tickLeft_ = to_int16(r_.x0 - r_.laenge); });
}

/// Values beyond the plot limits pile up in the two end classes. (contract 59)
double StandingHistogram::class_of(double value) const {
  if (value <= classBase_) return 1;
  if (value >= wafer_.maximal) return r_.stat_resol;
  return static_cast<float>(inner_class(value));
}

void StandingHistogram::draw_count_axis() {
  const std::int32_t most = wafer_.maxHauf;
  for (std::int32_t m = 1; m <= most; ++m) {
    const double y = axisBottom_ - m * r_.hoehe / most;
    line(histPic_, tickLeft_, y, r_.x0, y, QBColor(1));
    // A place is held against a size, so nearly every tick gets its number. (contract 81)
    double half_text = 0;
    resume([&] { half_text = histPic_.TextHeight("0") / 2; });
    if (!(axisBottom_ - r_.hoehe / most > half_text) && m != most) continue;
    const auto number = [](std::int32_t n) { return StringFormat::FormatField(n, 0, 0, false); };
    resume([&] { histPic_.CurrentX(r_.x0 - 2 * histPic_.TextWidth(number(most))); });
    resume([&] { histPic_.CurrentY(y - half_text); });
    resume([&] { histPic_.Print(number(from_bottom_ ? m : most - m)); });
  }
}

void StandingHistogram::draw_class_ticks(double left_side, double right_side) {
  if (r_.on_page) {
    const double base = r_.top + r_.hoehe;
    line(histPic_, left_side + r_.left, base + r_.laenge, left_side + r_.left, base, QBColor(1));
    line(histPic_, right_side + r_.left, base + r_.laenge, right_side + r_.left, base, QBColor(1));
  } else {
    // The first one runs behind the picture of the bars, which hides it. (contract 80)
    line(histPic_, left_side + r_.x0, r_.laenge + r_.x0, left_side + r_.x0, axisBottom_, QBColor(1));
    line(histPic_, right_side + r_.x0, axisBottom_ + r_.laenge + 2, right_side + r_.x0, axisBottom_,
         QBColor(1));
  }
}

void StandingHistogram::set_mark_looks() {
  resume([&] { histPic_.CurrentY(Plot_.height() + 30); });
  resume([&] { histPic_.ForeColor(red); });  // contract 87
  if (!r_.on_page) resume([&] { histPic_.Font({"MS Sans Serif"}); });
  resume([&] { histPic_.ForeColor(to_color(wafer_.ColS1)); });
}

void StandingHistogram::draw_sigma_mark(int k) {
  const double value = k * wafer_.StdDev + wafer_.mean;
  double px = 0;
  resume([&] { px = along_classes(value); });
  if (!(px > 0 && px < r_.breite)) return;
  resume([&] {
    const double end = barBase_ + r_.top - (markOver_ + r_.hoehe) * barSign_;
    Plot_.Line(line_flags, r_.left + px, y_of(curve(value)), r_.left + px, end, to_color(wafer_.ColS1));
  });
  const std::string text = sigma_label(k);
  if (k != 0) return write_below(px, text);
  FontSpec kept;
  resume([&] { kept = histPic_.Font(); });
  resume([&] { histPic_.Font({"MS Sans Serif"}); });
  write_below(px, text);
  resume([&] { histPic_.Font(kept); });
}

/// A text under the chart, in the row of marks and limits.
void StandingHistogram::write_below(double px, const std::string& text) {
  if (r_.on_page) {
    resume([&] { histPic_.CurrentX(r_.left + px - histPic_.TextWidth(text) / 2); });
    resume([&] { histPic_.CurrentY(r_.top + r_.hoehe + 2 * histPic_.TextHeight("0")); });
  } else {
    resume([&] { histPic_.CurrentY(Plot_.height() + 30); });
    resume([&] { histPic_.CurrentX(Plot_.left() + px - histPic_.TextWidth(text) / 2); });
  }
  resume([&] { histPic_.Print(text); });
}

void StandingHistogram::draw_axis_labels() {
  double left = 0, span = 0, top = 0;
  resume([&] { left = r_.on_page ? r_.left : Plot_.left(); });
  resume([&] { span = r_.on_page ? r_.breite : Plot_.width(); });
  resume([&] { top = r_.on_page ? r_.top + r_.hoehe + 20 : Plot_.height() + 20; });
  const bool narrow = r_.on_page && r_.breite < 2500;
  resume([&] { decimals_ = StringFormat::DecimalsFor(classBase_, narrow ? 4 : 6, useExp_); });
  if (useExp_) decimals_ = narrow ? 2 : 3;

  double c = 0, w = 0;
  resume([&] { c = class_width(); });
  resume([&] { w = to_int16(divide(span, r_.stat_resol)); });
  label(left, top, classBase_);
  // The first boundary behind the last loop, of the curve's points or of the classes. (contract 82)
  const double q = has_curve() ? Int(r_.breite) + 1 : classes() + 1;
  resume([&] {
    if (!(w > histPic_.TextWidth(text_of(c * q + classBase_)))) return;
    for (std::int32_t b = 1; b <= classes() - 1; ++b) label(left + b * w, top, c * b + classBase_);
  });
  label(left + span, top, wafer_.maximal);
}

std::string StandingHistogram::text_of(double value) const {
  return StringFormat::FormatField(value, 0, decimals_, useExp_);
}

void StandingHistogram::label(double centre, double top, double value) {
  resume([&] { histPic_.CurrentX(centre - histPic_.TextWidth(text_of(value)) / 2); });
  resume([&] { histPic_.CurrentY(top); });
  resume([&] { histPic_.Print(text_of(value)); });
}

void StandingHistogram::draw_limits() {  // contract 85
  if (wafer_.vLcl != wafer_.vUcl) draw_limit_pair(wafer_.vLcl, wafer_.vUcl);
  if (control_limits().ShowCL) draw_limit_pair(control_limits().ClLow, control_limits().ClHigh);
}

void StandingHistogram::draw_limit_pair(double low, double high) {
  resume([&] { histPic_.ForeColor(limit_text_color); });
  resume([&] { Plot_.DrawWidth(on_printer() ? 6 : 4); });
  draw_limit(low, tr("LCL"));
  draw_limit(high, tr("UCL"));
}

void StandingHistogram::draw_limit(double limit, const std::string& name) {
  double px = 0;
  resume([&] { px = along_classes(limit); });
  line(Plot_, r_.left + px, r_.top, r_.left + px, r_.hoehe, QBColor(1));  // contract 83
  write_below(px, name);
}

}  // namespace

void wafer::Statistic(std::int16_t PlotType, PlotCanvas& Plot, PlotCanvas& histPic, double& x0, double& y0,
                      double& breite, double& hoehe, double stat_resol, std::int16_t& laenge, double& left,
                      double& top, std::int16_t ShowDisp) {
  constexpr std::int16_t vbbottom = 1, vbLeft = 3, vbRight = 4;
  if (PlotType == vbLeft || PlotType == vbRight)
    return Statistic_Quer(PlotType == vbRight, Plot, histPic, x0, y0, breite, hoehe,
                          static_cast<float>(stat_resol), laenge, left, top, ShowDisp);
  const HistogramRequest request{Plot,       histPic, x0,   y0,  breite,       hoehe,
                                 stat_resol, laenge,  left, top, ShowDisp == 1};
  StandingHistogram(*this, request, PlotType == vbbottom, Pi).draw();
}

}  // namespace mirolen
