#include "mirolen/render/StringFormat.h"

#include <gtest/gtest.h>

#include <clocale>
#include <cmath>
#include <cstdio>
#include <limits>
#include <sstream>

#include "mirolen/render/RecordingSurface.h"
#include "support/RecordingCompanions.h"
#include "support/site_support.h"

namespace mirolen {
namespace {

using StringFormat::format_number;
using StringFormat::FormatField;
using StringFormat::plain_text;

struct Width {
  int places = 0;
  bool useExp = false;
  friend bool operator==(const Width&, const Width&) = default;
};

void PrintTo(const Width& width, std::ostream* out) { *out << width.places << (width.useExp ? " exp" : ""); }

/// The exponent flag starts as the opposite of what comes back, so that it must have been written.
template <class Function>
Width flagged(Function function) {
  bool once = false, again = true;
  const int places = function(once);
  EXPECT_EQ(function(again), places);
  EXPECT_EQ(once, again);
  return {places, once};
}

Width integer_width(double value, bool hasSign) {
  return flagged([&](bool& useExp) { return StringFormat::IntegerWidth(value, hasSign, useExp); });
}

Width decimals_for(double value, int maxWidth) {
  return flagged([&](bool& useExp) {
    return StringFormat::DecimalsFor(value, static_cast<std::int16_t>(maxWidth), useExp);
  });
}

// ---- Formats ----

TEST(FormatNumber, ShowsZeroDigitsAlwaysAndOthersWhereTheyAreNotZero) {
  EXPECT_EQ(format_number(2, "0.0#"), "2.0");
  EXPECT_EQ(format_number(2.25, "0.0#"), "2.25");
  EXPECT_EQ(format_number(7, "000.00"), "007.00");
  EXPECT_EQ(format_number(0.25, "#.##"), ".25");
  EXPECT_EQ(format_number(0.25, "0.##"), "0.25");
  EXPECT_EQ(format_number(1234.5, "0.0"), "1234.5");
  EXPECT_EQ(format_number(-1234.5, "#########0.0#########"), "-1234.5");
}

TEST(FormatNumber, ShowsTheSeparatorAlsoWithoutDigitsBehindIt) {
  EXPECT_EQ(format_number(12, "0.##"), "12.");
  EXPECT_EQ(format_number(200000, "0.###E+#0"), "2.E+5");
}

TEST(FormatNumber, ShowsNoSeparatorForAFormatWithoutOne) {
  EXPECT_EQ(format_number(12, "0"), "12");
  EXPECT_EQ(format_number(2.5, "0"), "3");
  EXPECT_EQ(format_number(0, "000"), "000");
  EXPECT_EQ(format_number(-7, "0000"), "-0007");
  EXPECT_EQ(format_number(0.25, "#"), "");
  EXPECT_EQ(format_number(123456, "0E+0"), "1E+5");
}

TEST(FormatNumber, TakesTiesAwayFromZero) {
  EXPECT_EQ(format_number(0.125, "0.00"), "0.13");
  EXPECT_EQ(format_number(-0.125, "0.00"), "-0.13");
  EXPECT_EQ(format_number(0.375, "0.00"), "0.38");
  EXPECT_EQ(format_number(2.5, "0."), "3.");
  EXPECT_EQ(format_number(0.5, "0."), "1.");
}

TEST(FormatNumber, WorksOnFifteenSignificantDigits) {
  EXPECT_EQ(format_number(1.005, "0.00"), "1.01");  // the Double lies a little below the tie
  EXPECT_EQ(format_number(0.1 + 0.2, "0.0################"), "0.3");
  EXPECT_EQ(format_number(2.0 / 3, "0.0#################"), "0.666666666666667");
  EXPECT_EQ(format_number(1234567890123456789.0, "0."), "1234567890123460000.");
}

TEST(FormatNumber, TakesATieBehindTheFifteenthDigitAwayFromZero) {
  EXPECT_EQ(format_number(123456789012344.5, "0.0"), "123456789012345.0");
  EXPECT_EQ(format_number(-123456789012344.5, "0.0"), "-123456789012345.0");
  EXPECT_EQ(format_number(123456789012345.5, "0.0"), "123456789012346.0");
}

TEST(FormatNumber, CarriesIntoANewDigit) {
  EXPECT_EQ(format_number(9.996, "0.00"), "10.00");
  EXPECT_EQ(format_number(0.9996, "0.###E+#0"), "9.996E-1");
  EXPECT_EQ(format_number(99996, "0.###E+#0"), "1.E+5");
}

TEST(FormatNumber, ShowsNoMinusForANegativeNumberThatShowsAsZero) {
  EXPECT_EQ(format_number(-0.004, "0.00"), "0.00");
  EXPECT_EQ(format_number(-0.005, "0.00"), "-0.01");
  EXPECT_EQ(format_number(-0.0, "0.0#"), "0.0");
  EXPECT_EQ(format_number(-1e-20, "0.0######"), "0.0");
}

TEST(FormatNumber, ShowsExponentsWithSignAndAsManyDigitsAsNeeded) {
  EXPECT_EQ(format_number(123456, "0.###E+#0"), "1.235E+5");
  EXPECT_EQ(format_number(-1e-8, "0.###E+#0"), "-1.E-8");
  EXPECT_EQ(format_number(1.5e20, "0.###E+#0"), "1.5E+20");
  EXPECT_EQ(format_number(2e150, "0.###E+#0"), "2.E+150");
  EXPECT_EQ(format_number(12345, "Scientific"), "1.23E+04");
  EXPECT_EQ(format_number(0, "Scientific"), "0.00E+00");
  EXPECT_EQ(format_number(-0.00125, "Scientific"), "-1.25E-03");
  EXPECT_EQ(format_number(1e-150, "Scientific"), "1.00E-150");
}

// ---- Widths ----

TEST(IntegerWidth, CountsAPlaceForTheSign) {
  EXPECT_EQ(integer_width(5, false), (Width{2, false}));
  EXPECT_EQ(integer_width(11, false), (Width{3, false}));
  EXPECT_EQ(integer_width(-11, false), (Width{3, false}));
  EXPECT_EQ(integer_width(100000, false), (Width{7, false}));
}

TEST(IntegerWidth, AddsAPlaceForASignThatIsAskedFor) {
  EXPECT_EQ(integer_width(5, true), (Width{3, false}));
  EXPECT_EQ(integer_width(-5, true), (Width{3, false}));
  EXPECT_EQ(integer_width(200000, true), (Width{2, true}));
}

TEST(IntegerWidth, RoundsHalfToEven) {
  EXPECT_EQ(integer_width(9.5, false), (Width{3, false}));
  EXPECT_EQ(integer_width(10.5, false), (Width{3, false}));
  EXPECT_EQ(integer_width(98.5, false), (Width{3, false}));
  EXPECT_EQ(integer_width(99.5, false), (Width{4, false}));
  EXPECT_EQ(integer_width(0.25, false), (Width{2, false}));
}

TEST(IntegerWidth, TurnsToTheExponentOutsideItsRange) {
  EXPECT_EQ(integer_width(0.0001, false), (Width{2, false}));
  EXPECT_EQ(integer_width(0.00009, false), (Width{1, true}));
  EXPECT_EQ(integer_width(-0.00009, false), (Width{1, true}));
  EXPECT_EQ(integer_width(0, false), (Width{1, true}));
  EXPECT_EQ(integer_width(100000.5, false), (Width{1, true}));
  EXPECT_EQ(integer_width(-200000, false), (Width{1, true}));
}

TEST(DecimalsFor, GivesWhatTheWholeNumberLeavesOfTheField) {
  EXPECT_EQ(decimals_for(11, 6), (Width{3, false}));
  EXPECT_EQ(decimals_for(5, 6), (Width{4, false}));
  EXPECT_EQ(decimals_for(0, 6), (Width{4, false}));
  EXPECT_EQ(decimals_for(99.5, 6), (Width{2, false}));
  EXPECT_EQ(decimals_for(100000, 6), (Width{0, false}));
  EXPECT_EQ(decimals_for(12345, 6), (Width{0, false}));
  EXPECT_EQ(decimals_for(1234, 6), (Width{1, false}));
}

TEST(DecimalsFor, TakesAPlaceOffTheFieldForANegativeNumber) {
  EXPECT_EQ(decimals_for(-11, 6), (Width{2, false}));
  EXPECT_EQ(decimals_for(-5, 6), (Width{3, false}));
}

TEST(DecimalsFor, CountsTheDecimalsOfTheNumberItselfWithoutAField) {
  EXPECT_EQ(decimals_for(0.25, 0), (Width{2, false}));
  EXPECT_EQ(decimals_for(12.25, 0), (Width{2, false}));
  EXPECT_EQ(decimals_for(2.75, 0), (Width{2, false}));  // rounds up: the rest is -.25
  EXPECT_EQ(decimals_for(-0.125, 1), (Width{3, false}));
  EXPECT_EQ(decimals_for(7, 0), (Width{0, false}));
  EXPECT_EQ(decimals_for(-7, 1), (Width{0, false}));
  EXPECT_EQ(decimals_for(-7, 0), (Width{0, false}));
}

TEST(DecimalsFor, KeepsATinyNegativeNumberPlainAndTurnsAPositiveOneToTheExponent) {
  EXPECT_EQ(decimals_for(-0.00005, 6), (Width{3, false}));
  EXPECT_EQ(decimals_for(0.00005, 6), (Width{2, true}));
  EXPECT_EQ(decimals_for(0.0001, 6), (Width{4, false}));
}

TEST(DecimalsFor, LeavesSevenPlacesOfAnExponentFieldToTheRest) {
  EXPECT_EQ(decimals_for(200000, 6), (Width{2, true}));
  EXPECT_EQ(decimals_for(200000, 8), (Width{2, true}));
  EXPECT_EQ(decimals_for(200000, 9), (Width{2, true}));
  EXPECT_EQ(decimals_for(200000, 10), (Width{3, true}));
  EXPECT_EQ(decimals_for(-200000, 10), (Width{2, true}));
  EXPECT_EQ(decimals_for(-200000, 11), (Width{3, true}));
}

// ---- Fields ----

TEST(FormatField, ShowsElevenInAFieldOfSixWithoutCuttingIt) {
  EXPECT_EQ(FormatField(11, 6, static_cast<std::int16_t>(decimals_for(11, 6).places), false), "11.000");
}

TEST(FormatField, PadsDecimalsWithZerosAndCutsThemWithoutRounding) {
  EXPECT_EQ(FormatField(1.2, 0, 4, false), "1.2000");
  EXPECT_EQ(FormatField(1.2, 6, 4, false), "1.2000");
  EXPECT_EQ(FormatField(1.239, 0, 2, false), "1.23");
  EXPECT_EQ(FormatField(-1.239, 0, 2, false), "-1.23");
  EXPECT_EQ(FormatField(1.999999999, 0, 3, false), "1.999");
}

TEST(FormatField, RoundsOnlyBehindTheTenDecimalsOfTheLongFormat) {
  EXPECT_EQ(FormatField(1.9999999999, 0, 2, false), "1.99");
  EXPECT_EQ(FormatField(1.99999999999, 0, 2, false), "2.00");
}

TEST(FormatField, KeepsWhatStandsBeforeTheSeparatorWithoutDecimals) {
  EXPECT_EQ(FormatField(12.75, 0, 0, false), "12");
  EXPECT_EQ(FormatField(12.75, 0, -1, false), "12");
  EXPECT_EQ(FormatField(0.75, 3, 0, false), "  0");
  EXPECT_EQ(FormatField(123456, 0, 0, true), "1E+05");
}

TEST(FormatField, AlignsToTheRightAndCutsOnTheLeft) {
  EXPECT_EQ(FormatField(123.456, 8, 2, false), "  123.45");
  EXPECT_EQ(FormatField(123.456, 4, 2, false), "3.45");
  EXPECT_EQ(FormatField(-7, 6, 1, false), "  -7.0");
}

TEST(FormatField, PutsTheExponentBehindTheDecimals) {
  EXPECT_EQ(FormatField(200000, 9, 1, true), "  2.0E+05");
  EXPECT_EQ(FormatField(123456, 0, 1, true), "1.2E+05");
  EXPECT_EQ(FormatField(123456, 11, 4, true), " 1.2300E+05");
  EXPECT_EQ(FormatField(-0.00012, 10, 2, true), " -1.20E-04");
}

TEST(FormatField, KeepsThreeDigitsOfAnExponent) {
  EXPECT_EQ(FormatField(1e150, 0, 1, true), "1.0E+150");
  EXPECT_EQ(FormatField(1e150, 12, 4, true), " 1.0000E+150");
}

TEST(FormatField, PadsNothingWhereWidthAndDecimalsComeToLessThanZero) {
  EXPECT_EQ(FormatField(1.5, -5, 2, false), "1.5");
  EXPECT_EQ(FormatField(1.5, -3, 1, false), "1.5");
  EXPECT_EQ(FormatField(1.5, 3, -7, false), "1");
}

TEST(FieldWidth, IsThatOfTheUncutText) {
  EXPECT_EQ(StringFormat::FieldWidth(5, 3, false), 5);
  EXPECT_EQ(StringFormat::FieldWidth(-12345.6, 3, false), 10);
  EXPECT_EQ(StringFormat::FieldWidth(-12345.6, 0, false), 6);
  EXPECT_EQ(StringFormat::FieldWidth(-1e150, 2, true), 10);
  EXPECT_EQ(FormatField(-12345.6, 10, 3, false), "-12345.600");
}

TEST(RoundedTo, RoundsTiesAwayFromZero) {
  EXPECT_EQ(StringFormat::rounded_to(2.5, 0), 3);
  EXPECT_EQ(StringFormat::rounded_to(-0.125, 2), -0.13);
  EXPECT_EQ(StringFormat::rounded_to(1234.56789, 4), 1234.5679);
}

TEST(RoundedTo, RoundsToAWholeNumberForFewerDecimalsThanNone) {
  constexpr int lowest = std::numeric_limits<int>::min();
  for (const int decimals : {-1, -1000, lowest}) EXPECT_EQ(StringFormat::rounded_to(15.75, decimals), 16);
}

TEST(RoundedTo, KeepsItsFifteenDigitsForMoreDecimalsThanThereAre) {
  constexpr int highest = std::numeric_limits<int>::max();
  for (const int decimals : {400, 1'000'000, highest}) {
    EXPECT_EQ(StringFormat::rounded_to(15.75, decimals), 15.75);
    EXPECT_EQ(StringFormat::rounded_to(-1.5e-300, decimals), -1.5e-300);
    EXPECT_EQ(StringFormat::rounded_to(1e300, decimals), 1e300);
  }
}

// ---- Captions and tool tips ----

TEST(FormatLbl, ChoosesItsFormatBySize) {
  const wafer any;
  EXPECT_EQ(any.FormatLbl(0), "0.0");
  EXPECT_EQ(any.FormatLbl(0.5), "0.5");
  EXPECT_EQ(any.FormatLbl(0.123456789), "0.1234568");
  EXPECT_EQ(any.FormatLbl(1.123456), "1.1235");
  EXPECT_EQ(any.FormatLbl(9999.12345), "9999.1235");
  EXPECT_EQ(any.FormatLbl(-9999.12345), "-9999.1235");
  EXPECT_EQ(any.FormatLbl(10000.12345), "10000.12");
}

TEST(FormatLbl, StaysPlainAtItsLimitsAndTurnsToTheExponentBehindThem) {
  const wafer any;
  EXPECT_EQ(any.FormatLbl(10000), "10000.0");
  EXPECT_EQ(any.FormatLbl(100000), "100000.0");
  EXPECT_EQ(any.FormatLbl(99999.875), "99999.88");
  EXPECT_EQ(any.FormatLbl(200000), "2.E+5");
  EXPECT_EQ(any.FormatLbl(123456), "1.235E+5");
  EXPECT_EQ(any.FormatLbl(1e-7), "0.0000001");
  EXPECT_EQ(any.FormatLbl(1e-8), "1.E-8");
  EXPECT_EQ(any.FormatLbl(-2.5e-8), "-2.5E-8");
}

TEST(PlainText, ShowsFifteenDigitsWithoutTrailingZeros) {
  EXPECT_EQ(plain_text(0), "0");
  EXPECT_EQ(plain_text(-0.0), "0");
  EXPECT_EQ(plain_text(100), "100");
  EXPECT_EQ(plain_text(-2.5), "-2.5");
  EXPECT_EQ(plain_text(0.1 + 0.2), "0.3");
  EXPECT_EQ(plain_text(1.23456789012345678), "1.23456789012346");
  EXPECT_EQ(plain_text(123456789012345.0), "123456789012345");
}

TEST(PlainText, TurnsToTheExponentFromATrillionThousandsUp) {
  EXPECT_EQ(plain_text(999999999999999.0), "999999999999999");
  EXPECT_EQ(plain_text(1e15), "1E+15");
  EXPECT_EQ(plain_text(-1.5e20), "-1.5E+20");
}

TEST(PlainText, TurnsToTheExponentForMoreThanFifteenPlaces) {
  EXPECT_EQ(plain_text(0.00001), "0.00001");
  EXPECT_EQ(plain_text(1e-15), "0.000000000000001");
  EXPECT_EQ(plain_text(1e-16), "1E-16");
  EXPECT_EQ(plain_text(1.5e-15), "1.5E-15");
}

// ---- Random numbers against arithmetic on decimal digits ----

/// The fifteen significant digits of a number that is not 0, and the power of ten of the first.
struct Decimal {
  std::string digits;
  int power = 0;
};

void add_one_at_the_end(std::string& digits) {
  for (std::size_t place = digits.size(); place-- > 0;) {
    if (++digits[place] <= '9') return;
    digits[place] = '0';
  }
  digits.insert(0, 1, '1');
}

/// Rounded from the exact digits of the number, ties up.
Decimal decimal_of(double value) {
  char text[120];
  std::snprintf(text, sizeof text, "%.80e", std::abs(value));
  Decimal number{text[0] + std::string(text + 2, 14), std::atoi(text + 83)};
  if (text[16] >= '5') add_one_at_the_end(number.digits);
  if (number.digits.size() > 15) ++number.power;
  number.digits.resize(15);
  return number;
}

/// A positive number with a fixed number of places.
std::string plain_fixed(const Decimal& number, std::size_t places) {
  std::string digits = std::string(static_cast<std::size_t>(std::max(0, -number.power)), '0') + number.digits;
  const std::size_t whole = static_cast<std::size_t>(std::max(0, number.power)) + 1;
  digits.resize(std::max(digits.size(), whole + places + 1), '0');
  const bool up = digits[whole + places] >= '5';
  digits.resize(whole + places);
  if (up) add_one_at_the_end(digits);
  return digits.insert(digits.size() - places, 1, '.');
}

bool shows_zero(const std::string& text) { return text.find_first_of("123456789") == std::string::npos; }

class FormatOfRandomNumber : public RandomInput {
 protected:
  double any_number() {
    const double size = std::pow(10.0, between(random, -8, 12));
    const double number = between(random, -1.0, 1.0) * size;
    return chance(random, 0.5) ? number : std::nearbyint(number * 1000) / 1000;
  }
};

TEST_F(FormatOfRandomNumber, EqualsDecimalArithmetic) {
  const std::vector<std::pair<std::string, std::size_t>> formats = {{"0.0", 1}, {"0.00", 2}, {"0.0000", 4}};
  for (int round = 0; round < 20000 && !HasFailure(); ++round) {
    const double number = any_number();
    const auto& [format, places] = one_of(random, formats);
    std::string expected =
        number == 0 ? "0." + std::string(places, '0') : plain_fixed(decimal_of(number), places);
    if (number < 0 && !shows_zero(expected)) expected.insert(0, 1, '-');
    EXPECT_EQ(format_number(number, format), expected) << text_of(number);
  }
}

TEST_F(FormatOfRandomNumber, ReadsBackFromPlainTextToFifteenDigits) {
  for (int round = 0; round < 20000 && !HasFailure(); ++round) {
    const double number = any_number();
    const double back = std::strtod(plain_text(number).c_str(), nullptr);
    EXPECT_LE(std::abs(back - number), std::abs(number) * 1e-14) << text_of(number);
  }
}

// ---- Decimal comma ----

/// A locale with a decimal comma for one test; afterwards everything is as before.
class DecimalComma : public testing::Test {
 protected:
  void SetUp() override {
    ASSERT_NE(std::setlocale(LC_ALL, "de_DE.UTF-8"), nullptr)
        << "needs the locale de_DE.UTF-8: localedef -i de_DE -f UTF-8 de_DE.UTF-8";
    const wafer made_in_this_locale;
  }
  void TearDown() override {
    std::setlocale(LC_ALL, "C");
    const wafer made_as_before;
  }
};

TEST_F(DecimalComma, StandsInEveryText) {
  const wafer any;
  EXPECT_EQ(decimal_separator(), ",");
  EXPECT_EQ(any.FormatLbl(0.5), "0,5");
  EXPECT_EQ(any.FormatLbl(0), "0,0");
  EXPECT_EQ(any.FormatLbl(200000), "2,E+5");
  EXPECT_EQ(FormatField(11.25, 6, 3, false), "11,250");
  EXPECT_EQ(FormatField(200000, 9, 1, true), "  2,0E+05");
  EXPECT_EQ(FormatField(12.75, 0, 0, false), "12");
  EXPECT_EQ(plain_text(2.5), "2,5");
}

TEST_F(DecimalComma, LeavesWidthsAsTheyAre) {
  EXPECT_EQ(decimals_for(12.25, 0), (Width{2, false}));
  EXPECT_EQ(decimals_for(11, 6), (Width{3, false}));
  EXPECT_EQ(integer_width(11.5, false), (Width{3, false}));
}

TEST_F(DecimalComma, StaysOutOfARecordingsJson) {
  RecordingSurface surface;
  surface.line({}, {1.5, 2.25}, {3.125, 4});
  std::ostringstream json;
  write_json_lines(surface.recording(), json);
  EXPECT_NE(json.str().find("1.5"), std::string::npos) << json.str();
  EXPECT_EQ(json.str().find("1,5"), std::string::npos) << json.str();
}

TEST(DecimalSeparator, IsThatOfTheLocaleInForceWhenTheWaferWasMade) {
  std::setlocale(LC_ALL, "C");
  const wafer any;
  EXPECT_EQ(decimal_separator(), ".");
  EXPECT_EQ(any.FormatLbl(0.5), "0.5");
}

}  // namespace
}  // namespace mirolen
