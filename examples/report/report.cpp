#include "report.h"

#include <QLocale>
#include <algorithm>

#include "mirolen/print/PrintWafer.h"
#include "mirolen/qt/MapWidget.h"
#include "mirolen/qt/PrintJob.h"
#include "texts.h"

using mirolen::qt::MapWidget;
using mirolen::qt::PlotWidget;

namespace {

constexpr double title_points = 12;
constexpr double rule_top = 340, content_top = 360;
constexpr double text_line = 185;  // a frame begins and ends a line of text lower than its place
constexpr double edge = 30;        // what the right edge of a frame takes beyond its width
constexpr double block_width = 2775, legend_height = 2895, gap = 250;
constexpr double statistics_height = 2115, size_height = 1155;
constexpr double beside_plot = 1250;  // what a plot leaves for the orientation mark

/// The target of a plot for as long as a page takes.
class Target {
 public:
  Target(PlotWidget& plot, const std::shared_ptr<mirolen::PlotCanvas>& target)
      : plot_(plot), before_(plot.PrinterObj()) {
    plot.setPrinterObj(target);
  }
  ~Target() { plot_.setPrinterObj(before_); }
  Target(const Target&) = delete;
  Target& operator=(const Target&) = delete;

 private:
  PlotWidget& plot_;
  std::shared_ptr<mirolen::PlotCanvas> before_;
};

void print_title(const std::shared_ptr<mirolen::PlotCanvas>& target, const PageTexts& texts, double width) {
  mirolen::PrintWafer page{target};
  page.ResetPrinterObj();
  std::string remark = texts.remark.toStdString();
  page.DrawRightText(remark, width, rule_top - text_line - 40, width / 2, 0);
  const mirolen::FontSpec font = target->Font();
  mirolen::FontSpec large = font;
  large.size = title_points;
  large.bold = true;
  target->Font(large);
  std::string title = texts.title.toStdString();
  page.DrawLeftText(title, 0, 0, width - target->TextWidth(" ") - width / 2, 0);
  target->Font(font);
  target->Line(mirolen::line_flags, 0, rule_top, width, rule_top, {});
}

}  // namespace

PagePlan plan_page(double width, double height) {
  if (width < least_page_width || height < least_page_height)
    throw mirolen::InvalidArgument(text("The page is too small for a report.").toStdString());
  width -= edge;
  PagePlan plan{width, content_top, width, 0, {}, {}, {}};
  if (width > height) {
    const double column = width - block_width;
    plan.plot_width = column - gap;
    plan.plot_height = height - content_top - 2 * text_line;
    plan.statistics = {column, content_top};
    plan.size = {column, plan.statistics.top + statistics_height + gap};
    plan.legend = {column, plan.size.top + size_height + gap};
    return plan;
  }
  const double room = height - content_top - legend_height - gap - 2 * text_line;
  plan.plot_height = std::min(room, width - beside_plot + 2 * gap);
  const double blocks = content_top + plan.plot_height + gap;
  plan.statistics = {0, blocks};
  plan.size = {(width - block_width) / 2, blocks};
  plan.legend = {width - block_width, blocks};
  return plan;
}

QPageLayout report_layout() {
  QPageLayout layout = mirolen::qt::PrintJob::a4();
  if (QLocale().measurementSystem() == QLocale::ImperialUSSystem) {
    layout.setPageSize(QPageSize(QPageSize::Letter));
    layout.setMargins(QMarginsF(10, 10, 10, 10));
  }
  return layout;
}

void print_page(PlotWidget& plot, const std::shared_ptr<mirolen::PlotCanvas>& target,
                const PageTexts& texts) {
  target->ScaleMode(mirolen::twips);
  const PagePlan plan = plan_page(target->ScaleWidth(), target->ScaleHeight());
  print_title(target, texts, plan.width);
  const Target while_printing(plot, target);
  if (plot.PrintPlot(0, plan.plot_top, plan.plot_width, plan.plot_height, true) != 0)
    throw mirolen::InvalidArgument(text("The plot is too small or has no data to print.").toStdString());
  plot.PrintWaferStatistic(plan.statistics.left, plan.statistics.top, texts.unit);
  plot.PrintWaferSize(plan.size.left, plan.size.top);
  if (auto* map = qobject_cast<MapWidget*>(&plot)) map->PrintLegend(plan.legend.left, plan.legend.top, true);
}
