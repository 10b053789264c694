#pragma once

#include <cmath>
#include <numbers>
#include <vector>

/// Places in millimetres from the wafer's centre, and what was measured there.
struct Sites {
  std::vector<double> x, y, z;
};

/// Stands in for a measurement: 49 sites of a bowl that leans to the right.
inline Sites measured_sites() {
  Sites sites;
  for (int ring = 0; ring <= 3; ++ring) {
    const int count = ring == 0 ? 1 : 8 * ring;
    const double radius = 48.5 * ring;
    for (int i = 0; i < count; ++i) {
      const double angle = 2 * std::numbers::pi * i / count;
      const double x = radius * std::cos(angle), y = radius * std::sin(angle);
      sites.x.push_back(x);
      sites.y.push_back(y);
      sites.z.push_back(1000 + 0.001 * radius * radius + 0.05 * x);
    }
  }
  return sites;
}
