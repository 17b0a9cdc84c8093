#include "cli/plan_output.h"

#include <algorithm>
#include <iostream>

#include "base/files.h"
#include "base/numbers.h"
#include "cli/plan_document.h"
#include "flightplan/aircraft_file.h"
#include "flightplan/plan_file.h"
#include "flightplan/plan_reader.h"

namespace {

void PrintForPeople(const FlightPlan& plan, const AircraftRec& aircraft) {
  std::cout << Utf8(plan.rows.front().Code.View()) << " to " << Utf8(plan.rows.back().Code.View()) << "  "
            << plan.TotalDistance << " NM  " << FormatMinutes(plan.TotalMinutes) << "  FL " << plan.CruiseFL
            << "  " << aircraft.Name << "\n\n";
  for (std::size_t i = 0; i < plan.rows.size(); ++i) {
    const PlanWaypoint& row = plan.rows[i];
    const std::string code = Utf8(row.Code.View());
    const std::string airway = row.HasAirway() ? Utf8(row.Airway.View()) : "";
    std::printf("%4zu  %-4s %-10s %-8s %6.1f NM  %s  %s  %s\n", i, Utf8(row.Sym.View()).c_str(), code.c_str(),
                airway.c_str(), static_cast<double>(row.Dist), FormatPicture(row.Course, "000").c_str(),
                FormatLat(row.Lat, 1).c_str(), FormatLon(row.Lon, 1).c_str());
  }
}

}  // namespace

std::optional<AircraftRec> ChooseAircraft(const CliOptions& options, const Settings& settings,
                                          std::optional<int> wanted) {
  const auto path = options.home.Resolve(aircraftFileName);
  const AircraftFile file = ReadAircraftFile(path);
  const auto hasWanted = [&](const AircraftRec& aircraft) { return aircraft.Number == *wanted; };
  if (wanted && std::none_of(file.aircraft.begin(), file.aircraft.end(), hasWanted)) {
    Fail("there is no aircraft number " + std::to_string(*wanted) + " in " + path.string());
    return std::nullopt;
  }
  auto aircraft = ReadAircraft(file.aircraft, wanted.value_or(settings.AIRCRAFT));
  if (!aircraft) Fail("there is no aircraft in " + path.string());
  return aircraft;
}

void PrintPlan(const CliOptions& options, const FlightPlan& plan, const PlanContext& context, int fuelUnit,
               const CliMessages& messages) {
  if (options.json) {
    PrintJson(PlanDocument(plan, context, fuelUnit, messages.ToJson()));
  } else {
    PrintForPeople(plan, context.aircraft);
  }
}

bool OpenPlan(const std::string& path, FlightPlan& plan, const PlanContext& context) {
  std::string reason;
  const std::optional<FileBytes> file = ReadWholeFile(path, &reason);
  if (!file) {
    Fail(reason);
    return false;
  }
  const PlanReading reading = ReadPlan(plan, context, file->Text());
  for (const std::string& problem : reading.problems)
    std::cerr << path << ": " << problem << '\n';
  if (!reading.valid) Fail(path + " was not opened");
  return reading.valid;
}

int SavePlanAs(const std::string& path, const FlightPlan& plan, const NavDatabase& database) {
  std::string reason;
  if (ReplaceFile(path, WritePlan(plan, database, PlanFormat::FS), &reason)) return exitDone;
  return Fail("the plan was not saved: " + reason);
}
