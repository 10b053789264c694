#include "mirolen/qt/peers.h"

#include "mirolen/qt/button_views.h"
#include "mirolen/qt/captions.h"
#include "mirolen/qt/input_views.h"
#include "mirolen/qt/translate.h"
#include "mirolen/qt/views.h"

namespace mirolen::qt {
namespace {

QRect told_place(const Widget& widget) {
  return QRect(pixels_of(widget.Left), pixels_of(widget.Top), pixels_of(widget.Width),
               pixels_of(widget.Height));
}

/// The picture on which a cross marks a place, one of its siblings; null for none.
const Widget* picture_under(const Widget& widget) {
  const auto* mark = dynamic_cast<const Shape*>(&widget);
  if (!mark || mark->Look != Shape::Form::cross) return nullptr;
  for (const Widget* sibling : widget.container()->children())
    if (sibling->kind() == WidgetKind::picture_box) return sibling;
  return nullptr;
}

/// Both edges are rounded, so that neighbours meet. What shows an image keeps the size in pixels of that
/// instead, in the middle of its place, and takes its mark along.
QRect place_of(const Widget& widget) {
  if (const auto* line = dynamic_cast<const LineShape*>(&widget)) return LineView::place_of(*line);
  if (const Widget* picture = picture_under(widget))
    return told_place(widget).translated(place_of(*picture).topLeft() - told_place(*picture).topLeft());
  const QSizeF stretch = stretch_in(*widget.container());
  const double left = widget.Left * stretch.width(), width = widget.Width * stretch.width();
  const double top = widget.Top * stretch.height(), height = widget.Height * stretch.height();
  if (widget.kind() == WidgetKind::picture_box || widget.kind() == WidgetKind::image_box)
    return QRect(pixels_of(left + (width - widget.Width) / 2), pixels_of(top + (height - widget.Height) / 2),
                 pixels_of(widget.Width), pixels_of(widget.Height));
  const QPoint from(pixels_of(left), pixels_of(top)), to(pixels_of(left + width), pixels_of(top + height));
  return QRect(from, to - QPoint(1, 1));
}

class ChildPeer : public ViewPeer {
 public:
  ChildPeer(Widget& widget, QWidget* view) : widget_(widget), view_(view) {}
  ~ChildPeer() override { delete view_.data(); }

  QWidget* view() const override { return view_; }

  void changed() override {
    if (!view_) return;
    view_->setGeometry(place_of(widget_));
    view_->setVisible(widget_.Visible);
    view_->setEnabled(widget_.Enabled);
    view_->setToolTip(plain_tip(text_of(widget_.ToolTipText.get())));
    if (auto* state = dynamic_cast<StateView*>(view_.data())) state->show_state();
    view_->update();
  }

 private:
  Widget& widget_;
  QPointer<QWidget> view_;
};

QWidget* make_view(QWidget& parent, Widget& widget) {
  switch (widget.kind()) {
    case WidgetKind::frame:
      return new FrameView(parent, dynamic_cast<Frame&>(widget));
    case WidgetKind::label:
      return new LabelView(parent, dynamic_cast<Label&>(widget));
    case WidgetKind::button:
      return new ButtonView(parent, dynamic_cast<Button&>(widget));
    case WidgetKind::option_button:
      return new OptionButtonView(parent, dynamic_cast<OptionButton&>(widget));
    case WidgetKind::check_box:
      return new CheckBoxView(parent, dynamic_cast<CheckBox&>(widget));
    case WidgetKind::text_field:
      return new TextFieldView(parent, dynamic_cast<TextField&>(widget));
    case WidgetKind::up_down:
      return new UpDownView(parent, dynamic_cast<UpDown&>(widget));
    case WidgetKind::shape:
      return new ShapeView(parent, dynamic_cast<Shape&>(widget));
    case WidgetKind::line:
      return new LineView(parent, dynamic_cast<LineShape&>(widget));
    case WidgetKind::picture_box:
      return new PictureView(parent, dynamic_cast<PictureBox&>(widget));
    case WidgetKind::image_box:
      return new ImageView(parent, dynamic_cast<ImageBox&>(widget));
    case WidgetKind::form:
    case WidgetKind::user_control:
      break;
  }
  return nullptr;
}

}  // namespace

void ViewPeer::refresh() {
  if (view()) view()->update();
}

std::uintptr_t ViewPeer::handle() const { return view() ? view()->internalWinId() : 0; }

QWidget* view_of(const Widget& widget) {
  const auto* peer = dynamic_cast<const ViewPeer*>(widget.peer());
  return peer ? peer->view() : nullptr;
}

std::unique_ptr<Peer> make_child_peer(Widget& widget) {
  QWidget* const parent = widget.container() ? view_of(*widget.container()) : nullptr;
  QWidget* const view = parent ? make_view(*parent, widget) : nullptr;
  return view ? std::make_unique<ChildPeer>(widget, view) : nullptr;
}

FacePeer::FacePeer(UserControl& control, QWidget& face)
    : control_(control), face_(&face), width_(control.Width), height_(control.Height) {}

void FacePeer::changed() {
  if (!face_) return;
  follow_size();
  show_pointer();
  face_->setToolTip(plain_tip(text_of(control_.ToolTipText.get())));
  face_->update();
}

void FacePeer::follow_size() {
  QSize size = face_->size();
  if (control_.Width != width_) size.setWidth(pixels_of(control_.Width));
  if (control_.Height != height_) size.setHeight(pixels_of(control_.Height));
  width_ = control_.Width;
  height_ = control_.Height;
  face_->resize(size);
}

void FacePeer::show_pointer() {
  if (pointer_ == control_.MousePointer && icon_ == control_.MouseIcon.get()) return;
  pointer_ = control_.MousePointer;
  icon_ = control_.MouseIcon;
  if (pointer_ == 0)
    face_->unsetCursor();
  else
    face_->setCursor(cursor_of(pointer_, icon_.get()));
}

FormPeer::FormPeer(Form& form, QWidget& owner) : view_(new FormView(form, owner)) {}

FormPeer::~FormPeer() { delete view_.data(); }

void FormPeer::changed() {
  if (view_) view_->show_state();
}

}  // namespace mirolen::qt
