#include <cmath>
#include <utility>

#include "mirolen/render/ControlLimits.h"
#include "mirolen/render/HistogramPainter.h"
#include "mirolen/render/Screen.h"
#include "mirolen/render/StringFormat.h"

namespace mirolen {
namespace {

constexpr Color red = 0x0000FF, blue = 0xFF0000, dark_blue = 0x800000;

/// A value in a format that grows leading zeros while the text reads as zero; 0 shows the format itself.
std::string format_scaled(double value, std::string fmt) {
  constexpr std::size_t most_places = 16;
  if (value == 0) return fmt;
  if (std::abs(value) < 0.00001 || value > 99999.99) return StringFormat::format_number(value, "0.00E+0");
  std::string text = StringFormat::format_number(value, fmt);
  while (text.find_first_of("123456789") == std::string::npos && fmt.size() < most_places) {
    fmt.insert(0, 1, '0');
    text = StringFormat::format_number(value, fmt);
  }
  return text;
}

/// The histogram turned by a quarter: classes run upward along breite, counts across along hoehe.
class LyingHistogram : HistogramPainter {
 public:
  LyingHistogram(wafer& wafer, const HistogramRequest& request, bool from_right, double Pi)
      : HistogramPainter(wafer, request, Pi), from_right_(from_right) {}

  void draw();

 private:
  void fall_back() override;
  double class_of(double value) const override;
  void exchange_axes();
  void set_orientation();
  void draw_count_axis();
  void draw_classes();
  void draw_sigma_marks();
  void draw_sigma_mark(int k);
  void draw_curve();
  void draw_end_labels();
  void draw_limit(double limit, const char* name);
  void write_beside(double py, const std::string& text, const char* measured);
  double clamped(double x) const;
  double x_of(double fraction) const {
    return barBase_ + r_.left - barSign_ * (r_.hoehe - r_.hoehe * fraction);
  }
  double base_line() const { return barBase_ + r_.left - barSign_ * r_.hoehe; }
  double y_of(double along_classes) const { return r_.top + r_.breite - along_classes; }

  bool from_right_;
};

void LyingHistogram::fall_back() {
  std::swap(r_.breite, r_.hoehe);
  for (double* length : {&r_.x0, &r_.y0, &r_.breite, &r_.hoehe, &r_.left, &r_.top}) *length /= 4.8;
  r_.laenge = to_int16(r_.laenge / 4.8);
}

/// A value strictly beyond the limits is counted nowhere.
double LyingHistogram::class_of(double value) const {
  if (value == classBase_) return 1;
  if (value == wafer_.maximal) return r_.stat_resol;
  if (value < classBase_ || value > wafer_.maximal) return 0;
  return to_int16(inner_class(value));
}

void LyingHistogram::exchange_axes() {
  std::swap(r_.breite, r_.hoehe);
  if (!r_.on_page) return;
  resume([&] { r_.x0 = divide(r_.x0, twips_x()); });
  resume([&] { r_.hoehe = divide(r_.hoehe, twips_x()); });
  resume([&] { r_.left = divide(r_.left, twips_x()); });
  resume([&] { r_.y0 = divide(r_.y0, twips_y()); });
  resume([&] { r_.breite = divide(r_.breite, twips_y()); });
  resume([&] { r_.top = divide(r_.top, twips_y()); });
  resume([&] { r_.laenge = to_int16(divide(r_.laenge, on_printer() ? twips_y() : twips_x())); });
}

void LyingHistogram::set_orientation() {
  barBase_ = from_right_ ? 0 : r_.hoehe;
  barSign_ = from_right_ ? -1 : 1;
}

void LyingHistogram::draw() {
  exchange_axes();
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
  draw_end_labels();
  if (const ControlLimits& limits = control_limits(); limits.ShowCL) {
    resume([&] { histPic_.ForeColor(blue); });
    draw_limit(limits.ClLow, "LCL");
    draw_limit(limits.ClHigh, "UCL");
  }
  if (!r_.on_page) resume([&] { Plot_.Refresh(); });
  resume([&] { Plot_.DrawWidth(1); });
}

void LyingHistogram::draw_count_axis() {
  const double x0 = r_.on_page ? r_.left : r_.x0, y0 = r_.on_page ? r_.top : r_.y0;
  for (std::int32_t m = 1; m <= wafer_.maxHauf; ++m) {
    const double x = x0 + m * r_.hoehe / wafer_.maxHauf;
    line(histPic_, x, r_.laenge + r_.breite + y0, x, r_.breite + y0, QBColor(1));
  }
}

void LyingHistogram::draw_classes() {
  const double s = r_.breite / r_.stat_resol;
  for (int b = 1; b <= classes(); ++b)
    if (const double height = histCount(b); height > 0)
      bar(x_of(height / wafer_.maxHauf), y_of((b - 1) * s), base_line(), y_of(b * s));
}

void LyingHistogram::draw_sigma_marks() {
  resume([&] { Plot_.DrawWidth(2); });
  resume([&] { histPic_.ForeColor(red); });
  FontSpec symbol;
  resume([&] { symbol = histPic_.Font(); });
  symbol.Name = "Symbol";
  resume([&] { histPic_.Font(symbol); });
  resume([&] { histPic_.ForeColor(to_color(wafer_.ColS1)); });
  for (int k = -3; k <= 3; ++k) draw_sigma_mark(k);
}

void LyingHistogram::draw_sigma_mark(int k) {
  const double value = k * wafer_.StdDev + wafer_.mean;
  double py = 0;
  resume([&] { py = along(value, r_.breite); });
  if (!(py > 0 && py < r_.breite)) return;
  const double end = barBase_ + r_.left - (r_.hoehe + 5) * barSign_;
  resume([&] {
    Plot_.Line(line_flags, clamped(x_of(curve(value))), y_of(py), end, y_of(py), to_color(wafer_.ColS1));
  });
  FontSpec font;
  resume([&] { font = histPic_.Font(); });
  font.Name = k == 0 ? "Arial" : "Symbol";
  resume([&] { histPic_.Font(font); });
  write_beside(py, sigma_label(k), nullptr);
  font.Name = "Symbol";
  resume([&] { histPic_.Font(font); });
}

/// On paper a mark ends at the chart's sides; on a screen the picture's edge does that.
double LyingHistogram::clamped(double x) const {
  if (!on_printer()) return x;
  if (x > r_.left + r_.hoehe) return to_int32(r_.left + r_.hoehe);
  return x < r_.left ? to_int32(r_.left) : x;
}

/// A text beside the chart at a height above its base; on the screen its own height is that of measured, if
/// told.
void LyingHistogram::write_beside(double py, const std::string& text, const char* measured) {
  if (r_.on_page) {
    resume([&] { histPic_.CurrentX(r_.left - 1.5 * histPic_.TextWidth(text)); });
    resume([&] { histPic_.CurrentY(y_of(py) - histPic_.TextHeight(text) / 2); });
  } else {
    resume([&] {
      const double half = histPic_.TextHeight(measured ? measured : text) / 2;
      histPic_.CurrentY(r_.breite - (r_.left + py) - half);
    });
    resume([&] { histPic_.CurrentX(0); });
  }
  resume([&] { histPic_.Print(text); });
}

void LyingHistogram::draw_curve() {
  resume([&] { histPic_.ForeColor(blue); });
  resume([&] { Plot_.DrawWidth(on_printer() ? 4 : 2); });
  double f0 = 0;
  resume([&] { f0 = curve(classBase_); });
  for (int p = 1; p <= r_.breite; ++p) {
    resume([&] {
      const double f1 = curve(divide(wafer_.maximal - classBase_, r_.breite) * p + classBase_);
      if (f0 > 1 || f1 > 1) return;
      Plot_.Line(line_flags, x_of(f0), y_of(p - 1), x_of(f1), y_of(p), to_color(wafer_.ColS1));
      f0 = f1;
    });
  }
  if (!r_.on_page) resume([&] { Plot_.Refresh(); });
  resume([&] { Plot_.DrawWidth(1); });
}

void LyingHistogram::draw_end_labels() {
  const double most = wafer_.maxHauf;
  double left = 0, right = 0, top = 0;
  resume([&] {
    left = r_.on_page ? r_.left : Plot_.left();
    right = r_.on_page ? r_.left + r_.hoehe : Plot_.left() + Plot_.width();
    top = r_.on_page ? r_.top + r_.breite + 20 : Plot_.height() + 20;
  });
  resume([&] { histPic_.CurrentX(left); });
  resume([&] { histPic_.CurrentY(top); });
  resume([&] { histPic_.Print(format_scaled(0, "0")); });
  resume([&] { histPic_.CurrentX(right - histPic_.TextWidth(format_scaled(most, "0.0")) / 2); });
  resume([&] { histPic_.CurrentY(top); });
  resume([&] { histPic_.Print(format_scaled(most, "0")); });
}

void LyingHistogram::draw_limit(double limit, const char* name) {
  double py = 0;
  resume([&] { py = along(limit, r_.breite); });
  line(Plot_, r_.left + r_.hoehe, y_of(py), r_.left, y_of(py), dark_blue);
  write_beside(py, name, "LCL");
}

}  // namespace

void wafer::Statistic_Quer(bool RightD, PlotCanvas& Plot, PlotCanvas& histPic, double& x0, double& y0,
                           double& breite, double& hoehe, float stat_resol, std::int16_t& laenge,
                           double& left, double& top, std::int16_t ShowDisp) {
  const HistogramRequest request{Plot,       histPic, x0,   y0,  breite,       hoehe,
                                 stat_resol, laenge,  left, top, ShowDisp == 1};
  LyingHistogram(*this, request, RightD, Pi).draw();
}

}  // namespace mirolen
