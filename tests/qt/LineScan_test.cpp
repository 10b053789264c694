#include "mirolen/qt/LineScan.h"

#include <gtest/gtest.h>

#include <QLineEdit>
#include <QSignalSpy>
#include <QTest>
#include <QToolButton>

#include "mirolen/qt/peers.h"
#include "qt/qt_support.h"

namespace mirolen {
namespace {

using namespace qt_test;
using qt::view_of;

class LineScanFace : public testing::Test {
 protected:
  LineScanFace() {
    face.resize(600, 450);
    load_slope(face);
    face.show();
    QTest::qWait(0);
    face.Plot();
  }
  QLineEdit& field() { return *dynamic_cast<QLineEdit*>(view_of(face.control().AngleValue)); }
  QWidget& spinner() { return *view_of(face.control().UpDown1); }
  QImage curve() { return view_of(face.control().PLOTA)->grab().toImage(); }
  void type(const QString& text) {
    field().selectAll();
    QTest::keyClicks(&field(), text);
  }

  qt::LineScan face;
};

TEST_F(LineScanFace, DrawsTheAngleThatIsTyped) {
  const QImage before = curve();
  type("90");
  EXPECT_EQ(face.angle(), 90);
  EXPECT_EQ(face.control().UpDown1.Value(), 90);
  EXPECT_NE(curve(), before);
}

TEST_F(LineScanFace, TurnsTextThatIsNoAngleIntoZero) {
  type("12");
  QTest::keyClick(&field(), Qt::Key_X);
  EXPECT_EQ(field().text(), "0");
  EXPECT_EQ(face.angle(), 0);
  type("361");
  EXPECT_EQ(field().text(), "0");
}

TEST_F(LineScanFace, AnEmptiedFieldStaysEmptyAndMeansZero) {
  type("45");
  field().selectAll();
  QTest::keyClick(&field(), Qt::Key_Delete);
  EXPECT_EQ(field().text(), "");
  EXPECT_EQ(face.angle(), 0);
}

TEST_F(LineScanFace, UpAndDownKeysStepRoundTheCircle) {
  type("358");
  QTest::keyClick(&field(), Qt::Key_Up);
  EXPECT_EQ(face.angle(), 359);
  QTest::keyClick(&field(), Qt::Key_Up);
  EXPECT_EQ(field().text(), "0");
  EXPECT_EQ(face.angle(), 0);
  QTest::keyClick(&field(), Qt::Key_Down);
  EXPECT_EQ(field().text(), "359");
  EXPECT_EQ(face.angle(), 359);
}

TEST_F(LineScanFace, TheSpinnerStepsByItsArrowsAndByKeys) {
  const auto arrows = spinner().findChildren<QToolButton*>();
  ASSERT_EQ(arrows.size(), 2);
  type("10");
  QTest::mouseClick(arrows[0], Qt::LeftButton);
  EXPECT_EQ(field().text(), "11");
  EXPECT_EQ(face.angle(), 11);
  QTest::mouseClick(arrows[1], Qt::LeftButton);
  QTest::keyClick(&spinner(), Qt::Key_Down);
  EXPECT_EQ(face.angle(), 9);
  QTest::keyClick(&spinner(), Qt::Key_Up);
  EXPECT_EQ(field().text(), "10");
}

TEST_F(LineScanFace, IsWorkedByTheKeyboardAlone) {
  face.activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&face));
  field().setFocus();
  QTest::keyClick(&field(), Qt::Key_Tab);
  EXPECT_EQ(QApplication::focusWidget(), &spinner());
  QTest::keyClick(&spinner(), Qt::Key_Tab);
  EXPECT_EQ(QApplication::focusWidget(), view_of(face.control().btnoptions));
}

TEST_F(LineScanFace, TellsAnAngleThatIsSetAndRefusesOneBeyondTheCircle) {
  QSignalSpy changed(&face, &qt::LineScan::angleChanged);
  QStringList messages;
  face.toolkit().on_message = [&](const QString& text, const QString&, MessageIcon) { messages << text; };
  face.setAngle(360);
  EXPECT_EQ(changed.size(), 1);
  EXPECT_EQ(face.angle(), 0);
  face.setAngle(361);
  EXPECT_EQ(changed.size(), 1);
  EXPECT_EQ(messages, QStringList{"Angle value must be between 0 and 359"});
}

TEST_F(LineScanFace, TellsEachAngleThatTheUserGivesOnce) {
  QSignalSpy changed(&face, &qt::LineScan::angleChanged);
  type("45");
  QTest::qWait(0);  // told when Qt has done with the key
  EXPECT_EQ(changed.size(), 2) << "4, then 45";
  QTest::keyClick(&field(), Qt::Key_Up);
  EXPECT_EQ(changed.size(), 3);
  QTest::mouseClick(spinner().findChildren<QToolButton*>()[1], Qt::LeftButton);
  EXPECT_EQ(changed.size(), 4);
  QTest::keyClick(&field(), Qt::Key_X);
  QTest::qWait(0);
  EXPECT_EQ(changed.size(), 5) << "no number is 0";
  QTest::keyClick(&field(), Qt::Key_Left);
  EXPECT_EQ(changed.size(), 5);
}

TEST_F(LineScanFace, MarksSitesWithTheirPlacesAsToolTips) {
  face.setShowSites(true);
  face.Plot();
  const QWidget* const mark =
      view_of(face.control().PLOTA)->childAt(view_of(face.control().PLOTA)->rect().center());
  ASSERT_NE(mark, nullptr);
  EXPECT_EQ(mark->toolTip(), "X = 0  Y= 0 FW = 100");
}

TEST_F(LineScanFace, GivesAndTakesTheLine) {
  int angle = 0;
  double x1 = 0, y1 = 0, x2 = 0, y2 = 0;
  face.SetLineOrAngle(qt::LineScan::vbAngle, 30, 1, 2, 3, 4, 5, 6);
  EXPECT_EQ(face.GetLineOrAngle(angle, x1, y1, x2, y2), 0);
  EXPECT_EQ(angle, 30);
  EXPECT_EQ((std::vector{x1, y1}), (std::vector<double>{1, 2}));
  EXPECT_TRUE(view_of(face.control().FNLabel(0))->isVisible());

  face.SetLineOrAngle(qt::LineScan::vbline, 0, 0, 0, 3, 4, 5, 6);
  face.GetLineOrAngle(angle, x1, y1, x2, y2);
  EXPECT_EQ(angle, 30);
  EXPECT_EQ((std::vector{x1, y1, x2, y2}), (std::vector<double>{3, 4, 5, 6}));
  EXPECT_FALSE(view_of(face.control().FNLabel(0))->isVisible());
}

TEST_F(LineScanFace, ItsMiniatureOutlivesANewPalette) {
  const auto miniature = [&] { return view_of(face.control().FNPic)->grab().toImage(); };
  const std::set<Color> before = colors_in(miniature());
  EXPECT_EQ(before.count(white), 1u);
  QPalette dark = face.palette();
  dark.setColor(QPalette::Window, QColor(0x10, 0x20, 0x30));
  face.setPalette(dark);
  const std::set<Color> after = colors_in(miniature());
  EXPECT_EQ(after.count(white), 1u);
  EXPECT_EQ(after.count(0x302010), 1u);
}

}  // namespace
}  // namespace mirolen
