// A repaint of a small database on a recording surface, and what was drawn as
// text: one operation a line, coordinates in whole units.
#pragma once

#include <algorithm>
#include <cmath>
#include <sstream>
#include <string>

#include "map/draw_map.h"
#include "tests/map/recording_surface.h"

// Every switch off.
inline MapSwitches NothingOn() {
  MapSwitches none;
  none.mnuCoastlines = none.mnuAirport = none.mnuILS = none.mnuVOR = none.mnuNDB = false;
  none.mnuVictor = none.mnuJet = none.mnuUserWP = none.btnIcao = false;
  return none;
}

struct Painted {
  RecordingSurface surface;
  ColorSettings colors;

  Painted(const NavDatabase& database, MapView view, const MapSwitches& switches = {},
          const MapSelection& selection = {}) {
    modDeclutter labels;
    DrawMap({view, labels, database, Settings(), switches, selection}, InDrawingOrder(DatabaseLayers()),
            surface);
  }
  bool Has(const std::string& text) const {
    const auto texts = surface.Texts();
    return std::find(texts.begin(), texts.end(), text) != texts.end();
  }
};

// "line 10,20 30,40", "circle 10,20 r30", "point 10,20", "polyline 1,2 3,4", "print 1,2 [text]".
inline std::string DrawnText(const RecordingSurface& surface) {
  std::ostringstream text;
  const auto number = [&](float value) -> std::ostream& { return text << std::lround(value); };
  const auto point = [&](SurfacePoint p) {
    text << ' ';
    number(p.x) << ',';
    number(p.y);
  };
  for (const auto& one : surface.drawn) {
    text << one.what;
    if (one.what == "circle") {
      point({one.x, one.y});
      text << " r";
      number(one.points.front().x);
    } else if (one.points.empty()) {
      point({one.x, one.y});
    }
    if (one.what != "circle")
      for (const SurfacePoint p : one.points)
        point(p);
    if (one.what == "print") text << " [" << one.text << ']';
    text << '\n';
  }
  return text.str();
}

// One row of a table by its established fields.
template <class Row>
Row RowAt(std::string_view code, Position place, std::string_view name = "NAME") {
  Row row;
  row.strCode = code;
  row.strName = name;
  row.sngLat = place.lat;
  row.sngLon = place.lon;
  return row;
}

inline MapView ViewAtRow(Position centre, int row, float magVar = 0) {
  MapView view = MapView::At(centre.lat, centre.lon, row);
  view.MapMagVar = magVar;
  return view;
}

// Builds the indexes of database and draws all its layers.
inline RecordingSurface PaintedMap(NavDatabase& database, const MapView& view, const MapSwitches& switches,
                                   const MapSelection& selection = {}) {
  BuildIndexes(database);
  return Painted(database, view, switches, selection).surface;
}
