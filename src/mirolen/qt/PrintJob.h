#pragma once

#include <QPageLayout>
#include <QSizeF>
#include <QString>
#include <memory>

#include "mirolen/render/SurfaceCanvas.h"

class QPrinter;

namespace mirolen::qt {

/// A job on a printer, in a PDF or in an SVG file: what a host sets as `PrinterObj`. Plots come as vectors,
/// texts as texts, at the resolution of the device.
///
/// The job starts with the first drawing on it and is the host's to end:
///
///     auto page = mirolen::qt::PrintJob::pdf("wafer.pdf");
///     map->setPrinterObj(page);
///     map->PrintPlot(0, 0, 9000, 9000, true);
///     page->new_page();
///     map->PrintWaferSize(0, 0);
///     page->finish();
///
/// A file stands in its place only when it is finished; one that was there before stays until then, and for
/// good if the job is abandoned or fails. It is a regular file or a link to one. What goes wrong is a
/// RunTimeError whose text can be shown.
class PrintJob : public SurfaceCanvas {
 public:
  /// On the printer that the system prints on by default. It is looked for when a control prints, which
  /// answers that there is nothing to print on if there is none; drawing on the job then throws CanvasError.
  static std::shared_ptr<PrintJob> default_printer();
  /// On a printer of the host, set up by a QPrintDialog for instance; it outlives the job. One that writes a
  /// PDF file takes an older one away at the first drawing.
  static std::shared_ptr<PrintJob> on(QPrinter& printer);
  /// In a PDF file. @param title shown by viewers; the file's base name by itself. @throws FileError if it
  /// cannot be written.
  static std::shared_ptr<PrintJob> pdf(const QString& file, const QPageLayout& layout = a4(),
                                       const QString& title = {});
  /// In an SVG file of one page. @param size in millimetres, above 0. @param title as for `pdf`. @throws
  /// FileError if it cannot be written; InvalidArgument for another size.
  static std::shared_ptr<PrintJob> svg(const QString& file, const QSizeF& size, const QString& title = {});
  /// Upright A4 with margins of 10 mm.
  static QPageLayout a4();

  /// Resolution of the files, dots an inch.
  static constexpr int resolution = 600;

  /// Abandons a job that is not finished.
  ~PrintJob() override;

  /// Ends the page and starts another one. @throws RunTimeError.
  void new_page();
  /// Ends the job: a printer starts to print, a file stands in its place. @throws RunTimeError, FileError for
  /// a full disk; nothing is left of the file then. A job on a printer can then start anew, but for a
  /// QPrinter that could not write its file: that writes nothing any more.
  void finish();
  /// Ends the job without printing, and leaves no file.
  void abandon();

  bool present() const override;

  class Device;

 protected:
  mirolen::Surface* device() const override;

 private:
  explicit PrintJob(std::unique_ptr<Device> device);
  void start() const;

  struct Page;
  std::unique_ptr<Device> device_;
  mutable std::unique_ptr<Page> page_;
};

}  // namespace mirolen::qt
