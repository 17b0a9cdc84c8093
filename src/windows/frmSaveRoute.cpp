#include "windows/frmSaveRoute.h"

#include <QDialogButtonBox>
#include <QDir>
#include <QFileDialog>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QStyle>

#include "base/code_page.h"
#include "base/error_trap.h"
#include "base/files.h"
#include "flightplan/plan_file_name.h"
#include "flightplan/plan_folders.h"
#include "flightplan/plan_preview.h"
#include "windows/window_place.h"

namespace {

constexpr int hintWidth = 270;  // pixels
constexpr int hintIndent = 22;
constexpr int firstModernBox = 12;
constexpr std::uintmax_t largestPreview = 4 << 20;  // bytes; a plan of 500 rows has 0.1 of them

QString Utf16(std::string_view text) {
  return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

QStringList Patterns(frmSaveRoute::Mode mode) {
  if (mode == frmSaveRoute::Mode::open) return {"*.pln"};
  return QString("*.pln;*.apl;*.sbp;*sfp;*.rte;*.rt2;*.fpl;*.xml;*.fltplan").split(';');
}

// What is proposed for a plan without a file: its airports' codes.
std::string NameByAirports(const FlightPlan& plan) {
  if (plan.RowCount() < 2) return {};
  return CodePageToUtf8(plan.Row(0).Code.View()) +
         CodePageToUtf8(plan.Row(plan.DestinationRow()).Code.View());
}

QLabel* Caption(const QString& text, QWidget* buddy) {
  auto* label = new QLabel(text, buddy->parentWidget());
  label->setProperty("quiet", true);
  label->setBuddy(buddy);
  return label;
}

}  // namespace

frmSaveRoute::frmSaveRoute(Session& session, PlanEditor& editor, MessageBox& messages, Mode mode,
                           const KnownPlanFile& known, const std::filesystem::path& folder, QWidget* parent)
    : QDialog(parent),
      session(session),
      editor(editor),
      messages(messages),
      mode(mode),
      knownFile(known.File()) {
  setObjectName("frmSaveRoute");
  setWindowTitle(mode == Mode::open ? tr("Open flight plan") : tr("Save flight plan"));
  askFolder = [this](const QString& from) {
    return QFileDialog::getExistingDirectory(this, tr("Folder of the flight plans"), from);
  };
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(22, 18, 22, 18);
  layout->setSpacing(14);
  auto* columns = new QHBoxLayout;
  columns->setSpacing(26);
  layout->addLayout(columns, 1);
  auto* left = new QVBoxLayout;
  left->setSpacing(8);
  columns->addLayout(left, 1);
  BuildFolder(left);
  if (mode == Mode::open) {
    BuildPreview(left);
  } else {
    BuildName(left);
    BuildFormats(columns);
  }
  BuildButtons(layout);
  ResizeWithinScreen(*this, mode == Mode::open ? QSize(720, 620) : QSize(1080, 690));
  Trapped("Check frmSaveRoute Form_Loade (", [&] {
    if (mode == Mode::save) {
      txtFileName->setText(Utf16(knownFile.empty() ? NameByAirports(session.plan) : known.Name()));
      SetFPSelection(session.settings.FPSEL);
    }
    GoTo(folder);
    flstFPlan->Select(Utf16(knownFile.filename().string()));
  });
  if (mode == Mode::open) {
    flstFPlan->setFocus();
  } else {
    txtFileName->setFocus();
    txtFileName->selectAll();
  }
}

void frmSaveRoute::Trapped(std::string_view head, const std::function<void()>& body) {
  RunTrapped(head, body, [this](const std::string& report) {
    session.protocol.WriteError(report);
    messages.Show(report, MessageIcon::exclamation);
  });
}

// ---- building

void frmSaveRoute::BuildFolder(QBoxLayout* layout) {
  auto* line = new QHBoxLayout;
  line->setSpacing(8);
  txtFolder = new QLineEdit(this);
  txtFolder->setObjectName("txtFolder");
  txtFolder->installEventFilter(this);
  auto* browse = new QPushButton(tr("&Browse..."), this);
  browse->setObjectName("cmdBrowse");
  browse->setAutoDefault(false);
  line->addWidget(Caption(tr("Fol&der"), txtFolder));
  line->addWidget(txtFolder, 1);
  line->addWidget(browse);
  layout->addLayout(line);
  cmdDirChange = new QPushButton(this);
  cmdDirChange->setObjectName("cmdDirChange");
  cmdDirChange->setAutoDefault(false);
  layout->addWidget(cmdDirChange, 0, Qt::AlignLeft);
  flstFPlan = new PlanList(Patterns(mode), messages, this);
  layout->addWidget(flstFPlan, 1);
  connect(browse, &QPushButton::clicked, this, &frmSaveRoute::Browse);
  connect(cmdDirChange, &QPushButton::clicked, this, [this] {
    GoTo(otherFolder);
    flstFPlan->Select({});
  });
  connect(flstFPlan, &PlanList::FolderChanged, this, &frmSaveRoute::ShowFolder);
  connect(flstFPlan, &PlanList::FileTaken, this, &frmSaveRoute::FilePicked);
  connect(flstFPlan, &QTreeWidget::itemSelectionChanged, this, &frmSaveRoute::ShowPicked);
}

void frmSaveRoute::BuildPreview(QBoxLayout* layout) {
  lblPreview = new QLabel(this);
  lblPreview->setObjectName("lblPreview");
  lblPreview->setTextFormat(Qt::PlainText);
  lblPreview->setWordWrap(true);
  lblPreview->setAlignment(Qt::AlignTop | Qt::AlignLeft);
  lblPreview->setMinimumHeight(6 * lblPreview->fontMetrics().lineSpacing());
  layout->addWidget(lblPreview);
}

void frmSaveRoute::BuildName(QBoxLayout* layout) {
  auto* line = new QHBoxLayout;
  line->setSpacing(8);
  txtFileName = new QLineEdit(this);
  txtFileName->setObjectName("txtFileName");
  line->addWidget(Caption(tr("File &name"), txtFileName));
  line->addWidget(txtFileName, 1);
  layout->addLayout(line);
  lblFault = new QLabel(this);
  lblFault->setObjectName("lblFault");
  lblFault->setProperty("fault", true);
  lblFault->setWordWrap(true);
  lblFault->setMinimumHeight(lblFault->fontMetrics().height());
  layout->addWidget(lblFault);
  connect(txtFileName, &QLineEdit::textChanged, this, [this] {
    ShowFault({});
    ShowHints();
  });
}

void frmSaveRoute::BuildFormats(QBoxLayout* columns) {
  auto* right = new QVBoxLayout;
  right->setSpacing(8);
  columns->addLayout(right);
  auto* head = new QHBoxLayout;
  const bool named = !knownFile.empty();
  auto* lblPlanName = new QLabel(named ? Utf16(knownFile.stem().string()) : tr("Unspecified"), this);
  lblPlanName->setObjectName("lblPlanName");
  lblPlanName->setProperty("figure", true);
  lblPlanName->setToolTip(tr("The name under which the plan was last saved or opened"));
  head->addWidget(lblPlanName, 1);
  auto* optIFR = new QRadioButton(tr("&IFR"), this);
  optIFR->setObjectName("optIFR");
  optVFR = new QRadioButton(tr("&VFR"), this);
  optVFR->setObjectName("optVFR");
  optIFR->setChecked(true);
  head->addWidget(optIFR);
  head->addWidget(optVFR);
  right->addLayout(head);
  auto* groups = new QHBoxLayout;
  groups->setSpacing(26);
  groups->addWidget(FormatGroup(tr("Formats"), false));
  groups->addWidget(FormatGroup(tr("Today's simulators"), true));
  right->addLayout(groups);
  right->addStretch(1);
}

QWidget* frmSaveRoute::FormatGroup(const QString& title, bool modern) {
  auto* group = new QGroupBox(title, this);
  auto* lines = new QVBoxLayout(group);
  lines->setContentsMargins(0, 8, 0, 0);
  lines->setSpacing(1);
  std::map<int, const PlanFormatInfo*> byBox;
  for (const PlanFormatInfo& format : PlanFormats())
    if ((format.box >= firstModernBox) == modern) byBox.emplace(format.box, &format);
  for (const auto& [box, format] : byBox)
    boxes[box] = AddFormat(group, *format);
  lines->addStretch(1);
  group->setVisible(!byBox.empty());
  return group;
}

frmSaveRoute::FormatBox frmSaveRoute::AddFormat(QWidget* group, const PlanFormatInfo& format) {
  FormatBox box;
  box.check = new QCheckBox(Utf16(format.caption), group);
  box.check->setObjectName(QString("chckFormat(%1)").arg(format.box));
  box.hint = new QLabel(group);
  box.hint->setObjectName(QString("lblFormat(%1)").arg(format.box));
  box.hint->setProperty("quiet", true);
  box.hint->setFixedWidth(hintWidth);
  box.hint->setIndent(hintIndent);
  box.hint->setContentsMargins(0, 0, 0, 4);
  group->layout()->addWidget(box.check);
  group->layout()->addWidget(box.hint);
  connect(box.check, &QCheckBox::toggled, this, [this] {
    ShowFault({});
    ShowHints();
  });
  return box;
}

void frmSaveRoute::BuildButtons(QBoxLayout* layout) {
  auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
  cmdOK = buttons->button(QDialogButtonBox::Ok);
  cmdOK->setObjectName("cmdOK");
  cmdOK->setText(mode == Mode::open ? tr("&Open") : tr("&Save"));
  cmdOK->setDefault(true);
  buttons->button(QDialogButtonBox::Cancel)->setObjectName("cmdCancel");
  connect(buttons, &QDialogButtonBox::accepted, this, &frmSaveRoute::accept);
  connect(buttons, &QDialogButtonBox::rejected, this, &frmSaveRoute::reject);
  layout->addWidget(buttons);
}

// ---- the folder

void frmSaveRoute::GoTo(const std::filesystem::path& folder) {
  flstFPlan->ShowFolder(folder);
}

void frmSaveRoute::Browse() {
  const QString folder = askFolder(txtFolder->text());
  if (folder.isEmpty()) return;
  GoTo(folder.toStdString());
  flstFPlan->Select({});
}

bool frmSaveRoute::eventFilter(QObject* watched, QEvent* event) {
  if (watched != txtFolder || event->type() != QEvent::KeyPress) return QDialog::eventFilter(watched, event);
  const int key = static_cast<QKeyEvent*>(event)->key();
  if (key != Qt::Key_Return && key != Qt::Key_Enter) return QDialog::eventFilter(watched, event);
  // A folder typed is gone to, not yet taken.
  if (!txtFolder->text().trimmed().isEmpty())
    GoTo(QDir::cleanPath(QDir().absoluteFilePath(txtFolder->text().trimmed())).toStdString());
  flstFPlan->Select({});
  flstFPlan->setFocus();
  return true;
}

void frmSaveRoute::ShowFolder() {
  txtFolder->setText(Utf16(flstFPlan->Folder().string()));
  ShowDirChange();
  ShowPicked();
  ShowHints();
}

// From the program's own folder to the simulator's plans, from everywhere else to the program's own.
void frmSaveRoute::ShowDirChange() {
  const std::filesystem::path own = OwnPlanFolder(session.home);
  std::filesystem::path simulator = FolderOf(session.home, PlanFolderSetting(session.settings));
  if (simulator.empty() || simulator == own) simulator = FolderOf(session.home, session.strFSPath);
  const bool atOwn = flstFPlan->Folder() == own;
  otherFolder = atOwn ? simulator : own;
  cmdDirChange->setText(atOwn ? tr("&go directly to FS flight plan directory")
                              : tr("&go directly to Velmora directory"));
  cmdDirChange->setToolTip(otherFolder.empty() ? tr("The folder of the simulator is not known")
                                               : Utf16(otherFolder.string()));
  cmdDirChange->setEnabled(!otherFolder.empty());
}

// ---- what is picked

void frmSaveRoute::ShowPicked() {
  if (mode == Mode::save) return;
  const std::filesystem::path file = flstFPlan->File();
  cmdOK->setEnabled(!file.empty());
  if (file.empty()) return lblPreview->setText(flstFPlan->Fault());
  Trapped("Check frmSaveRoute flstFPlan (", [&] {
    std::string reason;
    std::optional<FileBytes> bytes;
    if (FileSizeOrZero(file) <= largestPreview) bytes = ReadWholeFile(file, &reason);
    if (!bytes) return lblPreview->setText(Utf16(reason));
    const PlanPreview preview = PreviewPlan(editor.Context(), bytes->Text());
    QStringList lines;
    for (const std::string& line : {preview.title, preview.figures, preview.route})
      if (!line.empty()) lines << Utf16(line);
    lblPreview->setText(lines.join('\n'));
  });
}

void frmSaveRoute::FilePicked() {
  if (mode == Mode::open) return accept();
  txtFileName->setText(Utf16(PlanBaseName(flstFPlan->File().filename().string())));
  txtFileName->setFocus();
  txtFileName->selectAll();
}

void frmSaveRoute::ShowFault(const QString& fault) {
  lblFault->setText(fault.isEmpty() ? flstFPlan->Fault() : fault);
  txtFileName->setProperty("fault", !fault.isEmpty());
  txtFileName->style()->unpolish(txtFileName);
  txtFileName->style()->polish(txtFileName);
}

void frmSaveRoute::ShowHints() {
  if (mode == Mode::open || flstFPlan == nullptr) return;
  std::filesystem::path simulator;
  Trapped("Check frmSaveRoute CheckIfFSPathValid (", [&] {
    if (CheckIfFSPathValid(session.home, session.strFSPath))
      simulator = FolderOf(session.home, session.strFSPath);
  });
  std::map<int, QStringList> hints;
  for (const PlanFormatInfo& format : PlanFormats())
    hints[format.box] << HintOf(format, simulator);
  for (auto& [number, box] : boxes) {
    const QStringList& lines = hints[number];
    box.hint->setToolTip(lines.join('\n'));
    box.hint->setText(Shortened(lines.first(), box.hint->fontMetrics()));
    box.check->setToolTip(box.hint->toolTip());
  }
}

// As much of a path as fits below its box: without the application folder, else without its middle.
QString frmSaveRoute::Shortened(const QString& path, const QFontMetrics& font) const {
  const QString home = Utf16(session.home.Root().string()) + "/";
  const QString text = path.startsWith(home) ? path.mid(home.size()) : path;
  return font.elidedText(text, Qt::ElideMiddle, hintWidth - hintIndent);
}

// Where the format's file will go.
QString frmSaveRoute::HintOf(const PlanFormatInfo& format, const std::filesystem::path& simulator) const {
  const FormatPlace place = PlaceOf(format, session.home, session.settings, simulator, flstFPlan->Folder());
  if (place.folder.empty()) return tr("the simulator's folder is not known");
  const FlightPlan& plan = session.plan;
  const std::string base = PlanBaseName(txtFileName->text().toStdString());
  const std::string file = PlanFileName(format, base.empty() ? "..." : base, plan.Row(0).Code.Text(),
                                        plan.Row(plan.DestinationRow()).Code.Text());
  return Utf16((place.folder / file).string());
}

// ---- the choice

std::int32_t frmSaveRoute::GetFPSelection() {
  std::uint32_t formats = 0;
  Trapped("Check frmSaveRoute GetFPSelection (", [&] {
    for (const auto& [number, box] : boxes)
      if (box.check->isChecked()) formats |= 1U << number;
  });
  return static_cast<std::int32_t>(formats);
}

void frmSaveRoute::SetFPSelection(std::int32_t formats) {
  Trapped("Check frmSaveRoute SetFPSelection (", [&] {
    for (const auto& [number, box] : boxes)
      box.check->setChecked((static_cast<std::uint32_t>(formats) >> number & 1U) != 0);
  });
}

PlanSaveChoice frmSaveRoute::Choice() {
  return {txtFileName->text().toStdString(), flstFPlan->Folder(), GetFPSelection()};
}

// Files of another plan are not replaced without a question.
bool frmSaveRoute::MayReplace(const PlanSaveChoice& choice) {
  if (PlanBaseName(choice.name) == knownFile.stem().string() && choice.folder == knownFile.parent_path())
    return true;
  std::string existing;
  for (const std::filesystem::path& file : PlanFilesOf(editor.Saving(), choice)) {
    std::error_code error;
    if (std::filesystem::exists(file, error)) existing += file.string() + "\n";
  }
  return existing.empty() ||
         messages.AskYesNo("There is already:\n" + existing + "Do you wish to replace it?",
                           MessageIcon::question);
}

void frmSaveRoute::accept() {
  Trapped("Check frmSaveRoute cmdOK (", [&] {
    if (mode == Mode::open) {
      TakeChosen();
    } else {
      Save();
    }
  });
}

void frmSaveRoute::TakeChosen() {
  chosen = flstFPlan->File();
  if (!chosen.empty()) QDialog::accept();
}

void frmSaveRoute::Save() {
  const PlanSaveChoice choice = Choice();
  const std::string fault = PlanNameFault(PlanBaseName(choice.name));
  if (!fault.empty()) {
    if (fault == noFileNameText) messages.Show(noFileNameText, MessageIcon::exclamation);
    ShowFault(Utf16(fault));
    txtFileName->setFocus();
    return;
  }
  if (choice.formats == 0) return ShowFault(tr("No format is ticked."));
  if (!MayReplace(choice)) return;
  editor.SetPlanType(optVFR->isChecked() ? "VFR" : "IFR");
  saved = SavePlan(editor.Saving(), choice);
  const bool ownFailed = (choice.formats & 1) != 0 && saved.ownFile.empty();
  // The pilot may try another folder.
  if (ownFailed || saved.written.empty()) return GoTo(flstFPlan->Folder());
  QDialog::accept();
}
