#include "windows/frmSelectAP.h"

#include <QApplication>
#include <QDialogButtonBox>
#include <QKeyEvent>
#include <QStyle>
#include <QVBoxLayout>
#include <cmath>

#include "base/code_page.h"
#include "navdata/geodesy.h"
#include "windows/code_page_text.h"

namespace {

constexpr QSize openingSize(1020, 680);
constexpr int fieldWidth = 250;
constexpr int longestTyped = 60;
constexpr const char* parting = "  ·  ";

void SetFault(QLabel& label, bool fault) {
  label.setProperty("fault", fault);
  label.setProperty("quiet", !fault);
  label.style()->unpolish(&label);
  label.style()->polish(&label);
}

QLabel* QuietLabel(QWidget* parent, const QString& name) {
  auto* label = new QLabel(parent);
  label->setObjectName(name);
  label->setProperty("quiet", true);
  label->setTextFormat(Qt::PlainText);
  return label;
}

float DistanceBetween(const AirportRec& from, const AirportRec& to) {
  return GreatCircleDistance(from.sngLat, from.sngLon, to.sngLat, to.sngLon);
}

}  // namespace

frmSelectAP::frmSelectAP(const FlightPlan& plan, const NavDatabase& database, const AirportChoice& opening,
                         QWidget* parent)
    : QDialog(parent), plan(plan), database(database) {
  setObjectName("frmSelectAP");
  setWindowTitle(tr("Departure and destination"));
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(24, 22, 24, 20);
  layout->setSpacing(14);
  BuildFields();
  BuildList();
  BuildButtons();
  resize(openingSize);
  Choose(departure, opening.departure);
  Choose(destination, opening.destination);
  Choose(alternate, opening.alternate);
  for (std::size_t i = 0; i < lstDep->Starts().size() && opening.start; ++i)
    if (lstDep->Starts()[i].num == opening.start->num) lstDep->Select(static_cast<int>(i));
  const bool onlyDestinationMissing = opening.departure >= 0 && opening.destination < 0;
  EnterField(onlyDestinationMissing ? destination : departure);
  ShowAll();
}

// ---- what it is made of

void frmSelectAP::BuildFields() {
  auto* grid = new QGridLayout;
  grid->setHorizontalSpacing(14);
  grid->setVerticalSpacing(2);
  grid->setColumnStretch(2, 1);
  AddField(grid, departure, tr("&Departure"), "txtDepAP", "lblDepName");
  auto* caption = new QLabel(tr("Star&t"), this);
  lstDep = new StartPositionBox(this);
  lstDep->setFixedWidth(fieldWidth);
  caption->setBuddy(lstDep);
  // Below the departure's two lines.
  grid->addWidget(caption, 3, 0);
  grid->addWidget(lstDep, 3, 1);
  connect(lstDep, &StartPositionBox::StartChosen, this, &frmSelectAP::ShowAll);
  AddField(grid, destination, tr("D&estination"), "txtDestAP", "lblDestName");
  cmdSwap = AddSideButton(grid, destination, "cmdSwap", tr("S&wap"));
  cmdSwap->setToolTip(tr("Fly the other way"));
  connect(cmdSwap, &QPushButton::clicked, this, &frmSelectAP::Swap);
  AddField(grid, alternate, tr("&Alternate"), "txtAltAP", "lblAltName");
  At(alternate).text->setPlaceholderText(tr("None"));
  cmdNoAlternate = AddSideButton(grid, alternate, "cmdNoAlternate", tr("&Remove"));
  connect(cmdNoAlternate, &QPushButton::clicked, this, [this] {
    Choose(alternate, -1);
    EnterField(alternate);
  });
  for (const int gap : {2, 4, 7})
    grid->setRowMinimumHeight(gap, 10);
  static_cast<QVBoxLayout*>(layout())->addLayout(grid);
}

void frmSelectAP::AddField(QGridLayout* grid, Role role, const QString& caption, const QString& textName,
                           const QString& labelName) {
  static constexpr int lines[] = {0, 5, 8};
  const int line = lines[role];
  Field& field = At(role);
  field.text = new QLineEdit(this);
  field.text->setObjectName(textName);
  field.text->setMaxLength(longestTyped);
  field.text->setFixedWidth(fieldWidth);
  field.text->setPlaceholderText(tr("Code, name, city or country"));
  field.text->installEventFilter(this);
  auto* label = new QLabel(caption, this);
  label->setBuddy(field.text);
  label->setMinimumWidth(78);
  field.name = QuietLabel(this, labelName);
  field.name->setProperty("quiet", false);
  field.details = QuietLabel(this, labelName + "Details");
  // A long text is cut rather than that the window grows.
  for (QLabel* text : {field.name, field.details})
    text->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
  auto* texts = new QVBoxLayout;
  texts->setSpacing(1);
  texts->addWidget(field.name);
  texts->addWidget(field.details);
  grid->addWidget(label, line, 0);
  grid->addWidget(field.text, line, 1);
  grid->addLayout(texts, line, 2);
  connect(field.text, &QLineEdit::textEdited, this, [this, role] { Typed(role); });
}

QPushButton* frmSelectAP::AddSideButton(QGridLayout* grid, Role role, const QString& name,
                                        const QString& text) {
  static constexpr int lines[] = {0, 5, 8};
  auto* button = new QPushButton(text, this);
  button->setObjectName(name);
  button->setAutoDefault(false);
  grid->addWidget(button, lines[role], 3);
  return button;
}

void frmSelectAP::BuildList() {
  lblList = QuietLabel(this, "lblList");
  lstAirports = new AirportList(database, this);
  lstAirports->setObjectName("lstAirports");
  connect(lstAirports, &AirportList::Picked, this, &frmSelectAP::Picked);
  layout()->addWidget(lblList);
  static_cast<QVBoxLayout*>(layout())->addWidget(lstAirports, 1);
}

void frmSelectAP::BuildButtons() {
  lblDistance = new QLabel(this);
  lblDistance->setObjectName("lblDistance");
  lblChange = QuietLabel(this, "lblChange");
  auto* texts = new QVBoxLayout;
  texts->setSpacing(2);
  texts->addWidget(lblDistance);
  texts->addWidget(lblChange);
  auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
  cmdOK = buttons->button(QDialogButtonBox::Ok);
  cmdOK->setObjectName("cmdOK");
  cmdOK->setDefault(true);
  buttons->button(QDialogButtonBox::Cancel)->setObjectName("cmdCancel");
  connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
  connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
  auto* line = new QHBoxLayout;
  line->addLayout(texts, 1);
  line->addWidget(buttons);
  static_cast<QVBoxLayout*>(layout())->addLayout(line);
}

// ---- typing and choosing

AirportChoice frmSelectAP::Choice() const {
  AirportChoice choice{At(departure).row, At(destination).row, At(alternate).row, std::nullopt};
  if (const StartPosition* start = lstDep->Chosen()) choice.start = *start;
  return choice;
}

const AirportRec* frmSelectAP::Airport(Role role) const {
  const std::int32_t row = At(role).row;
  return row >= 0 ? &database.airports.at(static_cast<std::size_t>(row)) : nullptr;
}

QString frmSelectAP::CodeOf(std::int32_t row) const {
  return row >= 0 ? FromCodePage(database.airports.at(static_cast<std::size_t>(row)).strCode.View())
                  : QString();
}

frmSelectAP::Role frmSelectAP::RoleOf(const QObject* text) const {
  for (const Role role : {departure, destination, alternate})
    if (At(role).text == text) return role;
  return roles;
}

void frmSelectAP::Typed(Role role) {
  active = role;
  Field& field = At(role);
  Search(role);
  // A whole code is a choice already.
  const std::string code = AsciiUpper(Trimmed(Utf8ToCodePage(field.text->text().toStdString())));
  const bool isCode =
      !code.empty() && lstAirports->Selected() >= 0 &&
      EqualNoCase(database.airports[static_cast<std::size_t>(lstAirports->Selected())].strCode.View(), code);
  field.row = isCode ? lstAirports->Selected() : -1;
  ShowAll();
}

void frmSelectAP::Search(Role role) {
  Field& field = At(role);
  const std::string typed = field.text->text().toStdString();
  if (!search && !typed.empty()) search.emplace(database);
  AirportsFound found;
  if (search) found = search->Find(typed);
  field.matches = found.total;
  lstAirports->Show(std::move(found.rows));
}

void frmSelectAP::Choose(Role role, std::int32_t row) {
  Field& field = At(role);
  const bool known = row >= 0 && row < database.AirportCount();
  field.row = known ? row : -1;
  field.text->setText(CodeOf(field.row));
  field.matches = 0;
  lstAirports->Show({});
  ShowAll();
}

void frmSelectAP::Picked(std::int32_t row) {
  const Role role = active;
  Choose(role, row);
  Leave(role);
}

void frmSelectAP::TakeBest(Role role) {
  const Field& field = At(role);
  if (field.row < 0 && !field.text->text().trimmed().isEmpty() && lstAirports->Selected() >= 0)
    Choose(role, lstAirports->Selected());
}

void frmSelectAP::EnterField(Role role) {
  active = role;
  At(role).text->setFocus(Qt::OtherFocusReason);
  At(role).text->selectAll();
  ShowList();
}

// On to what is still missing, else to the button that makes the plan.
void frmSelectAP::Leave(Role role) {
  if (At(departure).row < 0) return EnterField(departure);
  if (At(destination).row < 0) return EnterField(destination);
  if (role == departure) return EnterField(destination);
  cmdOK->setFocus(Qt::TabFocusReason);
}

void frmSelectAP::Swap() {
  const std::int32_t from = At(departure).row;
  Choose(departure, At(destination).row);
  Choose(destination, from);
}

bool frmSelectAP::FieldKey(Role role, const QKeyEvent& key) {
  switch (key.key()) {
    case Qt::Key_Down:
    case Qt::Key_Up:
    case Qt::Key_PageDown:
    case Qt::Key_PageUp: {
      QKeyEvent forList(key.type(), key.key(), key.modifiers());
      QApplication::sendEvent(lstAirports, &forList);
      return true;
    }
    case Qt::Key_Tab:
      TakeBest(role);
      return false;
    case Qt::Key_Return:
    case Qt::Key_Enter: {
      const std::int32_t selected = lstAirports->Selected();
      if (selected >= 0 && selected != At(role).row) {
        Picked(selected);
        return true;
      }
      // The airport stands; the plan can be made when both are there.
      if (Choice().Complete()) return false;
      Leave(role);
      return true;
    }
    default:
      return false;
  }
}

bool frmSelectAP::eventFilter(QObject* watched, QEvent* event) {
  const Role role = RoleOf(watched);
  if (role == roles) return QDialog::eventFilter(watched, event);
  if (event->type() == QEvent::KeyPress && FieldKey(role, *static_cast<QKeyEvent*>(event))) return true;
  Field& field = At(role);
  if (event->type() == QEvent::FocusOut && field.row >= 0) field.text->setText(CodeOf(field.row));
  if (event->type() == QEvent::FocusIn && active != role) {
    active = role;
    Search(role);
    ShowAll();
  }
  return QDialog::eventFilter(watched, event);
}

// ---- showing

void frmSelectAP::ShowAll() {
  for (const Role role : {departure, destination, alternate})
    ShowField(role);
  lstDep->ShowAirport(database, At(departure).row);
  cmdSwap->setEnabled(At(departure).row >= 0 || At(destination).row >= 0);
  cmdNoAlternate->setEnabled(!At(alternate).text->text().isEmpty());
  ShowRoute();
  ShowList();
}

void frmSelectAP::ShowField(Role role) {
  Field& field = At(role);
  const QString typed = field.text->text().trimmed();
  const bool nothing = field.row < 0 && !typed.isEmpty() && field.matches == 0;
  SetFault(*field.details, nothing);
  field.name->setVisible(field.row >= 0);
  if (const AirportRec* airport = Airport(role)) {
    field.name->setText(FromCodePage(airport->strName.View()));
    field.details->setText(DetailsOf(role));
    return;
  }
  field.name->clear();
  if (typed.isEmpty()) {
    field.details->clear();
  } else if (nothing) {
    field.details->setText(tr("No airport matches \u201C%1\u201D").arg(typed));
  } else {
    field.details->setText(tr("Enter takes the selected airport"));
  }
}

QString frmSelectAP::DetailsOf(Role role) const {
  const AirportRec& airport = *Airport(role);
  QStringList place;
  for (const QString& part : {FromCodePage(airport.strCity.View()), FromCodePage(airport.strCountry.View())})
    if (!part.isEmpty()) place << part;
  QStringList details;
  if (!place.isEmpty()) details << place.join(", ");
  details << tr("%L1 ft").arg(airport.lngElevation);
  const std::int32_t runway = LongestRunwayFeet(database, airport);
  details << (runway > 0 ? tr("runway %L1 ft").arg(runway) : tr("no runway"));
  details << tr("var. %1").arg(QString::fromStdString(FormatMagVar(airport.sngMagVar)));
  const AirportRec* destinationAirport = Airport(destination);
  if (role == alternate && destinationAirport != nullptr) {
    details << (At(alternate).row == At(destination).row
                    ? tr("the destination itself")
                    : tr("%L1 NM from %2")
                          .arg(std::lround(DistanceBetween(*destinationAirport, airport)))
                          .arg(CodeOf(At(destination).row)));
  }
  return details.join(parting);
}

void frmSelectAP::ShowRoute() {
  const AirportRec* from = Airport(departure);
  const AirportRec* to = Airport(destination);
  const bool complete = from != nullptr && to != nullptr;
  const bool unfinishedAlternate = At(alternate).row < 0 && !At(alternate).text->text().trimmed().isEmpty();
  cmdOK->setEnabled(complete && !unfinishedAlternate);
  const bool isNew = IsNewPlan(Choice(), plan);
  cmdOK->setText(isNew ? tr("&Create plan") : tr("&OK"));
  lblDistance->clear();
  lblChange->clear();
  if (!complete) return;
  if (from == to) {
    lblDistance->setText(tr("A local flight: departure and destination are the same"));
  } else {
    const float course = GreatCircleCourse(from->sngLat, from->sngLon, to->sngLat, to->sngLon);
    lblDistance->setText(tr("Great circle distance %L1 NM, true course %2°")
                             .arg(std::lround(DistanceBetween(*from, *to)))
                             .arg(std::lround(course) % 360, 3, 10, QChar('0')));
  }
  if (plan.RowCount() <= 2) return;
  lblChange->setText(isNew ? tr("The new plan replaces the present route")
                           : tr("The route stays; only start and alternate change"));
}

void frmSelectAP::ShowList() {
  static const QString captions[] = {tr("Departure"), tr("Destination"), tr("Alternate")};
  const Field& field = At(active);
  const int listed = lstAirports->Count();
  if (listed == 0) {
    lblList->setText(tr("Type a code, or words of the name, the city or the country"));
  } else if (field.matches > static_cast<std::size_t>(listed)) {
    lblList->setText(tr("%1: the first %2 of %L3 airports")
                         .arg(captions[active])
                         .arg(listed)
                         .arg(static_cast<qulonglong>(field.matches)));
  } else {
    lblList->setText(listed == 1 ? tr("%1: one airport").arg(captions[active])
                                 : tr("%1: %2 airports").arg(captions[active]).arg(listed));
  }
}
