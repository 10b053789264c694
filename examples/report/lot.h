#pragma once

#include <functional>
#include <vector>

#include "mirolen/qt/PrintJob.h"
#include "plots.h"

/// A wafer of which pages are made.
struct LotWafer {
  QString file;
  /// Loads it into a plot. @return what the plot's own member does.
  std::function<int(mirolen::qt::PlotWidget&)> load;

  QString name() const;
};

/// What the pages of a lot are made with. The plot is loaded with one wafer after the other.
struct LotReport {
  NamedPlot plot;
  std::vector<LotWafer> wafers;
  QString unit;
};

/// Is told the number of finished pages before each page and at the end. @return whether to go on.
using LotProgress = std::function<bool(int finished)>;

/// Prints the page of one wafer. @throws mirolen::RunTimeError, with a text for the user that names its file.
void print_lot_page(const LotReport& report, std::size_t wafer,
                    const std::shared_ptr<mirolen::PlotCanvas>& target);

/// Prints a page for each wafer, the first on the page that the job stands on. The job is the caller's to
/// end.
/// @return whether all were printed. @throws mirolen::RunTimeError, with a text for the user.
bool print_lot(const LotReport& report, const std::shared_ptr<mirolen::qt::PrintJob>& job,
               const LotProgress& go_on);
