#include "mirolen/qt/input_views.h"

#include <gtest/gtest.h>

#include <QTest>

#include "mirolen/widgets/PictureBox.h"
#include "qt/qt_support.h"
#include "qt/shown_tree.h"

namespace mirolen {
namespace {

using namespace qt_test;
using qt::view_of;

/// The widgets that take input, and those that lie on a picture.
struct InputTree : UserControl {
  explicit InputTree(qt::QtToolkit& toolkit) : UserControl(toolkit) {
    Move(0, 0, 6000, 4500);
    field.Move(150, 150, 1500, 330);
    spinner.Move(1650, 150, 300, 330);
    label.Move(150, 600, 1500, 450);
    picture.Move(300, 1500, 1500, 1500);
    picture.BackColor = blue;
    cross.Move(150, 150, 600, 600);
    cross.Look = Shape::Form::cross;
    inner.Move(900, 900, 300, 300);
    inner.BackColor = green;
    realize();
  }
  TextField field{this};
  UpDown spinner{this};
  Label label{this, "X=1\nY=2"};
  PictureBox picture{this};
  Shape cross{&picture};
  PictureBox inner{&picture};
};

class InputViews : public ShownTree<InputTree> {
 protected:
  QLineEdit& edit() { return *dynamic_cast<QLineEdit*>(view_of(tree.field)); }
};

TEST_F(InputViews, TypedTextIsAChangeOfItsField) {
  QStringList texts;
  tree.field.OnChange = [&] { texts << QString::fromStdString(tree.field.Text()); };
  QTest::keyClicks(&edit(), "4µ");
  EXPECT_EQ(texts, (QStringList{"4", "4µ"}));
}

TEST_F(InputViews, TextSetByProgramIsShownAndToldOnce) {
  int changes = 0;
  tree.field.OnChange = [&] { ++changes; };
  tree.field.Text("17");
  EXPECT_EQ(edit().text(), "17");
  EXPECT_EQ(changes, 1);
}

TEST_F(InputViews, AHandlerMayReplaceWhatIsTyped) {
  tree.field.OnChange = [&] { tree.field.Text("0"); };
  QTest::keyClicks(&edit(), "x");
  EXPECT_EQ(edit().text(), "0");
}

TEST_F(InputViews, KeysHaveTheirCodes) {
  std::vector<int> keys;
  tree.field.OnKeyDown = [&](int key) { keys.push_back(key); };
  for (const Qt::Key key :
       {Qt::Key_Up, Qt::Key_Down, Qt::Key_Left, Qt::Key_Right, Qt::Key_A, Qt::Key_7, Qt::Key_F1})
    QTest::keyClick(&edit(), key);
  EXPECT_EQ(keys, (std::vector{38, 40, 37, 39, 65, 55}));
  EXPECT_EQ(edit().text(), "a7");
}

TEST_F(InputViews, TheSpinnerStepsByItsIncrementWithinItsBounds) {
  tree.spinner.Max = 12;
  tree.spinner.Increment = 5;
  QWidget* const spinner = view_of(tree.spinner);
  for (const int expected : {5, 10, 12, 12}) {
    QTest::keyClick(spinner, Qt::Key_Up);
    EXPECT_EQ(tree.spinner.Value(), expected);
  }
  QTest::keyClick(spinner, Qt::Key_Down);
  EXPECT_EQ(tree.spinner.Value(), 7);
  EXPECT_NE(spinner->focusPolicy() & Qt::TabFocus, 0);
}

TEST_F(InputViews, ALabelShowsBothOfItsLines) {
  const auto rows_with_ink = [&] {
    const QImage shown = seen(tree.label);
    const Color ground = pixel(shown, shown.width() - 1, 0);
    int upper = 0, lower = 0;
    for (int y = 0; y < shown.height(); ++y)
      for (int x = 0; x < shown.width(); ++x)
        if (pixel(shown, x, y) != ground) ++(y < shown.height() / 2 ? upper : lower);
    return std::pair(upper > 0, lower > 0);
  };
  EXPECT_EQ(rows_with_ink(), std::pair(true, true));
  tree.label.AutoSize = true;
  const double two_lines = tree.label.Width;
  tree.label.Caption = "X=1 Y=2";
  EXPECT_GT(tree.label.Width, 1.5 * two_lines);
}

TEST_F(InputViews, ACrossStandsInTheMiddleOfItsWidget) {
  const QImage shown = seen(tree.picture);
  EXPECT_EQ(pixel(shown, 30, 30), black);
  EXPECT_EQ(pixel(shown, 30, 34), black);
  EXPECT_EQ(pixel(shown, 32, 35), white);
  EXPECT_EQ(pixel(shown, 35, 35), blue) << "round the cross the picture is seen";
  EXPECT_EQ(pixel(shown, 30, 40), blue);
}

TEST_F(InputViews, APictureOnAPictureIsSeenAboveItsDrawing) {
  tree.picture.Line(filled_box_flags, 0, 0, 99, 99, red);
  const QImage shown = seen(tree.picture);
  EXPECT_EQ(pixel(shown, 50, 80), red);
  EXPECT_EQ(pixel(shown, 70, 70), green);
}

TEST_F(InputViews, PlacesOnAPictureAreInItsScaleUnits) {
  std::vector<float> places;
  tree.picture.OnMouseMove =
      tree.picture.OnMouseDown = [&](const MouseEvent& event) { places.push_back(event.x); };
  QTest::mousePress(view_of(tree.picture), Qt::LeftButton, {}, {40, 80});
  tree.picture.ScaleMode(twips);
  QTest::mousePress(view_of(tree.picture), Qt::LeftButton, {}, {40, 80});
  EXPECT_EQ(places, (std::vector<float>{40, 600}));
}

}  // namespace
}  // namespace mirolen
