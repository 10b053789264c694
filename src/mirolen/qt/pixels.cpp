#include "mirolen/qt/pixels.h"

#include <algorithm>
#include <vector>

namespace mirolen::qt {
namespace {

/// One fill: runs of pixels that wait, and what has been filled, since the fill may have a colour of the
/// region.
class Flood {
 public:
  Flood(QImage& image, QRgb boundary, QRgb color)
      : image_(image),
        boundary_(boundary),
        color_(color),
        filled_(static_cast<std::size_t>(image.width()) * static_cast<std::size_t>(image.height())) {}

  void run(QPoint seed) {
    waiting_.push_back(seed);
    while (!waiting_.empty()) {
      const QPoint next = waiting_.back();
      waiting_.pop_back();
      if (is_open(next.x(), next.y())) fill_row(next);
    }
  }

 private:
  std::size_t place(int x, int y) const {
    return static_cast<std::size_t>(y) * static_cast<std::size_t>(image_.width()) +
           static_cast<std::size_t>(x);
  }
  bool is_open(int x, int y) const {
    return image_.valid(x, y) && !filled_[place(x, y)] && image_.pixel(x, y) != boundary_;
  }

  void fill_row(QPoint at) {
    int left = at.x(), right = at.x();
    while (is_open(left - 1, at.y())) --left;
    while (is_open(right + 1, at.y())) ++right;
    for (int x = left; x <= right; ++x) filled_[place(x, at.y())] = true;
    fill_pixels(image_, QRect(QPoint(left, at.y()), QPoint(right, at.y())), color_);
    add_runs(left, right, at.y() - 1);
    add_runs(left, right, at.y() + 1);
  }

  void add_runs(int left, int right, int y) {
    for (int x = left; x <= right; ++x)
      if (is_open(x, y) && (x == left || !is_open(x - 1, y))) waiting_.emplace_back(x, y);
  }

  QImage& image_;
  QRgb boundary_, color_;
  std::vector<bool> filled_;
  std::vector<QPoint> waiting_;
};

}  // namespace

void fill_pixels(QImage& image, const QRect& rectangle, QRgb color) {
  const QRect area = rectangle & image.rect();
  if (area.isEmpty()) return;
  const qsizetype pitch = image.bytesPerLine();
  uchar* line = image.scanLine(area.top());
  for (int y = area.top(); y <= area.bottom(); ++y, line += pitch)
    std::fill_n(reinterpret_cast<QRgb*>(line) + area.left(), area.width(), color);
}

void flood_pixels(QImage& image, QPoint seed, QRgb boundary, QRgb color) {
  Flood(image, boundary, color).run(seed);
}

}  // namespace mirolen::qt
