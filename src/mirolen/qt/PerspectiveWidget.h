#pragma once

#include "mirolen/controls/PerspectiveFrame.h"
#include "mirolen/qt/MapWidget.h"

namespace mirolen::qt {

/// What the faces of the three plots in perspective share. Dragging the mouse over the plot turns it.
class PerspectiveWidget : public MapWidget {
  Q_OBJECT
  Q_PROPERTY(bool EnableRotation READ EnableRotation WRITE setEnableRotation NOTIFY EnableRotationChanged)
  Q_PROPERTY(int WaferRotation READ WaferRotation WRITE setWaferRotation NOTIFY WaferRotationChanged)
  Q_PROPERTY(int GridRotation READ GridRotation WRITE setGridRotation NOTIFY GridRotationChanged)
  Q_PROPERTY(int GridInclination READ GridInclination WRITE setGridInclination NOTIFY GridInclinationChanged)

 public:
  /// For the host: dragging always turns the plot.
  bool EnableRotation() const { return view().EnableRotation; }
  void setEnableRotation(bool v);
  int WaferRotation() const { return view().WaferRotation(); }
  void setWaferRotation(int v) {
    if (const auto taken = short_of(v)) view().WaferRotation(*taken);
  }
  int GridRotation() const { return view().GridRotation(); }
  void setGridRotation(int v) {
    if (const auto taken = short_of(v)) view().GridRotation(*taken);
  }
  int GridInclination() const { return view().GridInclination(); }
  void setGridInclination(int v) {
    if (const auto taken = short_of(v)) view().GridInclination(*taken);
  }

 signals:
  void EnableRotationChanged();
  void WaferRotationChanged();
  void GridRotationChanged();
  void GridInclinationChanged();

 protected:
  using MapWidget::MapWidget;

 private:
  PerspectiveFrame& view() { return frame_as<PerspectiveFrame>(); }
  const PerspectiveFrame& view() const { return frame_as<PerspectiveFrame>(); }
};

}  // namespace mirolen::qt
