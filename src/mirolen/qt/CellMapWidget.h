#pragma once

#include "mirolen/controls/CellMapFrame.h"
#include "mirolen/qt/MapWidget.h"

namespace mirolen::qt {

/// What the faces of the colour map and the sigma map share.
class CellMapWidget : public MapWidget {
  Q_OBJECT
  Q_PROPERTY(double Resolution READ Resolution WRITE setResolution NOTIFY ResolutionChanged)
  Q_PROPERTY(Sites ShowSites READ ShowSites WRITE setShowSites NOTIFY ShowSitesChanged)

 public:
  enum Sites : int { ShowSite = -1, HideSite = 0 };
  Q_ENUM(Sites)

  double Resolution() const { return frame_as<CellMapFrame>().Resolution(); }
  void setResolution(double v) { frame_as<CellMapFrame>().Resolution(v); }
  Sites ShowSites() const { return static_cast<Sites>(frame_as<CellMapFrame>().ShowSites()); }
  void setShowSites(Sites v) { frame_as<CellMapFrame>().ShowSites(static_cast<mirolen::Sites>(v)); }

 signals:
  void ResolutionChanged();
  void ShowSitesChanged();

 protected:
  using MapWidget::MapWidget;
};

}  // namespace mirolen::qt
