// Full repaints of the map into a picture of the window's opening size. The
// baseline of each: filling a picture of that size and projecting every place
// that the repaint may have to look at, once.
#include <benchmark/benchmark.h>

#include <QGuiApplication>
#include <QImage>
#include <chrono>

#include "bench/world.h"
#include "map/draw_map.h"
#include "windows/qt_draw_surface.h"

namespace {

constexpr int pictureWidth = 1600;
constexpr int pictureHeight = 1000;

double Seconds(std::chrono::steady_clock::duration time) {
  return std::chrono::duration<double>(time).count();
}

void StartQt() {
  static int argc = 1;
  static char name[] = "velmora-bench";
  static char* argv[] = {name, nullptr};
  qputenv("QT_QPA_PLATFORM", "offscreen");
  static const QGuiApplication application(argc, argv);
}

template <class Rows>
std::int64_t ProjectAll(const Projection& projection, const Rows& rows) {
  std::int64_t sum = 0;
  for (const auto& row : rows)
    sum += projection.LonToX(row.sngLon) + projection.LatToY(row.sngLat);
  return sum;
}

void FillAndProject(const MapView& view, const NavDatabase& database, QImage& image) {
  image.fill(Qt::black);
  const Projection projection = view.CurrentProjection();
  std::int64_t sum =
      ProjectAll(projection, database.airports) + ProjectAll(projection, database.intersections);
  for (const WorldShapes* world : {&database.worldPolygons, &database.worldLines})
    for (const Position place : world->points)
      sum += projection.LonToX(place.lon) + projection.LatToY(place.lat);
  benchmark::DoNotOptimize(sum);
}

void DrawAt(benchmark::State& state, float lat, float lon, int row) {
  StartQt();
  const NavDatabase& database = BenchWorld();
  const auto layers = InDrawingOrder(DatabaseLayers());
  const Settings settings;
  modDeclutter labels;
  const MapSwitches switches;
  MapView view = MapView::At(lat, lon, row);
  QImage image(pictureWidth, pictureHeight, QImage::Format_RGB32);
  std::chrono::steady_clock::duration drawing{};
  std::chrono::steady_clock::duration baseline{};
  for (auto _ : state) {
    const auto start = std::chrono::steady_clock::now();
    {
      QtDrawSurface surface(image);
      DrawMap({view, labels, database, settings, switches, {}}, layers, surface);
    }
    drawing += std::chrono::steady_clock::now() - start;
    state.PauseTiming();
    const auto baselineStart = std::chrono::steady_clock::now();
    FillAndProject(view, database, image);
    baseline += std::chrono::steady_clock::now() - baselineStart;
    state.ResumeTiming();
  }
  state.counters["ratio"] = Seconds(drawing) / Seconds(baseline);
}

void DrawEurope(benchmark::State& state) {
  DrawAt(state, 50, 10, 13);
}
void DrawWorld(benchmark::State& state) {
  DrawAt(state, 20, 0, 20);
}
void DrawTerminalArea(benchmark::State& state) {
  DrawAt(state, 50.03F, 8.57F, 8);
}

BENCHMARK(DrawEurope)->Unit(benchmark::kMillisecond);
BENCHMARK(DrawWorld)->Unit(benchmark::kMillisecond);
BENCHMARK(DrawTerminalArea)->Unit(benchmark::kMillisecond);

}  // namespace
