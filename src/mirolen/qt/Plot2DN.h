#pragma once

#include "mirolen/controls/Plot2DN.h"
#include "mirolen/qt/MapWidget.h"

namespace mirolen::qt {

/// The value map of a wafer as a QWidget.
class Plot2DN : public MapWidget {
  Q_OBJECT
  MIROLEN_INTERVAL_COLORS_TO_TEN

 public:
  explicit Plot2DN(QWidget* parent = nullptr);

  /// The control behind the face, in the size that the face has now.
  mirolen::Plot2DN& control() { return frame_as<mirolen::Plot2DN>(); }
  const mirolen::Plot2DN& control() const { return frame_as<mirolen::Plot2DN>(); }

  bool has_plot_options() const override { return false; }

 public slots:
  int PrintGridNumber(double left, double top, double width, double height, bool DrawFrame = false) {
    return control().PrintGridNumber(left, top, width, height, DrawFrame);
  }
};

}  // namespace mirolen::qt
