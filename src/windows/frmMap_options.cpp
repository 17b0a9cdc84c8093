// The options in the main window: their window, and what changes with them.
#include "windows/frmFuel.h"
#include "windows/frmMap.h"
#include "windows/frmOptions.h"
#include "windows/style.h"

void frmMap::ShowOptions() {
  Trapped("frmMap mnuOptions (", [&] {
    frmOptions window(session, messages, this);
    connect(&window, &frmOptions::Changed, this, &frmMap::OptionsChanged);
    window.exec();
  });
}

void frmMap::OptionsChanged() {
  const Settings& settings = session.settings;
  const bool night = settings.NIGHT != 0;
  planFolder.clear();  // the plans' folder may be another
  if (night != IsNightStyle()) ApplyStyle(*qApp, night);
  Map->wheelZooms = settings.MZOOM == 1;
  actions["mnuNight"]->setChecked(night);
  actions["mnuMouseZoom"]->setChecked(settings.MZOOM == 1);
  actions["mnuRemWinPos"]->setChecked(settings.REMWINPOS != 0);
  if (!fuel.isNull()) fuel->ShowUnit();
  panel->Refresh(editor.States());
  ShowProfile();
  DrawMap();
}
