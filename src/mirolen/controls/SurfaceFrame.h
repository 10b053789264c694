#pragma once

#include "mirolen/controls/PerspectiveFrame.h"

namespace mirolen {

class SurfaceOptions;

/// What the surface and the sigma surface share: the steps of their grid and their height.
class SurfaceFrame : public PerspectiveFrame {
 public:
  // Step of the grid in millimetres: 0 and below become 5, more than a quarter of the test diameter that
  // quarter.
  double XResolution() const { return x_resolution_; }
  void XResolution(double v);
  double YResolution() const { return y_resolution_; }
  void YResolution(double v);

  std::int16_t PlotScale() const { return plot_scale_; }
  /// Height factor of the surface; below 1 becomes 0.
  void PlotScale(std::int16_t v);

 protected:
  using PerspectiveFrame::PerspectiveFrame;

  void fill_in_settings() override;
  /// Takes the steps, the height and the angles that the user has entered.
  void take_surface(const SurfaceOptions& form);
  /// Draws with a style of `D3Plot`.
  void draw_surface(bool coarse, std::int16_t style, double sigma_range);

 private:
  void set_step(double& step, double v, const char* property);

  double x_resolution_ = 0, y_resolution_ = 0;
  std::int16_t plot_scale_ = 0;
};

}  // namespace mirolen
