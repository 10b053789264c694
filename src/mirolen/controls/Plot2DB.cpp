#include "mirolen/controls/Plot2DB.h"

#include "mirolen/dialogs/frmPlotOpt2DB.h"

namespace mirolen {
namespace {

constexpr double default_footprint = 5;

}  // namespace

Plot2DB::Plot2DB(Toolkit& toolkit, Container& container) : PerspectiveFrame(toolkit, container) { realize(); }

void Plot2DB::set_size(double& size, double v, const char* property) {
  if (!is_finite(v)) return;
  size = v;
  look_changed(property);
}

void Plot2DB::InitProperties() {
  TestDiameter(194);
  WaferDiameter(200);
  WaferStyle(WaferSt::Notch);
  BeamWidth(5);
  BeamHeight(5);
  GridRotation(40);
  WaferRotation(40);
  GridInclination(35);
  BeamScale(1);  // contract 49
  HideLegend(false);
  PlotCaption("Wafer");
}

void Plot2DB::fill_in_settings() {
  if (beam_width_ == 0) BeamWidth(default_footprint);
  if (beam_height_ == 0) BeamHeight(default_footprint);
}

/// Bars have no grid that could be coarser.
void Plot2DB::draw_view(bool) {
  wafobj.D2BeamPlot(PLOTA, beam_width_, beam_height_, beam_scale_, GridRotation(), WaferRotation(),
                    GridInclination(), false, 0, 0, 0, 0, 0);
}

std::int16_t Plot2DB::PrintPlot(double left, double top, double width, double height, bool DrawFrame) {
  return print_plot({left, top, width, height}, least_width, least_height, [&](PrintWafer& page) {
    page.Print_2DBPlot(wafobj, left, top, width, height, beam_width_, beam_height_, beam_scale_,
                       GridRotation(), WaferRotation(), GridInclination(), PlotCaption(), DrawFrame);
  });
}

void Plot2DB::ask_options() {
  frmPlotOpt2DB form(toolkit());
  form.SetValues(wafobj, beam_width_, beam_height_, beam_scale_, GridRotation(), WaferRotation(),
                 GridInclination());
  if (!confirmed(form)) return;
  BeamWidth(form.GetResx());
  BeamHeight(form.GetResy());
  BeamScale(form.GetPlotSccale());
  take_view(form);
  RedrawPlot();
}

}  // namespace mirolen
