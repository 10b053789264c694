#include "mirolen/widgets/Widget.h"

#include <algorithm>

namespace mirolen {

Widget::Widget(WidgetKind kind, Toolkit& toolkit) : kind_(kind), toolkit_(toolkit) {}

Widget::Widget(WidgetKind kind, Widget* container)
    : kind_(kind), toolkit_(container->toolkit_), container_(container) {
  container->children_.push_back(this);
}

Widget::~Widget() {
  if (container_) std::erase(container_->children_, this);
}

void Widget::Move(double left, std::optional<double> top, std::optional<double> width,
                  std::optional<double> height) {
  Left = left;
  if (top) Top = *top;
  if (width) Width = *width;
  if (height) Height = *height;
}

void Widget::Refresh() {
  try {
    if (peer_) peer_->refresh();
  } catch (...) {
    behind_ = true;
  }
}

bool Widget::is_seen() const { return Visible && (!container_ || container_->is_seen()); }

void Widget::realize() {
  peer_ = toolkit_.make_peer(*this);
  changed();
  for (Widget* child : children_) child->realize();
}

void Widget::changed() noexcept {
  try {
    show_change();
    behind_ = false;
  } catch (...) {
    behind_ = true;
  }
}

void Widget::show_change() {
  if (peer_) peer_->changed();
}

bool Widget::catch_up() {
  const bool was_behind = behind_;
  if (was_behind) changed();
  bool shown = was_behind && !behind_;
  for (Widget* child : children_)
    if (child->catch_up()) shown = true;
  return shown;
}

}  // namespace mirolen
