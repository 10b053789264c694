#include "mirolen/dialogs/input_fields.h"

#include <gtest/gtest.h>

#include "mirolen/widgets/Headless.h"

namespace mirolen {
namespace {

class InputFields : public testing::Test {
 protected:
  HeadlessToolkit toolkit;
  UserControl root{toolkit};
  NumberField number{&root};
  AngleField angle{&root};
  AngleField inclination{&root, "90"};
};

TEST_F(InputFields, ANumberIsShownAsPlainText) {
  number.show(2.5);
  EXPECT_EQ(number.Text(), "2.5");
  EXPECT_EQ(number.value(), 2.5);
  number.show(10);
  EXPECT_EQ(number.Text(), "10");
}

TEST_F(InputFields, TypedNumbersAreTaken) {
  number.show(5);
  for (const auto& [text, value] : {std::pair{"1", 1.0},
                                    {"1.", 1.0},
                                    {"1.5", 1.5},
                                    {".5", 0.5},
                                    {"-3", -3.0},
                                    {" 7 ", 7.0},
                                    {"51", 51.0}}) {
    number.Text(text);
    EXPECT_EQ(number.Text(), text);
    EXPECT_EQ(number.value(), value) << text;
  }
}

TEST_F(InputFields, AnEmptyNumberStaysEmptyAndIsZero) {
  number.show(5);
  number.Text("");
  EXPECT_EQ(number.Text(), "");
  EXPECT_EQ(number.value(), 0);
}

TEST_F(InputFields, ABadKeyGoesBackToTheNumberShownFirst) {
  number.show(5);
  number.Text("7");
  for (const char* bad : {"7x", "-", ".", " ", "1e3", "1D3", "1.2.3", "abc", "7,5"}) {
    number.Text(bad);
    EXPECT_EQ(number.Text(), "5") << bad;
    EXPECT_EQ(number.value(), 5) << bad;
  }
}

TEST_F(InputFields, AnUnchangedNumberKeepsItsLastDigits) {
  const double third = 1.0 / 3;
  number.show(third);
  EXPECT_EQ(number.value(), third);
  number.Text("2");
  number.Text(number.Text() + "x");
  EXPECT_EQ(number.value(), third);
}

TEST_F(InputFields, ANumberWithAnExponentCanBeShown) {
  number.show(1e-20);
  EXPECT_EQ(number.Text(), "1E-20");
  number.Text("1E-2");
  EXPECT_EQ(number.Text(), "1E-20");
  EXPECT_EQ(number.value(), 1e-20);
}

TEST_F(InputFields, WholeDegreesAreTaken) {
  int told = 0;
  angle.OnAngle = [&] { ++told; };
  for (const auto& [text, value] : {std::pair{"1", 1}, {"0", 0}, {"359", 359}, {"360", 360}, {"007", 7}}) {
    angle.Text(text);
    EXPECT_EQ(angle.Text(), text);
    EXPECT_EQ(angle.value(), value);
  }
  EXPECT_EQ(told, 5);
}

TEST_F(InputFields, OtherAnglesFallBackToTheLastGoodOne) {
  angle.show(45);
  for (const char* bad :
       {"361", "1000", "-1", "-0.5", "4.5", "45.", "1e1", "x", "-", " ", "99999999999999999"}) {
    angle.Text(bad);
    EXPECT_EQ(angle.Text(), "45") << bad;
    EXPECT_EQ(angle.value(), 45) << bad;
  }
}

TEST_F(InputFields, WithoutAGoodAngleEachFieldHasItsOwn) {
  angle.Text("x");
  EXPECT_EQ(angle.Text(), "0");
  EXPECT_EQ(angle.value(), 0);
  inclination.Text("x");
  EXPECT_EQ(inclination.Text(), "90");
  EXPECT_EQ(inclination.value(), 90);
}

TEST_F(InputFields, AnEmptiedAngleStaysEmptyAndIsZero) {
  angle.show(45);
  angle.Text("");
  EXPECT_EQ(angle.Text(), "");
  EXPECT_EQ(angle.value(), 0);
  angle.Text("x");
  EXPECT_EQ(angle.Text(), "45");
}

TEST_F(InputFields, AnglesTellTheirRange) { EXPECT_EQ(angle.ToolTipText.get(), "degrees, 0 to 360"); }

}  // namespace
}  // namespace mirolen
