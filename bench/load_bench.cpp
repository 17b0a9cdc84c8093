// Loading the world with its indexes, against reading the same files whole and
// summing their bytes.

#include <benchmark/benchmark.h>

#include <chrono>
#include <numeric>
#include <string>
#include <vector>

#include "base/files.h"
#include "bench/world.h"
#include "startup/world_load.h"

namespace {

using Clock = std::chrono::steady_clock;

std::vector<std::filesystem::path> DatabaseFiles() {
  std::vector<std::filesystem::path> files;
  const auto add = [&](const std::string& folder, std::initializer_list<const char*> names) {
    for (const char* name : names)
      files.push_back(BenchHome().Resolve(folder + name));
  };
  add("\\database\\FS09\\", {"region.vlm", "country.vlm", "state.vlm", "city.vlm", "airport.vlm", "ils.vlm",
                             "taxi.vlm", "poly.vlm", "marker.vlm"});
  add("\\database\\", {"msa.vlm", "dijinter.vlm", "vicways.vlm", "jetways.vlm", "fixes.vlm", "vor.vlm",
                       "ndb.vlm", "airspace.vlm"});
  add("\\map\\", {"worldpolygon.bin", "worldline.bin"});
  add("\\", {"magvar09.qtr"});
  return files;
}

struct Sum {
  std::uint64_t total = 0;
  std::uint64_t bytes = 0;
};

Sum ReadAndSum(const std::vector<std::filesystem::path>& files) {
  Sum sum;
  for (const auto& path : files) {
    const auto file = ReadWholeFile(path);
    if (!file) continue;
    for (const std::byte byte : file->Bytes())
      sum.total += static_cast<std::uint8_t>(byte);
    sum.bytes += file->Bytes().size();
  }
  return sum;
}

double Seconds(Clock::time_point from) {
  return std::chrono::duration<double>(Clock::now() - from).count();
}

// ratio: load time / time to read and sum.
void LoadWorldWithIndexes(benchmark::State& state) {
  BenchWorld();  // ends the run with a message when there is none
  const auto files = DatabaseFiles();
  double load = 0;
  double baseline = 0;
  Sum sum;
  for ([[maybe_unused]] auto iteration : state) {
    const auto start = Clock::now();
    WorldLoad world = LoadWorld(BenchHome(), std::int16_t{0});
    load += Seconds(start);
    benchmark::DoNotOptimize(world);
    state.PauseTiming();
    const auto baselineStart = Clock::now();
    sum = ReadAndSum(files);
    benchmark::DoNotOptimize(sum.total);
    baseline += Seconds(baselineStart);
    state.ResumeTiming();
  }
  state.counters["ratio"] = load / baseline;
  state.counters["MB"] = static_cast<double>(sum.bytes) / 1e6;
  state.counters["baselineMs"] = baseline * 1e3 / static_cast<double>(state.iterations());
}
BENCHMARK(LoadWorldWithIndexes)->Unit(benchmark::kMillisecond);

}  // namespace
