#include "mirolen/dialogs/frmPlotOpt2DB.h"

#include "mirolen/core/translation.h"

namespace mirolen {

frmPlotOpt2DB::frmPlotOpt2DB(Toolkit& toolkit) : ViewOptions(toolkit, "3D Bar Plot") {
  lblresx.Caption = tr("Bar width:");
  lblresy.Caption = tr("Bar depth:");
  place_plot_group();
  place_all(OKbtn, cancel);
  answer_with(OKbtn, cancel);
}

std::vector<OptionForm::NumberCheck> frmPlotOpt2DB::checks() {
  return {{tresx, tr("Bar width "), 0.001, limit(2), tr("mm")},
          {tresy, tr("Bar depth "), 0.001, limit(2), tr("mm")},
          {tscale, tr("Scale factor "), 1e-7, 1000, tr("mm a unit of the value")}};  // contract 115
}

}  // namespace mirolen
