#include "windows/option_row.h"

#include <QCheckBox>
#include <QColorDialog>
#include <QComboBox>
#include <QFileDialog>
#include <QGridLayout>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPainter>
#include <QPushButton>
#include <QSignalBlocker>
#include <QStyle>
#include <algorithm>
#include <cmath>

#include "settings/folder_check.h"
#include "settings/stored_folder.h"

namespace {

constexpr int fieldWidth = 330;
constexpr int numberWidth = 110;
constexpr int choiceWidth = 250;
constexpr int colorWidth = 120;
constexpr int restoreWidth = 86;

QString Utf16(std::string_view text) {
  return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

QIcon Swatch(const QColor& color) {
  constexpr int size = 16;
  QPixmap picture(size, size);
  picture.fill(Qt::transparent);
  QPainter painter(&picture);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(QPen(QColor(128, 136, 148), 1));
  painter.setBrush(color);
  painter.drawRoundedRect(QRectF(0.5, 0.5, size - 1, size - 1), 3, 3);
  return picture;
}

bool IsFolder(const Option& option) {
  return option.kind == OptionKind::folder || option.kind == OptionKind::simulatorFolder;
}

QString AskColor(QWidget* parent, const QString& title, const QString& color,
                 const std::function<void(const QString&)>& tried) {
  QColorDialog dialog(QColor(color), parent);
  dialog.setWindowTitle(title);
  dialog.setOption(QColorDialog::DontUseNativeDialog);
  QObject::connect(&dialog, &QColorDialog::currentColorChanged, parent,
                   [&](const QColor& chosen) { tried(chosen.name()); });
  return dialog.exec() == QDialog::Accepted ? dialog.selectedColor().name() : QString();
}

}  // namespace

OptionRow::OptionRow(const Option& option, const AppFolder& home, bool developer, QWidget* parent)
    : QFrame(parent), option(option), home(home), developer(developer) {
  setObjectName(Name("row_"));
  setProperty("optionRow", true);
  askFolder = [this](const QString& from) {
    return QFileDialog::getExistingDirectory(this, Utf16(this->option.label), from);
  };
  askColor = [this](const QString& color, const std::function<void(const QString&)>& tried) {
    return AskColor(this, Utf16(this->option.label), color, tried);
  };
  auto* grid = new QGridLayout(this);
  grid->setContentsMargins(0, 7, 0, 7);
  grid->setHorizontalSpacing(12);
  grid->setVerticalSpacing(3);
  grid->setColumnStretch(0, 1);
  field = BuildField();
  field->setObjectName(option.control.empty() ? Name("opt_") : Utf16(option.control));
  field->setAccessibleName(Utf16(option.label));
  field->setAccessibleDescription(Utf16(option.sentence));
  BuildWords(grid);
  BuildControls(grid);
}

void OptionRow::BuildWords(QGridLayout* grid) {
  auto* label = new QLabel(Utf16(option.label), this);
  label->setWordWrap(true);
  label->setBuddy(field);
  grid->addWidget(label, 0, 0);
  if (option.sentence.empty()) return;
  auto* sentence = new QLabel(Utf16(option.sentence), this);
  sentence->setProperty("quiet", true);
  sentence->setWordWrap(true);
  grid->addWidget(sentence, 1, 0, Qt::AlignTop);
}

// The field, what stands beside it, and below it why it is refused.
void OptionRow::BuildControls(QGridLayout* grid) {
  auto* right = new QWidget(this);
  right->setFixedWidth(fieldWidth);
  auto* controls = new QHBoxLayout(right);
  controls->setContentsMargins(0, 0, 0, 0);
  controls->setSpacing(6);
  controls->addWidget(field);
  if (!option.unit.empty()) controls->addWidget(new QLabel(Utf16(option.unit), this));
  if (IsFolder(option))
    controls->addWidget(AddButton("browse_", tr("..."), &OptionRow::Browse));
  else
    controls->addStretch(1);
  grid->addWidget(right, 0, 1);
  cmdRestore = AddButton("restore_", {}, &OptionRow::Restore);
  cmdRestore->setProperty("restore", true);
  cmdRestore->setFixedWidth(restoreWidth);
  grid->addWidget(cmdRestore, 0, 2);
  lblRefusal = new QLabel(this);
  lblRefusal->setObjectName(Name("refusal_"));
  lblRefusal->setProperty("fault", true);
  lblRefusal->setWordWrap(true);
  lblRefusal->setFixedWidth(fieldWidth);
  lblRefusal->hide();
  grid->addWidget(lblRefusal, 1, 1, Qt::AlignTop);
  if (option.kind != OptionKind::folder) return;
  cmdCreate = AddButton("create_", tr("Create it"), &OptionRow::CreateFolder);
  cmdCreate->hide();
  grid->addWidget(cmdCreate, 1, 2, Qt::AlignTop);
}

QToolButton* OptionRow::AddButton(const char* head, const QString& caption, void (OptionRow::*command)()) {
  auto* button = new QToolButton(this);
  button->setObjectName(Name(head));
  button->setText(caption);
  button->setFocusPolicy(Qt::TabFocus);
  connect(button, &QToolButton::clicked, this, command);
  return button;
}

QString OptionRow::Name(const char* head) const {
  return head + Utf16(option.key);
}

QWidget* OptionRow::BuildField() {
  switch (option.kind) {
    case OptionKind::flag:
      return BuildFlag();
    case OptionKind::choice:
      return BuildChoice();
    case OptionKind::color:
      return BuildColor();
    default:
      return BuildEdit();
  }
}

QWidget* OptionRow::BuildFlag() {
  auto* box = new QCheckBox(this);
  connect(box, &QCheckBox::toggled, this, [this](bool on) { Take(on ? "1" : "0"); });
  return box;
}

QWidget* OptionRow::BuildChoice() {
  auto* combo = new QComboBox(this);
  combo->setFixedWidth(choiceWidth);
  combo->setProperty("choice", true);
  for (const OptionChoice& choice : option.choices)
    combo->addItem(Utf16(choice.label), QString::number(choice.value));
  // The wheel is the page's.
  combo->setFocusPolicy(Qt::StrongFocus);
  combo->installEventFilter(this);
  connect(combo, &QComboBox::activated, this, [this, combo] { Take(combo->currentData().toString()); });
  return combo;
}

QWidget* OptionRow::BuildColor() {
  auto* button = new QPushButton(this);
  button->setFixedWidth(colorWidth);
  button->setAutoDefault(false);
  button->setProperty("swatch", true);
  connect(button, &QPushButton::clicked, this, &OptionRow::PickColor);
  return button;
}

QWidget* OptionRow::BuildEdit() {
  auto* edit = new QLineEdit(this);
  if (option.kind == OptionKind::password) edit->setEchoMode(QLineEdit::Password);
  if (option.kind == OptionKind::number) {
    edit->setFixedWidth(numberWidth);
    edit->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    edit->installEventFilter(this);
  }
  connect(edit, &QLineEdit::textChanged, this, &OptionRow::Take);
  return edit;
}

bool OptionRow::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::Wheel) {
    event->ignore();
    return true;
  }
  if (event->type() != QEvent::KeyPress || option.kind != OptionKind::number)
    return QFrame::eventFilter(watched, event);
  const int key = static_cast<QKeyEvent*>(event)->key();
  if (key != Qt::Key_Up && key != Qt::Key_Down) return QFrame::eventFilter(watched, event);
  Step(key == Qt::Key_Up ? 1 : -1);
  return true;
}

void OptionRow::Step(int direction) {
  bool isNumber = false;
  const double number = QString::fromStdString(text).toDouble(&isNumber);
  if (!isNumber) return;
  const double step = option.decimals == 0 ? 1 : 0.1;
  const double wanted = qBound(option.lowest, number + direction * step, option.highest);
  const double scale = option.decimals == 0 ? 1 : 100;
  SetText(QString::number(std::round(wanted * scale) / scale, 'g', 10).toStdString());
}

void OptionRow::Take(const QString& value) {
  text = value.toStdString();
  ShowState();
  Q_EMIT Changed();
}

void OptionRow::SetText(const std::string& value) {
  text = value;
  ShowText();
  ShowState();
  Q_EMIT Changed();
}

void OptionRow::Open(const std::string& value) {
  opened = text = value;
  ShowText();
  ShowState();
}

void OptionRow::SetDefault(const std::string& value) {
  defaultText = value;
  QString shown = Utf16(value);
  for (const OptionChoice& choice : option.choices)
    if (std::to_string(choice.value) == value) shown = Utf16(choice.label);
  if (option.kind == OptionKind::flag) shown = value == "1" ? tr("on") : tr("off");
  cmdRestore->setToolTip(shown.isEmpty() ? tr("The default is none") : tr("The default is %1").arg(shown));
  ShowState();
}

void OptionRow::SetPlaceholder(const QString& meaning) {
  if (auto* edit = qobject_cast<QLineEdit*>(field)) edit->setPlaceholderText(meaning);
}

void OptionRow::ShowText() {
  const QSignalBlocker quiet(field);
  if (auto* box = qobject_cast<QCheckBox*>(field)) {
    box->setChecked(text == "1");
  } else if (auto* combo = qobject_cast<QComboBox*>(field)) {
    combo->setCurrentIndex(combo->findData(Utf16(text)));
  } else if (auto* edit = qobject_cast<QLineEdit*>(field)) {
    if (edit->text() != Utf16(text)) edit->setText(Utf16(text));
  }
}

void OptionRow::ShowState() {
  refusal.clear();
  std::string hint;
  bool missing = false;
  if (text != opened) refusal = OptionRefusal(option, text, developer);
  if (text != opened && refusal.empty() && alsoRefused) refusal = alsoRefused(text);
  if (refusal.empty() && IsFolder(option)) {
    const FolderCheck check = CheckFolder(home, text, option.kind == OptionKind::simulatorFolder);
    missing = check.state == FolderState::missing;
    (text == opened ? hint : refusal) = check.reason;
  }
  if (cmdCreate != nullptr) cmdCreate->setVisible(missing);
  lblRefusal->setText(Utf16(refusal.empty() ? hint : refusal));
  lblRefusal->setVisible(!lblRefusal->text().isEmpty());
  SetFault(!refusal.empty());
  if (auto* button = qobject_cast<QPushButton*>(field)) {
    button->setIcon(Swatch(QColor(Utf16(text))));
    button->setText(Utf16(text));
  }
  cmdRestore->setEnabled(!IsDefault());
  cmdRestore->setText(IsDefault() ? tr("default") : tr("Restore"));
}

void OptionRow::SetFault(bool fault) {
  if (field->property("fault").toBool() == fault) return;
  field->setProperty("fault", fault);
  field->style()->unpolish(field);
  field->style()->polish(field);
}

void OptionRow::Browse() {
  const QString chosen = askFolder(Utf16(FolderOf(home, text).string()));
  if (!chosen.isEmpty()) SetText(chosen.toStdString());
}

void OptionRow::PickColor() {
  const std::string before = text;
  const QString chosen =
      askColor(Utf16(before), [this](const QString& tried) { SetText(tried.toStdString()); });
  SetText(chosen.isEmpty() ? before : chosen.toStdString());
}

void OptionRow::CreateFolder() {
  const std::string reason = CreateFolderFor(home, text);
  ShowState();
  if (!reason.empty()) lblRefusal->setText(Utf16(reason));
  field->setFocus();
  Q_EMIT Changed();
}

bool OptionRow::Matches(const QStringList& words) const {
  const QString all = Utf16(option.label) + ' ' + Utf16(option.sentence) + ' ' + Utf16(option.key) + ' ' +
                      Utf16(GroupCaption(option.group));
  return std::all_of(words.begin(), words.end(),
                     [&](const QString& word) { return all.contains(word, Qt::CaseInsensitive); });
}
