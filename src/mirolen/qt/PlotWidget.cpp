#include "mirolen/qt/PlotWidget.h"

#include <QContextMenuEvent>
#include <QEvent>
#include <QMenu>
#include <QMetaProperty>
#include <QPainter>
#include <QPointer>
#include <algorithm>
#include <utility>

#include "mirolen/core/translation.h"
#include "mirolen/dialogs/PropertyDialog.h"
#include "mirolen/qt/ChildView.h"
#include "mirolen/qt/Picture.h"
#include "mirolen/qt/translate.h"

namespace mirolen::qt {

namespace {

QSize size_of(const SurfaceSize& twips) { return {pixels_of(twips.width), pixels_of(twips.height)}; }

}  // namespace

/// What a host's form is to the control: it makes signals of its notices and events.
class PlotWidget::Host : public Container {
 public:
  explicit Host(PlotWidget& face) : face_(&face) {}

  void ScaleMode(std::int16_t) override {}  // a form of Qt knows one scale only
  void changed(std::string_view property) override {
    if (property == "HideLegend" && face_) face_->updateGeometry();
    tell([name = std::string(property)](PlotWidget& face) { face.property_changed(name); });
  }
  void Click() override { tell(&PlotWidget::Click); }
  void DblClick() override { tell(&PlotWidget::DblClick); }
  void MouseDown(const MouseEvent& e) override { tell(&PlotWidget::MouseDown, e); }
  void MouseMove(const MouseEvent& e) override { tell(&PlotWidget::MouseMove, e); }
  void MouseUp(const MouseEvent& e) override { tell(&PlotWidget::MouseUp, e); }

 private:
  using MouseSignal = void (PlotWidget::*)(int, int, float, float);
  void tell(MouseSignal signal, const MouseEvent& e) {
    tell([=](PlotWidget& face) { emit(face.*signal)(e.Button, e.Shift, e.x, e.y); });
  }
  /// Raises a signal, after which there may be no face any more.
  template <class Raise>
  void tell(Raise raise) {
    if (face_) face_->toolkit().in_hosts_turn([this, raise] { std::invoke(raise, *face_); });
  }

  QPointer<PlotWidget> face_;
};

/// A control that outlives its face, with what it stands on.
class PlotWidget::Remains : public QObject {
 public:
  explicit Remains(PlotWidget& face)
      : toolkit_(std::move(face.toolkit_)), host_(std::move(face.host_)), control_(std::move(face.control_)) {
    toolkit_->after_turn = [this] { deleteLater(); };
  }

 private:
  std::unique_ptr<QtToolkit> toolkit_;
  std::unique_ptr<Host> host_;
  std::unique_ptr<ControlFrame> control_;
};

PlotWidget::PlotWidget(QWidget* parent)
    : QWidget(parent), toolkit_(std::make_unique<QtToolkit>(*this)), host_(std::make_unique<Host>(*this)) {
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
  setAttribute(Qt::WA_OpaquePaintEvent);
  setMouseTracking(true);
  // With the Tab key the button takes the focus itself; the face only hands on what a click brings it.
  setFocusPolicy(Qt::ClickFocus);
}

PlotWidget::~PlotWidget() {
  // Deleted within a call of its control, which has to come to its end.
  if (toolkit_->is_hosts_turn()) new Remains(*this);
}

Container& PlotWidget::container() { return *host_; }

void PlotWidget::take(std::unique_ptr<ControlFrame> control) {
  control_ = std::move(control);
  mouse_ = std::make_unique<MouseRelay>(*this, *control_);
  resize(sizeHint());
  InitProperties();
}

ControlFrame& PlotWidget::frame() {
  ControlFrame& control = *control_;
  take_size();
  return control;
}

int PlotWidget::SetWaferData(const ArrayView& x, const ArrayView& y, const ArrayView& Z) {
  return frame().SetWaferData(x, y, Z);
}

int PlotWidget::SetWaferData(std::span<const double> x, std::span<const double> y,
                             std::span<const double> Z) {
  return SetWaferData(ArrayView(x), ArrayView(y), ArrayView(Z));
}

int PlotWidget::SetWaferData(const std::vector<double>& x, const std::vector<double>& y,
                             const std::vector<double>& Z) {
  return SetWaferData(ArrayView(x), ArrayView(y), ArrayView(Z));
}

int PlotWidget::SetDataFile(const QString& datafile, double nops) {
  return frame().SetDataFile(utf8_of(datafile), nops);
}

double PlotWidget::GetWaferData(std::vector<double>& x, std::vector<double>& y,
                                std::vector<double>& Z) const {
  return control_->GetWaferData(x, y, Z);
}

QColor PlotWidget::BackColor() const { return qcolor_of(toolkit_->resolve(control_->BackColor())); }

void PlotWidget::setBackColor(const QColor& v) {
  if (v.isValid()) control_->BackColor(color_of(v));
}

void PlotWidget::setMousePointer(int v) {
  constexpr int last_pointer = 99;
  if (!short_of(v)) return;
  control_->MousePointer(static_cast<std::int16_t>(std::clamp(v, 0, last_pointer)));
  emit MousePointerChanged();
}

QPixmap PlotWidget::MouseIcon() const {
  const auto icon = std::dynamic_pointer_cast<const Picture>(control_->MouseIcon());
  return icon ? QPixmap::fromImage(icon->image()) : QPixmap();
}

void PlotWidget::setMouseIcon(const QPixmap& v) {
  control_->MouseIcon(v.isNull() ? nullptr : std::make_shared<Picture>(v.toImage()));
  emit MouseIconChanged();
}

void PlotWidget::setDesignMode(bool v) {
  if (v == design_mode_) return;
  design_mode_ = v;
  emit DesignModeChanged();
}

void PlotWidget::ShowProperties() {
  const QPointer<PlotWidget> alive(this);
  PropertyDialog(*toolkit_, {by_name_}).Show();
  if (alive) redraw();
}

QSize PlotWidget::sizeHint() const { return size_of(ControlFrame::usual_size); }
QSize PlotWidget::minimumSizeHint() const { return size_of(control_->smallest_size()); }

std::optional<std::int16_t> PlotWidget::short_of(int v) {
  if (!std::in_range<std::int16_t>(v)) return std::nullopt;
  return static_cast<std::int16_t>(v);
}

void PlotWidget::property_changed(std::string_view name) {
  const QByteArray own(name.data(), static_cast<qsizetype>(name.size()));
  int index = metaObject()->indexOfProperty(own);
  // "angle" alone is told with a capital.
  if (index < 0) index = metaObject()->indexOfProperty(own.toLower());
  const QMetaProperty property = metaObject()->property(index);
  if (property.hasNotifySignal()) property.notifySignal().invoke(this, Qt::DirectConnection);
}

void PlotWidget::take_size() {
  if (size() == told_) return;
  told_ = size();
  if (size() == QSize(pixels_of(control_->Width), pixels_of(control_->Height))) return;
  if (!seen_) control_->SetPlotNotVaild();
  control_->resize_to(width() * twips_per_pixel, height() * twips_per_pixel);
}

void PlotWidget::redraw() {
  control_->SetPlotNotVaild();
  control_->resize_to(control_->Width, control_->Height);
}

void PlotWidget::change_ratio(double ratio) {
  toolkit_->change_ratio(*control_, ratio);
  redraw();
}

void PlotWidget::take_ratio() {
  if (toolkit_->ratio() != devicePixelRatioF()) change_ratio(devicePixelRatioF());
}

void PlotWidget::take_palette() {
  const QPointer<PlotWidget> alive(this);
  toolkit_->erase_pictures(*control_);
  redraw();
  if (!alive) return;
  // A system colour that it may be looks different now; the miniature of a line scan is drawn again for it.
  control_->BackColor(control_->BackColor());
}

void PlotWidget::follow(void (PlotWidget::*step)()) {
  if (!control_) return;
  if (control_->asks_before_drawing()) {
    QMetaObject::invokeMethod(this, step, Qt::QueuedConnection);
    return;
  }
  const QtToolkit::QtsTurn turn(*toolkit_);
  (this->*step)();
}

bool PlotWidget::event(QEvent* event) {
  const bool handled = QWidget::event(event);
  if (event->type() == QEvent::ScreenChangeInternal) follow(&PlotWidget::take_ratio);
  if (event->type() == QEvent::PaletteChange) follow(&PlotWidget::take_palette);
  return handled;
}

void PlotWidget::paintEvent(QPaintEvent*) {
  QPainter(this).fillRect(rect(), BackColor());
  // Where no other event told of a new ratio; nothing must be drawn anew within a paint event.
  if (toolkit_->ratio() != devicePixelRatioF())
    QMetaObject::invokeMethod(this, &PlotWidget::take_ratio, Qt::QueuedConnection);
}

void PlotWidget::resizeEvent(QResizeEvent*) { follow(&PlotWidget::take_size); }

void PlotWidget::showEvent(QShowEvent*) { follow(&PlotWidget::take_first_sight); }

void PlotWidget::take_first_sight() {
  const QPointer<PlotWidget> alive(this);
  take_size();
  if (alive) take_ratio();
  if (alive) seen_ = true;
}

void PlotWidget::focusInEvent(QFocusEvent* event) {
  QWidget::focusInEvent(event);
  if (control_->OnEnterFocus) control_->OnEnterFocus();
}

void PlotWidget::contextMenuEvent(QContextMenuEvent* event) {
  if (!design_mode_) return QWidget::contextMenuEvent(event);
  auto* const menu = new QMenu(this);
  menu->setAttribute(Qt::WA_DeleteOnClose);
  // What they open must not keep the menu waiting.
  const auto offer = [&](const char* text, void (PlotWidget::*open)()) {
    QObject::connect(menu->addAction(text_of(mirolen::tr(text))), &QAction::triggered, this, open,
                     Qt::QueuedConnection);
  };
  offer(translatable("Properties..."), &PlotWidget::open_properties);
  if (has_plot_options()) offer(translatable("Plot- Options..."), &PlotWidget::open_plot_options);
  offer(translatable("About..."), &PlotWidget::open_about);
  menu->popup(event->globalPos());
}

void PlotWidget::mousePressEvent(QMouseEvent* event) { mouse_->press(*event); }
void PlotWidget::mouseMoveEvent(QMouseEvent* event) { mouse_->move(*event); }
void PlotWidget::mouseReleaseEvent(QMouseEvent* event) { mouse_->release(*event); }
void PlotWidget::mouseDoubleClickEvent(QMouseEvent* event) { mouse_->double_click(*event); }

}  // namespace mirolen::qt
