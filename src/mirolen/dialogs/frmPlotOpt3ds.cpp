#include "mirolen/dialogs/frmPlotOpt3ds.h"

#include "mirolen/core/translation.h"

namespace mirolen {

frmPlotOpt3ds::frmPlotOpt3ds(Toolkit& toolkit) : SurfaceOptions(toolkit, "3D Sigma Range Plot") {
  Rows rows = place_plot_group();
  rows.add(lblsigma, SSigma);
  rows.add(whiteback, Rows::option_height);
  place_all(OKbtn, cancel);
  answer_with(OKbtn, cancel);
}

void frmPlotOpt3ds::SetValues(wafer& wafer, double resx, double resy, double scale, std::int16_t alp,
                              std::int16_t phi, std::int16_t thet, double sigma_range, Color back) {
  SSigma.show(sigma_range);
  show_background(whiteback, back);
  show_view(wafer, resx, resy, scale, alp, phi, thet);
}

std::vector<OptionForm::NumberCheck> frmPlotOpt3ds::checks() {
  std::vector<NumberCheck> all = SurfaceOptions::checks();
  all.push_back({SSigma, tr("Sigma Range "), 0.001, 1000, tr("standard deviations")});
  return all;
}

}  // namespace mirolen
