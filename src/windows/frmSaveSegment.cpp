#include "windows/frmSaveSegment.h"

#include <QDialogButtonBox>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QRadioButton>
#include <QStyle>
#include <QVBoxLayout>

#include "base/code_page.h"
#include "base/error_trap.h"
#include "base/files.h"
#include "flightplan/procedure_chart.h"
#include "flightplan/segment_insertion.h"
#include "windows/code_page_text.h"
#include "windows/window_place.h"

namespace {

constexpr int waypointsWidth = 230;
constexpr int listsWidth = 270;
constexpr int longestDescription = 120;
constexpr int longestFileName = 80;
constexpr int mostProblemsShown = 3;

QString Text(const std::string& utf8) {
  return QString::fromStdString(utf8);
}

QString RowText(const PlanWaypoint& row) {
  QString text = FromCodePage(row.Code.View());
  if (row.HasAirway()) text += "   " + FromCodePage(row.Airway.View());
  if (!row.Name.Empty() && row.Name.View() != row.Code.View()) text += "   " + FromCodePage(row.Name.View());
  return text;
}

QString SegmentText(SegmentType type, const RouteSegment& segment) {
  const QString description =
      segment.description.empty() ? QObject::tr("(no description)") : Text(segment.description);
  if (type == SegmentType::enroute) return description;
  return (segment.runway.empty() ? QObject::tr("Any") : Text(GetRwyName(segment.runway))) + "   " +
         description;
}

}  // namespace

frmSaveSegment::frmSaveSegment(SegmentMode mode, Session& session, PlanEditor& editor, MessageBox& messages,
                               QWidget* parent)
    : QDialog(parent), mode(mode), session(session), editor(editor), messages(messages) {
  setObjectName("frmSaveSegment");
  setWindowTitle(mode == SegmentMode::save ? tr(" Save Segment") : tr(" Open Segment"));
  ResizeWithinScreen(*this, QSize(1060, 660));
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(20, 18, 20, 18);
  layout->setSpacing(12);
  BuildHead(layout);
  auto* columns = new QHBoxLayout;
  columns->setSpacing(14);
  layout->addLayout(columns, 1);
  BuildWaypoints(columns);
  BuildLists(columns);
  BuildMap(columns);
  BuildFields(layout);
  BuildFoot(layout);
  Trapped("Check frmSaveSegment Form_Load (", [&] {
    std::string reason;
    if (!MakeSegmentFolders(session.home, &reason))
      Refuse("The folders of segments could not be made.", reason);
    ShowType();
  });
  lstFpWaypoints->setFocus();
}

// ---- what it is made of

void frmSaveSegment::BuildHead(QVBoxLayout* layout) {
  auto* line = new QHBoxLayout;
  line->setSpacing(18);
  optSegmentType = new QButtonGroup(this);
  const QString texts[] = {tr("&Departure"), tr("&Arrival"), tr("&Enroute")};
  for (int type = 0; type < 3; ++type) {
    auto* option = new QRadioButton(texts[type], this);
    option->setObjectName(QString("optSegmentType(%1)").arg(type));
    option->setChecked(type == 0);
    optSegmentType->addButton(option, type);
    line->addWidget(option);
  }
  line->addStretch(1);
  lblAirport = new QLabel(this);
  lblAirport->setObjectName("lblAirport");
  lblAirport->setProperty("figure", true);
  line->addWidget(lblAirport);
  layout->addLayout(line);
  auto* lblHint = new QLabel(this);
  lblHint->setObjectName("lblHint");
  lblHint->setProperty("quiet", true);
  lblHint->setText(
      mode == SegmentMode::open
          ? tr("The segment's waypoints are inserted behind the chosen waypoint of the plan.")
          : tr("The chosen waypoints are saved for other plans. Shift and Ctrl choose several of them."));
  layout->addWidget(lblHint);
  connect(optSegmentType, &QButtonGroup::idClicked, this,
          [this] { Trapped("Check frmSaveSegment optSegmentType (", [&] { ShowType(); }); });
}

QListWidget* frmSaveSegment::AddList(QVBoxLayout* layout, const QString& caption, const QString& name) {
  auto* label = new QLabel(caption, this);
  label->setObjectName("lbl" + name.mid(3));
  label->setProperty("quiet", true);
  auto* list = new QListWidget(this);
  list->setObjectName(name);
  list->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  list->setTextElideMode(Qt::ElideRight);
  list->setAccessibleName(QString(caption).remove('&'));
  list->installEventFilter(this);
  label->setBuddy(list);
  layout->addWidget(label);
  layout->addWidget(list, 1);
  return list;
}

void frmSaveSegment::BuildWaypoints(QHBoxLayout* columns) {
  const bool saves = mode == SegmentMode::save;
  auto* column = new QVBoxLayout;
  column->setSpacing(6);
  lstFpWaypoints =
      AddList(column, saves ? tr("Select waypoints for segment") : tr("Select waypoint for insertion"),
              "lstFpWaypoints");
  lstFpWaypoints->setFixedWidth(waypointsWidth);
  if (saves) lstFpWaypoints->setSelectionMode(QAbstractItemView::ExtendedSelection);
  for (int row = 0; row < session.plan.RowCount(); ++row) {
    auto* item = new QListWidgetItem(RowText(session.plan.Row(row)), lstFpWaypoints);
    item->setToolTip(item->text());
    // The airports are no part of a segment.
    const bool airport = row == 0 || row == session.plan.DestinationRow();
    if (saves && airport) item->setFlags(Qt::NoItemFlags);
  }
  if (!saves && session.plan.SelectedRow > 0) lstFpWaypoints->setCurrentRow(session.plan.SelectedRow);
  columns->addLayout(column);
  connect(lstFpWaypoints, &QListWidget::itemSelectionChanged, this, [this] {
    if (this->mode == SegmentMode::save) ShowPreview();
  });
}

void frmSaveSegment::BuildLists(QHBoxLayout* columns) {
  auto* column = new QVBoxLayout;
  column->setSpacing(6);
  lstFiles = AddList(column, tr("&Files"), "lstFiles");
  lstSegments = AddList(column, tr("&Segments in the file"), "lstSegments");
  auto* lblDelete = new QLabel(tr("The Delete key removes a file or a segment"), this);
  lblDelete->setObjectName("lblDelete");
  lblDelete->setProperty("quiet", true);
  column->addWidget(lblDelete);
  for (QListWidget* list : {lstFiles, lstSegments})
    list->setFixedWidth(listsWidth);
  columns->addLayout(column);
  connect(lstFiles, &QListWidget::currentRowChanged, this,
          [this] { Trapped("Check frmSaveSegment lstFiles (", [&] { ShowFile(); }); });
  connect(lstSegments, &QListWidget::currentRowChanged, this, &frmSaveSegment::ShowPreview);
  if (mode == SegmentMode::open) {
    connect(lstSegments, &QListWidget::itemDoubleClicked, this, &frmSaveSegment::Take);
  }
}

void frmSaveSegment::BuildMap(QHBoxLayout* columns) {
  auto* column = new QVBoxLayout;
  column->setSpacing(6);
  pctSid = new SegmentMap(session.plan, session.database, session.settings, this);
  pctSid->setFocusPolicy(Qt::StrongFocus);
  pctSid->installEventFilter(this);
  column->addWidget(pctSid, 1);
  auto* lblZoom = new QLabel(tr("use +/- key"), this);
  lblZoom->setObjectName("lblZoom");
  lblZoom->setProperty("quiet", true);
  column->addWidget(lblZoom);
  columns->addLayout(column, 1);
}

void frmSaveSegment::BuildFields(QVBoxLayout* layout) {
  fields = new QWidget(this);
  auto* line = new QHBoxLayout(fields);
  line->setContentsMargins(0, 0, 0, 0);
  line->setSpacing(10);
  const auto addCaption = [&](const QString& caption, QWidget* buddy) {
    auto* label = new QLabel(caption, fields);
    label->setBuddy(buddy);
    line->addWidget(label);
    return label;
  };
  cmbRunway = new QComboBox(fields);
  cmbRunway->setObjectName("cmbRunway");
  cmbRunway->setFixedWidth(90);
  lblRunway = addCaption(tr("&Runway"), cmbRunway);
  line->addWidget(cmbRunway);
  txtSegFilename = new QLineEdit(fields);
  txtSegFilename->setObjectName("txtSegFilename");
  txtSegFilename->setMaxLength(longestFileName);
  txtSegFilename->setFixedWidth(200);
  lblSegFilename = addCaption(tr("File &name"), txtSegFilename);
  line->addWidget(txtSegFilename);
  txtSegments = new QLineEdit(fields);
  txtSegments->setObjectName("txtSegments");
  txtSegments->setMaxLength(longestDescription);
  addCaption(tr("Descr&iption"), txtSegments);
  line->addWidget(txtSegments, 1);
  layout->addWidget(fields);
  fields->setVisible(mode == SegmentMode::save);
}

void frmSaveSegment::BuildFoot(QVBoxLayout* layout) {
  const bool saves = mode == SegmentMode::save;
  lblMessage = new QLabel(this);
  lblMessage->setObjectName("lblMessage");
  lblMessage->setWordWrap(true);
  lblMessage->setTextFormat(Qt::PlainText);
  lblMessage->setMinimumHeight(lblMessage->fontMetrics().lineSpacing() * 2);
  auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
  QPushButton* cmdOK = buttons->button(QDialogButtonBox::Ok);
  cmdOK->setObjectName("cmdOK");
  cmdOK->setText(saves ? tr("Sa&ve") : tr("&Insert"));
  cmdOK->setDefault(true);
  buttons->button(QDialogButtonBox::Cancel)->setObjectName("cmdCancel");
  auto* line = new QHBoxLayout;
  line->addWidget(lblMessage, 1);
  line->addWidget(buttons);
  layout->addLayout(line);
  connect(buttons, &QDialogButtonBox::accepted, this, &frmSaveSegment::Take);
  connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
}

void frmSaveSegment::Trapped(std::string_view head, const std::function<void()>& body) {
  std::string report;
  if (RunTrapped(head, body, [&](const std::string& failure) { report = failure; })) return;
  session.protocol.WriteError(report);
  messages.Show(report, MessageIcon::exclamation);
}

// ---- showing

SegmentType frmSaveSegment::Type() const {
  return static_cast<SegmentType>(optSegmentType->checkedId());
}

std::int32_t frmSaveSegment::AirportRow() const {
  switch (Type()) {
    case SegmentType::departure:
      return session.plan.DepartureIndex;
    case SegmentType::arrival:
      return session.plan.DestinationIndex;
    case SegmentType::enroute:
      break;
  }
  return -1;
}

std::string frmSaveSegment::AirportCode() const {
  const std::int32_t row = AirportRow();
  return row < 0 ? std::string()
                 : CodePageToUtf8(session.database.airports.at(static_cast<std::size_t>(row)).strCode.View());
}

void frmSaveSegment::ShowType() {
  const std::int32_t row = AirportRow();
  const bool enroute = row < 0;
  const FlightPlan& plan = session.plan;
  const auto code = [&](int of) { return FromCodePage(plan.Row(of).Code.View()); };
  lblAirport->setText(
      enroute ? tr("%1 → %2").arg(code(0), code(plan.DestinationRow()))
              : Text(AirportCode()) + "  " +
                    FromCodePage(session.database.airports[static_cast<std::size_t>(row)].strName.View()));
  for (QWidget* widget : std::initializer_list<QWidget*>{lblSegFilename, txtSegFilename})
    widget->setVisible(enroute);
  for (QWidget* widget : std::initializer_list<QWidget*>{lblRunway, cmbRunway})
    widget->setVisible(!enroute);
  ShowRunways();
  ListFiles();
}

void frmSaveSegment::ShowRunways() {
  cmbRunway->clear();
  cmbRunway->addItem(tr("Any"), QString());
  const std::int32_t airport = AirportRow();
  if (airport < 0) return;
  for (const RunwayChoice& choice : RunwayChoices(session.database, airport))
    cmbRunway->addItem(Text(GetRwyName(choice.id)), Text(choice.id));
  const FlightPlan& plan = session.plan;
  const bool startsOnRunway = Type() == SegmentType::departure && plan.DepartureType != "Gate";
  for (int i = 1; startsOnRunway && i < cmbRunway->count(); ++i)
    if (SameRunway(cmbRunway->itemData(i).toString().toStdString(), plan.DepartureID))
      cmbRunway->setCurrentIndex(i);
}

void frmSaveSegment::ListFiles() {
  files = SegmentFiles(session.home, Type(), AirportCode());
  {
    const QSignalBlocker quiet(lstFiles);
    lstFiles->clear();
    for (const std::filesystem::path& file : files)
      lstFiles->addItem(Text(file.filename().string()));
    // What is to be saved has no file yet; the airport's own is shown.
    const bool showFirst = mode == SegmentMode::open || Type() != SegmentType::enroute;
    lstFiles->setCurrentRow(showFirst && !files.empty() ? 0 : -1);
  }
  ShowFile();
}

void frmSaveSegment::ShowFile() {
  const int row = lstFiles->currentRow();
  text.clear();
  reading = {};
  lstSegments->clear();
  Say(files.empty() ? tr("No segments available!") : QString(), false);
  if (row >= 0) {
    const std::filesystem::path& file = files.at(static_cast<std::size_t>(row));
    std::string reason;
    if (const auto bytes = ReadWholeFile(file, &reason)) {
      text = bytes->Text();
      reading = ReadSegments(Type(), text);
      if (!reading.valid) Say(FromCodePage(NotASegmentText(Type())), true);
    } else {
      Say(Text(reason), true);
    }
    if (mode == SegmentMode::save && Type() == SegmentType::enroute)
      txtSegFilename->setText(Text(file.stem().string()));
  }
  for (const StoredSegment& segment : reading.segments) {
    auto* item = new QListWidgetItem(SegmentText(Type(), segment), lstSegments);
    item->setToolTip(tr("%1, waypoints: %2").arg(item->text()).arg(segment.rows.size()));
  }
  if (reading.valid) {
    QStringList told;
    for (const std::string& problem : reading.problems)
      if (told.size() < mostProblemsShown) told << Text(problem);
    if (!told.isEmpty()) Say(told.join('\n'), true);
    lstSegments->setCurrentRow(0);
  }
  ShowPreview();
}

void frmSaveSegment::Say(const QString& what, bool fault) {
  lblMessage->setText(what);
  lblMessage->setProperty("fault", fault);
  lblMessage->setProperty("quiet", !fault);
  lblMessage->style()->unpolish(lblMessage);
  lblMessage->style()->polish(lblMessage);
}

const StoredSegment* frmSaveSegment::ChosenSegment() const {
  const int row = lstSegments->currentRow();
  return row < 0 ? nullptr : &reading.segments.at(static_cast<std::size_t>(row));
}

std::vector<PlanWaypoint> frmSaveSegment::SelectedRows() const {
  std::vector<PlanWaypoint> rows;
  for (int row = 0; row < lstFpWaypoints->count(); ++row)
    if (lstFpWaypoints->item(row)->isSelected()) rows.push_back(session.plan.Row(row));
  return rows;
}

int frmSaveSegment::InsertionRow() const {
  const QList<QListWidgetItem*> chosen = lstFpWaypoints->selectedItems();
  return chosen.isEmpty() ? -1 : lstFpWaypoints->row(chosen.first());
}

void frmSaveSegment::ShowPreview() {
  if (mode == SegmentMode::save) return pctSid->ShowRows(SelectedRows());
  const StoredSegment* segment = ChosenSegment();
  pctSid->ShowRows(segment != nullptr ? segment->rows : std::vector<PlanWaypoint>());
}

// ---- doing

bool frmSaveSegment::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() != QEvent::KeyPress) return QDialog::eventFilter(watched, event);
  switch (static_cast<const QKeyEvent*>(event)->key()) {
    case Qt::Key_Plus:
    case Qt::Key_Equal:
      pctSid->Zoom(true);
      return true;
    case Qt::Key_Minus:
      pctSid->Zoom(false);
      return true;
    case Qt::Key_Delete:
      if (watched == lstFiles) Trapped("Check frmSaveSegment lstFiles (", [&] { DeleteFile(); });
      if (watched == lstSegments) Trapped("Check frmSaveSegment lstSegments (", [&] { DeleteOne(); });
      return true;
    default:
      return QDialog::eventFilter(watched, event);
  }
}

void frmSaveSegment::Take() {
  Trapped("Check frmSaveSegment cmdOK (", [&] { mode == SegmentMode::save ? Save() : Insert(); });
}

void frmSaveSegment::Refuse(const std::string& what, const std::string& reason) {
  messages.Show(what + "\n\n" + reason, MessageIcon::exclamation);
}

void frmSaveSegment::Save() {
  const SegmentToSave wanted{
      Type(),
      AirportCode(),
      txtSegFilename->text().toStdString(),
      {cmbRunway->currentData().toString().toStdString(), txtSegments->text().toStdString(), SelectedRows()}};
  if (const std::string fault = SavingFault(wanted); !fault.empty())
    return messages.Show(fault, MessageIcon::exclamation);
  const std::filesystem::path file = SegmentFileFor(session.home, wanted);
  std::error_code error;
  if (Type() == SegmentType::enroute && std::filesystem::exists(file, error) &&
      !messages.AskYesNo(file.filename().string() + " is there already.\nDo you wish to replace it?",
                         MessageIcon::question))
    return;
  std::string reason;
  if (!SaveSegment(session.home, wanted, &reason)) return Refuse("The segment could not be saved.", reason);
  accept();
}

void frmSaveSegment::Insert() {
  const StoredSegment* segment = ChosenSegment();
  if (segment == nullptr) {
    const bool refused = !files.empty() && lstFiles->currentRow() >= 0;
    return messages.Show(refused ? lblMessage->text().toStdString() : "No segments available!",
                         MessageIcon::exclamation);
  }
  const int row = InsertionRow();
  if (const std::string_view fault = InsertionFault(session.plan, row, segment->rows.size()); !fault.empty())
    return messages.Show(fault, MessageIcon::exclamation);
  const std::filesystem::path& file = files.at(static_cast<std::size_t>(lstFiles->currentRow()));
  for (const std::string& problem : reading.problems)
    session.protocol.WriteProtocol(file.string() + ": " + problem);
  editor.InsertSegment(row, segment->rows);
  accept();
}

void frmSaveSegment::DeleteFile() {
  const int row = lstFiles->currentRow();
  if (row < 0 || !messages.AskYesNo("Are you sure you want to delete this File?", MessageIcon::question))
    return;
  std::string reason;
  if (!DeleteSegmentFile(files.at(static_cast<std::size_t>(row)), &reason))
    Refuse("The file could not be deleted.", reason);
  ListFiles();
}

// One of several in an airport's file; the last one is the file.
void frmSaveSegment::DeleteOne() {
  const StoredSegment* segment = ChosenSegment();
  if (segment == nullptr) return;
  if (reading.segments.size() == 1) return DeleteFile();
  if (!messages.AskYesNo("Are you sure you want to delete this Segment?", MessageIcon::question)) return;
  std::string reason;
  if (!DeleteSegment(files.at(static_cast<std::size_t>(lstFiles->currentRow())), text, *segment, &reason))
    Refuse("The segment could not be deleted.", reason);
  const int file = lstFiles->currentRow();
  ListFiles();
  lstFiles->setCurrentRow(std::min(file, lstFiles->count() - 1));
}
