#include <gtest/gtest.h>

#include <QApplication>
#include <QClipboard>
#include <QImage>
#include <QMenu>
#include <QMenuBar>
#include <QPrinter>
#include <QTabWidget>
#include <set>

#include "examples/page_tools.h"
#include "examples/quiet_viewer.h"
#include "support/FullDisk.h"

namespace mirolen {
namespace {

using examples_test::Folder;
using examples_test::QuietViewer;
using examples_test::shown;
using examples_test::texts_of_pages;

const char* const needing_data[] = {"Print...",      "Print preview...", "Export PDF...", "Export SVG...",
                                    "Export PNG...", "Lot report...",    "Copy"};

class Output : public testing::Test {
 protected:
  Output() { EXPECT_TRUE(window.open_csv(MIROLEN_DATA "/oxide_300mm/post_w01.csv")); }

  QuietViewer window;
  const Folder folder;
};

TEST(OutputActions, AreEnabledByData) {
  QuietViewer window;
  for (const char* text : needing_data) EXPECT_FALSE(window.action(text).isEnabled()) << text;
  window.open_csv(MIROLEN_DATA "/oxide_300mm/post_w01.csv");
  for (const char* text : needing_data) EXPECT_TRUE(window.action(text).isEnabled()) << text;
}

TEST(OutputActions, HaveTheUsualKeys) {
  QuietViewer window;
  EXPECT_EQ(window.action("Print...").shortcut(), QKeySequence("Ctrl+P"));
  EXPECT_EQ(window.action("Copy").shortcut(), QKeySequence("Ctrl+C"));
  std::set<QString> taken;
  for (QAction* action : window.findChildren<QAction*>()) {
    const QString key = action->shortcut().toString();
    EXPECT_TRUE(key.isEmpty() || taken.insert(key).second) << key.toStdString();
  }
}

QChar mnemonic(const QAction& action) { return action.text().section('&', 1).toUpper().front(); }

TEST(OutputActions, AreReachedByOneLetterEach) {
  QuietViewer window;
  for (QAction* menu : window.menuBar()->actions()) {
    std::set<QChar> taken;
    for (QAction* action : menu->menu()->actions()) {
      if (action->isSeparator()) continue;
      ASSERT_TRUE(action->text().contains('&')) << action->text().toStdString();
      EXPECT_TRUE(taken.insert(mnemonic(*action)).second) << action->text().toStdString();
    }
  }
}

TEST_F(Output, WritesThePlotThatIsSeenAsPdf) {
  ASSERT_TRUE(window.write_pdf(folder.path("map.pdf")));
  ASSERT_EQ(folder.files(), QStringList("map.pdf"));
  const QStringList map = texts_of_pages(folder.path("map.pdf"));
  ASSERT_EQ(map.size(), 1);
  for (const char* text :
       {"post_w01", "Colour map", "Statistics", "17.0395", "Size", "49", "Legend", "Notch"})
    EXPECT_TRUE(map[0].contains(shown(text))) << text;

  window.action("Flat").trigger();
  window.tabs().setCurrentIndex(8);
  ASSERT_TRUE(window.write_pdf(folder.path("map.pdf"))) << "in place of the one before";
  const QStringList scan = texts_of_pages(folder.path("map.pdf"));
  EXPECT_TRUE(scan.value(0).contains("Line scan"));
  EXPECT_TRUE(scan.value(0).contains("Flat")) << "it has the looks of the plot on the screen";
  EXPECT_FALSE(scan.value(0).contains("Legend"));
}

TEST_F(Output, WritesSvgWithTexts) {
  ASSERT_TRUE(window.write_svg(folder.path("map.svg")));
  const QByteArray svg = folder.content("map.svg");
  EXPECT_TRUE(svg.contains("<svg"));
  EXPECT_TRUE(svg.contains("Statistics"));
  EXPECT_TRUE(svg.contains(shown("17.0395").toUtf8()));
}

TEST_F(Output, WritesAndCopiesThePictureOfTheScreen) {
  const QImage seen = window.map().grab().toImage();
  ASSERT_TRUE(window.write_png(folder.path("map.png")));
  const QImage written(folder.path("map.png"));
  EXPECT_EQ(written.size(), window.map().size() * window.devicePixelRatioF());
  EXPECT_EQ(written.convertToFormat(seen.format()), seen);

  QApplication::clipboard()->clear();
  window.action("Copy").trigger();
  EXPECT_EQ(QApplication::clipboard()->image().convertToFormat(seen.format()), seen);
}

TEST_F(Output, PrintsOnAPrinterAndTellsOfOneThatFails) {
  QPrinter printer;
  printer.setOutputFormat(QPrinter::PdfFormat);
  printer.setOutputFileName(folder.path("printed.pdf"));
  EXPECT_TRUE(window.print_on(printer));
  EXPECT_TRUE(texts_of_pages(folder.path("printed.pdf")).value(0).contains(shown("17.0395")));
  printer.setOutputFileName("/no/such/folder/printed.pdf");
  EXPECT_FALSE(window.print_on(printer));
  ASSERT_EQ(window.complaints.size(), 1);
  EXPECT_TRUE(window.complaints[0].contains("/no/such/folder/printed.pdf"));

  printer.setOutputFileName(folder.path("printed.pdf"));
  const QByteArray printed = folder.content("printed.pdf");
  {
    const FullDisk full(2000);
    EXPECT_FALSE(window.print_on(printer));
  }
  EXPECT_EQ(folder.content("printed.pdf"), printed);

  QPrinter nowhere;
  nowhere.setOutputFormat(QPrinter::PdfFormat);
  EXPECT_FALSE(window.print_on(nowhere));
  EXPECT_TRUE(window.complaints.last().contains("There is no printer."));
}

TEST_F(Output, TellsOfAPageThatIsTooSmall) {
  QPrinter printer;
  printer.setOutputFormat(QPrinter::PdfFormat);
  printer.setOutputFileName(folder.path("printed.pdf"));
  printer.setPageSize(QPageSize(QPageSize::A6));
  EXPECT_FALSE(window.print_on(printer));
  ASSERT_EQ(window.complaints.size(), 1);
  EXPECT_TRUE(window.complaints[0].contains("The page is too small for a report."));
}

using Write = bool (ViewerWindow::*)(const QString&);
constexpr Write writers[] = {&ViewerWindow::write_pdf, &ViewerWindow::write_svg, &ViewerWindow::write_png,
                             &ViewerWindow::write_lot_report};

TEST_F(Output, TellsOfAFileThatCannotBeWritten) {
  for (const Write write : writers) {
    EXPECT_FALSE((window.*write)("/no/such/folder/file"));
    EXPECT_FALSE((window.*write)(folder.directory.path())) << "a folder";
  }
  ASSERT_EQ(window.complaints.size(), 8);
  for (const QString& complaint : window.complaints)
    EXPECT_TRUE(complaint.contains("could not be written") && complaint.contains('/'))
        << complaint.toStdString();
  EXPECT_TRUE(folder.files().isEmpty());
}

TEST_F(Output, LeavesTheOldFileWhereTheDiskIsFull) {
  int failures = 0;
  for (const Write write : writers) {
    ASSERT_TRUE((window.*write)(folder.path("old")));
    const QByteArray whole = folder.content("old");
    const auto size = static_cast<unsigned long>(whole.size());
    for (const unsigned long room : {0ul, 2000ul, size / 2, size - 20000, size - 100, size - 1}) {
      const FullDisk full(room);
      EXPECT_FALSE((window.*write)(folder.path("old"))) << room << " of " << size;
      EXPECT_FALSE((window.*write)(folder.path("new"))) << room << " of " << size;
      failures += 2;
    }
    EXPECT_EQ(folder.files(), QStringList("old"));
    EXPECT_EQ(folder.content("old"), whole);
  }
  EXPECT_EQ(window.complaints.size(), failures);
}

TEST(OutputWithoutData, IsRefused) {
  QuietViewer window;
  const Folder folder;
  for (const Write write : writers) EXPECT_FALSE((window.*write)(folder.path("file")));
  EXPECT_EQ(window.complaints, QStringList(QStringList(4, "No file is open.")));
  EXPECT_TRUE(folder.files().isEmpty());
}

}  // namespace
}  // namespace mirolen
