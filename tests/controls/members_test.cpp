#include <algorithm>
#include <map>

#include "control_support.h"

namespace mirolen {
namespace {

using automation::ArgumentInfo;
using automation::get;
using automation::invoke;
using automation::let;
using automation::MemberInfo;
using automation::MemberKind;
using automation::Type;
using automation::Variant;

constexpr MemberKind method = MemberKind::method, getter = MemberKind::get, letter = MemberKind::let,
                     setter = MemberKind::set;

/// One name at the interface. A method tells its arguments, with "&" for each by reference.
struct Member {
  enum Kind { both, read_only, object, call } kind;
  Type type;
  std::string arguments;
  std::string enumeration;
};
using Members = std::map<std::string, Member>;

Member property(Type type, const std::string& enumeration = "") {
  return {Member::both, type, "", enumeration};
}
Member value(Type type) { return {Member::read_only, type, "", ""}; }
Member object_property() { return {Member::object, Type::object, "", ""}; }
Member call_of(Type result, const std::string& arguments = "") {
  return {Member::call, result, arguments, ""};
}

const Members of_all{{"SetWaferData", call_of(Type::int16, "&x &y &Z")},
                     {"SetDataFile", call_of(Type::int16, "&datafile &nops")},
                     {"GetWaferData", call_of(Type::real, "&x &y &Z")},
                     {"Plot", call_of(Type::int16)},
                     {"ShowPlotOption", call_of(Type::none)},
                     {"clear", call_of(Type::none)},
                     {"SetPlotLimit", call_of(Type::boolean, "&LPL &UPL")},
                     {"ReleasePlotLimit", call_of(Type::none)},
                     {"Interpolation", call_of(Type::real, "&x &y")},
                     {"SetPlotNotVaild", call_of(Type::none)},
                     {"About", call_of(Type::none)},
                     {"mean", value(Type::real)},
                     {"Maximum", value(Type::real)},
                     {"Minimum", value(Type::real)},
                     {"range", value(Type::real)},
                     {"HiLo", value(Type::real)},
                     {"StdDev", value(Type::real)},
                     {"StdDevPercent", value(Type::real)},
                     {"hdc", value(Type::int32)},
                     {"hwnd", value(Type::int32)},
                     {"TestDiameter", property(Type::real)},
                     {"WaferDiameter", property(Type::real)},
                     {"WaferStyle", property(Type::int32, "WaferSt")},
                     {"HideLegend", property(Type::boolean)},
                     {"BackColor", property(Type::int32)},
                     {"MousePointer", property(Type::int16)},
                     {"MouseIcon", object_property()},
                     {"PrinterObj", object_property()}};

Members operator+(Members one, const Members& other) {
  one.insert(other.begin(), other.end());
  return one;
}

Members colors(int count) {
  Members members;
  for (int i = 0; i < count; ++i) members["IntervalColor" + std::to_string(i)] = property(Type::int32);
  return members;
}

const Members caption{{"PlotCaption", property(Type::text)}};
const Members cells{{"Resolution", property(Type::real)}, {"ShowSites", property(Type::int32, "Sites")}};
const Members sigma{{"SigmaRange", property(Type::real)}};
const Members view{{"EnableRotation", property(Type::boolean)},
                   {"WaferRotation", property(Type::int16)},
                   {"GridRotation", property(Type::int16)},
                   {"GridInclination", property(Type::int16)}};
const Members surface{{"XResolution", property(Type::real)},
                      {"YResolution", property(Type::real)},
                      {"PlotScale", property(Type::int16)}};

template <class Control>
Members own();
template <>
Members own<Plot2D>() {
  return caption + colors(10) + cells;
}
template <>
Members own<Plot2DS>() {
  return caption + colors(3) + cells + sigma;
}
template <>
Members own<Plot2DC>() {
  return caption + colors(10) +
         Members{{"Interval", property(Type::real)},
                 {"IntervalInPercent", property(Type::int16)},
                 {"MeasurementUnit", property(Type::text)},
                 {"marksites", property(Type::int32, "ExconEnum")},
                 {"Resolution", property(Type::int32, "ResoEnum")},
                 {"PlotColored", property(Type::int32, "DrawColEnum")},
                 {"ScaleType", property(Type::int16)},
                 {"MeanCurveColor", property(Type::int32)},
                 {"UpperCurveColor", property(Type::int32)},
                 {"LowerCurveColor", property(Type::int32)}};
}
template <>
Members own<Plot2DN>() {
  return caption + colors(10);
}
template <>
Members own<Plot2DB>() {
  return caption + colors(10) + view +
         Members{{"BeamWidth", property(Type::real)},
                 {"BeamHeight", property(Type::real)},
                 {"BeamScale", property(Type::real)}};
}
template <>
Members own<Plot3D>() {
  return caption + colors(10) + view + surface + Members{{"PlotType", property(Type::int32, "PlotTypeEnum")}};
}
template <>
Members own<Plot3DS>() {
  return caption + colors(3) + view + surface + sigma;
}
template <>
Members own<Histogram>() {
  return {{"PlotType", property(Type::int32, "PlotTyEnum")},
          {"Resolution", property(Type::real)},
          {"BeamColor", property(Type::int32)},
          {"GaussCurveColor", property(Type::int32)},
          {"SetChartDim", call_of(Type::none, "&topC &heightC")},
          {"Borderstyle", call_of(Type::none, "&Bstyle")},
          {"ShowControlLimit", call_of(Type::none, "&LCLs &UCLs")},
          {"ResetControlLimit", call_of(Type::none)}};
}
template <>
Members own<LineScan>() {
  return caption +
         Members{{"angle", property(Type::int16)},
                 {"PlotType", property(Type::int32, "PlotTypeEnumLineScan")},
                 {"RotationPointX", property(Type::int16)},
                 {"RotationPointY", property(Type::int16)},
                 {"LineStartPointX", property(Type::int16)},
                 {"LineStartPointY", property(Type::int16)},
                 {"LineEndPointX", property(Type::int16)},
                 {"LineEndPointY", property(Type::int16)},
                 {"ShowSites", property(Type::boolean)},
                 {"SetLineOrAngle",
                  call_of(Type::none, "&PlotType &angle &AngleX &AngleY &StartX &StartY &EndX &EndY")},
                 {"GetLineOrAngle", call_of(Type::int16, "&angle &StartX &StartY &EndX &EndY")}};
}

// Members that come with printing and the option forms, where a control has them.
const char* const later[] = {"ShowPlotOption",      "PrintPlot",      "PrintPlot_THN",
                             "PrintWaferStatistic", "PrintWaferSize", "PrintGridPlot",
                             "PrintGridNumber",     "PrintLegend",    "PrintLegend_No_Frame"};

std::string arguments_of(const MemberInfo& member) {
  std::string text;
  for (const ArgumentInfo& argument : member.arguments) {
    if (!text.empty()) text += ' ';
    text += (argument.by_reference ? "&" : "") + argument.name;
  }
  return text;
}

std::vector<MemberKind> kinds_of(Member::Kind kind) {
  switch (kind) {
    case Member::both:
      return {getter, letter};
    case Member::object:
      return {getter, setter};
    case Member::read_only:
      return {getter};
    default:
      return {method};
  }
}

template <class Control>
class AllMembers : public ControlTest<Control> {
 protected:
  const automation::ClassInfo& info = description_of<Control>();
  const Members members = of_all + own<Control>();
};
TYPED_TEST_SUITE(AllMembers, AllControls, ControlNames);

TYPED_TEST(AllMembers, AreThere) {
  for (const auto& [name, told] : this->members) {
    for (const MemberKind kind : kinds_of(told.kind)) {
      const MemberInfo* found = this->info.find(name, kind);
      ASSERT_TRUE(found) << name;
      EXPECT_EQ(found->enumeration, told.enumeration) << name;
      if (kind == letter || kind == setter) {
        ASSERT_EQ(found->arguments.size(), 1u) << name;
        EXPECT_EQ(found->arguments[0].type, told.type) << name;
        EXPECT_EQ(found->result, Type::none) << name;
      } else {
        EXPECT_EQ(found->result, told.type) << name;
        EXPECT_EQ(arguments_of(*found), told.arguments) << name;
      }
    }
  }
}

TYPED_TEST(AllMembers, AreAllThereIs) {
  Names others;
  for (const MemberInfo& member : this->info.members) {
    const auto told = this->members.find(member.name);
    if (told == this->members.end()) {
      if (std::find(std::begin(later), std::end(later), member.name) == std::end(later))
        others.push_back(member.name);
      continue;
    }
    const auto kinds = kinds_of(told->second.kind);
    if (std::find(kinds.begin(), kinds.end(), member.kind) == kinds.end()) others.push_back(member.name);
  }
  EXPECT_EQ(others, Names{});
}

TYPED_TEST(AllMembers, AreThereOnce) {
  std::vector<std::pair<std::string, MemberKind>> found;
  for (const MemberInfo& member : this->info.members) found.emplace_back(member.name, member.kind);
  std::sort(found.begin(), found.end());
  EXPECT_EQ(std::adjacent_find(found.begin(), found.end()), found.end());
}

const std::map<std::string, std::vector<std::pair<std::string, std::int32_t>>> enumerations{
    {"WaferSt", {{"Flat", 2}, {"Notch", 1}}},
    {"Sites", {{"ShowSite", -1}, {"HideSite", 0}}},
    {"PlotTypeEnumLineScan", {{"vbAngle", 1}, {"vbline", 2}}},
    {"ExconEnum", {{"Exact", 1}, {"Converted", 2}, {"None", 3}}},
    {"ResoEnum", {{"LowQuality", 0}, {"HighQuality", 1}, {"Automatic", 2}}},
    {"DrawColEnum", {{"BWhitePlot", 0}, {"Three_ColorPlot", 1}, {"Ten_ColorPlot", 2}}},
    {"PlotTypeEnum", {{"PolyEdge", 1}, {"HiddenWireFrame", 2}, {"WireFrame", 3}}},
    {"PlotTyEnum", {{"vbbottom", 1}, {"vbTop", 2}, {"vbLeft", 3}, {"vbRight", 4}}}};

TYPED_TEST(AllMembers, TakeTheirValuesFromTheEnumerationsOfTheirClass) {
  std::vector<std::string> needed, found;
  for (const auto& [name, told] : this->members)
    if (!told.enumeration.empty()) needed.push_back(told.enumeration);
  for (const auto& enumeration : this->info.enumerations) {
    found.push_back(enumeration.name);
    ASSERT_TRUE(enumerations.contains(enumeration.name)) << enumeration.name;
    auto values = enumeration.values, expected = enumerations.at(enumeration.name);
    std::sort(values.begin(), values.end());
    std::sort(expected.begin(), expected.end());
    EXPECT_EQ(values, expected) << enumeration.name;
  }
  std::sort(needed.begin(), needed.end());
  std::sort(found.begin(), found.end());
  EXPECT_EQ(found, needed);
}

TYPED_TEST(AllMembers, RaiseTheEventsOfAll) {
  Names names;
  for (const auto& event : this->info.events) {
    names.push_back(event.name);
    EXPECT_EQ(event.arguments.size(), event.name.ends_with("lick") ? 0u : 4u) << event.name;
  }
  EXPECT_EQ(names, (Names{"Click", "DblClick", "MouseDown", "MouseMove", "MouseUp"}));
}

/// A value that the property of this name and type takes as it is.
Variant harmless(const std::string& name, Type type) {
  if (name.ends_with("Diameter")) return 200.0;
  switch (type) {
    case Type::boolean:
      return true;
    case Type::text:
      return std::string("text");
    default:
      return converted(Variant(2.0), type);
  }
}

TYPED_TEST(AllMembers, WriteAndReadEveryPropertyByName) {
  this->place();
  for (const auto& [name, told] : this->members) {
    if (told.kind != Member::both) continue;
    Variant written = harmless(name, told.type);
    if (told.enumeration == "Sites") written = std::int32_t{-1};
    let(this->object(), name, written);
    EXPECT_EQ(get(this->object(), name), written) << name;
    if (name == "MousePointer") this->control.MousePointer(0);
  }
}

TYPED_TEST(AllMembers, TellTheHostEachSettingByItsName) {
  this->place();
  for (const auto& [name, told] : this->members) {
    if (told.kind != Member::both || name == "MousePointer" || name == "EnableRotation") continue;
    this->form.changes.clear();
    let(this->object(), name, harmless(name, told.type));
    EXPECT_EQ(this->form.changes, Names{name == "angle" ? "Angle" : name});
  }
}

TYPED_TEST(AllMembers, CannotBeWrittenWhereTheyAreResults) {
  for (const auto& [name, told] : this->members) {
    if (told.kind != Member::read_only) continue;
    EXPECT_NO_THROW(get(this->object(), name)) << name;
    EXPECT_THROW(let(this->object(), name, 1.0), InvalidArgument) << name;
  }
}

TYPED_TEST(AllMembers, LoadPlotAndGiveBackByName) {
  this->place();
  const SiteColumns sites = square_of_sites();
  std::vector<Variant> none, columns{Array(sites.x), Array(sites.y), Array(sites.z)};
  EXPECT_EQ(invoke(this->object(), "Plot", method, none), Variant(std::int16_t{1}));
  EXPECT_EQ(invoke(this->object(), "SetWaferData", method, columns), Variant(std::int16_t{0}));
  EXPECT_EQ(invoke(this->object(), "Plot", method, none), Variant(std::int16_t{0}));
  std::vector<Variant> back{Array(), Array(), Array()};
  EXPECT_EQ(invoke(this->object(), "GetWaferData", method, back), Variant(25.0));
  EXPECT_EQ(back, columns);
  EXPECT_EQ(get(this->object(), "Maximum"), Variant(100.0));
  EXPECT_EQ(get(this->object(), "range"), Variant(100.0));
}

class LineScanMembers : public ControlTest<LineScan> {};

TEST_F(LineScanMembers, GiveTheLineBackInTheirArguments) {
  place();
  const std::vector<Variant> line{std::int32_t{2}, std::int16_t{0}, 0.0, 0.0, 1.5, 2.5, 3.5, 4.5};
  automation::call(object(), "SetLineOrAngle", line);
  std::vector<Variant> back{std::int16_t{7}, 0.0, 0.0, 0.0, 0.0};
  EXPECT_EQ(invoke(object(), "GetLineOrAngle", method, back), Variant(std::int16_t{0}));
  EXPECT_EQ(back, (std::vector<Variant>{std::int16_t{7}, 1.5, 2.5, 3.5, 4.5}));
}

TEST(LineScanMember, ShowsSitesByABoolean) {
  EXPECT_EQ(description_of_LineScan().find("ShowSites", getter)->result, Type::boolean);
}

}  // namespace
}  // namespace mirolen
