#include <gtest/gtest.h>

#include <QComboBox>
#include <QProgressDialog>
#include <QTabWidget>
#include <QTimer>

#include "examples/page_tools.h"
#include "examples/quiet_viewer.h"
#include "qt/qt_support.h"

namespace mirolen {
namespace {

using examples_test::Folder;
using examples_test::QuietViewer;
using examples_test::shown;
using examples_test::texts_of_pages;
using qt_test::TemporaryFile;

const QStringList names{"post_w01", "pre_w01", "pre_w02"};

QStringList paths() {
  QStringList paths;
  for (const QString& name : names) paths << MIROLEN_DATA "/oxide_300mm/" + name + ".csv";
  return paths;
}

class Lot : public testing::Test {
 protected:
  Lot() { EXPECT_TRUE(window.open_csv(paths())); }

  QuietViewer window;
  const Folder folder;
};

/// Does something with the dialog of a report as soon as that is written.
void with_dialog(const QuietViewer& window, const std::function<void(QProgressDialog&)>& act) {
  QTimer::singleShot(0, &window, [&window, act] {
    auto* const dialog = window.findChild<QProgressDialog*>();
    ASSERT_NE(dialog, nullptr);
    act(*dialog);
  });
}

TEST_F(Lot, OffersTheWafersThatAreOpen) {
  QStringList offered;
  for (int i = 0; i < window.wafers().count(); ++i) offered << window.wafers().itemText(i);
  EXPECT_EQ(offered, names);
  EXPECT_NEAR(window.map().mean(), 17.0395, 1e-4);
  window.wafers().setCurrentIndex(1);
  EXPECT_NEAR(window.map().mean(), 11.4836, 1e-4);
  EXPECT_EQ(window.map().PlotCaption(), "pre_w01");
  EXPECT_EQ(window.windowTitle(), "pre_w01.csv - Wafer viewer");
}

TEST_F(Lot, StepsThroughTheWafers) {
  QAction &next = window.action("Next wafer"), &previous = window.action("Previous wafer");
  EXPECT_EQ(next.shortcut(), QKeySequence("Ctrl+PgDown"));
  EXPECT_EQ(previous.shortcut(), QKeySequence("Ctrl+PgUp"));
  EXPECT_FALSE(previous.isEnabled());
  next.trigger();
  next.trigger();
  EXPECT_EQ(window.map().PlotCaption(), "pre_w02");
  EXPECT_FALSE(next.isEnabled());
  previous.trigger();
  EXPECT_EQ(window.map().PlotCaption(), "pre_w01");
  EXPECT_TRUE(next.isEnabled());
}

TEST_F(Lot, LeavesOutAFileThatIsRefused) {
  const TemporaryFile bad("x_mm,y_mm,z\n1,2,abc\n");
  EXPECT_FALSE(window.open_csv(QStringList{paths()[1], bad.path, "/no/such/file.csv", paths()[2]}));
  EXPECT_EQ(window.wafers().count(), 2);
  EXPECT_EQ(window.map().PlotCaption(), "pre_w01");
  ASSERT_EQ(window.complaints.size(), 1);
  EXPECT_TRUE(window.complaints[0].contains(bad.path));
  EXPECT_TRUE(window.complaints[0].contains("Line 2: the field z is no number"));
  EXPECT_TRUE(window.complaints[0].contains("/no/such/file.csv"));
}

TEST_F(Lot, KeepsItsWafersWhereAllFilesAreRefused) {
  EXPECT_FALSE(window.open_csv(QStringList{"/no/such/file.csv", "/nor/this.csv"}));
  EXPECT_EQ(window.wafers().count(), 3);
  EXPECT_EQ(window.map().PlotCaption(), "post_w01");
}

TEST_F(Lot, ReportsAPageForEachWafer) {
  const auto before = window.rendering();
  ASSERT_TRUE(window.write_lot_report(folder.path("lot.pdf")));
  EXPECT_EQ(folder.files(), QStringList("lot.pdf"));
  const QStringList pages = texts_of_pages(folder.path("lot.pdf"));
  ASSERT_EQ(pages.size(), 3);
  const char* const means[] = {"17.0395", "11.4836", "11.4873"};
  for (int i = 0; i < 3; ++i) {
    EXPECT_TRUE(pages[i].contains(names[i]));
    EXPECT_TRUE(pages[i].contains(shown(means[i]))) << pages[i].toStdString();
    EXPECT_TRUE(pages[i].contains(QStringLiteral("page %1 of 3").arg(i + 1)));
  }
  EXPECT_EQ(window.rendering(), before) << "the plot on the screen is left alone";
  EXPECT_NEAR(window.map().mean(), 17.0395, 1e-4);
}

TEST_F(Lot, ReportsThePlotThatIsSeen) {
  for (int page = 0; page < 9; ++page) {
    window.tabs().setCurrentIndex(page);
    ASSERT_TRUE(window.write_lot_report(folder.path("lot.pdf")));
    const QStringList pages = texts_of_pages(folder.path("lot.pdf"));
    ASSERT_EQ(pages.size(), 3) << page;
    EXPECT_TRUE(pages[2].contains(window.tabs().tabText(page) + ", "));
  }
}

TEST_F(Lot, TellsHowFarTheReportIs) {
  int most = 0;
  std::vector<int> told;
  with_dialog(window, [&](QProgressDialog& dialog) {
    EXPECT_TRUE(dialog.isVisible());
    most = dialog.maximum();
    told.push_back(dialog.value());
    QObject::connect(&dialog, &QProgressDialog::destroyed, [&] { told.push_back(-1); });
  });
  ASSERT_TRUE(window.write_lot_report(folder.path("lot.pdf")));
  EXPECT_EQ(most, 3);
  ASSERT_EQ(told.size(), 2u);
  EXPECT_LT(told[0], 3);
  EXPECT_EQ(told[1], -1) << "the dialog is gone";
}

TEST_F(Lot, LeavesNoFileWhenItIsCancelled) {
  folder.write("old.pdf", "old");
  for (const char* name : {"old.pdf", "new.pdf"}) {
    with_dialog(window, [](QProgressDialog& dialog) { dialog.cancel(); });
    EXPECT_FALSE(window.write_lot_report(folder.path(name)));
  }
  EXPECT_TRUE(window.complaints.isEmpty()) << "the user knows";
  EXPECT_EQ(folder.files(), QStringList("old.pdf"));
  EXPECT_EQ(folder.content("old.pdf"), "old");
  EXPECT_TRUE(window.write_lot_report(folder.path("old.pdf"))) << "the next one is whole";
  EXPECT_EQ(texts_of_pages(folder.path("old.pdf")).size(), 3);
}

TEST_F(Lot, PrintsOddWafers) {
  const TemporaryFile single("x_mm,y_mm,z\n0,0,5\n", "single.csv");
  const TemporaryFile level("x_mm,y_mm,z\n0,0,5\n9,0,5\n0,9,5\n-9,0,5\n0,-9,5\n", "level.csv");
  ASSERT_TRUE(window.open_csv(QStringList{single.path, level.path}));
  for (int page = 0; page < 9; ++page) {
    window.tabs().setCurrentIndex(page);
    EXPECT_TRUE(window.write_lot_report(folder.path("lot.pdf"))) << page;
    EXPECT_EQ(texts_of_pages(folder.path("lot.pdf")).size(), 2);
  }
}

TEST_F(Lot, PrintsTheContoursOfAMeanOfZero) {
  const TemporaryFile balanced("x_mm,y_mm,z\n0,0,0\n9,0,1\n0,9,-1\n-9,0,2\n0,-9,-2\n", "balanced.csv");
  ASSERT_TRUE(window.open_csv(QStringList{paths()[0], balanced.path, paths()[1]}));
  window.tabs().setCurrentIndex(2);  // contours, whose interval is in percent of the mean
  EXPECT_TRUE(window.write_lot_report(folder.path("lot.pdf")));
  EXPECT_TRUE(window.complaints.isEmpty());
  EXPECT_EQ(texts_of_pages(folder.path("lot.pdf")).size(), 3);
}

}  // namespace
}  // namespace mirolen
