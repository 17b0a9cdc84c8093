#include "cli/plan_output.h"

#include <algorithm>
#include <chrono>
#include <filesystem>
#include <iostream>
#include <set>

#include "base/files.h"
#include "base/numbers.h"
#include "cli/plan_document.h"
#include "flightplan/aircraft_file.h"
#include "flightplan/formats/plan_formats.h"
#include "flightplan/formats/plan_import.h"
#include "flightplan/plan_file.h"
#include "flightplan/plan_reader.h"
#include "flightplan/save_plan.h"
#include "settings/settings_file.h"
#include "startup/start_checks.h"

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

// What was not taken as the file has it is told like a message of the window.
bool TakeForeignPlan(const std::string& path, std::string_view text, FlightPlan& plan,
                     const PlanContext& context) {
  const PlanImport import = ImportPlan(plan, context, text);
  for (const std::string& problem : import.problems)
    context.messages.Show(problem, MessageIcon::none);
  if (!import.valid) Fail(path + " was not opened");
  return import.valid;
}

// The formats that are named, in the order in which they are written; nothing
// after telling which one does not exist.
std::optional<std::vector<const PlanFormatInfo*>> NamedFormats(const std::vector<std::string>& names) {
  std::vector<const PlanFormatInfo*> formats;
  std::string known;
  for (const PlanFormatInfo& format : PlanFormats()) {
    (known += known.empty() ? "" : ", ") += format.name;
    const auto isNamed = [&](const std::string& name) {
      return name == "all" || EqualNoCase(name, format.name);
    };
    if (std::any_of(names.begin(), names.end(), isNamed)) formats.push_back(&format);
  }
  for (const std::string& name : names) {
    if (name == "all" || FindPlanFormat(name) != nullptr) continue;
    Fail("there is no format " + name + "; the formats are " + known);
    return std::nullopt;
  }
  return formats;
}

std::string Stem(const PlanFiles& files, const PlanExport& plan) {
  if (!files.name.empty()) return files.name;
  if (!files.saveAs.empty()) return std::filesystem::path(files.saveAs).stem().string();
  return Utf8(DepartureOf(plan).strCode.View()) + Utf8(DestinationOf(plan).strCode.View());
}

// Two formats with one ending get names of their own.
std::filesystem::path FileFor(const PlanFormatInfo& format, const PlanFiles& files, const PlanExport& plan,
                              std::set<std::string>& taken) {
  const std::string stem = Stem(files, plan);
  std::string name = stem + std::string(format.extension);
  if (!taken.insert(name).second) {
    name = stem + "." + std::string(format.name) + std::string(format.extension);
    taken.insert(name);
  }
  return std::filesystem::path(files.out) / name;
}

int ExportPlan(const PlanFiles& files, const CliOptions& options, const FlightPlan& plan,
               const PlanContext& context, int fuelUnit) {
  const auto formats = NamedFormats(files.formats);
  if (!formats) return exitWrongUsage;
  Session session(options.home);
  ReadAirac(session);
  const auto now = std::chrono::floor<std::chrono::seconds>(std::chrono::system_clock::now());
  const PlanExport made = MakePlanExport(plan, context, fuelUnit, now, session.strAiracCycle);
  int result = exitDone;
  std::set<std::string> taken;
  for (const PlanFormatInfo* format : *formats) {
    const std::filesystem::path path = FileFor(*format, files, made, taken);
    std::string reason = RunwayFault(made, *format);
    const bool done = reason.empty() && WriteFormatFile(made, *format, path, reason);
    if (done) std::cerr << path.string() << '\n';
    if (!reason.empty()) result = Fail("not exported: " + reason);
  }
  return result;
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
  if (!IsOwnPlan(file->Text())) return TakeForeignPlan(path, file->Text(), plan, context);
  const PlanReading reading = ReadPlan(plan, context, file->Text());
  for (const std::string& problem : reading.problems)
    std::cerr << path << ": " << problem << '\n';
  if (!reading.valid) Fail(path + " was not opened");
  return reading.valid;
}

bool OpenPlan(const CliOptions& options, const std::string& path, OpenedPlan& opened) {
  opened.world = OpenWorld(options);
  if (!opened.world) return false;
  opened.settings = ReadIni(options.home).settings;
  opened.aircraft = ChooseAircraft(options, opened.settings, std::nullopt);
  return opened.aircraft && OpenPlan(path, opened.plan, opened.Context());
}

int WritePlanFiles(const PlanFiles& files, const CliOptions& options, const FlightPlan& plan,
                   const PlanContext& context, int fuelUnit) {
  if (files.saveAs.empty() && files.formats.empty()) return exitDone;
  if (plan.MissingWaypoints) return Fail("a plan with missing waypoints is not saved");
  std::string reason;
  if (!files.saveAs.empty() &&
      !ReplaceFile(files.saveAs, WritePlan(plan, context.database, PlanFormat::FS), &reason))
    return Fail("the plan was not saved: " + reason);
  return files.formats.empty() ? exitDone : ExportPlan(files, options, plan, context, fuelUnit);
}
