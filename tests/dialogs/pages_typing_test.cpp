#include <gtest/gtest.h>

#include <cmath>
#include <map>

#include "fake_control.h"
#include "mirolen/dialogs/input_checks.h"
#include "mirolen/widgets/Headless.h"
#include "page_monkey.h"
#include "support/CommaInForce.h"
#include "support/site_support.h"

namespace mirolen {
namespace {

using automation::Variant;

bool among(const Variant& value, std::int32_t low, std::int32_t high) {
  const auto* number = std::get_if<std::int32_t>(&value);
  return number && *number >= low && *number <= high;
}

/// Whether a page may write this value to this property of a class.
bool is_valid(const std::string& class_name, const std::string& property, const Variant& value) {
  static const std::map<std::string, std::pair<std::int32_t, std::int32_t>> options{
      {"WaferStyle", {1, 2}},        {"ShowSites", {-1, 0}},         {"PlotColored", {0, 2}},
      {"marksites", {1, 3}},         {"Plot2DC.Resolution", {0, 2}}, {"Plot3D.PlotType", {1, 3}},
      {"Histogram.PlotType", {1, 4}}};
  for (const std::string& name : {property, class_name + "." + property})
    if (const auto found = options.find(name); found != options.end())
      return among(value, found->second.first, found->second.second);
  if (property == "HideLegend") return std::holds_alternative<bool>(value);
  if (property == "PlotScale") return std::holds_alternative<std::int16_t>(value);
  if (const auto* whole = std::get_if<std::int16_t>(&value)) {
    if (property == "IntervalInPercent") return *whole == 0 || *whole == -1;
    return *whole >= 0 && *whole <= 360;
  }
  const auto* number = std::get_if<double>(&value);
  return number && std::isfinite(*number);
}

class PagesUnderRandomTyping : public RandomInput {
 protected:
  void type_into_the_pages_of(FakeControl& control) {
    const std::string name = control.object().info->name;
    SCOPED_TRACE(name);
    HeadlessToolkit toolkit;
    PropertyDialog dialog(toolkit, {control.object()});
    PageMonkey user(dialog, random());
    int applied = 0;
    for (int step = 0; step < 3000; ++step) {
      user.act();
      for (const TextField* field : user.fields())
        ASSERT_TRUE(IsPlainDecimal(field->Text(), false)) << '"' << field->Text() << '"';
      for (const auto& [property, value] : control.writes)
        ASSERT_TRUE(is_valid(name, property, value)) << property;
      applied += !control.writes.empty();
      control.writes.clear();
      const auto diameter = static_cast<float>(std::get<double>(control["WaferDiameter"]));
      ASSERT_GE(diameter, static_cast<float>(std::get<double>(control["TestDiameter"])));
    }
    EXPECT_GT(applied, 0);
    for (const HeadlessToolkit::Message& message : toolkit.messages)
      EXPECT_EQ(message.text, "Wafer diamter can not be less than test diameter");
  }

  void type_into_all() {
    for (FakeControl& control : all_fakes()) type_into_the_pages_of(control);
  }
};

TEST_F(PagesUnderRandomTyping, HandValidValuesAloneToTheControl) { type_into_all(); }

TEST_F(PagesUnderRandomTyping, HandValidValuesAloneToTheControlWithADecimalComma) {
  const CommaInForce comma;
  type_into_all();
}

}  // namespace
}  // namespace mirolen
