#include "mirolen/qt/PrintJob.h"

#include <QBuffer>
#include <QFileInfo>
#include <QPaintEngine>
#include <QPainter>
#include <QPdfWriter>
#include <QPrinter>
#include <QPrinterInfo>
#include <QRegularExpression>
#include <QSaveFile>
#include <QSvgGenerator>
#include <algorithm>
#include <utility>

#include "mirolen/core/translation.h"
#include "mirolen/qt/PageSurface.h"
#include "mirolen/qt/file_errors.h"
#include "mirolen/qt/translate.h"

namespace mirolen::qt {

/// What a job is written on.
class PrintJob::Device {
 public:
  virtual ~Device() = default;
  /// Whether there is one.
  virtual bool present() const { return true; }
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

/// Whether a PDF file ends with the place of its table of contents, and has that there: a printer does not
/// notice a disk that takes a part of what it writes, at the end or before.
bool is_whole_pdf(const QString& name) {
  QFile file(name);
  if (!file.open(QIODevice::ReadOnly)) return false;
  constexpr qint64 longest_end = 64;
  file.seek(std::max<qint64>(0, file.size() - longest_end));
  static const QRegularExpression end("startxref\\s+(\\d+)\\s+%%EOF\\s*$"), table("^(xref|\\d+ \\d+ obj)");
  const QRegularExpressionMatch place = end.match(QString::fromLatin1(file.readAll()));
  return place.hasMatch() && file.seek(place.captured(1).toLongLong()) &&
         table.match(QString::fromLatin1(file.read(longest_end))).hasMatch();
}

class HostPrinterDevice : public PrinterDevice {
 public:
  explicit HostPrinterDevice(QPrinter& printer) { printer_ = &printer; }

  void open() override {
    const QString file = writes_pdf() ? printer_->outputFileName() : QString();
    if (!file.isEmpty()) refuse_special_file(file);
    file_ = file;
  }
  void keep() override {
    PrinterDevice::keep();
    if (file_.isEmpty() || is_whole_pdf(file_)) return;
    QFile::remove(file_);
    raise_file_error(file_, text_of(mirolen::tr("the file could not be written as a whole")));
  }
  void cancel() override {
    PrinterDevice::cancel();
    cut_ = file_;
  }
  void drop() override {
    if (!cut_.isEmpty()) QFile::remove(std::exchange(cut_, {}));
  }

 private:
  /// Not so one that a preview has borrowed.
  bool writes_pdf() const {
    return printer_->outputFormat() == QPrinter::PdfFormat &&
           printer_->paintEngine()->type() == QPaintEngine::Pdf;
  }

  QString file_;  // that a job writes
  QString cut_;   // that is left of one
};

/// Looked for when it is needed: the system may take long to find its printers.
class DefaultPrinterDevice : public PrinterDevice {
 public:
  bool present() const override { return own_ || !QPrinterInfo::defaultPrinter().isNull(); }
  void open() override {
    if (own_) return;
    if (!present()) throw CanvasError(mirolen::tr("the start of the print job: the system has no printer"));
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
    refuse_special_file(name);
    if (!file_.open(QIODevice::WriteOnly | QIODevice::Unbuffered)) fail(file_.errorString());
    content_.open(QIODevice::WriteOnly);
  }
  void open() override {
    if (!file_.isOpen()) fail(text_of(mirolen::tr("the print job has ended")));
  }
  void cancel() override {}
  void keep() override {
    const bool written = write(finished(content_.data()));
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
  /// What the file is to hold, from what the painting has written.
  virtual QByteArray finished(const QByteArray& painted) const { return painted; }

 private:
  /// A disk may take a part before it refuses the rest and tells why.
  bool write(QByteArrayView rest) {
    while (!rest.empty()) {
      const qint64 taken = file_.write(rest.data(), rest.size());
      if (taken <= 0) return false;
      rest = rest.sliced(taken);
    }
    return true;
  }
  [[noreturn]] void fail(const QString& reason) const { raise_file_error(file_.fileName(), reason); }

  QSaveFile file_;
  QBuffer content_;
};

constexpr const char* creator = "MirolenViewWM";

QString title_of(const QString& file, const QString& wanted) {
  return wanted.isEmpty() ? QFileInfo(file).completeBaseName() : wanted;
}

class PdfDevice : public FileDevice {
 public:
  PdfDevice(const QString& name, const QPageLayout& layout, const QString& title)
      : FileDevice(name), writer_(&content()) {
    writer_.setResolution(PrintJob::resolution);
    writer_.setPageLayout(layout);
    writer_.setTitle(title_of(name, title));
    writer_.setCreator(creator);
  }
  QPaintDevice& paint_device() override { return writer_; }
  bool next_page() override { return writer_.newPage(); }

 private:
  QPdfWriter writer_;
};

class SvgDevice : public FileDevice {
 public:
  SvgDevice(const QString& name, const QSizeF& size, const QString& title)
      : FileDevice(name), size_(size), title_(title_of(name, title)) {
    constexpr double millimetres_per_inch = 25.4;
    const QSizeF pixels = size * (PrintJob::resolution / millimetres_per_inch);
    generator_.setOutputDevice(&content());
    generator_.setResolution(PrintJob::resolution);
    generator_.setSize(pixels.toSize());
    generator_.setViewBox(QRectF(QPointF(), pixels));
    generator_.setDescription(creator);
  }
  QPaintDevice& paint_device() override { return generator_; }
  bool next_page() override { return false; }

 protected:
  /// Says what the generator cannot be told, or does not tell as it has to.
  QByteArray finished(const QByteArray& painted) const override {
    static const QRegularExpression size("width=\"[^\"]*\" height=\"[^\"]*\""), title("<title>[^<]*"),
        font("font-family=\"([^\"]*)\"");
    QString svg = QString::fromUtf8(painted);
    const auto replace_first = [&svg](const QRegularExpression& part, const QString& with) {
      const QRegularExpressionMatch found = part.match(svg);
      svg.replace(found.capturedStart(), found.capturedLength(), with);
    };
    replace_first(size, QString("width=\"%1mm\" height=\"%2mm\"").arg(size_.width()).arg(size_.height()));
    replace_first(title, "<title>" + title_.toHtmlEscaped());
    svg.replace(font, "font-family=\"\\1, sans-serif\"");  // for viewers without it
    // Areas without an outline, the colours of a map, end at pixels.
    svg.replace("stroke=\"none\" transform=", "stroke=\"none\" shape-rendering=\"crispEdges\" transform=");
    return svg.toUtf8();
  }

 private:
  QSvgGenerator generator_;
  QSizeF size_;
  QString title_;
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

std::shared_ptr<PrintJob> PrintJob::pdf(const QString& file, const QPageLayout& layout,
                                        const QString& title) {
  return std::shared_ptr<PrintJob>(new PrintJob(std::make_unique<PdfDevice>(file, layout, title)));
}

std::shared_ptr<PrintJob> PrintJob::svg(const QString& file, const QSizeF& size, const QString& title) {
  constexpr double largest = 10000;  // millimetres
  const auto is_an_edge = [](double length) { return length > 0 && length <= largest; };
  if (!is_an_edge(size.width()) || !is_an_edge(size.height()))
    throw InvalidArgument(mirolen::tr("the size of a picture"));
  return std::shared_ptr<PrintJob>(new PrintJob(std::make_unique<SvgDevice>(file, size, title)));
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

bool PrintJob::present() const { return device_->present(); }

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
