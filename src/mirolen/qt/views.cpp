#include "mirolen/qt/views.h"

#include <QFontMetrics>
#include <QPaintEvent>
#include <QPainter>
#include <QStyle>

#include "mirolen/qt/FormView.h"
#include "mirolen/qt/ImageSurface.h"
#include "mirolen/qt/Picture.h"
#include "mirolen/qt/captions.h"
#include "mirolen/qt/peers.h"
#include "mirolen/qt/translate.h"

namespace mirolen::qt {
namespace {

QColor own_background(const Widget& widget) { return qcolor_of(widget.toolkit().resolve(widget.BackColor)); }

/// The background that is seen behind a widget which has none of its own.
QColor seen_background(const Widget& widget) {
  const Widget* shown = &widget;
  while (shown->BackColor == button_face && shown->container()) shown = shown->container();
  return own_background(*shown);
}

/// The colour of a text on a background. The grey of what takes no input can be read too, whatever the
/// palette has for it.
QColor text_color(const QWidget& view, const QColor& background) {
  const QColor text = readable_on(background, view.palette().color(QPalette::Active, QPalette::WindowText));
  if (view.isEnabled()) return text;
  const auto middle = [](int one, int other) { return (one + other) / 2; };
  return QColor(middle(text.red(), background.red()), middle(text.green(), background.green()),
                middle(text.blue(), background.blue()));
}

constexpr int caption_indent = 8, caption_gap = 2;

/// The four edges of a box, filled: a drawn line may fall off the widget where a logical pixel is a broken
/// number of the screen's.
void fill_edges(QPainter& painter, const QRect& box, const QColor& color) {
  painter.fillRect(QRect(box.left(), box.top(), box.width(), 1), color);
  painter.fillRect(QRect(box.left(), box.bottom(), box.width(), 1), color);
  painter.fillRect(QRect(box.left(), box.top(), 1, box.height()), color);
  painter.fillRect(QRect(box.right(), box.top(), 1, box.height()), color);
}

/// A line through the middle of its pixels.
QLineF in_pixels(const LineShape& line) {
  const auto* const picture = dynamic_cast<const PictureBox*>(line.container());
  const double unit = picture && picture->ScaleMode() == pixels ? 1 : 1 / twips_per_pixel;
  const QSizeF scale = stretch_in(*line.container()) * unit;
  return QLineF(line.X1 * scale.width(), line.Y1 * scale.height(), line.X2 * scale.width(),
                line.Y2 * scale.height())
      .translated(0.5, 0.5);
}

}  // namespace

void FrameView::show_state() {
  setFont(text_font(frame_, *this));
  setAccessibleName(text_of(frame_.Caption.get()));
  if (is_on_form(frame_))
    fitted(*this, with_mnemonic(text_of(frame_.Caption.get()), 0),
           width() - 2 * (caption_indent + caption_gap));
}

QSize FrameView::needed_size() const {
  return size_of_text(font(), *this, with_mnemonic(text_of(frame_.Caption.get()), 0)) +
         QSize(2 * (caption_indent + caption_gap), 0);
}

void FrameView::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  const QColor background = own_background(frame_);
  painter.fillRect(rect(), background);
  if (!frame_.Border) return;
  const int top = frame_.Caption.get().empty() ? 0 : QFontMetrics(font(), this).height() / 2;
  const QRect edges(0, top, width() - 1, height() - 1 - top);
  const bool dark = background.lightnessF() < 0.5;
  fill_edges(painter, edges.translated(1, 1), dark ? background.darker(180) : background.lighter(130));
  fill_edges(painter, edges, dark ? background.lighter(180) : background.darker(150));
  paint_caption(painter, background);
}

void FrameView::paint_caption(QPainter& painter, const QColor& background) const {
  const QFontMetrics metrics(font(), painter.device());
  const QString text = metrics.elidedText(text_of(frame_.Caption.get()), Qt::ElideRight,
                                          width() - 2 * (caption_indent + caption_gap));
  if (text.isEmpty()) return;
  const QRect place(caption_indent, 0, metrics.horizontalAdvance(text), metrics.height());
  painter.fillRect(place.adjusted(-caption_gap, 0, caption_gap, 0), background);
  painter.setPen(text_color(*this, background));
  painter.drawText(QPoint(place.left(), metrics.ascent()), text);
}

QString LabelView::text() const {
  return with_mnemonic(shown_text(label_.Font, label_.Caption.get()), label_.AccessKey);
}

void LabelView::show_state() {
  setFont(text_font(label_, *this, label_.Font));
  shown_ = is_on_form(label_) ? fitted(*this, text(), width()) : text();
  listen_for(QKeySequence::mnemonic(text()));
}

QSize LabelView::needed_size() const {
  return size_of_text(font(), *this, text()) + QSize(QFontMetrics(font(), this).horizontalAdvance(' '), 0);
}

void LabelView::listen_for(const QKeySequence& keys) {
  if (keys == keys_) return;
  if (!keys_.isEmpty()) releaseShortcut(shortcut_);
  keys_ = keys;
  if (!keys_.isEmpty()) shortcut_ = grabShortcut(keys_);
}

bool LabelView::event(QEvent* event) {
  if (event->type() != QEvent::Shortcut) return ChildView::event(event);
  bool behind = false;
  for (const Widget* widget : label_.container()->children()) {
    QWidget* const view = behind ? view_of(*widget) : nullptr;
    behind = behind || widget == &label_;
    if (!view || view->focusPolicy() == Qt::NoFocus) continue;
    view->setFocus(Qt::ShortcutFocusReason);
    break;
  }
  return true;
}

void LabelView::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  const QColor background = seen_background(label_);
  if (label_.BackColor != button_face) painter.fillRect(rect(), background);
  painter.setPen(text_color(*this, background));
  const bool marks_key = style()->styleHint(QStyle::SH_UnderlineShortcut, nullptr, this);
  const auto align = (label_.Centered ? Qt::AlignHCenter : Qt::AlignLeft) | Qt::AlignVCenter;
  const auto key = marks_key ? Qt::TextShowMnemonic : Qt::TextHideMnemonic;
  painter.drawText(rect(), static_cast<int>(align) | Qt::TextDontClip | key, shown_);
}

void ShapeView::show_state() {
  setAttribute(Qt::WA_TransparentForMouseEvents, shape_.Look == Shape::Form::rectangle);
}

void ShapeView::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  if (shape_.Look == Shape::Form::cross) return paint_cross(painter);
  painter.fillRect(rect(), Qt::black);
  painter.fillRect(rect().adjusted(1, 1, -1, -1), own_background(shape_));
}

/// A black plus with a white edge, as the plots mark sites: of one size, in the middle of the widget.
void ShapeView::paint_cross(QPainter& painter) const {
  constexpr int length = 13, edge = 2;
  const QPoint middle(width() / 2, height() / 2);
  const auto bars = [&](int reach, int thickness, const QColor& color) {
    QRect upright(0, 0, thickness, reach), level(0, 0, reach, thickness);
    for (QRect* bar : {&upright, &level}) {
      bar->moveCenter(middle);
      painter.fillRect(*bar, color);
    }
  };
  bars(length, 1 + 2 * edge, Qt::white);
  bars(length - 2 * edge, 1, Qt::black);
}

LineView::LineView(QWidget& parent, LineShape& line) : ChildView(parent, line), line_(line) {
  setAttribute(Qt::WA_TransparentForMouseEvents);
}

QRect LineView::place_of(const LineShape& line) {
  const QLineF pixels = in_pixels(line);
  return QRectF(pixels.p1(), pixels.p2()).normalized().toAlignedRect().adjusted(-1, -1, 1, 1);
}

void LineView::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.translate(-pos());
  painter.setRenderHint(QPainter::Antialiasing, line_.X1 != line_.X2 && line_.Y1 != line_.Y2);
  painter.setPen(QPen(Qt::black, 1));
  painter.drawLine(in_pixels(line_));
}

PictureView::PictureView(QWidget& parent, PictureBox& box) : ChildView(parent, box), box_(box) {
  setAttribute(Qt::WA_OpaquePaintEvent);
}

void PictureView::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.fillRect(rect(), own_background(box_));
  try {
    if (const auto* surface = dynamic_cast<const ImageSurface*>(box_.device()))
      draw_sharp(painter, surface->pixels());
  } catch (const RunTimeError&) {
    // No picture could be made; its background stands in for it.
  }
}

void ImageView::paintEvent(QPaintEvent*) {
  const auto* picture = dynamic_cast<const Picture*>(box_.Picture.get().get());
  if (!picture) return;
  QPainter painter(this);
  if (!box_.Stretch) return painter.drawImage(QPointF(0, 0), picture->image());
  draw_sharp(painter, stretched(picture->image(), (QSizeF(size()) * devicePixelRatioF()).toSize()));
}

const QImage& ImageView::stretched(const QImage& image, const QSize& device_size) {
  if (stretched_from_ != image.cacheKey() || stretched_.size() != device_size) {
    stretched_ = image.scaled(device_size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    stretched_from_ = image.cacheKey();
  }
  return stretched_;
}

}  // namespace mirolen::qt
