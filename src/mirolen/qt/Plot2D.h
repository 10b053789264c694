#pragma once

#include "mirolen/controls/Plot2D.h"
#include "mirolen/qt/CellMapWidget.h"

namespace mirolen::qt {

/// The colour map of a wafer as a QWidget.
///
///     auto* map = new mirolen::qt::Plot2D(this);
///     map->setWaferDiameter(300);  // first: it empties the data
///     map->setTestDiameter(294);
///     if (map->SetWaferData(x, y, z) == 0) map->Plot();
class Plot2D : public CellMapWidget {
  Q_OBJECT
  MIROLEN_INTERVAL_COLORS_TO_TEN

 public:
  explicit Plot2D(QWidget* parent = nullptr);

  /// The control behind the face, in the size that the face has now.
  mirolen::Plot2D& control() { return frame_as<mirolen::Plot2D>(); }
  const mirolen::Plot2D& control() const { return frame_as<mirolen::Plot2D>(); }

 public slots:
  int PrintGridPlot(double left, double top, double width, double height) {
    return control().PrintGridPlot(left, top, width, height);
  }
};

}  // namespace mirolen::qt
