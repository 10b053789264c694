#include "mirolen/dialogs/view_pages.h"

#include "mirolen/core/translation.h"
#include "mirolen/dialogs/input_checks.h"
#include "mirolen/dialogs/view_preview.h"

namespace mirolen {
ViewPage::ViewPage(Widget* container, const char* text)
    : PropertyPage(container, text), rows(*this), beside(*this, Rows::group_width, Rows::group_width) {
  rows.add(lblXResolution, txtXResolution);
  rows.add(lblYResolution, txtYResolution);
  rows.add(lblPlotScale, txtPlotScale);
  rows.add(lblGridInclination, txtGridInclination);
  rows.add(lblGridRotation, txtGridRotation);
  rows.add(lblWaferRotation, txtWaferRotation);
  beside.add_picture(Plot, preview_side);

  number(txtXResolution, "XResolution", above_zero(tr("mm")), 5);
  number(txtYResolution, "YResolution", above_zero(tr("mm")), 5);
  number(txtPlotScale, "PlotScale", tr("height of the surface"), 40);
  angle(txtGridInclination, "GridInclination", 35, [this] { show_grid(); });
  angle(txtGridRotation, "GridRotation", 40, [this] { show_grid(); });
  angle(txtWaferRotation, "WaferRotation", 40);
}

void ViewPage::show_grid() {
  DrawViewPreview(Plot, number_in(txtGridRotation.Text()), number_in(txtGridInclination.Text()));
}

Plot3DProp::Plot3DProp(Widget* container) : ViewPage(container, "3D Plot") {
  name(optPlot, {"Polygons", "Hidden wire frame", "Wire frame"});
  beside.add_group(frmplot, optPlot);
  choice(optPlot, "PlotType");
}

Plot3DSProp::Plot3DSProp(Widget* container) : ViewPage(container, "3D Sigma Range Plot") {
  rows.add(lblSigmaRange, txtSigmaRange);
  number(txtSigmaRange, "SigmaRange", tr("standard deviations"), 0.5);
}

}  // namespace mirolen
