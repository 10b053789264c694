#include <gtest/gtest.h>

#include <QApplication>
#include <QTest>
#include <QTimer>

#include "host_windows.h"
#include "repeats.h"

namespace mirolen {
namespace {

using namespace host_test;

/// Nine controls on a window of each kind, from its first sight to its end, many times over.
class Starts : public testing::TestWithParam<HostKind> {
 protected:
  void make() {
    host_ = GetParam().make();
    host_.window->resize(1300, 1000);
    for (qt::PlotWidget* face : host_.faces) {
      load_slope(*face);
      ASSERT_EQ(face->Plot(), 0);
    }
  }
  void show() { host_.window->show(); }
  const std::vector<qt::PlotWidget*>& faces() const { return host_.faces; }
  /// Lets the host run until nothing waits any more, looks at its plots, and ends.
  void run() {
    QTimer::singleShot(0, [] {
      QTest::qWait(5);
      QApplication::exit();
    });
    QApplication::exec();
    for (qt::PlotWidget* face : host_.faces)
      EXPECT_TRUE(has_a_plot(*face)) << face->metaObject()->className();
    host_ = {};
  }

 private:
  /// A plot of the slope has more than a wafer's outline.
  static bool has_a_plot(qt::PlotWidget& face) {
    const QImage picture = face.grab().toImage();
    const QImage plot = picture.copy(picture.rect().adjusted(10, 30, -picture.width() / 3, -10));
    const QRgb first = plot.pixel(0, 0);
    int others = 0;
    for (int y = 0; y < plot.height(); ++y)
      for (int x = 0; x < plot.width(); ++x) others += plot.pixel(x, y) != first;
    return others > plot.width() * plot.height() / 50;
  }

  HostWindow host_;
};

TEST_P(Starts, BeforeTheEventLoop) {
  for (int start = 0; start < repeats(3) && !HasFailure(); ++start) {
    make();
    show();
    run();
  }
}

TEST_P(Starts, WithinTheEventLoop) {
  for (int start = 0; start < repeats(3) && !HasFailure(); ++start) {
    QTimer::singleShot(0, [this] {
      make();
      show();
    });
    QTimer::singleShot(0, [] { QApplication::exit(); });
    QApplication::exec();
    run();
  }
}

TEST_P(Starts, AndRunsNothingOfTheHostWithinACall) {
  make();
  show();
  QTest::qWait(1);
  for (qt::PlotWidget* face : faces()) {
    bool ran = false;
    QTimer::singleShot(0, [&] { ran = true; });
    face->SetPlotNotVaild();
    face->Plot();
    EXPECT_FALSE(ran) << face->metaObject()->className();
    QTest::qWait(0);
    EXPECT_TRUE(ran);
  }
}

TEST_P(Starts, AndDataThatComeAfterTheFirstSight) {
  for (int start = 0; start < repeats(3) && !HasFailure(); ++start) {
    HostWindow host = GetParam().make();
    host.window->show();
    QTest::qWait(1);
    for (qt::PlotWidget* face : host.faces) {
      load_slope(*face);
      EXPECT_EQ(face->Plot(), 0);
    }
    host.window->resize(900, 700);
    QTest::qWait(1);
  }
}

INSTANTIATE_TEST_SUITE_P(Hosts, Starts, testing::ValuesIn(host_kinds()), name_of_host);

}  // namespace
}  // namespace mirolen
