#include "mirolen/controls/Plot2D.h"

#include "mirolen/dialogs/frmPlotOpt2d.h"

namespace mirolen {

Plot2D::Plot2D(Toolkit& toolkit, Container& container) : CellMapFrame(toolkit, container) { realize(); }

void Plot2D::InitProperties() {
  TestDiameter(194);
  WaferDiameter(200);
  WaferStyle(WaferSt::Notch);
  Resolution(5);
  ShowSites(Sites::HideSite);
  HideLegend(false);
  PlotCaption("Wafer");
}

void Plot2D::draw_plot() {
  constexpr std::int16_t as_color_map = 5;
  wafobj.D2Plot(PLOTA, Resolution(), as_color_map, 0, marks(), 0, 0, 0, 0, 0);
}

std::int16_t Plot2D::PrintPlot(double left, double top, double width, double height, bool DrawFrame) {
  return print_plot({left, top, width, height}, least_map, least_map, [&](PrintWafer& page) {
    page.Print_2DPlot(wafobj, left, top, width, height, Resolution(), PlotCaption(), marks(), DrawFrame);
  });
}

std::int16_t Plot2D::PrintGridPlot(double left, double top, double width, double height) {
  return print_plot({left, top, width, height}, least_map, least_map, [&](PrintWafer& page) {
    page.Print_GridPosPlot(wafobj, left, top, width, height, PlotCaption());
  });
}

void Plot2D::ask_options() {
  frmPlotOpt2d form(toolkit());
  form.SetValues(wafobj, Resolution(), marks() != 0, PLOTA.BackColor);
  if (!confirmed(form)) return;
  Resolution(form.GetXRes());
  ShowSites(form.GetMarkeSites() ? Sites::ShowSite : Sites::HideSite);
  take_background(form.GetBackColor());
  RedrawPlot();
}

}  // namespace mirolen
