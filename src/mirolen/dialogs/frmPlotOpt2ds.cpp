#include "mirolen/dialogs/frmPlotOpt2ds.h"

#include "mirolen/core/translation.h"

namespace mirolen {

frmPlotOpt2ds::frmPlotOpt2ds(Toolkit& toolkit) : OptionForm(toolkit) {
  name_marks(optMark);
  frmplot.Move(Rows::gap, Rows::gap);
  Rows rows(frmplot);
  rows.add(lblresx, tresx);
  rows.add(lblsigma, SSigma);
  rows.add_group(frmmark, optMark);
  rows.add(whiteback, Rows::option_height);
  place_at_right(OKbtn, cancel, frmplot);
  answer_with(OKbtn, cancel);
  FirstFocus = &tresx;
}

void frmPlotOpt2ds::SetValues(wafer& wafer, double resolution, bool mark_sites, Color back,
                              double sigma_range) {
  tresx.show(resolution);
  SSigma.show(sigma_range);
  show_marks(optMark, mark_sites);
  show_background(whiteback, back);
  begin_with(wafer);
}

std::vector<OptionForm::NumberCheck> frmPlotOpt2ds::checks() {
  return {{tresx, tr("Resolution "), 0.001, limit(4), tr("mm")},  // contract 115
          {SSigma, tr("Sigma Range "), 0.001, 1000, tr("standard deviations")}};
}

}  // namespace mirolen
