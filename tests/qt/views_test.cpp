#include "mirolen/qt/views.h"

#include <gtest/gtest.h>

#include <QPushButton>
#include <QSignalSpy>
#include <QTest>

#include "mirolen/qt/Picture.h"
#include "mirolen/qt/translate.h"
#include "qt/qt_support.h"
#include "qt/shown_tree.h"

namespace mirolen {
namespace {

using namespace qt_test;
using qt::view_of;

/// One widget of each kind on a shown face.
struct EachKind : UserControl {
  explicit EachKind(qt::QtToolkit& toolkit) : UserControl(toolkit) {
    Move(0, 0, 6000, 4500);
    frame.Move(150, 150, 3000, 3000);
    label.Move(300, 300, 1500, 225);
    button.Move(300, 600, 1500, 375);
    picture.Move(300, 1050, 1200, 1200);
    image.Move(1650, 1050, 600, 600);
    shape.Move(15, 15, 300, 150);
    realize();
  }
  Frame frame{this, "Wafer"};
  Label label{&frame, "Flat"};
  Button button{&frame, "Plot"};
  PictureBox picture{&frame};
  ImageBox image{&frame};
  Shape shape{&picture};
  LineShape line{&picture};
};

class Views : public ShownTree<EachKind> {
 protected:
  bool shows(const Widget& widget, const std::function<bool(const QColor&)>& is_wanted) {
    for (const Color color : colors_in(view_of(widget)->grab().toImage()))
      if (is_wanted(qt::qcolor_of(color))) return true;
    return false;
  }
};

TEST_F(Views, LieWhereTheirWidgetsAre) {
  EXPECT_EQ(view_of(tree.frame)->geometry(), QRect(10, 10, 200, 200));
  EXPECT_EQ(view_of(tree.label)->geometry(), QRect(20, 20, 100, 15));
  EXPECT_EQ(view_of(tree.label)->parentWidget(), view_of(tree.frame));
  tree.label.Move(600, 450, 750);
  EXPECT_EQ(view_of(tree.label)->geometry(), QRect(40, 30, 50, 15));
}

TEST_F(Views, OfNeighboursMeetWhateverTheirTwips) {
  for (double left = 300; left < 330; left += 1) {
    tree.label.Move(left, 300, 505, 100);
    tree.button.Move(left + 505, 300, 505, 100);
    EXPECT_EQ(view_of(tree.label)->geometry().right() + 1, view_of(tree.button)->geometry().left()) << left;
  }
}

TEST_F(Views, FollowVisibilityAndToolTips) {
  tree.label.Visible = false;
  EXPECT_FALSE(view_of(tree.label)->isVisible());
  tree.label.Visible = true;
  EXPECT_TRUE(view_of(tree.label)->isVisible());
  tree.label.ToolTipText = "17.5 - 17.4";
  EXPECT_EQ(view_of(tree.label)->toolTip(), "17.5 - 17.4");
  tree.label.ToolTipText = "<b>1 &lt; 2</b>";
  EXPECT_EQ(view_of(tree.label)->toolTip(), "<span>&lt;b&gt;1 &amp;lt; 2&lt;/b&gt;</span>");
}

TEST_F(Views, ShowTheirTextsAndRepaintThem) {
  const QImage before = seen(tree.label), frame_before = seen(tree.frame);
  tree.label.Caption = "Notch";
  tree.frame.Caption = "Oxide";
  tree.button.Caption = "Options";
  EXPECT_NE(seen(tree.label), before);
  EXPECT_NE(seen(tree.frame), frame_before);
  EXPECT_EQ(dynamic_cast<QPushButton*>(view_of(tree.button))->text(), "Options");
}

TEST_F(Views, TextStaysReadableOnADarkBackground) {
  const auto bright = [](const QColor& color) { return color.lightnessF() > 0.8; };
  for (Widget* child : {static_cast<Widget*>(&tree.button), static_cast<Widget*>(&tree.picture)})
    child->Visible = false;
  tree.frame.BackColor = 0x302010;
  tree.label.Visible = false;
  EXPECT_TRUE(shows(tree.frame, bright)) << "its caption";
  tree.frame.Caption = std::string();
  EXPECT_FALSE(shows(tree.frame, bright));
  tree.label.Visible = true;
  EXPECT_TRUE(shows(tree.frame, bright)) << "a label without a background";
  tree.label.BackColor = 0x402010;
  EXPECT_TRUE(shows(tree.label, bright)) << "a label with its own";
}

TEST_F(Views, OfALabelWithoutABackgroundLetsThatOfItsContainerThrough) {
  tree.frame.BackColor = blue;
  EXPECT_EQ(pixel(seen(tree.frame), 20 - 10 + 99, 20 + 14), blue);
  tree.label.BackColor = green;
  EXPECT_EQ(pixel(seen(tree.label), 99, 14), green);
}

TEST_F(Views, AFrameShowsAllItsEdgesWhereverItLies) {
  tree.frame.Caption = std::string();
  tree.frame.BackColor = white;
  tree.BackColor = white;
  for (int at = 10; at < 18; ++at) {
    tree.frame.Move(15.0 * at, 15.0 * at);
    const QImage shown = face.grab().toImage();
    const double ratio = face.devicePixelRatioF();
    const auto edge_near = [&](int x, int y) {
      const QRect around(QPoint(int(x * ratio) - 1, int(y * ratio) - 1), QSize(4, 4));
      return colors_in(shown.copy(around)).count(0xAAAAAA) > 0;
    };
    EXPECT_TRUE(edge_near(at, at + 100)) << "left at " << at;
    EXPECT_TRUE(edge_near(at + 100, at)) << "top at " << at;
    EXPECT_TRUE(edge_near(at + 198, at + 100)) << "right at " << at;
    EXPECT_TRUE(edge_near(at + 100, at + 198)) << "bottom at " << at;
  }
}

TEST_F(Views, AShapeIsABoxWithABlackEdge) {
  tree.shape.BackColor = red;
  const QImage box = seen(tree.shape);
  EXPECT_EQ(box.size(), QSize(20, 10));
  EXPECT_EQ(pixel(box, 0, 5), black);
  EXPECT_EQ(pixel(box, 19, 9), black);
  EXPECT_EQ(pixel(box, 2, 2), red);
  EXPECT_EQ(pixel(box, 17, 7), red);
}

TEST_F(Views, AButtonBringsItsClickByMouseAndKey) {
  int clicks = 0;
  tree.button.OnClick = [&] { ++clicks; };
  QTest::mouseClick(view_of(tree.button), Qt::LeftButton);
  EXPECT_EQ(clicks, 1);
  QTest::keyClick(view_of(tree.button), Qt::Key_Space);
  EXPECT_EQ(clicks, 2);
}

TEST_F(Views, APictureShowsTheVeryPixelsOfItsSurface) {
  tree.shape.Visible = false;
  tree.line.Visible = false;
  for (int x = 0; x < 80; x += 2) tree.picture.Line(line_flags, x, 0, x, 79, x % 4 ? red : blue);
  const QImage shown = view_of(tree.picture)->grab().toImage().convertToFormat(QImage::Format_RGB32);
  QImage drawn = dynamic_cast<const qt::ImageSurface&>(*tree.picture.device()).image();
  EXPECT_EQ(shown, drawn);
  EXPECT_EQ(colors_in(shown).count(red), 1u);
}

TEST_F(Views, APictureIsSharpWhereverItLies) {
  tree.shape.Visible = false;
  tree.line.Visible = false;
  for (int x = 0; x < 80; x += 2) tree.picture.Line(line_flags, x, 0, x, 79, x % 4 ? red : blue);
  const QImage drawn = dynamic_cast<const qt::ImageSurface&>(*tree.picture.device()).pixels();
  const QRect inner = drawn.rect().adjusted(1, 1, -2, -2);
  for (int at = 20; at < 25; ++at) {
    tree.picture.Move(15.0 * at, 15.0 * at);
    QImage shown = face.grab().toImage().convertToFormat(QImage::Format_RGB32);
    const int origin = qRound((10 + at) * face.devicePixelRatioF());
    shown.setDevicePixelRatio(1);
    EXPECT_EQ(shown.copy(inner.translated(origin, origin)), drawn.copy(inner)) << at;
  }
}

TEST_F(Views, ALineIsDrawnInThePixelsOfItsPicture) {
  tree.shape.Visible = false;
  tree.picture.BackColor = white;
  tree.line.set_ends(10, 40, 60, 40);
  const QImage shown = seen(tree.picture);
  EXPECT_EQ(pixel(shown, 30, 40), black);
  EXPECT_EQ(pixel(shown, 30, 45), white);
  EXPECT_EQ(pixel(shown, 70, 40), white);
}

TEST_F(Views, AnImageIsShownInItsOwnSizeStretchedOrNotAtAll) {
  tree.frame.BackColor = green;
  EXPECT_EQ(pixel(seen(tree.frame), 120, 80), green);

  QImage small(10, 10, QImage::Format_RGB32);
  small.fill(Qt::red);
  tree.image.Picture = std::make_shared<qt::Picture>(small);
  EXPECT_EQ(pixel(seen(tree.frame), 114, 74), red);
  EXPECT_EQ(pixel(seen(tree.frame), 125, 85), green);
  tree.image.Stretch = true;
  EXPECT_EQ(pixel(seen(tree.frame), 114, 74), red);
  EXPECT_EQ(pixel(seen(tree.frame), 145, 105), red);
}

TEST_F(Views, MouseEventsReachTheirOwnWidgetOnly) {
  std::vector<MouseEvent> on_frame, on_picture;
  int clicks = 0;
  tree.frame.OnMouseDown = [&](const MouseEvent& event) { on_frame.push_back(event); };
  tree.frame.OnClick = [&] { ++clicks; };
  tree.picture.OnMouseDown = [&](const MouseEvent& event) { on_picture.push_back(event); };
  for (const Widget* child : {static_cast<Widget*>(&tree.label), static_cast<Widget*>(&tree.picture),
                              static_cast<Widget*>(&tree.image)})
    QTest::mouseClick(view_of(*child), Qt::LeftButton, {}, QPoint(30, 12));
  EXPECT_TRUE(on_frame.empty());
  EXPECT_EQ(clicks, 0);
  EXPECT_EQ(on_picture, (std::vector<MouseEvent>{{1, 0, 30, 12}})) << "a picture tells pixels, its scale";
}

TEST_F(Views, AFrameTellsTwipsButtonsAndKeys) {
  std::vector<MouseEvent> told;
  tree.frame.OnMouseDown = tree.frame.OnMouseMove =
      tree.frame.OnMouseUp = [&](const MouseEvent& event) { told.push_back(event); };
  QWidget* const frame = view_of(tree.frame);
  QTest::mousePress(frame, Qt::RightButton, Qt::ShiftModifier | Qt::AltModifier, QPoint(180, 8));
  QTest::mouseRelease(frame, Qt::RightButton, Qt::NoModifier, QPoint(181, 9));
  QTest::mousePress(frame, Qt::MiddleButton, Qt::ControlModifier, QPoint(180, 8));
  QTest::mouseRelease(frame, Qt::MiddleButton, {}, QPoint(180, 8));
  EXPECT_EQ(told, (std::vector<MouseEvent>{
                      {2, 5, 2700, 120}, {2, 0, 2715, 135}, {4, 2, 2700, 120}, {4, 0, 2700, 120}}));
}

TEST_F(Views, AClickIsALeftReleaseInside) {
  int clicks = 0, double_clicks = 0;
  tree.frame.OnClick = [&] { ++clicks; };
  tree.frame.OnDblClick = [&] { ++double_clicks; };
  QWidget* const frame = view_of(tree.frame);
  QTest::mouseClick(frame, Qt::LeftButton, {}, QPoint(180, 180));
  EXPECT_EQ(clicks, 1);
  QTest::mousePress(frame, Qt::LeftButton, {}, QPoint(180, 180));
  QTest::mouseRelease(frame, Qt::LeftButton, {}, QPoint(500, 180));
  QTest::mouseClick(frame, Qt::RightButton, {}, QPoint(180, 180));
  EXPECT_EQ(clicks, 1);
  EXPECT_EQ(double_clicks, 0);
  QTest::mouseClick(frame, Qt::LeftButton, {}, QPoint(180, 180));
  QTest::mouseDClick(frame, Qt::LeftButton, {}, QPoint(180, 180));
  QTest::mouseRelease(frame, Qt::LeftButton, {}, QPoint(180, 180));
  EXPECT_EQ(clicks, 2);
  EXPECT_EQ(double_clicks, 1);
}

TEST_F(Views, PointersHaveTheirCursors) {
  tree.MousePointer = 11;
  EXPECT_EQ(face.cursor().shape(), Qt::WaitCursor);
  tree.MousePointer = 12;
  EXPECT_EQ(face.cursor().shape(), Qt::ForbiddenCursor);
  tree.MousePointer = 0;
  EXPECT_EQ(face.cursor().shape(), Qt::ArrowCursor);
  QImage icon(16, 16, QImage::Format_ARGB32);
  icon.fill(Qt::blue);
  tree.MouseIcon = std::make_shared<qt::Picture>(icon);
  tree.MousePointer = 99;
  EXPECT_EQ(face.cursor().pixmap().size(), QSize(16, 16));
}

TEST_F(Views, SystemColoursComeFromThePalette) {
  QPalette palette = face.palette();
  palette.setColor(QPalette::Base, QColor(1, 2, 3));
  palette.setColor(QPalette::Text, QColor(4, 5, 6));
  palette.setColor(QPalette::Window, QColor(7, 8, 9));
  palette.setColor(QPalette::ButtonText, QColor(10, 11, 12));
  face.setPalette(palette);
  EXPECT_EQ(toolkit.resolve(0x80000005), 0x030201u);
  EXPECT_EQ(toolkit.resolve(0x80000008), 0x060504u);
  EXPECT_EQ(toolkit.resolve(0x8000000F), 0x090807u);
  EXPECT_EQ(toolkit.resolve(0x80000012), 0x0C0B0Au);
  EXPECT_EQ(toolkit.resolve(0x123456), 0x123456u);
  EXPECT_EQ(toolkit.resolve(0x80FFFFFF), 0x090807u) << "one that there is not";
}

}  // namespace
}  // namespace mirolen
