// The one drawer of the map's symbols. A caller fills the properties, points
// objTarget at a surface and calls a DrawAs... operation; the same object
// serves the map, the printer and the charts, so it needs nothing but the
// surface. All sizes are in the surface's units, angles true degrees. Pen
// width, opacity, font and text halo are the surface's at the call and the
// caller's again after it.
#pragma once

#include <cstdint>
#include <span>
#include <string>

#include "platform/draw_surface.h"

class modDeclutter;

class clsNavaid {
 public:
  DrawSurface* objTarget = nullptr;
  modDeclutter* objLabels = nullptr;  // places the label of DrawAsAirport; null: printed where it is wanted
  std::int16_t rangeNM = 0;           // of the map; beyond 900 NM some symbols are a point
  float sngCenterX = 0;
  float sngCenterY = 0;
  float sngLength = 0;           // half size of a marker, length of a runway or an ILS feather
  std::int16_t intWidth = 0;     // of a runway
  std::int16_t intRadius = 180;  // of a round symbol
  std::int16_t intType = 0;      // of a VOR row: 2 VORTAC, 4 VOR-DME, 9 DME, others VOR
  float sngCourse = 0;
  float sngMagVar = 0;  // of the station, turns the VOR rose; east positive
  float sngFrequency = 0;
  float sngILSGlideAngle = 0;
  bool blnILSType = false;  // true an ILS, false a localizer
  std::string strRwyID;     // of a runway chart
  std::string strName;      // label; '\n' begins its second line. UTF-8, like strCode
  std::string strCode;
  float sngFontSize = 0;          // of the labels that are printed here; 0: the surface's
  std::int16_t intFillStyle = 1;  // of DrawAsAirportCircle, a FillStyleKind: 0 solid, 1 transparent
  std::int32_t lngColor = 0;

  // A closed shape filled with lngColor, without an outline.
  void DrawAsPolygon(std::span<const SurfacePoint> shape);
  // A band of intWidth between two points, half a width longer at both ends.
  void DrawAsTaxiway(SurfacePoint from, SurfacePoint to);
  // strName centred on the centre, in lngColor and the surface's font.
  void DrawAsTaxiwayDesignator();

  // An upward triangle of half size sngLength, its corners on whole units;
  // filled if the surface's FillStyle is solid. Moves sngCenterY up by 15, for
  // good. A point beyond 900 NM.
  void DrawAsIntersection();
  // The same triangle, without the move, in a bolder line.
  void DrawAsNatrackWP();
  // The same triangle with a circle of half its size in it.
  void DrawAsVRP();
  // A circle of half intRadius.
  void DrawAsActiveWP();
  // A point in a filled disc of radius sngLength.
  void DrawAsMarker();

  // A circle of radius intRadius, filled by intFillStyle with the surface's
  // FillColor. A point beyond 900 NM.
  void DrawAsAirportCircle();
  // A circle of radius intRadius and the label strName, in the surface's
  // ForeColor: wanted centred 50 below the centre, moved by objLabels when
  // that place is taken. A thin line joins symbol and label that came apart.
  void DrawAsAirport();
  // A rectangle turned to sngCourse, its corners floored: filled with the
  // surface's FillColor, outlined in lngColor. Opposite courses give one shape.
  void DrawAsRwy();
  // Prints sngFrequency as "000.00" and a blank at CurrentX, CurrentY.
  void PrintFrequency();

  // DrawAsVorSymbol in a compass rose of radius intRadius, whose north is the
  // station's magnetic north; without the rose for a DME.
  void DrawAsVOR();
  // A hexagon as wide and high as twice sngLength, with what tells its type: tabs
  // (VORTAC), a box around it (VOR-DME), the box alone (DME). A dot of radius
  // intRadius / 36 in its middle. Filled if the surface's FillStyle is solid.
  void DrawAsVorSymbol();
  // The small far symbol: sets intRadius to 180; a circle and a point, beyond
  // 900 NM the point alone.
  void DrawAsVorSquare();
  // A small circle and a point, beyond 900 NM the point alone.
  void DrawAsNDBSymbol();
  // Three circles of intRadius / 2, / 3 and / 6.
  void DrawAsNDB();

  // The feather from the threshold out along the approach, sides of length
  // sngLength / 1.1, with the centre line if blnILSType. With a strCode,
  // ILSText() stands at its end; with a strRwyID (runway charts) an "X" on the
  // threshold and the runway with its course beside it.
  void DrawAsILS();
  // The same at half the length, outline only, no texts.
  void DrawAsShortILS();
  // "ILS " or "Loc " and strCode in a field of 15 characters.
  std::string ILSText() const;
  // The middle of the feather's end.
  SurfacePoint ILSEnd() const;

  // A square of four lines, 100 to each side of the centre.
  void DrawAsStaticAC();

 private:
  void DrawTriangle();
  void DrawPoint(float width);
  void DrawRose();
  SurfacePoint At(double angle, double distance) const;
  SurfacePoint InHundredths(float x, float y) const;
  bool BeyondSymbolRange() const;
};
