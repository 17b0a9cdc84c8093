// A plan saved: one file for each format that the pilot has ticked, all under
// one name, one behind the other. What goes wrong with a format is told and the
// others are written all the same.
#pragma once

#include <chrono>
#include <filesystem>
#include <string>
#include <vector>

#include "base/app_folder.h"
#include "flightplan/flight_plan.h"
#include "flightplan/formats/plan_formats.h"
#include "flightplan/plan_context.h"
#include "settings/settings.h"

inline constexpr std::string_view noFileNameText = "Please specify file name!";
inline constexpr std::string_view simulatorInvalidText =
    "\nFlight plan cannot be saved because FS Path unknown!\n      Please specify FS Path in Options Window!";
inline constexpr std::string_view noPlanNameText = "No flight plan specified; use menu <save as..>!";

// What a save works with besides the plan.
struct PlanSaving {
  const FlightPlan& plan;
  PlanContext context;  // messages go to its box
  const AppFolder& home;
  Settings& settings;
  std::string simulatorPath;       // root folder of the simulator in use, empty if unknown
  std::chrono::sys_seconds now{};  // UTC
  std::string airacCycle;          // as plan_export.h takes it
};

struct PlanSaveChoice {
  std::string name;              // as typed, UTF-8
  std::filesystem::path folder;  // of the plan
  std::int32_t formats = 0;      // bit i: the format of box i
};

struct PlanSaved {
  std::filesystem::path ownFile;               // the plan's own file; empty: not written
  std::vector<std::filesystem::path> written;  // all files, in the order of writing
  int failures = 0;                            // formats that were asked for and not written
  bool valid = false;                          // false: nothing was tried, the name is no file name
};

// Writes the ticked formats in the table's order. Keeps the choice in FPSEL and
// the first folder in FPPATH09 or FPPATH10.
PlanSaved SavePlan(const PlanSaving& saving, const PlanSaveChoice& choice);

// Writes the plan's own format into the file. On failure the pilot is told, the
// file is as it was, and the result is false.
bool SaveOwnPlan(const PlanSaving& saving, const std::filesystem::path& file);

// The message about an airport without runways, for a format that needs them;
// empty if the plan can be written.
std::string RunwayFault(const PlanExport& plan, const PlanFormatInfo& format);

// Writes one format into the file, whole, and what belongs beside it if it is
// not there yet. False if the file is as it was. reason is set whenever
// something could not be written.
bool WriteFormatFile(const PlanExport& plan, const PlanFormatInfo& format, const std::filesystem::path& file,
                     std::string& reason);

// Where each ticked format would go, for a question before it is replaced.
std::vector<std::filesystem::path> PlanFilesOf(const PlanSaving& saving, const PlanSaveChoice& choice);
