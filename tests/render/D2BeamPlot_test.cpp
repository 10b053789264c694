#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "failing_canvas.h"
#include "plain_bars.h"
#include "sample_wafers.h"

namespace mirolen {
namespace {

using testing::ElementsAre;
using testing::UnorderedElementsAre;

std::string describe(const CanvasSetup& setup, const BarRequest& r) {
  return describe(setup) + line_of("; bx, by, fwscal:", r.bx, r.by, r.fwscal) +
         line_of("; angles:", r.alp2, r.phi2, r.thet2) + line_of("; ShowDispl:", r.ShowDispl);
}

RecordingCanvas drawn(const wafer& source, const CanvasSetup& setup, const BarRequest& request) {
  RecordingCanvas canvas = setup.canvas();
  wafer copy = source;
  EXPECT_NO_THROW(draw_bars(copy, canvas, request)) << describe(setup, request);
  return canvas;
}

void expect_as_worked_out(const wafer& source, const CanvasSetup& setup, const BarRequest& request) {
  EXPECT_EQ(difference(drawn(source, setup, request).lines(), PlainBars(source, setup, request).lines()), "")
      << describe(setup, request);
}

/// A plan view of bars 10 mm wide on 200 mm, one unit a millimetre.
CanvasSetup plan() {
  CanvasSetup setup;
  setup.scale = {0, 0, 220, 220};
  return setup;
}

BarRequest seen_from(double alp2, double thet2) {
  BarRequest request;
  request.alp2 = alp2;
  request.thet2 = thet2;
  return request;
}

Lines polygons(const wafer& source, const CanvasSetup& setup, const BarRequest& request) {
  return drawn(source, setup, request).log.of("Polygon");
}

std::vector<std::string> fills(const RecordingCanvas& canvas) {
  std::vector<std::string> colors;
  for (std::size_t place = 0; place < canvas.lines().size(); ++place)
    if (canvas.lines()[place].starts_with("Polygon"))
      colors.push_back(canvas.log.value_before(place, "FillColor").value_or("none"));
  return colors;
}

// ---- Worked out by hand ----

TEST(D2BeamPlot, DrawsTopsAloneFromAbove) {
  // 200 + 2 * 5 = 210 mm each way on 210 units; the disc's centre is at 220 - (100 + 5) - 5 = 110.
  const wafer source = wafer_with({{20, 30, 1}, {-40, -60, 2}});
  const RecordingCanvas canvas = drawn(source, plan(), seen_from(0, 90));
  EXPECT_EQ(difference(canvas.log.of("Circle"), {"Circle 110 110 100 - - - 1"}, 1e-9), "");
  EXPECT_THAT(canvas.log.of("Polygon"),
              ElementsAre("Polygon 125,85 135,85 135,75 125,75", "Polygon 65,175 75,175 75,165 65,165"));
}

TEST(D2BeamPlot, SharesTheHeightBetweenDiscAndBars) {
  // At 30 degrees the disc takes 100 mm and a bar's base 5; values 0 and 10 stand 1 and 11 above their base,
  // times fwscal 10 and cos 30 makes 8.66 and 95.26. 200.26 on 400.53 units are two units a millimetre.
  BarRequest request = seen_from(0, 30);
  request.fwscal = 10;
  CanvasSetup setup;
  setup.scale = {0, 0, 1000, 2 * (105 + 110 * std::sqrt(0.75)) + 10};
  // The height is rounded to 411; S = 401 / 200.263 = 2.00237, centre 500, 411 - S * (50 + 2.5) - 5 =
  // 300.876.
  const RecordingCanvas canvas = drawn(wafer_with({{0, 0, 10}, {0, -50, 0}}), setup, request);
  EXPECT_EQ(difference(canvas.log.of("Circle"), {"Circle 500 300.876 200.237 - - - 0.5"}, 1e-3), "");
  // Bar of 10: half widths 10.01 and 5.006, height 95.26 * S = 190.75. Bar of 0: 50.06 lower, 17.34 high.
  EXPECT_THAT(
      canvas.log.of("Polygon"),
      ElementsAre("Polygon 490,115 510,115 510,105 490,105", "Polygon 490,306 510,306 510,115 490,115",
                  "Polygon 490,339 510,339 510,329 490,329", "Polygon 490,356 510,356 510,339 490,339"));
}

TEST(D2BeamPlot, DrawsSidesAloneEdgeOn) {
  // Nothing of the disc is seen: 11 mm of height on 220 - 10 units, but the width allows one unit a
  // millimetre.
  const wafer source = wafer_with({{0, 0, 10}, {50, 50, 0}});
  const CanvasSetup setup = plan();
  EXPECT_THAT(
      polygons(source, setup, seen_from(0, 0)),
      ElementsAre("Polygon 155,215 165,215 165,214 155,214", "Polygon 105,215 115,215 115,204 105,204"));
}

TEST(D2BeamPlot, PaintsTheFarthestBarFirst) {
  const wafer source = wafer_with({{0, -50, 1}, {0, 50, 2}, {0, 0, 3}});
  EXPECT_THAT(polygons(source, plan(), seen_from(0, 90)),
              ElementsAre("Polygon 105,65 115,65 115,55 105,55", "Polygon 105,115 115,115 115,105 105,105",
                          "Polygon 105,165 115,165 115,155 105,155"));
}

TEST(D2BeamPlot, TurnsTheSitesByTheWafersAngle) {
  BarRequest request = seen_from(0, 90);
  request.phi2 = 90;  // +x goes to +y, which is up
  EXPECT_THAT(polygons(wafer_with({{50, 0, 1}, {0, 20, 2}}), plan(), request),
              ElementsAre("Polygon 105,65 115,65 115,55 105,55", "Polygon 85,115 95,115 95,105 85,105"));
}

TEST(D2BeamPlot, ChoosesTheSidesByTheAngleOfTheView) {
  const wafer source = wafer_with({{0, 0, 10}, {10, 50, 0}});
  const auto faces = [&](double alp2) { return polygons(source, plan(), seen_from(alp2, 40)).size() / 2; };
  EXPECT_EQ(faces(0), 2u);  // the top and the front
  EXPECT_EQ(faces(45), 3u);
  EXPECT_EQ(faces(90), 2u);
  EXPECT_EQ(faces(135), 3u);
  EXPECT_EQ(faces(180), 2u);
  EXPECT_EQ(faces(225), 3u);
  EXPECT_EQ(faces(270), 2u);
  EXPECT_EQ(faces(315), 3u);
  EXPECT_EQ(faces(360), 2u);
}

/// The one side of a bar of 20 by 10 mm that is seen at a quarter turn, worked out for a height of 11 mm.
Lines sides_of_a_bar_at(double alp2) {
  BarRequest request = seen_from(alp2, 0);
  request.bx = 20;
  CanvasSetup setup;
  setup.scale = {0, 0, alp2 == 90 || alp2 == 270 ? 220.0 : 230.0, 500};
  wafer source = wafer_with({{0, 10, 0}, {0, 0, 10}});
  const Lines all = polygons(source, setup, request);
  return {all.begin() + static_cast<std::ptrdiff_t>(all.size() / 2), all.end()};
}

TEST(D2BeamPlot, DrawsEachSideFromItsOwnCorner) {
  EXPECT_THAT(sides_of_a_bar_at(0), ElementsAre("Polygon 105,495 125,495 125,484 105,484"));    // front
  EXPECT_THAT(sides_of_a_bar_at(90), ElementsAre("Polygon 115,495 115,484 105,484 105,495"));   // left
  EXPECT_THAT(sides_of_a_bar_at(180), ElementsAre("Polygon 125,495 125,484 105,484 105,495"));  // back
  EXPECT_THAT(sides_of_a_bar_at(270), ElementsAre("Polygon 115,495 105,495 105,484 115,484"));  // right
  EXPECT_THAT(sides_of_a_bar_at(360), ElementsAre("Polygon 105,495 125,495 125,484 105,484"));  // front
}

TEST(D2BeamPlot, DrawsASiteAtTheBaseAsAFlatSquare) {
  // Limits 0 to 8 set: the scale runs from -1 to 9, its base is at -2.
  wafer source = wafer_with({{0, 0, -2}, {10, 60, 5}});
  source.setMaximalMinial(8, 0);
  CanvasSetup setup;
  setup.scale = {0, 0, 220, 800};
  const Lines all = polygons(source, setup, seen_from(0, 30));
  ASSERT_EQ(all.size(), 4u);
  // Centre (110, 800 - (50 + 2.5) - 5 = 742.5): the foot goes from 740 to 745 and the front has no height.
  EXPECT_EQ(all[2], "Polygon 105,745 115,745 115,740 105,740");
  EXPECT_EQ(all[3], "Polygon 105,745 115,745 115,745 105,745");
}

TEST(D2BeamPlot, LeavesTheWidthAloneInForceWhereNoHeightIsWanted) {
  BarRequest request = seen_from(0, 0);
  request.fwscal = 0;
  CanvasSetup setup;
  setup.scale = {0, 0, 430, 7};
  EXPECT_THAT(polygons(wafer_with({{50, 0, 1}, {0, 1, 2}}), setup, request),
              ElementsAre("Polygon 205,2 225,2 225,2 205,2", "Polygon 305,2 325,2 325,2 305,2"));
}

TEST(D2BeamPlot, SurvivesABarAndAWaferWithoutSize) {
  BarRequest request = seen_from(0, 30);
  request.bx = request.by = 0;
  CanvasSetup setup;
  setup.scale = {0, 0, 500, 110};
  wafer source = wafer_with({{0, 0, 0}, {0, 0, 9}});
  source.WafDiam = 0;  // no width is wanted; the bar of 9 takes all the height, 9.9 above the base
  EXPECT_THAT(
      polygons(source, setup, request),
      UnorderedElementsAre("Polygon 250,5 250,5 250,5 250,5", "Polygon 250,105 250,105 250,5 250,5",
                           "Polygon 250,96 250,96 250,96 250,96", "Polygon 250,105 250,105 250,96 250,96"));
  EXPECT_EQ(drawn(source, setup, request).log.of("Circle").size(), 1u);
}

// ---- Colours ----

TEST(D2BeamPlot, ColorsAllFacesOfABarByTheBandOfItsValue) {
  const wafer defaults;
  const double colors[] = {defaults.col10, defaults.col9, defaults.col8, defaults.col7, defaults.col6,
                           defaults.col5,  defaults.col4, defaults.col3, defaults.col2, defaults.col1};
  const auto colors_of = [](double z) {
    wafer source = wafer_with({{0, 0, z}});
    source.setMaximalMinial(8, 0);  // a scale of -1 to 9 with bands of 1
    return fills(drawn(source, plan(), seen_from(45, 40)));
  };
  for (int band = 0; band < 10; ++band) {
    const std::string color = text_of(colors[band]);
    EXPECT_THAT(colors_of(band - 0.5), ElementsAre(color, color, color)) << band;
    EXPECT_EQ(colors_of(band - 1).front(), color) << "the lower end of band " << band;
  }
  EXPECT_EQ(colors_of(50).front(), text_of(defaults.col1));
  EXPECT_EQ(colors_of(-50).front(), text_of(defaults.col10));
}

TEST(D2BeamPlot, PaintsEqualValuesInTheFirstColor) {
  for (const double value : {0.0, 5.0, -5.0})
    for (const std::string& color :
         fills(drawn(wafer_with({{0, 0, value}, {0, 30, value}}), plan(), seen_from(45, 40))))
      EXPECT_EQ(color, text_of(wafer().col1));
}

TEST(D2BeamPlot, PaintsAColorFieldOfFifteenAsAColor) {
  wafer source = wafer_with({{0, 0, 5}});
  source.col1 = 15;
  EXPECT_THAT(fills(drawn(source, plan(), seen_from(0, 90))), ElementsAre("15"));
}

TEST(D2BeamPlot, StartsWithAWhiteDiscWithBlackEdges) {
  const RecordingCanvas canvas = drawn(wafer_with(spiral(5)), plan(), seen_from(0, 30));
  const std::size_t disc = canvas.log.place_of("Circle");
  ASSERT_LT(disc, canvas.log.place_of("Polygon"));
  EXPECT_EQ(canvas.log.value_before(disc, "FillStyle"), "0");
  EXPECT_EQ(canvas.log.value_before(disc, "FillColor"), "16777215");
  EXPECT_EQ(canvas.log.value_before(disc, "ForeColor"), "0");
  EXPECT_EQ(canvas.log.value_before(disc, "DrawStyle"), "0");
  EXPECT_EQ(canvas.log.value_before(disc, "DrawWidth"), "1");
}

// ---- The canvas ----

TEST(D2BeamPlot, ErasesAPictureBoxTwiceAndRefreshesItAfterEachBar) {
  const wafer source = wafer_with(spiral(7));
  BarRequest request;
  request.area = {0, 0, 3000, 3000};
  for (const CanvasKind kind : kKinds) {
    CanvasSetup setup = plan();
    setup.kind = kind;
    const bool picture = kind == CanvasKind::picture_box;
    request.ShowDispl = 0;
    EXPECT_EQ(drawn(source, setup, request).log.count("Cls"), picture ? 2 : 1);
    EXPECT_EQ(drawn(source, setup, request).log.count("Refresh"), picture ? 8 : 1);
    request.ShowDispl = 1;
    const RecordingCanvas page = drawn(source, setup, request);
    EXPECT_EQ(page.log.count("Cls") + page.log.count("Refresh"), 0);
  }
}

TEST(D2BeamPlot, DrawsTheDiscAloneWithoutSites) {
  const RecordingCanvas canvas = drawn(wafer_with({}), plan(), {});
  EXPECT_EQ(canvas.log.count("Circle"), 1);
  EXPECT_EQ(canvas.log.count("Polygon"), 0);
}

TEST(D2BeamPlot, PutsThePageWhereItsTwipsSay) {
  CanvasSetup setup;
  setup.kind = CanvasKind::printer;
  setup.twips_per_pixel = {10, 20};
  BarRequest request = seen_from(0, 90);
  request.area = {1000, 4000, 2200, 4400};
  request.ShowDispl = 1;
  const Lines disc = {"Circle 210 310 100 - - - 1"};
  EXPECT_EQ(difference(drawn(wafer_with(spiral(4)), setup, request).log.of("Circle"), disc, 1e-9), "");
  const ScreenOf screen(10, 20);
  setup.kind = CanvasKind::other;
  EXPECT_EQ(difference(drawn(wafer_with(spiral(4)), setup, request).log.of("Circle"), disc, 1e-9), "");
}

TEST(D2BeamPlot, AssumesAPageOf300DotsPerInchWhereThePrinterTellsNoResolution) {
  CanvasSetup setup;
  setup.kind = CanvasKind::printer;
  setup.twips_per_pixel = {7, 4.8};
  setup.fails_in = "TwipsPerPixelX";
  BarRequest request = seen_from(0, 90);
  request.area = {480, 960, 220 * 4.8, 220 * 4.8};
  request.ShowDispl = 1;
  EXPECT_EQ(difference(drawn(wafer_with(spiral(4)), setup, request).log.of("Circle"),
                       {"Circle 210 310 100 - - - 1"}, 1e-9),
            "");
}

TEST(D2BeamPlot, LeavesTheScaleFieldsConsistent) {
  expect_consistent_scale_fields(10,
                                 [](wafer& source, PlotCanvas& canvas) { draw_bars(source, canvas, {}); });
}

// ---- Against a plain computation ----

TEST(D2BeamPlotComputed, EveryKindOfCanvas) {
  const wafer source = wafer_with(spiral(30));
  for (const CanvasKind kind : kKinds)
    for (const std::int16_t ShowDispl : {0, 1, 2})
      for (const SurfaceSize twips : {SurfaceSize{15, 15}, {4.8, 4.8}, {10, 20}})
        expect_as_worked_out(source, {kind, {5, 7, 250, 206.5}, twips, "", 0},
                             {8, 6, 2, 40, 30, 35, false, kPage, ShowDispl});
}

TEST(D2BeamPlotComputed, EveryAngle) {
  const wafer source = wafer_with(spiral(12));
  for (const double alp2 : {0.0, 1.0, 89.0, 90.0, 91.0, 180.0, 181.0, 269.0, 270.0, 271.0, 359.0, 360.0})
    for (const double phi2 : {0.0, 45.0, 200.0})
      for (const double thet2 : {0.0, 0.001, 45.0, 89.999, 90.0, -10.0})
        expect_as_worked_out(source, plan(), {8, 5, 2, alp2, phi2, thet2, false, {}, 0});
}

TEST(D2BeamPlotComputed, EveryRangeOfValuesWithAndWithoutLimits) {
  const std::vector<std::pair<double, double>> limits = {{45, 40}, {1000, -1000}, {7, 7},
                                                         {-2, -2}, {-40, -45},    {40, 45}};
  CanvasSetup low;  // the height decides on the scale
  low.scale = {0, 0, 2000, 206};
  for (const auto value : {bowl, falling, mixed, tiny, same, nothing})
    for (const double fwscal : {0.0, 1.0, 30.0}) {
      BarRequest request;
      request.fwscal = fwscal;
      wafer source = wafer_with(spiral(20, value));
      expect_as_worked_out(source, plan(), request);
      for (const auto& [upper, lower] : limits) {
        source.setMaximalMinial(upper, lower);
        expect_as_worked_out(source, plan(), request);
        expect_as_worked_out(source, low, request);
      }
    }
}

TEST(D2BeamPlotComputed, EveryMemberFailing) {
  const wafer source = wafer_with(spiral(6));
  for_each_failing_member([&](const CanvasSetup& setup, std::int16_t ShowDispl) {
    expect_as_worked_out(source, setup, {8, 6, 2, 40, 30, 35, false, kPage, ShowDispl});
  });
}

TEST(D2BeamPlotComputed, EachSingleCallFailing) {
  const wafer source = wafer_with(spiral(3));
  const BarRequest request{8, 6, 2, 40, 30, 35, false, kPage, 0};
  for_each_failing_call([&](const CanvasSetup& setup) { return drawn(source, setup, request); },
                        [&](const CanvasSetup& setup) { expect_as_worked_out(source, setup, request); });
}

TEST(D2BeamPlot, ThrowsNothingForNumbersThatLeaveTheRangeOfADouble) {
  wafer source = wafer_with(spiral(10));
  source.maximal = 1.7e308;
  source.minimal = -1.7e308;
  drawn(source, plan(), {});
  BarRequest request;
  request.area = {1.7e308, -1.7e308, 1.7e308, 1.7e308};
  request.ShowDispl = 1;
  source.setMaximalMinial(50, 40);
  drawn(source, plan(), request);
  request = {};
  request.bx = request.fwscal = 1.7e308;
  drawn(source, plan(), request);
  source.col1 = kNaN;
  drawn(source, plan(), {});
}

class D2BeamPlotOfRandomInput : public RandomInput {
 protected:
  BarRequest any_request() {
    BarRequest request;
    request.bx = between(random, 0.0, 40.0);
    request.by = between(random, 0.0, 40.0);
    request.fwscal = between(random, 0.0, 20.0);
    request.alp2 = between(random, 0.0, 360.0);
    request.phi2 = between(random, -360.0, 360.0);
    request.thet2 = between(random, 0.0, 90.0);
    request.area = any_area(random);
    request.ShowDispl = static_cast<std::int16_t>(between(random, 0, 1));
    return request;
  }
};

TEST_F(D2BeamPlotOfRandomInput, MatchesThePlainComputation) {
  for (int round = 0; round < 300; ++round) {
    SCOPED_TRACE("round " + std::to_string(round));
    const wafer source = any_wafer(random);
    const CanvasSetup setup = any_setup(random);
    expect_as_worked_out(source, setup, any_request());
    if (HasFailure()) return;
  }
}

}  // namespace
}  // namespace mirolen
