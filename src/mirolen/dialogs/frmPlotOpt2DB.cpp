#include "mirolen/dialogs/frmPlotOpt2DB.h"

namespace mirolen {

frmPlotOpt2DB::frmPlotOpt2DB(Toolkit& toolkit) : ViewOptions(toolkit, "3D Bar Plot") {
  lblresx.Caption = "Bar width:";
  lblresx.AccessKey = 'w';
  lblresy.Caption = "Bar depth:";
  lblresy.AccessKey = 'd';
  place_plot_group();
  place_all(OKbtn, cancel);
  answer_with(OKbtn, cancel);
}

std::vector<OptionForm::NumberCheck> frmPlotOpt2DB::checks() {
  return {{tresx, "Bar width ", 0.001, limit(2), "mm"},
          {tresy, "Bar depth ", 0.001, limit(2), "mm"},
          {tscale, "Scale factor ", 1e-7, 1000, "mm a unit of the value"}};
}

}  // namespace mirolen
