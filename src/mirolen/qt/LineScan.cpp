#include "mirolen/qt/LineScan.h"

#include "mirolen/controls/descriptions.h"
#include "mirolen/qt/translate.h"

namespace mirolen::qt {

LineScan::LineScan(QWidget* parent) : PlotWidget(parent) {
  adopt(std::make_unique<mirolen::LineScan>(toolkit(), container()));
}

int LineScan::GetLineOrAngle(int& angle, double& StartX, double& StartY, double& EndX, double& EndY) const {
  std::int16_t degrees = short_of(angle);
  const int result = control().GetLineOrAngle(degrees, StartX, StartY, EndX, EndY);
  angle = degrees;
  return result;
}

void LineScan::SetLineOrAngle(PlotTypeEnumLineScan PlotType, int angle, double AngleX, double AngleY,
                              double StartX, double StartY, double EndX, double EndY) {
  control().SetLineOrAngle(static_cast<mirolen::PlotTypeEnumLineScan>(PlotType), short_of(angle), AngleX,
                           AngleY, StartX, StartY, EndX, EndY);
}

}  // namespace mirolen::qt
