#include "report.h"

#include <gtest/gtest.h>

#include <QRectF>

#include "mirolen/qt/Plot2D.h"
#include "mirolen/render/SurfaceCanvas.h"
#include "qt/qt_support.h"

namespace mirolen {
namespace {

constexpr double mm = 1440 / 25.4;
constexpr double line = 185;  // a frame stands a line of text lower than its place

std::vector<QRectF> frames_of(const PagePlan& plan) {
  return {{0, plan.plot_top + line, plan.plot_width, plan.plot_height},
          {plan.statistics.left, plan.statistics.top + line, 2775, 2115},
          {plan.size.left, plan.size.top + line, 2775, 1155},
          {plan.legend.left, plan.legend.top + line, 2775, 2895}};
}

void expect_order(double width, double height) {
  const std::vector<QRectF> frames = frames_of(plan_page(width, height));
  const QRectF page(0, 0, width, height);
  for (std::size_t i = 0; i < frames.size(); ++i) {
    EXPECT_TRUE(page.contains(frames[i])) << i << " on " << width << " x " << height;
    EXPECT_GT(std::min(frames[i].width(), frames[i].height()), 1100) << i;
    for (std::size_t k = 0; k < i; ++k)
      EXPECT_FALSE(frames[i].intersects(frames[k]))
          << i << " and " << k << " on " << width << " x " << height;
  }
}

TEST(PagePlan, KeepsThePartsApartOnEveryPage) {
  expect_order(190 * mm, 277 * mm);  // A4
  expect_order(277 * mm, 190 * mm);
  expect_order(195.9 * mm, 259.4 * mm);  // Letter
  expect_order(259.4 * mm, 195.9 * mm);
  expect_order(277 * mm, 400 * mm);  // A3
  expect_order(least_page_width, least_page_height);
  expect_order(20000, least_page_height);
  expect_order(least_page_width, 20000);
}

TEST(PagePlan, RefusesAPageThatIsTooSmall) {
  EXPECT_THROW(plan_page(least_page_width - 1, 20000), InvalidArgument);
  EXPECT_THROW(plan_page(20000, least_page_height - 1), InvalidArgument);
}

TEST(ReportPage, GivesThePlotItsTargetBack) {
  qt_test::ShownPlot plot;
  const auto before = plot.face.PrinterObj();
  qt::ImageSurface surface({720, 1000}, 1);
  print_page(plot.face, std::make_shared<SurfaceCanvas>(CanvasKind::picture_box, &surface),
             {"title", "", ""});
  EXPECT_EQ(plot.face.PrinterObj(), before);
  EXPECT_GT(qt_test::colors_in(surface.image()).size(), 8u);
  const auto broken = std::make_shared<SurfaceCanvas>(CanvasKind::picture_box, nullptr);
  EXPECT_THROW(print_page(plot.face, broken, {}), RunTimeError);
  EXPECT_EQ(plot.face.PrinterObj(), before);
}

TEST(ReportPage, NeedsDataAndAPlotThatIsLargeEnough) {
  qt_test::ShownPlot plot;
  qt::ImageSurface surface({720, 1000}, 1);
  const auto page = std::make_shared<SurfaceCanvas>(CanvasKind::picture_box, &surface);
  plot.face.setWaferDiameter(300);  // empties it
  EXPECT_THROW(print_page(plot.face, page, {}), InvalidArgument);
}

}  // namespace
}  // namespace mirolen
