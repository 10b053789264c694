#pragma once

#include "mirolen/controls/SigmaLegend.h"
#include "mirolen/controls/SurfaceFrame.h"

namespace mirolen {

/// The sigma surface: the surface in three colours, above, inside and below a range of deviations round the
/// mean.
class Plot3DS : public SigmaLegend<SurfaceFrame> {
 public:
  Plot3DS(Toolkit& toolkit, Container& container);

  std::int16_t PrintPlot(double left, double top, double width, double height,
                         bool DrawFrame = false) override;

  void InitProperties() override;

 protected:
  void ask_options() override;
  std::int16_t about_type() const override { return 4; }
  void draw_view(bool coarse) override;
};

}  // namespace mirolen
