#include <algorithm>
#include <cmath>
#include <random>

#include "control_support.h"

namespace mirolen {
namespace {

using automation::ArgumentInfo;
using automation::MemberInfo;
using automation::MemberKind;
using automation::ObjectReference;
using automation::Type;
using automation::Variant;

/// Random values with a liking for odd ones.
class Dice {
 public:
  explicit Dice(unsigned long long seed) : random_(seed) {}

  int up_to(int highest) { return std::uniform_int_distribution<int>(0, highest)(random_); }
  double between(double low, double high) {
    return std::uniform_real_distribution<double>(low, high)(random_);
  }
  bool one_in(int many) { return up_to(many - 1) == 0; }

  double number() {
    static constexpr double odd[] = {0,      -0.0,  1,      -1,       0.5,       2.5,          1e-16, 1e15,
                                     5e-324, 1e308, -1e308, infinity, -infinity, not_a_number, 32767, 65536};
    return one_in(4) ? odd[up_to(15)] : between(-10, 210);
  }
  double length() { return one_in(10) ? number() : between(0, 40000); }

  SiteColumns sites() {
    SiteColumns sites;
    const int count = one_in(10) ? 0 : up_to(40);
    const double reach = one_in(8) ? 300 : 60;
    for (int i = 0; i < count; ++i) {
      sites.x.push_back(between(-reach, reach));
      sites.y.push_back(between(-reach, reach));
      sites.z.push_back(one_in(60) ? number() : one_in(3) ? 7 : between(-5, 100));
    }
    if (one_in(12)) sites.y.push_back(0);
    return sites;
  }

  Array array() {
    std::vector<double> values;
    for (int i = up_to(6); i > 0; --i) values.push_back(number());
    return Array(values, one_in(3) ? up_to(3) - 1 : 1);
  }
  std::string text() {
    static const char* const words[] = {"", "5", "-2.5", "text", "1e9", " ", "0", "nan"};
    return words[up_to(7)];
  }

  Variant value_for(Type type) {
    if (one_in(8)) type = static_cast<Type>(up_to(7));
    switch (type) {
      case Type::boolean:
        return one_in(2);
      case Type::int16:
        return static_cast<std::int16_t>(up_to(65535) - 32768);
      case Type::int32:
        return one_in(2) ? up_to(4) - 2 : up_to(2147483646);
      case Type::real:
        return number();
      case Type::text:
        return text();
      case Type::array:
        return array();
      case Type::object:
        return ObjectReference{};
      default:
        return {};
    }
  }

 private:
  std::mt19937_64 random_;
};

class Plot2DRandom : public Plot2DTest {
 protected:
  Plot2DRandom() : seed_(wanted_seed()), dice(seed_) {
    RecordProperty("MIROLEN_SEED", std::to_string(seed_));
  }

  std::string note() const { return "MIROLEN_SEED=" + std::to_string(seed_); }

  /// A search over a test circle many times as wide as the wafer takes seconds for a picture.
  void keep_quick() {
    if (control.WaferDiameter() < 50 || control.TestDiameter() > 400) control.InitProperties();
  }
  void call_a_member();
  void call_by_name(const MemberInfo& member);
  void expect_sound() const;
  void expect_statistics_of(const SiteColumns& sites) const;

 private:
  unsigned long long seed_;

 protected:
  Dice dice;
};

bool has_a_reading(const std::vector<Variant>& values, const MemberInfo& member) {
  try {
    for (std::size_t i = 0; i < values.size(); ++i) converted(values[i], member.arguments[i].type);
    return true;
  } catch (const RunTimeError&) {
    return false;
  }
}

void Plot2DRandom::call_by_name(const MemberInfo& member) {
  std::vector<Variant> values;
  for (const ArgumentInfo& argument : member.arguments) values.push_back(dice.value_for(argument.type));
  const bool fits = has_a_reading(values, member);
  try {
    automation::invoke(described(control), member.name, member.kind, values);
  } catch (const RunTimeError& error) {
    EXPECT_FALSE(fits) << member.name << ": " << error.what();
  }
  keep_quick();
}

void Plot2DRandom::call_a_member() {
  const std::vector<std::function<void()>> calls{
      [&] { control.load(dice.sites()); },
      [&] { control.load(dice.sites()); },
      [&] { control.Plot(); },
      [&] { control.resize_to(dice.length(), dice.length()); },
      [&] { control.resize_to(dice.between(4000, 9000), dice.between(3000, 9000)); },
      [&] { control.WaferDiameter(dice.one_in(2) ? 200 : dice.number()), keep_quick(); },
      [&] { control.TestDiameter(dice.one_in(2) ? 194 : dice.number()), keep_quick(); },
      [&] { control.Resolution(dice.one_in(3) ? dice.number() : dice.between(8, 60)); },
      [&] { control.SetPlotLimit(dice.number(), dice.number()); },
      [&] { control.ReleasePlotLimit(); },
      [&] { control.HideLegend(dice.one_in(2)); },
      [&] { control.ShowSites(static_cast<Sites>(dice.up_to(2) - 1)); },
      [&] { control.WaferStyle(static_cast<WaferSt>(dice.up_to(3))); },
      [&] { control.BackColor(static_cast<Color>(dice.up_to(0xFFFFFF))); },
      [&] { control.IntervalColor(dice.up_to(9), static_cast<Color>(dice.up_to(30))); },
      [&] { control.PlotCaption(dice.text()); },
      [&] { control.clear(); },
      [&] { control.SetPlotNotVaild(); },
      [&] { control.SetDataFile("nowhere", dice.number()); },
      [&] { control.InitProperties(); },
      [&] { control.Interpolation(dice.number(), dice.number()); },
  };
  calls[static_cast<std::size_t>(dice.up_to(static_cast<int>(calls.size()) - 1))]();
}

void Plot2DRandom::expect_statistics_of(const SiteColumns& sites) const {
  double high = sites.z[0], low = sites.z[0], sum = 0;
  for (const double z : sites.z) {
    high = std::max(high, z);
    low = std::min(low, z);
    sum += z;
  }
  EXPECT_EQ(control.Maximum(), high);
  EXPECT_EQ(control.Minimum(), low);
  EXPECT_EQ(control.mean(), sum / static_cast<double>(sites.z.size()));
}

void Plot2DRandom::expect_sound() const {
  EXPECT_TRUE(!stretched() || !control.PLOTA.Visible);
  EXPECT_EQ(control.LegendShown, !control.HideLegend());
  EXPECT_EQ(control.frmove.Visible.get(), control.LegendShown);
  const double sites = control.wafobj.GetNop();  // need not be whole behind a file that could not be read
  if (sites < 32767) {
    EXPECT_EQ(static_cast<double>(sites_of(control).x.size()), std::nearbyint(sites));
  }
  EXPECT_TRUE(std::isfinite(control.TestDiameter()) && std::isfinite(control.WaferDiameter()));
  EXPECT_TRUE(std::isfinite(control.Resolution()));
}

TEST_F(Plot2DRandom, AnySequenceOfCallsLeavesASoundControl) {
  place();
  for (int step = 0; step < 1500 && !HasFailure(); ++step) {
    control.MousePointer(0);
    ASSERT_NO_THROW(call_a_member()) << note();
    EXPECT_EQ(control.MousePointer(), 0) << note();
    expect_sound();
  }
  if (HasFailure()) ADD_FAILURE() << note();
}

TEST_F(Plot2DRandom, AnySequenceOfCallsByNameLeavesASoundControl) {
  place();
  const auto& members = description_of_Plot2D().members;
  for (int step = 0; step < 1500 && !HasFailure(); ++step) {
    if (dice.one_in(12)) control.load(dice.sites());
    if (dice.one_in(20)) control.resize_to(dice.length(), dice.length());
    control.MousePointer(0);
    const MemberInfo& member =
        members[static_cast<std::size_t>(dice.up_to(static_cast<int>(members.size()) - 1))];
    ASSERT_NO_THROW(call_by_name(member)) << member.name << ' ' << note();
    if (member.name != "MousePointer") {
      EXPECT_EQ(control.MousePointer(), 0) << member.name;
    }
    expect_sound();
  }
  if (HasFailure()) ADD_FAILURE() << note();
}

TEST_F(Plot2DRandom, StatisticsAreThoseOfTheDataGivenBack) {
  place();
  for (int round = 0; round < 300 && !HasFailure(); ++round) {
    control.InitProperties();
    if (control.load(dice.sites()) != 0) continue;
    if (dice.one_in(2)) control.TestDiameter(dice.between(20, 194));
    if (dice.one_in(2)) control.SetPlotLimit(dice.between(-5, 5), dice.between(6, 9));
    control.Resolution(30);
    control.Plot();
    const SiteColumns sites = sites_of(control);
    if (!sites.z.empty()) expect_statistics_of(sites);
  }
  if (HasFailure()) ADD_FAILURE() << note();
}

TEST_F(Plot2DRandom, AnythingMayHappenFromPendingEvents) {
  place();
  int depth = 0;
  toolkit.pending_events = [&] {
    if (++depth <= 2) call_a_member();
    --depth;
  };
  for (int step = 0; step < 800 && !HasFailure(); ++step) {
    control.MousePointer(0);
    ASSERT_NO_THROW(call_a_member()) << note();
    EXPECT_EQ(control.MousePointer(), 0) << note();
    expect_sound();
  }
  if (HasFailure()) ADD_FAILURE() << note();
}

TEST_F(Plot2DRandom, PicturesMayFailAtAnyTime) {
  place();
  toolkit.on_draw = [&](const PictureBox&, std::string_view call) {
    if (dice.one_in(50)) throw CanvasError(std::string(call));
  };
  for (int step = 0; step < 800 && !HasFailure(); ++step) {
    control.MousePointer(0);
    ASSERT_NO_THROW(call_a_member()) << note();
    EXPECT_EQ(control.MousePointer(), 0) << note();
  }
  toolkit.on_draw = nullptr;
  if (HasFailure()) ADD_FAILURE() << note();
}

// ---- Every member in any order on a control that has just been made ----

Variant plain_value(Type type) {
  switch (type) {
    case Type::boolean:
      return true;
    case Type::text:
      return std::string("text");
    case Type::array:
      return Array(std::vector<double>{1, 2, 3, 4});
    case Type::object:
      return ObjectReference{};
    default:
      return converted(2.0, type);
  }
}

void call_plainly(Plot2D& control, const MemberInfo& member) {
  std::vector<Variant> values;
  for (const ArgumentInfo& argument : member.arguments) values.push_back(plain_value(argument.type));
  EXPECT_NO_THROW(automation::invoke(described(control), member.name, member.kind, values)) << member.name;
}

TEST(Plot2DFresh, EveryMemberIsSafeAsTheFirstAndTheSecondCall) {
  const auto& members = description_of_Plot2D().members;
  for (const MemberInfo& first : members) {
    for (const MemberInfo& second : members) {
      SpyToolkit toolkit;
      HeadlessContainer form;
      OpenPlot2D control(toolkit, form);
      call_plainly(control, first);
      call_plainly(control, second);
      call_plainly(control, *description_of_Plot2D().find("Plot", MemberKind::method));
      if (first.name != "MousePointer" && second.name != "MousePointer") {
        EXPECT_EQ(control.MousePointer(), 0) << first.name << ' ' << second.name;
      }
    }
  }
}

TEST(Plot2DFresh, MayGoAtAnyTime) {
  SpyToolkit toolkit;
  HeadlessContainer form;
  { OpenPlot2D unused(toolkit, form); }
  auto used = std::make_unique<OpenPlot2D>(toolkit, form);
  used->InitProperties();
  used->load(square_of_sites());
  used->Plot();
  const auto snapshot = used->RePlot.Picture.get();
  used.reset();
  EXPECT_GT(recording_of(snapshot).size(), 20u) << "a snapshot outlives its control";
}

TEST(Plot2DFresh, StaysOnAFormWithoutASize) {
  SpyToolkit toolkit;
  HeadlessContainer form;
  OpenPlot2D control(toolkit, form);
  control.InitProperties();
  control.load(square_of_sites());
  EXPECT_EQ(control.Plot(), 0);
  EXPECT_GE(control.Width, 4500);
  EXPECT_GE(control.Height, 3180);
}

}  // namespace
}  // namespace mirolen
