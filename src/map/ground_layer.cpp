#include "map/ground_layer.h"

#include <algorithm>
#include <cmath>

#include "base/code_page.h"
#include "base/numbers.h"
#include "map/geo_line.h"
#include "map/mixed_color.h"

namespace {

constexpr double metresPerDegree = 111130.556;
constexpr float clipMargin = 60;       // units beyond the page
constexpr double pavementPart = 0.24;  // of TAXI in LAND: pavement at night
constexpr float groundDetail = 0.5F;   // pixels between two points of an outline
constexpr float thinnestBand = 1.5F;   // pixels; narrower taxiways are their centrelines alone
constexpr std::string_view paintedLine =
    "LINE";  // strType: lies on a ground polygon, which shows its pavement
constexpr float centrelineOpacity = 0.3F;
constexpr float sameNameDistance = 900;  // units between two designators of one taxiway
constexpr float designatorRoom = 30;     // units around one
constexpr float designatorPoints = 7.5F;

// Flat where shapes overlap.
std::int32_t Pavement(const MapPaint& paint) {
  return Mixed(paint.colors.LAND, paint.colors.TAXI, pavementPart);
}

// A shape with so many rings is not worth looking for the nearest.
constexpr std::size_t mostRingsToSort = 1000;

using Ring = std::vector<Position>;

std::vector<Ring> RingsOf(std::span<const PolygonRec> rows) {
  std::vector<Ring> rings;
  for (const PolygonRec& row : rows) {
    if (row.strFlag.characters[0] == 'M' || rings.empty()) rings.emplace_back();
    rings.back().push_back({row.sngLat, row.sngLon});
  }
  for (Ring& ring : rings)
    ring.push_back(ring.front());
  return rings;
}

// Puts behind each ring the one that begins nearest to it.
void SortByNearness(std::vector<Ring>& rings) {
  if (rings.size() > mostRingsToSort) return;
  for (std::size_t i = 0; i + 1 < rings.size(); ++i) {
    const auto off = [&](const Ring& ring) {
      return std::hypot(ring.front().lat - rings[i].front().lat, ring.front().lon - rings[i].front().lon);
    };
    const auto rest = rings.begin() + static_cast<std::ptrdiff_t>(i) + 1;
    std::iter_swap(rest, std::min_element(rest, rings.end(),
                                          [&](const Ring& a, const Ring& b) { return off(a) < off(b); }));
  }
}

// The rings of one shape as a single closed line: from ring to ring and at last
// all the way back along the same short bridges, so that even-odd filling cuts
// the holes out and the bridges cancel each other.
Ring JoinedRings(std::span<const PolygonRec> rows) {
  std::vector<Ring> rings = RingsOf(rows);
  SortByNearness(rings);
  Ring joined;
  for (const Ring& ring : rings)
    joined.insert(joined.end(), ring.begin(), ring.end());
  for (std::size_t i = rings.size() - 1; i-- > 0;)
    joined.push_back(rings[i].front());
  return joined;
}

std::vector<const TaxiRec*> ShownTaxiways(const MapPaint& paint) {
  const MapView& view = paint.view;
  std::vector<const TaxiRec*> shown;
  for (const std::int32_t row : paint.database.taxiwaysByEnds.Near(view.SearchBox(0))) {
    const TaxiRec& taxiway = paint.database.taxiways[static_cast<std::size_t>(row)];
    if (view.InView(taxiway.sngLat1, taxiway.sngLon1, 0) || view.InView(taxiway.sngLat2, taxiway.sngLon2, 0))
      shown.push_back(&taxiway);
  }
  return shown;
}

SurfaceLine LineOf(const Projection& projection, const TaxiRec& taxiway) {
  std::vector<SurfaceLine> lines;
  AppendMapLine(projection, {taxiway.sngLat1, taxiway.sngLon1}, {taxiway.sngLat2, taxiway.sngLon2}, lines);
  return lines.front();
}

std::int16_t WidthInUnits(const MapPaint& paint, const TaxiRec& taxiway) {
  const double metres = taxiway.bytWidth * metresPerFoot;
  return static_cast<std::int16_t>(RoundToEven(metres * paint.view.MapScale / metresPerDegree));
}

struct PlacedName {
  std::string_view name;
  ClipRect box;

  SurfacePoint Middle() const { return {(box.left + box.right) / 2, (box.top + box.bottom) / 2}; }
};

// True if a name may stand at box beside those that stand already.
bool HasRoom(const std::vector<PlacedName>& placed, std::string_view name, const ClipRect& box) {
  const SurfacePoint middle{(box.left + box.right) / 2, (box.top + box.bottom) / 2};
  return std::none_of(placed.begin(), placed.end(), [&](const PlacedName& other) {
    const bool overlaps = box.left < other.box.right && box.right > other.box.left &&
                          box.top < other.box.bottom && box.bottom > other.box.top;
    const SurfacePoint at = other.Middle();
    return overlaps ||
           (other.name == name && std::hypot(at.x - middle.x, at.y - middle.y) < sameNameDistance);
  });
}

}  // namespace

void DrawGroundPolygons(const MapPaint& paint) {
  const ClipRect page = OneWorldPage(paint.projection, clipMargin);
  const NavDatabase& database = paint.database;
  paint.navaid.lngColor = Pavement(paint);
  for (const std::int32_t row : database.groundShapesByPlace.Near(paint.view.SearchBox(0))) {
    const GroundShape& shape = database.groundShapes[static_cast<std::size_t>(row)];
    const auto rows = std::span(database.polygons).subspan(shape.firstRow, shape.rowCount);
    if (!paint.view.InView(rows.front().sngLat, rows.front().sngLon, 0)) continue;
    for (auto& ring : ShapeOnPage(paint.projection, JoinedRings(rows), page)) {
      ThinOut(ring, groundDetail * paint.surface.UnitsPerPixel());
      paint.navaid.DrawAsPolygon(ClipPolygon(ring, page));
    }
  }
}

void DrawTaxiways(const MapPaint& paint) {
  DrawSurface& surface = paint.surface;
  const ClipRect page = OneWorldPage(paint.projection, clipMargin);
  const std::vector<const TaxiRec*> shown = ShownTaxiways(paint);
  std::vector<SurfaceLine> centrelines;
  paint.navaid.lngColor = Pavement(paint);
  for (const TaxiRec* taxiway : shown) {
    SurfaceLine line = LineOf(paint.projection, *taxiway);
    if (!ClipLine(line.from, line.to, page)) continue;
    centrelines.push_back(line);
    paint.navaid.intWidth = WidthInUnits(paint, *taxiway);
    if (taxiway->strType.View() != paintedLine &&
        paint.navaid.intWidth >= thinnestBand * surface.UnitsPerPixel())
      paint.navaid.DrawAsTaxiway(line.from, line.to);
  }
  surface.Opacity = centrelineOpacity;
  surface.Lines(centrelines, paint.colors.TAXI);
}

void DrawTaxiwayDesignators(const MapPaint& paint) {
  DrawSurface& surface = paint.surface;
  const ClipRect page = OneWorldPage(paint.projection, 0);
  surface.FontSize = designatorPoints;
  surface.FontBold = true;
  surface.TextHalo = true;
  paint.navaid.lngColor = paint.colors.TAXINAME;
  std::vector<PlacedName> placed;
  for (const TaxiRec* taxiway : ShownTaxiways(paint)) {
    if (taxiway->strName.Empty()) continue;
    const SurfaceLine line = LineOf(paint.projection, *taxiway);
    const SurfacePoint middle{(line.from.x + line.to.x) / 2, (line.from.y + line.to.y) / 2};
    if (!page.Contains(middle)) continue;
    const std::string name = CodePageToUtf8(taxiway->strName.View());
    const float halfWidth = surface.TextWidth(name) / 2 + designatorRoom;
    const float halfHeight = surface.TextHeight(name) / 2;
    const ClipRect box{middle.x - halfWidth, middle.y - halfHeight, middle.x + halfWidth,
                       middle.y + halfHeight};
    if (!HasRoom(placed, taxiway->strName.View(), box)) continue;
    placed.push_back({taxiway->strName.View(), box});
    paint.navaid.strName = name;
    paint.navaid.sngCenterX = middle.x;
    paint.navaid.sngCenterY = middle.y;
    paint.navaid.DrawAsTaxiwayDesignator();
  }
}
