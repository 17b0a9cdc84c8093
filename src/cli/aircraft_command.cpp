#include <cstdio>

#include "cli/commands.h"
#include "flightplan/aircraft_file.h"

namespace {

Json ToJson(const AircraftRec& aircraft) {
  return {{"number", aircraft.Number},
          {"name", aircraft.Name},
          {"climbRate", aircraft.ClimbRate},
          {"climbSpeed", aircraft.ClimbSpeed},
          {"descentRate", aircraft.DescentRate},
          {"descentSpeed", aircraft.DescentSpeed},
          {"cruiseSpeed", aircraft.CruiseSpeed},
          {"approachSpeed", aircraft.ApproachSpeed},
          {"maxFuel", aircraft.MaxFuel},
          {"ceiling", aircraft.Ceiling},
          {"cruiseFlightLevel", aircraft.CruiseFlightLevel},
          {"emptyWeight", aircraft.EmptyWeight},
          {"loadWeight", aircraft.LoadWeight},
          {"maxWeight", aircraft.MaxWeight},
          {"approachAltitude", aircraft.ApproachAltitude},
          {"maxRange", aircraft.MaxRange}};
}

}  // namespace

int RunAircraft(const CliOptions& options) {
  const AircraftFile file = ReadAircraftFile(options.home.Resolve(aircraftFileName));
  for (const std::string& problem : file.problems)
    std::fprintf(stderr, "velmora-cli: %s\n", problem.c_str());
  if (options.json) {
    Json list = Json::array();
    for (const AircraftRec& aircraft : file.aircraft)
      list.push_back(ToJson(aircraft));
    PrintJson(list);
  } else {
    std::printf("%4s  %-32s %8s %7s %8s %9s %9s\n", "No", "Name", "Cruise", "Level", "Ceiling", "Range",
                "MaxFuel");
    for (const AircraftRec& aircraft : file.aircraft) {
      std::printf("%4d  %-32s %4d kts  FL %03d  FL %03d  %6d NM %6d kg\n", aircraft.Number,
                  aircraft.Name.c_str(), aircraft.CruiseSpeed, aircraft.CruiseFlightLevel, aircraft.Ceiling,
                  aircraft.MaxRange, aircraft.MaxFuel);
    }
  }
  return file.aircraft.empty()
             ? Fail("there is no aircraft in " + options.home.Resolve(aircraftFileName).string())
             : exitDone;
}
