#include <gtest/gtest.h>

#include <QComboBox>
#include <QTabWidget>

#include "examples/quiet_viewer.h"
#include "mirolen/qt/peers.h"
#include "qt/qt_support.h"

namespace mirolen {
namespace {

using examples_test::QuietViewer;
using qt_test::TemporaryFile;

class Viewer : public testing::Test {
 protected:
  Viewer() {
    window.show();
    EXPECT_TRUE(window.open_csv(MIROLEN_DATA "/oxide_300mm/post_w01.csv"));
  }
  QuietViewer window;
};

TEST_F(Viewer, ShowsAMapAndItsStatistics) {
  EXPECT_TRUE(window.complaints.isEmpty());
  EXPECT_NE(window.rendering(), nullptr);
  EXPECT_EQ(window.map().PlotCaption(), "post_w01");
  EXPECT_TRUE(window.shows("49"));
  EXPECT_TRUE(window.shows(QLocale().toString(17.0395, 'g', 6)));
}

TEST_F(Viewer, KeepsItsPlotWhenAFileIsBad) {
  const auto before = window.rendering();
  const double mean = window.map().mean();
  EXPECT_FALSE(window.open_csv(TemporaryFile("x_mm,y_mm,z\n1,2,abc\n").path));
  EXPECT_FALSE(window.open_csv("/no/such/file.csv"));
  EXPECT_FALSE(window.open_binary(TemporaryFile("short").path, 1));
  QByteArray outside = "x_mm,y_mm,z\n";
  for (int i = 0; i < 12; ++i) outside += QByteArray::number(50 * i) + ",0,1\n";
  EXPECT_FALSE(window.open_csv(TemporaryFile(outside).path));

  EXPECT_EQ(window.complaints.size(), 4);
  EXPECT_TRUE(window.complaints[0].contains("Line 2: the field z is no number: \"abc\"."));
  EXPECT_EQ(window.rendering(), before);
  EXPECT_EQ(window.map().mean(), mean);
  EXPECT_EQ(window.map().PlotCaption(), "post_w01");
  EXPECT_EQ(window.map().Plot(), 0);
}

TEST_F(Viewer, OpensABinaryFile) {
  const std::vector<double> numbers{0, 10, 20, 30, 0, 0, 10, 10, 1, 2, 3, 6};
  const TemporaryFile file(QByteArray(reinterpret_cast<const char*>(numbers.data()), 96), "sites.bin");
  EXPECT_TRUE(window.open_binary(file.path, 4));
  EXPECT_EQ(window.map().mean(), 3);
  EXPECT_TRUE(window.shows("4"));
}

TEST_F(Viewer, ChangesTheLookFromItsMenu) {
  const auto before = window.rendering();
  window.action("Show sites").trigger();
  EXPECT_EQ(window.map().ShowSites(), qt::Plot2D::ShowSite);
  EXPECT_NE(window.rendering(), before);
  window.action("Flat").trigger();
  EXPECT_EQ(window.map().WaferStyle(), qt::Plot2D::Flat);
  EXPECT_EQ(window.map().control().FNLabel.Caption.get(), "Flat");
  EXPECT_FALSE(window.action("Notch").isChecked());
  window.action("Hide legend").trigger();
  EXPECT_TRUE(window.map().HideLegend());
  EXPECT_FALSE(qt::view_of(window.map().control().frmove)->isVisible());
  EXPECT_EQ(window.action("Open CSV...").shortcut(), QKeySequence("Ctrl+O"));
}

TEST_F(Viewer, DrawsAPageWhenItIsSeen) {
  ASSERT_EQ(window.tabs().count(), 9);
  for (int page = 1; page < 9; ++page) {
    EXPECT_EQ(window.plot(page).mean(), 0) << "not loaded yet: " << page;
    window.tabs().setCurrentIndex(page);
    EXPECT_NEAR(window.plot(page).mean(), 17.0395, 1e-4) << page;
    EXPECT_GT(qt_test::colors_in(window.plot(page).grab().toImage()).size(), 8u) << page;
  }
}

TEST_F(Viewer, ChangesPagesThatAreNotSeenToo) {
  window.action("Hide legend").trigger();
  window.action("Show sites").trigger();
  EXPECT_TRUE(window.plot(8).HideLegend());
  EXPECT_TRUE(window.plot(8).property("ShowSites").toBool());
  EXPECT_EQ(window.plot(2).property("marksites").toInt(), 1);
}

}  // namespace
}  // namespace mirolen
