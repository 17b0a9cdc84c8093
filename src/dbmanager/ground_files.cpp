#include "dbmanager/ground_files.h"

#include "navdata/file_records.h"

namespace {

// Taxiway widths by ICAO code letter in feet (7.5 to 25 m); a painted line and
// an unknown width count as the common 50 ft.
std::int16_t WidthOf(char code) {
  switch (code) {
    case 'A':
      return 25;
    case 'B':
      return 35;
    case 'D':
      return 60;
    case 'E':
      return 75;
    case 'F':
      return 82;
    default:
      return 50;
  }
}

void AddTaxiways(std::span<const SourceTaxiway> taxiways, std::string_view type, GroundFiles& files) {
  for (const SourceTaxiway& taxiway : taxiways) {
    TaxiFileRecord record;
    record.sngLat1 = taxiway.from.lat;
    record.sngLon1 = taxiway.from.lon;
    record.sngLat2 = taxiway.to.lat;
    record.sngLon2 = taxiway.to.lon;
    record.strName = taxiway.name;
    record.intWidth = WidthOf(taxiway.widthCode);
    record.strType = type;
    AppendRecord(files.taxi, record);
    ++files.taxiways;
  }
}

void AddPolygon(const SourcePavement& pavement, GroundFiles& files) {
  PolygonFileRecord record;
  record.strFlag = "M";
  record.sngValue = pavement.hole ? 1.0F : 0.0F;
  record.strMark = pavement.hole ? "H" : " ";
  const auto add = [&](GroundPoint point) {
    record.sngLat = point.lat;
    record.sngLon = point.lon;
    AppendRecord(files.poly, record);
    record.strFlag = "L";
    ++files.polygonPoints;
  };
  for (const GroundPoint point : pavement.points)
    add(point);
  add(pavement.points.front());
  ++files.polygons;
}

}  // namespace

GroundFiles MakeGroundFiles(std::span<const SourceAirport> airports) {
  GroundFiles files;
  for (const SourceAirport& airport : airports) {
    if (airport.network.empty()) {
      AddTaxiways(airport.centrelines, "LINE", files);
    } else {
      AddTaxiways(airport.network, "TAXI", files);
    }
    for (const SourcePavement& pavement : airport.pavement)
      AddPolygon(pavement, files);
  }
  return files;
}
