#include "mirolen/controls/Plot2DS.h"

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
  return print_plot(least_map, least_map, [&](PrintWafer& page) {
    page.Print_2DSigmaPlot(wafobj, left, top, width, height, Resolution(), SigmaRange(), PlotCaption(),
                           marks(), DrawFrame);
  });
}

}  // namespace mirolen
