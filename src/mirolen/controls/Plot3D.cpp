#include "mirolen/controls/Plot3D.h"

#include "mirolen/controls/arguments.h"
#include "mirolen/dialogs/frmPlotOpt3d.h"
#include "mirolen/render/ColorScale.h"

namespace mirolen {

Plot3D::Plot3D(Toolkit& toolkit, Container& container) : SurfaceFrame(toolkit, container) {
  frInt.Border = false;
  frInt.Move(120, 2385, 1695, 255);
  Label30.Move(0, 15, 700, 225);
  lbldist.Move(720, 15, 1000, 225);
  make_room_in_legend(255);
  realize();
}

void Plot3D::PlotType(PlotTypeEnum v) {
  if (!fits_16_bits(v)) return;
  plot_type_ = v;
  look_changed("PlotType");
}

void Plot3D::InitProperties() {
  TestDiameter(194);
  WaferDiameter(200);
  WaferStyle(WaferSt::Notch);
  XResolution(5);
  YResolution(5);
  GridRotation(40);
  WaferRotation(40);
  GridInclination(35);
  PlotType(PlotTypeEnum::PolyEdge);
  PlotScale(40);
  HideLegend(false);
  PlotCaption("Wafer");
}

void Plot3D::fill_in_settings() {
  SurfaceFrame::fill_in_settings();
  if (plot_type_ == PlotTypeEnum{}) PlotType(PlotTypeEnum::PolyEdge);
}

void Plot3D::fill_legend() {
  SurfaceFrame::fill_legend();
  const ScaleEnds ends = scale_ends(wafobj);
  lbldist.Caption = wafobj.FormatLbl((ends.high - ends.low) / 10);
}

std::int16_t Plot3D::PrintPlot(double left, double top, double width, double height, bool DrawFrame) {
  return print_plot({left, top, width, height}, least_width, least_height, [&](PrintWafer& page) {
    page.Print_3DPlot(wafobj, left, top, width, height, static_cast<double>(plot_type_), XResolution(),
                      YResolution(), PlotScale(), GridRotation(), WaferRotation(), GridInclination(),
                      PlotCaption(), DrawFrame);
  });
}

void Plot3D::ask_options() {
  frmPlotOpt3d form(toolkit());
  form.SetValues(wafobj, XResolution(), YResolution(), PlotScale(), GridRotation(), WaferRotation(),
                 GridInclination(), static_cast<std::int16_t>(plot_type_), PLOTA.BackColor);
  if (!confirmed(form)) return;
  take_surface(form);
  PlotType(static_cast<PlotTypeEnum>(form.GetPlotType()));
  take_background(form.GetBackColor());
  RedrawPlot();
}

}  // namespace mirolen
