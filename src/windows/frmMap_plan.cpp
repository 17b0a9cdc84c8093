// The plan in the main window: what the plan's menu and buttons do.
#include <QDir>
#include <QFileDialog>
#include <QLayout>

#include "base/files.h"
#include "flightplan/plan_file.h"
#include "flightplan/plan_layers.h"
#include "flightplan/plan_legs.h"
#include "flightplan/plan_rows.h"
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
  // The panel takes its place beside the map before the plan is fitted into it.
  centralWidget()->layout()->activate();
  const SurfacePoint visible = Map->VisibleUnits();
  ShowWholePlan(session.plan, session.view, {visible.x, visible.y});
  // Without a simulator the aircraft stands where the flight begins.
  session.view.AircraftLat = session.plan.Row(0).Lat;
  session.view.AircraftLon = session.plan.Row(0).Lon;
  CentreMoved();
}

void frmMap::GenerateRoute(AirwayNetwork network) {
  Trapped("frmMap GenerateRoute (", [&] {
    {
      const HourglassWhile working(pointer);
      GenerateAirwayRoute(session.plan, Context(), search, network);
    }
    PlanChanged();
    DrawMap();
  });
}

void frmMap::TakeAircraft(const AircraftRec& aircraft) {
  Trapped("frmMap mnuAircraft (", [&] {
    SelectAircraft(aircraft, session.aircraft, session.plan);
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
  for (const char* name : {"mnuCreateLoAlt", "mnuCreateHiAlt"})
    actions[name]->setEnabled(plan.PlanFiled);
  actions["mnuSaveFPAs"]->setEnabled(plan.CanSave);
  actions["mnuNewFP"]->setEnabled(plan.RowCount() > 0);
  panel->Refresh();
  panel->setVisible(plan.RowCount() > 0 && actions["mnuShowPlan"]->isChecked());
  Map->MarkStale();
  FollowPointer();
}
