#include "windows/plan_editor.h"

#include "base/error_trap.h"
#include "base/files.h"
#include "flightplan/cruise_level.h"
#include "flightplan/formats/plan_import.h"
#include "flightplan/plan_drag.h"
#include "flightplan/plan_legs.h"
#include "flightplan/plan_reader.h"
#include "flightplan/plan_rows.h"
#include "flightplan/procedures.h"
#include "flightplan/route_parser.h"
#include "flightplan/route_string.h"
#include "flightplan/segment_insertion.h"
#include "flightplan/waypoint_search.h"

PlanEditor::PlanEditor(Session& session, MessageBox& messages, PointerShape& pointer, QObject* parent)
    : QObject(parent), session(session), messages(messages), pointer(pointer), search(session.database) {}

PlanContext PlanEditor::Context() const {
  return {session.database, session.aircraft, messages, session.settings.FAFDIST, &report};
}

PlanSaving PlanEditor::Saving() const {
  return {session.plan,         Context(),
          session.home,         session.settings,
          session.strFSPath,    std::chrono::floor<std::chrono::seconds>(std::chrono::system_clock::now()),
          session.strAiracCycle};
}

PlanCommandStates PlanEditor::States() const {
  return CommandStates(session.plan, session.planHistory, fromRouteString);
}

void PlanEditor::Trapped(std::string_view head, const std::function<void()>& body) {
  RunTrapped(head, body, [this](const std::string& report) { session.protocol.WriteError(report); });
}

void PlanEditor::Tell() {
  routeText = RouteStringFromPlan(session.plan);
  session.planHistory.Changed(session.plan);
  KeepWithRows(session.navLog, session.plan);
  Q_EMIT Changed();
}

void PlanEditor::Change(std::string_view head, const std::function<void()>& change) {
  Trapped(head, [&] {
    const HourglassWhile working(pointer);
    change();
  });
  for (const std::string& line : report.lines)
    session.protocol.WriteProtocol(line);
  report.lines.clear();
  Trapped(head, [&] { Tell(); });
}

void PlanEditor::StartPlan(int departureRow, int destinationRow) {
  constexpr std::string_view head = "frmMap SelectAirports (";
  fromRouteString = false;
  Change(head, [&] {
    session.navLog = {};
    SetDepartureAndDestination(session.plan, Context(), departureRow, destinationRow);
  });
  if (session.plan.RowCount() >= 2) Q_EMIT Started();
}

void PlanEditor::TakeAirports(const AirportChoice& choice) {
  const bool isNew = IsNewPlan(choice, session.plan);
  if (isNew) fromRouteString = false;
  Change("frmMap SelectAirports (", [&] {
    if (isNew) session.navLog = {};
    ApplyAirports(session.plan, Context(), choice);
  });
  if (isNew && session.plan.RowCount() >= 2) Q_EMIT Started();
}

void PlanEditor::SetAlternate(int airportRow) {
  Change("frmMap mnuAlternate (", [&] { ::SetAlternate(session.plan, Context(), airportRow); });
}

void PlanEditor::SetStart(const StartPosition* start) {
  Change("frmMap lstDep (", [&] { SetStartPosition(session.plan, Context(), start); });
}

void PlanEditor::CreateFP() {
  Change("frmMap mnuCreateNavaid (", [&] {
    const MapSwitches& on = session.switches;
    const Settings& settings = session.settings;
    GenerateNavaidRoute(session.plan, Context(), {on.mnuVOR, on.mnuNDB, on.mnuIntersection},
                        {settings.SECLEN, settings.SECWIDTH, settings.GC != 0});
  });
}

void PlanEditor::GenerateRoute(AirwayNetwork network) {
  Change("frmMap GenerateRoute (", [&] { GenerateAirwayRoute(session.plan, Context(), search, network); });
}

void PlanEditor::TakeRoute(const std::string& text) {
  fromRouteString = true;
  Change("frmMap cmdRoute (", [&] {
    session.navLog = {};
    ParseRoute(session.plan, Context(), text);
  });
  if (session.plan.RowCount() >= 2) Q_EMIT Started();
}

bool PlanEditor::TakeFile(std::string_view head, const std::filesystem::path& file, const std::string& what,
                          const std::function<FileReading(std::string_view bytes)>& read) {
  std::string reason;
  const std::optional<FileBytes> bytes = ReadWholeFile(file, &reason);
  if (!bytes) {
    messages.Show("The flight plan could not be " + what + ".\n\n" + reason, MessageIcon::exclamation);
    return false;
  }
  bool taken = false;
  Change(head, [&] {
    const FileReading reading = read(bytes->Text());
    for (const std::string& problem : reading.problems)
      report.lines.push_back(file.string() + ": " + problem);
    taken = reading.valid;
    if (!taken) return;
    session.navLog = {};
    fromRouteString = false;
  });
  if (taken) Q_EMIT Started();
  return taken;
}

bool PlanEditor::OpenPlan(const std::filesystem::path& file) {
  return TakeFile("Check frmSaveRoute cmdOK (", file, "opened", [&](std::string_view bytes) {
    const PlanReading reading = ReadPlan(session.plan, Context(), bytes);
    return FileReading{reading.valid, reading.problems};
  });
}

bool PlanEditor::ImportPlan(const std::filesystem::path& file) {
  PlanImport import;
  const bool taken = TakeFile("frmMap mnuImport (", file, "imported", [&](std::string_view bytes) {
    import = ::ImportPlan(session.plan, Context(), bytes);
    return FileReading{import.valid, import.problems};
  });
  const std::string summary = taken ? ImportSummary(import, session.plan) : std::string();
  if (!summary.empty()) messages.Show(summary, MessageIcon::none);
  return taken;
}

void PlanEditor::InsertSegment(int afterRow, const std::vector<PlanWaypoint>& rows) {
  Change("Check frmSaveSegment cmdOK (", [&] { ::InsertSegment(session.plan, Context(), afterRow, rows); });
}

void PlanEditor::DeleteEnrouteWPs() {
  bool deleted = false;
  Change("frmMap mnuDeleteEnrouteWPs (", [&] { deleted = DeleteEnrouteWaypoints(session.plan, Context()); });
  if (!deleted) return;
  routeText.clear();
  Q_EMIT Changed();
}

void PlanEditor::DeleteRow(int row) {
  Change("frmMap grdWPTable (", [&] { DeleteTableRow(session.plan, Context(), row); });
}

void PlanEditor::InsertAfterSelection(const PlanWaypoint& row) {
  Change("frmMap lstWP (", [&] { ::InsertAfterSelection(session.plan, Context(), row); });
}

void PlanEditor::MoveRow(int row, const PlanWaypoint& target) {
  Change("frmMap Map_MouseUp (", [&] { MovePlanWaypoint(session.plan, Context(), row, target); });
}

void PlanEditor::InsertBefore(int row, const PlanWaypoint& target) {
  Change("frmMap Map_MouseUp (", [&] { InsertIntoLeg(session.plan, Context(), row, target); });
}

void PlanEditor::StepLevel(bool up) {
  Change("frmMap updnFL (", [&] {
    if (up) {
      RaiseCruiseLevel(session.plan, Context());
    } else {
      LowerCruiseLevel(session.plan);
    }
  });
}

void PlanEditor::ReplaceArrival() {
  Change("frmMap grdWPTable (", [&] { AskReplaceArrivalByAlternate(session.plan, Context()); });
}

std::vector<SidStarEntry> PlanEditor::Procedures(ProcedureKind kind) const {
  const HourglassWhile working(pointer);
  const FlightPlan& plan = session.plan;
  const PlanWaypoint& airport = plan.Row(kind == ProcedureKind::sid ? 0 : plan.DestinationRow());
  return LoadProcedures(session.home, kind, airport.Code.View()).entries;
}

void PlanEditor::TakeProcedure(ProcedureKind kind, const SidStarEntry& entry) {
  Change("frmDisplaySidStar cmdOK (",
         [&] { (kind == ProcedureKind::sid ? ApplySid : ApplyStar)(session.plan, Context(), entry); });
}

void PlanEditor::DeleteProcedure(ProcedureKind kind) {
  Change("frmMap mnuDeleteSid (",
         [&] { (kind == ProcedureKind::sid ? AskDeleteSid : AskDeleteStar)(session.plan, Context()); });
}

void PlanEditor::NewPlan() {
  fromRouteString = false;
  Change("frmMap mnuNewFP (", [&] { ClearFlightPlan(session.plan); });
}

void PlanEditor::Undo() {
  Restore("frmMap mnuUndo (", &PlanHistory::Undo);
}

void PlanEditor::Redo() {
  Restore("frmMap mnuRedo (", &PlanHistory::Redo);
}

void PlanEditor::Restore(std::string_view head, void (PlanHistory::*step)(FlightPlan&)) {
  Change(head, [&] {
    (session.planHistory.*step)(session.plan);
    // The times are those of the aircraft that flies now.
    SelectAircraft(AircraftRec(session.aircraft), session.aircraft, session.plan);
    session.planHistory.Adopt(session.plan);
  });
}

void PlanEditor::TakeAircraft(const AircraftRec& aircraft) {
  Change("frmMap mnuAircraft (", [&] {
    SelectAircraft(AircraftRec(aircraft), session.aircraft, session.plan);
    session.settings.AIRCRAFT = session.aircraft.Number;
    session.planHistory.Adopt(session.plan);
  });
}

void PlanEditor::SetPlanType(const std::string& type) {
  session.plan.PlanType = type;
  session.planHistory.Adopt(session.plan);
}
