#include "mirolen/widgets/Headless.h"

#include <sstream>

#include "mirolen/widgets/Form.h"
#include "mirolen/widgets/PictureBox.h"

namespace mirolen {

std::unique_ptr<Surface> HeadlessToolkit::make_surface(PictureBox& box) {
  auto surface = std::make_unique<RecordingSurface>(box.pixel_size(), twips_per_pixel());
  surface->clear(resolve(box.BackColor));
  return surface;
}

SurfaceSize HeadlessToolkit::measure(const FontSpec& font, std::string_view text) const {
  return RecordingSurface({}, twips_per_pixel()).measure(font, text);
}

void HeadlessToolkit::paint_pending() {
  if (pending_events) pending_events();
}

void HeadlessToolkit::message_box(const std::string& text, const std::string& title, MessageIcon icon) {
  messages.push_back({text, title, icon});
}

void HeadlessToolkit::run_modal(Form& form) {
  focused = form.FirstFocus;
  if (on_modal) on_modal(form);
  if (form.Visible) form.Close();
}

const Recording& recording_of(const PictureBox& box) {
  const auto* surface = dynamic_cast<const RecordingSurface*>(box.device());
  if (!surface) throw CanvasError("recording");
  return surface->recording();
}

void HeadlessContainer::keep(const char* name, const MouseEvent& event) {
  std::ostringstream text;
  text << name << ' ' << event.Button << ' ' << event.Shift << ' ' << event.x << ' ' << event.y;
  events.push_back(text.str());
}

}  // namespace mirolen
