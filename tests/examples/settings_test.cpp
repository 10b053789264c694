#include <gtest/gtest.h>

#include <QApplication>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTabWidget>
#include <QTimer>

#include "ViewerOptions.h"
#include "examples/page_tools.h"
#include "examples/quiet_viewer.h"
#include "mirolen/controls/descriptions.h"
#include "mirolen/dialogs/PropertyDialog.h"
#include "mirolen/dialogs/WaferInfoProp.h"

namespace mirolen {
namespace {

using automation::StoredKey;
using examples_test::Folder;
using examples_test::QuietViewer;

const char* const wafer_file = MIROLEN_DATA "/oxide_300mm/post_w01.csv";

class Settings : public testing::Test {
 protected:
  /// A viewer that is started with a command line.
  struct Run : QuietViewer {
    Run(const Folder& folder, QStringList arguments) {
      start(options_in(QStringList{"viewer", "--settings", folder.path("kept")} + arguments));
    }
  };
  std::unique_ptr<Run> run(const QStringList& arguments = {}) {
    return std::make_unique<Run>(folder, arguments);
  }
  QString plot_file(const QString& name) const { return "kept/plots/" + name + ".json"; }
  QJsonObject kept(const QString& name) const {
    return QJsonDocument::fromJson(folder.content(plot_file(name))).object();
  }
  void break_file(const QString& name, const QByteArray& content) const {
    ASSERT_TRUE(QDir(folder.directory.path()).mkpath("kept/plots"));
    folder.write(plot_file(name), content);
  }

  const Folder folder;
};

TEST_F(Settings, OfAFirstStartAreTheUsualOnes) {
  const auto window = run();
  QuietViewer usual;
  for (int page = 0; page < 9; ++page) {
    const automation::Object one = window->plot(page).by_name(), other = usual.plot(page).by_name();
    for (const StoredKey& key : one.info->stored)
      EXPECT_TRUE(automation::get(one, key.property) == automation::get(other, key.property)) << key.key;
  }
  EXPECT_TRUE(window->complaints.isEmpty());
  EXPECT_TRUE(folder.files().isEmpty()) << "nothing is written before the end";
}

TEST_F(Settings, OfEachPlotComeBack) {
  {
    const auto window = run({wafer_file});
    for (int page = 0; page < 9; ++page) {
      window->tabs().setCurrentIndex(page);
      auto& plot = window->plot(page);
      plot.setBackColor(QColor(10, 20, 30 + page));
      plot.setTestDiameter(200 + page);
      plot.setHideLegend(page % 2 == 1);
      plot.setWaferStyle(page % 3 == 0 ? qt::PlotWidget::Flat : qt::PlotWidget::Notch);
    }
    window->map().setResolution(9);
    mark_sites(window->plot(1), true);
    window->plot(1).setProperty("SigmaRange", 0.7);
    window->plot(7).setProperty("PlotType", 2);
    window->close();
    EXPECT_TRUE(window->complaints.isEmpty());
  }
  const auto window = run({wafer_file});
  for (int page = 0; page < 9; ++page) {
    auto& plot = window->plot(page);
    EXPECT_EQ(plot.BackColor(), QColor(10, 20, 30 + page)) << page;
    EXPECT_EQ(plot.TestDiameter(), 200 + page) << page;
    EXPECT_EQ(plot.HideLegend(), page % 2 == 1) << page;
    EXPECT_EQ(plot.WaferStyle(), page % 3 == 0 ? qt::PlotWidget::Flat : qt::PlotWidget::Notch) << page;
  }
  EXPECT_EQ(window->map().Resolution(), 9);
  window->tabs().setCurrentIndex(3);
  EXPECT_TRUE(window->action("Flat").isChecked());
  EXPECT_TRUE(window->action("Hide legend").isChecked());
  EXPECT_EQ(window->plot(1).property("SigmaRange"), 0.7);
  EXPECT_TRUE(sites_marked(window->plot(1)).value());
  EXPECT_FALSE(sites_marked(window->map()).value());
  EXPECT_EQ(window->plot(7).property("PlotType").toInt(), 2);
  EXPECT_TRUE(window->complaints.isEmpty());
}

TEST_F(Settings, FromAFormComeBack) {
  {
    const auto window = run({wafer_file});
    window->plot(0).toolkit().on_form = [](Form& form) {
      auto& dialog = dynamic_cast<PropertyDialog&>(form);
      dynamic_cast<WaferInfoProp&>(dialog.page(0)).txtWaferDiameter.Text("310");
      dialog.OKbtn.OnClick();
    };
    window->action("Properties...").trigger();
    window->action("Quit").trigger();
  }
  const auto window = run({wafer_file});
  EXPECT_EQ(window->map().WaferDiameter(), 310);
  EXPECT_EQ(window->plot(1).WaferDiameter(), 300);
  EXPECT_NEAR(window->map().mean(), 17.0395, 1e-4);
}

TEST_F(Settings, OfTheWindowComeBack) {
  QSize size;
  {
    const auto window = run();
    window->resize(980, 700);
    window->tabs().setCurrentIndex(6);
    size = window->size();
    window->close();
  }
  const auto window = run();
  EXPECT_EQ(window->size(), size);
  EXPECT_EQ(window->tabs().currentIndex(), 6);
}

TEST_F(Settings, TellNothingOfTheWafer) {
  {
    const auto window = run({wafer_file});
    window->map().SetPlotLimit(10, 20);
    for (int page = 8; page >= 0; --page) window->tabs().setCurrentIndex(page);
    EXPECT_NE(window->plot(4).property("BeamScale"), 1);
    window->close();
  }
  for (const QString& name : QDir(folder.path("kept/plots")).entryList(QDir::Files)) {
    const QByteArray content = folder.content("kept/plots/" + name);
    EXPECT_FALSE(content.contains("post_w01")) << name.toStdString();
    EXPECT_FALSE(content.contains("Caption")) << name.toStdString();
  }
  EXPECT_FALSE(kept("plot2db").contains("StdD3Scale2DB"));
  EXPECT_FALSE(kept("plot2dc").contains("StdDist"));
  const auto window = run();
  EXPECT_EQ(window->map().PlotCaption(), "Wafer");
  EXPECT_EQ(window->map().mean(), 0);
  EXPECT_TRUE(window->open_csv(MIROLEN_DATA "/oxide_300mm/pre_w01.csv"));
  EXPECT_EQ(window->map().PlotCaption(), "pre_w01");
  QuietViewer usual;
  usual.show();
  EXPECT_TRUE(usual.open_csv(MIROLEN_DATA "/oxide_300mm/pre_w01.csv"));
  EXPECT_EQ(window->map().grab().toImage(), usual.map().grab().toImage()) << "no limits";
}

TEST_F(Settings, KeepAnIntervalInPercent) {
  {
    const auto window = run({wafer_file});
    window->tabs().setCurrentIndex(2);
    window->plot(2).setProperty("IntervalInPercent", 0);
    window->plot(2).setProperty("Interval", 20);
    EXPECT_TRUE(window->open_csv(MIROLEN_DATA "/oxide_300mm/pre_w01.csv"));
    EXPECT_EQ(window->plot(2).property("Interval"), 20) << "it fits every wafer";
    window->close();
  }
  const auto window = run({wafer_file});
  EXPECT_EQ(window->plot(2).property("Interval"), 20);
}

TEST_F(Settings, GiveWayToTheCommandLineForOneRun) {
  {
    const auto window = run();
    window->map().setWaferDiameter(310);
    window->map().setTestDiameter(280);
    window->close();
  }
  {
    const auto window = run({"--diameter", "200"});
    EXPECT_EQ(window->map().WaferDiameter(), 200);
    EXPECT_EQ(window->map().TestDiameter(), 194);
    window->map().setResolution(9);
    window->close();
  }
  {
    const auto window = run({"--test-diameter", "150"});
    EXPECT_EQ(window->map().WaferDiameter(), 310);
    EXPECT_EQ(window->map().TestDiameter(), 150);
  }
  const auto window = run();
  EXPECT_EQ(window->map().WaferDiameter(), 310);
  EXPECT_EQ(window->map().TestDiameter(), 280);
  EXPECT_EQ(window->map().Resolution(), 9) << "all else is kept";
}

TEST_F(Settings, ThatAreBrokenAreToldOfOnceAndLeftAlone) {
  const QByteArray broken = "{\"StdResx2D\": {\"type";
  break_file("plot2d", broken);
  break_file("histogram", "[1, 2]");
  const auto window = run({wafer_file});
  ASSERT_EQ(window->complaints.size(), 1);
  EXPECT_TRUE(window->complaints[0].contains(folder.path(plot_file("plot2d"))));
  EXPECT_TRUE(window->complaints[0].contains(folder.path(plot_file("histogram"))));
  EXPECT_FALSE(window->complaints[0].contains("linescan"));
  EXPECT_EQ(window->map().Resolution(), 2) << "as usual";
  EXPECT_NEAR(window->map().mean(), 17.0395, 1e-4);
  window->close();
  EXPECT_EQ(window->complaints.size(), 1);
  EXPECT_EQ(folder.content(plot_file("plot2d")), broken);
  EXPECT_EQ(folder.content(plot_file("histogram")), "[1, 2]");
  EXPECT_FALSE(kept("linescan").isEmpty()) << "the others are kept";
}

TEST_F(Settings, ThatAreDamagedCountAsMissing) {
  break_file("plot2d", R"({"StdResx2D": {"type": "Integer", "value": "much"}, "BackColor": 7})");
  const auto window = run();
  EXPECT_EQ(window->map().Resolution(), 2);
  EXPECT_TRUE(window->complaints.isEmpty());
}

TEST_F(Settings, ThatAPlotRefusesAreToldInOneMessage) {
  run()->close();
  QJsonObject values = kept("linescan");
  QJsonObject angle = values["RotAngle"].toObject();
  angle["value"] = 999;
  values["RotAngle"] = angle;
  folder.write(plot_file("linescan"), QJsonDocument(values).toJson());
  const auto window = run();
  ASSERT_EQ(window->complaints.size(), 1);
  EXPECT_TRUE(window->complaints[0].contains("Angle value must be between 0 and 359"));
  EXPECT_EQ(window->plot(8).property("angle"), 0);
}

TEST_F(Settings, WithoutAFolderAreToldOfAtTheEnd) {
  folder.write("kept", "a file");
  const auto window = run({wafer_file});
  EXPECT_TRUE(window->complaints.isEmpty());
  EXPECT_TRUE(window->close());
  ASSERT_EQ(window->complaints.size(), 1);
  EXPECT_TRUE(window->complaints[0].startsWith("The settings could not be kept:"));
  EXPECT_EQ(folder.content("kept"), "a file");
}

TEST_F(Settings, AreNeitherReadNorWrittenWhereNoneAreWanted) {
  run()->close();
  const QByteArray before = folder.content(plot_file("plot2d"));
  ASSERT_FALSE(before.isEmpty());
  break_file("plot3d", "broken");
  const auto window = run({"--no-settings"});
  EXPECT_TRUE(window->complaints.isEmpty());
  window->map().setResolution(9);
  window->close();
  EXPECT_EQ(folder.content(plot_file("plot2d")), before);
}

TEST_F(Settings, AreKeptWhenTheProgramQuits) {
  const auto window = run();
  window->map().setResolution(9);
  QTimer::singleShot(0, [] { QApplication::quit(); });
  QApplication::exec();
  EXPECT_EQ(run()->map().Resolution(), 9);
}

TEST(CommandLine, RefusesADiameterThatIsNone) {
  EXPECT_THROW(options_in({"viewer", "--diameter", "0"}), InvalidArgument);
  EXPECT_THROW(options_in({"viewer", "--test-diameter", "ten"}), InvalidArgument);
  EXPECT_EQ(options_in({"viewer", "--diameter", "1000", "a.csv"}).wafer_diameter, 1000);
  EXPECT_FALSE(options_in({"viewer"}).settings.isEmpty());
}

}  // namespace
}  // namespace mirolen
