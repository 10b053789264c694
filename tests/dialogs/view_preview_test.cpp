#include "mirolen/dialogs/view_preview.h"

#include <gtest/gtest.h>

#include <cmath>

#include "mirolen/core/palette.h"
#include "mirolen/widgets/Headless.h"
#include "mirolen/widgets/PictureBox.h"
#include "mirolen/widgets/widgets.h"

namespace mirolen {
namespace {

using Corners = std::vector<PixelPoint>;

/// A picture of 102 by 102 pixels, on which a board that is not turned has cells of 20 pixels.
class ViewPreview : public testing::Test {
 protected:
  ViewPreview() { box.Move(0, 0, 102 * 15, 102 * 15); }

  std::vector<recorded::Polygon> drawn(double rot, double incl) {
    DrawViewPreview(box, rot, incl);
    std::vector<recorded::Polygon> cells;
    for (const recorded::Call& call : recording_of(box))
      if (const auto* polygon = std::get_if<recorded::Polygon>(&call)) cells.push_back(*polygon);
    return cells;
  }

  HeadlessToolkit toolkit;
  UserControl root{toolkit};
  PictureBox box{&root};
};

TEST_F(ViewPreview, ErasesDrawsTwentyFiveCellsAndShowsThem) {
  EXPECT_EQ(drawn(40, 35).size(), 25u);
  const Recording& calls = recording_of(box);
  ASSERT_EQ(calls.size(), 27u);
  EXPECT_TRUE(std::holds_alternative<recorded::Clear>(calls.front()));
  EXPECT_TRUE(std::holds_alternative<recorded::Refresh>(calls.back()));
}

TEST_F(ViewPreview, CellsAreWhiteWithABlackEdgeAndTheLastIsRed) {
  const auto cells = drawn(40, 35);
  for (std::size_t i = 0; i < cells.size(); ++i) {
    EXPECT_EQ(cells[i].pen, (Pen{QBColor(0), 1, Pen::Style::solid}));
    EXPECT_EQ(cells[i].brush, (Brush{QBColor(i == 24 ? 4 : 15), true}));
    EXPECT_EQ(cells[i].points.size(), 4u);
  }
}

TEST_F(ViewPreview, SeenFromAboveTheBoardFillsThePicture) {
  const auto cells = drawn(0, 90);
  EXPECT_EQ(cells[0].points, (Corners{{0, 0}, {20, 0}, {20, 20}, {0, 20}}));
  EXPECT_EQ(cells[1].points, (Corners{{20, 0}, {40, 0}, {40, 20}, {20, 20}}));
  EXPECT_EQ(cells[24].points, (Corners{{80, 80}, {100, 80}, {100, 100}, {80, 100}}));
}

TEST_F(ViewPreview, TheInclinationCompressesTheHeight) {
  const auto cells = drawn(0, 30);
  EXPECT_EQ(cells[0].points, (Corners{{0, 25}, {20, 25}, {20, 35}, {0, 35}}));
  EXPECT_EQ(cells[24].points, (Corners{{80, 65}, {100, 65}, {100, 75}, {80, 75}}));
  for (const auto& cell : drawn(0, 0))
    for (const PixelPoint& point : cell.points) EXPECT_EQ(point.y, 50);
}

TEST_F(ViewPreview, TurnsAsThePlotDoes) {
  // A quarter turn counter-clockwise takes the corner at the lower right to the upper right.
  const auto cells = drawn(90, 90);
  EXPECT_EQ(cells[24].points, (Corners{{80, 20}, {80, 0}, {100, 0}, {100, 20}}));
  EXPECT_EQ(drawn(360, 90)[24].points, drawn(0, 90)[24].points);
}

TEST_F(ViewPreview, AWidePictureIsFilledInItsHeight) {
  box.Width = 302 * 15;
  EXPECT_EQ(drawn(0, 90)[0].points, (Corners{{100, 0}, {120, 0}, {120, 20}, {100, 20}}));
}

TEST_F(ViewPreview, FitsAtEveryAngle) {
  for (const double height : {102, 60, 3})
    for (int rot = 0; rot <= 360; rot += 7)
      for (int incl = 0; incl <= 360; incl += 30) {
        box.Height = height * 15;
        for (const auto& cell : drawn(rot, incl))
          for (const PixelPoint& point : cell.points) {
            EXPECT_GE(point.x, 0);
            EXPECT_LE(point.x, 100);
            EXPECT_GE(point.y, 0);
            EXPECT_LE(point.y, height - 2);
          }
      }
}

TEST_F(ViewPreview, AnUnevenTurnIsRoundedToPixels) {
  // 45 degrees: cells of 50 / (2.5 * sqrt 2) = 10 sqrt 2 pixels, so that steps along the board are 10 pixels.
  const auto cells = drawn(45, 90);
  EXPECT_EQ(cells[0].points, (Corners{{0, 50}, {10, 40}, {20, 50}, {10, 60}}));
  EXPECT_EQ(cells[24].points, (Corners{{80, 50}, {90, 40}, {100, 50}, {90, 60}}));
}

}  // namespace
}  // namespace mirolen
