#pragma once

#include "plain_renderer.h"

namespace mirolen {

/// The sites as texts, their values or their numbers, in the plainest words.
class PlainSiteTexts : PlainRenderer {
 public:
  PlainSiteTexts(const wafer& source, const CanvasSetup& setup, RecordingCanvas::Rectangle wanted,
                 std::int16_t ShowDispl)
      : PlainRenderer(source, setup, wanted, ShowDispl) {}

  Lines values();
  Lines numbers();

 private:
  void draw_disc();
  void write(double x, double y, const std::string& text);
  double color_of(double z) const;

  double S = 0, cx = 0, cy = 0;
};

}  // namespace mirolen
