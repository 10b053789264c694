#pragma once

#include <QImage>
#include <QPoint>
#include <QRect>

// Work on the single pixels of an image in 32 bits a pixel.
namespace mirolen::qt {

/// Fills the part of a rectangle that lies on the image.
void fill_pixels(QImage& image, const QRect& rectangle, QRgb color);

/// Fills the region round a seed as far as pixels of the boundary's colour, which stay. Nothing happens where
/// the seed lies on the boundary or outside. Cost: linear in the region.
void flood_pixels(QImage& image, QPoint seed, QRgb boundary, QRgb color);

}  // namespace mirolen::qt
