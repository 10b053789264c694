#include "plain_histogram.h"

#include <algorithm>
#include <cmath>

#include "mirolen/render/ControlLimits.h"
#include "mirolen/render/Screen.h"
#include "mirolen/render/StringFormat.h"
#include "support/site_support.h"

namespace mirolen {
namespace {

constexpr double kTextHeight = 12, kCharacterWidth = 6;

std::string number_text(double number) { return StringFormat::FormatField(number, 0, 0, false); }

}  // namespace

void draw_chart(wafer& source, PlotCanvas& Plot, PlotCanvas& histPic, ChartRequest& r) {
  source.Statistic(r.PlotType, Plot, histPic, r.x0, r.y0, r.breite, r.hoehe, r.stat_resol, r.laenge, r.left,
                   r.top, r.ShowDisp);
}

PlainHistogram::PlainHistogram(const wafer& source, const ChartCanvases& canvases,
                               const ChartRequest& request)
    : r(request),
      maxHauf(source.maxHauf),
      GaussMax(source.GaussMax),
      w(source),
      canvases(canvases),
      hist(request.ShowDisp == 1 ? plot : hist_of_its_own),
      page(request.ShowDisp == 1),
      printer(canvases.setup.kind == CanvasKind::printer) {
  r.stat_resol = std::floor(r.stat_resol);  // whole classes only
}

void PlainHistogram::statement(const std::function<void()>& body) {
  try {
    body();
  } catch (const Failure&) {
    fall_back();
  }
}

void PlainHistogram::fall_back() {
  r.x0 /= 4.8;
  r.y0 /= 4.8;
  r.hoehe /= 4.8;
  r.left /= 4.8;
  r.top /= 4.8;
  r.laenge = static_cast<std::int16_t>(std::nearbyint(r.laenge / 4.8));
  if (!r.lies()) return;
  r.breite /= 4.8;
  std::swap(r.breite, r.hoehe);
}

void PlainHistogram::call(Lines& log, const std::string& member, const std::string& line) {
  if (member == canvases.setup.fails_in && (&log == &plot || member != "DrawWidth")) throw Failure();
  log.push_back(line);
}

void PlainHistogram::say(Lines& log, const std::string& member, const std::string& line) {
  statement([&] { call(log, member, line); });
}

void PlainHistogram::say_set(Lines& log, const std::string& member, double number) {
  say(log, member, set_line(member, number));
}

void PlainHistogram::draw_line(Lines& log, int flags, double x1, double y1, double x2, double y2,
                               double color) {
  say(log, "Line", line_of("Line", flags, x1, y1, x2, y2, color));
}

void PlainHistogram::write(const std::function<double()>& x, const std::function<double()>& y,
                           const std::string& text) {
  say_set(hist, "CurrentX", x());
  say_set(hist, "CurrentY", y());
  say(hist, "Print", "Print " + text);
}

void PlainHistogram::set_font(const std::string& new_font) {
  font = new_font;
  say(hist, "Font", "Font=" + font);
}

double PlainHistogram::twips_x() {
  if (!printer) return screen().TwipsPerPixelX;
  call(plot, "TwipsPerPixelX", "TwipsPerPixelX?");
  return canvases.setup.twips_per_pixel.width;
}

double PlainHistogram::twips_y() {
  if (!printer) return screen().TwipsPerPixelY;
  call(plot, "TwipsPerPixelY", "TwipsPerPixelY?");
  return canvases.setup.twips_per_pixel.height;
}

double PlainHistogram::width_of(const std::string& text) const {
  return kCharacterWidth * static_cast<double>(text.size());
}

void PlainHistogram::divide(double& length, double (PlainHistogram::*twips)()) {
  statement([&] {
    const double by = (this->*twips)();
    length /= by;
  });
}

void PlainHistogram::convert_page() {
  double& across = r.lies() ? r.hoehe : r.breite;
  double& down = r.lies() ? r.breite : r.hoehe;
  divide(r.x0, &PlainHistogram::twips_x);
  divide(across, &PlainHistogram::twips_x);
  divide(r.left, &PlainHistogram::twips_x);
  divide(r.y0, &PlainHistogram::twips_y);
  divide(down, &PlainHistogram::twips_y);
  divide(r.top, &PlainHistogram::twips_y);
  statement([&] {
    const double by = r.lies() && !printer ? twips_x() : twips_y();
    r.laenge = static_cast<std::int16_t>(std::nearbyint(r.laenge / by));
  });
}

void PlainHistogram::draw() {
  if (r.lies()) std::swap(r.breite, r.hoehe);
  if (page) convert_page();
  say_set(plot, "FillColor", QBColor(2));
  say_set(plot, "DrawWidth", 1);
  axisBottom = std::nearbyint(r.hoehe + r.y0);
  const bool grows_from_zero = r.PlotType == 1 || r.PlotType == 4;
  barBase = grows_from_zero ? 0 : r.hoehe;
  barSign = grows_from_zero ? -1 : 1;
  tickLeft = std::nearbyint(r.x0 - r.laenge);
  classBase = w.minimal;
  if (w.maximal == w.minimal) classBase = (w.minimal < 0 ? 1.1 : 0.9) * w.minimal - 0.001;
  count_classes();
  if (w.StdDev != 0) fit_curve();
  draw_count_axis();
  if (w.GetNop() > 3 && maxHauf > 0) draw_bars();
  q = static_cast<int>(r.stat_resol) + 1;
  if (!page) {
    say(hist, "Refresh", "Refresh");
    say(plot, "Refresh", "Refresh");
  }
  if (w.StdDev != 0 && maxHauf != 0) {
    draw_sigma_marks();
    draw_curve();
  }
  r.lies() ? draw_end_labels() : draw_labels();
  if (!r.lies() && w.vLcl != w.vUcl) draw_limits(w.vLcl, w.vUcl);
  if (control_limits().ShowCL) draw_limits(control_limits().ClLow, control_limits().ClHigh);
  if (!page) say(plot, "Refresh", "Refresh");
  say_set(plot, "DrawWidth", 1);
}

int PlainHistogram::class_of(double value) const {
  const int last = static_cast<int>(r.stat_resol);
  if (r.lies() ? value == classBase : value <= classBase) return 1;
  if (r.lies() ? value == w.maximal : value >= w.maximal) return last;
  if (r.lies() && (value < classBase || value > w.maximal)) return 0;
  return static_cast<int>(std::nearbyint((value - classBase) / classWidth + 0.5));
}

void PlainHistogram::count_classes() {
  histCount.assign(static_cast<std::size_t>(r.stat_resol) + 1, 0);
  if (w.GetNop() <= 3) return;
  GaussMax = 1;
  classWidth = (w.maximal - classBase) / r.stat_resol;
  for (const Site& site : sites_of(w)) {
    const int number = class_of(site.z);
    if (number > 0) ++histCount.at(static_cast<std::size_t>(number));
  }
  maxHauf = *std::max_element(histCount.begin() + 1, histCount.end());
}

void PlainHistogram::fit_curve() {
  const double Pi = 4 * std::atan(1.0);
  const double h = ((classWidth / w.StdDev) / 2) / 10;
  GaussMax = 0;
  for (int m = 1; m <= 10; ++m) GaussMax += (1 / std::sqrt(Pi + Pi)) * std::exp(m * h * (m * h) * -0.5);
  GaussMax = (GaussMax + GaussMax) * h * w.GetNop();
  if (maxHauf < GaussMax) maxHauf = static_cast<std::int32_t>(std::nearbyint(GaussMax));
  GaussMax /= 0.4;
}

double PlainHistogram::curve(double value) const { return GaussMax / maxHauf * w.Gauss(value); }

double PlainHistogram::along(double value, double length) const {
  return (value - classBase) * length / (w.maximal - classBase);
}

double PlainHistogram::reach(double f) const {
  return barBase + (r.lies() ? r.left : r.top) - barSign * (r.hoehe - r.hoehe * f);
}

void PlainHistogram::draw_count_axis() {
  for (int m = 1; m <= maxHauf; ++m) {
    if (r.lies()) {
      const double x = (page ? r.left : r.x0) + m * r.hoehe / maxHauf, y0 = page ? r.top : r.y0;
      draw_line(hist, 6, x, r.laenge + r.breite + y0, x, r.breite + y0, QBColor(1));
      continue;
    }
    const double y = axisBottom - m * r.hoehe / maxHauf;
    draw_line(hist, 6, tickLeft, y, r.x0, y, QBColor(1));
    if (axisBottom - r.hoehe / maxHauf > kTextHeight / 2 || m == maxHauf)
      write([&] { return r.x0 - 2 * width_of(number_text(maxHauf)); }, [&] { return y - kTextHeight / 2; },
            number_text(r.PlotType == 1 ? m : maxHauf - m));
  }
}

void PlainHistogram::draw_bars() {
  const double s = r.breite / r.stat_resol;
  for (int b = 1; b <= r.stat_resol; ++b) {
    const double count = histCount[static_cast<std::size_t>(b)];
    if (count > 0) {
      double x1 = (b - 1) * s + r.left, x2 = s * b + r.left, y1 = reach(count / maxHauf), y2 = reach(0);
      if (r.lies()) {
        x1 = reach(count / maxHauf);
        x2 = reach(0);
        y1 = r.top + r.breite - (b - 1) * s;
        y2 = r.top + r.breite - b * s;
      }
      draw_line(plot, 38, x1, y1, x2, y2, to_color(w.ColS2));
      draw_line(plot, 22, x1, y1, x2, y2, 0);
    }
    if (!r.lies()) draw_tick_pair((b - 1) * s, s * b);
  }
  if (!r.lies()) draw_tick_pair(std::floor(r.stat_resol) * s, r.breite);
}

void PlainHistogram::draw_tick_pair(double left_side, double right_side) {
  const double base = r.top + r.hoehe;
  if (page) {
    draw_line(hist, 6, left_side + r.left, base + r.laenge, left_side + r.left, base, QBColor(1));
    draw_line(hist, 6, right_side + r.left, base + r.laenge, right_side + r.left, base, QBColor(1));
  } else {
    draw_line(hist, 6, left_side + r.x0, r.laenge + r.x0, left_side + r.x0, axisBottom, QBColor(1));
    draw_line(hist, 6, right_side + r.x0, axisBottom + r.laenge + 2, right_side + r.x0, axisBottom,
              QBColor(1));
  }
}

void PlainHistogram::draw_sigma_marks() {
  say_set(plot, "DrawWidth", 2);
  if (!r.lies()) say_set(hist, "CurrentY", canvases.place.height + 30);
  say_set(hist, "ForeColor", 255);
  if (r.lies())
    set_font("Symbol 8 0 0");
  else if (!page)
    set_font("MS Sans Serif 8 0 0");
  say_set(hist, "ForeColor", to_color(w.ColS1));
  for (int k = -3; k <= 3; ++k) draw_sigma_mark(k);
}

void PlainHistogram::draw_sigma_mark(int k) {
  const double value = k * w.StdDev + w.mean, place = along(value, r.breite);
  if (!(0 < place && place < r.breite)) return;
  const double f = curve(value), color = to_color(w.ColS1);
  if (r.lies()) {
    double x = reach(f);
    if (printer && x > r.left + r.hoehe) x = std::nearbyint(r.left + r.hoehe);
    if (printer && x < r.left) x = std::nearbyint(r.left);
    const double y = r.top + r.breite - place;
    draw_line(plot, 6, x, y, barBase + r.left - (r.hoehe + 5) * barSign, y, color);
  } else {
    const double over = r.PlotType == 1 ? 10 : 0;
    draw_line(plot, 6, r.left + place, reach(f), r.left + place, barBase + r.top - (over + r.hoehe) * barSign,
              color);
  }
  label_sigma_mark(k, place);
}

void PlainHistogram::label_sigma_mark(int k, double place) {
  const char* const sigmaLabels[] = {"-3s", "-2s", "-1s", "Mean", "1s", "2s", "3s"};
  const std::string before = font;
  if (k == 0) set_font(r.lies() ? "Arial 8 0 0" : "MS Sans Serif 8 0 0");
  write_at_axis(place, sigmaLabels[k + 3]);
  if (k == 0) set_font(before);
}

void PlainHistogram::write_at_axis(double place, const std::string& text) {
  const auto x = [&] {
    if (r.lies()) return page ? r.left - 1.5 * width_of(text) : 0;
    return (page ? r.left : canvases.place.left) + place - width_of(text) / 2;
  };
  const auto y = [&] {
    if (!r.lies()) return page ? r.top + r.hoehe + 2 * kTextHeight : canvases.place.height + 30;
    return (page ? r.top + r.breite - place : r.breite - (r.left + place)) - kTextHeight / 2;
  };
  if (page) return write(x, y, text);
  say_set(hist, "CurrentY", y());
  say_set(hist, "CurrentX", x());
  say(hist, "Print", "Print " + text);
}

void PlainHistogram::draw_curve() {
  say_set(hist, "ForeColor", 0xFF0000);
  say_set(plot, "DrawWidth", printer ? 4 : 2);
  double f0 = curve(classBase);
  for (q = 1; q <= r.breite; ++q) {
    const double f1 = curve((w.maximal - classBase) / r.breite * q + classBase);
    if (f0 > 1 || f1 > 1) continue;
    const double color = to_color(w.ColS1), bottom = r.top + r.breite;
    if (r.lies())
      draw_line(plot, 6, reach(f0), bottom - (q - 1), reach(f1), bottom - q, color);
    else
      draw_line(plot, 6, q + r.left - 1, reach(f0), q + r.left, reach(f1), color);
    f0 = f1;
  }
  if (!page) say(plot, "Refresh", "Refresh");
  say_set(plot, "DrawWidth", 1);
}

void PlainHistogram::draw_labels() {
  const bool narrow = page && r.breite < 2500;
  bool useExp = false;
  std::int16_t d = StringFormat::DecimalsFor(classBase, narrow ? 4 : 6, useExp);
  if (useExp) d = narrow ? 2 : 3;
  const double left = page ? r.left : canvases.place.left, width = page ? r.breite : canvases.place.width;
  const double top = page ? r.top + r.hoehe + 20 : canvases.place.height + 20;
  const auto text = [&](double value) { return StringFormat::FormatField(value, 0, d, useExp); };
  const auto label = [&](double centre, double value) {
    write([&] { return centre - width_of(text(value)) / 2; }, [&] { return top; }, text(value));
  };
  const double c = (w.maximal - classBase) / r.stat_resol, step = std::nearbyint(width / r.stat_resol);
  label(left, classBase);
  if (step > width_of(text(c * q + classBase)))
    for (q = 1; q <= r.stat_resol - 1; ++q) label(left + q * step, c * q + classBase);
  label(left + width, w.maximal);
}

void PlainHistogram::draw_end_labels() {
  const double left = page ? r.left : canvases.place.left;
  const double width = page ? r.hoehe : canvases.place.width;
  const double top = page ? r.top + r.breite + 20 : canvases.place.height + 20;
  const std::string most = std::to_string(maxHauf);
  write([&] { return left; }, [&] { return top; }, "0");
  write([&] { return left + width - width_of(most + ".0") / 2; }, [&] { return top; }, most);
}

void PlainHistogram::draw_limits(double low, double high) {
  say_set(hist, "ForeColor", r.lies() ? 0xFF0000 : 0xC00000);
  if (!r.lies()) say_set(plot, "DrawWidth", printer ? 6 : 4);
  for (const auto& [limit, name] : {std::pair{low, "LCL"}, {high, "UCL"}}) {
    const double place = along(limit, r.breite), y = r.top + r.breite - place;
    if (r.lies())
      draw_line(plot, 6, r.left + r.hoehe, y, r.left, y, 0x800000);
    else
      draw_line(plot, 6, r.left + place, r.top, r.left + place, r.hoehe, QBColor(1));
    write_at_axis(place, name);
  }
}

}  // namespace mirolen
