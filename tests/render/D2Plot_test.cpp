#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>
#include <map>

#include "failing_canvas.h"
#include "plain_map.h"
#include "sample_wafers.h"

namespace mirolen {
namespace {

using testing::Each;
using testing::ElementsAre;
using testing::IsEmpty;

/// Four sites on the grid nodes next to the centre of a 200 mm wafer with cells of 25 mm.
SiteList around_centre(double upper, double lower) {
  return {{25, 25, upper}, {-25, 25, upper}, {25, -25, lower}, {-25, -25, lower}};
}

const char* const kThatCell = "Polygon 128,78 103,78 103,103 128,103";

std::string describe(const CanvasSetup& setup, const MapRequest& request) {
  return describe(setup) + line_of("; ShowDispl, style, sigma, marks, res:", request.ShowDispl,
                                   request.PlotStyle, request.SigmaRange, request.marksites, request.res);
}

RecordingCanvas drawn_map(const wafer& source, const CanvasSetup& setup, const MapRequest& request) {
  RecordingCanvas canvas = setup.canvas();
  wafer drawn = source;
  EXPECT_NO_THROW(draw_map(drawn, canvas, request)) << describe(setup, request);
  return canvas;
}

void expect_as_worked_out(const wafer& source, const CanvasSetup& setup, const MapRequest& request) {
  const RecordingCanvas canvas = drawn_map(source, setup, request);
  EXPECT_EQ(difference(canvas.lines(), PlainMap(source, setup, request).lines()), "")
      << describe(setup, request);
}

/// The fill colour of each painted cell by its polygon.
std::map<std::string, std::string> cell_colors(const RecordingCanvas& canvas) {
  std::map<std::string, std::string> colors;
  for (std::size_t place = 0; place < canvas.lines().size(); ++place)
    if (canvas.lines()[place].starts_with("Polygon"))
      colors[canvas.lines()[place]] = canvas.log.value_before(place, "FillColor").value_or("none");
  return colors;
}

std::vector<std::string> all_colors(const RecordingCanvas& canvas) {
  std::vector<std::string> colors;
  for (const auto& [polygon, color] : cell_colors(canvas)) colors.push_back(color);
  return colors;
}

std::string color_of_that_cell(const wafer& source, const MapRequest& request = {}) {
  return cell_colors(drawn_map(source, {}, request))[kThatCell];
}

int number_of_cells(const wafer& source, double res) {
  MapRequest request;
  request.res = res;
  const Lines lines = drawn_map(source, {}, request).lines();
  return static_cast<int>(std::count(lines.begin(), lines.end(), "DrawStyle=5"));
}

// ---- Worked out by hand: cells of 25 units, centre at (103, 103), one unit a millimetre ----

TEST(D2Plot, PaintsTheTopRowsOfEightByEightCells) {
  const RecordingCanvas canvas = drawn_map(wafer_with(on_corners_of_one_cell(5)), {}, {});
  // Of the top grid line (y = 100) only x = 0 is inside, of the next (y = 75) x = 50 to -50, of the third
  // (y = 50) x = 75 to -75. So the four middle cells of the first row have one or two corners outside and
  // are painted; their neighbours have three. In the second row only the two outermost are left out.
  const Lines polygons = canvas.log.of("Polygon");
  ASSERT_GE(polygons.size(), 11u);
  EXPECT_THAT(Lines(polygons.begin(), polygons.begin() + 11),
              ElementsAre("Polygon 153,3 128,3 128,28 153,28", "Polygon 128,3 103,3 103,28 128,28",
                          "Polygon 103,3 78,3 78,28 103,28", "Polygon 78,3 53,3 53,28 78,28",
                          "Polygon 178,28 153,28 153,53 178,53", "Polygon 153,28 128,28 128,53 153,53",
                          "Polygon 128,28 103,28 103,53 128,53", "Polygon 103,28 78,28 78,53 103,53",
                          "Polygon 78,28 53,28 53,53 78,53", "Polygon 53,28 28,28 28,53 53,53",
                          "Polygon 203,53 178,53 178,78 203,78"));
  EXPECT_EQ(polygons.size(), 2u * (4 + 6 + 8 + 8));
}

TEST(D2Plot, StartsWithAWhiteDiscUnderTheCells) {
  const RecordingCanvas canvas = drawn_map(wafer_with(around_centre(6, 0)), {}, {});
  const std::size_t disc = canvas.log.place_of("Circle");
  EXPECT_EQ(canvas.log.of("Circle"), Lines{"Circle 103 103 100 16777215 - - 1"});
  EXPECT_LT(disc, canvas.log.place_of("Polygon"));
  EXPECT_EQ(canvas.log.value_before(disc, "FillStyle"), "0");
  EXPECT_EQ(canvas.log.value_before(disc, "FillColor"), "16777215");
  EXPECT_EQ(canvas.log.value_before(disc, "DrawStyle"), "0");
  EXPECT_EQ(canvas.log.value_before(disc, "DrawWidth"), "1");
}

TEST(D2Plot, ColorsTheCellsRoundTheCentreByTheMeanOfTheirCorners) {
  // Half way between two upper sites the weights are 1/625 twice and 1/3125 twice: (5 * 6 + 0) / 6 = 5;
  // below accordingly 1; on the x axis 3. The bands are 0.6 wide. Upper cells: (6 + 5 + 3 + 3) / 4 = 4.25,
  // 2.9 bands below the top, the third; lower ones: (3 + 3 + 1 + 0) / 4 = 1.75, 7.1 bands below, the eighth.
  auto colors = cell_colors(drawn_map(wafer_with(around_centre(6, 0)), {}, {}));
  EXPECT_EQ(colors["Polygon 128,78 103,78 103,103 128,103"], text_of(QBColor(14)));
  EXPECT_EQ(colors["Polygon 103,78 78,78 78,103 103,103"], text_of(QBColor(14)));
  EXPECT_EQ(colors["Polygon 128,103 103,103 103,128 128,128"], text_of(QBColor(9)));
  EXPECT_EQ(colors["Polygon 103,103 78,103 78,128 103,128"], text_of(QBColor(9)));
}

TEST(D2Plot, ColorsSigmaClassesAboveInsideAndBelowTheRange) {
  // Mean 3, deviation sqrt(4 * 9 / 3) = 3.46. The upper cells (4.25) lie 0.36 deviations above the mean, the
  // lower ones (1.75) as much below it.
  MapRequest request;
  request.PlotStyle = 4;
  request.SigmaRange = 0.35;
  auto colors = cell_colors(drawn_map(wafer_with(around_centre(6, 0)), {}, request));
  EXPECT_EQ(colors["Polygon 128,78 103,78 103,103 128,103"], text_of(QBColor(4)));
  EXPECT_EQ(colors["Polygon 128,103 103,103 103,128 128,128"], text_of(QBColor(1)));
  request.SigmaRange = 0.37;
  colors = cell_colors(drawn_map(wafer_with(around_centre(6, 0)), {}, request));
  EXPECT_EQ(colors["Polygon 128,78 103,78 103,103 128,103"], text_of(QBColor(2)));
  EXPECT_EQ(colors["Polygon 128,103 103,103 103,128 128,128"], text_of(QBColor(2)));
}

TEST(D2Plot, MarksSitesOnTheScreenWithArmsOfSixTwoAndThreeUnits) {
  MapRequest request;
  request.marksites = -1;
  // Mean 20: the first site lies above it, the second below.
  const wafer source = wafer_with({{10, 20, 30}, {-40, 0, 10}});
  EXPECT_EQ(difference(drawn_map(source, {}, request).log.of("Line"),
                       {"Line 38 107 81 119 85 16777215", "Line 38 111 77 115 89 16777215",
                        "Line 38 110 83 116 83 0", "Line 38 113 80 113 86 0",
                        "Line 38 57 101 69 105 16777215", "Line 38 60 103 66 103 0"},
                       1e-9),
            "");
}

TEST(D2Plot, MarksSitesOnAPrinterByItsResolution) {
  // 2060 by 4120 twips are 206 by 206 pixels; the long and the black arm are 12 and 6 times 10 twips, the
  // short one 4 times 20.
  CanvasSetup setup;
  setup.kind = CanvasKind::printer;
  setup.twips_per_pixel = {10, 20};
  MapRequest request;
  request.marksites = -1;
  request.area = {100, 400, 2060, 4120};
  const wafer source = wafer_with({{-40, 0, 10}, {0, 0, 30}});
  // The centre is (10 + 103, 20 + 103).
  const Lines marks = drawn_map(source, setup, request).log.of("Line");
  ASSERT_EQ(marks.size(), 6u);
  EXPECT_EQ(
      difference({marks[0], marks[1]}, {"Line 38 -47 43 193 203 16777215", "Line 38 13 123 133 123 0"}, 1e-9),
      "");
  setup.twips_per_pixel = {4.8, 4.8};  // 57.6, 19.2 and 28.8 become 58, 19 and 29
  request.area = {0, 0, 206 * 4.8, 206 * 4.8};
  const Lines rounded = drawn_map(source, setup, request).log.of("Line");
  ASSERT_EQ(rounded.size(), 6u);
  EXPECT_EQ(difference({rounded[0], rounded[1]}, {"Line 38 5 84 121 122 16777215", "Line 38 34 103 92 103 0"},
                       1e-9),
            "");
}

// ---- The area ----

TEST(D2Plot, IgnoresTheAreaArgumentsForARedrawOfAnOffScreenPicture) {
  const wafer source = wafer_with(spiral(10));
  MapRequest none, some;
  some.area = {300, 600, 900, 1200};
  EXPECT_EQ(drawn_map(source, {}, none).lines(), drawn_map(source, {}, some).lines());
}

TEST(D2Plot, ErasesTheCanvasBeforeARedrawAndNeverOnAPage) {
  const wafer source = wafer_with(spiral(10));
  for (const CanvasKind kind : kKinds) {
    CanvasSetup setup;
    setup.kind = kind;
    MapRequest request;
    request.area = {0, 0, 3090, 3090};
    const Lines redraw = drawn_map(source, setup, request).lines();
    EXPECT_EQ(Lines(redraw.begin(), redraw.begin() + 2), (Lines{"Cls", "Refresh"}));
    request.ShowDispl = 1;
    EXPECT_EQ(drawn_map(source, setup, request).log.count("Cls"), 0);
  }
}

TEST(D2Plot, ReadsTheEdgesOfTheAreaOneByOneAndThenTheMarkSizes) {
  CanvasSetup setup;
  MapRequest request;
  request.ShowDispl = 1;
  request.area = {0, 0, 3090, 3090};
  const wafer no_map = wafer_with(spiral(3));
  setup.kind = CanvasKind::printer;
  EXPECT_THAT(drawn_map(no_map, setup, request).lines(),
              ElementsAre("TwipsPerPixelX?", "TwipsPerPixelX?", "TwipsPerPixelY?", "TwipsPerPixelY?",
                          "TwipsPerPixelX?", "TwipsPerPixelY?", "TwipsPerPixelX?"));
  setup.kind = CanvasKind::other;
  EXPECT_THAT(drawn_map(no_map, setup, request).lines(), IsEmpty());
  request.ShowDispl = 0;
  EXPECT_THAT(drawn_map(no_map, setup, request).lines(),
              ElementsAre("Cls", "Refresh", "ScaleLeft?", "ScaleWidth?", "ScaleTop?", "ScaleHeight?"));
}

TEST(D2Plot, MeasuresAPageThatIsNoPrinterByTheScreen) {
  const ScreenOf screen(10, 20);
  MapRequest request;
  request.ShowDispl = 1;
  request.area = {100, 400, 2060, 4120};
  for (const CanvasKind kind : {CanvasKind::picture_box, CanvasKind::other}) {
    CanvasSetup setup;
    setup.kind = kind;
    setup.twips_per_pixel = {1, 1};
    EXPECT_EQ(drawn_map(wafer_with(spiral(4)), setup, request).log.of("Circle"),
              Lines{"Circle 113 123 100 16777215 - - 1"});
  }
}

TEST(D2Plot, AssumesAPageOf300DotsPerInchWhereThePrinterTellsNoResolution) {
  MapRequest request;
  request.ShowDispl = 1;
  request.area = {48, 96, 206 * 4.8, 206 * 4.8};
  CanvasSetup setup;
  setup.kind = CanvasKind::printer;
  setup.twips_per_pixel = {7, 4.8};
  setup.fails_in = "TwipsPerPixelX";
  const RecordingCanvas canvas = drawn_map(wafer_with(on_corners_of_one_cell(5)), setup, request);
  EXPECT_EQ(difference(canvas.log.of("Circle"), {"Circle 113 123 100 16777215 - - 1"}, 1e-9), "");
  EXPECT_EQ(canvas.log.count("Polygon"), 52);
}

TEST(D2Plot, TakesAResolutionOfZeroForAFailure) {
  MapRequest request;
  request.ShowDispl = 1;
  request.area = {48, 96, 206 * 4.8, 206 * 4.8};
  CanvasSetup setup;
  setup.kind = CanvasKind::printer;
  setup.twips_per_pixel = {0, 0};
  const Lines disc = {"Circle 113 123 100 16777215 - - 1"};
  EXPECT_EQ(difference(drawn_map(wafer_with(spiral(4)), setup, request).log.of("Circle"), disc, 1e-9), "");
  const ScreenOf screen(0, 0);
  setup.kind = CanvasKind::other;
  EXPECT_EQ(difference(drawn_map(wafer_with(spiral(4)), setup, request).log.of("Circle"), disc, 1e-9), "");
}

TEST(D2Plot, KeepsThePartOfTheAreaThatCouldBeReadAfterAFailure) {
  CanvasSetup setup;
  setup.scale = {100, 200, 306, 406};
  setup.fails_in = "ScaleTop";  // left and width, read before it, are replaced; height, read after it, counts
  MapRequest request;
  request.area = {480, 960, 206 * 4.8, 9999};
  EXPECT_EQ(difference(drawn_map(wafer_with(spiral(4)), setup, request).log.of("Circle"),
                       {"Circle 203 403 100 16777215 - - 1"}, 1e-9),
            "");
}

// ---- Progress ----

TEST(D2Plot, RefreshesAPictureBoxAfterEachRowOnceMoreAndAfterEachMark) {
  CanvasSetup setup;
  setup.kind = CanvasKind::picture_box;
  MapRequest request;
  request.marksites = -1;
  const wafer map = wafer_with(spiral(5)), marks_only = wafer_with(spiral(3));
  EXPECT_EQ(drawn_map(map, setup, request).log.count("Refresh"), 1 + 8 + 1 + 5);
  EXPECT_EQ(drawn_map(marks_only, setup, request).log.count("Refresh"), 1 + 3);
  setup.kind = CanvasKind::other;
  EXPECT_EQ(drawn_map(map, setup, request).log.count("Refresh"), 1);
}

TEST(D2Plot, RefreshesTwiceAfterTheLastRowAndBeforeTheFirstMark) {
  CanvasSetup setup;
  setup.kind = CanvasKind::picture_box;
  MapRequest request;
  request.marksites = 1;
  const RecordingCanvas canvas = drawn_map(wafer_with(spiral(5)), setup, request);
  const std::size_t first_mark = canvas.log.place_of("Line");
  ASSERT_LT(first_mark, canvas.lines().size());
  EXPECT_EQ(canvas.lines()[first_mark - 1], "Refresh");
  EXPECT_EQ(canvas.lines()[first_mark - 2], "Refresh");
}

// ---- Grid ----

TEST(D2Plot, DrawsMarksAloneForThreeSites) {
  MapRequest request;
  const wafer source = wafer_with(spiral(3));
  for (const std::int16_t marks : {0, 1}) {
    request.marksites = marks;
    const RecordingCanvas canvas = drawn_map(source, {}, request);
    EXPECT_EQ(canvas.log.count("Circle") + canvas.log.count("Polygon"), 0);
    EXPECT_EQ(canvas.log.count("Line") > 0, marks == 1);
  }
}

TEST(D2Plot, DrawsNothingButTheBareCanvasWithoutSites) {
  for (const CanvasKind kind : kKinds) {
    CanvasSetup setup;
    setup.kind = kind;
    MapRequest request;
    request.marksites = -1;
    expect_as_worked_out(wafer_with({}), setup, request);
  }
}

TEST(D2Plot, KeepsTheGridBetweenEightAndTwoHundredCells) {
  const wafer source = wafer_with(spiral(4));
  EXPECT_EQ(number_of_cells(source, 25.1), 8 * 8);
  EXPECT_EQ(number_of_cells(source, 1000), 8 * 8);
  EXPECT_EQ(number_of_cells(source, 25), 8 * 8);
  EXPECT_EQ(number_of_cells(source, 20), 10 * 10);
  EXPECT_EQ(number_of_cells(source, 0.5), 200 * 200);
  EXPECT_EQ(number_of_cells(source, 0.001), 200 * 200);   // more cells than 16 bits can count
  EXPECT_EQ(number_of_cells(source, 1e-320), 200 * 200);  // or a Double
}

TEST(D2Plot, RoundsTheGridSizeHalfToEven) {
  EXPECT_EQ(number_of_cells(wafer_with(spiral(4), kNotch, 200, 144), 16), 8 * 8);    // 4.5
  EXPECT_EQ(number_of_cells(wafer_with(spiral(4), kNotch, 200, 176), 16), 12 * 12);  // 5.5
}

TEST(D2Plot, SpansTheWholeWaferInAColorMapWithASigmaRange) {
  const wafer source = wafer_with(spiral(4), kNotch, 300, 200);
  MapRequest request;
  request.res = 10;  // 30 by 30 cells of a 300 mm wafer: 300 units are left for 300 mm
  CanvasSetup setup;
  setup.scale = {0, 0, 306, 306};
  request.SigmaRange = 1;
  EXPECT_EQ(drawn_map(source, setup, request).log.of("Circle"), Lines{"Circle 153 153 100 16777215 - - 1"});
  request.SigmaRange = 0;  // 20 by 20 cells of the test circle
  EXPECT_EQ(drawn_map(source, setup, request).log.of("Circle"), Lines{"Circle 153 153 150 16777215 - - 1"});
  request.SigmaRange = 1;
  request.PlotStyle = 4;
  EXPECT_EQ(drawn_map(source, setup, request).log.of("Circle"), Lines{"Circle 153 153 150 16777215 - - 1"});
}

TEST(D2Plot, MeasuresTooFineCellsByTheGridAndTooCoarseOnesByTheTestCircle) {
  const wafer source = wafer_with(spiral(4), kNotch, 300, 200);
  CanvasSetup setup;
  setup.scale = {0, 0, 306, 306};
  MapRequest request;
  request.SigmaRange = 1;
  request.res = 0.5;  // 200 cells of 1.5 mm: 300 units for 300 mm
  EXPECT_EQ(drawn_map(source, setup, request).log.of("Circle"), Lines{"Circle 153 153 100 16777215 - - 1"});
  request.res = 50;  // 8 cells of 25 mm: 300 units for 200 mm
  EXPECT_EQ(drawn_map(source, setup, request).log.of("Circle"), Lines{"Circle 153 153 150 16777215 - - 1"});
}

TEST(D2Plot, TakesTheTighterOfTheTwoAxes) {
  CanvasSetup setup;
  setup.scale = {10, 20, 406, 206};
  const wafer source = wafer_with(spiral(4));
  EXPECT_EQ(drawn_map(source, setup, {}).log.of("Circle"), Lines{"Circle 213 123 100 16777215 - - 1"});
  setup.scale = {10, 20, 206, 406};
  EXPECT_EQ(drawn_map(source, setup, {}).log.of("Circle"), Lines{"Circle 113 223 100 16777215 - - 1"});
}

TEST(D2Plot, CutsTheMapAtAFlat) {
  // The chord lies at y = -(0.98 - 0.5) * 200 = -96: the bottom node (0, -100) is outside either way, and a
  // flat ratio of 0.75 (y = -50) takes the whole line of nodes at -50 and all below it away.
  const auto cells_below = [](double flat_ratio, int top_pixel) {
    int count = 0;
    for (const auto& polygon : drawn_map(wafer_with(spiral(4), flat_ratio), {}, {}).log.of("Polygon"))
      count += polygon.find(',' + std::to_string(top_pixel) + ' ') != std::string::npos &&
               polygon.find(',' + std::to_string(top_pixel + 25) + ' ') != std::string::npos;
    return count;
  };
  EXPECT_EQ(cells_below(kNotch, 178), 4);
  EXPECT_EQ(cells_below(0.75, 178), 0);
  EXPECT_EQ(cells_below(0.75, 153), 0);
  EXPECT_EQ(cells_below(0.75, 128), 6);  // two corners of each stand on the line of -25
}

// ---- Colours ----

TEST(D2Plot, PaintsEqualValuesInTheSixthColorAndInTheMiddleSigmaClass) {
  MapRequest request;
  for (const double value : {0.0, 5.0, -5.0, 1e9}) {
    const wafer source = wafer_with(spiral(12, [](double, double) { return 0.0; }));
    wafer equal = source;
    SiteList sites = sites_of(source);
    for (Site& site : sites) site.z = value;
    load(equal, sites);
    request.PlotStyle = 5;
    EXPECT_THAT(all_colors(drawn_map(equal, {}, request)), Each(text_of(QBColor(2))));
    request.PlotStyle = 4;
    request.SigmaRange = 1;
    EXPECT_THAT(all_colors(drawn_map(equal, {}, request)), Each(text_of(QBColor(2))));
    EXPECT_EQ(drawn_map(equal, {}, request).log.count("Polygon"), 52);
  }
}

TEST(D2Plot, PutsTheScaleAnEighthBeyondTheLimitsThatAUserSet) {
  // Limits 0 to 8 make a scale of -1 to 9 with bands of 1.
  const auto color_at = [](double z) {
    wafer source = wafer_with(on_corners_of_one_cell(z));
    source.setMaximalMinial(8, 0);
    return color_of_that_cell(source);
  };
  const wafer defaults;
  EXPECT_EQ(color_at(8.5), text_of(defaults.col1));
  EXPECT_EQ(color_at(7.5), text_of(defaults.col2));
  EXPECT_EQ(color_at(6.5), text_of(defaults.col3));
  EXPECT_EQ(color_at(5.5), text_of(defaults.col4));
  EXPECT_EQ(color_at(4.5), text_of(defaults.col5));
  EXPECT_EQ(color_at(3.5), text_of(defaults.col6));
  EXPECT_EQ(color_at(2.5), text_of(defaults.col7));
  EXPECT_EQ(color_at(1.5), text_of(defaults.col8));
  EXPECT_EQ(color_at(0.5), text_of(defaults.col9));
  EXPECT_EQ(color_at(-0.5), text_of(defaults.col10));
  EXPECT_EQ(color_at(50), text_of(defaults.col1));
  EXPECT_EQ(color_at(-50), text_of(defaults.col10));
}

/// A value and upper limit; with a lower limit of minus half of that the value stands to the last bit on the
/// lower boundary of band k.
struct OnBoundary {
  double maximal = 0, z = 0;
};

std::optional<OnBoundary> value_on_boundary(int k) {
  for (double maximal = 8; maximal < 200; maximal += 0.375) {
    const double e = 1.5 * maximal / 8, lo = -maximal / 2 - e, hi = maximal + e, Low = lo - (hi - lo) * 0.1;
    const double I = (1 - (hi - lo) * 0.1 / (hi - Low)) / 10;
    double z = hi - k * (hi - lo) / 10;
    z -= std::abs(z) * 2e-14;
    for (int step = 0; step < 400; ++step, z = std::nextafter(z, kInfinity))
      if ((z - Low) / (hi - Low) == 1 - k * I) return OnBoundary{maximal, z};
  }
  return std::nullopt;
}

std::string color_at(const OnBoundary& value) {
  wafer source = wafer_with(on_corners_of_one_cell(value.z));
  source.setMaximalMinial(value.maximal, -value.maximal / 2);
  return color_of_that_cell(source);
}

TEST(D2Plot, CountsTheLowerBoundaryOfABandToThatBand) {
  const wafer defaults;
  const double colors[] = {defaults.col1, defaults.col2, defaults.col3, defaults.col4, defaults.col5,
                           defaults.col6, defaults.col7, defaults.col8, defaults.col9, defaults.col10};
  for (int k = 1; k <= 9; ++k) {
    const auto value = value_on_boundary(k);
    ASSERT_TRUE(value) << "no value found for boundary " << k;
    EXPECT_EQ(color_at(*value), text_of(colors[k - 1])) << "boundary " << k;
    EXPECT_EQ(color_at({value->maximal, value->z - 1e-12}), text_of(colors[k])) << "below boundary " << k;
  }
}

TEST(D2Plot, MarksASiteExactlyAtTheMeanWithAPlus) {
  MapRequest request;
  request.marksites = 1;
  const auto marks = [&](double z) {
    return drawn_map(wafer_with({{0, 0, z}, {10, 0, 2}, {20, 0, 4}}), {}, request).log.count("Line");
  };
  EXPECT_EQ(marks(3), 4 + 2 + 4);
  EXPECT_EQ(marks(2.9), 2 + 2 + 4);
}

TEST(D2Plot, LeavesCellsOfAColorFieldOfFifteenUnpainted) {
  wafer source = wafer_with(on_corners_of_one_cell(5));
  source.col6 = source.ColS2 = 15;
  MapRequest request;
  EXPECT_EQ(drawn_map(source, {}, request).log.count("Polygon"), 0);
  EXPECT_EQ(drawn_map(source, {}, request).log.count("Circle"), 1);
  request.PlotStyle = 4;
  EXPECT_EQ(drawn_map(source, {}, request).log.count("Polygon"), 0);
  source.ColS2 = 14;
  EXPECT_EQ(drawn_map(source, {}, request).log.count("Polygon"), 52);
}

TEST(D2Plot, TakesAColorFieldModulo32Bits) {
  wafer source = wafer_with(on_corners_of_one_cell(5));
  for (const auto& [field, color] : std::map<double, std::string>{{-1, "4294967295"},
                                                                  {4294967296.0 + 255, "255"},
                                                                  {2.5, "2"},
                                                                  {3.5, "4"},
                                                                  {-2147483633.0, "2147483663"}}) {
    source.col6 = field;
    EXPECT_EQ(color_of_that_cell(source), color) << field;
  }
}

TEST(D2Plot, TakesAnyStyleButFiveForASigmaMap) {
  const wafer source = wafer_with(around_centre(6, 0));
  MapRequest request;
  request.SigmaRange = 0.35;
  request.PlotStyle = 4;
  const Lines sigma = drawn_map(source, {}, request).lines();
  for (const std::int16_t style : {0, 1, 6, -5}) {
    request.PlotStyle = style;
    EXPECT_EQ(drawn_map(source, {}, request).lines(), sigma);
  }
}

// ---- What stays of it in the wafer ----

TEST(D2Plot, LeavesTheScaleFieldsConsistent) {
  expect_consistent_scale_fields(10, [](wafer& source, PlotCanvas& canvas) { draw_map(source, canvas, {}); });
}

TEST(D2Plot, EndsWithTheScaleBaseAtTheLowerLimitOrALittleBelowEqualOnes) {
  RecordingCanvas canvas;
  wafer source = wafer_with(spiral(10));
  source.setMaximalMinial(60, 20);
  draw_map(source, canvas, {});
  EXPECT_EQ(source.Low, 20);
  source.setMaximalMinial(5, 5);
  draw_map(source, canvas, {});
  EXPECT_DOUBLE_EQ(source.Low, 4.499);
  source.setMaximalMinial(-5, -5);
  draw_map(source, canvas, {});
  EXPECT_DOUBLE_EQ(source.Low, -5.501);
}

// ---- Against a plain computation ----

TEST(D2PlotComputed, EveryKindOfCanvasAndEveryArea) {
  const wafer source = wafer_with(spiral(49), kFlat, 200, 190);
  for (const CanvasKind kind : kKinds)
    for (const std::int16_t ShowDispl : {0, 1, 2})
      for (const SurfaceSize twips : {SurfaceSize{15, 15}, {4.8, 4.8}, {10, 20}})
        for (const auto& area : {RecordingCanvas::Rectangle{0, 0, 3090, 3090}, kPage})
          expect_as_worked_out(source, {kind, {5, 7, 250, 206}, twips, "", 0},
                               {15, 5, 0, -1, area, ShowDispl});
}

TEST(D2PlotComputed, EveryNumberOfSites) {
  for (const int count : {1, 2, 3, 4, 5, 9, 10, 11, 49})
    for (const std::int16_t style : {5, 4})
      for (const std::int16_t marks : {0, -1})
        expect_as_worked_out(wafer_with(spiral(count)), {}, {12, style, 1.0, marks, {}, 0});
}

TEST(D2PlotComputed, EveryRangeOfValuesWithAndWithoutLimits) {
  const std::vector<std::pair<double, double>> limits = {
      {45, 40}, {1000, -1000}, {7, 7}, {-2, -2}, {-40, -45}};
  for (const auto value : {bowl, falling, mixed, tiny, same, nothing}) {
    wafer source = wafer_with(spiral(20, value));
    expect_as_worked_out(source, {}, {});
    for (const auto& [upper, lower] : limits) {
      source.setMaximalMinial(upper, lower);
      expect_as_worked_out(source, {}, {});
      expect_as_worked_out(source, {}, {20, 4, 0.5, 0, {}, 0});
    }
  }
}

TEST(D2PlotComputed, EveryMarkOfTheWaferAndEveryDiameter) {
  for (const double flat_ratio : {kNotch, kFlat, 0.75, 0.5, 0.2, 0.0})
    for (const double test : {200.0, 180.0, 120.0, 250.0})
      for (const double SigmaRange : {0.0, 1.5})
        expect_as_worked_out(wafer_with(spiral(12), flat_ratio, 200, test), {},
                             {13, 5, SigmaRange, 0, {}, 0});
}

TEST(D2PlotComputed, EveryResolution) {
  const wafer source = wafer_with(spiral(4));
  MapRequest request;
  request.area = {0, 0, 988.8, 988.8};
  for (const double res : {1000.0, 25.1, 25.0, 24.9, 10.0, 3.7, 0.9, 0.0, -5.0, 0.001}) {
    request.res = res;
    expect_as_worked_out(source, {}, request);
  }
}

TEST(D2PlotComputed, AWaferWithoutATestDiameter) {
  expect_as_worked_out(wafer_with(spiral(4), kNotch, 200, 0), {}, {});
  expect_as_worked_out(wafer_with(spiral(4), kNotch, 0.001, 0), {}, {});
}

TEST(D2PlotComputed, EveryMemberFailing) {
  const wafer source = wafer_with(spiral(10));
  for_each_failing_member([&](const CanvasSetup& setup, std::int16_t ShowDispl) {
    expect_as_worked_out(source, setup, {20, 5, 0, -1, kPage, ShowDispl});
  });
}

TEST(D2PlotComputed, EachSingleCallFailing) {
  const wafer source = wafer_with(spiral(4));
  const MapRequest request{25, 5, 0, -1, kPage, 0};
  for_each_failing_call([&](const CanvasSetup& setup) { return drawn_map(source, setup, request); },
                        [&](const CanvasSetup& setup) { expect_as_worked_out(source, setup, request); });
}

TEST(D2Plot, OutlivesEveryErrorOfACanvas) {
  struct Dividing : RecordingCanvas {
    void Circle(double, double, double, std::optional<Color>, std::optional<double>, std::optional<double>,
                double) override {
      throw DivisionByZero();
    }
    void Polygon(std::span<const PixelPoint>) override { throw OverflowError("too large"); }
  } canvas;
  wafer source = wafer_with(spiral(10));
  MapRequest request;
  request.marksites = 1;
  EXPECT_NO_THROW(draw_map(source, canvas, request));
  EXPECT_GE(canvas.log.count("Line"), 20);
}

TEST(D2Plot, ThrowsNothingForNumbersThatLeaveTheRangeOfADouble) {
  wafer source = wafer_with(spiral(10));
  source.maximal = 1.7e308;
  source.minimal = -1.7e308;
  drawn_map(source, {}, {});
  MapRequest request;
  request.ShowDispl = 1;
  request.area = {1.7e308, -1.7e308, 1.7e308, 1.7e308};
  source.setMaximalMinial(50, 40);
  drawn_map(source, {}, request);
  source.col1 = source.col6 = kNaN;
  drawn_map(source, {}, {});
}

class D2PlotOfRandomInput : public RandomInput {
 protected:
  MapRequest any_request() {
    MapRequest request;
    request.res = between(random, 2.0, 60.0);
    request.PlotStyle = static_cast<std::int16_t>(between(random, 4, 5));
    request.SigmaRange = one_of(random, std::vector<double>{0, 0.3, 1, 2.5});
    request.marksites = static_cast<std::int16_t>(between(random, -1, 0));
    request.area = any_area(random);
    request.ShowDispl = static_cast<std::int16_t>(between(random, 0, 1));
    return request;
  }
};

TEST_F(D2PlotOfRandomInput, MatchesThePlainComputation) {
  for (int round = 0; round < 150; ++round) {
    SCOPED_TRACE("round " + std::to_string(round));
    const wafer source = any_wafer(random);
    const CanvasSetup setup = any_setup(random);
    expect_as_worked_out(source, setup, any_request());
    if (HasFailure()) return;
  }
}

}  // namespace
}  // namespace mirolen
