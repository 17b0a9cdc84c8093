#include "windows/frmSelectAP.h"

#include <QDialogButtonBox>
#include <QGridLayout>
#include <QStyle>
#include <cmath>

#include "base/code_page.h"
#include "navdata/geodesy.h"

namespace {

constexpr int longestCode = 10;

QString Utf8(std::string_view codePageText) {
  return QString::fromStdString(CodePageToUtf8(codePageText));
}

void SetFault(QLabel& label, bool fault) {
  label.setProperty("fault", fault);
  label.setProperty("quiet", !fault);
  label.style()->unpolish(&label);
  label.style()->polish(&label);
}

QString CodeOf(const NavDatabase& database, int row) {
  const bool known = row >= 0 && static_cast<std::size_t>(row) < database.airports.size();
  return known ? Utf8(database.airports[static_cast<std::size_t>(row)].strCode.View()) : QString();
}

}  // namespace

frmSelectAP::frmSelectAP(const NavDatabase& database, int departure, int destination, QWidget* parent)
    : QDialog(parent), database(database) {
  setObjectName("frmSelectAP");
  setWindowTitle(tr("Departure and destination"));
  setMinimumWidth(480);
  auto* layout = new QGridLayout(this);
  layout->setContentsMargins(24, 22, 24, 20);
  layout->setHorizontalSpacing(14);
  layout->setVerticalSpacing(12);
  layout->setColumnStretch(2, 1);
  txtDepAP = AddField(layout, 0, tr("&Departure"), "txtDepAP", &lblDepName);
  txtDestAP = AddField(layout, 1, tr("De&stination"), "txtDestAP", &lblDestName);
  lblDepName->setObjectName("lblDepName");
  lblDestName->setObjectName("lblDestName");
  lblDistance = new QLabel(this);
  lblDistance->setObjectName("lblDistance");
  layout->addWidget(lblDistance, 2, 1, 1, 2);
  auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
  cmdOK = buttons->button(QDialogButtonBox::Ok);
  cmdOK->setObjectName("cmdOK");
  cmdOK->setText(tr("Create plan"));
  cmdOK->setDefault(true);
  buttons->button(QDialogButtonBox::Cancel)->setObjectName("cmdCancel");
  layout->addWidget(buttons, 3, 0, 1, 3);
  connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
  connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
  txtDepAP->setText(CodeOf(database, departure));
  txtDestAP->setText(CodeOf(database, destination));
  LookUp();
  txtDepAP->setFocus();
  txtDepAP->selectAll();
}

QLineEdit* frmSelectAP::AddField(QGridLayout* layout, int line, const QString& caption, const QString& name,
                                 QLabel** airportName) {
  auto* field = new QLineEdit(this);
  field->setObjectName(name);
  field->setMaxLength(longestCode);
  field->setFixedWidth(110);
  field->setPlaceholderText(tr("Code"));
  auto* label = new QLabel(caption, this);
  label->setBuddy(field);
  *airportName = new QLabel(this);
  (*airportName)->setMinimumWidth(220);
  layout->addWidget(label, line, 0);
  layout->addWidget(field, line, 1);
  layout->addWidget(*airportName, line, 2);
  connect(field, &QLineEdit::textEdited, this, [this, field](const QString& typed) {
    const int cursor = field->cursorPosition();
    field->setText(typed.toUpper());
    field->setCursorPosition(cursor);
    LookUp();
  });
  return field;
}

int frmSelectAP::ShowAirport(const QLineEdit& code, QLabel& name) const {
  const std::string typed = Utf8ToCodePage(code.text().trimmed().toUpper().toStdString());
  const int row = typed.empty() ? -1 : database.FindAirportByCode(typed);
  SetFault(name, row < 0 && typed.size() >= 4);
  if (row >= 0) {
    const AirportRec& airport = database.airports[static_cast<std::size_t>(row)];
    const QString city = Utf8(airport.strCity.View());
    const QString airportName = Utf8(airport.strName.View());
    name.setText(city.isEmpty() || airportName.contains(city) ? airportName : airportName + ", " + city);
  } else if (typed.empty()) {
    name.setText(tr("Type the airport's code, such as EDDF"));
  } else {
    name.setText(tr("No airport has the code %1").arg(code.text().trimmed()));
  }
  return row;
}

void frmSelectAP::LookUp() {
  departureRow = ShowAirport(*txtDepAP, *lblDepName);
  destinationRow = ShowAirport(*txtDestAP, *lblDestName);
  const bool both = departureRow >= 0 && destinationRow >= 0;
  cmdOK->setEnabled(both);
  if (both) {
    const AirportRec& from = database.airports[static_cast<std::size_t>(departureRow)];
    const AirportRec& to = database.airports[static_cast<std::size_t>(destinationRow)];
    const float distance = GreatCircleDistance(from.sngLat, from.sngLon, to.sngLat, to.sngLon);
    lblDistance->setText(tr("Great circle distance %L1 NM").arg(std::lround(distance)));
  } else {
    lblDistance->clear();
  }
}
