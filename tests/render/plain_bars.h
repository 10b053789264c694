#pragma once

#include <vector>

#include "plain_renderer.h"
#include "support/site_support.h"

namespace mirolen {

/// The arguments of a bar plot next to its canvas.
struct BarRequest {
  double bx = 10, by = 10, fwscal = 1;
  double alp2 = 0, phi2 = 0, thet2 = 30;
  bool fprint = false;
  RecordingCanvas::Rectangle area;
  std::int16_t ShowDispl = 0;
};

void draw_bars(wafer& source, PlotCanvas& canvas, const BarRequest& request);

/// A bar plot in the plainest words.
class PlainBars : PlainRenderer {
 public:
  PlainBars(const wafer& source, const CanvasSetup& setup, const BarRequest& request)
      : PlainRenderer(source, setup, request.area, request.ShowDispl, RoundedEdges::height), r(request) {}

  Lines lines();

 private:
  void find_levels();
  void find_factors();
  void find_scale();
  void find_centre();
  std::vector<Site> turned_sites_farthest_first() const;
  void paint_bar(const Site& site);
  void quad(SurfacePoint a, SurfacePoint b, SurfacePoint c, SurfacePoint d, double color);

  BarRequest r;
  double topLevel = 0, bottomLevel = 0, Low = 0, sinT = 0, cosT = 0;
  double ax = 0, ay = 0, bxp = 0, byp = 0, S = 0, cx = 0, cy = 0;
};

}  // namespace mirolen
