#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "mirolen/core/numbers.h"

namespace mirolen {

struct PixelPoint {
  std::int32_t x = 0;
  std::int32_t y = 0;
  friend bool operator==(const PixelPoint&, const PixelPoint&) = default;
};

struct SurfacePoint {
  double x = 0;
  double y = 0;
  friend bool operator==(const SurfacePoint&, const SurfacePoint&) = default;
};

struct SurfaceSize {
  double width = 0;
  double height = 0;
  friend bool operator==(const SurfaceSize&, const SurfaceSize&) = default;
};

/// Two opposite corners; the pixels of both belong to the rectangle.
struct SurfaceBox {
  SurfacePoint from;
  SurfacePoint to;
  friend bool operator==(const SurfaceBox&, const SurfaceBox&) = default;
};

/// How a line or an outline looks. A style of none draws nothing.
struct Pen {
  enum class Style { solid, dash, dot, dash_dot, dash_dot_dot, none };
  Color color = 0;
  std::int16_t width = 1;
  Style style = Style::solid;
  friend bool operator==(const Pen&, const Pen&) = default;
};

/// How an area is filled. A brush that is not solid leaves the area as it is.
struct Brush {
  Color color = 0;
  bool solid = true;
  friend bool operator==(const Brush&, const Brush&) = default;
};

/// A font by its name and its size in points.
struct FontSpec {
  std::string Name = "Arial";
  double size = 8;
  bool bold = false;
  bool underline = false;
  friend bool operator==(const FontSpec&, const FontSpec&) = default;
};

/// An unchanging copy of what a surface showed, for the toolkit that made the surface.
class Image {
 public:
  virtual ~Image() = default;
  virtual SurfaceSize size() const = 0;
};

/// A stateless drawing device: all that a new device has to supply. Coordinates are device pixels, the centre
/// of the top left one at (0, 0), growing rightward and downward; colours are 0x00BBGGRR (a system colour has
/// been resolved before). Every call may throw CanvasError.
class Surface {
 public:
  virtual ~Surface() = default;

  virtual SurfaceSize size() const = 0;
  /// Twips (1/1440 inch) of a pixel, x as width and y as height.
  virtual SurfaceSize twips_per_pixel() const = 0;

  virtual void clear(Color color) = 0;
  virtual void line(const Pen& pen, SurfacePoint from, SurfacePoint to) = 0;
  virtual void rectangle(const Pen& pen, const Brush& brush, const SurfaceBox& box) = 0;
  virtual void ellipse(const Pen& pen, const Brush& brush, SurfacePoint centre, SurfaceSize radii) = 0;
  /// An open arc, counter-clockwise from start to end, in radians from +x.
  virtual void arc(const Pen& pen, SurfacePoint centre, SurfaceSize radii, double start, double end) = 0;
  /// Axis-aligned polygons that share an edge neither overlap nor leave a gap when drawn without outline.
  virtual void polygon(const Pen& pen, const Brush& brush, std::span<const PixelPoint> points) = 0;
  /// Text with its top left corner at a place; with a background the text's box is painted first.
  virtual void text(const FontSpec& font, Color color, std::optional<Color> background, SurfacePoint place,
                    std::string_view text) = 0;
  virtual SurfaceSize measure(const FontSpec& font, std::string_view text) const = 0;
  virtual void flood_fill(const Brush& brush, PixelPoint seed, Color boundary) = 0;
  virtual std::shared_ptr<const Image> snapshot() const = 0;
  /// Draws a snapshot of a surface of this kind at its place; one of another kind is left out.
  virtual void restore(const Image& image) = 0;
  /// Shows what has been drawn; the device may wait as long as no eye sees the difference.
  virtual void refresh() = 0;
};

}  // namespace mirolen
