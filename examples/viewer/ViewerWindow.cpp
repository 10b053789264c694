#include "ViewerWindow.h"

#include <QActionGroup>
#include <QComboBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QMenuBar>
#include <QMessageBox>
#include <QTabWidget>

using mirolen::qt::PlotWidget;

ViewerWindow::ViewerWindow(double wafer_diameter, double test_diameter, QString unit)
    : tabs_(new QTabWidget), wafers_(new QComboBox), unit_(std::move(unit)) {
  auto* content = new QWidget;
  auto* row = new QHBoxLayout(content);
  row->addWidget(tabs_, 1);
  row->addLayout(side_column());
  setCentralWidget(content);
  add_pages(wafer_diameter, test_diameter);
  add_file_menu();
  add_edit_menu();
  add_view_menu();
  add_options_menu();
  add_help_menu();
  enable_actions();
  follow_plot();
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
    connect(named.plot, &PlotWidget::WaferDiameterChanged, this,
            [this, page = pages_.size() - 1] { data_gone(pages_[page]); });
  }
  connect(tabs_, &QTabWidget::currentChanged, this, &ViewerWindow::show_page);
}

void ViewerWindow::add_file_menu() {
  QMenu* const menu = menuBar()->addMenu(tr("&File"));
  menu->addAction(tr("&Open CSV..."), QKeySequence::Open, this, &ViewerWindow::ask_csv);
  menu->addAction(tr("Open &binary..."), this, &ViewerWindow::ask_binary);
  menu->addSeparator();
  add_output_actions(*menu);
  menu->addSeparator();
  menu->addAction(tr("&Quit"), QKeySequence::Quit, this, &QWidget::close);
}

void ViewerWindow::add_view_menu() {
  QMenu* const menu = menuBar()->addMenu(tr("&View"));
  // The plot can change in its own forms too.
  connect(menu, &QMenu::aboutToShow, this, &ViewerWindow::follow_plot);
  sites_ = menu->addAction(tr("Show &sites"));
  sites_->setCheckable(true);
  connect(sites_, &QAction::triggered, this,
          [this](bool on) { change_looks([on](PlotWidget& plot) { mark_sites(plot, on); }); });
  legend_ = menu->addAction(tr("Hide &legend"));
  legend_->setCheckable(true);
  connect(legend_, &QAction::triggered, this,
          [this](bool on) { change_looks([on](PlotWidget& plot) { plot.setHideLegend(on); }); });

  menu->addSeparator();
  add_style_actions(*menu);
  menu->addSeparator();
  add_wafer_actions(*menu);
}

void ViewerWindow::add_style_actions(QMenu& menu) {
  styles_ = new QActionGroup(this);
  for (const auto& [text, style] :
       {std::pair(tr("&Notch"), PlotWidget::Notch), std::pair(tr("&Flat"), PlotWidget::Flat)}) {
    QAction* const action = styles_->addAction(menu.addAction(text));
    action->setCheckable(true);
    action->setData(style);
    connect(action, &QAction::triggered, this, [this, style = style] {
      change_looks([style](PlotWidget& plot) { plot.setWaferStyle(style); });
    });
  }
}

void ViewerWindow::add_wafer_actions(QMenu& menu) {
  next_ = menu.addAction(tr("Ne&xt wafer"), QKeySequence(tr("Ctrl+PgDown")), this, [this] { step_wafer(1); });
  previous_ =
      menu.addAction(tr("&Previous wafer"), QKeySequence(tr("Ctrl+PgUp")), this, [this] { step_wafer(-1); });
}

QLayout* ViewerWindow::side_column() {
  const std::array names{tr("Sites"), tr("Mean"), tr("Std dev"), tr("Std dev %"),
                         tr("Max"),   tr("Min"),  tr("Range"),   tr("Hi/Lo %")};
  auto* const form = new QFormLayout;
  wafers_->setMinimumWidth(140);
  form->addRow(tr("&Wafer"), wafers_);
  connect(wafers_, &QComboBox::currentIndexChanged, this, &ViewerWindow::show_wafer);
  for (std::size_t i = 0; i < names.size(); ++i) {
    figures_[i] = new QLabel;
    figures_[i]->setTextInteractionFlags(Qt::TextSelectableByMouse);
    figures_[i]->setMinimumWidth(80);
    form->addRow(names[i], figures_[i]);
  }
  clear_statistics();
  return form;
}

void ViewerWindow::change_looks(const std::function<void(PlotWidget&)>& change) {
  for (Page& page : pages_) {
    change(*page.named.plot);
    page.drawn = false;  // a property changes the look of the next plot only
  }
  show_page();
}

ViewerWindow::Page& ViewerWindow::seen_page() {
  return pages_[static_cast<std::size_t>(tabs_->currentIndex())];
}

void ViewerWindow::show_page() {
  follow_plot();
  if (lot_.empty()) return;
  Page& page = seen_page();
  if (page.data == Data::due) load(page);
  if (page.data == Data::refused) return clear_statistics();
  if (!page.drawn) page.named.plot->Plot();
  page.drawn = true;
  show_statistics(*page.named.plot);
}

void ViewerWindow::load(Page& page) {
  PlotWidget& plot = *page.named.plot;
  const int result = lot_[seen_wafer()].load(plot);
  page.data = result == 0 ? Data::loaded : Data::refused;
  if (page.data == Data::refused) {
    plot.clear();
    return complain(tr("The plot refuses these sites (result %1).").arg(result));
  }
  if (!page.fitted) fit_to_data(plot);
  page.fitted = true;
}

void ViewerWindow::data_gone(Page& page) {
  page.data = Data::due;
  page.drawn = false;
  // The plot is in the middle of a change.
  QMetaObject::invokeMethod(this, &ViewerWindow::show_page, Qt::QueuedConnection);
}

void ViewerWindow::clear_statistics() {
  for (QLabel* figure : figures_) figure->setText("-");
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
