#include <iostream>

#include "cli/commands.h"
#include "navdata/lookup_names.h"

namespace {

template <class Row>
Json Common(std::string_view kind, std::int32_t rowNumber, const Row& row, float frequency) {
  return {{"kind", kind},
          {"row", rowNumber},
          {"code", Utf8(row.strCode.View())},
          {"name", Utf8(row.strName.View())},
          {"lat", JsonNumber(row.sngLat)},
          {"lon", JsonNumber(row.sngLon)},
          {"freq", JsonNumber(frequency)},
          {"magVar", JsonNumber(row.sngMagVar)}};
}

Json RunwayJson(const RunwayRec& runway) {
  return {{"id", Utf8(runway.strRwyID.View())},
          {"recip", Utf8(runway.strRwyIDRecip.View())},
          {"lat", JsonNumber(runway.sngLat)},
          {"lon", JsonNumber(runway.sngLon)},
          {"heading", JsonNumber(runway.sngHeading)},
          {"lengthFt", runway.intLength},
          {"widthFt", runway.intWidth},
          {"surface", strSurface(runway.bytSurface)},
          {"ils", Utf8(runway.strIlsCode.View())},
          {"ilsRecip", Utf8(runway.strIlsCodeRecip.View())}};
}

Json IlsJson(const IlsRec& ils) {
  return {{"code", Utf8(ils.strCode.View())},
          {"runway", Utf8(ils.strRwyID.View())},
          {"mhz", JsonNumber(ils.sngFrequency)},
          {"course", JsonNumber(ils.sngCourse)},
          {"glide", JsonNumber(ils.sngILSGlideAngle)},
          {"lat", JsonNumber(ils.sngLat)},
          {"lon", JsonNumber(ils.sngLon)},
          {"rwyLengthFt", ils.lngRwyLength}};
}

Json AirportJson(const NavDatabase& db, std::int32_t rowNumber) {
  const AirportRec& airport = db.airports[static_cast<std::size_t>(rowNumber)];
  Json document = Common("airport", rowNumber, airport, 0);
  document["altitude"] = JsonNumber(airport.sngAltitude);
  document["runways"] = Json::array();
  for (const RunwayRec& runway : db.Runways(airport))
    document["runways"].push_back(RunwayJson(runway));
  document["frequencies"] = Json::array();
  for (const FrequencyRec& frequency : db.Frequencies(airport)) {
    document["frequencies"].push_back({{"type", strFreqType(frequency.bytType)},
                                       {"name", Utf8(frequency.strName.View())},
                                       {"mhz", JsonNumber(frequency.sngFrequency)}});
  }
  document["ils"] = Json::array();
  for (const IlsRec& ils : db.Ils(airport))
    document["ils"].push_back(IlsJson(ils));
  document["parkings"] = airport.lngParkings;
  return document;
}

Json LinksJson(const NavDatabase& db, std::span<const ConnectionRec> links) {
  Json list = Json::array();
  for (const ConnectionRec& link : links) {
    const bool known = link.lngNext >= 0 && link.lngNext < static_cast<std::int32_t>(db.intersections.size());
    const std::string to =
        known ? Utf8(db.intersections[static_cast<std::size_t>(link.lngNext)].strCode.View()) : std::string();
    list.push_back({{"to", to},
                    {"airway", Utf8(link.strAirway.View())},
                    {"nm", JsonNumber(link.sngDistance)},
                    {"minAlt", Utf8(link.strMinAlt.View())},
                    {"maxAlt", Utf8(link.strMaxAlt.View())}});
  }
  return list;
}

Json IntersectionJson(const NavDatabase& db, std::int32_t rowNumber) {
  const IntersectionRec& row = db.intersections[static_cast<std::size_t>(rowNumber)];
  Json document = Common("intersection", rowNumber, row, row.sngUnused);
  document["level"] = std::string(1, AirwayLevel(row));
  document["victor"] = LinksJson(db, db.LowAlt(row));
  document["jet"] = LinksJson(db, db.HighAlt(row));
  return document;
}

Json FindAll(const NavDatabase& db, std::string_view ident) {
  Json list = Json::array();
  for (const std::int32_t row : db.airportsByIdent.All(ident))
    list.push_back(AirportJson(db, row));
  for (const std::int32_t row : db.intersectionsByIdent.All(ident))
    list.push_back(IntersectionJson(db, row));
  const auto add = [&](std::string_view kind, const auto& rows, const IdentIndex& index,
                       const auto& frequency) {
    for (const std::int32_t number : index.All(ident)) {
      const auto& row = rows[static_cast<std::size_t>(number)];
      list.push_back(Common(kind, number, row, frequency(row)));
    }
  };
  const auto ownFrequency = [](const auto& row) { return row.sngFrequency; };
  const auto none = [](const auto&) { return 0.0F; };
  add("VOR", db.vors, db.vorsByIdent, ownFrequency);
  add("NDB", db.ndbs, db.ndbsByIdent, ownFrequency);
  add("fix", db.fixes, db.fixesByIdent, none);
  add("user waypoint", db.userWaypoints, db.userWaypointsByIdent, none);
  return list;
}

void PrintForPeople(const Json& found) {
  for (const Json& row : found) {
    std::cout << row["kind"].get<std::string>() << ' ' << row["code"].get<std::string>() << "  "
              << row["name"].get<std::string>() << "  " << row["lat"] << ", " << row["lon"] << "  row "
              << row["row"];
    if (row["freq"] != 0) std::cout << "  " << row["freq"];
    std::cout << '\n';
    if (row.contains("runways")) {
      for (const Json& runway : row["runways"]) {
        std::cout << "    Rwy " << runway["id"].get<std::string>() << '/'
                  << runway["recip"].get<std::string>() << "  " << runway["lengthFt"] << " x "
                  << runway["widthFt"] << " ft  " << runway["surface"].get<std::string>() << '\n';
      }
      for (const Json& ils : row["ils"]) {
        std::cout << "    ILS " << ils["code"].get<std::string>() << "  Rwy "
                  << ils["runway"].get<std::string>() << "  " << ils["mhz"] << " MHz\n";
      }
      for (const Json& frequency : row["frequencies"]) {
        std::cout << "    " << frequency["type"].get<std::string>() << "  " << frequency["mhz"] << "  "
                  << frequency["name"].get<std::string>() << '\n';
      }
    }
    for (const char* network : {"victor", "jet"}) {
      if (!row.contains(network)) continue;
      for (const Json& link : row[network]) {
        std::cout << "    " << network << ' ' << link["airway"].get<std::string>() << " to "
                  << link["to"].get<std::string>() << "  " << link["nm"] << " NM  "
                  << link["minAlt"].get<std::string>() << '-' << link["maxAlt"].get<std::string>() << '\n';
      }
    }
  }
}

}  // namespace

int RunFind(const CliOptions& options, const std::string& ident) {
  const auto world = OpenWorld(options);
  if (!world) return exitNotDone;
  Json found = FindAll(world->database, ident);
  // Idents are written in capitals; nobody should have to type them so.
  if (found.empty()) found = FindAll(world->database, AsciiUpper(ident));
  if (options.json) {
    PrintJson(found);
  } else {
    PrintForPeople(found);
  }
  return found.empty() ? Fail("nothing in the database has the ident " + ident) : exitDone;
}
