#include "windows/frmFuel.h"

#include <QDialogButtonBox>
#include <QGridLayout>
#include <QPushButton>
#include <QRadioButton>

#include "base/error_trap.h"
#include "base/numbers.h"
#include "windows/fuel_strip.h"
#include "windows/print_lines.h"

namespace {

constexpr int unitCount = 4;
constexpr int swatchSize = 10;

QString Text(std::string_view text) {
  return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

}  // namespace

frmFuel::frmFuel(Session& session, PlanEditor& editor, QWidget* parent)
    : QDialog(parent, Qt::Dialog | Qt::WindowStaysOnTopHint),
      print([this](const std::vector<std::string>& lines) { return PrintLinesOnPrinter(this, lines); }),
      session(session),
      editor(editor) {
  setObjectName("frmFuel");
  setWindowTitle(tr("Fuel"));
  setMinimumWidth(470);
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(24, 20, 24, 20);
  layout->setSpacing(14);
  lblCaption = AddLabel("fraFuel");
  lblCaption->setProperty("figure", true);
  layout->addWidget(lblCaption);
  lblFault = AddLabel("lblFault");
  lblFault->setProperty("fault", true);
  lblFault->setWordWrap(true);
  lblFault->hide();
  layout->addWidget(lblFault);
  strip = new FuelStrip(this);
  layout->addWidget(strip);
  auto* grid = new QGridLayout;
  grid->setHorizontalSpacing(10);
  grid->setVerticalSpacing(7);
  grid->setColumnStretch(1, 1);
  BuildParts(grid);
  BuildTotals(grid);
  layout->addLayout(grid);
  BuildAlternate(layout);
  BuildUnits(layout);
  BuildFoot(layout);
  connect(&editor, &PlanEditor::Changed, this, &frmFuel::CalculateFuel);
  CalculateFuel();
}

QLabel* frmFuel::AddLabel(const QString& name) {
  auto* label = new QLabel(this);
  label->setObjectName(name);
  return label;
}

void frmFuel::BuildParts(QGridLayout* grid) {
  const struct {
    const char* name;
    QString caption;
    QLabel** label;
  } parts[FuelStrip::partCount] = {{"lblClimbFuel", tr("Climb"), &lblClimbFuel},
                                   {"lblCruiseFuel", tr("Cruise"), &lblCruiseFuel},
                                   {"lblDescentFuel", tr("Descent"), &lblDescentFuel},
                                   {"lblApproachFuel", tr("Approach"), &lblApproachFuel},
                                   {"lblContFuel", tr("Contingency, 10 % of the trip"), &lblContFuel},
                                   {"lblHoldFuel", tr("Holding, 30 minutes"), &lblHoldFuel},
                                   {"lblAltFuel", tr("Alternate"), &lblAltFuel}};
  constexpr int tripParts = 4;
  for (int i = 0; i < FuelStrip::partCount; ++i) {
    const int line = i < tripParts ? i : i + 1;
    auto* swatch = new QLabel(this);
    swatch->setFixedSize(swatchSize, swatchSize);
    swatch->setStyleSheet("border-radius: 3px; background: " + FuelStrip::ColorOf(i).name());
    auto* caption = new QLabel(parts[i].caption, this);
    caption->setProperty("quiet", true);
    if (i == FuelStrip::partCount - 1) altOnly = {swatch, caption};
    *parts[i].label = AddLabel(parts[i].name);
    grid->addWidget(swatch, line, 0);
    grid->addWidget(caption, line, 1);
    grid->addWidget(*parts[i].label, line, 2, Qt::AlignRight);
  }
  lblTripFuel = AddLabel("lblTripFuel");
  grid->addWidget(lblTripFuel, tripParts, 2, Qt::AlignRight);
}

void frmFuel::BuildTotals(QGridLayout* grid) {
  const struct {
    const char *total, *stops;
    QLabel **totalLabel, **stopsLabel;
  } totals[] = {{"lblTotVFR", "lblVFRStop", &lblTotVFR, &lblVFRStop},
                {"lblTotIFR", "lblIFRStop", &lblTotIFR, &lblIFRStop}};
  int line = FuelStrip::partCount + 1;
  grid->setRowMinimumHeight(line++, 6);
  for (const auto& total : totals) {
    *total.totalLabel = AddLabel(total.total);
    (*total.totalLabel)->setProperty("figure", true);
    *total.stopsLabel = AddLabel(total.stops);
    (*total.stopsLabel)->setProperty("quiet", true);
    grid->addWidget(*total.stopsLabel, line, 1);
    grid->addWidget(*total.totalLabel, line++, 2, Qt::AlignRight);
  }
}

void frmFuel::BuildAlternate(QBoxLayout* layout) {
  auto* line = new QHBoxLayout;
  line->setSpacing(16);
  lblAltAirport = AddLabel("lblAltAirport");
  lblAltAirDistance = AddLabel("lblAltAirDistance");
  lblAltAirCourse = AddLabel("lblAltAirCourse");
  lblAltAirport->setWordWrap(true);
  for (QLabel* label : {lblAltAirDistance, lblAltAirCourse})
    label->setProperty("quiet", true);
  line->addWidget(lblAltAirport, 1);
  line->addWidget(lblAltAirDistance);
  line->addWidget(lblAltAirCourse);
  layout->addLayout(line);
}

void frmFuel::BuildUnits(QBoxLayout* layout) {
  auto* line = new QHBoxLayout;
  line->setSpacing(18);
  optFueltype = new QButtonGroup(this);
  const QString texts[unitCount] = {tr("US &gallons"), tr("&Pounds"), tr("&Kilograms"), tr("&Litres")};
  for (int unit = 0; unit < unitCount; ++unit) {
    auto* option = new QRadioButton(texts[unit], this);
    option->setObjectName(QString("optFueltype(%1)").arg(unit));
    option->setChecked(unit == session.settings.FUEL);
    optFueltype->addButton(option, unit);
    line->addWidget(option);
  }
  line->addStretch(1);
  layout->addLayout(line);
  connect(optFueltype, &QButtonGroup::idClicked, this, &frmFuel::TakeUnit);
}

void frmFuel::BuildFoot(QBoxLayout* layout) {
  QLabel* dlbWarning = AddLabel("dlbWarning");
  dlbWarning->setText(tr("For flight simulation only. Never fuel a real aircraft by these figures."));
  dlbWarning->setProperty("quiet", true);
  layout->addWidget(dlbWarning);
  auto* buttons = new QDialogButtonBox(QDialogButtonBox::Close, this);
  auto* cmdPrint = buttons->addButton(tr("P&rint"), QDialogButtonBox::ActionRole);
  cmdPrint->setObjectName("cmdPrint");
  cmdPrint->setAutoDefault(false);
  connect(cmdPrint, &QPushButton::clicked, this, &frmFuel::Print);
  connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
  layout->addWidget(buttons);
}

void frmFuel::CalculateFuel() {
  std::string reason;
  const auto calculate = [&] {
    try {
      figures = ::CalculateFuel(session.plan, editor.Context());
    } catch (const std::exception& error) {
      reason = error.what();
      throw;
    }
    hasFigures = true;
    lblCaption->setText(tr("Fuel Calculation for FL %1").arg(session.plan.CruiseFL));
    ShowFigures();
  };
  const bool done = RunTrapped("Check frmFuel CalculateFuel (", calculate,
                               [this](const std::string& report) { session.protocol.WriteError(report); });
  lblFault->setVisible(!done);
  if (!done) lblFault->setText(tr("No new figures: %1.").arg(QString::fromStdString(reason)));
}

void frmFuel::ShowFigures() {
  const int unit = session.settings.FUEL;
  const auto show = [unit](QLabel* label, double gallons, const char* head = "") {
    label->setText(head + QString::fromStdString(FuelText(gallons, unit)));
  };
  show(lblClimbFuel, figures.ClimbFuel);
  show(lblCruiseFuel, figures.CruiseFuel);
  show(lblDescentFuel, figures.DescentFuel);
  show(lblApproachFuel, figures.ApproachFuel);
  show(lblTripFuel, figures.TripFuel, "Trip: ");
  show(lblContFuel, figures.ContingencyFuel);
  show(lblHoldFuel, figures.HoldingFuel);
  show(lblAltFuel, figures.AlternateFuel);
  show(lblTotVFR, figures.TripFuel, "VFR: ");
  show(lblTotIFR, figures.TotalFuel, "IFR: ");
  lblVFRStop->setText(QString::number(figures.VfrStops) + " fuel stop(s)");
  lblIFRStop->setText(QString::number(figures.IfrStops) + " fuel stop(s)");
  strip->SetParts({static_cast<double>(figures.ClimbFuel), static_cast<double>(figures.CruiseFuel),
                   static_cast<double>(figures.DescentFuel), static_cast<double>(figures.ApproachFuel),
                   figures.ContingencyFuel, figures.HoldingFuel, figures.AlternateFuel});
  ShowAlternate();
}

void frmFuel::ShowAlternate() {
  for (QLabel* label : {lblAltAirDistance, lblAltAirCourse, lblAltFuel, altOnly[0], altOnly[1]})
    label->setVisible(figures.hasAlternate);
  if (!figures.hasAlternate) {
    lblAltAirport->setText("alternate airport unspecified");
    return;
  }
  lblAltAirport->setText(QString::fromStdString(figures.alternateText));
  lblAltAirDistance->setText(
      "Distance: " + QString::fromStdString(FormatPicture(figures.alternateDistance, "###")) + "NM");
  lblAltAirCourse->setText(
      "Course: " + QString::fromStdString(FormatPicture(figures.alternateCourse, "000")) + Text("°"));
}

void frmFuel::TakeUnit(int unit) {
  session.settings.FUEL = static_cast<std::uint8_t>(unit);
  if (hasFigures) ShowFigures();
  Q_EMIT UnitChanged();
}

void frmFuel::ShowUnit() {
  if (QAbstractButton* option = optFueltype->button(session.settings.FUEL)) option->setChecked(true);
  if (hasFigures) ShowFigures();
}

std::vector<std::string> frmFuel::Lines() const {
  std::vector<std::string> lines = {lblCaption->text().toStdString(), session.aircraft.Name, ""};
  const auto add = [&](const QString& head, const QLabel* label) {
    lines.push_back((head + label->text()).toStdString());
  };
  add("Climb: ", lblClimbFuel);
  add("Cruise: ", lblCruiseFuel);
  add("Descent: ", lblDescentFuel);
  add("Approach: ", lblApproachFuel);
  add("", lblTripFuel);
  add("Contingency: ", lblContFuel);
  add("Holding: ", lblHoldFuel);
  if (figures.hasAlternate) add("Alternate: ", lblAltFuel);
  lines.emplace_back();
  lines.push_back((lblTotVFR->text() + ", " + lblVFRStop->text()).toStdString());
  lines.push_back((lblTotIFR->text() + ", " + lblIFRStop->text()).toStdString());
  lines.emplace_back();
  add("", lblAltAirport);
  if (figures.hasAlternate)
    lines.push_back((lblAltAirDistance->text() + ", " + lblAltAirCourse->text()).toStdString());
  lines.emplace_back();
  add("", findChild<QLabel*>("dlbWarning"));
  return lines;
}

void frmFuel::Print() {
  if (!print(Lines())) lblFault->setText(tr("The figures could not be printed.")), lblFault->show();
}
