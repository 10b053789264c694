#include "mirolen/qt/MapWidget.h"

#include "mirolen/qt/translate.h"

namespace mirolen::qt {

QColor MapWidget::IntervalColor(int interval) const {
  const bool exists = interval >= 0 && interval < map().intervals();
  return exists ? qcolor_of(map().IntervalColor(interval)) : QColor();
}

void MapWidget::setIntervalColor(int interval, const QColor& v) {
  if (v.isValid()) map().IntervalColor(interval, color_of(v));
}

}  // namespace mirolen::qt
