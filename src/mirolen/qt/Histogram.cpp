#include "mirolen/qt/Histogram.h"

#include "mirolen/controls/descriptions.h"
#include "mirolen/qt/translate.h"

namespace mirolen::qt {

Histogram::Histogram(QWidget* parent) : PlotWidget(parent) {
  adopt(std::make_unique<mirolen::Histogram>(toolkit(), container()));
}

QColor Histogram::BeamColor() const { return qcolor_of(control().BeamColor()); }
void Histogram::setBeamColor(const QColor& v) {
  if (v.isValid()) control().BeamColor(color_of(v));
}
QColor Histogram::GaussCurveColor() const { return qcolor_of(control().GaussCurveColor()); }
void Histogram::setGaussCurveColor(const QColor& v) {
  if (v.isValid()) control().GaussCurveColor(color_of(v));
}

}  // namespace mirolen::qt
