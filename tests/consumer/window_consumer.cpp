// The example of a main window, shown before exec(): each plot has drawn its wafer when its tab comes up.
#include <QApplication>
#include <QTimer>
#include <cstdio>

#include "WaferWindow.h"
#include "mirolen/qt/PlotWidget.h"

namespace {

/// The upper left quarter holds no legend: without a plot there is only grey, black and white.
bool has_drawn(mirolen::qt::PlotWidget& plot) {
  const QImage picture = plot.grab().toImage().convertToFormat(QImage::Format_RGB32);
  int coloured = 0;
  for (int y = 0; y < picture.height() / 2; ++y)
    for (int x = 0; x < picture.width() / 2; ++x) coloured += QColor(picture.pixel(x, y)).saturation() > 50;
  return coloured > 100;
}

}  // namespace

int main(int argc, char** argv) {
  QApplication app(argc, argv);
  WaferWindow window;
  window.resize(900, 680);
  window.show();
  bool good = window.show_wafer(measured_sites());
  auto* const tabs = qobject_cast<QTabWidget*>(window.centralWidget());
  QTimer next;
  QObject::connect(&next, &QTimer::timeout, [&] {
    auto& plot = *window.plots()[static_cast<std::size_t>(tabs->currentIndex())];
    const bool drawn = has_drawn(plot);
    if (!drawn) std::printf("%s has not drawn\n", plot.metaObject()->className());
    good &= drawn;
    if (tabs->currentIndex() + 1 == tabs->count()) return app.quit();
    tabs->setCurrentIndex(tabs->currentIndex() + 1);
  });
  next.start(50);
  app.exec();
  std::printf("window consumer: %s\n", good ? "ok" : "FAILED");
  return good ? 0 : 1;
}
