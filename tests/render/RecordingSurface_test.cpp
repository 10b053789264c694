#include "mirolen/render/RecordingSurface.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <nlohmann/json.hpp>
#include <set>
#include <sstream>

#include "mirolen/render/SurfaceCanvas.h"
#include "support/site_support.h"

namespace mirolen {
namespace {

using nlohmann::json;

std::vector<json> json_of(const Recording& recording) {
  std::ostringstream out;
  write_json_lines(recording, out);
  std::istringstream in(out.str());
  std::vector<json> calls;
  for (std::string line; std::getline(in, line);) calls.push_back(json::parse(line));
  return calls;
}

Recording replayed(const Recording& recording) {
  RecordingSurface onto;
  replay(recording, onto);
  return onto.recording();
}

// ---- What stands in a call, to look for it in the JSON ----

std::string color_text(Color color) {
  char text[8];
  std::snprintf(text, sizeof text, "#%02X%02X%02X", color & 0xFF, color >> 8 & 0xFF, color >> 16 & 0xFF);
  return text;
}

using Pair = std::pair<double, double>;

/// All that stands in a call, wherever: pairs of numbers, other numbers, texts, flags.
struct Leaves {
  std::multiset<Pair> pairs;
  std::multiset<double> numbers;
  std::multiset<std::string> texts;
  std::multiset<bool> flags;
};

bool is_pair(const json& value) {
  return value.is_array() && value.size() == 2 && value[0].is_number() && value[1].is_number();
}

void collect(const json& value, Leaves& into) {
  if (is_pair(value)) {
    into.pairs.insert({value[0].get<double>(), value[1].get<double>()});
  } else if (value.is_structured()) {
    for (const json& child : value) collect(child, into);
  } else if (value.is_number()) {
    into.numbers.insert(value.get<double>());
  } else if (value.is_boolean()) {
    into.flags.insert(value.get<bool>());
  } else if (value.is_string()) {
    into.texts.insert(value.get<std::string>());
  }
}

Leaves leaves_of(const json& call) {
  Leaves leaves;
  collect(call, leaves);
  return leaves;
}

struct Told : Leaves {
  void add(Color color) { texts.insert(color_text(color)); }
  void add(const std::string& text) { texts.insert(text); }
  void add(double number) { numbers.insert(number); }
  void add(bool flag) { flags.insert(flag); }
  void add(SurfacePoint point) { pairs.insert({point.x, point.y}); }
  void add(SurfaceSize size) { pairs.insert({size.width, size.height}); }
  void add(PixelPoint point) { pairs.insert({point.x, point.y}); }
  void add(const Pen& pen) {
    add(pen.color);
    add(static_cast<double>(pen.width));
  }
  void add(const Brush& brush) {
    add(brush.color);
    add(brush.solid);
  }
  void add(const FontSpec& font) {
    add(font.Name);
    add(font.size);
    add(font.bold);
    add(font.underline);
  }
};

Told told_by(const recorded::Clear& call) {
  Told told;
  told.add(call.color);
  return told;
}
Told told_by(const recorded::Line& call) {
  Told told;
  told.add(call.pen), told.add(call.from), told.add(call.to);
  return told;
}
Told told_by(const recorded::Rectangle& call) {
  Told told;
  told.add(call.pen), told.add(call.brush), told.add(call.box.from), told.add(call.box.to);
  return told;
}
Told told_by(const recorded::Ellipse& call) {
  Told told;
  told.add(call.pen), told.add(call.brush), told.add(call.centre), told.add(call.radii);
  return told;
}
Told told_by(const recorded::Arc& call) {
  Told told;
  told.add(call.pen), told.add(call.centre), told.add(call.radii), told.add(call.start), told.add(call.end);
  return told;
}
Told told_by(const recorded::Polygon& call) {
  Told told;
  told.add(call.pen), told.add(call.brush);
  for (const PixelPoint& point : call.points) told.add(point);
  return told;
}
Told told_by(const recorded::Text& call) {
  Told told;
  told.add(call.font), told.add(call.color), told.add(call.place), told.add(call.text);
  if (call.background) told.add(*call.background);
  return told;
}
Told told_by(const recorded::FloodFill& call) {
  Told told;
  told.add(call.brush), told.add(call.seed), told.add(call.boundary);
  return told;
}
Told told_by(const recorded::Refresh&) { return {}; }

void expect_json(const json& line, const recorded::Call& call) {
  const Leaves found = leaves_of(line);
  const Told told = std::visit([](const auto& c) { return told_by(c); }, call);
  EXPECT_EQ(found.pairs, told.pairs) << line;
  EXPECT_EQ(found.numbers, told.numbers) << line;
  EXPECT_EQ(found.flags, told.flags) << line;
  EXPECT_TRUE(std::includes(found.texts.begin(), found.texts.end(), told.texts.begin(), told.texts.end()))
      << line;
}

void expect_json_of(const Recording& recording) {
  const std::vector<json> lines = json_of(recording);
  ASSERT_EQ(lines.size(), recording.size());
  for (std::size_t place = 0; place < lines.size(); ++place) expect_json(lines[place], recording[place]);
}

// ---- Recording ----

TEST(RecordingSurface, KeepsCallsInTheirOrder) {
  RecordingSurface surface;
  const PixelPoint triangle[] = {{1, 2}, {3, 4}, {5, 6}};
  const Pen pen{0xFF, 2, Pen::Style::dash};
  const Brush brush{0xAA, false};
  surface.line(pen, {1, 2}, {3, 4});
  surface.rectangle(pen, brush, {{1, 2}, {3, 4}});
  surface.ellipse(pen, brush, {5, 6}, {7, 8});
  surface.arc(pen, {5, 6}, {7, 8}, 0.5, 1.5);
  surface.polygon(pen, brush, triangle);
  surface.text({}, 0xBB, Color(0xCC), {9, 10}, "text");
  surface.flood_fill(brush, {11, 12}, 0xDD);
  surface.refresh();
  const Recording expected = {recorded::Line{pen, {1, 2}, {3, 4}},
                              recorded::Rectangle{pen, brush, {{1, 2}, {3, 4}}},
                              recorded::Ellipse{pen, brush, {5, 6}, {7, 8}},
                              recorded::Arc{pen, {5, 6}, {7, 8}, 0.5, 1.5},
                              recorded::Polygon{pen, brush, {{1, 2}, {3, 4}, {5, 6}}},
                              recorded::Text{{}, 0xBB, 0xCC, {9, 10}, "text"},
                              recorded::FloodFill{brush, {11, 12}, 0xDD},
                              recorded::Refresh{}};
  EXPECT_EQ(surface.recording(), expected);
}

TEST(RecordingSurface, StartsAgainWithAClear) {
  RecordingSurface surface;
  surface.refresh();
  surface.clear(0xFF);
  surface.refresh();
  EXPECT_EQ(surface.recording(), (Recording{recorded::Clear{0xFF}, recorded::Refresh{}}));
  surface.forget();
  EXPECT_EQ(surface.recording(), Recording());
}

TEST(RecordingSurface, TellsItsSizeAndResolution) {
  RecordingSurface surface({30, 40}, {4.8, 9.6});
  surface.refresh();
  EXPECT_EQ(surface.size(), (SurfaceSize{30, 40}));
  EXPECT_EQ(surface.twips_per_pixel(), (SurfaceSize{4.8, 9.6}));
  surface.resize({50, 60});
  EXPECT_EQ(surface.size(), (SurfaceSize{50, 60}));
  EXPECT_EQ(surface.recording().size(), 1u);
}

TEST(RecordingSurface, MeasuresEveryCharacterAlike) {
  const RecordingSurface surface;
  const SurfaceSize one = surface.measure({"Arial", 10}, "x");
  EXPECT_GT(one.width, 0);
  EXPECT_DOUBLE_EQ(one.height, 2 * one.width);  // 1.2 times the font's size to 0.6 times
  EXPECT_DOUBLE_EQ(surface.measure({"Arial", 10}, "xyzzy").width, 5 * one.width);
  EXPECT_DOUBLE_EQ(surface.measure({"Arial", 10}, "xyzzy").height, one.height);
  EXPECT_DOUBLE_EQ(surface.measure({"Symbol", 20}, "x").width, 2 * one.width);
  EXPECT_DOUBLE_EQ(surface.measure({"Arial", 10}, "\xC3\xA4\xE2\x82\xAC\xF0\x9F\x98\x80").width,
                   3 * one.width);
  EXPECT_EQ(surface.measure({"Arial", 10}, "").width, 0);
}

TEST(RecordingSurface, SnapshotsWhatItShowedAtThatMoment) {
  RecordingSurface surface({30, 40});
  surface.clear(0xFF);
  const auto image = std::dynamic_pointer_cast<const RecordedImage>(surface.snapshot());
  ASSERT_TRUE(image);
  surface.refresh();
  surface.resize({1, 1});
  EXPECT_EQ(image->size(), (SurfaceSize{30, 40}));
  EXPECT_EQ(image->recording(), Recording{recorded::Clear{0xFF}});
}

// ---- JSON ----

TEST(RecordingJson, HoldsNothingForNothing) {
  std::ostringstream out;
  write_json_lines({}, out);
  EXPECT_EQ(out.str(), "");
}

TEST(RecordingJson, KeepsTextsOfAnyCharacters) {
  for (const std::string& text :
       {std::string("say \"x\""), std::string("C:\\data\\new"), std::string("line\nfeed\r\t\b\f"),
        std::string("\x01\x1F\x7F"), std::string("nul \0 inside", 12), std::string("/ </script>"),
        std::string("\xC3\xA4 \xE2\x82\xAC \xF0\x9F\x98\x80"), std::string()}) {
    RecordingSurface surface;
    surface.text({text, 8}, 0, {}, {0, 0}, text);
    const std::vector<json> lines = json_of(surface.recording());
    ASSERT_EQ(lines.size(), 1u);
    EXPECT_EQ(leaves_of(lines[0]).texts.count(text), 2u) << lines[0];
    EXPECT_EQ(replayed(surface.recording()), surface.recording());
  }
}

TEST(RecordingJson, WritesColorsAsRedGreenBlue) {
  RecordingSurface surface;
  surface.clear(0x112233);
  EXPECT_EQ(leaves_of(json_of(surface.recording()).at(0)).texts.count("#332211"), 1u);
}

TEST(RecordingJson, KeepsNumbersToTheLastBit) {
  RecordingSurface surface;
  surface.line({}, {0.1, 1.0 / 3}, {1e-300, -123456789.123456789});
  expect_json_of(surface.recording());
}

TEST(RecordingJson, KeepsThePointsOfAPolygonInTheirOrder) {
  RecordingSurface surface;
  const PixelPoint points[] = {{9, 1}, {-3, 4}, {5, -6}, {7, 8}};
  surface.polygon({}, {}, points);
  const json expected = {{9, 1}, {-3, 4}, {5, -6}, {7, 8}};
  EXPECT_THAT(json_of(surface.recording()).at(0), testing::Contains(expected));
}

TEST(RecordingJson, TellsEveryLineStyleApart) {
  std::set<std::multiset<std::string>> seen;
  for (int style = 0; style <= 5; ++style) {
    RecordingSurface surface;
    surface.line({0, 1, static_cast<Pen::Style>(style)}, {0, 0}, {1, 1});
    seen.insert(leaves_of(json_of(surface.recording()).at(0)).texts);
  }
  EXPECT_EQ(seen.size(), 6u);
}

// ---- Random calls ----

class RandomRecording : public RandomInput {
 protected:
  double anywhere() { return chance(random, 0.3) ? between(random, -100, 100) : between(random, -1e4, 1e4); }
  SurfacePoint point() { return {anywhere(), anywhere()}; }
  SurfaceSize size() { return {std::abs(anywhere()), std::abs(anywhere())}; }
  PixelPoint pixel() { return {between(random, -3000, 3000), between(random, -3000, 3000)}; }
  Color color() { return static_cast<Color>(between(random, 0, 0xFFFFFF)); }
  Pen pen() {
    return {color(), static_cast<std::int16_t>(between(random, 1, 9)),
            static_cast<Pen::Style>(between(random, 0, 5))};
  }
  Brush brush() { return {color(), chance(random, 0.5)}; }
  FontSpec font() { return {text(), between(random, 1.0, 40.0), chance(random, 0.5), chance(random, 0.5)}; }
  std::string text() {
    const std::vector<std::string> pieces = {"a",    "Z", "\"",       "\\",           "\n",
                                             "\x01", " ", "\xC3\xA4", "\xE2\x82\xAC", "7"};
    std::string text;
    for (int left = between(random, 0, 12); left > 0; --left) text += one_of(random, pieces);
    return text;
  }
  std::vector<PixelPoint> polygon() {
    std::vector<PixelPoint> points;
    for (int left = between(random, 3, 9); left > 0; --left) points.push_back(pixel());
    return points;
  }

  void call(Surface& surface) {
    switch (between(random, 0, 8)) {
      case 0:
        return surface.line(pen(), point(), point());
      case 1:
        return surface.rectangle(pen(), brush(), {point(), point()});
      case 2:
        return surface.ellipse(pen(), brush(), point(), size());
      case 3:
        return surface.arc(pen(), point(), size(), between(random, 0.0, 6.28), between(random, 0.0, 6.28));
      case 4:
        return surface.polygon(pen(), brush(), polygon());
      case 5:
        return surface.text(font(), color(),
                            chance(random, 0.5) ? std::optional<Color>(color()) : std::nullopt, point(),
                            text());
      case 6:
        return surface.flood_fill(brush(), pixel(), color());
      case 7:
        return surface.refresh();
      default:
        if (chance(random, 0.05)) surface.clear(color());
    }
  }
};

TEST_F(RandomRecording, ReplaysToTheSameAndWritesTheSameNumbers) {
  for (int round = 0; round < 40 && !HasFailure(); ++round) {
    RecordingSurface surface;
    for (int calls = between(random, 0, 120); calls > 0; --calls) call(surface);
    EXPECT_EQ(replayed(surface.recording()), surface.recording());
    expect_json_of(surface.recording());
  }
}

TEST_F(RandomRecording, ReplaysBehindWhatASurfaceHeldBefore) {
  RecordingSurface first, second;
  for (int calls = 20; calls > 0; --calls) second.refresh();
  first.line(pen(), point(), point());
  first.text(font(), color(), {}, point(), text());
  replay(first.recording(), second);
  EXPECT_EQ(second.recording().size(), 22u);
  EXPECT_EQ(second.recording().back(), first.recording().back());
}

TEST(RecordingOfAMap, ReplaysToTheSame) {
  wafer source;
  set_diameters(source, 200, 200);
  source.flat_ratio = 0.98;
  load(source, {{0, 0, 1}, {50, 10, 2}, {-40, 30, 3}, {10, -60, 4}, {20, 20, 5}});
  RecordingSurface surface({306, 206}, {12, 15});
  SurfaceCanvas canvas(CanvasKind::picture_box, &surface);
  source.D2Plot(canvas, 10, 5, 0, -1, 0, 0, 0, 0, 0);
  EXPECT_GT(surface.recording().size(), 200u);
  EXPECT_EQ(replayed(surface.recording()), surface.recording());
  expect_json_of(surface.recording());
}

TEST(RecordingOfAMap, HoldsTheDiscAndCellsWithoutOutline) {
  wafer source;
  set_diameters(source, 200, 200);
  source.flat_ratio = 1;
  load(source, {{0, 0, 1}, {50, 10, 1}, {-40, 30, 1}, {10, -60, 1}});
  RecordingSurface surface({206, 206});
  SurfaceCanvas canvas(CanvasKind::other, &surface);
  source.D2Plot(canvas, 25, 5, 0, 0, 0, 0, 0, 0, 0);
  int cells = 0;
  for (const auto& call : surface.recording()) {
    const auto* cell = std::get_if<recorded::Polygon>(&call);
    if (!cell) continue;
    ++cells;
    EXPECT_EQ(cell->pen.style, Pen::Style::none);
    EXPECT_EQ(cell->brush, (Brush{QBColor(2), true}));
  }
  EXPECT_EQ(cells, 52);
  const auto disc =
      std::find_if(surface.recording().begin(), surface.recording().end(),
                   [](const auto& call) { return std::holds_alternative<recorded::Ellipse>(call); });
  ASSERT_NE(disc, surface.recording().end());
  const auto& white = std::get<recorded::Ellipse>(*disc);
  EXPECT_EQ(white.brush, (Brush{0xFFFFFF, true}));
  EXPECT_EQ(white.centre, (SurfacePoint{103, 103}));
  EXPECT_EQ(white.radii, (SurfaceSize{100, 100}));
}

}  // namespace
}  // namespace mirolen
