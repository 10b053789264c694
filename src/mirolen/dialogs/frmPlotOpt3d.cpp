#include "mirolen/dialogs/frmPlotOpt3d.h"

namespace mirolen {

frmPlotOpt3d::frmPlotOpt3d(Toolkit& toolkit) : SurfaceOptions(toolkit, "3D Plot") {
  name(optPlot, {"Poly Edge", "Hidden Wire Frame", "Wire Frame"});
  Rows rows = place_plot_group();
  rows.add_group(frmtype, optPlot);
  rows.add(whiteback, Rows::option_height);
  place_all(OKbtn, cancel);
  answer_with(OKbtn, cancel);
}

void frmPlotOpt3d::SetValues(wafer& wafer, double resx, double resy, double scale, std::int16_t alp,
                             std::int16_t phi, std::int16_t thet, std::int16_t plot_type, Color back) {
  choose(optPlot, plot_type_ = plot_type);
  show_background(whiteback, back);
  show_view(wafer, resx, resy, scale, alp, phi, thet);
}

}  // namespace mirolen
