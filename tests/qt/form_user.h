#pragma once

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QApplication>
#include <QLineEdit>
#include <QMessageBox>
#include <QPointer>
#include <QTest>
#include <QTimer>
#include <cctype>
#include <functional>
#include <vector>

#include "mirolen/qt/FormView.h"
#include "mirolen/qt/PlotWidget.h"
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
  QString title;  ///< Of the last one, as its owner.
  QWidget* owner = nullptr;

 private:
  void read() {
    auto* const box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
    if (!box) return;
    texts << box->text();
    title = box->windowTitle();
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

/// Lets a user answer the form that something opens. What is left open is closed.
inline void answer_form(const std::function<void()>& open, const std::function<void(QWidget& dialog)>& user) {
  bool answered = false;
  QTimer timer;
  QObject::connect(&timer, &QTimer::timeout, [&] {
    const QPointer<QWidget> dialog(dynamic_cast<qt::FormView*>(QApplication::activeModalWidget()));
    if (answered || !dialog) return;
    answered = true;
    EXPECT_TRUE(QTest::qWaitForWindowActive(dialog));
    EXPECT_TRUE(QTest::qWaitFor([&] { return dialog->isAncestorOf(QApplication::focusWidget()); }));
    user(*dialog);
    if (dialog) dialog->close();
  });
  timer.start(1);
  open();
  EXPECT_TRUE(answered);
}

inline void answer_options(qt::PlotWidget& face, const std::function<void(QWidget& dialog)>& user) {
  answer_form([&] { face.ShowPlotOption(); }, user);
}

/// Presses a key where the focus is, or is again after a message.
inline void press(Qt::Key key, Qt::KeyboardModifiers with = {}) {
  ASSERT_TRUE(QTest::qWaitFor([] { return QApplication::focusWidget() != nullptr; }));
  QTest::keyClick(QApplication::focusWidget(), key, with);
}

inline void press_access_key(char key) {
  ASSERT_NE(key, 0);
  press(static_cast<Qt::Key>(Qt::Key_A + std::toupper(key) - 'A'), Qt::AltModifier);
}

/// The access keys of some widgets, one after the other, go to the fields, choose the options, tick the
/// boxes.
inline void expect_reached_by_access_keys(const std::vector<Widget*>& widgets) {
  const auto expect_after = [](const Keyed& pressed, const std::function<bool()>& reached) {
    press_access_key(pressed.AccessKey);
    EXPECT_TRUE(QTest::qWaitFor(reached)) << pressed.Caption.get();
  };
  for (Widget* widget : widgets) {
    const QWidget* const view = qt::view_of(*widget);
    if (const auto* label = dynamic_cast<const Label*>(widget)) {
      if (label->Caption.get().find(':') == std::string::npos) continue;
      expect_after(*label, [view] {
        const auto* at = qobject_cast<const QLineEdit*>(QApplication::focusWidget());
        return at && at->parent() == view->parent() && at->y() == view->y();
      });
    } else if (const auto* option = dynamic_cast<const OptionButton*>(widget)) {
      expect_after(*option, [option] { return option->Value(); });
    } else if (const auto* box = dynamic_cast<const CheckBox*>(widget)) {
      expect_after(*box, [box, before = box->Value()] { return box->Value() != before; });
    }
  }
}

/// A field by its place among those that the Tab key passes.
inline QLineEdit& field(QWidget& dialog, qsizetype number) {
  return *dialog.findChildren<QLineEdit*>().at(number);
}

inline bool gets_focus(const QWidget& widget) {
  return QTest::qWaitFor([&] { return widget.hasFocus(); });
}

/// Types a text in place of all that a field holds.
inline void enter(QLineEdit& field, const QString& text) {
  field.setFocus();
  field.selectAll();
  if (text.isEmpty()) press(Qt::Key_Delete);
  QTest::keyClicks(&field, text);
}

/// Clicks on what has a caption.
inline void click(QWidget& window, const QString& caption) {
  for (auto* button : window.findChildren<QAbstractButton*>())
    if (button->text().remove('&') == caption)
      return QTest::mouseClick(button, Qt::LeftButton, {}, QPoint(8, button->height() / 2));
  ADD_FAILURE() << caption.toStdString();
}

}  // namespace mirolen::qt_test
