#pragma once

#include <QLineEdit>
#include <QToolButton>

#include "mirolen/qt/StateView.h"
#include "mirolen/widgets/widgets.h"

// The children of a control that take the keyboard's input, as QWidgets.
namespace mirolen::qt {

class TextFieldView : public QLineEdit, public StateView, public TextView {
 public:
  TextFieldView(QWidget& parent, TextField& field);
  void show_state() override;
  /// The height alone: a text that is too wide scrolls.
  QSize needed_size() const override;

 protected:
  void focusOutEvent(QFocusEvent* event) override;
  /// The field's handler has the key before the edit has it.
  void keyPressEvent(QKeyEvent* event) override;

 private:
  TextField& field_;
};

/// Two arrows, one above the other, which repeat while they are held. With the focus on them the up and down
/// keys do the same.
class UpDownView : public QWidget {
 public:
  UpDownView(QWidget& parent, UpDown& spinner);

 protected:
  void resizeEvent(QResizeEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  void step(int direction);

  UpDown& spinner_;
  QToolButton up_{this}, down_{this};
};

}  // namespace mirolen::qt
