#pragma once

#include "plain_renderer.h"

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

void draw_map(wafer& source, PlotCanvas& canvas, const MapRequest& request);

/// A colour map in the plainest words.
class PlainMap : PlainRenderer {
 public:
  PlainMap(const wafer& source, const CanvasSetup& setup, const MapRequest& request)
      : PlainRenderer(source, setup, request.area, request.ShowDispl), request(request) {}

  Lines lines();

 private:
  void set_up();
  void find_scale_limits();
  void find_mark_sizes();
  void find_grid_size();

  double norm(double z) const;
  bool inside(double x, double y) const;
  double node(int column, int line) const;
  double beyond(int column, int line) const;

  void paint_map();
  void paint_row(int line);
  void paint_cell(int column, int line, double zA, double zB, double zC, double zD);
  double color_of(double zc) const;
  double sigma_color(double zc) const;
  std::string cell_polygon(int column, int line) const;
  PixelPoint node_pixel(int column, int line) const;

  void mark_sites();
  void mark(double px, double py, bool plus);
  void filled_box(double x, double y, double half_width, double half_height, int color);

  MapRequest request;

  double hi = 0, lo = 0, Low = 0;
  double a = 6, b = 2, c = 3;
  int n = 0;
  double res = 0, S = 0, cx = 0, cy = 0, I = 0, L = 0;
  std::vector<double> row;
};

}  // namespace mirolen
