#pragma once

#include "mirolen/controls/MapFrame.h"
#include "mirolen/qt/PlotWidget.h"

/// The property, with all that belongs to it, of one interval colour of a MapWidget.
#define MIROLEN_INTERVAL_COLOR(n)                                                           \
  Q_PROPERTY(QColor IntervalColor##n READ IntervalColor##n WRITE setIntervalColor##n NOTIFY \
                 IntervalColor##n##Changed)                                                 \
 public:                                                                                    \
  QColor IntervalColor##n() const { return IntervalColor(n); }                              \
  void setIntervalColor##n(const QColor& v) { setIntervalColor(n, v); }                     \
 Q_SIGNALS:                                                                                 \
  void IntervalColor##n##Changed();                                                         \
                                                                                            \
 private:

/// Those that a map in ten colours has beyond the first three.
#define MIROLEN_INTERVAL_COLORS_TO_TEN \
  MIROLEN_INTERVAL_COLOR(3)            \
  MIROLEN_INTERVAL_COLOR(4)            \
  MIROLEN_INTERVAL_COLOR(5)            \
  MIROLEN_INTERVAL_COLOR(6)            \
  MIROLEN_INTERVAL_COLOR(7)            \
  MIROLEN_INTERVAL_COLOR(8)            \
  MIROLEN_INTERVAL_COLOR(9)

namespace mirolen::qt {

/// What the faces share that show the whole wafer beside a legend. They have ten interval colours, the sigma
/// plots three.
class MapWidget : public PlotWidget {
  Q_OBJECT
  Q_PROPERTY(QString PlotCaption READ PlotCaption WRITE setPlotCaption NOTIFY PlotCaptionChanged)
  MIROLEN_INTERVAL_COLOR(0)
  MIROLEN_INTERVAL_COLOR(1)
  MIROLEN_INTERVAL_COLOR(2)

 public:
  QString PlotCaption() const { return QString::fromStdString(map().PlotCaption()); }
  void setPlotCaption(const QString& v) { map().PlotCaption(v.toStdString()); }

  /// The colour of interval 0 (top of the scale) and up. An interval that there is not has no valid colour;
  /// setting one, or setting a colour that is not valid, changes nothing.
  QColor IntervalColor(int interval) const;
  void setIntervalColor(int interval, const QColor& v);

 public slots:
  int PrintLegend(double left, double top, bool DrawFrame = false) {
    return map().PrintLegend(left, top, DrawFrame);
  }

 signals:
  void PlotCaptionChanged();

 protected:
  using PlotWidget::PlotWidget;

 private:
  MapFrame& map() { return frame_as<MapFrame>(); }
  const MapFrame& map() const { return frame_as<MapFrame>(); }
};

}  // namespace mirolen::qt
