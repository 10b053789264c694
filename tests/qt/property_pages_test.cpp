#include <gtest/gtest.h>

#include <QCheckBox>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <set>

#include "dialogs/form_layout.h"
#include "mirolen/dialogs/PropertyDialog.h"
#include "mirolen/dialogs/WaferInfoProp.h"
#include "mirolen/dialogs/plan_pages.h"
#include "mirolen/dialogs/view_pages.h"
#include "qt/form_user.h"
#include "qt/nine_faces.h"
#include "qt/qt_support.h"

// The property pages in the hands of a user with a keyboard and a mouse.
namespace mirolen {
namespace {

using namespace qt_test;

template <class Page>
Page& on(const PropertyDialog& dialog) {
  for (int i = 0; i < dialog.pages(); ++i)
    if (auto* page = dynamic_cast<Page*>(&dialog.page(i))) return *page;
  throw std::logic_error("no such page");
}

template <class View = QWidget>
View& seen(const Widget& widget) {
  return dynamic_cast<View&>(*qt::view_of(widget));
}

void click(const Widget& widget) {
  QWidget& view = seen(widget);
  QTest::mouseClick(&view, Qt::LeftButton, {}, {8, view.height() / 2});
}

// ---- Fields ----

struct Field {
  const char* face;
  const char* property;
  TextField& (*field)(const PropertyDialog&);
  const char* otherwise;
  const char* typed;
};

void PrintTo(const Field& field, std::ostream* out) { *out << field.face << ' ' << field.property; }

template <class Page, TextField Page::*field>
TextField& the(const PropertyDialog& dialog) {
  return on<Page>(dialog).*field;
}

const Field fields[] = {
    {"Plot2DN", "WaferDiameter", the<WaferInfoProp, &WaferInfoProp::txtWaferDiameter>, "200", "250.5"},
    {"Plot2DN", "TestDiameter", the<WaferInfoProp, &WaferInfoProp::txtTestDiameter>, "195", "150.5"},
    {"LineScan", "angle", the<LineScanAngleProp, &LineScanAngleProp::txtAngle>, "0", "27"},
    {"Plot2D", "Resolution", the<Plot2DProp, &Plot2DProp::txtResolution>, "5", "7.5"},
    {"Plot2DS", "Resolution", the<Plot2DSProp, &Plot2DSProp::txtResolution>, "5", "7.5"},
    {"Plot2DS", "SigmaRange", the<Plot2DSProp, &Plot2DSProp::txtSigmaRange>, "0.5", "1.25"},
    {"Plot2DC", "Interval", the<Plot2DCProp, &Plot2DCProp::txtInterval>, "1", "2.75"},
    {"Plot3D", "XResolution", the<ViewPage, &ViewPage::txtXResolution>, "5", "7.5"},
    {"Plot3D", "YResolution", the<ViewPage, &ViewPage::txtYResolution>, "5", "7.5"},
    {"Plot3D", "PlotScale", the<ViewPage, &ViewPage::txtPlotScale>, "40", "72"},
    {"Plot3D", "GridInclination", the<ViewPage, &ViewPage::txtGridInclination>, "35", "61"},
    {"Plot3D", "GridRotation", the<ViewPage, &ViewPage::txtGridRotation>, "40", "70"},
    {"Plot3D", "WaferRotation", the<ViewPage, &ViewPage::txtWaferRotation>, "40", "90"},
    {"Plot3DS", "XResolution", the<ViewPage, &ViewPage::txtXResolution>, "5", "7.5"},
    {"Plot3DS", "PlotScale", the<ViewPage, &ViewPage::txtPlotScale>, "40", "72"},
    {"Plot3DS", "SigmaRange", the<Plot3DSProp, &Plot3DSProp::txtSigmaRange>, "0.5", "1.25"},
    {"Histogram", "Resolution", the<HistogrammProp, &HistogrammProp::txtResolution>, "0.01", "12"}};

class PageField : public testing::TestWithParam<Field> {
 protected:
  PageField() { face->show(); }

  QLineEdit& edit(const PropertyDialog& dialog) const { return seen<QLineEdit>(GetParam().field(dialog)); }
  double value() const { return face->property(GetParam().property).toDouble(); }

  const std::unique_ptr<qt::PlotWidget> face = make_face(GetParam().face);
};
INSTANTIATE_TEST_SUITE_P(All, PageField, testing::ValuesIn(fields));

TEST_P(PageField, PutsItsOwnNumberInThePlaceOfBadText) {
  PropertyDialog dialog(face->toolkit(), {face->by_name()});
  show_to(dialog, [&] {
    for (const char* bad : {"", "x", "-", "e"}) {
      enter(edit(dialog), GetParam().typed);
      enter(edit(dialog), bad);
      EXPECT_EQ(edit(dialog).text(), GetParam().otherwise) << bad;
    }
  });
}

TEST_P(PageField, IsAppliedByItsButton) {
  PropertyDialog dialog(face->toolkit(), {face->by_name()});
  show_to(dialog, [&] {
    auto& apply = seen<QPushButton>(dialog.apply);
    EXPECT_FALSE(apply.isEnabled());
    enter(edit(dialog), GetParam().typed);
    EXPECT_TRUE(apply.isEnabled());
    click(dialog.apply);
    EXPECT_FALSE(apply.isEnabled());
    EXPECT_TRUE(dialog.Visible);
    EXPECT_EQ(edit(dialog).text(), GetParam().typed);
  });
  EXPECT_EQ(value(), QString(GetParam().typed).toDouble());
}

TEST_P(PageField, IsWrittenByOkAndReturnAlone) {
  const double before = value();
  const auto after = [&](const std::function<void(PropertyDialog&)>& close) {
    PropertyDialog dialog(face->toolkit(), {face->by_name()});
    show_to(dialog, [&] {
      enter(edit(dialog), GetParam().typed);
      close(dialog);
      EXPECT_FALSE(dialog.Visible);
    });
    return value();
  };
  const double typed = QString(GetParam().typed).toDouble();
  EXPECT_EQ(after([](PropertyDialog& dialog) { click(dialog.cancel); }), before);
  EXPECT_EQ(after([&](PropertyDialog& dialog) { QTest::keyClick(&edit(dialog), Qt::Key_Escape); }), before);
  EXPECT_EQ(after([](PropertyDialog& dialog) { click(dialog.OKbtn); }), typed);
  face->setProperty(GetParam().property, before);
  EXPECT_EQ(after([&](PropertyDialog& dialog) { QTest::keyClick(&edit(dialog), Qt::Key_Return); }), typed);
}

TEST_P(PageField, TakesTheCommaOfItsLocale) {
  const CommaInForce comma;
  const auto local = [](const char* number) { return QString(number).replace('.', ','); };
  const auto here = make_face(GetParam().face);
  here->show();
  PropertyDialog dialog(here->toolkit(), {here->by_name()});
  show_to(dialog, [&] {
    enter(edit(dialog), "7.5");
    EXPECT_NE(edit(dialog).text(), "7.5");
    enter(edit(dialog), "");
    EXPECT_EQ(edit(dialog).text(), local(GetParam().otherwise));
    enter(edit(dialog), local(GetParam().typed));
    click(dialog.OKbtn);
  });
  EXPECT_EQ(here->property(GetParam().property).toDouble(), QString(GetParam().typed).toDouble());
}

// ---- Choices ----

struct Choice {
  const char* face;
  const char* property;
  std::function<Widget&(const PropertyDialog&)> widget;
  int value;
};

void PrintTo(const Choice& choice, std::ostream* out) { *out << choice.face << ' ' << choice.property; }

const Choice choices[] = {
    {"Plot2DB", "WaferStyle", [](auto& dialog) -> Widget& { return on<WaferInfoProp>(dialog).nfbox(2); }, 2},
    {"Plot2DB", "HideLegend", [](auto& dialog) -> Widget& { return on<WaferInfoProp>(dialog).showLeg; }, 1},
    {"Plot2D", "ShowSites", [](auto& dialog) -> Widget& { return on<Plot2DProp>(dialog).chkShowSites; }, -1},
    {"Plot2DS", "ShowSites", [](auto& dialog) -> Widget& { return on<Plot2DSProp>(dialog).chkShowSites; },
     -1},
    {"Plot2DC", "IntervalInPercent",
     [](auto& dialog) -> Widget& { return on<Plot2DCProp>(dialog).chkPercent; }, 0},
    {"Plot2DC", "Resolution", [](auto& dialog) -> Widget& { return on<Plot2DCProp>(dialog).OptQuali(1); }, 1},
    {"Plot2DC", "marksites", [](auto& dialog) -> Widget& { return on<Plot2DCProp>(dialog).OptExcon(3); }, 3},
    {"Plot2DC", "PlotColored", [](auto& dialog) -> Widget& { return on<Plot2DCProp>(dialog).Optcol(2); }, 2},
    {"Plot3D", "PlotType", [](auto& dialog) -> Widget& { return on<Plot3DProp>(dialog).optPlot(3); }, 3},
    {"Histogram", "PlotType", [](auto& dialog) -> Widget& { return on<HistogrammProp>(dialog).optPlot(2); },
     2}};

class PageChoice : public testing::TestWithParam<Choice> {};
INSTANTIATE_TEST_SUITE_P(All, PageChoice, testing::ValuesIn(choices));

TEST_P(PageChoice, IsMadeByTheMouse) {
  const auto face = make_face(GetParam().face);
  face->show();
  ASSERT_NE(face->property(GetParam().property).toInt(), GetParam().value);
  PropertyDialog dialog(face->toolkit(), {face->by_name()});
  show_to(dialog, [&] {
    click(GetParam().widget(dialog));
    EXPECT_TRUE(seen<QPushButton>(dialog.apply).isEnabled());
    click(dialog.apply);
    EXPECT_FALSE(seen<QPushButton>(dialog.apply).isEnabled());
  });
  EXPECT_EQ(face->property(GetParam().property).toInt(), GetParam().value);
}

// ---- The dialog ----

class Properties : public testing::TestWithParam<const char*> {};
INSTANTIATE_TEST_SUITE_P(Nine, Properties, testing::ValuesIn(nine_faces));

TEST_P(Properties, AreAllReachedByTheTabKey) {
  const auto face = make_face(GetParam());
  face->show();
  PropertyDialog dialog(face->toolkit(), {face->by_name()});
  show_to(dialog, [&] {
    QWidget& window = seen(dialog);
    EXPECT_EQ(QApplication::focusWidget(), &seen(on<WaferInfoProp>(dialog).txtWaferDiameter));
    enter(seen<QLineEdit>(on<WaferInfoProp>(dialog).txtWaferDiameter), "250");
    std::set<const QWidget*> visited;
    while (visited.insert(QApplication::focusWidget()).second)
      QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    for (const QWidget* view : window.findChildren<QWidget*>()) {
      const auto* option = qobject_cast<const QRadioButton*>(view);
      if (qobject_cast<const QLineEdit*>(view) || qobject_cast<const QCheckBox*>(view) ||
          qobject_cast<const QPushButton*>(view) || (option && option->isChecked())) {
        EXPECT_TRUE(visited.contains(view)) << view->metaObject()->className();
      }
    }
  });
}

TEST_P(Properties, AreReachedByTheirAccessKeys) {
  const auto face = make_face(GetParam());
  face->show();
  PropertyDialog dialog(face->toolkit(), {face->by_name()});
  show_to(dialog, [&] {
    expect_reached_by_access_keys(below(dialog));
    press_access_key(dialog.apply.AccessKey);
    EXPECT_TRUE(QTest::qWaitFor([&] { return !dialog.apply.Enabled; }));
  });
}

TEST(SeveralProperties, AreWrittenToEachControl) {
  qt::Plot2D first, second;
  first.show();
  second.setResolution(8);
  second.setWaferDiameter(300);
  PropertyDialog dialog(first.toolkit(), {first.by_name(), second.by_name()});
  show_to(dialog, [&] {
    enter(seen<QLineEdit>(on<Plot2DProp>(dialog).txtResolution), "6.5");
    click(dialog.OKbtn);
  });
  EXPECT_EQ(first.Resolution(), 6.5);
  EXPECT_EQ(second.Resolution(), 6.5);
  EXPECT_EQ(second.WaferDiameter(), 300) << "a page without an edit";
}

TEST(WaferProperties, RefuseATestDiameterBeyondTheWafer) {
  qt::Plot2DN face;
  face.show();
  PropertyDialog dialog(face.toolkit(), {face.by_name()});
  QStringList told;
  show_to(dialog, [&] {
    enter(seen<QLineEdit>(on<WaferInfoProp>(dialog).txtTestDiameter), "201");
    click(on<WaferInfoProp>(dialog).nfbox(2));
    QTimer::singleShot(0, [&] {
      auto* const box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
      ASSERT_NE(box, nullptr);
      told << box->windowTitle() << box->text();
      QTest::keyClick(box, Qt::Key_Return);
    });
    click(dialog.OKbtn);
    EXPECT_TRUE(dialog.Visible);
    EXPECT_TRUE(seen<QPushButton>(dialog.apply).isEnabled());
  });
  EXPECT_EQ(told, (QStringList{"Input Error", "Wafer diamter can not be less than test diameter"}));
  EXPECT_EQ(face.WaferDiameter(), 200);
  EXPECT_EQ(face.TestDiameter(), 194);
  EXPECT_EQ(face.WaferStyle(), qt::PlotWidget::Flat);
}

}  // namespace
}  // namespace mirolen
