#include "map/aircraft_symbol.h"

#include <cmath>

#include "map/style_keeper.h"

namespace {

constexpr std::int32_t firstFlightLevel = 10000;  // feet
constexpr double noseLength = 600;
constexpr float tagDistance = 220;

struct BodyPoint {
  double ahead;
  double right;
};

// Nose, right half to the tail, left half back to the nose; the tail ends 200
// behind the aircraft's place.
constexpr std::array<BodyPoint, 8> rightHalf = {
    {{noseLength, 0}, {540, 30}, {340, 38}, {60, 330}, {-10, 330}, {110, 36}, {-120, 26}, {-200, 130}}};

SurfacePoint At(SurfacePoint centre, double heading, double factor, BodyPoint point) {
  const double sine = std::sin(DegToRad(heading)) * factor;
  const double cosine = std::cos(DegToRad(heading)) * factor;
  return {static_cast<float>(centre.x + point.ahead * sine + point.right * cosine),
          static_cast<float>(centre.y - point.ahead * cosine + point.right * sine)};
}

}  // namespace

double AircraftSizeFactor(int acSize) {
  if (acSize == 1) return 0.7;
  return acSize == 3 ? 1.0 : 0.8;
}

std::string AltitudeTag(std::int32_t altFt) {
  return altFt < firstFlightLevel ? std::to_string(altFt) : "FL" + std::to_string(altFt / 100);
}

AircraftSymbol SetPlane(const MapView& view, Position position, float trueHeading, std::int32_t altFt,
                        int acSize) {
  const Projection projection = view.CurrentProjection();
  const double factor = AircraftSizeFactor(acSize);
  AircraftSymbol symbol;
  symbol.centre = {static_cast<float>(projection.LonToX(position.lon)),
                   static_cast<float>(projection.LatToY(position.lat))};
  symbol.nose = At(symbol.centre, trueHeading, factor, {noseLength, 0});
  symbol.vectorEnd = At(symbol.centre, trueHeading, factor, {3 * noseLength, 0});
  for (std::size_t i = 0; i < rightHalf.size(); ++i) {
    const BodyPoint point = rightHalf[i];
    symbol.outline[i] = At(symbol.centre, trueHeading, factor, point);
    if (i > 0) {
      symbol.outline[symbol.outline.size() - i] =
          At(symbol.centre, trueHeading, factor, {point.ahead, -point.right});
    }
  }
  symbol.tag = AltitudeTag(altFt);
  return symbol;
}

void DrawAircraft(const AircraftSymbol& symbol, std::int32_t color, DrawSurface& surface) {
  const StyleKeeper keeper(surface);
  surface.ResetStyle();
  surface.DrawWidth = 1.3F;
  surface.Line(symbol.centre.x, symbol.centre.y, symbol.vectorEnd.x, symbol.vectorEnd.y, color);
  surface.Polygon(symbol.outline, color);
  surface.ForeColor = color;
  surface.TextHalo = true;
  surface.CurrentX = symbol.centre.x + tagDistance;
  surface.CurrentY = symbol.centre.y + tagDistance;
  surface.Print(symbol.tag);
}
