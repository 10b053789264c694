#pragma once

#include <functional>
#include <string>

#include "mirolen/core/wafer.h"
#include "support/RecordingCanvas.h"

namespace mirolen {

/// A canvas of a kind, and how it fails.
struct CanvasSetup {
  CanvasKind kind = CanvasKind::other;
  RecordingCanvas::Rectangle scale{0, 0, 206, 206};
  SurfaceSize twips_per_pixel{15, 15};
  std::string fails_in;
  int fails_at = 0;

  RecordingCanvas canvas() const;
};

std::string describe(const CanvasSetup& setup);

/// What is drawn, each line with its width and colour, each circle with its fill, each text with its place,
/// colour and font; whatever the order of the properties that were set for it.
Lines drawn_things(const Lines& log);

enum class RoundedEdges { none, height, all };

/// What the plain restatements of renderers share: they work out the lines that a renderer leaves on a
/// recording canvas, its reads among them, step by step in the plainest words, and share no code with it but
/// `wafer::Interpolation` and the number texts.
class PlainRenderer {
 protected:
  struct Failure {};

  PlainRenderer(const wafer& source, const CanvasSetup& setup, RecordingCanvas::Rectangle wanted,
                std::int16_t ShowDispl, RoundedEdges rounded = RoundedEdges::none)
      : w(source), setup(setup), wanted(wanted), ShowDispl(ShowDispl), rounded(rounded) {}

  /// Where the body fails, the area is the wanted one at 4.8 twips per pixel.
  void statement(const std::function<void()>& body);
  void call(const std::string& member, const std::string& line);
  void say(const std::string& member, const std::string& line);
  void say_set(const std::string& member, double number);
  double property(const std::string& member, double value);
  double twips_x() { return property("TwipsPerPixelX", setup.twips_per_pixel.width); }
  double twips_y() { return property("TwipsPerPixelY", setup.twips_per_pixel.height); }

  void clear();
  void find_area();
  void refresh_picture_box();

  static double divided(double number, double by);
  static double rounded_to_16_bits(double number);
  static PixelPoint pixel(double x, double y);
  /// A colour field as the colour that it stands for.
  static double as_color(double field);
  double scale_base(double high, double low) const;
  /// The band colour of a value: each band from its lower end, included, up to the next.
  double band_color(double value, double top, double step) const;

  const wafer& w;
  const CanvasSetup setup;
  const RecordingCanvas::Rectangle wanted;
  const std::int16_t ShowDispl;
  Lines said;
  RecordingCanvas::Rectangle area;

 private:
  void find_edges(std::function<double()> left, std::function<double()> width, std::function<double()> top,
                  std::function<double()> height);
  double edge(double number) const;
  double height_edge(double number) const;

  const RoundedEdges rounded;
  int calls = 0;
};

}  // namespace mirolen
