#include <gtest/gtest.h>

#include <QFontMetricsF>
#include <QPainter>
#include <array>
#include <cmath>
#include <functional>
#include <random>

#include "mirolen/qt/ImageSurface.h"
#include "mirolen/qt/Picture.h"
#include "mirolen/qt/translate.h"
#include "qt/qt_support.h"

namespace mirolen {
namespace {

using namespace qt_test;
using qt::ImageSurface;

constexpr SurfaceSize edges{140, 90};

struct Writing {
  FontSpec font;
  Color color = black;
  std::optional<Color> background;
  SurfacePoint place;
  std::string text;
};

/// Writes, measures and draws at random, the same for one seed.
class Scribbler {
 public:
  explicit Scribbler(unsigned seed) : random_(seed) {}

  int die(int sides) { return std::uniform_int_distribution<int>(0, sides - 1)(random_); }

  /// Mostly the font, and now and then the text, of the writing before.
  const Writing& write() {
    if (die(3) == 0) last_.font = font();
    if (die(4)) last_.text = text();
    last_.color = color();
    last_.background = die(3) ? std::nullopt : std::optional(color());
    last_.place = place();
    return last_;
  }

  void draw(Surface& onto) {
    const PixelPoint corners[] = {{die(140), die(90)}, {die(140), die(90)}, {die(140), die(90)}};
    const Pen pen{color(), static_cast<std::int16_t>(1 + die(3)), static_cast<Pen::Style>(die(6))};
    switch (die(8)) {
      case 0:
        return onto.line(pen, place(), place());
      case 1:
        return onto.ellipse(pen, {color(), die(2) == 0}, place(), {double(die(40)), double(die(40))});
      case 2:
        return onto.arc(pen, place(), {double(die(40)), double(die(40))}, die(6), die(6));
      case 3:
        return onto.rectangle(pen, {color(), die(2) == 0}, {place(), place()});
      case 4:
        return onto.restore(*onto.snapshot());
      case 5:
        return die(4) ? onto.refresh() : onto.clear(color());
      default:
        return onto.polygon(pen, {color(), die(2) == 0}, corners);
    }
  }

 private:
  FontSpec font() {
    const char* const names[] = {"Arial", "MS Sans Serif", "Symbol", "Courier New"};
    const double sizes[] = {8, 8.25, 12, 31, 95, 0.1, std::nan("")};
    return {names[die(4)], sizes[die(7)], die(2) == 0, die(2) == 0};
  }
  std::string text() {
    const char* const texts[] = {"", "17.535", "AVAWATo fi", "sm W", "Größe µ", "-1.25E-03"};
    return die(2) ? texts[die(6)] : std::to_string(die(100000) - 50000);
  }
  Color color() { return std::array{red, green, blue, black}[static_cast<std::size_t>(die(4))]; }
  SurfacePoint place() { return {die(300) / 2.0 - 5, die(200) / 2.0 - 5}; }

  std::mt19937 random_;
  Writing last_;
};

/// An image that every text is measured and written on as if it were the only one.
struct PlainPage {
  QImage image;
  double ratio;

  SurfaceSize measure(const Writing& writing) const {
    const QFontMetricsF metrics(qt::font_of(writing.font, image, ratio), &image);
    return {metrics.horizontalAdvance(qt::shown_text(writing.font, writing.text)) / ratio,
            metrics.height() / ratio};
  }
  void write(const Writing& writing) {
    const auto& [x, y] = writing.place;
    if (writing.background) {
      const SurfaceSize size = measure(writing);
      const SurfaceBox box{writing.place, {x + size.width - 1, y + size.height - 1}};
      draw([&](Surface& onto) { onto.rectangle(no_pen, {*writing.background}, box); });
    }
    QPainter painter(&image);
    painter.setFont(qt::font_of(writing.font, image, ratio));
    painter.setPen(qt::qcolor_of(writing.color));
    const QPointF corner(std::floor(x * ratio + 0.5), std::floor(y * ratio + 0.5));
    painter.drawText(corner + QPointF(0, painter.fontMetrics().ascent()),
                     qt::shown_text(writing.font, writing.text));
  }
  /// Anything else than texts.
  void draw(const std::function<void(Surface&)>& call) {
    ImageSurface surface(edges, ratio);
    image.setDevicePixelRatio(ratio);
    surface.restore(qt::Picture(image, edges));
    call(surface);
    image = surface.pixels();
  }
};

class ImageSurfaceTexts : public testing::TestWithParam<unsigned> {};
INSTANTIATE_TEST_SUITE_P(Seeds, ImageSurfaceTexts, testing::Range(1u, 31u));

TEST_P(ImageSurfaceTexts, AreMeasuredAndWrittenAsIfEachWereTheOnlyOne) {
  for (const double ratio : {0.75, 1.0, 1.25, 1.5, 2.0, 3.0}) {
    Scribbler scribbler(GetParam()), again(GetParam());
    ImageSurface surface(edges, ratio);
    PlainPage plain{surface.pixels(), ratio};
    for (int i = 0; i < 80; ++i) {
      const Writing& writing = scribbler.write();
      again.write();
      const int choice = scribbler.die(16);
      again.die(16);
      if (choice % 2) {
        EXPECT_EQ(surface.measure(writing.font, writing.text), plain.measure(writing)) << writing.text;
      }
      if (choice / 2 % 4) {
        surface.text(writing.font, writing.color, writing.background, writing.place, writing.text);
        plain.write(writing);
      }
      if (choice > 11) {
        scribbler.draw(surface);
        plain.draw([&](Surface& onto) { again.draw(onto); });
      }
    }
    EXPECT_EQ(surface.pixels(), plain.image) << ratio;
  }
}

TEST(ImageSurface, WritesAsBeforeOnAScreenWithAnotherRatio) {
  const FontSpec font{"Arial", 12};
  ImageSurface moved(edges, 1), other(edges, 2.5);
  moved.text(font, red, {}, {3, 3}, "Text");
  moved.change_ratio(2.5);
  EXPECT_EQ(moved.measure(font, "Text"), other.measure(font, "Text"));
  for (ImageSurface* surface : {&moved, &other}) {
    surface->clear(white);
    surface->text(font, red, {}, {3, 3}, "Text");
  }
  EXPECT_EQ(moved.pixels(), other.pixels());
}

}  // namespace
}  // namespace mirolen
