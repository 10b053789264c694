#pragma once

#include "mirolen/render/Surface.h"

namespace mirolen {

/// A device that draws nothing and keeps nothing: what is left is the cost of everything but drawing.
class NullSurface : public Surface {
 public:
  explicit NullSurface(SurfaceSize size) : size_(size) {}

  SurfaceSize size() const override { return size_; }
  SurfaceSize twips_per_pixel() const override { return {15, 15}; }
  void clear(Color) override {}
  void line(const Pen&, SurfacePoint, SurfacePoint) override {}
  void rectangle(const Pen&, const Brush&, const SurfaceBox&) override {}
  void ellipse(const Pen&, const Brush&, SurfacePoint, SurfaceSize) override {}
  void arc(const Pen&, SurfacePoint, SurfaceSize, double, double) override {}
  void polygon(const Pen&, const Brush&, std::span<const PixelPoint>) override {}
  void text(const FontSpec&, Color, std::optional<Color>, SurfacePoint, std::string_view) override {}
  SurfaceSize measure(const FontSpec& font, std::string_view text) const override {
    return {0.6 * font.size * static_cast<double>(text.size()), 1.2 * font.size};
  }
  void flood_fill(const Brush&, PixelPoint, Color) override {}
  std::shared_ptr<const Image> snapshot() const override { return std::make_shared<NullImage>(size_); }
  void restore(const Image&) override {}
  void refresh() override {}

 private:
  class NullImage : public Image {
   public:
    explicit NullImage(SurfaceSize size) : size_(size) {}
    SurfaceSize size() const override { return size_; }

   private:
    SurfaceSize size_;
  };

  SurfaceSize size_;
};

}  // namespace mirolen
