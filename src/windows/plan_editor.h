// What the pilot does to the plan in the window: every command is one change,
// with the hourglass, the error trap and a place in the history, and is told to
// whoever shows the plan. The work itself is flightplan/'s.
#pragma once

#include <QObject>
#include <filesystem>
#include <functional>
#include <string>
#include <string_view>

#include "flightplan/airport_choice.h"
#include "flightplan/airway_search.h"
#include "flightplan/plan_commands.h"
#include "flightplan/plan_context.h"
#include "flightplan/procedure_file.h"
#include "flightplan/route_generation.h"
#include "flightplan/route_report.h"
#include "flightplan/save_plan.h"
#include "platform/pointer_shape.h"
#include "startup/session.h"

class PlanEditor : public QObject {
  Q_OBJECT

 public:
  // session must be loaded; all three outlive the editor.
  PlanEditor(Session& session, MessageBox& messages, PointerShape& pointer, QObject* parent = nullptr);

  PlanContext Context() const;
  PlanCommandStates States() const;
  // What a save of the plan works with.
  PlanSaving Saving() const;
  // The plan as one line for txtRoute, UTF-8; empty after all waypoints were deleted.
  const std::string& RouteText() const { return routeText; }

  // Runs one change of the plan under the name head. Whatever a change that
  // fails has left behind is shown, and can be undone.
  void Change(std::string_view head, const std::function<void()>& change);

  // The plan between two rows of the airport table.
  void StartPlan(int departureRow, int destinationRow);
  // The airports as the pilot chose them; the rows stay if only the alternate
  // or the start is another.
  void TakeAirports(const AirportChoice& choice);
  // A row of the airport table, -1: none.
  void SetAlternate(int airportRow);
  // Null: the airport's own position.
  void SetStart(const StartPosition* start);
  void CreateFP();
  void GenerateRoute(AirwayNetwork network);
  // The plan that text says.
  void TakeRoute(const std::string& text);
  // The plan of a file (plan_reader.h). One that cannot be read leaves the plan
  // as it is and is told; what cannot be taken from it goes into the protocol log.
  // True if the plan is the file's now.
  bool OpenPlan(const std::filesystem::path& file);
  // The rows of a segment behind a row of the plan.
  void InsertSegment(int afterRow, const std::vector<PlanWaypoint>& rows);
  // The plan of a file that another program wrote (plan_import.h). What was not taken as the file has it is
  // shown and goes into the protocol log. True if the plan is the file's now.
  bool ImportPlan(const std::filesystem::path& file);
  void DeleteEnrouteWPs();
  void DeleteRow(int row);
  // What the file has for the plan's departure (SIDs) or destination (STARs).
  // Throws std::runtime_error if it cannot be read.
  std::vector<SidStarEntry> Procedures(ProcedureKind kind) const;
  void TakeProcedure(ProcedureKind kind, const SidStarEntry& entry);
  // On the pilot's yes.
  void DeleteProcedure(ProcedureKind kind);
  // A waypoint behind the selected row.
  void InsertAfterSelection(const PlanWaypoint& row);
  // A waypoint pulled to another place, and one pulled out of the leg that leads to row.
  void MoveRow(int row, const PlanWaypoint& target);
  void InsertBefore(int row, const PlanWaypoint& target);
  void StepLevel(bool up);
  // Asks whether the flight goes to the alternate instead.
  void ReplaceArrival();
  void NewPlan();
  void Undo();
  void Redo();
  void TakeAircraft(const AircraftRec& aircraft);
  // "IFR" or "VFR"; nothing that could be undone.
  void SetPlanType(const std::string& type);

 Q_SIGNALS:
  // The plan is another, or has other figures.
  void Changed();
  // A plan has begun: the map shows the whole of it.
  void Started();

 private:
  // The plan that read() makes of the file's bytes, giving what it could not take as it stands and whether
  // the plan is the file's now. what: "opened", for the message about a file that cannot be read.
  struct FileReading {
    bool valid = false;
    std::vector<std::string> problems;
  };
  bool TakeFile(std::string_view head, const std::filesystem::path& file, const std::string& what,
                const std::function<FileReading(std::string_view bytes)>& read);
  void Trapped(std::string_view head, const std::function<void()>& body);
  void Restore(std::string_view head, void (PlanHistory::*step)(FlightPlan&));
  void Tell();

  Session& session;
  MessageBox& messages;
  PointerShape& pointer;
  AirwaySearch search;
  mutable RouteReport report;  // of the change that runs; goes into the protocol log
  std::string routeText;
  bool fromRouteString = false;  // as the plan last began
};
