#pragma once

#include <QImage>
#include <QPainter>

#include "mirolen/render/Surface.h"

namespace mirolen::qt {

/// A picture of this toolkit: a snapshot of a surface or an image of the host.
class Picture : public Image {
 public:
  /// @param image in device pixels, with its devicePixelRatio set.
  explicit Picture(QImage image);
  /// The same with the size in logical pixels that was asked for, before it was rounded to device pixels.
  Picture(QImage image, SurfaceSize size) : image_(std::move(image)), size_(size) {}

  const QImage& image() const { return image_; }
  SurfaceSize size() const override { return size_; }

 private:
  QImage image_;
  SurfaceSize size_;
};

/// Draws an image at the origin of the painter, one pixel of it on one pixel of the device.
void draw_sharp(QPainter& painter, const QImage& image);

}  // namespace mirolen::qt
