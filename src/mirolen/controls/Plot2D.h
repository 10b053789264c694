#pragma once

#include "mirolen/controls/CellMapFrame.h"

namespace mirolen {

/// The colour map: the interpolated wafer as a mosaic of cells in ten colours.
class Plot2D : public CellMapFrame {
 public:
  Plot2D(Toolkit& toolkit, Container& container);

  std::int16_t PrintPlot(double left, double top, double width, double height,
                         bool DrawFrame = false) override;
  /// Prints the numbers of the sites, framed. @return as `PrintPlot`.
  std::int16_t PrintGridPlot(double left, double top, double width, double height);

  void InitProperties() override;

 protected:
  std::int16_t about_type() const override { return 1; }
  void show_plot() override { resize_handler(); }
  void ask_options() override;
  void draw_plot() override;
};

}  // namespace mirolen
