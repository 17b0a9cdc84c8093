// The ground symbols of clsNavaid: shapes of pavement, taxiways and their names.
#include <array>
#include <cmath>

#include "map/clsNavaid.h"
#include "map/style_keeper.h"

void clsNavaid::DrawAsPolygon(std::span<const SurfacePoint> shape) {
  if (shape.size() > 2) objTarget->Polygon(shape, lngColor);
}

void clsNavaid::DrawAsTaxiway(SurfacePoint from, SurfacePoint to) {
  const float x = to.x - from.x;
  const float y = to.y - from.y;
  const float length = std::hypot(x, y);
  const float half = static_cast<float>(intWidth) / 2;
  const SurfacePoint along =
      length > 0 ? SurfacePoint{x / length * half, y / length * half} : SurfacePoint{half, 0};
  // Half a width longer at both ends, so that two that meet leave no notch.
  const std::array<SurfacePoint, 4> band = {{{from.x - along.x - along.y, from.y - along.y + along.x},
                                             {from.x - along.x + along.y, from.y - along.y - along.x},
                                             {to.x + along.x + along.y, to.y + along.y - along.x},
                                             {to.x + along.x - along.y, to.y + along.y + along.x}}};
  objTarget->Polygon(band, lngColor);
}

void clsNavaid::DrawAsTaxiwayDesignator() {
  const StyleKeeper keeper(*objTarget);
  objTarget->ForeColor = lngColor;
  objTarget->CurrentX = sngCenterX - objTarget->TextWidth(strName) / 2;
  objTarget->CurrentY = sngCenterY - objTarget->TextHeight(strName) / 2;
  objTarget->Print(strName);
}
