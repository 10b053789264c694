#include <cmath>
#include <utility>

#include "mirolen/core/translation.h"
#include "mirolen/render/ControlLimits.h"
#include "mirolen/render/HistogramPainter.h"
#include "mirolen/render/Screen.h"
#include "mirolen/render/StringFormat.h"

namespace mirolen {
namespace {

constexpr Color limit_line_color = 0x800000;

/// A value in a format that grows leading zeros while the text reads as zero; 0 shows the format itself.
std::string format_scaled(double value, std::string fmt) {
  constexpr std::size_t most_places = 16;
  if (value == 0) return fmt;  // contract 64
  if (std::abs(value) < 0.00001 || value > 99999.99) return StringFormat::format_number(value, "0.00E+0");
  std::string text = StringFormat::format_number(value, fmt);
  while (text.find_first_of("123456789") == std::string::npos && fmt.size() < most_places) {
    fmt.insert(0, 1, '0');
    text = StringFormat::format_number(value, fmt);
  }
  return text;
}

/// The histogram turned by a quarter: classes run upward along breite, counts across along hoehe.
class LyingHistogram : public HistogramPainter {
 public:
  LyingHistogram(wafer& wafer, const HistogramRequest& request, bool from_right, double Pi)
      : HistogramPainter(wafer, request, Pi), from_right_(from_right) {}

 private:
  void prepare_lengths() override;
  void fall_back() override;
  void set_orientation() override;
  double class_of(double value) const override;
  SurfacePoint point(double along, double fraction) const override { return {x_of(fraction), y_of(along)}; }
  void draw_count_axis() override;
  void draw_class_ticks(double, double) override {}  // the class axis has none
  void set_mark_looks() override;
  void draw_sigma_mark(int k) override;
  void draw_axis_labels() override;
  void draw_limits() override;

  void draw_limit(double limit, const std::string& name);
  void write_beside(double py, const std::string& text, const char* measured);
  double clamped(double x) const;
  double x_of(double fraction) const {
    return barBase_ + r_.left - barSign_ * (r_.hoehe - r_.hoehe * fraction);
  }
  double y_of(double along) const { return r_.top + r_.breite - along; }

  bool from_right_;
};

void LyingHistogram::fall_back() {  // contract 67
  std::swap(r_.breite, r_.hoehe);
  for (double* length : {&r_.x0, &r_.y0, &r_.breite, &r_.hoehe, &r_.left, &r_.top}) *length /= 4.8;
  r_.laenge = to_int16(r_.laenge / 4.8);
}

/// A value strictly beyond the limits is counted nowhere. (contract 59)
double LyingHistogram::class_of(double value) const {
  if (value == classBase_) return 1;
  if (value == wafer_.maximal) return r_.stat_resol;
  if (value < classBase_ || value > wafer_.maximal) return 0;
  return to_int16(inner_class(value));
}

void LyingHistogram::prepare_lengths() {
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

void LyingHistogram::draw_count_axis() {
  const double x0 = r_.on_page ? r_.left : r_.x0, y0 = r_.on_page ? r_.top : r_.y0;
  for (std::int32_t m = 1; m <= wafer_.maxHauf; ++m) {
    const double x = x0 + m * r_.hoehe / wafer_.maxHauf;
    line(histPic_, x, r_.laenge + r_.breite + y0, x, r_.breite + y0, QBColor(1));
  }
}

void LyingHistogram::set_mark_looks() {
  resume([&] { histPic_.ForeColor(red); });  // contract 87
  resume([&] { histPic_.Font({"Symbol"}); });
  resume([&] { histPic_.ForeColor(to_color(wafer_.ColS1)); });
}

void LyingHistogram::draw_sigma_mark(int k) {
  const double value = k * wafer_.StdDev + wafer_.mean;
  double py = 0;
  resume([&] { py = along_classes(value); });
  if (!(py > 0 && py < r_.breite)) return;
  const double end = barBase_ + r_.left - (r_.hoehe + 5) * barSign_;
  resume([&] {
    Plot_.Line(line_flags, clamped(x_of(curve(value))), y_of(py), end, y_of(py), to_color(wafer_.ColS1));
  });
  if (k == 0) resume([&] { histPic_.Font({"Arial"}); });
  write_beside(py, sigma_label(k), nullptr);
  resume([&] { histPic_.Font({"Symbol"}); });
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

void LyingHistogram::draw_axis_labels() {
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

void LyingHistogram::draw_limits() {  // contract 85
  const ControlLimits& limits = control_limits();
  if (!limits.ShowCL) return;
  resume([&] { histPic_.ForeColor(blue); });
  draw_limit(limits.ClLow, tr("LCL"));
  draw_limit(limits.ClHigh, tr("UCL"));
}

void LyingHistogram::draw_limit(double limit, const std::string& name) {
  double py = 0;
  resume([&] { py = along_classes(limit); });
  line(Plot_, r_.left + r_.hoehe, y_of(py), r_.left, y_of(py), limit_line_color);
  write_beside(py, name, "LCL");  // contract 84
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
