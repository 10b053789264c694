#pragma once

#include <QMainWindow>
#include <QTabWidget>
#include <vector>

#include "sites.h"

namespace mirolen::qt {
class LineScan;
class Plot2D;
class Plot2DB;
class Plot2DC;
class Plot2DS;
class Plot3D;
class Plot3DS;
class PlotWidget;
}  // namespace mirolen::qt

/// A main window with the nine plots of one wafer, each in a tab.
class WaferWindow : public QMainWindow {
 public:
  WaferWindow();

  /// Plots a wafer of 300 mm. @return false where a plot refuses the sites.
  bool show_wafer(const Sites& sites);

  const std::vector<mirolen::qt::PlotWidget*>& plots() const { return plots_; }

 private:
  template <class Plot>
  Plot* add();
  void set_looks();
  void fit_to_range(double range);

  QTabWidget* tabs_;
  std::vector<mirolen::qt::PlotWidget*> plots_;
  mirolen::qt::Plot2D* map_;
  mirolen::qt::Plot2DS* sigma_map_;
  mirolen::qt::Plot2DC* contours_;
  mirolen::qt::Plot2DB* bars_;
  mirolen::qt::Plot3D* surface_;
  mirolen::qt::Plot3DS* sigma_surface_;
  mirolen::qt::LineScan* scan_;
};
