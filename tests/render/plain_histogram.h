#pragma once

#include <functional>
#include <vector>

#include "plain_renderer.h"

namespace mirolen {

/// A histogram chart's own numbers, which come back changed, and how it is asked for.
struct ChartRequest {
  std::int16_t PlotType = 1;
  double x0 = 0, y0 = 0, breite = 100, hoehe = 60;
  double stat_resol = 4;
  std::int16_t laenge = 4;
  double left = 0, top = 0;
  std::int16_t ShowDisp = 0;

  bool lies() const { return PlotType == 3 || PlotType == 4; }
};

/// The two canvases of a chart; on a page they are one and the same.
struct ChartCanvases {
  CanvasSetup setup;
  RecordingCanvas::Rectangle place{30, 20, 100, 60};
};

void draw_chart(wafer& source, PlotCanvas& Plot, PlotCanvas& histPic, ChartRequest& request);

/// A histogram in the plainest words: what it leaves on its canvases, in the request and in the wafer.
class PlainHistogram {
 public:
  PlainHistogram(const wafer& source, const ChartCanvases& canvases, const ChartRequest& request);

  void draw();

  ChartRequest r;
  Lines plot, hist_of_its_own;
  std::int32_t maxHauf;
  double GaussMax;

 private:
  struct Failure {};

  void statement(const std::function<void()>& body);
  void fall_back();
  void call(Lines& log, const std::string& member, const std::string& line);
  void say(Lines& log, const std::string& member, const std::string& line);
  void say_set(Lines& log, const std::string& member, double number);
  void draw_line(Lines& log, int flags, double x1, double y1, double x2, double y2, double color);
  void write(const std::function<double()>& x, const std::function<double()>& y, const std::string& text);
  void set_font(const std::string& font);
  double twips_x();
  double twips_y();
  double width_of(const std::string& text) const;

  void divide(double& length, double (PlainHistogram::*twips)());
  void convert_page();
  void count_classes();
  int class_of(double value) const;
  void fit_curve();
  double curve(double value) const;
  double along(double value, double length) const;
  /// A bar's end along the count axis, by its height as a fraction.
  double reach(double f) const;

  void draw_count_axis();
  void draw_bars();
  void draw_tick_pair(double left_side, double right_side);
  void draw_sigma_marks();
  void draw_sigma_mark(int k);
  void label_sigma_mark(int k, double place);
  void draw_curve();
  void draw_labels();
  void draw_end_labels();
  void draw_limits(double low, double high);
  void write_at_axis(double place, const std::string& text);

  const wafer& w;
  const ChartCanvases canvases;
  Lines& hist;
  bool page;
  bool printer;
  std::string font = "Arial 8 0 0";
  double barBase = 0, barSign = 0, axisBottom = 0, tickLeft = 0;
  double classBase = 0, classWidth = 0;
  int q = 0;
  std::vector<int> histCount;
};

}  // namespace mirolen
