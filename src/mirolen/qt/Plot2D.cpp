#include "mirolen/qt/Plot2D.h"

#include "mirolen/controls/descriptions.h"

namespace mirolen::qt {

Plot2D::Plot2D(QWidget* parent) : CellMapWidget(parent) {
  adopt(std::make_unique<mirolen::Plot2D>(toolkit(), container()));
}

}  // namespace mirolen::qt
