#include <clocale>

#include "print_support.h"

namespace mirolen {
namespace {

using testing::Test;

const std::string kReset[] = {"FontTransparent=1", "Font?",       "Font=Arial 8 0 0", "ScaleMode=1",
                              "DrawWidth=1",       "DrawStyle=0", "FillStyle=0",      "FillColor=16777215",
                              "ForeColor=0"};

Lines reset_lines() { return {std::begin(kReset), std::end(kReset)}; }

/// A page in the report state, with the layer's operations on it.
class Primitives : public Test {
 protected:
  Primitives() : page(std::make_shared<Page>(PageSetup{})) {
    print.PrinterObj = page;
    print.ResetPrinterObj();
    page->log.lines.clear();
    page->log.keeps_reads = false;
  }

  Lines taken() { return std::exchange(page->log.lines, {}); }

  PrintWafer print;
  std::shared_ptr<Page> page;
};

// ---- The report state ----

TEST_F(Primitives, ResetSetsTheReportStateInItsOrder) {
  page->log.keeps_reads = true;
  print.ResetPrinterObj();
  EXPECT_EQ(difference(taken(), reset_lines()), "");
}

TEST_F(Primitives, ResetKeepsBoldAndUnderline) {
  page->Font({"Symbol", 14, true, true});
  print.ResetPrinterObj();
  EXPECT_EQ(page->Font(), (FontSpec{"Arial", 8, true, true}));
}

TEST_F(Primitives, PiIsWorkedOut) { EXPECT_EQ(print.Pi, std::acos(-1.0)); }

// ---- Texts ----

const std::string kWide = "4444444444";  // ten characters of 100 twips
const std::string kRagged = "0123456789 Größe µm αβγ 東京";

TEST_F(Primitives, ATextAsWideAsTheLimitIsWrittenWhole) {
  for (const double limit : {1000.0, 1000.4}) {
    std::string left = kWide, center = kWide, right = kWide;
    print.DrawLeftText(left, 10, 20, limit, 0);
    print.DrawCenterText(center, 10, 20, limit, 0);
    print.DrawRightText(right, 10, 20, limit, 0);
    EXPECT_EQ(left + center + right, kWide + kWide + kWide);
  }
}

TEST_F(Primitives, TheMeasuredWidthIsRoundedHalfToEvenBeforeItIsCompared) {
  page->Font({"Arial", 1});  // 12.5 twips a character
  std::string one = "4", three = "444";
  print.DrawLeftText(one, 0, 0, 12, 0);
  EXPECT_EQ(one, "4");
  print.DrawLeftText(three, 0, 0, 37, 0);
  EXPECT_EQ(three, "44");
}

TEST_F(Primitives, TheLeftWriterCutsTheEndAndHandsTheTextBack) {
  std::string text = "0000444400";
  print.DrawLeftText(text, 123.5, -7, 700, 4);
  EXPECT_EQ(text, "000044440");
  text = "0000444400";
  taken();
  print.DrawLeftText(text, 123.5, -7, 639, 4);
  EXPECT_EQ(text, "0000444");
  EXPECT_EQ(difference(taken(), {"DrawStyle=0", "ForeColor=128", "FontTransparent=1", "CurrentX=123.5",
                                 "CurrentY=-7", "Print 0000444"}),
            "");
}

TEST_F(Primitives, TheRightWriterCutsTheStartAndEndsAtItsPlace) {
  std::string text = "0000444400";
  print.DrawRightText(text, 5000.25, 8, 540, 15);
  EXPECT_EQ(text, "444400");
  EXPECT_EQ(difference(taken(), {"ForeColor=16777215", "FontTransparent=1", "CurrentX=4480.25", "CurrentY=8",
                                 "Print 444400"}),
            "");
}

TEST_F(Primitives, TheCentreWriterKeepsTheMiddleAndPlacesItByItsShortenedWidth) {
  std::string text = "000044440";
  print.DrawCenterText(text, 1000, 8, 600, 9);  // 700 wide, then 580
  EXPECT_EQ(text, "0004444");
  EXPECT_EQ(difference(taken(), {"ForeColor=16711680", "FontTransparent=1", "CurrentX=710", "CurrentY=8",
                                 "Print 0004444"}),
            "");
}

TEST_F(Primitives, TheCentreIsRoundedHalfToEven) {
  for (const auto& [center, x] : {std::pair{100.5, 50.0}, {101.5, 52.0}, {100.4, 50.0}, {-0.5, -50.0}}) {
    std::string text = "4";
    print.DrawCenterText(text, center, 0, 200, 0);
    EXPECT_EQ(page->CurrentX(), x) << center;
  }
}

TEST_F(Primitives, OnlyTheLeftWriterSetsTheDrawStyle) {
  std::string text = "a";
  page->DrawStyle(5);
  print.DrawCenterText(text, 0, 0, 1000, 0);
  print.DrawRightText(text, 0, 0, 1000, 0);
  EXPECT_EQ(page->DrawStyle(), 5);
  print.DrawLeftText(text, 0, 0, 1000, 0);
  EXPECT_EQ(page->DrawStyle(), 0);
}

TEST_F(Primitives, AnEmptyTextIsWritten) {
  std::string text;
  print.DrawLeftText(text, 1, 2, 0, 0);
  print.DrawCenterText(text, 1, 2, 0, 0);
  print.DrawRightText(text, 1, 2, 0, 0);
  EXPECT_EQ(page->log.count("Print"), 3);
}

TEST_F(Primitives, ATextWithoutRoomForACharacterIsLeftOutOrRefused) {
  std::string left = "44", right = "44", center = "44";
  print.DrawLeftText(left, 0, 0, 50, 0);
  print.DrawRightText(right, 0, 0, 50, 0);
  print.DrawCenterText(center, 0, 0, 50, 0);
  EXPECT_EQ(left + center + right, "");
  taken();
  std::string odd = "444", none = "44";
  EXPECT_THROW(print.DrawCenterText(odd, 0, 0, 50, 0), InvalidArgument);
  EXPECT_EQ(odd, "4");
  EXPECT_THROW(print.DrawLeftText(none, 0, 0, -1, 0), InvalidArgument);
  EXPECT_THROW(print.DrawRightText(none, 0, 0, -1, 0), InvalidArgument);
  EXPECT_THROW(print.DrawCenterText(none, 0, 0, -1, 0), InvalidArgument);
  EXPECT_EQ(difference(taken(), {}), "");
}

TEST_F(Primitives, ATextWiderThanSixteenBitsIsAnOverflow) {
  std::string text(328, '4');
  EXPECT_THROW(print.DrawLeftText(text, 0, 0, 1e9, 0), OverflowError);
  EXPECT_THROW(print.DrawCenterText(text, 0, 0, 1e9, 0), OverflowError);
  EXPECT_THROW(print.DrawRightText(text, 0, 0, 1e9, 0), OverflowError);
  text.pop_back();
  print.DrawLeftText(text, 0, 0, 1e9, 0);
  EXPECT_THROW(print.DrawCenterText(text, 60000, 0, 1e9, 0), OverflowError);
}

TEST_F(Primitives, APaletteHasSixteenColours) {
  std::string text = "a";
  EXPECT_THROW(print.DrawLeftText(text, 0, 0, 1000, 16), RunTimeError);
  EXPECT_THROW(print.DrawLeftText(text, 0, 0, 1000, -1), RunTimeError);
}

TEST(PrintedText, IsCutAsWorkedOutAtEveryWidth) {
  Given given;
  for (given.width = -20; given.width < 2200 && !Test::HasFailure(); given.width += 9.7)
    for (const std::string& text : {kRagged, kWide, std::string("é"), std::string()}) {
      given.text = text;
      expect_as_worked_out(
          {}, given, [](auto& page, Given& g) { page.DrawLeftText(g.text, g.left, g.top, g.width, 1); });
      expect_as_worked_out(
          {}, given, [](auto& page, Given& g) { page.DrawCenterText(g.text, g.left, g.top, g.width, 2); });
      expect_as_worked_out(
          {}, given, [](auto& page, Given& g) { page.DrawRightText(g.text, g.left, g.top, g.width, 12); });
    }
}

// ---- Frame ----

TEST_F(Primitives, AFrameLeavesAGapForItsCaption) {
  print.DrawFrame("4444", 1000, 2000, 3000, 500);
  Lines expected = reset_lines();
  expected.erase(expected.begin() + 1);
  const Lines reset = expected;
  for (const char* line : {"ScaleMode=1", "DrawWidth=2", "Line 6 1100 2184.8 1000 2184.8 4210752",
                           "Line 6 1000 2184.8 1000 2684.8 4210752", "Line 6 1000 2684.8 4000 2684.8 4210752",
                           "Line 6 4000 2684.8 4000 2184.8 4210752", "Line 6 4000 2184.8 1600 2184.8 4210752",
                           "CurrentX=1150", "CurrentY=2092.4", "Print 4444"})
    expected.emplace_back(line);
  expected.insert(expected.end(), reset.begin(), reset.end());
  EXPECT_EQ(difference(taken(), expected, 1e-9), "");
}

TEST_F(Primitives, AFrameWithoutACaptionIsClosedAtTheSameHeight) {
  print.DrawFrame("", 1000, 2000, 3000, 500);
  EXPECT_EQ(page->log.count("Print"), 0);
  EXPECT_EQ(difference(page->log.of("Line"),
                       {"Line 6 1000 2184.8 1000 2684.8 4210752", "Line 6 1000 2684.8 4000 2684.8 4210752",
                        "Line 6 4000 2684.8 4000 2184.8 4210752", "Line 6 4000 2184.8 1000 2184.8 4210752"},
                       1e-9),
            "");
}

TEST_F(Primitives, AfterAFrameTheTargetIsInTheReportState) {
  for (const char* caption : {"", "Größe"}) {
    page->Font({"Courier", 20});
    page->ScaleMode(pixels);
    print.DrawFrame(caption, 0, 0, 100, 100);
    EXPECT_EQ(page->DrawWidth(), 1);
    EXPECT_EQ(page->ScaleMode(), twips);
    EXPECT_EQ(page->FillStyle(), solid_fill);
    EXPECT_EQ(page->ForeColor(), 0u);
    EXPECT_EQ(page->Font(), FontSpec{});
  }
}

// ---- Sigma ----

TEST_F(Primitives, TheSigmaStandsOnTheBaseLineAndTheFontComesBack) {
  const FontSpec before{"Courier", 11, true, true};
  page->Font(before);
  taken();
  print.DrawSigmaChar(300, 1000, 12);
  EXPECT_EQ(difference(taken(),
                       {"Font=Symbol 14 0 0", "DrawStyle=0", "ForeColor=255", "CurrentX=300",
                        "CurrentY=919.15", "Print s", "Font=Courier 11 1 1"},
                       1e-9),
            "");
  EXPECT_EQ(page->Font(), before);
}

// ---- Numbers ----

TEST_F(Primitives, LabelsHaveTheFormatOfTheirSize) {
  EXPECT_EQ(print.FormatLbl(0), "0.0");
  EXPECT_EQ(print.FormatLbl(-0.0), "0.0");
  EXPECT_EQ(print.FormatLbl(0.5), "0.5");
  EXPECT_EQ(print.FormatLbl(0.12345678), "0.1234568");
  EXPECT_EQ(print.FormatLbl(-0.12345678), "-0.1234568");
  EXPECT_EQ(print.FormatLbl(1.23456), "1.2346");
  EXPECT_EQ(print.FormatLbl(1), "1.0");
  EXPECT_EQ(print.FormatLbl(9999.98765), "9999.9877");
  EXPECT_EQ(print.FormatLbl(10000), "10000.0");
  EXPECT_EQ(print.FormatLbl(10000.5678), "10000.57");
  EXPECT_EQ(print.FormatLbl(100000), "100000.0");
  EXPECT_EQ(print.FormatLbl(-100000), "-100000.0");
  EXPECT_EQ(print.FormatLbl(100001), "1.E+5");
  EXPECT_EQ(print.FormatLbl(1e-7), "0.0000001");
  EXPECT_EQ(print.FormatLbl(0.00000001), "1.E-8");
}

TEST_F(Primitives, LabelsReadAsThoseOfTheScreen) {
  for (const double value : {0.0, 1e-12, 3e-7, -0.04, 0.999999999, 1.0, 12.5, -9999.99, 1e4, 99999.999, 1e5,
                             100000.01, 1e20, -3.5e200})
    EXPECT_EQ(print.FormatLbl(value), wafer().FormatLbl(value));
}

TEST_F(Primitives, ANumberIsLengthenedUntilItIsNotZero) {
  EXPECT_EQ(print.FormatNonZero(0.001, "0.00"), "0.001");
  EXPECT_EQ(print.FormatNonZero(-0.001, "0.00"), "-0.001");
  EXPECT_EQ(print.FormatNonZero(0.004999, "0.00"), "0.005");
  EXPECT_EQ(print.FormatNonZero(0.005, "0.00"), "0.01");
  EXPECT_EQ(print.FormatNonZero(1e-12, "0.00"), "0.000000000001");
  EXPECT_EQ(print.FormatNonZero(200, "00.00"), "200.00");
  EXPECT_EQ(print.FormatNonZero(5e-324, "0.0").size(), 326u);
}

TEST_F(Primitives, AZeroIsWrittenAsItsFormat) {
  EXPECT_EQ(print.FormatNonZero(0, "0.00"), "0.00");
  EXPECT_EQ(print.FormatNonZero(0, "00.00"), "00.00");
  EXPECT_EQ(print.FormatNonZero(-0.0, "0.0"), "0.0");
}

TEST_F(Primitives, NumbersThatAreNoneAreRefused) {
  for (const double value : {kInfinity, -kInfinity, kNaN}) {
    EXPECT_THROW(print.FormatLbl(value), RunTimeError);
    EXPECT_THROW(print.FormatNonZero(value, "0.00"), RunTimeError);
  }
}

TEST_F(Primitives, NumbersTakeTheDecimalCommaOfTheLocale) {
  const std::string before = std::setlocale(LC_NUMERIC, nullptr);
  for (const char* name : {"de_DE.UTF-8", "de_DE.utf8", "fr_FR.UTF-8"})
    if (std::setlocale(LC_NUMERIC, name)) break;
  const bool comma = std::localeconv()->decimal_point == std::string(",");
  const wafer in_that_locale;
  std::setlocale(LC_NUMERIC, before.c_str());
  if (comma) {
    EXPECT_EQ(print.FormatNonZero(1e-12, "0.00"), "0,000000000001");
    EXPECT_EQ(print.FormatNonZero(0, "0.00"), "0.00");
    EXPECT_EQ(print.FormatLbl(2.5), "2,5");
  }
  const wafer as_before;
  EXPECT_EQ(print.FormatLbl(2.5), "2.5");
  if (!comma) GTEST_SKIP() << "no locale with a decimal comma";
}

// ---- Targets that are missing or fail ----

TEST(PrintWaferWithoutATarget, RefusesToPrint) {
  PrintWafer print;
  std::string text = "a";
  double x = 0, y = 0, r = 1;
  wafer w = sample_wafer();
  EXPECT_THROW(print.ResetPrinterObj(), InvalidArgument);
  EXPECT_THROW(print.DrawLeftText(text, 0, 0, 100, 0), InvalidArgument);
  EXPECT_THROW(print.DrawFrame("", 0, 0, 1, 1), InvalidArgument);
  EXPECT_THROW(print.DrawSigmaScale(x, y, 1, w), InvalidArgument);
  EXPECT_THROW(print.DrawFlatNotchSymbol(x, y, 1, r, 0, 90), InvalidArgument);
  EXPECT_THROW(print.Print_2DPlot(w, 0, 0, x, 0, 5, "", 0, true), InvalidArgument);
}

TEST(PrintedPrimitives, PassAFaultOfTheTargetOn) {
  const Given given;
  expect_as_worked_out_on_failing_pages(given, [](auto& page, Given&) { page.ResetPrinterObj(); });
  expect_as_worked_out_on_failing_pages(
      given, [](auto& page, Given& g) { page.DrawLeftText(g.text, 1, 2, 400, 0); });
  expect_as_worked_out_on_failing_pages(
      given, [](auto& page, Given& g) { page.DrawCenterText(g.text, 1, 2, 400, 0); });
  expect_as_worked_out_on_failing_pages(
      given, [](auto& page, Given& g) { page.DrawRightText(g.text, 1, 2, 400, 0); });
  expect_as_worked_out_on_failing_pages(
      given, [](auto& page, Given& g) { page.DrawFrame(g.caption, 1, 2, 400, 5); });
  expect_as_worked_out_on_failing_pages(given, [](auto& page, Given&) { page.DrawFrame("", 1, 2, 400, 5); });
  expect_as_worked_out_on_failing_pages(given, [](auto& page, Given&) { page.DrawSigmaChar(1, 2, 3); });
}

}  // namespace
}  // namespace mirolen
