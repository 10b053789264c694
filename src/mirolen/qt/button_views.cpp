#include "mirolen/qt/button_views.h"

#include <QSignalBlocker>

namespace mirolen::qt {

ButtonView::ButtonView(QWidget& parent, Button& button) : CaptionView(parent, button) {
  QObject::connect(this, &QPushButton::clicked, this, [&button] {
    if (button.OnClick) button.OnClick();
  });
}

OptionButtonView::OptionButtonView(QWidget& parent, OptionButton& option) : CaptionView(parent, option) {
  QObject::connect(this, &QRadioButton::toggled, this, [&option](bool on) {
    if (on) option.Value(true);
  });
}

void OptionButtonView::show_state() {
  CaptionView::show_state();
  // The Tab key goes to the chosen one of a group.
  setFocusPolicy(
      Qt::FocusPolicy(another_is_chosen() ? focusPolicy() & ~Qt::TabFocus : focusPolicy() | Qt::TabFocus));
  if (isChecked() == shown_.Value()) return;
  // By program none of a group may be chosen, which the group of Qt does not allow.
  const QSignalBlocker quiet(*this);
  setAutoExclusive(shown_.Value());
  setChecked(shown_.Value());
  setAutoExclusive(true);
}

bool OptionButtonView::another_is_chosen() const {
  for (const Widget* sibling : shown_.container()->children()) {
    const auto* option = dynamic_cast<const OptionButton*>(sibling);
    if (option && option != &shown_ && option->Value()) return true;
  }
  return false;
}

CheckBoxView::CheckBoxView(QWidget& parent, CheckBox& box) : CaptionView(parent, box) {
  QObject::connect(this, &QCheckBox::toggled, this, [&box](bool on) { box.Value(on); });
}

void CheckBoxView::show_state() {
  CaptionView::show_state();
  setChecked(shown_.Value());
}

}  // namespace mirolen::qt
