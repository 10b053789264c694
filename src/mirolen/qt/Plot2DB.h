#pragma once

#include "mirolen/controls/Plot2DB.h"
#include "mirolen/qt/PerspectiveWidget.h"

namespace mirolen::qt {

/// The bar plot of a wafer as a QWidget.
class Plot2DB : public PerspectiveWidget {
  Q_OBJECT
  Q_PROPERTY(double BeamWidth READ BeamWidth WRITE setBeamWidth NOTIFY BeamWidthChanged)
  Q_PROPERTY(double BeamHeight READ BeamHeight WRITE setBeamHeight NOTIFY BeamHeightChanged)
  Q_PROPERTY(double BeamScale READ BeamScale WRITE setBeamScale NOTIFY BeamScaleChanged)
  MIROLEN_INTERVAL_COLORS_TO_TEN

 public:
  explicit Plot2DB(QWidget* parent = nullptr);

  /// The control behind the face, in the size that the face has now.
  mirolen::Plot2DB& control() { return frame_as<mirolen::Plot2DB>(); }
  const mirolen::Plot2DB& control() const { return frame_as<mirolen::Plot2DB>(); }

  double BeamWidth() const { return control().BeamWidth(); }
  void setBeamWidth(double v) { control().BeamWidth(v); }
  double BeamHeight() const { return control().BeamHeight(); }
  void setBeamHeight(double v) { control().BeamHeight(v); }
  double BeamScale() const { return control().BeamScale(); }
  void setBeamScale(double v) { control().BeamScale(v); }

 signals:
  void BeamWidthChanged();
  void BeamHeightChanged();
  void BeamScaleChanged();
};

}  // namespace mirolen::qt
