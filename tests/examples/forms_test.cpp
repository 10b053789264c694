#include <gtest/gtest.h>

#include <QApplication>
#include <QContextMenuEvent>
#include <QMenu>
#include <QMenuBar>
#include <QTabWidget>
#include <QTest>
#include <QTimer>

#include "examples/quiet_viewer.h"
#include "mirolen/dialogs/PropertyDialog.h"
#include "mirolen/dialogs/WaferInfoProp.h"
#include "mirolen/dialogs/frmPlotOpt2d.h"
#include "mirolen/dialogs/plan_pages.h"
#include "qt/qt_support.h"

namespace mirolen {
namespace {

using examples_test::QuietViewer;

class ViewerForms : public testing::Test {
 protected:
  ViewerForms() {
    window.show();
    EXPECT_TRUE(window.open_csv(MIROLEN_DATA "/oxide_300mm/post_w01.csv"));
    for (int page = 0; page < 9; ++page) on_form(page, [this](Form& form) { titles << title_of(form); });
  }
  void on_form(int page, const std::function<void(Form&)>& user) {
    window.plot(page).toolkit().on_form = user;
  }
  /// Edits the page of the wafer and presses OK.
  void set_wafer(int page, const std::function<void(WaferInfoProp&)>& edit) {
    on_form(page, [edit](Form& form) {
      auto& dialog = dynamic_cast<PropertyDialog&>(form);
      edit(dynamic_cast<WaferInfoProp&>(dialog.page(0)));
      dialog.OKbtn.OnClick();
    });
    window.action("Properties...").trigger();
  }
  static QString title_of(Form& form) { return QString::fromStdString(form.Caption.get()); }
  double sites_of(int page) {
    std::vector<double> x, y, z;
    return window.plot(page).GetWaferData(x, y, z);
  }
  QImage seen(int page) { return window.plot(page).grab().toImage(); }

  QuietViewer window;
  QStringList titles;
};

TEST_F(ViewerForms, OpensTheFormsOfThePlotThatIsSeen) {
  const int surface = 5;
  window.tabs().setCurrentIndex(surface);
  for (int page = 0; page < 9; ++page)
    if (page != surface) on_form(page, [](Form&) { FAIL() << "another plot"; });
  for (const char* entry : {"Plot options...", "Properties...", "About this plot..."})
    window.action(entry).trigger();
  EXPECT_EQ(titles, (QStringList{"Define Plot Options", "Property Pages", "Sonvera.OCX ActiveX Control"}));
}

TEST_F(ViewerForms, AreReachedByTheKeyboard) {
  window.activateWindow();  // as a window manager does
  ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
  QTest::keyClick(&window, Qt::Key_F4);
  QTest::keyClick(&window, Qt::Key_Return, Qt::AltModifier);
  EXPECT_EQ(titles, (QStringList{"Define Plot Options", "Property Pages"}));

  std::set<QChar> mnemonics;
  for (const QAction* menu : window.menuBar()->actions()) {
    const auto mark = menu->text().indexOf('&');
    ASSERT_GE(mark, 0) << menu->text().toStdString();
    EXPECT_TRUE(mnemonics.insert(menu->text()[mark + 1].toUpper()).second) << menu->text().toStdString();
    for (const QAction* entry : menu->menu()->actions())
      EXPECT_TRUE(entry->isSeparator() || entry->text().contains('&')) << entry->text().toStdString();
  }
}

TEST_F(ViewerForms, OfferPlotOptionsWhereThereAreSome) {
  for (int page = 0; page < 9; ++page) {
    window.tabs().setCurrentIndex(page);
    const bool values = window.tabs().tabText(page) == "Values";
    EXPECT_EQ(window.action("Plot options...").isEnabled(), !values) << page;
    window.action("Plot options...").trigger();
  }
  EXPECT_EQ(titles.size(), 8);
}

TEST_F(ViewerForms, ShowARealFormOverTheWindow) {
  on_form(0, nullptr);
  QString title;
  QTimer::singleShot(0, &window, [&] {
    QWidget* const form = QApplication::activeModalWidget();
    ASSERT_NE(form, nullptr);
    title = form->windowTitle();
    EXPECT_EQ(form->parentWidget()->window(), &window);
    QTest::keyClick(form, Qt::Key_Escape);
  });
  window.action("Plot options...").trigger();
  EXPECT_EQ(title, "Define Plot Options");
  EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
}

TEST_F(ViewerForms, PlotOptionsRedraw) {
  const auto before = window.rendering();
  on_form(0, [](Form& form) {
    auto& options = dynamic_cast<frmPlotOpt2d&>(form);
    options.tresx.Text("7");
    options.OKbtn.OnClick();
  });
  window.action("Plot options...").trigger();
  EXPECT_EQ(window.map().Resolution(), 7);
  EXPECT_NE(window.rendering(), before);
}

TEST_F(ViewerForms, PropertiesRedrawEachPlot) {
  for (int page = 0; page < 9; ++page) {
    window.tabs().setCurrentIndex(page);
    const QImage before = seen(page);
    set_wafer(page, [](WaferInfoProp& wafer) { wafer.showLeg.Value(true); });
    EXPECT_TRUE(window.plot(page).HideLegend()) << page;
    EXPECT_NE(seen(page), before) << page;
    EXPECT_EQ(sites_of(page), 49) << page;
  }
  EXPECT_TRUE(window.complaints.isEmpty());
}

TEST_F(ViewerForms, PropertiesThatLeaveTheDataAloneRedrawToo) {
  const auto before = window.rendering();
  on_form(0, [](Form& form) {
    auto& dialog = dynamic_cast<PropertyDialog&>(form);
    dynamic_cast<Plot2DProp&>(dialog.page(1)).txtResolution.Text("8");
    dialog.OKbtn.OnClick();
  });
  window.action("Properties...").trigger();
  EXPECT_EQ(window.map().Resolution(), 8);
  EXPECT_NE(window.rendering(), before);
}

TEST_F(ViewerForms, LoadTheWaferAgainAfterItsDiameter) {
  for (int page = 0; page < 9; ++page) {
    window.tabs().setCurrentIndex(page);
    set_wafer(page, [](WaferInfoProp& wafer) { wafer.txtWaferDiameter.Text("310"); });
    EXPECT_EQ(window.plot(page).WaferDiameter(), 310) << page;
    EXPECT_EQ(sites_of(page), 49) << page;
    EXPECT_GT(qt_test::colors_in(seen(page)).size(), 8u) << page;
  }
}

TEST_F(ViewerForms, KeepWhatWasFittedToTheWaferWhenItIsLoadedAgain) {
  const int contour = 2;
  window.tabs().setCurrentIndex(contour);
  window.plot(contour).setProperty("Interval", 0.3);
  set_wafer(contour, [](WaferInfoProp& wafer) { wafer.txtWaferDiameter.Text("310"); });
  EXPECT_EQ(window.plot(contour).property("Interval"), 0.3);
  EXPECT_TRUE(window.open_csv(MIROLEN_DATA "/oxide_300mm/pre_w01.csv"));
  EXPECT_NE(window.plot(contour).property("Interval"), 0.3) << "another wafer";
}

TEST_F(ViewerForms, TellOnceOfADiameterThatIsTooSmall) {
  set_wafer(0, [](WaferInfoProp& wafer) {
    wafer.txtTestDiameter.Text("90");
    wafer.txtWaferDiameter.Text("100");
  });
  QTest::qWait(0);
  window.tabs().setCurrentIndex(1);
  EXPECT_TRUE(window.shows("49")) << "the others have their data";
  window.tabs().setCurrentIndex(0);
  ASSERT_EQ(window.complaints.size(), 1);
  EXPECT_TRUE(window.complaints[0].startsWith("The plot refuses these sites"));
  EXPECT_FALSE(window.shows("49"));
  EXPECT_TRUE(window.shows("-"));

  set_wafer(0, [](WaferInfoProp& wafer) { wafer.txtWaferDiameter.Text("300"); });
  EXPECT_TRUE(window.shows("49"));
  EXPECT_EQ(window.complaints.size(), 1);
}

TEST_F(ViewerForms, DesignUseHasTheMenuOnEachPlot) {
  window.action("Design use").trigger();
  for (int page = 0; page < 9; ++page) EXPECT_TRUE(window.plot(page).DesignMode()) << page;
  on_form(0, [](Form& form) {
    auto& dialog = dynamic_cast<PropertyDialog&>(form);
    dynamic_cast<WaferInfoProp&>(dialog.page(0)).txtWaferDiameter.Text("310");
    dialog.OKbtn.OnClick();
  });
  QContextMenuEvent click(QContextMenuEvent::Mouse, {5, 5}, window.map().mapToGlobal(QPoint(5, 5)));
  QApplication::sendEvent(&window.map(), &click);
  auto* const menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
  ASSERT_NE(menu, nullptr);
  menu->actions().at(0)->trigger();
  menu->close();
  QTest::qWait(0);
  EXPECT_EQ(window.map().WaferDiameter(), 310);
  EXPECT_TRUE(QTest::qWaitFor([&] { return sites_of(0) == 49; })) << "loaded again without the window's menu";
  window.action("Design use").trigger();
  for (int page = 0; page < 9; ++page) EXPECT_FALSE(window.plot(page).DesignMode()) << page;
}

TEST_F(ViewerForms, TheViewMenuFollowsThePlotThatIsSeen) {
  set_wafer(0, [](WaferInfoProp& wafer) {
    wafer.showLeg.Value(true);
    wafer.nfbox(2).Value(true);
  });
  EXPECT_TRUE(window.action("Hide legend").isChecked());
  EXPECT_TRUE(window.action("Flat").isChecked());
  window.tabs().setCurrentIndex(1);
  EXPECT_FALSE(window.action("Hide legend").isChecked());
  EXPECT_TRUE(window.action("Notch").isChecked());
}

}  // namespace
}  // namespace mirolen
