#include "mirolen/qt/QtToolkit.h"

#include <QFontMetricsF>
#include <QGuiApplication>
#include <QMessageBox>
#include <QWidget>
#include <algorithm>
#include <cmath>
#include <utility>

#include "mirolen/qt/ImageSurface.h"
#include "mirolen/qt/PrintJob.h"
#include "mirolen/qt/captions.h"
#include "mirolen/qt/peers.h"
#include "mirolen/qt/translate.h"
#include "mirolen/widgets/PictureBox.h"

namespace mirolen::qt {
namespace {

constexpr Color system_color_flag = 0x80000000;

void show_picture(const PictureBox& box, bool at_once) {
  QWidget* const view = view_of(box);
  if (!view) return;
  if (at_once)
    view->repaint();
  else
    view->update();
}

template <class Action>
void for_each_picture(Widget& root, const Action& act) {
  if (auto* box = dynamic_cast<PictureBox*>(&root)) act(*box);
  for (Widget* child : root.children()) for_each_picture(*child, act);
}

}  // namespace

QtToolkit::HostsTurn::~HostsTurn() {
  if (--toolkit_.turns_ == 0 && toolkit_.after_turn) std::exchange(toolkit_.after_turn, nullptr)();
}

QtToolkit::QtToolkit(QWidget& face) : face_(&face), ratio_(face.devicePixelRatioF()) {}

std::unique_ptr<Peer> QtToolkit::make_peer(Widget& widget) {
  if (!face_) return nullptr;
  if (auto* control = dynamic_cast<UserControl*>(&widget))
    return std::make_unique<FacePeer>(*control, *face_);
  if (auto* form = dynamic_cast<Form*>(&widget)) return std::make_unique<FormPeer>(*form, *front());
  return make_child_peer(widget);
}

std::unique_ptr<Surface> QtToolkit::make_surface(PictureBox& box) {
  const QWidget* const view = is_on_form(box) ? view_of(box) : nullptr;
  const double ratio = view ? view->devicePixelRatioF() : ratio_;
  auto surface = std::make_unique<ImageSurface>(box.pixel_size(), ratio,
                                                [&box](bool at_once) { show_picture(box, at_once); });
  surface->clear(resolve(box.BackColor));
  return surface;
}

SurfaceSize QtToolkit::measure(const FontSpec& font, std::string_view text) const {
  // Fonts have whole pixels on every screen, so they differ a little; the larger one cuts no text.
  SurfaceSize size;
  if (!face_) return size;
  const QStringList lines = shown_text(font, text).split('\n');
  for (const double ratio : {1.0, ratio_}) {
    const QFontMetricsF metrics(font_of(font, *face_, ratio), face_);
    for (const QString& line : lines)
      size.width = std::max(size.width, std::ceil(metrics.horizontalAdvance(line) / ratio));
    size.height =
        std::max(size.height, std::ceil(metrics.height() * static_cast<double>(lines.size()) / ratio));
  }
  return size;
}

void QtToolkit::set_focus(Widget& widget) {
  QWidget* const view = view_of(widget);
  const Widget* root = &widget;
  while (root->container()) root = root->container();
  if (view && view->isVisibleTo(view_of(*root))) view->setFocus(Qt::OtherFocusReason);
}

QWidget* QtToolkit::front() const {
  for (auto form = open_forms_.rbegin(); form != open_forms_.rend(); ++form)
    if (*form && (*form)->isVisible()) return *form;
  return face_;
}

void QtToolkit::in_hosts_turn(std::function<void()> step) {
  if (!face_) return;
  if (events_ > 0) {
    QMetaObject::invokeMethod(
        face_, [this, step = std::move(step)] { in_hosts_turn(step); }, Qt::QueuedConnection);
    return;
  }
  const HostsTurn turn(*this);
  step();
}

void QtToolkit::paint_pending() {
  if (face_) QCoreApplication::sendPostedEvents(face_->window(), QEvent::UpdateRequest);
}

void QtToolkit::message_box(const std::string& text, const std::string& title, MessageIcon icon) {
  in_hosts_turn([=, this] { show_message(text_of(text), text_of(title), icon); });
}

void QtToolkit::show_message(const QString& text, const QString& title, MessageIcon icon) {
  if (on_message) return on_message(text, title, icon);
  // The box goes with its parent, so it is not held here.
  const QPointer<QMessageBox> box(
      new QMessageBox(icon == MessageIcon::critical ? QMessageBox::Critical : QMessageBox::NoIcon, title,
                      text, QMessageBox::Ok, front()->window()));
  box->setTextFormat(Qt::PlainText);
  box->setWindowModality(Qt::ApplicationModal);
  box->exec();
  delete box.data();
}

void QtToolkit::run_modal(Form& form) {
  const QPointer<FormView> view(dynamic_cast<FormView*>(view_of(form)));
  if (!view) return;
  const HostsTurn turn(*this);
  const std::unique_ptr<void, std::function<void(void*)>> end(this, [&](void*) {
    std::erase(open_forms_, view.data());
    delete view.data();
  });
  if (!on_form) {
    open_forms_.emplace_back(view);
    return view->run();
  }
  on_form(form);
  if (form.Visible) form.Close();
}

SurfaceSize QtToolkit::twips_per_pixel() const { return {qt::twips_per_pixel, qt::twips_per_pixel}; }

Color QtToolkit::resolve(Color color) const {
  return color & system_color_flag
             ? system_color(face_ ? face_->palette() : QGuiApplication::palette(), color & ~system_color_flag)
             : color;
}

std::shared_ptr<PlotCanvas> QtToolkit::default_printer() { return PrintJob::default_printer(); }

void QtToolkit::change_ratio(Widget& root, double ratio) {
  ratio_ = ratio;
  for_each_picture(root, [ratio](PictureBox& box) {
    if (auto* surface = dynamic_cast<ImageSurface*>(box.device())) surface->change_ratio(ratio);
  });
}

void QtToolkit::erase_pictures(Widget& root) {
  for_each_picture(root, [](PictureBox& box) { box.Cls(); });
}

}  // namespace mirolen::qt
