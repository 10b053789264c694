#include "mirolen/controls/Plot2DN.h"

namespace mirolen {

Plot2DN::Plot2DN(Toolkit& toolkit, Container& container) : MapFrame(toolkit, container) {
  Command1.Visible = false;
  realize();
}

void Plot2DN::InitProperties() {
  TestDiameter(194);
  WaferDiameter(200);
  WaferStyle(WaferSt::Notch);
  HideLegend(false);
  PlotCaption("Wafer");
}

void Plot2DN::draw_plot() { wafobj.D2Number(PLOTA, 0, 0, 0, 0, 0); }

std::int16_t Plot2DN::PrintPlot(double left, double top, double width, double height, bool DrawFrame) {
  return print_plot({left, top, width, height}, least_map, least_map, [&](PrintWafer& page) {
    page.Print_2DNPlot(wafobj, left, top, width, height, PlotCaption(), DrawFrame);
  });
}

std::int16_t Plot2DN::PrintGridNumber(double left, double top, double width, double height, bool DrawFrame) {
  return print_plot({left, top, width, height}, least_map, least_map, [&](PrintWafer& page) {
    page.Print_2DVGridPlot(wafobj, left, top, width, height, PlotCaption(), DrawFrame);
  });
}

}  // namespace mirolen
