#pragma once

#include <QImage>
#include <QPainter>
#include <optional>

#include "mirolen/qt/ShownFont.h"
#include "mirolen/qt/painting.h"

namespace mirolen::qt {

/// An image that is drawn on in many small calls. Cells side by side in one colour are filled as one, and a
/// painter stays at work, with its pen, brush and font, from one call to the next; the pixels are those of a
/// painter and a box for each call.
class DrawnImage {
 public:
  /// @param image in 32 bits a pixel, with a devicePixelRatio of 1. @param ratio its pixels of a logical one.
  DrawnImage(QImage image, double ratio) : image_(std::move(image)), ratio_(ratio) {}

  double ratio() const { return ratio_; }
  /// The device pixel that a logical edge lies at.
  int edge(double logical) const;

  /// The image with all that was drawn, for any use up to the next call.
  QImage& settled();
  /// Fills a cell, in logical pixels, now or later.
  void add(const Cell& cell);
  /// Fills a box of device pixels.
  void fill(const QRect& box, Color color);
  /// A painter for the next drawing, in device pixels.
  QPainter& painter(const Pen& pen, const Brush& brush, bool smooth);
  /// A font for the next text.
  ShownFont& font(const FontSpec& wanted);
  /// A painter for the next text, in the font that was asked for last.
  QPainter& text_painter(Color color);

 private:
  void end_run();

  QImage image_;
  double ratio_;
  std::optional<Cell> run_;  // kept back
  std::optional<QPainter> painter_;
  Pen pen_;  // the painter's
  Brush brush_;
  std::optional<ShownFont> font_;
  bool in_font_ = false;  // whether it is the painter's
};

}  // namespace mirolen::qt
