#include <gtest/gtest.h>

#include <QApplication>
#include <QContextMenuEvent>
#include <QMenu>
#include <QTest>
#include <QTimer>

#include "mirolen/core/version.h"
#include "mirolen/dialogs/frmAbout.h"
#include "qt/nine_faces.h"
#include "support/about_names.h"

namespace mirolen {
namespace {

using qt_test::make_face;

/// What the user sees of the box that something opens, before Return closes it.
QImage box_of(const std::function<void()>& open) {
  QImage seen;
  QTimer user;
  QObject::connect(&user, &QTimer::timeout, [&] {
    QWidget* const box = QApplication::activeModalWidget();
    if (!box) return;
    user.stop();
    EXPECT_EQ(box->windowTitle(), "Sonvera.OCX ActiveX Control");
    seen = box->grab().toImage().scaled(box->size());
    QTest::keyClick(box, Qt::Key_Return);
  });
  user.start(0);
  open();
  EXPECT_FALSE(user.isActive()) << "no box";
  return seen;
}

/// The box of a type, whose texts are known.
QImage expected_box(qt::PlotWidget& face, std::int16_t type, const std::string& title) {
  frmAbout form(face.toolkit());
  form.SetTitle(type);
  EXPECT_EQ(form.lblTitle.Caption.get(), title);
  const Version running = version();
  EXPECT_EQ(form.lblVersion.Caption.get(),
            "Version " + std::to_string(running.major) + "." + std::to_string(running.minor));
  return box_of([&] { form.Show(); });
}

/// Opens the box from the menu of a control in design use.
void open_from_menu(qt::PlotWidget& face) {
  face.setDesignMode(true);
  QContextMenuEvent key(QContextMenuEvent::Keyboard, {5, 5}, face.mapToGlobal(QPoint(5, 5)));
  QApplication::sendEvent(&face, &key);
  auto* const menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
  ASSERT_NE(menu, nullptr);
  menu->actions().last()->trigger();
  menu->close();
  QTest::qWait(0);
}

TEST(AboutOnTheScreen, NamesEachControlWithItsIcon) {
  std::vector<QImage> icons;
  for (const auto& [control, title] : about_names) {
    SCOPED_TRACE(control);
    const auto face = make_face(control);
    face->show();
    const QImage seen = box_of([&] { face->About(); });
    EXPECT_EQ(seen, expected_box(*face, static_cast<std::int16_t>(icons.size() + 1), title));
    const QImage icon = seen.copy(16, 16, 32, 32);
    EXPECT_EQ(icon.pixelColor(0, 0), seen.pixelColor(1, 1)) << "no box round the icon";
    for (const QImage& other : icons) EXPECT_NE(icon, other);
    icons.push_back(icon);
  }
}

TEST(AboutOnTheScreen, IsOpenedFromTheMenuInDesignUse) {
  for (const auto& [control, title] : about_names) {
    SCOPED_TRACE(control);
    const auto face = make_face(control);
    face->show();
    const QImage seen = box_of([&] { face->About(); });
    EXPECT_EQ(box_of([&] { open_from_menu(*face); }), seen);
  }
}

}  // namespace
}  // namespace mirolen
