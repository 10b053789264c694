#pragma once

#include <gtest/gtest.h>

#include <QApplication>
#include <QMessageBox>
#include <QTest>
#include <QTimer>
#include <functional>

#include "mirolen/qt/FormView.h"
#include "mirolen/qt/QtToolkit.h"
#include "mirolen/qt/peers.h"

namespace mirolen::qt_test {

/// One who answers the message boxes that come up, and remembers them.
class MessageReader {
 public:
  MessageReader() {
    QObject::connect(&timer_, &QTimer::timeout, [this] { read(); });
    timer_.start(1);
  }
  QStringList texts;
  QWidget* owner = nullptr;  ///< Of the last one.

 private:
  void read() {
    auto* const box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
    if (!box) return;
    texts << box->text();
    owner = box->parentWidget();
    box->accept();
    // As every window manager does.
    if (owner) owner->activateWindow();
  }
  QTimer timer_;
};

/// Shows a form to a user, who does something with it. What is left open is hidden.
inline void show_to(Form& form, const std::function<void()>& user) {
  QTimer::singleShot(0, [&form, user] {
    const QPointer<QWidget> dialog(qt::view_of(form));
    ASSERT_TRUE(dialog && QTest::qWaitForWindowActive(dialog));
    ASSERT_TRUE(QTest::qWaitFor([&] { return dialog->isAncestorOf(QApplication::focusWidget()); }));
    user();
    if (dialog) form.Hide();
  });
  form.Show();
}

}  // namespace mirolen::qt_test
