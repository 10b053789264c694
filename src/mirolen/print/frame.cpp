#include "mirolen/print/frame.h"

namespace mirolen::print {
namespace {

constexpr Color frame_grey = 0x404040;

void draw_through(PlotCanvas& canvas, std::initializer_list<SurfacePoint> corners) {
  for (const SurfacePoint* to = corners.begin() + 1; to != corners.end(); ++to)
    canvas.Line(line_flags, (to - 1)->x, (to - 1)->y, to->x, to->y, frame_grey);
}

}  // namespace

void draw_captioned_frame(PlotCanvas& canvas, const std::string& caption, double left, double top,
                          double width, double height, double (*place)(double)) {
  const double tw = canvas.TextWidth(caption), th = canvas.TextHeight(caption);
  // contract 97
  const double y1 = place(top + th), y2 = place(top + height + th), right = place(left + width);
  const double gap_from = place(left + 100), gap_to = place(left + tw + 200);
  draw_through(canvas, {{gap_from, y1}, {left, y1}, {left, y2}, {right, y2}, {right, y1}, {gap_to, y1}});
  canvas.CurrentX(place(left + 150));
  canvas.CurrentY(place(top + th / 2));
  canvas.Print(caption);
}

void draw_closed_frame(PlotCanvas& canvas, double left, double top, double width, double height) {
  const double th = canvas.TextHeight("P");
  const double y1 = top + th, y2 = top + height + th, right = left + width;  // contract 97
  draw_through(canvas, {{left, y1}, {left, y2}, {right, y2}, {right, y1}, {left, y1}});
}

}  // namespace mirolen::print
