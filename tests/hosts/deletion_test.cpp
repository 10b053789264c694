#include <gtest/gtest.h>

#include <QApplication>
#include <QLineEdit>
#include <QMetaMethod>
#include <QMetaProperty>
#include <QTest>
#include <QToolButton>
#include <functional>
#include <map>
#include <set>

#include "Deleter.h"
#include "host_windows.h"
#include "mirolen/automation/PropertyBag.h"
#include "mirolen/qt/QtToolkit.h"
#include "mirolen/qt/peers.h"
#include "mirolen/widgets/Form.h"
#include "qt/nine_faces.h"

namespace mirolen {
namespace {

using namespace host_test;
using qt::PlotWidget;
using qt_test::make_face;
using qt_test::nine_faces;

/// What a host or its user does to a face.
struct Deed {
  std::string name;
  std::function<void(PlotWidget&)> act;
};

void press_ok(Form& form) {
  if (form.DefaultButton && form.DefaultButton->OnClick) form.DefaultButton->OnClick();
}

/// Gives every property another value than it has, by its name.
void change(PlotWidget& face, const QMetaProperty& property) {
  QVariant value = property.read(&face);
  switch (value.typeId()) {
    case QMetaType::Bool:
      value = !value.toBool();
      break;
    case QMetaType::Int:
    case QMetaType::Double:
      value = value.toDouble() + 1;
      break;
    case QMetaType::QString:
      value = value.toString() + "x";
      break;
    case QMetaType::QColor:
      value = QColor(1, 2, 3);
      break;
    case QMetaType::QPixmap:
      value = QPixmap(16, 16);
      break;
    default:
      value = property.isEnumType() ? QVariant(value.toInt() == 1 ? 2 : 1) : value;
  }
  property.write(&face, value);
}

void send_mouse(QWidget& view, QEvent::Type type, QPointF place, Qt::MouseButton button) {
  QMouseEvent event(type, place, view.mapToGlobal(place), button, button, {});
  QApplication::sendEvent(&view, &event);
}

void click_everywhere(PlotWidget& face, QEvent::Type first) {
  const QPointer<PlotWidget> alive(&face);
  std::vector<QPointer<QWidget>> views{&face};
  for (QWidget* const view : face.findChildren<QWidget*>()) views.emplace_back(view);
  for (const auto& view : views) {
    if (!alive || !view || qobject_cast<QAbstractButton*>(view.data())) continue;
    send_mouse(*view, first, {3, 3}, Qt::LeftButton);
    if (view) send_mouse(*view, QEvent::MouseMove, {60, 50}, Qt::LeftButton);
    if (view) send_mouse(*view, QEvent::MouseButtonRelease, {3, 3}, Qt::LeftButton);
  }
}

/// On screen, as a user types.
void type_an_angle(PlotWidget& face) {
  const QPointer<QLineEdit> field(face.findChild<QLineEdit*>());
  for (const Qt::Key key : {Qt::Key_4, Qt::Key_5, Qt::Key_Up})
    if (field) QTest::keyClick(field.data(), key);
  if (!field) return;
  const auto arrows = face.findChildren<QToolButton*>();
  if (!arrows.empty()) QTest::mouseClick(arrows.front(), Qt::LeftButton);
}

void make_cells_too_coarse(PlotWidget& face) {
  const QPointer<PlotWidget> alive(&face);
  face.setProperty("Resolution", 40);
  if (alive) face.setTestDiameter(80);
}

std::vector<Deed> deeds(const QMetaObject& type) {
  std::vector<Deed> all{
      {"Plot", [](PlotWidget& f) { f.Plot(); }},
      {"too coarse a Plot",
       [](PlotWidget& f) {
         const QPointer<PlotWidget> alive(&f);
         make_cells_too_coarse(f);
         if (alive) f.Plot();
       }},
      {"too coarse a size",
       [](PlotWidget& f) {
         const QPointer<PlotWidget> alive(&f);
         make_cells_too_coarse(f);
         if (alive) f.resize(f.width() + 40, f.height() + 40);
       }},
      {"InitProperties", [](PlotWidget& f) { f.InitProperties(); }},
      {"reading a bag",
       [](PlotWidget& f) { automation::ReadProperties(f.by_name(), automation::MemoryPropertyBag()); }},
      {"options",
       [](PlotWidget& f) {
         f.toolkit().on_form = press_ok;
         f.ShowPlotOption();
       }},
      {"properties",
       [](PlotWidget& f) {
         f.toolkit().on_form = press_ok;
         f.ShowProperties();
       }},
      {"SetPlotLimit", [](PlotWidget& f) { f.SetPlotLimit(90, 110); }},
      {"clicks", [](PlotWidget& f) { click_everywhere(f, QEvent::MouseButtonPress); }},
      {"double clicks", [](PlotWidget& f) { click_everywhere(f, QEvent::MouseButtonDblClick); }},
      {"typing", type_an_angle},
      {"another palette",
       [](PlotWidget& f) {
         QPalette colors;
         colors.setColor(QPalette::Button, Qt::darkBlue);
         f.setPalette(colors);
       }},
  };
  for (int i = QWidget::staticMetaObject.propertyCount(); i < type.propertyCount(); ++i)
    if (const QMetaProperty property = type.property(i); property.isWritable())
      all.push_back({property.name(), [property](PlotWidget& f) { change(f, property); }});
  return all;
}

class Deletion : public testing::TestWithParam<const char*> {
 protected:
  static QPointer<PlotWidget> shown_face() {
    PlotWidget* const face = make_face(GetParam()).release();
    face->toolkit().on_message = [](const QString&, const QString&, MessageIcon) {};
    face->toolkit().on_form = [](Form&) {};
    face->resize(600, 450);
    load_slope(*face);
    face->Plot();
    face->show();
    EXPECT_TRUE(QTest::qWaitForWindowExposed(face));
    face->setPrinterObj(nullptr);
    return face;
  }
};

/// Each signal of a face, raised by each deed that raises it, deletes the face in its slot.
TEST_P(Deletion, InASlotOfAnySignalIsSafe) {
  std::set<std::string> never;
  const QPointer<PlotWidget> model = shown_face();
  const QMetaObject& type = *model->metaObject();
  delete model.data();
  const auto deleting =
      Deleter::staticMetaObject.method(Deleter::staticMetaObject.indexOfSlot("delete_face()"));
  for (int i = QWidget::staticMetaObject.methodCount(); i < type.methodCount(); ++i) {
    const QMetaMethod signal = type.method(i);
    if (signal.methodType() != QMetaMethod::Signal) continue;
    bool raised = false;
    QPointer<PlotWidget> face;
    for (const Deed& deed : deeds(type)) {
      if (!face) face = shown_face();
      Deleter host(face);
      ASSERT_TRUE(QObject::connect(face, signal, &host, deleting));
      deed.act(*face);
      QTest::qWait(0);
      raised = raised || !face;
      QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
    delete face.data();
    if (!raised) never.insert(signal.name().toStdString());
  }
  EXPECT_EQ(never, std::set<std::string>()) << "signals that no deed raises";
}

INSTANTIATE_TEST_SUITE_P(Nine, Deletion, testing::ValuesIn(nine_faces), name_of_face);

/// Windows of every kind lose one control after the other in its own slots, and go on.
class DeletionIn : public testing::TestWithParam<HostKind> {};

TEST_P(DeletionIn, ItsWindowLeavesTheOtherControls) {
  HostWindow host = GetParam().make();
  host.window->resize(1300, 1000);
  host.window->show();
  QTest::qWait(1);
  std::vector<QPointer<PlotWidget>> left(host.faces.begin(), host.faces.end());
  const std::vector<std::pair<const char*, std::function<void(PlotWidget&)>>> ways{
      {SIGNAL(BackColorChanged()), [](PlotWidget& f) { f.setBackColor(Qt::yellow); }},
      {SIGNAL(HideLegendChanged()), [](PlotWidget& f) { f.setHideLegend(true); }},
      {SIGNAL(MouseDown(int, int, float, float)),
       [](PlotWidget& f) { click_everywhere(f, QEvent::MouseButtonPress); }},
      {SIGNAL(MouseUp(int, int, float, float)),
       [](PlotWidget& f) { click_everywhere(f, QEvent::MouseButtonPress); }}};
  for (std::size_t i = 0; i < left.size(); ++i) {
    const auto& [signal, raise] = ways[i % ways.size()];
    load_slope(*left[i]);
    left[i]->Plot();
    Deleter deleter(left[i]);
    ASSERT_TRUE(QObject::connect(left[i], signal, &deleter, SLOT(delete_face())));
    raise(*left[i]);
    EXPECT_FALSE(left[i]) << signal;
    host.window->resize(1300 - 20 * static_cast<int>(i), 1000);
    QTest::qWait(1);
    for (std::size_t other = i + 1; other < left.size(); ++other) {
      ASSERT_TRUE(left[other]);
      load_slope(*left[other]);
      EXPECT_EQ(left[other]->Plot(), 0);
    }
  }
}

INSTANTIATE_TEST_SUITE_P(Hosts, DeletionIn, testing::ValuesIn(host_kinds()), name_of_host);

}  // namespace
}  // namespace mirolen
