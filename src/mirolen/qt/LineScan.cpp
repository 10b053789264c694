#include "mirolen/qt/LineScan.h"

#include "mirolen/controls/descriptions.h"
#include "mirolen/qt/translate.h"

namespace mirolen::qt {

LineScan::LineScan(QWidget* parent) : PlotWidget(parent) {
  adopt(std::make_unique<mirolen::LineScan>(toolkit(), container()));
}

int LineScan::GetLineOrAngle(int& angle, double& StartX, double& StartY, double& EndX, double& EndY) const {
  std::int16_t degrees = control().angle();
  const int result = control().GetLineOrAngle(degrees, StartX, StartY, EndX, EndY);
  if (control().PlotType() != mirolen::PlotTypeEnumLineScan::vbline) angle = degrees;
  return result;
}

void LineScan::SetLineOrAngle(PlotTypeEnumLineScan PlotType, int angle, double AngleX, double AngleY,
                              double StartX, double StartY, double EndX, double EndY) {
  if (const auto degrees = short_of(angle))
    control().SetLineOrAngle(static_cast<mirolen::PlotTypeEnumLineScan>(PlotType), *degrees, AngleX, AngleY,
                             StartX, StartY, EndX, EndY);
}

}  // namespace mirolen::qt
