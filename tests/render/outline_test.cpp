#include <gtest/gtest.h>

#include <cmath>

#include "support/RecordingCanvas.h"
#include "support/RecordingCompanions.h"
#include "support/site_support.h"

namespace mirolen {
namespace {

const double kPi = std::acos(-1.0);
constexpr double kFlat = 0.98, kNotch = 1.0;
constexpr double kPlanView = 90;
constexpr Color kBackground = 0xC0C0C0;

struct Point {
  double x = 0, y = 0;
};

/// A picture with the outline on it, and what came back.
struct Outline {
  RecordingCanvas canvas;
  RecordingCaption label;
  Point centre{-1, -1};

  std::string polygon() const { return canvas.log.of("Polygon").at(0); }
};

Outline on_picture(double width, double height) {
  Outline outline{RecordingCanvas(CanvasKind::picture_box, {0, 0, width, height}), {}, {}};
  outline.canvas.BackColor(kBackground);
  outline.canvas.log.lines.clear();
  return outline;
}

wafer wafer_of(double flat_ratio) {
  wafer made;
  made.flat_ratio = flat_ratio;
  return made;
}

Outline shown(double flat_ratio, double phi, double thet, double width = 68, double height = 68) {
  Outline outline = on_picture(width, height);
  wafer_of(flat_ratio)
      .FlatNotchShow(&outline.label, outline.canvas, outline.centre.x, outline.centre.y, 30, phi, thet);
  return outline;
}

// ---- The disc with a mark cut out, on a picture of 68 by 68: centre 34, radius 27 ----

TEST(FlatNotchShow, CutsANotchOutOfAWhiteDisc) {
  // sin 10 = 0.17365, cos 10 = 0.98481. The notch's sides stand 27 * sin 10 = 4.6885 beside the centre line,
  // 27 * cos 10 = 26.5898 below the centre; its bottom lies 0.8 * 27 = 21.6 below, the outer point
  // 1.05 * 27 = 28.35.
  const Outline outline = shown(kNotch, 0, kPlanView);
  EXPECT_EQ(outline.polygon(), "Polygon 39,61 34,56 29,61 34,62 39,61");
  EXPECT_EQ(difference(outline.canvas.log.of("Line"), {"Line 6 38.6885 60.5898 34 55.6 255"}, 1e-4), "");
  EXPECT_EQ(outline.label.text, "Notch");
}

TEST(FlatNotchShow, CoversTheSegmentBehindAFlat) {
  // sin 35 = 0.57358, cos 35 = 0.81915: the flat's ends stand 15.4866 beside and 22.1171 below the centre,
  // the outer corners (radius 36) 20.6488 beside and 29.4895 below.
  const Outline outline = shown(kFlat, 0, kPlanView);
  EXPECT_EQ(outline.polygon(), "Polygon 49,56 19,56 13,63 55,63");
  EXPECT_EQ(difference(outline.canvas.log.of("Line"), {"Line 6 49.4866 56.1171 18.5134 56.1171 255"}, 1e-4),
            "");
  EXPECT_EQ(outline.label.text, "Flat");
}

TEST(FlatNotchShow, TurnsTheMarkTowardsTheRight) {
  EXPECT_EQ(shown(kNotch, 90, kPlanView).polygon(), "Polygon 61,29 56,34 61,39 62,34 61,29");
  EXPECT_EQ(shown(kFlat, 90, kPlanView).polygon(), "Polygon 56,19 56,49 63,55 63,13");
  EXPECT_EQ(shown(kNotch, 180, kPlanView).polygon(), "Polygon 29,7 34,12 39,7 34,6 29,7");
}

TEST(FlatNotchShow, SqueezesTheMarkWithTheOutline) {
  // At 30 degrees all heights are halved: 13.2949, 10.8 and 14.175 below the centre.
  EXPECT_EQ(shown(kNotch, 0, 30).polygon(), "Polygon 39,47 34,45 29,47 34,48 39,47");
}

TEST(FlatNotchShow, DrawsATrueCircleInPlanViewAndThinnerEllipsesBelow) {
  const auto circle = [](double thet) { return shown(kNotch, 0, thet).canvas.log.of("Circle"); };
  EXPECT_EQ(circle(90), Lines{"Circle 34 34 27 - - - 1"});
  EXPECT_EQ(difference(circle(30), {"Circle 34 34 27 - - - 0.5"}, 1e-12), "");
  EXPECT_EQ(difference(circle(5), {"Circle 34 34 27 - - - 0.087155742747658"}, 1e-12), "");
}

TEST(FlatNotchShow, TakesTheRadiusFromTheShorterSide) {
  EXPECT_EQ(shown(kNotch, 0, 90, 100, 68).canvas.log.of("Circle"), Lines{"Circle 50 34 27 - - - 1"});
  EXPECT_EQ(shown(kNotch, 0, 90, 68, 100).canvas.log.of("Circle"), Lines{"Circle 34 50 27 - - - 1"});
}

TEST(FlatNotchShow, TellsThePicturesCentre) {
  const Outline outline = shown(kFlat, 20, 40, 100, 68);
  EXPECT_EQ(outline.centre.x, 50);
  EXPECT_EQ(outline.centre.y, 34);
}

TEST(FlatNotchShow, TakesNothingFromTheRadiusItIsGiven) {
  const auto lines = [](double halb_a) {
    Outline outline = on_picture(68, 68);
    wafer_of(kNotch).FlatNotchShow(nullptr, outline.canvas, outline.centre.x, outline.centre.y, halb_a, 0,
                                   90);
    return outline.canvas.lines();
  };
  EXPECT_EQ(lines(30), lines(-5));
}

TEST(FlatNotchShow, DrawsWithoutALabel) {
  for (const double flat_ratio : {kNotch, kFlat}) {
    Outline outline = on_picture(68, 68);
    wafer_of(flat_ratio)
        .FlatNotchShow(nullptr, outline.canvas, outline.centre.x, outline.centre.y, 30, 0, 90);
    EXPECT_EQ(outline.canvas.lines(), shown(flat_ratio, 0, 90).canvas.lines());
    EXPECT_FALSE(outline.label.text);
  }
}

TEST(FlatNotchShow, TakesAnyRatioButOneForAFlat) {
  EXPECT_EQ(shown(1.0, 0, 90).label.text, "Notch");
  for (const double ratio : {0.98, 0.0, 1.0000001, -1.0})
    EXPECT_EQ(shown(ratio, 0, 90).label.text, "Flat") << ratio;
}

TEST(FlatNotchShow, DrawsTheDiscWhiteWithABlackEdgeOnAnErasedPicture) {
  for (const double flat_ratio : {kNotch, kFlat}) {
    const CallLog log = shown(flat_ratio, 0, 90).canvas.log;
    const std::size_t disc = log.place_of("Circle");
    EXPECT_LT(log.place_of("Cls"), disc);
    EXPECT_EQ(log.value_before(disc, "FillColor"), "16777215");
    EXPECT_EQ(log.value_before(disc, "FillStyle"), "0");
    EXPECT_EQ(log.value_before(disc, "ForeColor"), "0");
    EXPECT_EQ(log.value_before(disc, "DrawStyle"), "0");
    EXPECT_EQ(log.value_before(disc, "DrawWidth"), "1");
  }
}

TEST(FlatNotchShow, CutsInTheBackgroundColorAndThenDrawsOneRedSide) {
  for (const double flat_ratio : {kNotch, kFlat}) {
    const CallLog log = shown(flat_ratio, 0, 90).canvas.log;
    const std::size_t mark = log.place_of("Polygon");
    EXPECT_EQ(log.value_before(mark, "FillColor"), text_of(kBackground));
    EXPECT_EQ(log.value_before(mark, "ForeColor"), text_of(kBackground));
    EXPECT_EQ(log.value_before(mark, "FillStyle"), "0");
    EXPECT_LT(log.place_of("Circle"), mark);
    EXPECT_LT(mark, log.place_of("Line"));
    EXPECT_EQ(log.lines.back(), "Refresh");
    EXPECT_EQ(log.count("Line"), 1);
  }
}

TEST(FlatNotchShow, DrawsTheSameOnASecondRedraw) {
  Outline outline = on_picture(68, 68);
  const auto redraw = [&] {
    outline.canvas.log.lines.clear();
    wafer_of(kNotch).FlatNotchShow(nullptr, outline.canvas, outline.centre.x, outline.centre.y, 30, 0, 90);
    return outline.canvas.lines();
  };
  const Lines first = redraw();
  EXPECT_EQ(redraw(), first);
}

TEST(FlatNotchShow, PassesAFailureOfThePictureOn) {
  for (const char* member : {"ScaleWidth", "ScaleHeight", "Cls", "Circle", "Polygon", "Line", "Refresh"}) {
    Outline outline = on_picture(68, 68);
    outline.canvas.log.fail_in(member);
    EXPECT_THROW(wafer_of(kNotch).FlatNotchShow(nullptr, outline.canvas, outline.centre.x, outline.centre.y,
                                                30, 0, 90),
                 CanvasError)
        << member;
  }
}

// ---- The open arc ----

Outline arc_shown(double flat_ratio, double phi, double thet, Point centre, double halb_a) {
  Outline outline = on_picture(68, 68);
  outline.centre = centre;
  wafer_of(flat_ratio)
      .FlatNotchShow1(&outline.label, outline.canvas, outline.centre.x, outline.centre.y, halb_a, phi, thet);
  return outline;
}

/// What the arc takes, worked out separately.
class PlainArc {
 public:
  PlainArc(bool notch, double phi, double thet, Point centre, double radius)
      : notch_(notch), phi_(phi), k_(std::sin(thet * kPi / 180)), centre_(centre), radius_(radius) {}

  std::string circle() const {
    const double half = notch_ ? 10 : 34;
    return line_of("Circle", centre_.x, centre_.y, radius_, std::optional<double>(), angle(half),
                   angle(-half), k_);
  }
  Lines lines() const {
    const Point A = at(phi_ + (notch_ ? 11 : 35), radius_), B = at(phi_ - (notch_ ? 11 : 35), radius_);
    const Point C = at(phi_, 0.8 * radius_);
    if (notch_) return {line(A, C, {}), line(C, B, {}), line(A, C, QBColor(12))};
    return {line(A, B, {}), line(A, B, QBColor(12))};
  }

 private:
  double angle(double beside) const {
    double degrees = phi_ + beside + 270;
    if (degrees > 360) degrees -= 360;
    return std::nearbyint(degrees) * kPi / 180;
  }
  Point at(double degrees, double radius) const {
    const double radians = degrees * kPi / 180;
    return {centre_.x + radius * std::sin(radians), centre_.y + radius * k_ * std::cos(radians)};
  }
  static std::string line(Point from, Point to, std::optional<double> color) {
    return line_of("Line", 6, from.x, from.y, to.x, to.y, color);
  }

  bool notch_;
  double phi_, k_;
  Point centre_;
  double radius_;
};

void expect_arc(double flat_ratio, double phi, double thet, Point centre, double radius) {
  const Outline outline = arc_shown(flat_ratio, phi, thet, centre, radius);
  const PlainArc plain(flat_ratio == kNotch, phi, thet, centre, radius);
  const std::string which = line_of("phi, thet:", phi, thet);
  EXPECT_EQ(difference(outline.canvas.log.of("Circle"), {plain.circle()}, 1e-9), "") << which;
  EXPECT_EQ(difference(outline.canvas.log.of("Line"), plain.lines(), 1e-9), "") << which;
}

TEST(FlatNotchShow1, OpensAnArcAtANotch) {
  // From 280 degrees over 0 and 180 to 260, so that 20 degrees stay open at the bottom.
  const Outline outline = arc_shown(kNotch, 0, 90, {34, 30}, 20);
  EXPECT_EQ(
      difference(outline.canvas.log.of("Circle"), {"Circle 34 30 20 - 4.886921906 4.537856055 1"}, 1e-8), "");
  // sin 11 = 0.190809, cos 11 = 0.981627
  EXPECT_EQ(difference(outline.canvas.log.of("Line"),
                       {"Line 6 37.81618 49.63254 34 46 -", "Line 6 34 46 30.18382 49.63254 -",
                        "Line 6 37.81618 49.63254 34 46 255"},
                       1e-4),
            "");
  EXPECT_EQ(outline.label.text, "Notch");
}

TEST(FlatNotchShow1, OpensAnArcAtAFlat) {
  // From 304 degrees to 236.
  const Outline outline = arc_shown(kFlat, 0, 90, {34, 30}, 20);
  EXPECT_EQ(
      difference(outline.canvas.log.of("Circle"), {"Circle 34 30 20 - 5.305800926 4.118977035 1"}, 1e-8), "");
  EXPECT_EQ(difference(outline.canvas.log.of("Line"),
                       {"Line 6 45.47153 46.38304 22.52847 46.38304 -",
                        "Line 6 45.47153 46.38304 22.52847 46.38304 255"},
                       1e-4),
            "");
  EXPECT_EQ(outline.label.text, "Flat");
}

TEST(FlatNotchShow1, MatchesAPlainComputationAllRound) {
  for (double phi = -30; phi <= 360; phi += 7.25)
    for (const double thet : {90.0, 45.0, 5.0})
      for (const double flat_ratio : {kNotch, kFlat}) expect_arc(flat_ratio, phi, thet, {40, 25}, 18);
}

TEST(FlatNotchShow1, ReducesAnglesOver360AndLeaves360ItselfAlone) {
  EXPECT_EQ(difference(arc_shown(kNotch, 80, 90, {34, 34}, 20).canvas.log.of("Circle"),
                       {line_of("Circle", 34, 34, 20) + " - " + text_of(2 * kPi) + ' ' +
                        text_of(340 * kPi / 180) + " 1"},
                       1e-9),
            "");
  EXPECT_EQ(difference(arc_shown(kNotch, 90, 90, {34, 34}, 20).canvas.log.of("Circle"),
                       {line_of("Circle", 34, 34, 20) + " - " + text_of(10 * kPi / 180) + ' ' +
                        text_of(350 * kPi / 180) + " 1"},
                       1e-9),
            "");
}

TEST(FlatNotchShow1, ClosesTheOutlineBeforeItFillsItAndEndsWithTheRedSide) {
  for (const double flat_ratio : {kNotch, kFlat}) {
    const CallLog log = arc_shown(flat_ratio, 0, 90, {34.5, 30.5}, 20).canvas.log;
    const std::size_t fill = log.place_of("FloodFill");
    ASSERT_GE(log.lines.size(), 3u);
    ASSERT_LT(fill, log.lines.size());
    EXPECT_LT(log.place_of("Circle"), log.place_of("Line"));
    EXPECT_LT(log.place_of("Line"), fill);
    EXPECT_EQ(log.lines[log.lines.size() - 2].substr(0, 6), "Line 6");
    EXPECT_EQ(log.lines.back(), "Refresh");
    const std::string edge = log.value_before(fill, "ForeColor").value_or("0");
    EXPECT_EQ(log.lines[fill], "FloodFill 34 30 " + edge);  // 34.5 and 30.5 go to the even pixel
  }
}

TEST(FlatNotchShow1, DrawsOnAnErasedPictureWithAThickPenAndAWhiteFilling) {
  const CallLog log = arc_shown(kNotch, 0, 90, {34, 30}, 20).canvas.log;
  const std::size_t arc = log.place_of("Circle");
  EXPECT_LT(log.place_of("Cls"), arc);
  EXPECT_EQ(log.value_before(arc, "DrawWidth"), "2");
  EXPECT_EQ(log.value_before(arc, "DrawStyle"), "0");
  EXPECT_EQ(log.value_before(arc, "FillStyle"), "0");
  EXPECT_EQ(log.value_before(arc, "FillColor"), "16777215");
}

TEST(FlatNotchShow1, LeavesTheCentreAsItIs) {
  const Outline outline = arc_shown(kFlat, 10, 60, {12.5, 17.25}, 10);
  EXPECT_EQ(outline.centre.x, 12.5);
  EXPECT_EQ(outline.centre.y, 17.25);
}

TEST(FlatNotchShow1, DrawsWithoutALabel) {
  Outline outline = on_picture(68, 68);
  outline.centre = {34, 30};
  wafer_of(kNotch).FlatNotchShow1(nullptr, outline.canvas, outline.centre.x, outline.centre.y, 20, 0, 90);
  EXPECT_EQ(outline.canvas.lines(), arc_shown(kNotch, 0, 90, {34, 30}, 20).canvas.lines());
}

}  // namespace
}  // namespace mirolen
