#include "mirolen/qt/Plot2DC.h"

#include "mirolen/controls/descriptions.h"
#include "mirolen/qt/translate.h"

namespace mirolen::qt {

Plot2DC::Plot2DC(QWidget* parent) : MapWidget(parent) {
  adopt(std::make_unique<mirolen::Plot2DC>(toolkit(), container()));
}

QColor Plot2DC::MeanCurveColor() const { return qcolor_of(control().MeanCurveColor()); }
void Plot2DC::setMeanCurveColor(const QColor& v) {
  if (v.isValid()) control().MeanCurveColor(color_of(v));
}
QColor Plot2DC::UpperCurveColor() const { return qcolor_of(control().UpperCurveColor()); }
void Plot2DC::setUpperCurveColor(const QColor& v) {
  if (v.isValid()) control().UpperCurveColor(color_of(v));
}
QColor Plot2DC::LowerCurveColor() const { return qcolor_of(control().LowerCurveColor()); }
void Plot2DC::setLowerCurveColor(const QColor& v) {
  if (v.isValid()) control().LowerCurveColor(color_of(v));
}

}  // namespace mirolen::qt
