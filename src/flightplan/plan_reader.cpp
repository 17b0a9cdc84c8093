#include "flightplan/plan_reader.h"

#include <array>
#include <map>
#include <optional>

#include "base/code_page.h"
#include "base/numbers.h"
#include "flightplan/object_lookup.h"
#include "flightplan/plan_legs.h"
#include "flightplan/plan_rows.h"
#include "flightplan/start_positions.h"
#include "flightplan/waypoint_line.h"
#include "navdata/airport_search.h"
#include "navdata/geodesy.h"

namespace {

constexpr std::size_t mostProblems = 100;

// What the file says, before it meets a database.
struct PlanText {
  bool ours = false;
  std::map<std::string, std::string, std::less<>> values;  // of the keys that are read, code page
  std::map<int, PlanWaypoint> rows;
  std::vector<std::string> problems;

  std::string_view Value(std::string_view key) const {
    const auto at = values.find(key);
    return at == values.end() ? std::string_view{} : Trimmed(at->second);
  }
};

constexpr std::array<std::string_view, 12> readKeys = {
    "type", "alternate_name", "DepartAPCode", "DepartNum", "DepartID",   "DepartType", "DestAPCode",
    "SID",  "STAR",           "DestRwy",      "DestRwyID", "DestRwyHead"};

void Report(std::vector<std::string>& problems, const std::string& problem) {
  if (problems.size() < mostProblems) problems.push_back(problem);
}

void TakeRow(PlanText& file, std::string_view line, int lineNumber) {
  const std::size_t comma = line.find(',');
  const std::int32_t index = ValInt32(line.substr(0, comma));
  const std::string where = "line " + std::to_string(lineNumber) + ": ";
  if (index < 1 || index > lastRowInFile)
    return Report(file.problems, where + "the number of the waypoint is not 1 to 500; it is left out");
  const std::string_view fields = comma == std::string_view::npos ? "" : line.substr(comma + 1);
  const std::optional<PlanWaypoint> row = WaypointOfFields(fields);
  if (!row) return Report(file.problems, where + "the waypoint is not complete; it is left out");
  file.rows[index] = *row;
}

void TakeLine(PlanText& file, std::string_view line, int number) {
  if (line.starts_with("[VLM")) file.ours = true;
  if (line.starts_with("WP=")) return TakeRow(file, line.substr(3), number);
  const std::size_t equals = line.find('=');
  if (equals == std::string_view::npos) return;
  const std::string_view key = Trimmed(line.substr(0, equals));
  for (const std::string_view read : readKeys)
    if (key == read) file.values[std::string(key)] = line.substr(equals + 1);
}

PlanText ReadLines(std::string_view text) {
  PlanText file;
  int number = 0;
  while (!text.empty()) {
    const std::size_t end = text.find_first_of("\r\n");
    TakeLine(file, text.substr(0, end), ++number);
    if (end == std::string_view::npos) break;
    const bool two = text.substr(end, 2) == "\r\n";
    text.remove_prefix(end + (two ? 2 : 1));
  }
  return file;
}

// ---- meeting the database

void ValidatePlan(FlightPlan& plan, const PlanContext& context, std::vector<std::string>& problems) {
  for (int i = 1; i < plan.DestinationRow(); ++i) {
    PlanWaypoint& row = plan.Row(i);
    if (FindObject(row, context.database)) continue;
    plan.MissingWaypoints = true;
    Report(problems, CodePageToUtf8(row.Sym.View()) + " " + CodePageToUtf8(row.Code.View()) +
                         " is not in the database near " + FormatLat(row.Lat, 1) + " " +
                         FormatLon(row.Lon, 1));
  }
  if (plan.MissingWaypoints)
    context.messages.Show(
        "Some waypoints are missing in current database!\n      Flight plan cannot be modified or saved!",
        MessageIcon::none);
}

std::int32_t AirportOf(const PlanText& file, std::string_view key, const PlanContext& context) {
  const std::string_view code = file.Value(key);
  const std::int32_t row = context.database.FindAirportByCode(code);
  if (row >= 0 && row < context.database.AirportCount()) return row;
  context.messages.Show(CodePageToUtf8(code) + " is not in currently loaded database!",
                        MessageIcon::exclamation);
  return -1;
}

// The start that the file names: by its number, else the airport's own position.
void TakeStart(FlightPlan& plan, const PlanContext& context, const PlanText& file) {
  const std::vector<StartPosition> starts = StartPositions(context.database, plan.DepartureIndex);
  plan.DepartureNum = ValInt16(file.Value("DepartNum"));
  plan.DepartureID = CodePageToUtf8(file.Value("DepartID"));
  plan.DepartureType = std::string(file.Value("DepartType"));
  const int chosen = FindStart(starts, plan);
  if (chosen >= 0) SetStartPosition(plan, context, &starts[static_cast<std::size_t>(chosen)]);
}

// The airport of the file's alternate name, of several the one nearest to the destination.
std::int32_t AlternateOf(const PlanText& file, const FlightPlan& plan, const NavDatabase& database) {
  return NearestAirportNamed(database, file.Value("alternate_name"),
                             {plan.DestinationLat, plan.DestinationLon});
}

void TakeRows(FlightPlan& plan, const PlanContext& context, const PlanText& file) {
  for (const auto& [number, row] : file.rows)
    plan.rows.insert(plan.rows.end() - 1, row);
  for (int i = 1; i < plan.DestinationRow(); ++i) {
    const float course = plan.Row(i).Course;
    ComputeLeg(plan, context.aircraft, i);
    plan.Row(i).Course = course;
  }
}

}  // namespace

bool IsOwnPlan(std::string_view text) {
  constexpr std::string_view mark = "[VLM";
  for (std::size_t at = text.find(mark); at != std::string_view::npos; at = text.find(mark, at + 1))
    if (at == 0 || text[at - 1] == '\n' || text[at - 1] == '\r') return true;
  return false;
}

PlanReading ReadPlan(FlightPlan& plan, const PlanContext& context, std::string_view text) {
  PlanText file = ReadLines(text);
  PlanReading reading;
  reading.problems = std::move(file.problems);
  if (!file.ours) {
    context.messages.Show(" Sorry! This is not a valid VLM flight plan!", MessageIcon::exclamation);
    return reading;
  }
  ClearFlightPlan(plan);
  const std::int32_t departure = AirportOf(file, "DepartAPCode", context);
  const std::int32_t destination = departure < 0 ? -1 : AirportOf(file, "DestAPCode", context);
  if (destination < 0) return reading;
  SetDepartureAndDestination(plan, context, departure, destination);
  TakeStart(plan, context, file);
  TakeRows(plan, context, file);
  plan.SidName = CodePageToUtf8(file.Value("SID"));
  plan.StarName = CodePageToUtf8(file.Value("STAR"));
  if (file.Value("type") == "VFR") plan.PlanType = "VFR";
  if (const std::int32_t alternate = AlternateOf(file, plan, context.database); alternate >= 0)
    SetAlternate(plan, context, alternate);
  RecomputePlan(plan, context);
  ValidatePlan(plan, context, reading.problems);
  reading.valid = true;
  return reading;
}
