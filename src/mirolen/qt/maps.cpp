#include "mirolen/qt/Plot2DN.h"

#include "mirolen/controls/descriptions.h"
#include "mirolen/qt/Plot2DS.h"

namespace mirolen::qt {

Plot2DN::Plot2DN(QWidget* parent) : MapWidget(parent) {
  adopt(std::make_unique<mirolen::Plot2DN>(toolkit(), container()));
}

Plot2DS::Plot2DS(QWidget* parent) : CellMapWidget(parent) {
  adopt(std::make_unique<mirolen::Plot2DS>(toolkit(), container()));
}

}  // namespace mirolen::qt
