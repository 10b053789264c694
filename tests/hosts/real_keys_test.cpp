#include <QApplication>
#include <QGuiApplication>
#include <QProcess>

#include "WaferList.h"

namespace mirolen {
namespace {

using namespace host_test;

/// Lets the X server itself press keys, as a keyboard does.
void press_on_keyboard(const QStringList& arguments) {
  QProcess keyboard;
  keyboard.start("xdotool", arguments);
  ASSERT_TRUE(QTest::qWaitFor([&] { return keyboard.state() == QProcess::NotRunning; }, 60000));
  ASSERT_EQ(keyboard.exitCode(), 0) << keyboard.readAllStandardError().toStdString();
}

TEST_F(WaferList, ShowsTheCurrentWaferForKeysOfAKeyboard) {
  ASSERT_EQ(QGuiApplication::platformName(), "xcb") << "this test needs an X server";
  constexpr int presses = 100;
  press_on_keyboard({"windowfocus", "--sync", QString::number(window.winId())});
  press_on_keyboard({"key", "--delay", "3", "--repeat", QString::number(presses), "Down"});
  EXPECT_TRUE(QTest::qWaitFor([&] { return list.currentRow() == presses; }, 30000));
  expect_shown(presses);
}

}  // namespace
}  // namespace mirolen
