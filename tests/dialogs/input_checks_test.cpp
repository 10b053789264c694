#include "mirolen/dialogs/input_checks.h"

#include <gtest/gtest.h>

#include "support/CommaInForce.h"

namespace mirolen {
namespace {

const char* const words[] = {"",     " ",   "-",  "+",     ".",   "-.",  "abc",  "5a",    "a5",    "--5",
                             "+-5",  "5 5", "e",  "e5",    "5e",  "5d",  "5e+",  "1e1e",  "1.2.3", "5-",
                             "&H10", "(5)", "$5", "1 000", "inf", "nan", "0x10", "1e5.5", "5%",    "\n5x"};

// ---- In range, or not to be judged ----

TEST(InRangeOrOpen, TheLimitsThemselvesAreRefused) {
  EXPECT_FALSE(IsInRangeOrOpen("-1", -1, 360));
  EXPECT_FALSE(IsInRangeOrOpen("360", -1, 360));
  EXPECT_FALSE(IsInRangeOrOpen("360.0", -1, 360));
}

TEST(InRangeOrOpen, OnlyNumbersBetweenThemPass) {
  EXPECT_TRUE(IsInRangeOrOpen("0", -1, 360));
  EXPECT_TRUE(IsInRangeOrOpen("-0.999", -1, 360));
  EXPECT_TRUE(IsInRangeOrOpen("359", -1, 360));
  EXPECT_TRUE(IsInRangeOrOpen("359.999", -1, 360));
  EXPECT_FALSE(IsInRangeOrOpen("-2", -1, 360));
  EXPECT_FALSE(IsInRangeOrOpen("361", -1, 360));
  EXPECT_FALSE(IsInRangeOrOpen("360.001", -1, 360));
}

TEST(InRangeOrOpen, WhatIsNoNumberIsNotItsBusiness) {
  for (const char* word : words) EXPECT_TRUE(IsInRangeOrOpen(word, -1, 0)) << '"' << word << '"';
}

TEST(InRangeOrOpen, ReadsEveryFormOfANumber) {
  for (const char* ten : {"10", "+10", " 10", "10 ", "  10  ", "10.", "10.0", "1e1", "1E1", "1d1", "1D1",
                          "1e+1", "100e-1", "010", ".1e2"}) {
    EXPECT_TRUE(IsInRangeOrOpen(ten, 9.5, 10.5)) << ten;
    EXPECT_FALSE(IsInRangeOrOpen(ten, 10, 20)) << ten;
    EXPECT_FALSE(IsInRangeOrOpen(ten, 0, 10)) << ten;
  }
  EXPECT_FALSE(IsInRangeOrOpen("-.5", -0.5, 1));
  EXPECT_TRUE(IsInRangeOrOpen("-.5", -0.6, 1));
}

TEST(InRangeOrOpen, AnEmptyIntervalRefusesEveryNumber) {
  EXPECT_FALSE(IsInRangeOrOpen("5", 5, 5));
  EXPECT_FALSE(IsInRangeOrOpen("5", 6, 4));
  EXPECT_TRUE(IsInRangeOrOpen("", 6, 4));
}

// ---- A plain whole number ----

TEST(PlainInteger, AnEmptyTextPasses) { EXPECT_TRUE(IsPlainInteger("")); }

TEST(PlainInteger, PassesWithSignAndBlanks) {
  for (const char* text : {"0", "7", "360", "-7", "+7", " 7", "7 ", "007", "123456789012345678901234567890"})
    EXPECT_TRUE(IsPlainInteger(text)) << text;
}

TEST(PlainInteger, TextThatIsNoNumberIsRefused) {
  for (const char* word : words) EXPECT_EQ(IsPlainInteger(word), *word == 0) << '"' << word << '"';
}

TEST(PlainInteger, NumbersWithExponentOrSeparatorAreRefused) {
  for (const char* text : {"1e3", "1E3", "1d3", "1D3", "1.5", "1.", ".5", "1.0", "1,5", "1,000", "1e-3"})
    EXPECT_FALSE(IsPlainInteger(text)) << text;
}

// ---- A plain decimal number ----

TEST(PlainDecimal, AnEmptyTextIsRefused) {
  EXPECT_FALSE(IsPlainDecimal("", true));
  EXPECT_FALSE(IsPlainDecimal("", false));
}

TEST(PlainDecimal, ALoneMinusIsRefusedWithAndWithoutTheFlag) {
  EXPECT_FALSE(IsPlainDecimal("-", true));
  EXPECT_FALSE(IsPlainDecimal("-", false));
}

TEST(PlainDecimal, TextThatIsNoNumberIsRefused) {
  for (const char* word : words) {
    EXPECT_FALSE(IsPlainDecimal(word, true)) << '"' << word << '"';
    EXPECT_FALSE(IsPlainDecimal(word, false)) << '"' << word << '"';
  }
}

TEST(PlainDecimal, AnExponentIsRefused) {
  for (const char* text : {"1e3", "1E3", "1d3", "1D3", "1.5e-3"}) {
    EXPECT_FALSE(IsPlainDecimal(text, true)) << text;
    EXPECT_FALSE(IsPlainDecimal(text, false)) << text;
  }
}

TEST(PlainDecimal, NumbersWithAndWithoutSeparatorPass) {
  for (const char* text : {"0", "7", "1.5", "1.", ".5", "-1.5", "-7", "+7", " 7 "}) {
    EXPECT_TRUE(IsPlainDecimal(text, true)) << text;
    EXPECT_TRUE(IsPlainDecimal(text, false)) << text;
  }
}

// ---- A field of a form that is confirmed ----

TEST(NumberFieldCheck, EachFaultHasItsWords) {
  std::string message;
  EXPECT_FALSE(CheckNumberField("", 0, 10, message, "Label "));
  EXPECT_EQ(message, "Label can not be empty\n");
  message.clear();
  EXPECT_FALSE(CheckNumberField("abc", 0, 10, message, "Label "));
  EXPECT_EQ(message, "Label must be numeric\n");
  message.clear();
  EXPECT_FALSE(CheckNumberField("11", 0, 10, message, "Label "));
  EXPECT_EQ(message, "Label not valid\n");
}

TEST(NumberFieldCheck, LinesAddUp) {
  std::string message = "before\n";
  EXPECT_FALSE(CheckNumberField("", 0, 1, message, "A "));
  EXPECT_TRUE(CheckNumberField("0.5", 0, 1, message, "B "));
  EXPECT_FALSE(CheckNumberField("2", 0, 1, message, "C"));
  EXPECT_EQ(message, "before\nA can not be empty\nCnot valid\n");
}

TEST(NumberFieldCheck, BothLimitsAreExclusive) {
  std::string message;
  for (const char* text : {"-1", "0", "10", "10.0", "1e1", "11", "0.0"})
    EXPECT_FALSE(CheckNumberField(text, 0, 10, message, "")) << text;
  message.clear();
  for (const char* text : {"0.0001", "9.9999", "1e0", " 5 "})
    EXPECT_TRUE(CheckNumberField(text, 0, 10, message, "")) << text;
  EXPECT_EQ(message, "");
}

TEST(NumberFieldCheck, NothingLiesInAnEmptyInterval) {
  std::string message;
  EXPECT_FALSE(CheckNumberField("5", 5, 5, message, ""));
  EXPECT_FALSE(CheckNumberField("5", 6, 4, message, ""));
}

// ---- Decimal comma ----

class InputWithDecimalComma : CommaInForce, public testing::Test {};

TEST_F(InputWithDecimalComma, TheCommaSeparates) {
  EXPECT_FALSE(IsInRangeOrOpen("1,5", 0, 1.5));
  EXPECT_TRUE(IsInRangeOrOpen("1,5", 1.4, 1.6));
  EXPECT_FALSE(IsInRangeOrOpen("1,5e1", 0, 15));
  EXPECT_FALSE(IsInRangeOrOpen(",5", 0, 0.5));
  EXPECT_FALSE(IsInRangeOrOpen("5,", 0, 5));
}

TEST_F(InputWithDecimalComma, ThePointMakesNoNumber) {
  EXPECT_TRUE(IsInRangeOrOpen("1.5", 5, 6));
  EXPECT_TRUE(IsInRangeOrOpen("1.000", 5, 6));
}

TEST_F(InputWithDecimalComma, ADecimalNumberHasTheComma) {
  EXPECT_TRUE(IsPlainDecimal("1,5", false));
  EXPECT_FALSE(IsPlainDecimal("1.5", false));
  std::string message;
  EXPECT_TRUE(CheckNumberField("1,5", 1, 2, message, "L "));
  EXPECT_FALSE(CheckNumberField("1.5", 1, 2, message, "L "));
  EXPECT_EQ(message, "L must be numeric\n");
}

TEST_F(InputWithDecimalComma, APlainWholeNumberHasNeither) {
  EXPECT_FALSE(IsPlainInteger("1,5"));
  EXPECT_FALSE(IsPlainInteger("1."));
  EXPECT_FALSE(IsPlainInteger("1.5"));
  EXPECT_TRUE(IsPlainInteger("15"));
}

TEST(InputWithDecimalPoint, TheCommaMakesNoNumber) {
  EXPECT_TRUE(IsInRangeOrOpen("1,5", 5, 6));
  EXPECT_FALSE(IsInRangeOrOpen("1.5", 5, 6));
}

}  // namespace
}  // namespace mirolen
