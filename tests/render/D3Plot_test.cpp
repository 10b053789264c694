#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>

#include "failing_canvas.h"
#include "mirolen/render/SurfaceCanvas.h"
#include "plain_surface.h"
#include "sample_wafers.h"
#include "support/NullSurface.h"

namespace mirolen {
namespace {

using testing::Each;

const Color kSystemColor = 0x80000000;

std::string describe(const CanvasSetup& setup, const SurfaceRequest& r) {
  return describe(setup) + line_of("; res, fwscal:", r.resx, r.resy, r.fwscal) +
         line_of("; angles:", r.alp2, r.phi2, r.thet2) +
         line_of("; style, sigma, fprint, ShowDispl:", r.PlotStyle, r.SigmaRange, r.fprint, r.ShowDispl);
}

RecordingCanvas drawn(const wafer& source, const CanvasSetup& setup, const SurfaceRequest& request) {
  RecordingCanvas canvas = setup.canvas();
  wafer copy = source;
  EXPECT_NO_THROW(draw_surface(copy, canvas, request)) << describe(setup, request);
  return canvas;
}

void expect_as_worked_out(const wafer& source, const CanvasSetup& setup, const SurfaceRequest& request) {
  EXPECT_EQ(difference(drawn(source, setup, request).lines(), PlainSurface(source, setup, request).lines()),
            "")
      << describe(setup, request);
}

/// Cells of 25 units, one unit a millimetre, in the plan view: the centre of the grid is at (153, 156).
CanvasSetup plan() {
  CanvasSetup setup;
  setup.scale = {0, 0, 306, 306};
  return setup;
}

struct Cell {
  std::string polygon, fill, fill_style, draw_style;
};

std::vector<Cell> cells(const RecordingCanvas& canvas) {
  std::vector<Cell> found;
  for (std::size_t place = 0; place < canvas.lines().size(); ++place)
    if (canvas.lines()[place].starts_with("Polygon"))
      found.push_back({canvas.lines()[place], canvas.log.value_before(place, "FillColor").value_or("none"),
                       canvas.log.value_before(place, "FillStyle").value_or("none"),
                       canvas.log.value_before(place, "DrawStyle").value_or("none")});
  return found;
}

int count_of_fill(const RecordingCanvas& canvas, Color color) {
  const auto all = cells(canvas);
  return static_cast<int>(
      std::count_if(all.begin(), all.end(), [&](const Cell& cell) { return cell.fill == text_of(color); }));
}

/// The fill of the cell above and right of the centre.
std::string fill_of_that_cell(const wafer& source, const SurfaceRequest& request) {
  for (const Cell& cell : cells(drawn(source, plan(), request)))
    if (cell.polygon == "Polygon 178,131 153,131 153,156 178,156") return cell.fill;
  return "no such cell";
}

// ---- Worked out by hand ----

TEST(D3Plot, PaintsTheGridRowByRowFromTheFarEdge) {
  // 100 / 25 + 2 = 6 cells each way from the centre; 300 units are left for 300 mm.
  const Lines polygons = drawn(wafer_with(spiral(4)), plan(), {}).log.of("Polygon");
  ASSERT_EQ(polygons.size(), 144u);
  EXPECT_EQ(polygons[0], "Polygon 303,6 278,6 278,31 303,31");
  EXPECT_EQ(polygons[1], "Polygon 278,6 253,6 253,31 278,31");
  EXPECT_EQ(polygons[11], "Polygon 28,6 3,6 3,31 28,31");
  EXPECT_EQ(polygons[12], "Polygon 303,31 278,31 278,56 303,56");
  EXPECT_EQ(polygons[143], "Polygon 28,281 3,281 3,306 28,306");
}

TEST(D3Plot, ColorsOnlyCellsWithAllFourCornersOnTheWafer) {
  // Nodes strictly inside 100 mm: at y = 75 up to x = 50, at 50, 25 and 0 up to 75. So 4, 6 and 6 cells in
  // the three rows above the centre, and as many below it.
  const RecordingCanvas canvas = drawn(wafer_with(spiral(4, same)), plan(), {});
  EXPECT_EQ(count_of_fill(canvas, QBColor(2)), 2 * (4 + 6 + 6));
  EXPECT_EQ(count_of_fill(canvas, kSystemColor), 144 - 32);
}

TEST(D3Plot, TakesCellsThatTouchTheFlatForOutside) {
  // The flat lies at y = -(0.75 - 0.5) * 200 = -50, and nodes on it are outside.
  const RecordingCanvas canvas = drawn(wafer_with(spiral(4, same), 0.75), plan(), {});
  EXPECT_EQ(count_of_fill(canvas, QBColor(2)), 4 + 6 + 6 + 6);
}

TEST(D3Plot, TurnsTheDrawingByAQuarter) {
  SurfaceRequest request;
  request.alp2 = request.phi2 = 90;
  const Lines polygons = drawn(wafer_with(spiral(4)), plan(), request).log.of("Polygon");
  ASSERT_EQ(polygons.size(), 144u);
  EXPECT_EQ(polygons[0], "Polygon 3,6 3,31 28,31 28,6");
  EXPECT_EQ(polygons[143], "Polygon 278,281 278,306 303,306 303,281");
}

TEST(D3Plot, HalvesTheDepthAtThirtyDegrees) {
  SurfaceRequest request;
  request.thet2 = 30;
  request.fwscal = 0;
  CanvasSetup setup;
  setup.scale = {0, 0, 606, 606};  // two units a millimetre across, one down
  const Lines polygons = drawn(wafer_with(spiral(4)), setup, request).log.of("Polygon");
  ASSERT_EQ(polygons.size(), 144u);
  EXPECT_EQ(polygons[0], "Polygon 603,306 553,306 553,331 603,331");
  EXPECT_EQ(polygons[36], "Polygon 603,381 553,381 553,406 603,406");
}

TEST(D3Plot, RaisesTheSurfaceByItsValueAboveTheBase) {
  // Values 0 and 10 stand 1 and 11 above the base of -1. Edge-on the height of 306 - 6 = 300 is there for
  // fwscal 300 mm, one unit each: the value 10 rises by 300, the value 0 by 300 / 11 = 27.27.
  const SiteList sites = {{0, 0, 0}, {25, 0, 10}, {0, 25, 0}, {25, 25, 10}};
  SurfaceRequest request;
  request.thet2 = 0;
  request.fwscal = 300;
  const Lines polygons = drawn(wafer_with(sites), plan(), request).log.of("Polygon");
  ASSERT_EQ(polygons.size(), 144u);
  EXPECT_EQ(polygons[5 * 12 + 5], "Polygon 178,6 153,279 153,279 178,6");
  EXPECT_EQ(polygons[0], "Polygon 303,306 278,306 278,306 303,306");
}

TEST(D3Plot, ScalesAFlatSurfaceSeenEdgeOnByTheWidthAlone) {
  SurfaceRequest request;
  request.thet2 = request.fwscal = 0;
  CanvasSetup setup;
  setup.scale = {0, 0, 606, 50};
  const Lines polygons = drawn(wafer_with(spiral(4)), setup, request).log.of("Polygon");
  ASSERT_EQ(polygons.size(), 144u);
  EXPECT_EQ(polygons[0], "Polygon 603,50 553,50 553,50 603,50");
  EXPECT_EQ(polygons[143], "Polygon 53,50 3,50 3,50 53,50");
}

TEST(D3Plot, PutsThePageWhereItsTwipsSay) {
  CanvasSetup setup;
  setup.kind = CanvasKind::printer;
  setup.twips_per_pixel = {10, 20};
  SurfaceRequest request;
  request.area = {1000, 4000, 3060, 6120};
  request.ShowDispl = 1;
  EXPECT_EQ(drawn(wafer_with(spiral(4)), setup, request).log.of("Polygon").at(0),
            "Polygon 403,206 378,206 378,231 403,231");
  const ScreenOf screen(20, 10);
  setup.kind = CanvasKind::other;
  request.area = {4000, 1000, 6120, 3060};
  EXPECT_EQ(drawn(wafer_with(spiral(4)), setup, request).log.of("Polygon").at(0),
            "Polygon 503,106 478,106 478,131 503,131");
}

TEST(D3Plot, RoundsTheBoxToWholePixels) {
  CanvasSetup setup;
  setup.scale = {0.5, 1.5, 305.5, 305.5};  // 0, 2, 306 and 306: ties go to the even number
  EXPECT_EQ(drawn(wafer_with(spiral(4)), setup, {}).log.of("Polygon").at(0),
            "Polygon 303,8 278,8 278,33 303,33");
}

// ---- Fill ----

TEST(D3Plot, FillsByItsStyle) {
  const wafer source = wafer_with(on_corners_of_one_cell(5));
  SurfaceRequest request;
  request.SigmaRange = 1;
  const auto styles = [&](std::int16_t style) {
    request.PlotStyle = style;
    std::set<std::string> found;
    for (const Cell& cell : cells(drawn(source, plan(), request)))
      found.insert(cell.fill_style + ' ' + cell.fill);
    return found;
  };
  const std::set<std::string> colored = {"0 " + text_of(QBColor(2)), "0 " + text_of(kSystemColor)};
  const std::set<std::string> empty = {"1 " + text_of(QBColor(15))};
  EXPECT_EQ(styles(1), colored);
  EXPECT_EQ(styles(2), empty);
  EXPECT_EQ(styles(3), std::set<std::string>{"0 " + text_of(QBColor(15))});
  EXPECT_EQ(styles(4), colored);
  EXPECT_EQ(styles(5), colored);
  EXPECT_EQ(styles(0), empty);
  EXPECT_EQ(styles(6), empty);
  EXPECT_EQ(styles(-1), empty);
}

TEST(D3Plot, DrawsTheSamePictureForStylesOneAndFive) {
  const wafer source = wafer_with(spiral(20));
  SurfaceRequest edges, bands;
  bands.PlotStyle = 5;
  edges.alp2 = bands.alp2 = 30;
  edges.thet2 = bands.thet2 = 50;
  EXPECT_EQ(drawn(source, plan(), edges).lines(), drawn(source, plan(), bands).lines());
}

TEST(D3Plot, DrawsEachCellWithSolidEdges) {
  for (const Cell& cell : cells(drawn(wafer_with(spiral(9)), plan(), {}))) EXPECT_EQ(cell.draw_style, "0");
}

TEST(D3Plot, SetsBlackThinEdgesBeforeTheFirstCell) {
  const RecordingCanvas canvas = drawn(wafer_with(spiral(9)), plan(), {});
  const std::size_t first = canvas.log.place_of("Polygon");
  ASSERT_LT(first, canvas.lines().size());
  EXPECT_EQ(canvas.log.value_before(first, "ForeColor"), "0");
  EXPECT_EQ(canvas.log.value_before(first, "DrawWidth"), "1");
}

TEST(D3Plot, ColorsBandsByTheMeanOfTheCorners) {
  // 0 to 10 in bands of 1; the base of -1 only shifts the heights.
  const auto fill = [](double a, double b) {
    return fill_of_that_cell(wafer_with({{0, 0, 0}, {25, 0, 10}, {0, 25, a}, {25, 25, b}}), {});
  };
  const wafer defaults;
  EXPECT_EQ(fill(10, 10), text_of(defaults.col3));  // 7.5
  EXPECT_EQ(fill(6, 10), text_of(defaults.col4));   // 6.5
  EXPECT_EQ(fill(6, 6), text_of(defaults.col5));    // 5.5
  EXPECT_EQ(fill(4, 4), text_of(defaults.col6));    // 4.5
  EXPECT_EQ(fill(4, 0), text_of(defaults.col7));    // 3.5
  EXPECT_EQ(fill(0, 0), text_of(defaults.col8));    // 2.5
}

TEST(D3Plot, SpreadsTheBandsAnEighthBeyondTheLimitsThatAUserSet) {
  // Limits 0 to 8 make a scale of -1 to 9 with bands of 1.
  const wafer defaults;
  const double colors[] = {defaults.col10, defaults.col9, defaults.col8, defaults.col7, defaults.col6,
                           defaults.col5,  defaults.col4, defaults.col3, defaults.col2, defaults.col1};
  for (int band = 0; band < 10; ++band) {
    wafer source = wafer_with(on_corners_of_one_cell(band - 0.5));
    source.setMaximalMinial(8, 0);
    EXPECT_EQ(fill_of_that_cell(source, {}), text_of(colors[band])) << band;
  }
  for (const double beyond : {-50.0, 50.0}) {
    wafer source = wafer_with(on_corners_of_one_cell(beyond));
    source.setMaximalMinial(8, 0);
    EXPECT_EQ(fill_of_that_cell(source, {}), text_of(beyond < 0 ? defaults.col10 : defaults.col1));
  }
}

TEST(D3Plot, ColorsSigmaClassesAboveInsideAndBelowTheRange) {
  // The fifth site stands off the cell and draws the mean away from it.
  const auto fill = [](double corner, double elsewhere, double SigmaRange) {
    SurfaceRequest request;
    request.PlotStyle = 4;
    request.SigmaRange = SigmaRange;
    SiteList sites = on_corners_of_one_cell(corner);
    sites.push_back({-50, -50, elsewhere});
    return fill_of_that_cell(wafer_with(sites), request);
  };
  // 10, 10, 10, 10, 0: mean 8, deviation 4.47; the cell stands 0.447 deviations above the mean.
  EXPECT_EQ(fill(10, 0, 0.44), text_of(QBColor(4)));
  EXPECT_EQ(fill(10, 0, 0.45), text_of(QBColor(2)));
  EXPECT_EQ(fill(0, 10, 0.44), text_of(QBColor(1)));
  EXPECT_EQ(fill(0, 10, 0.45), text_of(QBColor(2)));
}

TEST(D3Plot, ReadsTheSigmaRangeForSigmaColorsAlone) {
  const wafer source = wafer_with(spiral(9));
  for (const std::int16_t style : {1, 2, 3, 5, 0}) {
    SurfaceRequest none, out_of_range;
    none.PlotStyle = out_of_range.PlotStyle = style;
    out_of_range.SigmaRange = 1.7e308;
    EXPECT_EQ(drawn(source, plan(), out_of_range).lines(), drawn(source, plan(), none).lines()) << style;
  }
}

TEST(D3Plot, PaintsEqualValuesInTheSixthColorOrTheMiddleSigmaClass) {
  for (const double value : {0.0, 5.0, -5.0, 1e9}) {
    SurfaceRequest request;
    wafer source = wafer_with(on_corners_of_one_cell(value));
    source.col6 = 1234;
    source.ColS2 = 4321;
    EXPECT_EQ(count_of_fill(drawn(source, plan(), request), 1234), 32);
    request.PlotStyle = 4;
    request.SigmaRange = 1;
    EXPECT_EQ(count_of_fill(drawn(source, plan(), request), 4321), 32);
  }
}

TEST(D3Plot, TakesAFlatSurfaceForOneWithoutData) {
  SurfaceRequest request;
  request.fwscal = 0;
  for (const std::int16_t style : {1, 4, 5}) {
    request.PlotStyle = style;
    EXPECT_EQ(count_of_fill(drawn(wafer_with(spiral(9)), plan(), request), kSystemColor), 144);
    request.thet2 = 40;
    EXPECT_EQ(count_of_fill(drawn(wafer_with(spiral(9)), plan(), request), QBColor(15)), 144);
    request.thet2 = 90;
  }
}

TEST(D3Plot, TakesACellAtTheBaseOnTheMeanForOneWithoutData) {
  // The data go from 6 to 16 above a base of 5; the cell's corners stand 5 above it and 5 below.
  wafer source = wafer_with({{0, 0, 0}, {25, 0, 0}, {0, 25, 10}, {25, 25, 10}});
  source.maxi = source.maximal = 16;
  source.mini = source.minimal = 6;
  SurfaceRequest request;
  for (const std::int16_t style : {1, 4, 5}) {
    request.PlotStyle = style;
    EXPECT_EQ(fill_of_that_cell(source, request), text_of(kSystemColor)) << style;
  }
}

TEST(D3Plot, ShowsTheScreensBackgroundWhereThePlanViewHasNoData) {
  const wafer source = wafer_with(spiral(9));
  const auto system_cells = [&](SurfaceRequest request) {
    return count_of_fill(drawn(source, plan(), request), kSystemColor);
  };
  const auto with = [](auto change) {
    SurfaceRequest request;
    change(request);
    return request;
  };
  EXPECT_EQ(system_cells({}), 112);
  EXPECT_EQ(system_cells(with([](auto& r) { r.fprint = true; })), 0);
  EXPECT_EQ(system_cells(with([](auto& r) { r.thet2 = 89.999; })), 0);
  EXPECT_EQ(system_cells(with([](auto& r) { r.alp2 = 360; })), 0);
  EXPECT_EQ(system_cells(with([](auto& r) { r.phi2 = 0.001; })), 0);
  EXPECT_EQ(system_cells(with([](auto& r) { r.PlotStyle = 3; })), 0);
}

TEST(D3Plot, TakesAColorFieldOfFifteenForCellsWithoutData) {
  wafer source = wafer_with(on_corners_of_one_cell(5));
  source.col6 = source.ColS2 = 15;
  SurfaceRequest request;
  EXPECT_EQ(count_of_fill(drawn(source, plan(), request), kSystemColor), 144);
  request.PlotStyle = 4;
  EXPECT_EQ(count_of_fill(drawn(source, plan(), request), kSystemColor), 144);
  request.fprint = true;
  EXPECT_EQ(count_of_fill(drawn(source, plan(), request), QBColor(15)), 144);
}

// ---- Grid ----

int number_of_cells(const wafer& source, double resx, double resy) {
  SurfaceRequest request;
  request.resx = resx;
  request.resy = resy;
  return drawn(source, plan(), request).log.count("Polygon");
}

TEST(D3Plot, HasAtLeastTwelveCellsEachWay) {
  const wafer source = wafer_with(spiral(4));
  EXPECT_EQ(number_of_cells(source, 25, 25), 12 * 12);
  EXPECT_EQ(number_of_cells(source, 25.1, 1000), 12 * 12);
  EXPECT_EQ(number_of_cells(source, 0, -5), 12 * 12);
  EXPECT_EQ(number_of_cells(source, 10, 25), 24 * 12);
  EXPECT_EQ(number_of_cells(source, 25, 10), 12 * 24);
}

TEST(D3Plot, ReplacesACoarseResolutionByAnEighthOfTheTestDiameter) {
  const wafer source = wafer_with(spiral(9));
  SurfaceRequest coarse;
  coarse.resx = 1000;
  coarse.resy = 30;
  EXPECT_EQ(drawn(source, plan(), coarse).lines(), drawn(source, plan(), {}).lines());
}

TEST(D3Plot, RoundsTheGridSizeHalfToEven) {
  EXPECT_EQ(number_of_cells(wafer_with(spiral(4), kNotch, 200, 144), 16, 16), 12 * 12);  // 6.5
  EXPECT_EQ(number_of_cells(wafer_with(spiral(4), kNotch, 200, 176), 16, 16), 16 * 16);  // 7.5
}

TEST(D3Plot, HasAtMostAThousandCellsEachWay) {
  const wafer source = wafer_with(spiral(4));
  EXPECT_EQ(number_of_cells(source, 100 / 498.0, 25), 1000 * 12);
  EXPECT_EQ(number_of_cells(source, 0.01, 25), 1000 * 12);
  EXPECT_EQ(number_of_cells(source, 25, 0.01), 12 * 1000);
}

TEST(D3Plot, ReplacesATooFineResolutionByAThousandthOfTheTestDiameter) {
  const wafer source = wafer_with(spiral(9));
  SurfaceRequest told;
  told.resx = 0.2;
  told.phi2 = 20;
  told.thet2 = 50;
  const Lines expected = drawn(source, plan(), told).lines();
  // From a little too fine to more cells than 16 bits, and more than a Double, count.
  for (const double fine : {100 / 498.6, 0.01, 1e-3, 1e-9, 1e-320}) {
    SurfaceRequest request = told;
    request.resx = fine;
    EXPECT_EQ(difference(drawn(source, plan(), request).lines(), expected), "") << fine;
  }
}

TEST(D3Plot, KeepsAResolutionThatRoundsToAThousandCells) {
  SurfaceRequest request;
  request.resx = 100 / 498.25;
  const wafer source = wafer_with(spiral(9));
  expect_as_worked_out(source, plan(), request);
  SurfaceRequest finer = request;
  finer.resx = 0.2;
  EXPECT_NE(drawn(source, plan(), request).lines(), drawn(source, plan(), finer).lines());
}

class CountingSurface : public NullSurface {
 public:
  using NullSurface::NullSurface;
  int polygons = 0;
  void polygon(const Pen&, const Brush&, std::span<const PixelPoint>) override { ++polygons; }
};

TEST(D3Plot, PaintsAMillionCellsForTheFinestResolutions) {
  wafer source = wafer_with(spiral(20));
  CountingSurface surface({306, 306});
  SurfaceCanvas canvas(CanvasKind::picture_box, &surface);
  SurfaceRequest request;
  request.resx = request.resy = 0.01;
  draw_surface(source, canvas, request);
  EXPECT_EQ(surface.polygons, 1000 * 1000);
}

// ---- The canvas ----

TEST(D3Plot, DrawsNothingForThreeSitesButStillErases) {
  for (const int count : {0, 1, 3}) {
    const wafer source = wafer_with(spiral(count));
    SurfaceRequest request;
    const RecordingCanvas redraw = drawn(source, plan(), request);
    EXPECT_EQ(redraw.log.count("Polygon"), 0);
    EXPECT_EQ(redraw.log.count("Cls"), 1);
    EXPECT_EQ(redraw.log.count("Refresh"), 1);
    request.ShowDispl = 1;
    request.area = {0, 0, 3060, 3060};
    const RecordingCanvas page = drawn(source, plan(), request);
    EXPECT_EQ(page.log.count("Polygon") + page.log.count("Cls") + page.log.count("Refresh"), 0);
  }
}

TEST(D3Plot, RefreshesAPictureBoxAfterEachRow) {
  const wafer source = wafer_with(spiral(9));
  CanvasSetup setup = plan();
  SurfaceRequest request;
  request.area = {0, 0, 3060, 3060};
  for (const std::int16_t ShowDispl : {0, 1}) {
    request.ShowDispl = ShowDispl;
    setup.kind = CanvasKind::picture_box;
    EXPECT_EQ(drawn(source, setup, request).log.count("Refresh"), 12 + (ShowDispl == 0));
    for (const CanvasKind kind : {CanvasKind::printer, CanvasKind::other}) {
      setup.kind = kind;
      EXPECT_EQ(drawn(source, setup, request).log.count("Refresh"), ShowDispl == 0);
    }
  }
}

TEST(D3Plot, IgnoresTheAreaArgumentsForARedraw) {
  const wafer source = wafer_with(spiral(10));
  SurfaceRequest none, some;
  some.area = {300, 600, 900, 1200};
  EXPECT_EQ(drawn(source, plan(), none).lines(), drawn(source, plan(), some).lines());
}

TEST(D3Plot, AssumesAPageOf300DotsPerInchWhereThePrinterTellsNoResolution) {
  CanvasSetup setup;
  setup.kind = CanvasKind::printer;
  setup.twips_per_pixel = {7, 4.8};
  setup.fails_in = "TwipsPerPixelX";
  SurfaceRequest request;
  request.area = {480, 960, 306 * 4.8, 306 * 4.8};
  request.ShowDispl = 1;
  EXPECT_EQ(drawn(wafer_with(spiral(4)), setup, request).log.of("Polygon").at(0),
            "Polygon 403,206 378,206 378,231 403,231");
}

TEST(D3Plot, TakesAnAreaBeyond16BitsForAFailure) {
  CanvasSetup setup = plan();
  setup.scale.left = 40000;  // the handler's box is left 100, and width, top and height are read after it
  SurfaceRequest request;
  request.area = {480, 480, 480, 480};
  EXPECT_EQ(drawn(wafer_with(spiral(4)), setup, request).log.of("Polygon").at(0),
            "Polygon 403,6 378,6 378,31 403,31");
}

// ---- What stays of it in the wafer ----

TEST(D3Plot, LeavesTheScaleFieldsConsistent) {
  for (const int sites : {3, 10})
    expect_consistent_scale_fields(
        sites, [](wafer& source, PlotCanvas& canvas) { draw_surface(source, canvas, {}); });
}

// ---- Against a plain computation ----

TEST(D3PlotComputed, EveryKindOfCanvas) {
  const wafer source = wafer_with(spiral(49), kFlat, 200, 190);
  for (const CanvasKind kind : kKinds)
    for (const std::int16_t ShowDispl : {0, 1, 2})
      for (const SurfaceSize twips : {SurfaceSize{15, 15}, {4.8, 4.8}, {10, 20}})
        for (const RecordingCanvas::Rectangle area : {RecordingCanvas::Rectangle{0, 0, 3090, 3090}, kPage}) {
          SurfaceRequest request{20, 17, 50, 20, 30, 40, 1, 0, ShowDispl == 1, area, ShowDispl};
          expect_as_worked_out(source, {kind, {5, 7, 250, 206}, twips, "", 0}, request);
        }
}

TEST(D3PlotComputed, EveryStyle) {
  for (const double flat_ratio : {kNotch, kFlat, 0.75, 0.2})
    for (const std::int16_t style : {0, 1, 2, 3, 4, 5, 6})
      for (const double SigmaRange : {0.0, 0.7, 3.0})
        for (const bool fprint : {false, true})
          for (const double thet2 : {90.0, 35.0})
            expect_as_worked_out(wafer_with(spiral(12), flat_ratio), plan(),
                                 {15, 15, 50, 0, 0, thet2, style, SigmaRange, fprint, {}, 0});
}

TEST(D3PlotComputed, EveryAngle) {
  const wafer source = wafer_with(spiral(30), kFlat);
  for (const double alp2 : {0.0, 30.0, 90.0, 135.0, 270.0, 360.0, -20.0})
    for (const double phi2 : {0.0, 45.0, 180.0, 333.0})
      for (const double thet2 : {90.0, 60.0, 0.0, -10.0, 120.0})
        for (const double fwscal : {0.0, 30.0, -30.0, 500.0})
          expect_as_worked_out(source, plan(), {25, 20, fwscal, alp2, phi2, thet2, 1, 0, false, {}, 0});
}

TEST(D3PlotComputed, EveryRangeOfValuesWithAndWithoutLimits) {
  const std::vector<std::pair<double, double>> limits = {
      {45, 40}, {1000, -1000}, {7, 7}, {-2, -2}, {-40, -45}};
  for (const auto value : {bowl, falling, mixed, tiny, same, nothing}) {
    wafer source = wafer_with(spiral(20, value));
    expect_as_worked_out(source, plan(), {});
    for (const auto& [upper, lower] : limits) {
      source.setMaximalMinial(upper, lower);
      for (const std::int16_t style : {1, 4})
        expect_as_worked_out(source, plan(), {20, 20, 60, 10, 20, 50, style, 0.5, false, {}, 0});
    }
  }
}

TEST(D3PlotComputed, EveryResolutionAndDiameter) {
  for (const double test : {200.0, 180.0, 120.0, 250.0, 0.0})
    for (const double resx : {1000.0, 25.1, 25.0, 11.0, 0.0, -5.0, 0.001})
      expect_as_worked_out(wafer_with(spiral(4), kNotch, 200, test), plan(),
                           {resx, 21, 40, 15, 0, 60, 1, 0, false, {0, 0, 1468.8, 1468.8}, 0});
}

TEST(D3PlotComputed, EveryMemberFailing) {
  const wafer source = wafer_with(spiral(10));
  for_each_failing_member([&](const CanvasSetup& setup, std::int16_t ShowDispl) {
    expect_as_worked_out(source, setup, {20, 20, 50, 10, 20, 50, 1, 0, false, kPage, ShowDispl});
  });
}

TEST(D3PlotComputed, EachSingleCallFailing) {
  const wafer source = wafer_with(spiral(4));
  const SurfaceRequest request{25, 25, 50, 10, 20, 50, 1, 0, false, kPage, 0};
  for_each_failing_call([&](const CanvasSetup& setup) { return drawn(source, setup, request); },
                        [&](const CanvasSetup& setup) { expect_as_worked_out(source, setup, request); });
}

TEST(D3Plot, ThrowsNothingForNumbersThatLeaveTheRangeOfADouble) {
  wafer source = wafer_with(spiral(10));
  source.maximal = 1.7e308;
  source.minimal = -1.7e308;
  drawn(source, plan(), {});
  SurfaceRequest request;
  request.area = {1.7e308, -1.7e308, 1.7e308, 1.7e308};
  request.ShowDispl = 1;
  source.setMaximalMinial(50, 40);
  drawn(source, plan(), request);
  request = {};
  request.fwscal = 1.7e308;
  request.thet2 = 30;
  drawn(source, plan(), request);
  source.col1 = source.col6 = kNaN;
  drawn(source, plan(), {});
}

class D3PlotOfRandomInput : public RandomInput {
 protected:
  SurfaceRequest any_request() {
    SurfaceRequest request;
    request.resx = between(random, 5.0, 60.0);
    request.resy = between(random, 5.0, 60.0);
    request.fwscal = one_of(random, std::vector<double>{0, 10, 60, 200});
    if (chance(random, 0.7)) {
      request.alp2 = between(random, -360.0, 360.0);
      request.phi2 = between(random, -360.0, 360.0);
      request.thet2 = between(random, 0.0, 90.0);
    }
    request.PlotStyle = static_cast<std::int16_t>(between(random, 0, 6));
    request.SigmaRange = one_of(random, std::vector<double>{0, 0.3, 1, 2.5});
    request.fprint = chance(random, 0.5);
    request.area = any_area(random);
    request.ShowDispl = static_cast<std::int16_t>(between(random, 0, 1));
    return request;
  }
};

TEST_F(D3PlotOfRandomInput, MatchesThePlainComputation) {
  for (int round = 0; round < 100; ++round) {
    SCOPED_TRACE("round " + std::to_string(round));
    const wafer source = any_wafer(random);
    const CanvasSetup setup = any_setup(random);
    expect_as_worked_out(source, setup, any_request());
    if (HasFailure()) return;
  }
}

}  // namespace
}  // namespace mirolen
