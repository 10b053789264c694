#pragma once

#include <QImage>
#include <QString>
#include <QTemporaryDir>
#include <set>
#include <string>
#include <vector>

#include "mirolen/qt/ImageSurface.h"
#include "mirolen/qt/Plot2D.h"
#include "support/CommaInForce.h"

namespace mirolen::qt_test {

constexpr Color red = 0x0000FF, green = 0x00FF00, blue = 0xFF0000, white = 0xFFFFFF, black = 0;
inline const Pen no_pen{black, 1, Pen::Style::none};

/// The colour 0x00BBGGRR of a device pixel.
Color pixel(const QImage& image, int x, int y);
inline Color pixel(const qt::ImageSurface& surface, int x, int y) { return pixel(surface.pixels(), x, y); }
std::set<Color> colors_in(const QImage& image);

/// Loads a plot with sites in a square of 40 mm whose values grow to the right.
void load_slope(qt::PlotWidget& face);

/// A face of 600 x 450 pixels that is shown and has its plot.
struct ShownPlot {
  ShownPlot();
  /// What was rendered last; another one after each rendering.
  std::shared_ptr<const Image> rendering() { return face.control().RePlot.Picture; }

  qt::Plot2D face;
};

/// A file that goes with its directory.
class TemporaryFile {
 public:
  explicit TemporaryFile(const QByteArray& content = {}, const QString& name = "sites.csv");

 private:
  QTemporaryDir directory_;

 public:
  const QString path;
};

}  // namespace mirolen::qt_test
