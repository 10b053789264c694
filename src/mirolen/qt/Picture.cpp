#include "mirolen/qt/Picture.h"

namespace mirolen::qt {

Picture::Picture(QImage image) : image_(std::move(image)) {
  const QSizeF size = image_.deviceIndependentSize();
  size_ = {size.width(), size.height()};
}

void draw_sharp(QPainter& painter, const QImage& image) {
  painter.save();
  const double ratio = painter.device()->devicePixelRatioF();
  painter.scale(1 / ratio, 1 / ratio);
  painter.drawImage(QRectF(image.rect()), image, QRectF(image.rect()));
  painter.restore();
}

}  // namespace mirolen::qt
