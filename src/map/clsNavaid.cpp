#include "map/clsNavaid.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "base/numbers.h"
#include "map/style_keeper.h"
#include "map/symbol_label.h"
#include "navdata/geodesy.h"

namespace {

constexpr std::int16_t symbolRange = 900;  // NM
constexpr float intersectionLift = 15;
constexpr float airportLabelDrop = 50;
constexpr float nearestJoin = 60;  // units between symbol and label from which a line joins them
constexpr float staticHalf = 100;

}  // namespace

bool clsNavaid::BeyondSymbolRange() const {
  return rangeNM > symbolRange;
}

SurfacePoint clsNavaid::At(double angle, double distance) const {
  return {static_cast<float>(sngCenterX + distance * std::sin(DegToRad(angle))),
          static_cast<float>(sngCenterY - distance * std::cos(DegToRad(angle)))};
}

void clsNavaid::DrawPoint(float width) {
  const StyleKeeper keeper(*objTarget);
  objTarget->DrawWidth = width;
  objTarget->PSet(sngCenterX, sngCenterY, lngColor);
}

void clsNavaid::DrawTriangle() {
  const auto whole = [](float value) { return static_cast<float>(RoundToEven(value)); };
  const SurfacePoint top{whole(sngCenterX), whole(sngCenterY - sngLength)};
  const SurfacePoint left{whole(sngCenterX - sngLength), whole(sngCenterY + sngLength)};
  const SurfacePoint right{whole(sngCenterX + sngLength), left.y};
  const std::array<SurfacePoint, 4> outline = {top, left, right, top};
  if (objTarget->FillStyle == FillStyleKind::solid) objTarget->Polygon(outline, objTarget->FillColor);
  objTarget->Polyline(outline, lngColor);
}

void clsNavaid::DrawAsIntersection() {
  sngCenterY -= intersectionLift;
  if (BeyondSymbolRange()) return DrawPoint(1);
  DrawTriangle();
}

void clsNavaid::DrawAsNatrackWP() {
  const StyleKeeper keeper(*objTarget);
  objTarget->DrawWidth = 2;
  DrawTriangle();
}

void clsNavaid::DrawAsVRP() {
  DrawTriangle();
  const StyleKeeper keeper(*objTarget);
  objTarget->DrawStyle = DrawStyleKind::solid;
  objTarget->FillStyle = FillStyleKind::transparent;
  objTarget->Circle(sngCenterX, sngCenterY, sngLength / 2, lngColor);
}

void clsNavaid::DrawAsActiveWP() {
  const StyleKeeper keeper(*objTarget);
  objTarget->DrawStyle = DrawStyleKind::solid;
  objTarget->DrawWidth = 2;
  objTarget->Circle(sngCenterX, sngCenterY, static_cast<float>(intRadius) / 2, lngColor);
}

void clsNavaid::DrawAsMarker() {
  const StyleKeeper keeper(*objTarget);
  objTarget->PSet(sngCenterX, sngCenterY, lngColor);
  objTarget->FillStyle = FillStyleKind::solid;
  objTarget->FillColor = lngColor;
  objTarget->Circle(sngCenterX, sngCenterY, sngLength, lngColor);
}

void clsNavaid::DrawAsAirportCircle() {
  if (BeyondSymbolRange()) return DrawPoint(2);
  const StyleKeeper keeper(*objTarget);
  objTarget->FillStyle = intFillStyle == 0 ? FillStyleKind::solid : FillStyleKind::transparent;
  objTarget->Circle(sngCenterX, sngCenterY, intRadius, lngColor);
}

void clsNavaid::DrawAsAirport() {
  objTarget->Circle(sngCenterX, sngCenterY, intRadius, lngColor);
  if (strName.empty()) return;
  const StyleKeeper keeper(*objTarget);
  if (sngFontSize > 0) objTarget->FontSize = sngFontSize;
  const std::string_view first = FirstLine(strName);
  const float width = objTarget->TextWidth(first);
  const SurfacePoint wanted{sngCenterX - width / 2, sngCenterY + airportLabelDrop};
  SurfacePoint place = wanted;
  if (objLabels != nullptr) place = objLabels->PlaceLabel(wanted.x, wanted.y, first, LabelKind::airport);
  PrintLabelLines(*objTarget, place, strName);
  // The point of the first line that is nearest to the symbol.
  const float nearX = std::clamp(sngCenterX, place.x, place.x + width);
  const float nearY = std::clamp(sngCenterY, place.y, place.y + objTarget->TextHeight(first));
  const float away = std::hypot(nearX - sngCenterX, nearY - sngCenterY);
  if (away < static_cast<float>(intRadius) + nearestJoin) return;
  const float rim = static_cast<float>(intRadius) / away;
  objTarget->DrawWidth = 1;
  objTarget->Line(sngCenterX + (nearX - sngCenterX) * rim, sngCenterY + (nearY - sngCenterY) * rim, nearX,
                  nearY, lngColor);
}

void clsNavaid::DrawAsRwy() {
  const double course = sngCourse >= 180 ? sngCourse - 180.0 : sngCourse;
  const double east = std::sin(DegToRad(course));
  const double north = std::cos(DegToRad(course));
  const auto corner = [&](double along, double across) {
    return SurfacePoint{static_cast<float>(std::floor(sngCenterX + along * east + across * north)),
                        static_cast<float>(std::floor(sngCenterY - along * north + across * east))};
  };
  const double along = sngLength / 2;
  const double across = intWidth / 2.0;
  const std::array<SurfacePoint, 5> outline = {corner(along, -across), corner(along, across),
                                               corner(-along, across), corner(-along, -across),
                                               corner(along, -across)};
  objTarget->Polygon(outline, objTarget->FillColor);
  objTarget->Polyline(outline, lngColor);
}

void clsNavaid::PrintFrequency() {
  objTarget->Print(FormatPicture(sngFrequency, "000.00") + ' ');
}

void clsNavaid::DrawAsStaticAC() {
  const float left = sngCenterX - staticHalf;
  const float top = sngCenterY - staticHalf;
  const float right = sngCenterX + staticHalf;
  const float bottom = sngCenterY + staticHalf;
  objTarget->Line(left, top, right, top, lngColor);
  objTarget->Line(right, top, right, bottom, lngColor);
  objTarget->Line(right, bottom, left, bottom, lngColor);
  objTarget->Line(left, bottom, left, top, lngColor);
}
