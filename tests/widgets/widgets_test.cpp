#include "mirolen/widgets/widgets.h"

#include <gtest/gtest.h>

#include "mirolen/widgets/Headless.h"

namespace mirolen {
namespace {

// The headless font is 0.6 of its size wide; a point is 20 twips.
double text_width(int characters, double points) { return characters * 0.6 * points * 20; }

class SingleWidgets : public testing::Test {
 protected:
  HeadlessToolkit toolkit;
  UserControl root{toolkit};
};

using AutoSize = SingleWidgets;

TEST_F(AutoSize, ALabelTakesTheWidthOfItsText) {
  Label label(&root, "abc");
  label.AutoSize = true;
  EXPECT_NEAR(label.Width, text_width(3, 8), 1e-6);
}

TEST_F(AutoSize, FollowsCaptionAndFont) {
  Label label(&root);
  label.AutoSize = true;
  label.Caption = "100.00 -  90.00";
  EXPECT_NEAR(label.Width, text_width(15, 8), 1e-6);
  label.Font = FontSpec{"Arial", 10, false, false};
  EXPECT_NEAR(label.Width, text_width(15, 10), 1e-6);
  label.caption("");
  EXPECT_EQ(label.Width.get(), 0);
}

TEST_F(AutoSize, CountsCharactersAndNotBytes) {
  Label label(&root, "\xC2\xB5m");
  label.AutoSize = true;
  EXPECT_NEAR(label.Width, text_width(2, 8), 1e-6);
}

TEST_F(AutoSize, WithoutItTheWidthStays) {
  Label label(&root, "abc");
  label.Width = 777;
  label.Caption = "a longer text than before";
  EXPECT_EQ(label.Width.get(), 777);
}

TEST_F(AutoSize, LeavesPlaceAndHeight) {
  Label label(&root, "abc");
  label.Move(30, 45, 0, 195);
  label.AutoSize = true;
  EXPECT_EQ(label.Left.get(), 30);
  EXPECT_EQ(label.Top.get(), 45);
  EXPECT_EQ(label.Height.get(), 195);
}

TEST_F(SingleWidgets, RenderersReachTheirRoles) {
  Label label(&root);
  ValueLabel& value = label;
  value.caption("text");
  value.tool_tip("tip");
  value.set_visible(false);
  EXPECT_EQ(label.Caption.get(), "text");
  EXPECT_EQ(label.ToolTipText.get(), "tip");
  EXPECT_FALSE(label.Visible);

  Frame frame(&root);
  static_cast<CaptionLabel&>(frame).caption("framed");
  EXPECT_EQ(frame.Caption.get(), "framed");

  Shape shape(&root);
  ColorBox& box = shape;
  box.set_color(0x123456);
  box.set_visible(false);
  EXPECT_EQ(shape.BackColor.get(), 0x123456u);
  EXPECT_FALSE(shape.Visible);
}

TEST_F(SingleWidgets, ALineTakesBothEnds) {
  LineShape line(&root);
  static_cast<IndicatorLine&>(line).set_ends(1, 2, 3, 4);
  EXPECT_EQ(line.X1.get(), 1);
  EXPECT_EQ(line.Y1.get(), 2);
  EXPECT_EQ(line.X2.get(), 3);
  EXPECT_EQ(line.Y2.get(), 4);
}

TEST_F(SingleWidgets, StartVisibleInTheColourOfAButtonsFace) {
  const Label label(&root);
  EXPECT_TRUE(label.Visible);
  EXPECT_EQ(label.BackColor.get(), 0x8000000Fu);
}

TEST_F(SingleWidgets, AnImageBoxStartsEmptyAndUnstretched) {
  const ImageBox box(&root);
  EXPECT_EQ(box.Picture.get(), nullptr);
  EXPECT_FALSE(box.Stretch);
}

TEST_F(SingleWidgets, TheInnerSizeOfAControlIsItsSize) {
  root.Width = 5000;
  root.Height = 4000;
  EXPECT_EQ(root.ScaleWidth(), 5000);
  EXPECT_EQ(root.ScaleHeight(), 4000);
}

using TextFields = SingleWidgets;

TEST_F(TextFields, AnotherTextRaisesAChangeAnEqualOneNone) {
  TextField field(&root);
  int changes = 0;
  field.OnChange = [&] { ++changes; };
  field.Text("");
  EXPECT_EQ(changes, 0);
  field.Text("5");
  field.Text("5");
  EXPECT_EQ(changes, 1);
  field.Text("");
  EXPECT_EQ(changes, 2);
}

TEST_F(TextFields, HaveTheirNewTextWhenTheChangeIsRaised) {
  TextField field(&root);
  std::string seen;
  field.OnChange = [&] { seen = field.Text(); };
  field.Text("5");
  EXPECT_EQ(seen, "5");
}

TEST_F(TextFields, MayBeChangedFromTheirOwnChange) {
  TextField field(&root);
  field.OnChange = [&] { field.Text("0"); };
  field.Text("bad");
  EXPECT_EQ(field.Text(), "0");
}

using SpinButtons = SingleWidgets;

TEST_F(SpinButtons, HoldTheirValueToTheirEnds) {
  UpDown spinner(&root);
  spinner.Min = -2;
  spinner.Max = 359;
  for (const auto& [told, kept] : {std::pair{360, 359}, {-3, -2}, {0, 0}, {359, 359}}) {
    spinner.Value(told);
    EXPECT_EQ(spinner.Value(), kept);
  }
}

TEST_F(SpinButtons, AnotherValueRaisesAChangeAnEqualOneNone) {
  UpDown spinner(&root);
  int changes = 0;
  spinner.OnChange = [&] { ++changes; };
  spinner.Value(0);
  EXPECT_EQ(changes, 0);
  spinner.Value(100);
  spinner.Value(101);  // held to 100, which it is
  EXPECT_EQ(changes, 1);
}

using Shapes = SingleWidgets;

TEST_F(Shapes, AreRectanglesUntilToldOtherwise) {
  Shape shape(&root);
  EXPECT_EQ(shape.Look.get(), Shape::Form::rectangle);
  shape.Look = Shape::Form::cross;
  EXPECT_EQ(shape.Look.get(), Shape::Form::cross);
}

}  // namespace
}  // namespace mirolen
