#include "map/clsNavaid.h"

#include <array>
#include <cmath>
#include <utility>

#include "base/numbers.h"
#include "navdata/geodesy.h"

namespace {

constexpr std::int16_t symbolRange = 900;  // NM
constexpr float intersectionLift = 15;

}  // namespace

bool clsNavaid::BeyondSymbolRange() const {
  return rangeNM > symbolRange;
}

void clsNavaid::DrawPoint() {
  objTarget->DrawWidth = 2;
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
  if (BeyondSymbolRange()) {
    DrawPoint();
  } else {
    DrawTriangle();
  }
}

void clsNavaid::DrawAsVRP() {
  DrawTriangle();
  const auto style = objTarget->DrawStyle;
  objTarget->DrawStyle = DrawStyleKind::solid;
  objTarget->Circle(sngCenterX, sngCenterY, sngLength / 2, lngColor);
  objTarget->DrawStyle = style;
}

void clsNavaid::DrawAsAirportCircle() {
  if (BeyondSymbolRange()) {
    DrawPoint();
  } else {
    objTarget->Circle(sngCenterX, sngCenterY, intRadius, lngColor);
  }
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

void clsNavaid::DrawAsVorSymbol() {
  if (BeyondSymbolRange()) return DrawPoint();
  const float width = static_cast<float>(intRadius) / 3;
  const float height = width * 0.87F;
  const float x = sngCenterX;
  const float y = sngCenterY;
  const std::array<SurfacePoint, 7> outline = {{{x - width / 2, y - height},
                                                {x + width / 2, y - height},
                                                {x + width, y},
                                                {x + width / 2, y + height},
                                                {x - width / 2, y + height},
                                                {x - width, y},
                                                {x - width / 2, y - height}}};
  if (objTarget->FillStyle == FillStyleKind::solid) objTarget->Polygon(outline, objTarget->FillColor);
  objTarget->Polyline(outline, lngColor);
  objTarget->Circle(x, y, static_cast<float>(intRadius) / 36, lngColor);
}

void clsNavaid::DrawAsNDB() {
  if (BeyondSymbolRange()) return DrawPoint();
  for (const float part : {2.0F, 3.0F, 6.0F})
    objTarget->Circle(sngCenterX, sngCenterY, static_cast<float>(intRadius) / part, lngColor);
  objTarget->PSet(sngCenterX, sngCenterY, lngColor);
}
