#include "mirolen/print/viewbitmap.h"

#include <gtest/gtest.h>

#include "mirolen/core/version.h"
#include "mirolen/widgets/Headless.h"
#include "mirolen/widgets/widgets.h"
#include "plain_picture.h"
#include "print_support.h"

namespace mirolen {
namespace {

using Texts = std::vector<recorded::Text>;

class OpenView : public viewbitmap {
 public:
  using viewbitmap::DrawRemarksBlock;
  using viewbitmap::DrawSizeBlock;
  using viewbitmap::DrawStatisticsBlock;
  using viewbitmap::ViewFormatNonZero;
  using viewbitmap::ViewFrame;
  using viewbitmap::ViewLeftText;
};

/// Two equal pictures with a plot on them: one for the layer, one for its restatement.
class View : public RandomInput {
 protected:
  View() {
    size(6000, 3000);
    view.BitmapObj(&picture);
    view.WaferObj(&data);
  }

  void size(double width, double height) {
    for (PictureBox* box : {&picture, &other}) {
      box->Width = width;
      box->Height = height;
      box->BackColor = 0xFFFFFF;
      box->ScaleMode(pixels);
      box->Cls();
      box->Line(line_flags, 1, 2, 30, 40, 0x0000FF);
      box->Circle(50, 50, 20, 0x00FF00);
    }
  }

  void set_fonts(const FontSpec& font) {
    picture.Font(font);
    other.Font(font);
  }

  void expect_as_worked_out() {
    PlainPicture plain(other, data);
    const std::string error = error_of([&] { view.DrawWaferData(); });
    EXPECT_EQ(error, error_of([&] { plain.DrawWaferData(); }));
    expect_equal_pictures();
  }

  void expect_equal_pictures() {
    EXPECT_EQ(picture.Height, other.Height);
    EXPECT_EQ(picture.Font(), other.Font());
    const Recording &actual = recording_of(picture), &expected = recording_of(other);
    ASSERT_EQ(actual.size(), expected.size());
    for (std::size_t i = 0; i < actual.size(); ++i) EXPECT_TRUE(actual[i] == expected[i]) << "call " << i;
  }

  template <class Body>
  static std::string error_of(Body body) {
    try {
      body();
    } catch (const RunTimeError& error) {
      return typeid(error).name();
    }
    return "";
  }

  Texts texts() const {
    Texts found;
    for (const recorded::Call& call : recording_of(picture))
      if (const auto* text = std::get_if<recorded::Text>(&call)) found.push_back(*text);
    return found;
  }

  const recorded::Text& text(const std::string& wanted) {
    found_ = texts();
    for (const recorded::Text& text : found_)
      if (text.text == wanted) return text;
    ADD_FAILURE() << "no text " << wanted;
    return found_.emplace_back();
  }

  HeadlessToolkit toolkit;
  UserControl root{toolkit};
  PictureBox picture{&root}, other{&root};
  wafer data = sample_wafer();
  OpenView view;

 private:
  Texts found_;
};

TEST_F(View, SetsTheDrawingStateAndLeavesTheFont) {
  picture.Font({"Courier", 11, true, true});
  picture.FontTransparent(false);
  picture.DrawWidth(5);
  picture.DrawStyle(5);
  picture.FillStyle(1);
  picture.FillColor(1);
  picture.ForeColor(2);
  view.Resetbitobj();
  EXPECT_EQ(picture.Font(), (FontSpec{"Courier", 11, true, true}));
  EXPECT_TRUE(picture.FontTransparent());
  EXPECT_EQ(picture.ScaleMode(), twips);
  EXPECT_EQ(picture.DrawWidth(), 1);
  EXPECT_EQ(picture.DrawStyle(), solid_line);
  EXPECT_EQ(picture.FillStyle(), solid_fill);
  EXPECT_EQ(picture.FillColor(), 0xFFFFFFu);
  EXPECT_EQ(picture.ForeColor(), 0u);
}

TEST_F(View, IsAsWorkedOutAtEverySize) {
  for (const double width : {400.0, 3000.0, 4899.0, 4899.4, 4899.5, 4900.0, 4900.5, 4901.0, 4903.0, 9000.0})
    for (const double height : {15.0, 2999.5, 3000.5, 7010.0}) {
      size(width, height);
      expect_as_worked_out();
    }
}

TEST_F(View, PutsTwoBlocksSideBySideFrom4900On) {
  size(4900, 3000);
  view.DrawWaferData();
  EXPECT_EQ(picture.Height, 6000);
  EXPECT_EQ(text("Wafer Size").place, (SurfacePoint{2350 / 15.0, 200}));
  size(4899, 3000);
  view.DrawWaferData();
  EXPECT_EQ(picture.Height, 7400);
  EXPECT_EQ(text("Wafer Size").place, (SurfacePoint{100 / 15.0, 360}));
  EXPECT_EQ(text("Wafer Statistics").place, (SurfacePoint{100 / 15.0, 200}));
}

TEST_F(View, KeepsThePlotThatWasDrawnBefore) {
  const Recording before = recording_of(picture);
  view.DrawWaferData();
  const Recording after = recording_of(picture);
  ASSERT_GT(after.size(), before.size());
  EXPECT_TRUE(std::equal(before.begin(), before.end(), after.begin()));
}

TEST_F(View, UnderlinesItsTitlesAlone) {
  view.DrawWaferData();
  for (const recorded::Text& text : texts()) {
    EXPECT_EQ(text.font.underline, text.text == "Wafer Statistics" || text.text == "Wafer Size") << text.text;
    EXPECT_EQ(text.font.bold, text.text.starts_with("SONVERA")) << text.text;
  }
}

TEST_F(View, FlipsWhatIsUnderlinedOrBoldAlready) {
  set_fonts({"Arial", 9, true, true});
  view.DrawWaferData();
  EXPECT_FALSE(text("Wafer Size").font.underline);
  EXPECT_TRUE(text("Style:").font.underline);
  EXPECT_FALSE(texts().back().font.bold);
  EXPECT_EQ(texts().back().font.size, 12);
  EXPECT_EQ(picture.Font(), (FontSpec{"Arial", 10, true, true}));
}

TEST_F(View, LeavesAFontSizeOfTenAndTheBoldSettingOfBefore) {
  for (const FontSpec& font : {FontSpec{"Arial", 8}, {"Courier", 20, true, false}}) {
    size(6000, 3000);
    set_fonts(font);
    expect_as_worked_out();
    EXPECT_EQ(picture.Font().size, 10);
    EXPECT_EQ(picture.Font().bold, font.bold);
  }
}

TEST_F(View, SignsWithTheVersionAtItsFoot) {
  view.DrawWaferData();
  const recorded::Text foot = texts().back();
  EXPECT_EQ(foot.text,
            "SONVERA View.OCX " + std::to_string(version().major) + "." + std::to_string(version().minor));
  EXPECT_EQ(foot.place, (SurfacePoint{100 / 15.0, 5600 / 15.0}));
}

TEST_F(View, CutsItsFootToTheWidthOfThePicture) {
  size(1640, 3000);  // ten characters of 144 twips are as wide as the room for them
  view.DrawWaferData();
  EXPECT_EQ(texts().back().text, "SONVERA Vi");
  size(1639, 3000);
  view.DrawWaferData();
  EXPECT_EQ(texts().back().text, "SONVERA V");
}

TEST_F(View, WithoutRoomForAFootIsAnError) {
  size(199, 3000);
  expect_as_worked_out();
  EXPECT_NE(error_of([&] { view.DrawWaferData(); }), "");
}

TEST_F(View, WritesNumbersWithTwoDecimalsOrMore) {
  data.mean = 4;
  data.maxi = 12345.678;
  data.mini = 0;
  data.StdDev = 1e-7;
  data.WafDiam = 0.001;
  view.DrawWaferData();
  Lines written;
  for (const recorded::Text& text : texts()) written.push_back(text.text);
  EXPECT_EQ(difference(Lines(written.begin() + 8, written.begin() + 16),
                       {"4.00", "12345.68", "0.00", "0.0000001", "0.000003 %", "12345.68", "100.00 %", "µm"}),
            "");
  EXPECT_EQ(written.at(21), "00.00 mm");
}

TEST_F(View, IsAsWorkedOutForEveryWafer) {
  for (int round = 0; round < 60 && !HasFailure(); ++round) {
    SCOPED_TRACE("round " + std::to_string(round));
    data = any_wafer(random);
    size(between(random, 300.0, 9000.0), between(random, 100.0, 28000.0));
    set_fonts({"Arial", between(random, 6.0, 20.0), chance(random, 0.5), chance(random, 0.5)});
    expect_as_worked_out();
  }
}

TEST_F(View, BeyondSixteenBitsIsAnOverflow) {
  for (const auto& [width, height] : {std::pair{6000.0, 40000.0},
                                      {40000.0, 3000.0},
                                      {6000.0, 32767.0},
                                      {3000.0, 30500.0},
                                      {6000.0, 30200.0}}) {
    size(width, height);
    expect_as_worked_out();
    size(width, height);
    EXPECT_EQ(error_of([&] { view.DrawWaferData(); }), typeid(OverflowError).name());
  }
  size(6000, 30165);  // the foot stands at 32765
  EXPECT_EQ(error_of([&] { view.DrawWaferData(); }), "");
}

TEST_F(View, NeedsAPictureAndAWafer) {
  viewbitmap without;
  EXPECT_THROW(without.DrawWaferData(), InvalidArgument);
  EXPECT_THROW(without.Resetbitobj(), InvalidArgument);
  without.BitmapObj(&picture);
  EXPECT_THROW(without.DrawWaferData(), InvalidArgument);
  without.BitmapObj(nullptr);
  EXPECT_THROW(without.Resetbitobj(), InvalidArgument);
}

TEST_F(View, WritesARemarksBlockWithTheFileName) {
  data.Operator = "Jürgen Müller-Lüdenscheidt";
  data.FAB = "F1";
  data.Special = "東京東京東京東京東京";
  data.filename = "lot-0815.dat of today";
  PlainPicture plain(other, data);
  view.Resetbitobj();
  plain.Resetbitobj();
  view.DrawRemarksBlock(300, 200);
  plain.DrawRemarksBlock(300, 200);
  expect_equal_pictures();
  EXPECT_EQ(text("Filename:").place, (SurfacePoint{420 / 15.0, 2240 / 15.0}));
  EXPECT_TRUE(std::string("lot-0815.dat of").starts_with(texts().back().text));
}

TEST_F(View, CutsATextLikeThePrintedOne) {
  PlainPicture plain(other, data);
  view.Resetbitobj();
  plain.Resetbitobj();
  for (int width = 0; width < 2000; width += 50) {
    std::string cut = "Größe µm αβγ 東京 and more", as_told = cut;
    view.ViewLeftText(cut, 5, 6, static_cast<std::int16_t>(width), 4);
    plain.ViewLeftText(as_told, 5, 6, width, 4);
    EXPECT_EQ(cut, as_told);
  }
  expect_equal_pictures();
}

TEST_F(View, FramesThreeWide) {
  PlainPicture plain(other, data);
  for (const char* caption : {"Größe", ""}) {
    view.ViewFrame(caption, 100, 200, 3000, 1500);
    plain.ViewFrame(caption, 100, 200, 3000, 1500);
  }
  expect_equal_pictures();
  EXPECT_EQ(picture.DrawWidth(), 1);
  EXPECT_EQ(std::get<recorded::Line>(recording_of(picture).at(3)).pen.width, 3);
}

TEST_F(View, FramesAtWholeTwips) {
  view.ViewFrame("Größe", 100, 200, 3000, 1500);
  PixelPoint last;
  for (const recorded::Call& call : recording_of(picture))
    if (const auto* line = std::get_if<recorded::Line>(&call); line && line->pen.width == 3)
      for (const SurfacePoint& end : {line->from, line->to}) {
        last = {static_cast<int>(std::lround(end.x * 15)), static_cast<int>(std::lround(end.y * 15))};
        EXPECT_NEAR(end.x * 15, last.x, 1e-9);
        EXPECT_NEAR(end.y * 15, last.y, 1e-9);
      }
  EXPECT_EQ(last.x, std::lround(picture.TextWidth("Größe") + 300)) << "behind the caption";
}

TEST_F(View, RefusesAFrameBeyondSixteenBits) {
  for (const auto& [left, width] : {std::pair<int, int>{32000, 800}, {32700, 10}, {32400, 10}})
    EXPECT_THROW(
        view.ViewFrame("Größe", static_cast<std::int16_t>(left), 0, static_cast<std::int16_t>(width), 9),
        OverflowError)
        << left;
  EXPECT_THROW(view.ViewFrame("Größe", 0, 32767, 9, 9), OverflowError);
}

TEST_F(View, KeepsWhatIsWrittenBeforeAValueThatFails) {
  data.mini = 1.6e308;
  data.maxi = 1.7e308;
  data.mean = 2;
  expect_as_worked_out();
  EXPECT_EQ(texts().size(), 1u + 7 + 6) << "the title, all labels, the values before the spread";
}

TEST(ViewFormatNonZero, HandsItsFormatBackLengthened) {
  std::string format = "0.00";
  EXPECT_EQ(OpenView::ViewFormatNonZero(0, format), "0.00");
  EXPECT_EQ(format, "0.00");
  EXPECT_EQ(OpenView::ViewFormatNonZero(2, format), "2.00");
  EXPECT_EQ(format, "0.000");
  EXPECT_EQ(OpenView::ViewFormatNonZero(0.00012, format), "0.0001");
  EXPECT_EQ(format, "0.00000");
}

}  // namespace
}  // namespace mirolen
