#include <algorithm>
#include <ostream>

#include "control_support.h"

namespace mirolen {
namespace {

using automation::call;
using automation::get;
using automation::invoke;
using automation::let;
using automation::MemberInfo;
using automation::MemberKind;
using automation::Type;
using automation::Variant;

struct Field {
  const char* name;
  Type type;
};

void PrintTo(const Field& field, std::ostream* out) { *out << field.name; }

const Field fields[] = {
    {"col1", Type::real},        {"col2", Type::real},          {"col3", Type::real},
    {"col4", Type::real},        {"col5", Type::real},          {"col6", Type::real},
    {"col7", Type::real},        {"col8", Type::real},          {"col9", Type::real},
    {"col10", Type::real},       {"ColS1", Type::real},         {"ColS2", Type::real},
    {"ColS3", Type::real},       {"Save", Type::int16},         {"NewFile", Type::int16},
    {"FW_NUll", Type::boolean},  {"FW_Negativ", Type::boolean}, {"changeResx", Type::boolean},
    {"FileDT", Type::text},      {"filename", Type::text},      {"DirFileName", Type::text},
    {"mean", Type::real},        {"StdDev", Type::real},        {"maxi", Type::real},
    {"mini", Type::real},        {"maximal", Type::real},       {"minimal", Type::real},
    {"HiLo", Type::real},        {"Low", Type::real},           {"range", Type::real},
    {"Summe_Value", Type::real}, {"NptLCL", Type::real},        {"NptUCL", Type::real},
    {"vLcl", Type::real},        {"vUcl", Type::real},          {"Recognize", Type::text},
    {"WafDiam", Type::real},     {"WaferOrigRad", Type::real},  {"test_diam", Type::real},
    {"flat_ratio", Type::real},  {"Meas_unit", Type::text},     {"Special", Type::text},
    {"equip", Type::text},       {"wafer", Type::text},         {"Operator", Type::text},
    {"FAB", Type::text},         {"lot", Type::text},           {"meq", Type::text},
    {"maxHauf", Type::int32},    {"GaussMax", Type::real},
};

struct Told {
  const char* name;
  /// A letter an argument: r by reference, v by value, ? untold.
  const char* arguments;
  Type result;
};

void PrintTo(const Told& told, std::ostream* out) { *out << told.name; }

const Told methods[] = {
    {"reset", "", Type::none},
    {"SetNop", "?", Type::none},
    {"GetNop", "", Type::real},
    {"SetGridValue", "???", Type::none},
    {"SetGridValueD", "????", Type::none},
    {"OverwriteGridValue", "????", Type::none},
    {"GetGridValue", "?r", Type::real},
    {"MaxMin", "", Type::none},
    {"setMaximalMinial", "??", Type::none},
    {"Globlal_Value_Sub_Mean", "r", Type::real},
    {"Points_OutCL", "rr", Type::none},
    {"Gauss", "?", Type::real},
    {"Interpolation", "??", Type::real},
    {"Interpolation_Einfach", "??", Type::real},
    {"FormatLbl", "?", Type::text},
};

class WaferFields : public testing::TestWithParam<Field> {};

TEST_P(WaferFields, AreDescribedBothWays) {
  const auto& info = description_of_wafer();
  const MemberInfo* read = info.find(GetParam().name, MemberKind::get);
  const MemberInfo* write = info.find(GetParam().name, MemberKind::let);
  ASSERT_TRUE(read);
  ASSERT_TRUE(write);
  EXPECT_EQ(read->result, GetParam().type);
}

TEST_P(WaferFields, ReadWhatWasWritten) {
  wafer target;
  const automation::Object object = described(target);
  const Variant value =
      GetParam().type == Type::text ? Variant(std::string("7")) : converted(7.0, GetParam().type);
  let(object, GetParam().name, value);
  EXPECT_EQ(get(object, GetParam().name), value);
}

INSTANTIATE_TEST_SUITE_P(Wafer, WaferFields, testing::ValuesIn(fields));

TEST(WaferDescription, EachFieldIsAFieldOfItsOwn) {
  wafer target;
  const automation::Object object = described(target);
  double number = 1;
  for (const Field& field : fields)
    if (field.type != Type::boolean) let(object, field.name, number++);
  number = 1;
  for (const Field& field : fields)
    if (field.type != Type::boolean) {
      EXPECT_EQ(converted(get(object, field.name), Type::real), Variant(number++)) << field.name;
    }
  EXPECT_EQ(target.col1, 1);
  EXPECT_EQ(target.col10, 10);
}

class WaferMethods : public testing::TestWithParam<Told> {};

TEST_P(WaferMethods, AreDescribed) {
  const MemberInfo* found = description_of_wafer().find(GetParam().name, MemberKind::method);
  ASSERT_TRUE(found);
  const std::string told = GetParam().arguments;
  ASSERT_EQ(found->arguments.size(), told.size());
  EXPECT_EQ(found->result, GetParam().result);
  for (std::size_t i = 0; i < told.size(); ++i)
    if (told[i] == 'r') {
      EXPECT_TRUE(found->arguments[i].by_reference) << i;
    }
}

INSTANTIATE_TEST_SUITE_P(Wafer, WaferMethods, testing::ValuesIn(methods));

TEST(WaferDescription, TellsItsName) { EXPECT_EQ(description_of_wafer().name, "wafer"); }

TEST(WaferDescription, HidesWhatIsPrivate) {
  for (const char* name : {"Nop", "NextSite", "GridPos", "GridVal", "SiteCells", "GridCell", "HalfCells",
                           "FirstUse", "Pi", "StdNormal", "BuildSiteCells"})
    for (const MemberKind kind : {MemberKind::get, MemberKind::let, MemberKind::method})
      EXPECT_FALSE(description_of_wafer().find(name, kind)) << name;
}

class WaferByName : public testing::Test {
 protected:
  void load() {
    call(object, "reset");
    call(object, "SetNop", {3.0});
    call(object, "SetGridValue", {1.0, 2.0, 10.0});
    call(object, "SetGridValue", {3.0, 4.0, 20.0});
    call(object, "SetGridValue", {5.0, 6.0, 60.0});
    call(object, "MaxMin");
  }

  wafer target;
  const automation::Object object = described(target);
};

TEST_F(WaferByName, LoadsAndTellsItsStatistics) {
  load();
  EXPECT_EQ(call(object, "GetNop"), Variant(3.0));
  EXPECT_EQ(get(object, "mean"), Variant(30.0));
  EXPECT_EQ(get(object, "maxi"), Variant(60.0));
  EXPECT_EQ(get(object, "Summe_Value"), Variant(90.0));
}

TEST_F(WaferByName, GivesASiteBackInItsArray) {
  load();
  std::vector<Variant> arguments{std::int16_t{2}, Array(1, 2)};
  EXPECT_EQ(invoke(object, "GetGridValue", MemberKind::method, arguments), Variant(20.0));
  EXPECT_EQ(std::get<Array>(arguments[1]), Array(std::vector<double>{3, 4}));
}

TEST_F(WaferByName, OverwritesSites) {
  load();
  call(object, "OverwriteGridValue", {std::int16_t{1}, 7.0, 8.0, 9.0});
  call(object, "SetGridValueD", {std::int16_t{4}, 7.0, 8.0, 9.0});
  EXPECT_EQ(call(object, "GetGridValue", {std::int16_t{1}, Array(1, 2)}), Variant(9.0));
  EXPECT_EQ(call(object, "GetNop"), Variant(3.0));
}

TEST_F(WaferByName, ItsErrorsReachTheCaller) {
  EXPECT_THROW(call(object, "MaxMin"), SubscriptOutOfRange);
  load();
  EXPECT_THROW(call(object, "OverwriteGridValue", {std::int16_t{4}, 7.0, 8.0, 9.0}), SubscriptOutOfRange);
  EXPECT_THROW(call(object, "GetGridValue", {std::int16_t{9}, Array(1, 2)}), SubscriptOutOfRange);
}

TEST_F(WaferByName, ComputesWithItsLimits) {
  load();
  call(object, "setMaximalMinial", {100.0, 0.0});
  EXPECT_EQ(get(object, "range"), Variant(100.0));
  call(object, "Points_OutCL", {15.0, 20.0});
  EXPECT_EQ(get(object, "NptLCL"), Variant(1.0));
  EXPECT_EQ(get(object, "NptUCL"), Variant(1.0));
  EXPECT_EQ(call(object, "Globlal_Value_Sub_Mean", {20.0}), Variant(100.0 + 1600.0));
  EXPECT_EQ(call(object, "Interpolation", {0.0, 0.0}), Variant(0.0));
  EXPECT_EQ(call(object, "FormatLbl", {0.0}), Variant(std::string("0.0")));
}

}  // namespace
}  // namespace mirolen
