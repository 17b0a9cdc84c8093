#include "map/airport_layer.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "base/code_page.h"
#include "base/numbers.h"

namespace {

constexpr double metresPerDegree = 111130.556;
constexpr double drawnRunwayWidth = 250;  // metres; the true width would not be seen
constexpr std::int16_t runwayRange = 100;
constexpr std::int16_t designatorRange = 10;
constexpr std::int16_t parkingRange = 10;
constexpr std::int16_t labelRange = 200;
constexpr std::int16_t nameRange = 150;
constexpr std::int16_t symbolRange = 900;
constexpr std::int32_t smallParkingType = 10;

// Airports look as important as their longest runway is long.
enum class AirportSize : std::size_t { strip, field, large };
constexpr std::array<std::int16_t, 3> leastRunwayFeet = {0, 3900, 7800};

struct SizeLook {
  float nearRadius;  // circle, units
  float farRadius;   // disc beyond labelRange, units
  float farOpacity;
  float pointWidth;  // beyond symbolRange, pixels
  float pointOpacity;
};
constexpr std::array<SizeLook, 3> looks = {
    {{26, 7, 0.45F, 1.0F, 0.4F}, {32, 13, 0.75F, 1.2F, 0.55F}, {42, 21, 1.0F, 2.0F, 0.9F}}};

struct ShownAirport {
  const AirportRec* airport;
  float x;
  float y;
  std::int16_t longestFeet;

  AirportSize Size() const {
    if (longestFeet >= leastRunwayFeet[2]) return AirportSize::large;
    return longestFeet >= leastRunwayFeet[1] ? AirportSize::field : AirportSize::strip;
  }
};

std::vector<ShownAirport> ShownAirports(const MapPaint& paint) {
  std::vector<ShownAirport> shown;
  for (const std::int32_t row : paint.database.airportsByPlace.Near(paint.view.SearchBox(0))) {
    const AirportRec& airport = paint.database.airports[static_cast<std::size_t>(row)];
    if (!paint.view.InView(airport.sngLat, airport.sngLon, 0)) continue;
    std::int16_t longest = 0;
    for (const RunwayRec& runway : paint.database.Runways(airport))
      longest = std::max(longest, runway.intLength);
    shown.push_back({&airport, static_cast<float>(paint.projection.LonToX(airport.sngLon)),
                     static_cast<float>(paint.projection.LatToY(airport.sngLat)), longest});
  }
  return shown;
}

void PrintCentred(DrawSurface& surface, float x, float y, const std::string& text) {
  surface.CurrentX = x - surface.TextWidth(text) / 2;
  surface.CurrentY = y - surface.TextHeight(text) / 2;
  surface.Print(text);
}

// Prints both idents beyond their runway ends, each where a landing on it begins.
void PrintDesignators(const MapPaint& paint, const clsNavaid& symbol, const RunwayRec& runway) {
  const std::string ident = GetRwyName(runway.strRwyID.View());
  const double along = symbol.sngLength / 2 + 90;
  const auto east = static_cast<float>(along * std::sin(DegToRad(runway.sngHeading)));
  const auto north = static_cast<float>(along * std::cos(DegToRad(runway.sngHeading)));
  paint.surface.ForeColor = paint.colors.RWYID;
  paint.surface.FontSize = 8;
  paint.surface.TextHalo = true;
  PrintCentred(paint.surface, symbol.sngCenterX - east, symbol.sngCenterY + north, ident);
  PrintCentred(paint.surface, symbol.sngCenterX + east, symbol.sngCenterY - north,
               ReciprocalDesignator(ident));
}

void DrawRunways(const MapPaint& paint, const AirportRec& airport) {
  clsNavaid symbol;
  symbol.objTarget = &paint.surface;
  symbol.lngColor = paint.colors.TAXI;
  paint.surface.DrawWidth = 1;
  paint.surface.FillColor = paint.colors.RWY;
  const double unitsPerMetre = paint.view.MapScale / metresPerDegree;
  for (const RunwayRec& runway : paint.database.Runways(airport)) {
    symbol.sngCenterX = static_cast<float>(paint.projection.LonToX(runway.sngLon));
    symbol.sngCenterY = static_cast<float>(paint.projection.LatToY(runway.sngLat));
    symbol.sngCourse = runway.sngHeading;
    symbol.sngLength = static_cast<float>(runway.intLength * metresPerFoot * unitsPerMetre);
    // A pad or a short strip is no wider than long.
    const double width = std::min<double>(drawnRunwayWidth * unitsPerMetre, symbol.sngLength);
    symbol.intWidth = static_cast<std::int16_t>(RoundToEven(width));
    symbol.DrawAsRwy();
    const bool hasEnds = runway.strRwyID.View() != "00H" && runway.strRwyID.View() != "H";
    if (hasEnds && paint.view.RangeNM() <= designatorRange) PrintDesignators(paint, symbol, runway);
  }
}

void DrawParkings(const MapPaint& paint, const AirportRec& airport) {
  paint.surface.DrawWidth = 1;
  paint.surface.FillStyle = FillStyleKind::solid;
  paint.surface.FillColor = paint.colors.PARKING;
  const int range = paint.view.RangeNM();
  for (const ParkingRec& parking : paint.database.Parkings(airport)) {
    const int size = parking.lngType == smallParkingType ? 200 : 150;
    const auto radius = static_cast<float>(RoundToEven(static_cast<double>(size) / range));
    const auto x = static_cast<float>(paint.projection.LonToX(parking.sngLon));
    const auto y = static_cast<float>(paint.projection.LatToY(parking.sngLat));
    paint.surface.Circle(x, y, radius, paint.colors.PARKING);
  }
  paint.surface.FillStyle = FillStyleKind::transparent;
}

void DrawGround(const MapPaint& paint, const std::vector<ShownAirport>& shown) {
  if (paint.view.RangeNM() > runwayRange) return;
  for (const ShownAirport& one : shown)
    DrawRunways(paint, *one.airport);
  if (paint.view.RangeNM() > parkingRange) return;
  for (const ShownAirport& one : shown)
    DrawParkings(paint, *one.airport);
}

void DrawSymbols(const MapPaint& paint, const std::vector<ShownAirport>& shown) {
  std::array<std::vector<SurfacePoint>, 3> places;
  for (const ShownAirport& one : shown)
    places[static_cast<std::size_t>(one.Size())].push_back({one.x, one.y});
  DrawSurface& surface = paint.surface;
  const std::int32_t color = paint.colors.AP;
  for (std::size_t size = 0; size < places.size(); ++size) {
    const SizeLook& look = looks[size];
    surface.Opacity = 1;
    if (paint.view.RangeNM() <= labelRange) {
      surface.DrawWidth = 1.3F;
      surface.Circles(places[size], look.nearRadius, color);
    } else if (paint.view.RangeNM() <= symbolRange) {
      surface.DrawWidth = 1;
      surface.FillStyle = FillStyleKind::solid;
      surface.FillColor = color;
      surface.Opacity = look.farOpacity;
      surface.Circles(places[size], look.farRadius, color);
    } else {
      surface.DrawWidth = look.pointWidth;
      surface.Opacity = look.pointOpacity;
      surface.Points(places[size], color);
    }
  }
  surface.ResetStyle();
}

// The airports with the longest runways take their places first.
void PrintLabels(const MapPaint& paint, std::vector<ShownAirport> shown) {
  if (paint.view.RangeNM() > labelRange) return;
  std::stable_sort(shown.begin(), shown.end(), [](const ShownAirport& a, const ShownAirport& b) {
    return a.longestFeet > b.longestFeet;
  });
  DrawSurface& surface = paint.surface;
  surface.ForeColor = paint.colors.AP;
  surface.TextHalo = true;
  for (const ShownAirport& one : shown) {
    const AirportLabel label = LabelOf(*one.airport, paint.switches, paint.view.RangeNM());
    if (label.first.empty()) continue;
    const bool large = one.Size() == AirportSize::large;
    surface.FontBold = large;
    surface.FontSize = large ? 9.5F : 8;
    const float height = surface.TextHeight(label.first);
    const float left = one.x - surface.TextWidth(label.first) / 2;
    const auto place = paint.labels.PlaceLabel(left, one.y + 50, label.first, LabelKind::airport);
    surface.CurrentX = place.x;
    surface.CurrentY = place.y;
    surface.Print(label.first);
    if (label.second.empty()) continue;
    surface.FontBold = false;
    surface.FontSize = 8;
    surface.CurrentX = place.x + (one.x - left) - surface.TextWidth(label.second) / 2;
    surface.CurrentY = place.y + height;
    surface.Print(label.second);
  }
  surface.FontBold = false;
}

}  // namespace

AirportLabel LabelOf(const AirportRec& airport, const MapSwitches& switches, std::int16_t rangeNM) {
  const std::string name = CodePageToUtf8(airport.strName.View());
  if (!switches.btnIcao) return {switches.btnName ? name : std::string(), {}};
  return {CodePageToUtf8(airport.strCode.View()),
          switches.btnName && rangeNM <= nameRange ? name : std::string()};
}

void DrawAirports(const MapPaint& paint) {
  const std::vector<ShownAirport> shown = ShownAirports(paint);
  DrawGround(paint, shown);
  DrawSymbols(paint, shown);
  PrintLabels(paint, shown);
}
