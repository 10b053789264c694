#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string_view>

#include "mirolen/core/numbers.h"
#include "mirolen/render/Surface.h"

namespace mirolen {

enum class CanvasKind { printer, picture_box, other };

/// Values of `DrawStyle` and `FillStyle` that the renderers use.
inline constexpr std::int16_t solid_line = 0, no_outline = 5;
inline constexpr std::int16_t solid_fill = 0, transparent_fill = 1;

/// Values of `ScaleMode` that the library uses.
inline constexpr std::int16_t twips = 1, pixels = 3;

/// Flags of `Line`: a straight line, the outline of a rectangle, a filled rectangle.
inline constexpr std::int16_t line_flags = 6, box_flags = 22, filled_box_flags = 38;

/// What every renderer and all printing draws on: a stateful canvas with a scale of its own.
///
/// Three kinds of object stand behind it: a control's picture, an off-screen picture, and a printer page;
/// also any object of a host that has these members. Coordinates and sizes are in the scale units of
/// `ScaleMode` and grow rightward and downward; colours are 0x00BBGGRR or a system colour.
///
/// Every member may throw CanvasError, or another RunTimeError, where the device fails or has no such member;
/// the renderers say what they make of it. The caller owns the canvas and keeps it for the whole call.
class PlotCanvas {
 public:
  virtual ~PlotCanvas() = default;

  virtual CanvasKind kind() const = 0;
  /// Whether there is a device to draw on. A control asks before it prints.
  virtual bool present() const { return true; }

  /// The drawing area in scale units.
  virtual double ScaleLeft() const = 0;
  virtual double ScaleTop() const = 0;
  virtual double ScaleWidth() const = 0;
  virtual double ScaleHeight() const = 0;
  virtual std::int16_t ScaleMode() const = 0;
  virtual void ScaleMode(std::int16_t mode) = 0;

  /// Resolution of the device; a renderer asks only a canvas of the kind printer.
  virtual double TwipsPerPixelX() const = 0;
  virtual double TwipsPerPixelY() const = 0;

  /// Place and size on whatever holds the canvas.
  virtual double left() const = 0;
  virtual double top() const = 0;
  virtual double width() const = 0;
  virtual double height() const = 0;

  /// Fill of `Circle`, `Polygon` and `FloodFill`.
  virtual Color FillColor() const = 0;
  virtual void FillColor(Color color) = 0;
  virtual std::int16_t FillStyle() const = 0;
  virtual void FillStyle(std::int16_t style) = 0;

  /// Pattern (0 solid, 5 none) and width in device pixels of lines and outlines.
  virtual std::int16_t DrawStyle() const = 0;
  virtual void DrawStyle(std::int16_t style) = 0;
  virtual std::int16_t DrawWidth() const = 0;
  virtual void DrawWidth(std::int16_t width) = 0;

  /// Colour of text, of polygon outlines, and of lines and circles given no colour.
  virtual Color ForeColor() const = 0;
  virtual void ForeColor(Color color) = 0;
  virtual Color BackColor() const = 0;
  virtual void BackColor(Color color) = 0;

  /// Where the next text stands (its top left corner).
  virtual double CurrentX() const = 0;
  virtual void CurrentX(double x) = 0;
  virtual double CurrentY() const = 0;
  virtual void CurrentY(double y) = 0;

  /// True: text leaves the background unpainted.
  virtual bool FontTransparent() const = 0;
  virtual void FontTransparent(bool transparent) = 0;
  virtual FontSpec Font() const = 0;
  virtual void Font(const FontSpec& font) = 0;

  /// Erases the canvas to `BackColor` and puts the text place to the origin.
  virtual void Cls() = 0;
  /// Makes what is drawn the ground that `Cls` erases to; nothing on a page.
  virtual void keep_as_background() = 0;
  /// Shows what has been drawn so far; nothing where there is no screen.
  virtual void Refresh() = 0;
  /// A line or a rectangle by its flags, both ends inclusive; without a colour in `ForeColor`.
  virtual void Line(std::int16_t flags, double x1, double y1, double x2, double y2,
                    std::optional<Color> color) = 0;
  /// A circle, or with angles (radians, counter-clockwise from +x) an open arc; aspect is its height by its
  /// width.
  virtual void Circle(double x, double y, double radius, std::optional<Color> color = {},
                      std::optional<double> start = {}, std::optional<double> end = {},
                      double aspect = 1) = 0;
  /// Draws text at the text place and moves that to the next line.
  virtual void Print(std::string_view text) = 0;
  virtual double TextWidth(std::string_view text) const = 0;
  virtual double TextHeight(std::string_view text) const = 0;

  /// Fills a polygon of device pixels in `FillColor`, outlined in `ForeColor` as `DrawStyle` says.
  virtual void Polygon(std::span<const PixelPoint> points) = 0;
  /// Fills the region round a device pixel that is bounded by a colour.
  virtual void FloodFill(std::int32_t x, std::int32_t y, Color boundary) = 0;
};

}  // namespace mirolen
