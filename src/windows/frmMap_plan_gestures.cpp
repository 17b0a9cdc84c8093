// What the pointer does to the plan on the map: waypoints and legs are pulled,
// waypoints are picked, inserted and deleted. What lies under the pointer and
// what becomes of the plan is flightplan/plan_drag's.
#include <QMenu>
#include <QTableView>
#include <utility>

#include "base/code_page.h"
#include "flightplan/plan_drag.h"
#include "flightplan/plan_layers.h"
#include "flightplan/waypoint_search.h"
#include "windows/frmMap.h"

namespace {

// A hand that shakes while it clicks pulls nothing.
constexpr double pullTolerance = 3;  // pixels

QString ToQString(std::string_view text) {
  return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

// A menu's text in which no "&" is a mnemonic.
QString Plain(const std::string& text) {
  return QString::fromStdString(text).replace("&", "&&");
}

Qt::CursorShape ShapeOver(const FlightPlan& plan, const PlanHit& hit) {
  if (hit.part == PlanPart::none) return Qt::CrossCursor;
  if (hit.movable) return Qt::OpenHandCursor;
  if (hit.part == PlanPart::leg) return Qt::CrossCursor;
  const RowKind kind = plan.Row(hit.row).Kind;
  const bool airport = kind == RowKind::departure || kind == RowKind::destination;
  return airport ? Qt::PointingHandCursor : Qt::ForbiddenCursor;
}

}  // namespace

double frmMap::Pixels(double count) const {
  return count * static_cast<double>(Map->VisibleUnits().x) / std::max(1, Map->width());
}

// ---- pulling

void frmMap::BeginPlanPress(float x, float y, Qt::KeyboardModifiers modifiers) {
  GiveUpPlanPress();
  drag.begun = {x, y};
  if (!modifiers.testFlag(Qt::ShiftModifier))
    drag.hit = PlanUnder(session.plan, session.view.CurrentProjection(), {x, y}, Pixels(planHitPixels));
  const bool asked = modifiers == Qt::ControlModifier || actions["mnuInsertWP"]->isChecked();
  insertOnClick = asked && panel->isVisible() && editor.States().editRows;
}

void frmMap::FollowPlanPress() {
  if (!drag.hit.movable) return;
  const double moved = std::abs(pointerAt.x - drag.begun.x) + std::abs(pointerAt.y - drag.begun.y);
  if (!drag.moving && moved <= Pixels(pullTolerance)) return;
  drag.moving = true;
  box.Finish();
  const auto shown = ShownWaypointAt(Question(pointerAt.x, pointerAt.y),
                                     static_cast<std::int32_t>(Pixels(dropTargetPixels)));
  drag.target = shown ? *shown : UserPositionRow(session.plan, session.database, PointerPosition());
}

bool frmMap::EndPlanPress(float x, float y) {
  const PlanDrag press = std::exchange(drag, {});
  const bool inserts = std::exchange(insertOnClick, false);
  if (press.moving) {
    // Let go beside the map the plan stays as it is.
    if (Map->rect().contains(Map->ToPixel(x, y))) TakeDrag(press);
    return true;
  }
  if (x != press.begun.x || y != press.begun.y) return false;
  if (inserts) {
    InsertAt(x, y);
    return true;
  }
  if (press.hit.part != PlanPart::waypoint) return false;
  SelectPlanRow(press.hit.row);
  return true;
}

void frmMap::TakeDrag(const PlanDrag& pulled) {
  if (pulled.hit.part == PlanPart::waypoint) {
    editor.MoveRow(pulled.hit.row, pulled.target);
  } else {
    editor.InsertBefore(pulled.hit.row, pulled.target);
  }
}

void frmMap::GiveUpPlanPress() {
  drag = {};
  insertOnClick = false;
}

// The pointer's shape says what a press would do here.
void frmMap::ShowPlanPointer() {
  if (box.BoxActive) return;
  PlanHit hit;
  const bool taken =
      measure.MeasureActive || actions["mnuMeasure"]->isChecked() || actions["mnuInsertWP"]->isChecked();
  if (!taken && pointerOnMap)
    hit = PlanUnder(session.plan, session.view.CurrentProjection(), pointerAt, Pixels(planHitPixels));
  const Qt::CursorShape shape = drag.moving ? Qt::ClosedHandCursor : ShapeOver(session.plan, hit);
  if (Map->cursor().shape() != shape) Map->setCursor(shape);
  Map->setToolTip(drag.moving ? QString() : ToQString(WhyFixed(session.plan, hit)));
}

// Beside the pointer: what the pulled waypoint, or a click that inserts, would be.
void frmMap::PlacePlanLabel() {
  const bool inserting =
      actions["mnuInsertWP"]->isChecked() && pointerOnMap && !box.BoxActive && !drag.moving;
  insertTarget.reset();
  if (inserting && !HasInsertionPoint()) {
    lblPlanDrag->setText(tr("Select the table row to insert behind"));
  } else if (inserting) {
    const auto shown = ShownWaypointAt(Question(pointerAt.x, pointerAt.y), insertRadius);
    const PlanWaypoint row = shown ? *shown : ManualRow(session.database, PointerPosition());
    insertTarget = PlaceOf(row);
    lblPlanDrag->setText(tr("Insert %1").arg(ToQString(TargetText(row))));
  } else if (drag.moving) {
    lblPlanDrag->setText(ToQString(TargetText(drag.target)));
  }
  lblPlanDrag->setVisible(inserting || drag.moving);
  if (!lblPlanDrag->isVisible()) return;
  lblPlanDrag->adjustSize();
  Map->PlaceLabel(*lblPlanDrag, Map->ToPixel(pointerAt.x, pointerAt.y), Qt::TopRightCorner);
}

// ---- picking and inserting

void frmMap::SelectPlanRow(int row) {
  if (auto* table = panel->findChild<QTableView*>("grdWPTable")) {
    table->selectRow(row);
    table->scrollTo(table->model()->index(row, 0));
  }
}

void frmMap::SetInserting(bool on) {
  if (on) actions["mnuShowPlan"]->setChecked(true);  // the insertion point is a row of its table
  ShowPlanPointer();
  FollowPointer();
}

void frmMap::InsertAt(float x, float y) {
  const auto shown = ShownWaypointAt(Question(x, y), insertRadius);
  shown ? InsertRow(*shown) : InsertManual(x, y);
}

void frmMap::InsertManual(float x, float y) {
  const Projection projection = session.view.CurrentProjection();
  const Position place{std::clamp(projection.YToLat(y), -90.0F, 90.0F), projection.XToLon(x)};
  InsertRow(ManualRow(session.database, place));
}

bool frmMap::HasInsertionPoint() const {
  const auto* table = panel->findChild<QTableView*>("grdWPTable");
  return table != nullptr && table->selectionModel()->hasSelection();
}

void frmMap::InsertRow(const PlanWaypoint& row) {
  if (!HasInsertionPoint()) return messages.Show(insertionPointText, MessageIcon::exclamation);
  editor.InsertAfterSelection(row);
}

void frmMap::AddPlanItems(QMenu& menu, float x, float y) {
  if (session.plan.RowCount() < 2) return;
  menu.addSeparator();
  const auto add = [&](const char* name, const QString& text, std::function<void()> command) {
    menu.addAction(text, this, std::move(command))->setObjectName(name);
  };
  const PlanHit hit =
      PlanUnder(session.plan, session.view.CurrentProjection(), {x, y}, Pixels(planHitPixels));
  const bool changes = editor.States().editRows;
  if (hit.part == PlanPart::waypoint) {
    const QString code = Plain(CodePageToUtf8(session.plan.Row(hit.row).Code.View()));
    add("mnuSelectHere", tr("&Select %1").arg(code), [this, row = hit.row] { SelectPlanRow(row); });
    if (changes && hit.row > 0 && hit.row < session.plan.DestinationRow())
      add("mnuDeleteHere", tr("&Delete %1 from the plan").arg(code),
          [this, row = hit.row] { editor.DeleteRow(row); });
  }
  if (!changes) return;
  if (const auto shown = ShownWaypointAt(Question(x, y), insertRadius))
    add("mnuInsertHere", tr("&Insert %1 here").arg(Plain(TargetText(*shown))),
        [this, row = *shown] { InsertRow(row); });
  add("mnuInsertPositionHere", tr("Insert &position here"), [this, x, y] { InsertManual(x, y); });
}
