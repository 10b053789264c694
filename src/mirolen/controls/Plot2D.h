#pragma once

#include "mirolen/controls/CellMapFrame.h"

namespace mirolen {

/// The colour map: the interpolated wafer as a mosaic of cells in ten colours.
class Plot2D : public CellMapFrame {
 public:
  Plot2D(Toolkit& toolkit, Container& container);

  void InitProperties() override;

 protected:
  void show_plot() override { resize_handler(); }
  void draw_plot() override;
};

}  // namespace mirolen
