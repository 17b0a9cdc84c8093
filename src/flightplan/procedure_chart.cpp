#include "flightplan/procedure_chart.h"

#include <algorithm>
#include <cmath>

#include "base/code_page.h"
#include "base/numbers.h"
#include "flightplan/procedure_layer.h"
#include "map/geo_line.h"
#include "map/symbol_label.h"

namespace {

constexpr double fitMargin = 1.22;
constexpr double leastFitNM = 12;     // of the page's shorter side
constexpr std::size_t mostNames = 3;  // below one another at one end
constexpr float nameGap = 130;        // units between an end and its names
constexpr float restingOpacity = 0.5F;

const AirportRec& RowOf(const NavDatabase& database, std::int32_t airport) {
  return database.airports.at(static_cast<std::size_t>(airport));
}

bool IsHelipad(const RunwayRec& runway) {
  return runway.strRwyID.View().starts_with("00");
}

void AddChoice(const FixedText<5>& id, const RunwayRec& runway, std::vector<RunwayChoice>& choices) {
  if (!id.Empty()) choices.push_back({CodePageToUtf8(id.View()), runway.intLength});
}

// Where a procedure's name stands: the end that is not the airport's.
std::optional<Position> OuterEnd(const ProcedurePath& path, ProcedureKind kind) {
  if (path.marks.empty()) return path.legs.empty() ? std::nullopt : std::optional(path.legs.back().to);
  return kind == ProcedureKind::sid ? path.marks.back().place : path.marks.front().place;
}

}  // namespace

std::string RunwayChoice::ListText() const {
  return GetRwyName(id) + "  (" + FormatPicture(lengthFeet, "00000") + "ft)";
}

std::vector<RunwayChoice> RunwayChoices(const NavDatabase& database, std::int32_t airport) {
  std::vector<RunwayChoice> choices;
  for (const RunwayRec& runway : database.Runways(RowOf(database, airport))) {
    if (IsHelipad(runway)) continue;
    AddChoice(runway.strRwyID, runway, choices);
    AddChoice(runway.strRwyIDRecip, runway, choices);
  }
  return choices;
}

bool IsForRunway(const SidStarEntry& entry, std::string_view runway) {
  return entry.AnyRunway() || SameRunway(entry.Runway.View(), runway);
}

void PutRunwayFirst(std::vector<SidStarEntry>& entries, std::string_view runway) {
  if (runway.empty()) return;
  std::stable_partition(entries.begin(), entries.end(),
                        [&](const SidStarEntry& entry) { return IsForRunway(entry, runway); });
}

std::optional<LandingRunway> LandingOn(const NavDatabase& database, std::int32_t airport,
                                       std::string_view runway) {
  const auto end = RunwayEnd(database, airport, runway);
  if (!end) return std::nullopt;
  LandingRunway landing;
  landing.id = GetRwyName(runway);
  landing.magneticHeading =
      end->heading - database.magneticVariation.MagVarLookup(end->threshold.lat, end->threshold.lon);
  for (const RunwayRec& row : database.Runways(RowOf(database, airport))) {
    if (SameRunway(row.strRwyID.View(), runway)) landing.hasIls = !row.strIlsCode.Empty();
    if (SameRunway(row.strRwyIDRecip.View(), runway)) landing.hasIls = !row.strIlsCodeRecip.Empty();
  }
  return landing;
}

ProcedureChart::ProcedureChart(const NavDatabase& database, ProcedureKind kind, std::int32_t airport,
                               std::vector<SidStarEntry> entries)
    : database(database), kind(kind), airport(airport), entries(std::move(entries)) {}

std::string ProcedureChart::AirportCode() const {
  return CodePageToUtf8(RowOf(database, airport).strCode.View());
}

void ProcedureChart::ShowRunway(const std::string& id) {
  runway = id;
  picked = -1;
  shown.clear();
  paths.clear();
  const auto start = kind == ProcedureKind::sid ? RunwayEnd(database, airport, id) : std::nullopt;
  for (const SidStarEntry& entry : entries) {
    if (!IsForRunway(entry, id)) continue;
    shown.push_back(entry);
    paths.push_back(PathOf(entry.Steps, start, database.magneticVariation));
  }
}

void ProcedureChart::Pick(int index) {
  picked = index >= 0 && static_cast<std::size_t>(index) < shown.size() ? index : -1;
}

std::string ProcedureChart::Heading() const {
  return (kind == ProcedureKind::sid ? "Departure for " : "Arrival for ") + AirportCode() +
         (runway.empty() ? "" : " Rwy " + GetRwyName(runway));
}

std::string ProcedureChart::Text() const {
  if (picked < 0) return {};
  const SidStarEntry& entry = shown[static_cast<std::size_t>(picked)];
  return kind == ProcedureKind::sid ? DepartureText(entry, database)
                                    : ArrivalText(entry, LandingOn(database, airport, runway));
}

void ProcedureChart::FitView(MapView& view, SurfacePoint page) const {
  const AirportRec& home = RowOf(database, airport);
  double south = home.sngLat, north = home.sngLat, west = 0, east = 0;  // west, east: of the airport
  const auto include = [&](Position place) {
    const double lon = std::remainder(static_cast<double>(place.lon) - home.sngLon, 360.0);
    south = std::min<double>(south, place.lat);
    north = std::max<double>(north, place.lat);
    west = std::min(west, lon);
    east = std::max(east, lon);
  };
  for (const ProcedurePath& path : paths) {
    for (const ProcedureLeg& leg : path.legs) {
      include(leg.from);
      include(leg.to);
    }
    for (const ProcedureMark& mark : path.marks)
      include(mark.place);
  }
  view.MapCenterLat = static_cast<float>((south + north) / 2);
  view.MapCenterLon = static_cast<float>(std::remainder(home.sngLon + (west + east) / 2, 360.0));
  const double cosine = std::max(0.05, std::cos(DegToRad(view.MapCenterLat)));
  const double unitsHigh = page.y / (fitMargin * std::max(north - south, leastFitNM / 60));
  const double unitsWide = page.x / (fitMargin * std::max((east - west) * cosine, leastFitNM / 60));
  const double scale =
      std::clamp<double>(std::min(unitsHigh, unitsWide), ZoomTable.back().scale, ZoomTable[2].scale);
  view.MapScale = RoundToEven(scale);
  view.ZoomIndex = NearestZoomRow(RoundToEven(mapScaleHeight / scale * 60), defaultZoomIndex);
  view.UpdateVisibilityBox();
}

void ProcedureChart::DrawRunways(DrawSurface& surface, const Projection& projection,
                                 const ColorSettings& colors) const {
  surface.DrawWidth = 3;
  for (const RunwayRec& runway : database.Runways(RowOf(database, airport))) {
    if (IsHelipad(runway)) continue;
    const auto one = RunwayEnd(database, airport, runway.strRwyID.View());
    const auto other = RunwayEnd(database, airport, runway.strRwyIDRecip.View());
    if (!one || !other) continue;
    std::vector<SurfaceLine> lines;
    AppendMapLine(projection, one->threshold, other->threshold, lines);
    surface.Lines(lines, colors.TAXINAME);
  }
}

// Procedures that end at the same fix share its place.
void ProcedureChart::DrawNames(DrawSurface& surface, const Projection& projection,
                               const ColorSettings& colors) const {
  struct End {
    Position place;
    std::vector<std::string> names;
    bool holdsPicked = false;
  };
  std::vector<End> ends;
  for (std::size_t i = 0; i < shown.size(); ++i) {
    const auto place = OuterEnd(paths[i], kind);
    if (!place) continue;
    auto end = std::find_if(ends.begin(), ends.end(), [&](const End& e) { return e.place == *place; });
    if (end == ends.end()) {
      ends.push_back({*place, {}, false});
      end = ends.end() - 1;
    }
    const bool own = static_cast<int>(i) == picked;
    end->holdsPicked = end->holdsPicked || own;
    end->names.insert(own ? end->names.begin() : end->names.end(), CodePageToUtf8(shown[i].Name.View()));
  }
  surface.FontSize = 8;
  surface.FontBold = true;
  for (const End& end : ends) {
    if (picked >= 0 && !end.holdsPicked) continue;
    std::string label;
    const std::size_t most = picked >= 0 ? 1 : mostNames;
    for (std::size_t i = 0; i < std::min(end.names.size(), most); ++i)
      AppendLine(label, end.names[i]);
    if (picked < 0 && end.names.size() > most)
      AppendLine(label, "+" + std::to_string(end.names.size() - most));
    surface.ForeColor = colors.TAXINAME;
    surface.Opacity = 1;
    const std::string first(FirstLine(label));
    PrintLabelLines(surface,
                    {static_cast<float>(projection.LonToX(end.place.lon)) - surface.TextWidth(first) / 2,
                     static_cast<float>(projection.LatToY(end.place.lat)) + nameGap},
                    label);
  }
}

void ProcedureChart::Draw(DrawSurface& surface, const Projection& projection,
                          const ColorSettings& colors) const {
  const auto draw = [&](std::size_t i, bool strong) {
    PathStyle style;
    style.color = colors.ROUTE;
    style.textColor = colors.TAXINAME;
    style.width = strong ? 2.8F : 1.4F;
    style.opacity = strong ? 1 : restingOpacity;
    style.markSize = strong ? 46.0F : 30.0F;
    style.fontPoints = strong ? 8.0F : 0.0F;
    DrawProcedurePath(surface, projection, paths[i], style);
  };
  for (std::size_t i = 0; i < paths.size(); ++i)
    if (static_cast<int>(i) != picked) draw(i, false);
  surface.Opacity = 1;
  DrawRunways(surface, projection, colors);
  if (picked >= 0) draw(static_cast<std::size_t>(picked), true);
  DrawNames(surface, projection, colors);
  surface.ResetStyle();
}

void ProcedureChart::DrawWithMap(DrawSurface& surface, MapView& view, const Settings& settings) const {
  std::vector<MapLayer> layers;
  for (MapLayer& layer : DatabaseLayers())
    if (layer.place == LayerPlace::worldShapes) layers.push_back(std::move(layer));
  layers.push_back({LayerPlace::procedures, "chart", [](const MapPaint&) { return true; },
                    [this](const MapPaint& paint) {
                      paint.surface.TextHalo = true;
                      Draw(paint.surface, paint.projection, paint.colors);
                    }});
  modDeclutter labels;
  const MapSwitches switches;
  DrawMap({view, labels, database, settings, switches, {}}, layers, surface);
}
