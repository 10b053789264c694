#include "mirolen/controls/Plot2D.h"

#include <cmath>
#include <string>

#include "mirolen/render/ColorScale.h"
#include "mirolen/render/StringFormat.h"

namespace mirolen {
namespace {

constexpr int intervals = 10;
constexpr double default_resolution = 5;
constexpr std::int16_t as_color_map = 5;
constexpr std::int16_t on_screen = 0;

}  // namespace

Plot2D::Plot2D(Toolkit& toolkit, Container& container) : MapFrame(toolkit, container) { realize(); }

void Plot2D::Resolution(double v) {
  if (!(v > 0)) v = default_resolution;
  if (wafobj.test_diam / 4 < v) v = wafobj.test_diam / 4;
  resolution_ = v;
  look_changed("Resolution");
}

void Plot2D::ShowSites(Sites v) {
  show_sites_ = v == Sites::HideSite ? Sites::HideSite : Sites::ShowSite;
  look_changed("ShowSites");
}

Color Plot2D::IntervalColor(int interval) const {
  if (interval < 0 || interval >= intervals) return 0;
  const double color = band_color(wafobj, interval + 1);
  return std::isfinite(color) ? to_color(color) : 0;
}

void Plot2D::IntervalColor(int interval, Color v) {
  if (interval < 0 || interval >= intervals) return;
  band_color(wafobj, interval + 1) = v;
  look_changed(("IntervalColor" + std::to_string(interval)).c_str());
}

void Plot2D::InitProperties() {
  TestDiameter(194);
  WaferDiameter(200);
  WaferStyle(WaferSt::Notch);
  Resolution(5);
  ShowSites(Sites::HideSite);
  HideLegend(false);
  PlotCaption("Wafer");
}

void Plot2D::fill_in_settings() {
  if (resolution_ == 0) Resolution(default_resolution);
}

void Plot2D::fill_legend() { wafobj.scale_colored(scalCol.as<ColorBox>(), ScaleValue.as<ValueLabel>()); }

void Plot2D::prepare_redraw() {
  const double finest = wafobj.test_diam / 4;
  if (!(finest < resolution_)) return;
  resolution_ = finest;
  toolkit().message_box("Maximal possible resolution is " + StringFormat::plain_text(finest) + " mm",
                        "Standard resolution to high ", MessageIcon::critical);
}

void Plot2D::show_orientation() {
  double x0 = 34, y0 = 34;
  wafobj.FlatNotchShow(&FNLabel, FNPic, x0, y0, 30, 0, 90);
}

void Plot2D::draw_plot() {
  wafobj.D2Plot(PLOTA, resolution_, as_color_map, 0, static_cast<std::int16_t>(show_sites_), 0, 0, 0, 0,
                on_screen);
}

}  // namespace mirolen
