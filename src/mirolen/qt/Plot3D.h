#pragma once

#include "mirolen/controls/Plot3D.h"
#include "mirolen/qt/SurfaceWidget.h"

namespace mirolen::qt {

/// The surface of a wafer as a QWidget.
class Plot3D : public SurfaceWidget {
  Q_OBJECT
  Q_PROPERTY(PlotTypeEnum PlotType READ PlotType WRITE setPlotType NOTIFY PlotTypeChanged)
  MIROLEN_INTERVAL_COLORS_TO_TEN

 public:
  enum PlotTypeEnum : int { PolyEdge = 1, HiddenWireFrame = 2, WireFrame = 3 };
  Q_ENUM(PlotTypeEnum)

  explicit Plot3D(QWidget* parent = nullptr);

  /// The control behind the face, in the size that the face has now.
  mirolen::Plot3D& control() { return frame_as<mirolen::Plot3D>(); }
  const mirolen::Plot3D& control() const { return frame_as<mirolen::Plot3D>(); }

  PlotTypeEnum PlotType() const { return static_cast<PlotTypeEnum>(control().PlotType()); }
  void setPlotType(PlotTypeEnum v) { control().PlotType(static_cast<mirolen::PlotTypeEnum>(v)); }

 signals:
  void PlotTypeChanged();
};

}  // namespace mirolen::qt
