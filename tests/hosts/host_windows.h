#pragma once

#include <gtest/gtest.h>

#include <QWidget>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "mirolen/qt/PlotWidget.h"

namespace mirolen::host_test {

/// A window of a host with all nine controls.
struct HostWindow {
  std::unique_ptr<QWidget> window;
  std::vector<qt::PlotWidget*> faces;
};

/// A way in which hosts put controls on their windows.
struct HostKind {
  std::string name;
  std::function<HostWindow()> make;
};

/// Main window with docks, splitter, tabs, MDI area, scroll area, graphics scene, a form of the designer.
const std::vector<HostKind>& host_kinds();

/// The name of a test over the faces of tests/qt/nine_faces.h.
inline std::string name_of_face(const testing::TestParamInfo<const char*>& test) { return test.param; }

/// The name of a test over host_kinds().
inline std::string name_of_host(const testing::TestParamInfo<HostKind>& test) { return test.param.name; }

/// Loads sites in a square of 40 mm whose values grow to the right from a base.
void load_slope(qt::PlotWidget& face, double base = 100);

}  // namespace mirolen::host_test
