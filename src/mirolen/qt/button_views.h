#pragma once

#include <QCheckBox>
#include <QPushButton>
#include <QRadioButton>
#include <QStyleOptionButton>

#include "mirolen/qt/StateView.h"
#include "mirolen/qt/captions.h"
#include "mirolen/qt/translate.h"
#include "mirolen/widgets/widgets.h"

// The children of a control that are pressed, as QWidgets.
namespace mirolen::qt {

/// What they share: a caption with its access key, in the part of the view that its style leaves for it.
template <class View, class Shown, QStyle::SubElement contents>
class CaptionView : public View, public StateView, public TextView {
 public:
  CaptionView(QWidget& parent, Shown& shown) : View(&parent), shown_(shown) {
    if (!is_on_form(shown)) View::setFont(text_font(shown, *this));
  }

  void show_state() override {
    const QString text = caption();
    View::setText(is_on_form(shown_) ? fitted(*this, text, room().width()) : text);
  }

  QSize needed_size() const override {
    return size_of_text(View::font(), *this, caption()) + View::size() - room();
  }

 protected:
  Shown& shown_;

 private:
  QString caption() const { return with_mnemonic(text_of(shown_.Caption.get()), shown_.AccessKey); }

  QSize room() const {
    QStyleOptionButton option;
    View::initStyleOption(&option);
    return View::style()->subElementRect(contents, &option, this).size();
  }
};

/// A push button; it takes the keyboard's Tab and Space as every button does.
class ButtonView : public CaptionView<QPushButton, Button, QStyle::SE_PushButtonContents> {
 public:
  ButtonView(QWidget& parent, Button& button);
};

/// An option button; those in the same container make the group.
class OptionButtonView : public CaptionView<QRadioButton, OptionButton, QStyle::SE_RadioButtonContents> {
 public:
  OptionButtonView(QWidget& parent, OptionButton& option);
  void show_state() override;

 private:
  bool another_is_chosen() const;
};

class CheckBoxView : public CaptionView<QCheckBox, CheckBox, QStyle::SE_CheckBoxContents> {
 public:
  CheckBoxView(QWidget& parent, CheckBox& box);
  void show_state() override;
};

}  // namespace mirolen::qt
