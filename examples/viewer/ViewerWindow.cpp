#include "ViewerWindow.h"

#include <QActionGroup>
#include <QFileDialog>
#include <QFileInfo>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QInputDialog>
#include <QMenuBar>
#include <QMessageBox>
#include <QTabWidget>

#include "wafer_file.h"

using mirolen::qt::PlotWidget;

ViewerWindow::ViewerWindow(double wafer_diameter, double test_diameter) : tabs_(new QTabWidget) {
  auto* content = new QWidget;
  auto* row = new QHBoxLayout(content);
  row->addWidget(tabs_, 1);
  row->addLayout(statistics());
  setCentralWidget(content);
  add_pages(wafer_diameter, test_diameter);
  add_file_menu();
  add_view_menu();
  setWindowTitle(tr("Wafer viewer"));
  resize(1050, 740);
}

void ViewerWindow::add_pages(double wafer_diameter, double test_diameter) {
  for (const NamedPlot& named : nine_plots(tabs_)) {
    // The wafer's diameter comes first: setting it empties the data.
    named.plot->setWaferDiameter(wafer_diameter);
    named.plot->setTestDiameter(test_diameter);
    mark_sites(*named.plot, false);
    tabs_->addTab(named.plot, named.title);
    pages_.push_back({named});
  }
  connect(tabs_, &QTabWidget::currentChanged, this, &ViewerWindow::show_page);
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
  connect(sites, &QAction::toggled, this,
          [this](bool on) { change_looks([on](PlotWidget& plot) { mark_sites(plot, on); }); });
  QAction* const legend = menu->addAction(tr("Hide &legend"));
  legend->setCheckable(true);
  connect(legend, &QAction::toggled, this,
          [this](bool on) { change_looks([on](PlotWidget& plot) { plot.setHideLegend(on); }); });

  menu->addSeparator();
  auto* const styles = new QActionGroup(this);
  for (const auto& [text, style] :
       {std::pair(tr("&Notch"), PlotWidget::Notch), std::pair(tr("&Flat"), PlotWidget::Flat)}) {
    QAction* const action = styles->addAction(menu->addAction(text));
    action->setCheckable(true);
    action->setChecked(style == plot(0).WaferStyle());
    connect(action, &QAction::triggered, this, [this, style = style] {
      change_looks([style](PlotWidget& plot) { plot.setWaferStyle(style); });
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
  return open(path, [&]() -> Load {
    SiteList sites = read_csv(path);
    check_sites(sites, plot(0).WaferDiameter());
    return
        [sites = std::move(sites)](PlotWidget& plot) { return plot.SetWaferData(sites.x, sites.y, sites.z); };
  });
}

bool ViewerWindow::open_binary(const QString& path, int sites) {
  return open(path, [&]() -> Load {
    check_binary(path, sites, plot(0).WaferDiameter());
    return [path, sites](PlotWidget& plot) { return plot.SetDataFile(path, sites); };
  });
}

bool ViewerWindow::open(const QString& path, const std::function<Load()>& prepare) {
  try {
    load_ = prepare();
  } catch (const WaferFileError& error) {
    complain(tr("%1\n\n%2").arg(path, error.text()));
    return false;
  }
  for (Page& page : pages_) {
    page.loaded = page.drawn = false;
    page.named.plot->setProperty("PlotCaption", QFileInfo(path).completeBaseName());
  }
  setWindowTitle(tr("%1 - Wafer viewer").arg(QFileInfo(path).fileName()));
  show_page();
  return true;
}

void ViewerWindow::change_looks(const std::function<void(PlotWidget&)>& change) {
  for (Page& page : pages_) {
    change(*page.named.plot);
    page.drawn = false;  // a property changes the look of the next plot only
  }
  show_page();
}

void ViewerWindow::show_page() {
  Page& page = pages_[static_cast<std::size_t>(tabs_->currentIndex())];
  PlotWidget& plot = *page.named.plot;
  if (!load_ || page.drawn) return;
  if (!page.loaded) {
    if (const int result = load_(plot); result != 0)
      return complain(tr("The plot refuses these sites (result %1).").arg(result));
    fit_to_data(plot);
    page.loaded = true;
  }
  plot.Plot();
  page.drawn = true;
  show_statistics(plot);
}

void ViewerWindow::show_statistics(PlotWidget& plot) {
  std::vector<double> x, y, z;
  const std::array values{plot.GetWaferData(x, y, z),
                          plot.mean(),
                          plot.StdDev(),
                          plot.StdDevPercent(),
                          plot.Maximum(),
                          plot.Minimum(),
                          plot.range(),
                          plot.HiLo()};
  for (std::size_t i = 0; i < values.size(); ++i) figures_[i]->setText(QLocale().toString(values[i], 'g', 6));
}

void ViewerWindow::complain(const QString& text) {
  QMessageBox box(QMessageBox::Warning, tr("Wafer viewer"), text, QMessageBox::Ok, this);
  box.setTextFormat(Qt::PlainText);
  box.exec();
}
