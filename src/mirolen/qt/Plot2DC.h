#pragma once

#include "mirolen/controls/Plot2DC.h"
#include "mirolen/qt/MapWidget.h"

namespace mirolen::qt {

/// The contour plot of a wafer as a QWidget.
class Plot2DC : public MapWidget {
  Q_OBJECT
  Q_PROPERTY(double Interval READ Interval WRITE setInterval NOTIFY IntervalChanged)
  Q_PROPERTY(
      int IntervalInPercent READ IntervalInPercent WRITE setIntervalInPercent NOTIFY IntervalInPercentChanged)
  Q_PROPERTY(
      QString MeasurementUnit READ MeasurementUnit WRITE setMeasurementUnit NOTIFY MeasurementUnitChanged)
  Q_PROPERTY(ExconEnum marksites READ marksites WRITE setMarksites NOTIFY marksitesChanged)
  Q_PROPERTY(ResoEnum Resolution READ Resolution WRITE setResolution NOTIFY ResolutionChanged)
  Q_PROPERTY(DrawColEnum PlotColored READ PlotColored WRITE setPlotColored NOTIFY PlotColoredChanged)
  Q_PROPERTY(int ScaleType READ ScaleType WRITE setScaleType NOTIFY ScaleTypeChanged)
  Q_PROPERTY(QColor MeanCurveColor READ MeanCurveColor WRITE setMeanCurveColor NOTIFY MeanCurveColorChanged)
  Q_PROPERTY(
      QColor UpperCurveColor READ UpperCurveColor WRITE setUpperCurveColor NOTIFY UpperCurveColorChanged)
  Q_PROPERTY(
      QColor LowerCurveColor READ LowerCurveColor WRITE setLowerCurveColor NOTIFY LowerCurveColorChanged)
  MIROLEN_INTERVAL_COLORS_TO_TEN

 public:
  enum ExconEnum : int { Exact = 1, Converted = 2, None = 3 };
  Q_ENUM(ExconEnum)
  enum ResoEnum : int { LowQuality = 0, HighQuality = 1, Automatic = 2 };
  Q_ENUM(ResoEnum)
  enum DrawColEnum : int { BWhitePlot = 0, Three_ColorPlot = 1, Ten_ColorPlot = 2 };
  Q_ENUM(DrawColEnum)

  explicit Plot2DC(QWidget* parent = nullptr);

  /// The control behind the face, in the size that the face has now.
  mirolen::Plot2DC& control() { return frame_as<mirolen::Plot2DC>(); }
  const mirolen::Plot2DC& control() const { return frame_as<mirolen::Plot2DC>(); }

  double Interval() const { return control().Interval(); }
  void setInterval(double v) { control().Interval(v); }
  int IntervalInPercent() const { return control().IntervalInPercent(); }
  void setIntervalInPercent(int v) {
    if (const auto taken = short_of(v)) control().IntervalInPercent(*taken);
  }
  QString MeasurementUnit() const { return QString::fromStdString(control().MeasurementUnit()); }
  void setMeasurementUnit(const QString& v) { control().MeasurementUnit(v.toStdString()); }
  ExconEnum marksites() const { return static_cast<ExconEnum>(control().marksites()); }
  void setMarksites(ExconEnum v) { control().marksites(static_cast<mirolen::ExconEnum>(v)); }
  ResoEnum Resolution() const { return static_cast<ResoEnum>(control().Resolution()); }
  void setResolution(ResoEnum v) { control().Resolution(static_cast<mirolen::ResoEnum>(v)); }
  DrawColEnum PlotColored() const { return static_cast<DrawColEnum>(control().PlotColored()); }
  void setPlotColored(DrawColEnum v) { control().PlotColored(static_cast<mirolen::DrawColEnum>(v)); }
  int ScaleType() const { return control().ScaleType(); }
  void setScaleType(int v) {
    if (const auto taken = short_of(v)) control().ScaleType(*taken);
  }
  QColor MeanCurveColor() const;
  void setMeanCurveColor(const QColor& v);
  QColor UpperCurveColor() const;
  void setUpperCurveColor(const QColor& v);
  QColor LowerCurveColor() const;
  void setLowerCurveColor(const QColor& v);

 public slots:
  int PrintPlot_THN(double left, double top, double width, double height, bool DrawFrame = false) {
    return control().PrintPlot_THN(left, top, width, height, DrawFrame);
  }

 signals:
  void IntervalChanged();
  void IntervalInPercentChanged();
  void MeasurementUnitChanged();
  void marksitesChanged();
  void ResolutionChanged();
  void PlotColoredChanged();
  void ScaleTypeChanged();
  void MeanCurveColorChanged();
  void UpperCurveColorChanged();
  void LowerCurveColorChanged();
};

}  // namespace mirolen::qt
