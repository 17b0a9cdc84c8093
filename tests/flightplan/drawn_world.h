// A navigation database drawn as text, one thing a line:
//
//   airport EDDA 50.0 8.0 364           code, position, elevation
//   vor FFM 50.0 8.5                    likewise ndb, fix
//   A 50.0 8.0                          an intersection, rows from 1 on
//   A --12-- B V1 FL100-FL200           a low link of 12 NM, both ways
//   A ==12=> B UL1 FL250-FL460          a high link, one way
//
// An intersection that only a link names lies at 0, 0.
#pragma once

#include <map>
#include <sstream>
#include <stdexcept>
#include <string>
#include <vector>

#include "flightplan/plan_context.h"
#include "flightplan/plan_rows.h"
#include "navdata/nav_database.h"

class DrawnWorld {
 public:
  explicit DrawnWorld(const std::string& drawing) {
    database.intersections.emplace_back();
    links.emplace_back();
    std::istringstream lines(drawing);
    for (std::string line; std::getline(lines, line);)
      AddLine(line);
    PlaceLinks();
    database.airports.emplace_back().strCode = std::string_view("AFIL");
    database.lngAirports = static_cast<std::int32_t>(database.airports.size()) - 1;
    database.lngIntersections = static_cast<std::int32_t>(database.intersections.size()) - 1;
    BuildIndexes(database);
  }

  NavDatabase database;

  int Node(const std::string& code) {
    const auto [at, isNew] = nodes.try_emplace(code, static_cast<int>(database.intersections.size()));
    if (isNew) {
      database.intersections.emplace_back().strCode = code;
      links.emplace_back();
    }
    return at->second;
  }

  std::string Code(int node) const {
    return database.intersections.at(static_cast<std::size_t>(node)).strCode.Text();
  }

  int Airport(const std::string& code) const { return database.FindAirportByCode(code); }

 private:
  struct NodeLinks {
    std::vector<ConnectionRec> low, high;
  };

  void AddLine(const std::string& line) {
    std::istringstream words(line);
    std::string first, second;
    if (!(words >> first >> second)) return;
    if (first == "airport") {
      AirportRec airport;
      airport.strCode = second;
      airport.strName = second + " Airport";
      words >> airport.sngLat >> airport.sngLon >> airport.lngElevation;
      database.airports.push_back(airport);
    } else if (first == "vor") {
      AddObject(database.vors, second, words);
    } else if (first == "ndb") {
      AddObject(database.ndbs, second, words);
    } else if (first == "fix") {
      AddObject(database.fixes, second, words);
    } else if (second.starts_with("--") || second.starts_with("==")) {
      AddLink(first, second, words);
    } else {
      IntersectionRec& node = database.intersections[static_cast<std::size_t>(Node(first))];
      node.sngLat = std::stof(second);
      words >> node.sngLon;
    }
  }

  template <class Row>
  static void AddObject(std::vector<Row>& table, const std::string& code, std::istringstream& words) {
    Row& row = table.emplace_back();
    row.strCode = code;
    row.strName = code;
    words >> row.sngLat >> row.sngLon;
  }

  void AddLink(const std::string& from, const std::string& arrow, std::istringstream& words) {
    std::string to, airway, limits;
    words >> to >> airway >> limits;
    const std::size_t dash = limits.find('-');
    if (arrow.size() < 5 || airway.empty()) throw std::invalid_argument("not a link: " + from + " " + arrow);
    ConnectionRec link;
    link.sngDistance = std::stof(arrow.substr(2));
    link.strAirway = airway;
    if (dash != std::string::npos) {
      link.strMinAlt = limits.substr(0, dash);
      link.strMaxAlt = limits.substr(dash + 1);
    }
    AddDirection(arrow[0], Node(from), Node(to), link);
    if (arrow.back() != '>') AddDirection(arrow[0], Node(to), Node(from), link);
  }

  void AddDirection(char network, int from, int to, ConnectionRec link) {
    link.lngNext = to;
    NodeLinks& own = links[static_cast<std::size_t>(from)];
    (network == '-' ? own.low : own.high).push_back(link);
  }

  void PlaceLinks() {
    for (std::size_t row = 0; row < links.size(); ++row) {
      IntersectionRec& node = database.intersections[row];
      node.firstLowAlt = static_cast<std::uint32_t>(database.lowConnections.size());
      node.firstHighAlt = static_cast<std::uint32_t>(database.highConnections.size());
      node.bytLowAlt = static_cast<std::uint8_t>(links[row].low.size());
      node.bytHighAlt = static_cast<std::uint8_t>(links[row].high.size());
      database.lowConnections.insert(database.lowConnections.end(), links[row].low.begin(),
                                     links[row].low.end());
      database.highConnections.insert(database.highConnections.end(), links[row].high.begin(),
                                      links[row].high.end());
      const bool low = !links[row].low.empty();
      const bool high = !links[row].high.empty();
      node.strAirwayType = low && high ? "B" : low ? "L" : high ? "H" : "";
    }
  }

  std::map<std::string, int> nodes;
  std::vector<NodeLinks> links;
};

// Keeps what the pilot was told, and answers questions.
class HeardMessages : public MessageBox {
 public:
  void Show(std::string_view text, MessageIcon) override { texts.emplace_back(text); }
  bool AskYesNo(std::string_view text, MessageIcon) override {
    texts.emplace_back(text);
    return answer;
  }

  std::vector<std::string> texts;
  bool answer = true;
};

// 240 kts in cruise, 120 on approach; climbs and descends 1000 ft/min at 150 kts.
inline AircraftRec SlowTwin() {
  AircraftRec aircraft;
  aircraft.Number = 3;
  aircraft.Name = "Slow Twin";
  aircraft.ClimbRate = aircraft.DescentRate = 1000;
  aircraft.ClimbSpeed = aircraft.DescentSpeed = 150;
  aircraft.CruiseSpeed = 240;
  aircraft.ApproachSpeed = 120;
  aircraft.CruiseFlightLevel = 250;
  aircraft.Ceiling = 300;
  return aircraft;
}

// A filed plan from the world's first airport to its last.
struct DrawnPlan {
  explicit DrawnPlan(const std::string& drawing) : world(drawing) {
    SetDepartureAndDestination(plan, context, 0, world.database.AirportCount() - 1);
  }

  // Adds an enroute row before the destination.
  PlanWaypoint& Add(const std::string& sym, const std::string& code, float lat, float lon,
                    RowKind kind = RowKind::enroute) {
    PlanWaypoint row;
    row.Sym = sym;
    row.Code = code;
    row.Name = code;
    row.Lat = lat;
    row.Lon = lon;
    row.Kind = kind;
    int after = plan.DestinationRow() - 1;
    InsertWaypoint(plan, context, after, row, false);
    return plan.Row(after);
  }

  std::string Codes() const {
    std::string codes;
    for (const PlanWaypoint& row : plan.rows)
      codes += (codes.empty() ? "" : " ") + row.Code.Text();
    return codes;
  }

  DrawnWorld world;
  AircraftRec aircraft = SlowTwin();
  HeardMessages messages;
  PlanContext context{world.database, aircraft, messages, 8.5};
  FlightPlan plan;
};
