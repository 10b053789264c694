#include "mirolen/qt/input_views.h"

#include <QKeyEvent>
#include <QPainter>
#include <QPointer>

#include "mirolen/qt/FormView.h"
#include "mirolen/qt/QtToolkit.h"
#include "mirolen/qt/captions.h"
#include "mirolen/qt/translate.h"

namespace mirolen::qt {
namespace {

/// The code by which a handler knows a key: letters, digits and blanks have their own. 0 for any other.
int code_of(int key) {
  constexpr int last_own_code = 0x5A;
  switch (key) {
    case Qt::Key_Left:
      return 37;
    case Qt::Key_Up:
      return 38;
    case Qt::Key_Right:
      return 39;
    case Qt::Key_Down:
      return 40;
    default:
      return key == Qt::Key_Space || (key >= Qt::Key_0 && key <= last_own_code) ? key : 0;
  }
}

}  // namespace

TextFieldView::TextFieldView(QWidget& parent, TextField& field) : QLineEdit(&parent), field_(field) {
  if (!is_on_form(field)) setFont(text_font(field, *this));
  QObject::connect(this, &QLineEdit::textEdited, this, [&field](const QString& text) {
    const QtToolkit::QtsTurn turn(field);
    field.Text(utf8_of(text));
  });
}

void TextFieldView::show_state() {
  const QString now = text_of(field_.Text());
  if (text() != now) setText(now);
}

QSize TextFieldView::needed_size() const { return {0, minimumSizeHint().height()}; }

void TextFieldView::focusOutEvent(QFocusEvent* event) {
  QLineEdit::focusOutEvent(event);
  if (auto* form = dynamic_cast<FormView*>(window())) form->has_left(field_, event->reason());
}

void TextFieldView::keyPressEvent(QKeyEvent* event) {
  const int code = code_of(event->key());
  const QPointer<TextFieldView> alive(this);
  if (code != 0 && field_.OnKeyDown) field_.OnKeyDown(code);
  if (alive) QLineEdit::keyPressEvent(event);
}

UpDownView::UpDownView(QWidget& parent, UpDown& spinner) : QWidget(&parent), spinner_(spinner) {
  setFocusPolicy(Qt::StrongFocus);
  for (QToolButton* arrow : {&up_, &down_}) {
    arrow->setFocusPolicy(Qt::NoFocus);
    arrow->setAutoRepeat(true);
  }
  up_.setArrowType(Qt::UpArrow);
  down_.setArrowType(Qt::DownArrow);
  QObject::connect(&up_, &QToolButton::clicked, this, [this] { step(1); });
  QObject::connect(&down_, &QToolButton::clicked, this, [this] { step(-1); });
}

void UpDownView::resizeEvent(QResizeEvent*) {
  const QRect inner = rect().adjusted(1, 1, -1, -1);
  const int half = inner.height() / 2;
  up_.setGeometry(inner.left(), inner.top(), inner.width(), half);
  down_.setGeometry(inner.left(), inner.top() + half, inner.width(), inner.height() - half);
}

void UpDownView::paintEvent(QPaintEvent*) {
  if (hasFocus()) QPainter(this).fillRect(rect(), palette().color(QPalette::Highlight));
}

void UpDownView::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Up) return step(1);
  if (event->key() == Qt::Key_Down) return step(-1);
  QWidget::keyPressEvent(event);
}

void UpDownView::step(int direction) { spinner_.Value(spinner_.Value() + direction * spinner_.Increment); }

}  // namespace mirolen::qt
