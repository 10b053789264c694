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

}  // namespace mirolen
