#include <gtest/gtest.h>

#include <QApplication>
#include <QEvent>
#include <QMainWindow>
#include <QPointer>
#include <QSignalSpy>
#include <QTest>
#include <QTimer>

#include "WaferList.h"
#include "host_windows.h"
#include "mirolen/qt/peers.h"
#include "mirolen/widgets/PictureBox.h"
#include "qt/nine_faces.h"

namespace mirolen {
namespace {

using namespace host_test;
using qt_test::make_face;
using qt_test::nine_faces;

/// Counts what Qt hands to an object, by the type of the event.
class EventCount : public QObject {
 public:
  EventCount(QObject& watched, QEvent::Type type) : type_(type) { watched.installEventFilter(this); }
  int count = 0;

 protected:
  bool eventFilter(QObject*, QEvent* event) override {
    count += event->type() == type_;
    return false;
  }

 private:
  QEvent::Type type_;
};

/// A host whose timers, posted events and deferred deletions all wait while it calls its control.
class ACall : public testing::TestWithParam<const char*> {
 protected:
  ACall() {
    face->resize(600, 450);
    face->show();
    EXPECT_TRUE(QTest::qWaitForWindowExposed(face));
    load_slope(*face);
  }
  ~ACall() override { delete face.data(); }

  void expect_no_turn_of_the_host_in(const std::function<void()>& call) {
    bool timer_ran = false, posted_ran = false;
    const QPointer<QObject> doomed(new QObject);
    QTimer::singleShot(0, face, [&] { timer_ran = true; });
    QMetaObject::invokeMethod(
        face, [&] { posted_ran = true; }, Qt::QueuedConnection);
    EventCount keys(*face, QEvent::KeyPress);
    QApplication::postEvent(face, new QKeyEvent(QEvent::KeyPress, Qt::Key_F1, Qt::NoModifier));
    doomed->deleteLater();
    call();
    EXPECT_FALSE(timer_ran);
    EXPECT_FALSE(posted_ran);
    EXPECT_TRUE(doomed);
    EXPECT_EQ(keys.count, 0);
    QTest::qWait(1);
    EXPECT_TRUE(timer_ran && posted_ran);
    EXPECT_EQ(keys.count, 1);
  }

  QPointer<qt::PlotWidget> face{make_face(GetParam()).release()};
};

TEST_P(ACall, OfPlotRunsNothingOfTheHost) {
  expect_no_turn_of_the_host_in([&] { face->Plot(); });
}

TEST_P(ACall, ThatChangesTheSizeRunsNothingOfTheHost) {
  face->Plot();
  expect_no_turn_of_the_host_in([&] {
    face->SetPlotNotVaild();
    face->resize(700, 500);
  });
}

TEST_P(ACall, OfATurnByTheMouseRunsNothingOfTheHost) {
  face->Plot();
  expect_no_turn_of_the_host_in([&] {
    QWidget* const plot = face->childAt(200, 200);
    for (const auto type : {QEvent::MouseButtonPress, QEvent::MouseMove, QEvent::MouseButtonRelease}) {
      const QPointF place(type == QEvent::MouseButtonPress ? 50 : 120, 50);
      QMouseEvent event(type, place, plot->mapToGlobal(place), Qt::LeftButton, Qt::LeftButton, {});
      QApplication::sendEvent(plot, &event);
    }
  });
}

TEST_P(ACall, LeavesATimerThatDeletesTheControlToTheEventLoop) {
  face->Plot();
  QTimer::singleShot(0, [this] { delete face.data(); });
  face->SetPlotNotVaild();
  face->resize(700, 500);
  EXPECT_TRUE(face);
  QTest::qWait(5);
  EXPECT_FALSE(face);
}

TEST_P(ACall, PaintsWhatWaitsOfItsWindow) {
  face->Plot();
  QTest::qWait(1);
  EventCount paints(*face, QEvent::Paint);
  face->update();
  face->toolkit().paint_pending();
  EXPECT_EQ(paints.count, 1);
}

INSTANTIATE_TEST_SUITE_P(Nine, ACall, testing::ValuesIn(nine_faces), name_of_face);

TEST(ALongPlot, IsSeenToGrow) {
  qt::Plot2DC face;
  face.resize(900, 700);
  face.show();
  ASSERT_TRUE(QTest::qWaitForWindowExposed(&face));
  load_slope(face);
  face.setIntervalInPercent(0);
  face.setInterval(0.005);  // thousands of curves, on the finest mesh: some tenths of a second
  face.setResolution(qt::Plot2DC::HighQuality);
  EventCount paints(*qt::view_of(face.control().PLOTA), QEvent::Paint);
  face.Plot();
  EXPECT_GT(paints.count, 1);
}

TEST_F(WaferList, ShowsTheCurrentWaferWhileAKeyIsHeld) {
  QTimer::singleShot(0, [this] {
    for (int i = 0; i < wafers; ++i)
      QApplication::postEvent(&list, new QKeyEvent(QEvent::KeyPress, Qt::Key_Down, Qt::NoModifier, {}, true));
    QTimer::singleShot(0, [] { QApplication::exit(); });
  });
  QApplication::exec();
  expect_shown(wafers);
}

}  // namespace
}  // namespace mirolen
