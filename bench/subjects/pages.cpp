#include <QFileInfo>
#include <QTemporaryDir>

#include "mirolen/qt/PrintJob.h"
#include "subjects.h"

namespace mirolen::bench {
namespace {

/// @param make_job called with the name of the file, for each page.
template <class MakeJob>
void print_map(benchmark::State& state, const MakeJob& make_job) {
  const QTemporaryDir folder;
  const QString file = folder.filePath("map");
  wafer source = loaded(uniform_sites(1000));
  for (auto _ : state) {
    const auto page = make_job(file);
    print_color_map(source, *page, static_cast<int>(state.range(0)));
    page->finish();
  }
  state.counters["bytes"] = static_cast<double>(QFileInfo(file).size());
}

void color_map_as_pdf(benchmark::State& state) {
  print_map(state, [](const QString& file) { return qt::PrintJob::pdf(file); });
}
BENCHMARK(color_map_as_pdf)->Apply(numbers_of_cells);

void color_map_as_svg(benchmark::State& state) {
  print_map(state, [](const QString& file) { return qt::PrintJob::svg(file, {200, 200}); });
}
BENCHMARK(color_map_as_svg)->Apply(numbers_of_cells);

}  // namespace
}  // namespace mirolen::bench
