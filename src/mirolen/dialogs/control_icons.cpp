#include "mirolen/dialogs/control_icons.h"

#include <array>
#include <cmath>
#include <vector>

#include "mirolen/core/palette.h"

namespace mirolen {
namespace {

constexpr Color black = QBColor(0), blue = QBColor(9), green = QBColor(10), cyan = QBColor(11),
                red = QBColor(12), yellow = QBColor(14), white = QBColor(15), grey = QBColor(7),
                dark_green = QBColor(2), dark_blue = QBColor(1);
constexpr double middle = 15.5;

using Points = std::vector<PixelPoint>;

void line(PlotCanvas& canvas, Color color, double x1, double y1, double x2, double y2) {
  canvas.Line(line_flags, x1, y1, x2, y2, color);
}

void box(PlotCanvas& canvas, Color color, double x1, double y1, double x2, double y2) {
  canvas.Line(filled_box_flags, x1, y1, x2, y2, color);
}

void curve(PlotCanvas& canvas, Color color, const Points& points) {
  for (std::size_t i = 1; i < points.size(); ++i)
    line(canvas, color, points[i - 1].x, points[i - 1].y, points[i].x, points[i].y);
}

void disc(PlotCanvas& canvas, Color fill, Color edge, double x, double y, double radius, double aspect = 1) {
  canvas.FillColor(fill);
  canvas.Circle(x, y, radius, edge, {}, {}, aspect);
}

void area(PlotCanvas& canvas, Color fill, const Points& corners) {
  canvas.FillColor(fill);
  canvas.Polygon(corners);
}

void wafer_disc(PlotCanvas& canvas, Color fill) { disc(canvas, fill, black, middle, middle, 14.5); }

/// A wafer that the tints cover from the edge to a place off the middle.
template <std::size_t count>
void rings(PlotCanvas& canvas, const std::array<Color, count>& tints, bool filled) {
  for (std::size_t i = 0; i < count; ++i) {
    const double part = static_cast<double>(i + 1) / (count + 1);
    const double shift = 4 * part, radius = 14.5 * (1 - part);
    disc(canvas, filled ? tints[i] : white, tints[i], middle + shift, middle - shift, radius);
  }
}

/// A hill over a square that stands on its corner, in the tints from its foot to its top.
template <std::size_t count>
void hill(PlotCanvas& canvas, const std::array<Color, count>& tints) {
  constexpr int cells = 10;
  const auto height = [](double column, double row) {
    const double u = column / cells * 2 - 1, v = row / cells * 2 - 1;
    return std::exp(-3 * (u * u + v * v));
  };
  const auto place = [&](int column, int row) {
    return PixelPoint{to_int32(middle + (column - row) * 1.5),
                      to_int32(15 + (column + row) * 0.75 - 15 * height(column, row))};
  };
  for (int row = 0; row < cells; ++row)
    for (int column = 0; column < cells; ++column) {
      const auto tint = static_cast<std::size_t>(height(column + 0.5, row + 0.5) * count);
      canvas.ForeColor(tints[tint]);
      area(canvas, tints[tint],
           {place(column, row), place(column + 1, row), place(column + 1, row + 1), place(column, row + 1)});
    }
}

void draw_map(PlotCanvas& canvas) {
  wafer_disc(canvas, blue);
  rings(canvas, std::array{cyan, green, yellow, red}, true);
}

void draw_sigma_map(PlotCanvas& canvas) {
  wafer_disc(canvas, dark_green);
  disc(canvas, red, red, 11, 11, 5);
  disc(canvas, dark_blue, dark_blue, 21, 20, 4);
}

void draw_contours(PlotCanvas& canvas) {
  wafer_disc(canvas, white);
  rings(canvas, std::array{dark_blue, dark_green, red}, false);
}

void draw_axes(PlotCanvas& canvas) {
  box(canvas, white, 2, 1, 30, 29);
  line(canvas, black, 2, 1, 2, 29);
  line(canvas, black, 2, 29, 30, 29);
}

void draw_line_scan(PlotCanvas& canvas) {
  draw_axes(canvas);
  for (const double y : {8.0, 15.0, 22.0}) line(canvas, grey, 3, y, 30, y);
  curve(canvas, red, {{3, 24}, {7, 16}, {11, 12}, {15, 15}, {19, 20}, {23, 14}, {27, 7}, {30, 5}});
}

void draw_histogram(PlotCanvas& canvas) {
  draw_axes(canvas);
  constexpr std::array<int, 5> heights{5, 14, 22, 13, 6};
  for (int i = 0; i < 5; ++i)
    box(canvas, dark_green, 4 + 5 * i, 28 - heights[static_cast<std::size_t>(i)], 7 + 5 * i, 28);
  curve(canvas, red, {{3, 26}, {7, 21}, {11, 10}, {14, 4}, {16, 4}, {19, 10}, {23, 21}, {28, 26}});
}

/// Digits of seven strokes, 4 wide and 6 high.
void digit(PlotCanvas& canvas, Color color, double x, double y, int strokes) {
  constexpr std::array<std::array<double, 4>, 7> stroke{
      {{0, 0, 3, 0}, {3, 0, 3, 3}, {3, 3, 3, 6}, {0, 6, 3, 6}, {0, 3, 0, 6}, {0, 0, 0, 3}, {0, 3, 3, 3}}};
  for (std::size_t i = 0; i < stroke.size(); ++i)
    if (strokes >> i & 1)
      line(canvas, color, x + stroke[i][0], y + stroke[i][1], x + stroke[i][2], y + stroke[i][3]);
}

void draw_values(PlotCanvas& canvas) {
  constexpr int one = 0x06, two = 0x5B, three = 0x4F, four = 0x66, seven = 0x07;
  wafer_disc(canvas, white);
  digit(canvas, red, 11, 5, two);
  digit(canvas, red, 17, 5, four);
  digit(canvas, dark_blue, 5, 13, one);
  digit(canvas, dark_blue, 10, 13, seven);
  digit(canvas, dark_green, 18, 13, three);
  digit(canvas, dark_green, 23, 13, one);
  digit(canvas, dark_blue, 11, 21, one);
  digit(canvas, dark_blue, 17, 21, two);
}

/// An upright bar, by the middle of its foot.
void bar(PlotCanvas& canvas, Color color, std::int32_t x, std::int32_t foot, std::int32_t height) {
  const std::int32_t top = foot - height;
  area(canvas, color, {{x - 3, top}, {x, top + 2}, {x, foot + 2}, {x - 3, foot}});
  area(canvas, grey, {{x, top + 2}, {x + 3, top}, {x + 3, foot}, {x, foot + 2}});
  area(canvas, white, {{x - 3, top}, {x, top - 2}, {x + 3, top}, {x, top + 2}});
}

void draw_bars(PlotCanvas& canvas) {
  disc(canvas, white, black, middle, 22, 14.5, 0.55);
  bar(canvas, red, 16, 18, 14);
  bar(canvas, dark_blue, 8, 22, 9);
  bar(canvas, dark_green, 24, 22, 12);
  bar(canvas, yellow, 16, 26, 6);
}

}  // namespace

void draw_control_icon(PlotCanvas& canvas, std::int16_t type) {
  canvas.Cls();
  canvas.FillStyle(solid_fill);
  canvas.DrawStyle(solid_line);
  canvas.DrawWidth(1);
  canvas.ForeColor(black);
  switch (type) {
    case 1:
      draw_map(canvas);
      break;
    case 2:
      hill(canvas, std::array{blue, cyan, green, yellow, red});
      break;
    case 3:
      draw_sigma_map(canvas);
      break;
    case 4:
      hill(canvas, std::array{dark_blue, dark_green, red});
      break;
    case 5:
      draw_contours(canvas);
      break;
    case 6:
      draw_line_scan(canvas);
      break;
    case 7:
      draw_histogram(canvas);
      break;
    case 8:
      draw_values(canvas);
      break;
    case 9:
      draw_bars(canvas);
      break;
  }
  canvas.Refresh();
}

}  // namespace mirolen
