// The forms of the plots.

#include <QActionGroup>
#include <QMenuBar>
#include <QPointer>

#include "ViewerWindow.h"

using mirolen::qt::PlotWidget;

void ViewerWindow::add_options_menu() {
  QMenu* const menu = menuBar()->addMenu(tr("&Options"));
  plot_options_ = menu->addAction(tr("&Plot options..."), QKeySequence(Qt::Key_F4), this,
                                  [this] { open_form(&PlotWidget::ShowPlotOption); });
  menu->addAction(tr("P&roperties..."), QKeySequence(tr("Alt+Return")), this,
                  [this] { open_form(&PlotWidget::ShowProperties); });
  menu->addSeparator();
  QAction* const design = menu->addAction(tr("&Design use"));
  design->setCheckable(true);
  connect(design, &QAction::toggled, this, [this](bool on) {
    for (const Page& page : pages_) page.named.plot->setDesignMode(on);
  });
}

void ViewerWindow::add_help_menu() {
  QMenu* const menu = menuBar()->addMenu(tr("&Help"));
  menu->addAction(tr("&About this plot..."), this, [this] { open_form(&PlotWidget::About); });
}

void ViewerWindow::open_form(void (PlotWidget::*form)()) {
  const QPointer<ViewerWindow> alive(this);
  (seen_page().named.plot->*form)();
  if (alive) show_page();
}

void ViewerWindow::follow_plot() {
  const PlotWidget& plot = *seen_page().named.plot;
  plot_options_->setEnabled(plot.has_plot_options());
  legend_->setChecked(plot.HideLegend());
  if (const auto marked = sites_marked(plot)) sites_->setChecked(*marked);
  for (QAction* style : styles_->actions()) style->setChecked(style->data().toInt() == plot.WaferStyle());
}
