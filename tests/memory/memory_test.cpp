#include <gtest/gtest.h>

#include <cmath>
#include <string>
#include <vector>

#include "heap.h"
#include "mirolen/core/GlobalFunctions.h"
#include "mirolen/core/wafer.h"
#include "mirolen/render/SurfaceCanvas.h"
#include "support/NullSurface.h"
#include "support/site_support.h"

namespace mirolen {
namespace {

constexpr int most_sites = 32'767;
constexpr std::size_t bytes_of_data = 3 * sizeof(double) * most_sites;

/// Sites on a spiral over the wafer.
SiteList sites_of_a_full_store() {
  SiteList sites;
  for (int i = 0; i < most_sites; ++i) {
    const double radius = 97 * std::sqrt(i / static_cast<double>(most_sites)), angle = 2.4 * i;
    sites.push_back({radius * std::cos(angle), radius * std::sin(angle), 5 + std::sin(i * 0.001)});
  }
  return sites;
}

void set_size(wafer& sample) {
  sample.WafDiam = 200, sample.WaferOrigRad = 100, sample.test_diam = 194, sample.flat_ratio = 1;
}

TEST(Memory, OfAFullStoreIsAFewTimesItsData) {
  const SiteList sites = sites_of_a_full_store();
  const std::vector<double> x = column(sites, &Site::x), y = column(sites, &Site::y),
                            z = column(sites, &Site::z);
  const std::size_t before = heap::held();
  const heap::Peak peak;
  wafer sample;
  set_size(sample);
  ASSERT_EQ(GlobalFunctions::LoadSiteArrays(false, sample, x, y, z), 0);
  EXPECT_LT(heap::held() - before, 3 * bytes_of_data);
  EXPECT_LT(peak.bytes(), 3 * bytes_of_data);
}

TEST(Memory, OfLoadingAFileIsAFewTimesItsData) {
  const TemporaryFile file(file_bytes(sites_of_a_full_store()));
  const heap::Peak peak;
  wafer sample;
  set_size(sample);
  ASSERT_EQ(GlobalFunctions::LoadSiteFile(false, sample, file.name(), most_sites), 0);
  EXPECT_LT(peak.bytes(), 4 * bytes_of_data);
}

TEST(Memory, OfDrawingIsAFewLinesOfTheGrid) {
  wafer sample;
  set_size(sample);
  load(sample, sites_of_a_full_store());
  NullSurface surface({900, 900});
  SurfaceCanvas canvas(CanvasKind::picture_box, &surface);
  const heap::Peak peak;
  sample.D2Plot(canvas, 0.97, 5, 0, 0, 0, 0, 0, 0, 0);
  sample.D3Plot(canvas, 0.97, 0.97, 40, 40, 0, 35, 1, 0, false, 0, 0, 0, 0, 0);
  EXPECT_LT(peak.bytes(), 20'000);
}

}  // namespace
}  // namespace mirolen
