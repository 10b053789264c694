#pragma once

#include "mirolen/controls/CellMapFrame.h"
#include "mirolen/controls/SigmaLegend.h"

namespace mirolen {

/// The sigma map: cells in three colours, above, inside and below a range of deviations round the mean.
class Plot2DS : public SigmaLegend<CellMapFrame> {
 public:
  Plot2DS(Toolkit& toolkit, Container& container);

  std::int16_t PrintPlot(double left, double top, double width, double height,
                         bool DrawFrame = false) override;

  void InitProperties() override;

 protected:
  void ask_options() override;
  std::int16_t about_type() const override { return 3; }
  void draw_plot() override;
};

}  // namespace mirolen
