#include "lot.h"

#include <QDate>
#include <QFileInfo>

#include "report.h"
#include "texts.h"

namespace {

QString remark(const LotReport& report, std::size_t wafer) {
  const QString date = QDate::currentDate().toString(Qt::ISODate);
  const QString what = text("%1, %2").arg(report.plot.title, date);
  if (report.wafers.size() == 1) return what;
  return text("%1, page %2 of %3").arg(what).arg(wafer + 1).arg(report.wafers.size());
}

}  // namespace

QString LotWafer::name() const { return QFileInfo(file).completeBaseName(); }

void print_lot_page(const LotReport& report, std::size_t wafer,
                    const std::shared_ptr<mirolen::PlotCanvas>& target) {
  const LotWafer& printed = report.wafers.at(wafer);
  mirolen::qt::PlotWidget& plot = *report.plot.plot;
  try {
    if (const int result = printed.load(plot); result != 0)
      throw mirolen::InvalidArgument(
          text("The plot refuses these sites (result %1).").arg(result).toStdString());
    plot.setProperty("PlotCaption", printed.name());
    fit_to_data(plot);
    print_page(plot, target, {printed.name(), remark(report, wafer), report.unit});
  } catch (const mirolen::RunTimeError& error) {
    throw mirolen::RunTimeError((printed.file + ": ").toStdString() + error.what());
  }
}

bool print_lot(const LotReport& report, const std::shared_ptr<mirolen::qt::PrintJob>& job,
               const LotProgress& go_on) {
  const std::size_t pages = report.wafers.size();
  for (std::size_t wafer = 0; wafer < pages; ++wafer) {
    if (!go_on(static_cast<int>(wafer))) return false;
    if (wafer > 0) job->new_page();
    print_lot_page(report, wafer, job);
  }
  return go_on(static_cast<int>(pages));
}
