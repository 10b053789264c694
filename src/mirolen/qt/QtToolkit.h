#pragma once

#include <functional>

#include "mirolen/widgets/Toolkit.h"

class QString;
class QWidget;

namespace mirolen::qt {

/// The widgets of one control as children of one QWidget, its face, which outlives the control.
class QtToolkit : public Toolkit {
 public:
  explicit QtToolkit(QWidget& face);

  /// Shows a message in place of a message box of Qt, for hosts that keep a log and for those that nobody
  /// watches.
  std::function<void(const QString& text, const QString& title, MessageIcon icon)> on_message;

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

 private:
  QWidget& face_;
  double ratio_;
};

}  // namespace mirolen::qt
