#include <QApplication>
#include <QLibraryInfo>
#include <QTranslator>
#include <cstdio>

#include "ViewerOptions.h"
#include "ViewerWindow.h"
#include "mirolen/core/RunTimeError.h"
#include "mirolen/qt/translations.h"

int main(int argc, char** argv) {
  QApplication app(argc, argv);
  QApplication::setOrganizationName("Mirolen");
  QApplication::setApplicationName("WaferViewer");
  mirolen::qt::install_translations();
  QTranslator of_qt;  // the texts of its own dialogs
  if (of_qt.load(QLocale(), "qtbase", "_", QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
    QApplication::installTranslator(&of_qt);
  try {
    const ViewerOptions options = options_in(QApplication::arguments());
    ViewerWindow window(300, 294);
    window.start(options);
    return QApplication::exec();
  } catch (const mirolen::InvalidArgument& error) {
    std::fprintf(stderr, "viewer: %s\n", error.what());
    return 1;
  }
}
