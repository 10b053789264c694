#include <cmath>
#include <concepts>
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

/// Every boundary of a number, its neighbours, and what no number should be.
const std::vector<double>& boundaries() {
  static const std::vector<double> values{not_a_number,
                                          infinity,
                                          -infinity,
                                          1e308,
                                          -1e308,
                                          5e-324,
                                          32767,
                                          32768,
                                          -32768,
                                          -32769,
                                          65536,
                                          2147483647,
                                          2147483648.0,
                                          360,
                                          361,
                                          359,
                                          92,
                                          91,
                                          90,
                                          -1,
                                          0,
                                          -0.0,
                                          0.5,
                                          1,
                                          2,
                                          2.5,
                                          3,
                                          4,
                                          5,
                                          9,
                                          10,
                                          48.5,
                                          48.51,
                                          194,
                                          200,
                                          200.01};
  return values;
}

std::vector<Variant> values_for(Type type) {
  std::vector<Variant> values;
  switch (type) {
    case Type::boolean:
      return {true, false};
    case Type::text:
      return {std::string(), std::string("text"), std::string(300, 'x')};
    case Type::object:
      return {ObjectReference{}};
    default:
      for (const double number : boundaries()) values.emplace_back(number);
      return values;
  }
}

template <class Control>
class Boundaries : public ControlTest<Control> {
 protected:
  Boundaries() : seed_(wanted_seed()), random_(seed_) {
    this->RecordProperty("MIROLEN_SEED", std::to_string(seed_));
  }

  std::string note() const { return "MIROLEN_SEED=" + std::to_string(seed_); }
  double between(double low, double high) {
    return std::uniform_real_distribution<double>(low, high)(random_);
  }

  SiteColumns sites(int count) {
    SiteColumns columns;
    for (int i = 0; i < count; ++i) {
      const double angle = between(0, 6.28), radius = between(0, 95);
      columns.x.push_back(radius * std::cos(angle));
      columns.y.push_back(radius * std::sin(angle));
      columns.z.push_back(between(-5, 100));
    }
    return columns;
  }

  /// Few cells and curves, so that the plot of many sites or settings takes no time.
  void make_coarse() {
    for (const char* name : {"XResolution", "YResolution", "Resolution", "Interval"})
      if (description_of<Control>().find(name, MemberKind::let) &&
          description_of<Control>().find(name, MemberKind::let)->arguments[0].type == Type::real)
        automation::let(this->object(), name, std::string_view(name) == "Interval" ? 50.0 : 20.0);
    if constexpr (std::same_as<Control, Plot2DC>) this->control.IntervalInPercent(0);
  }
  void start_again(int count) {
    this->control.InitProperties();
    this->control.load(sites(count));
    make_coarse();
  }
  void expect_usable(const std::string& after) {
    EXPECT_NO_THROW(this->control.Plot()) << after << ' ' << note();
    EXPECT_EQ(this->control.MousePointer(), 0) << after << ' ' << note();
    EXPECT_TRUE(std::isfinite(this->control.TestDiameter())) << after;
    EXPECT_TRUE(std::isfinite(this->control.WaferDiameter())) << after;
  }
  void expect_usable_in_all_sizes(const std::string& after) {
    for (const double size : {100.0, 6000.0}) {
      EXPECT_NO_THROW(this->control.resize_to(size, size)) << after << ' ' << note();
      expect_usable(after);
    }
  }
  /// A fine grid over a wide circle takes seconds, and is not what is asked here.
  bool takes_long(const MemberInfo& member, const Variant& value) const {
    const auto* number = std::get_if<double>(&value);
    if (!number || !std::isfinite(*number)) return false;
    const bool step = member.name.ends_with("Resolution") && member.arguments[0].type == Type::real;
    if constexpr (std::same_as<Control, Histogram>) return step && std::abs(*number) > 1000;
    if (member.name == "Interval") return *number > 0 && *number < 1;
    return step && *number > 0 && *number < 2;
  }

 private:
  unsigned long long seed_;
  std::mt19937_64 random_;
};
TYPED_TEST_SUITE(Boundaries, AllControls, ControlNames);

TYPED_TEST(Boundaries, OfEveryPropertyByNameLeaveAUsableControl) {
  this->place();
  for (const MemberInfo& member : description_of<TypeParam>().members) {
    if (member.kind == MemberKind::get || member.kind == MemberKind::method) continue;
    for (const Variant& value : values_for(member.arguments[0].type)) {
      if (this->takes_long(member, value)) continue;
      this->start_again(12);
      try {
        automation::let(this->object(), member.name, value);
      } catch (const InvalidArgument&) {  // no reading in the property's type
      } catch (const OverflowError&) {
      }
      if (member.name == "MousePointer") this->control.MousePointer(0);
      if (this->control.TestDiameter() > 400) this->control.TestDiameter(194);
      this->expect_usable(member.name);
      this->control.MousePointer(0);
    }
    this->expect_usable_in_all_sizes(member.name);
    if (this->HasFailure()) FAIL() << member.name << ' ' << this->note();
  }
}

TYPED_TEST(Boundaries, OfEveryMethodByNameLeaveAUsableControl) {
  this->place();
  for (const MemberInfo& member : description_of<TypeParam>().members) {
    if (member.kind != MemberKind::method) continue;
    for (const double number : boundaries()) {
      this->start_again(12);
      std::vector<Variant> arguments;
      for (const ArgumentInfo& argument : member.arguments)
        arguments.push_back(argument.type == Type::array    ? Variant(Array(std::vector<double>(4, number)))
                            : argument.type == Type::text   ? Variant(std::string("nowhere"))
                            : argument.type == Type::object ? Variant(ObjectReference{})
                                                            : Variant(number));
      try {
        automation::invoke(this->object(), member.name, member.kind, arguments);
      } catch (const InvalidArgument&) {  // no reading in the argument's type
      } catch (const OverflowError&) {
      }
      this->expect_usable(member.name);
    }
    if (this->HasFailure()) FAIL() << member.name << ' ' << this->note();
  }
}

TYPED_TEST(Boundaries, OfTheNumberOfSitesPlotInEverySize) {
  this->place();
  for (const int count : {0, 1, 3, 4, 9, 10, 32767}) {
    this->start_again(count);
    EXPECT_EQ(this->control.Plot(), count == 0 ? 1 : 0) << count;
    EXPECT_EQ(sites_of(this->control).x.size(), static_cast<std::size_t>(count));
    this->expect_usable_in_all_sizes(std::to_string(count));
  }
}

TYPED_TEST(Boundaries, MoreSitesThanFitAreRefused) {
  this->place();
  EXPECT_EQ(this->control.load(this->sites(32768)), 4);
}

TYPED_TEST(Boundaries, ASmallControlTakesItsSmallestSizeByItself) {
  EXPECT_EQ(this->control.Width.get(), ControlFrame::usual_size.width);
  EXPECT_EQ(this->control.Height.get(), ControlFrame::usual_size.height);
  this->place();
  for (const bool hidden : {false, true}) {
    this->control.HideLegend(hidden);
    this->control.resize_to(0, 0);
    EXPECT_EQ(this->control.Width.get(), this->control.smallest_size().width);
    EXPECT_EQ(this->control.Height.get(), this->control.smallest_size().height);
  }
}

TYPED_TEST(Boundaries, OfTheSizeLeaveAUsableControl) {
  this->place();
  this->start_again(12);
  for (const bool hidden : {false, true}) {
    this->control.HideLegend(hidden);
    for (const double width : {-1.0, 0.0, 749.0, 750.0, 1999.0, 2000.0, 3999.0, 4499.0, 4500.0, 32767.0, 1e6,
                               infinity, not_a_number})
      for (const double height : {0.0, 749.0, 1770.0, 2850.0, 3180.0, 40000.0, infinity}) {
        EXPECT_NO_THROW(this->control.resize_to(width, height));
        EXPECT_EQ(this->control.MousePointer(), 0);
      }
  }
  this->control.resize_to(6000, 4000);
  this->expect_usable("sizes");
}

TYPED_TEST(Boundaries, EqualValuesPlot) {
  this->place();
  for (const double value : {0.0, 5.0, -5.0, 1e300, -1e300, 1e-300}) {
    SiteColumns columns = this->sites(12);
    columns.z.assign(12, value);
    this->start_again(0);
    this->control.load(columns);
    this->expect_usable(std::to_string(value));
  }
}

TYPED_TEST(Boundaries, AnySequenceOfMembersLeavesAUsableControl) {
  this->place();
  const auto& members = description_of<TypeParam>().members;
  for (int step = 0; step < 300 && !this->HasFailure(); ++step) {
    if (step % 10 == 0) this->start_again(step % 40);
    const MemberInfo& member =
        members[static_cast<std::size_t>(this->between(0, static_cast<double>(members.size()) - 0.5))];
    std::vector<Variant> arguments;
    for (std::size_t i = 0; i < member.arguments.size(); ++i)
      arguments.emplace_back(boundaries()[static_cast<std::size_t>(
          this->between(0, static_cast<double>(boundaries().size()) - 0.5))]);
    if (!arguments.empty() && this->takes_long(member, arguments[0])) continue;
    try {
      automation::invoke(this->object(), member.name, member.kind, arguments);
    } catch (const InvalidArgument&) {  // no reading in the argument's type
    } catch (const OverflowError&) {
    }
    if (member.name == "MousePointer") this->control.MousePointer(0);
    if (this->control.TestDiameter() > 400 || this->control.WaferDiameter() < 50) this->start_again(5);
    this->make_coarse();
    this->expect_usable(member.name);
  }
}

}  // namespace
}  // namespace mirolen
