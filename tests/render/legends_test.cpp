#include <gtest/gtest.h>

#include <set>

#include "support/RecordingCompanions.h"
#include "support/legend_numbers.h"
#include "support/site_support.h"

namespace mirolen {
namespace {

wafer wafer_between(double low, double high) {
  wafer made;
  set_diameters(made, 200, 200);
  load(made, with_values({low, high}));
  return made;
}

struct Texts {
  std::string caption, tip;
  friend bool operator==(const Texts&, const Texts&) = default;
};

void PrintTo(const Texts& texts, std::ostream* out) {
  *out << '"' << texts.caption << "\" \"" << texts.tip << '"';
}

Texts texts_of(const RecordingLegend& legend, int row) {
  return {legend.label(row).text.value_or("(none)"), legend.label(row).tip.value_or("(none)")};
}

std::string caption_of(const RecordingLegend& legend, int row) { return texts_of(legend, row).caption; }

// ---- Ten colours ----

TEST(ColorLegend, ShowsTheEndsOfEachBand) {
  // A whole number of two digits leaves 6 - 3 decimals for the caption and 10 - 3 for the tip.
  RecordingLegend legend;
  wafer_between(0, 10).scale_colored(legend.boxes, legend.labels);
  EXPECT_EQ(texts_of(legend, 1), (Texts{"10.000 -  9.000", "10.0000000 -  9.0000000"}));
  EXPECT_EQ(texts_of(legend, 2), (Texts{" 9.000 -  8.000", " 9.0000000 -  8.0000000"}));
  EXPECT_EQ(texts_of(legend, 5), (Texts{" 6.000 -  5.000", " 6.0000000 -  5.0000000"}));
  EXPECT_EQ(texts_of(legend, 10), (Texts{" 1.000 -  0.000", " 1.0000000 -  0.0000000"}));
}

TEST(ColorLegend, ReadsItsEndRowsAsOpenRangesUnderLimits) {
  // Limits 0 to 8 make a scale of -1 to 9. Its negative end leaves 5 - 2 and 9 - 2 decimals.
  RecordingLegend legend;
  wafer source = wafer_between(0, 10);
  source.setMaximalMinial(8, 0);
  source.scale_colored(legend.boxes, legend.labels);
  EXPECT_EQ(texts_of(legend, 1), (Texts{" >  8.000", " >  8.0000000"}));
  EXPECT_EQ(texts_of(legend, 2), (Texts{" 8.000 -  7.000", " 8.0000000 -  7.0000000"}));
  EXPECT_EQ(texts_of(legend, 9), (Texts{" 1.000 -  0.000", " 1.0000000 -  0.0000000"}));
  EXPECT_EQ(texts_of(legend, 10), (Texts{" <  0.000", " <  0.0000000"}));
}

TEST(ColorLegend, TakesOneChangedLimitForLimits) {
  for (const auto& [upper, lower] : {std::pair{10.0, 2.0}, std::pair{18.0, 0.0}}) {
    RecordingLegend legend;
    wafer source = wafer_between(0, 10);
    source.setMaximalMinial(upper, lower);
    source.scale_colored(legend.boxes, legend.labels);
    EXPECT_EQ(caption_of(legend, 1).substr(0, 3), " > ");
    EXPECT_EQ(caption_of(legend, 10).substr(0, 3), " < ");
  }
}

TEST(ColorLegend, GivesANegativeScaleFewerDecimalsInTheSameWidth) {
  RecordingLegend legend;
  wafer_between(-10, 10).scale_colored(legend.boxes, legend.labels);
  EXPECT_EQ(texts_of(legend, 1), (Texts{" 10.00 -   8.00", " 10.000000 -   8.000000"}));
  EXPECT_EQ(texts_of(legend, 10), (Texts{" -8.00 - -10.00", " -8.000000 - -10.000000"}));
}

TEST(ColorLegend, TakesALimitMarginBelowZeroForANegativeScale) {
  // The margin reaches below zero: 5 - 3 and 9 - 3 decimals, in fields of 6 and 10 all the same.
  RecordingLegend legend;
  wafer source = wafer_between(0, 100);
  source.setMaximalMinial(80, 0);
  source.scale_colored(legend.boxes, legend.labels);
  EXPECT_EQ(texts_of(legend, 2), (Texts{" 80.00 -  70.00", " 80.000000 -  70.000000"}));
}

TEST(ColorLegend, TurnsToTheExponentAbove100000) {
  RecordingLegend legend;
  wafer_between(0, 200000).scale_colored(legend.boxes, legend.labels);
  EXPECT_EQ(texts_of(legend, 1), (Texts{"  2.0E+05 -   1.8E+05", " 2.000E+05 -  1.800E+05"}));
  EXPECT_EQ(texts_of(legend, 10), (Texts{"  2.0E+04 -   0.0E+00", " 2.000E+04 -  0.000E+00"}));
}

TEST(ColorLegend, TurnsToTheExponentForATinyPositiveTopButNotForANegativeOne) {
  RecordingLegend positive, negative;
  wafer_between(0, 0.00005).scale_colored(positive.boxes, positive.labels);
  EXPECT_EQ(caption_of(positive, 1), "  5.0E-05 -   4.5E-05");
  wafer_between(-0.0001, -0.00005).scale_colored(negative.boxes, negative.labels);
  EXPECT_EQ(caption_of(negative, 1), " -0.00 -  -0.00");  // digits behind the second are cut
}

TEST(ColorLegend, WidensItsFieldToTheLongestNumberSoThatNothingIsCut) {
  // Steps of 1235.06; 5 leaves 5 - 2 and 9 - 2 decimals, -12345.6 takes 10 and 14 places with them.
  RecordingLegend legend;
  wafer_between(-12345.6, 5).scale_colored(legend.boxes, legend.labels);
  EXPECT_EQ(texts_of(legend, 1), (Texts{"     5.000 -  -1230.060", "     5.0000000 -  -1230.0600000"}));
  EXPECT_EQ(texts_of(legend, 10), (Texts{"-11110.540 - -12345.600", "-11110.5400000 - -12345.6000000"}));
}

TEST(ColorLegend, LeavesEndsThatItDoesNotShowOutOfItsWidth) {
  // The limits make a scale of -113498.875 to 21499.875; of its ends the first and the last stand in no row.
  RecordingLegend legend;
  wafer source = wafer_between(0, 10);
  source.setMaximalMinial(8000, -99999);
  source.scale_colored(legend.boxes, legend.labels);
  EXPECT_EQ(texts_of(legend, 1), (Texts{" >   8000", " >   8000.000"}));
  EXPECT_EQ(texts_of(legend, 10), (Texts{" < -99999", " < -99999.000"}));
}

TEST(ColorLegend, WidensTheTipAloneForALongExponent) {
  RecordingLegend legend;
  wafer_between(-2e150, 1e150).scale_colored(legend.boxes, legend.labels);
  EXPECT_EQ(texts_of(legend, 1), (Texts{" 1.0E+150 -  7.0E+149", " 1.00E+150 -  7.00E+149"}));
  EXPECT_EQ(texts_of(legend, 10), (Texts{"-1.7E+150 - -2.0E+150", "-1.70E+150 - -2.00E+150"}));
}

// ---- Any scale, read back ----

class ColorLegendOfAnyScale : public RandomInput {};

TEST_F(ColorLegendOfAnyScale, ReadsBackToItsDecimals) {
  for (int round = 0; round < rounds(2000); ++round) {
    auto [low, high] = any_scale(random);
    wafer source = wafer_between(low, high);
    const bool limited = chance(random, 0.3);
    if (limited) {
      const double margin = (high - low) / 4;
      source.setMaximalMinial(high + margin, low + margin);
      low = source.minimal - (source.maximal - source.minimal) / 8;
      high = source.maximal + (source.maximal - source.minimal) / 8;
    }
    SCOPED_TRACE(testing::Message() << "scale from " << low << " to " << high);
    RecordingLegend legend;
    source.scale_colored(legend.boxes, legend.labels);

    const auto expect_rows = [&](const auto& text_of_row) {
      std::set<std::size_t> widths;
      for (int row = 1; row <= 10; ++row) {
        const std::string text = text_of_row(row);
        SCOPED_TRACE(text);
        const double step = (high - low) / 10, top = high - (row - 1) * step, bottom = high - row * step;
        const std::vector<ReadNumber> numbers = numbers_of(text);
        for (const ReadNumber& number : numbers) widths.insert(number.width);
        if (numbers.size() == 2) expect_read_back(numbers[0], top);
        expect_read_back(numbers.back(), limited && row == 10 ? top : bottom);
      }
      EXPECT_EQ(widths.size(), 1u) << "fields of one width";
    };
    expect_rows([&](int row) { return texts_of(legend, row).caption; });
    expect_rows([&](int row) { return texts_of(legend, row).tip; });
    if (HasFailure()) return;
  }
}

TEST(ColorLegend, PaintsItsBoxesInTheIntervalColors) {
  RecordingLegend legend;
  wafer source = wafer_between(0, 10);
  source.col1 = 4294967296.0 + 255;
  source.col10 = -1;
  source.scale_colored(legend.boxes, legend.labels);
  EXPECT_EQ(legend.box(1).color, 255u);
  EXPECT_EQ(legend.box(2).color, QBColor(12));
  EXPECT_EQ(legend.box(3).color, QBColor(14));
  EXPECT_EQ(legend.box(4).color, QBColor(10));
  EXPECT_EQ(legend.box(5).color, QBColor(6));
  EXPECT_EQ(legend.box(6).color, QBColor(2));
  EXPECT_EQ(legend.box(7).color, QBColor(3));
  EXPECT_EQ(legend.box(8).color, QBColor(9));
  EXPECT_EQ(legend.box(9).color, QBColor(1));
  EXPECT_EQ(legend.box(10).color, 0xFFFFFFFFu);
}

TEST(ColorLegend, ShowsEqualEndsForEqualValues) {
  RecordingLegend legend;
  wafer_between(5, 5).scale_colored(legend.boxes, legend.labels);
  for (int row = 1; row <= 10; ++row) EXPECT_EQ(caption_of(legend, row), "5.0000 - 5.0000");
}

// ---- Three sigma classes ----

struct SigmaLegend : RecordingLegend {
  explicit SigmaLegend(double SigmaRange) { wafer_between(0, 10).scale_sigma(boxes, labels, SigmaRange); }
};

TEST(SigmaLegend, TellsTheRangeInItsThreeRows) {
  const SigmaLegend legend(1.5);
  EXPECT_EQ(caption_of(legend, 1), ">   1.5");
  EXPECT_EQ(caption_of(legend, 3), "+-  1.5");
  EXPECT_EQ(caption_of(legend, 5), "< - 1.5");
}

TEST(SigmaLegend, GivesTheRangeThreePlacesAtMostAndCutsTheRest) {
  EXPECT_EQ(caption_of(SigmaLegend(3), 1), ">   3.0");
  EXPECT_EQ(caption_of(SigmaLegend(2.29), 1), ">   2.2");
  EXPECT_EQ(caption_of(SigmaLegend(12), 1), ">   12");
  EXPECT_EQ(caption_of(SigmaLegend(0), 1), ">   0.0");
  EXPECT_EQ(caption_of(SigmaLegend(1e6), 1), ">   1.00E+06");
}

TEST(SigmaLegend, ShowsRowsOneThreeAndFiveAlone) {
  const SigmaLegend legend(1);
  const std::set<int> shown = {1, 3, 5};
  for (int row = 1; row <= 10; ++row) {
    EXPECT_EQ(legend.box(row).visible, shown.contains(row)) << row;
    EXPECT_EQ(legend.label(row).visible, shown.contains(row)) << row;
  }
}

TEST(SigmaLegend, PaintsItsBoxesInTheSigmaColors) {
  const SigmaLegend legend(1);
  EXPECT_EQ(legend.box(1).color, QBColor(4));
  EXPECT_EQ(legend.box(3).color, QBColor(2));
  EXPECT_EQ(legend.box(5).color, QBColor(1));
}

}  // namespace
}  // namespace mirolen
