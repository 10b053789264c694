#pragma once

#include "mirolen/qt/CellMap.h"
#include "mirolen/render/Surface.h"

class QPaintDevice;
class QPainter;

namespace mirolen::qt {

/// A Surface of vectors and text: a page of a printer, of a PDF or an SVG file. Nothing on it is made of
/// pixels; sizes and widths count in those of the device. Only a pen that would be too thin to be seen is
/// made wider: a line, a circle or a curve has 0.5 pt at least for each pixel of its width, the outline of a
/// polygon, of which there may be thousands side by side, 0.15 pt in all.
///
/// Boxes without an outline, as the cells of a map are, are painted as CellMap does. What a page cannot do,
/// filling up to a boundary and giving its picture, throws CanvasError.
class PageSurface : public Surface {
 public:
  /// Both stay the caller's; the painter paints on the device, in its pixels.
  PageSurface(QPainter& painter, const QPaintDevice& device);

  /// Gives the painter what is still kept back. To be called before the page ends.
  void end_page() { cells_.end(); }

  SurfaceSize size() const override;
  SurfaceSize twips_per_pixel() const override;
  void clear(Color color) override;
  void line(const Pen& pen, SurfacePoint from, SurfacePoint to) override;
  void rectangle(const Pen& pen, const Brush& brush, const SurfaceBox& box) override;
  void ellipse(const Pen& pen, const Brush& brush, SurfacePoint centre, SurfaceSize radii) override;
  void arc(const Pen& pen, SurfacePoint centre, SurfaceSize radii, double start, double end) override;
  void polygon(const Pen& pen, const Brush& brush, std::span<const PixelPoint> points) override;
  void text(const FontSpec& font, Color color, std::optional<Color> background, SurfacePoint place,
            std::string_view text) override;
  SurfaceSize measure(const FontSpec& font, std::string_view text) const override;
  [[noreturn]] void flood_fill(const Brush& brush, PixelPoint seed, Color boundary) override;
  std::shared_ptr<const Image> snapshot() const override;
  [[noreturn]] void restore(const Image& image) override;
  /// Nothing: nobody sees a page before it ends.
  void refresh() override {}

 private:
  /// The painter, for anything else than cells.
  QPainter& painter();
  QPen line_pen(const Pen& pen) const;
  QPen outline_pen(const Pen& pen) const;
  double pixels_per_point() const;

  QPainter& painter_;
  const QPaintDevice& device_;
  CellMap cells_;
};

}  // namespace mirolen::qt
