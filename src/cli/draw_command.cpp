#include "cli/draw_command.h"

#include <QBuffer>
#include <QGuiApplication>
#include <QImage>
#include <algorithm>
#include <charconv>
#include <chrono>
#include <cmath>
#include <cstdio>

#include "base/files.h"
#include "base/numbers.h"
#include "flightplan/plan_layers.h"
#include "map/draw_map.h"
#include "settings/settings_file.h"
#include "windows/qt_draw_surface.h"

namespace {

constexpr int largestSide = 16384;  // pixels

int WrongUsage(const std::string& reason) {
  std::fprintf(stderr, "velmora-cli: %s\n", reason.c_str());
  return exitWrongUsage;
}

template <class Number>
std::optional<Number> WholeNumber(std::string_view text) {
  Number value{};
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
  if (error != std::errc() || end != text.data() + text.size()) return std::nullopt;
  return value;
}

// The row of the zoom table that is asked for; -1 if there is none such.
int RowOf(const DrawRequest& request, int settingsRow) {
  if (request.zoomIndex)
    return *request.zoomIndex >= 0 && *request.zoomIndex < static_cast<int>(ZoomTable.size())
               ? *request.zoomIndex
               : -1;
  if (!request.rangeNM) return settingsRow;
  const auto found = std::find_if(ZoomTable.begin(), ZoomTable.end(),
                                  [&](const ZoomRow& row) { return row.rangeNM == *request.rangeNM; });
  return found == ZoomTable.end() ? -1 : static_cast<int>(found - ZoomTable.begin());
}

// The layers that are asked for, in drawing order; the name of one that does not exist in unknown.
std::vector<MapLayer> ChosenLayers(const DrawRequest& request, const FlightPlan& plan, std::string& unknown) {
  std::vector<MapLayer> layers = DatabaseLayers();
  for (const MapLayer& layer : PlanLayers(plan))
    layers.push_back(layer);
  const auto named = [&](const std::string& name) {
    return [&name](const MapLayer& layer) { return layer.name == name; };
  };
  for (const std::string& name : request.layers)
    if (std::none_of(layers.begin(), layers.end(), named(name))) unknown = name;
  std::erase_if(layers, [&](const MapLayer& layer) {
    const auto& names = request.layers;
    return !names.empty() && std::find(names.begin(), names.end(), layer.name) == names.end();
  });
  return InDrawingOrder(std::move(layers));
}

bool WritePng(const QImage& image, const std::string& path, std::string& reason) {
  QByteArray bytes;
  QBuffer buffer(&bytes);
  buffer.open(QIODevice::WriteOnly);
  if (!image.save(&buffer, "PNG")) {
    reason = "the picture could not be encoded";
    return false;
  }
  return ReplaceFile(path, std::string_view(bytes.constData(), static_cast<std::size_t>(bytes.size())),
                     &reason);
}

void PrintResult(const CliOptions& options, const DrawRequest& request, const MapView& view, double drawMs) {
  if (options.json) {
    PrintJson({{"out", request.out},
               {"centerLat", JsonNumber(view.MapCenterLat)},
               {"centerLon", JsonNumber(view.MapCenterLon)},
               {"zoomIndex", view.ZoomIndex},
               {"rangeNM", view.RangeNM()},
               {"mapScale", view.MapScale},
               {"drawMs", std::round(drawMs * 1000) / 1000}});
    return;
  }
  std::printf("%s: %dx%d, centre %.4f, %.4f, %d NM, drawn in %.1f ms\n", request.out.c_str(), request.width,
              request.height, static_cast<double>(view.MapCenterLat), static_cast<double>(view.MapCenterLon),
              view.RangeNM(), drawMs);
}

}  // namespace

std::optional<CenterText> ParseCenter(const std::string& text) {
  const std::size_t comma = text.find(',');
  if (comma == std::string::npos) return std::nullopt;
  const auto lat = WholeNumber<double>(std::string_view(text).substr(0, comma));
  const auto lon = WholeNumber<double>(std::string_view(text).substr(comma + 1));
  if (!lat || !lon || !(std::abs(*lat) <= 90) || !(std::abs(*lon) <= 180)) return std::nullopt;
  return CenterText{*lat, *lon};
}

std::optional<SizeText> ParseSize(const std::string& text) {
  const std::size_t cross = text.find_first_of("xX");
  if (cross == std::string::npos) return std::nullopt;
  const auto width = WholeNumber<int>(std::string_view(text).substr(0, cross));
  const auto height = WholeNumber<int>(std::string_view(text).substr(cross + 1));
  const auto usable = [](std::optional<int> side) { return side && *side >= 16 && *side <= largestSide; };
  if (!usable(width) || !usable(height)) return std::nullopt;
  return SizeText{*width, *height};
}

int RunDraw(const CliOptions& options, const DrawRequest& request) {
  if (request.out.empty()) return WrongUsage("draw needs --out FILE.png");
  if (!request.planFile.empty()) return Fail("draw --plan: saved plans cannot be read yet");
  const Settings settings = ReadIni(options.home).settings;
  const int row = RowOf(request, settings.SCALE);
  if (row < 0) return WrongUsage("no row of the zoom table has that range or index");
  const FlightPlan plan;
  std::string unknown;
  const std::vector<MapLayer> layers = ChosenLayers(request, plan, unknown);
  if (!unknown.empty()) return WrongUsage("unknown layer \"" + unknown + "\"");
  const std::optional<WorldLoad> world = OpenWorld(options);
  if (!world) return exitNotDone;

  qputenv("QT_QPA_PLATFORM", "offscreen");
  int argc = 1;
  char name[] = "velmora-cli";
  char* argv[] = {name, nullptr};
  const QGuiApplication application(argc, argv);
  MapView view =
      MapView::At(static_cast<float>(request.centerLat), static_cast<float>(request.centerLon), row);
  QImage image(request.width, request.height, QImage::Format_RGB32);
  const auto start = std::chrono::steady_clock::now();
  {
    QtDrawSurface surface(image);
    DrawMap(view, world->database, settings.colors, MapSwitches(), layers, surface);
  }
  const std::chrono::duration<double, std::milli> drawTime = std::chrono::steady_clock::now() - start;
  std::string reason;
  if (!WritePng(image, request.out, reason)) return Fail(request.out + ": " + reason);
  PrintResult(options, request, view, drawTime.count());
  return exitDone;
}
