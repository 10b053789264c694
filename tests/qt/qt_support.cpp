#include "qt/qt_support.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QTest>

#include "mirolen/qt/translate.h"

namespace mirolen::qt_test {

Color pixel(const QImage& image, int x, int y) { return qt::color_of(image.pixelColor(x, y)); }

std::set<Color> colors_in(const QImage& image) {
  std::set<Color> colors;
  for (int y = 0; y < image.height(); ++y)
    for (int x = 0; x < image.width(); ++x) colors.insert(pixel(image, x, y));
  return colors;
}

void load_slope(qt::PlotWidget& face) {
  std::vector<double> x, y, z;
  for (int i = -20; i <= 20; i += 10)
    for (int j = -20; j <= 20; j += 10) {
      x.push_back(i);
      y.push_back(j);
      z.push_back(100 + i);
    }
  face.SetWaferData(x, y, z);
}

ShownPlot::ShownPlot() {
  face.resize(600, 450);
  face.show();
  QTest::qWait(0);
  load_slope(face);
  face.Plot();
}

TemporaryFile::TemporaryFile(const QByteArray& content, const QString& name)
    : path(directory_.filePath(name)) {
  QFile file(path);
  if (file.open(QIODevice::WriteOnly)) file.write(content);
}

}  // namespace mirolen::qt_test
