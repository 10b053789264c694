#pragma once

#include <memory>
#include <string>
#include <string_view>

#include "mirolen/render/PlotCanvas.h"
#include "mirolen/render/Surface.h"

namespace mirolen {

class Form;
class PictureBox;
class Widget;

/// What a toolkit puts behind one widget. It shows the widget's state and brings the user's events to its
/// handlers.
class Peer {
 public:
  virtual ~Peer() = default;
  /// A property of the widget has changed: mirror its state.
  virtual void changed() = 0;
  /// Repaint what is on the screen.
  virtual void refresh() = 0;
  /// The system's handle of the window, 0 without one.
  virtual std::uintptr_t handle() const = 0;
};

enum class MessageIcon { none, critical };

/// All that the widgets need of a user interface; a binding supplies one. It outlives every widget made with
/// it. What fails in it, and in its surfaces, throws a std::exception, which no control lets out of a member
/// that does not print. What a peer throws gets no farther than its widget.
class Toolkit {
 public:
  virtual ~Toolkit() = default;

  /// A peer for a widget whose container already has its own; null where nothing is to be shown.
  virtual std::unique_ptr<Peer> make_peer(Widget& widget) = 0;
  /// The surface of a picture box, in the size that the box has now, erased to its background.
  virtual std::unique_ptr<Surface> make_surface(PictureBox& box) = 0;
  /// Size of a text in pixels.
  virtual SurfaceSize measure(const FontSpec& font, std::string_view text) const = 0;
  virtual void set_focus(Widget& widget) = 0;
  /// Paints what waits to be painted, of the control and of its window. Nothing else happens: no input, no
  /// timer, no deferred deletion, so no code of the host runs within a call of the control.
  virtual void paint_pending() = 0;
  /// Shows a message modally and waits for its button.
  virtual void message_box(const std::string& text, const std::string& title, MessageIcon icon) = 0;
  /// Lets the user work with a form, and with nothing else, until it is hidden. Its peers have been made.
  virtual void run_modal(Form& form) = 0;
  /// Twips of one pixel of the screen.
  virtual SurfaceSize twips_per_pixel() const = 0;
  /// The colour that a system colour (0x80000000 and its index) stands for; any other colour as it is.
  virtual Color resolve(Color color) const = 0;
  /// The printer that a new control prints on; null where the system has none.
  virtual std::shared_ptr<PlotCanvas> default_printer() = 0;
};

}  // namespace mirolen
