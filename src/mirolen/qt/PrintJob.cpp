#include "mirolen/qt/PrintJob.h"

#include <QBuffer>
#include <QPainter>
#include <QPdfWriter>
#include <QPrinter>
#include <QPrinterInfo>
#include <QSaveFile>
#include <QSvgGenerator>

#include "mirolen/core/translation.h"
#include "mirolen/qt/PageSurface.h"
#include "mirolen/qt/translate.h"

namespace mirolen::qt {

/// What a job is written on.
class PrintJob::Device {
 public:
  virtual ~Device() = default;
  /// Whatever has to be there before the painting starts. @throws RunTimeError.
  virtual void open() = 0;
  /// After `open`.
  virtual QPaintDevice& paint_device() = 0;
  /// Goes on to a new page. @return false if it fails or there is none.
  virtual bool next_page() = 0;
  /// While the painting goes on: lets nothing come of it.
  virtual void cancel() = 0;
  /// After the painting has ended. @throws RunTimeError; then nothing is left.
  virtual void keep() = 0;
  /// The same after one that was cancelled or has failed, or none.
  virtual void drop() = 0;
};

struct PrintJob::Page {
  QPainter painter;
  std::optional<PageSurface> surface;
};

namespace {

class PrinterDevice : public PrintJob::Device {
 public:
  void open() override {}
  QPaintDevice& paint_device() override { return *printer_; }
  bool next_page() override { return printer_->newPage(); }
  void cancel() override { printer_->abort(); }
  void keep() override {
    if (printer_->printerState() == QPrinter::Error) throw CanvasError(mirolen::tr("the printing"));
  }
  void drop() override {}

 protected:
  QPrinter* printer_ = nullptr;
};

class HostPrinterDevice : public PrinterDevice {
 public:
  explicit HostPrinterDevice(QPrinter& printer) { printer_ = &printer; }
};

/// Looked for when it is needed: the system may take long to find its printers.
class DefaultPrinterDevice : public PrinterDevice {
 public:
  void open() override {
    if (own_) return;
    if (QPrinterInfo::defaultPrinter().isNull())
      throw CanvasError(mirolen::tr("the start of the print job: the system has no printer"));
    own_ = std::make_unique<QPrinter>(QPrinter::HighResolution);
    printer_ = own_.get();
  }

 private:
  std::unique_ptr<QPrinter> own_;
};

/// A file that stands in its place when it is whole. Until then it is in memory: the writers of Qt do not
/// notice a disk that takes a part of what they write.
class FileDevice : public PrintJob::Device {
 public:
  explicit FileDevice(const QString& name) : file_(name) {
    if (!file_.open(QIODevice::WriteOnly | QIODevice::Unbuffered)) fail(file_.errorString());
    content_.open(QIODevice::WriteOnly);
  }
  void open() override {
    if (!file_.isOpen()) fail(text_of(mirolen::tr("the print job has ended")));
  }
  void cancel() override {}
  void keep() override {
    const bool written = write_content();
    const QString reason = file_.errorString();
    if (!written) file_.cancelWriting();
    if (!file_.commit()) fail(written ? file_.errorString() : reason);
  }
  void drop() override {
    file_.cancelWriting();
    if (file_.isOpen()) file_.commit();  // closes and removes it
  }

 protected:
  QIODevice& content() { return content_; }

 private:
  /// A disk may take a part before it refuses the rest and tells why.
  bool write_content() {
    QByteArrayView rest = content_.data();
    while (!rest.empty()) {
      const qint64 taken = file_.write(rest.data(), rest.size());
      if (taken <= 0) return false;
      rest = rest.sliced(taken);
    }
    return true;
  }
  [[noreturn]] void fail(const QString& reason) const {
    throw FileError(utf8_of(file_.fileName()) + ": " + utf8_of(reason));
  }

  QSaveFile file_;
  QBuffer content_;
};

class PdfDevice : public FileDevice {
 public:
  PdfDevice(const QString& name, const QPageLayout& layout) : FileDevice(name), writer_(&content()) {
    writer_.setResolution(PrintJob::resolution);
    writer_.setPageLayout(layout);
  }
  QPaintDevice& paint_device() override { return writer_; }
  bool next_page() override { return writer_.newPage(); }

 private:
  QPdfWriter writer_;
};

class SvgDevice : public FileDevice {
 public:
  SvgDevice(const QString& name, const QSizeF& size) : FileDevice(name) {
    constexpr double millimetres_per_inch = 25.4;
    const QSize pixels = (size * (PrintJob::resolution / millimetres_per_inch)).toSize();
    generator_.setOutputDevice(&content());
    generator_.setResolution(PrintJob::resolution);
    generator_.setSize(pixels);
    generator_.setViewBox(QRect(QPoint(), pixels));
  }
  QPaintDevice& paint_device() override { return generator_; }
  bool next_page() override { return false; }

 private:
  QSvgGenerator generator_;
};

}  // namespace

PrintJob::PrintJob(std::unique_ptr<Device> device)
    : SurfaceCanvas(CanvasKind::printer, nullptr), device_(std::move(device)) {}

PrintJob::~PrintJob() { abandon(); }

std::shared_ptr<PrintJob> PrintJob::default_printer() {
  return std::shared_ptr<PrintJob>(new PrintJob(std::make_unique<DefaultPrinterDevice>()));
}

std::shared_ptr<PrintJob> PrintJob::on(QPrinter& printer) {
  return std::shared_ptr<PrintJob>(new PrintJob(std::make_unique<HostPrinterDevice>(printer)));
}

std::shared_ptr<PrintJob> PrintJob::pdf(const QString& file, const QPageLayout& layout) {
  return std::shared_ptr<PrintJob>(new PrintJob(std::make_unique<PdfDevice>(file, layout)));
}

std::shared_ptr<PrintJob> PrintJob::svg(const QString& file, const QSizeF& size) {
  return std::shared_ptr<PrintJob>(new PrintJob(std::make_unique<SvgDevice>(file, size)));
}

QPageLayout PrintJob::a4() {
  return QPageLayout(QPageSize(QPageSize::A4), QPageLayout::Portrait, QMarginsF(10, 10, 10, 10),
                     QPageLayout::Millimeter);
}

void PrintJob::start() const {
  device_->open();
  auto page = std::make_unique<Page>();
  if (!page->painter.begin(&device_->paint_device()))
    throw CanvasError(mirolen::tr("the start of the print job"));
  page->surface.emplace(page->painter, device_->paint_device());
  page_ = std::move(page);
}

mirolen::Surface* PrintJob::device() const {
  if (!page_) start();
  return &*page_->surface;
}

void PrintJob::new_page() {
  device();  // starts the job
  page_->surface->end_page();
  if (!device_->next_page()) throw CanvasError(mirolen::tr("the start of a page"));
  CurrentX(0);
  CurrentY(0);
}

void PrintJob::finish() {
  device();
  page_->surface->end_page();
  const bool painted = page_->painter.end();
  page_.reset();
  if (!painted) {
    device_->drop();
    throw CanvasError(mirolen::tr("the end of the print job"));
  }
  device_->keep();
}

void PrintJob::abandon() {
  if (page_) device_->cancel();
  page_.reset();
  device_->drop();
}

}  // namespace mirolen::qt
