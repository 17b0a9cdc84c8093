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
#include "cli/plan_output.h"
#include "flightplan/plan_layers.h"
#include "map/draw_map.h"
#include "settings/settings_file.h"
#include "windows/qt_draw_surface.h"

namespace {

constexpr int smallestSide = 16;  // pixels
constexpr int largestSide = 16384;

int WrongUsage(const std::string& reason) {
  std::fprintf(
      stderr,
      "velmora-cli: %s\nUsage: velmora-cli draw [--center LAT,LON] [--range NM | --zoom INDEX] [--size WxH] "
      "[--layers A,B,C] [--plan FILE.pln] --out FILE.png\n",
      reason.c_str());
  return exitWrongUsage;
}

template <class Number>
std::optional<Number> NumberIn(std::string_view text) {
  Number value{};
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
  if (error != std::errc() || end != text.data() + text.size()) return std::nullopt;
  return value;
}

// "50.1,8.6" into the request.
void TakeCenter(const std::string& text, DrawRequest& request) {
  const std::size_t comma = std::min(text.find(','), text.size());
  const auto lat = NumberIn<double>(std::string_view(text).substr(0, comma));
  const auto lon = NumberIn<double>(std::string_view(text).substr(std::min(comma + 1, text.size())));
  if (!lat || !lon || !(std::abs(*lat) <= 90) || !(std::abs(*lon) <= 180))
    throw CLI::ValidationError("--center", "expects LAT,LON in degrees, such as 50.03,8.57");
  request.centerLat = *lat;
  request.centerLon = *lon;
  request.centerGiven = true;
}

// "1600x1000" into the request.
void TakeSize(const std::string& text, DrawRequest& request) {
  const std::size_t cross = std::min(text.find_first_of("xX"), text.size());
  const auto width = NumberIn<int>(std::string_view(text).substr(0, cross));
  const auto height = NumberIn<int>(std::string_view(text).substr(std::min(cross + 1, text.size())));
  const auto usable = [](std::optional<int> side) {
    return side && *side >= smallestSide && *side <= largestSide;
  };
  if (!usable(width) || !usable(height))
    throw CLI::ValidationError("--size", "expects WIDTHxHEIGHT in pixels, 16 to 16384 each");
  request.width = *width;
  request.height = *height;
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

// The names that a request may use.
std::string LayerNames() {
  std::string names;
  for (const MapLayer& layer : DatabaseLayers())
    names.append(layer.name).append(", ");
  return names + "plan";
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

// The plan that is asked for; false after telling why it cannot be shown.
bool ReadPlanFor(const CliOptions& options, const DrawRequest& request, const Settings& settings,
                 const NavDatabase& database, FlightPlan& plan) {
  if (request.planFile.empty()) return true;
  const auto aircraft = ChooseAircraft(options, settings, std::nullopt);
  if (!aircraft) return false;
  CliMessages messages;
  return OpenPlan(request.planFile, plan, {database, *aircraft, messages, settings.FAFDIST});
}

// What the picture shows of the page.
VisiblePage VisibleOf(const DrawRequest& request) {
  const PagePlacement placement(request.width, request.height);
  const SurfacePoint corner = placement.ToUnits({0, 0});
  const SurfacePoint opposite =
      placement.ToUnits({static_cast<double>(request.width), static_cast<double>(request.height)});
  return {opposite.x - corner.x, opposite.y - corner.y};
}

}  // namespace

void AddDrawCommand(CLI::App& app, DrawRequest& request) {
  CLI::App* draw = app.add_subcommand("draw", "Draw the map as a picture");
  draw->add_option_function<std::string>(
          "--center", [&request](const std::string& text) { TakeCenter(text, request); }, "Middle of the map")
      ->type_name("LAT,LON");
  CLI::Option* range =
      draw->add_option("--range", request.rangeNM, "Height of the map, a row of the zoom table");
  range->type_name("NM");
  draw->add_option("--zoom", request.zoomIndex, "Row of the zoom table")->type_name("INDEX")->excludes(range);
  draw->add_option_function<std::string>(
          "--size", [&request](const std::string& text) { TakeSize(text, request); },
          "Pixels, 1600x1000 if not given")
      ->type_name("WxH");
  draw->add_option("--layers", request.layers, "Of " + LayerNames() + "; as by default if not given")
      ->delimiter(',')
      ->type_name("A,B,C");
  draw->add_option("--plan", request.planFile, "A saved plan")->type_name("FILE.pln");
  draw->add_option("--out", request.out, "The picture")->type_name("FILE.png")->required();
}

int RunDraw(const CliOptions& options, const DrawRequest& request) {
  const Settings settings = ReadIni(options.home).settings;
  const int row = RowOf(request, settings.SCALE);
  if (row < 0) return WrongUsage("no row of the zoom table has that range or index");
  FlightPlan plan;
  std::string unknown;
  const std::vector<MapLayer> layers = ChosenLayers(request, plan, unknown);
  if (!unknown.empty()) return WrongUsage("unknown layer \"" + unknown + "\"");
  const std::optional<WorldLoad> world = OpenWorld(options);
  if (!world || !ReadPlanFor(options, request, settings, world->database, plan)) return exitNotDone;

  qputenv("QT_QPA_PLATFORM", "offscreen");
  int argc = 1;
  char name[] = "velmora-cli";
  char* argv[] = {name, nullptr};
  const QGuiApplication application(argc, argv);
  MapView view =
      MapView::At(static_cast<float>(request.centerLat), static_cast<float>(request.centerLon), row);
  if (!request.centerGiven && !request.rangeNM && !request.zoomIndex)
    ShowWholePlan(plan, view, VisibleOf(request));
  view.MapMagVar = world->database.magneticVariation.MagVarLookup(view.MapCenterLat, view.MapCenterLon);
  modDeclutter labels;
  MapSwitches switches;
  for (const MapLayer& layer : layers)
    for (bool MapSwitches::*flag :
         request.layers.empty() ? std::vector<bool MapSwitches::*>() : layer.switches)
      switches.*flag = true;
  QImage image(request.width, request.height, QImage::Format_RGB32);
  const auto start = std::chrono::steady_clock::now();
  {
    QtDrawSurface surface(image);
    DrawMap({view, labels, world->database, settings, switches, {}}, layers, surface);
  }
  const std::chrono::duration<double, std::milli> drawTime = std::chrono::steady_clock::now() - start;
  std::string reason;
  if (!WritePng(image, request.out, reason)) return Fail(reason);
  PrintResult(options, request, view, drawTime.count());
  return exitDone;
}
