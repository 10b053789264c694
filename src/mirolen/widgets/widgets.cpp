#include "mirolen/widgets/widgets.h"

#include <algorithm>

namespace mirolen {

void Label::show_change() {
  if (AutoSize) {
    const SurfaceSize text = toolkit().measure(Font, Caption.get());
    Width = text.width * toolkit().twips_per_pixel().width;
  }
  Widget::show_change();
}

void TextField::Text(const std::string& text) {
  if (text == text_) return;
  text_ = text;
  changed();
  if (OnChange) OnChange();
}

void OptionButton::Value(bool value) {
  if (value == value_) return;
  value_ = value;
  if (value_)
    for (Widget* sibling : container()->children())
      if (auto* other = dynamic_cast<OptionButton*>(sibling); other && other != this) other->Value(false);
  changed();
  if (value_ && OnClick) OnClick();
}

void CheckBox::Value(bool value) {
  if (value == value_) return;
  value_ = value;
  changed();
  if (OnClick) OnClick();
}

void UpDown::Value(int value) {
  value = std::clamp(value, Min.get(), Max.get());
  if (value == value_) return;
  value_ = value;
  changed();
  if (OnChange) OnChange();
}

void LineShape::set_ends(double x1, double y1, double x2, double y2) {
  X1 = x1;
  Y1 = y1;
  X2 = x2;
  Y2 = y2;
}

}  // namespace mirolen
