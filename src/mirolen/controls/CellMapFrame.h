#pragma once

#include "mirolen/controls/MapFrame.h"

namespace mirolen {

/// What the colour map and the sigma map share: the size of their cells, and the marks of the sites.
class CellMapFrame : public MapFrame {
 public:
  double Resolution() const { return resolution_; }
  /// Edge of a cell in millimetres: 0 and below become 5, more than a quarter of the test diameter that
  /// quarter.
  void Resolution(double v);
  Sites ShowSites() const { return show_sites_; }
  /// Marks the sites: a minus below the mean, a plus at or above it.
  void ShowSites(Sites v);

  bool asks_before_drawing() const override { return wafobj.GetNop() > 0 && is_too_coarse(); }

 protected:
  using MapFrame::MapFrame;

  void fill_in_settings() override;
  /// Holds the resolution to a quarter of the test diameter; then it tells so by a message and asks for the
  /// options.
  void prepare_redraw() override;
  std::int16_t marks() const { return static_cast<std::int16_t>(show_sites_); }

 private:
  double coarsest() const { return wafobj.test_diam / 4; }
  bool is_too_coarse() const { return coarsest() < resolution_; }

  double resolution_ = 0;
  Sites show_sites_ = Sites::HideSite;
};

}  // namespace mirolen
