#include "mirolen/qt/DrawnImage.h"

#include <cmath>

#include "mirolen/qt/pixels.h"
#include "mirolen/qt/translate.h"

namespace mirolen::qt {

int DrawnImage::edge(double logical) const {
  return static_cast<int>(in_reach(std::floor(logical * ratio_ + 0.5)));
}

QImage& DrawnImage::settled() {
  end_run();
  painter_.reset();
  font_.reset();  // the fonts of the application may change up to the next text
  return image_;
}

void DrawnImage::add(const Cell& cell) {
  if (run_ && extend(*run_, cell)) return;
  end_run();
  run_ = cell;
}

void DrawnImage::end_run() {
  if (!run_) return;
  const auto& [from, to] = run_->box;
  const QPoint first(edge(from.x), edge(from.y)), beyond(edge(to.x), edge(to.y));
  fill_pixels(image_, QRect(first, beyond - QPoint(1, 1)), qcolor_of(run_->color).rgb());
  run_.reset();
}

void DrawnImage::fill(const QRect& box, Color color) {
  end_run();
  fill_pixels(image_, box, qcolor_of(color).rgb());
}

QPainter& DrawnImage::painter(const Pen& pen, const Brush& brush, bool smooth) {
  end_run();
  const bool fresh = !painter_;
  if (fresh) painter_.emplace(&image_);
  if (fresh || pen != pen_) painter_->setPen(qpen(pen, ratio_));
  if (fresh || brush != brush_) painter_->setBrush(qbrush(brush));
  pen_ = pen;
  brush_ = brush;
  if (painter_->testRenderHint(QPainter::Antialiasing) != smooth)
    painter_->setRenderHint(QPainter::Antialiasing, smooth);
  return *painter_;
}

ShownFont& DrawnImage::font(const FontSpec& wanted) {
  if (!font_ || font_->wanted() != wanted) {
    font_.emplace(wanted, image_, ratio_);
    in_font_ = false;
  }
  return *font_;
}

QPainter& DrawnImage::text_painter(Color color) {
  QPainter& writing = painter({color}, {0, false}, false);
  if (!in_font_) writing.setFont(font_->font());
  in_font_ = true;
  return writing;
}

}  // namespace mirolen::qt
