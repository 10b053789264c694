#include "qt/qt_support.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QTest>
#include <clocale>

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

CommaInForce::CommaInForce() : before_(std::setlocale(LC_ALL, nullptr)) {
  EXPECT_NE(std::setlocale(LC_ALL, "de_DE.UTF-8"), nullptr)
      << "needs the locale de_DE.UTF-8: localedef -i de_DE -f UTF-8 de_DE.UTF-8";
  const wafer made_in_this_locale;
}

CommaInForce::~CommaInForce() {
  std::setlocale(LC_ALL, before_.c_str());
  const wafer made_as_before;
}

TemporaryFile::TemporaryFile(const QByteArray& content, const QString& name)
    : path(directory_.filePath(name)) {
  QFile file(path);
  if (file.open(QIODevice::WriteOnly)) file.write(content);
}

}  // namespace mirolen::qt_test
