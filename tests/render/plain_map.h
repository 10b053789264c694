#pragma once

#include <functional>
#include <string>

#include "mirolen/core/wafer.h"
#include "support/RecordingCanvas.h"

namespace mirolen {

/// The arguments of a colour map next to its canvas.
struct MapRequest {
  double res = 25;
  std::int16_t PlotStyle = 5;
  double SigmaRange = 0;
  std::int16_t marksites = 0;
  RecordingCanvas::Rectangle area;
  std::int16_t ShowDispl = 0;
};

/// A canvas of a kind, and how it fails.
struct CanvasSetup {
  CanvasKind kind = CanvasKind::other;
  RecordingCanvas::Rectangle scale{0, 0, 206, 206};
  SurfaceSize twips_per_pixel{15, 15};
  std::string fails_in;
  int fails_at = 0;

  RecordingCanvas canvas() const;
};

void draw_map(wafer& source, PlotCanvas& canvas, const MapRequest& request);

/// The lines that a map leaves on a recording canvas, its reads among them, worked out step by step in the
/// plainest words. It shares no code with the renderer, only the values of `wafer::Interpolation`.
class PlainMap {
 public:
  PlainMap(const wafer& source, const CanvasSetup& setup, const MapRequest& request)
      : w(source), setup(setup), request(request) {}

  Lines lines();

 private:
  struct Failure {};

  void statement(const std::function<void()>& body);
  void call(const std::string& member, const std::string& line);
  void say(const std::string& member, const std::string& line);
  void say_set(const std::string& member, double number);
  double property(const std::string& member, double value);
  double divided(double number, double by) const;

  void set_up();
  void find_scale_limits();
  void find_area();
  void find_edges(std::function<double()> left, std::function<double()> width, std::function<double()> top,
                  std::function<double()> height);
  void find_mark_sizes();
  void find_grid_size();
  double rounded_to_16_bits(double number) const;

  double norm(double z) const;
  bool inside(double x, double y) const;
  double node(int column, int line) const;
  double beyond(int column, int line) const;

  void paint_map();
  void paint_row(int line);
  void paint_cell(int column, int line, double zA, double zB, double zC, double zD);
  double color_of(double zc) const;
  double band_color(double zc) const;
  double sigma_color(double zc) const;
  std::string cell_polygon(int column, int line) const;
  PixelPoint pixel(int column, int line) const;

  void mark_sites();
  void mark(double px, double py, bool plus);
  void filled_box(double x, double y, double half_width, double half_height, int color);
  void refresh_picture_box();

  const wafer& w;
  CanvasSetup setup;
  MapRequest request;

  Lines said;
  int calls = 0;
  RecordingCanvas::Rectangle area;
  double hi = 0, lo = 0, Low = 0;
  double a = 6, b = 2, c = 3;
  int n = 0;
  double res = 0, S = 0, cx = 0, cy = 0, I = 0, L = 0;
  std::vector<double> row;
};

}  // namespace mirolen
