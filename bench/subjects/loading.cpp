#include <QTemporaryDir>

#include "mirolen/core/GlobalFunctions.h"
#include "subjects.h"

namespace mirolen::bench {
namespace {

void load_arrays(benchmark::State& state) {
  const Sites sites = uniform_sites(static_cast<int>(state.range(0)));
  wafer target = bare_wafer();
  for (auto _ : state)
    benchmark::DoNotOptimize(GlobalFunctions::LoadSiteArrays(false, target, sites.x, sites.y, sites.z));
  state.SetItemsProcessed(state.iterations() * sites.count());
}
BENCHMARK(load_arrays)->Apply(numbers_of_sites);

void load_file(benchmark::State& state) {
  const Sites sites = uniform_sites(static_cast<int>(state.range(0)));
  const QTemporaryDir folder;
  const std::string file = folder.filePath("sites").toStdString();
  write_file(sites, file);
  wafer target = bare_wafer();
  for (auto _ : state)
    if (GlobalFunctions::LoadSiteFile(false, target, file, sites.count()) != 0)
      return state.SkipWithError("not loaded");
  state.SetItemsProcessed(state.iterations() * sites.count());
}
BENCHMARK(load_file)->Apply(numbers_of_sites);

}  // namespace
}  // namespace mirolen::bench
