#include "map/airport_layer.h"

#include <algorithm>
#include <array>

#include "base/code_page.h"
#include "base/numbers.h"
#include "map/airport_ground.h"
#include "map/ils_layer.h"
#include "map/range_steps.h"
#include "map/rows_in_view.h"
#include "map/symbol_label.h"

namespace {

constexpr std::int16_t labelRange = 200;
constexpr std::int16_t nameRange = 150;
constexpr std::int16_t symbolRange = 900;

enum class AirportSize : std::size_t { strip, field, large };
constexpr std::array<std::int16_t, 3> leastRunwayFeet = {0, 3900, 7800};

struct SizeLook {
  std::int16_t nearRadius;  // circle, units
  float labelPoints;
  float farRadius;  // disc beyond labelRange, units
  float farOpacity;
  float pointWidth;  // beyond symbolRange, pixels
  float pointOpacity;
};
constexpr std::array<SizeLook, 3> looks = {
    {{26, 7.5F, 7, 0.4F, 1.0F, 0.35F}, {32, 8, 13, 0.7F, 1.2F, 0.5F}, {42, 9.5F, 21, 1.0F, 2.0F, 0.9F}}};
// Of circle and label; the small ones step back first.
constexpr std::array<RangeStep, 3> stripOpacity = {{{50, 0.9F}, {100, 0.7F}, {200, 0.5F}}};
constexpr std::array<RangeStep, 3> fieldOpacity = {{{50, 1}, {100, 0.9F}, {200, 0.75F}}};

struct ShownAirport {
  std::int32_t row;
  const AirportRec* airport;
  SurfacePoint place;
  AirportSize size;
};

AirportSize SizeOf(const NavDatabase& database, const AirportRec& airport) {
  std::int16_t longest = 0;
  for (const RunwayRec& runway : database.Runways(airport))
    longest = std::max(longest, runway.intLength);
  if (longest >= leastRunwayFeet[2]) return AirportSize::large;
  return longest >= leastRunwayFeet[1] ? AirportSize::field : AirportSize::strip;
}

std::vector<ShownAirport> ShownAirports(const MapPaint& paint) {
  std::vector<ShownAirport> shown;
  for (const std::int32_t row :
       RowsInView(paint.view, paint.database.airportsByPlace, paint.database.airports, 0)) {
    const AirportRec& airport = paint.database.airports[static_cast<std::size_t>(row)];
    shown.push_back({row,
                     &airport,
                     {static_cast<float>(paint.projection.LonToX(airport.sngLon)),
                      static_cast<float>(paint.projection.LatToY(airport.sngLat))},
                     SizeOf(paint.database, airport)});
  }
  return shown;
}

float NearOpacity(AirportSize size, std::int16_t rangeNM) {
  if (size == AirportSize::large) return 1;
  return ValueAt(size == AirportSize::field ? fieldOpacity : stripOpacity, rangeNM);
}

void DrawNear(const MapPaint& paint, const ShownAirport& one) {
  DrawIlsOf(paint, *one.airport);
  const SizeLook& look = looks[static_cast<std::size_t>(one.size)];
  const bool selected = paint.selection.Holds(SelectedObject::airport, one.row);
  clsNavaid& symbol = paint.navaid;
  DrawSurface& surface = paint.surface;
  symbol.sngCenterX = one.place.x;
  symbol.sngCenterY = one.place.y;
  symbol.intRadius = look.nearRadius;
  symbol.lngColor = selected ? paint.colors.HILITE : paint.colors.AP;
  symbol.strName = AirportLabel(*one.airport, paint.switches, paint.RangeNM());
  symbol.sngFontSize = LabelPoints(paint.settings, look.labelPoints);
  surface.ForeColor = symbol.lngColor;
  surface.FontBold = one.size == AirportSize::large;
  surface.DrawWidth = one.size == AirportSize::strip ? 1.2F : 1.5F;
  surface.Opacity = selected ? 1 : NearOpacity(one.size, paint.RangeNM());
  symbol.DrawAsAirport();
}

// What DrawAsAirportCircle draws, many at once: beyond the labels the large
// airports lie above the small ones.
void DrawFar(const MapPaint& paint, const std::vector<ShownAirport>& shown) {
  std::array<std::vector<SurfacePoint>, 3> places;
  const SurfacePoint* selected = nullptr;
  for (const ShownAirport& one : shown) {
    places[static_cast<std::size_t>(one.size)].push_back(one.place);
    if (paint.selection.Holds(SelectedObject::airport, one.row)) selected = &one.place;
  }
  DrawSurface& surface = paint.surface;
  const bool points = paint.RangeNM() > symbolRange;
  surface.FillStyle = FillStyleKind::solid;
  surface.FillColor = paint.colors.AP;
  for (std::size_t size = 0; size < places.size(); ++size) {
    const SizeLook& look = looks[size];
    surface.DrawWidth = points ? look.pointWidth : 1;
    surface.Opacity = points ? look.pointOpacity : look.farOpacity;
    if (points) {
      surface.Points(places[size], paint.colors.AP);
    } else {
      surface.Circles(places[size], look.farRadius, paint.colors.AP);
    }
  }
  if (selected == nullptr) return;
  clsNavaid& symbol = paint.navaid;
  symbol.sngCenterX = selected->x;
  symbol.sngCenterY = selected->y;
  symbol.intRadius = looks.front().nearRadius;
  symbol.intFillStyle = 0;
  symbol.lngColor = paint.colors.HILITE;
  surface.FillColor = paint.colors.HILITE;
  surface.Opacity = 1;
  symbol.DrawAsAirportCircle();
}

}  // namespace

std::string AirportLabel(const AirportRec& airport, const MapSwitches& switches, std::int16_t rangeNM) {
  std::string label;
  if (switches.btnIcao) AppendLine(label, CodePageToUtf8(airport.strCode.View()));
  const bool named = switches.btnName && (!switches.btnIcao || rangeNM <= nameRange);
  if (named) AppendLine(label, CodePageToUtf8(airport.strName.View()));
  return label;
}

void DrawAirports(const MapPaint& paint) {
  const std::vector<ShownAirport> shown = ShownAirports(paint);
  if (paint.RangeNM() > labelRange) return DrawFar(paint, shown);
  for (const ShownAirport& one : shown)
    DrawAirportGround(paint, *one.airport);
  paint.surface.ResetStyle();
  paint.surface.TextHalo = true;
  for (const ShownAirport& one : shown)
    DrawNear(paint, one);
}
