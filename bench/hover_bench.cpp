// The search under a resting pointer, everything switched on, at the middle of
// busy views; against a walk over the whole tables in the same run.
#include <benchmark/benchmark.h>

#include <chrono>

#include "bench/world.h"
#include "map/hover.h"
#include "navdata/place_index.h"

namespace {

MapSwitches EverythingOn() {
  MapSwitches on;
  on.mnuIntersection = on.mnuGPSFix = on.mnuSunrise = on.mnuCtrz = on.mnuAir1 = on.mnuAir2 = true;
  return on;
}

// Rows within a hundred units of the middle, each table walked once.
std::int64_t WalkTables(const HoverQuestion& question) {
  const NavDatabase& database = question.database;
  std::int64_t near = 0;
  const auto walk = [&](const auto& table) {
    for (const auto& row : table)
      near += question.Near(row.sngLat, row.sngLon, 100, 100) ? 1 : 0;
  };
  walk(database.airports);
  walk(database.vors);
  walk(database.ndbs);
  walk(database.intersections);
  walk(database.fixes);
  walk(database.airspaces);
  walk(database.parkings);
  return near;
}

void HoverSearch(benchmark::State& state, float lat, float lon, int row) {
  const auto sources = InSearchOrder(DatabaseHoverSources());
  MapView view = MapView::At(lat, lon, row);
  view.UpdateVisibilityBox();
  const Settings settings;
  const MapSwitches switches = EverythingOn();
  HoverQuestion question{view, BenchWorld(), settings, switches};
  question.x = mapScaleWidth / 2.0F;
  question.y = mapScaleHeight / 2.0F;
  std::chrono::duration<double> searching{};
  std::chrono::duration<double> walking{};
  for (auto _ : state) {
    const auto start = std::chrono::steady_clock::now();
    benchmark::DoNotOptimize(FindUnderPointer(question, sources));
    searching += std::chrono::steady_clock::now() - start;
    state.PauseTiming();
    const auto walkStart = std::chrono::steady_clock::now();
    benchmark::DoNotOptimize(WalkTables(question));
    walking += std::chrono::steady_clock::now() - walkStart;
    state.ResumeTiming();
  }
  state.counters["ratio"] = searching / walking;
}

BENCHMARK_CAPTURE(HoverSearch, Frankfurt3, 50.033F, 8.57F, 2)->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(HoverSearch, NewYork50, 40.64F, -73.78F, 7)->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(HoverSearch, Europe400, 50.03F, 8.57F, 13)->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(HoverSearch, EasternUnitedStates800, 38, -80, 17)->Unit(benchmark::kMicrosecond);

}  // namespace
