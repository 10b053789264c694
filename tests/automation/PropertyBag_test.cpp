#include "mirolen/automation/PropertyBag.h"

#include <gtest/gtest.h>

#include <map>
#include <vector>

#include "gauge.h"
#include "watched_bag.h"

namespace mirolen::automation {
namespace {

using Keys = std::vector<std::string>;

const Keys all_keys{"Level", "Loud", "Paint", "Name", "Step"};

class StoredProperties : public testing::Test {
 protected:
  void read() { ReadProperties(described(gauge), bag); }
  void write() { WriteProperties(described(gauge), bag); }

  Gauge gauge;
  WatchedBag bag;
};

TEST(MemoryPropertyBag, GivesTheFallbackForAMissingKey) {
  MemoryPropertyBag bag;
  EXPECT_EQ(bag.read("key", 3.0), Variant(3.0));
  EXPECT_TRUE(bag.values.empty());
}

TEST(MemoryPropertyBag, KeepsValuesWithTheirTypes) {
  MemoryPropertyBag bag;
  bag.write("a", std::int16_t{1}, std::int16_t{0});
  bag.write("b", std::string("text"), {});
  bag.write("a", true, false);
  EXPECT_EQ(bag.read("a", {}), Variant(true));
  EXPECT_EQ(bag.read("b", {}), Variant(std::string("text")));
}

TEST(MemoryPropertyBag, KeepsAValueThatEqualsItsFallback) {
  MemoryPropertyBag bag;
  bag.write("a", std::int16_t{5}, std::int16_t{5});
  EXPECT_EQ(bag.values.at("a"), Variant(std::int16_t{5}));
}

TEST_F(StoredProperties, AreWrittenInTheOrderOfTheKeys) {
  write();
  EXPECT_EQ(bag.writes, all_keys);
}

TEST_F(StoredProperties, AreReadInTheOrderOfTheKeys) {
  read();
  EXPECT_EQ(bag.reads, all_keys);
}

TEST_F(StoredProperties, TakeTheirDefaultsFromAnEmptyBag) {
  gauge.Paint = 77;
  read();
  EXPECT_EQ(gauge.Level, 5);
  EXPECT_TRUE(gauge.Loud);
  EXPECT_EQ(gauge.Paint, 77u) << "without a default the present value stays";
  EXPECT_EQ(gauge.Name, "none");
  EXPECT_EQ(gauge.Step, 3);
}

TEST_F(StoredProperties, AreHandedOverWithTheSameDefaultBothWays) {
  gauge.Paint = 9;
  read();
  const auto at_reading = bag.fallbacks;
  bag.fallbacks.clear();
  write();
  EXPECT_EQ(bag.fallbacks, at_reading);
  EXPECT_EQ(at_reading.at("Level"), Variant(std::int16_t{5}));
  EXPECT_EQ(at_reading.at("Loud"), Variant(true));
  EXPECT_EQ(at_reading.at("Paint"), Variant(std::int32_t{9}));
  EXPECT_EQ(at_reading.at("Name"), Variant(std::string("none")));
}

TEST_F(StoredProperties, AreWrittenWithTheTypesOfTheirKeys) {
  gauge = {2.5, 4, true, "n", 0x8000000F, Mode::Off, nullptr, ""};
  write();
  EXPECT_EQ(bag.values.at("Level"), Variant(std::int16_t{2}));
  EXPECT_EQ(bag.values.at("Loud"), Variant(true));
  EXPECT_EQ(bag.values.at("Paint"), Variant(std::int32_t{-2147483633}));
  EXPECT_EQ(bag.values.at("Name"), Variant(std::string("n")));
  EXPECT_EQ(bag.values.at("Step"), Variant(std::int16_t{4}));
}

TEST_F(StoredProperties, AreRoundedHalfToEven) {
  gauge.Level = 3.5;
  write();
  EXPECT_EQ(bag.values.at("Level"), Variant(std::int16_t{4}));
  gauge.Level = -2.5;
  write();
  EXPECT_EQ(bag.values.at("Level"), Variant(std::int16_t{-2}));
}

TEST_F(StoredProperties, ComeBackAsTheyWere) {
  gauge = {-12, 7, false, "back", 0x00FF8040, Mode::Off, nullptr, ""};
  write();
  const Gauge before = gauge;
  gauge = {};
  read();
  EXPECT_EQ(gauge.Level, before.Level);
  EXPECT_EQ(gauge.Step, before.Step);
  EXPECT_EQ(gauge.Loud, before.Loud);
  EXPECT_EQ(gauge.Name, before.Name);
  EXPECT_EQ(gauge.Paint, before.Paint);
}

TEST_F(StoredProperties, AreConvertedFromWhatTheBagHolds) {
  bag.values = {{"Level", std::string("8")}, {"Loud", std::int16_t{0}}, {"Name", 2.5}, {"Step", 1.5}};
  read();
  EXPECT_EQ(gauge.Level, 8);
  EXPECT_FALSE(gauge.Loud);
  EXPECT_EQ(gauge.Name, "2.5");
  EXPECT_EQ(gauge.Step, 2);
}

TEST_F(StoredProperties, WithoutAReadingCountAsMissing) {
  bag.values = {{"Level", Array(1, 3)}, {"Loud", std::string("loud")}, {"Step", 1e9}, {"Name", Variant{}}};
  read();
  EXPECT_EQ(gauge.Level, 5);
  EXPECT_TRUE(gauge.Loud);
  EXPECT_EQ(gauge.Step, 3);
  EXPECT_EQ(gauge.Name, "none");
}

TEST_F(StoredProperties, ThatDoNotFitAreToldWhenAllOthersAreWritten) {
  gauge.Level = 40000;
  gauge.Name = "written";
  EXPECT_THROW(write(), OverflowError);
  EXPECT_EQ(bag.writes, (Keys{"Loud", "Paint", "Name", "Step"}));
  EXPECT_EQ(bag.values.at("Name"), Variant(std::string("written")));
}

}  // namespace
}  // namespace mirolen::automation
