#include <gtest/gtest.h>

#include <QApplication>
#include <QContextMenuEvent>
#include <QMenu>
#include <QSignalSpy>
#include <QTest>

#include "mirolen/dialogs/PropertyDialog.h"
#include "mirolen/dialogs/plan_pages.h"
#include "mirolen/qt/Plot2DN.h"
#include "mirolen/qt/peers.h"
#include "qt/qt_support.h"

namespace mirolen {
namespace {

/// A face that tells what its menu opens.
template <class Face>
struct Designed : Face {
  Designed() {
    this->show();
    QTest::qWait(0);
  }
  void open_properties() override { opened << "properties"; }
  void open_plot_options() override { opened << "options"; }
  void open_about() override { opened << "about"; }

  /// The menu that comes up for a click on a widget; null for none.
  static QMenu* menu_on(QWidget& widget) {
    QContextMenuEvent click(QContextMenuEvent::Mouse, {5, 5}, widget.mapToGlobal(QPoint(5, 5)));
    QApplication::sendEvent(&widget, &click);
    return qobject_cast<QMenu*>(QApplication::activePopupWidget());
  }
  QStringList opened;
};

QStringList texts_of(const QMenu& menu) {
  QStringList texts;
  for (const QAction* action : menu.actions()) texts << action->text();
  return texts;
}

TEST(DesignMode, IsNotTheUsualUse) {
  Designed<qt::Plot2D> face;
  EXPECT_FALSE(face.property("DesignMode").toBool());
  EXPECT_EQ(face.menu_on(face), nullptr);
}

TEST(DesignMode, TellsItsChange) {
  qt::Plot2D face;
  QSignalSpy changed(&face, &qt::Plot2D::DesignModeChanged);
  face.setDesignMode(true);
  face.setDesignMode(true);
  EXPECT_TRUE(face.DesignMode());
  EXPECT_EQ(changed.size(), 1);
}

TEST(DesignMode, OffersItsEntriesAllOverTheControl) {
  Designed<qt::Plot2D> face;
  face.setDesignMode(true);
  for (QWidget* on : {static_cast<QWidget*>(&face), qt::view_of(face.control().Frplot)})
    for (const int entry : {0, 1, 2}) {
      QMenu* const menu = face.menu_on(*on);
      ASSERT_NE(menu, nullptr);
      EXPECT_EQ(texts_of(*menu), (QStringList{"Properties...", "Plot- Options...", "About..."}));
      menu->actions().at(entry)->trigger();
      menu->close();
      QTest::qWait(0);
    }
  const QStringList each{"properties", "options", "about"};
  EXPECT_EQ(face.opened, each + each);
}

TEST(DesignMode, OffersNoPlotOptionsWhereThereAreNone) {
  Designed<qt::Plot2DN> face;
  face.setDesignMode(true);
  QMenu* const menu = face.menu_on(face);
  ASSERT_NE(menu, nullptr);
  EXPECT_EQ(texts_of(*menu), (QStringList{"Properties...", "About..."}));
  menu->close();
}

TEST(DesignMode, OpensTheFormsOfTheControl) {
  qt::Plot2D face;
  QStringList titles;
  face.toolkit().on_form = [&](Form& form) { titles << QString::fromStdString(form.Caption.get()); };
  face.setDesignMode(true);
  for (const int entry : {0, 1, 2}) {
    QMenu* const menu = Designed<qt::Plot2D>::menu_on(face);
    ASSERT_NE(menu, nullptr);
    menu->actions().at(entry)->trigger();
    menu->close();
    QTest::qWait(0);
  }
  EXPECT_EQ(titles, (QStringList{"Property Pages", "Define Plot Options", "Sonvera.OCX ActiveX Control"}));
}

TEST(DesignMode, ShowsTheEffectOfAnEditedProperty) {
  qt_test::ShownPlot plot;
  const auto before = plot.rendering();
  plot.face.toolkit().on_form = [](Form& form) {
    auto& dialog = dynamic_cast<PropertyDialog&>(form);
    dynamic_cast<Plot2DProp&>(dialog.page(1)).txtResolution.Text("8");
    dialog.OKbtn.OnClick();
  };
  plot.face.setDesignMode(true);
  QMenu* const menu = Designed<qt::Plot2D>::menu_on(plot.face);
  ASSERT_NE(menu, nullptr);
  menu->actions().at(0)->trigger();
  menu->close();
  QTest::qWait(0);
  EXPECT_EQ(plot.face.Resolution(), 8);
  EXPECT_NE(plot.rendering(), before);
}

}  // namespace
}  // namespace mirolen
