// Opening files, and the choice among those that are open.

#include <QAction>
#include <QComboBox>
#include <QFileDialog>
#include <QFileInfo>
#include <QInputDialog>
#include <QSignalBlocker>

#include "ViewerWindow.h"
#include "wafer_file.h"

using mirolen::qt::PlotWidget;

void ViewerWindow::ask_csv() {
  const QStringList paths =
      QFileDialog::getOpenFileNames(this, tr("Open CSV"), {}, tr("Sites (*.csv);;All files (*)"));
  if (!paths.isEmpty()) open_csv(paths);
}

void ViewerWindow::ask_binary() {
  const QString path = QFileDialog::getOpenFileName(this, tr("Open binary"));
  if (path.isEmpty()) return;
  try {
    const int room = sites_in_binary(path);
    bool confirmed = false;
    const int sites = QInputDialog::getInt(this, tr("Open binary"), tr("Number of sites:"), room, 1,
                                           most_sites, 1, &confirmed);
    if (confirmed) open_binary(path, sites);
  } catch (const WaferFileError& error) {
    complain(tr("%1\n\n%2").arg(path, error.text()));
  }
}

bool ViewerWindow::open_csv(const QStringList& paths) {
  std::vector<LotWafer> wafers;
  QStringList refused;
  for (const QString& path : paths) {
    try {
      SiteList sites = read_csv(path);
      check_sites(sites, seen_page().named.plot->WaferDiameter());
      wafers.push_back({path, [sites = std::move(sites)](PlotWidget& plot) {
                          return plot.SetWaferData(sites.x, sites.y, sites.z);
                        }});
    } catch (const WaferFileError& error) {
      refused << tr("%1\n\n%2").arg(path, error.text());
    }
  }
  if (!refused.isEmpty()) complain(refused.join("\n\n"));
  return open(std::move(wafers)) && refused.isEmpty();
}

bool ViewerWindow::open_binary(const QString& path, int sites) {
  try {
    check_binary(path, sites, seen_page().named.plot->WaferDiameter());
  } catch (const WaferFileError& error) {
    complain(tr("%1\n\n%2").arg(path, error.text()));
    return false;
  }
  return open({{path, [path, sites](PlotWidget& plot) { return plot.SetDataFile(path, sites); }}});
}

bool ViewerWindow::open(std::vector<LotWafer> wafers) {
  if (wafers.empty()) return false;
  lot_ = std::move(wafers);
  {
    const QSignalBlocker until_filled(wafers_);
    wafers_->clear();
    for (const LotWafer& wafer : lot_) {
      wafers_->addItem(wafer.name());
      wafers_->setItemData(wafers_->count() - 1, wafer.file, Qt::ToolTipRole);
    }
  }
  show_wafer();
  return true;
}

std::size_t ViewerWindow::seen_wafer() const { return static_cast<std::size_t>(wafers_->currentIndex()); }

void ViewerWindow::show_wafer() {
  const LotWafer& wafer = lot_.at(seen_wafer());
  for (Page& page : pages_) {
    page = {page.named};
    page.named.plot->setProperty("PlotCaption", wafer.name());
  }
  setWindowTitle(tr("%1 - Wafer viewer").arg(QFileInfo(wafer.file).fileName()));
  show_page();
  enable_actions();
}

void ViewerWindow::step_wafer(int by) { wafers_->setCurrentIndex(wafers_->currentIndex() + by); }

void ViewerWindow::enable_actions() {
  const int shown = wafers_->currentIndex();
  for (QAction* action : need_data_) action->setEnabled(!lot_.empty());
  wafers_->setEnabled(!lot_.empty());
  next_->setEnabled(shown + 1 < wafers_->count());
  previous_->setEnabled(shown > 0);
}
