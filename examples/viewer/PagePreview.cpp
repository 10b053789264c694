#include "PagePreview.h"

#include <QPaintEvent>
#include <QPainter>
#include <algorithm>

#include "mirolen/qt/ImageSurface.h"
#include "mirolen/render/SurfaceCanvas.h"

namespace {

constexpr double pixels_of_point = 96 / 72.0;
constexpr double desk = 16;  // pixels around the sheet
constexpr double shadow = 3;

}  // namespace

PagePreview::PagePreview(QPageLayout layout, Draw draw) : layout_(std::move(layout)), draw_(std::move(draw)) {
  zoom_to(1);
}

void PagePreview::zoom_to(double zoom) {
  zoom_ = std::clamp(zoom, least_zoom, largest_zoom);
  draw_picture();
  resize(sizeHint());
  updateGeometry();
  update();
}

double PagePreview::zoom_for(const QSize& window) const {
  const QSizeF page = layout_.fullRect(QPageLayout::Point).size() * pixels_of_point;
  return std::min((window.width() - 2 * desk) / page.width(), (window.height() - 2 * desk) / page.height());
}

QRectF PagePreview::placed(const QRectF& points) const {
  const double scale = pixels_of_point * zoom_;
  const double left = (width() - layout_.fullRect(QPageLayout::Point).width() * scale) / 2;
  return QRectF(std::floor(left + points.x() * scale), std::floor(desk + points.y() * scale),
                points.width() * scale, points.height() * scale);
}

QSize PagePreview::sizeHint() const {
  const QSizeF page = layout_.fullRect(QPageLayout::Point).size() * (pixels_of_point * zoom_);
  return (page + QSizeF(2 * desk, 2 * desk)).toSize();
}

void PagePreview::draw_picture() {
  screen_ = devicePixelRatioF();
  const QSizeF size = layout_.paintRect(QPageLayout::Point).size() * pixels_of_point;
  try {
    mirolen::qt::ImageSurface surface({size.width(), size.height()}, zoom_ * screen_);
    draw_(std::make_shared<mirolen::SurfaceCanvas>(mirolen::CanvasKind::picture_box, &surface));
    picture_ = surface.pixels();
    error_.clear();
  } catch (const std::exception& error) {
    picture_ = QImage();
    error_ = QString::fromUtf8(error.what());
  }
  picture_.setDevicePixelRatio(screen_);
}

void PagePreview::paintEvent(QPaintEvent*) {
  if (screen_ != devicePixelRatioF()) draw_picture();
  QPainter painter(this);
  const QRectF paper = sheet();
  painter.fillRect(rect(), palette().dark());
  painter.fillRect(paper.translated(shadow, shadow), palette().shadow());
  painter.fillRect(paper, Qt::white);
  painter.setPen(Qt::black);
  painter.drawRect(paper);
  if (error_.isEmpty())
    painter.drawImage(printable().topLeft(), picture_);
  else
    painter.drawText(printable(), Qt::AlignCenter | Qt::TextWordWrap, error_);
}
