#include "report.h"

#include "mirolen/qt/MapWidget.h"

using mirolen::qt::MapWidget;
using mirolen::qt::PlotWidget;

namespace {

constexpr double plot_height = 9600;
constexpr double blocks_top = plot_height + 400;
constexpr double block_pitch = 3000;  // a block is 2775 wide

}  // namespace

void print_page(PlotWidget& plot, const std::shared_ptr<mirolen::PlotCanvas>& target, const QString& unit) {
  const std::shared_ptr<mirolen::PlotCanvas> before = plot.PrinterObj();
  plot.setPrinterObj(target);
  try {
    plot.PrintPlot(0, 0, report_width, plot_height, true);
    plot.PrintWaferStatistic(0, blocks_top, unit);
    plot.PrintWaferSize(block_pitch, blocks_top);
    if (auto* map = qobject_cast<MapWidget*>(&plot)) map->PrintLegend(2 * block_pitch, blocks_top, true);
  } catch (...) {
    plot.setPrinterObj(before);
    throw;
  }
  plot.setPrinterObj(before);
}
