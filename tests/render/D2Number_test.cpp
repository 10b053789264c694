#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "failing_canvas.h"
#include "plain_site_texts.h"
#include "sample_wafers.h"

namespace mirolen {
namespace {

using testing::Each;
using testing::ElementsAre;

struct TextRequest {
  RecordingCanvas::Rectangle area;
  std::int16_t ShowDispl = 0;
};

using Renderer = void (wafer::*)(PlotCanvas&, double, double, double, double, std::int16_t);

RecordingCanvas drawn(Renderer renderer, const wafer& source, const CanvasSetup& setup,
                      const TextRequest& r = {}) {
  RecordingCanvas canvas = setup.canvas();
  wafer copy = source;
  EXPECT_NO_THROW((copy.*renderer)(canvas, r.area.left, r.area.top, r.area.width, r.area.height, r.ShowDispl))
      << describe(setup);
  return canvas;
}

void expect_as_worked_out(const wafer& source, const CanvasSetup& setup, const TextRequest& r) {
  EXPECT_EQ(difference(drawn(&wafer::D2Number, source, setup, r).lines(),
                       PlainSiteTexts(source, setup, r.area, r.ShowDispl).values()),
            "")
      << describe(setup);
  EXPECT_EQ(difference(drawn(&wafer::GridPosPlot, source, setup, r).lines(),
                       PlainSiteTexts(source, setup, r.area, r.ShowDispl).numbers()),
            "")
      << describe(setup);
}

/// Each text with its place and colour: "Print 1 at 110 77 in 0".
Lines texts(const RecordingCanvas& canvas) {
  Lines found;
  for (std::size_t place = 0; place < canvas.lines().size(); ++place)
    if (canvas.lines()[place].starts_with("Print "))
      found.push_back(canvas.lines()[place] + " at " + canvas.log.value_before(place, "CurrentX").value() +
                      ' ' + canvas.log.value_before(place, "CurrentY").value() + " in " +
                      canvas.log.value_before(place, "ForeColor").value());
  return found;
}

Lines values_of(const wafer& source) {
  Lines found;
  for (const std::string& line : drawn(&wafer::D2Number, source, {}).log.of("Print"))
    found.push_back(line.substr(6));
  return found;
}

// ---- Worked out by hand: centre at (103, 103), one unit a millimetre, characters of 6 by 12 ----

TEST(GridPosPlot, WritesEachSitesNumberRoundItsPlace) {
  SiteList sites = spiral(9);
  sites[0] = {10, 20, 5};
  sites.push_back({-40, -30, 6});
  const Lines numbers = texts(drawn(&wafer::GridPosPlot, wafer_with(sites), {}));
  ASSERT_EQ(numbers.size(), 10u);
  EXPECT_EQ(numbers[0], "Print 1 at 110 77 in 0");
  EXPECT_EQ(numbers[9], "Print 10 at 57 127 in 0");
}

TEST(D2Number, WritesEachSitesValueInTheColorOfItsBand) {
  // 0 to 10 in bands of 1. 10 takes two places and a sign twice, so 7 - 4 = 3 decimals.
  const wafer defaults;
  const wafer source = wafer_with({{10, 20, 10}, {0, 0, 4.5}, {-20, 0, 0}});
  EXPECT_THAT(texts(drawn(&wafer::D2Number, source, {})),
              ElementsAre("Print 10.000 at 95 77 in " + text_of(defaults.col1),
                          "Print 4.500 at 88 97 in " + text_of(defaults.col6),
                          "Print 0.000 at 68 97 in " + text_of(defaults.col10)));
}

TEST(D2Number, BandsSpanTheLimitsThemselves) {
  const wafer defaults;
  const double colors[] = {defaults.col10, defaults.col9, defaults.col8, defaults.col7, defaults.col6,
                           defaults.col5,  defaults.col4, defaults.col3, defaults.col2, defaults.col1};
  for (int band = 0; band < 10; ++band) {
    wafer source = wafer_with({{0, 0, band + 0.5}});
    source.setMaximalMinial(10, 0);
    EXPECT_THAT(texts(drawn(&wafer::D2Number, source, {})).front(),
                testing::EndsWith(" in " + text_of(colors[band])));
  }
  for (const double beyond : {-5.0, 15.0}) {
    wafer source = wafer_with({{0, 0, beyond}});
    source.setMaximalMinial(10, 0);
    EXPECT_THAT(texts(drawn(&wafer::D2Number, source, {})).front(),
                testing::EndsWith(" in " + text_of(beyond < 0 ? defaults.col10 : defaults.col1)));
  }
}

TEST(D2Number, GivesAsManyDecimalsAsTheLargestValueLeavesRoomFor) {
  EXPECT_THAT(values_of(wafer_with({{0, 0, 5}, {9, 0, 0.123456789}})), ElementsAre("5.0000", "0.1234"));
  EXPECT_THAT(values_of(wafer_with({{0, 0, 12345}, {9, 0, 1.75}})), ElementsAre("12345", "1"));
}

TEST(D2Number, WritesExponentsWithThreeDecimalsForLargeValues) {
  EXPECT_THAT(values_of(wafer_with({{0, 0, 200000}, {9, 0, 1500}})), ElementsAre("2.000E+05", "1.500E+03"));
}

TEST(D2Number, WritesEqualValuesInTheSixthColor) {
  wafer source = wafer_with(spiral(6, same));
  source.col6 = 4711;
  EXPECT_THAT(texts(drawn(&wafer::D2Number, source, {})), Each(testing::EndsWith(" in 4711")));
  source.setMaximalMinial(3, 3);
  EXPECT_THAT(texts(drawn(&wafer::D2Number, source, {})), Each(testing::EndsWith(" in 4711")));
}

TEST(D2Number, LetsATextAtTheRimReachBeyondTheDisc) {
  EXPECT_THAT(texts(drawn(&wafer::D2Number, wafer_with({{100, 0, 5}}), {})),
              ElementsAre("Print 5.0000 at 185 97 in " + text_of(wafer().col6)));
  EXPECT_THAT(texts(drawn(&wafer::GridPosPlot, wafer_with({{-100, 0, 5}}), {})),
              ElementsAre("Print 1 at 0 97 in 0"));
}

TEST(SiteTexts, StandOnAWhiteDiscOfTheTestDiameter) {
  CanvasSetup setup;
  setup.scale = {10, 20, 186, 500};
  for (const Renderer renderer : {&wafer::D2Number, &wafer::GridPosPlot}) {
    RecordingCanvas canvas = drawn(renderer, wafer_with(spiral(4), kNotch, 200, 180), setup);
    const std::size_t disc = canvas.log.place_of("Circle");
    ASSERT_LT(disc, canvas.log.place_of("Print"));
    EXPECT_EQ(canvas.lines()[disc], "Circle 103 270 90 - - - 1");
    EXPECT_EQ(canvas.log.value_before(disc, "FillStyle"), "0");
    EXPECT_EQ(canvas.log.value_before(disc, "FillColor"), "16777215");
    EXPECT_EQ(canvas.log.value_before(disc, "ForeColor"), "0");
    EXPECT_EQ(canvas.log.value_before(disc, "DrawStyle"), "0");
    EXPECT_EQ(canvas.log.value_before(disc, "DrawWidth"), "1");
  }
}

TEST(SiteTexts, HaveABlackOutlineInASecondRedrawToo) {
  for (const Renderer renderer : {&wafer::D2Number, &wafer::GridPosPlot}) {
    RecordingCanvas canvas;
    canvas.ForeColor(QBColor(4));
    wafer source = wafer_with(spiral(4));
    (source.*renderer)(canvas, 0, 0, 0, 0, 0);
    EXPECT_EQ(canvas.log.value_before(canvas.log.place_of("Circle"), "ForeColor"), "0");
  }
}

TEST(SiteTexts, EraseTheCanvasForARedrawAloneAndRefreshAPictureBoxAfterEachText) {
  for (const Renderer renderer : {&wafer::D2Number, &wafer::GridPosPlot})
    for (const CanvasKind kind : kKinds)
      for (const std::int16_t ShowDispl : {0, 1}) {
        CanvasSetup setup;
        setup.kind = kind;
        const RecordingCanvas canvas =
            drawn(renderer, wafer_with(spiral(5)), setup, {{0, 0, 3090, 3090}, ShowDispl});
        EXPECT_EQ(canvas.log.count("Cls"), ShowDispl == 0);
        EXPECT_EQ(canvas.log.count("Refresh"), (ShowDispl == 0) + (kind == CanvasKind::picture_box ? 5 : 0));
      }
}

TEST(SiteTexts, DrawTheDiscAloneWithoutSites) {
  for (const Renderer renderer : {&wafer::D2Number, &wafer::GridPosPlot}) {
    const RecordingCanvas canvas = drawn(renderer, wafer_with({}), {});
    EXPECT_EQ(canvas.log.count("Circle"), 1);
    EXPECT_EQ(canvas.log.count("Print"), 0);
  }
}

TEST(D2Number, LeavesTheScaleFieldsConsistent) {
  expect_consistent_scale_fields(
      10, [](wafer& source, PlotCanvas& canvas) { source.D2Number(canvas, 0, 0, 0, 0, 0); });
}

TEST(GridPosPlot, LeavesTheScaleBaseAlone) {
  wafer source = wafer_with(spiral(5));
  source.Low = 12345;
  RecordingCanvas canvas;
  source.GridPosPlot(canvas, 0, 0, 0, 0, 0);
  EXPECT_EQ(source.Low, 12345);
}

// ---- Against a plain computation ----

TEST(SiteTextsComputed, EveryKindOfCanvas) {
  for (const CanvasKind kind : kKinds)
    for (const std::int16_t ShowDispl : {0, 1, 2})
      for (const SurfaceSize twips : {SurfaceSize{15, 15}, {4.8, 4.8}, {10, 20}, {0, 0}})
        expect_as_worked_out(wafer_with(spiral(12)), {kind, {5, 7, 250, 206.5}, twips, "", 0},
                             {kPage, ShowDispl});
}

TEST(SiteTextsComputed, EveryRangeOfValuesWithAndWithoutLimits) {
  const std::vector<std::pair<double, double>> limits = {{45, 40},   {1000, -1000}, {7, 7}, {-2, -2},
                                                         {-40, -45}, {300000, 0},   {0, 0}};
  for (const auto value : {bowl, falling, mixed, tiny, same, nothing}) {
    wafer source = wafer_with(spiral(20, value));
    expect_as_worked_out(source, {}, {});
    for (const auto& [upper, lower] : limits) {
      source.setMaximalMinial(upper, lower);
      expect_as_worked_out(source, {}, {});
    }
  }
}

TEST(SiteTextsComputed, AWaferWithoutATestDiameter) {
  expect_as_worked_out(wafer_with(spiral(4), kNotch, 200, 0), {}, {kPage, 0});
}

TEST(SiteTextsComputed, EveryMemberFailing) {
  for_each_failing_member([](const CanvasSetup& setup, std::int16_t ShowDispl) {
    expect_as_worked_out(wafer_with(spiral(5)), setup, {kPage, ShowDispl});
  });
}

TEST(SiteTextsComputed, EachSingleCallFailing) {
  const wafer source = wafer_with(spiral(4));
  for_each_failing_call([&](const CanvasSetup& setup) { return drawn(&wafer::D2Number, source, setup); },
                        [&](const CanvasSetup& setup) {
                          expect_as_worked_out(source, setup, {kPage, 0});
                        });
}

class SiteTextsOfRandomInput : public RandomInput {};

TEST_F(SiteTextsOfRandomInput, MatchThePlainComputation) {
  for (int round = 0; round < 300; ++round) {
    SCOPED_TRACE("round " + std::to_string(round));
    const wafer source = any_wafer(random);
    const CanvasSetup setup = any_setup(random);
    const auto ShowDispl = static_cast<std::int16_t>(between(random, 0, 1));
    expect_as_worked_out(source, setup, {any_area(random), ShowDispl});
    if (HasFailure()) return;
  }
}

}  // namespace
}  // namespace mirolen
