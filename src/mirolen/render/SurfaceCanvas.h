#pragma once

#include <string>

#include "mirolen/render/PlotCanvas.h"

namespace mirolen {

/// The canvas contract over any Surface: drawing state, scale modes, text place. Give it a surface and a
/// kind, and the renderers draw there. Without a surface every drawing and measuring member throws
/// CanvasError.
class SurfaceCanvas : public PlotCanvas {
 public:
  /// @param surface stays the caller's, and in place as long as the canvas draws; may be null.
  SurfaceCanvas(CanvasKind kind, Surface* surface) : kind_(kind), surface_(surface) {}

  CanvasKind kind() const override { return kind_; }

  double ScaleLeft() const override { return 0; }
  double ScaleTop() const override { return 0; }
  double ScaleWidth() const override;
  double ScaleHeight() const override;
  std::int16_t ScaleMode() const override { return scale_mode_; }
  /// Twips 1, points 2, pixels 3, inches 5, millimetres 6, centimetres 7. The text place stays where it is.
  /// @throws InvalidArgument for any other mode.
  void ScaleMode(std::int16_t mode) override;

  double TwipsPerPixelX() const override;
  double TwipsPerPixelY() const override;

  double left() const override { return 0; }
  double top() const override { return 0; }
  double width() const override { return ScaleWidth(); }
  double height() const override { return ScaleHeight(); }

  Color FillColor() const override { return fill_color_; }
  void FillColor(Color color) override { fill_color_ = color; }
  std::int16_t FillStyle() const override { return fill_style_; }
  void FillStyle(std::int16_t style) override;
  std::int16_t DrawStyle() const override { return draw_style_; }
  void DrawStyle(std::int16_t style) override;
  std::int16_t DrawWidth() const override { return draw_width_; }
  void DrawWidth(std::int16_t width) override;
  Color ForeColor() const override { return fore_color_; }
  void ForeColor(Color color) override { fore_color_ = color; }
  Color BackColor() const override { return background(); }
  void BackColor(Color color) override { set_background(color); }
  double CurrentX() const override;
  void CurrentX(double x) override;
  double CurrentY() const override;
  void CurrentY(double y) override;
  bool FontTransparent() const override { return font_transparent_; }
  void FontTransparent(bool transparent) override { font_transparent_ = transparent; }
  FontSpec Font() const override { return font_; }
  void Font(const FontSpec& font) override { font_ = font; }

  void Cls() override;
  void keep_as_background() override {}
  void Refresh() override;
  void Line(std::int16_t flags, double x1, double y1, double x2, double y2,
            std::optional<Color> color) override;
  void Circle(double x, double y, double radius, std::optional<Color> color = {},
              std::optional<double> start = {}, std::optional<double> end = {}, double aspect = 1) override;
  void Print(std::string_view text) override;
  double TextWidth(std::string_view text) const override;
  double TextHeight(std::string_view text) const override;
  void Polygon(std::span<const PixelPoint> points) override;
  void FloodFill(std::int32_t x, std::int32_t y, Color boundary) override;

 protected:
  /// The surface to draw on at this moment, or null.
  virtual Surface* device() const { return surface_; }
  virtual Color background() const { return back_color_; }
  virtual void set_background(Color color) { back_color_ = color; }
  /// The colour that a colour value stands for on this canvas.
  virtual Color resolve(Color color) const { return color; }

 private:
  Surface& surface(const char* member) const;
  /// Pixels of one scale unit.
  SurfaceSize unit(const char* member) const;
  SurfacePoint pixel(const char* member, double x, double y) const;
  Pen pen(std::optional<Color> color) const;
  Brush brush() const { return {resolve(fill_color_), fill_style_ == solid_fill}; }

  CanvasKind kind_;
  Surface* surface_;
  std::int16_t scale_mode_ = pixels;
  Color fill_color_ = 0;
  Color fore_color_ = 0;
  Color back_color_ = 0xFFFFFF;
  std::int16_t fill_style_ = transparent_fill;
  std::int16_t draw_style_ = solid_line;
  std::int16_t draw_width_ = 1;
  SurfacePoint text_place_;  // in pixels, so that it outlasts a change of scale
  bool font_transparent_ = true;
  FontSpec font_;
};

}  // namespace mirolen
