// The commands of velmora-cli. Each prints its result on standard output and
// returns the program's exit code.
#pragma once

#include <string>
#include <vector>

#include "cli/cli_output.h"
#include "flightplan/navaid_route.h"

int RunInfo(const CliOptions& options);
int RunFind(const CliOptions& options, const std::string& ident);
int RunCourse(const CliOptions& options, const std::vector<double>& positions);
int RunAircraft(const CliOptions& options);

// Where a plan goes besides standard output.
struct PlanFiles {
  std::string saveAs;                // a .pln file; empty: not saved
  std::vector<std::string> formats;  // names of plan_formats.h; "all": every one
  std::string out = ".";             // the folder of their files
  std::string name;                  // of theirs, without its ending; empty: as saved, else by the airports
};

enum class PlanMode { direct, navaid, lowAltitude, highAltitude, route };

struct PlanRequest {
  std::string departure;
  std::string destination;
  PlanMode mode = PlanMode::direct;
  NavaidKinds kinds;  // of the navaid mode
  std::string route;  // of the route mode: the whole string, or what stands between the airports
  std::string sid;    // names of procedures; empty: none
  std::string star;
  std::string alternate;        // airport code; empty: none
  std::optional<int> aircraft;  // number; nothing: the settings' aircraft
  PlanFiles files;
};

int RunPlan(const CliOptions& options, const PlanRequest& request);

struct OpenRequest {
  std::string file;  // a .pln file of ours
  PlanFiles files;
};

int RunOpen(const CliOptions& options, const OpenRequest& request);
