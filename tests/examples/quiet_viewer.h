#pragma once

#include <QAction>
#include <QStringList>
#include <stdexcept>

#include "ViewerWindow.h"
#include "mirolen/qt/Plot2D.h"

namespace mirolen::examples_test {

/// A viewer that collects what it has to complain about.
struct QuietViewer : ViewerWindow {
  QuietViewer() : ViewerWindow(300, 294) {}
  void complain(const QString& text) override { complaints << text; }
  QAction& action(const QString& text) {
    for (QAction* found : findChildren<QAction*>())
      if (found->text().remove('&') == text) return *found;
    throw std::runtime_error("no such action");
  }
  bool shows(const QString& figure) {
    for (QLabel* label : findChildren<QLabel*>())
      if (label->text() == figure) return true;
    return false;
  }
  qt::Plot2D& map() { return dynamic_cast<qt::Plot2D&>(plot(0)); }
  std::shared_ptr<const Image> rendering() { return map().control().RePlot.Picture; }

  QStringList complaints;
};

}  // namespace mirolen::examples_test
