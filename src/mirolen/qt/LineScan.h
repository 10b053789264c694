#pragma once

#include "mirolen/controls/LineScan.h"
#include "mirolen/qt/PlotWidget.h"

namespace mirolen::qt {

/// The cross-section of a wafer along a line as a QWidget.
class LineScan : public PlotWidget {
  Q_OBJECT
  Q_PROPERTY(PlotTypeEnumLineScan PlotType READ PlotType WRITE setPlotType NOTIFY PlotTypeChanged)
  Q_PROPERTY(int angle READ angle WRITE setAngle NOTIFY angleChanged)
  Q_PROPERTY(int RotationPointX READ RotationPointX WRITE setRotationPointX NOTIFY RotationPointXChanged)
  Q_PROPERTY(int RotationPointY READ RotationPointY WRITE setRotationPointY NOTIFY RotationPointYChanged)
  Q_PROPERTY(int LineStartPointX READ LineStartPointX WRITE setLineStartPointX NOTIFY LineStartPointXChanged)
  Q_PROPERTY(int LineStartPointY READ LineStartPointY WRITE setLineStartPointY NOTIFY LineStartPointYChanged)
  Q_PROPERTY(int LineEndPointX READ LineEndPointX WRITE setLineEndPointX NOTIFY LineEndPointXChanged)
  Q_PROPERTY(int LineEndPointY READ LineEndPointY WRITE setLineEndPointY NOTIFY LineEndPointYChanged)
  Q_PROPERTY(bool ShowSites READ ShowSites WRITE setShowSites NOTIFY ShowSitesChanged)
  Q_PROPERTY(QString PlotCaption READ PlotCaption WRITE setPlotCaption NOTIFY PlotCaptionChanged)

 public:
  enum PlotTypeEnumLineScan : int { vbAngle = 1, vbline = 2 };
  Q_ENUM(PlotTypeEnumLineScan)

  explicit LineScan(QWidget* parent = nullptr);

  /// The control behind the face, in the size that the face has now.
  mirolen::LineScan& control() { return frame_as<mirolen::LineScan>(); }
  const mirolen::LineScan& control() const { return frame_as<mirolen::LineScan>(); }

  PlotTypeEnumLineScan PlotType() const { return static_cast<PlotTypeEnumLineScan>(control().PlotType()); }
  void setPlotType(PlotTypeEnumLineScan v) {
    control().PlotType(static_cast<mirolen::PlotTypeEnumLineScan>(v));
  }
  int angle() const { return control().angle(); }
  void setAngle(int v) {
    if (const auto taken = short_of(v)) control().angle(*taken);
  }
  int RotationPointX() const { return control().RotationPointX(); }
  void setRotationPointX(int v) {
    if (const auto taken = short_of(v)) control().RotationPointX(*taken);
  }
  int RotationPointY() const { return control().RotationPointY(); }
  void setRotationPointY(int v) {
    if (const auto taken = short_of(v)) control().RotationPointY(*taken);
  }
  int LineStartPointX() const { return control().LineStartPointX(); }
  void setLineStartPointX(int v) {
    if (const auto taken = short_of(v)) control().LineStartPointX(*taken);
  }
  int LineStartPointY() const { return control().LineStartPointY(); }
  void setLineStartPointY(int v) {
    if (const auto taken = short_of(v)) control().LineStartPointY(*taken);
  }
  int LineEndPointX() const { return control().LineEndPointX(); }
  void setLineEndPointX(int v) {
    if (const auto taken = short_of(v)) control().LineEndPointX(*taken);
  }
  int LineEndPointY() const { return control().LineEndPointY(); }
  void setLineEndPointY(int v) {
    if (const auto taken = short_of(v)) control().LineEndPointY(*taken);
  }
  bool ShowSites() const { return control().ShowSites(); }
  void setShowSites(bool v) { control().ShowSites(v); }
  QString PlotCaption() const { return QString::fromStdString(control().PlotCaption()); }
  void setPlotCaption(const QString& v) { control().PlotCaption(v.toStdString()); }

  /// Gives what `SetLineOrAngle` takes, in the mode in force; the point of the angle as the start. @return 0.
  int GetLineOrAngle(int& angle, double& StartX, double& StartY, double& EndX, double& EndY) const;

 public slots:
  void SetLineOrAngle(PlotTypeEnumLineScan PlotType, int angle, double AngleX, double AngleY, double StartX,
                      double StartY, double EndX, double EndY);

 signals:
  void PlotTypeChanged();
  void angleChanged();
  void RotationPointXChanged();
  void RotationPointYChanged();
  void LineStartPointXChanged();
  void LineStartPointYChanged();
  void LineEndPointXChanged();
  void LineEndPointYChanged();
  void ShowSitesChanged();
  void PlotCaptionChanged();
};

}  // namespace mirolen::qt
