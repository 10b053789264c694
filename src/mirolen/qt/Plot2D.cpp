#include "mirolen/qt/Plot2D.h"

#include "mirolen/qt/translate.h"

namespace mirolen::qt {
namespace {

bool is_interval(int interval) { return interval >= 0 && interval <= 9; }

}  // namespace

Plot2D::Plot2D(QWidget* parent) : PlotWidget(parent) {
  adopt(std::make_unique<mirolen::Plot2D>(toolkit(), container()));
}

QColor Plot2D::IntervalColor(int interval) const {
  return is_interval(interval) ? qcolor_of(control().IntervalColor(interval)) : QColor();
}

void Plot2D::setIntervalColor(int interval, const QColor& v) {
  if (is_interval(interval) && v.isValid()) control().IntervalColor(interval, color_of(v));
}

}  // namespace mirolen::qt
