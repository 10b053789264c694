#pragma once

#include <array>
#include <memory>
#include <stdexcept>
#include <string_view>

#include "mirolen/qt/Histogram.h"
#include "mirolen/qt/LineScan.h"
#include "mirolen/qt/Plot2D.h"
#include "mirolen/qt/Plot2DB.h"
#include "mirolen/qt/Plot2DC.h"
#include "mirolen/qt/Plot2DN.h"
#include "mirolen/qt/Plot2DS.h"
#include "mirolen/qt/Plot3D.h"
#include "mirolen/qt/Plot3DS.h"

namespace mirolen::qt_test {

inline constexpr std::array nine_faces{"Plot2D", "Plot2DS", "Plot2DC",   "Plot2DN", "Plot2DB",
                                       "Plot3D", "Plot3DS", "Histogram", "LineScan"};

/// A face by the name of its class.
inline std::unique_ptr<qt::PlotWidget> make_face(std::string_view name) {
  if (name == "Plot2D") return std::make_unique<qt::Plot2D>();
  if (name == "Plot2DS") return std::make_unique<qt::Plot2DS>();
  if (name == "Plot2DC") return std::make_unique<qt::Plot2DC>();
  if (name == "Plot2DN") return std::make_unique<qt::Plot2DN>();
  if (name == "Plot2DB") return std::make_unique<qt::Plot2DB>();
  if (name == "Plot3D") return std::make_unique<qt::Plot3D>();
  if (name == "Plot3DS") return std::make_unique<qt::Plot3DS>();
  if (name == "Histogram") return std::make_unique<qt::Histogram>();
  if (name == "LineScan") return std::make_unique<qt::LineScan>();
  throw std::invalid_argument("no such face");
}

}  // namespace mirolen::qt_test
