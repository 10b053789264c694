#include <gtest/gtest.h>

#include <QMenu>
#include <QMenuBar>
#include <QTabWidget>
#include <set>

#include "PreviewDialog.h"
#include "examples/quiet_viewer.h"
#include "qt/in_german.h"
#include "qt/qt_support.h"

namespace mirolen {
namespace {

using examples_test::QuietViewer;

/// The letters that entries are chosen by; each has one of its own.
void expect_own_keys(const QList<QAction*>& entries) {
  std::set<QChar> keys;
  for (const QAction* entry : entries) {
    if (entry->isSeparator()) continue;
    const auto mark = entry->text().indexOf('&');
    ASSERT_GE(mark, 0) << entry->text().toStdString();
    EXPECT_TRUE(keys.insert(entry->text()[mark + 1].toUpper()).second) << entry->text().toStdString();
  }
}

class ViewerInGerman : private qt_test::InGerman, public testing::Test {
 protected:
  QuietViewer window;
};

TEST_F(ViewerInGerman, HasMenusWithKeysOfTheirOwn) {
  EXPECT_EQ(window.menuBar()->actions().front()->text(), "&Datei");
  expect_own_keys(window.menuBar()->actions());
  for (const QAction* menu : window.menuBar()->actions()) expect_own_keys(menu->menu()->actions());
}

TEST_F(ViewerInGerman, HasAPreviewWithKeysOfItsOwn) {
  PreviewDialog preview(
      qt::PrintJob::a4(), [](const auto&) {}, &window);
  EXPECT_EQ(preview.windowTitle(), "Druckvorschau");
  QList<QAction*> entries;
  for (QAction* action : preview.findChildren<QAction*>())
    if (!action->shortcut().isEmpty()) entries << action;
  EXPECT_EQ(entries.size(), 6);
  expect_own_keys(entries);
}

TEST_F(ViewerInGerman, NamesItsPlots) {
  QStringList names;
  for (int page = 0; page < window.tabs().count(); ++page) names << window.tabs().tabText(page);
  EXPECT_EQ(names, (QStringList{"Farbkarte", "Sigmakarte", "Kontur", "Werte", "Balken", "Fläche",
                                "Sigmafläche", "Histogramm", "Linienscan"}));
}

TEST_F(ViewerInGerman, SaysWhatIsWrongWithAFile) {
  const qt_test::TemporaryFile file("x_mm,y_mm,z\n1,2,3\n1,,3\n");
  EXPECT_FALSE(window.open_csv(file.path));
  EXPECT_EQ(window.complaints, QStringList{file.path + "\n\nZeile 3: das Feld y_mm ist leer."});
}

TEST_F(ViewerInGerman, SaysWhatAPrinterLacks) {
  EXPECT_TRUE(window.open_csv(MIROLEN_DATA "/oxide_300mm/post_w01.csv"));
  EXPECT_FALSE(window.write_pdf("/nowhere/plot.pdf"));
  ASSERT_EQ(window.complaints.size(), 1);
  EXPECT_TRUE(window.complaints[0].startsWith("Die PDF-Datei konnte nicht geschrieben werden."));
}

}  // namespace
}  // namespace mirolen
