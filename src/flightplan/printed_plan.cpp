#include "flightplan/printed_plan.h"

#include <algorithm>

#include "base/code_page.h"
#include "flightplan/leg_cells.h"
#include "flightplan/printed_information.h"
#include "flightplan/procedure_chart.h"
#include "flightplan/zone_crossings.h"

namespace {

std::string_view RouteTypeText(RouteGenerator method) {
  switch (method) {
    case RouteGenerator::highAltitude:
      return "(High Altitude Airways)";
    case RouteGenerator::lowAltitude:
      return "(Low Altitude Airways)";
    case RouteGenerator::navaid:
      return "(Navaid to Navaid)";
    case RouteGenerator::none:
      break;
  }
  return {};
}

std::string CodeOf(const PlanWaypoint& row) {
  return CodePageToUtf8(row.Code.View());
}

std::string CodeAndName(const PlanWaypoint& row) {
  return CodeOf(row) + " (" + CodePageToUtf8(row.Name.View());
}

PrintedSection WaypointList(const PrintSources& from) {
  const NavLog nothingFlown;
  LegCells cells(from.plan, from.context.database, nothingFlown, from.settings);
  cells.Refresh();
  constexpr std::pair<LegColumn, PrintedAlign> columns[] = {
      {LegColumn::code, PrintedAlign::left},      {LegColumn::name, PrintedAlign::left},
      {LegColumn::freq, PrintedAlign::right},     {LegColumn::course, PrintedAlign::right},
      {LegColumn::distance, PrintedAlign::right}, {LegColumn::eta, PrintedAlign::right}};
  PrintedBlock block;
  for (const auto& [column, align] : columns) {
    const std::string heading = column == LegColumn::eta ? "Time" : LegHeading(column, from.settings.FUEL);
    block.table.columns.push_back({heading, align, column == LegColumn::name});
  }
  for (int row = 0; row < from.plan.RowCount(); ++row) {
    std::vector<std::string>& line = block.table.rows.emplace_back();
    for (const auto& [column, align] : columns)
      line.push_back(cells.Text(row, column));
  }
  return {" Waypoints ", false, {std::move(block)}};
}

// What the plan has of a procedure.
struct ProcedureInUse {
  const std::string& name;
  const std::vector<ProcedureStep>& steps;  // empty in a plan from a file
  std::string runway;                       // of the plan's start; empty: not known
};

bool SameSteps(const SidStarEntry& entry, const std::vector<ProcedureStep>& steps) {
  return std::equal(
      entry.Steps.begin(), entry.Steps.end(), steps.begin(), steps.end(),
      [](const ProcedureStep& a, const ProcedureStep& b) { return a.Code == b.Code && a.Type == b.Type; });
}

// The entry that the plan uses: of those of its name the one with its steps,
// then one for its runway. Without any, the steps that the plan keeps.
SidStarEntry EntryOf(const std::vector<SidStarEntry>& entries, const ProcedureInUse& used) {
  const SidStarEntry* best = nullptr;
  int bestPoints = -1;
  for (const SidStarEntry& entry : entries) {
    if (CodePageToUtf8(entry.Name.View()) != used.name) continue;
    const int points = (!used.steps.empty() && SameSteps(entry, used.steps) ? 2 : 0) +
                       (!used.runway.empty() && IsForRunway(entry, used.runway) ? 1 : 0);
    if (points > bestPoints) best = &entry, bestPoints = points;
  }
  if (best != nullptr && (used.steps.empty() || bestPoints >= 2)) return *best;
  SidStarEntry kept;
  kept.Runway = used.runway.empty() ? "00" : Utf8ToCodePage(used.runway);
  kept.Steps = used.steps;
  return kept;
}

PrintedBlock ProcedureBlock(std::string_view heading, const std::string& airport, const std::string& name,
                            const std::string& runway, const std::string& text) {
  PrintedBlock block;
  block.heading = std::string(heading) + (runway.empty() ? "(any)" : GetRwyName(runway));
  block.lines = {{"", airport + "   " + name},
                 {"", text.empty() ? "The database does not tell how it is flown." : text}};
  return block;
}

PrintedSection DepartureAndArrivalRoutes(const PrintSources& from) {
  const FlightPlan& plan = from.plan;
  const NavDatabase& database = from.context.database;
  PrintedSection section{"Departure and Arrival Routes", false, {}};
  const auto runwayOf = [](const SidStarEntry& entry, const std::string& otherwise) {
    return entry.AnyRunway() ? otherwise : CodePageToUtf8(entry.Runway.View());
  };
  if (!plan.SidName.empty()) {
    const std::string start = plan.DepartureType == "Gate" ? "" : plan.DepartureID;
    const SidStarEntry entry = EntryOf(from.departures, {plan.SidName, plan.SidSteps, start});
    section.blocks.push_back(ProcedureBlock("   Departure for Rwy ", CodeOf(plan.rows.front()), plan.SidName,
                                            runwayOf(entry, start),
                                            DepartureText(entry, database, SentenceStart::small)));
  }
  if (!plan.StarName.empty()) {
    const SidStarEntry entry = EntryOf(from.arrivals, {plan.StarName, plan.StarSteps, ""});
    const std::string runway = runwayOf(entry, "");
    const auto landing =
        plan.DestinationIndex >= 0 ? LandingOn(database, plan.DestinationIndex, runway) : std::nullopt;
    section.blocks.push_back(ProcedureBlock("   Arrival for Rwy ", CodeOf(plan.rows.back()), plan.StarName,
                                            runway, ArrivalText(entry, landing)));
  }
  if (section.blocks.empty()) {
    PrintedBlock none;
    none.lines = {{"", "The plan has no departure and no arrival route."}};
    section.blocks.push_back(std::move(none));
  }
  return section;
}

PrintedSection ControlZones(const PrintSources& from) {
  const NavDatabase& database = from.context.database;
  PrintedSection section{"Control Zone Information - Page: ", true, {}};
  for (const LegZones& leg : ZonesOnRoute(from.plan, database)) {
    PrintedBlock block;
    block.close = true;
    const std::string codes = CodeOf(from.plan.Row(leg.row - 1)) + " to " + CodeOf(from.plan.Row(leg.row));
    for (const ZoneCrossing& zone : leg.zones)
      block.lines.push_back({"", ZoneText(database.airspaces[static_cast<std::size_t>(zone.row)])});
    if (leg.zones.empty()) block.lines.push_back({"", "no control zone"});
    block.lines.front().label = "Leg: " + codes + " crossing:";
    section.blocks.push_back(std::move(block));
  }
  return section;
}

}  // namespace

PrintedPlan BuildPrintedPlan(const PrintSources& sources, const PrintChoices& choices) {
  const FlightPlan& plan = sources.plan;
  PrintedPlan printed;
  printed.title = "Velmora Flight Plan";
  printed.routeType = RouteTypeText(plan.RouteMethod);
  printed.routeLine =
      CodeAndName(plan.Row(0)) + ") >>> " + CodeAndName(plan.Row(plan.DestinationRow())) + ")";
  printed.map = choices.map;
  if (choices.information)
    printed.sections.push_back({"   General Flight Information ", false, GeneralFlightInformation(sources)});
  if (choices.waypoints) printed.sections.push_back(WaypointList(sources));
  // A page that only says that there is nothing is not wanted beside others.
  const bool hasProcedures = !plan.SidName.empty() || !plan.StarName.empty();
  const bool onlyProcedures = choices == PrintChoices{false, false, true, false, false};
  if (choices.procedures && (hasProcedures || onlyProcedures))
    printed.sections.push_back(DepartureAndArrivalRoutes(sources));
  if (choices.zones) printed.sections.push_back(ControlZones(sources));
  return printed;
}
