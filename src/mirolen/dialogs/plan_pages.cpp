#include "mirolen/dialogs/plan_pages.h"

#include "mirolen/core/translation.h"

namespace mirolen {
namespace {

constexpr std::int32_t show_sites = -1, hide_sites = 0;
constexpr std::int16_t in_percent = 0, in_unit = -1;

}  // namespace

LineScanAngleProp::LineScanAngleProp(Widget* container) : PropertyPage(container, "Line Scan") {
  Rows(*this).add(lblAngle, txtAngle);
  angle(txtAngle, "angle", 0);
}

Plot2DProp::Plot2DProp(Widget* container) : PropertyPage(container, "2D Plot") {
  Rows rows(*this);
  rows.add(lblResolution, txtResolution);
  rows.add(chkShowSites, Rows::option_height);
  number(txtResolution, "Resolution", above_zero(tr("mm")), 5);
  tick(chkShowSites, "ShowSites", show_sites, hide_sites);
}

Plot2DSProp::Plot2DSProp(Widget* container) : PropertyPage(container, "2D Sigma Range Plot") {
  Rows rows(*this);
  rows.add(lblResolution, txtResolution);
  rows.add(lblSigmaRange, txtSigmaRange);
  rows.add(chkShowSites, Rows::option_height);
  number(txtResolution, "Resolution", above_zero(tr("mm")), 5);
  number(txtSigmaRange, "SigmaRange", tr("standard deviations"), 0.5);
  tick(chkShowSites, "ShowSites", show_sites, hide_sites);
}

Plot2DCProp::Plot2DCProp(Widget* container) : PropertyPage(container, "2D Contour Plot") {
  name(OptQuali, {"Low", "High", "Automatic"});
  name(OptExcon, {"Exact", "Converted", "None"});
  name(Optcol, {"Black and white", "Three colors", "Ten colors"});
  Rows rows(*this);
  rows.add(lblInterval, txtInterval);
  rows.add(chkPercent, Rows::option_height);
  rows.add_group(frmquali, OptQuali);
  Rows beside(*this, Rows::group_width, Rows::group_width);
  beside.add_group(frmmark, OptExcon);
  beside.add_group(frmcol, Optcol);
  number(txtInterval, "Interval", above_zero(tr("unit of the interval")), 1);
  tick(chkPercent, "IntervalInPercent", in_percent, in_unit);
  choice(Optcol, "PlotColored");
  choice(OptQuali, "Resolution");
  choice(OptExcon, "marksites");
}

HistogrammProp::HistogrammProp(Widget* container) : PropertyPage(container, "Histogram") {
  name(optPlot, {"Bottom", "Top", "Left", "Right"});
  Rows rows(*this);
  rows.add(lblResolution, txtResolution);
  rows.add_group(frmplot, optPlot);
  number(txtResolution, "Resolution", above_zero(tr("classes")), 0.01);  // contract 117
  choice(optPlot, "PlotType");
}

}  // namespace mirolen
