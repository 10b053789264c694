#include "mirolen/qt/QtToolkit.h"

#include <QCoreApplication>
#include <QDialog>
#include <QFontMetricsF>
#include <QMessageBox>
#include <QWidget>
#include <algorithm>
#include <cmath>

#include "mirolen/qt/ImageSurface.h"
#include "mirolen/qt/PrintJob.h"
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

QtToolkit::QtToolkit(QWidget& face) : face_(face), ratio_(face.devicePixelRatioF()) {}

std::unique_ptr<Peer> QtToolkit::make_peer(Widget& widget) {
  if (auto* control = dynamic_cast<UserControl*>(&widget)) return std::make_unique<FacePeer>(*control, face_);
  if (auto* form = dynamic_cast<Form*>(&widget)) return std::make_unique<FormPeer>(*form, *face_.window());
  return make_child_peer(widget);
}

std::unique_ptr<Surface> QtToolkit::make_surface(PictureBox& box) {
  auto surface = std::make_unique<ImageSurface>(box.pixel_size(), ratio_,
                                                [&box](bool at_once) { show_picture(box, at_once); });
  surface->clear(resolve(box.BackColor));
  return surface;
}

SurfaceSize QtToolkit::measure(const FontSpec& font, std::string_view text) const {
  // Fonts have whole pixels on every screen, so they differ a little; the larger one cuts no text.
  SurfaceSize size;
  const QStringList lines = shown_text(font, text).split('\n');
  for (const double ratio : {1.0, ratio_}) {
    const QFontMetricsF metrics(font_of(font, face_, ratio), &face_);
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

void QtToolkit::run_pending_events() { QCoreApplication::processEvents(); }

void QtToolkit::message_box(const std::string& text, const std::string& title, MessageIcon icon) {
  if (on_message) return on_message(text_of(text), text_of(title), icon);
  QMessageBox box(icon == MessageIcon::critical ? QMessageBox::Critical : QMessageBox::NoIcon, text_of(title),
                  text_of(text), QMessageBox::Ok, face_.window());
  box.setTextFormat(Qt::PlainText);
  box.setWindowModality(Qt::ApplicationModal);
  box.exec();
}

void QtToolkit::run_modal(Form& form) {
  if (auto* dialog = qobject_cast<QDialog*>(view_of(form))) dialog->exec();
}

SurfaceSize QtToolkit::twips_per_pixel() const { return {qt::twips_per_pixel, qt::twips_per_pixel}; }

Color QtToolkit::resolve(Color color) const {
  return color & system_color_flag ? system_color(face_.palette(), color & ~system_color_flag) : color;
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
