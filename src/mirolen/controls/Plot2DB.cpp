#include "mirolen/controls/Plot2DB.h"

#include "mirolen/dialogs/frmPlotOpt2DB.h"

namespace mirolen {
namespace {

constexpr double default_footprint = 5, default_scale = 1;

double finite_or(double fallback, double v) { return is_finite(v) ? v : fallback; }

}  // namespace

Plot2DB::Plot2DB(Toolkit& toolkit, Container& container) : PerspectiveFrame(toolkit, container) { realize(); }

void Plot2DB::BeamWidth(double v) {
  beam_width_ = finite_or(default_footprint, v);
  look_changed("BeamWidth");
}

void Plot2DB::BeamHeight(double v) {
  beam_height_ = finite_or(default_footprint, v);
  look_changed("BeamHeight");
}

void Plot2DB::BeamScale(double v) {
  beam_scale_ = finite_or(default_scale, v);
  look_changed("BeamScale");
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
  BeamScale(1);
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
  return print_plot(least_width, least_height, [&](PrintWafer& page) {
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
