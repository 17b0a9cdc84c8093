// The aircraft and the fuel in the main window: the menu of the aircraft, and
// their two windows.
#include <QMenu>

#include "flightplan/aircraft_file.h"
#include "windows/frmAircraft.h"
#include "windows/frmFuel.h"
#include "windows/frmMap.h"

void frmMap::ListAircraft() {
  auto* menu = static_cast<QMenu*>(aircraftGroup->parent());
  for (QAction* old : aircraftGroup->actions())
    delete old;
  for (const AircraftRec& aircraft : session.aircraftList) {
    QAction* action = menu->addAction(QString::fromStdString(aircraft.Name));
    action->setObjectName(QString("mnuAircraft(%1)").arg(aircraft.Number));
    action->setCheckable(true);
    action->setChecked(aircraft.Number == session.aircraft.Number);
    aircraftGroup->addAction(action);
    connect(action, &QAction::triggered, this, [this, aircraft] { editor.TakeAircraft(aircraft); });
  }
}

void frmMap::ShowAircraft() {
  Trapped("frmMap mnuAircraftList (", [&] {
    frmAircraft window(session.home.Resolve(aircraftFileName), session.aircraftList, session.aircraft.Number,
                       messages, this);
    if (window.exec() != QDialog::Accepted) return;
    session.aircraftList = window.Aircraft();
    editor.TakeAircraft(window.Chosen());
    ListAircraft();
  });
}

void frmMap::ShowFuel() {
  Trapped("frmMap cmdFuel (", [&] {
    if (session.plan.RowCount() < 2) {
      messages.Show("You have to file a flight plan first!!", MessageIcon::exclamation);
      return;
    }
    if (fuel.isNull()) {
      fuel = new frmFuel(session, editor, this);
      fuel->setAttribute(Qt::WA_DeleteOnClose);
      connect(fuel, &frmFuel::UnitChanged, panel, [this] { panel->Refresh(editor.States()); });
    }
    fuel->show();
    fuel->raise();
    fuel->activateWindow();
  });
}
