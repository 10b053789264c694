#include <gtest/gtest.h>

#if defined(__GLIBC__) && !defined(__SANITIZE_ADDRESS__)
#include <malloc.h>

#include <QApplication>
#include <algorithm>
#include <cmath>
#include <cstdint>
#include <limits>
#include <memory>
#include <string>
#include <vector>

#include "mirolen/qt/Plot2D.h"
#include "qt/nine_faces.h"

namespace mirolen {
namespace {

/// The bytes that all of the program holds at present.
std::int64_t held_bytes() {
  const struct mallinfo2 now = mallinfo2();
  return static_cast<std::int64_t>(now.uordblks + now.hblkhd);
}

std::unique_ptr<qt::PlotWidget> shown_plot(const char* name) {
  auto face = qt_test::make_face(name);
  std::vector<double> x, y, z;
  for (int site = 0; site < 60; ++site) {
    const double radius = 11 * std::sqrt(site), angle = 2.4 * site;
    x.push_back(radius * std::cos(angle));
    y.push_back(radius * std::sin(angle));
    z.push_back(100 + site % 7);
  }
  face->resize(260, 260);
  face->show();
  EXPECT_EQ(face->SetWaferData(x, y, z), 0);
  return face;
}

void redraw(qt::PlotWidget& face, int times) {
  for (int i = 0; i < times; ++i) {
    face.SetPlotNotVaild();
    ASSERT_EQ(face.Plot(), 0);
    QApplication::processEvents();
  }
}

/// The bytes that are held longer after each fourth of so many redraws, in the fourth where they are fewest:
/// what is lost is lost in all of them, while a cache grows once.
std::int64_t growth(qt::PlotWidget& face, int redraws) {
  std::int64_t least = std::numeric_limits<std::int64_t>::max();
  for (int fourth = 0; fourth < 4; ++fourth) {
    const std::int64_t before = held_bytes();
    redraw(face, redraws / 4);
    least = std::min(least, held_bytes() - before);
  }
  return least;
}

class Redrawing : public testing::TestWithParam<const char*> {};

INSTANTIATE_TEST_SUITE_P(All, Redrawing,
                         testing::Values("Plot2DS", "Plot2DC", "Plot2DN", "Plot2DB", "Plot3D", "Plot3DS",
                                         "Histogram", "LineScan"),
                         [](const auto& param) { return std::string(param.param); });

TEST_P(Redrawing, HoldsNoMoreMemoryInTheEnd) {
  const auto face = shown_plot(GetParam());
  EXPECT_LT(growth(*face, 1000), 4000) << "16 bytes a redraw are too many";
}

TEST(Redrawing, TenThousandTimesHoldsNoMoreMemoryInTheEnd) {
  const auto face = shown_plot("Plot2D");
  EXPECT_LT(growth(*face, 10'000), 4000);
}

}  // namespace
}  // namespace mirolen
#endif
