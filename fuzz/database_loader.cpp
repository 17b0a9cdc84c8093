// Any bytes as a database file: the loader must neither crash nor hang nor
// take more memory than the file could fill, and what it leaves in the tables
// must be usable: indexes can be built and every sub-table can be walked.

#include <cstddef>
#include <cstdint>
#include <cstdlib>

#include "navdata/airport_loader.h"
#include "navdata/ils_positions.h"
#include "navdata/navaid_loader.h"
#include "navdata/world_loader.h"

namespace {

void WalkEverything(const NavDatabase& db) {
  std::size_t rows = 0;
  for (const AirportRec& airport : db.airports) {
    rows += db.Runways(airport).size() + db.Frequencies(airport).size() + db.Parkings(airport).size() +
            db.Ils(airport).size();
  }
  if (rows > db.runways.size() + db.frequencies.size() + db.parkings.size() + db.ils.size()) std::abort();
  for (const IntersectionRec& node : db.intersections)
    rows += db.LowAlt(node).size() + db.HighAlt(node).size();
  for (const auto* shapes : {&db.worldPolygons, &db.worldLines}) {
    for (const WorldShapeRec& shape : shapes->shapes) {
      if (shape.firstPoint + shape.pointCount > shapes->points.size()) std::abort();
    }
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::span<const std::byte> bytes(reinterpret_cast<const std::byte*>(data), size);
  [[maybe_unused]] const std::string_view text(reinterpret_cast<const char*>(data), size);
  NavDatabase db;
  VELMORA_LOAD;
  ReassignILSCoords(db);
  WalkEverything(db);
  // Building the place indexes takes longer than all the rest; once in a while is enough.
  if (size % 256 == 0) BuildIndexes(db);
  return 0;
}
