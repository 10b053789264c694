#pragma once

#include <string>
#include <vector>

namespace mirolen {

/// A control and what the About box calls it.
struct AboutName {
  std::string control, title;
};

/// In the order of the types, from 1.
inline const std::vector<AboutName> about_names{{"Plot2D", "Sonvera.OCX Type: 2D Plot"},
                                                {"Plot3D", "Sonvera.OCX Type: 3D Plot"},
                                                {"Plot2DS", "Sonvera.OCX Type: 2D Sigma Range Plot"},
                                                {"Plot3DS", "Sonvera.OCX Type: 3D Sigma Range Plot"},
                                                {"Plot2DC", "Sonvera.OCX Type: 2D Contour Plot "},
                                                {"LineScan", "Sonvera.OCX Type: Line Scan"},
                                                {"Histogram", "Sonvera.OCX Type: Histogram"},
                                                {"Plot2DN", "Sonvera.OCX Type: 2D Value Plot"},
                                                {"Plot2DB", "Sonvera.OCX Type: 3D Bar Plot"}};

}  // namespace mirolen
