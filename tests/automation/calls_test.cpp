#include <gtest/gtest.h>

#include "gauge.h"
#include "mirolen/automation/ClassBuilder.h"

namespace mirolen::automation {
namespace {

class Calls : public testing::Test {
 protected:
  Gauge gauge;
  const Object object = described(gauge);
};

TEST_F(Calls, PropertiesAreReadAndWrittenByName) {
  let(object, "Level", 2.5);
  EXPECT_EQ(gauge.Level, 2.5);
  EXPECT_EQ(get(object, "Level"), Variant(2.5));
  let(object, "Name", std::string("other"));
  EXPECT_EQ(get(object, "Name"), Variant(std::string("other")));
}

TEST_F(Calls, ValuesAreConvertedToTheTypeOfTheProperty) {
  let(object, "Step", 2.5);
  EXPECT_EQ(gauge.Step, 2);
  let(object, "Loud", std::int32_t{12});
  EXPECT_TRUE(gauge.Loud);
  let(object, "Level", std::string("1.25"));
  EXPECT_EQ(gauge.Level, 1.25);
  let(object, "Name", std::int16_t{4});
  EXPECT_EQ(gauge.Name, "4");
}

TEST_F(Calls, AnUnknownMemberIsRefused) {
  EXPECT_THROW(get(object, "level"), InvalidArgument) << "names are told letter for letter";
  EXPECT_THROW(get(object, ""), InvalidArgument);
  EXPECT_THROW(let(object, "Depth", 1.0), InvalidArgument);
  EXPECT_THROW(call(object, "Level"), InvalidArgument);
  EXPECT_THROW(get(object, "Reset"), InvalidArgument);
}

TEST_F(Calls, AReadOnlyPropertyCannotBeSet) {
  gauge.Level = 3;
  EXPECT_EQ(get(object, "Doubled"), Variant(6.0));
  EXPECT_THROW(let(object, "Doubled", 1.0), InvalidArgument);
}

TEST_F(Calls, TooFewAndTooManyArgumentsAreRefused) {
  EXPECT_THROW(call(object, "Swap", {1.0}), InvalidArgument);
  EXPECT_THROW(call(object, "Swap"), InvalidArgument);
  EXPECT_THROW(call(object, "Swap", {1.0, 2.0, 3.0}), InvalidArgument);
  EXPECT_THROW(call(object, "Reset", {1.0}), InvalidArgument);
  EXPECT_THROW(call(object, "Swap", {1.0, Variant{}}), InvalidArgument);
  std::vector<Variant> one{1.0};
  EXPECT_THROW(invoke(object, "Level", MemberKind::get, one), InvalidArgument);
}

TEST_F(Calls, ARefusedCallChangesNothing) {
  gauge.Step = 9;
  EXPECT_THROW(let(object, "Step", 1e9), OverflowError);
  EXPECT_THROW(let(object, "Step", std::string("no number")), InvalidArgument);
  EXPECT_EQ(gauge.Step, 9);
  std::vector<Variant> arguments{1.0, std::string("no number")};
  EXPECT_THROW(invoke(object, "Swap", MemberKind::method, arguments), InvalidArgument);
  EXPECT_EQ(arguments, (std::vector<Variant>{1.0, std::string("no number")}));
}

TEST_F(Calls, ArgumentsByReferenceComeBackChanged) {
  std::vector<Variant> arguments{1.0, std::int16_t{2}};
  EXPECT_EQ(invoke(object, "Swap", MemberKind::method, arguments), Variant{});
  EXPECT_EQ(arguments, (std::vector<Variant>{2.0, 1.0}));
}

TEST_F(Calls, ArraysComeBackWithTheirNewBounds) {
  std::vector<Variant> arguments{std::int16_t{3}, Array()};
  EXPECT_EQ(invoke(object, "Fill", MemberKind::method, arguments), Variant(3.0));
  EXPECT_EQ(std::get<Array>(arguments[1]), Array(std::vector<double>{1, 1, 1}));
  EXPECT_EQ(arguments[0], Variant(std::int16_t{3}));
}

TEST_F(Calls, ReadOnlyReferencesLeaveTheirArgumentAlone) {
  const Array told({1, 2, 3}, 0);
  std::vector<Variant> arguments{told};
  EXPECT_EQ(invoke(object, "Sum", MemberKind::method, arguments), Variant(6.0));
  EXPECT_EQ(std::get<Array>(arguments[0]), told);
}

TEST_F(Calls, OptionalArgumentsMayBeLeftOut) {
  call(object, "Mark", {std::string("a")});
  EXPECT_EQ(gauge.last_call, "a -");
  call(object, "Mark", {std::string("b"), Variant{}});
  EXPECT_EQ(gauge.last_call, "b -");
  call(object, "Mark", {std::string("c"), true});
  EXPECT_EQ(gauge.last_call, "c True");
  call(object, "Mark", {std::string("d"), std::int16_t{0}});
  EXPECT_EQ(gauge.last_call, "d False");
  EXPECT_THROW(call(object, "Mark", {}), InvalidArgument);
}

TEST_F(Calls, WhatAMemberThrowsReachesTheCaller) { EXPECT_THROW(call(object, "Fail"), DivisionByZero); }

TEST_F(Calls, EnumerationsAreThirtyTwoBitNumbers) {
  let(object, "Speed", std::int16_t{7});
  EXPECT_EQ(gauge.Speed, Mode::Fast);
  EXPECT_EQ(get(object, "Speed"), Variant(std::int32_t{7}));
}

TEST_F(Calls, ColoursAreToldByTheirBits) {
  gauge.Paint = 0x8000000F;
  EXPECT_EQ(get(object, "Paint"), Variant(std::int32_t{-2147483633}));
  let(object, "Paint", std::int32_t{-1});
  EXPECT_EQ(gauge.Paint, 0xFFFFFFFFu);
}

TEST_F(Calls, ObjectsAreSetAndGivenBack) {
  const auto probe = std::make_shared<Probe>();
  let(object, "Attached", ObjectReference{probe, typeid(Probe)});
  EXPECT_EQ(gauge.Attached, probe);
  EXPECT_EQ(std::get<ObjectReference>(get(object, "Attached")).pointer, probe);
  let(object, "Attached", ObjectReference{});
  EXPECT_EQ(gauge.Attached, nullptr);
}

TEST_F(Calls, AnObjectOfAnotherTypeIsRefused) {
  EXPECT_THROW(let(object, "Attached", ObjectReference{std::make_shared<int>(1), typeid(int)}),
               InvalidArgument);
  EXPECT_THROW(let(object, "Attached", 1.0), InvalidArgument);
}

TEST(Description, FindsMembersByNameAndKind) {
  const ClassInfo& info = description_of_gauge();
  ASSERT_TRUE(info.find("Level", MemberKind::get));
  ASSERT_TRUE(info.find("Level", MemberKind::let));
  EXPECT_FALSE(info.find("Level", MemberKind::set));
  EXPECT_TRUE(info.find("Attached", MemberKind::set));
  EXPECT_FALSE(info.find("Attached", MemberKind::let));
  EXPECT_FALSE(info.find("Doubled", MemberKind::let));
  EXPECT_FALSE(info.find("reset", MemberKind::method));
}

TEST(Description, TellsTypesNamesAndReferences) {
  const ClassInfo& info = description_of_gauge();
  EXPECT_EQ(info.name, "Gauge");
  const MemberInfo& fill = *info.find("Fill", MemberKind::method);
  EXPECT_EQ(fill.result, Type::real);
  ASSERT_EQ(fill.arguments.size(), 2u);
  EXPECT_EQ(fill.arguments[0].name, "n");
  EXPECT_EQ(fill.arguments[0].type, Type::int16);
  EXPECT_FALSE(fill.arguments[0].by_reference);
  EXPECT_EQ(fill.arguments[1].type, Type::array);
  EXPECT_TRUE(fill.arguments[1].by_reference);
  EXPECT_EQ(info.find("Reset", MemberKind::method)->result, Type::none);
  EXPECT_TRUE(info.find("Mark", MemberKind::method)->arguments[1].optional);
  EXPECT_FALSE(info.find("Mark", MemberKind::method)->arguments[0].optional);
}

TEST(Description, TellsWhereAPropertyTakesItsValuesFrom) {
  const ClassInfo& info = description_of_gauge();
  EXPECT_EQ(info.find("Speed", MemberKind::get)->enumeration, "Mode");
  EXPECT_EQ(info.find("Speed", MemberKind::let)->enumeration, "Mode");
  EXPECT_EQ(info.find("Level", MemberKind::get)->enumeration, "");
  ASSERT_EQ(info.enumerations.size(), 1u);
  EXPECT_EQ(info.enumerations[0].values.size(), 3u);
  ASSERT_EQ(info.events.size(), 1u);
  EXPECT_EQ(info.events[0].name, "Moved");
}

TEST(Description, KeepsTheOrderOfStoredKeysAndTheirTypes) {
  const auto& stored = description_of_gauge().stored;
  ASSERT_EQ(stored.size(), 5u);
  EXPECT_EQ(stored[0].key, "Level");
  EXPECT_EQ(stored[0].fallback, Variant(std::int16_t{5}));
  EXPECT_FALSE(stored[2].fallback.has_value());
  EXPECT_EQ(stored[4].property, "Step");
}

TEST(Description, EachArgumentNeedsAName) {
  ClassBuilder<Gauge> tell("Gauge");
  EXPECT_THROW(tell.method("Set", "", {}, [](Gauge&, double) {}), InvalidArgument);
  EXPECT_THROW(tell.method("Set", "", {"a", "b"}, [](Gauge&, double) {}), InvalidArgument);
}

}  // namespace
}  // namespace mirolen::automation
