#pragma once

#include "mirolen/controls/SurfaceFrame.h"
#include "mirolen/qt/PerspectiveWidget.h"

namespace mirolen::qt {

/// What the faces of the surface and the sigma surface share.
class SurfaceWidget : public PerspectiveWidget {
  Q_OBJECT
  Q_PROPERTY(double XResolution READ XResolution WRITE setXResolution NOTIFY XResolutionChanged)
  Q_PROPERTY(double YResolution READ YResolution WRITE setYResolution NOTIFY YResolutionChanged)
  Q_PROPERTY(int PlotScale READ PlotScale WRITE setPlotScale NOTIFY PlotScaleChanged)

 public:
  double XResolution() const { return surface().XResolution(); }
  void setXResolution(double v) { surface().XResolution(v); }
  double YResolution() const { return surface().YResolution(); }
  void setYResolution(double v) { surface().YResolution(v); }
  int PlotScale() const { return surface().PlotScale(); }
  void setPlotScale(int v) {
    if (const auto taken = short_of(v)) surface().PlotScale(*taken);
  }

 signals:
  void XResolutionChanged();
  void YResolutionChanged();
  void PlotScaleChanged();

 protected:
  using PerspectiveWidget::PerspectiveWidget;

 private:
  SurfaceFrame& surface() { return frame_as<SurfaceFrame>(); }
  const SurfaceFrame& surface() const { return frame_as<SurfaceFrame>(); }
};

}  // namespace mirolen::qt
