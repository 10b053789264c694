#include "mirolen/dialogs/frmPlotHist.h"

#include "mirolen/core/translation.h"

namespace mirolen {

frmPlotHist::frmPlotHist(Toolkit& toolkit) : OptionForm(toolkit) {
  frmplot.Move(Rows::gap, Rows::gap);
  Rows rows(frmplot);
  rows.add(lblresx, tresx);
  rows.add(whiteback, Rows::option_height);
  place_at_right(OKbtn, cancel, frmplot);
  answer_with(OKbtn, cancel);
  FirstFocus = &tresx;
}

void frmPlotHist::SetValues(wafer& wafer, double resolution, Color back) {
  tresx.show(resolution);
  show_background(whiteback, back);
  begin_with(wafer);
}

std::vector<OptionForm::NumberCheck> frmPlotHist::checks() {
  return {{tresx, tr("Resolution "), 1, 1000, tr("classes")}};
}

}  // namespace mirolen
