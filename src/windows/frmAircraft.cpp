#include "windows/frmAircraft.h"

#include <QDialogButtonBox>
#include <QGridLayout>
#include <QMenuBar>
#include <QRegularExpressionValidator>
#include <QStyle>
#include <QToolButton>
#include <utility>

#include "flightplan/aircraft_file.h"
#include "windows/print_lines.h"

namespace {

constexpr int mostDigits = 7;
constexpr int figuresPerColumn = 7;

QString Utf16(std::string_view text) {
  return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

}  // namespace

frmAircraft::frmAircraft(std::filesystem::path file, std::vector<AircraftRec> aircraft, int current,
                         MessageBox& messages, QWidget* parent)
    : QDialog(parent),
      print([this](const std::vector<std::string>& lines) { return PrintLinesOnPrinter(this, lines); }),
      file(std::move(file)),
      list(std::move(aircraft)),
      before(list),
      current(current),
      messages(messages) {
  setObjectName("frmAircraft");
  setWindowTitle(tr("Aircraft"));
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(24, 18, 24, 20);
  layout->setSpacing(16);
  layout->setMenuBar(BuildMenus());
  auto* middle = new QHBoxLayout;
  middle->setSpacing(24);
  lstAircraft = new QListWidget(this);
  lstAircraft->setObjectName("lstAircraft");
  lstAircraft->setMinimumWidth(230);
  lstAircraft->setAccessibleName(tr("Aircraft"));
  middle->addWidget(lstAircraft);
  middle->addWidget(BuildForm(), 1);
  layout->addLayout(middle, 1);
  BuildButtons(layout);
  int row = 0;
  for (std::size_t i = 0; i < list.size(); ++i)
    if (list[i].Number == current) row = static_cast<int>(i);
  FillList(row);
  connect(lstAircraft, &QListWidget::currentRowChanged, this, &frmAircraft::ShowSelected);
  connect(lstAircraft, &QListWidget::itemDoubleClicked, this, &frmAircraft::accept);
  lstAircraft->setFocus();
}

QAction* frmAircraft::AddCommand(const QString& objectName, const QString& text, const QString& keys,
                                 std::function<void()> command) {
  auto* action = new QAction(text, this);
  action->setObjectName(objectName);
  if (!keys.isEmpty()) action->setShortcut(QKeySequence(keys));
  connect(action, &QAction::triggered, this, [command = std::move(command)] { command(); });
  addAction(action);
  return action;
}

QMenuBar* frmAircraft::BuildMenus() {
  auto* bar = new QMenuBar(this);
  QMenu* menu = bar->addMenu(tr("&Aircraft"));
  menu->addAction(mnuNew = AddCommand("mnuNew", tr("&New"), "Ctrl+N", [this] { New(); }));
  menu->addAction(mnuEdit = AddCommand("mnuEdit", tr("&Edit"), "F2", [this] { SetEditing(true); }));
  menu->addAction(mnuDelete = AddCommand("mnuDelete", tr("&Delete"), "Ctrl+Del", [this] { Delete(); }));
  QMenu* paper = bar->addMenu(tr("&Print"));
  paper->setObjectName("mnuPrint");
  const auto withNumber = [this](int number) {
    std::vector<AircraftRec> found;
    for (const AircraftRec& aircraft : list)
      if (aircraft.Number == number && found.empty()) found.push_back(aircraft);
    return found;
  };
  paper->addAction(AddCommand("mnuCurrent", tr("&Current aircraft"), {},
                              [this, withNumber] { Print(withNumber(this->current)); }));
  paper->addAction(AddCommand("mnuSelected", tr("&Selected aircraft"), "Ctrl+P", [this] {
    if (SelectedRow() >= 0) Print({Chosen()});
  }));
  paper->addAction(AddCommand("mnuAll", tr("&All aircraft"), {}, [this] { Print(list); }));
  return bar;
}

QWidget* frmAircraft::BuildForm() {
  auto* form = new QWidget(this);
  auto* grid = new QGridLayout(form);
  grid->setContentsMargins(0, 0, 0, 0);
  grid->setHorizontalSpacing(14);
  grid->setVerticalSpacing(4);
  name = AddEntry(grid, 0, 0, tr("Name:"), "txtName");
  name.edit->setMaxLength(40);
  grid->addWidget(name.edit, 0, 1, 1, 3);
  int place = 0;
  for (const AircraftField& field : AircraftFields()) {
    const int line = 1 + place % figuresPerColumn;
    Entry entry =
        AddEntry(grid, 2 * line, place / figuresPerColumn * 2, Utf16(field.label), "txt" + Utf16(field.name));
    entry.edit->setMaxLength(mostDigits);
    entry.edit->setFixedWidth(104);
    entry.edit->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    entry.edit->setValidator(new QRegularExpressionValidator(QRegularExpression("[0-9]*"), entry.edit));
    figures.push_back(entry);
    ++place;
  }
  grid->setRowStretch(2 * (figuresPerColumn + 1), 1);
  return form;
}

// A label, its field, and below it a line for what is wrong with it.
frmAircraft::Entry frmAircraft::AddEntry(QGridLayout* grid, int line, int column, const QString& label,
                                         const QString& objectName) {
  auto* caption = new QLabel(label, this);
  caption->setProperty("quiet", true);
  auto* edit = new QLineEdit(this);
  edit->setObjectName(objectName);
  edit->setReadOnly(true);
  caption->setBuddy(edit);
  auto* fault = new QLabel(this);
  fault->setObjectName(objectName + "Fault");
  fault->setProperty("fault", true);
  fault->setMinimumHeight(fault->fontMetrics().height());
  grid->addWidget(caption, line, column);
  grid->addWidget(edit, line, column + 1);
  grid->addWidget(fault, line + 1, column, 1, 2, Qt::AlignRight);
  return {edit, fault};
}

void frmAircraft::BuildButtons(QBoxLayout* layout) {
  auto* line = new QHBoxLayout;
  for (QAction* action : {mnuNew, mnuEdit, mnuDelete}) {
    auto* button = new QToolButton(this);
    button->setDefaultAction(action);
    button->setFocusPolicy(Qt::TabFocus);
    line->addWidget(button);
  }
  line->addStretch(1);
  auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
  cmdOK = buttons->button(QDialogButtonBox::Ok);
  cmdOK->setObjectName("cmdOK");
  cmdOK->setDefault(true);
  buttons->button(QDialogButtonBox::Cancel)->setObjectName("cmdCancel");
  connect(buttons, &QDialogButtonBox::accepted, this, &frmAircraft::accept);
  connect(buttons, &QDialogButtonBox::rejected, this, &frmAircraft::reject);
  line->addWidget(buttons);
  layout->addLayout(line);
}

int frmAircraft::SelectedRow() const {
  const int row = lstAircraft->currentRow();
  return row < static_cast<int>(list.size()) ? row : -1;
}

const AircraftRec& frmAircraft::Chosen() const {
  return list.at(static_cast<std::size_t>(SelectedRow()));
}

void frmAircraft::FillList(int row) {
  {
    const QSignalBlocker quiet(lstAircraft);
    lstAircraft->clear();
    for (const AircraftRec& aircraft : list)
      lstAircraft->addItem(QString::fromStdString(aircraft.Name));
    lstAircraft->setCurrentRow(std::min(row, static_cast<int>(list.size()) - 1));
  }
  ShowSelected();
}

void frmAircraft::ShowSelected() {
  const AircraftRec shown = SelectedRow() >= 0 ? Chosen() : AircraftRec{};
  name.edit->setText(QString::fromStdString(shown.Name));
  for (std::size_t i = 0; i < figures.size(); ++i)
    figures[i].edit->setText(QString::number(shown.*AircraftFields()[i].value));
  SetEditing(false);
}

void frmAircraft::SetEditing(bool on) {
  editing = on && SelectedRow() >= 0;
  if (!editing) isNew = false;
  SetEditable(name);
  for (const Entry& entry : figures)
    SetEditable(entry);
  lstAircraft->setEnabled(!editing);
  mnuNew->setEnabled(!editing);
  mnuEdit->setEnabled(!editing && SelectedRow() >= 0);
  mnuDelete->setEnabled(!editing && list.size() > 1);
  cmdOK->setEnabled(SelectedRow() >= 0);
  cmdOK->setText(editing ? tr("Keep") : tr("OK"));
  if (!editing) return;
  name.edit->setFocus();
  name.edit->selectAll();
}

void frmAircraft::SetEditable(const Entry& entry) const {
  entry.fault->clear();
  if (entry.edit->isReadOnly() == !editing) return;
  entry.edit->setReadOnly(!editing);
  // The style sheet tells the two apart.
  entry.edit->style()->unpolish(entry.edit);
  entry.edit->style()->polish(entry.edit);
}

void frmAircraft::New() {
  const std::int16_t number = FreeAircraftNumber(list);
  if (number == 0) return;
  AircraftRec aircraft = SelectedRow() >= 0 ? Chosen() : AircraftRec{};
  aircraft.Number = number;
  aircraft.Name = tr("New aircraft").toStdString();
  list.push_back(aircraft);
  FillList(static_cast<int>(list.size()) - 1);
  isNew = true;
  SetEditing(true);
}

void frmAircraft::Delete() {
  const int row = SelectedRow();
  if (row < 0 || list.size() < 2) return;
  if (!messages.AskYesNo("Do you wish to delete the aircraft " + Chosen().Name + "?", MessageIcon::question))
    return;
  list.erase(list.begin() + row);
  FillList(row);
}

AircraftRec frmAircraft::Typed() const {
  AircraftRec typed = Chosen();
  typed.Name = name.edit->text().trimmed().toStdString();
  for (std::size_t i = 0; i < figures.size(); ++i)
    typed.*AircraftFields()[i].value = figures[i].edit->text().toInt();
  typed.ApproachAltitude = ApproachAltitude(typed.ApproachSpeed);
  return typed;
}

bool frmAircraft::TakeTyped() {
  const AircraftRec typed = Typed();
  const std::vector<AircraftFault> faults = CheckAircraft(typed);
  const auto reasonOf = [&](std::string_view field) {
    for (const AircraftFault& fault : faults)
      if (fault.field == field) return QString::fromStdString(fault.reason);
    return QString();
  };
  name.fault->setText(reasonOf("Name"));
  QLineEdit* first = name.fault->text().isEmpty() ? nullptr : name.edit;
  for (std::size_t i = 0; i < figures.size(); ++i) {
    figures[i].fault->setText(reasonOf(AircraftFields()[i].name));
    if (first == nullptr && !figures[i].fault->text().isEmpty()) first = figures[i].edit;
  }
  if (first != nullptr) {
    first->setFocus();
    first->selectAll();
    return false;
  }
  const int row = SelectedRow();
  list[static_cast<std::size_t>(row)] = typed;
  FillList(row);
  lstAircraft->setFocus();
  return true;
}

void frmAircraft::Print(const std::vector<AircraftRec>& aircraft) {
  if (!print(AircraftLines(aircraft)))
    messages.Show("The list could not be printed.", MessageIcon::exclamation);
}

void frmAircraft::accept() {
  if (editing) {
    TakeTyped();
    return;
  }
  if (SelectedRow() < 0) return;
  std::string reason;
  if (!WriteAircraftFile(file, list, &reason)) {
    messages.Show("The aircraft could not be saved.\n\n" + reason, MessageIcon::exclamation);
    return;
  }
  QDialog::accept();
}

void frmAircraft::reject() {
  if (editing) {
    const int row = SelectedRow();
    if (isNew) list.pop_back();
    FillList(row);
    lstAircraft->setFocus();
    return;
  }
  if (list != before &&
      !messages.AskYesNo("The list of aircraft has changed. Do you wish to throw the changes away?",
                         MessageIcon::question)) {
    return;
  }
  QDialog::reject();
}
