#pragma once

namespace mirolen {

/// The control limits that histograms show: one set for all histograms of a thread.
struct ControlLimits {
  bool ShowCL = false;
  double ClLow = 0;
  double ClHigh = 0;
};

inline ControlLimits& control_limits() {
  thread_local ControlLimits limits;
  return limits;
}

}  // namespace mirolen
