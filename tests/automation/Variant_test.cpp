#include "mirolen/automation/Variant.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <set>

namespace mirolen::automation {
namespace {

constexpr double infinity = std::numeric_limits<double>::infinity();
constexpr double not_a_number = std::numeric_limits<double>::quiet_NaN();

std::int16_t int16(double value) { return std::get<std::int16_t>(converted(value, Type::int16)); }
std::int32_t int32(double value) { return std::get<std::int32_t>(converted(value, Type::int32)); }
double real(const Variant& value) { return std::get<double>(converted(value, Type::real)); }
bool boolean(const Variant& value) { return std::get<bool>(converted(value, Type::boolean)); }
std::string text(const Variant& value) { return std::get<std::string>(converted(value, Type::text)); }

TEST(Variant, TellsItsType) {
  EXPECT_EQ(type_of({}), Type::none);
  EXPECT_EQ(type_of(true), Type::boolean);
  EXPECT_EQ(type_of(std::int16_t{1}), Type::int16);
  EXPECT_EQ(type_of(std::int32_t{1}), Type::int32);
  EXPECT_EQ(type_of(1.0), Type::real);
  EXPECT_EQ(type_of(std::string("1")), Type::text);
  EXPECT_EQ(type_of(Array(1, 3)), Type::array);
  EXPECT_EQ(type_of(ObjectReference{}), Type::object);
}

TEST(Variant, EveryTypeHasANameOfItsOwn) {
  std::set<std::string> names;
  for (int type = 0; type <= static_cast<int>(Type::object); ++type)
    names.insert(name_of(static_cast<Type>(type)));
  EXPECT_EQ(names.size(), 8u);
}

TEST(Conversion, RoundsHalfToEven) {
  EXPECT_EQ(int16(0.5), 0);
  EXPECT_EQ(int16(1.5), 2);
  EXPECT_EQ(int16(2.5), 2);
  EXPECT_EQ(int16(-0.5), 0);
  EXPECT_EQ(int16(-1.5), -2);
  EXPECT_EQ(int16(-2.5), -2);
  EXPECT_EQ(int32(100000.5), 100000);
  EXPECT_EQ(int32(100001.5), 100002);
  EXPECT_EQ(int16(2.4999), 2);
  EXPECT_EQ(int16(2.5001), 3);
}

TEST(Conversion, TakesTheWholeRangeOfAnInteger) {
  EXPECT_EQ(int16(32767.4), 32767);
  EXPECT_EQ(int16(-32768.5), -32768);
  EXPECT_EQ(int32(2147483647.0), 2147483647);
  EXPECT_EQ(int32(-2147483648.0), std::numeric_limits<std::int32_t>::min());
}

TEST(Conversion, OverflowsBeyondTheRange) {
  for (const double value : {32767.5, 32768.0, -32769.0, 1e300, infinity, -infinity, not_a_number})
    EXPECT_THROW(int16(value), OverflowError) << value;
  for (const double value : {2147483647.5, 2147483648.0, -2147483649.0, 1e300, infinity, not_a_number})
    EXPECT_THROW(int32(value), OverflowError) << value;
  EXPECT_THROW(converted(std::int32_t{40000}, Type::int16), OverflowError);
}

TEST(Conversion, TrueIsMinusOne) {
  EXPECT_EQ(converted(true, Type::int16), Variant(std::int16_t{-1}));
  EXPECT_EQ(converted(true, Type::int32), Variant(std::int32_t{-1}));
  EXPECT_EQ(converted(true, Type::real), Variant(-1.0));
  EXPECT_EQ(converted(false, Type::int16), Variant(std::int16_t{0}));
}

TEST(Conversion, AnyNumberButZeroIsTrue) {
  EXPECT_TRUE(boolean(std::int16_t{1}));
  EXPECT_TRUE(boolean(std::int32_t{-1}));
  EXPECT_TRUE(boolean(0.001));
  EXPECT_TRUE(boolean(std::string("2")));
  EXPECT_FALSE(boolean(std::int16_t{0}));
  EXPECT_FALSE(boolean(0.0));
  EXPECT_FALSE(boolean(-0.0));
  EXPECT_FALSE(boolean(std::string("0")));
}

TEST(Conversion, WidensIntegers) {
  EXPECT_EQ(converted(std::int16_t{-5}, Type::int32), Variant(std::int32_t{-5}));
  EXPECT_EQ(real(std::int16_t{-5}), -5);
  EXPECT_EQ(real(std::int32_t{2147483647}), 2147483647.0);
}

TEST(Conversion, ReadsNumbersInTexts) {
  EXPECT_EQ(real(std::string("2.5")), 2.5);
  EXPECT_EQ(real(std::string("-1e3")), -1000);
  EXPECT_EQ(converted(std::string("2.5"), Type::int16), Variant(std::int16_t{2}));
  EXPECT_EQ(converted(std::string("-3.5"), Type::int32), Variant(std::int32_t{-4}));
  EXPECT_THROW(converted(std::string("40000"), Type::int16), OverflowError);
}

TEST(Conversion, RefusesTextsThatAreNoNumbers) {
  for (const char* word : {"", "five", "2,5", "1 2", "1.2.3", "--1", "0x10", "5mm", "-", "."})
    for (const Type type : {Type::real, Type::int16, Type::int32, Type::boolean})
      EXPECT_THROW(converted(std::string(word), type), InvalidArgument) << word;
}

TEST(Conversion, WordsForWhatIsNotFiniteAreNoNumbers) {
  for (const char* word : {"nan", "inf", "-inf", "infinity", "NaN"})
    for (const Type type : {Type::real, Type::int16, Type::int32, Type::boolean})
      EXPECT_THROW(converted(std::string(word), type), RunTimeError) << word;
}

TEST(Conversion, OnlyADoubleHoldsWhatIsNotFinite) {
  EXPECT_TRUE(std::isnan(real(not_a_number)));
  EXPECT_EQ(real(infinity), infinity);
  for (const double odd : {not_a_number, infinity, -infinity})
    for (const Type type : {Type::boolean, Type::int16, Type::int32, Type::text})
      EXPECT_THROW(converted(odd, type), OverflowError) << odd;
}

TEST(Conversion, ATextBeyondTheRangeOfDoubleHasNoReading) {
  EXPECT_THROW(real(std::string("1e400")), RunTimeError);
  EXPECT_THROW(real(std::string("-1e400")), RunTimeError);
}

TEST(Conversion, WritesNumbersAsTexts) {
  EXPECT_EQ(text(std::int16_t{-7}), "-7");
  EXPECT_EQ(text(std::int32_t{12345}), "12345");
  EXPECT_EQ(text(2.5), "2.5");
  EXPECT_EQ(text(0.0), "0");
  EXPECT_EQ(text(true), "True");
  EXPECT_EQ(text(false), "False");
}

TEST(Conversion, WritesWholeNumbersWithoutAnExponentBelowTenToTheFifteenth) {
  EXPECT_EQ(text(std::int32_t{100000}), "100000");
  EXPECT_EQ(text(std::int32_t{-2000000000}), "-2000000000");
  EXPECT_EQ(text(1e6), "1000000");
}

TEST(Conversion, AValueOfTheTypeStaysAsItIs) {
  const Variant array = Array(std::vector<double>{1, 2}, 0);
  EXPECT_EQ(converted(array, Type::array), array);
  const Variant object = ObjectReference{std::make_shared<int>(3), typeid(int)};
  EXPECT_EQ(converted(object, Type::object), object);
  EXPECT_EQ(text(std::string("  as told ")), "  as told ");
}

TEST(Conversion, ArraysAndObjectsHaveNoOtherReading) {
  const Variant array = Array(1, 2), object = ObjectReference{};
  for (const Type type : {Type::boolean, Type::int16, Type::int32, Type::real, Type::text}) {
    EXPECT_THROW(converted(array, type), InvalidArgument);
    EXPECT_THROW(converted(object, type), InvalidArgument);
    EXPECT_THROW(converted(Variant{}, type), InvalidArgument);
  }
  EXPECT_THROW(converted(1.0, Type::array), InvalidArgument);
  EXPECT_THROW(converted(1.0, Type::object), InvalidArgument);
  EXPECT_THROW(converted(object, Type::array), InvalidArgument);
  EXPECT_THROW(converted(array, Type::object), InvalidArgument);
}

}  // namespace
}  // namespace mirolen::automation
