// Full repaints of the map with every layer on, into a picture of 1920 x 1080.
// The floor of each: the same primitives drawn again straight through QPainter
// in the same run, nothing looked up, projected or placed any more.
#include <benchmark/benchmark.h>

#include <QGuiApplication>
#include <QImage>
#include <chrono>

#include "bench/replay_surface.h"
#include "bench/world.h"
#include "map/draw_map.h"
#include "windows/qt_draw_surface.h"

namespace {

constexpr int pictureWidth = 1920;
constexpr int pictureHeight = 1080;

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

MapSwitches EverythingOn() {
  MapSwitches on;
  for (const MapLayer& layer : DatabaseLayers())
    for (bool MapSwitches::*flag : layer.switches)
      on.*flag = true;
  on.btnIcao = on.btnName = on.btnFreq = true;
  return on;
}

struct Scene {
  Scene(float lat, float lon, int row)
      : layers(InDrawingOrder(DatabaseLayers())), view(MapView::At(lat, lon, row)) {
    // As in a window of this width.
    view.MapSizeFactor = pictureWidth / 1600.0F;
    const auto scale = ZoomTable[static_cast<std::size_t>(row)].scale;
    view.MapScale = static_cast<std::int32_t>(static_cast<float>(scale) * view.MapSizeFactor);
  }

  void Draw(DrawSurface& surface) {
    DrawMap({view, labels, BenchWorld(), settings, switches, selection}, layers, surface);
  }

  const std::vector<MapLayer> layers;
  MapView view;
  modDeclutter labels;
  const Settings settings;
  const MapSwitches switches = EverythingOn();
  const MapSelection selection;
};

void DrawAt(benchmark::State& state, float lat, float lon, int row) {
  StartQt();
  Scene scene(lat, lon, row);
  QImage image(pictureWidth, pictureHeight, QImage::Format_RGB32);
  SurfaceCache cache;
  QImage floorImage(pictureWidth, pictureHeight, QImage::Format_RGB32);
  QPainter floorPainter(&floorImage);
  ReplaySurface floor(floorPainter, PagePlacement(pictureWidth, pictureHeight));
  scene.Draw(floor);
  std::chrono::steady_clock::duration drawing{};
  std::chrono::steady_clock::duration replaying{};
  for (auto _ : state) {
    const auto start = std::chrono::steady_clock::now();
    {
      QtDrawSurface surface(image, 1, &cache);
      scene.Draw(surface);
    }
    drawing += std::chrono::steady_clock::now() - start;
    state.PauseTiming();
    const auto floorStart = std::chrono::steady_clock::now();
    floor.Replay(floorPainter);
    replaying += std::chrono::steady_clock::now() - floorStart;
    state.ResumeTiming();
  }
  state.counters["ratio"] = Seconds(drawing) / Seconds(replaying);
  state.counters["primitives"] = static_cast<double>(floor.Kept());
}

struct View {
  const char* name;
  float lat;
  float lon;
  int row;
};

constexpr View views[] = {{"Frankfurt3", 50.033F, 8.57F, 2},
                          {"Frankfurt10", 50.033F, 8.57F, 4},
                          {"Frankfurt50", 50.033F, 8.57F, 7},
                          {"Frankfurt100", 50.033F, 8.57F, 9},
                          {"Europe200", 50, 8.5F, 11},
                          {"Europe400", 50, 10, 13},
                          {"EasternUnitedStates800", 38, -80, 17},
                          {"PacificDateLine900", 25, -178, 18},
                          {"NorthPole", 89, 0, 15},
                          {"World6000", 20, 0, 21}};

// Points of the world's outline through the projection, against plain arithmetic on them.
void LonToXPerPoint(benchmark::State& state) {
  const auto& points = BenchWorld().worldPolygons.points;
  const MapView view = MapView::At(50, 10, 13);
  const Projection projection = view.CurrentProjection();
  std::chrono::steady_clock::duration projecting{};
  std::chrono::steady_clock::duration plain{};
  for (auto _ : state) {
    const auto start = std::chrono::steady_clock::now();
    std::int64_t sum = 0;
    for (const Position point : points)
      sum += projection.LonToX(point.lon) + projection.LatToY(point.lat);
    benchmark::DoNotOptimize(sum);
    const auto middle = std::chrono::steady_clock::now();
    double plainSum = 0;
    for (const Position point : points)
      plainSum += static_cast<double>(point.lon) * 1050.0 + static_cast<double>(point.lat) * 1050.0;
    benchmark::DoNotOptimize(plainSum);
    projecting += middle - start;
    plain += std::chrono::steady_clock::now() - middle;
  }
  state.SetItemsProcessed(state.iterations() * static_cast<std::int64_t>(points.size()));
  state.counters["ratio"] = Seconds(projecting) / Seconds(plain);
}

// Labels at 2000 places of a page, in the kinds' turn; against printing them without a placer.
void PlaceLabelPerLabel(benchmark::State& state) {
  StartQt();
  QImage image(pictureWidth, pictureHeight, QImage::Format_RGB32);
  SurfaceCache cache;
  QtDrawSurface surface(image, 1, &cache);
  surface.FontSize = 8;
  modDeclutter labels;
  constexpr int count = 2000;
  const auto placeOf = [](int i) {
    return SurfacePoint{static_cast<float>(i * 7919 % mapScaleWidth),
                        static_cast<float>(i * 104729 % mapScaleHeight)};
  };
  std::chrono::steady_clock::duration placing{};
  std::chrono::steady_clock::duration printing{};
  for (auto _ : state) {
    labels.InitDeclutterGrid(surface);
    const auto start = std::chrono::steady_clock::now();
    for (int i = 0; i < count; ++i) {
      const SurfacePoint place = placeOf(i);
      benchmark::DoNotOptimize(labels.PlaceLabel(place.x, place.y, "EDDF", static_cast<LabelKind>(i % 6)));
    }
    const auto middle = std::chrono::steady_clock::now();
    for (int i = 0; i < count; ++i) {
      const SurfacePoint place = placeOf(i);
      surface.CurrentX = place.x;
      surface.CurrentY = place.y;
      surface.Print("EDDF");
    }
    placing += middle - start;
    printing += std::chrono::steady_clock::now() - middle;
  }
  state.SetItemsProcessed(state.iterations() * count);
  state.counters["ratio"] = Seconds(placing) / Seconds(printing);
}

const int registered = [] {
  for (const View& view : views)
    benchmark::RegisterBenchmark((std::string("DrawMap/") + view.name).c_str(), DrawAt, view.lat, view.lon,
                                 view.row)
        ->Unit(benchmark::kMillisecond);
  return 0;
}();

BENCHMARK(LonToXPerPoint)->Unit(benchmark::kMicrosecond);
BENCHMARK(PlaceLabelPerLabel)->Unit(benchmark::kMicrosecond);

}  // namespace
