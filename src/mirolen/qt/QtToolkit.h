#pragma once

#include <QPointer>
#include <QWidget>
#include <functional>
#include <vector>

#include "mirolen/widgets/Toolkit.h"

class QString;

namespace mirolen::qt {

/// The widgets of one control as children of one QWidget, its face. A control whose face has gone shows
/// nothing more, neither messages nor forms.
class QtToolkit : public Toolkit {
 public:
  explicit QtToolkit(QWidget& face);

  /// Shows a message in place of a message box of Qt, for hosts that keep a log and for those that nobody
  /// watches.
  std::function<void(const QString& text, const QString& title, MessageIcon icon)> on_message;

  /// Stands in for the user of a form, which is not shown: reads it, presses its buttons. A form that it
  /// leaves open is cancelled.
  std::function<void(Form& form)> on_form;

  std::unique_ptr<Peer> make_peer(Widget& widget) override;
  std::unique_ptr<Surface> make_surface(PictureBox& box) override;
  SurfaceSize measure(const FontSpec& font, std::string_view text) const override;
  void set_focus(Widget& widget) override;
  void run_pending_events() override;
  void message_box(const std::string& text, const std::string& title, MessageIcon icon) override;
  void run_modal(Form& form) override;
  SurfaceSize twips_per_pixel() const override;
  Color resolve(Color color) const override;
  std::shared_ptr<PlotCanvas> default_printer() override;

  /// Device pixels of a logical pixel, for the pictures of the control.
  double ratio() const { return ratio_; }
  /// Takes all pictures of a widget and below it to another ratio.
  void change_ratio(Widget& root, double ratio);
  /// Erases them, after the system's colours have changed.
  void erase_pictures(Widget& root);

  /// Whether the control waits within one of its calls: for a user, or for events.
  bool is_waiting() const { return waits_ > 0; }
  /// Run once, when the control waits no longer and is about to go on.
  std::function<void()> on_waited;

 private:
  class Wait;

  /// The window that is in front: the form that was opened last, or the face.
  QWidget* front() const;

  QPointer<QWidget> face_;
  std::vector<QPointer<QWidget>> open_forms_;
  double ratio_;
  int waits_ = 0;
};

}  // namespace mirolen::qt
