#include "mirolen/dialogs/Rows.h"

namespace mirolen {
namespace {

constexpr double below_caption = 270, field_height = 300, row_gap = 60;

}  // namespace

Rows::Rows(Frame& group, double width) : group_(group), top_(below_caption) { group_.Width = width; }

void Rows::grow(double height) {
  top_ += height + row_gap;
  group_.Height = top_ + row_gap;
}

void Rows::add(Label& label, TextField& field) {
  label.Move(gap, top_, label_width, field_height);
  field.Move(gap + label_width, top_, field_width, field_height);
  grow(field_height);
}

void Rows::add(Widget& widget, double height) {
  widget.Move(gap, top_, group_.Width - 2 * gap, height);
  grow(height);
}

void Rows::add_picture(Widget& picture, double side) {
  picture.Move((group_.Width - side) / 2, top_, side, side);
  grow(side);
}

}  // namespace mirolen
