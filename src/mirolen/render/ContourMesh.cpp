#include "mirolen/render/ContourMesh.h"

#include <cmath>

#include "mirolen/core/numbers.h"

namespace mirolen {
namespace {

enum Reso : std::int16_t { low_quality = 0, high_quality = 1 };

/// Node j of a ring; ring 0 is the centre, ring i closes on itself after 8 i nodes.
std::size_t node_of(std::size_t ring, std::size_t j) {
  return ring == 0 ? 0 : 1 + 4 * ring * (ring - 1) + j % (8 * ring);
}

/// Where a level lies along one coordinate from a to b, whose values are f and g.
double EdgeCrossing(double a, double b, double f, double g, double level) {
  return a - divide((a - b) * (f - level), f - g);
}

}  // namespace

int SetContourQuality(std::int16_t reso, double sites) {
  constexpr int coarse = 5, fine = 10;
  if (reso == low_quality) return coarse;
  if (reso == high_quality) return fine;
  int rings = 2;
  const auto nodes = [&] { return (2 * rings + 1) * (2 * rings + 1); };
  while (rings < fine && sites > nodes()) ++rings;
  return rings;
}

ContourMesh BuildContourMesh(double test_diam, int rings, double Pi) {
  ContourMesh mesh;
  mesh.ContourA.push_back({0, 0});
  for (int i = 1; i <= rings; ++i) {
    const double radius = i * test_diam / (2 * rings);
    for (int j = 0; j < 8 * i; ++j) {
      const double angle = j * (Pi / (4 * i));
      mesh.ContourA.push_back({radius * std::cos(angle), radius * std::sin(angle)});
    }
  }
  for (std::size_t ring = 1; ring <= static_cast<std::size_t>(rings); ++ring) {
    for (std::size_t j = 0; j < 8 * ring; ++j) {
      const std::size_t sector = j / ring;
      const std::size_t inner = j - sector;
      mesh.ContourC.push_back({node_of(ring - 1, inner), node_of(ring, j), node_of(ring, j + 1)});
      if (j + 1 < (sector + 1) * ring)
        mesh.ContourC.push_back(
            {node_of(ring - 1, inner), node_of(ring - 1, inner + 1), node_of(ring, j + 1)});
    }
  }
  return mesh;
}

SurfacePoint TriangleEdgeCrossing(const ContourMesh& mesh, std::size_t a, std::size_t b, double level) {
  const SurfacePoint &from = mesh.ContourA[a], &to = mesh.ContourA[b];
  const double f = mesh.ContourB[a], g = mesh.ContourB[b];
  return {EdgeCrossing(from.x, to.x, f, g, level), EdgeCrossing(from.y, to.y, f, g, level)};
}

}  // namespace mirolen
