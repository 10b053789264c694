#include "mirolen/qt/ImageSurface.h"

#include <QPainter>
#include <QVarLengthArray>
#include <algorithm>
#include <cmath>

#include "mirolen/core/translation.h"
#include "mirolen/qt/DrawnImage.h"
#include "mirolen/qt/FullSpeed.h"
#include "mirolen/qt/Picture.h"
#include "mirolen/qt/painting.h"
#include "mirolen/qt/pixels.h"
#include "mirolen/qt/translate.h"

namespace mirolen::qt {
namespace {

constexpr qint64 between_shows = 30;  // ms

constexpr double largest_edge = 32767;  // the painter's limit, in device pixels

constexpr Brush no_brush{0, false};

QRgb rgb_of(Color color) { return qcolor_of(color).rgb(); }

}  // namespace

ImageSurface::ImageSurface(SurfaceSize size, double ratio, Show show)
    : size_(size), image_(std::make_unique<DrawnImage>(make_image(ratio), ratio)), show_(std::move(show)) {
  clear(0xFFFFFF);
}

ImageSurface::~ImageSurface() = default;

QImage ImageSurface::make_image(double ratio) const {
  const double width = std::floor(size_.width * ratio + 0.5), height = std::floor(size_.height * ratio + 0.5);
  if (!(width <= largest_edge && height <= largest_edge))
    throw CanvasError(mirolen::tr("the making of a picture"));
  QImage image(std::max(1, static_cast<int>(width)), std::max(1, static_cast<int>(height)),
               QImage::Format_RGB32);
  if (image.isNull()) throw CanvasError(mirolen::tr("the making of a picture"));
  return image;
}

QImage ImageSurface::image() const {
  QImage copy = pixels();
  copy.setDevicePixelRatio(ratio());
  return copy;
}

const QImage& ImageSurface::pixels() const { return image_->settled(); }

double ImageSurface::ratio() const { return image_->ratio(); }

void ImageSurface::change_ratio(double ratio) {
  if (ratio == this->ratio()) return;
  const QSize size = make_image(ratio).size();
  image_ = std::make_unique<DrawnImage>(
      pixels().scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation), ratio);
}

SurfaceSize ImageSurface::twips_per_pixel() const { return {qt::twips_per_pixel, qt::twips_per_pixel}; }

QRect ImageSurface::device_box(const SurfaceBox& box) const {
  const auto [left, right] = std::minmax(box.from.x, box.to.x);
  const auto [top, bottom] = std::minmax(box.from.y, box.to.y);
  return QRect(QPoint(image_->edge(left), image_->edge(top)),
               QPoint(image_->edge(right + 1) - 1, image_->edge(bottom + 1) - 1));
}

QPointF ImageSurface::centre_of(SurfacePoint pixel) const {
  return {in_reach((pixel.x + 0.5) * ratio()), in_reach((pixel.y + 0.5) * ratio())};
}

void ImageSurface::clear(Color color) {
  const FullSpeedAfterPainting guard;
  image_->settled().fill(rgb_of(color));
  since_shown_.start();  // an empty picture would only flicker
}

void ImageSurface::line(const Pen& pen, SurfacePoint from, SurfacePoint to) {
  const FullSpeedAfterPainting guard;
  if (!is_drawn(pen)) return;
  const bool upright = from.x == to.x || from.y == to.y;
  if (upright && pen.style == Pen::Style::solid) return upright_line(pen, from, to);
  image_->painter(pen, no_brush, !upright && pen.width == 1).drawLine(centre_of(from), centre_of(to));
}

void ImageSurface::upright_line(const Pen& pen, SurfacePoint from, SurfacePoint to) {
  const double before = (pen.width - 1) / 2, behind = pen.width / 2;
  SurfaceBox box{{std::min(from.x, to.x), std::min(from.y, to.y)},
                 {std::max(from.x, to.x), std::max(from.y, to.y)}};
  box.from.x -= before;
  box.from.y -= before;
  box.to.x += behind;
  box.to.y += behind;
  image_->fill(device_box(box), pen.color);
}

void ImageSurface::rectangle(const Pen& pen, const Brush& brush, const SurfaceBox& box) {
  if (brush.solid) image_->fill(device_box(box), brush.color);
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
  const FullSpeedAfterPainting guard;
  image_->painter(pen, brush, true)
      .drawEllipse(centre_of(centre), in_reach(radii.width * ratio()), in_reach(radii.height * ratio()));
}

void ImageSurface::arc(const Pen& pen, SurfacePoint centre, SurfaceSize radii, double start, double end) {
  const FullSpeedAfterPainting guard;
  const QPointF middle = centre_of(centre);
  const QPointF reach(in_reach(radii.width * ratio()), in_reach(radii.height * ratio()));
  const QRectF round(middle - reach, middle + reach);
  QPainter(&image_->settled()).strokePath(arc_path(round, start, end), qpen(pen, ratio()));
}

void ImageSurface::polygon(const Pen& pen, const Brush& brush, std::span<const PixelPoint> points) {
  if (points.empty()) return;
  if (!is_drawn(pen)) {
    if (!brush.solid) return;
    if (const std::optional<UprightBox> box = upright_box(points)) return image_->add({*box, brush.color});
  }
  const FullSpeedAfterPainting guard;
  QVarLengthArray<QPointF, 4> corners;
  for (const auto& [x, y] : points)
    corners << (is_drawn(pen) ? centre_of({double(x), double(y)})
                              : QPointF(image_->edge(x), image_->edge(y)));
  image_->painter(pen, brush, false).drawPolygon(corners.data(), static_cast<int>(corners.size()));
}

void ImageSurface::text(const FontSpec& font, Color color, std::optional<Color> background,
                        SurfacePoint place, std::string_view text) {
  const FullSpeedAfterPainting guard;
  if (background) {
    const SurfaceSize size = measure(font, text);
    image_->fill(device_box({place, {place.x + size.width - 1, place.y + size.height - 1}}), *background);
  }
  const QString& shown = image_->font(font).text(text).shown;
  QPainter& painter = image_->text_painter(color);
  painter.drawText(QPointF(image_->edge(place.x), image_->edge(place.y) + painter.fontMetrics().ascent()),
                   shown);
}

SurfaceSize ImageSurface::measure(const FontSpec& font, std::string_view text) const {
  ShownFont& shown = image_->font(font);
  return {shown.text(text).width / ratio(), shown.height() / ratio()};
}

void ImageSurface::flood_fill(const Brush& brush, PixelPoint seed, Color boundary) {
  if (!brush.solid) return;
  const QPointF at = centre_of({double(seed.x), double(seed.y)});
  const QPoint pixel(static_cast<int>(std::floor(at.x())), static_cast<int>(std::floor(at.y())));
  flood_pixels(image_->settled(), pixel, rgb_of(boundary), rgb_of(brush.color));
}

std::shared_ptr<const Image> ImageSurface::snapshot() const {
  return std::make_shared<Picture>(image(), size_);
}

void ImageSurface::restore(const Image& image) {
  const FullSpeedAfterPainting guard;
  const auto* const picture = dynamic_cast<const Picture*>(&image);
  if (!picture) return;
  // A snapshot may come from a screen with another ratio.
  const QImage& kept = picture->image();
  QPainter painter(&image_->settled());
  painter.setRenderHint(QPainter::SmoothPixmapTransform);
  painter.drawImage(QRectF(QPointF(), kept.deviceIndependentSize() * ratio()), kept, QRectF(kept.rect()));
}

void ImageSurface::refresh() {
  const FullSpeedAfterPainting guard;
  if (!show_) return;
  const bool at_once = since_shown_.hasExpired(between_shows);
  show_(at_once);
  if (at_once) since_shown_.start();
}

}  // namespace mirolen::qt
