// The plan in the main window: what the plan's menu and buttons do.
#include <QDir>
#include <QFileDialog>
#include <QLayout>

#include "base/files.h"
#include "flightplan/plan_file.h"
#include "flightplan/plan_layers.h"
#include "flightplan/plan_legs.h"
#include "flightplan/plan_rows.h"
#include "flightplan/procedures.h"
#include "flightplan/route_parser.h"
#include "flightplan/route_string.h"
#include "windows/frmMap.h"
#include "windows/frmSelectAP.h"

PlanContext frmMap::Context() const {
  return {session.database, session.aircraft, messages, session.settings.FAFDIST};
}

void frmMap::SelectAirports() {
  Trapped("frmMap SelectAirports (", [&] {
    frmSelectAP dialog(session.database, session.plan.DepartureIndex, session.plan.DestinationIndex, this);
    if (dialog.exec() == QDialog::Accepted) StartPlan(dialog.DepartureRow(), dialog.DestinationRow());
  });
}

void frmMap::StartPlan(int departureRow, int destinationRow) {
  SetDepartureAndDestination(session.plan, Context(), departureRow, destinationRow);
  PlanChanged();
  ShowNewPlan();
}

void frmMap::ShowNewPlan() {
  // The panel takes its place beside the map before the plan is fitted into it.
  centralWidget()->layout()->activate();
  const SurfacePoint visible = Map->VisibleUnits();
  ShowWholePlan(session.plan, session.view, {visible.x, visible.y});
  // Without a simulator the aircraft stands where the flight begins.
  session.view.AircraftLat = session.plan.Row(0).Lat;
  session.view.AircraftLon = session.plan.Row(0).Lon;
  CentreMoved();
}

void frmMap::ChangePlan(std::string_view head, const std::function<void()>& change) {
  // Whatever a change that failed left behind is shown, and can be undone.
  Trapped(head, [&] {
    const HourglassWhile working(pointer);
    change();
  });
  Trapped(head, [&] {
    PlanChanged();
    DrawMap();
  });
}

void frmMap::GenerateRoute(AirwayNetwork network) {
  ChangePlan("frmMap GenerateRoute (",
             [&] { GenerateAirwayRoute(session.plan, Context(), search, network); });
}

void frmMap::CreateFP() {
  ChangePlan("frmMap mnuCreateNavaid (", [&] {
    const MapSwitches& on = session.switches;
    const Settings& settings = session.settings;
    GenerateNavaidRoute(session.plan, Context(), {on.mnuVOR, on.mnuNDB, on.mnuIntersection},
                        {settings.SECLEN, settings.SECWIDTH, settings.GC != 0});
  });
}

void frmMap::TakeRouteText() {
  if (!txtRoute->CanTake()) return;
  ChangePlan("frmMap cmdRoute (",
             [&] { ParseRoute(session.plan, Context(), txtRoute->text().trimmed().toStdString()); });
  if (session.plan.RowCount() >= 2) Trapped("frmMap cmdRoute (", [&] { ShowNewPlan(); });
}

void frmMap::UndoPlan() {
  RestorePlan(&PlanHistory::Undo);
}

void frmMap::RedoPlan() {
  RestorePlan(&PlanHistory::Redo);
}

void frmMap::RestorePlan(void (PlanHistory::*step)(FlightPlan&)) {
  ChangePlan("frmMap mnuUndo (", [&] {
    (session.planHistory.*step)(session.plan);
    // The times are those of the aircraft that flies now.
    SelectAircraft(AircraftRec(session.aircraft), session.aircraft, session.plan);
    session.planHistory.Adopt(session.plan);
  });
}

void frmMap::DeleteEnrouteWPs() {
  ChangePlan("frmMap mnuDeleteEnrouteWPs (", [&] { DeleteEnrouteWaypoints(session.plan, Context()); });
}

void frmMap::DeleteRow(int row) {
  ChangePlan("frmMap grdWPTable (", [&] { DeleteTableRow(session.plan, Context(), row); });
}

void frmMap::TakeAircraft(const AircraftRec& aircraft) {
  Trapped("frmMap mnuAircraft (", [&] {
    SelectAircraft(aircraft, session.aircraft, session.plan);
    session.planHistory.Adopt(session.plan);
    session.settings.AIRCRAFT = aircraft.Number;
    PlanChanged();
  });
}

void frmMap::NewPlan() {
  Trapped("frmMap mnuNewFP (", [&] {
    ClearFlightPlan(session.plan);
    PlanChanged();
    DrawMap();
  });
}

QString frmMap::PlanFolder() const {
  const std::string& chosen =
      session.settings.FSX != 0 ? session.settings.FPPATH10 : session.settings.FPPATH09;
  if (!chosen.empty()) return QString::fromStdString(chosen);
  return QString::fromStdString(session.home.Resolve("\\FSplan").string());
}

void frmMap::SavePlan() {
  Trapped("frmMap mnuSaveFPAs (", [&] {
    const std::string text = WritePlan(session.plan, session.database, PlanFormat::FS);
    const QDir folder(PlanFolder());
    if (!folder.exists()) folder.mkpath(".");
    const FlightPlan& plan = session.plan;
    const std::string name =
        plan.Row(0).Code.Text() + " to " + plan.Row(plan.DestinationRow()).Code.Text() + ".pln";
    QString path = askPlanFile(folder.filePath(QString::fromStdString(name)));
    if (path.isEmpty()) return;
    if (!path.endsWith(".pln", Qt::CaseInsensitive)) path += ".pln";
    std::string reason;
    if (!ReplaceFile(std::filesystem::path(path.toStdString()), text, &reason))
      messages.Show("The flight plan could not be saved.\n\n" + reason, MessageIcon::exclamation);
  });
}

void frmMap::PlanChanged() {
  const FlightPlan& plan = session.plan;
  session.planHistory.Changed(plan);
  actions["mnuUndo"]->setEnabled(session.planHistory.CanUndo());
  actions["mnuRedo"]->setEnabled(session.planHistory.CanRedo());
  for (const char* name : {"mnuCreateNavaid", "mnuCreateLoAlt", "mnuCreateHiAlt"})
    actions[name]->setEnabled(plan.PlanFiled);
  actions["mnuDeleteEnrouteWPs"]->setEnabled(plan.RowCount() > 2);
  txtRoute->setText(QString::fromStdString(RouteStringFromPlan(plan)));
  txtRoute->setCursorPosition(0);  // a long one shows its beginning
  actions["mnuSaveFPAs"]->setEnabled(plan.CanSave);
  actions["mnuNewFP"]->setEnabled(plan.RowCount() > 0);
  panel->Refresh();
  panel->setVisible(plan.RowCount() > 0 && actions["mnuShowPlan"]->isChecked());
  Map->MarkStale();
  FollowPointer();
}
