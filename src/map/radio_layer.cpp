#include "map/radio_layer.h"

#include <array>

#include "base/code_page.h"
#include "base/numbers.h"
#include "map/range_steps.h"
#include "map/rows_in_view.h"
#include "map/symbol_label.h"

namespace {

constexpr std::int16_t nameRange = 150;
constexpr std::int16_t fullRange = 150;    // roses and rings up to here
constexpr std::int16_t smallRange = 200;   // small symbols from here on
constexpr std::int16_t symbolRange = 900;  // points beyond, which bear no labels
constexpr std::int16_t haloRange = 200;    // labels farther out are too faint for a rim
constexpr float vorHalfSize = 50;
constexpr std::int16_t dme = 9;

// Beyond the reach of their use, stations step back behind coast and plan.
constexpr std::array<RangeStep, 8> vorOpacity = {{{150, 0.85F},
                                                  {200, 1},
                                                  {300, 0.8F},
                                                  {400, 0.65F},
                                                  {600, 0.5F},
                                                  {900, 0.4F},
                                                  {2000, 0.1F},
                                                  {6000, 0.05F}}};
constexpr std::array<RangeStep, 7> vorLabelOpacity = {
    {{150, 1}, {200, 0.9F}, {300, 0.7F}, {400, 0.55F}, {500, 0.45F}, {700, 0.35F}, {900, 0.3F}}};
constexpr std::array<RangeStep, 8> ndbOpacity = {
    {{50, 1}, {150, 0.8F}, {200, 0.6F}, {300, 0.45F}, {500, 0.3F}, {900, 0.2F}, {2000, 0.3F}, {6000, 0.15F}}};
constexpr std::array<RangeStep, 7> ndbLabelOpacity = {
    {{50, 1}, {150, 0.8F}, {200, 0.6F}, {300, 0.45F}, {400, 0.35F}, {600, 0.28F}, {900, 0.22F}}};
constexpr std::array<RangeStep, 6> roseRadius = {
    {{10, 420}, {30, 340}, {50, 280}, {75, 220}, {100, 180}, {150, 140}}};
constexpr std::array<RangeStep, 3> ringRadius = {{{30, 110}, {75, 90}, {6000, 76}}};
constexpr std::size_t crowd = 60;  // stations

void Prepare(const MapPaint& paint, float x, float y, std::int32_t color) {
  clsNavaid& symbol = paint.navaid;
  symbol.sngCenterX = x;
  symbol.sngCenterY = y;
  symbol.lngColor = color;
  paint.surface.ForeColor = color;
}

// Code, frequency and name of a row, as its label shows them.
template <class Row>
std::string StationLabel(const Row& row, std::string_view picture, const MapSwitches& switches,
                         std::int16_t rangeNM) {
  std::string label;
  if (switches.btnIcao) AppendLine(label, CodePageToUtf8(row.strCode.View()));
  if (switches.btnFreq) AppendLine(label, FormatPicture(row.sngFrequency, picture));
  if (switches.btnName && rangeNM <= nameRange) AppendLine(label, CodePageToUtf8(row.strName.View()));
  return label;
}

// Draws the row's symbol. Returns where its label begins.
float DrawVorSymbol(const MapPaint& paint, const VorRec& vor, float y) {
  clsNavaid& symbol = paint.navaid;
  symbol.intType = vor.intType;
  if (paint.RangeNM() >= smallRange) symbol.DrawAsVorSquare();
  if (paint.RangeNM() > fullRange) {
    symbol.DrawAsVorSymbol();
    return y + static_cast<float>(symbol.intRadius) / 2;
  }
  symbol.intRadius = static_cast<std::int16_t>(ValueAt(roseRadius, paint.RangeNM()));
  symbol.sngMagVar = vor.sngMagVar;
  symbol.DrawAsVOR();
  return y + static_cast<float>(symbol.intRadius) * (vor.intType == dme ? 0.3F : 1.1F);
}

float DrawNdbSymbol(const MapPaint& paint, float y) {
  clsNavaid& symbol = paint.navaid;
  symbol.intRadius = static_cast<std::int16_t>(ValueAt(ringRadius, paint.RangeNM()));
  if (paint.RangeNM() >= smallRange) {
    symbol.DrawAsNDBSymbol();
    return y - 1.5F * static_cast<float>(symbol.intRadius);
  }
  symbol.DrawAsNDB();
  return y + 1.5F * static_cast<float>(symbol.intRadius);
}

}  // namespace

std::string VorLabel(const VorRec& vor, const MapSwitches& switches, std::int16_t rangeNM) {
  return StationLabel(vor, "000.00", switches, rangeNM);
}

std::string NdbLabel(const NdbRec& ndb, const MapSwitches& switches, std::int16_t rangeNM) {
  return StationLabel(ndb, " 000.00", switches, rangeNM);
}

void DrawVors(const MapPaint& paint) {
  DrawSurface& surface = paint.surface;
  surface.DrawWidth = paint.RangeNM() <= fullRange ? 1.2F : 1;
  surface.FontSize = LabelPoints(paint.settings, 8);
  surface.TextHalo = paint.RangeNM() <= haloRange;
  paint.navaid.sngLength = vorHalfSize;
  const auto rows = RowsInView(paint.view, paint.database.vorsByPlace, paint.database.vors, navaidMargin);
  const float opacity = WithRoom(ValueAt(vorOpacity, paint.RangeNM()), rows.size(), crowd);
  const float labelOpacity = WithRoom(ValueAt(vorLabelOpacity, paint.RangeNM()), rows.size(), crowd);
  for (const std::int32_t row : rows) {
    const VorRec& vor = paint.database.vors[static_cast<std::size_t>(row)];
    const bool selected = paint.selection.Holds(SelectedObject::vor, row);
    const auto x = static_cast<float>(paint.projection.LonToX(vor.sngLon));
    const auto y = static_cast<float>(paint.projection.LatToY(vor.sngLat));
    Prepare(paint, x, y, selected ? paint.colors.HILITE : paint.colors.VOR);
    surface.Opacity = selected ? 1 : opacity;
    const float top = DrawVorSymbol(paint, vor, y);
    if (paint.RangeNM() > symbolRange) continue;
    surface.Opacity = selected ? 1 : labelOpacity;
    PlaceAndPrint(surface, paint.labels, x, top, VorLabel(vor, paint.switches, paint.RangeNM()),
                  LabelKind::vor);
  }
}

void DrawNdbs(const MapPaint& paint) {
  DrawSurface& surface = paint.surface;
  surface.DrawWidth = 1;
  surface.FontSize = LabelPoints(paint.settings, 7.5F);
  surface.TextHalo = paint.RangeNM() <= haloRange;
  const auto rows = RowsInView(paint.view, paint.database.ndbsByPlace, paint.database.ndbs, navaidMargin);
  const float opacity = WithRoom(ValueAt(ndbOpacity, paint.RangeNM()), rows.size(), crowd);
  const float labelOpacity = WithRoom(ValueAt(ndbLabelOpacity, paint.RangeNM()), rows.size(), crowd);
  for (const std::int32_t row : rows) {
    const NdbRec& ndb = paint.database.ndbs[static_cast<std::size_t>(row)];
    const bool selected = paint.selection.Holds(SelectedObject::ndb, row);
    const auto x = static_cast<float>(paint.projection.LonToX(ndb.sngLon));
    const auto y = static_cast<float>(paint.projection.LatToY(ndb.sngLat));
    Prepare(paint, x, y, selected ? paint.colors.HILITE : paint.colors.NDB);
    surface.Opacity = selected ? 1 : opacity;
    const float top = DrawNdbSymbol(paint, y);
    if (paint.RangeNM() > symbolRange) continue;
    surface.Opacity = selected ? 1 : labelOpacity;
    PlaceAndPrint(surface, paint.labels, x, top, NdbLabel(ndb, paint.switches, paint.RangeNM()),
                  LabelKind::ndb);
  }
}
