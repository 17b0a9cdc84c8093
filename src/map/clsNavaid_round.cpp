// The symbols of radio stations: VOR and NDB.
#include <array>
#include <cmath>

#include "base/numbers.h"
#include "map/clsNavaid.h"
#include "map/style_keeper.h"
#include "navdata/geodesy.h"

namespace {

constexpr std::int16_t squareRadius = 180;
constexpr std::int16_t leastTickedRadius = 50;
constexpr int degreesPerTick = 30;

constexpr std::int16_t vortac = 2;
constexpr std::int16_t vorDme = 4;
constexpr std::int16_t dme = 9;

}  // namespace

SurfacePoint clsNavaid::InHundredths(float x, float y) const {
  return {sngCenterX + x * sngLength / 100, sngCenterY + y * sngLength / 100};
}

void clsNavaid::DrawAsVorSymbol() {
  const auto outline = [this](auto... corners) {
    const std::array<SurfacePoint, sizeof...(corners)> points = {InHundredths(corners.x, corners.y)...};
    if (objTarget->FillStyle == FillStyleKind::solid) objTarget->Polygon(points, objTarget->FillColor);
    objTarget->Polyline(points, lngColor);
  };
  using At = SurfacePoint;
  if (intType == vorDme || intType == dme)
    outline(At{-100, -100}, At{100, -100}, At{100, 100}, At{-100, 100}, At{-100, -100});
  if (intType != dme)
    outline(At{-50, -100}, At{50, -100}, At{100, 0}, At{50, 100}, At{-50, 100}, At{-100, 0}, At{-50, -100});
  if (intType == vortac) {
    outline(At{-100, 0}, At{-200, -50}, At{-140, -160}, At{-50, -100});
    outline(At{100, 0}, At{200, -50}, At{140, -160}, At{50, -100});
    outline(At{50, 100}, At{50, 200}, At{-50, 200}, At{-50, 100});
  }
  objTarget->Circle(sngCenterX, sngCenterY, static_cast<float>(intRadius) / 36, lngColor);
}

void clsNavaid::DrawAsVorSquare() {
  intRadius = squareRadius;
  if (!BeyondSymbolRange())
    objTarget->Circle(sngCenterX, sngCenterY, static_cast<float>(intRadius) / 6, lngColor);
  DrawPoint(2);
}

// Marks each 30 degrees. Angles run to the left here, so that the mark less
// the variation, which is positive to the east, brings mark 0 to magnetic north.
void clsNavaid::DrawRose() {
  const StyleKeeper keeper(*objTarget);
  objTarget->FillStyle = FillStyleKind::transparent;
  objTarget->Circle(sngCenterX, sngCenterY, intRadius, lngColor);
  if (intRadius <= leastTickedRadius) return;
  const double shortTick = intRadius / 5.0;
  const double longInner = intRadius / 1.5;
  for (int mark = 0; mark < 360; mark += degreesPerTick) {
    const double angle = mark - CutToInt(sngMagVar);
    const SurfacePoint rim = At(-angle, intRadius);
    const SurfacePoint inner = At(-angle, mark == 0 ? longInner : intRadius - shortTick);
    objTarget->DrawWidth = keeper.Style().DrawWidth * (mark == 0 ? 2.0F : 1.0F);
    objTarget->Line(rim.x, rim.y, inner.x, inner.y, lngColor);
  }
}

void clsNavaid::DrawAsVOR() {
  if (intType != dme) DrawRose();
  DrawAsVorSymbol();
}

void clsNavaid::DrawAsNDBSymbol() {
  if (!BeyondSymbolRange())
    objTarget->Circle(sngCenterX, sngCenterY, static_cast<float>(intRadius) / 6, lngColor);
  DrawPoint(1);
}

void clsNavaid::DrawAsNDB() {
  for (const float part : {2.0F, 3.0F, 6.0F})
    objTarget->Circle(sngCenterX, sngCenterY, static_cast<float>(intRadius) / part, lngColor);
}
