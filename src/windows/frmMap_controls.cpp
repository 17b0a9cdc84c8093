// The controls of the main window: menus, ribbons, keys and status panels.
#include <QApplication>
#include <QDateTime>
#include <QFrame>
#include <QHBoxLayout>
#include <QMenuBar>
#include <QMouseEvent>
#include <QShortcut>
#include <QToolBar>
#include <QToolButton>
#include <QVBoxLayout>

#include "map/map_view.h"
#include "windows/frmMap.h"
#include "windows/qt_draw_surface.h"

QAction* frmMap::AddCommand(const QString& name, const QString& text, std::function<void()> command) {
  auto* action = new QAction(text, this);
  action->setObjectName(name);
  connect(action, &QAction::triggered, this, [command = std::move(command)] { command(); });
  actions[name] = action;
  return action;
}

QAction* frmMap::AddSwitch(const QString& menuName, const QString& text, bool MapSwitches::*flag) {
  auto* action = new QAction(text, this);
  action->setObjectName(menuName);
  action->setCheckable(true);
  action->setChecked(session.switches.*flag);
  connect(action, &QAction::toggled, this, [this, flag](bool on) {
    session.switches.*flag = on;
    DrawMap();
  });
  actions[menuName] = action;
  return action;
}

void frmMap::BuildMenus() {
  QMenu* plan = menuBar()->addMenu(tr("Flight &plan"));
  QAction* airports = AddCommand("mnuSelectAP", tr("&Airports..."), [this] { SelectAirports(); });
  airports->setShortcut(QKeySequence(tr("Ctrl+N")));
  plan->addAction(airports);
  plan->addSeparator();
  QAction* low = AddCommand("mnuCreateLoAlt", tr("&Low altitude airways"),
                            [this] { GenerateRoute(AirwayNetwork::lowAltitude); });
  low->setShortcut(QKeySequence(tr("Ctrl+L")));
  QAction* high = AddCommand("mnuCreateHiAlt", tr("&High altitude airways"),
                             [this] { GenerateRoute(AirwayNetwork::highAltitude); });
  high->setShortcut(QKeySequence(tr("Ctrl+H")));
  plan->addActions({low, high});
  plan->addSeparator();
  QAction* save = AddCommand("mnuSaveFPAs", tr("&Save as..."), [this] { SavePlan(); });
  save->setShortcut(QKeySequence::Save);
  plan->addActions({AddCommand("mnuNewFP", tr("&Clear the plan"), [this] { NewPlan(); }), save});
  plan->addSeparator();
  QAction* quit = AddCommand("mnuExit", tr("E&xit"), [this] { close(); });
  quit->setShortcut(QKeySequence::Quit);
  plan->addAction(quit);

  BuildAircraftMenu();
  QMenu* view = menuBar()->addMenu(tr("&View"));
  view->addActions({AddSwitch("mnuCoastlines", tr("&Coastlines"), &MapSwitches::mnuCoastlines),
                    AddSwitch("mnuAirport", tr("&Airports"), &MapSwitches::mnuAirport),
                    AddSwitch("mnuVictor", tr("&Victor airways"), &MapSwitches::mnuVictor),
                    AddSwitch("mnuJet", tr("&Jet airways"), &MapSwitches::mnuJet)});
  view->addSeparator();
  view->addActions({AddSwitch("mnuIcao", tr("C&odes"), &MapSwitches::btnIcao),
                    AddSwitch("mnuName", tr("&Names"), &MapSwitches::btnName),
                    AddSwitch("mnuFreq", tr("&Frequencies and altitudes"), &MapSwitches::btnFreq)});
  view->addSeparator();
  auto* showPlan = new QAction(tr("Flight &plan panel"), this);
  showPlan->setObjectName("mnuShowPlan");
  showPlan->setCheckable(true);
  showPlan->setChecked(true);
  showPlan->setShortcut(QKeySequence(tr("F4")));
  actions["mnuShowPlan"] = showPlan;
  connect(showPlan, &QAction::toggled, this, [this] { PlanChanged(); });
  view->addAction(showPlan);

  QMenu* zoom = menuBar()->addMenu(tr("&Zoom"));
  for (const int row : {2, 4, 7, 9, 11, 13, 17, 19}) {
    const int range = ZoomTable[static_cast<std::size_t>(row)].rangeNM;
    zoom->addAction(AddCommand(QString("mnu%1NM").arg(range), tr("%1 NM").arg(range),
                               [this, row] { Trapped("frmMap mnuZoom (", [&] { SetZoom(row, true); }); }));
  }
  QMenu* help = menuBar()->addMenu(tr("&Help"));
  help->addAction(AddCommand("mnuAbout", tr("&About Velmora"), [this] { ShowAbout(); }));
}

void frmMap::BuildAircraftMenu() {
  QMenu* menu = menuBar()->addMenu(tr("Air&craft"));
  menu->setObjectName("mnuAircraft");
  aircraftGroup = new QActionGroup(this);
  for (const AircraftRec& aircraft : session.aircraftList) {
    QAction* action = menu->addAction(QString::fromStdString(aircraft.Name));
    action->setObjectName(QString("mnuAircraft(%1)").arg(aircraft.Number));
    action->setCheckable(true);
    action->setChecked(aircraft.Number == session.aircraft.Number);
    aircraftGroup->addAction(action);
    connect(action, &QAction::triggered, this, [this, &aircraft] { TakeAircraft(aircraft); });
  }
  menu->setEnabled(!session.aircraftList.empty());
}

void frmMap::AddButton(QToolBar* bar, QAction* action, const QString& name, const QString& text,
                       const QString& tip) {
  auto* button = new QToolButton(bar);
  button->setObjectName(name);
  button->setDefaultAction(action);
  button->setText(text);
  button->setToolTip(tip);
  button->setFocusPolicy(Qt::TabFocus);
  bar->addWidget(button);
  // A change of the action writes its own text back.
  connect(action, &QAction::changed, button, [button, text, tip] {
    button->setText(text);
    button->setToolTip(tip);
  });
}

void frmMap::BuildToolBar() {
  QToolBar* bar = addToolBar(tr("Commands"));
  bar->setObjectName("pnlToggleButtons");
  bar->setMovable(false);
  bar->setContextMenuPolicy(Qt::PreventContextMenu);
  AddButton(bar, actions["mnuSelectAP"], "cmdSelectAP", tr("Airports"),
            tr("Choose departure and destination (Ctrl+N)"));
  AddButton(bar, actions["mnuCreateLoAlt"], "cmdLoAlt", tr("Low route"),
            tr("Route over low altitude airways (Ctrl+L)"));
  AddButton(bar, actions["mnuCreateHiAlt"], "cmdHiAlt", tr("High route"),
            tr("Route over high altitude airways (Ctrl+H)"));
  AddButton(bar, actions["mnuSaveFPAs"], "cmdSaveFPAs", tr("Save"), tr("Save the plan as a file (Ctrl+S)"));
  bar->addSeparator();
  AddButton(bar, AddCommand("actZoom", tr("Zoom in"), [this] { KeyDown(Qt::Key_PageDown); }), "cmdZoom", "+",
            tr("Zoom in (Page Down or +)"));
  AddButton(bar, AddCommand("actUnzoom", tr("Zoom out"), [this] { KeyDown(Qt::Key_PageUp); }), "cmdUnzoom",
            "−", tr("Zoom out (Page Up or -)"));
  bar->addSeparator();
  AddButton(bar, actions["mnuCoastlines"], "rbnCoastlines", tr("Coast"), tr("Coastlines and borders"));
  AddButton(bar, actions["mnuAirport"], "rbnAirport", tr("Airports"), tr("Airports and runways"));
  AddButton(bar, actions["mnuVictor"], "rbnVictor", tr("Victor"), tr("Low altitude airways"));
  AddButton(bar, actions["mnuJet"], "rbnJet", tr("Jet"), tr("High altitude airways"));
  bar->addSeparator();
  AddButton(bar, actions["mnuIcao"], "btnIcao", tr("Codes"), tr("Label with codes"));
  AddButton(bar, actions["mnuName"], "btnName", tr("Names"), tr("Label with names"));
  AddButton(bar, actions["mnuFreq"], "btnFreq", tr("Altitudes"), tr("Label with frequencies and altitudes"));
}

void frmMap::BuildStatusStrip(QVBoxLayout* layout) {
  auto* strip = new QFrame(this);
  strip->setObjectName("statusStrip");
  auto* row = new QHBoxLayout(strip);
  row->setContentsMargins(4, 6, 4, 6);
  row->setSpacing(0);
  const std::pair<int, const char*> panels[] = {{0, "UTC"},
                                                {1, "LeftClick Zoom IN/RightClick Zoom OUT"},
                                                {2, "Magnetic Variation"},
                                                {3, "Aircraft Coordinates"},
                                                {5, "Click Coordinates / To / From Cursor Position"}};
  for (const auto& [index, tip] : panels) {
    auto* label = new QLabel(strip);
    label->setObjectName(QString("lblMapStatus(%1)").arg(index));
    label->setToolTip(tr(tip));
    lblMapStatus[static_cast<std::size_t>(index)] = label;
    row->addWidget(label);
  }
  row->addStretch();
  lblMapStatus[1]->installEventFilter(this);
  layout->addWidget(strip);
}

void frmMap::BuildKeys() {
  for (const int key : {Qt::Key_PageUp, Qt::Key_PageDown, Qt::Key_Minus, Qt::Key_Plus, Qt::Key_Equal}) {
    auto* shortcut = new QShortcut(QKeySequence(key), this);
    connect(shortcut, &QShortcut::activated, this, [this, key] { KeyDown(key); });
  }
}

void frmMap::ConnectCanvas() {
  Map->drawPicture = [this](DrawSurface& surface) {
    Trapped("frmMap DrawMap (", [&] {
      ::DrawMap({session.view, session.declutter, session.database, session.settings, session.switches,
                 session.selection},
                layers, surface);
    });
  };
  Map->wheelZooms = session.settings.MZOOM == 1;
  Map->boxColor = ToQColor(session.settings.colors.ZOOM);
  connect(Map, &MapCanvas::BoxDrawn, this, &frmMap::TakeBox);
  connect(Map, &MapCanvas::BoxMoved, this, [this] { session.view.mnuAutozoom = false; });
  connect(Map, &MapCanvas::PointerMoved, this, &frmMap::ShowPointer);
  connect(Map, &MapCanvas::PanAsked, this, &frmMap::Pan);
  connect(Map, &MapCanvas::WheelTurned, this, [this](bool towardUser) {
    const int row = session.view.ZoomIndex;
    const bool allowed = towardUser ? row < 20 : row >= 1;
    if (allowed) Trapped("frmMap Wheel (", [&] { SetZoom(row + (towardUser ? 1 : -1), true); });
  });
}

bool frmMap::eventFilter(QObject* watched, QEvent* event) {
  if (watched == lblMapStatus[1] && event->type() == QEvent::MouseButtonRelease) {
    const bool out = static_cast<QMouseEvent*>(event)->button() == Qt::RightButton;
    KeyDown(out ? Qt::Key_PageUp : Qt::Key_PageDown);
    return true;
  }
  return QMainWindow::eventFilter(watched, event);
}

void frmMap::ShowClock() {
  lblMapStatus[0]->setText(QDateTime::currentDateTimeUtc().toString("hh:mm:ss") + " UTC");
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
