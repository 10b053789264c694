#pragma once

#include <QPushButton>

#include "mirolen/qt/ChildView.h"
#include "mirolen/widgets/PictureBox.h"
#include "mirolen/widgets/widgets.h"

// The children of a control as QWidgets, one class a kind. Each paints the state that its widget has now.
namespace mirolen::qt {

/// A box etched into the form, with its caption on the upper edge.
class FrameView : public ChildView {
 public:
  FrameView(QWidget& parent, Frame& frame) : ChildView(parent, frame), frame_(frame) {}

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  void paint_caption(QPainter& painter, const QColor& background) const;
  Frame& frame_;
};

/// A line of text. Unless it has a background of its own, that of its container shines through.
class LabelView : public ChildView {
 public:
  LabelView(QWidget& parent, Label& label) : ChildView(parent, label), label_(label) {}

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  Label& label_;
};

/// A push button; it takes the keyboard's Tab and Space as every button does.
class ButtonView : public QPushButton {
 public:
  ButtonView(QWidget& parent, Button& button);
};

/// A filled box. The mouse goes through it to what holds it.
class ShapeView : public ChildView {
 public:
  ShapeView(QWidget& parent, Shape& shape);

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  Shape& shape_;
};

/// A line over the whole of its container. The mouse goes through it.
class LineView : public ChildView {
 public:
  LineView(QWidget& parent, LineShape& line);

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  LineShape& line_;
};

class PictureView : public ChildView {
 public:
  PictureView(QWidget& parent, PictureBox& box);

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  PictureBox& box_;
};

/// Shows an image, or nothing at all.
class ImageView : public ChildView {
 public:
  ImageView(QWidget& parent, ImageBox& box) : ChildView(parent, box), box_(box) {}

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  const QImage& stretched(const QImage& image, const QSize& device_size);

  ImageBox& box_;
  QImage stretched_;
  qint64 stretched_from_ = 0;
};

}  // namespace mirolen::qt
