#pragma once

#include "mirolen/controls/MapFrame.h"

namespace mirolen {

/// The value map: each site's value at its place, in the colour of its interval. It has no options to ask
/// for.
class Plot2DN : public MapFrame {
 public:
  Plot2DN(Toolkit& toolkit, Container& container);

  std::int16_t PrintPlot(double left, double top, double width, double height,
                         bool DrawFrame = false) override;
  /// Prints the numbers of the sites. @return as `PrintPlot`.
  std::int16_t PrintGridNumber(double left, double top, double width, double height, bool DrawFrame = false);

  void InitProperties() override;

 protected:
  std::int16_t about_type() const override { return 8; }
  void fill_in_settings() override {}
  void show_plot() override { resize_handler(); }
  void draw_plot() override;
};

}  // namespace mirolen
