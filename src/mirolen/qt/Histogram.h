#pragma once

#include "mirolen/controls/Histogram.h"
#include "mirolen/qt/PlotWidget.h"

namespace mirolen::qt {

/// The distribution of the values of a wafer as a QWidget.
class Histogram : public PlotWidget {
  Q_OBJECT
  Q_PROPERTY(PlotTyEnum PlotType READ PlotType WRITE setPlotType NOTIFY PlotTypeChanged)
  Q_PROPERTY(double Resolution READ Resolution WRITE setResolution NOTIFY ResolutionChanged)
  Q_PROPERTY(QColor BeamColor READ BeamColor WRITE setBeamColor NOTIFY BeamColorChanged)
  Q_PROPERTY(
      QColor GaussCurveColor READ GaussCurveColor WRITE setGaussCurveColor NOTIFY GaussCurveColorChanged)

 public:
  enum PlotTyEnum : int { vbbottom = 1, vbTop = 2, vbLeft = 3, vbRight = 4 };
  Q_ENUM(PlotTyEnum)

  explicit Histogram(QWidget* parent = nullptr);

  /// The control behind the face, in the size that the face has now.
  mirolen::Histogram& control() { return frame_as<mirolen::Histogram>(); }
  const mirolen::Histogram& control() const { return frame_as<mirolen::Histogram>(); }

  PlotTyEnum PlotType() const { return static_cast<PlotTyEnum>(control().PlotType()); }
  void setPlotType(PlotTyEnum v) { control().PlotType(static_cast<mirolen::PlotTyEnum>(v)); }
  double Resolution() const { return control().Resolution(); }
  void setResolution(double v) { control().Resolution(v); }
  QColor BeamColor() const;
  void setBeamColor(const QColor& v);
  QColor GaussCurveColor() const;
  void setGaussCurveColor(const QColor& v);

 public slots:
  int PrintPlot_THN(double left, double top, double width, double height) {
    return control().PrintPlot_THN(left, top, width, height);
  }
  void SetChartDim(double topC, double heightC) { control().SetChartDim(topC, heightC); }
  void Borderstyle(int Bstyle) {
    if (const auto taken = short_of(Bstyle)) control().Borderstyle(*taken);
  }
  void ShowControlLimit(double LCLs, double UCLs) { control().ShowControlLimit(LCLs, UCLs); }
  void ResetControlLimit() { control().ResetControlLimit(); }

 signals:
  void PlotTypeChanged();
  void ResolutionChanged();
  void BeamColorChanged();
  void GaussCurveColorChanged();
};

}  // namespace mirolen::qt
