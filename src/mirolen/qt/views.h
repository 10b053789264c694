#pragma once

#include <QKeySequence>
#include <QLineF>

#include "mirolen/qt/ChildView.h"
#include "mirolen/qt/StateView.h"
#include "mirolen/widgets/PictureBox.h"
#include "mirolen/widgets/widgets.h"

// The children of a control as QWidgets, one class a kind. Each paints the state that its widget has now.
namespace mirolen::qt {

/// A box etched into the form, with its caption on the upper edge.
class FrameView : public ChildView, public StateView, public TextView {
 public:
  FrameView(QWidget& parent, Frame& frame) : ChildView(parent, frame), frame_(frame) {}
  void show_state() override;
  /// What its caption needs.
  QSize needed_size() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  void paint_caption(QPainter& painter, const QColor& background) const;
  Frame& frame_;
};

/// Text, in as many lines as it has. Unless it has a background of its own, that of its container shines
/// through. Its access key takes the focus to the next widget of its container that can have it.
class LabelView : public ChildView, public StateView, public TextView {
 public:
  LabelView(QWidget& parent, Label& label) : ChildView(parent, label), label_(label) {}
  void show_state() override;
  /// With a blank between the text and what is beside it.
  QSize needed_size() const override;

 protected:
  bool event(QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  QString text() const;
  void listen_for(const QKeySequence& keys);

  Label& label_;
  QString shown_;
  QKeySequence keys_;
  int shortcut_ = 0;
};

/// A filled box, through which the mouse goes to what holds it, or a cross, which has a tool tip to show.
class ShapeView : public ChildView, public StateView {
 public:
  ShapeView(QWidget& parent, Shape& shape) : ChildView(parent, shape), shape_(shape) {}
  void show_state() override;

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  void paint_cross(QPainter& painter) const;

  Shape& shape_;
};

/// A line, in the pixels of what holds it.
class LineView : public ChildView {
 public:
  LineView(QWidget& parent, LineShape& line);
  /// Where a line lies in its container, with room for its width.
  static QRect place_of(const LineShape& line);

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
