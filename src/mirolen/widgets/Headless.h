#pragma once

#include <string>
#include <vector>

#include "mirolen/render/RecordingSurface.h"
#include "mirolen/widgets/Toolkit.h"
#include "mirolen/widgets/Widget.h"

namespace mirolen {

/// A toolkit without a screen: pictures are RecordingSurfaces, message boxes are kept and answered at once.
class HeadlessToolkit : public Toolkit {
 public:
  struct Message {
    std::string text, title;
    MessageIcon icon = MessageIcon::none;
    friend bool operator==(const Message&, const Message&) = default;
  };

  /// What has been shown in message boxes, oldest first.
  std::vector<Message> messages;
  /// Run where what waits would be painted, for whatever a toolkit lets happen there.
  std::function<void()> pending_events;
  std::shared_ptr<PlotCanvas> printer;
  /// Stands in for the user of a form: types, presses, hides. A form that it leaves open is closed, as every
  /// form is without it.
  std::function<void(Form&)> on_modal;
  /// The widget that took the focus last.
  const Widget* focused = nullptr;

  std::unique_ptr<Peer> make_peer(Widget&) override { return nullptr; }
  std::unique_ptr<Surface> make_surface(PictureBox& box) override;
  SurfaceSize measure(const FontSpec& font, std::string_view text) const override;
  void set_focus(Widget& widget) override { focused = &widget; }
  void paint_pending() override;
  void message_box(const std::string& text, const std::string& title, MessageIcon icon) override;
  void run_modal(Form& form) override;
  SurfaceSize twips_per_pixel() const override { return {15, 15}; }
  /// Light grey for every system colour.
  Color resolve(Color color) const override { return color & 0x80000000 ? 0xC0C0C0 : color; }
  std::shared_ptr<PlotCanvas> default_printer() override { return printer; }
};

/// The calls on a picture of a headless control. @throws CanvasError for a picture of another toolkit.
const Recording& recording_of(const PictureBox& box);

/// A form without a screen, which keeps the notices of its control.
class HeadlessContainer : public Container {
 public:
  std::int16_t scale_mode = 0;
  std::vector<std::string> changes;
  /// Each event by its name and its numbers, as in "MouseDown 1 0 30 40".
  std::vector<std::string> events;

  void ScaleMode(std::int16_t mode) override { scale_mode = mode; }
  void changed(std::string_view property) override { changes.emplace_back(property); }
  void Click() override { events.emplace_back("Click"); }
  void DblClick() override { events.emplace_back("DblClick"); }
  void MouseDown(const MouseEvent& event) override { keep("MouseDown", event); }
  void MouseMove(const MouseEvent& event) override { keep("MouseMove", event); }
  void MouseUp(const MouseEvent& event) override { keep("MouseUp", event); }

 private:
  void keep(const char* name, const MouseEvent& event);
};

}  // namespace mirolen
