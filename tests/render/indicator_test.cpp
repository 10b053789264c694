#include <gtest/gtest.h>

#include <cmath>

#include "support/RecordingCanvas.h"
#include "support/RecordingCompanions.h"
#include "support/site_support.h"

namespace mirolen {
namespace {

const double kPi = std::acos(-1.0);
constexpr std::int16_t kByAngle = 1, kByLine = 0;

/// The arguments that say where the line runs.
struct ScanLine {
  std::int16_t Plotopt = kByAngle;
  std::int16_t phi = 0;
  double x1 = 0, y1 = 0, x2 = 0, y2 = 0, x3 = 0, y3 = 0;
};

ScanLine by_angle(double x, double y, int phi) {
  return {kByAngle, static_cast<std::int16_t>(phi), x, y, 0, 0, 0, 0};
}
ScanLine by_line(double x2, double y2, double x3, double y3) { return {kByLine, 0, 0, 0, x2, y2, x3, y3}; }

/// A 200 mm wafer on a picture of 224 by 224 units. There n is 27, r is 4, g is 27/28 and S 224/216, so that
/// one unit is one millimetre of the line and the wafer's centre stands at (112, 112). The mark makes the
/// other scale 1.1 units a millimetre.
struct Indicator {
  wafer shown;
  RecordingCanvas picture{CanvasKind::picture_box, {0, 0, 224, 224}};
  RecordingLine line;
  RecordingMark mark;

  explicit Indicator(double diameter = 200, double test = 200, SurfaceSize mark_size = {8.96, 8.96})
      : mark(mark_size.width, mark_size.height) {
    set_diameters(shown, diameter, test);
    picture.place = {300, 400, 224, 224};
  }

  void draw(const ScanLine& scan) {
    shown.draw_indicator(line, mark, scan.Plotopt, scan.phi, scan.x1, scan.y1, scan.x2, scan.y2, scan.x3,
                         scan.y3, picture);
  }
};

std::string ends(const ScanLine& scan, double test = 200) {
  Indicator indicator(200, test);
  indicator.draw(scan);
  return indicator.line.log.lines.at(0);
}

// ---- The line ----

TEST(DrawIndicator, RunsUpwardAtZeroDegreesAndDownwardAt180) {
  // 60 mm beside the centre of a circle of the radius 100 the chord reaches 80 mm up and down.
  EXPECT_EQ(ends(by_angle(60, 7, 0)), "set_ends 172 192 172 32");
  EXPECT_EQ(ends(by_angle(60, 7, 360)), "set_ends 172 192 172 32");
  EXPECT_EQ(ends(by_angle(60, 7, 180)), "set_ends 172 32 172 192");
}

TEST(DrawIndicator, TurnsCounterClockwiseWithTheAngle) {
  EXPECT_EQ(ends(by_angle(7, 60, 90)), "set_ends 192 52 32 52");
  EXPECT_EQ(ends(by_angle(7, 60, 270)), "set_ends 32 52 192 52");
  EXPECT_EQ(ends(by_angle(0, 0, 45)), "set_ends 183 183 41 41");   // towards the upper left
  EXPECT_EQ(ends(by_angle(0, 0, 135)), "set_ends 183 41 41 183");  // towards the lower left
  EXPECT_EQ(ends(by_angle(0, 0, 225)), "set_ends 41 41 183 183");
  EXPECT_EQ(ends(by_angle(0, 0, 315)), "set_ends 41 183 183 41");
}

TEST(DrawIndicator, RunsLeftwardBelow180DegreesAndRightwardFromThereOnOutsideAFullTurn) {
  EXPECT_EQ(ends(by_angle(7, 60, -90)), "set_ends 192 52 32 52");
  EXPECT_EQ(ends(by_angle(7, 60, 450)), "set_ends 32 52 192 52");
}

TEST(DrawIndicator, RunsFromTheFirstPointOfALineToTheSecond) {
  EXPECT_EQ(ends(by_line(0, 60, 10, 60)), "set_ends 32 52 192 52");
  EXPECT_EQ(ends(by_line(10, 60, 0, 60)), "set_ends 192 52 32 52");
  EXPECT_EQ(ends(by_line(-5, -5, 5, 5)), "set_ends 41 183 183 41");
  EXPECT_EQ(ends(by_line(5, 5, -5, -5)), "set_ends 183 41 41 183");
}

TEST(DrawIndicator, RunsUpwardOnAVerticalLineOnlyIfItsSecondPointIsHigher) {
  EXPECT_EQ(ends(by_line(60, 0, 60, 10)), "set_ends 172 192 172 32");
  EXPECT_EQ(ends(by_line(60, 10, 60, 0)), "set_ends 172 32 172 192");
  EXPECT_EQ(ends(by_line(60, 5, 60, 5)), "set_ends 172 32 172 192");
}

TEST(DrawIndicator, TakesAnyOptionButOneForALine) {
  ScanLine scan = by_line(0, 60, 10, 60);
  for (const std::int16_t option : {0, 2, -1}) {
    scan.Plotopt = option;
    EXPECT_EQ(ends(scan), "set_ends 32 52 192 52");
  }
}

TEST(DrawIndicator, EndsTheLineAtTheTestCircle) {
  EXPECT_EQ(ends(by_angle(30, 0, 0), 100), "set_ends 142 152 142 72");
}

TEST(DrawIndicator, PlacesTheLineInThePicturesOwnScale) {
  Indicator indicator;
  indicator.picture.scale = {10, 20, 448, 224};  // the shorter side counts
  indicator.draw(by_angle(60, 0, 0));
  EXPECT_EQ(indicator.line.log.lines.at(0), "set_ends 294 212 294 52");
  indicator.picture.scale = {10, 20, 224, 448};
  indicator.draw(by_angle(60, 0, 0));
  EXPECT_EQ(indicator.line.log.lines.at(1), "set_ends 182 324 182 164");
}

// ---- The mark ----

Lines moves(const ScanLine& scan, SurfaceSize mark_size) {
  Indicator indicator(200, 200, mark_size);
  indicator.draw(scan);
  return indicator.mark.log.lines;
}

TEST(DrawIndicator, PutsTheMarkBeyondTheStartOfTheLine) {
  // On the larger circle of the radius 110, from the picture's own centre at (300 + 112, 400 + 112): for the
  // vertical line 1.1 * 110 = 121 below it; for the other 1.1 * 88 right of it and 1.1 * 66 above it.
  EXPECT_EQ(difference(moves(by_angle(0, 0, 0), {8.96, 8.96}), {"move_to 407.52 628.52", "visible=1"}, 1e-9),
            "");
  EXPECT_EQ(
      difference(moves(by_angle(0, 66, 90), {8.96, 8.96}), {"move_to 504.52 434.52", "visible=1"}, 1e-9), "");
  EXPECT_EQ(
      difference(moves(by_line(0, 66, 5, 66), {8.96, 8.96}), {"move_to 310.52 434.52", "visible=1"}, 1e-9),
      "");
}

TEST(DrawIndicator, ScalesTheMarksPlaceByTheSmallerSideWithTheMarkOnIt) {
  EXPECT_EQ(difference(moves(by_angle(0, 66, 90), {8.96, 89.6}), {"move_to 504.52 394.2", "visible=1"}, 1e-9),
            "");
  EXPECT_EQ(difference(moves(by_angle(0, 66, 90), {89.6, 8.96}), {"move_to 464.2 434.52", "visible=1"}, 1e-9),
            "");
}

TEST(DrawIndicator, MovesTheMarkAlsoWithATestCircleLargerThanTheWafer) {
  Indicator indicator(200, 240);
  indicator.draw(by_angle(0, 0, 0));
  EXPECT_EQ(difference(indicator.mark.log.lines, {"move_to 407.52 628.52", "visible=1"}, 1e-9), "");
  EXPECT_EQ(indicator.line.log.lines.at(0), "set_ends 112 232 112 -8");
}

// ---- The wafer ----

TEST(DrawIndicator, MakesAWaferOfNoDiameterOneOf200Millimetres) {
  Indicator indicator(0, 200);
  indicator.draw(by_angle(60, 0, 0));
  EXPECT_EQ(indicator.shown.WafDiam, 200);
  EXPECT_EQ(indicator.shown.WaferOrigRad, 100);
  EXPECT_EQ(indicator.line.log.lines.at(0), "set_ends 172 192 172 32");
}

TEST(DrawIndicator, KeepsTheTestDiameter) {
  for (const ScanLine& scan : {by_angle(10, 0, 30), by_line(0, 0, 3, 4)}) {
    Indicator indicator(200, 187.5);
    indicator.draw(scan);
    EXPECT_EQ(indicator.shown.test_diam, 187.5);
    EXPECT_EQ(indicator.shown.WafDiam, 200);
  }
}

TEST(DrawIndicator, KeepsTheTestDiameterOnAPictureThatFails) {
  for (const char* member :
       {"ScaleLeft", "ScaleTop", "ScaleWidth", "ScaleHeight", "left", "top", "width", "height"}) {
    Indicator indicator(200, 187.5);
    indicator.picture.log.fail_in(member);
    EXPECT_THROW(indicator.draw(by_angle(10, 0, 30)), CanvasError) << member;
    EXPECT_EQ(indicator.shown.test_diam, 187.5) << member;
  }
}

TEST(DrawIndicator, KeepsTheTestDiameterAtEachReadOfThePictureThatFails) {
  Indicator whole;
  whole.draw(by_angle(10, 0, 30));
  const int reads = whole.picture.log.number_of_calls();
  EXPECT_GE(reads, 8);
  for (int number = 1; number <= reads; ++number) {
    Indicator indicator(200, 187.5);
    indicator.picture.log.fail_at(number);
    EXPECT_THROW(indicator.draw(by_angle(10, 0, 30)), CanvasError) << number;
    EXPECT_EQ(indicator.shown.test_diam, 187.5) << number;
  }
}

TEST(DrawIndicator, KeepsTheTestDiameterWhereTheMarkOrTheLineFails) {
  for (const char* member : {"width", "height", "move_to", "visible"}) {
    Indicator indicator(200, 187.5);
    indicator.mark.log.fail_in(member);
    EXPECT_THROW(indicator.draw(by_angle(10, 0, 30)), CanvasError) << member;
    EXPECT_EQ(indicator.shown.test_diam, 187.5) << member;
  }
  Indicator indicator(200, 187.5);
  indicator.line.log.fail_in("set_ends");
  EXPECT_THROW(indicator.draw(by_angle(10, 0, 30)), CanvasError);
  EXPECT_EQ(indicator.shown.test_diam, 187.5);
}

TEST(DrawIndicator, KeepsTheTestDiameterWhereTheLineMissesACircle) {
  for (const ScanLine& scan :
       {by_angle(150, 0, 0), by_angle(0, 150, 90), by_line(150, 0, 150, 1), by_line(0, 150, 1, 150)}) {
    Indicator near(200, 200);
    EXPECT_THROW(near.draw(scan), InvalidArgument);
    EXPECT_EQ(near.shown.test_diam, 200);
    Indicator far(200, 400);  // only the larger circle, of the radius 110, is missed
    EXPECT_THROW(far.draw(scan), InvalidArgument);
    EXPECT_EQ(far.shown.test_diam, 400);
  }
}

TEST(DrawIndicator, KeepsTheTestDiameterWherePlacesLeave16Bits) {
  Indicator indicator(200, 187.5);
  indicator.picture.scale = {0, 0, 70000, 70000};
  EXPECT_THROW(indicator.draw(by_angle(10, 0, 30)), OverflowError);
  Indicator far_away(200, 187.5);
  far_away.picture.place.left = 40000;
  EXPECT_THROW(far_away.draw(by_angle(10, 0, 30)), OverflowError);
  EXPECT_EQ(indicator.shown.test_diam, 187.5);
  EXPECT_EQ(far_away.shown.test_diam, 187.5);
}

// ---- Random lines against plain geometry ----

struct Point {
  double x = 0, y = 0;
};

struct PlainChord {
  Point start, end;
};

/// Where a line through a point in a direction cuts a circle round the origin.
PlainChord cut(Point through, Point direction, double radius) {
  const double length = std::hypot(direction.x, direction.y);
  const Point u{direction.x / length, direction.y / length};
  const double along = through.x * u.x + through.y * u.y;
  const Point foot{through.x - along * u.x, through.y - along * u.y};
  const double half = std::sqrt(radius * radius - foot.x * foot.x - foot.y * foot.y);
  return {{foot.x - half * u.x, foot.y - half * u.y}, {foot.x + half * u.x, foot.y + half * u.y}};
}

PlainChord cut(const ScanLine& scan, double radius) {
  if (scan.Plotopt != kByAngle)
    return cut({scan.x2, scan.y2}, {scan.x3 - scan.x2, scan.y3 - scan.y2}, radius);
  const double direction = (scan.phi + 90) * kPi / 180;
  return cut({scan.x1, scan.y1}, {std::cos(direction), std::sin(direction)}, radius);
}

class RandomScanLine : public RandomInput {
 protected:
  double anywhere() { return between(random, -50.0, 50.0); }

  ScanLine any_line() {
    if (chance(random, 0.5)) return by_angle(anywhere(), anywhere(), between(random, 0, 360));
    return by_line(anywhere(), anywhere(), anywhere(), anywhere());
  }

  Indicator any_indicator() {
    const double diameter = between(random, 160.0, 300.0);
    return Indicator(diameter, between(random, 150.0, diameter),
                     {between(random, 1.0, 60.0), between(random, 1.0, 60.0)});
  }
};

void expect_ends(const Indicator& indicator, const ScanLine& scan) {
  const auto& area = indicator.picture.scale;
  const PlainChord chord = cut(scan, indicator.shown.test_diam / 2);
  // n is 27 and r is the 50th part of the diameter whatever that is.
  const double unit = std::min(area.width, area.height) / (54 * indicator.shown.WafDiam / 50) * 27 / 28;
  const auto X = [&](double x) { return std::nearbyint(area.left + area.width / 2 + unit * x); };
  const auto Y = [&](double y) { return std::nearbyint(area.top + area.height / 2 - unit * y); };
  const std::string plain =
      line_of("set_ends", X(chord.start.x), Y(chord.start.y), X(chord.end.x), Y(chord.end.y));
  EXPECT_EQ(difference(indicator.line.log.lines, {plain}), "");
}

void expect_mark(const Indicator& indicator, const ScanLine& scan) {
  const auto& area = indicator.picture.scale;
  const auto& place = indicator.picture.place;
  const double diameter = indicator.shown.WafDiam;
  const Point start = cut(scan, 1.1 * diameter / 2).start;
  const double width = indicator.mark.width(), height = indicator.mark.height();
  const double unit =
      std::min(area.width + 2.5 * width, area.height + 2.5 * height) / (54 * diameter / 50) * 27 / 28;
  const double px = std::nearbyint(place.left + place.width / 2 + unit * start.x);
  const double py = std::nearbyint(place.top + place.height / 2 - unit * start.y);
  EXPECT_EQ(difference(indicator.mark.log.lines,
                       {line_of("move_to", px - width / 2, py - height / 2), "visible=1"}, 1e-9),
            "");
}

TEST_F(RandomScanLine, CutsTheCirclesWhereGeometrySaysSo) {
  for (int round = 0; round < 2000 && !HasFailure(); ++round) {
    Indicator indicator = any_indicator();
    indicator.picture.scale = {anywhere(), anywhere(), between(random, 20.0, 500.0),
                               between(random, 20.0, 500.0)};
    indicator.picture.place = {anywhere(), anywhere(), between(random, 20.0, 500.0),
                               between(random, 20.0, 500.0)};
    const ScanLine scan = any_line();
    indicator.draw(scan);
    expect_ends(indicator, scan);
    expect_mark(indicator, scan);
  }
}

}  // namespace
}  // namespace mirolen
