#pragma once

#include "mirolen/controls/Plot2D.h"
#include "mirolen/qt/PlotWidget.h"

namespace mirolen::qt {

/// The colour map of a wafer as a QWidget.
///
///     auto* map = new mirolen::qt::Plot2D(this);
///     map->setWaferDiameter(300);  // first: it empties the data
///     map->setTestDiameter(294);
///     if (map->SetWaferData(x, y, z) == 0) map->Plot();
class Plot2D : public PlotWidget {
  Q_OBJECT
  Q_PROPERTY(double Resolution READ Resolution WRITE setResolution NOTIFY ResolutionChanged)
  Q_PROPERTY(Sites ShowSites READ ShowSites WRITE setShowSites NOTIFY ShowSitesChanged)
  Q_PROPERTY(QString PlotCaption READ PlotCaption WRITE setPlotCaption NOTIFY PlotCaptionChanged)
  Q_PROPERTY(QColor IntervalColor0 READ IntervalColor0 WRITE setIntervalColor0 NOTIFY IntervalColor0Changed)
  Q_PROPERTY(QColor IntervalColor1 READ IntervalColor1 WRITE setIntervalColor1 NOTIFY IntervalColor1Changed)
  Q_PROPERTY(QColor IntervalColor2 READ IntervalColor2 WRITE setIntervalColor2 NOTIFY IntervalColor2Changed)
  Q_PROPERTY(QColor IntervalColor3 READ IntervalColor3 WRITE setIntervalColor3 NOTIFY IntervalColor3Changed)
  Q_PROPERTY(QColor IntervalColor4 READ IntervalColor4 WRITE setIntervalColor4 NOTIFY IntervalColor4Changed)
  Q_PROPERTY(QColor IntervalColor5 READ IntervalColor5 WRITE setIntervalColor5 NOTIFY IntervalColor5Changed)
  Q_PROPERTY(QColor IntervalColor6 READ IntervalColor6 WRITE setIntervalColor6 NOTIFY IntervalColor6Changed)
  Q_PROPERTY(QColor IntervalColor7 READ IntervalColor7 WRITE setIntervalColor7 NOTIFY IntervalColor7Changed)
  Q_PROPERTY(QColor IntervalColor8 READ IntervalColor8 WRITE setIntervalColor8 NOTIFY IntervalColor8Changed)
  Q_PROPERTY(QColor IntervalColor9 READ IntervalColor9 WRITE setIntervalColor9 NOTIFY IntervalColor9Changed)

 public:
  enum Sites { ShowSite = -1, HideSite = 0 };
  Q_ENUM(Sites)

  explicit Plot2D(QWidget* parent = nullptr);

  /// The control behind the face, in the size that the face has now.
  mirolen::Plot2D& control() { return static_cast<mirolen::Plot2D&>(frame()); }
  const mirolen::Plot2D& control() const { return static_cast<const mirolen::Plot2D&>(frame()); }

  double Resolution() const { return control().Resolution(); }
  void setResolution(double v) { control().Resolution(v); }
  Sites ShowSites() const { return static_cast<Sites>(control().ShowSites()); }
  void setShowSites(Sites v) { control().ShowSites(static_cast<mirolen::Sites>(v)); }
  QString PlotCaption() const { return QString::fromStdString(control().PlotCaption()); }
  void setPlotCaption(const QString& v) { control().PlotCaption(v.toStdString()); }

  /// The colour of interval 0 (top of the scale) to 9. Any other interval has no valid colour; setting one,
  /// or setting a colour that is not valid, changes nothing.
  QColor IntervalColor(int interval) const;
  void setIntervalColor(int interval, const QColor& v);

  QColor IntervalColor0() const { return IntervalColor(0); }
  QColor IntervalColor1() const { return IntervalColor(1); }
  QColor IntervalColor2() const { return IntervalColor(2); }
  QColor IntervalColor3() const { return IntervalColor(3); }
  QColor IntervalColor4() const { return IntervalColor(4); }
  QColor IntervalColor5() const { return IntervalColor(5); }
  QColor IntervalColor6() const { return IntervalColor(6); }
  QColor IntervalColor7() const { return IntervalColor(7); }
  QColor IntervalColor8() const { return IntervalColor(8); }
  QColor IntervalColor9() const { return IntervalColor(9); }
  void setIntervalColor0(const QColor& v) { setIntervalColor(0, v); }
  void setIntervalColor1(const QColor& v) { setIntervalColor(1, v); }
  void setIntervalColor2(const QColor& v) { setIntervalColor(2, v); }
  void setIntervalColor3(const QColor& v) { setIntervalColor(3, v); }
  void setIntervalColor4(const QColor& v) { setIntervalColor(4, v); }
  void setIntervalColor5(const QColor& v) { setIntervalColor(5, v); }
  void setIntervalColor6(const QColor& v) { setIntervalColor(6, v); }
  void setIntervalColor7(const QColor& v) { setIntervalColor(7, v); }
  void setIntervalColor8(const QColor& v) { setIntervalColor(8, v); }
  void setIntervalColor9(const QColor& v) { setIntervalColor(9, v); }

 signals:
  void ResolutionChanged();
  void ShowSitesChanged();
  void PlotCaptionChanged();
  void IntervalColor0Changed();
  void IntervalColor1Changed();
  void IntervalColor2Changed();
  void IntervalColor3Changed();
  void IntervalColor4Changed();
  void IntervalColor5Changed();
  void IntervalColor6Changed();
  void IntervalColor7Changed();
  void IntervalColor8Changed();
  void IntervalColor9Changed();
};

}  // namespace mirolen::qt
