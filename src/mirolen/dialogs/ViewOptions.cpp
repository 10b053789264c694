#include "mirolen/dialogs/ViewOptions.h"

#include <algorithm>

#include "mirolen/dialogs/view_preview.h"

namespace mirolen {
ViewOptions::ViewOptions(Toolkit& toolkit, const char* plot) : OptionForm(toolkit), frmplot(this, plot) {
  talph.OnAngle = [this] { show_grid(); };
  tphi.OnAngle = [this] { show_wafer(); };
  tthet.OnAngle = [this] {
    show_grid();
    show_wafer();
  };
  FirstFocus = &tresx;
}

Rows ViewOptions::place_plot_group() {
  frmplot.Move(Rows::gap, Rows::gap);
  Rows rows(frmplot);
  rows.add(lblresx, tresx);
  rows.add(lblresy, tresy);
  rows.add(lblscale, tscale);
  return rows;
}

void ViewOptions::place_all(Button& ok, Button& cancel) {
  frmgrid.Move(frmplot.Left + frmplot.Width + Rows::gap, Rows::gap);
  Rows grid(frmgrid);
  grid.add(lblalph, talph);
  grid.add(lblthet, tthet);
  grid.add_picture(Plot, preview_side);
  frmwafer.Move(frmgrid.Left + frmgrid.Width + Rows::gap, Rows::gap);
  Rows wafer_rows(frmwafer);
  wafer_rows.add(lblphi, tphi);
  wafer_rows.add_picture(FNPlot, preview_side);
  FNPlot.Top = Plot.Top;
  const double height = std::max({frmplot.Height.get(), frmgrid.Height.get(), frmwafer.Height.get()});
  for (Frame* group : {&frmplot, &frmgrid, &frmwafer}) group->Height = height;
  place_below(ok, cancel, frmwafer.Left + frmwafer.Width, Rows::gap + height + Rows::gap);
}

void ViewOptions::show_view(wafer& wafer, double resx, double resy, double scale, std::int16_t alp,
                            std::int16_t phi, std::int16_t thet) {
  begin_with(wafer);
  tresx.show(resx);
  tresy.show(resy);
  tscale.show(scale);
  talph.show(alp);
  tphi.show(phi);
  tthet.show(thet);
  show_grid();
  show_wafer();
}

void ViewOptions::show_grid() {
  show_preview([this] { DrawViewPreview(Plot, GetAlp(), GetThet()); });
}

void ViewOptions::show_wafer() {
  show_preview([this] {
    double x0 = 0, y0 = 0;
    wafer_->FlatNotchShow(nullptr, FNPlot, x0, y0, 30, GetPhi(), GetThet());
  });
}

}  // namespace mirolen
