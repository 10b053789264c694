// Loads real wafers by arrays and by a data file, prints their statistics and writes all nine plots as
// pictures, and as pages of a report with a lot behind them.

#include <QApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QtEndian>
#include <cstdio>

#include "lot.h"
#include "mirolen/qt/Plot2D.h"
#include "plots.h"
#include "report.h"
#include "wafer_file.h"

using mirolen::qt::Plot2D;
using mirolen::qt::PlotWidget;
using mirolen::qt::PrintJob;

namespace {

struct WaferSet {
  const char* folder;
  double wafer_diameter;
  double test_diameter;
};

constexpr WaferSet sets[] = {
    {"oxide_300mm", 300, 294}, {"film_300mm", 300, 294}, {"defects_200mm", 200, 194}};

void set_up(Plot2D& map, const WaferSet& set, const QString& caption) {
  map.resize(900, 680);
  map.setWaferDiameter(set.wafer_diameter);  // first: it empties the data
  map.setTestDiameter(set.test_diameter);
  map.setResolution(2);
  map.setShowSites(Plot2D::ShowSite);
  map.setPlotCaption(caption);
}

bool print_statistics(Plot2D& map, const QString& path, const QString& name) {
  const SiteList sites = read_csv(path);
  if (map.SetWaferData(sites.x, sites.y, sites.z) != 0) {
    std::printf("%-28s refused\n", qPrintable(name));
    return false;
  }
  std::printf("%-28s %6zu %11.4f %11.4f %11.4f %11.4f %9.4f\n", qPrintable(name), sites.x.size(), map.mean(),
              map.StdDev(), map.Minimum(), map.Maximum(), map.StdDevPercent());
  return true;
}

QStringList wafer_files(const QDir& folder) {
  QStringList files = folder.entryList({"*.csv"}, QDir::Files, QDir::Name);
  files.removeAll("TOOL_STATISTICS.csv");
  return files;
}

bool print_all_statistics(const QDir& data) {
  std::printf("%-28s %6s %11s %11s %11s %11s %9s\n", "wafer", "sites", "mean", "std dev", "min", "max",
              "std dev %");
  bool good = true;
  for (const WaferSet& set : sets) {
    Plot2D map;
    set_up(map, set, {});
    const QDir folder(data.filePath(set.folder));
    for (const QString& file : wafer_files(folder))
      good &= print_statistics(map, folder.filePath(file), folder.dirName() + "/" + file);
  }
  return good;
}

/// Three blocks of little-endian doubles: all x, all y, all values.
bool write_data_file(const SiteList& sites, const QString& path) {
  QFile file(path);
  if (!file.open(QIODevice::WriteOnly)) return false;
  bool written = true;
  for (const std::vector<double>* block : {&sites.x, &sites.y, &sites.z}) {
    std::vector<double> bytes(block->size());
    qToLittleEndian<double>(block->data(), static_cast<qsizetype>(block->size()), bytes.data());
    const auto size = static_cast<qint64>(bytes.size() * sizeof(double));
    written &= file.write(reinterpret_cast<const char*>(bytes.data()), size) == size;
  }
  return file.flush() && written;
}

void set_diameters(PlotWidget& plot, const WaferSet& set) {
  plot.setWaferDiameter(set.wafer_diameter);  // first: it empties the data
  plot.setTestDiameter(set.test_diameter);
}

/// Writes a picture of one plot of a data file.
bool write_picture(const NamedPlot& named, const QString& data_file, int sites, const QDir& out) {
  PlotWidget& plot = *named.plot;
  plot.resize(900, 680);
  set_diameters(plot, sets[1]);
  plot.setProperty("PlotCaption", "Film thickness, slot 1 (angstrom)");  // the histogram has none
  mark_sites(plot, true);
  if (plot.SetDataFile(data_file, sites) != 0) return false;
  fit_to_data(plot);
  const QString path = out.filePath(named.name + ".png");
  if (plot.Plot() != 0 || !plot.grab().save(path)) return false;
  std::printf("wrote %s\n", qPrintable(path));
  return true;
}

/// The same wafer by arrays and by a data file: one picture.
bool arrays_and_file_agree(const SiteList& sites, const QString& data_file) {
  Plot2D by_arrays, by_file;
  for (Plot2D* map : {&by_arrays, &by_file}) set_up(*map, sets[1], {});
  if (by_arrays.SetWaferData(sites.x, sites.y, sites.z) != 0 || by_arrays.Plot() != 0) return false;
  if (by_file.SetDataFile(data_file, static_cast<double>(sites.x.size())) != 0 || by_file.Plot() != 0)
    return false;
  if (by_arrays.grab().toImage() == by_file.grab().toImage()) return true;
  std::printf("arrays and data file gave different pictures\n");
  return false;
}

bool plot_wafer(const QDir& data, const QDir& out) {
  const SiteList sites = read_csv(data.filePath("film_300mm/slot1.csv"));
  const QString data_file = out.filePath("slot1.bin");
  if (!write_data_file(sites, data_file)) return false;
  bool good = arrays_and_file_agree(sites, data_file);
  QWidget owner;
  for (const NamedPlot& named : nine_plots(&owner))
    good &= write_picture(named, data_file, static_cast<int>(sites.x.size()), out);
  return good;
}

LotWafer wafer_of(const QString& path) {
  return {path, [sites = read_csv(path)](PlotWidget& plot) {
            return plot.SetWaferData(sites.x, sites.y, sites.z);
          }};
}

/// Prints pages of one plot, and the time of each.
void print_pages(const LotReport& report, const WaferSet& set, const std::shared_ptr<PrintJob>& job) {
  set_diameters(*report.plot.plot, set);
  QElapsedTimer timer;
  print_lot(report, job, [&](int finished) {
    if (finished > 0)
      std::printf("page %-14s %-18s %6.0f ms\n", qPrintable(report.plot.title),
                  qPrintable(report.wafers[static_cast<std::size_t>(finished) - 1].name()),
                  timer.nsecsElapsed() / 1e6);
    timer.start();
    return true;
  });
}

/// A page of each plot of one wafer, then a colour map of each wafer of a lot.
void write_report(const QDir& data, const QDir& out) {
  const QString path = out.filePath("report.pdf");
  const auto job = PrintJob::pdf(path, report_layout());
  QWidget owner;
  const std::vector<NamedPlot> plots = nine_plots(&owner);
  for (const NamedPlot& named : plots) {
    mark_sites(*named.plot, true);
    print_pages({named, {wafer_of(data.filePath("film_300mm/slot1.csv"))}, "angstrom"}, sets[1], job);
    job->new_page();
  }
  const QDir folder(data.filePath(sets[0].folder));
  LotReport lot{plots[0], {}, "angstrom"};
  for (const QString& file : wafer_files(folder)) lot.wafers.push_back(wafer_of(folder.filePath(file)));
  print_pages(lot, sets[0], job);
  job->finish();
  std::printf("wrote %s\n", qPrintable(path));
}

}  // namespace

int main(int argc, char** argv) {
  QApplication application(argc, argv);
  if (argc != 3) {
    std::fprintf(stderr, "usage: demo DATA_FOLDER OUT_FOLDER\n");
    return 2;
  }
  try {
    const QDir data(argv[1]), out(argv[2]);
    if (!out.mkpath(".")) throw WaferFileError("cannot make the folder " + out.path());
    const bool good = print_all_statistics(data) & plot_wafer(data, out);
    write_report(data, out);
    return good ? 0 : 1;
  } catch (const std::exception& error) {
    std::fprintf(stderr, "%s\n", error.what());
    return 1;
  }
}
