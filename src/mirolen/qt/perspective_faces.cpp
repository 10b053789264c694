#include "mirolen/qt/Plot2DB.h"

#include "mirolen/controls/descriptions.h"
#include "mirolen/qt/Plot3D.h"
#include "mirolen/qt/Plot3DS.h"

namespace mirolen::qt {

void PerspectiveWidget::setEnableRotation(bool v) {
  view().EnableRotation = v;
  emit EnableRotationChanged();
}

Plot2DB::Plot2DB(QWidget* parent) : PerspectiveWidget(parent) {
  adopt(std::make_unique<mirolen::Plot2DB>(toolkit(), container()));
}

Plot3D::Plot3D(QWidget* parent) : SurfaceWidget(parent) {
  adopt(std::make_unique<mirolen::Plot3D>(toolkit(), container()));
}

Plot3DS::Plot3DS(QWidget* parent) : SurfaceWidget(parent) {
  adopt(std::make_unique<mirolen::Plot3DS>(toolkit(), container()));
}

}  // namespace mirolen::qt
