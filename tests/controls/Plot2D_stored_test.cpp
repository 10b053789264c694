#include <optional>

#include "automation/watched_bag.h"
#include "control_support.h"

namespace mirolen {
namespace {

using automation::ObjectReference;
using automation::Type;
using automation::Variant;
using automation::WatchedBag;

struct Key {
  std::string key;
  Type type;
  std::optional<Variant> fallback;
  std::string property;
};

Variant whole(std::int32_t value) { return value; }
Variant small(int value) { return static_cast<std::int16_t>(value); }

std::vector<Key> told_keys() {
  const std::int32_t colors[10] = {0x000080, 0x0000FF, 0x00FFFF, 0x00FF00, 0x008080,
                                   0x008000, 0x808000, 0xFF0000, 0x800000, 0x800080};
  std::vector<Key> keys{{"2DBackColor", Type::int32, std::nullopt, "BackColor"},
                        {"2DFLAT", Type::int32, whole(1), "WaferStyle"},
                        {"2DTESTDM", Type::int16, small(194), "TestDiameter"},
                        {"2DWAFERDM", Type::int16, small(200), "WaferDiameter"}};
  for (int i = 0; i < 10; ++i)
    keys.push_back({"2DInterCol" + std::to_string(i), Type::int32, whole(colors[i]),
                    "IntervalColor" + std::to_string(i)});
  for (const Key& key : {Key{"StdResx2D", Type::int16, small(5), "Resolution"},
                         Key{"StdMark2D", Type::int32, whole(0), "ShowSites"},
                         Key{"2DLegend", Type::boolean, false, "HideLegend"},
                         Key{"2DCaption", Type::text, std::string("Wafer"), "PlotCaption"},
                         Key{"2DMousePointer", Type::int16, small(0), "MousePointer"},
                         Key{"2DMouseIcon", Type::object, ObjectReference{}, "MouseIcon"}})
    keys.push_back(key);
  return keys;
}

Names told_names() {
  Names names;
  for (const Key& key : told_keys()) names.push_back(key.key);
  return names;
}

class Plot2DStored : public Plot2DTest {
 protected:
  void read() { automation::ReadProperties(described(control), bag); }
  void write() { automation::WriteProperties(described(control), bag); }
  void expect_defaults() const {
    EXPECT_EQ(control.WaferStyle(), WaferSt::Notch);
    EXPECT_EQ(control.TestDiameter(), 194);
    EXPECT_EQ(control.WaferDiameter(), 200);
    EXPECT_EQ(control.Resolution(), 5);
    EXPECT_EQ(control.ShowSites(), Sites::HideSite);
    EXPECT_FALSE(control.HideLegend());
    EXPECT_EQ(control.PlotCaption(), "Wafer");
  }

  WatchedBag bag;
};

TEST_F(Plot2DStored, TheKeysAreToldInTheirOrderWithTypesAndDefaults) {
  const auto& stored = description_of_Plot2D().stored;
  const std::vector<Key> told = told_keys();
  ASSERT_EQ(stored.size(), told.size());
  for (std::size_t i = 0; i < told.size(); ++i) {
    EXPECT_EQ(stored[i].key, told[i].key);
    EXPECT_EQ(stored[i].type, told[i].type) << told[i].key;
    EXPECT_EQ(stored[i].property, told[i].property) << told[i].key;
    if (told[i].type == Type::object) continue;
    EXPECT_EQ(stored[i].fallback.has_value(), told[i].fallback.has_value()) << told[i].key;
    if (told[i].fallback) {
      EXPECT_EQ(*stored[i].fallback, *told[i].fallback) << told[i].key;
    }
  }
}

TEST_F(Plot2DStored, TheIconsDefaultIsNothing) {
  write();
  EXPECT_EQ(std::get<ObjectReference>(bag.fallbacks.at("2DMouseIcon")).pointer, nullptr);
}

TEST_F(Plot2DStored, ANewControlTakesItsSettingsInOrder) {
  control.InitProperties();
  expect_defaults();
  EXPECT_EQ(control.wafobj.flat_ratio, 1.0);
  EXPECT_EQ(form.changes, (Names{"TestDiameter", "WaferDiameter", "WaferStyle", "Resolution", "ShowSites",
                                 "HideLegend", "PlotCaption"}));
}

TEST_F(Plot2DStored, AnEmptyBagGivesTheDefaults) {
  const Color background = control.BackColor();
  read();
  expect_defaults();
  EXPECT_EQ(control.BackColor(), background);
  EXPECT_EQ(control.MousePointer(), 0);
  EXPECT_EQ(control.MouseIcon(), nullptr);
  const std::vector<Key> told = told_keys();
  for (int i = 0; i < 10; ++i)
    EXPECT_EQ(whole(static_cast<std::int32_t>(control.IntervalColor(i))),
              *told[4 + static_cast<std::size_t>(i)].fallback);
}

TEST_F(Plot2DStored, AnEmptyBagUndoesOtherSettings) {
  place();
  control.WaferStyle(WaferSt::Flat);
  control.TestDiameter(100);
  control.WaferDiameter(300);
  control.Resolution(9);
  control.ShowSites(Sites::ShowSite);
  control.HideLegend(true);
  control.PlotCaption("");
  control.MousePointer(5);
  control.IntervalColor(3, 0);
  control.BackColor(0x445566);
  read();
  expect_defaults();
  EXPECT_EQ(control.MousePointer(), 0);
  EXPECT_EQ(control.IntervalColor(3), 0x00FF00u);
  EXPECT_EQ(control.BackColor(), 0x445566u) << "its default is the present one";
}

TEST_F(Plot2DStored, ALoadedControlTakesItsSettingsInOrder) {
  read();
  EXPECT_EQ(bag.reads, told_names());
  Names notices{"BackColor", "WaferStyle", "TestDiameter", "WaferDiameter"};
  for (int i = 0; i < 10; ++i) notices.push_back("IntervalColor" + std::to_string(i));
  for (const char* name : {"Resolution", "ShowSites", "HideLegend", "PlotCaption"})
    notices.emplace_back(name);
  EXPECT_EQ(form.changes, notices);
}

TEST_F(Plot2DStored, AreWrittenInTheSameOrderWithTheSameDefaults) {
  control.InitProperties();
  control.BackColor(0x445566);
  write();
  EXPECT_EQ(bag.writes, told_names());
  for (const Key& key : told_keys())
    if (key.fallback && key.type != Type::object) {
      EXPECT_EQ(bag.fallbacks.at(key.key), *key.fallback) << key.key;
    }
  EXPECT_EQ(bag.fallbacks.at("2DBackColor"), whole(0x445566));
}

TEST_F(Plot2DStored, AreWrittenWithTheirTypes) {
  control.InitProperties();
  write();
  for (const Key& key : told_keys())
    EXPECT_EQ(automation::type_of(bag.values.at(key.key)), key.type) << key.key;
  EXPECT_EQ(bag.values.at("2DTESTDM"), small(194));
  EXPECT_EQ(bag.values.at("2DFLAT"), whole(1));
  EXPECT_EQ(bag.values.at("2DLegend"), Variant(false));
  EXPECT_EQ(bag.values.at("2DCaption"), Variant(std::string("Wafer")));
}

TEST_F(Plot2DStored, AreRoundedHalfToEven) {
  control.InitProperties();
  control.WaferDiameter(300.5);
  control.TestDiameter(151.5);
  control.Resolution(2.5);
  write();
  EXPECT_EQ(bag.values.at("2DWAFERDM"), small(300));
  EXPECT_EQ(bag.values.at("2DTESTDM"), small(152));
  EXPECT_EQ(bag.values.at("StdResx2D"), small(2));
}

TEST_F(Plot2DStored, ADiameterThatDoesNotFitIsToldWhenAllOthersAreWritten) {
  control.InitProperties();
  control.WaferDiameter(40000);
  EXPECT_THROW(write(), OverflowError);
  Names expected = told_names();
  std::erase(expected, "2DWAFERDM");
  EXPECT_EQ(bag.writes, expected);
}

TEST_F(Plot2DStored, ComeBackAsTheyWere) {
  place();
  const auto icon = std::make_shared<RecordedImage>(SurfaceSize{1, 1}, Recording{});
  control.BackColor(0x80000005);
  control.WaferStyle(WaferSt::Flat);
  control.TestDiameter(280);
  control.WaferDiameter(300);
  for (int i = 0; i < 10; ++i) control.IntervalColor(i, 0x80000000u + static_cast<Color>(i));
  control.Resolution(7);
  control.ShowSites(Sites::ShowSite);
  control.HideLegend(true);
  control.PlotCaption("Thickness");
  control.MousePointer(2);
  control.MouseIcon(icon);
  write();

  OpenPlot2D loaded(toolkit, form);
  automation::ReadProperties(described(loaded), bag);
  EXPECT_EQ(loaded.BackColor(), 0x80000005u);
  EXPECT_EQ(loaded.WaferStyle(), WaferSt::Flat);
  EXPECT_EQ(loaded.TestDiameter(), 280);
  EXPECT_EQ(loaded.WaferDiameter(), 300);
  for (int i = 0; i < 10; ++i) EXPECT_EQ(loaded.IntervalColor(i), 0x80000000u + static_cast<Color>(i));
  EXPECT_EQ(loaded.Resolution(), 7);
  EXPECT_EQ(loaded.ShowSites(), Sites::ShowSite);
  EXPECT_TRUE(loaded.HideLegend());
  EXPECT_EQ(loaded.PlotCaption(), "Thickness");
  EXPECT_EQ(loaded.MousePointer(), 2);
  EXPECT_EQ(loaded.MouseIcon(), icon);
}

TEST_F(Plot2DStored, DataAndLimitsAreNotStored) {
  plot_square();
  control.SetPlotLimit(10, 90);
  write();
  EXPECT_EQ(bag.values.size(), told_keys().size());
  OpenPlot2D loaded(toolkit, form);
  automation::ReadProperties(described(loaded), bag);
  EXPECT_EQ(sites_of(loaded), SiteColumns{});
  EXPECT_FALSE(loaded.PlotLimitSet);
  EXPECT_EQ(loaded.Maximum(), 0);
}

TEST_F(Plot2DStored, TheGuardsOfTheSettersApply) {
  bag.values = {{"2DTESTDM", small(-5)},
                {"2DWAFERDM", small(-5)},
                {"StdResx2D", small(-5)},
                {"StdMark2D", whole(7)},
                {"2DFLAT", whole(9)}};
  control.InitProperties();
  control.WaferDiameter(150);
  read();
  EXPECT_EQ(control.TestDiameter(), 150) << "the wafer's, which is set behind it";
  EXPECT_EQ(control.WaferDiameter(), 200);
  EXPECT_EQ(control.Resolution(), 5);
  EXPECT_EQ(control.ShowSites(), Sites::ShowSite);
  EXPECT_EQ(control.WaferStyle(), WaferSt::Notch);
}

TEST_F(Plot2DStored, ValuesOfAWrongTypeCountAsMissing) {
  for (const Key& key : told_keys())
    if (key.key != "2DCaption" && key.key != "2DMouseIcon") bag.values[key.key] = std::string("no number");
  bag.values["2DCaption"] = Array(1, 2);
  bag.values["2DMouseIcon"] = 5.0;
  read();
  expect_defaults();
  EXPECT_EQ(control.MouseIcon(), nullptr);
}

TEST_F(Plot2DStored, AnObjectThatIsNoPictureCountsAsMissing) {
  bag.values["2DMouseIcon"] = ObjectReference{std::make_shared<int>(1), typeid(int)};
  EXPECT_NO_THROW(read());
  EXPECT_EQ(control.MouseIcon(), nullptr);
}

}  // namespace
}  // namespace mirolen
