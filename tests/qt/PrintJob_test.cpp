#include "mirolen/qt/PrintJob.h"

#include <QDir>
#include <QFileInfo>
#include <QPainter>
#include <QPrinter>
#include <QPrinterInfo>
#include <QTemporaryDir>
#include <QXmlStreamReader>
#include <cmath>

#include "mirolen/qt/Histogram.h"
#include "mirolen/qt/Plot2DS.h"
#include "qt/page_tools.h"
#include "qt/qt_support.h"
#include "support/FullDisk.h"
#include "support/SpecialFiles.h"

namespace mirolen {
namespace {

using namespace qt_test;
using qt::PrintJob;
using testing::HasSubstr;

template <class Step>
std::string error_of(Step step) {
  try {
    step();
  } catch (const RunTimeError& error) {
    return error.what();
  }
  return "";
}

class PrintJobTest : public testing::Test {
 protected:
  PrintJobTest() { load_slope(face); }

  QString path(const QString& name) const { return directory.filePath(name); }
  QString pdf_path() const { return path("wafer.pdf"); }
  /// All that lies in the directory, hidden files included.
  QStringList files() const { return QDir(directory.path()).entryList(QDir::Files | QDir::Hidden); }
  void write_older_file() {
    QFile file(pdf_path());
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("older");
  }
  QByteArray content() const {
    QFile file(pdf_path());
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
  }
  std::shared_ptr<PrintJob> pdf(const QPageLayout& layout = PrintJob::a4()) {
    const auto job = PrintJob::pdf(pdf_path(), layout);
    face.setPrinterObj(job);
    return job;
  }
  std::shared_ptr<PrintJob> svg() {
    const auto job = PrintJob::svg(path("wafer.svg"), {210, 297});
    face.setPrinterObj(job);
    return job;
  }
  /// A sheet that is quick to look at in its own resolution.
  static QPageLayout a6() {
    QPageLayout layout = PrintJob::a4();
    layout.setPageSize(QPageSize(QPageSize::A6), QMarginsF(10, 10, 10, 10));
    return layout;
  }
  /// A line between two points in twips.
  static void draw_line(PrintJob& job, std::int16_t width, double x1, double y1, double x2, double y2) {
    job.ScaleMode(twips);
    job.DrawWidth(width);
    job.Line(line_flags, x1, y1, x2, y2, black);
  }

  QTemporaryDir directory;
  qt::Plot2D face;
};

/// The rows or columns of an image that are not white between two pixels of it.
std::vector<int> dark_pixels(const QImage& image, QPoint from, QPoint to) {
  std::vector<int> dark;
  const bool along_x = from.y() == to.y();
  const int count = along_x ? to.x() - from.x() : to.y() - from.y();
  for (int i = 0; i < count; ++i) {
    const QPoint at = along_x ? from + QPoint(i, 0) : from + QPoint(0, i);
    if (qGray(image.pixel(at)) < 128) dark.push_back(along_x ? at.x() : at.y());
  }
  return dark;
}

/// Where an image is not white within a part of it.
QRect inked(const QImage& image, const QRect& part) {
  const QRect within = part & image.rect();
  QRect ink;
  for (int y = within.top(); y <= within.bottom(); ++y)
    for (int x = within.left(); x <= within.right(); ++x)
      if (image.pixel(x, y) != qRgb(255, 255, 255)) ink |= QRect(x, y, 1, 1);
  return ink;
}

// ---- The page ----

TEST_F(PrintJobTest, AFileIsAPrinterOf600DotsAnInch) {
  const auto job = pdf();
  EXPECT_EQ(job->kind(), CanvasKind::printer);
  EXPECT_DOUBLE_EQ(job->TwipsPerPixelX(), 2.4);
  EXPECT_DOUBLE_EQ(job->TwipsPerPixelY(), 2.4);
  job->ScaleMode(twips);
  EXPECT_NEAR(job->ScaleWidth(), 190 / 25.4 * 1440, 20);
  EXPECT_NEAR(job->ScaleHeight(), 277 / 25.4 * 1440, 20);
}

TEST_F(PrintJobTest, TextsAreTextsInFontsOfTheFile) {
  const auto job = pdf();
  EXPECT_EQ(face.PrintPlot(0, 0, 9000, 9000, true), 0);
  EXPECT_EQ(face.PrintWaferStatistic(0, 9400, "µm"), 0);
  EXPECT_EQ(face.PrintWaferSize(3000, 9400), 0);
  job->finish();
  const QString text = text_of_page(pdf_path(), 1);
  for (const char* part :
       {"Statistics", "Mean:", "100.0", "Unit:", "µm", "Wafer Diam:", "200.00 mm", "25", "Notch", "Wafer"})
    EXPECT_TRUE(text.contains(part)) << part << " in " << text.toStdString();

  const QStringList fonts =
      QString::fromUtf8(output_of("pdffonts", {pdf_path()})).trimmed().split('\n').mid(2);
  ASSERT_FALSE(fonts.isEmpty());
  for (const QString& font : fonts) {
    const QStringList columns = font.simplified().split(' ');
    ASSERT_GE(columns.size(), 7) << font.toStdString();
    EXPECT_EQ(columns[columns.size() - 5], "yes") << "embedded: " << font.toStdString();
    EXPECT_FALSE(font.contains("Type 3")) << font.toStdString();
  }
  const QString images = QString::fromUtf8(output_of("pdfimages", {"-list", pdf_path()}));
  EXPECT_EQ(images.trimmed().split('\n').size(), 2) << images.toStdString();
}

TEST_F(PrintJobTest, SigmaSignsAreGreekLetters) {
  qt::Plot2DS sigma_map;
  load_slope(sigma_map);
  const auto job = pdf();
  sigma_map.setPrinterObj(job);
  EXPECT_EQ(sigma_map.PrintLegend(0, 0, true), 0);
  job->finish();
  EXPECT_EQ(text_of_page(pdf_path(), 1).count(QStringLiteral("σ")), 3);
}

TEST_F(PrintJobTest, TheRowsOfABlockStandInTheirPlaces) {
  const auto job = pdf();
  face.PrintWaferSize(2000, 3000);
  job->finish();
  constexpr double margin = SheetScale::margin * 72, points = 1. / 20;
  const auto expect_at = [&](const char* text, double left, double top) {
    const QRectF box = word_in(pdf_path(), text).box;
    EXPECT_NEAR(box.left(), margin + left * points, 0.5) << text;
    EXPECT_NEAR(box.top(), margin + top * points, 1.5) << text;
  };
  expect_at("Wafer", 2120, 3360);
  expect_at("Test", 2120, 3600);
  expect_at("No.", 2120, 3840);
  expect_at("Style:", 2120, 4080);
  expect_at("200.00", 3080, 3360);
  expect_at("25", 3080, 3840);
  expect_at("Notch", 3080, 4080);
  EXPECT_NEAR(word_in(pdf_path(), "Style:").box.height(), 8 * 1.15, 1);
}

TEST_F(PrintJobTest, LinesAreHalfAPointWideForEachOfTheirPixels) {
  const auto job = pdf(a6());
  const std::vector<std::int16_t> widths{1, 2, 4, 10, 40};
  for (std::size_t i = 0; i < widths.size(); ++i) {
    const double place = 1000 + 600 * static_cast<double>(i);
    draw_line(*job, widths[i], 1000, place, 4000, place);
  }
  job->finish();
  const SheetScale at{600};
  const QImage sheet = hard_image(pdf_path(), 600);
  const int column = static_cast<int>(at(2500));
  for (std::size_t i = 0; i < widths.size(); ++i) {
    const double place = at(1000 + 600 * static_cast<double>(i));
    const auto rows =
        dark_pixels(sheet, {column, static_cast<int>(place - 120)}, {column, static_cast<int>(place + 120)});
    EXPECT_NEAR(static_cast<double>(rows.size()), 0.5 * widths[i] / 72 * 600, 1) << widths[i];
    ASSERT_FALSE(rows.empty());
    EXPECT_NEAR((rows.front() + rows.back()) / 2., place, 1.5) << widths[i];
  }
}

TEST_F(PrintJobTest, AFrameRunsWhereItIsToldTo) {
  const auto job = pdf(a6());
  const double left = 1500, top = 2500, width = 2775, height = 1155;
  face.PrintWaferSize(left, top);
  job->ScaleMode(twips);
  const double line = job->TextHeight("Size ");
  job->finish();
  const SheetScale at{600};
  const QImage sheet = hard_image(pdf_path(), 600);
  // Through the frame, beside its texts.
  const int row = static_cast<int>(at(top + line + 60)), column = static_cast<int>(at(left + width - 60));
  const auto columns = dark_pixels(sheet, {0, row}, {sheet.width(), row});
  const auto rows = dark_pixels(sheet, {column, 0}, {column, sheet.height()});
  // Two lines, two pixels and so a point wide each.
  const double half = 600 / 72. / 2;
  ASSERT_NEAR(static_cast<double>(columns.size()), 4 * half, 2);
  ASSERT_NEAR(static_cast<double>(rows.size()), 4 * half, 2);
  EXPECT_NEAR(columns.front() + half, at(left), 2);
  EXPECT_NEAR(columns.back() - half, at(left + width), 2);
  EXPECT_NEAR(rows.front() + half, at(top + line), 2);
  EXPECT_NEAR(rows.back() - half, at(top + height + line), 2);
  EXPECT_EQ(pixel(sheet, columns[0], row), 0x404040u);
}

TEST_F(PrintJobTest, APlotFillsItsSquare) {
  const auto job = pdf();
  const double left = 800, top = 600, width = 9000, height = 6000;
  face.setWaferDiameter(100);
  face.setTestDiameter(100);
  load_slope(face);
  face.PrintPlot(left, top, width, height);
  const double line = (job->ScaleMode(twips), job->TextHeight("0"));
  job->finish();
  const SheetScale at{96};
  const QImage sheet = hard_image(pdf_path(), 96);
  const double size = 0.9 * height, x0 = left + (width - 1250 - size) / 2,
               y0 = top + line + (height - size) / 2;
  // The orientation box stands right of the plot.
  const QRect ink = inked(sheet, QRect(0, 0, static_cast<int>(at(left + width - 1215)) - 1, sheet.height()));
  EXPECT_GE(ink.left(), at(x0) - 1);
  EXPECT_GE(ink.top(), at(y0) - 1);
  EXPECT_LE(ink.right(), at(x0 + size) + 1);
  EXPECT_LE(ink.bottom(), at(y0 + size) + 1);
  EXPECT_GT(ink.width(), 0.9 * size / 15);
  EXPECT_GT(ink.height(), 0.9 * size / 15);
  EXPECT_GE(colors_in(sheet.copy(ink)).size(), 8u) << "the bands of a slope";

  const QRect box =
      inked(sheet, QRect(static_cast<int>(at(left + width - 1215)) - 1, 0, 200, sheet.height()));
  EXPECT_NEAR(box.left(), at(left + width - 1215), 2);
  EXPECT_NEAR(box.right(), at(left + width - 1215 + 975), 2);
  EXPECT_NEAR(box.bottom(), at(top + height - 1355 + 1095 + line), 2);
}

// ---- Pages and jobs ----

TEST_F(PrintJobTest, PagesFollowEachOther) {
  const auto job = pdf(a6());
  face.PrintWaferSize(0, 0);
  draw_line(*job, 20, 1000, 6000, 4000, 6000);
  job->CurrentX(500);
  job->new_page();
  EXPECT_EQ(job->CurrentX(), 0);
  EXPECT_EQ(job->CurrentY(), 0);
  draw_line(*job, 20, 1000, 6000, 4000, 6000);
  face.PrintWaferStatistic(0, 0, "nm");
  job->new_page();
  face.PrintPlot(0, 0, 6000, 6000, true);
  job->finish();
  ASSERT_EQ(pages_of(pdf_path()), 3);
  EXPECT_TRUE(text_of_page(pdf_path(), 1).contains("Size"));
  EXPECT_FALSE(text_of_page(pdf_path(), 1).contains("Mean:"));
  EXPECT_TRUE(text_of_page(pdf_path(), 2).contains("Mean:"));
  EXPECT_TRUE(text_of_page(pdf_path(), 3).contains("Notch"));
  for (const int page : {1, 2}) {
    const QImage sheet = hard_image(pdf_path(), 600, page);
    const int column = static_cast<int>(SheetScale{600}(2500));
    EXPECT_NEAR(static_cast<double>(dark_pixels(sheet, {column, 2600}, {column, 2900}).size()),
                10 / 72. * 600, 1)
        << page;
  }
}

TEST_F(PrintJobTest, AMapEndsBeforeItsPageDoes) {
  const auto job = pdf();
  job->FillStyle(solid_fill);
  job->FillColor(red);
  job->DrawStyle(no_outline);
  job->Polygon(std::array<PixelPoint, 4>{{{600, 600}, {1200, 600}, {1200, 1200}, {600, 1200}}});
  job->new_page();
  job->Polygon(std::array<PixelPoint, 4>{{{600, 1200}, {1200, 1200}, {1200, 1800}, {600, 1800}}});
  job->finish();
  const double inch = 96, margin = SheetScale::margin * inch;
  for (const int page : {1, 2}) {
    const QImage sheet = hard_image(pdf_path(), 96, page);
    const QRect ink = inked(sheet, sheet.rect());
    EXPECT_NEAR(ink.top(), margin + page * inch, 2) << page;
    EXPECT_NEAR(ink.height(), inch, 2) << page;
  }
}

TEST_F(PrintJobTest, AnEmptyJobIsAnEmptyPage) {
  const auto job = pdf();
  job->finish();
  EXPECT_EQ(pages_of(pdf_path()), 1);
  EXPECT_TRUE(words_in(pdf_path()).empty());
  EXPECT_EQ(files(), QStringList{"wafer.pdf"});
}

TEST_F(PrintJobTest, AFinishedFileTakesNoMore) {
  const auto job = pdf();
  face.PrintWaferSize(0, 0);
  job->finish();
  const QByteArray finished = content();
  for (const std::function<void()>& step : {std::function<void()>([&] { face.PrintWaferSize(0, 0); }),
                                            {[&] { job->new_page(); }},
                                            {[&] { job->finish(); }},
                                            {[&] { draw_line(*job, 1, 0, 0, 9, 9); }}}) {
    const std::string error = error_of(step);
    EXPECT_THAT(error, HasSubstr(pdf_path().toStdString()));
    EXPECT_THAT(error, HasSubstr("has ended"));
  }
  job->abandon();
  EXPECT_EQ(content(), finished);
  EXPECT_EQ(files(), QStringList{"wafer.pdf"});
}

TEST_F(PrintJobTest, AnOlderFileStaysUntilTheEnd) {
  write_older_file();
  const auto job = pdf();
  face.PrintPlot(0, 0, 9000, 9000, true);
  job->new_page();
  EXPECT_EQ(content(), "older");
  job->finish();
  EXPECT_TRUE(content().startsWith("%PDF"));
}

TEST_F(PrintJobTest, AnAbandonedJobLeavesNothing) {
  for (const bool drawn : {false, true}) {
    const auto job = pdf();
    if (drawn) face.PrintPlot(0, 0, 9000, 9000, true);
    job->abandon();
    EXPECT_EQ(files(), QStringList()) << drawn;
    EXPECT_THAT(error_of([&] { face.PrintWaferSize(0, 0); }), HasSubstr("has ended"));
    EXPECT_THAT(error_of([&] { job->finish(); }), HasSubstr("has ended"));
    job->abandon();
    EXPECT_EQ(files(), QStringList()) << drawn;
  }
}

TEST_F(PrintJobTest, AnAbandonedJobLeavesAnOlderFile) {
  write_older_file();
  const auto job = pdf();
  face.PrintPlot(0, 0, 9000, 9000, true);
  job->abandon();
  EXPECT_EQ(content(), "older");
  EXPECT_EQ(files(), QStringList{"wafer.pdf"});
}

TEST_F(PrintJobTest, AJobThatGoesAwayIsAbandoned) {
  write_older_file();
  for (const bool drawn : {false, true}) {
    for (const bool vectors : {false, true}) {
      if (vectors)
        svg();
      else
        pdf();
      if (drawn) face.PrintPlot(0, 0, 9000, 9000, true);
      face.setPrinterObj(nullptr);
      EXPECT_EQ(files(), QStringList{"wafer.pdf"});
      EXPECT_EQ(content(), "older");
    }
  }
}

// ---- Failures ----

TEST_F(PrintJobTest, APathThatCannotBeWrittenIsToldAtOnce) {
  for (const QString& bad : {path("no/such/wafer.pdf"), directory.path()}) {
    EXPECT_THROW(PrintJob::pdf(bad), FileError);
    EXPECT_THROW(PrintJob::svg(bad, {100, 100}), FileError);
    for (const std::string& error : {error_of([&] { PrintJob::pdf(bad); }), error_of([&] {
                                       PrintJob::svg(bad, {100, 100});
                                     })}) {
      EXPECT_THAT(error, testing::StartsWith(bad.toStdString() + ": "));
      EXPECT_GT(error.size(), bad.toStdString().size() + 10) << "a reason: " << error;
    }
  }
  EXPECT_EQ(files(), QStringList());
}

TEST_F(PrintJobTest, AFullDiskFailsAtTheEndAndLeavesNothing) {
  for (const bool vectors : {false, true})
    for (const rlim_t room : {rlim_t{0}, rlim_t{1000}, rlim_t{5000}}) {
      write_older_file();
      const QString file = vectors ? path("wafer.svg") : pdf_path();
      QFile::rename(pdf_path(), file);
      const QStringList before = files();
      const auto job = vectors ? svg() : pdf();
      for (int i = 0; i < 10; ++i) EXPECT_EQ(face.PrintPlot(0, 0, 9000 + i, 9000, true), 0);
      std::string error;
      {
        const FullDisk full(room);
        error = error_of([&] { job->finish(); });
      }
      EXPECT_THAT(error, testing::StartsWith(file.toStdString() + ": "));
      EXPECT_THAT(error, HasSubstr("too large"));
      EXPECT_EQ(files(), before);
      EXPECT_THAT(error_of([&] { face.PrintWaferSize(0, 0); }), HasSubstr("has ended"));
      EXPECT_EQ(files(), before);
      QFile::remove(file);
    }
}

TEST_F(PrintJobTest, WithoutAPrinterThereIsNothingToPrintOn) {
  qputenv("CUPS_SERVER", "localhost:1");
  ASSERT_TRUE(QPrinterInfo::defaultPrinter().isNull());
  for (const bool own : {true, false}) {
    if (!own) face.setPrinterObj(PrintJob::default_printer());
    EXPECT_EQ(face.PrintPlot(0, 0, 9000, 9000, true), 2);
    EXPECT_EQ(face.PrintWaferSize(0, 0), 1);
    EXPECT_EQ(face.PrintLegend(0, 0, true), 1);
  }
  qt::Histogram chart;
  load_slope(chart);
  EXPECT_EQ(chart.PrintPlot(0, 0, 9000, 9000, true), 1);
}

TEST_F(PrintJobTest, WithoutAPrinterDrawingFails) {
  qputenv("CUPS_SERVER", "localhost:1");
  const auto job = PrintJob::default_printer();
  EXPECT_FALSE(job->present());
  EXPECT_THAT(error_of([&] { draw_line(*job, 1, 0, 0, 9, 9); }), HasSubstr("the system has no printer"));
  EXPECT_THROW(job->new_page(), CanvasError);
  EXPECT_THROW(job->finish(), CanvasError);
  job->abandon();
}

// ---- Files that are none ----

TEST_F(PrintJobTest, OnlyARegularFileIsReplaced) {
  const SpecialFiles specials(directory.path().toStdString());
  ASSERT_GE(specials.paths().size(), 6u);
  for (const std::string& special : specials.paths()) {
    const QString file = QString::fromStdString(special);
    EXPECT_EQ(error_of([&] { PrintJob::pdf(file); }), special + ": not a regular file");
    EXPECT_EQ(error_of([&] { PrintJob::svg(file, {100, 100}); }), special + ": not a regular file");
    QPrinter printer;
    printer.setOutputFormat(QPrinter::PdfFormat);
    printer.setOutputFileName(file);
    face.setPrinterObj(PrintJob::on(printer));
    EXPECT_EQ(error_of([&] { face.PrintWaferSize(0, 0); }), special + ": not a regular file");
    face.setPrinterObj(nullptr);
  }
  EXPECT_TRUE(specials.stand());
}

TEST_F(PrintJobTest, ALinkToAFileStays) {
  const QString link = path("link.pdf");
  ASSERT_TRUE(QFile::link(pdf_path(), link));
  for (const bool exists : {false, true}) {
    EXPECT_EQ(QFile::exists(pdf_path()), exists);
    const auto job = PrintJob::pdf(link);
    face.setPrinterObj(job);
    face.PrintWaferSize(0, 0);
    job->finish();
    EXPECT_TRUE(QFileInfo(link).isSymLink());
    EXPECT_TRUE(content().startsWith("%PDF"));
  }
}

// ---- Titles ----

TEST_F(PrintJobTest, APdfFileTellsItsTitleAndItsCreator) {
  const auto info = [&](const QString& line) {
    return QString::fromUtf8(output_of("pdfinfo", {pdf_path()}))
        .section(line + ":", 1)
        .section('\n', 0, 0)
        .trimmed();
  };
  pdf()->finish();
  EXPECT_EQ(info("Title"), "wafer");
  EXPECT_EQ(info("Creator"), "MirolenViewWM");
  PrintJob::pdf(pdf_path(), PrintJob::a4(), "Los µ 5 (a)")->finish();
  EXPECT_EQ(info("Title"), "Los µ 5 (a)");
}

// ---- The host's printer ----

class HostPrinterTest : public PrintJobTest {
 protected:
  HostPrinterTest() {
    printer.setOutputFormat(QPrinter::PdfFormat);
    printer.setOutputFileName(pdf_path());
    printer.setPageLayout(PrintJob::a4());
    printer.setResolution(300);
    face.setPrinterObj(job = PrintJob::on(printer));
  }
  QPrinter printer{QPrinter::HighResolution};
  std::shared_ptr<PrintJob> job;
};

TEST_F(HostPrinterTest, IsPrintedOn) {
  EXPECT_DOUBLE_EQ(job->TwipsPerPixelX(), 4.8);
  EXPECT_EQ(face.PrintPlot(0, 0, 9000, 9000, true), 0);
  job->new_page();
  EXPECT_EQ(face.PrintWaferSize(2000, 3000), 0);
  job->finish();
  EXPECT_EQ(pages_of(pdf_path()), 2);
  const Word style = word_in(pdf_path(), "Style:");
  EXPECT_EQ(style.page, 2);
  EXPECT_NEAR(style.box.left(), 28 + 2120 / 20., 0.5);
  EXPECT_NEAR(style.box.top(), 28 + 4080 / 20., 1.5);
}

TEST_F(HostPrinterTest, TakesAJobAfterAnother) {
  face.PrintWaferSize(0, 0);
  job->finish();
  EXPECT_TRUE(text_of_page(pdf_path(), 1).contains("Size"));
  face.PrintWaferStatistic(0, 0, "nm");
  job->finish();
  EXPECT_TRUE(text_of_page(pdf_path(), 1).contains("Mean:"));
  EXPECT_FALSE(text_of_page(pdf_path(), 1).contains("Size"));
}

TEST_F(HostPrinterTest, IsUsableAfterAnAbandonedJob) {
  face.PrintWaferSize(0, 0);
  job->abandon();
  job = nullptr;
  face.setPrinterObj(nullptr);
  const auto next = PrintJob::on(printer);
  face.setPrinterObj(next);
  face.PrintWaferStatistic(0, 0, "nm");
  next->finish();
  EXPECT_TRUE(text_of_page(pdf_path(), 1).contains("Mean:"));
}

TEST_F(HostPrinterTest, OneThatCannotStartSaysSo) {
  printer.setOutputFileName(path("no/such/wafer.pdf"));
  EXPECT_THROW(face.PrintWaferSize(0, 0), CanvasError);
  EXPECT_THAT(error_of([&] { job->finish(); }), HasSubstr("the start of the print job"));
}

TEST_F(HostPrinterTest, AJobThatDoesNotStartLeavesAnOlderFile) {
  write_older_file();
  {
    QPainter other(&printer);
    QFile::remove(pdf_path());
    write_older_file();
    EXPECT_THROW(face.PrintWaferSize(0, 0), CanvasError) << "the printer is in use";
    job->abandon();
    EXPECT_EQ(content(), "older");
  }
}

TEST_F(HostPrinterTest, AnAbandonedJobLeavesNoFile) {
  face.PrintPlot(0, 0, 9000, 9000, true);
  job->abandon();
  EXPECT_EQ(files(), QStringList());
}

TEST_F(HostPrinterTest, AFinishedFileStays) {
  face.PrintWaferSize(0, 0);
  job->finish();
  job->abandon();
  EXPECT_EQ(files(), QStringList{"wafer.pdf"});
}

/// A page on a printer of its own that writes a PDF file.
class PrinterOnAFullDisk : public PrintJobTest, public testing::WithParamInterface<rlim_t> {
 protected:
  PrinterOnAFullDisk() {
    printer.setOutputFormat(QPrinter::PdfFormat);
    printer.setOutputFileName(pdf_path());
    face.setPrinterObj(job);
  }
  ~PrinterOnAFullDisk() override { face.setPrinterObj(nullptr); }
  void print_pages(int count) {
    for (int i = 0; i < count; ++i) {
      face.PrintPlot(0, 0, 9000 + i, 9000, true);
      job->new_page();
    }
  }
  QPrinter printer{QPrinter::HighResolution};
  std::shared_ptr<PrintJob> job = PrintJob::on(printer);
};

TEST_P(PrinterOnAFullDisk, IsToldAtTheEndAndLeavesNothing) {
  std::string error;
  {
    const FullDisk full(GetParam());
    face.PrintPlot(0, 0, 9000, 9000, true);
    face.PrintWaferSize(0, 9500);
    error = error_of([&] { job->finish(); });
  }
  EXPECT_EQ(error, pdf_path().toStdString() + ": the file could not be written as a whole");
  EXPECT_EQ(files(), QStringList());
}

TEST_P(PrinterOnAFullDisk, ForAWhileLeavesAWholeFileOrNone) {
  std::string error;
  {
    const FullDisk full(GetParam());
    error = error_of([&] { print_pages(20); });
  }
  if (error.empty())
    error = error_of([&] {
      print_pages(1);
      job->finish();
    });
  if (!error.empty()) job->abandon();
  if (error.empty())
    EXPECT_EQ(pages_of(pdf_path()), 22);
  else
    EXPECT_EQ(files(), QStringList()) << error;
}

INSTANTIATE_TEST_SUITE_P(WithRoomFor, PrinterOnAFullDisk, testing::Values(0, 1000, 5000));

// ---- SVG ----

struct SvgFile {
  QSizeF view_box;
  QString title, width, height;
  QString text;
  QStringList fonts;
  int texts = 0, images = 0;
};

SvgFile read_svg(const QString& path) {
  QFile file(path);
  SvgFile svg;
  EXPECT_TRUE(file.open(QIODevice::ReadOnly));
  QXmlStreamReader xml(&file);
  while (!xml.atEnd()) {
    const auto token = xml.readNext();
    if (token == QXmlStreamReader::Characters) svg.text += xml.text();
    if (token != QXmlStreamReader::StartElement) continue;
    if (xml.name() == u"text") ++svg.texts;
    if (xml.name() == u"image") ++svg.images;
    if (xml.name() == u"title") svg.title = xml.readElementText();
    if (xml.attributes().hasAttribute("font-family"))
      svg.fonts << xml.attributes().value("font-family").toString();
    if (xml.name() != u"svg") continue;
    const QStringList edges = xml.attributes().value("viewBox").toString().split(' ');
    svg.view_box = {edges.value(2).toDouble(), edges.value(3).toDouble()};
    svg.width = xml.attributes().value("width").toString();
    svg.height = xml.attributes().value("height").toString();
  }
  EXPECT_FALSE(xml.hasError()) << xml.errorString().toStdString();
  return svg;
}

TEST_F(PrintJobTest, AnSvgFileHoldsVectorsAndTexts) {
  const auto job = svg();
  EXPECT_EQ(job->kind(), CanvasKind::printer);
  EXPECT_DOUBLE_EQ(job->TwipsPerPixelX(), 2.4);
  face.PrintPlot(0, 0, 9000, 9000, true);
  face.PrintWaferStatistic(0, 9400, "<µ>&\"\"");
  job->finish();
  const SvgFile file = read_svg(path("wafer.svg"));
  EXPECT_EQ(file.width, "210mm");
  EXPECT_EQ(file.height, "297mm");
  EXPECT_NEAR(file.view_box.width(), 210 / 25.4 * 600, 0.01);
  EXPECT_NEAR(file.view_box.height(), 297 / 25.4 * 600, 0.01);
  EXPECT_EQ(file.title, "wafer");
  EXPECT_GT(file.texts, 15);
  EXPECT_EQ(file.images, 0);
  for (const char* text : {"Mean:", "<µ>&\"\"", "Notch"}) EXPECT_TRUE(file.text.contains(text)) << text;
}

TEST_F(PrintJobTest, AnSvgFileHasOnePage) {
  const auto job = svg();
  face.PrintWaferSize(0, 0);
  EXPECT_THROW(job->new_page(), CanvasError);
  face.PrintWaferStatistic(3000, 0, "nm");
  job->finish();
  const SvgFile file = read_svg(path("wafer.svg"));
  EXPECT_TRUE(file.text.contains("Size"));
  EXPECT_TRUE(file.text.contains("Mean:"));
  EXPECT_THAT(error_of([&] { face.PrintWaferSize(0, 0); }), HasSubstr("has ended"));
}

TEST_F(PrintJobTest, AnEmptySvgFileIsWellFormed) {
  svg()->finish();
  EXPECT_EQ(read_svg(path("wafer.svg")).texts, 0);
}

TEST_F(PrintJobTest, AnAbandonedSvgFileIsNone) {
  const auto job = svg();
  face.PrintWaferSize(0, 0);
  job->abandon();
  EXPECT_EQ(files(), QStringList());
}

TEST_F(PrintJobTest, AnSvgFileHasTheSizeAndTheTitleThatItIsGiven) {
  PrintJob::svg(path("wafer.svg"), {123.4, 56.78}, "<Los> & \"5\"")->finish();
  const SvgFile file = read_svg(path("wafer.svg"));
  EXPECT_EQ(file.width, "123.4mm");
  EXPECT_EQ(file.height, "56.78mm");
  EXPECT_EQ(file.title, "<Los> & \"5\"");
}

TEST_F(PrintJobTest, TheFontsOfAnSvgFileHaveAStandIn) {
  qt::Plot2DS sigma_map;
  load_slope(sigma_map);
  const auto job = svg();
  sigma_map.setPrinterObj(job);
  sigma_map.PrintLegend(0, 0, true);
  job->finish();
  const SvgFile file = read_svg(path("wafer.svg"));
  EXPECT_EQ(file.text.count(QStringLiteral("σ")), 3) << "a letter of any font";
  ASSERT_GT(file.fonts.size(), 3);
  for (const QString& font : file.fonts) EXPECT_TRUE(font.endsWith(", sans-serif")) << font.toStdString();
  EXPECT_TRUE(file.fonts.contains("Arial, sans-serif"));
}

TEST_F(PrintJobTest, OnlyAreasWithoutAnOutlineAreCrispInAnSvgFile) {
  const auto job = svg();
  job->FillStyle(solid_fill);
  job->Circle(500, 500, 100);
  job->DrawStyle(no_outline);
  job->FillColor(red);
  job->Polygon(std::array<PixelPoint, 4>{{{600, 600}, {1200, 600}, {1200, 1200}, {600, 1200}}});
  job->finish();
  QFile file(path("wafer.svg"));
  ASSERT_TRUE(file.open(QIODevice::ReadOnly));
  const QByteArray content = file.readAll();
  EXPECT_EQ(content.count("crispEdges"), 1);
  EXPECT_GT(content.indexOf("crispEdges"), content.indexOf("<circle"));
}

TEST_F(PrintJobTest, AnSvgFileHasASize) {
  const double nan = std::nan(""), infinity = std::numeric_limits<double>::infinity();
  for (const double bad : {0., -5., nan, infinity, -infinity, 1e9}) {
    EXPECT_THROW(PrintJob::svg(path("wafer.svg"), {bad, 100}), InvalidArgument) << bad;
    EXPECT_THROW(PrintJob::svg(path("wafer.svg"), {100, bad}), InvalidArgument) << bad;
  }
  EXPECT_EQ(files(), QStringList());
}

}  // namespace
}  // namespace mirolen
