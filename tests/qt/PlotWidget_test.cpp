#include "mirolen/qt/PlotWidget.h"

#include <gtest/gtest.h>

#include <QHBoxLayout>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>
#include <QTimer>

#include "mirolen/qt/peers.h"
#include "qt/qt_support.h"

namespace mirolen {
namespace {

using namespace qt_test;
using qt::Plot2D;
using qt::view_of;

TEST(PlotWidget, StretchesAValidPlotAndRendersAStaleOne) {
  ShownPlot plot;
  const auto first = plot.rendering();
  ASSERT_NE(first, nullptr);
  plot.face.resize(700, 500);
  EXPECT_EQ(plot.rendering(), first);
  EXPECT_FALSE(view_of(plot.face.control().PLOTA)->isVisible());
  EXPECT_EQ(plot.face.control().Width, 700 * 15);

  plot.face.SetPlotNotVaild();
  plot.face.resize(650, 480);
  EXPECT_NE(plot.rendering(), first);
  EXPECT_TRUE(view_of(plot.face.control().PLOTA)->isVisible());
}

TEST(PlotWidget, DrawsSharpInTheSizeInWhichItIsFirstSeen) {
  QWidget window;
  auto* const layout = new QHBoxLayout(&window);
  auto* const face = new Plot2D;
  layout->addWidget(face);
  load_slope(*face);
  face->Plot();
  window.resize(800, 600);
  window.show();
  QTest::qWait(0);
  EXPECT_GT(face->width(), 700);
  EXPECT_FALSE(face->control().RePlot.Stretch);
  EXPECT_EQ(face->control().RePlot.Picture.get()->size(), face->control().PLOTA.pixel_size());
}

TEST(PlotWidget, RendersOnceForASize) {
  Plot2D face;
  face.resize(200, 100);
  load_slope(face);
  face.Plot();
  const auto rendering = face.control().RePlot.Picture.get();
  ASSERT_NE(rendering, nullptr);
  face.grab();
  EXPECT_EQ(face.control().RePlot.Picture.get(), rendering);
  EXPECT_FALSE(face.control().RePlot.Stretch);
}

/// Counts the sizes that a QWidget gets.
struct SizeCounter : QObject {
  bool eventFilter(QObject*, QEvent* event) override {
    if (event->type() == QEvent::Resize) ++sizes;
    return false;
  }
  int sizes = 0;
};

TEST(PlotWidget, LeavesASizeThatTheControlAcceptsAlone) {
  ShownPlot plot;
  SizeCounter counter;
  plot.face.installEventFilter(&counter);
  plot.face.resize(700, 500);
  EXPECT_EQ(counter.sizes, 1);
}

TEST(PlotWidget, NeedsNoDisplayAndNoShowToBeGrabbed) {
  Plot2D face;
  face.resize(500, 400);
  load_slope(face);
  EXPECT_EQ(face.Plot(), 0);
  const QImage picture = face.grab().toImage();
  const std::set<Color> colors = colors_in(picture);
  for (int interval = 0; interval < 10; ++interval) {
    const QColor band = face.IntervalColor(interval);
    EXPECT_TRUE(picture.pixelColor(0, 0) != band && colors.count(face.control().IntervalColor(interval)))
        << interval;
  }
}

TEST(PlotWidget, TakesTheSmallestSizeItCanWorkIn) {
  ShownPlot plot;
  EXPECT_EQ(plot.face.minimumSizeHint(), QSize(300, 212));
  plot.face.resize(200, 100);
  EXPECT_EQ(plot.face.size(), QSize(300, 212));
  EXPECT_EQ(plot.face.control().Width, 4500);
  EXPECT_EQ(plot.face.control().Height, 3180);

  plot.face.setHideLegend(true);
  EXPECT_EQ(plot.face.minimumSizeHint(), QSize(50, 50));
  plot.face.resize(20, 60);
  EXPECT_EQ(plot.face.size(), QSize(50, 60));
  EXPECT_TRUE(plot.face.sizeHint().isValid());
}

TEST(PlotWidget, FillsTheFaceWithoutItsLegend) {
  ShownPlot plot;
  EXPECT_TRUE(view_of(plot.face.control().frmove)->isVisible());
  plot.face.setHideLegend(true);
  EXPECT_FALSE(view_of(plot.face.control().frmove)->isVisible());
  EXPECT_EQ(view_of(plot.face.control().Frplot)->height(), 450);
}

TEST(PlotWidget, PassesItsOwnAndItsFramesMouseEventsOn) {
  ShownPlot plot;
  QSignalSpy down(&plot.face, &Plot2D::MouseDown), up(&plot.face, &Plot2D::MouseUp);
  QSignalSpy click(&plot.face, &Plot2D::Click), double_click(&plot.face, &Plot2D::DblClick);
  QTest::mouseClick(&plot.face, Qt::LeftButton, Qt::ControlModifier, QPoint(440, 440));
  QTest::mouseClick(view_of(plot.face.control().Frplot), Qt::LeftButton, {}, QPoint(2, 3));
  ASSERT_EQ(down.size(), 2);
  EXPECT_EQ(down[0], (QVariantList{1, 2, 6600.0F, 6600.0F}));
  EXPECT_EQ(down[1], (QVariantList{1, 0, 30.0F, 45.0F}));
  EXPECT_EQ(up.size(), 2);
  EXPECT_EQ(click.size(), 2);
  QTest::mouseDClick(view_of(plot.face.control().frmove), Qt::LeftButton, {}, QPoint(2, 290));
  EXPECT_EQ(double_click.size(), 1);
}

TEST(PlotWidget, TellsMovesWithAndWithoutAButton) {
  ShownPlot plot;
  QSignalSpy moved(&plot.face, &Plot2D::MouseMove);
  for (const Qt::MouseButtons held : {Qt::MouseButtons(), Qt::LeftButton | Qt::MiddleButton}) {
    QMouseEvent move(QEvent::MouseMove, QPointF(445, 440), QPointF(445, 440), Qt::NoButton, held, {});
    QApplication::sendEvent(&plot.face, &move);
  }
  ASSERT_EQ(moved.size(), 2);
  EXPECT_EQ(moved[0], (QVariantList{0, 0, 6675.0F, 6600.0F}));
  EXPECT_EQ(moved[1], (QVariantList{5, 0, 6675.0F, 6600.0F}));
}

TEST(PlotWidget, KeepsTheEventsOfPictureLegendAndButtonToItself) {
  ShownPlot plot;
  QSignalSpy down(&plot.face, &Plot2D::MouseDown), click(&plot.face, &Plot2D::Click);
  auto& control = plot.face.control();
  for (const Widget* child : {static_cast<Widget*>(&control.PLOTA), static_cast<Widget*>(&control.legende),
                              static_cast<Widget*>(&control.FNLabel), static_cast<Widget*>(&control.FNPic)})
    QTest::mouseClick(view_of(*child), Qt::LeftButton);
  control.Command1.OnClick = [] {};
  QTest::mouseClick(view_of(control.Command1), Qt::LeftButton);
  EXPECT_EQ(down.size(), 0);
  EXPECT_EQ(click.size(), 0);
}

TEST(PlotWidget, GivesTheFocusToItsButton) {
  QWidget window;
  auto* const layout = new QHBoxLayout(&window);
  auto* const before = new QLineEdit;
  auto* const face = new Plot2D;
  auto* const behind = new QLineEdit;
  for (QWidget* widget :
       {static_cast<QWidget*>(before), static_cast<QWidget*>(face), static_cast<QWidget*>(behind)})
    layout->addWidget(widget);
  window.show();
  window.activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
  QWidget* const button = view_of(face->control().Command1);

  face->setFocus();
  EXPECT_EQ(QApplication::focusWidget(), button);
  before->setFocus();
  QTest::keyClick(before, Qt::Key_Tab);
  EXPECT_EQ(QApplication::focusWidget(), button);
  QTest::keyClick(button, Qt::Key_Tab);
  EXPECT_EQ(QApplication::focusWidget(), behind);
  QTest::keyClick(behind, Qt::Key_Backtab);
  QTest::keyClick(button, Qt::Key_Backtab);
  EXPECT_EQ(QApplication::focusWidget(), before);
  face->setHideLegend(true);
  face->setFocus();
  EXPECT_EQ(QApplication::focusWidget(), face);
}

/// A face that can be told to be on another screen.
struct MovableFace : Plot2D {
  using PlotWidget::change_ratio;
};

TEST(PlotWidget, DrawsAnewForAScreenWithMorePixels) {
  MovableFace face;
  face.resize(500, 400);
  load_slope(face);
  face.Plot();
  const auto pixels = [&] {
    return dynamic_cast<const qt::ImageSurface&>(*face.control().PLOTA.device()).pixels().size();
  };
  const auto before = face.control().RePlot.Picture.get();
  face.change_ratio(1);
  const QSize coarse = pixels();
  face.change_ratio(3);
  EXPECT_EQ(pixels(), coarse * 3);
  EXPECT_NE(face.control().RePlot.Picture.get(), before);
}

TEST(PlotWidget, FollowsANewPalette) {
  ShownPlot plot;
  QPalette dark = plot.face.palette();
  dark.setColor(QPalette::Window, QColor(0x10, 0x20, 0x30));
  plot.face.setPalette(dark);
  const QImage shown = plot.face.grab().toImage();
  EXPECT_EQ(pixel(shown, shown.width() - 1, shown.height() - 1), 0x302010u);
  auto& control = plot.face.control();
  EXPECT_EQ(pixel(view_of(control.PLOTA)->grab().toImage(), 0, 0), 0x302010u);
  EXPECT_EQ(pixel(view_of(control.FNPic)->grab().toImage(), 0, 0), 0x302010u);
  const QImage legend = view_of(control.legende)->grab().toImage();
  EXPECT_EQ(pixel(legend, legend.width() - 1, 0), 0x302010u);
}

/// Closes every form that opens, as long as it lives, and counts them.
class FormCloser : public QTimer {
 public:
  FormCloser() {
    QObject::connect(this, &QTimer::timeout, this, [this] {
      if (QWidget* const shown = QApplication::activeModalWidget()) {
        ++closed;
        title = shown->windowTitle();
        shown->close();
      }
    });
    start(10);
  }
  int closed = 0;
  QString title;
};

TEST(PlotWidget, ShowsItsOptionsAndTakesTheirClosingForCancel) {
  ShownPlot plot;
  plot.face.setResolution(10);
  FormCloser user;
  plot.face.ShowPlotOption();
  EXPECT_EQ(user.closed, 1);
  EXPECT_EQ(user.title, "Define Plot Options");
  EXPECT_EQ(plot.face.Resolution(), 10);
}

TEST(PlotWidget, GivesItsMessagesToTheHost) {
  ShownPlot plot;
  FormCloser user;
  QStringList told;
  plot.face.toolkit().on_message = [&](const QString& text, const QString& title, MessageIcon) {
    told << title << text;
  };
  plot.face.setResolution(40);
  plot.face.setTestDiameter(80);
  plot.face.Plot();
  ASSERT_EQ(told.size(), 2);
  EXPECT_EQ(told[1], "Maximal possible resolution is 20 mm");
  EXPECT_EQ(user.closed, 1);
}

TEST(PlotWidget, ShowsItsMessagesInABoxOverTheWindow) {
  ShownPlot plot;
  QString text;
  QMessageBox::Icon icon = QMessageBox::NoIcon;
  QWidget* parent = nullptr;
  QTimer::singleShot(0, &plot.face, [&] {
    auto* const box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
    ASSERT_NE(box, nullptr);
    text = box->text();
    icon = box->icon();
    parent = box->parentWidget();
    box->accept();
  });
  plot.face.toolkit().message_box("1 < 2", "title", MessageIcon::critical);
  EXPECT_EQ(text, "1 < 2");
  EXPECT_EQ(icon, QMessageBox::Critical);
  EXPECT_EQ(parent, plot.face.window());
}

}  // namespace
}  // namespace mirolen
