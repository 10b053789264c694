#include <gtest/gtest.h>

#include "mirolen/qt/LineScan.h"
#include "qt/form_user.h"
#include "qt/qt_support.h"

namespace mirolen {
namespace {

using namespace qt_test;

/// The points of a line scan's option form by its fields.
enum Coordinate { start_x = 1, start_y, end_x, end_y };

class LineFormOnTheScreen : public testing::Test {
 protected:
  LineFormOnTheScreen() {
    face.resize(600, 450);
    face.show();
    QTest::qWait(0);
    load_slope(face);
    face.SetLineOrAngle(qt::LineScan::vbline, 0, 0, 0, -30, 0, 30, 0);
    face.Plot();
  }
  void answer(const std::function<void(QWidget&)>& user) { answer_options(face, user); }
  void expect_line(double x1, double y1, double x2, double y2) {
    int angle = 0;
    double x3 = 0, y3 = 0, x4 = 0, y4 = 0;
    face.GetLineOrAngle(angle, x3, y3, x4, y4);
    EXPECT_EQ((std::array{x3, y3, x4, y4}), (std::array{x1, y1, x2, y2}));
  }

  qt::LineScan face;
  MessageReader reader;
};

TEST_F(LineFormOnTheScreen, TakesPoints) {
  answer([&](QWidget& dialog) {
    enter(field(dialog, start_x), "-20.5");
    press(Qt::Key_Tab);
    EXPECT_TRUE(gets_focus(field(dialog, start_y)));
    enter(field(dialog, end_y), "12");
    press(Qt::Key_Return);
    EXPECT_FALSE(dialog.isVisible());
  });
  expect_line(-20.5, 0, 30, 12);
  EXPECT_EQ(reader.texts, QStringList());
}

TEST_F(LineFormOnTheScreen, TakesPointsWithTheCommaOfTheLocaleAlone) {
  const CommaInForce comma;
  answer([&](QWidget& dialog) {
    enter(field(dialog, start_x), "-20,5");
    enter(field(dialog, end_y), "1.2");
    press(Qt::Key_Return);
    EXPECT_EQ(reader.texts, QStringList{"Enter a numeric experssion"});
    enter(field(dialog, end_y), "1,2");
    press(Qt::Key_Return);
  });
  expect_line(-20.5, 0, 30, 1.2);
}

TEST_F(LineFormOnTheScreen, GoesFromPointsToAnAngle) {
  answer([&](QWidget& dialog) {
    EXPECT_FALSE(field(dialog, 0).isEnabled());
    click(dialog, "By angle");
    EXPECT_FALSE(field(dialog, start_x).isEnabled());
    enter(field(dialog, 0), "70");
    press(Qt::Key_Return);
  });
  EXPECT_EQ(face.angle(), 70);
  EXPECT_EQ(face.PlotType(), qt::LineScan::vbAngle);
}

TEST_F(LineFormOnTheScreen, KeepsTheFocusInAFieldWithoutANumber) {
  answer([&](QWidget& dialog) {
    for (const Coordinate at : {start_x, start_y, end_x, end_y})
      for (const Qt::Key key : {Qt::Key_Tab, Qt::Key_Return}) {
        const QString before = field(dialog, at).text();
        enter(field(dialog, at), "x");
        press(key);
        EXPECT_EQ(reader.texts, QStringList{"Enter a numeric experssion"}) << at;
        EXPECT_EQ(reader.title, "Input Error");
        EXPECT_TRUE(gets_focus(field(dialog, at))) << at;
        EXPECT_EQ(field(dialog, at).text(), before) << at;
        reader.texts.clear();
      }
  });
  expect_line(-30, 0, 30, 0);
}

TEST_F(LineFormOnTheScreen, KeepsTheFocusInAPointBeyondTheTestDiameter) {
  answer([&](QWidget& dialog) {
    for (const Qt::Key key : {Qt::Key_Tab, Qt::Key_Return}) {
      enter(field(dialog, end_x), "20");
      enter(field(dialog, end_y), "500");
      press(key);
      EXPECT_EQ(reader.texts, QStringList{"Testdiameter exeded"});
      EXPECT_TRUE(gets_focus(field(dialog, end_y)));
      EXPECT_EQ(field(dialog, end_x).text(), "0");
      EXPECT_EQ(field(dialog, end_y).text(), "500");
      reader.texts.clear();
    }
  });
  expect_line(-30, 0, 30, 0);
}

TEST_F(LineFormOnTheScreen, RefusesIdenticalPoints) {
  answer([&](QWidget& dialog) {
    enter(field(dialog, end_x), "-30");
    press(Qt::Key_Return);
    EXPECT_EQ(reader.texts, QStringList{"Start point and end point are identical. This is not allowed."});
    EXPECT_TRUE(dialog.isVisible());
  });
  expect_line(-30, 0, 30, 0);
}

}  // namespace
}  // namespace mirolen
