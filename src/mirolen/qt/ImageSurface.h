#pragma once

#include <QElapsedTimer>
#include <QImage>
#include <functional>
#include <memory>

#include "mirolen/render/Surface.h"

namespace mirolen::qt {

class DrawnImage;

/// A Surface on an image. It is drawn on in logical pixels; the image holds the pixels of the screen, so that
/// a picture is sharp at every ratio of the two.
///
/// What fills an area (cells, boxes, upright lines) has hard edges, the same for neighbours that share one.
/// So have arcs and wide lines, which a flood fill may lean on. Discs, thin slanted lines and text are
/// smoothed.
class ImageSurface : public Surface {
 public:
  /// Shows the picture on the screen: at once, or as soon as events are handled.
  using Show = std::function<void(bool at_once)>;

  /// @param size in logical pixels, each edge 1 at least. @param ratio device pixels of a logical pixel.
  /// @throws CanvasError for more than 32,767 device pixels in an edge, or than the memory holds.
  ImageSurface(SurfaceSize size, double ratio, Show show = {});
  ~ImageSurface() override;

  /// A copy of the picture in device pixels, with its devicePixelRatio set.
  QImage image() const;
  /// The picture itself, with a devicePixelRatio of 1, up to the next drawing.
  const QImage& pixels() const;
  double ratio() const;
  /// Moves to a screen with another ratio; what is drawn stays, only less sharp, until it is drawn anew.
  void change_ratio(double ratio);

  SurfaceSize size() const override { return size_; }
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
  void flood_fill(const Brush& brush, PixelPoint seed, Color boundary) override;
  /// A Picture.
  std::shared_ptr<const Image> snapshot() const override;
  void restore(const Image& image) override;
  /// Shows at once how a long drawing grows, every 30 ms; in between it leaves that to the event loop.
  void refresh() override;

 private:
  QImage make_image(double ratio) const;
  QRect device_box(const SurfaceBox& box) const;
  QPointF centre_of(SurfacePoint pixel) const;
  void upright_line(const Pen& pen, SurfacePoint from, SurfacePoint to);
  void outline_box(const Pen& pen, const SurfaceBox& box);

  SurfaceSize size_;
  std::unique_ptr<DrawnImage> image_;
  Show show_;
  QElapsedTimer since_shown_;
};

}  // namespace mirolen::qt
