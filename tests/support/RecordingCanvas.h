#pragma once

#include "mirolen/render/PlotCanvas.h"
#include "support/CallLog.h"

namespace mirolen {

/// A canvas that draws nothing and keeps every call. Properties read back as they were set.
class RecordingCanvas : public PlotCanvas {
 public:
  struct Rectangle {
    double left = 0, top = 0, width = 0, height = 0;
  };

  explicit RecordingCanvas(CanvasKind kind = CanvasKind::other, Rectangle scale = {0, 0, 206, 206})
      : scale(scale), place(scale), kind_(kind) {}

  mutable CallLog log;
  Rectangle scale;
  Rectangle place;
  SurfaceSize twips_per_pixel{15, 15};
  /// Size of a character, whatever the font.
  SurfaceSize character{6, 12};

  const Lines& lines() const { return log.lines; }

  CanvasKind kind() const override { return kind_; }

  double ScaleLeft() const override { return read("ScaleLeft", scale.left); }
  double ScaleTop() const override { return read("ScaleTop", scale.top); }
  double ScaleWidth() const override { return read("ScaleWidth", scale.width); }
  double ScaleHeight() const override { return read("ScaleHeight", scale.height); }
  std::int16_t ScaleMode() const override { return read("ScaleMode", scale_mode_); }
  void ScaleMode(std::int16_t mode) override { set("ScaleMode", scale_mode_, mode); }

  double TwipsPerPixelX() const override { return read("TwipsPerPixelX", twips_per_pixel.width); }
  double TwipsPerPixelY() const override { return read("TwipsPerPixelY", twips_per_pixel.height); }

  double left() const override { return read("left", place.left); }
  double top() const override { return read("top", place.top); }
  double width() const override { return read("width", place.width); }
  double height() const override { return read("height", place.height); }

  Color FillColor() const override { return read("FillColor", fill_color_); }
  void FillColor(Color color) override { set("FillColor", fill_color_, color); }
  std::int16_t FillStyle() const override { return read("FillStyle", fill_style_); }
  void FillStyle(std::int16_t style) override { set("FillStyle", fill_style_, style); }
  std::int16_t DrawStyle() const override { return read("DrawStyle", draw_style_); }
  void DrawStyle(std::int16_t style) override { set("DrawStyle", draw_style_, style); }
  std::int16_t DrawWidth() const override { return read("DrawWidth", draw_width_); }
  void DrawWidth(std::int16_t width) override { set("DrawWidth", draw_width_, width); }
  Color ForeColor() const override { return read("ForeColor", fore_color_); }
  void ForeColor(Color color) override { set("ForeColor", fore_color_, color); }
  Color BackColor() const override { return read("BackColor", back_color_); }
  void BackColor(Color color) override { set("BackColor", back_color_, color); }
  double CurrentX() const override { return read("CurrentX", current_x_); }
  void CurrentX(double x) override { set("CurrentX", current_x_, x); }
  double CurrentY() const override { return read("CurrentY", current_y_); }
  void CurrentY(double y) override { set("CurrentY", current_y_, y); }
  bool FontTransparent() const override { return read("FontTransparent", font_transparent_); }
  void FontTransparent(bool transparent) override { set("FontTransparent", font_transparent_, transparent); }
  FontSpec Font() const override { return read("Font", font_); }
  /// "Font=Arial 8 0 0".
  void Font(const FontSpec& font) override;

  void Cls() override;
  void keep_as_background() override { log.call("keep_as_background", "keep_as_background"); }
  void Refresh() override { log.call("Refresh", "Refresh"); }
  /// "Line flags x1 y1 x2 y2 colour"; "-" stands for what a caller left out.
  void Line(std::int16_t flags, double x1, double y1, double x2, double y2,
            std::optional<Color> color) override;
  /// "Circle x y radius colour start end aspect".
  void Circle(double x, double y, double radius, std::optional<Color> color = {},
              std::optional<double> start = {}, std::optional<double> end = {}, double aspect = 1) override;
  /// "Print text".
  void Print(std::string_view text) override;
  double TextWidth(std::string_view text) const override;
  double TextHeight(std::string_view text) const override;
  /// "Polygon 1,2 3,4 5,6".
  void Polygon(std::span<const PixelPoint> points) override;
  /// "FloodFill x y boundary".
  void FloodFill(std::int32_t x, std::int32_t y, Color boundary) override;

 private:
  template <class T>
  T read(const char* member, T value) const {
    log.read(member);
    return value;
  }
  template <class T>
  void set(const char* member, T& property, T value) {
    log.set(member, static_cast<double>(value));
    property = value;
  }

  CanvasKind kind_;
  std::int16_t scale_mode_ = pixels;
  Color fill_color_ = 0, fore_color_ = 0, back_color_ = 0xFFFFFF;
  std::int16_t fill_style_ = transparent_fill, draw_style_ = solid_line, draw_width_ = 1;
  double current_x_ = 0, current_y_ = 0;
  bool font_transparent_ = true;
  FontSpec font_;
};

/// A polygon as a RecordingCanvas keeps it.
std::string polygon_line(std::span<const PixelPoint> points);

}  // namespace mirolen
