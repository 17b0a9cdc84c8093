#include "flightplan/route_parser.h"

#include <array>
#include <optional>
#include <unordered_set>
#include <vector>

#include "base/code_page.h"
#include "flightplan/airway_graph.h"
#include "flightplan/airway_search.h"
#include "flightplan/object_rows.h"
#include "flightplan/plan_legs.h"
#include "flightplan/plan_rows.h"
#include "flightplan/route_report.h"
#include "flightplan/route_string.h"
#include "navdata/geodesy.h"

namespace {

constexpr std::string_view noDepartureText = "Invalid String! Departure airport missing!";
constexpr std::string_view noDestinationText = "Invalid String! Destination airport missing!";
constexpr float farthestCandidate = 2147483648.0F;
constexpr float samePlaceDistance = 1;  // NM

enum AirwayNetworkNumber : std::uint8_t { noNetwork = 0, victorNetwork = 1, jetNetwork = 2 };

char LevelOf(int network) {
  return network == victorNetwork ? 'V' : 'J';
}

std::vector<std::string> Words(std::string_view text) {
  std::vector<std::string> words;
  const std::string plain = PlainRouteText(text);
  for (std::size_t from = 0; from < plain.size();) {
    const std::size_t to = std::min(plain.find(' ', from), plain.size());
    if (to > from) words.push_back(plain.substr(from, to - from));
    from = to + 1;
  }
  return words;
}

// The last real airport with this code, -1 if none.
std::int32_t LastAirport(const NavDatabase& database, std::string_view code) {
  std::int32_t found = -1;
  for (const std::int32_t row : database.airportsByIdent.All(code))
    if (row < database.AirportCount()) found = row;
  return found;
}

// The object of this ident nearest to a place; on equal distance the
// intersection, then VOR, NDB, fix, and the first row of each.
std::optional<PlanWaypoint> NearestObject(const NavDatabase& database, std::string_view ident,
                                          Position from) {
  std::optional<PlanWaypoint> nearest;
  float best = farthestCandidate;
  const auto consider = [&](const IdentIndex& index, const auto& table) {
    for (const std::int32_t row : index.All(ident)) {
      const auto& object = table[static_cast<std::size_t>(row)];
      const float distance = GreatCircleDistance(from.lat, from.lon, object.sngLat, object.sngLon);
      if (!(distance < best)) continue;
      best = distance;
      nearest = ObjectRow(object, row);
    }
  };
  consider(database.intersectionsByIdent, database.intersections);
  consider(database.vorsByIdent, database.vors);
  consider(database.ndbsByIdent, database.ndbs);
  consider(database.fixesByIdent, database.fixes);
  return nearest;
}

// The network on which an airway of this name leaves the node.
AirwayNetworkNumber NetworkOf(const NavDatabase& database, std::int32_t node, std::string_view airway) {
  for (const AirwayNetworkNumber network : {victorNetwork, jetNetwork}) {
    for (const ConnectionRec& link : NetworkLinks(database, node, LevelOf(network)))
      if (link.strAirway == airway) return network;
  }
  return noNetwork;
}

using AirwayWay = std::vector<const ConnectionRec*>;

// The links from node to node along an airway that begins with first, up to
// toNode: at each node the first of its links that does not lead back. Nothing
// if they lead elsewhere.
std::optional<AirwayWay> FollowAirway(const NavDatabase& database, std::int32_t fromNode,
                                      const ConnectionRec& first, std::int32_t toNode, char level) {
  AirwayWay way = {&first};
  std::int32_t before = fromNode;
  while (way.back()->lngNext != toNode) {
    const std::int32_t node = way.back()->lngNext;
    const ConnectionRec* next = nullptr;
    for (const ConnectionRec& link : NetworkLinks(database, node, level)) {
      if (link.strAirway != first.strAirway || link.lngNext == before) continue;
      next = &link;
      break;
    }
    // A ring would lead round for ever.
    if (next == nullptr || !IsNode(database, next->lngNext) || way.size() > database.intersections.size())
      return std::nullopt;
    before = node;
    way.push_back(next);
  }
  return way;
}

// The way of fewest links along an airway that forks; nothing if it does not
// lead to toNode at all.
std::optional<AirwayWay> SearchForkedAirway(const NavDatabase& database, std::int32_t fromNode,
                                            std::string_view airway, std::int32_t toNode, char level) {
  struct Reached {
    std::int32_t node;
    const ConnectionRec* by;
    std::size_t from;
  };
  std::vector<Reached> reached = {{fromNode, nullptr, 0}};
  std::unordered_set<std::int32_t> seen = {fromNode};
  for (std::size_t at = 0; at < reached.size(); ++at) {
    for (const ConnectionRec& link : NetworkLinks(database, reached[at].node, level)) {
      if (link.strAirway != airway || !IsNode(database, link.lngNext)) continue;
      if (!seen.insert(link.lngNext).second) continue;
      reached.push_back({link.lngNext, &link, at});
      if (link.lngNext != toNode) continue;
      AirwayWay way;
      for (std::size_t i = reached.size() - 1; i > 0; i = reached[i].from)
        way.insert(way.begin(), reached[i].by);
      return way;
    }
  }
  return std::nullopt;
}

// Along at most two links of that name that leave fromNode, each a direction of
// travel; where the airway forks on the way, along its other branches.
std::optional<AirwayWay> WayAlongAirway(const NavDatabase& database, std::int32_t fromNode,
                                        std::int32_t toNode, std::string_view airway, char level) {
  constexpr int directions = 2;
  int tried = 0;
  for (const ConnectionRec& link : NetworkLinks(database, fromNode, level)) {
    if (link.strAirway != airway || !IsNode(database, link.lngNext)) continue;
    if (++tried > directions) break;
    if (auto way = FollowAirway(database, fromNode, link, toNode, level)) return way;
  }
  return SearchForkedAirway(database, fromNode, airway, toNode, level);
}

void TakeLink(PlanWaypoint& row, const ConnectionRec& link) {
  row.Airway = link.strAirway.View();
  row.AirwayMinAlt = ParseAltitude(link.strMinAlt.View());
  row.AirwayMaxAlt = ParseAltitude(link.strMaxAlt.View());
}

// Rows for the words between the airports. Those at which an airway begins have
// its network and name for the moment.
void InsertFixes(FlightPlan& plan, const PlanContext& context, const std::vector<std::string>& words) {
  Position current{plan.Row(0).Lat, plan.Row(0).Lon};
  int insertionRow = 0;
  for (std::size_t i = 1; i + 1 < words.size(); ++i) {
    std::optional<PlanWaypoint> row = NearestObject(context.database, words[i], current);
    if (!row) {
      ReportPassedOver(context, words[i], i + 1);
      continue;
    }
    current = {row->Lat, row->Lon};
    const bool mayJoin = row->Sym == "Int" && i + 2 < words.size();
    if (mayJoin) row->AirwayLink = NetworkOf(context.database, row->DbIndex, words[i + 1]);
    if (row->AirwayLink != noNetwork) row->Airway = words[++i];
    InsertWaypoint(plan, context, insertionRow, *row, false);
  }
}

// Joins the rows that InsertFixes() marked with the rows behind them.
bool JoinRows(FlightPlan& plan, const PlanContext& context) {
  std::string carried;  // name of the airway that begins where the one before ends
  for (int i = 1; i < plan.DestinationRow(); ++i) {
    PlanWaypoint& row = plan.Row(i);
    const int network = row.AirwayLink;
    if (network == noNetwork) continue;
    const std::string airway = carried.empty() ? row.Airway.Text() : carried;
    if (carried.empty()) row.ClearAirway();
    row.AirwayLink = noNetwork;
    const PlanWaypoint next = plan.Row(i + 1);
    carried = next.AirwayLink != noNetwork ? next.Airway.Text() : std::string();
    const std::int32_t toNode = i + 1 < plan.DestinationRow() ? AirwayNodeOf(next, context.database) : -1;
    // Of an airway's two levels only one may lead there.
    const std::int32_t fromNode = row.DbIndex;
    const int other = network == victorNetwork ? jetNetwork : victorNetwork;
    if (toNode >= 0 && (ExpandAirway(plan, context, fromNode, toNode, airway, network, i) ||
                        ExpandAirway(plan, context, fromNode, toNode, airway, other, i)))
      continue;
    ReportNotOnAirway(context, next, airway, fromNode, toNode);
    context.messages.Show(CodePageToUtf8(next.Code.Text() + " is not on airway " + airway) +
                              "\nFlightplan cannot be completed!",
                          MessageIcon::exclamation);
    return false;
  }
  return true;
}

// Where the second pass ended early, the names of airways that were not joined go.
void DropMarks(FlightPlan& plan) {
  for (PlanWaypoint& row : plan.rows) {
    if (row.AirwayLink != noNetwork) row.ClearAirway();
    row.AirwayLink = noNetwork;
  }
}

}  // namespace

std::int32_t AirwayNodeOf(const PlanWaypoint& row, const NavDatabase& database) {
  if (row.Sym == "Int") return row.DbIndex;
  for (const std::int32_t node : database.intersectionsByIdent.All(row.Code.View())) {
    const IntersectionRec& at = database.intersections[static_cast<std::size_t>(node)];
    if (GreatCircleDistance(row.Lat, row.Lon, at.sngLat, at.sngLon) < samePlaceDistance) return node;
  }
  return -1;
}

bool ExpandAirway(FlightPlan& plan, const PlanContext& context, std::int32_t fromNode, std::int32_t toNode,
                  std::string_view airway, int network, int row) {
  const NavDatabase& database = context.database;
  const auto way = WayAlongAirway(database, fromNode, toNode, airway, LevelOf(network));
  if (!way) return false;
  for (const ConnectionRec* step : *way) {
    if (step == way->back()) break;
    const IntersectionRec& node = database.intersections[static_cast<std::size_t>(step->lngNext)];
    PlanWaypoint between = ObjectRow(node, step->lngNext);
    between.Name = node.strCode.View();
    TakeLink(between, *step);
    InsertWaypoint(plan, context, row, between, false);
  }
  TakeLink(plan.Row(row + 1), *way->back());
  return true;
}

bool ParseRoute(FlightPlan& plan, const PlanContext& context, std::string_view text) {
  const std::vector<std::string> words = Words(text);
  if (words.empty()) return false;
  ClearFlightPlan(plan);
  const std::int32_t departure = LastAirport(context.database, words.front());
  if (departure < 0) {
    context.messages.Show(noDepartureText, MessageIcon::exclamation);
    return false;
  }
  plan.DepartureIndex = departure;
  const std::int32_t destination = LastAirport(context.database, words.back());
  if (destination < 0) {
    context.messages.Show(noDestinationText, MessageIcon::exclamation);
    return false;
  }
  SetDepartureAndDestination(plan, context, departure, destination);
  InsertFixes(plan, context, words);
  plan.RouteType = RouteKind::navaid;
  RebuildTable(plan, context);
  const bool complete = JoinRows(plan, context);
  DropMarks(plan);
  RebuildTable(plan, context);
  RecomputePlan(plan, context);
  plan.PlanFiled = true;
  return complete;
}
