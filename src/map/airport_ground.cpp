#include "map/airport_ground.h"

#include <algorithm>
#include <cmath>

#include "base/numbers.h"
#include "map/symbol_label.h"

namespace {

constexpr double metresPerDegree = 111130.556;
constexpr double drawnRunwayWidth = 250 * metresPerFoot;
constexpr std::int16_t runwayRange = 100;
constexpr std::int16_t designatorRange = 10;
constexpr std::int16_t parkingRange = 10;
constexpr double designatorDistance = 90;  // units beyond the runway's end
constexpr std::int32_t largeParkingType = 10;

void PrintCentred(DrawSurface& surface, float x, float y, const std::string& text) {
  surface.CurrentX = x - surface.TextWidth(text) / 2;
  surface.CurrentY = y - surface.TextHeight(text) / 2;
  surface.Print(text);
}

// Prints both idents beyond their runway ends, each where a landing on it begins.
void PrintDesignators(const MapPaint& paint, const clsNavaid& symbol, const RunwayRec& runway) {
  const std::string ident = GetRwyName(runway.strRwyID.View());
  const double along = symbol.sngLength / 2 + designatorDistance;
  const auto east = static_cast<float>(along * std::sin(DegToRad(runway.sngHeading)));
  const auto north = static_cast<float>(along * std::cos(DegToRad(runway.sngHeading)));
  PrintCentred(paint.surface, symbol.sngCenterX - east, symbol.sngCenterY + north, ident);
  PrintCentred(paint.surface, symbol.sngCenterX + east, symbol.sngCenterY - north,
               ReciprocalDesignator(ident));
}

void DrawRunways(const MapPaint& paint, const AirportRec& airport) {
  DrawSurface& surface = paint.surface;
  surface.DrawWidth = 1;
  surface.FillColor = paint.colors.RWY;
  surface.ForeColor = paint.colors.RWYID;
  surface.FontSize = LabelPoints(paint.settings, 8);
  surface.TextHalo = true;
  clsNavaid& symbol = paint.navaid;
  symbol.lngColor = paint.colors.TAXI;
  const double unitsPerMetre = paint.view.MapScale / metresPerDegree;
  for (const RunwayRec& runway : paint.database.Runways(airport)) {
    symbol.sngCenterX = static_cast<float>(paint.projection.LonToX(runway.sngLon));
    symbol.sngCenterY = static_cast<float>(paint.projection.LatToY(runway.sngLat));
    symbol.sngCourse = runway.sngHeading;
    symbol.sngLength = static_cast<float>(runway.intLength * metresPerFoot * unitsPerMetre);
    // A pad is no wider than long.
    const double width = std::min<double>(drawnRunwayWidth * unitsPerMetre, symbol.sngLength);
    symbol.intWidth = static_cast<std::int16_t>(RoundToEven(width));
    symbol.DrawAsRwy();
    const bool hasEnds = runway.strRwyID.View() != "00H" && runway.strRwyID.View() != "H";
    if (hasEnds && paint.RangeNM() <= designatorRange) PrintDesignators(paint, symbol, runway);
  }
}

void DrawParkings(const MapPaint& paint, const AirportRec& airport) {
  DrawSurface& surface = paint.surface;
  surface.DrawWidth = 1;
  surface.FillStyle = FillStyleKind::solid;
  surface.FillColor = paint.colors.PARKING;
  const double range = paint.RangeNM();
  for (const ParkingRec& parking : paint.database.Parkings(airport)) {
    const double size = parking.lngType == largeParkingType ? 200 : 150;
    surface.Circle(static_cast<float>(paint.projection.LonToX(parking.sngLon)),
                   static_cast<float>(paint.projection.LatToY(parking.sngLat)),
                   static_cast<float>(RoundToEven(size / range)), paint.colors.PARKING);
  }
  surface.FillStyle = FillStyleKind::transparent;
}

}  // namespace

void DrawAirportGround(const MapPaint& paint, const AirportRec& airport) {
  if (paint.RangeNM() > runwayRange) return;
  DrawRunways(paint, airport);
  if (paint.RangeNM() <= parkingRange) DrawParkings(paint, airport);
}
