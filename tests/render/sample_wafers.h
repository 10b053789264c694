#pragma once

#include "mirolen/render/ControlLimits.h"
#include "mirolen/render/Screen.h"
#include "plain_renderer.h"
#include "support/site_support.h"

namespace mirolen {

inline constexpr double kNotch = 1.0, kFlat = 0.98;
inline constexpr CanvasKind kKinds[] = {CanvasKind::printer, CanvasKind::picture_box, CanvasKind::other};

wafer wafer_with(const SiteList& sites, double flat_ratio = kNotch, double diameter = 200, double test = 200);

/// Values over the wafer.
double bowl(double x, double y);
double falling(double x, double y);
double mixed(double x, double y);
double tiny(double x, double y);
double same(double x, double y);
double nothing(double x, double y);

/// Sites spread evenly over a disc of the radius 95.
SiteList spiral(int count, double (*value)(double, double) = bowl);
/// Sites on all corners of a cell of 25 mm above and right of the centre, so that its value is theirs.
SiteList on_corners_of_one_cell(double z);

/// Up to 40 sites at random on a wafer of random size, with or without a flat and limits.
wafer any_wafer(Random& random);
CanvasSetup any_setup(Random& random);
RecordingCanvas::Rectangle any_area(Random& random);

/// That everything which a renderer must leave alone, or put back, is as it was.
void expect_same_fields(const wafer& actual, const wafer& expected);

/// Twips of a screen for one test.
class ScreenOf {
 public:
  ScreenOf(double x, double y) { screen() = {x, y, {}}; }
  ~ScreenOf() { screen() = before_; }
  ScreenOf(const ScreenOf&) = delete;
  ScreenOf& operator=(const ScreenOf&) = delete;

 private:
  Screen before_ = screen();
};

/// Control limits for one test.
class SharedLimits {
 public:
  SharedLimits(bool ShowCL, double ClLow, double ClHigh) { control_limits() = {ShowCL, ClLow, ClHigh}; }
  ~SharedLimits() { control_limits() = {}; }
  SharedLimits(const SharedLimits&) = delete;
  SharedLimits& operator=(const SharedLimits&) = delete;
};

}  // namespace mirolen
