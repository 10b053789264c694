#include "mirolen/controls/SurfaceFrame.h"

#include <algorithm>

#include "mirolen/dialogs/SurfaceOptions.h"

namespace mirolen {
namespace {

constexpr double default_step = 5;

}  // namespace

void SurfaceFrame::set_step(double& step, double v, const char* property) {
  if (!is_finite(v)) return;
  step = std::min(v > 0 ? v : default_step, wafobj.test_diam / 4);
  wafobj.changeResx = true;
  look_changed(property);
}

void SurfaceFrame::XResolution(double v) { set_step(x_resolution_, v, "XResolution"); }

void SurfaceFrame::YResolution(double v) { set_step(y_resolution_, v, "YResolution"); }

void SurfaceFrame::PlotScale(std::int16_t v) {
  plot_scale_ = v < 1 ? std::int16_t{0} : v;  // contract 33
  look_changed("PlotScale");
}

void SurfaceFrame::fill_in_settings() {
  if (x_resolution_ == 0) XResolution(default_step);
  if (y_resolution_ == 0) YResolution(default_step);
}

void SurfaceFrame::take_surface(const SurfaceOptions& form) {
  XResolution(form.GetResx());
  YResolution(form.GetResy());
  PlotScale(to_int16(form.GetPlotSccale()));
  take_view(form);
}

void SurfaceFrame::draw_surface(bool coarse, std::int16_t style, double sigma_range) {
  const double x_step = coarse ? coarse_step() : x_resolution_;
  const double y_step = coarse ? coarse_step() : y_resolution_;
  wafobj.D3Plot(PLOTA, x_step, y_step, plot_scale_, GridRotation(), WaferRotation(), GridInclination(), style,
                sigma_range, false, 0, 0, 0, 0, 0);
}

}  // namespace mirolen
