#include "windows/waypoint_entry.h"

#include <QApplication>
#include <QHeaderView>
#include <QKeyEvent>
#include <QVBoxLayout>

#include "base/numbers.h"
#include "windows/code_page_text.h"

namespace {

constexpr int rowHeight = 25;
constexpr int mostRowsShown = 7;
constexpr int firstSelected = 0;

QString Picture(double value, std::string_view picture) {
  return QString::fromStdString(FormatPicture(value, picture));
}

}  // namespace

void FoundWaypointModel::Show(std::vector<FoundWaypoint> waypoints) {
  beginResetModel();
  found = std::move(waypoints);
  endResetModel();
}

int FoundWaypointModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(found.size());
}

int FoundWaypointModel::columnCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : columns;
}

QString FoundWaypointModel::Text(const FoundWaypoint& waypoint, int column) const {
  const PlanWaypoint& row = waypoint.row;
  const bool seenFromSomewhere = waypoint.distance > 0;
  switch (column) {
    case kind:
      return FromCodePage(row.Sym.View());
    case code:
      return FromCodePage(row.Code.View());
    case name:
      return row.Name == row.Code.View() ? QString() : FromCodePage(row.Name.View());
    case frequency:
      return row.Freq > 0 ? Picture(row.Freq, "###.00") : QString();
    case distance:
      return seenFromSomewhere ? Picture(RoundToEven(waypoint.distance), "##0") + " NM" : QString();
    case course:
      return seenFromSomewhere
                 ? Picture(waypoint.magneticCourse, "000") + "°/" + Picture(waypoint.course, "000") + "°"
                 : QString();
    default:
      return {};
  }
}

QVariant FoundWaypointModel::data(const QModelIndex& index, int role) const {
  if (!index.isValid() || index.row() >= rowCount()) return {};
  if (role == Qt::DisplayRole) return Text(At(index.row()), index.column());
  if (role == Qt::TextAlignmentRole && index.column() >= frequency)
    return QVariant(Qt::AlignRight | Qt::AlignVCenter);
  if (role == Qt::ToolTipRole) {
    const FoundWaypoint& at = At(index.row());
    return tr("%1 %2 %3\nDistance and magnetic/true course from the row it goes behind")
        .arg(Text(at, kind), Text(at, code), Text(at, name))
        .simplified();
  }
  return {};
}

WaypointEntry::WaypointEntry(const FlightPlan& plan, const NavDatabase& database, QWidget* parent)
    : QWidget(parent), plan(plan), database(database) {
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(4);
  txtManWP = new QLineEdit(this);
  txtManWP->setObjectName("txtManWP");
  txtManWP->setAccessibleName(tr("Waypoint to insert"));
  txtManWP->setPlaceholderText(tr("Add a waypoint: FFM, or N50 30 E008 30"));
  txtManWP->setToolTip(
      tr("Ident of a navaid, intersection or fix, or a position; (Ctrl+W); Enter puts it behind the selected "
         "row"));
  txtManWP->installEventFilter(this);
  lstWP = new QTableView(this);
  lstWP->setObjectName("lstWP");
  lstWP->setAccessibleName(tr("Waypoints that match"));
  model = new FoundWaypointModel(this);
  lstWP->setModel(model);
  lstWP->setShowGrid(false);
  lstWP->setSelectionBehavior(QAbstractItemView::SelectRows);
  lstWP->setSelectionMode(QAbstractItemView::SingleSelection);
  lstWP->setFocusPolicy(Qt::NoFocus);
  lstWP->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  lstWP->horizontalHeader()->hide();
  lstWP->verticalHeader()->hide();
  lstWP->verticalHeader()->setDefaultSectionSize(rowHeight);
  lstWP->horizontalHeader()->setSectionResizeMode(FoundWaypointModel::name, QHeaderView::Stretch);
  const std::pair<int, int> widths[] = {{FoundWaypointModel::kind, 54},
                                        {FoundWaypointModel::code, 66},
                                        {FoundWaypointModel::frequency, 62},
                                        {FoundWaypointModel::distance, 84},
                                        {FoundWaypointModel::course, 88}};
  for (const auto& [column, width] : widths)
    lstWP->setColumnWidth(column, width);
  lstWP->hide();
  layout->addWidget(txtManWP);
  layout->addWidget(lstWP);
  connect(txtManWP, &QLineEdit::textEdited, this, &WaypointEntry::Find);
  connect(lstWP, &QTableView::clicked, this, [this](const QModelIndex& index) { Pick(index.row()); });
}

void WaypointEntry::Refresh() {
  if (!txtManWP->text().isEmpty()) Find();
}

void WaypointEntry::Edit() {
  txtManWP->setFocus(Qt::ShortcutFocusReason);
  txtManWP->selectAll();
}

void WaypointEntry::Find() {
  model->Show(FindWaypoints(plan, database, txtManWP->text().toStdString()));
  const int rows = model->rowCount();
  lstWP->setVisible(rows > 0);
  lstWP->setFixedHeight(std::min(rows, mostRowsShown) * rowHeight + 2);
  lstWP->scrollToTop();
  if (rows > 0) lstWP->selectRow(firstSelected);
  txtManWP->setProperty("fault", rows == 0 && !txtManWP->text().trimmed().isEmpty());
  txtManWP->style()->unpolish(txtManWP);
  txtManWP->style()->polish(txtManWP);
}

void WaypointEntry::Reset() {
  txtManWP->clear();
  Find();
}

void WaypointEntry::Pick(int row) {
  if (row < 0 || row >= model->rowCount()) return;
  const PlanWaypoint picked = model->At(row).row;
  Reset();
  Q_EMIT WaypointPicked(picked);
}

bool WaypointEntry::TakeKey(const QKeyEvent& key) {
  switch (key.key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
      Pick(lstWP->currentIndex().row());
      return true;
    case Qt::Key_Escape:
      if (txtManWP->text().isEmpty()) return false;
      Reset();
      return true;
    case Qt::Key_Down:
    case Qt::Key_Up:
    case Qt::Key_PageDown:
    case Qt::Key_PageUp: {
      QKeyEvent forList(key.type(), key.key(), key.modifiers());
      QApplication::sendEvent(lstWP, &forList);
      return true;
    }
    default:
      return false;
  }
}

bool WaypointEntry::eventFilter(QObject* watched, QEvent* event) {
  if (watched == txtManWP && event->type() == QEvent::KeyPress && TakeKey(*static_cast<QKeyEvent*>(event)))
    return true;
  // Keys of the window that a text field or its list needs for itself.
  if (watched == txtManWP && event->type() == QEvent::ShortcutOverride) {
    const int key = static_cast<QKeyEvent*>(event)->key();
    if (key == Qt::Key_PageDown || key == Qt::Key_PageUp || key == Qt::Key_Escape) event->accept();
  }
  return QWidget::eventFilter(watched, event);
}
