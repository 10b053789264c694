#include "mirolen/controls/Plot2DS.h"

#include "mirolen/dialogs/frmPlotOpt2ds.h"

namespace mirolen {

Plot2DS::Plot2DS(Toolkit& toolkit, Container& container) : SigmaLegend(toolkit, container) { realize(); }

void Plot2DS::InitProperties() {
  TestDiameter(194);
  WaferDiameter(200);
  WaferStyle(WaferSt::Notch);
  Resolution(5);
  SigmaRange(0.5);
  ShowSites(Sites::HideSite);
  HideLegend(false);
  PlotCaption("Wafer");
}

void Plot2DS::draw_plot() {
  constexpr std::int16_t as_sigma_map = 4;
  wafobj.D2Plot(PLOTA, Resolution(), as_sigma_map, SigmaRange(), marks(), 0, 0, 0, 0, 0);
}

std::int16_t Plot2DS::PrintPlot(double left, double top, double width, double height, bool DrawFrame) {
  return print_plot({left, top, width, height}, least_map, least_map, [&](PrintWafer& page) {
    page.Print_2DSigmaPlot(wafobj, left, top, width, height, Resolution(), SigmaRange(), PlotCaption(),
                           marks(), DrawFrame);
  });
}

void Plot2DS::ask_options() {
  frmPlotOpt2ds form(toolkit());
  form.SetValues(wafobj, Resolution(), marks() != 0, PLOTA.BackColor, SigmaRange());
  if (!confirmed(form)) return;
  Resolution(form.GetXRes());
  ShowSites(form.GetMarkeSites() ? Sites::ShowSite : Sites::HideSite);
  SigmaRange(form.GetSigRange());
  take_background(form.GetBackColor());
  show_plot();
}

}  // namespace mirolen
