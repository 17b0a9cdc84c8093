#include "windows/start_position_box.h"

#include <QAbstractItemView>
#include <QCompleter>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPainter>
#include <QSignalBlocker>

namespace {

constexpr int shownItems = 16;

}  // namespace

StartPositionBox::StartPositionBox(QWidget* parent) : QComboBox(parent) {
  setObjectName("lstDep");
  setAccessibleName(tr("Start position"));
  setToolTip(tr("Runway or gate at which the flight begins; type to search"));
  setEditable(true);
  setInsertPolicy(QComboBox::NoInsert);
  setMaxVisibleItems(shownItems);
  completer()->setFilterMode(Qt::MatchContains);
  completer()->setCompletionMode(QCompleter::PopupCompletion);
  completer()->setCaseSensitivity(Qt::CaseInsensitive);
  completer()->setMaxVisibleItems(shownItems);
  completer()->popup()->setObjectName("lstDepMatches");
  connect(this, &QComboBox::activated, this, &StartPositionBox::Take);
  connect(lineEdit(), &QLineEdit::editingFinished, this, &StartPositionBox::TakeTyped);
  ShowAirport(NavDatabase(), -1);
}

void StartPositionBox::ShowAirport(const NavDatabase& database, std::int32_t airportRow) {
  if (count() > 0 && airportRow == airport) return;
  airport = airportRow;
  starts = StartPositions(database, airportRow);
  const QSignalBlocker quiet(this);
  clear();
  addItem(tr("Airport reference point"), -1);
  for (std::size_t i = 0; i < starts.size(); ++i) {
    // A line between the groups.
    if (i == 0 || starts[i].IsRunway() != starts[i - 1].IsRunway()) insertSeparator(count());
    addItem(QString::fromStdString(starts[i].text), static_cast<int>(i));
  }
  setEnabled(!starts.empty());
  Select(-1);
}

void StartPositionBox::Select(int start) {
  const QSignalBlocker quiet(this);
  chosenItem = std::max(0, findData(start));
  setCurrentIndex(chosenItem);
  setEditText(itemText(chosenItem));
  lineEdit()->setCursorPosition(0);
}

void StartPositionBox::ShowPlan(const NavDatabase& database, const FlightPlan& plan) {
  ShowAirport(database, plan.DepartureIndex);
  Select(FindStart(starts, plan));
}

const StartPosition* StartPositionBox::Chosen() const {
  const int start = itemData(chosenItem).toInt();
  return start >= 0 && static_cast<std::size_t>(start) < starts.size()
             ? &starts[static_cast<std::size_t>(start)]
             : nullptr;
}

void StartPositionBox::Take(int item) {
  const bool another = item >= 0 && item != chosenItem && itemData(item).isValid();
  Select(itemData(another ? item : chosenItem).toInt());
  if (another) Q_EMIT StartChosen();
}

// The item whose text before "(" was typed, else the first that begins so,
// else the first that holds it.
int StartPositionBox::ItemOfTyped(const QString& typed) const {
  int begins = -1;
  int holds = -1;
  for (int item = 0; item < count(); ++item) {
    const QString text = itemText(item);
    if (text.isEmpty()) continue;
    if (text.section('(', 0, 0).trimmed().compare(typed, Qt::CaseInsensitive) == 0) return item;
    if (begins < 0 && text.startsWith(typed, Qt::CaseInsensitive)) begins = item;
    if (holds < 0 && text.contains(typed, Qt::CaseInsensitive)) holds = item;
  }
  return begins >= 0 ? begins : holds;
}

void StartPositionBox::TakeTyped() {
  const QString typed = lineEdit()->text().trimmed();
  if (typed == itemText(chosenItem).trimmed()) return;
  Take(typed.isEmpty() ? 0 : ItemOfTyped(typed));
}

void StartPositionBox::keyPressEvent(QKeyEvent* event) {
  const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
  const bool escape = event->key() == Qt::Key_Escape;
  const bool pending = lineEdit()->text() != itemText(chosenItem);
  if (!pending || !(enter || escape)) return QComboBox::keyPressEvent(event);
  completer()->popup()->hide();
  if (enter) {
    TakeTyped();
  } else {
    Take(-1);
  }
}

void StartPositionBox::focusInEvent(QFocusEvent* event) {
  QComboBox::focusInEvent(event);
  if (event->reason() != Qt::PopupFocusReason) lineEdit()->selectAll();
}

void StartPositionBox::hidePopup() {
  QComboBox::hidePopup();
  // What is typed now is a new search.
  if (hasFocus()) lineEdit()->selectAll();
}

void StartPositionBox::paintEvent(QPaintEvent* event) {
  QComboBox::paintEvent(event);
  // The style sheet takes the arrow away.
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(QPen(palette().color(isEnabled() ? QPalette::Mid : QPalette::PlaceholderText), 1.5));
  const QPointF tip(width() - 15.5, height() / 2.0 + 2.5);
  painter.drawPolyline(QPolygonF({tip - QPointF(4.5, 4.5), tip, tip + QPointF(4.5, -4.5)}));
}
