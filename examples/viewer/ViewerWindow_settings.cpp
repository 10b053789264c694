// What the window is started with, and what it keeps for the next start.

#include <QCloseEvent>
#include <QTabWidget>

#include "ViewerOptions.h"
#include "ViewerWindow.h"

using mirolen::qt::PlotWidget;

void ViewerWindow::start(const ViewerOptions& options) {
  unit_ = options.unit;
  QStringList wrong;
  if (!options.settings.isEmpty()) {
    settings_.emplace(options.settings);
    for (const Page& page : pages_) wrong << settings_->read(page.named);
    settings_->read_window(*this, *tabs_);
  }
  take_diameters(options);
  follow_plot();
  show();
  complain_of(
      tr("Not all settings could be used. The usual ones stand in for them; a broken file is left as it is."),
      wrong);
  if (!options.files.isEmpty()) open_csv(options.files);
}

void ViewerWindow::take_diameters(const ViewerOptions& options) {
  constexpr double margin = 6;  // mm
  keep_diameters_ = !options.wafer_diameter && !options.test_diameter;
  for (const Page& page : pages_) {
    PlotWidget& plot = *page.named.plot;
    if (options.wafer_diameter) {
      const double wafer = *options.wafer_diameter;
      plot.setWaferDiameter(wafer);
      plot.setTestDiameter(wafer > 2 * margin ? wafer - margin : wafer);
    }
    if (options.test_diameter) plot.setTestDiameter(*options.test_diameter);
  }
}

void ViewerWindow::closeEvent(QCloseEvent* event) {
  if (settings_) {
    QStringList wrong;
    for (const Page& page : pages_) wrong << settings_->write(page.named, keep_diameters_);
    settings_->write_window(*this, *tabs_);
    complain_of(tr("The settings could not be kept:"), wrong);
  }
  QMainWindow::closeEvent(event);
}

void ViewerWindow::complain_of(const QString& what, QStringList wrong) {
  wrong.removeAll(QString());
  if (!wrong.isEmpty()) complain(what + "\n\n" + wrong.join('\n'));
}
