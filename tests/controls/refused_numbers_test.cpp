#include <cmath>
#include <concepts>
#include <map>
#include <set>

#include "control_support.h"
#include "mirolen/render/ControlLimits.h"
#include "print_members.h"

namespace mirolen {
namespace {

using automation::ArgumentInfo;
using automation::MemberInfo;
using automation::MemberKind;
using automation::Type;
using automation::Variant;

const double odd_numbers[] = {not_a_number, infinity, -infinity, 1e300,         40000,
                              -40000,       65537,    -65537,    2147483648.0,  -2147483649.0,
                              4294967297.0, 65536,    32767.51,  -2147483647.5, -32769};

/// Members whose wider argument ends in 16 bits.
const std::set<std::pair<std::string, std::string>> of_sixteen_bits{
    {"Histogram", "Resolution"},   {"Plot2DC", "marksites"}, {"Plot2DC", "Resolution"},
    {"Plot2DC", "PlotColored"},    {"Plot3D", "PlotType"},   {"LineScan", "PlotType"},
    {"LineScan", "SetLineOrAngle"}};

bool is_number(Type type) { return type == Type::int16 || type == Type::int32 || type == Type::real; }

bool fits(const std::string& control, const MemberInfo& member, Type type, double v) {
  if (!std::isfinite(v)) return false;
  if (type == Type::int16 || of_sixteen_bits.contains({control, member.name}))
    return std::nearbyint(v) >= -32768 && std::nearbyint(v) <= 32767;
  return type != Type::int32 || (std::nearbyint(v) >= -2147483648.0 && std::nearbyint(v) <= 2147483647.0);
}

/// Whatever a host can see of a control.
struct Seen {
  std::map<std::string, Variant> properties;
  SiteColumns sites;
  std::vector<double> fields;
  Names captions;
  Names changes;
  std::size_t messages = 0;
  friend bool operator==(const Seen&, const Seen&) = default;
};

template <class Control>
class RefusedNumbers : public ControlTest<Control> {
 protected:
  void SetUp() override {
    this->plot_square();
    this->control.PrinterObj = paper;
    this->control.SetPlotLimit(10, 90);
    this->control.Plot();
    this->forget_notices();
  }

  std::map<std::string, Variant> properties() {
    std::map<std::string, Variant> all;
    for (const MemberInfo& member : description_of<Control>().members)
      if (member.kind == MemberKind::get) all[member.name] = automation::get(this->object(), member.name);
    return all;
  }

  Seen seen() {
    const wafer& data = this->control.wafobj;
    Seen now{properties(),
             sites_of(this->control),
             {data.minimal, data.maximal, data.Low, data.range, data.HiLo, data.vLcl, data.vUcl,
              data.flat_ratio, data.WaferOrigRad, control_limits().ClLow, control_limits().ClHigh,
              double(control_limits().ShowCL), double(this->control.PlotLimitSet),
              double(this->control.PlotShown), double(this->control.PlotValid)},
             {data.Meas_unit},
             this->form.changes,
             this->toolkit.messages.size()};
    for (Widget* widget : widgets_of(this->control)) {
      for (const Property<Widget, double>* place :
           {&widget->Left, &widget->Top, &widget->Width, &widget->Height})
        now.fields.push_back(*place);
      now.fields.push_back(widget->Visible);
      if (const auto* text = dynamic_cast<const TextField*>(widget)) now.captions.push_back(text->Text());
      if (const auto* told = dynamic_cast<const Captioned*>(widget)) now.captions.push_back(told->Caption);
    }
    return now;
  }

  std::vector<Variant> harmless(const MemberInfo& member) const {
    std::vector<Variant> arguments;
    for (const ArgumentInfo& argument : member.arguments)
      arguments.push_back(argument.type == Type::array     ? Variant(Array(std::vector<double>{1, 2, 3, 4}))
                          : argument.type == Type::text    ? Variant(std::string("unit"))
                          : argument.type == Type::object  ? Variant(automation::ObjectReference{})
                          : argument.type == Type::boolean ? Variant(true)
                                                           : Variant(1.0));
    return arguments;
  }

  /// Calls a member by its name. What it throws is its answer.
  Variant answer_of(const MemberInfo& member, std::vector<Variant> arguments) {
    try {
      return automation::invoke(this->object(), member.name, member.kind, arguments);
    } catch (const RunTimeError&) {
      return {};
    }
  }

  void expect_refused(const MemberInfo& member, std::size_t argument, double odd) {
    const std::string what = member.name + " " + member.arguments[argument].name + " " + std::to_string(odd);
    std::vector<Variant> arguments = harmless(member);
    arguments[argument] = odd;
    const Seen before = seen();
    const Variant answer = answer_of(member, arguments);
    const Seen after = seen();
    EXPECT_EQ(after.properties, before.properties) << what;
    EXPECT_TRUE(after == before) << what;
    EXPECT_EQ(answer, failure_of(member).value_or(answer)) << what;
    EXPECT_TRUE(paper->recording().empty()) << what;
    paper->forget();
  }

  /// How a member that has a result answers a failure.
  static std::optional<Variant> failure_of(const MemberInfo& member) {
    if (member.name == "SetPlotLimit") return Variant(false);
    if (member.name == "SetDataFile") return Variant(std::int16_t{4});
    if (member.name.starts_with("Print")) return Variant();  // an error
    return {};
  }

  /// The only argument of `SetDataFile` that is a number is refused by the load, which has emptied the store.
  static bool is_told_otherwise(const MemberInfo& member, double odd) {
    return member.name == "SetDataFile" && std::isfinite(odd);
  }

  std::shared_ptr<TestPrinter> paper = std::make_shared<TestPrinter>();
};
TYPED_TEST_SUITE(RefusedNumbers, AllControls, ControlNames);

TYPED_TEST(RefusedNumbers, ChangeNothingOverAllMembers) {
  int refused = 0;
  for (const MemberInfo& member : description_of<TypeParam>().members) {
    if (member.name == "GetLineOrAngle") continue;  // its arguments are results
    for (std::size_t i = 0; i < member.arguments.size(); ++i)
      for (const double odd : odd_numbers) {
        const Type type = member.arguments[i].type;
        if (!is_number(type) || fits(description_of<TypeParam>().name, member, type, odd)) continue;
        if (this->is_told_otherwise(member, odd)) continue;
        this->expect_refused(member, i, odd);
        ++refused;
      }
    if (this->HasFailure()) break;
  }
  EXPECT_GT(refused, 60);
}

TYPED_TEST(RefusedNumbers, AreNoTruthAndNoText) {
  for (const MemberInfo& member : description_of<TypeParam>().members)
    for (std::size_t i = 0; i < member.arguments.size(); ++i)
      if (const Type type = member.arguments[i].type; type == Type::boolean || type == Type::text)
        for (const double odd : {not_a_number, infinity, -infinity})
          if (member.name != "SetDataFile") this->expect_refused(member, i, odd);
}

TYPED_TEST(RefusedNumbers, LeaveAPlotThatIsDrawn) {
  const int drawn_before = this->toolkit.redraws;
  const bool was_valid = this->control.PlotValid;
  for (const MemberInfo& member : description_of<TypeParam>().members)
    for (std::size_t i = 0; i < member.arguments.size(); ++i)
      if (is_number(member.arguments[i].type) && member.name != "GetLineOrAngle")
        this->expect_refused(member, i, not_a_number);
  this->control.resize_to(6100, 4100);
  EXPECT_EQ(this->control.PlotValid, was_valid);
  EXPECT_EQ(this->toolkit.redraws, drawn_before) << "a change of size only stretches";
}

TYPED_TEST(RefusedNumbers, InTheDataLeaveDataAndPlot) {
  const Seen before = this->seen();
  for (const double odd : {not_a_number, infinity, -infinity})
    for (auto column : {&SiteColumns::x, &SiteColumns::y, &SiteColumns::z}) {
      SiteColumns sites = sites_near_centre();
      (sites.*column)[2] = odd;
      EXPECT_EQ(this->control.load(sites), 4);
      EXPECT_TRUE(this->seen() == before) << odd;
    }
}

TYPED_TEST(RefusedNumbers, AsASizeChangeNothing) {
  const Seen before = this->seen();
  for (const double odd : {not_a_number, infinity, -infinity, 1e300, 2147483648.0, -2147483649.0}) {
    this->control.resize_to(odd, 4000);
    this->control.resize_to(6000, odd);
    EXPECT_TRUE(this->seen() == before) << odd;
  }
}

TYPED_TEST(RefusedNumbers, NeverKeepAPropertyFromBeingRead) {
  for (const MemberInfo& member : description_of<TypeParam>().members) {
    if (member.name == "GetLineOrAngle") continue;
    for (std::size_t i = 0; i < member.arguments.size(); ++i)
      for (const double odd : odd_numbers) {
        if (!is_number(member.arguments[i].type)) continue;
        this->control.InitProperties();
        std::vector<Variant> arguments = this->harmless(member);
        arguments[i] = odd;
        this->answer_of(member, arguments);
        EXPECT_NO_THROW(this->properties()) << member.name << " " << odd;
      }
  }
}

TYPED_TEST(RefusedNumbers, LeftInTheWaferByTheHostKeepNoPropertyFromBeingRead) {
  for (const double odd : {not_a_number, infinity, -infinity, 1e300, -1e300}) {
    for (auto field : {&wafer::col1,      &wafer::col2,  &wafer::col3,   &wafer::col4,       &wafer::col5,
                       &wafer::col6,      &wafer::col7,  &wafer::col8,   &wafer::col9,       &wafer::col10,
                       &wafer::ColS1,     &wafer::ColS2, &wafer::ColS3,  &wafer::flat_ratio, &wafer::WafDiam,
                       &wafer::test_diam, &wafer::mean,  &wafer::StdDev, &wafer::maxi,       &wafer::mini})
      this->control.wafobj.*field = odd;
    EXPECT_NO_THROW(this->properties()) << odd;
  }
}

// ---- What a single member says of its own numbers ----

class RefusedByPlot2D : public Plot2DTest {};

TEST_F(RefusedByPlot2D, LimitsWhoseSumOverflowsChangeNothing) {
  plot_square();
  ASSERT_TRUE(control.SetPlotLimit(10, 90));
  const double low = control.wafobj.Low, range = control.wafobj.range, spread = control.wafobj.HiLo;
  EXPECT_FALSE(control.SetPlotLimit(1e308, 1.5e308));
  EXPECT_EQ(control.wafobj.minimal, 10);
  EXPECT_EQ(control.wafobj.maximal, 90);
  EXPECT_EQ(control.wafobj.Low, low);
  EXPECT_EQ(control.wafobj.range, range);
  EXPECT_EQ(control.wafobj.HiLo, spread);
}

class RefusedByHistogram : public ControlTest<Histogram> {};

TEST_F(RefusedByHistogram, AChartWithoutAPlaceStaysWhereItIs) {
  plot_square();
  control.SetChartDim(600, 900);
  const double top = control.PLOTA.Top, height = control.PLOTA.Height;
  control.SetChartDim(not_a_number, 500);
  control.SetChartDim(500, infinity);
  control.resize_to(7000, 5000);
  EXPECT_EQ(control.PLOTA.Top.get(), top);
  EXPECT_EQ(control.PLOTA.Height.get(), height);
}

class RefusedByLineScan : public ControlTest<LineScan> {
 protected:
  std::vector<double> line() const {
    std::int16_t angle = 0;
    std::vector<double> ends(4);
    control.GetLineOrAngle(angle, ends[0], ends[1], ends[2], ends[3]);
    return ends;
  }
};

TEST_F(RefusedByLineScan, OnePointThatIsNoneRefusesTheWholeLine) {
  place();
  control.SetLineOrAngle(PlotTypeEnumLineScan::vbline, 30, 0, 0, 1.5, 2, 3, 4);
  for (const double odd : {not_a_number, 32768.0, -1e9}) {
    control.SetLineOrAngle(PlotTypeEnumLineScan::vbAngle, 40, 5, 5, 5, 5, 5, odd);
    control.SetLineOrAngle(PlotTypeEnumLineScan::vbline, 40, odd, 5, 5, 5, 5, 5);
    EXPECT_EQ(control.PlotType(), PlotTypeEnumLineScan::vbline);
    EXPECT_EQ(line(), (std::vector<double>{1.5, 2, 3, 4})) << odd;
  }
  EXPECT_EQ(control.angle(), 0) << "told in line mode, and so never taken";
}

TEST_F(RefusedByLineScan, TheFarthestPointIsThatOfSixteenBits) {
  place();
  control.SetLineOrAngle(PlotTypeEnumLineScan::vbline, 0, 0, 0, 32767, -32768, 32767.4, -32768.4);
  EXPECT_EQ(control.LineStartPointX(), 32767);
  EXPECT_EQ(control.LineEndPointY(), -32768);
}

}  // namespace
}  // namespace mirolen
