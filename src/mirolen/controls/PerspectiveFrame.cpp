#include "mirolen/controls/PerspectiveFrame.h"

#include <algorithm>

#include "mirolen/dialogs/ViewOptions.h"

namespace mirolen {
namespace {

constexpr std::int16_t default_rotation = 40, default_inclination = 35;
constexpr std::int16_t full_turn = 360, beyond_right_angle = 92;

std::int16_t in_range(std::int16_t v, std::int16_t beyond, std::int16_t fallback) {
  if (v < 0) return 0;
  return v >= beyond ? fallback : v;  // contract 32
}

std::int16_t clipped(int angle) { return static_cast<std::int16_t>(std::clamp(angle, 0, 90)); }

}  // namespace

PerspectiveFrame::PerspectiveFrame(Toolkit& toolkit, Container& container) : MapFrame(toolkit, container) {
  drag_on(PLOTA, 1);
  drag_on(RePlot,
          toolkit.twips_per_pixel().width);  // in twips, as it lies on the frame; seen while PLOTA is hidden
}

void PerspectiveFrame::WaferRotation(std::int16_t v) {
  wafer_rotation_ = in_range(v, full_turn, default_rotation);  // contract 31
  Refresh();
  notify("WaferRotation");
}

void PerspectiveFrame::GridRotation(std::int16_t v) {
  grid_rotation_ = in_range(v, beyond_right_angle, default_rotation);
  look_changed("GridRotation");
}

void PerspectiveFrame::GridInclination(std::int16_t v) {
  grid_inclination_ = in_range(v, beyond_right_angle, default_inclination);
  look_changed("GridInclination");
}

void PerspectiveFrame::take_view(const ViewOptions& form) {
  GridRotation(form.GetAlp());
  WaferRotation(form.GetPhi());
  GridInclination(form.GetThet());
}

void PerspectiveFrame::show_orientation() {
  drawn_rotation_ = wafer_rotation_;
  drawn_inclination_ = grid_inclination_;
  repeat_orientation();
}

void PerspectiveFrame::repeat_orientation() {
  double x0 = 34, y0 = 34;
  wafobj.FlatNotchShow(&FNLabel, FNPic, x0, y0, 30, drawn_rotation_, drawn_inclination_);
}

void PerspectiveFrame::drag_on(Widget& widget, double units_per_pixel) {
  const auto pixels_of = [=](float place) { return static_cast<float>(place / units_per_pixel); };
  widget.OnMouseDown = [=, this](const MouseEvent& e) {
    quietly([&] { start_drag(pixels_of(e.x), pixels_of(e.y)); });
  };
  widget.OnMouseMove = [=, this](const MouseEvent& e) {
    quietly([&] { drag_to(pixels_of(e.x), pixels_of(e.y)); });
  };
  widget.OnMouseUp = [this](const MouseEvent& e) { end_drag(e); };
}

void PerspectiveFrame::start_drag(float x, float y) {
  if (!(wafobj.GetNop() > 0)) return;
  Dragging = true;
  DragX = x;
  DragY = y;
  PLOTA.Visible = true;
  RePlot.Stretch = false;
  PlotValid = false;
  toolkit().paint_pending();
  if (Dragging) draw_coarse();  // unless the button has come up meanwhile
}

void PerspectiveFrame::drag_to(float x, float y) {
  if (!Dragging) return;
  const SurfaceSize pixel = toolkit().twips_per_pixel();
  const int dx = to_int16(divide((DragX - x) * 90, Width / pixel.width));
  const int dy = to_int16(divide((DragY - y) * 90, Height / pixel.height));
  if (dx == 0 && dy == 0) return;
  take_angle(grid_inclination_, clipped(grid_inclination_ + dy), "GridInclination");
  take_angle(grid_rotation_, clipped(grid_rotation_ + dx), "GridRotation");
  PlotValid = false;
  draw_coarse();
  DragX = x;
  DragY = y;
}

void PerspectiveFrame::take_angle(std::int16_t& angle, std::int16_t v, const char* property) {
  if (angle == v) return;
  angle = v;
  notify(property);
}

void PerspectiveFrame::end_drag(const MouseEvent& event) {
  try {
    host().MouseUp(event);  // contract 39
  } catch (...) {
    Dragging = false;
    throw;
  }
  Dragging = false;
  resize_handler();
}

void PerspectiveFrame::draw_coarse() {
  show_orientation();
  draw_view(true);
  keep_snapshot();
}

}  // namespace mirolen
