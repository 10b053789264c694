#include "mirolen/dialogs/Rows.h"

#include <algorithm>

namespace mirolen {
namespace {

constexpr double below_caption = 270, field_height = 300, row_gap = 60;

}  // namespace

Rows::Rows(Frame& group, double width, double left)
    : group_(group), width_(width), left_(left), top_(below_caption) {
  group_.Width = std::max(group_.Width.get(), left + width);
}

void Rows::grow(double height) {
  top_ += height + row_gap;
  group_.Height = std::max(group_.Height.get(), top_ + row_gap);
}

void Rows::add(Label& label, TextField& field) {
  label.Move(left_ + gap, top_, label_width, field_height);
  field.Move(left_ + gap + label_width, top_, field_width, field_height);
  grow(field_height);
}

void Rows::add(Widget& widget, double height) {
  widget.Move(left_ + gap, top_, width_ - 2 * gap, height);
  grow(height);
}

void Rows::add_picture(Widget& picture, double side) {
  picture.Move(left_ + (width_ - side) / 2, top_, side, side);
  grow(side);
}

}  // namespace mirolen
