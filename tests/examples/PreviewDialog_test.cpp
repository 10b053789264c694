#include "PreviewDialog.h"

#include <gtest/gtest.h>

#include <QAction>
#include <QScrollArea>
#include <QTest>
#include <QTimer>

#include "examples/quiet_viewer.h"
#include "qt/qt_support.h"
#include "report.h"

namespace mirolen {
namespace {

using examples_test::QuietViewer;
using qt_test::pixel;

constexpr Color frame_grey = 0x404040;

/// A preview of the page of the colour map.
struct Preview : testing::Test {
  PagePreview::Draw draw = [this](const std::shared_ptr<PlotCanvas>& canvas) {
    ++drawn;
    print_page(plot.face, canvas, {"title", "remark", "nm"});
  };
  QAction& action(const QString& text) {
    for (QAction* found : dialog.findChildren<QAction*>())
      if (found->text().remove('&') == text) return *found;
    throw std::runtime_error("no such action");
  }
  /// Whether a frame runs near a place in twips, which is looked for across the frame.
  bool frame_at(double left, double top, bool upright) const {
    const QImage& page = dialog.page().picture();
    const double scale = page.devicePixelRatio() * dialog.page().zoom() / 15;
    const int x = qRound(left * scale), y = qRound(top * scale), reach = qCeil(2 * scale * 15);
    for (int off = -reach; off <= reach; ++off) {
      const QPoint at = upright ? QPoint(x + off, y) : QPoint(x, y + off);
      if (page.rect().contains(at) && pixel(page, at.x(), at.y()) == frame_grey) return true;
    }
    return false;
  }

  qt_test::ShownPlot plot;
  int drawn = 0;
  mutable PreviewDialog dialog{report_layout(), draw, nullptr};
};

TEST_F(Preview, HasTheFramesOfThePageInTheirPlacesAtEachZoom) {
  const QSizeF size = report_layout().paintRect(QPageLayout::Point).size() * 20;
  const PagePlan plan = plan_page(size.width(), size.height());
  for (const double zoom : {0.5, 1.0, 2.0}) {
    dialog.page().zoom_to(zoom);
    EXPECT_NEAR(dialog.page().picture().width(), size.width() / 15 * zoom * dialog.devicePixelRatioF(), 1);
    EXPECT_TRUE(frame_at(0, plan.plot_top + 2000, true)) << zoom;
    EXPECT_TRUE(frame_at(plan.plot_width, plan.plot_top + 2000, true)) << zoom;
    EXPECT_TRUE(frame_at(3000, plan.plot_top + 200 + plan.plot_height, false)) << zoom;
    for (const auto& block : {plan.statistics, plan.size, plan.legend}) {
      EXPECT_TRUE(frame_at(block.left, block.top + 600, true)) << zoom;
      EXPECT_TRUE(frame_at(block.left + 2775, block.top + 600, true)) << zoom;
    }
    EXPECT_FALSE(frame_at(plan.statistics.left + 2900, plan.statistics.top + 600, true)) << zoom;
  }
}

TEST_F(Preview, ShowsTheEdgeOfThePaper) {
  PagePreview& page = dialog.page();
  const QImage seen = page.grab().toImage();
  const double ratio = seen.devicePixelRatio();
  const auto at = [&](double x, double y) { return pixel(seen, qRound(x * ratio), qRound(y * ratio)); };
  const QRectF sheet = page.sheet(), printable = page.printable();
  EXPECT_TRUE(sheet.contains(printable));
  EXPECT_GT(printable.left() - sheet.left(), 10);
  EXPECT_EQ(at(sheet.left() + 4, sheet.center().y()), qt_test::white);
  EXPECT_NE(at(sheet.left() - 6, sheet.center().y()), qt_test::white);
  EXPECT_EQ(at(sheet.left() + sheet.width() - 4, sheet.center().y()), qt_test::white);
  EXPECT_NE(at(sheet.left() + sheet.width() + 6, sheet.center().y()), qt_test::white);
}

TEST_F(Preview, ZoomsAndScrolls) {
  dialog.show();
  PagePreview& page = dialog.page();
  const auto* scroll = dialog.findChild<QScrollArea*>();
  EXPECT_LE(page.height(), scroll->viewport()->height()) << "the whole page at first";
  action("Actual size").trigger();
  EXPECT_EQ(page.zoom(), 1);
  EXPECT_GT(page.height(), scroll->viewport()->height());
  action("Zoom in").trigger();
  EXPECT_EQ(page.zoom(), 1.25);
  action("Zoom out").trigger();
  action("Zoom out").trigger();
  EXPECT_EQ(page.zoom(), 0.75);
  for (int i = 0; i < 20; ++i) action("Zoom in").trigger();
  EXPECT_EQ(page.zoom(), PagePreview::largest_zoom);
  for (int i = 0; i < 20; ++i) action("Zoom out").trigger();
  EXPECT_EQ(page.zoom(), PagePreview::least_zoom);
  action("Whole page").trigger();
  EXPECT_NEAR(page.height(), scroll->viewport()->height(), 2);
}

TEST_F(Preview, EndsWithAPrintOrWithout) {
  dialog.show();
  action("Print...").trigger();
  EXPECT_EQ(dialog.result(), QDialog::Accepted);
  dialog.show();
  action("Close").trigger();
  EXPECT_EQ(dialog.result(), QDialog::Rejected);
  EXPECT_FALSE(dialog.isVisible());
}

TEST(PreviewOfAPageThatFails, ShowsTheReason) {
  PagePreview page(report_layout(), [](const auto&) { throw CanvasError("the test"); });
  EXPECT_TRUE(page.picture().isNull());
  const QImage seen = page.grab().toImage();
  const double ratio = seen.devicePixelRatio();
  const QRectF shown = page.printable();
  const QRect text = QRectF(shown.topLeft() * ratio, shown.size() * ratio).toRect();
  EXPECT_GT(qt_test::colors_in(seen.copy(text)).size(), 1u);
}

TEST(PreviewOfTheViewer, ShowsThePageOfThePlotThatIsSeen) {
  QuietViewer window;
  window.open_csv(MIROLEN_DATA "/oxide_300mm/post_w01.csv");
  std::set<Color> colors;
  QTimer::singleShot(0, &window, [&] {
    auto* const dialog = dynamic_cast<PreviewDialog*>(QApplication::activeModalWidget());
    ASSERT_NE(dialog, nullptr);
    colors = qt_test::colors_in(dialog->page().picture());
    dialog->reject();
  });
  window.action("Print preview...").trigger();
  EXPECT_TRUE(colors.contains(qt_test::red));
  EXPECT_TRUE(colors.contains(frame_grey));
  EXPECT_TRUE(window.complaints.isEmpty());
}

}  // namespace
}  // namespace mirolen
