#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <set>

#include "failing_canvas.h"
#include "plain_contour.h"
#include "sample_wafers.h"

namespace mirolen {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

/// The messages of one test.
class Messages {
 public:
  Messages() {
    screen().message = [this](const std::string& text, const std::string& title) {
      shown.push_back(title + ": " + text);
    };
  }
  ~Messages() { screen().message = before_; }
  Messages(const Messages&) = delete;
  Messages& operator=(const Messages&) = delete;

  Lines shown;

 private:
  std::function<void(const std::string&, const std::string&)> before_ = screen().message;
};

RecordingCanvas drawn(const wafer& source, const CanvasSetup& setup, const ContourRequest& request) {
  RecordingCanvas canvas = setup.canvas();
  wafer copy = source;
  EXPECT_NO_THROW(draw_contour(copy, canvas, request)) << describe(setup);
  expect_same_fields(copy, source);
  return canvas;
}

void expect_as_worked_out(const wafer& source, const CanvasSetup& setup, const ContourRequest& r) {
  EXPECT_EQ(difference(drawn_things(drawn(source, setup, r).lines()),
                       drawn_things(PlainContour(source, setup, r).lines()), 1e-7),
            "")
      << describe(setup)
      << line_of("; st, distance, marks, reso, colored, ShowDispl:", r.st, r.distance, r.marked_sites, r.reso,
                 r.colored, r.ShowDispl);
}

CanvasSetup picture_box() {
  CanvasSetup setup;
  setup.kind = CanvasKind::picture_box;
  return setup;
}

/// The colours of the curve pieces, in the order of their first appearance, and how many levels they show.
Lines colors_of_curves(const RecordingCanvas& canvas) {
  Lines colors;
  for (std::size_t place = 0; place < canvas.lines().size(); ++place)
    if (canvas.lines()[place].starts_with("Line 6") && canvas.lines()[place].ends_with(" -")) {
      const std::string color = canvas.log.value_before(place, "ForeColor").value_or("none");
      if (colors.empty() || colors.back() != color) colors.push_back(color);
    }
  return colors;
}

int number_of_nodes(int sites, std::int16_t reso) {
  ContourRequest request;
  request.reso = reso;
  request.marked_sites = 2;
  int pluses = 0;
  for (const std::string& line : drawn(wafer_with(spiral(sites)), {}, request).log.of("Line"))
    pluses += line.ends_with(" 0");
  return pluses / 2;
}

// ---- Mesh ----

TEST(D2Contour, RefinesTheMeshWithTheNumberOfSites) {
  EXPECT_EQ(number_of_nodes(4, 0), 121);
  EXPECT_EQ(number_of_nodes(400, 0), 121);
  EXPECT_EQ(number_of_nodes(4, 1), 441);
  const std::vector<std::pair<int, int>> automatic = {{25, 25},   {49, 49},   {81, 81},   {121, 121},
                                                      {169, 169}, {225, 225}, {289, 289}, {361, 361}};
  for (std::size_t i = 0; i < automatic.size(); ++i) {
    EXPECT_EQ(number_of_nodes(automatic[i].first, 2), automatic[i].second);
    const int finer = i + 1 < automatic.size() ? automatic[i + 1].second : 441;
    EXPECT_EQ(number_of_nodes(automatic[i].first + 1, 2), finer);
  }
}

TEST(D2Contour, TakesAnyOtherQualityForAutomatic) {
  EXPECT_EQ(number_of_nodes(30, 3), 49);
  EXPECT_EQ(number_of_nodes(30, -1), 49);
}

TEST(D2Contour, DrawsTheSameForManySitesAutomaticallyAsInHighQuality) {
  ContourRequest automatic, fine;
  automatic.reso = 2;
  fine.reso = 1;
  const wafer source = wafer_with(spiral(362));
  EXPECT_EQ(drawn(source, {}, automatic).lines(), drawn(source, {}, fine).lines());
}

TEST(D2Contour, PutsTheNodesOnRingsFromTheCentre) {
  ContourRequest request;
  request.reso = 2;
  request.marked_sites = 2;
  Lines pluses;
  for (const std::string& line : drawn(wafer_with(spiral(4)), {}, request).log.of("Line"))
    if (line.ends_with(" 0")) pluses.push_back(line);
  ASSERT_EQ(pluses.size(), 50u);
  EXPECT_EQ(pluses[0], "Line 6 100 103 106 103 0");
  EXPECT_EQ(pluses[1], "Line 6 103 100 103 106 0");
  EXPECT_EQ(pluses[2], "Line 6 150 103 156 103 0");   // 50 mm on +x
  EXPECT_EQ(pluses[6], "Line 6 100 53 106 53 0");     // two eighths on: +y, upward
  EXPECT_EQ(pluses[18], "Line 6 200 103 206 103 0");  // 100 mm
  EXPECT_EQ(pluses[26], "Line 6 100 3 106 3 0");
}

// ---- Disc, flat and outline ----

TEST(D2Contour, DrawsTheDiscWhiteAndItsOutlineOnceMoreOverTheCurves) {
  const Lines things = drawn_things(drawn(wafer_with(spiral(9)), {}, {}).lines());
  Lines circles;
  for (const std::string& thing : things)
    if (thing.starts_with("Circle")) circles.push_back(thing);
  EXPECT_THAT(circles, ElementsAre("Circle 103 103 100 0 - - 1 width 1 style 0 fill 0 16777215",
                                   "Circle 103 103 100 0 - - 1 width 1 style 0 fill 1 16777215"));
  EXPECT_EQ(things[things.size() - 3], circles[1]);
}

TEST(D2Contour, DrawsTheDiscAloneForThreeSites) {
  for (const int count : {0, 3}) {
    const RecordingCanvas canvas = drawn(wafer_with(spiral(count)), {}, {});
    EXPECT_EQ(canvas.log.count("Circle"), 1);
    EXPECT_EQ(canvas.log.count("Line"), 0);
  }
}

TEST(D2Contour, LeavesTheCanvasDrawingInBlack) {
  ContourRequest request;
  request.colored = 1;
  for (const int count : {3, 49}) {
    RecordingCanvas canvas;
    canvas.ForeColor(4711);
    wafer source = wafer_with(spiral(count));
    draw_contour(source, canvas, request);
    EXPECT_EQ(canvas.ForeColor(), QBColor(0)) << count;
  }
}

TEST(D2Contour, CutsTheFlatOnAPictureBoxAlone) {
  // The flat ratio 0.9 puts the flat 80 units below the centre, 60 to either side.
  const wafer source = wafer_with(spiral(3), 0.9);
  const Lines cut = {"Line 38 43 183 163 206 16777215", "Line 6 43 183 163 183 " + text_of(QBColor(12))};
  EXPECT_EQ(difference(drawn(source, picture_box(), {}).log.of("Line"), cut, 1e-9), "");
  for (const CanvasKind kind : {CanvasKind::printer, CanvasKind::other}) {
    CanvasSetup setup;
    setup.kind = kind;
    EXPECT_THAT(drawn(source, setup, {}).log.of("Line"), IsEmpty());
  }
  EXPECT_THAT(drawn(wafer_with(spiral(3), kNotch), picture_box(), {}).log.of("Line"), IsEmpty());
  const Lines again = drawn(wafer_with(spiral(9), 0.9), picture_box(), {}).log.of("Line");
  EXPECT_EQ(difference({again.end() - 2, again.end()}, cut, 1e-9), "");
}

TEST(D2Contour, ScalesByTheRadiusThatTheCallerGives) {
  ContourRequest request;
  request.st = 50;
  request.marked_sites = 1;
  request.area = {1000, 2000, 400, 600};
  request.ShowDispl = 1;
  SiteList sites = spiral(4);
  sites[0] = {40, 20, 60};
  const RecordingCanvas page = drawn(wafer_with(sites), {}, request);
  EXPECT_EQ(page.log.of("Circle")[0], "Circle 1200 2300 50 0 - - 1");
  Lines marks;
  for (const std::string& line : page.log.of("Line"))
    if (line.ends_with(" 0")) marks.push_back(line);
  ASSERT_EQ(marks.size(), 8u);
  EXPECT_EQ(marks[0], "Line 6 1175 2290 1265 2290 0");
  EXPECT_EQ(marks[1], "Line 6 1220 2245 1220 2335 0");
}

TEST(D2Contour, MarksSitesOnAPageOfMorePixelsThanSixteenBitsCount) {
  ContourRequest request;
  request.st = 20000;  // 200 a millimetre
  request.marked_sites = 1;
  request.area = {0, 0, 80000, 120000};
  request.ShowDispl = 1;
  SiteList sites = spiral(4);
  sites[0] = {40, -20, 60};
  const Lines lines = drawn(wafer_with(sites), {}, request).log.of("Line");
  EXPECT_THAT(lines, testing::Contains("Line 6 47955 64000 48045 64000 0"));
  EXPECT_THAT(lines, testing::Contains("Line 6 48000 63955 48000 64045 0"));
}

TEST(D2Contour, ErasesAndRefreshesOnTheScreenAlone) {
  ContourRequest request;
  request.area = {0, 0, 206, 206};
  for (const CanvasKind kind : kKinds) {
    CanvasSetup setup;
    setup.kind = kind;
    request.ShowDispl = 0;
    EXPECT_EQ(drawn(wafer_with(spiral(3)), setup, request).log.count("Cls"), 1);
    EXPECT_EQ(drawn(wafer_with(spiral(3)), setup, request).log.count("Refresh"), 2);
    request.ShowDispl = 1;
    const RecordingCanvas page = drawn(wafer_with(spiral(9)), setup, request);
    EXPECT_EQ(page.log.count("Cls"), 0);
    EXPECT_EQ(page.log.count("Refresh"), kind == CanvasKind::picture_box);
  }
}

// ---- Spacing and refusal ----

TEST(D2Contour, RefusesASpacingOfZero) {
  Messages messages;
  ContourRequest request;
  request.distance = 0;
  CanvasSetup setup;
  setup.scale = {0, 0, 300, 200};
  const RecordingCanvas canvas = drawn(wafer_with(spiral(9)), setup, request);
  EXPECT_THAT(canvas.log.of("Line"), ElementsAre("Line 6 0 0 300 200 128", "Line 6 0 200 300 0 128"));
  EXPECT_EQ(canvas.log.value_before(canvas.log.place_of("Line"), "DrawWidth"), "2");
  EXPECT_EQ(canvas.log.count("Circle"), 1);
  EXPECT_THAT(messages.shown,
              ElementsAre("No Contour Plot possible: Difference of Mean, Maximum, and Minimum "
                          "too small"));
}

TEST(D2Contour, RefusesOnAPageInsideItsAreaUnlessThatLiesLeftOfIt) {
  Messages messages;
  ContourRequest request;
  request.distance = 0;
  request.ShowDispl = 1;
  request.area = {10, 20, 300, 200};
  EXPECT_THAT(drawn(wafer_with(spiral(9)), {}, request).log.of("Line"),
              ElementsAre("Line 6 10 20 310 220 128", "Line 6 10 220 310 20 128"));
  EXPECT_EQ(messages.shown.size(), 1u);
  request.area.left = 0;
  EXPECT_EQ(drawn(wafer_with(spiral(9)), {}, request).log.count("Line"), 2);
  EXPECT_EQ(messages.shown.size(), 2u);
  request.area.left = -1;
  EXPECT_THAT(drawn(wafer_with(spiral(9)), {}, request).log.of("Line"), IsEmpty());
  EXPECT_EQ(messages.shown.size(), 2u);
}

TEST(D2Contour, RefusesWithoutAnybodyToShowTheMessage) {
  ContourRequest request;
  request.distance = 0;
  EXPECT_EQ(drawn(wafer_with(spiral(9)), {}, request).log.count("Line"), 2);
}

/// The number of levels, told by the refreshes of a canvas that shows each.
int levels(const wafer& source, double distance) {
  ContourRequest request;
  request.distance = distance;
  return drawn(source, {}, request).log.count("Refresh") - 2;
}

TEST(D2Contour, SpacesCurvesByTheFirstBaseThatFits) {
  // Mean 10 below the largest value 13: its 10 % make 1.3, so 11.3 and 12.6 above, 8.7 and 7.4 below down
  // to 7.
  EXPECT_EQ(levels(wafer_with(with_values({13, 7, 10, 10})), 10), 4);
  // Mean 0: the span of 20 is the base; 10 % make 2, so 2 to 8 and -2 to -8.
  EXPECT_EQ(levels(wafer_with(with_values({10, -10, 0, 0})), 10), 8);
  // Mean -10 above the smallest -13 in size: 1.3 again.
  EXPECT_EQ(levels(wafer_with(with_values({-13, -7, -10, -10})), 10), 4);
}

TEST(D2Contour, TakesTheSpanForABaseWhereTheMeanIsTooSmallForIt) {
  // A span of 20 wants a spacing of 0.002. 10 % of the mean 0.01 are less: 2 is taken, from -9.99 to 8.01.
  EXPECT_EQ(levels(wafer_with(with_values({10, -10, 0.04, 0})), 10), 9);
  // 10 % of the mean 0.03 are enough, and the largest value gives the base: 1, from -9.97 to 9.03.
  EXPECT_EQ(levels(wafer_with(with_values({10, -10, 0.12, 0})), 10), 19);
}

TEST(D2Contour, RefusesASpacingBelowATenThousandthOfTheRange) {
  Messages messages;
  wafer source = wafer_with(with_values({10, -10, 0, 0}));  // 10 % make a spacing of 2
  source.range = 20000;
  EXPECT_EQ(levels(source, 10), 8);
  EXPECT_THAT(messages.shown, IsEmpty());
  source.range = 20000.1;
  EXPECT_EQ(levels(source, 10), 0);
  EXPECT_EQ(messages.shown.size(), 1u);
}

TEST(D2Contour, DrawsNoCurvesForEqualValuesAndDoesNotRefuse) {
  Messages messages;
  EXPECT_EQ(levels(wafer_with(spiral(9, same)), 5), 0);
  const RecordingCanvas canvas = drawn(wafer_with(spiral(9, nothing)), {}, {});
  EXPECT_EQ(canvas.log.count("Line"), 0);
  EXPECT_EQ(canvas.log.count("Circle"), 2);
  EXPECT_THAT(messages.shown, IsEmpty());
}

TEST(D2Contour, EndsWhereTheSpacingNoLongerChangesTheLevel) {
  wafer source = wafer_with(spiral(9));
  source.range = 0;  // nothing is refused
  EXPECT_EQ(levels(source, 1e-18), 0);
}

// ---- Curves ----

TEST(D2Contour, ColorsCurves) {
  wafer source = wafer_with(spiral(49));
  source.ColS1 = 11;
  source.ColS2 = 22;
  source.ColS3 = 33;
  ContourRequest request;
  for (const std::int16_t black : {0, 3, -1}) {
    request.colored = black;
    EXPECT_THAT(colors_of_curves(drawn(source, {}, request)), ElementsAre("0"));
  }
  request.colored = 1;
  EXPECT_THAT(colors_of_curves(drawn(source, {}, request)), ElementsAre("22", "11", "33"));
  request.colored = 2;
  EXPECT_GT(colors_of_curves(drawn(source, {}, request)).size(), 4u);
}

TEST(D2Contour, DrawsTheMeanTwiceAsWide) {
  ContourRequest request;
  request.colored = 1;
  std::set<std::string> mean, others;
  for (const std::string& thing : drawn_things(drawn(wafer_with(spiral(49)), {}, request).lines()))
    if (thing.find(" - in ") != std::string::npos)
      (thing.find(" in " + text_of(QBColor(2)) + ' ') != std::string::npos ? mean : others)
          .insert(thing.substr(thing.find("width")));
  EXPECT_EQ(mean, std::set<std::string>{"width 2"});
  EXPECT_EQ(others, std::set<std::string>{"width 1"});
}

TEST(D2Contour, PassesErrorsOfTheCanvasOn) {
  const wafer source = wafer_with(spiral(9), kFlat);
  for (const std::int16_t ShowDispl : {0, 1}) {
    const ContourRequest request{100, 20, 1, 0, 0, kPage, ShowDispl};
    for_each_failing_call([&](const CanvasSetup& setup) { return drawn(source, setup, request); },
                          [&](const CanvasSetup& setup) {
                            RecordingCanvas canvas = setup.canvas();
                            wafer copy = source;
                            EXPECT_THROW(draw_contour(copy, canvas, request), CanvasError) << describe(setup);
                          });
  }
}

TEST(D2Contour, FailsForAWaferWithoutDiameter) {
  wafer source = wafer_with(spiral(4));
  source.WafDiam = 0;
  RecordingCanvas canvas;
  EXPECT_THROW(draw_contour(source, canvas, {}), DivisionByZero);
}

// ---- Against a plain computation ----

TEST(D2ContourComputed, EveryKindOfCanvasQualityColorAndMark) {
  const wafer source = wafer_with(spiral(49), 0.9, 200, 190);
  for (const CanvasKind kind : kKinds)
    for (const std::int16_t ShowDispl : {0, 1})
      for (const std::int16_t reso : {0, 1, 2})
        for (const std::int16_t colored : {0, 1, 2})
          for (const std::int16_t marks : {1, 2, 3})
            expect_as_worked_out(source, {kind, {5, 7, 250, 206}, {15, 15}, "", 0},
                                 {90, 12, marks, reso, colored, {30, 40, 500, 300}, ShowDispl});
}

TEST(D2ContourComputed, EveryRangeOfValuesWithAndWithoutLimits) {
  const std::vector<std::pair<double, double>> limits = {{45, 40}, {100, -100}, {7, 7}, {-40, -45}};
  for (const auto value : {bowl, falling, mixed, same, nothing}) {
    wafer source = wafer_with(spiral(20, value));
    ContourRequest request;
    request.colored = 2;
    expect_as_worked_out(source, {}, request);
    for (const auto& [upper, lower] : limits) {
      source.setMaximalMinial(upper, lower);
      expect_as_worked_out(source, {}, request);
    }
  }
}

class D2ContourOfRandomInput : public RandomInput {};

TEST_F(D2ContourOfRandomInput, MatchesThePlainComputation) {
  for (int round = 0; round < 100; ++round) {
    SCOPED_TRACE("round " + std::to_string(round));
    const wafer source = any_wafer(random);
    CanvasSetup setup = any_setup(random);
    setup.fails_at = 0;
    ContourRequest request;
    request.st = static_cast<std::int16_t>(between(random, 10, 400));
    request.distance = between(random, 3.0, 40.0);
    request.marked_sites = static_cast<std::int16_t>(between(random, 1, 3));
    request.reso = static_cast<std::int16_t>(between(random, 0, 2));
    request.colored = static_cast<std::int16_t>(between(random, 0, 2));
    request.area = any_area(random);
    request.ShowDispl = static_cast<std::int16_t>(between(random, 0, 1));
    expect_as_worked_out(source, setup, request);
    if (HasFailure()) return;
  }
}

}  // namespace
}  // namespace mirolen
