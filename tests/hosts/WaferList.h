#pragma once

#include <gtest/gtest.h>

#include <QListWidget>
#include <QTest>
#include <QVBoxLayout>
#include <algorithm>

#include "host_windows.h"
#include "qt/nine_faces.h"

namespace mirolen::host_test {

/// A list of wafers beside four controls, which show the current one.
class WaferList : public testing::Test {
 protected:
  WaferList() {
    for (const char* const name : {"Plot2D", "Plot2DN", "Histogram", "LineScan"}) {
      faces.push_back(qt_test::make_face(name).release());
      ground.addWidget(faces.back());
    }
    ground.addWidget(&list);
    for (int row = 0; row <= wafers; ++row) list.addItem(QString::number(row));
    QObject::connect(&list, &QListWidget::currentRowChanged, [this](int row) { show_wafer(row); });
    window.setLayout(&ground);
    window.resize(700, 900);
    window.show();
    EXPECT_TRUE(QTest::qWaitForWindowExposed(&window));
    list.setFocus();
    list.setCurrentRow(0);
  }
  ~WaferList() override { list.setParent(nullptr); }

  void show_wafer(int row) {
    deepest = std::max(deepest, ++depth);
    for (qt::PlotWidget* face : faces) {
      load_slope(*face, 100 * row);
      face->Plot();
    }
    --depth;
  }
  void expect_shown(int row) {
    EXPECT_EQ(list.currentRow(), row);
    EXPECT_EQ(deepest, 1);
    for (qt::PlotWidget* face : faces) EXPECT_EQ(face->mean(), 100 * row) << face->metaObject()->className();
  }

  static constexpr int wafers = 1000;
  QWidget window;
  QVBoxLayout ground;
  QListWidget list;
  std::vector<qt::PlotWidget*> faces;
  int depth = 0, deepest = 0;
};

}  // namespace mirolen::host_test
