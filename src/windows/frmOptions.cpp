#include "windows/frmOptions.h"

#include <QDialogButtonBox>
#include <QScrollBar>
#include <QShortcut>
#include <QVBoxLayout>
#include <algorithm>

#include "base/error_trap.h"
#include "flightplan/formats/plan_formats.h"
#include "settings/settings_file.h"
#include "startup/fs_version.h"
#include "startup/start_checks.h"
#include "windows/window_place.h"

namespace {

constexpr QSize openingSize(1020, 700);
constexpr int groupsWidth = 190;
constexpr std::string_view setKey = "NIGHT";

QString Utf16(std::string_view text) {
  return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

std::string Settings::*FolderField(const Option& option) {
  const auto* field = std::get_if<std::string Settings::*>(&option.field);
  return field == nullptr ? nullptr : *field;
}

}  // namespace

frmOptions::frmOptions(Session& session, MessageBox& messages, QWidget* parent)
    : QDialog(parent),
      session(session),
      messages(messages),
      edited{session.settings, ReadSimulatorPaths(session.home)},
      applied(edited) {
  setObjectName("frmOptions");
  setWindowTitle(tr("Options"));
  ResizeWithinScreen(*this, openingSize);
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(24, 18, 24, 20);
  layout->setSpacing(14);
  BuildPages(layout);
  BuildFoot(layout);
  SetOpened();
  lstGroups->setCurrentRow(0);
  lstGroups->setFocus();
}

void frmOptions::BuildPages(QBoxLayout* layout) {
  auto* columns = new QHBoxLayout;
  columns->setSpacing(24);
  auto* left = new QVBoxLayout;
  left->setSpacing(10);
  txtFindOption = new QLineEdit(this);
  txtFindOption->setObjectName("txtFindOption");
  txtFindOption->setPlaceholderText(tr("Find an option (Ctrl+F)"));
  txtFindOption->setAccessibleName(tr("Find an option"));
  txtFindOption->setClearButtonEnabled(true);
  txtFindOption->setFixedWidth(groupsWidth);
  left->addWidget(txtFindOption);
  lstGroups = new QListWidget(this);
  lstGroups->setObjectName("lstGroups");
  lstGroups->setAccessibleName(tr("Pages"));
  lstGroups->setFixedWidth(groupsWidth);
  for (int group = 0; group < optionGroupCount; ++group)
    lstGroups->addItem(Utf16(GroupCaption(static_cast<OptionGroup>(group))));
  left->addWidget(lstGroups, 1);
  columns->addLayout(left);
  page = new QScrollArea(this);
  page->setObjectName("pgeOptions");
  page->setWidgetResizable(true);
  page->setFrameShape(QFrame::NoFrame);
  page->setFocusPolicy(Qt::NoFocus);
  page->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  auto* content = new QWidget(page);
  BuildRows(content);
  page->setWidget(content);
  columns->addWidget(page, 1);
  layout->addLayout(columns, 1);
  connect(lstGroups, &QListWidget::currentRowChanged, this, [this] {
    const QSignalBlocker quiet(txtFindOption);
    txtFindOption->clear();
    ShowPage();
  });
  connect(txtFindOption, &QLineEdit::textChanged, this, &frmOptions::ShowPage);
  auto* find = new QShortcut(QKeySequence::Find, this);
  connect(find, &QShortcut::activated, this, [this] {
    txtFindOption->setFocus();
    txtFindOption->selectAll();
  });
}

void frmOptions::BuildRows(QWidget* content) {
  auto* column = new QVBoxLayout(content);
  column->setContentsMargins(0, 0, 14, 0);
  column->setSpacing(0);
  lblNothing = new QLabel(tr("No option has these words."), content);
  lblNothing->setProperty("quiet", true);
  column->addWidget(lblNothing);
  int group = -1;
  for (const Option& option : OptionList()) {
    while (group < static_cast<int>(option.group)) {
      auto* heading = new QLabel(Utf16(GroupCaption(static_cast<OptionGroup>(++group))), content);
      heading->setProperty("heading", true);
      heading->setIndent(0);
      column->addWidget(heading);
      headings.push_back(heading);
    }
    auto* row = new OptionRow(option, session.home, !session.strSwitchZ.empty(), content);
    column->addWidget(row);
    rows.push_back(row);
    connect(row, &OptionRow::Changed, this, [this, row] { TakeRow(*row); });
  }
  column->addStretch(1);
  Row("FSX").alsoRefused = [this](const std::string& version) { return SimulatorRefusal(version); };
}

void frmOptions::BuildFoot(QBoxLayout* layout) {
  auto* buttons =
      new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel | QDialogButtonBox::Apply, this);
  const auto add = [&](const QString& text, const QString& name, auto command) {
    auto* button = new QPushButton(text, this);
    button->setObjectName(name);
    button->setAutoDefault(false);
    connect(button, &QPushButton::clicked, this, command);
    return button;
  };
  auto* line = new QHBoxLayout;
  cmdRestorePage = add(tr("Restore this &page"), "cmdRestorePage", [this] { Restore(false); });
  line->addWidget(cmdRestorePage);
  line->addWidget(add(tr("&Restore all"), "cmdRestoreAll", [this] { Restore(true); }));
  line->addStretch(1);
  cmdRefused = add({}, "cmdRefused", [this] { ShowFirstRefusal(); });
  cmdRefused->setProperty("fault", true);
  cmdRefused->setFlat(true);
  line->addWidget(cmdRefused);
  cmdOK = buttons->button(QDialogButtonBox::Ok);
  cmdOK->setObjectName("cmdOK");
  cmdOK->setDefault(true);
  cmdApply = buttons->button(QDialogButtonBox::Apply);
  cmdApply->setObjectName("cmdApply");
  cmdApply->setAutoDefault(false);
  QPushButton* cancel = buttons->button(QDialogButtonBox::Cancel);
  cancel->setObjectName("cmdCancel");
  cancel->setAutoDefault(false);
  connect(buttons, &QDialogButtonBox::accepted, this, &frmOptions::accept);
  connect(buttons, &QDialogButtonBox::rejected, this, &frmOptions::reject);
  connect(cmdApply, &QPushButton::clicked, this, [this] { Apply(); });
  line->addWidget(buttons);
  layout->addLayout(line);
}

OptionRow& frmOptions::Row(std::string_view key) {
  const auto found =
      std::find_if(rows.begin(), rows.end(), [&](const OptionRow* row) { return row->Subject().key == key; });
  if (found == rows.end()) throw std::out_of_range("no option " + std::string(key));
  return **found;
}

// A folder that is the default is not set, as far as the pilot is concerned.
void frmOptions::SetOpened() {
  filling = true;
  for (OptionRow* row : rows) {
    const Option& option = row->Subject();
    if (option.kind == OptionKind::folder) {
      const QString meaning = DefaultFolder(option);
      row->SetPlaceholder(meaning);
      if (Utf16(OptionText(edited, option)) == meaning) SetOption(edited, option, "");
    }
    row->Open(OptionText(edited, option));
    row->SetDefault(DefaultText(option, edited.settings.NIGHT != 0));
  }
  filling = false;
  applied = edited;
  ShowRefusals();
}

QString frmOptions::DefaultFolder(const Option& option) const {
  const auto below = [this](std::string_view name) {
    return QString::fromStdString(session.home.Resolve(name).string());
  };
  for (const PlanFormatInfo& format : PlanFormats()) {
    if (format.folderSetting == nullptr || format.folderSetting != FolderField(option)) continue;
    if (!format.ownFolder.empty()) return below(format.ownFolder);
  }
  return below("\\FSplan");
}

std::string frmOptions::SimulatorRefusal(const std::string& version) const {
  const auto blnFSX = static_cast<std::int16_t>(version == "0" ? 0 : -1);
  if (IsDatabaseUsable(session.home, blnFSX)) return {};
  return "It has no database yet: run the Database Manager first.";
}

void frmOptions::TakeRow(OptionRow& row) {
  if (filling) return;
  const Option& option = row.Subject();
  if (row.Refusal().empty()) SetOption(edited, option, row.Text());
  if (option.key == setKey)
    TakeColorSet();
  else if (option.kind == OptionKind::color)
    ShowColors();
  ShowRefusals();
}

// The rows of the colours change to the set that is now in use.
void frmOptions::TakeColorSet() {
  filling = true;
  for (OptionRow* row : rows) {
    const Option& option = row->Subject();
    if (option.kind != OptionKind::color) continue;
    row->SetText(OptionText(edited, option));
    row->SetDefault(DefaultText(option, edited.settings.NIGHT != 0));
  }
  filling = false;
  ShowColors();
}

void frmOptions::ShowColors() {
  if (filling) return;
  session.settings.colors = edited.settings.colors;
  session.settings.otherColors = edited.settings.otherColors;
  session.settings.NIGHT = edited.settings.NIGHT;
  Q_EMIT Changed();
}

bool frmOptions::IsShown(const OptionRow& row) const {
  const QStringList words = txtFindOption->text().split(' ', Qt::SkipEmptyParts);
  if (!words.isEmpty()) return row.Matches(words);
  return static_cast<int>(row.Subject().group) == lstGroups->currentRow();
}

void frmOptions::ShowPage() {
  std::vector<bool> hasRows(headings.size());
  bool any = false;
  for (OptionRow* row : rows) {
    const bool shown = IsShown(*row);
    row->setVisible(shown);
    any |= shown;
    if (shown) hasRows[static_cast<std::size_t>(row->Subject().group)] = true;
  }
  for (std::size_t group = 0; group < headings.size(); ++group)
    headings[group]->setVisible(hasRows[group]);
  lblNothing->setVisible(!any);
  const bool finding = !txtFindOption->text().trimmed().isEmpty();
  cmdRestorePage->setText(finding ? tr("Restore what is &found") : tr("Restore this &page"));
  cmdRestorePage->setEnabled(any);
  page->verticalScrollBar()->setValue(0);
}

void frmOptions::ShowRefusals() {
  std::vector<int> counts(headings.size());
  int all = 0;
  for (const OptionRow* row : rows) {
    if (row->Refusal().empty()) continue;
    ++counts[static_cast<std::size_t>(row->Subject().group)];
    ++all;
  }
  for (int group = 0; group < optionGroupCount; ++group) {
    const int count = counts[static_cast<std::size_t>(group)];
    const QString caption = Utf16(GroupCaption(static_cast<OptionGroup>(group)));
    lstGroups->item(group)->setText(count == 0 ? caption : caption + QString(" (%1)").arg(count));
  }
  cmdRefused->setVisible(all > 0);
  cmdRefused->setText(all == 1 ? tr("1 value is refused") : tr("%1 values are refused").arg(all));
  cmdOK->setEnabled(all == 0);
  cmdApply->setEnabled(all == 0);
}

void frmOptions::ShowFirstRefusal() {
  for (OptionRow* row : rows) {
    if (row->Refusal().empty()) continue;
    txtFindOption->clear();
    lstGroups->setCurrentRow(static_cast<int>(row->Subject().group));
    page->ensureWidgetVisible(row);
    row->TakeFocus();
    return;
  }
}

// The set of colours stays the one that is looked at.
void frmOptions::Restore(bool all) {
  for (OptionRow* row : rows) {
    const bool meant = (all || IsShown(*row)) && row->Subject().key != setKey;
    if (meant && !row->IsDefault()) row->Restore();
  }
}

bool frmOptions::Apply() {
  session.settings = edited.settings;
  session.strFSPath = edited.settings.FSX == 0 ? edited.simulators.fsPath09 : edited.simulators.fsPath10;
  SetFlightplanFolders(session);
  edited.settings = session.settings;
  std::string reason;
  const bool written = WriteIni(session.home, session.settings, &reason, &edited.simulators);
  SetOpened();
  Q_EMIT Changed();
  if (!written) messages.Show(std::string(iniWriteFailedText) + "\n\n" + reason, MessageIcon::exclamation);
  return written;
}

void frmOptions::accept() {
  RunTrapped(
      "Check frmOptions cmdOK (",
      [this] {
        if (Apply()) QDialog::accept();
      },
      [this](const std::string& report) { session.protocol.WriteError(report); });
}

// What was tried is taken back.
void frmOptions::reject() {
  edited = applied;
  ShowColors();
  QDialog::reject();
}
