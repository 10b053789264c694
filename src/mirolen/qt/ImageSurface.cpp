#include "mirolen/qt/ImageSurface.h"

#include <QFontMetricsF>
#include <QPainter>
#include <algorithm>
#include <cmath>

#include "mirolen/qt/Picture.h"
#include "mirolen/qt/painting.h"
#include "mirolen/qt/pixels.h"
#include "mirolen/qt/translate.h"

namespace mirolen::qt {
namespace {

constexpr qint64 frame_of_a_screen = 16;  // ms

constexpr double largest_edge = 32767;  // the painter's limit, in device pixels

QRgb rgb_of(Color color) { return qcolor_of(color).rgb(); }

}  // namespace

ImageSurface::ImageSurface(SurfaceSize size, double ratio, Show show)
    : size_(size), ratio_(ratio), image_(make_image(ratio)), show_(std::move(show)) {
  clear(0xFFFFFF);
}

QImage ImageSurface::make_image(double ratio) const {
  const double width = std::floor(size_.width * ratio + 0.5), height = std::floor(size_.height * ratio + 0.5);
  if (!(width <= largest_edge && height <= largest_edge)) throw CanvasError("the making of a picture");
  QImage image(std::max(1, static_cast<int>(width)), std::max(1, static_cast<int>(height)),
               QImage::Format_RGB32);
  if (image.isNull()) throw CanvasError("the making of a picture");
  return image;
}

QImage ImageSurface::image() const {
  QImage copy = image_;
  copy.setDevicePixelRatio(ratio_);
  return copy;
}

void ImageSurface::change_ratio(double ratio) {
  if (ratio == ratio_) return;
  const QSize size = make_image(ratio).size();
  image_ = image_.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
  ratio_ = ratio;
}

SurfaceSize ImageSurface::twips_per_pixel() const { return {qt::twips_per_pixel, qt::twips_per_pixel}; }

int ImageSurface::edge(double logical) const {
  return static_cast<int>(in_reach(std::floor(logical * ratio_ + 0.5)));
}

QRect ImageSurface::device_box(const SurfaceBox& box) const {
  const auto [left, right] = std::minmax(box.from.x, box.to.x);
  const auto [top, bottom] = std::minmax(box.from.y, box.to.y);
  return QRect(QPoint(edge(left), edge(top)), QPoint(edge(right + 1) - 1, edge(bottom + 1) - 1));
}

QPointF ImageSurface::centre_of(SurfacePoint pixel) const {
  return {in_reach((pixel.x + 0.5) * ratio_), in_reach((pixel.y + 0.5) * ratio_)};
}

void ImageSurface::clear(Color color) { image_.fill(rgb_of(color)); }

void ImageSurface::line(const Pen& pen, SurfacePoint from, SurfacePoint to) {
  if (!is_drawn(pen)) return;
  const bool upright = from.x == to.x || from.y == to.y;
  if (upright && pen.style == Pen::Style::solid) return upright_line(pen, from, to);
  QPainter painter(&image_);
  painter.setRenderHint(QPainter::Antialiasing, !upright && pen.width == 1);
  painter.setPen(qpen(pen, ratio_));
  painter.drawLine(centre_of(from), centre_of(to));
}

void ImageSurface::upright_line(const Pen& pen, SurfacePoint from, SurfacePoint to) {
  const double before = (pen.width - 1) / 2, behind = pen.width / 2;
  SurfaceBox box{{std::min(from.x, to.x), std::min(from.y, to.y)},
                 {std::max(from.x, to.x), std::max(from.y, to.y)}};
  box.from.x -= before;
  box.from.y -= before;
  box.to.x += behind;
  box.to.y += behind;
  fill_pixels(image_, device_box(box), rgb_of(pen.color));
}

void ImageSurface::rectangle(const Pen& pen, const Brush& brush, const SurfaceBox& box) {
  if (brush.solid) fill_pixels(image_, device_box(box), rgb_of(brush.color));
  if (is_drawn(pen)) outline_box(pen, box);
}

void ImageSurface::outline_box(const Pen& pen, const SurfaceBox& box) {
  const SurfacePoint a = box.from, b{box.to.x, box.from.y}, c = box.to, d{box.from.x, box.to.y};
  line(pen, a, b);
  line(pen, b, c);
  line(pen, c, d);
  line(pen, d, a);
}

void ImageSurface::ellipse(const Pen& pen, const Brush& brush, SurfacePoint centre, SurfaceSize radii) {
  QPainter painter(&image_);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(qpen(pen, ratio_));
  painter.setBrush(qbrush(brush));
  painter.drawEllipse(centre_of(centre), in_reach(radii.width * ratio_), in_reach(radii.height * ratio_));
}

void ImageSurface::arc(const Pen& pen, SurfacePoint centre, SurfaceSize radii, double start, double end) {
  const QPointF middle = centre_of(centre);
  const QPointF reach(in_reach(radii.width * ratio_), in_reach(radii.height * ratio_));
  const QRectF round(middle - reach, middle + reach);
  QPainter(&image_).strokePath(arc_path(round, start, end), qpen(pen, ratio_));
}

void ImageSurface::polygon(const Pen& pen, const Brush& brush, std::span<const PixelPoint> points) {
  if (points.empty()) return;
  const std::optional<UprightBox> box = is_drawn(pen) ? std::nullopt : upright_box(points);
  if (box) {
    const QPoint from(edge(box->from.x), edge(box->from.y)), beyond(edge(box->to.x), edge(box->to.y));
    if (brush.solid) fill_pixels(image_, QRect(from, beyond - QPoint(1, 1)), rgb_of(brush.color));
    return;
  }
  QPolygonF corners;
  for (const auto& [x, y] : points)
    corners << (is_drawn(pen) ? centre_of({double(x), double(y)}) : QPointF(edge(x), edge(y)));
  QPainter painter(&image_);
  painter.setPen(qpen(pen, ratio_));
  painter.setBrush(qbrush(brush));
  painter.drawPolygon(corners);
}

void ImageSurface::text(const FontSpec& font, Color color, std::optional<Color> background,
                        SurfacePoint place, std::string_view text) {
  if (background) {
    const SurfaceSize size = measure(font, text);
    fill_pixels(image_, device_box({place, {place.x + size.width - 1, place.y + size.height - 1}}),
                rgb_of(*background));
  }
  QPainter painter(&image_);
  painter.setFont(font_of(font, image_, ratio_));
  painter.setPen(qcolor_of(color));
  painter.drawText(QPointF(edge(place.x), edge(place.y) + painter.fontMetrics().ascent()),
                   shown_text(font, text));
}

SurfaceSize ImageSurface::measure(const FontSpec& font, std::string_view text) const {
  const QFontMetricsF metrics(font_of(font, image_, ratio_), &image_);
  return {metrics.horizontalAdvance(shown_text(font, text)) / ratio_, metrics.height() / ratio_};
}

void ImageSurface::flood_fill(const Brush& brush, PixelPoint seed, Color boundary) {
  if (!brush.solid) return;
  const QPointF at = centre_of({double(seed.x), double(seed.y)});
  const QPoint pixel(static_cast<int>(std::floor(at.x())), static_cast<int>(std::floor(at.y())));
  flood_pixels(image_, pixel, rgb_of(boundary), rgb_of(brush.color));
}

std::shared_ptr<const Image> ImageSurface::snapshot() const {
  return std::make_shared<Picture>(image(), size_);
}

void ImageSurface::restore(const Image& image) {
  const auto* const picture = dynamic_cast<const Picture*>(&image);
  if (!picture) return;
  // A snapshot may come from a screen with another ratio.
  const QImage& kept = picture->image();
  QPainter painter(&image_);
  painter.setRenderHint(QPainter::SmoothPixmapTransform);
  painter.drawImage(QRectF(QPointF(), kept.deviceIndependentSize() * ratio_), kept, QRectF(kept.rect()));
}

void ImageSurface::refresh() {
  if (!show_) return;
  const bool at_once = !since_shown_.isValid() || since_shown_.hasExpired(frame_of_a_screen);
  show_(at_once);
  if (at_once) since_shown_.start();
}

}  // namespace mirolen::qt
