#pragma once

#include "mirolen/controls/MapFrame.h"

namespace mirolen {

/// The colour map: the interpolated wafer as a mosaic of cells in ten colours.
class Plot2D : public MapFrame {
 public:
  Plot2D(Toolkit& toolkit, Container& container);

  double Resolution() const { return resolution_; }
  /// Edge of a cell in millimetres: 0 and below become 5, more than a quarter of the test diameter that
  /// quarter.
  void Resolution(double v);
  Sites ShowSites() const { return show_sites_; }
  /// Marks the sites: a minus below the mean, a plus at or above it.
  void ShowSites(Sites v);

  /// The colour of interval 0 (top of the scale) to 9; any other is black and cannot be set.
  Color IntervalColor(int interval) const;
  void IntervalColor(int interval, Color v);

  void InitProperties() override;

 protected:
  void fill_in_settings() override;
  void show_plot() override { resize_handler(); }
  void prepare_redraw() override;
  void draw_plot() override;
  void fill_legend() override;
  void show_orientation() override;

 private:
  double resolution_ = 0;
  Sites show_sites_ = Sites::HideSite;
};

}  // namespace mirolen
