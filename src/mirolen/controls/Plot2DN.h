#pragma once

#include "mirolen/controls/MapFrame.h"

namespace mirolen {

/// The value map: each site's value at its place, in the colour of its interval. It has no options to ask
/// for.
class Plot2DN : public MapFrame {
 public:
  Plot2DN(Toolkit& toolkit, Container& container);

  void InitProperties() override;

 protected:
  void fill_in_settings() override {}
  void show_plot() override { resize_handler(); }
  void draw_plot() override;
};

}  // namespace mirolen
