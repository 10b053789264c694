#pragma once

#include "mirolen/controls/SurfaceFrame.h"

namespace mirolen {

/// The surface: the interpolated wafer in perspective, in ten colours or as a wire frame.
class Plot3D : public SurfaceFrame {
 public:
  Plot3D(Toolkit& toolkit, Container& container);

  /// A number that has no name in its enumeration is kept, if 16 bits hold it.
  PlotTypeEnum PlotType() const { return plot_type_; }
  void PlotType(PlotTypeEnum v);

  std::int16_t PrintPlot(double left, double top, double width, double height,
                         bool DrawFrame = false) override;

  void InitProperties() override;

  // The step of the colour scale, under the legend.
  Frame frInt{&frleg};
  Label Label30{&frInt, "Interval :"};
  Label lbldist{&frInt};

 protected:
  std::int16_t about_type() const override { return 2; }
  void fill_in_settings() override;
  void fill_legend() override;
  void color_legend(Color v) override { frInt.BackColor = v; }
  void show_plot() override { resize_handler(); }
  void ask_options() override;
  void draw_view(bool coarse) override { draw_surface(coarse, static_cast<std::int16_t>(plot_type_), 0); }

 private:
  PlotTypeEnum plot_type_{};
};

}  // namespace mirolen
