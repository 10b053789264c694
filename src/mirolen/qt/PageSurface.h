#pragma once

#include <optional>

#include "mirolen/qt/painting.h"
#include "mirolen/render/Surface.h"

class QPaintDevice;
class QPainter;

namespace mirolen::qt {

/// A Surface of vectors and text: a page of a printer, of a PDF or an SVG file. Nothing on it is made of
/// pixels; sizes and widths count in those of the device.
///
/// Boxes without an outline that lie side by side in one colour, as the cells of a map do, become one. What a
/// page cannot do, filling up to a boundary and giving its picture, throws CanvasError.
class PageSurface : public Surface {
 public:
  /// Both stay the caller's; the painter paints on the device, in its pixels.
  PageSurface(QPainter& painter, const QPaintDevice& device);
  /// What the surface still keeps back goes to the painter with `refresh`, before the page ends.

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
  void refresh() override;

 private:
  struct Run {
    UprightBox box;
    Color color;
  };

  /// Whether the box belongs to the run that is kept back, which then has it.
  bool extend_run(const UprightBox& box, Color color);
  QPainter& painter();

  QPainter& painter_;
  const QPaintDevice& device_;
  std::optional<Run> run_;
};

}  // namespace mirolen::qt
