#include "mirolen/widgets/widgets.h"

namespace mirolen {

void Label::changed() {
  if (AutoSize) {
    const SurfaceSize text = toolkit().measure(Font, Caption.get());
    Width = text.width * toolkit().twips_per_pixel().width;
  }
  Widget::changed();
}

void LineShape::set_ends(double x1, double y1, double x2, double y2) {
  X1 = x1;
  Y1 = y1;
  X2 = x2;
  Y2 = y2;
}

}  // namespace mirolen
