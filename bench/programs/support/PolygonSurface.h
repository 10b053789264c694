#pragma once

#include <QPaintDevice>
#include <QPainter>

#include "support/NullSurface.h"

namespace mirolen::bench {

/// The plain device for maps, on a picture or on a page: each cell is one QPainter::drawPolygon, nothing is
/// merged and nothing is known about boxes. Of the other calls it draws those that a map and a surface make.
class PolygonSurface : public NullSurface {
 public:
  /// The painter stays the caller's.
  explicit PolygonSurface(QPainter& painter)
      : NullSurface({double(painter.device()->width()), double(painter.device()->height())}),
        painter_(painter) {}

  SurfaceSize twips_per_pixel() const override {
    return {1440.0 / painter_.device()->logicalDpiX(), 1440.0 / painter_.device()->logicalDpiY()};
  }
  void clear(Color color) override;
  void ellipse(const Pen& pen, const Brush& brush, SurfacePoint centre, SurfaceSize radii) override;
  void polygon(const Pen& pen, const Brush& brush, std::span<const PixelPoint> points) override;

 private:
  QPainter& painter_;
};

}  // namespace mirolen::bench
