#include "windows/pnlFlightplan.h"

#include <QHBoxLayout>
#include <QToolButton>
#include <QVBoxLayout>

#include "flightplan/plan_figures.h"
#include "windows/code_page_text.h"
#include "windows/icons.h"

namespace {

constexpr int sideMargin = 16;
constexpr int tableMargin = 6;
constexpr int startWidth = 190;

QString CodeAt(const FlightPlan& plan, int row) {
  return FromCodePage(plan.Row(row).Code.View());
}

QLabel* NewLabel(const QString& name, const char* look = nullptr) {
  auto* label = new QLabel;
  label->setObjectName(name);
  if (look != nullptr) label->setProperty(look, true);
  return label;
}

// A figure with its quiet caption above; what belongs beside it comes behind.
QLabel* AddFigure(QHBoxLayout* row, const QString& caption, const QString& name, QWidget* beside = nullptr) {
  auto* column = new QVBoxLayout;
  column->setSpacing(1);
  auto* captionLabel = new QLabel(caption);
  captionLabel->setProperty("quiet", true);
  QLabel* figure = NewLabel(name, "figure");
  auto* line = new QHBoxLayout;
  line->setSpacing(7);
  line->addWidget(figure);
  if (beside != nullptr) line->addWidget(beside);
  line->addStretch();
  column->addWidget(captionLabel);
  column->addLayout(line, 1);
  row->addLayout(column);
  return figure;
}

// An empty figure stays empty; a quiet word tells that this is meant.
void ShowOrNone(QLabel* figure, const std::string& text) {
  figure->setText(QString::fromStdString(text));
  auto* none = figure->parentWidget()->findChild<QLabel*>(figure->objectName() + "None");
  figure->setVisible(!text.empty());
  none->setVisible(text.empty());
}

QLabel* NoneLabel(const QString& figureName) {
  QLabel* none = NewLabel(figureName + "None", "quiet");
  none->setText(pnlFlightplan::tr("none"));
  return none;
}

}  // namespace

pnlFlightplan::pnlFlightplan(Session& session, QAction* levelUp, QAction* levelDown, QWidget* parent)
    : QFrame(parent),
      session(session),
      plan(session.plan),
      cells(session.plan, session.database, session.navLog, session.settings) {
  setObjectName("pnlFlightplan");
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 14, 0, 0);
  layout->setSpacing(10);
  layout->addLayout(TitleRow());
  layout->addLayout(FigureRow(levelUp, levelDown));
  layout->addLayout(StartRow());
  grdWPTable = new LegTable(plan, cells, session.settings);
  auto* tableRow = new QHBoxLayout;
  tableRow->setContentsMargins(tableMargin, 2, 0, 0);
  tableRow->addWidget(grdWPTable);
  layout->addLayout(tableRow, 1);
  entry = new WaypointEntry(plan, session.database);
  entry->layout()->setContentsMargins(sideMargin, 0, sideMargin, 0);
  connect(entry, &WaypointEntry::WaypointPicked, this, &pnlFlightplan::WaypointPicked);
  layout->addWidget(entry);
  lblHint = NewLabel("lblHint", "quiet");
  lblHint->setWordWrap(true);
  lblHint->setContentsMargins(sideMargin, 0, sideMargin, 12);
  layout->addWidget(lblHint);
  ConnectTable();
  FitWidth();
}

void pnlFlightplan::ConnectTable() {
  connect(grdWPTable, &LegTable::RowPicked, this, [this] {
    ShowHint();
    entry->Refresh();
    Q_EMIT RowPicked();
  });
  connect(grdWPTable, &LegTable::RowCentred, this, &pnlFlightplan::RowCentred);
  connect(grdWPTable, &LegTable::DeleteAsked, this, [this](int row) {
    if (states.editRows) Q_EMIT DeleteAsked(row);
  });
  connect(grdWPTable, &LegTable::AlternateAsked, this, [this] {
    if (states.editRows) Q_EMIT AlternateAsked();
  });
}

QLayout* pnlFlightplan::TitleRow() {
  auto* row = new QHBoxLayout;
  row->setContentsMargins(sideMargin, 0, sideMargin, 0);
  lblPlanTitle = NewLabel("lblPlanTitle");
  lblCurrentAC = NewLabel("lblCurrentAC", "quiet");
  row->addWidget(lblPlanTitle);
  row->addStretch(1);
  row->addWidget(lblCurrentAC);
  return row;
}

QLayout* pnlFlightplan::FigureRow(QAction* levelUp, QAction* levelDown) {
  auto* row = new QHBoxLayout;
  row->setContentsMargins(sideMargin, 0, sideMargin, 0);
  row->setSpacing(26);
  lblFlightDistance = AddFigure(row, tr("Distance (NM)"), "lblFlightDistance");
  lblETE = AddFigure(row, tr("Time enroute"), "lblETE");
  lblFL = AddFigure(row, tr("Flight level"), "lblFL", LevelButtons(levelUp, levelDown));
  lblCruiseSpeed = AddFigure(row, tr("Cruise (kt)"), "lblCruiseSpeed");
  row->addStretch(1);
  lblEstElapTime = NewLabel("lblEstElapTime", "figure");
  row->addWidget(lblEstElapTime, 0, Qt::AlignBottom);
  return row;
}

QLayout* pnlFlightplan::StartRow() {
  auto* row = new QHBoxLayout;
  row->setContentsMargins(sideMargin, 0, sideMargin, 0);
  row->setSpacing(26);
  lstDep = new StartPositionBox;
  lstDep->setFixedWidth(startWidth);
  connect(lstDep, &StartPositionBox::StartChosen, this, [this] { Q_EMIT StartChosen(lstDep->Chosen()); });
  auto* caption = new QLabel(tr("Start"));
  caption->setProperty("quiet", true);
  auto* column = new QVBoxLayout;
  column->setSpacing(1);
  column->addWidget(caption);
  column->addWidget(lstDep);
  row->addLayout(column);
  lblSID = AddFigure(row, tr("SID"), "lblSID", NoneLabel("lblSID"));
  lblSTAR = AddFigure(row, tr("STAR"), "lblSTAR", NoneLabel("lblSTAR"));
  row->addStretch(1);
  return row;
}

QWidget* pnlFlightplan::LevelButtons(QAction* levelUp, QAction* levelDown) {
  auto* updnFL = new QFrame;
  updnFL->setObjectName("updnFL");
  auto* line = new QHBoxLayout(updnFL);
  line->setContentsMargins(0, 0, 0, 0);
  line->setSpacing(1);
  for (QAction* step : {levelDown, levelUp}) {
    auto* button = new QToolButton;
    step->setIcon(LineIcon(step == levelUp ? "level_up" : "level_down"));
    step->setIconVisibleInMenu(false);
    button->setDefaultAction(step);
    button->setIconSize(QSize(12, 12));
    button->setFocusPolicy(Qt::TabFocus);
    button->setFixedSize(22, 18);
    line->addWidget(button);
  }
  return updnFL;
}

void pnlFlightplan::FitWidth() {
  setFixedWidth(grdWPTable->LayoutWidth() + tableMargin + 2 * frameWidth());
}

void pnlFlightplan::SetExtended(bool on) {
  grdWPTable->SetExtended(on);
  FitWidth();
}

void pnlFlightplan::ShowCoords(bool on) {
  cells.showCoords = on;
  grdWPTable->Refresh();
  FitWidth();
}

void pnlFlightplan::Refresh(const PlanCommandStates& now) {
  states = now;
  grdWPTable->Refresh();
  lstDep->ShowPlan(session.database, plan);
  lstDep->setEnabled(states.editRows && !lstDep->Starts().empty());
  entry->setEnabled(states.editRows);
  entry->Refresh();
  ShowFigures();
  ShowHint();
}

void pnlFlightplan::ShowFigures() {
  lblPlanTitle->setText(plan.RowCount() >= 2 ? CodeAt(plan, 0) + "  →  " + CodeAt(plan, plan.DestinationRow())
                                             : tr("No flight plan"));
  lblCurrentAC->setText(QString::fromStdString(session.aircraft.Name));
  const PlanFigures figures = FiguresOf(plan, session.aircraft);
  lblFlightDistance->setText(QString::fromStdString(figures.FlightDistance));
  lblETE->setText(QString::fromStdString(figures.ETE));
  lblFL->setText(QString::fromStdString(figures.FL));
  lblCruiseSpeed->setText(QString::fromStdString(figures.CruiseSpeed));
  ShowOrNone(lblSID, plan.SidName);
  ShowOrNone(lblSTAR, plan.StarName);
}

void pnlFlightplan::ShowHint() {
  const int row = plan.SelectedRow;
  QString hint;
  if (plan.MissingWaypoints) {
    hint = tr("The database lacks some of these waypoints: the plan can be shown, but not changed or saved.");
  } else if (row <= 0) {
    hint =
        tr("A route replaces everything between the airports. Select a row to fill only the leg behind it.");
  } else if (row >= plan.DestinationRow()) {
    hint = tr("A route now fills only the last leg, behind %1. Esc selects the whole plan.")
               .arg(CodeAt(plan, plan.DestinationRow() - 1));
  } else {
    hint = tr("A route now fills the leg behind %1; Delete takes it out of the plan. Esc selects the whole "
              "plan.")
               .arg(CodeAt(plan, row));
  }
  lblHint->setText(hint);
}
