// What the pointer does on the map: recentring and the drag box, measuring,
// the line to the selected waypoint, the box of what lies under the resting
// pointer, and the menu of the right button. All of it is drawn over a copy of
// the finished picture.
#include <QApplication>
#include <QContextMenuEvent>
#include <QMenu>

#include "flightplan/plan_layers.h"
#include "map/map_objects_near.h"
#include "map/map_overlays.h"
#include "windows/frmMap.h"

namespace {

// The part of the map in which the pointer brings the ribbon, in map units from
// the upper left corner of what is seen.
constexpr float ribbonWidth = 13500;
constexpr float ribbonHeight = 500;

}  // namespace

void frmMap::ConnectCanvas() {
  Map->drawPicture = [this](DrawSurface& surface) { PaintPicture(surface); };
  Map->drawOverlay = [this](DrawSurface& surface) {
    Trapped("frmMap Map_Paint (", [&] { DrawOverlay(surface); });
  };
  Map->drawPlates = [this](DrawSurface& surface) {
    Trapped("frmMap Map_Paint (", [&] { DrawPlates(surface); });
  };
  Map->wheelZooms = session.settings.MZOOM == 1;
  connect(Map, &MapCanvas::ButtonDown, this, &frmMap::ButtonDown);
  connect(Map, &MapCanvas::ButtonUp, this, &frmMap::ButtonUp);
  connect(Map, &MapCanvas::PointerMoved, this, &frmMap::PointerMoved);
  connect(Map, &MapCanvas::PointerLeft, this, &frmMap::PointerLeft);
  connect(Map, &MapCanvas::MenuAsked, this, &frmMap::OpenMapMenu);
  connect(Map, &MapCanvas::PanAsked, this, &frmMap::Pan);
  connect(Map, &MapCanvas::StepsTurned, this, &frmMap::TurnWheel);
  connect(Map, &MapCanvas::Resized, this, [this] {
    pnlToggleButtons->FitInto(Map->width());
    if (pnlToggleButtons->isVisible()) Map->SetPlatesTop(pnlToggleButtons->height());
    PlaceMapLabels();
  });
}

QLabel* frmMap::AddMapLabel(const QString& name) {
  auto* label = new QLabel(Map);
  label->setObjectName(name);
  label->setProperty("plate", true);
  label->setAttribute(Qt::WA_TransparentForMouseEvents);
  label->setTextFormat(Qt::PlainText);
  label->hide();
  return label;
}

// ---- button and pointer

void frmMap::ButtonDown(float x, float y, Qt::KeyboardModifiers modifiers) {
  Trapped("frmMap Map_MouseDown (", [&] {
    CloseHover();
    pointerAt = {x, y};
    if (measureFollows) {
      measureFollows = false;
      measure.MoveTo(session.view, x, y);
    } else if (actions["mnuMeasure"]->isChecked()) {
      measure.Begin(session.view, x, y);
    } else {
      BeginPlanPress(x, y, modifiers);
      box.Begin(x, y);
    }
    FollowPointer();
  });
}

void frmMap::PointerMoved(float x, float y) {
  Trapped("frmMap Map_MouseMove (", [&] {
    pointerOnMap = pointerSeen = true;
    const bool moved = x != pointerAt.x || y != pointerAt.y;
    pointerAt = {x, y};
    const SurfacePoint corner = Map->VisibleCorner();
    ShowRibbon(x - corner.x < ribbonWidth && y - corner.y < ribbonHeight);
    if (moved) CloseHover();
    measure.MoveTo(session.view, x, y);
    FollowPlanPress();
    if (box.MoveTo(x, y)) EndAutozoom();
    ShowPlanPointer();
    FollowPointer();
  });
}

void frmMap::ButtonUp(float x, float y, bool shift) {
  Trapped("frmMap Map_MouseUp (", [&] {
    measure.Finish();
    box.MoveTo(x, y);
    const bool boxed = box.Finish();
    if (!EndPlanPress(x, y) && boxed && !shift) TakeBox(box.BoxX1, box.BoxY1, box.BoxX2, box.BoxY2);
    FollowPointer();
  });
}

void frmMap::PointerLeft() {
  pointerOnMap = false;
  rest.Forget();
  ShowRibbon(false);
  CloseHover();
  FollowPointer();
}

void frmMap::ShowRibbon(bool on) {
  if (on == pnlToggleButtons->isVisible()) return;
  pnlToggleButtons->setVisible(on);
  Map->SetPlatesTop(on ? pnlToggleButtons->height() : 0);
}

void frmMap::TakeBox(float x1, float y1, float x2, float y2) {
  session.view.RecentreOnBox(x1, y1, x2, y2);
  CentreMoved();
}

void frmMap::GiveUpGestures() {
  box.Finish();
  GiveUpPlanPress();
  actions["mnuInsertWP"]->setChecked(false);
  CloseHover();
  hoverSearched = true;  // until the pointer moves
  actions["mnuMeasure"]->setChecked(false);
  FollowPointer();
}

Position frmMap::PointerPosition() const {
  const Projection projection = session.view.CurrentProjection();
  return {std::clamp(projection.YToLat(pointerAt.y), -90.0F, 90.0F), projection.XToLon(pointerAt.x)};
}

// ---- measuring and the bearing line

void frmMap::SetMeasuring(bool on) {
  measureFollows = false;
  if (!on) measure.Hide();
  FollowPointer();
}

void frmMap::MeasureFrom(float x, float y) {
  Trapped("frmMap Measure (", [&] {
    actions["mnuMeasure"]->setChecked(true);
    measure.Begin(session.view, x, y);
    measureFollows = true;
    FollowPointer();
  });
}

int frmMap::LegPickIndex() const {
  const int row = session.plan.SelectedRow;
  const bool wanted = actions.at("mnuBearingLine")->isChecked() && panel->isVisible();
  return wanted && row >= 1 && row < session.plan.RowCount() ? row : -1;
}

std::optional<PickedLeg> frmMap::Leg() const {
  const int row = LegPickIndex();
  if (row < 1) return std::nullopt;
  return PickedLeg{PlaceOf(session.plan.Row(row - 1)), PlaceOf(session.plan.Row(row)),
                   actions.at("mnuInbound")->isChecked()};
}

// The pointer or what hangs on it has changed: panel, labels, lines.
void frmMap::FollowPointer() {
  ShowPointer();
  PlaceMapLabels();
  const bool shown = measure.visible || box.BoxActive || drag.moving || insertTarget || LegPickIndex() >= 1;
  if (shown || overlayShown) Map->update();
  overlayShown = shown;
}

void frmMap::PlaceMapLabels() {
  if (measure.visible) {
    lblMeasure->setText(QString::fromStdString(measure.Caption(session.view.MapMagVar)));
    lblMeasure->adjustSize();
    const QPoint place = Map->ToPixel(measure.label.x, measure.label.y);
    Map->PlaceLabel(*lblMeasure, place, Qt::BottomRightCorner);
  }
  lblMeasure->setVisible(measure.visible);
  const auto leg = Leg();
  const bool legShown = leg && pointerOnMap;
  if (legShown) {
    lblCourseRadial->setText(
        QString::fromStdString(LegPickText(*leg, PointerPosition(), session.view.MapMagVar)));
    lblCourseRadial->adjustSize();
    // Left of and above the pointer: the box of what lies there opens on the other side.
    Map->PlaceLabel(*lblCourseRadial, Map->ToPixel(pointerAt.x, pointerAt.y), Qt::TopLeftCorner);
  }
  lblCourseRadial->setVisible(legShown);
  PlacePlanLabel();
}

void frmMap::DrawOverlay(DrawSurface& surface) {
  const ColorSettings& colors = session.settings.colors;
  const auto leg = Leg();
  if (leg && pointerOnMap)
    DrawBearingLine(LegPickAnchor(*leg), pointerAt.x, pointerAt.y, {}, session.view, colors, surface);
  DrawPlanDrag(drag, session.plan, session.view, colors, surface);
  if (insertTarget) DrawTargetRing(*insertTarget, session.view, colors, surface);
  DrawProfileMark(surface);
  DrawMeasureLine(measure, session.view, colors, surface, false);
  DrawDragBox(box, colors, surface);
}

void frmMap::DrawPlates(DrawSurface& surface) {
  const SurfacePoint corner = Map->PlatesCorner();
  const float y = std::max(0.0F, pointerAt.y - corner.y);  // the pointer may be on the ribbon's height
  DrawHoverBox(hoverLines, pointerAt.x - corner.x, y, session.settings, surface);
}

// ---- what lies under the pointer

HoverQuestion frmMap::Question(float x, float y) const {
  const auto today = std::chrono::floor<std::chrono::days>(std::chrono::system_clock::now());
  return {.view = session.view,
          .database = session.database,
          .settings = session.settings,
          .switches = session.switches,
          .x = x,
          .y = y,
          .connected = connected,
          .planShown = panel->isVisible(),
          .format = positionFormat,
          .today = today};
}

void frmMap::MousePosTick() {
  if (!pointerOnMap || box.BoxActive || drag.moving || measure.MeasureActive) return rest.Forget();
  if (QApplication::activePopupWidget() != nullptr || QApplication::activeModalWidget() != nullptr)
    return CloseHover();
  Trapped("frmMap tmrMousePos (", [&] {
    if (rest.Tick(pointerAt.x, pointerAt.y) == HoverTick::close) return CloseHover();
    if (hoverSearched) return;
    hoverSearched = true;
    hoverLines = FindUnderPointer(Question(pointerAt.x, pointerAt.y), hoverSources);
    if (!hoverLines.empty()) Map->update();
  });
}

void frmMap::CloseHover() {
  hoverSearched = false;
  if (hoverLines.empty()) return;
  hoverLines.clear();
  Map->update();
}

// ---- the right button

void frmMap::OpenMapMenu(float x, float y, const QPoint& global) {
  if (QApplication::activePopupWidget() != nullptr) return;
  Trapped("frmMap Map_MouseDown (", [&] {
    CloseHover();
    if (actions["mnuInsertWP"]->isChecked()) return InsertManual(x, y);
    auto* menu = new QMenu(this);
    menu->setObjectName("mnuMapContext");
    menu->setAttribute(Qt::WA_DeleteOnClose);
    const auto add = [&](const QString& name, const QString& text, std::function<void()> command) {
      QAction* action = menu->addAction(text, this, std::move(command));
      action->setObjectName(name);
      return action;
    };
    add("mnuCentreHere", tr("&Centre here"),
        [this, x, y] { Trapped("frmMap mnuCentreHere (", [&] { TakeBox(x, y, x, y); }); });
    add("mnuMeasureFrom", tr("&Measure from here"), [this, x, y] { MeasureFrom(x, y); });
    AddPlanItems(*menu, x, y);
    AddObjects(*menu, x, y);
    menu->addSeparator();
    menu->addAction(actions["mnuClearHighlight"]);
    menu->popup(global);
  });
}

void frmMap::AddObjects(QMenu& menu, float x, float y) {
  const std::vector<MapObject> objects = MapObjectsNear(Question(x, y), session.selection);
  if (objects.empty()) return;
  AddAirportItems(menu, MapObjectsNear(Question(x, y), ClearedSelection()));
  menu.addSeparator();
  menu.addAction(tr("Highlight"))->setEnabled(false);
  int number = 0;
  for (const MapObject& object : objects) {
    QString text = QString::fromStdString(object.text);
    text.replace("&", "&&");
    QAction* action = menu.addAction(text, this, [this, chosen = object.selection] { Highlight(chosen); });
    action->setObjectName(QString("mnuHighlight(%1)").arg(number++));
  }
}

void frmMap::Highlight(const MapSelection& chosen) {
  Trapped("frmMap Highlight (", [&] {
    session.selection = chosen;
    DrawMap();
  });
}
