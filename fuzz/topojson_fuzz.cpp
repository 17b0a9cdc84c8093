// Any text as world outlines: the shapes load and stay on the globe.
#include <cmath>
#include <cstdlib>

#include "dbmanager/source_error.h"
#include "dbmanager/world_files.h"
#include "navdata/world_loader.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  try {
    const Outlines outlines = ReadTopoJson({reinterpret_cast<const char*>(data), size}, "land", "land.json");
    const WorldFile coasts = MakeWorldPolygons(outlines), borders = MakeWorldLines(outlines);
    WorldShapes polygons, lines;
    if (!ParseWorldPolygons(coasts.bytes, polygons) || !ParseWorldLines(borders.bytes, lines)) std::abort();
    for (const Position point : polygons.points) {
      if (!(std::abs(point.lat) <= 90.01F) || !(std::abs(point.lon) <= 180.01F)) std::abort();
    }
    CountryOutlines(outlines).Near({50, 8});
  } catch (const BuildError&) {
  }
  return 0;
}
