#pragma once

#include <QMouseEvent>
#include <QWidget>
#include <optional>

#include "mirolen/widgets/Widget.h"

namespace mirolen::qt {

/// Brings the mouse events of a QWidget to the handlers of the widget that it shows.
///
/// A left button released inside gives a click behind its MouseUp. The second press of a double click is a
/// DblClick in place of a MouseDown, and its release a MouseUp alone. Places are twips, on a picture box its
/// scale units.
class MouseRelay {
 public:
  MouseRelay(QWidget& view, Widget& widget) : view_(view), widget_(widget) {}

  void press(QMouseEvent& event);
  void move(QMouseEvent& event);
  void release(QMouseEvent& event);
  void double_click(QMouseEvent& event);

 private:
  MouseEvent translated(const QMouseEvent& event, Qt::MouseButtons buttons) const;

  QWidget& view_;
  Widget& widget_;
  bool click_begun_ = false;
};

/// A child of a control on the screen. It keeps the mouse events on it from the widgets below.
class ChildView : public QWidget {
 public:
  ChildView(QWidget& parent, Widget& widget);

 protected:
  void mousePressEvent(QMouseEvent* event) override { relay_.press(*event); }
  void mouseMoveEvent(QMouseEvent* event) override { relay_.move(*event); }
  void mouseReleaseEvent(QMouseEvent* event) override { relay_.release(*event); }
  void mouseDoubleClickEvent(QMouseEvent* event) override { relay_.double_click(*event); }

 private:
  MouseRelay relay_;
};

}  // namespace mirolen::qt
