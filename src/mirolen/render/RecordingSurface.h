#pragma once

#include <iosfwd>
#include <memory>
#include <string>
#include <variant>
#include <vector>

#include "mirolen/render/Surface.h"

namespace mirolen {

// The calls of a Surface, each as a plain struct.
namespace recorded {
struct Clear {
  Color color = 0;
  friend bool operator==(const Clear&, const Clear&) = default;
};
struct Line {
  Pen pen;
  SurfacePoint from, to;
  friend bool operator==(const Line&, const Line&) = default;
};
struct Rectangle {
  Pen pen;
  Brush brush;
  SurfaceBox box;
  friend bool operator==(const Rectangle&, const Rectangle&) = default;
};
struct Ellipse {
  Pen pen;
  Brush brush;
  SurfacePoint centre;
  SurfaceSize radii;
  friend bool operator==(const Ellipse&, const Ellipse&) = default;
};
struct Arc {
  Pen pen;
  SurfacePoint centre;
  SurfaceSize radii;
  double start = 0, end = 0;
  friend bool operator==(const Arc&, const Arc&) = default;
};
struct Polygon {
  Pen pen;
  Brush brush;
  std::vector<PixelPoint> points;
  friend bool operator==(const Polygon&, const Polygon&) = default;
};
struct Text {
  FontSpec font;
  Color color = 0;
  std::optional<Color> background;
  SurfacePoint place;
  std::string text;
  friend bool operator==(const Text&, const Text&) = default;
};
struct FloodFill {
  Brush brush;
  PixelPoint seed;
  Color boundary = 0;
  friend bool operator==(const FloodFill&, const FloodFill&) = default;
};
struct Refresh {
  friend bool operator==(const Refresh&, const Refresh&) = default;
};

using Call = std::variant<Clear, Line, Rectangle, Ellipse, Arc, Polygon, Text, FloodFill, Refresh>;
}  // namespace recorded

using Recording = std::vector<recorded::Call>;

/// Makes the calls of a recording, in their order, on another surface.
void replay(const Recording& recording, Surface& onto);

/// Writes a recording as JSON, one call a line, for a bug report or a comparison. Colours are "#RRGGBB".
void write_json_lines(const Recording& recording, std::ostream& out);

/// A device that draws nothing and keeps every call. Its text is as wide as 0.6 and as high as 1.2 times the
/// font's size for each character (of UTF-8), at 15 twips per pixel, so that layouts are the same on every
/// machine.
class RecordingSurface : public Surface {
 public:
  explicit RecordingSurface(SurfaceSize size = {200, 200}, SurfaceSize twips_per_pixel = {15, 15})
      : size_(size), twips_per_pixel_(twips_per_pixel) {}

  const Recording& recording() const { return recording_; }
  /// Forgets the calls so far.
  void forget() { recording_.clear(); }
  /// Takes another size and keeps the calls.
  void resize(SurfaceSize size) { size_ = size; }

  SurfaceSize size() const override { return size_; }
  SurfaceSize twips_per_pixel() const override { return twips_per_pixel_; }
  /// What a clear wipes out cannot be seen any more, so the recording starts again with it.
  void clear(Color color) override;
  void line(const Pen& pen, SurfacePoint from, SurfacePoint to) override;
  void rectangle(const Pen& pen, const Brush& brush, const SurfaceBox& box) override;
  void ellipse(const Pen& pen, const Brush& brush, SurfacePoint centre, SurfaceSize radii) override;
  void arc(const Pen& pen, SurfacePoint centre, SurfaceSize radii, double start, double end) override;
  void polygon(const Pen& pen, const Brush& brush, std::span<const PixelPoint> points) override;
  void text(const FontSpec& font, Color color, std::optional<Color> background, SurfacePoint place,
            std::string_view text) override;
  SurfaceSize measure(const FontSpec& font, std::string_view text) const override;
  void flood_fill(const Brush& brush, PixelPoint seed, Color boundary) override;
  /// A RecordedImage.
  std::shared_ptr<const Image> snapshot() const override;
  /// Makes the calls of a RecordedImage again, but for its clears.
  void restore(const Image& image) override;
  void refresh() override;

 private:
  SurfaceSize size_;
  SurfaceSize twips_per_pixel_;
  Recording recording_;
};

/// A snapshot of a RecordingSurface.
class RecordedImage : public Image {
 public:
  RecordedImage(SurfaceSize size, Recording recording) : size_(size), recording_(std::move(recording)) {}
  SurfaceSize size() const override { return size_; }
  const Recording& recording() const { return recording_; }

 private:
  SurfaceSize size_;
  Recording recording_;
};

}  // namespace mirolen
