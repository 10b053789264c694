#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>

#include "sample_wafers.h"
#include "support/RecordingCompanions.h"

namespace mirolen {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

/// The arguments of a line scan next to its canvas. Without more: through the centre along +x.
struct ScanRequest {
  std::int16_t resol = 4, phi = 0;
  bool D1Angle = false;
  double x1 = -10, y1 = 0, x2 = 10, y2 = 0;
  Color DrawCol = 255;
  RecordingCanvas::Rectangle area;
  std::int16_t ShowDisp = 0;
};

ScanRequest through(double x1, double y1, double x2, double y2) {
  ScanRequest request;
  request.x1 = x1;
  request.y1 = y1;
  request.x2 = x2;
  request.y2 = y2;
  return request;
}

ScanRequest at_angle(std::int16_t phi) {
  ScanRequest request = through(0, 0, 0, 0);
  request.D1Angle = true;
  request.phi = phi;
  return request;
}

ScanRequest on_page(ScanRequest request) {
  request.ShowDisp = 1;
  request.area = {1000, 2000, 80, 100};
  return request;
}

void scan(wafer& source, PlotCanvas& canvas, const ScanRequest& r) {
  source.D1Plot(canvas, r.resol, r.phi, r.D1Angle, r.x1, r.y1, r.x2, r.y2, r.DrawCol, r.area.left, r.area.top,
                r.area.width, r.area.height, r.ShowDisp);
}

void mark(const wafer& source, PlotCanvas& canvas, SiteMarks* marks, const ScanRequest& r) {
  source.D1Plot_MarkSites(canvas, marks, r.phi, r.D1Angle, r.x1, r.y1, r.x2, r.y2, r.DrawCol, r.area.left,
                          r.area.top, r.area.width, r.area.height, r.ShowDisp);
}

/// A chart of 80 by 100.
RecordingCanvas chart(CanvasKind kind = CanvasKind::other) { return RecordingCanvas(kind, {0, 0, 80, 100}); }

Lines scanned(wafer source, const ScanRequest& request) {
  RecordingCanvas canvas = chart();
  scan(source, canvas, request);
  return canvas.log.of("Line");
}

Lines marks_of(const wafer& source, const ScanRequest& request, int existing = 1) {
  RecordingCanvas canvas = chart();
  RecordingMarks marks(existing);
  mark(source, canvas, &marks, request);
  EXPECT_THAT(canvas.lines(), IsEmpty());
  return marks.log.lines;
}

/// Five sites along +x, on the samples of a scan in four pieces.
wafer along_x() { return wafer_with({{-100, 0, 0}, {-50, 0, 10}, {0, 0, 5}, {50, 0, 8}, {100, 0, 2}}); }
wafer along_y() { return wafer_with({{0, -100, 0}, {0, -50, 10}, {0, 0, 5}, {0, 50, 8}, {0, 100, 2}}); }

// ---- The curve ----

const Lines kForward = {"Line 6 0 100 20 0 255", "Line 6 20 0 40 50 255", "Line 6 40 50 60 20 255",
                        "Line 6 60 20 80 80 255"};
const Lines kBackward = {"Line 6 0 80 20 20 255", "Line 6 20 20 40 50 255", "Line 6 40 50 60 0 255",
                         "Line 6 60 0 80 100 255"};

TEST(D1Plot, DrawsTheValuesAlongALine) {
  EXPECT_EQ(difference(scanned(along_x(), through(-10, 0, 10, 0)), kForward, 1e-9), "");
  EXPECT_EQ(difference(scanned(along_x(), through(10, 0, -10, 0)), kBackward, 1e-9), "");
  EXPECT_EQ(difference(scanned(along_y(), through(0, -1, 0, 5)), kForward, 1e-9), "");
  EXPECT_EQ(difference(scanned(along_y(), through(0, 5, 0, -1)), kBackward, 1e-9), "");
}

TEST(D1Plot, DrawsTheValuesAtAnAngle) {
  EXPECT_EQ(difference(scanned(along_y(), at_angle(0)), kForward, 1e-6), "");
  EXPECT_EQ(difference(scanned(along_y(), at_angle(360)), kForward, 1e-6), "");
  EXPECT_EQ(difference(scanned(along_y(), at_angle(180)), kBackward, 1e-6), "");
  EXPECT_EQ(difference(scanned(along_x(), at_angle(90)), kBackward, 1e-6), "");
  EXPECT_EQ(difference(scanned(along_x(), at_angle(270)), kForward, 1e-6), "");
}

TEST(D1Plot, StandsInItsAreaOnAPage) {
  EXPECT_EQ(difference(scanned(along_x(), on_page({})),
                       {"Line 6 1000 2100 1020 2000 255", "Line 6 1020 2000 1040 2050 255",
                        "Line 6 1040 2050 1060 2020 255", "Line 6 1060 2020 1080 2080 255"},
                       1e-9),
            "");
}

TEST(D1Plot, TakesIdenticalPointsForAVerticalLine) {
  EXPECT_EQ(difference(scanned(along_y(), through(0, 7, 0, 7)), kBackward, 1e-9), "");
}

TEST(D1Plot, DrawsAPieceForEachSample) {
  ScanRequest request;
  for (const std::int16_t resol : {1, 88, 300}) {
    request.resol = resol;
    EXPECT_EQ(scanned(along_x(), request).size(), static_cast<std::size_t>(resol));
  }
}

TEST(D1Plot, LetsTheCurveLeaveTheBoxBeyondTheLimits) {
  wafer source = along_x();
  source.setMaximalMinial(8, 4);
  EXPECT_EQ(difference({scanned(source, {}).front()}, {"Line 6 0 200 20 -50 255"}, 1e-9), "");
}

TEST(D1Plot, DrawsNothingForThreeSites) {
  wafer source = wafer_with(spiral(3));
  source.Low = 12345;
  RecordingCanvas canvas = chart();
  scan(source, canvas, {});
  EXPECT_THAT(canvas.lines(), IsEmpty());
  EXPECT_EQ(source.Low, 12345);
}

TEST(D1Plot, DrawsNothingForAChordThatIsAPoint) {
  EXPECT_THAT(scanned(wafer_with(spiral(9)), through(-10, 100, 10, 100)), IsEmpty());
  EXPECT_THAT(scanned(wafer_with(spiral(9)), through(100, -10, 100, 10)), IsEmpty());
}

TEST(D1Plot, SetsTheScaleBaseByTheSignOfTheData) {
  const auto base = [](SiteList sites, double limit) {
    wafer source = wafer_with(sites);
    source.setMaximalMinial(limit, limit);
    RecordingCanvas canvas = chart();
    scan(source, canvas, {});
    return source.Low;
  };
  EXPECT_DOUBLE_EQ(base(spiral(9), 5), 4.499);
  EXPECT_DOUBLE_EQ(base(spiral(9, falling), 5), 5.499);
  EXPECT_DOUBLE_EQ(base(spiral(9, falling), -5), -5.501);
  wafer limited = wafer_with(spiral(9));
  limited.setMaximalMinial(50, 41);
  RecordingCanvas canvas = chart();
  scan(limited, canvas, {});
  EXPECT_EQ(limited.Low, 41);
}

TEST(D1Plot, DrawsEqualValuesAtTheTop) {
  // 0.9 * 0 - 0.001 is the base, so that nothing is divided by zero.
  EXPECT_EQ(difference({scanned(wafer_with(spiral(9, nothing)), {}).front()}, {"Line 6 0 0 20 0 255"}, 1e-9),
            "");
}

TEST(D1Plot, PassesErrorsOn) {
  wafer source = wafer_with(spiral(9));
  RecordingCanvas canvas = chart();
  EXPECT_THROW(scan(source, canvas, through(150, 0, 150, 10)), InvalidArgument);
  EXPECT_THROW(mark(source, canvas, nullptr, on_page(through(0, 150, 10, 150))), InvalidArgument);
  ScanRequest none;
  none.resol = 0;
  EXPECT_THROW(scan(source, canvas, none), DivisionByZero);
  canvas.log.fail_in("Line");
  EXPECT_THROW(scan(source, canvas, {}), CanvasError);
  EXPECT_THROW(source.D1Plot_AdjustLines(canvas, 0, 0, 10, 10), CanvasError);
}

// ---- The grid ----

TEST(D1PlotAdjustLines, DrawsFourCellsEachWay) {
  RecordingCanvas canvas = chart();
  wafer().D1Plot_AdjustLines(canvas, 10, 20, 80, 40);
  const std::string blue = text_of(QBColor(1));
  EXPECT_THAT(canvas.lines(), ElementsAre("Line 6 10 20 10 60 " + blue, "Line 6 30 20 30 60 " + blue,
                                          "Line 6 50 20 50 60 " + blue, "Line 6 70 20 70 60 " + blue,
                                          "Line 6 90 20 90 60 " + blue, "Line 6 10 20 90 20 " + blue,
                                          "Line 6 10 30 90 30 " + blue, "Line 6 10 40 90 40 " + blue,
                                          "Line 6 10 50 90 50 " + blue, "Line 6 10 60 90 60 " + blue));
}

TEST(D1PlotAdjustLines, LeavesAPixelOnAPictureBoxAndKeepsTheGridThere) {
  const ScreenOf screen(20, 10);
  RecordingCanvas canvas = chart(CanvasKind::picture_box);
  wafer().D1Plot_AdjustLines(canvas, 10, 20, 80, 40);
  const std::string blue = text_of(QBColor(1));
  ASSERT_EQ(canvas.lines().size(), 12u);
  EXPECT_EQ(canvas.lines()[4], "Line 6 70 20 70 60 " + blue);
  EXPECT_EQ(canvas.lines()[9], "Line 6 10 50 90 50 " + blue);
  EXPECT_EQ(canvas.lines()[10], "Refresh");
  EXPECT_EQ(canvas.lines()[11], "keep_as_background");
}

// ---- The marks ----

TEST(D1PlotMarkSites, ShowsTheSitesOnTheLine) {
  // 80 units for 200 mm; a mark reaches 105 to the left of and above its site.
  const wafer source = wafer_with({{-50, 0, 10}, {25, 0, 5}, {50, 1, 7}, {0, 30, 0}});
  EXPECT_THAT(marks_of(source, {}), ElementsAre("hide_all", "show 0 -85 -105 X = -50  Y= 0 FW = 10", "add",
                                                "show 1 -55 -55 X = 25  Y= 0 FW = 5"));
}

TEST(D1PlotMarkSites, GoesOnFromTheLastMarkThatThereIs) {
  EXPECT_THAT(marks_of(wafer_with({{-50, 0, 10}, {25, 0, 5}, {50, 1, 7}, {0, 30, 0}}), {}, 3),
              ElementsAre("hide_all", testing::StartsWith("show 2 "), "add", testing::StartsWith("show 3 ")));
}

int number_of_marks(const wafer& source, const ScanRequest& request) {
  RecordingCanvas canvas = chart();
  RecordingMarks marks(1);
  mark(source, canvas, &marks, request);
  return marks.log.count("show");
}

TEST(D1PlotMarkSites, ComparesPlacesToFourDecimals) {
  const wafer source = wafer_with({{30, 20, 1}, {40, 20.0001, 2}, {10, 7.5, 3}, {-20, -15, 4}});
  EXPECT_EQ(number_of_marks(source, through(-10, 20, 10, 20)), 1);
  EXPECT_EQ(number_of_marks(source, through(-10, 20.00004, 10, 20.00004)), 1);
  EXPECT_EQ(number_of_marks(source, through(-10, 20.00006, 10, 20.00006)), 1);
  EXPECT_EQ(number_of_marks(source, through(0, 0, 4, 3)), 2);
}

TEST(D1PlotMarkSites, LooksForSitesOfAVerticalLineInTheMiddleAlone) {
  const wafer source = wafer_with({{0, 20, 1}, {0, -30, 2}, {40, 10, 3}, {-20, -15, 4}});
  EXPECT_EQ(number_of_marks(source, through(0, 0, 0, 1)), 2);
  EXPECT_EQ(number_of_marks(source, through(40, 0, 40, 1)), 2);
  EXPECT_EQ(number_of_marks(source, at_angle(0)), 2);
}

TEST(D1PlotMarkSites, DrawsDiscsOnAPage) {
  RecordingCanvas canvas = chart();
  mark(along_x(), canvas, nullptr, on_page({}));
  ASSERT_EQ(canvas.lines().size(), 15u);
  EXPECT_EQ(canvas.lines()[3], "FillStyle=0");
  EXPECT_EQ(canvas.lines()[4], "Circle 1020 2000 50 255 - - 1");
  EXPECT_EQ(canvas.lines()[5], "FillStyle=1");
}

TEST(D1PlotMarkSites, MeasuresFromTheScaleBaseAsItIs) {
  wafer source = along_x();
  source.Low = -10;
  RecordingCanvas canvas = chart();
  mark(source, canvas, nullptr, on_page({}));
  EXPECT_EQ(canvas.log.of("Circle").at(2), "Circle 1040 2025 50 255 - - 1");  // 15 of 20
}

TEST(D1PlotMarkSites, DoesNothingForThreeSites) {
  EXPECT_THAT(marks_of(wafer_with({{0, 0, 1}, {10, 0, 2}, {20, 0, 3}}), {}), IsEmpty());
}

TEST(D1PlotMarkSites, OnlyHidesTheMarksWhereTheChordIsAPoint) {
  EXPECT_THAT(marks_of(along_x(), through(100, 0, 100, 1)), ElementsAre("hide_all"));
}

// ---- The labels ----

struct Labels {
  Labels(const wafer& source, const ScanRequest& r) {
    const std::int16_t Plotopt = r.D1Angle ? 1 : 2;
    RecordingAxis lblX, lblY;
    source.D1Plot_Show_lblXY(lblX.labels, lblY.labels, Plotopt, r.phi, r.x1, r.y1, r.x1, r.y1, r.x2, r.y2);
    x = lblX.texts();
    y = lblY.texts();
  }
  Lines x, y;
};

TEST(D1PlotShowLabels, NameFivePlacesOfTheChord) {
  EXPECT_THAT(Labels(along_x(), through(-10, 0, 10, 0)).x,
              ElementsAre("X=-100.00\nY=0.00", "X=-50.00\nY=0.00", "X=0.00\nY=0.00", "X=50.00\nY=0.00",
                          "X=100.00\nY=0.00"));
  EXPECT_THAT(Labels(along_x(), at_angle(180)).x,
              ElementsAre("X=0.00\nY=100.00", "X=0.00\nY=50.00", "X=0.00\nY=0.00", "X=0.00\nY=-50.00",
                          "X=0.00\nY=-100.00"));
}

TEST(D1PlotShowLabels, NameFiveValuesUpToTheLimit) {
  // 10 takes two places, a sign and one more: 7 - 4 = 3 decimals.
  EXPECT_THAT(Labels(along_x(), {}).y, ElementsAre("0.000", "2.500", "5.000", "7.500", "10.000"));
}

TEST(D1PlotShowLabels, AreWrittenForThreeSitesToo) {
  EXPECT_THAT(Labels(wafer_with({{0, 0, 1}, {10, 0, 2}, {20, 0, 5}}), {}).y,
              ElementsAre("1.0000", "2.0000", "3.0000", "4.0000", "5.0000"));
}

TEST(D1PlotShowLabels, FailForAChordThatMissesTheCircle) {
  RecordingAxis lblX, lblY;
  EXPECT_THROW(along_x().D1Plot_Show_lblXY(lblX.labels, lblY.labels, 1, 0, 150, 0, 0, 0, 0, 0),
               InvalidArgument);
}

// ---- Against a plain computation ----

class D1PlotOfRandomInput : public RandomInput {};

TEST_F(D1PlotOfRandomInput, SamplesTheChordEvenly) {
  for (int round = 0; round < 200; ++round) {
    SCOPED_TRACE("round " + std::to_string(round));
    wafer source = any_wafer(random);
    if (source.GetNop() <= 3) continue;
    ScanRequest request = through(0, 0, between(random, 1.0, 20.0), between(random, -20.0, 20.0));
    request.resol = static_cast<std::int16_t>(between(random, 1, 100));
    RecordingCanvas canvas = chart();
    scan(source, canvas, request);
    // A line through the centre: its chord ends at the radius in its direction.
    const double length = std::hypot(request.x2, request.y2), radius = source.test_diam / 2;
    const double span = source.maximal - source.minimal;
    Lines expected;
    const auto height = [&](int k) {
      const double along = radius * (2.0 * k / request.resol - 1) / length;
      return 100 -
             (source.Interpolation(along * request.x2, along * request.y2) - source.minimal) * 100 / span;
    };
    for (int k = 1; k <= request.resol; ++k)
      expected.push_back(line_of("Line", 6, (k - 1) * 80.0 / request.resol, height(k - 1),
                                 k * 80.0 / request.resol, height(k), 255));
    EXPECT_EQ(difference(canvas.log.of("Line"), expected, 1e-3), "");
    if (HasFailure()) return;
  }
}

}  // namespace
}  // namespace mirolen
