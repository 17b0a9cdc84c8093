#include "windows/frmMap.h"

#include <QApplication>
#include <QCloseEvent>
#include <QFileDialog>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QScreen>
#include <QVBoxLayout>
#include <filesystem>

#include "base/error_trap.h"
#include "flightplan/plan_layers.h"
#include "flightplan/procedure_layer.h"
#include "map/switch_settings.h"
#include "settings/settings_file.h"
#include "windows/frmSaveRoute.h"
#include "windows/window_place.h"

namespace {

constexpr QSize openingSize(1600, 1000);
// The window's units: its opening width counts mapSizeUnits of them.
constexpr double unitsPerPixel = mapSizeUnits / 1600;
constexpr QSize smallestSize(669, 577);
// Where the map opens while no position has been stored.
constexpr Position firstCentre{50.0F, 8.5F};
constexpr int panelRest = 250;  // ms between two looks at where the pointer is

std::vector<QRect> FreeScreens() {
  std::vector<QRect> areas;
  const QScreen* mainScreen = QApplication::primaryScreen();
  areas.push_back(mainScreen->availableGeometry());
  for (const QScreen* screen : QApplication::screens())
    if (screen != mainScreen) areas.push_back(screen->availableGeometry());
  return areas;
}

}  // namespace

frmMap::frmMap(Session& session, MessageBox& messages, PointerShape& pointer)
    : session(session), messages(messages), editor(session, messages, pointer) {
  setObjectName("frmMap");
  setMinimumSize(smallestSize);
  setAcceptDrops(true);
  OpenView();
  auto* middle = new QWidget(this);
  auto* rows = new QVBoxLayout(middle);
  rows->setContentsMargins(0, 0, 0, 0);
  rows->setSpacing(0);
  auto* columns = new QHBoxLayout;
  columns->setSpacing(0);
  Map = new MapCanvas(middle);
  pnlToggleButtons = new ToggleRibbon(Map);
  lblMeasure = AddMapLabel("lblMeasure");
  lblCourseRadial = AddMapLabel("lblCourseRadial");
  lblPlanDrag = AddMapLabel("lblPlanDrag");
  lblMapStatus = new StatusStrip(middle);
  auto* mapColumn = new QVBoxLayout;
  mapColumn->setSpacing(0);
  mapColumn->addWidget(Map, 1);
  BuildProfile(mapColumn);
  columns->addLayout(mapColumn, 1);
  rows->addLayout(columns, 1);
  rows->addWidget(lblMapStatus);
  setCentralWidget(middle);
  BuildMenus();
  panel = new pnlFlightplan(session, actions["mnuLevelUp"], actions["mnuLevelDown"], middle);
  columns->addWidget(panel);
  BuildToolBar();
  BuildRibbon();
  BuildKeys();
  BuildPanels();
  ConnectCanvas();
  connect(panel, &pnlFlightplan::RowPicked, this, [this] { FollowPointer(); });
  connect(panel, &pnlFlightplan::DeleteAsked, &editor, &PlanEditor::DeleteRow);
  connect(panel, &pnlFlightplan::RowCentred, this, &frmMap::CentreOnRow);
  connect(panel, &pnlFlightplan::AlternateAsked, &editor, &PlanEditor::ReplaceArrival);
  connect(panel, &pnlFlightplan::StartChosen, &editor, &PlanEditor::SetStart);
  connect(panel, &pnlFlightplan::WaypointPicked, &editor, &PlanEditor::InsertAfterSelection);
  connect(&editor, &PlanEditor::Changed, this, &frmMap::PlanChanged);
  connect(&editor, &PlanEditor::Started, this, &frmMap::ShowNewPlan);
  askImportFile = [this](const QString& folder) {
    return QFileDialog::getOpenFileName(
        this, tr("Import plan"), folder,
        tr("Flight plans of other programs (*.pln *.fms *.fgfp *.xml *.fpl *.gpx *.sfp);;All files (*)"));
  };
  showSaveRoute = [](frmSaveRoute& dialog) { return dialog.exec() == QDialog::Accepted; };
  tmrUnsaved.setSingleShot(true);
  connect(&tmrUnsaved, &QTimer::timeout, this, [this] { KeepUnsavedPlan(); });
  connect(&tmrMousePos, &QTimer::timeout, this, [this] { MousePosTick(); });
  tmrMousePos.start(panelRest);
  PlanChanged();
  session.view.MapReady = true;
  OpenWindow();
  Map->setFocus();
}

void frmMap::Trapped(std::string_view head, const std::function<void()>& body) {
  RunTrapped(head, body, [this](const std::string& report) { session.protocol.WriteError(report); });
}

void frmMap::OpenView() {
  // The first start remembers the window's place, until the pilot says otherwise.
  std::error_code error;
  if (!std::filesystem::exists(session.home.Resolve("\\vlm.ini"), error)) session.settings.REMWINPOS = -1;
  session.switches = SwitchesFrom(session.settings);
  session.view = MapView::At(firstCentre.lat, firstCentre.lon, session.settings.SCALE);
  session.view.LastMagVarLat = firstCentre.lat;
  session.view.LastMagVarLon = firstCentre.lon;
  session.view.MapMagVar = session.database.magneticVariation.MagVarLookup(firstCentre.lat, firstCentre.lon);
  session.view.mnuAutozoom = session.switches.mnuAutozoom;
  layers = DatabaseLayers();
  for (const MapLayer& layer : PlanLayers(session.plan))
    layers.push_back(layer);
  for (const MapLayer& layer : ProcedureLayers(session.plan))
    layers.push_back(layer);
  layers = InDrawingOrder(std::move(layers));
  hoverSources = InSearchOrder(DatabaseHoverSources());
}

void frmMap::OpenWindow() {
  const WindowPlace place = OpeningPlace(session.settings, openingSize, smallestSize, FreeScreens());
  resize(place.frame.size());
  if (place.placed) setGeometry(place.frame);
  if (place.maximised) setWindowState(windowState() | Qt::WindowMaximized);
}

// ---- the view

void frmMap::DrawMap() {
  session.view.UpdateVisibilityBox();
  measure.Reposition(session.view);
  CloseHover();
  ShowZoom();
  ShowPosition();
  ShowPointer();
  Map->MarkStale();
  PlaceMapLabels();
}

void frmMap::PaintPicture(DrawSurface& surface) {
  Trapped("frmMap DrawMap (", [&] {
    ::DrawMap({session.view, session.declutter, session.database, session.settings, session.switches,
               session.selection},
              layers, surface);
  });
}

ZoomAnswer frmMap::TakeZoom(int level, bool clearAutozoom) {
  const ZoomAnswer answer = session.view.SetZoom(level, clearAutozoom);
  actions["mnuAutozoom"]->setChecked(session.view.mnuAutozoom);
  if (answer.repaint) DrawMap();
  return answer;
}

void frmMap::SetZoom(int level, bool clearAutozoom) {
  const ZoomAnswer answer = TakeZoom(level, clearAutozoom);
  if (!answer.message.empty()) messages.Show(answer.message, MessageIcon::exclamation);
}

void frmMap::KeyDown(int key) {
  Trapped("frmMap KeyDown (", [&] {
    const bool out = key == Qt::Key_PageUp || key == Qt::Key_Minus;
    SetZoom(session.view.ZoomIndex + (out ? 1 : -1), true);
  });
}

void frmMap::TurnWheel(int stepsTowardUser) {
  Trapped("frmMap Wheel (", [&] {
    const int direction = stepsTowardUser > 0 ? 1 : -1;
    for (int step = 0; step != stepsTowardUser; step += direction) {
      const int row = session.view.ZoomIndex;
      const bool allowed = direction > 0 ? row < 20 : row >= 1;
      if (!allowed) return;
      SetZoom(row + direction, true);
      // A refused row would be refused, and told, again.
      if (session.view.ZoomIndex != row + direction) return;
    }
  });
}

void frmMap::Pan(float right, float down) {
  Trapped("frmMap Map_KeyDown (", [&] {
    const float x = mapScaleWidth * (0.5F + right);
    const float y = mapScaleHeight * (0.5F + down);
    session.view.RecentreOnBox(x, y, x, y);
    CentreMoved();
  });
}

void frmMap::CentreOnAircraft() {
  Trapped("frmMap KeyDown (", [&] {
    session.view.CentreOnAircraft();
    DrawMap();
  });
}

void frmMap::CentreMoved() {
  DrawMap();
  session.view.RefreshMagVar(session.database.magneticVariation);
  ShowPosition();
}

void frmMap::EndAutozoom() {
  actions["mnuAutozoom"]->setChecked(false);
}

// ---- the window

void frmMap::resizeEvent(QResizeEvent* event) {
  QMainWindow::resizeEvent(event);
  if (!session.view.MapReady || isMinimized()) return;
  Trapped("frmMap Resize (", [&] {
    ProposeProfile();
    session.view.MapSizeFactor = static_cast<float>(width() * unitsPerPixel / mapSizeUnits);
    // Stretching the window ends the automatic zoom, opening it does not. A range
    // that this centre cannot have is not the pilot's doing and is not told.
    TakeZoom(session.view.ZoomIndex, opened);
  });
}

void frmMap::showEvent(QShowEvent* event) {
  QMainWindow::showEvent(event);
  QTimer::singleShot(0, this, [this] { opened = true; });
}

void frmMap::keyPressEvent(QKeyEvent* event) {
  if (event->key() != Qt::Key_Escape) return QMainWindow::keyPressEvent(event);
  Trapped("frmMap KeyDown (", [&] { GiveUpGestures(); });
}

void frmMap::closeEvent(QCloseEvent* event) {
  if (!MayLosePlan()) return event->ignore();
  DropUnsavedPlan();
  Trapped("frmMap Unload (", [&] {
    session.settings.SCALE = session.view.ZoomIndex;
    StoreSwitches(session.switches, session.settings);
    StorePlace(session.settings, isMaximized() ? normalGeometry() : geometry(), isMaximized());
    if (!WriteIni(session.home, session.settings))
      messages.Show(iniWriteFailedText, MessageIcon::exclamation);
  });
  event->accept();
}
