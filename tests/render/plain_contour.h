#pragma once

#include <array>
#include <vector>

#include "plain_renderer.h"

namespace mirolen {

/// The arguments of a contour plot next to its canvas.
struct ContourRequest {
  std::int16_t st = 100;
  double distance = 5;
  std::int16_t marked_sites = 3, reso = 0, colored = 0;
  RecordingCanvas::Rectangle area;
  std::int16_t ShowDispl = 0;
};

void draw_contour(wafer& source, PlotCanvas& canvas, const ContourRequest& request);

/// A contour plot in the plainest words, its reads left out.
class PlainContour : PlainRenderer {
 public:
  PlainContour(const wafer& source, const CanvasSetup& setup, const ContourRequest& request)
      : PlainRenderer(source, setup, request.area, request.ShowDispl), r(request) {}

  Lines lines();

 private:
  void build_mesh();
  void draw_disc();
  void cut_flat();
  double spacing() const;
  void cross_out();
  void draw_curves(double s);
  void draw_level(double level, double color);
  void draw_piece(double level, const std::array<int, 3>& triangle);
  void draw_marks();
  void draw_plus(double x, double y);
  void refresh_screen();

  ContourRequest r;
  double cx = 0, cy = 0, S = 0;
  int rings = 0;
  std::vector<SurfacePoint> nodes;
  std::vector<double> values;
  std::vector<std::array<int, 3>> triangles;
};

}  // namespace mirolen
