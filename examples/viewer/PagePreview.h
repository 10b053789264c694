#pragma once

#include <QImage>
#include <QPageLayout>
#include <QWidget>
#include <functional>
#include <memory>

#include "mirolen/render/PlotCanvas.h"

/// A page on its sheet of paper. Its picture is drawn anew for each zoom and each screen, so that it is
/// always sharp.
class PagePreview : public QWidget {
 public:
  /// Prints the page on a canvas. What it throws is shown in place of the page.
  using Draw = std::function<void(const std::shared_ptr<mirolen::PlotCanvas>&)>;

  PagePreview(QPageLayout layout, Draw draw);

  static constexpr double least_zoom = 0.25, largest_zoom = 3;
  double zoom() const { return zoom_; }
  /// 1 shows an inch as 96 pixels. Beyond the limits it becomes the nearest.
  void zoom_to(double zoom);
  /// The zoom that shows the whole sheet in a window of a size.
  double zoom_for(const QSize& window) const;

  /// What can be printed on, in device pixels.
  const QImage& picture() const { return picture_; }
  /// The sheet and what can be printed on, in this widget.
  QRectF sheet() const { return placed(layout_.fullRect(QPageLayout::Point)); }
  QRectF printable() const { return placed(layout_.paintRect(QPageLayout::Point)); }

  QSize sizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  QRectF placed(const QRectF& points) const;
  void draw_picture();

  QPageLayout layout_;
  Draw draw_;
  double zoom_ = 1;
  double screen_ = 1;  // device pixels of a pixel when the picture was drawn
  QImage picture_;
  QString error_;
};
