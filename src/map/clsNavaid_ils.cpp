// The feather of a localizer.
#include <algorithm>
#include <array>
#include <cmath>

#include "base/numbers.h"
#include "map/clsNavaid.h"
#include "map/style_keeper.h"
#include "navdata/geodesy.h"

namespace {

constexpr double halfBeam = 2.5;  // degrees to each side of the course
constexpr double notch = 0.92;    // of the sides' length
constexpr std::size_t textWidth = 15;
constexpr float textDistance = 100;
constexpr float fillOpacity = 0.16F;

double SideLength(float length) {
  return length / 1.1;
}

// The direction from the threshold out along the approach.
double Outward(float course) {
  const double outward = course - 180.0;
  return outward < 0 ? outward + 360 : outward;
}

}  // namespace

std::string clsNavaid::ILSText() const {
  std::string text = (blnILSType ? "ILS " : "Loc ") + strCode;
  text.resize(textWidth, ' ');
  return text;
}

SurfacePoint clsNavaid::ILSEnd() const {
  return At(Outward(sngCourse), SideLength(sngLength));
}

void clsNavaid::DrawAsILS() {
  const double outward = Outward(sngCourse);
  const double side = SideLength(sngLength);
  const SurfacePoint antenna{sngCenterX, sngCenterY};
  const SurfacePoint left = At(outward - halfBeam, side);
  const SurfacePoint middle = At(outward, side * notch);
  const SurfacePoint right = At(outward + halfBeam, side);
  const auto line = [this](SurfacePoint from, SurfacePoint to) {
    objTarget->Line(from.x, from.y, to.x, to.y, lngColor);
  };
  const StyleKeeper keeper(*objTarget);
  if (objTarget->FillStyle == FillStyleKind::solid) {
    objTarget->Opacity = keeper.Style().Opacity * fillOpacity;
    const std::array<SurfacePoint, 3> half = {antenna, middle, right};
    objTarget->Polygon(half, lngColor);
    objTarget->Opacity = keeper.Style().Opacity;
  }
  line(antenna, left);
  line(left, middle);
  line(middle, right);
  line(right, antenna);
  if (blnILSType) line(antenna, middle);
  if (sngFontSize > 0) objTarget->FontSize = sngFontSize;
  if (!strCode.empty()) {
    const std::string text = ILSText();
    const SurfacePoint end = ILSEnd();
    objTarget->CurrentX =
        sngCourse < 180 ? end.x - textDistance - objTarget->TextWidth(text) : end.x + textDistance;
    objTarget->CurrentY = end.y;
    objTarget->Print(text);
  }
  if (strRwyID.empty()) return;
  objTarget->CurrentX = antenna.x - objTarget->TextWidth("X") / 2;
  objTarget->CurrentY = antenna.y - objTarget->TextHeight("X") / 2;
  objTarget->Print("X");
  objTarget->CurrentX = antenna.x + textDistance;
  objTarget->Print("Rwy " + strRwyID + "  " + FormatPicture(sngCourse, "000"));
}

void clsNavaid::DrawAsShortILS() {
  const double outward = Outward(sngCourse);
  const double side = SideLength(sngLength) / 2;
  const std::array<SurfacePoint, 4> outline = {SurfacePoint{sngCenterX, sngCenterY},
                                               At(outward - halfBeam, side), At(outward + halfBeam, side),
                                               SurfacePoint{sngCenterX, sngCenterY}};
  objTarget->Polyline(outline, lngColor);
}
