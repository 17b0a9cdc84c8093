#include <iostream>

#include "base/numbers.h"
#include "cli/commands.h"
#include "cli/plan_output.h"
#include "flightplan/plan_rows.h"
#include "flightplan/procedures.h"
#include "flightplan/route_generation.h"
#include "flightplan/route_parser.h"
#include "flightplan/route_report.h"
#include "flightplan/route_string.h"
#include "settings/settings_file.h"

namespace {

// The airport with this code as typed, else in capitals; -1 after telling that there is none.
std::int32_t FindAirport(const NavDatabase& database, const std::string& code) {
  const std::int32_t asTyped = database.FindAirportByCode(code);
  const std::int32_t row = asTyped >= 0 ? asTyped : database.FindAirportByCode(AsciiUpper(code));
  if (row < 0 || row >= database.AirportCount()) {
    Fail("there is no airport " + code + " in the database");
    return -1;
  }
  return row;
}

// The text between the airports, or the whole string, as the whole string.
std::string WholeRoute(const FlightPlan& plan, const std::string& text) {
  const std::string departure = Utf8(plan.Row(0).Code.View());
  const std::string destination = Utf8(plan.Row(plan.DestinationRow()).Code.View());
  const std::string between = PlainRouteText(text);
  const bool whole = between.starts_with(departure + " ") && between.ends_with(" " + destination);
  return whole ? between : departure + " " + between + " " + destination;
}

bool MakeRoute(FlightPlan& plan, const PlanContext& context, const PlanRequest& request,
               const Settings& settings) {
  if (request.mode == PlanMode::direct) return true;
  if (request.mode == PlanMode::navaid)
    return GenerateNavaidRoute(plan, context, request.kinds,
                               {settings.SECLEN, settings.SECWIDTH, settings.GC != 0});
  if (request.mode == PlanMode::route) {
    const std::int32_t alternate = plan.AlternateIndex;
    const bool complete = ParseRoute(plan, context, WholeRoute(plan, request.route));
    SetAlternate(plan, context, alternate);
    return complete;
  }
  AirwaySearch search(context.database);
  return GenerateAirwayRoute(
      plan, context, search,
      request.mode == PlanMode::lowAltitude ? AirwayNetwork::lowAltitude : AirwayNetwork::highAltitude);
}

// False after telling that the airport has no such procedure.
bool AddProcedure(FlightPlan& plan, const PlanContext& context, const CliOptions& options, ProcedureKind kind,
                  const std::string& name) {
  if (name.empty()) return true;
  const bool isSid = kind == ProcedureKind::sid;
  const std::string airport = plan.Row(isSid ? 0 : plan.DestinationRow()).Code.Text();
  for (const SidStarEntry& entry : LoadProcedures(options.home, kind, airport).entries) {
    if (!EqualNoCase(entry.Name.View(), name)) continue;
    isSid ? ApplySid(plan, context, entry) : ApplyStar(plan, context, entry);
    return true;
  }
  Fail(airport + " has no " + (isSid ? "SID " : "STAR ") + name);
  return false;
}

bool AddProcedures(FlightPlan& plan, const PlanContext& context, const CliOptions& options,
                   const PlanRequest& request) {
  return AddProcedure(plan, context, options, ProcedureKind::sid, request.sid) &&
         AddProcedure(plan, context, options, ProcedureKind::star, request.star);
}

}  // namespace

int RunPlan(const CliOptions& options, const PlanRequest& request) {
  auto world = OpenWorld(options);
  if (!world) return exitNotDone;
  const Settings settings = ReadIni(options.home).settings;
  const std::int32_t departure = FindAirport(world->database, request.departure);
  const std::int32_t destination = departure < 0 ? -1 : FindAirport(world->database, request.destination);
  if (destination < 0) return exitNotDone;
  const auto aircraft = ChooseAircraft(options, settings, request.aircraft);
  if (!aircraft) return exitNotDone;

  CliMessages messages;
  RouteReport report;
  const PlanContext context{world->database, *aircraft, messages, settings.FAFDIST, &report};
  FlightPlan plan;
  SetDepartureAndDestination(plan, context, departure, destination);
  if (!request.alternate.empty()) {
    const std::int32_t alternate = FindAirport(world->database, request.alternate);
    if (alternate < 0) return exitNotDone;
    SetAlternate(plan, context, alternate);
  }
  // A route string makes the plan anew; the builders fill the way between the procedures.
  const bool routeFirst = request.mode == PlanMode::route;
  bool generated = !routeFirst || MakeRoute(plan, context, request, settings);
  if (!AddProcedures(plan, context, options, request)) return exitNotDone;
  if (!routeFirst) generated = MakeRoute(plan, context, request, settings);
  for (const std::string& line : report.lines)
    std::cerr << line << '\n';
  PrintPlan(options, plan, context, settings.FUEL, messages);
  if (!generated) return Fail("the route could not be built");
  return WritePlanFiles(request.files, options, plan, context, settings.FUEL);
}
