#include "mirolen/widgets/PictureBox.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "mirolen/widgets/Headless.h"
#include "mirolen/widgets/widgets.h"

namespace mirolen {
namespace {

constexpr Color white = 0xFFFFFF, red = 0x0000FF;

class Picture : public testing::Test {
 protected:
  Picture() {
    box.Width = 1500;
    box.Height = 750;
    box.BackColor = white;
  }

  void draw() { box.Line(line_flags, 1, 2, 3, 4, red); }
  bool is_blank(Color color) const { return recording_of(box) == Recording{recorded::Clear{color}}; }

  HeadlessToolkit toolkit;
  UserControl root{toolkit};
  PictureBox box{&root};
};

TEST_F(Picture, ItsSizeInPixelsIsRoundedHalfToEven) {
  EXPECT_EQ(box.pixel_size(), (SurfaceSize{100, 50}));
  box.Width = 100.5 * 15;
  box.Height = 101.5 * 15;
  EXPECT_EQ(box.pixel_size(), (SurfaceSize{100, 102}));
}

TEST_F(Picture, HasAtLeastOnePixel) {
  for (const double size : {0.0, 7.0, -3000.0}) {
    box.Width = size;
    box.Height = size;
    EXPECT_EQ(box.pixel_size(), (SurfaceSize{1, 1})) << size;
  }
}

TEST_F(Picture, ItsSurfaceHasItsSizeAndItsColour) {
  EXPECT_EQ(box.device()->size(), (SurfaceSize{100, 50}));
  EXPECT_TRUE(is_blank(white));
}

TEST_F(Picture, ASystemColourIsResolvedOnTheSurface) {
  PictureBox grey(&root);
  EXPECT_EQ(recording_of(grey), Recording{recorded::Clear{0xC0C0C0}});
  grey.ForeColor(0x80000012);
  grey.Line(line_flags, 0, 0, 5, 5, {});
  EXPECT_EQ(std::get<recorded::Line>(recording_of(grey).back()).pen.color, 0xC0C0C0u);
}

TEST_F(Picture, WhatIsDrawnStaysWhileTheSizeInPixelsStays) {
  draw();
  const Recording drawn = recording_of(box);
  box.Width = 1507;
  box.Left = 900;
  box.Visible = false;
  box.ToolTipText = "tip";
  box.BackColor = white;
  box.Refresh();
  ASSERT_GE(recording_of(box).size(), drawn.size());
  EXPECT_TRUE(std::equal(drawn.begin(), drawn.end(), recording_of(box).begin()));
}

TEST_F(Picture, AnotherSizeInPixelsStartsAfresh) {
  draw();
  box.Width = 1515;
  EXPECT_TRUE(is_blank(white));
  EXPECT_EQ(box.device()->size(), (SurfaceSize{101, 50}));
  draw();
  box.Height = 900;
  EXPECT_TRUE(is_blank(white));
  EXPECT_EQ(box.device()->size(), (SurfaceSize{101, 60}));
}

TEST_F(Picture, AnotherBackgroundErases) {
  draw();
  box.BackColor = red;
  EXPECT_TRUE(is_blank(red));
}

TEST_F(Picture, SizeAndBackgroundMayChangeTogether) {
  draw();
  box.Width = 3000;
  box.BackColor = red;
  box.Height = 3000;
  EXPECT_TRUE(is_blank(red));
  EXPECT_EQ(box.device()->size(), (SurfaceSize{200, 200}));
}

TEST_F(Picture, IsACanvasOfThePictureKind) {
  box.Left = 60;
  box.Top = 75;
  const PlotCanvas& canvas = box;
  EXPECT_EQ(canvas.kind(), CanvasKind::picture_box);
  EXPECT_EQ(canvas.left(), 60);
  EXPECT_EQ(canvas.top(), 75);
  EXPECT_EQ(canvas.width(), 1500);
  EXPECT_EQ(canvas.height(), 750);
  EXPECT_EQ(canvas.ScaleWidth(), 100);
  EXPECT_EQ(canvas.ScaleHeight(), 50);
  EXPECT_EQ(canvas.TwipsPerPixelX(), 15);
  EXPECT_EQ(canvas.TwipsPerPixelY(), 15);
}

TEST_F(Picture, TheCanvasAndTheWidgetShareOneBackground) {
  PlotCanvas& canvas = box;
  canvas.BackColor(red);
  EXPECT_EQ(box.BackColor.get(), red);
  box.BackColor = white;
  EXPECT_EQ(canvas.BackColor(), white);
}

TEST_F(Picture, ErasesToItsBackground) {
  draw();
  box.CurrentX(20);
  box.Cls();
  EXPECT_TRUE(is_blank(white));
  EXPECT_EQ(box.CurrentX(), 0);
}

TEST_F(Picture, DrawsOnItsSurface) {
  draw();
  ASSERT_EQ(recording_of(box).size(), 2u);
  const auto& line = std::get<recorded::Line>(recording_of(box).back());
  EXPECT_EQ(line.from, (SurfacePoint{1, 2}));
  EXPECT_EQ(line.to, (SurfacePoint{3, 4}));
  EXPECT_EQ(line.pen.color, red);
}

TEST_F(Picture, RefreshReachesTheSurface) {
  draw();
  box.Refresh();
  EXPECT_EQ(recording_of(box).back(), recorded::Call{recorded::Refresh{}});
}

TEST_F(Picture, ItsImageIsACopy) {
  draw();
  const auto image = std::dynamic_pointer_cast<const RecordedImage>(box.Image());
  ASSERT_TRUE(image);
  const Recording then = recording_of(box);
  box.Cls();
  box.Width = 3000;
  EXPECT_EQ(image->recording(), then);
  EXPECT_EQ(image->size(), (SurfaceSize{100, 50}));
  EXPECT_TRUE(is_blank(white));
}

TEST_F(Picture, MovesAsAnIndicatorMark) {
  IndicatorMark& mark = box;
  EXPECT_EQ(mark.width(), 1500);
  EXPECT_EQ(mark.height(), 750);
  mark.move_to(300, -45);
  mark.set_visible(false);
  EXPECT_EQ(box.Left.get(), 300);
  EXPECT_EQ(box.Top.get(), -45);
  EXPECT_EQ(box.Width.get(), 1500);
  EXPECT_FALSE(box.Visible);
}

TEST_F(Picture, WhatIsKeptAsBackgroundOutlastsCls) {
  draw();
  box.keep_as_background();
  box.Line(line_flags, 10, 20, 30, 40, white);
  box.Cls();
  const Recording shown = recording_of(box);
  EXPECT_EQ(std::count_if(shown.begin(), shown.end(),
                          [](const auto& call) { return std::holds_alternative<recorded::Line>(call); }),
            1);
  box.forget_background();
  box.Cls();
  EXPECT_TRUE(is_blank(white));
}

}  // namespace
}  // namespace mirolen
