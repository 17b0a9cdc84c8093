#include "windows/frmDepArr.h"

#include <QHBoxLayout>
#include <QPrintDialog>
#include <QPrinter>
#include <QVBoxLayout>

#include "base/code_page.h"
#include "base/error_trap.h"
#include "windows/procedure_page.h"

namespace {

constexpr int leftWidth = 230;

QString Text(const std::string& utf8) {
  return QString::fromStdString(utf8);
}

ProcedureKind Other(ProcedureKind kind) {
  return kind == ProcedureKind::sid ? ProcedureKind::star : ProcedureKind::sid;
}

}  // namespace

frmDepArr::frmDepArr(Session& session, PlanEditor& editor, MessageBox& messages, ProcedureKind kind,
                     QWidget* parent)
    : QDialog(parent), session(session), editor(editor), messages(messages) {
  setObjectName("frmDepArr");
  setWindowTitle(tr("Departures and arrivals"));
  resize(1020, 700);
  print = [this](const ProcedureChart& page) { OpenPrinter(page); };
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(18, 16, 18, 16);
  layout->setSpacing(12);
  auto* columns = new QHBoxLayout;
  columns->setSpacing(14);
  layout->addLayout(columns, 1);
  BuildLeft(columns);
  SIDFrame = new QGroupBox(this);
  SIDFrame->setObjectName("SIDFrame");
  auto* inFrame = new QVBoxLayout(SIDFrame);
  inFrame->setContentsMargins(0, 10, 0, 0);
  inFrame->setSpacing(10);
  SIDMap = new ProcedureMap(session.settings, SIDFrame);
  inFrame->addWidget(SIDMap, 1);
  lblMessage = new QLabel(SIDFrame);
  lblMessage->setObjectName("lblMessage");
  lblMessage->setWordWrap(true);
  lblMessage->setMinimumHeight(76);
  lblMessage->setAlignment(Qt::AlignTop | Qt::AlignLeft);
  lblMessage->setTextInteractionFlags(Qt::TextSelectableByMouse);
  inFrame->addWidget(lblMessage);
  columns->addWidget(SIDFrame, 1);
  BuildButtons(layout);
  connect(lstRwy, &QListWidget::currentRowChanged, this, &frmDepArr::ShowRunway);
  connect(lstProcedures, &QListWidget::currentRowChanged, this, &frmDepArr::ShowPicked);
  ShowKind(kind);
  lstRwy->setFocus();
}

void frmDepArr::BuildLeft(QHBoxLayout* columns) {
  auto* left = new QVBoxLayout;
  left->setSpacing(6);
  const auto addList = [&](const QString& caption, const QString& name, int stretch) {
    auto* label = new QLabel(caption, this);
    label->setProperty("quiet", true);
    auto* list = new QListWidget(this);
    list->setObjectName(name);
    list->setFixedWidth(leftWidth);
    label->setBuddy(list);
    left->addWidget(label);
    left->addWidget(list, stretch);
    return list;
  };
  cmdSIDSTAR = new QPushButton(this);
  cmdSIDSTAR->setObjectName("cmdSIDSTAR");
  cmdSIDSTAR->setAutoDefault(false);
  cmdSIDSTAR->setToolTip(tr("Change between departure and arrival"));
  left->addWidget(cmdSIDSTAR);
  lstRwy = addList(tr("&Runway"), "lstRwy", 2);
  lstProcedures = addList(tr("Pr&ocedure"), "lstProcedures", 3);
  columns->addLayout(left);
  connect(cmdSIDSTAR, &QPushButton::clicked, this,
          [this] { Trapped("frmDepArr cmdSIDSTAR (", [&] { ShowKind(Other(chart->Kind())); }); });
}

void frmDepArr::BuildButtons(QVBoxLayout* layout) {
  auto* buttons = new QHBoxLayout;
  cmdPrint = new QPushButton(tr("&Print..."), this);
  cmdPrint->setObjectName("cmdPrint");
  cmdPrint->setAutoDefault(false);
  auto* close = new QPushButton(tr("&Close"), this);
  close->setObjectName("cmdClose");
  close->setDefault(true);
  buttons->addStretch();
  buttons->addWidget(cmdPrint);
  buttons->addWidget(close);
  layout->addLayout(buttons);
  connect(cmdPrint, &QPushButton::clicked, this,
          [this] { Trapped("frmDepArr cmdPrint (", [&] { print(*chart); }); });
  connect(close, &QPushButton::clicked, this, &QDialog::accept);
}

void frmDepArr::Trapped(std::string_view head, const std::function<void()>& body) {
  std::string report;
  if (RunTrapped(head, body, [&](const std::string& text) { report = text; })) return;
  session.protocol.WriteError(report);
  messages.Show(report, MessageIcon::exclamation);
}

void frmDepArr::ShowKind(ProcedureKind kind) {
  const FlightPlan& plan = session.plan;
  const std::int32_t airport = kind == ProcedureKind::sid ? plan.DepartureIndex : plan.DestinationIndex;
  auto fresh = std::make_unique<ProcedureChart>(session.database, kind, airport, editor.Procedures(kind));
  SIDMap->ShowChart(nullptr);
  chart = std::move(fresh);
  cmdSIDSTAR->setText(kind == ProcedureKind::sid ? tr("&Departure") : tr("&Arrival"));
  lstRwy->clear();
  for (const RunwayChoice& choice : RunwayChoices(session.database, airport)) {
    auto* item = new QListWidgetItem(Text(choice.ListText()), lstRwy);
    item->setData(Qt::UserRole, Text(choice.id));
  }
  SIDMap->ShowChart(chart.get());
  SelectRunwayInUse();
}

// The start runway, and the procedure that the plan has.
void frmDepArr::SelectRunwayInUse() {
  const FlightPlan& plan = session.plan;
  const bool departure = chart->Kind() == ProcedureKind::sid;
  const std::string& inUse = departure ? plan.SidName : plan.StarName;
  int row = lstRwy->count() > 0 ? 0 : -1;
  for (int i = 0; departure && i < lstRwy->count(); ++i)
    if (SameRunway(lstRwy->item(i)->data(Qt::UserRole).toString().toStdString(), plan.DepartureID)) row = i;
  lstRwy->setCurrentRow(row);
  if (row < 0) ShowRunway(-1);
  for (int i = 0; !inUse.empty() && i < lstProcedures->count(); ++i)
    if (CodePageToUtf8(chart->Shown()[static_cast<std::size_t>(i)].Name.View()) == inUse)
      lstProcedures->setCurrentRow(i);
}

void frmDepArr::ShowRunway(int row) {
  if (!chart) return;
  chart->ShowRunway(row < 0 ? std::string() : lstRwy->item(row)->data(Qt::UserRole).toString().toStdString());
  const QSignalBlocker quiet(lstProcedures);
  lstProcedures->clear();
  for (const SidStarEntry& entry : chart->Shown())
    lstProcedures->addItem(Text(CodePageToUtf8(entry.Name.View())) +
                           (entry.AnyRunway() ? tr("  (any)") : ""));
  SIDFrame->setTitle(Text(chart->Heading()));
  ShowPicked(-1);
}

void frmDepArr::ShowPicked(int row) {
  chart->Pick(row);
  const bool departure = chart->Kind() == ProcedureKind::sid;
  const QString code = Text(chart->AirportCode());
  if (chart->Picked() >= 0)
    lblMessage->setText(Text(chart->Text()));
  else if (chart->Shown().empty())
    lblMessage->setText(departure ? tr("%1 has no departures for this runway in the database.").arg(code)
                                  : tr("%1 has no arrivals for this runway in the database.").arg(code));
  else
    lblMessage->setText(tr("Pick one of the procedures to read how it is flown."));
  cmdPrint->setEnabled(!chart->Shown().empty());
  SIDMap->Redraw();
}

void frmDepArr::OpenPrinter(const ProcedureChart& page) {
  QPrinter printer(QPrinter::HighResolution);
  QPrintDialog dialog(&printer, this);
  if (dialog.exec() != QDialog::Accepted) return;
  if (!PrintProcedure(page, printer)) messages.Show("The printer takes no page.", MessageIcon::exclamation);
}
