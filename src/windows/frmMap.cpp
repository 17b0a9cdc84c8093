#include "windows/frmMap.h"

#include <QCloseEvent>
#include <QDir>
#include <QFileDialog>
#include <QHBoxLayout>
#include <QVBoxLayout>
#include <cmath>

#include "base/error_trap.h"
#include "base/files.h"
#include "base/numbers.h"
#include "flightplan/plan_file.h"
#include "flightplan/plan_layers.h"
#include "flightplan/plan_legs.h"
#include "flightplan/plan_rows.h"
#include "navdata/geodesy.h"
#include "settings/settings_file.h"
#include "windows/frmSelectAP.h"

namespace {

constexpr QSize openingSize(1600, 1000);
// The window's units: its opening width counts mapSizeUnits of them.
constexpr double unitsPerPixel = mapSizeUnits / 1600;
constexpr QSize smallestSize(669, 577);
// Where the map opens while no position has been stored.
constexpr Position firstCentre{50.0F, 8.5F};

QString ToQString(std::string_view text) {
  return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

}  // namespace

frmMap::frmMap(Session& session, MessageBox& messages, PointerShape& pointer)
    : session(session), messages(messages), pointer(pointer), search(session.database) {
  setObjectName("frmMap");
  setWindowTitle(ToQString(messageTitle));
  setMinimumSize(smallestSize);
  layers = DatabaseLayers();
  for (const MapLayer& layer : PlanLayers(session.plan))
    layers.push_back(layer);
  layers = InDrawingOrder(std::move(layers));
  session.view = MapView::At(firstCentre.lat, firstCentre.lon, session.settings.SCALE);
  session.view.LastMagVarLat = firstCentre.lat;
  session.view.LastMagVarLon = firstCentre.lon;
  session.view.MapMagVar = session.database.magneticVariation.MagVarLookup(firstCentre.lat, firstCentre.lon);

  auto* middle = new QWidget(this);
  auto* rows = new QVBoxLayout(middle);
  rows->setContentsMargins(0, 0, 0, 0);
  rows->setSpacing(0);
  auto* columns = new QHBoxLayout;
  columns->setSpacing(0);
  Map = new MapCanvas(middle);
  panel = new pnlFlightplan(session.plan, middle);
  columns->addWidget(Map, 1);
  columns->addWidget(panel);
  rows->addLayout(columns, 1);
  BuildStatusStrip(rows);
  setCentralWidget(middle);
  BuildMenus();
  BuildToolBar();
  BuildKeys();
  ConnectCanvas();
  askPlanFile = [this](const QString& proposal) {
    return QFileDialog::getSaveFileName(this, tr("Save flight plan"), proposal, tr("Flight plans (*.pln)"));
  };
  connect(&tmrClock, &QTimer::timeout, this, [this] { ShowClock(); });
  tmrClock.start(1000);
  PlanChanged();
  ShowClock();
  session.view.MapReady = true;
  resize(openingSize);
  Map->setFocus();
}

void frmMap::Trapped(std::string_view head, const std::function<void()>& body) {
  RunTrapped(head, body, [this](const std::string& report) { session.protocol.WriteError(report); });
}

PlanContext frmMap::Context() const {
  return {session.database, session.aircraft, messages, session.settings.FAFDIST};
}

// ---- the view

void frmMap::DrawMap() {
  session.view.UpdateVisibilityBox();
  ShowZoom();
  ShowPosition();
  Map->MarkStale();
}

void frmMap::SetZoom(int level, bool clearAutozoom) {
  const ZoomAnswer answer = session.view.SetZoom(level, clearAutozoom);
  ShowZoom();
  if (!answer.message.empty()) messages.Show(answer.message, MessageIcon::exclamation);
  if (answer.repaint) DrawMap();
}

void frmMap::KeyDown(int key) {
  Trapped("frmMap KeyDown (", [&] {
    const bool out = key == Qt::Key_PageUp || key == Qt::Key_Minus;
    SetZoom(session.view.ZoomIndex + (out ? 1 : -1), true);
  });
}

void frmMap::TakeBox(float x1, float y1, float x2, float y2) {
  Trapped("frmMap Map_MouseUp (", [&] {
    session.view.RecentreOnBox(x1, y1, x2, y2);
    CentreMoved();
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

void frmMap::CentreMoved() {
  DrawMap();
  session.view.RefreshMagVar(session.database.magneticVariation);
  ShowPosition();
}

void frmMap::ShowZoom() {
  lblMapStatus[1]->setText(QString::fromStdString(session.view.RangeText()));
}

void frmMap::ShowPosition() {
  const MapView& view = session.view;
  const int style = session.settings.DECSEC;
  lblMapStatus[2]->setText(QString::fromStdString("MagVar: " + FormatMagVar(view.MapMagVar)));
  lblMapStatus[3]->setText(QString::fromStdString(FormatLat(view.MapCenterLat, style) + " / " +
                                                  FormatLon(view.MapCenterLon, style)));
}

void frmMap::ShowPointer(float x, float y) {
  const int style = session.settings.DECSEC;
  const float lat = std::clamp(session.view.YToLat(y), -90.0F, 90.0F);
  lblMapStatus[5]->setText(
      QString::fromStdString(FormatLat(lat, style) + " - " + FormatLon(session.view.XToLon(x), style)));
}

// ---- the plan

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
}

// ---- the window

void frmMap::resizeEvent(QResizeEvent* event) {
  QMainWindow::resizeEvent(event);
  if (!session.view.MapReady || isMinimized()) return;
  Trapped("frmMap Resize (", [&] {
    session.view.MapSizeFactor = static_cast<float>(width() * unitsPerPixel / mapSizeUnits);
    SetZoom(session.view.ZoomIndex, true);
  });
}

void frmMap::closeEvent(QCloseEvent* event) {
  Trapped("frmMap Unload (", [&] {
    session.settings.SCALE = session.view.ZoomIndex;
    if (!WriteIni(session.home, session.settings))
      messages.Show(iniWriteFailedText, MessageIcon::exclamation);
  });
  event->accept();
}
