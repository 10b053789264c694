#include <cmath>

#include "mirolen/render/ControlLimits.h"
#include "mirolen/render/HistogramPainter.h"
#include "mirolen/render/Screen.h"
#include "mirolen/render/StringFormat.h"

namespace mirolen {
namespace {

constexpr Color red = 0x0000FF, blue = 0xFF0000, dark_blue = 0xC00000;

/// The standing histogram: bars grow up from the bottom edge or down from the top edge.
class StandingHistogram : HistogramPainter {
 public:
  StandingHistogram(wafer& wafer, const HistogramRequest& request, bool from_bottom, double Pi)
      : HistogramPainter(wafer, request, Pi), from_bottom_(from_bottom) {}

  void draw();

 private:
  void fall_back() override;
  double class_of(double value) const override;
  void convert_page();
  void set_orientation();
  void draw_count_axis();
  void draw_classes();
  void draw_class_ticks(double left_side, double right_side);
  void draw_sigma_marks();
  void draw_sigma_mark(int k);
  void draw_curve();
  void draw_class_labels();
  void draw_limits(double low, double high);
  void draw_limit(double limit, const char* name);
  void write_below(double px, const std::string& text);
  void label(double centre, double top, const std::string& text);
  double y_of(double fraction) const {
    return barBase_ + r_.top - barSign_ * (r_.hoehe - r_.hoehe * fraction);
  }
  double base_line() const { return barBase_ + r_.top - barSign_ * r_.hoehe; }
  double along_classes(double value) const { return along(value, r_.breite); }

  bool from_bottom_;
  double markOver_ = 0;
  std::int16_t axisBottom_ = 0, tickLeft_ = 0;
  int q_ = 0;  // the counter of the last loop, which decides about the inner labels
};

void StandingHistogram::fall_back() {
  for (double* length : {&r_.x0, &r_.y0, &r_.hoehe, &r_.left, &r_.top}) *length /= 4.8;
  r_.laenge = to_int16(r_.laenge / 4.8);
}

void StandingHistogram::draw() {
  if (r_.on_page) convert_page();
  resume([&] { Plot_.FillColor(QBColor(2)); });
  resume([&] { Plot_.DrawWidth(1); });
  set_orientation();
  resume([&] { set_class_base(); });
  count();
  fit_curve();
  draw_count_axis();
  if (has_classes()) draw_classes();
  if (!r_.on_page) {
    resume([&] { histPic_.Refresh(); });
    resume([&] { Plot_.Refresh(); });
  }
  if (has_curve()) {
    draw_sigma_marks();
    draw_curve();
  }
  draw_class_labels();
  if (wafer_.vLcl != wafer_.vUcl) draw_limits(wafer_.vLcl, wafer_.vUcl);
  if (control_limits().ShowCL) draw_limits(control_limits().ClLow, control_limits().ClHigh);
  if (!r_.on_page) resume([&] { Plot_.Refresh(); });
  resume([&] { Plot_.DrawWidth(1); });
}

void StandingHistogram::convert_page() {
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

/// Values beyond the plot limits pile up in the two end classes.
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
    // A place is held against a size, so nearly every tick gets its number.
    double half_text = 0;
    resume([&] { half_text = histPic_.TextHeight("0") / 2; });
    if (!(axisBottom_ - r_.hoehe / most > half_text) && m != most) continue;
    const auto number = [](std::int32_t n) { return StringFormat::FormatField(n, 0, 0, false); };
    resume([&] { histPic_.CurrentX(r_.x0 - 2 * histPic_.TextWidth(number(most))); });
    resume([&] { histPic_.CurrentY(y - half_text); });
    resume([&] { histPic_.Print(number(from_bottom_ ? m : most - m)); });
  }
}

void StandingHistogram::draw_classes() {
  const double s = r_.breite / r_.stat_resol;
  for (int b = 1; b <= classes(); ++b) {
    if (const double height = histCount(b); height > 0)
      bar((b - 1) * s + r_.left, y_of(height / wafer_.maxHauf), s * b + r_.left, base_line());
    draw_class_ticks((b - 1) * s, s * b);
  }
  draw_class_ticks(Int(r_.stat_resol) * s, r_.breite);
  q_ = classes() + 1;
}

void StandingHistogram::draw_class_ticks(double left_side, double right_side) {
  if (r_.on_page) {
    const double base = r_.top + r_.hoehe;
    line(histPic_, left_side + r_.left, base + r_.laenge, left_side + r_.left, base, QBColor(1));
    line(histPic_, right_side + r_.left, base + r_.laenge, right_side + r_.left, base, QBColor(1));
  } else {
    // The first one runs behind the picture of the bars, which hides it.
    line(histPic_, left_side + r_.x0, r_.laenge + r_.x0, left_side + r_.x0, axisBottom_, QBColor(1));
    line(histPic_, right_side + r_.x0, axisBottom_ + r_.laenge + 2, right_side + r_.x0, axisBottom_,
         QBColor(1));
  }
}

void StandingHistogram::draw_sigma_marks() {
  resume([&] { Plot_.DrawWidth(2); });
  resume([&] { histPic_.CurrentY(Plot_.height() + 30); });
  resume([&] { histPic_.ForeColor(red); });
  if (!r_.on_page) resume([&] { histPic_.Font({"MS Sans Serif", 8}); });
  resume([&] { histPic_.ForeColor(to_color(wafer_.ColS1)); });
  for (int k = -3; k <= 3; ++k) draw_sigma_mark(k);
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
  resume([&] { histPic_.Font({"MS Sans Serif", kept.size}); });
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

void StandingHistogram::draw_curve() {
  resume([&] { histPic_.ForeColor(blue); });
  resume([&] { Plot_.DrawWidth(on_printer() ? 4 : 2); });
  double f0 = 0;
  resume([&] { f0 = curve(classBase_); });
  for (q_ = 1; q_ <= r_.breite; ++q_) {
    const int p = q_;
    resume([&] {
      const double f1 = curve(divide(wafer_.maximal - classBase_, r_.breite) * p + classBase_);
      if (f0 > 1 || f1 > 1) return;
      Plot_.Line(line_flags, p + r_.left - 1, y_of(f0), p + r_.left, y_of(f1), to_color(wafer_.ColS1));
      f0 = f1;
    });
  }
  if (!r_.on_page) resume([&] { Plot_.Refresh(); });
  resume([&] { Plot_.DrawWidth(1); });
}

void StandingHistogram::draw_class_labels() {
  const double width = r_.on_page ? r_.breite : 0;
  double left = 0, span = 0, top = 0;
  resume([&] { left = r_.on_page ? r_.left : Plot_.left(); });
  resume([&] { span = r_.on_page ? width : Plot_.width(); });
  resume([&] { top = r_.on_page ? r_.top + r_.hoehe + 20 : Plot_.height() + 20; });
  const bool narrow = r_.on_page && r_.breite < 2500;
  bool useExp = false;
  std::int16_t decimals = StringFormat::DecimalsFor(classBase_, narrow ? 4 : 6, useExp);
  if (useExp) decimals = narrow ? 2 : 3;
  const auto text_of = [&](double value) { return StringFormat::FormatField(value, 0, decimals, useExp); };

  double c = 0, w = 0;
  resume([&] { c = class_width(); });
  resume([&] { w = to_int16(divide(span, r_.stat_resol)); });
  label(left, top, text_of(classBase_));
  resume([&] {
    if (!(w > histPic_.TextWidth(text_of(c * q_ + classBase_)))) return;
    for (int q = 1; q <= classes() - 1; ++q) label(left + q * w, top, text_of(c * q + classBase_));
  });
  label(left + span, top, text_of(wafer_.maximal));
}

void StandingHistogram::label(double centre, double top, const std::string& text) {
  resume([&] { histPic_.CurrentX(centre - histPic_.TextWidth(text) / 2); });
  resume([&] { histPic_.CurrentY(top); });
  resume([&] { histPic_.Print(text); });
}

void StandingHistogram::draw_limits(double low, double high) {
  resume([&] { histPic_.ForeColor(dark_blue); });
  resume([&] { Plot_.DrawWidth(on_printer() ? 6 : 4); });
  draw_limit(low, "LCL");
  draw_limit(high, "UCL");
}

void StandingHistogram::draw_limit(double limit, const char* name) {
  double px = 0;
  resume([&] { px = along_classes(limit); });
  line(Plot_, r_.left + px, r_.top, r_.left + px, r_.hoehe, QBColor(1));
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
