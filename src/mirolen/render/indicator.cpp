#include <cmath>

#include "mirolen/core/wafer.h"
#include "mirolen/render/Companions.h"
#include "mirolen/render/PlotCanvas.h"

namespace mirolen {
namespace {

constexpr std::int16_t by_angle = 1;

/// Puts a number back when it goes, however that happens.
class Restored {
 public:
  explicit Restored(double& number) : number_(number), value_(number) {}
  ~Restored() { number_ = value_; }
  Restored(const Restored&) = delete;
  Restored& operator=(const Restored&) = delete;

 private:
  double& number_;
  double value_;
};

/// Wafer coordinates on the small wafer picture.
struct Miniature {
  double n = 0;       // steps from the centre to the picture's edge
  double r = 0;       // millimetres of a step
  double shrink = 0;  // leaves a rim of two steps

  explicit Miniature(double WafDiam) {
    r = WafDiam / 50;
    n = to_int16(checked(WafDiam / 2 / (r == 0 ? 1 : r) + 2));
    if (n > 100) {
      n = 100;
      r = WafDiam / 196;
    }
    shrink = divide(2 * (n - 2) * n / (n + 1) * r, WafDiam);
  }

  double scale(double width, double height) const {
    const double x = divide(width, 2 * n * r);
    const double y = divide(height, 2 * n * r);
    return x < y ? x : y;
  }
};

}  // namespace

void wafer::draw_indicator(IndicatorLine& Iline, IndicatorMark& plus, std::int16_t Plotopt, std::int16_t phi,
                           double x1, double y1, double x2, double y2, double x3, double y3,
                           PlotCanvas& Plot) {
  if (WafDiam == 0) {
    WafDiam = 200;  // contract 79
    WaferOrigRad = WafDiam / 2;
  }
  const Miniature mini_wafer(WafDiam);
  const auto chord = [&] { return scan_chord(Plotopt, phi, x1, y1, x2, y2, x3, y3); };

  const Chord line = chord();
  const double S = mini_wafer.scale(Plot.ScaleWidth(), Plot.ScaleHeight());
  const double cx = Plot.ScaleLeft() + Plot.ScaleWidth() / 2;
  const double cy = Plot.ScaleTop() + Plot.ScaleHeight() / 2;
  const auto X = [&](double x) { return to_int16(cx + S * x * mini_wafer.shrink); };
  const auto Y = [&](double y) { return to_int16(cy - S * y * mini_wafer.shrink); };
  Iline.set_ends(X(line.scanStartX), Y(line.scanStartY), X(line.scanEndX), Y(line.scanEndY));

  const Restored after(test_diam);
  test_diam = WafDiam / 10 + WafDiam;
  const Chord beyond = chord();
  const double wider =
      mini_wafer.scale(Plot.ScaleWidth() + 2.5 * plus.width(), Plot.ScaleHeight() + 2.5 * plus.height());
  const double px = to_int16(Plot.left() + Plot.width() / 2 + wider * beyond.scanStartX * mini_wafer.shrink);
  const double py = to_int16(Plot.top() + Plot.height() / 2 - wider * beyond.scanStartY * mini_wafer.shrink);
  plus.move_to(px - plus.width() / 2, py - plus.height() / 2);
  plus.set_visible(true);
}

wafer::Chord wafer::scan_chord(std::int16_t Plotopt, std::int16_t phi, double x1, double y1, double x2,
                               double y2, double x3, double y3) const {
  return Plotopt == by_angle ? chord_from_angle(x1, y1, phi) : chord_from_line(x2, y2, x3, y3);
}

wafer::Chord wafer::chord_from_line(double x1, double y1, double x2, double y2) const {
  const double R2 = checked(test_diam / 2 * (test_diam / 2));
  if (x1 == x2) {
    const double h = square_root(checked(R2 - x1 * x1));
    return y1 < y2 ? Chord{x1, -h, x1, h} : Chord{x1, h, x1, -h};
  }
  const double m = divide(y2 - y1, x2 - x1);
  return sloped_chord(R2, m, checked(y1 - m * x1), x1 < x2);
}

wafer::Chord wafer::chord_from_angle(double x1, double y1, std::int16_t phi) const {
  const double R2 = checked(test_diam / 2 * (test_diam / 2));
  if (phi == 0 || phi == 360 || phi == 180) {
    const double h = square_root(checked(R2 - x1 * x1));
    return phi == 180 ? Chord{x1, h, x1, -h} : Chord{x1, -h, x1, h};
  }
  const double direction = (phi + 90) * Pi / 180;
  const double m = divide(std::sin(direction), std::cos(direction));
  return sloped_chord(R2, m, checked(y1 - m * x1), phi >= 180);
}

wafer::Chord wafer::sloped_chord(double R2, double m, double b, bool rightward) {
  const double D = square_root(checked(R2 * (m * m + 1) - b * b)) / (m * m + 1);
  const double c = checked((b * m) / (m * m + 1));
  const double left = -c - D;
  const double right = -c + D;
  const double start = rightward ? left : right;
  const double end = rightward ? right : left;
  return {start, m * start + b, end, m * end + b};
}

}  // namespace mirolen
