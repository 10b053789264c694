#include "sample_wafers.h"

#include <cmath>
#include <iterator>

namespace mirolen {

wafer wafer_with(const SiteList& sites, double flat_ratio, double diameter, double test) {
  wafer made;
  set_diameters(made, diameter, test);
  made.flat_ratio = flat_ratio;
  store(made, sites);
  if (!sites.empty()) made.MaxMin();
  return made;
}

double bowl(double x, double y) { return 40 + x / 20 - y / 15 + (x * x + y * y) / 700; }
double falling(double x, double y) { return -bowl(x, y); }
double mixed(double x, double y) { return x - y / 3; }
double tiny(double x, double y) { return 1e-9 * bowl(x, y); }
double same(double, double) { return 7; }
double nothing(double, double) { return 0; }

SiteList spiral(int count, double (*value)(double, double)) {
  SiteList sites;
  for (int i = 0; i < count; ++i) {
    const double radius = 95 * std::sqrt((i + 0.5) / count), angle = 2.4 * i;
    const double x = radius * std::cos(angle), y = radius * std::sin(angle);
    sites.push_back({x, y, value(x, y)});
  }
  return sites;
}

SiteList on_corners_of_one_cell(double z) { return {{0, 0, z}, {25, 0, z}, {0, 25, z}, {25, 25, z}}; }

wafer any_wafer(Random& random) {
  const double diameter = between(random, 50.0, 400.0);
  const double test = diameter * between(random, 0.7, 1.0);
  SiteList sites;
  for (int left = between(random, 0, 40); left > 0; --left) {
    const double angle = between(random, 0.0, 6.3), radius = test / 2 * std::sqrt(between(random, 0.0, 1.0));
    sites.push_back({radius * std::cos(angle), radius * std::sin(angle), between(random, -3.0, 9.0)});
  }
  wafer made = wafer_with(sites, chance(random, 0.5) ? kNotch : between(random, 0.6, 1.0), diameter, test);
  if (chance(random, 0.5)) made.setMaximalMinial(between(random, 2.0, 9.0), between(random, -5.0, 2.0));
  if (chance(random, 0.2)) made.col3 = made.ColS1 = 15;
  return made;
}

CanvasSetup any_setup(Random& random) {
  CanvasSetup setup;
  setup.kind = one_of(random, std::vector<CanvasKind>(std::begin(kKinds), std::end(kKinds)));
  setup.scale = {between(random, -50.0, 50.0), between(random, -50.0, 50.0), between(random, 20.0, 900.0),
                 between(random, 20.0, 900.0)};
  setup.twips_per_pixel = {between(random, 1.0, 30.0), between(random, 1.0, 30.0)};
  if (chance(random, 0.2)) setup.fails_at = between(random, 1, 40);
  return setup;
}

RecordingCanvas::Rectangle any_area(Random& random) {
  return {between(random, -500.0, 500.0), between(random, -500.0, 500.0), between(random, 500.0, 9000.0),
          between(random, 500.0, 9000.0)};
}

void expect_same_fields(const wafer& actual, const wafer& expected) {
  EXPECT_EQ(actual.Low, expected.Low);
  EXPECT_EQ(actual.range, expected.range);
  EXPECT_EQ(actual.HiLo, expected.HiLo);
  EXPECT_EQ(actual.maximal, expected.maximal);
  EXPECT_EQ(actual.minimal, expected.minimal);
  EXPECT_EQ(actual.maxi, expected.maxi);
  EXPECT_EQ(actual.mini, expected.mini);
  EXPECT_EQ(actual.mean, expected.mean);
  EXPECT_EQ(actual.StdDev, expected.StdDev);
  EXPECT_EQ(actual.test_diam, expected.test_diam);
  EXPECT_EQ(actual.WafDiam, expected.WafDiam);
  EXPECT_EQ(sites_of(actual), sites_of(expected));
}

}  // namespace mirolen
