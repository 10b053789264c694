#include <mirolen/qt/Plot2D.h>
#include <mirolen/qt/translations.h>

#include <QApplication>
#include <cstdio>
#include <vector>

int main(int argc, char** argv) {
  QApplication app(argc, argv);
  mirolen::qt::install_translations();
  mirolen::qt::Plot2D plot;
  plot.resize(600, 450);
  const std::vector<double> x{-50, 50, 0, 0}, y{0, 0, -50, 50}, z{1, 2, 3, 4};
  const bool drawn = plot.SetWaferData(x, y, z) == 0 && plot.Plot() == 0;
  const bool shown = !plot.grab().isNull() && plot.property("mean").toDouble() == 2.5;
  std::printf("Qt consumer: %s\n", drawn && shown ? "ok" : "FAILED");
  return drawn && shown ? 0 : 1;
}
