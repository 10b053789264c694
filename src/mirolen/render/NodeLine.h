#pragma once

#include <cstddef>
#include <span>
#include <vector>

#include "mirolen/core/wafer.h"

namespace mirolen {

/// A line of grid nodes. Those on the wafer get their values from the sites, all at once; the others have the
/// value of the scale's base.
class NodeLine {
 public:
  void clear() {
    x_.clear();
    y_.clear();
    on_wafer_.clear();
  }
  void add(double x, double y, bool on_wafer) {
    on_wafer_.push_back(on_wafer);
    if (!on_wafer) return;
    x_.push_back(x);
    y_.push_back(y);
  }

  /// The heights of the nodes, in the order in which they were added, as `scaled` makes them of their values.
  template <class Scaled>
  void measure(const wafer& wafer, std::vector<double>& heights, Scaled scaled) {
    z_.resize(x_.size());
    wafer.Interpolation(x_, y_, z_);
    heights.assign(on_wafer_.size(), scaled(wafer.Low));
    auto z = z_.begin();
    for (std::size_t node = 0; node < heights.size(); ++node)
      if (on_wafer_[node]) heights[node] = scaled(*z++);
  }

 private:
  std::vector<double> x_, y_, z_;  // of the nodes on the wafer
  std::vector<bool> on_wafer_;
};

}  // namespace mirolen
