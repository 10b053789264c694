#include <algorithm>
#include <optional>
#include <ostream>

#include "control_support.h"

namespace mirolen {
namespace {

using automation::ArgumentInfo;
using automation::call;
using automation::get;
using automation::invoke;
using automation::let;
using automation::MemberInfo;
using automation::MemberKind;
using automation::ObjectReference;
using automation::Type;
using automation::Variant;

struct Told {
  const char* name;
  MemberKind kind;
  /// A letter an argument: r by reference, v by value.
  const char* arguments;
  Type result;
};

void PrintTo(const Told& told, std::ostream* out) { *out << told.name; }

constexpr MemberKind method = MemberKind::method, getter = MemberKind::get, letter = MemberKind::let,
                     setter = MemberKind::set;

const Told methods[] = {
    {"SetWaferData", method, "rrr", Type::int16},  {"SetDataFile", method, "rr", Type::int16},
    {"GetWaferData", method, "rrr", Type::real},   {"Plot", method, "", Type::int16},
    {"ShowPlotOption", method, "", Type::none},    {"clear", method, "", Type::none},
    {"SetPlotLimit", method, "rr", Type::boolean}, {"ReleasePlotLimit", method, "", Type::none},
    {"Interpolation", method, "rr", Type::real},   {"SetPlotNotVaild", method, "", Type::none},
};

const Told read_only[] = {
    {"mean", getter, "", Type::real},          {"Maximum", getter, "", Type::real},
    {"Minimum", getter, "", Type::real},       {"range", getter, "", Type::real},
    {"HiLo", getter, "", Type::real},          {"StdDev", getter, "", Type::real},
    {"StdDevPercent", getter, "", Type::real}, {"hdc", getter, "", Type::int32},
    {"hwnd", getter, "", Type::int32},
};

const Told settings[] = {
    {"TestDiameter", letter, "", Type::real},    {"WaferDiameter", letter, "", Type::real},
    {"Resolution", letter, "", Type::real},      {"WaferStyle", letter, "", Type::int32},
    {"ShowSites", letter, "", Type::int32},      {"HideLegend", letter, "", Type::boolean},
    {"PlotCaption", letter, "", Type::text},     {"BackColor", letter, "", Type::int32},
    {"IntervalColor0", letter, "", Type::int32}, {"IntervalColor1", letter, "", Type::int32},
    {"IntervalColor2", letter, "", Type::int32}, {"IntervalColor3", letter, "", Type::int32},
    {"IntervalColor4", letter, "", Type::int32}, {"IntervalColor5", letter, "", Type::int32},
    {"IntervalColor6", letter, "", Type::int32}, {"IntervalColor7", letter, "", Type::int32},
    {"IntervalColor8", letter, "", Type::int32}, {"IntervalColor9", letter, "", Type::int32},
    {"MousePointer", letter, "", Type::int16},   {"MouseIcon", setter, "", Type::object},
    {"PrinterObj", setter, "", Type::object},
};

// Members that come with printing and the About form.
const char* const later[] = {"About",       "PrintPlot",           "PrintGridPlot",
                             "PrintLegend", "PrintWaferStatistic", "PrintWaferSize"};

std::string references_of(const MemberInfo& member) {
  std::string letters;
  for (const ArgumentInfo& argument : member.arguments) letters += argument.by_reference ? 'r' : 'v';
  return letters;
}

class Methods : public testing::TestWithParam<Told> {};

TEST_P(Methods, AreDescribed) {
  const MemberInfo* found = description_of_Plot2D().find(GetParam().name, method);
  ASSERT_TRUE(found);
  EXPECT_EQ(found->arguments.size(), std::string(GetParam().arguments).size());
  EXPECT_EQ(found->result, GetParam().result);
}

TEST_P(Methods, TellWhatGoesByReference) {
  const MemberInfo* found = description_of_Plot2D().find(GetParam().name, method);
  ASSERT_TRUE(found);
  EXPECT_EQ(references_of(*found), GetParam().arguments);
}

INSTANTIATE_TEST_SUITE_P(Plot2D, Methods, testing::ValuesIn(methods));

class ReadOnly : public testing::TestWithParam<Told> {};

TEST_P(ReadOnly, AreDescribed) {
  const auto& info = description_of_Plot2D();
  const MemberInfo* found = info.find(GetParam().name, getter);
  ASSERT_TRUE(found);
  EXPECT_EQ(found->result, GetParam().result);
  EXPECT_TRUE(found->arguments.empty());
  EXPECT_FALSE(info.find(GetParam().name, letter));
  EXPECT_FALSE(info.find(GetParam().name, setter));
}

INSTANTIATE_TEST_SUITE_P(Plot2D, ReadOnly, testing::ValuesIn(read_only));

class Settings : public testing::TestWithParam<Told> {};

TEST_P(Settings, AreDescribedBothWays) {
  const auto& info = description_of_Plot2D();
  const MemberInfo* read = info.find(GetParam().name, getter);
  ASSERT_TRUE(read);
  EXPECT_EQ(read->result, GetParam().result);
  EXPECT_TRUE(read->arguments.empty());
  const MemberInfo* write = info.find(GetParam().name, GetParam().kind);
  ASSERT_TRUE(write);
  ASSERT_EQ(write->arguments.size(), 1u);
  EXPECT_EQ(write->arguments[0].type, GetParam().result);
  EXPECT_EQ(write->result, Type::none);
  EXPECT_FALSE(info.find(GetParam().name, GetParam().kind == letter ? setter : letter));
}

INSTANTIATE_TEST_SUITE_P(Plot2D, Settings, testing::ValuesIn(settings));

bool is_told(const MemberInfo& member) {
  const auto named = [&](const Told& told) { return told.name == member.name; };
  return std::any_of(std::begin(methods), std::end(methods), named) ||
         std::any_of(std::begin(read_only), std::end(read_only), named) ||
         std::any_of(std::begin(settings), std::end(settings), named) ||
         std::find(std::begin(later), std::end(later), member.name) != std::end(later);
}

TEST(Plot2DDescription, HasNoOtherMembers) {
  Names others;
  for (const MemberInfo& member : description_of_Plot2D().members)
    if (!is_told(member)) others.push_back(member.name);
  EXPECT_EQ(others, Names{});
}

TEST(Plot2DDescription, HasEachMemberOnce) {
  std::vector<std::pair<std::string, MemberKind>> members;
  for (const MemberInfo& member : description_of_Plot2D().members)
    members.emplace_back(member.name, member.kind);
  std::sort(members.begin(), members.end());
  EXPECT_EQ(std::adjacent_find(members.begin(), members.end()), members.end());
}

TEST(Plot2DDescription, TellsItsName) { EXPECT_EQ(description_of_Plot2D().name, "Plot2D"); }

const automation::EnumInfo* enumeration(const std::string& name) {
  for (const auto& found : description_of_Plot2D().enumerations)
    if (found.name == name) return &found;
  return nullptr;
}

TEST(Plot2DDescription, TellsItsEnumerations) {
  using Values = std::vector<std::pair<std::string, std::int32_t>>;
  ASSERT_TRUE(enumeration("WaferSt"));
  ASSERT_TRUE(enumeration("Sites"));
  EXPECT_EQ(enumeration("WaferSt")->values, (Values{{"Flat", 2}, {"Notch", 1}}));
  EXPECT_EQ(enumeration("Sites")->values, (Values{{"ShowSite", -1}, {"HideSite", 0}}));
  EXPECT_EQ(static_cast<int>(WaferSt::Flat), 2);
  EXPECT_EQ(static_cast<int>(WaferSt::Notch), 1);
  EXPECT_EQ(static_cast<int>(Sites::ShowSite), -1);
  EXPECT_EQ(static_cast<int>(Sites::HideSite), 0);
}

TEST(Plot2DDescription, TellsWhichPropertiesTakeAnEnumeration) {
  for (const MemberInfo& member : description_of_Plot2D().members) {
    const std::string expected = member.name == "WaferStyle"  ? "WaferSt"
                                 : member.name == "ShowSites" ? "Sites"
                                                              : "";
    EXPECT_EQ(member.enumeration, expected) << member.name;
  }
}

TEST(Plot2DDescription, TellsItsEvents) {
  const auto& events = description_of_Plot2D().events;
  const Names names{"Click", "DblClick", "MouseDown", "MouseMove", "MouseUp"};
  ASSERT_EQ(events.size(), names.size());
  for (std::size_t i = 0; i < events.size(); ++i) {
    EXPECT_EQ(events[i].name, names[i]);
    if (i < 2) {
      EXPECT_TRUE(events[i].arguments.empty());
      continue;
    }
    ASSERT_EQ(events[i].arguments.size(), 4u);
    EXPECT_EQ(events[i].arguments[0].name, "Button");
    EXPECT_EQ(events[i].arguments[0].type, Type::int16);
    EXPECT_EQ(events[i].arguments[1].name, "Shift");
    EXPECT_EQ(events[i].arguments[1].type, Type::int16);
    EXPECT_EQ(events[i].arguments[2].name, "x");
    EXPECT_EQ(events[i].arguments[3].name, "y");
  }
}

// ---- Calls ----

class ByName : public Plot2DTest {
 protected:
  static Array array(const std::vector<double>& values) { return Array(values); }
  void load_by_name(const SiteColumns& sites) {
    EXPECT_EQ(call(object, "SetWaferData", {array(sites.x), array(sites.y), array(sites.z)}),
              Variant(std::int16_t{0}));
  }

  const automation::Object object = described(control);
};

TEST_F(ByName, DataComeBack) {
  place();
  load_by_name(square_of_sites());
  std::vector<Variant> arguments{Array(), Array(), Array()};
  EXPECT_EQ(invoke(object, "GetWaferData", method, arguments), Variant(25.0));
  EXPECT_EQ(std::get<Array>(arguments[0]), array(square_of_sites().x));
  EXPECT_EQ(std::get<Array>(arguments[1]), array(square_of_sites().y));
  EXPECT_EQ(std::get<Array>(arguments[2]), array(square_of_sites().z));
}

TEST_F(ByName, ResultsAreThoseOfTheMembers) {
  place();
  EXPECT_EQ(call(object, "Plot"), Variant(std::int16_t{1}));
  EXPECT_EQ(call(object, "SetWaferData", {array({1, 2}), array({1, 2, 3}), array({1, 2})}),
            Variant(std::int16_t{1}));
  EXPECT_EQ(call(object, "SetDataFile", {std::string("nowhere"), 5.0}), Variant(std::int16_t{4}));
  load_by_name(square_of_sites());
  EXPECT_EQ(call(object, "Plot"), Variant(std::int16_t{0}));
  EXPECT_TRUE(control.PlotValid);
  call(object, "SetPlotNotVaild");
  EXPECT_FALSE(control.PlotValid);
  EXPECT_EQ(call(object, "SetPlotLimit", {10.0, 90.0}), Variant(true));
  EXPECT_EQ(control.wafobj.maximal, 90);
  call(object, "ReleasePlotLimit");
  EXPECT_EQ(control.wafobj.maximal, 100);
  EXPECT_EQ(call(object, "Interpolation", {-60.0, -60.0}), Variant(0.0));
  call(object, "clear");
  EXPECT_TRUE(picture_is_blank());
}

TEST_F(ByName, ArgumentsAreConverted) {
  place();
  load_by_name(square_of_sites());
  EXPECT_EQ(call(object, "SetPlotLimit", {std::int16_t{10}, std::string("90")}), Variant(true));
  EXPECT_EQ(call(object, "Interpolation", {std::int32_t{60}, std::string("60")}), Variant(100.0));
}

TEST_F(ByName, StatisticsAreRead) {
  place();
  load_by_name(square_of_sites());
  EXPECT_EQ(get(object, "mean"), Variant(control.mean()));
  EXPECT_EQ(get(object, "Maximum"), Variant(100.0));
  EXPECT_EQ(get(object, "Minimum"), Variant(0.0));
  EXPECT_EQ(get(object, "range"), Variant(100.0));
  EXPECT_EQ(get(object, "HiLo"), Variant(100.0));
  EXPECT_EQ(get(object, "StdDev"), Variant(control.StdDev()));
  EXPECT_EQ(get(object, "StdDevPercent"), Variant(control.StdDevPercent()));
  EXPECT_EQ(get(object, "hwnd"), Variant(std::int32_t{0}));
  EXPECT_EQ(get(object, "hdc"), Variant(std::int32_t{0}));
}

TEST_F(ByName, SettingsAreWrittenAndRead) {
  place();
  const std::vector<std::pair<const char*, Variant>> values{{"WaferDiameter", 300.0},
                                                            {"TestDiameter", 280.0},
                                                            {"Resolution", 2.5},
                                                            {"WaferStyle", std::int32_t{2}},
                                                            {"ShowSites", std::int32_t{-1}},
                                                            {"HideLegend", true},
                                                            {"PlotCaption", std::string("t")},
                                                            {"BackColor", std::int32_t{-2147483633}},
                                                            {"IntervalColor0", std::int32_t{1}},
                                                            {"IntervalColor9", std::int32_t{0xABCDEF}},
                                                            {"MousePointer", std::int16_t{5}}};
  for (const auto& [name, value] : values) let(object, name, value);
  control.MousePointer(5);
  for (const auto& [name, value] : values) EXPECT_EQ(get(object, name), value) << name;
  EXPECT_EQ(control.WaferStyle(), WaferSt::Flat);
  EXPECT_EQ(control.IntervalColor(9), 0xABCDEFu);
}

TEST_F(ByName, EachColourReachesItsOwnField) {
  for (int i = 0; i < 10; ++i) let(object, "IntervalColor" + std::to_string(i), std::int32_t{i + 1});
  for (int i = 0; i < 10; ++i) EXPECT_EQ(control.IntervalColor(i), static_cast<Color>(i + 1));
}

TEST_F(ByName, ReadOnlyMembersCannotBeSet) {
  for (const char* name : {"mean", "hdc", "hwnd", "range"})
    EXPECT_THROW(let(object, name, 1.0), InvalidArgument) << name;
}

TEST_F(ByName, ObjectsAreSet) {
  RecordingSurface page;
  const std::shared_ptr<PlotCanvas> printer = std::make_shared<SurfaceCanvas>(CanvasKind::printer, &page);
  let(object, "PrinterObj", ObjectReference{printer, typeid(PlotCanvas)});
  EXPECT_EQ(control.PrinterObj, printer);
  EXPECT_EQ(std::get<ObjectReference>(get(object, "PrinterObj")).pointer, printer);
  let(object, "PrinterObj", ObjectReference{});
  EXPECT_EQ(control.PrinterObj, nullptr);
  const std::shared_ptr<Image> icon = std::make_shared<RecordedImage>(SurfaceSize{1, 1}, Recording{});
  let(object, "MouseIcon", ObjectReference{icon, typeid(Image)});
  EXPECT_EQ(control.MouseIcon(), icon);
}

}  // namespace
}  // namespace mirolen
