#include "mirolen/qt/ChildView.h"

#include <QPointer>

#include "mirolen/qt/translate.h"
#include "mirolen/widgets/PictureBox.h"

namespace mirolen::qt {
namespace {

std::int16_t button_of(Qt::MouseButtons buttons) {
  return static_cast<std::int16_t>((buttons & Qt::LeftButton ? 1 : 0) | (buttons & Qt::RightButton ? 2 : 0) |
                                   (buttons & Qt::MiddleButton ? 4 : 0));
}

std::int16_t shift_of(Qt::KeyboardModifiers keys) {
  return static_cast<std::int16_t>((keys & Qt::ShiftModifier ? 1 : 0) | (keys & Qt::ControlModifier ? 2 : 0) |
                                   (keys & Qt::AltModifier ? 4 : 0));
}

/// Coordinate units of a pixel.
SurfaceSize unit_of(const Widget& widget) {
  const auto* picture = dynamic_cast<const PictureBox*>(&widget);
  if (!picture) return {twips_per_pixel, twips_per_pixel};
  const SurfaceSize pixels = picture->pixel_size();
  return {picture->ScaleWidth() / pixels.width, picture->ScaleHeight() / pixels.height};
}

}  // namespace

MouseEvent MouseRelay::translated(const QMouseEvent& event, Qt::MouseButtons buttons) const {
  const SurfaceSize unit = unit_of(widget_);
  return {button_of(buttons), shift_of(event.modifiers()),
          static_cast<float>(event.position().x() * unit.width),
          static_cast<float>(event.position().y() * unit.height)};
}

void MouseRelay::press(QMouseEvent& event) {
  event.accept();
  if (event.button() == Qt::LeftButton) click_begun_ = true;
  if (widget_.OnMouseDown) widget_.OnMouseDown(translated(event, event.button()));
}

void MouseRelay::move(QMouseEvent& event) {
  event.accept();
  if (widget_.OnMouseMove) widget_.OnMouseMove(translated(event, event.buttons()));
}

void MouseRelay::release(QMouseEvent& event) {
  event.accept();
  const bool clicked =
      event.button() == Qt::LeftButton && click_begun_ && view_.rect().contains(event.position().toPoint());
  if (event.button() == Qt::LeftButton) click_begun_ = false;
  const QPointer<QWidget> alive(&view_);
  if (widget_.OnMouseUp) widget_.OnMouseUp(translated(event, event.button()));
  if (alive && clicked && widget_.OnClick) widget_.OnClick();
}

void MouseRelay::double_click(QMouseEvent& event) {
  if (event.button() != Qt::LeftButton) return press(event);
  event.accept();
  if (widget_.OnDblClick) widget_.OnDblClick();
}

ChildView::ChildView(QWidget& parent, Widget& widget) : QWidget(&parent), relay_(*this, widget) {
  setMouseTracking(true);
}

}  // namespace mirolen::qt
