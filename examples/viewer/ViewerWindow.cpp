#include "ViewerWindow.h"

#include <QActionGroup>
#include <QFileDialog>
#include <QFileInfo>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QInputDialog>
#include <QMenuBar>
#include <QMessageBox>

#include "wafer_file.h"

using mirolen::qt::Plot2D;

ViewerWindow::ViewerWindow(double wafer_diameter, double test_diameter) : map_(new Plot2D) {
  // The wafer's diameter comes first: setting it empties the data.
  map_->setWaferDiameter(wafer_diameter);
  map_->setTestDiameter(test_diameter);
  map_->setResolution(2);

  auto* content = new QWidget;
  auto* row = new QHBoxLayout(content);
  row->addWidget(map_, 1);
  row->addLayout(statistics());
  setCentralWidget(content);
  add_file_menu();
  add_view_menu();
  setWindowTitle(tr("Wafer viewer"));
  resize(1050, 720);
}

void ViewerWindow::add_file_menu() {
  QMenu* const menu = menuBar()->addMenu(tr("&File"));
  menu->addAction(tr("&Open CSV..."), QKeySequence::Open, this, &ViewerWindow::ask_csv);
  menu->addAction(tr("Open &binary..."), this, &ViewerWindow::ask_binary);
  menu->addSeparator();
  menu->addAction(tr("&Quit"), QKeySequence::Quit, this, &QWidget::close);
}

void ViewerWindow::add_view_menu() {
  QMenu* const menu = menuBar()->addMenu(tr("&View"));
  QAction* const sites = menu->addAction(tr("Show &sites"));
  sites->setCheckable(true);
  connect(sites, &QAction::toggled, this, [this](bool on) {
    map_->setShowSites(on ? Plot2D::ShowSite : Plot2D::HideSite);
    map_->Plot();  // a property changes the look of the next plot only
  });
  QAction* const legend = menu->addAction(tr("Hide &legend"));
  legend->setCheckable(true);
  connect(legend, &QAction::toggled, map_, &Plot2D::setHideLegend);

  menu->addSeparator();
  auto* const styles = new QActionGroup(this);
  for (const auto& [text, style] :
       {std::pair(tr("&Notch"), Plot2D::Notch), std::pair(tr("&Flat"), Plot2D::Flat)}) {
    QAction* const action = styles->addAction(menu->addAction(text));
    action->setCheckable(true);
    action->setChecked(style == map_->WaferStyle());
    connect(action, &QAction::triggered, this, [this, style = style] {
      map_->setWaferStyle(style);
      map_->Plot();
    });
  }
}

QLayout* ViewerWindow::statistics() {
  const std::array names{tr("Sites"), tr("Mean"), tr("Std dev"), tr("Std dev %"),
                         tr("Max"),   tr("Min"),  tr("Range"),   tr("Hi/Lo %")};
  auto* const form = new QFormLayout;
  for (std::size_t i = 0; i < names.size(); ++i) {
    figures_[i] = new QLabel("-");
    figures_[i]->setTextInteractionFlags(Qt::TextSelectableByMouse);
    figures_[i]->setMinimumWidth(80);
    form->addRow(names[i], figures_[i]);
  }
  return form;
}

void ViewerWindow::ask_csv() {
  const QString path =
      QFileDialog::getOpenFileName(this, tr("Open CSV"), {}, tr("Sites (*.csv);;All files (*)"));
  if (!path.isEmpty()) open_csv(path);
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

bool ViewerWindow::open_csv(const QString& path) {
  return load(path, [&] {
    const SiteList sites = read_csv(path);
    check_sites(sites, map_->WaferDiameter());
    return map_->SetWaferData(sites.x, sites.y, sites.z);
  });
}

bool ViewerWindow::open_binary(const QString& path, int sites) {
  return load(path, [&] {
    check_binary(path, sites, map_->WaferDiameter());
    return map_->SetDataFile(path, sites);
  });
}

bool ViewerWindow::load(const QString& path, const std::function<int()>& load_into_map) {
  try {
    if (const int result = load_into_map(); result != 0)
      throw WaferFileError(tr("The plot refuses these sites (result %1).").arg(result));
    show_loaded(path);
    return true;
  } catch (const WaferFileError& error) {
    complain(tr("%1\n\n%2").arg(path, error.text()));
    return false;
  }
}

void ViewerWindow::show_loaded(const QString& path) {
  map_->setPlotCaption(QFileInfo(path).completeBaseName());
  map_->Plot();
  setWindowTitle(tr("%1 - Wafer viewer").arg(QFileInfo(path).fileName()));
  const std::array values{map_->control().wafobj.GetNop(),
                          map_->mean(),
                          map_->StdDev(),
                          map_->StdDevPercent(),
                          map_->Maximum(),
                          map_->Minimum(),
                          map_->range(),
                          map_->HiLo()};
  for (std::size_t i = 0; i < values.size(); ++i) figures_[i]->setText(QLocale().toString(values[i], 'g', 6));
}

void ViewerWindow::complain(const QString& text) {
  QMessageBox box(QMessageBox::Warning, tr("Wafer viewer"), text, QMessageBox::Ok, this);
  box.setTextFormat(Qt::PlainText);
  box.exec();
}
