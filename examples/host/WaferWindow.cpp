#include "WaferWindow.h"

#include <mirolen/qt/Histogram.h>
#include <mirolen/qt/LineScan.h>
#include <mirolen/qt/Plot2D.h>
#include <mirolen/qt/Plot2DB.h>
#include <mirolen/qt/Plot2DC.h>
#include <mirolen/qt/Plot2DN.h>
#include <mirolen/qt/Plot2DS.h>
#include <mirolen/qt/Plot3D.h>
#include <mirolen/qt/Plot3DS.h>

using namespace mirolen::qt;

WaferWindow::WaferWindow() : tabs_(new QTabWidget) {
  setCentralWidget(tabs_);
  map_ = add<Plot2D>();
  sigma_map_ = add<Plot2DS>();
  contours_ = add<Plot2DC>();
  add<Plot2DN>();
  bars_ = add<Plot2DB>();
  surface_ = add<Plot3D>();
  sigma_surface_ = add<Plot3DS>();
  add<Histogram>();
  scan_ = add<LineScan>();
  set_looks();
}

template <class Plot>
Plot* WaferWindow::add() {
  auto* const plot = new Plot(this);
  plot->setWaferDiameter(300);  // first: it empties the store
  plot->setTestDiameter(294);
  tabs_->addTab(plot, QString(plot->metaObject()->className()).section("::", -1));
  plots_.push_back(plot);
  return plot;
}

void WaferWindow::set_looks() {
  map_->setResolution(2);
  map_->setShowSites(Plot2D::ShowSite);
  sigma_map_->setResolution(2);
  sigma_map_->setSigmaRange(1);
  contours_->setPlotColored(Plot2DC::Ten_ColorPlot);
  contours_->setResolution(Plot2DC::HighQuality);
  contours_->setMeasurementUnit("nm");
  surface_->setPlotScale(80);
  sigma_surface_->setPlotScale(80);
  sigma_surface_->setSigmaRange(1);
  scan_->setShowSites(true);
}

/// What is in the unit of the values has to follow them; legends show it with all its digits.
void WaferWindow::fit_to_range(double range) {
  if (!(range > 0)) return;
  const auto rounded = [](double value) { return QString::number(value, 'g', 2).toDouble(); };
  contours_->setInterval(rounded(range / 10));
  bars_->setBeamScale(rounded(40 / range));
}

bool WaferWindow::show_wafer(const Sites& sites) {
  for (PlotWidget* plot : plots_)
    if (plot->SetWaferData(sites.x, sites.y, sites.z) != 0) return false;
  fit_to_range(map_->range());
  for (PlotWidget* plot : plots_) plot->Plot();
  return true;
}
