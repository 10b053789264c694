#pragma once

#include <QPointer>
#include <QWidget>
#include <functional>
#include <vector>

#include "mirolen/widgets/Widget.h"

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
  void paint_pending() override;
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

  /// A time within a call of the control in which the host may do anything, even delete the face: it has a
  /// signal, or its user has a form or a message.
  class HostsTurn {
   public:
    explicit HostsTurn(QtToolkit& toolkit) : toolkit_(toolkit) { ++toolkit_.turns_; }
    HostsTurn(const HostsTurn&) = delete;
    ~HostsTurn();

   private:
    QtToolkit& toolkit_;
  };
  bool is_hosts_turn() const { return turns_ > 0; }
  /// Run once, when the turn is over and the control is about to go on.
  std::function<void()> after_turn;

  /// A time in which Qt hands an event to the face or to a view and goes on with that QWidget behind it, so
  /// that nobody may delete it: what gives the host its turn is put off until Qt has finished.
  class QtsTurn {
   public:
    explicit QtsTurn(QtToolkit& toolkit) : toolkit_(toolkit) { ++toolkit_.events_; }
    /// For the view of a widget of a QtToolkit.
    explicit QtsTurn(const Widget& widget) : QtsTurn(dynamic_cast<QtToolkit&>(widget.toolkit())) {}
    QtsTurn(const QtsTurn&) = delete;
    ~QtsTurn() { --toolkit_.events_; }

   private:
    QtToolkit& toolkit_;
  };
  /// Gives the host its turn: now, or when Qt has finished, if there is a face then.
  void in_hosts_turn(std::function<void()> step);

 private:
  void show_message(const QString& text, const QString& title, MessageIcon icon);
  /// The window that is in front: the form that was opened last, or the face.
  QWidget* front() const;

  QPointer<QWidget> face_;
  std::vector<QPointer<QWidget>> open_forms_;
  double ratio_;
  int turns_ = 0;
  int events_ = 0;
};

}  // namespace mirolen::qt
