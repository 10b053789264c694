#include "mirolen/dialogs/frmPlotOpt2DC.h"

#include "mirolen/core/translation.h"

namespace mirolen {

frmPlotOpt2DC::frmPlotOpt2DC(Toolkit& toolkit) : OptionForm(toolkit) {
  name_options();
  place_groups();
  answer_with(OKbtn, cancel);
  FirstFocus = &tdist;
}

void frmPlotOpt2DC::name_options() {
  name(OptQuali, {"Low", "High", "Automatic"});
  name(OptExcon, {"Exact", "Converted", "None"});
  name(Optcol, {"Black and white", "Three colors", "Ten colors"});
}

void frmPlotOpt2DC::place_groups() {
  frmplot.Move(Rows::gap, Rows::gap);
  Rows rows(frmplot);
  rows.add(lbldist, tdist);
  rows.add(whiteback, Rows::option_height);
  frmquali.Move(Rows::gap, frmplot.Top + frmplot.Height + Rows::gap);
  Rows(frmquali).add_options(OptQuali);
  const double second = frmplot.Left + frmplot.Width + Rows::gap;
  frmmark.Move(second, Rows::gap);
  Rows(frmmark).add_options(OptExcon);
  frmcol.Move(second, frmmark.Top + frmmark.Height + Rows::gap);
  Rows(frmcol).add_options(Optcol);
  frmquali.Height = frmcol.Top + frmcol.Height - frmquali.Top;
  place_below(OKbtn, cancel, second + frmcol.Width, frmcol.Top + frmcol.Height + Rows::gap);
}

void frmPlotOpt2DC::SetValues(wafer& wafer, double dist, std::int16_t reso, std::int16_t mark_sites,
                              std::int16_t show_color, Color back) {
  tdist.show(dist);
  choose(OptQuali, reso_ = reso);
  choose(OptExcon, marks_ = mark_sites);
  choose(Optcol, color_ = show_color);
  show_background(whiteback, back);
  begin_with(wafer);
}

std::vector<OptionForm::NumberCheck> frmPlotOpt2DC::checks() {
  return {{tdist, tr("Interval "), 0.009, 1000, tr("unit of the interval")}};
}

}  // namespace mirolen
