#pragma once

#include <array>
#include <cstdint>
#include <vector>

#include "mirolen/render/Surface.h"

namespace mirolen {

/// Nodes on concentric rings, the values there, and the triangles between the rings.
struct ContourMesh {
  std::vector<SurfacePoint> ContourA;
  std::vector<double> ContourB;
  std::vector<std::array<std::size_t, 3>> ContourC;
};

/// Rings of the mesh for a quality: 0 coarse, 1 fine, any other the more the more sites there are.
int SetContourQuality(std::int16_t reso, double sites);

/// The mesh over the test circle; its nodes have no values yet.
ContourMesh BuildContourMesh(double test_diam, int rings, double Pi);

/// Where a level lies along the edge from node a to node b, whose values differ. @throws OverflowError.
SurfacePoint TriangleEdgeCrossing(const ContourMesh& mesh, std::size_t a, std::size_t b, double level);

}  // namespace mirolen
