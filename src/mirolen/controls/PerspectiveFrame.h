#pragma once

#include "mirolen/controls/MapFrame.h"

namespace mirolen {

class ViewOptions;

/// What the three plots in perspective share: the angles of the view, and turning it by dragging the mouse
/// over the plot. While the user drags, the plot is drawn on a coarse grid; on release in full.
class PerspectiveFrame : public MapFrame {
 public:
  /// Read by nothing: dragging always turns the plot.
  bool EnableRotation = true;  // contract 12

  // Whole degrees. A value beyond the range falls back to the default, one below 0 becomes 0.
  std::int16_t WaferRotation() const { return wafer_rotation_; }
  /// 0 to 359, default 40. The drawing counts as valid after it.
  void WaferRotation(std::int16_t v);
  std::int16_t GridRotation() const { return grid_rotation_; }
  /// 0 to 91, default 40.
  void GridRotation(std::int16_t v);
  std::int16_t GridInclination() const { return grid_inclination_; }
  /// 0 (edge-on) to 91 (90 is seen from above), default 35.
  void GridInclination(std::int16_t v);

 protected:
  // The size that printing takes.
  static constexpr double least_width = 2500, least_height = 1750;

  PerspectiveFrame(Toolkit& toolkit, Container& container);

  void show_orientation() override;
  void repeat_orientation() override;
  void draw_plot() final { draw_view(false); }
  /// Draws the plot, coarse while the user drags.
  virtual void draw_view(bool coarse) = 0;
  /// Takes the angles that the user has entered.
  void take_view(const ViewOptions& form);
  /// The step of the coarse grid in millimetres.
  double coarse_step() const { return to_int16(wafobj.test_diam / 9); }

 private:
  void drag_on(Widget& widget, double units_per_pixel);
  void start_drag(float x, float y);
  void drag_to(float x, float y);
  void take_angle(std::int16_t& angle, std::int16_t v, const char* property);
  void end_drag(const MouseEvent& event);
  void draw_coarse();

  std::int16_t wafer_rotation_ = 0, grid_rotation_ = 0, grid_inclination_ = 0;
  std::int16_t drawn_rotation_ = 0, drawn_inclination_ = 0;  ///< Those of the orientation mark that is seen.
  bool Dragging = false;
  float DragX = 0, DragY = 0;
};

}  // namespace mirolen
