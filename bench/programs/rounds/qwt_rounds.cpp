// Answers the rounds of Qwt: a spectrogram of a matrix that is ready, on a picture. Debian 12 has Qwt for Qt
// 5 alone, so this program knows that and nothing of the binding.

#include <qwt_color_map.h>
#include <qwt_matrix_raster_data.h>
#include <qwt_plot_spectrogram.h>
#include <qwt_scale_map.h>

#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <fstream>
#include <iostream>
#include <memory>
#include <stdexcept>

#include "support/Rounds.h"

namespace mirolen::bench {
namespace {

constexpr int side = 201, pixels = 900;
constexpr double test_diameter = 194;

QVector<double> read_matrix(const std::string& name) {
  QVector<double> values(side * side);
  std::ifstream file(name, std::ios::binary);
  if (!file.read(reinterpret_cast<char*>(values.data()), values.size() * static_cast<int>(sizeof(double))))
    throw std::runtime_error("cannot read " + name);
  return values;
}

QwtColorMap* ten_colors() {
  auto* colors = new QwtLinearColorMap(QColor(128, 0, 128), QColor(128, 0, 0));
  colors->setMode(QwtLinearColorMap::FixedColors);
  for (int band = 1; band < 10; ++band)
    colors->addColorStop(band / 10.0, QColor::fromHsv(36 * band, 255, 255));
  return colors;
}

class Spectrogram {
 public:
  explicit Spectrogram(const QVector<double>& values) {
    auto* data = new QwtMatrixRasterData;
    data->setValueMatrix(values, side);
    data->setInterval(Qt::XAxis, QwtInterval(-test_diameter / 2, test_diameter / 2));
    data->setInterval(Qt::YAxis, QwtInterval(-test_diameter / 2, test_diameter / 2));
    // NaN, outside the wafer, compares as neither.
    double low = 1e300, high = -1e300;
    for (const double value : values) {
      if (value < low) low = value;
      if (value > high) high = value;
    }
    data->setInterval(Qt::ZAxis, QwtInterval(low, high));
    item_.setData(data);
    item_.setColorMap(ten_colors());
    for (QwtScaleMap* map : {&x_, &y_}) map->setScaleInterval(-test_diameter / 2, test_diameter / 2);
    x_.setPaintInterval(0, pixels);
    y_.setPaintInterval(pixels, 0);
  }

  void draw() {
    picture_.fill(Qt::white);
    QPainter painter(&picture_);
    item_.draw(&painter, x_, y_, QRectF(0, 0, pixels, pixels));
  }
  /// How many pixels have a colour.
  double colored() const {
    int found = 0;
    for (int y = 0; y < pixels; ++y)
      for (int x = 0; x < pixels; ++x) found += picture_.pixel(x, y) != qRgb(255, 255, 255);
    return found;
  }

 private:
  QwtPlotSpectrogram item_;
  QwtScaleMap x_, y_;
  QImage picture_{pixels, pixels, QImage::Format_RGB32};
};

}  // namespace
}  // namespace mirolen::bench

int main(int argc, char** argv) {
  using namespace mirolen::bench;
  if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  QGuiApplication app(argc, argv);
  if (argc != 2) {
    std::cerr << "usage: " << argv[0] << " FOLDER\nThe folder is that of heart_rounds.\n";
    return 2;
  }
  const std::string matrix = argv[1] + std::string("/201.matrix");
  return answer_rounds({{"map", [=] {
                           const auto spectrogram = std::make_shared<Spectrogram>(read_matrix(matrix));
                           return Work{[=] { spectrogram->draw(); }, [=] { return spectrogram->colored(); }};
                         }}});
}
