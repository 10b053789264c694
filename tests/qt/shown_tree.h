#pragma once

#include <gtest/gtest.h>

#include <QTest>
#include <QWidget>

#include "mirolen/qt/QtToolkit.h"
#include "mirolen/qt/peers.h"

namespace mirolen::qt_test {

/// A tree of widgets on a face of 400 x 300 pixels that is shown.
template <class Tree>
class ShownTree : public testing::Test {
 protected:
  ShownTree() {
    face.resize(400, 300);
    face.show();
    QTest::qWait(0);
  }
  /// The picture of a widget in logical pixels.
  static QImage seen(const Widget& widget) {
    return qt::view_of(widget)->grab().toImage().scaled(qt::view_of(widget)->size());
  }

  QWidget face;
  qt::QtToolkit toolkit{face};
  Tree tree{toolkit};
};

}  // namespace mirolen::qt_test
