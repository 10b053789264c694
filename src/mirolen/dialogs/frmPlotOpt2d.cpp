#include "mirolen/dialogs/frmPlotOpt2d.h"

#include "mirolen/core/translation.h"

namespace mirolen {

frmPlotOpt2d::frmPlotOpt2d(Toolkit& toolkit) : OptionForm(toolkit) {
  name_marks(optMark);
  frmplot.Move(Rows::gap, Rows::gap);
  Rows rows(frmplot);
  rows.add(lblresx, tresx);
  rows.add_group(frmmark, optMark);
  rows.add(whiteback, Rows::option_height);
  place_at_right(OKbtn, cancel, frmplot);
  answer_with(OKbtn, cancel);
  FirstFocus = &tresx;
}

void frmPlotOpt2d::SetValues(wafer& wafer, double resolution, bool mark_sites, Color back) {
  tresx.show(resolution);
  show_marks(optMark, mark_sites);
  show_background(whiteback, back);
  begin_with(wafer);
}

std::vector<OptionForm::NumberCheck> frmPlotOpt2d::checks() {
  return {{tresx, tr("Resolution "), 0.01, limit(4), tr("mm")}};  // contract 112, 115
}

}  // namespace mirolen
