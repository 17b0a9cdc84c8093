// The menus, the command bar, the ribbon and the keys of the main window.
// Every command and every switch is one action that its menu item, its button
// and its keys share, so that they are always in step.
#include <QMenuBar>
#include <QShortcut>
#include <QToolBar>
#include <QToolButton>

#include "map/map_objects_near.h"
#include "windows/frmMap.h"
#include "windows/icons.h"

QAction* frmMap::AddCommand(const QString& name, const QString& text, std::function<void()> command,
                            const QString& keys) {
  auto* action = new QAction(text, this);
  action->setObjectName(name);
  if (!keys.isEmpty()) action->setShortcut(QKeySequence(keys));
  connect(action, &QAction::triggered, this, [command = std::move(command)] { command(); });
  actions[name] = action;
  return action;
}

QAction* frmMap::AddToggle(const QString& name, const QString& text, bool on,
                           std::function<void(bool)> toggled, const QString& keys) {
  auto* action = new QAction(text, this);
  action->setObjectName(name);
  action->setCheckable(true);
  action->setChecked(on);
  if (!keys.isEmpty()) action->setShortcut(QKeySequence(keys));
  connect(action, &QAction::toggled, this, [this, name, toggled = std::move(toggled)](bool checked) {
    Trapped("frmMap " + name.toStdString() + " (", [&] { toggled(checked); });
  });
  actions[name] = action;
  return action;
}

QAction* frmMap::AddSwitch(const QString& name, const QString& text, bool MapSwitches::*flag,
                           const QString& keys) {
  return AddToggle(
      name, text, session.switches.*flag,
      [this, flag](bool on) {
        session.switches.*flag = on;
        DrawMap();
      },
      keys);
}

void frmMap::BuildMenus() {
  BuildFileMenu();
  BuildPlanMenu();
  BuildAircraftMenu();
  BuildViewMenu();
  BuildLabelsMenu();
  BuildZoomMenu();
  BuildToolsMenu();
  QMenu* help = menuBar()->addMenu(tr("&Help"));
  help->addAction(AddCommand("mnuAbout", tr("&About Velmora"), [this] { ShowAbout(); }));
}

void frmMap::BuildFileMenu() {
  QMenu* file = menuBar()->addMenu(tr("&File"));
  file->addAction(AddCommand("mnuNewFP", tr("&Clear the plan"), [this] { ClearPlan(); }));
  file->addSeparator();
  file->addAction(AddCommand(
      "mnuOpenFP", tr("&Open..."), [this] { ChoosePlan(); }, "Ctrl+O"));
  recentMenu = file->addMenu(tr("Open &again"));
  recentMenu->setObjectName("mnuRecent");
  connect(file, &QMenu::aboutToShow, this, &frmMap::ListRecentPlans);
  file->addAction(AddCommand(
      "mnuImport", tr("&Import plan..."), [this] { ChooseImport(); }, "Ctrl+Alt+O"));
  file->addSeparator();
  file->addAction(AddCommand(
      "mnuSaveFP", tr("&Save"), [this] { SavePlan(); }, "Ctrl+S"));
  file->addAction(AddCommand(
      "mnuSaveFPAs", tr("Sa&ve as..."), [this] { SavePlanAs(); }, "Ctrl+Alt+S"));
  file->addSeparator();
  AddSegmentItems(file);
  file->addSeparator();
  file->addAction(AddCommand(
      "mnuPrintPlan", tr("&Print the flight plan..."), [this] { PrintPlan(); }, "Ctrl+P"));
  file->addSeparator();
  file->addAction(AddCommand(
      "mnuExit", tr("E&xit"), [this] { close(); }, "Ctrl+Q"));
}

void frmMap::BuildPlanMenu() {
  QMenu* plan = menuBar()->addMenu(tr("Flight &plan"));
  plan->addAction(AddCommand(
      "mnuSelectAP", tr("&Airports..."), [this] { SelectAirports(); }, "Ctrl+N"));
  plan->addSeparator();
  plan->addAction(AddCommand(
      "mnuCreateNavaid", tr("From &navaid to navaid"), [this] { editor.CreateFP(); }, "Ctrl+K"));
  plan->addAction(AddCommand(
      "mnuCreateLoAlt", tr("&Low altitude airways"),
      [this] { editor.GenerateRoute(AirwayNetwork::lowAltitude); }, "Ctrl+L"));
  plan->addAction(AddCommand(
      "mnuCreateHiAlt", tr("&High altitude airways"),
      [this] { editor.GenerateRoute(AirwayNetwork::highAltitude); }, "Ctrl+H"));
  plan->addAction(AddCommand(
      "mnuRoute", tr("&Route string"), [this] { txtRoute->Edit(); }, "Ctrl+R"));
  plan->addSeparator();
  plan->addAction(AddCommand(
      "mnuManWP", tr("Add a wa&ypoint"), [this] { AddWaypoint(); }, "Ctrl+W"));
  plan->addAction(AddToggle(
      "mnuInsertWP", tr("&Insert waypoints on the map"), false, [this](bool on) { SetInserting(on); },
      "Ctrl+I"));
  plan->addAction(AddCommand(
      "mnuUndo", tr("&Undo"), [this] { editor.Undo(); }, "Ctrl+Z"));
  plan->addAction(AddCommand(
      "mnuRedo", tr("Re&do"), [this] { editor.Redo(); }, "Ctrl+Y"));
  plan->addSeparator();
  plan->addAction(
      AddCommand("mnuDeleteEnrouteWPs", tr("Delete all &waypoints"), [this] { editor.DeleteEnrouteWPs(); }));
  plan->addSeparator();
  plan->addAction(AddCommand(
      "mnuFuel", tr("&Fuel..."), [this] { ShowFuel(); }, "F2"));
  plan->addAction(AddCommand(
      "mnuLevelUp", tr("Raise &the cruise level"), [this] { editor.StepLevel(true); }, "Ctrl+Up"));
  plan->addAction(AddCommand(
      "mnuLevelDown", tr("Low&er the cruise level"), [this] { editor.StepLevel(false); }, "Ctrl+Down"));
  BuildProceduresMenu(plan);
}

void frmMap::BuildAircraftMenu() {
  QMenu* menu = menuBar()->addMenu(tr("Air&craft"));
  menu->setObjectName("mnuAircraft");
  menu->addAction(AddCommand(
      "mnuAircraftList", tr("&List of aircraft..."), [this] { ShowAircraft(); }, "F3"));
  menu->addSeparator();
  aircraftGroup = new QActionGroup(menu);
  ListAircraft();
}

void frmMap::BuildViewMenu() {
  using Flags = MapSwitches;
  QMenu* view = menuBar()->addMenu(tr("&View"));
  view->addAction(AddSwitch("mnuCoastlines", tr("&Coastlines"), &Flags::mnuCoastlines, "Ctrl+Shift+C"));
  view->addAction(
      AddSwitch("mnuLatLong", tr("&Grid of latitude and longitude"), &Flags::mnuLatLong, "Ctrl+Shift+G"));
  view->addAction(AddSwitch("mnuCompass", tr("Compass &rose"), &Flags::mnuCompass, "Ctrl+Shift+R"));
  view->addAction(AddSwitch("mnuMSA", tr("&Minimum safe altitudes"), &Flags::mnuMSA, "Ctrl+Shift+M"));
  view->addSeparator();
  view->addAction(AddSwitch("mnuAirport", tr("&Airports"), &Flags::mnuAirport, "Ctrl+Shift+A"));
  view->addAction(AddSwitch("mnuILS", tr("&ILS"), &Flags::mnuILS, "Ctrl+Shift+I"));
  view->addAction(AddSwitch("mnuVOR", tr("V&OR"), &Flags::mnuVOR, "Ctrl+Shift+V"));
  view->addAction(AddSwitch("mnuNDB", tr("&NDB"), &Flags::mnuNDB, "Ctrl+Shift+N"));
  view->addAction(
      AddSwitch("mnuIntersection", tr("All inter&sections"), &Flags::mnuIntersection, "Ctrl+Shift+X"));
  view->addAction(AddSwitch("mnuGPSFix", tr("GPS &fixes"), &Flags::mnuGPSFix, "Ctrl+Shift+F"));
  view->addAction(AddSwitch("mnuUserWP", tr("&User waypoints"), &Flags::mnuUserWP, "Ctrl+Shift+U"));
  view->addSeparator();
  view->addAction(AddSwitch("mnuVictor", tr("&Low altitude airways"), &Flags::mnuVictor, "Ctrl+Shift+L"));
  view->addAction(AddSwitch("mnuJet", tr("&High altitude airways"), &Flags::mnuJet, "Ctrl+Shift+H"));
  QMenu* airspaces = view->addMenu(tr("Airs&paces"));
  airspaces->addAction(AddSwitch("mnuCtrz", tr("Control &zones"), &Flags::mnuCtrz, "Ctrl+Shift+Z"));
  airspaces->addAction(AddSwitch("mnuAir1", tr("&Controlled airspaces"), &Flags::mnuAir1, "Ctrl+Shift+T"));
  airspaces->addAction(AddSwitch("mnuAir2", tr("&Restricted airspaces"), &Flags::mnuAir2, "Ctrl+Shift+D"));
  view->addSeparator();
  BuildPanelsMenu(view);
}

void frmMap::BuildPanelsMenu(QMenu* view) {
  view->addAction(AddToggle(
      "mnuShowPlan", tr("Fligh&t plan panel"), true, [this](bool) { PlanChanged(); }, "F4"));
  view->addAction(AddToggle(
      "mnuExtTable", tr("E&xtended table"), false, [this](bool on) { panel->SetExtended(on); }, "Shift+F4"));
  view->addAction(AddToggle(
      "mnuShowCoords", tr("Coor&dinates in the table"), false, [this](bool on) { panel->ShowCoords(on); },
      "Ctrl+Shift+O"));
  QAction* profile = AddToggle(
      "mnuProfile", tr("&Vertical picture"), !session.switches.profileChosen || session.switches.mnuProfile,
      [this](bool) { ShowProfile(); }, "F5");
  connect(profile, &QAction::triggered, this, [this](bool on) {
    session.switches.profileChosen = true;
    session.switches.mnuProfile = on;
  });
  view->addAction(profile);
  QMenu* panels = view->addMenu(tr("Status pan&els"));
  panels->addAction(AddToggle("mnuLocalTime", tr("&Local time"), false, [this](bool on) {
    clockUtc = !on;
    ShowClock();
  }));
  panels->addAction(AddToggle("mnuDecimal", tr("&Decimal degrees"), false, [this](bool on) {
    positionFormat = on ? PositionFormat::decimal : PositionFormat::degreesMinutes;
    ShowPosition();
    ShowPointer();
  }));
  panels->addAction(AddCommand(
      "mnuCursorPanel", tr("&Pointer: coordinates, to, from"), [this] { StepPointerMode(); }, "F9"));
  view->addAction(AddToggle(
      "mnuNight", tr("Dar&k colours for the night"), session.settings.NIGHT != 0,
      [this](bool on) {
        UseColorSet(session.settings, on);
        OptionsChanged();
      },
      "Ctrl+Shift+E"));
  view->addAction(AddToggle("mnuMouseZoom", tr("&Wheel zooms, focus follows the pointer"),
                            session.settings.MZOOM == 1, [this](bool on) {
                              session.settings.MZOOM = on ? 1 : 0;
                              Map->wheelZooms = on;
                            }));
  view->addAction(AddToggle("mnuRemWinPos", tr("Remem&ber window place"), session.settings.REMWINPOS != 0,
                            [this](bool on) { session.settings.REMWINPOS = on ? -1 : 0; }));
}

void frmMap::BuildLabelsMenu() {
  QMenu* labels = menuBar()->addMenu(tr("&Labels"));
  labels->addAction(AddSwitch("mnuIcao", tr("&Codes"), &MapSwitches::btnIcao, "F6"));
  labels->addAction(AddSwitch("mnuName", tr("&Names"), &MapSwitches::btnName, "F7"));
  labels->addAction(AddSwitch("mnuFreq", tr("&Frequencies and altitudes"), &MapSwitches::btnFreq, "F8"));
  labels->addSeparator();
  labels->addAction(AddToggle(
      "mnuSunrise", tr("&Sunrise and sunset at airports"), session.switches.mnuSunrise,
      [this](bool on) {
        session.switches.mnuSunrise = on;
        CloseHover();
      },
      "Ctrl+Shift+S"));
}

void frmMap::BuildZoomMenu() {
  QMenu* zoom = menuBar()->addMenu(tr("&Zoom"));
  int number = 0;
  for (const int row : {2, 4, 7, 9, 11, 13, 17, 19}) {
    const int range = ZoomTable[static_cast<std::size_t>(row)].rangeNM;
    zoom->addAction(AddCommand(
        QString("mnu%1NM").arg(range), tr("%1 NM").arg(range),
        [this, row] { Trapped("frmMap mnuZoom (", [&] { SetZoom(row, true); }); },
        QString("Ctrl+%1").arg(++number)));
  }
  zoom->addSeparator();
  zoom->addAction(AddCommand("mnuZoomIn", tr("Zoom &in\tPage Down"), [this] { KeyDown(Qt::Key_PageDown); }));
  zoom->addAction(AddCommand("mnuZoomOut", tr("Zoom &out\tPage Up"), [this] { KeyDown(Qt::Key_PageUp); }));
  zoom->addSeparator();
  zoom->addAction(AddCommand(
      "mnuCentreAC", tr("&Centre on the aircraft"), [this] { CentreOnAircraft(); }, "F12"));
  zoom->addAction(AddToggle("mnuAoM", tr("Aircraft on &Map"), session.switches.mnuAoM,
                            [this](bool on) { session.switches.mnuAoM = on; }));
  zoom->addAction(AddToggle("mnuAutozoom", tr("&Autozoom"), session.switches.mnuAutozoom, [this](bool on) {
    session.switches.mnuAutozoom = on;
    session.view.mnuAutozoom = on;
  }));
}

void frmMap::BuildToolsMenu() {
  QMenu* tools = menuBar()->addMenu(tr("&Tools"));
  tools->addAction(AddToggle(
      "mnuMeasure", tr("&Measure distances"), false, [this](bool on) { SetMeasuring(on); }, "Ctrl+M"));
  tools->addAction(AddToggle(
      "mnuBearingLine", tr("&Bearing line to the selected waypoint"), false,
      [this](bool) { FollowPointer(); }, "Ctrl+B"));
  tools->addAction(AddToggle(
      "mnuInbound", tr("Bearing line &inbound"), false, [this](bool) { FollowPointer(); }, "Ctrl+Shift+B"));
  tools->addSeparator();
  tools->addAction(AddCommand(
      "mnuClearHighlight", tr("&Clear highlight"), [this] { Highlight(ClearedSelection()); },
      "Ctrl+Shift+Backspace"));
  tools->addSeparator();
  tools->addAction(AddCommand(
      "mnuOptions", tr("&Options..."), [this] { ShowOptions(); }, "Ctrl+,"));
}

void frmMap::AddButton(QToolBar* bar, QAction* action, const QString& name, const QString& text,
                       const QString& icon) {
  action->setIcon(LineIcon(icon));
  action->setIconVisibleInMenu(false);
  auto* button = new QToolButton(bar);
  button->setObjectName(name);
  button->setDefaultAction(action);
  button->setToolButtonStyle(text.isEmpty() ? Qt::ToolButtonIconOnly : Qt::ToolButtonTextBesideIcon);
  button->setIconSize(QSize(18, 18));
  button->setFocusPolicy(Qt::TabFocus);
  button->setAccessibleName(TipOf(*action));
  const auto label = [button, action, text] {
    if (!text.isEmpty()) button->setText(text);
    button->setToolTip(TipOf(*action));
  };
  label();
  bar->addWidget(button);
  // A change of the action writes its own text back.
  connect(action, &QAction::changed, button, label);
}

void frmMap::BuildToolBar() {
  QToolBar* bar = addToolBar(tr("Commands"));
  bar->setObjectName("tbrCommands");
  bar->setMovable(false);
  bar->setContextMenuPolicy(Qt::PreventContextMenu);
  AddButton(bar, actions["mnuSelectAP"], "cmdSelectAP", tr("Airports"), "airports");
  AddButton(bar, actions["mnuCreateNavaid"], "cmdCreateFP", tr("Navaids"), "navaid_route");
  AddButton(bar, actions["mnuCreateLoAlt"], "cmdLoAlt", tr("Low route"), "low_route");
  AddButton(bar, actions["mnuCreateHiAlt"], "cmdHiAlt", tr("High route"), "high_route");
  AddButton(bar, actions["mnuDepArr"], "cmdSIDSTAR", tr("SID/STAR"), "procedures");
  AddButton(bar, actions["mnuInsertWP"], "cmdInsertWP", {}, "insert_waypoint");
  AddButton(bar, actions["mnuFuel"], "cmdFuel", tr("Fuel"), "fuel");
  AddButton(bar, actions["mnuSaveFPAs"], "cmdSaveFPAs", tr("Save"), "save");
  bar->addSeparator();
  AddButton(bar, actions["mnuZoomIn"], "cmdZoom", {}, "zoom_in");
  AddButton(bar, actions["mnuZoomOut"], "cmdUnzoom", {}, "zoom_out");
  bar->addSeparator();
  BuildRouteField(bar);
}

void frmMap::BuildRouteField(QToolBar* bar) {
  txtRoute = new RouteField(bar);
  bar->addWidget(txtRoute);
  auto* take = new QToolButton(bar);
  take->setObjectName("cmdRoute");
  take->setText(tr("Take"));
  take->setToolTip(tr("Make the plan that the route string says (Enter)"));
  take->setFocusPolicy(Qt::TabFocus);
  bar->addWidget(take);
  const auto show = [this, take] { take->setEnabled(txtRoute->CanTake()); };
  show();
  connect(txtRoute, &QLineEdit::textChanged, this, show);
  connect(txtRoute, &QLineEdit::returnPressed, this, &frmMap::TakeRouteText);
  connect(take, &QToolButton::clicked, this, &frmMap::TakeRouteText);
}

void frmMap::BuildRibbon() {
  struct Toggle {
    const char* action;
    const char* name;
    const char* icon;
  };
  const std::vector<Toggle> groups[] = {
      {{"mnuCoastlines", "rbnCoastlines", "coast"},
       {"mnuLatLong", "rbnLatLong", "grid"},
       {"mnuCompass", "rbnCompass", "compass"},
       {"mnuMSA", "rbnMSA", "msa"}},
      {{"mnuAirport", "rbnAirport", "airport"},
       {"mnuILS", "rbnILS", "ils"},
       {"mnuVOR", "btnVor", "vor"},
       {"mnuNDB", "btnNdb", "ndb"},
       {"mnuIntersection", "btnInter", "intersection"},
       {"mnuGPSFix", "rbnGPSFix", "fix"},
       {"mnuUserWP", "rbnUserWP", "user_waypoint"}},
      {{"mnuVictor", "rbnVictor", "victor_airway"}, {"mnuJet", "rbnJet", "jet_airway"}},
      {{"mnuCtrz", "rbnCtrz", "control_zone"},
       {"mnuAir1", "rbnAir1", "controlled_airspace"},
       {"mnuAir2", "rbnAir2", "restricted_airspace"}},
      {{"mnuIcao", "btnIcao", "codes"},
       {"mnuName", "btnName", "names"},
       {"mnuFreq", "btnFreq", "frequencies"},
       {"mnuSunrise", "rbnSunrise", "sun"}},
      {{"mnuMeasure", "rbnMeasure", "measure"}, {"mnuBearingLine", "rbnBearingLine", "bearing_line"}},
  };
  for (const auto& group : groups) {
    for (const Toggle& toggle : group)
      pnlToggleButtons->AddToggle(actions[toggle.action], toggle.name, toggle.icon);
    pnlToggleButtons->AddGap();
  }
}

void frmMap::BuildKeys() {
  for (const int key : {Qt::Key_PageUp, Qt::Key_PageDown, Qt::Key_Minus, Qt::Key_Plus, Qt::Key_Equal}) {
    auto* shortcut = new QShortcut(QKeySequence(key), this);
    connect(shortcut, &QShortcut::activated, this, [this, key] { KeyDown(key); });
  }
  for (const QKeySequence& keys : {QKeySequence(Qt::SHIFT | Qt::Key_F10), QKeySequence(Qt::Key_Menu)}) {
    auto* shortcut = new QShortcut(keys, this);
    connect(shortcut, &QShortcut::activated, Map, &MapCanvas::AskMenu);
  }
}

void frmMap::ShowAbout() {
  const std::string text =
      std::string(messageTitle) +
      "\n\nFlight planner and moving map for home flight simulators.\nFree software under the "
      "GNU General Public License, version 3 or later.\n\n" +
      "Navigation data: " + session.strAiracCycle +
      "\nThe data are for simulators only, never for real navigation.";
  messages.Show(text, MessageIcon::information);
}
