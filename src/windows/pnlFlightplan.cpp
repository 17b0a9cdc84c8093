#include "windows/pnlFlightplan.h"

#include <QHBoxLayout>
#include <QHeaderView>
#include <QKeyEvent>
#include <QVBoxLayout>

#include "base/code_page.h"
#include "base/numbers.h"
#include "flightplan/plan_legs.h"
#include "navdata/geodesy.h"

namespace {

constexpr int panelWidth = 500;

QString Utf8(std::string_view codePageText) {
  return QString::fromStdString(CodePageToUtf8(codePageText));
}

QString CodeAt(const FlightPlan& plan, int row) {
  return Utf8(plan.Row(row).Code.View());
}

// A figure with its quiet caption above.
QLabel* AddFigure(QHBoxLayout* layout, const QString& caption, const QString& name) {
  auto* column = new QVBoxLayout;
  column->setSpacing(1);
  auto* captionLabel = new QLabel(caption);
  captionLabel->setProperty("quiet", true);
  auto* figure = new QLabel;
  figure->setObjectName(name);
  figure->setProperty("figure", true);
  column->addWidget(captionLabel);
  column->addWidget(figure);
  layout->addLayout(column);
  return figure;
}

}  // namespace

LegTableModel::LegTableModel(const FlightPlan& plan, QObject* parent)
    : QAbstractTableModel(parent), plan(plan) {}

void LegTableModel::Refresh() {
  beginResetModel();
  endResetModel();
}

int LegTableModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : plan.RowCount();
}

int LegTableModel::columnCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : Column::columns;
}

QString LegTableModel::CellText(int row, int column) const {
  const PlanWaypoint& waypoint = plan.Row(row);
  switch (column) {
    case code:
      return Utf8(waypoint.Code.View());
    case name:
      return Utf8(waypoint.Name.View());
    case airway:
      return waypoint.HasAirway() ? Utf8(waypoint.Airway.View()) : QString();
    case course:
      if (row == 0) return {};
      return QString::fromStdString(FormatPicture(MagneticCourse(plan, row), "000") + "°/" +
                                    FormatPicture(waypoint.Course, "000") + "°");
    case distance:
      if (row == 0) return {};
      return QString::fromStdString(FormatPicture(RoundToEven(waypoint.Dist), "000") + " NM");
    default:
      return {};
  }
}

QVariant LegTableModel::data(const QModelIndex& index, int role) const {
  if (!index.isValid() || index.row() >= plan.RowCount()) return {};
  if (role == Qt::DisplayRole || role == Qt::ToolTipRole) return CellText(index.row(), index.column());
  if (role == Qt::TextAlignmentRole && index.column() >= course)
    return QVariant(Qt::AlignRight | Qt::AlignVCenter);
  return {};
}

QVariant LegTableModel::headerData(int section, Qt::Orientation orientation, int role) const {
  if (orientation != Qt::Horizontal) return {};
  if (role == Qt::TextAlignmentRole)
    return section >= course ? QVariant(Qt::AlignRight | Qt::AlignVCenter)
                             : QVariant(Qt::AlignLeft | Qt::AlignVCenter);
  if (role != Qt::DisplayRole) return {};
  const QStringList headings = {tr("Code"), tr("Name"), tr("Airway"), tr("Course"), tr("Distance")};
  return headings.value(section);
}

pnlFlightplan::pnlFlightplan(FlightPlan& plan, QWidget* parent) : QFrame(parent), plan(plan) {
  setObjectName("pnlFlightplan");
  setFixedWidth(panelWidth);
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 18, 0, 0);
  layout->setSpacing(12);
  lblPlanTitle = new QLabel(this);
  lblPlanTitle->setObjectName("lblPlanTitle");
  lblPlanTitle->setContentsMargins(18, 0, 18, 0);
  layout->addWidget(lblPlanTitle);
  auto* figures = new QHBoxLayout;
  figures->setContentsMargins(18, 0, 18, 0);
  figures->setSpacing(34);
  lblFlightDistance = AddFigure(figures, tr("Distance (NM)"), "lblFlightDistance");
  lblETE = AddFigure(figures, tr("Time enroute"), "lblETE");
  lblFL = AddFigure(figures, tr("Flight level"), "lblFL");
  figures->addStretch();
  layout->addLayout(figures);
  grdWPTable = new QTableView(this);
  grdWPTable->setObjectName("grdWPTable");
  model = new LegTableModel(plan, this);
  grdWPTable->setModel(model);
  grdWPTable->setShowGrid(false);
  grdWPTable->setAlternatingRowColors(true);
  grdWPTable->setSelectionBehavior(QAbstractItemView::SelectRows);
  grdWPTable->setSelectionMode(QAbstractItemView::SingleSelection);
  grdWPTable->setTabKeyNavigation(false);
  grdWPTable->setWordWrap(false);
  grdWPTable->verticalHeader()->hide();
  grdWPTable->verticalHeader()->setDefaultSectionSize(27);
  auto* header = grdWPTable->horizontalHeader();
  header->setHighlightSections(false);
  header->setSectionResizeMode(LegTableModel::name, QHeaderView::Stretch);
  const std::pair<int, int> widths[] = {{LegTableModel::code, 74},
                                        {LegTableModel::airway, 74},
                                        {LegTableModel::course, 104},
                                        {LegTableModel::distance, 84}};
  for (const auto& [column, width] : widths)
    grdWPTable->setColumnWidth(column, width);
  grdWPTable->installEventFilter(this);
  connect(grdWPTable->selectionModel(), &QItemSelectionModel::selectionChanged, this,
          [this] { TakeSelection(); });
  auto* tableRow = new QHBoxLayout;
  tableRow->setContentsMargins(9, 0, 9, 0);
  tableRow->addWidget(grdWPTable);
  layout->addLayout(tableRow, 1);
  lblHint = new QLabel(this);
  lblHint->setObjectName("lblHint");
  lblHint->setProperty("quiet", true);
  lblHint->setWordWrap(true);
  lblHint->setContentsMargins(18, 0, 18, 12);
  layout->addWidget(lblHint);
  Refresh();
}

void pnlFlightplan::TakeSelection() {
  const QModelIndexList rows = grdWPTable->selectionModel()->selectedRows();
  plan.SelectedRow = rows.isEmpty() ? std::int16_t{0} : static_cast<std::int16_t>(rows.first().row());
  ShowHint();
  Q_EMIT RowPicked();
}

void pnlFlightplan::ShowHint() {
  const bool selected = plan.SelectedRow > 0 && plan.SelectedRow < plan.DestinationRow();
  lblHint->setText(selected
                       ? tr("A route now fills the leg behind %1; Delete takes it out of the plan. Esc "
                            "selects the whole plan.")
                             .arg(CodeAt(plan, plan.SelectedRow))
                       : tr("A route replaces everything between the airports. Select a row to fill only "
                            "the leg behind it."));
}

bool pnlFlightplan::eventFilter(QObject* watched, QEvent* event) {
  if (watched == grdWPTable && event->type() == QEvent::KeyPress &&
      static_cast<QKeyEvent*>(event)->key() == Qt::Key_Delete) {
    if (plan.SelectedRow > 0) Q_EMIT DeleteAsked(plan.SelectedRow);
    return true;
  }
  if (watched == grdWPTable && event->type() == QEvent::KeyPress &&
      static_cast<QKeyEvent*>(event)->key() == Qt::Key_Escape &&
      grdWPTable->selectionModel()->hasSelection()) {
    grdWPTable->clearSelection();
    return true;
  }
  return QFrame::eventFilter(watched, event);
}

void pnlFlightplan::Refresh() {
  // The reset takes the selection away without telling; the plan's own row stays the truth.
  model->Refresh();
  if (plan.SelectedRow > 0 && plan.SelectedRow <= plan.DestinationRow())
    grdWPTable->selectRow(plan.SelectedRow);
  const bool filed = plan.RowCount() >= 2;
  lblPlanTitle->setText(filed ? CodeAt(plan, 0) + "  →  " + CodeAt(plan, plan.DestinationRow())
                              : tr("No flight plan"));
  lblFlightDistance->setText(filed ? QString::fromStdString(FormatPicture(plan.TotalDistance, "####0"))
                                   : "00000");
  lblETE->setText(QString::fromStdString(FormatMinutes(plan.TotalMinutes)));
  lblFL->setText(filed ? QString::number(plan.CruiseFL) : "000");
  ShowHint();
}
