// What becomes of a plot beside being shown: pages of a printer and of files, pictures.

#include <QApplication>
#include <QBuffer>
#include <QClipboard>
#include <QComboBox>
#include <QFileDialog>
#include <QMenuBar>
#include <QPrintDialog>
#include <QPrinter>
#include <QProgressDialog>
#include <QSaveFile>
#include <QTabWidget>

#include "PreviewDialog.h"
#include "ViewerWindow.h"
#include "report.h"

using mirolen::qt::PrintJob;

namespace {

/// Puts a file in its place, all of it or nothing. It is not buffered, so that each failing write is known.
void save_whole(const QString& path, const QByteArray& content) {
  QSaveFile file(path);
  bool written = file.open(QIODevice::WriteOnly | QIODevice::Unbuffered);
  for (QByteArrayView rest = content; written && !rest.isEmpty();) {
    const qint64 size = file.write(rest.data(), rest.size());
    written = size > 0;
    if (written) rest = rest.sliced(size);
  }
  if (!written || !file.commit())
    throw mirolen::FileError(QString(path + ": " + file.errorString()).toStdString());
}

}  // namespace

void ViewerWindow::add_output_actions(QMenu& menu) {
  const auto add = [&](const QString& text, const QKeySequence& key, auto&& run) {
    need_data_.push_back(menu.addAction(text, key, this, run));
  };
  add(tr("&Print..."), QKeySequence(QKeySequence::Print), &ViewerWindow::ask_printer);
  add(tr("Print pre&view..."), QKeySequence(tr("Ctrl+Shift+P")), &ViewerWindow::preview);
  menu.addSeparator();
  add(tr("Export P&DF..."), QKeySequence(tr("Ctrl+E")),
      [this] { ask_file_for(tr("Export PDF"), tr("PDF (*.pdf)"), "pdf", &ViewerWindow::write_pdf); });
  add(tr("Export &SVG..."), {},
      [this] { ask_file_for(tr("Export SVG"), tr("SVG (*.svg)"), "svg", &ViewerWindow::write_svg); });
  add(tr("Export P&NG..."), {},
      [this] { ask_file_for(tr("Export PNG"), tr("PNG (*.png)"), "png", &ViewerWindow::write_png); });
  add(tr("&Lot report..."), QKeySequence(tr("Ctrl+L")),
      [this] { ask_file_for(tr("Lot report"), tr("PDF (*.pdf)"), "pdf", &ViewerWindow::write_lot_report); });
}

void ViewerWindow::add_edit_menu() {
  QMenu* const menu = menuBar()->addMenu(tr("&Edit"));
  need_data_.push_back(menu->addAction(tr("&Copy"), QKeySequence::Copy, this, &ViewerWindow::copy));
}

void ViewerWindow::ask_file_for(const QString& title, const QString& filter, const QString& suffix,
                                bool (ViewerWindow::*write)(const QString&)) {
  QFileDialog dialog(this, title, {}, filter);
  dialog.setAcceptMode(QFileDialog::AcceptSave);
  dialog.setDefaultSuffix(suffix);
  const LotWafer& wafer = lot_.at(seen_wafer());
  dialog.selectFile((write == &ViewerWindow::write_lot_report ? tr("lot") : wafer.name()) + "." + suffix);
  if (dialog.exec() == QDialog::Accepted) (this->*write)(dialog.selectedFiles().value(0));
}

void ViewerWindow::ask_printer() {
  QPrinter printer(QPrinter::HighResolution);
  printer.setPageLayout(report_layout());
  printer.setDocName(lot_.at(seen_wafer()).name());
  QPrintDialog dialog(&printer, this);
  dialog.setOption(QAbstractPrintDialog::PrintPageRange, false);
  if (dialog.exec() == QDialog::Accepted) print_on(printer);
}

void ViewerWindow::preview() {
  QWidget owner;
  const LotReport page = report({lot_.at(seen_wafer())}, &owner);
  const auto draw = [&](const std::shared_ptr<mirolen::PlotCanvas>& canvas) {
    print_lot_page(page, 0, canvas);
  };
  PreviewDialog dialog(report_layout(), draw, this);
  if (dialog.exec() == QDialog::Accepted) ask_printer();
}

bool ViewerWindow::print_on(QPrinter& printer) {
  return print_page_on(tr("The plot could not be printed."), [&] {
    const QString file = printer.outputFileName();
    if (!file.isEmpty()) return PrintJob::pdf(file, printer.pageLayout());  // which leaves no part of a file
    if (printer.outputFormat() != QPrinter::NativeFormat || !printer.isValid())
      throw mirolen::InvalidArgument(tr("There is no printer.").toStdString());
    return PrintJob::on(printer);
  });
}

bool ViewerWindow::write_pdf(const QString& path) {
  return print_page_on(tr("The PDF file could not be written."),
                       [&] { return PrintJob::pdf(path, report_layout()); });
}

bool ViewerWindow::write_svg(const QString& path) {
  return print_page_on(tr("The SVG file could not be written."), [&] {
    return PrintJob::svg(path, report_layout().paintRect(QPageLayout::Millimeter).size());
  });
}

bool ViewerWindow::write_png(const QString& path) {
  return attempt(tr("The picture could not be written."), [&] {
    QByteArray picture;
    QBuffer buffer(&picture);
    if (!seen_page().named.plot->grab().save(&buffer, "PNG")) throw mirolen::OutOfMemory();
    save_whole(path, picture);
    return true;
  });
}

void ViewerWindow::copy() { QApplication::clipboard()->setPixmap(seen_page().named.plot->grab()); }

bool ViewerWindow::write_lot_report(const QString& path) {
  return attempt(tr("The lot report could not be written."), [&] {
    QWidget owner;
    const LotReport lot = report(lot_, &owner);
    const auto job = PrintJob::pdf(path, report_layout());
    QProgressDialog progress(tr("Writing the lot report..."), tr("&Cancel"), 0, static_cast<int>(lot_.size()),
                             this);
    progress.setWindowModality(Qt::WindowModal);
    progress.setMinimumDuration(0);
    const bool whole = print_lot(lot, job, [&](int finished) {
      progress.setValue(finished);
      return !progress.wasCanceled();
    });
    if (whole) job->finish();
    return whole;
  });
}

LotReport ViewerWindow::report(std::vector<LotWafer> wafers, QWidget* owner) {
  return {twin_of(seen_page().named, owner), std::move(wafers), unit_};
}

bool ViewerWindow::attempt(const QString& what, const std::function<bool()>& work) {
  if (lot_.empty()) {
    complain(tr("No file is open."));
    return false;
  }
  try {
    return work();
  } catch (const std::exception& error) {
    complain(tr("%1\n\n%2").arg(what, QString::fromUtf8(error.what())));
    return false;
  }
}

bool ViewerWindow::print_page_on(const QString& what,
                                 const std::function<std::shared_ptr<PrintJob>()>& make_job) {
  return attempt(what, [&] {
    QWidget owner;
    const std::shared_ptr<PrintJob> job = make_job();
    print_lot_page(report({lot_.at(seen_wafer())}, &owner), 0, job);
    job->finish();
    return true;
  });
}
