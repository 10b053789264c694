#pragma once

#include "plain_renderer.h"

namespace mirolen {

/// The arguments of a surface next to its canvas.
struct SurfaceRequest {
  double resx = 25, resy = 25, fwscal = 40;
  double alp2 = 0, phi2 = 0, thet2 = 90;
  std::int16_t PlotStyle = 1;
  double SigmaRange = 0;
  bool fprint = false;
  RecordingCanvas::Rectangle area;
  std::int16_t ShowDispl = 0;
};

void draw_surface(wafer& source, PlotCanvas& canvas, const SurfaceRequest& request);

/// A surface in the plainest words.
class PlainSurface : PlainRenderer {
 public:
  PlainSurface(const wafer& source, const CanvasSetup& setup, const SurfaceRequest& request)
      : PlainRenderer(source, setup, request.area, request.ShowDispl, RoundedEdges::all), r(request) {}

  Lines lines();

 private:
  void find_levels();
  void find_grid();
  double half_count(double& res);
  void find_scale();
  void paint_row(int j);
  void paint_cell(int i, int j);
  double fill_color(double zA, double zB, double zC, double zD) const;
  double level_color(double zMean) const;
  double h(double v) const { return (v - Low) * zScale / (w.maxi - Low); }
  double height(int p, int q) const;
  PixelPoint corner(int p, int q) const;

  SurfaceRequest r;
  bool plain_top_view = false;
  double topLevel = 0, bottomLevel = 0, bandStep = 0, Low = 0;
  int nx = 0, ny = 0;
  double d = 0, scale = 0, zScale = 0;
};

}  // namespace mirolen
