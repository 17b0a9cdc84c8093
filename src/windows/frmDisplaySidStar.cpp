#include "windows/frmDisplaySidStar.h"

#include <QDialogButtonBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QVBoxLayout>

#include "base/code_page.h"
#include "base/numbers.h"
#include "flightplan/procedure_chart.h"
#include "windows/code_page_text.h"

namespace {

QString Text(const std::string& utf8) {
  return QString::fromStdString(utf8);
}

QString ConstraintText(const ProcedureStep& step) {
  const StepNotes notes = NotesOf(step);
  QStringList parts;
  if (notes.turn != ' ') parts << (notes.turn == 'L' ? QObject::tr("left") : QObject::tr("right"));
  if (!notes.navaid.empty()) {
    QString navaid = Text(notes.navaid);
    if (step.Value != 0) navaid += " R-" + Text(FormatPicture(RoundToEven(step.Value / 10.0), "000"));
    if (step.Dme > 0) navaid += " " + Text(FormatPicture(step.Dme, "##0.0")) + " DME";
    parts << navaid;
  }
  if (!notes.limits.empty()) parts << Text(notes.limits);
  return parts.join(", ");
}

}  // namespace

frmDisplaySidStar::frmDisplaySidStar(ProcedureKind kind, const std::string& airportCode,
                                     const std::string& runway, const std::string& inUse,
                                     std::vector<SidStarEntry> all, QWidget* parent)
    : QDialog(parent), kind(kind), entries(std::move(all)) {
  const bool sids = kind == ProcedureKind::sid;
  PutRunwayFirst(entries, runway);
  setObjectName("frmDisplaySidStar");
  setWindowTitle((sids ? "Select SIDs for " : "Select STARs for ") + Text(airportCode));
  resize(860, 540);
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(20, 18, 20, 18);
  layout->setSpacing(12);
  lblEmpty = new QLabel(this);
  lblEmpty->setObjectName("lblEmpty");
  lblEmpty->setProperty("quiet", true);
  if (entries.empty())
    lblEmpty->setText(tr("%1 has no %2 in the database.").arg(Text(airportCode), sids ? "SIDs" : "STARs"));
  else if (!runway.empty())
    lblEmpty->setText(tr("Those for runway %1 stand first.").arg(Text(runway)));
  lblEmpty->setVisible(!lblEmpty->text().isEmpty());
  layout->addWidget(lblEmpty);
  auto* columns = new QHBoxLayout;
  columns->setSpacing(14);
  lstSidStar = new QListWidget(this);
  lstSidStar->setObjectName("lstSidStar");
  lstSidStar->setAccessibleName(sids ? tr("SIDs") : tr("STARs"));
  lstSidStar->setFixedWidth(310);
  columns->addWidget(lstSidStar);
  auto* right = new QVBoxLayout;
  right->setSpacing(8);
  lblSteps = new QLabel(this);
  lblSteps->setObjectName("lblSteps");
  lblSteps->setProperty("figure", true);
  right->addWidget(lblSteps);
  BuildSteps();
  right->addWidget(lstSteps, 1);
  columns->addLayout(right, 1);
  layout->addLayout(columns, 1);
  auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
  cmdOK = buttons->button(QDialogButtonBox::Ok);
  cmdOK->setObjectName("cmdOK");
  cmdOK->setText(sids ? tr("&Take this SID") : tr("&Take this STAR"));
  cmdOK->setDefault(true);
  buttons->button(QDialogButtonBox::Cancel)->setObjectName("cmdCancel");
  layout->addWidget(buttons);
  connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
  connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
  connect(lstSidStar, &QListWidget::currentRowChanged, this, [this] { ShowSteps(); });
  connect(lstSidStar, &QListWidget::itemDoubleClicked, this, [this] { accept(); });
  FillList(runway, inUse);
  ShowSteps();
  lstSidStar->setFocus();
}

void frmDisplaySidStar::BuildSteps() {
  lstSteps = new QTreeWidget(this);
  lstSteps->setObjectName("lstSteps");
  lstSteps->setRootIsDecorated(false);
  lstSteps->setUniformRowHeights(true);
  lstSteps->setSelectionMode(QAbstractItemView::NoSelection);
  lstSteps->setHeaderLabels({tr("Fix"), tr("Leg"), tr("Track"), tr("NM"), tr("Turn, navaid, limits")});
  for (const int column : {2, 3})
    lstSteps->headerItem()->setTextAlignment(column, Qt::AlignRight | Qt::AlignVCenter);
  const int widths[] = {90, 46, 62, 62};
  for (int column = 0; column < 4; ++column)
    lstSteps->setColumnWidth(column, widths[column]);
  lstSteps->header()->setStretchLastSection(true);
  lstSteps->header()->setSectionsMovable(false);
}

void frmDisplaySidStar::FillList(const std::string& runway, const std::string& inUse) {
  // Scrolling lays the list out, which needs the heights of the style.
  lstSidStar->ensurePolished();
  int row = entries.empty() ? -1 : 0;
  bool found = false;
  for (const SidStarEntry& entry : entries) {
    lstSidStar->addItem(FromCodePage(entry.ListText()));
    const bool used = !inUse.empty() && CodePageToUtf8(entry.Name.View()) == inUse;
    // Of the same name for several runways the first is meant, which is the chosen runway's.
    if (!used || found) continue;
    found = true;
    row = lstSidStar->count() - 1;
  }
  if (!runway.empty())
    for (int i = 0; i < lstSidStar->count(); ++i)
      if (!IsForRunway(entries[static_cast<std::size_t>(i)], runway))
        lstSidStar->item(i)->setForeground(palette().color(QPalette::Mid));
  lstSidStar->setCurrentRow(row);
  if (row >= 0) lstSidStar->scrollToItem(lstSidStar->currentItem(), QAbstractItemView::PositionAtCenter);
}

const SidStarEntry* frmDisplaySidStar::Chosen() const {
  const int row = lstSidStar->currentRow();
  return row < 0 ? nullptr : &entries[static_cast<std::size_t>(row)];
}

void frmDisplaySidStar::ShowSteps() {
  lstSteps->clear();
  const SidStarEntry* entry = Chosen();
  cmdOK->setEnabled(entry != nullptr);
  lblSteps->setText(entry ? FromCodePage(entry->ListText()) : QString());
  if (entry == nullptr) return;
  for (const ProcedureStep& step : entry->Steps) {
    const bool begins = step.Type == "IF" && step.Distance == 0;
    auto* item = new QTreeWidgetItem(
        lstSteps,
        {FromCodePage(step.Code.View()), FromCodePage(step.Type.View()),
         begins ? QString() : Text(FormatPicture(RoundToEven(step.Track), "000") + "°"),
         step.Distance > 0 ? Text(FormatPicture(step.Distance, "##0.0")) : QString(), ConstraintText(step)});
    for (const int column : {2, 3})
      item->setTextAlignment(column, Qt::AlignRight | Qt::AlignVCenter);
    item->setForeground(1, palette().color(QPalette::Mid));
  }
}
