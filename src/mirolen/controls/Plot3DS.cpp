#include "mirolen/controls/Plot3DS.h"

#include "mirolen/dialogs/frmPlotOpt3ds.h"

namespace mirolen {

Plot3DS::Plot3DS(Toolkit& toolkit, Container& container) : SigmaLegend(toolkit, container) { realize(); }

void Plot3DS::InitProperties() {
  TestDiameter(194);
  WaferDiameter(200);
  WaferStyle(WaferSt::Notch);
  SigmaRange(0.5);
  XResolution(5);
  YResolution(5);
  GridRotation(40);
  WaferRotation(40);
  GridInclination(35);
  PlotScale(40);
  HideLegend(false);
  PlotCaption("Wafer");
}

void Plot3DS::draw_view(bool coarse) {
  constexpr std::int16_t sigma_colors = 4;
  draw_surface(coarse, sigma_colors, SigmaRange());
}

std::int16_t Plot3DS::PrintPlot(double left, double top, double width, double height, bool DrawFrame) {
  return print_plot({left, top, width, height}, least_width, least_height, [&](PrintWafer& page) {
    page.Print_3DSigmaPlot(wafobj, left, top, width, height, XResolution(), YResolution(), PlotScale(),
                           GridRotation(), WaferRotation(), GridInclination(), SigmaRange(), PlotCaption(),
                           DrawFrame);
  });
}

void Plot3DS::ask_options() {
  frmPlotOpt3ds form(toolkit());
  form.SetValues(wafobj, XResolution(), YResolution(), PlotScale(), GridRotation(), WaferRotation(),
                 GridInclination(), SigmaRange(), PLOTA.BackColor);
  if (!confirmed(form)) return;
  take_surface(form);
  SigmaRange(form.GetSigRange());
  take_background(form.GetBackColor());
  show_plot();
}

}  // namespace mirolen
