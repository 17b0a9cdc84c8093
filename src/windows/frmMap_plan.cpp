// The plan in the main window: what shows it, and which commands it allows.
// What the commands do is the editor's.
#include <QLayout>
#include <QMenu>

#include "base/code_page.h"
#include "flightplan/plan_layers.h"
#include "flightplan/waypoint_search.h"
#include "navdata/airport_search.h"
#include "windows/frmMap.h"
#include "windows/frmSelectAP.h"

namespace {

// Which state holds for which menu entry; its button and its keys follow.
constexpr std::pair<const char*, bool PlanCommandStates::*> commandStates[] = {
    {"mnuNewFP", &PlanCommandStates::newPlan},
    {"mnuCreateNavaid", &PlanCommandStates::createRoute},
    {"mnuCreateLoAlt", &PlanCommandStates::createRoute},
    {"mnuCreateHiAlt", &PlanCommandStates::createRoute},
    {"mnuInsertWP", &PlanCommandStates::editRows},
    {"mnuSaveFPAs", &PlanCommandStates::save},
    {"mnuPrintPlan", &PlanCommandStates::print},
    {"mnuSaveFP", &PlanCommandStates::saveAgain},
    {"mnuOpenSegment", &PlanCommandStates::openSegment},
    {"mnuSaveSegment", &PlanCommandStates::saveSegment},
    {"mnuManWP", &PlanCommandStates::addWaypoint},
    {"mnuLevelUp", &PlanCommandStates::stepLevel},
    {"mnuLevelDown", &PlanCommandStates::stepLevel},
    {"mnuExtTable", &PlanCommandStates::extendedTable},
    {"mnuSelectSid", &PlanCommandStates::procedures},
    {"mnuSelectStar", &PlanCommandStates::procedures},
    {"mnuDisplaySid", &PlanCommandStates::deleteSid},
    {"mnuDeleteSid", &PlanCommandStates::deleteSid},
    {"mnuDisplayStar", &PlanCommandStates::deleteStar},
    {"mnuDeleteStar", &PlanCommandStates::deleteStar},
    {"mnuUndo", &PlanCommandStates::undo},
    {"mnuRedo", &PlanCommandStates::redo},
};

// On a map of half the world the pointer lies on dozens of airports.
constexpr std::size_t mostAirportItems = 3;

std::vector<std::int32_t> LargestAirports(const std::vector<MapObject>& objects,
                                          const NavDatabase& database) {
  std::vector<std::int32_t> rows;
  for (const MapObject& object : objects) {
    const std::int32_t row = object.selection.SelectedObjectIndex;
    const bool isAirport = object.selection.SelectedObjectType == SelectedObject::airport && row >= 0;
    if (isAirport && row < database.AirportCount()) rows.push_back(row);
  }
  const auto runway = [&](std::int32_t row) {
    return LongestRunwayFeet(database, database.airports[static_cast<std::size_t>(row)]);
  };
  std::stable_sort(rows.begin(), rows.end(),
                   [&](std::int32_t a, std::int32_t b) { return runway(a) > runway(b); });
  rows.resize(std::min(rows.size(), mostAirportItems));
  return rows;
}

}  // namespace

void frmMap::SelectAirports() {
  ChooseAirports(ChoiceOf(session.plan, session.database));
}

void frmMap::ChooseAirports(const AirportChoice& opening) {
  Trapped("frmMap SelectAirports (", [&] {
    frmSelectAP dialog(session.plan, session.database, opening, this);
    if (dialog.exec() == QDialog::Accepted) TakeAirports(dialog.Choice());
  });
}

void frmMap::TakeAirports(const AirportChoice& choice) {
  if (!IsNewPlan(choice, session.plan) || MayLosePlan()) editor.TakeAirports(choice);
}

// A plan that is complete and loses no route is taken as it is; everything else
// is shown to the pilot first.
void frmMap::TakeAirport(const AirportChoice& choice) {
  const bool losesRoute = session.plan.RowCount() > 2 && IsNewPlan(choice, session.plan);
  if (choice.Complete() && !losesRoute) return TakeAirports(choice);
  ChooseAirports(choice);
}

void frmMap::AddAirportItems(QMenu& menu, const std::vector<MapObject>& objects) {
  const AirportChoice present = ChoiceOf(session.plan, session.database);
  for (const std::int32_t row : LargestAirports(objects, session.database)) {
    const QString code = QString::fromStdString(
        CodePageToUtf8(session.database.airports[static_cast<std::size_t>(row)].strCode.View()));
    QMenu* roles = menu.addMenu(tr("&Airport %1").arg(code));
    roles->setObjectName("mnuAirportRole");
    const auto add = [&](const QString& name, const QString& text, std::int32_t AirportChoice::*role) {
      QAction* action = roles->addAction(text, this, [this, present, row, role] {
        AirportChoice choice = present;
        choice.*role = row;
        if (role == &AirportChoice::departure) choice.start.reset();
        TakeAirport(choice);
      });
      action->setObjectName(name);
      action->setEnabled(present.*role != row);
    };
    add("mnuDeparture", tr("&Departure"), &AirportChoice::departure);
    add("mnuDestination", tr("D&estination"), &AirportChoice::destination);
    add("mnuAlternate", tr("&Alternate"), &AirportChoice::alternate);
  }
}

void frmMap::AddWaypoint() {
  if (session.plan.RowCount() < 2) return messages.Show(selectAirportsFirstText, MessageIcon::exclamation);
  actions["mnuShowPlan"]->setChecked(true);
  panel->EditWaypoint();
}

void frmMap::PlanChanged() {
  Trapped("frmMap PlanChanged (", [&] {
    ShowCommandStates();
    ShowPlanName();
    txtRoute->setText(QString::fromStdString(editor.RouteText()));
    txtRoute->setCursorPosition(0);  // a long one shows its beginning
    panel->Refresh(editor.States());
    ShowProfile();
    GiveUpPlanPress();
    panel->setVisible(session.plan.RowCount() > 0 && actions["mnuShowPlan"]->isChecked());
    FollowPointer();
    DrawMap();
  });
}

void frmMap::ShowCommandStates() {
  const PlanCommandStates states = editor.States();
  for (const auto& [name, state] : commandStates)
    actions[name]->setEnabled(states.*state);
  if (!states.editRows) actions["mnuInsertWP"]->setChecked(false);
  // The table goes back to its normal layout where it may not have the other.
  if (!states.extendedTable) actions["mnuExtTable"]->setChecked(false);
}

void frmMap::CentreOnRow(int row) {
  Trapped("frmMap grdWPTable (", [&] {
    session.view.MapCenterLat = session.plan.Row(row).Lat;
    session.view.MapCenterLon = session.plan.Row(row).Lon;
    CentreMoved();
  });
}

void frmMap::ShowNewPlan() {
  Trapped("frmMap ShowNewPlan (", [&] {
    // The panel takes its place beside the map before the plan is fitted into it.
    centralWidget()->layout()->activate();
    const SurfacePoint visible = Map->VisibleUnits();
    ShowWholePlan(session.plan, session.view, {visible.x, visible.y});
    // Without a simulator the aircraft stands where the flight begins.
    session.view.AircraftLat = session.plan.Row(0).Lat;
    session.view.AircraftLon = session.plan.Row(0).Lon;
    CentreMoved();
  });
}

void frmMap::TakeRouteText() {
  if (txtRoute->CanTake()) editor.TakeRoute(txtRoute->text().trimmed().toStdString());
}
