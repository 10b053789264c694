#pragma once

#include <QDialog>
#include <QSizeF>

#include "mirolen/widgets/Form.h"

namespace mirolen::qt {

/// A form as a dialog, modal to the window of its owner.
///
/// Forms are laid out for a small font. On the screen a form is as much wider and higher as its texts need in
/// the font of the platform's dialogs, but never larger than the screen; what then has no room ends in dots
/// and has a tool tip. Pictures keep their size.
class FormView : public QDialog {
 public:
  FormView(Form& form, QWidget& owner);

  /// Lets the user work until the form is hidden or gone.
  void run();
  /// Shows the form's own properties.
  void show_state();
  /// How much wider and higher the form is than told.
  QSizeF stretch() const { return stretch_; }
  /// Takes notice that the focus has gone from a field, and gives it back if the field may not be left.
  void has_left(TextField& field, Qt::FocusReason reason);

  /// What Escape and the closing of the window do.
  void reject() override;

 protected:
  bool event(QEvent* event) override;
  bool eventFilter(QObject* target, QEvent* event) override;
  void changeEvent(QEvent* event) override;

 private:
  void fit();
  void take_focus();
  void mark_default_button();
  void follow_screen();
  bool may_leave(TextField& field, const QWidget* to);

  Form& form_;
  QSizeF stretch_{1, 1};
  bool asking_ = false;
  bool refused_press_ = false;
};

/// How much wider and higher what lies in a container is than told.
QSizeF stretch_in(const Widget& container);

}  // namespace mirolen::qt
