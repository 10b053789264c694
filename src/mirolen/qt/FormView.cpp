#include "mirolen/qt/FormView.h"

#include <QApplication>
#include <QLineEdit>
#include <QPointer>
#include <QPushButton>
#include <QScreen>
#include <algorithm>
#include <utility>

#include "mirolen/qt/ImageSurface.h"
#include "mirolen/qt/StateView.h"
#include "mirolen/qt/peers.h"
#include "mirolen/qt/translate.h"
#include "mirolen/widgets/PictureBox.h"

namespace mirolen::qt {
namespace {

template <class Action>
void for_each_below(const Widget& root, const Action& act) {
  for (Widget* child : root.children()) {
    act(*child);
    for_each_below(*child, act);
  }
}

Widget* widget_of(const Widget& root, const QWidget* view) {
  Widget* found = nullptr;
  for_each_below(root, [&](Widget& widget) {
    if (view && view_of(widget) == view) found = &widget;
  });
  return found;
}

/// The size in pixels that a widget is told to have.
QSizeF told_size(const Widget& widget) { return QSizeF(widget.Width, widget.Height) / twips_per_pixel; }

/// A caption of a frame must end above what lies in the frame; other texts have the height of their widget.
double told_text_height(const Widget& widget) {
  double height = told_size(widget).height();
  if (widget.kind() == WidgetKind::frame)
    for (const Widget* child : widget.children()) height = std::min(height, child->Top / twips_per_pixel);
  return height;
}

QSizeF wanted_stretch(const Form& form) {
  QSizeF wanted(1, 1);
  for_each_below(form, [&](Widget& widget) {
    const auto* text = dynamic_cast<const TextView*>(view_of(widget));
    const QSizeF told(told_size(widget).width(), told_text_height(widget));
    if (!text || told.width() < 1 || told.height() < 1) return;
    // Half a pixel may be lost in the rounding of a place.
    const QSizeF needed = QSizeF(text->needed_size()) + QSizeF(0.5, 0.5);
    wanted = wanted.expandedTo({needed.width() / told.width(), needed.height() / told.height()});
  });
  return wanted;
}

/// The view behind a view that a click gives the focus.
const QWidget* taker_of_focus(const QWidget* view) {
  while (view && !view->isWindow() && !(view->focusPolicy() & Qt::ClickFocus)) view = view->parentWidget();
  return view && !view->isWindow() ? view : nullptr;
}

}  // namespace

QSizeF stretch_in(const Widget& container) {
  const Widget* root = &container;
  for (; root->container(); root = root->container())
    if (root->kind() == WidgetKind::picture_box) return {1, 1};
  const auto* form = dynamic_cast<const FormView*>(view_of(*root));
  return form ? form->stretch() : QSizeF(1, 1);
}

FormView::FormView(Form& form, QWidget& owner) : QDialog(&owner), form_(form) {
  // The dialog belongs to the look of its host's window, as its system colours do.
  setAttribute(Qt::WA_WindowPropagation);
  setWindowModality(Qt::WindowModal);
}

void FormView::show_state() {
  setWindowTitle(text_of(form_.Caption.get()));
  if (form_.BackColor != button_face) {
    QPalette colors = palette();
    colors.setColor(QPalette::Window, qcolor_of(form_.toolkit().resolve(form_.BackColor)));
    setPalette(colors);
  }
  setFixedSize(pixels_of(form_.Width * stretch_.width()), pixels_of(form_.Height * stretch_.height()));
  if (!form_.Visible && isVisible()) accept();
}

void FormView::fit() {
  const QSizeF told = told_size(form_);
  if (told.isEmpty()) return;
  const QSizeF room = screen()->availableSize();
  const QSizeF largest(room.width() / told.width(), room.height() / told.height());
  stretch_ = wanted_stretch(form_).boundedTo(largest).expandedTo({1, 1});
  form_.changed();
  for_each_below(form_, [](Widget& widget) { widget.changed(); });
}

void FormView::run() {
  fit();
  mark_default_button();
  take_focus();
  const QPointer<FormView> alive(this);
  qApp->installEventFilter(this);
  exec();
  if (alive) qApp->removeEventFilter(this);
}

void FormView::mark_default_button() {
  for_each_below(form_, [this](Widget& widget) {
    auto* button = qobject_cast<QPushButton*>(view_of(widget));
    if (!button) return;
    button->setAutoDefault(form_.DefaultButton != nullptr);
    button->setDefault(&widget == form_.DefaultButton);
  });
}

void FormView::take_focus() {
  QWidget* first = form_.FirstFocus ? view_of(*form_.FirstFocus) : nullptr;
  for_each_below(form_, [&](const Widget& widget) {
    QWidget* const view = view_of(widget);
    if (!first && view && view->isEnabled() && view->isVisibleTo(this) && view->focusPolicy() & Qt::TabFocus)
      first = view;
  });
  if (!first) return;
  first->setFocus(Qt::TabFocusReason);
  if (auto* edit = qobject_cast<QLineEdit*>(first)) edit->selectAll();
}

void FormView::reject() {
  if (form_.Visible)
    form_.Close();
  else
    QDialog::reject();
}

bool FormView::may_leave(TextField& field, const QWidget* to) {
  if (asking_) return true;
  const QPointer<FormView> alive(this);
  asking_ = true;
  const bool may = form_.may_leave(field, widget_of(form_, to));
  if (!alive) return true;
  asking_ = false;
  return may || !form_.Visible;
}

void FormView::has_left(TextField& field, Qt::FocusReason reason) {
  const bool by_user = reason == Qt::MouseFocusReason || reason == Qt::TabFocusReason ||
                       reason == Qt::BacktabFocusReason || reason == Qt::ShortcutFocusReason;
  const QWidget* const to = QApplication::focusWidget();
  if (!by_user || !form_.Visible || !to || to->window() != this || may_leave(field, to)) return;
  if (QWidget* const view = view_of(field)) view->setFocus(Qt::OtherFocusReason);
  refused_press_ = reason == Qt::MouseFocusReason;
}

/// A press that could not take the focus is lost, as is an access key that may not.
bool FormView::eventFilter(QObject* target, QEvent* event) {
  const auto* view = qobject_cast<const QWidget*>(target);
  if (!view || view->window() != this) return false;
  if (event->type() == QEvent::MouseButtonPress || event->type() == QEvent::MouseButtonDblClick)
    return std::exchange(refused_press_, false);
  if (event->type() != QEvent::Shortcut) return false;
  auto* const field = dynamic_cast<TextField*>(widget_of(form_, focusWidget()));
  const QWidget* const to = taker_of_focus(view);
  return field && to && to != focusWidget() && !may_leave(*field, to);
}

bool FormView::event(QEvent* event) {
  const bool handled = QDialog::event(event);
  if (event->type() == QEvent::ScreenChangeInternal || event->type() == QEvent::Show) follow_screen();
  return handled;
}

/// Pictures may have been drawn for a screen with another ratio.
void FormView::follow_screen() {
  for_each_below(form_, [this](Widget& widget) {
    auto* const box = dynamic_cast<PictureBox*>(&widget);
    auto* const surface = box ? dynamic_cast<ImageSurface*>(box->device()) : nullptr;
    if (surface && surface->ratio() != devicePixelRatioF()) surface->change_ratio(devicePixelRatioF());
  });
}

void FormView::changeEvent(QEvent* event) {
  QDialog::changeEvent(event);
  if (isVisible() && (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange)) fit();
}

}  // namespace mirolen::qt
