#include <gtest/gtest.h>

#include <QSignalSpy>
#include <QTest>
#include <QWindow>

#include "mirolen/qt/peers.h"
#include "qt/nine_faces.h"
#include "qt/qt_support.h"

namespace mirolen {
namespace {

using namespace qt_test;

/// A face in perspective with a plot, as a window on the screen. 100 pixels across turn it by 15 degrees, 50
/// pixels upward incline it by 10.
template <class Face>
class Rotation : public testing::Test {
 protected:
  Rotation() {
    show(face);
    face.Plot();
  }
  static void show(Face& shown) {
    shown.resize(600, 450);
    load_slope(shown);
    shown.show();
    QTest::qWait(0);
  }
  // By the window, so that the event takes its way to what is seen there.
  void press() { QTest::mousePress(face.windowHandle(), Qt::LeftButton, {}, begin); }
  void drag(const QPoint& way) { QTest::mouseMove(face.windowHandle(), begin + way); }
  void release(const QPoint& way) {
    QTest::mouseRelease(face.windowHandle(), Qt::LeftButton, {}, begin + way);
  }
  void drag_all_the_way(const QPoint& way) {
    press();
    drag(way);
    release(way);
  }
  QImage plot() { return qt::view_of(face.control().Frplot)->grab().toImage(); }

  const QPoint begin{200, 200};
  Face face;
};

using Faces = testing::Types<qt::Plot2DB, qt::Plot3D, qt::Plot3DS>;
TYPED_TEST_SUITE(Rotation, Faces);

TYPED_TEST(Rotation, FollowsTheMouseAndEndsInFull) {
  this->drag_all_the_way({-100, -50});
  EXPECT_EQ(this->face.GridRotation(), 55);
  EXPECT_EQ(this->face.GridInclination(), 45);
  EXPECT_FALSE(this->face.control().RePlot.Stretch);

  const QImage turned = this->plot();
  this->face.SetPlotNotVaild();
  this->face.Plot();
  EXPECT_EQ(turned, this->plot());
}

TYPED_TEST(Rotation, AddsUpSmallSteps) {
  this->press();
  for (int step = 1; step <= 5; ++step) this->drag({-20 * step, 0});
  EXPECT_EQ(this->face.GridRotation(), 40 + 5 * 3);
  this->release({-100, 0});
}

TYPED_TEST(Rotation, StopsAtARightAngle) {
  this->drag_all_the_way({-199, -199});
  EXPECT_EQ(this->face.GridRotation(), 70);
  EXPECT_EQ(this->face.GridInclination(), 75);
  this->drag_all_the_way({-199, -199});
  EXPECT_EQ(this->face.GridRotation(), 90);
  EXPECT_EQ(this->face.GridInclination(), 90);
  for (int i = 0; i < 4; ++i) this->drag_all_the_way({200, 200});
  EXPECT_EQ(this->face.GridRotation(), 0);
  EXPECT_EQ(this->face.GridInclination(), 0);
}

TYPED_TEST(Rotation, WorksOnTheStretchedPictureToo) {
  this->face.resize(590, 440);
  ASSERT_FALSE(qt::view_of(this->face.control().PLOTA)->isVisible());
  this->drag_all_the_way({-100, 0});
  EXPECT_EQ(this->face.GridRotation(), 40 + 15);
  EXPECT_TRUE(qt::view_of(this->face.control().PLOTA)->isVisible());
}

TYPED_TEST(Rotation, TellsTheHostItsEndOnly) {
  QSignalSpy down(&this->face, &qt::PlotWidget::MouseDown), up(&this->face, &qt::PlotWidget::MouseUp);
  QSignalSpy click(&this->face, &qt::PlotWidget::Click);
  this->drag_all_the_way({-100, 0});
  EXPECT_EQ(down.size(), 0);
  EXPECT_EQ(click.size(), 0);
  EXPECT_EQ(up.size(), 1);
}

TYPED_TEST(Rotation, TellsEachAngleThatChangesOnce) {
  QSignalSpy rotated(&this->face, &qt::PerspectiveWidget::GridRotationChanged);
  QSignalSpy inclined(&this->face, &qt::PerspectiveWidget::GridInclinationChanged);
  const auto told = [&] { return std::pair(rotated.size(), inclined.size()); };
  using Told = std::pair<qsizetype, qsizetype>;
  this->press();
  EXPECT_EQ(told(), Told(0, 0));
  this->drag({-100, 0});
  EXPECT_EQ(told(), Told(1, 0));
  this->drag({-100, -50});
  EXPECT_EQ(told(), Told(1, 1));
  this->release({-100, -50});
  EXPECT_EQ(told(), Told(1, 1));
}

TYPED_TEST(Rotation, DoesNotFollowAMouseThatIsNotPressed) {
  this->drag({-100, -50});
  EXPECT_EQ(this->face.GridRotation(), 40);
}

TEST(RotationOfASurface, IsCoarseOnTheWay) {
  qt::Plot3D face;
  face.resize(600, 450);
  load_slope(face);
  face.Plot();
  QWidget* const picture = qt::view_of(face.control().PLOTA);
  const QImage before = picture->grab().toImage();
  QTest::mousePress(picture, Qt::LeftButton, {}, {100, 100});
  const QImage coarse = picture->grab().toImage();
  EXPECT_NE(coarse, before);
  QTest::mouseRelease(picture, Qt::LeftButton, {}, {100, 100});
  EXPECT_EQ(picture->grab().toImage(), before);
}

}  // namespace
}  // namespace mirolen
