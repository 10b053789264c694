#pragma once

#include "mirolen/render/PlotCanvas.h"

namespace mirolen {

/// Which edges of an area are rounded to whole 16-bit pixels.
enum class AreaRounding { none, height, all };

/// The part of a canvas that a renderer draws in, in the canvas's units: the whole canvas on a screen,
/// otherwise a rectangle given in twips. It also guards the renderer's statements: where one fails, the area
/// becomes the rectangle at 4.8 twips per pixel, a page of 300 dots per inch, and the renderer goes on.
class PlotArea {
 public:
  /// @param ShowDispl 1: a page, drawn over what is there.
  PlotArea(PlotCanvas& canvas, double left, double top, double width, double height, std::int16_t ShowDispl,
           AreaRounding rounding = AreaRounding::none)
      : canvas_(canvas), page_{left, top, width, height}, on_page_(ShowDispl == 1), rounding_(rounding) {}

  bool on_page() const { return on_page_; }

  /// How often a canvas has failed in a statement, on this thread. What that should have drawn is missing.
  static std::int64_t canvas_failures();

  /// Runs a statement that may fail.
  template <class Statement>
  void resume(Statement&& statement) {
    ResumeNext([this] { fall_back(); })(statement);
  }

  /// Erases what is no page.
  void clear();
  /// Finds the area. An edge whose resolution cannot be read stays at the fallback.
  void locate();

  double left = 0, top = 0, width = 0, height = 0;

 private:
  struct Rectangle {
    double left, top, width, height;
  };

  void fall_back();
  bool in_twips() const { return on_page_ || canvas_.kind() == CanvasKind::printer; }
  double edge(double value) const { return rounding_ == AreaRounding::all ? to_int16(value) : value; }
  double height_edge(double value) const { return rounding_ == AreaRounding::none ? value : to_int16(value); }

  PlotCanvas& canvas_;
  Rectangle page_;
  bool on_page_;
  AreaRounding rounding_;
};

}  // namespace mirolen
