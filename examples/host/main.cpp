#include <QApplication>

#include "WaferWindow.h"

int main(int argc, char** argv) {
  QApplication app(argc, argv);
  WaferWindow window;
  window.resize(900, 680);
  window.show();
  window.show_wafer(measured_sites());
  return app.exec();
}
