#include "flightplan/formats/plan_import.h"

#include <algorithm>
#include <cmath>
#include <optional>

#include "base/code_page.h"
#include "base/numbers.h"
#include "flightplan/formats/foreign_matching.h"
#include "flightplan/formats/foreign_plan.h"
#include "flightplan/formats/track_thinning.h"
#include "flightplan/plan_legs.h"
#include "flightplan/plan_reader.h"
#include "flightplan/plan_rows.h"
#include "flightplan/route_parser.h"
#include "flightplan/route_report.h"
#include "flightplan/start_positions.h"
#include "navdata/airport_search.h"

namespace {

constexpr std::size_t mostPoints = lastRowInFile;
constexpr double lowestCruiseFeet = 1000;
constexpr double highestCruiseFeet = 60000;

// What the route parser says is listed with the rest.
class CollectedMessages : public MessageBox {
 public:
  explicit CollectedMessages(ImportProblems& problems) : problems(problems) {}
  void Show(std::string_view text, MessageIcon) override { problems.Add(text); }
  bool AskYesNo(std::string_view text, MessageIcon icon) override {
    Show(text, icon);
    return false;
  }

 private:
  ImportProblems& problems;
};

class Importer {
 public:
  Importer(const PlanContext& context, ForeignPlan& file)
      : context(context), database(context.database), file(file), problems(file.problems) {}

  // Nothing after telling the pilot which airport is missing.
  std::optional<FlightPlan> Run() {
    if (file.isTrack) DropPlaceless();
    const std::int32_t departure = TakeEnd(file.departure, true);
    const std::int32_t destination = departure < 0 ? -1 : TakeEnd(file.destination, false);
    if (destination < 0) return std::nullopt;
    SetDepartureAndDestination(plan, context, departure, destination);
    if (!file.route.empty()) TakeRoute();
    TakeStart();
    LimitPoints();
    TakePoints();
    TakeAirways();
    TakeProcedureNames();
    JoinDoubled();
    TakeHeader();
    return std::move(plan);
  }

 private:
  // ---- airports

  // The airport at an end of the plan. Where a point of the list stands for it, that goes.
  std::int32_t TakeEnd(ForeignAirport wanted, bool first) {
    const bool named = !wanted.code.empty();
    const ForeignPoint* end = file.points.empty() ? nullptr
                              : first             ? &file.points.front()
                                                  : &file.points.back();
    if (end != nullptr && !named) wanted = {end->code, end->name, end->place};
    if (end != nullptr && !wanted.place && EqualNoCase(end->code, wanted.code)) wanted.place = end->place;
    const AirportMatch match = MatchAirport(database, wanted, named);
    if (match.row < 0) {
      Refuse(wanted, first);
      return -1;
    }
    if (!match.problem.empty() && !(file.isTrack && !named)) problems.Add(match.problem);
    if (end != nullptr && StandsForAirport(*end, wanted, match.row))
      file.points.erase(first ? file.points.begin() : file.points.end() - 1);
    return match.row;
  }

  bool StandsForAirport(const ForeignPoint& point, const ForeignAirport& wanted, std::int32_t row) const {
    const AirportRec& airport = database.airports[static_cast<std::size_t>(row)];
    const bool sameCode = EqualNoCase(point.code, wanted.code) ||
                          EqualNoCase(point.code, CodePageToUtf8(airport.strCode.View()));
    if (file.isTrack) return true;
    if (point.kind == PointKind::airport) return sameCode;
    const bool there = !point.place || GreatCircleDistance(point.place->lat, point.place->lon, airport.sngLat,
                                                           airport.sngLon) <= nearbyAirportDistance;
    return there && sameCode && (point.kind == PointKind::unknown || point.kind == PointKind::user);
  }

  void Refuse(const ForeignAirport& wanted, bool first) const {
    const std::string which = first ? "departure" : "destination";
    std::string text;
    if (!wanted.code.empty()) {
      text = wanted.code + " is not in currently loaded database!";
    } else if (wanted.place) {
      text = "There is no airport near " + FormatLat(wanted.place->lat, 1) + " " +
             FormatLon(wanted.place->lon, 1) + ", the " + which + " of the plan!";
    } else {
      text = "The file names no " + which + " airport!";
    }
    context.messages.Show(text, MessageIcon::exclamation);
  }

  void TakeStart() {
    if (file.start.empty()) return;
    const std::vector<StartPosition> starts = StartPositions(database, plan.DepartureIndex);
    const auto named = std::find_if(starts.begin(), starts.end(), [&](const StartPosition& start) {
      return EqualNoCase(WithoutZero(start.id), WithoutZero(file.start));
    });
    if (named != starts.end()) return SetStartPosition(plan, context, &*named);
    problems.Add("the start " + file.start + " is not at " + CodePageToUtf8(plan.Row(0).Code.View()) +
                 "; the flight begins at the airport");
  }

  // "07L" and "7L" are one runway.
  static std::string_view WithoutZero(std::string_view id) {
    if (id.size() > 1 && id[0] == '0') id.remove_prefix(1);
    return id;
  }

  // ---- points

  void LimitPoints() {
    if (file.isTrack) return ThinTrack();
    if (file.points.size() <= mostPoints) return;
    problems.Add("the file has " + std::to_string(file.points.size()) +
                 " points between the airports; those behind the first " + std::to_string(mostPoints) +
                 " are left out");
    file.points.resize(mostPoints);
  }

  void DropPlaceless() {
    const auto dropped = std::erase_if(file.points, [](const ForeignPoint& point) { return !point.place; });
    if (dropped > 0)
      problems.Add(std::to_string(dropped) + " points of the track have no position on the earth");
  }

  void ThinTrack() {
    std::vector<Position> way = {{plan.Row(0).Lat, plan.Row(0).Lon}};
    for (const ForeignPoint& point : file.points)
      way.push_back(point.place.value());
    way.push_back({plan.Row(1).Lat, plan.Row(1).Lon});
    const std::vector<std::size_t> kept = ThinnedTrack(way, mostPoints + 2);
    problems.Add("the track of " + std::to_string(file.points.size()) + " points is taken with the " +
                 std::to_string(kept.size() - 2) + " that give its shape");
    file.points.clear();
    for (const std::size_t at : kept) {
      if (at == 0 || at + 1 == way.size()) continue;
      ForeignPoint& point = file.points.emplace_back();
      point.kind = PointKind::user;
      point.place = way[at];
    }
  }

  void TakePoints() {
    const Position destination{plan.rows.back().Lat, plan.rows.back().Lon};
    OrderProcedures();
    int after = plan.DestinationRow() - 1;
    for (const ForeignPoint& point : file.points) {
      const PlanWaypoint& before = plan.Row(after);
      PointMatch match = MatchPoint(database, point, {before.Lat, before.Lon}, destination);
      if (!match.problem.empty()) problems.Add(match.problem);
      if (!match.row) continue;
      match.row->Kind = point.part;
      TakeAirwayName(*match.row, point.airway);
      InsertWaypoint(plan, context, after, *match.row, false);
    }
  }

  // SID points stand first, STAR points last: others are points of the route.
  void OrderProcedures() {
    auto point = file.points.begin();
    while (point != file.points.end() && point->part == RowKind::sid)
      ++point;
    for (; point != file.points.end(); ++point)
      if (point->part == RowKind::sid) point->part = RowKind::enroute;
    auto last = file.points.rbegin();
    while (last != file.points.rend() && last->part == RowKind::star)
      ++last;
    for (; last != file.points.rend(); ++last)
      if (last->part == RowKind::star) last->part = RowKind::enroute;
  }

  void TakeRoute() {
    RouteReport report;
    CollectedMessages messages(problems);
    const PlanContext quiet{database, context.aircraft, messages, context.FAFDIST, &report};
    const std::string text =
        plan.Row(0).Code.Text() + " " + Utf8ToCodePage(file.route) + " " + plan.rows.back().Code.Text();
    ParseRoute(plan, quiet, text);
    for (const std::string& line : report.lines)
      problems.Add(line);
  }

  // ---- airways

  void TakeAirwayName(PlanWaypoint& row, const std::string& airway) {
    if (airway.empty()) return;
    const std::string name = AsciiUpper(Utf8ToCodePage(airway));
    row.Airway = name;
    if (row.HasAirway() && row.Airway.View() == name && name.find(',') == std::string::npos) return;
    row.ClearAirway();
    problems.Add("'" + airway + "', the way to " + CodePageToUtf8(row.Code.View()) + ", names no airway");
  }

  // Airways get their limits, and the fixes between that the file leaves out.
  void TakeAirways() {
    FixedText<10> unknown;
    for (int i = 1; i < plan.DestinationRow(); ++i) {
      const FixedText<10> airway = plan.Row(i).Airway;
      const bool sought = plan.Row(i).HasAirway() && plan.Row(i).AirwayMaxAlt < 0;
      const int rows = plan.RowCount();
      const bool joined = !sought || JoinByAirway(i);
      i += plan.RowCount() - rows;
      if (!joined && !(airway == unknown) && IsKnown(i - 1) && IsKnown(i))
        problems.Add(CodePageToUtf8(airway.View()) + " to " + CodePageToUtf8(plan.Row(i).Code.View()) +
                     " is not in the database; only its name is kept");
      unknown = joined ? FixedText<10>() : airway;
    }
  }

  // A position in place of what the database lacks has been told already.
  bool IsKnown(int row) const { return !(plan.Row(row).Sym == "Uwp"); }

  void JoinDoubled() {
    const int rows = plan.RowCount();
    RebuildTable(plan, context);
    if (const int joined = rows - plan.RowCount(); joined > 0)
      problems.Add(std::to_string(joined) + " points that repeat the one before them are left out");
  }

  bool JoinByAirway(int i) {
    const std::int32_t from = AirwayNodeOf(plan.Row(i - 1), database);
    const std::int32_t to = AirwayNodeOf(plan.Row(i), database);
    if (from < 0 || to < 0 || from == to) return false;
    const std::string airway = plan.Row(i).Airway.Text();
    const FlightPlan before = plan;
    for (const int network : {1, 2}) {
      if (!ExpandAirway(plan, context, from, to, airway, network, i - 1)) continue;
      const int inserted = plan.RowCount() - before.RowCount();
      if (plan.RowCount() <= lastRowInFile + 2) {
        for (int row = i; row < i + inserted; ++row)
          plan.Row(row).Kind = plan.Row(i + inserted).Kind;
        return true;
      }
      plan = before;  // too long for a plan's file
    }
    return false;
  }

  // ---- header

  void TakeProcedureNames() {
    plan.SidName = ProcedureText(file.sid);
    plan.StarName = ProcedureText(file.star);
    if (!file.sid.empty() && plan.SidRows() == 0)
      problems.Add("of the SID " + file.sid + " the file has only the name");
    if (!file.star.empty() && plan.StarRows() == 0)
      problems.Add("of the STAR " + file.star + " the file has only the name");
  }

  // As it comes back from our own file.
  static std::string ProcedureText(const std::string& name) {
    return OneLine(CodePageToUtf8(Utf8ToCodePage(OneLine(name))));
  }

  void TakeHeader() {
    if (EqualNoCase(file.planType, "VFR")) plan.PlanType = "VFR";
    if (file.routeType) plan.RouteType = *file.routeType;
    TakeAlternate();
    RecomputePlan(plan, context);
    if (file.cruiseFeet == 0) return;
    if (file.cruiseFeet >= lowestCruiseFeet && file.cruiseFeet <= highestCruiseFeet) {
      plan.CruiseFL = RoundToEven(file.cruiseFeet / 100);
    } else {
      problems.Add("the cruise altitude " + FormatPicture(file.cruiseFeet, "0") + " ft is not taken");
    }
  }

  void TakeAlternate() {
    const ForeignAirport& wanted = file.alternate;
    if (wanted.code.empty() && wanted.name.empty()) return;
    const Position destination{plan.DestinationLat, plan.DestinationLon};
    const std::int32_t row = wanted.code.empty()
                                 ? NearestAirportNamed(database, Utf8ToCodePage(wanted.name), destination)
                                 : MatchAirport(database, wanted, true).row;
    if (row >= 0) return SetAlternate(plan, context, row);
    problems.Add("the alternate " + (wanted.code.empty() ? wanted.name : wanted.code) +
                 " is not in the database");
  }

  const PlanContext& context;
  const NavDatabase& database;
  ForeignPlan& file;
  ImportProblems& problems;
  FlightPlan plan;
};

}  // namespace

PlanImport ImportPlan(FlightPlan& plan, const PlanContext& context, std::string_view text) {
  PlanImport import;
  std::optional<ForeignPlan> file = ReadForeignPlan(text);
  if (!file) {
    context.messages.Show("This file is no flight plan of a kind that can be imported!",
                          MessageIcon::exclamation);
    return import;
  }
  import.format = file->format;
  std::optional<FlightPlan> made = Importer(context, *file).Run();
  import.problems = file->problems.Lines();
  import.valid = made.has_value();
  if (made) plan = *std::move(made);
  return import;
}

std::string ImportSummary(const PlanImport& import, const FlightPlan& plan, std::size_t mostLines) {
  if (import.problems.empty()) return {};
  std::string text = CodePageToUtf8(plan.rows.front().Code.View()) + " to " +
                     CodePageToUtf8(plan.rows.back().Code.View()) + " is imported (" + import.format +
                     "). Not as the file has it:\n";
  const std::size_t shown = std::min(mostLines, import.problems.size());
  for (std::size_t i = 0; i < shown; ++i)
    text += "\n" + import.problems[i];
  if (import.problems.size() > shown)
    text += "\n... and " + std::to_string(import.problems.size() - shown) + " more, all in the protocol log";
  return text;
}
