// The list of aircraft and the fuel, by the pilot's hands.
#include <QButtonGroup>
#include <QLineEdit>
#include <QListWidget>
#include <QPdfWriter>
#include <QPushButton>
#include <QRadioButton>
#include <QTimer>

#include "flightplan/aircraft_file.h"
#include "flightplan/plan_rows.h"
#include "tests/windows/map_window.h"
#include "windows/frmAircraft.h"
#include "windows/frmFuel.h"
#include "windows/print_lines.h"

namespace {

AircraftRec Fuelled() {
  AircraftRec aircraft = SlowTwin();
  aircraft.MaxFuel = 2000;
  aircraft.MaxRange = 1000;
  aircraft.MaxWeight = 10000;
  aircraft.EmptyWeight = 6000;
  aircraft.LoadWeight = 2000;
  return aircraft;
}

class FuelWindow : public MapWindow {
 protected:
  FuelWindow() {
    session.aircraft = Fuelled();
    session.aircraftList = {Fuelled()};
    session.settings.FUEL = 0;
  }
  frmFuel& OpenFuel() {
    Press("cmdFuel");
    return Find<frmFuel>("frmFuel");
  }
  QString Label(const QString& name) { return Find<QLabel>(name).text(); }
  QString Gallons(double gallons) { return QString::fromStdString(FuelText(gallons, 0)); }
};

TEST_F(FuelWindow, NeedsAPlan) {
  Open();
  Press("cmdFuel");
  EXPECT_EQ(messages.texts, (std::vector<std::string>{"You have to file a flight plan first!!"}));
  EXPECT_EQ(window->findChild<frmFuel*>(), nullptr);
}

TEST_F(FuelWindow, ShowsTheFiguresInTheChosenUnit) {
  Open().Editor().StartPlan(0, 1);
  frmFuel& fuel = OpenFuel();
  EXPECT_TRUE(fuel.isVisible());
  EXPECT_TRUE(fuel.windowFlags() & Qt::WindowStaysOnTopHint);
  const FuelFigures figures = CalculateFuel(session.plan, window->Editor().Context());
  EXPECT_GT(figures.TripFuel, 100);
  EXPECT_EQ(Label("fraFuel"), "Fuel Calculation for FL " + QString::number(session.plan.CruiseFL));
  EXPECT_EQ(Label("lblClimbFuel"), Gallons(figures.ClimbFuel));
  EXPECT_EQ(Label("lblCruiseFuel"), Gallons(figures.CruiseFuel));
  EXPECT_EQ(Label("lblDescentFuel"), Gallons(figures.DescentFuel));
  EXPECT_EQ(Label("lblApproachFuel"), Gallons(figures.ApproachFuel));
  EXPECT_EQ(Label("lblTripFuel"), "Trip: " + Gallons(figures.TripFuel));
  EXPECT_EQ(Label("lblContFuel"), Gallons(figures.ContingencyFuel));
  EXPECT_EQ(Label("lblHoldFuel"), Gallons(figures.HoldingFuel));
  EXPECT_EQ(Label("lblTotVFR"), "VFR: " + Gallons(figures.TripFuel));
  EXPECT_EQ(Label("lblTotIFR"), "IFR: " + Gallons(figures.TotalFuel));
  EXPECT_EQ(Label("lblIFRStop"), QString::number(figures.IfrStops) + " fuel stop(s)");

  const FlightPlan before = session.plan;
  int told = 0;
  QObject::connect(&fuel, &frmFuel::UnitChanged, &fuel, [&] { ++told; });
  const char* texts[] = {" Gal", " lbs", " kg", " lit"};
  for (const int unit : {3, 2, 1, 0}) {
    QTest::keyClick(&Find<QRadioButton>(QString("optFueltype(%1)").arg(unit)), Qt::Key_Space);
    EXPECT_EQ(session.settings.FUEL, unit);
    EXPECT_EQ(Label("lblTotVFR"), "VFR: " + QString::fromStdString(FuelText(figures.TripFuel, unit)));
    EXPECT_TRUE(Label("lblHoldFuel").endsWith(texts[unit]));
  }
  EXPECT_EQ(told, 4);
  EXPECT_EQ(session.plan, before);
}

TEST_F(FuelWindow, FollowsThePlan) {
  Open().Editor().StartPlan(0, 1);
  OpenFuel();
  EXPECT_EQ(Label("lblAltAirport"), "alternate airport unspecified");
  EXPECT_FALSE(Find<QLabel>("lblAltFuel").isVisible());
  EXPECT_FALSE(Find<QLabel>("lblAltAirDistance").isVisible());
  const QString total = Label("lblTotIFR");
  window->Editor().Change("test (", [&] { SetAlternate(session.plan, window->Editor().Context(), 0); });
  EXPECT_EQ(Label("lblAltAirport"), "EDDA Airport  EDDA");
  EXPECT_EQ(Label("lblAltAirDistance"), "Distance: 600NM");
  EXPECT_EQ(Label("lblAltAirCourse"), QString::fromUtf8("Course: 270°"));
  EXPECT_TRUE(Find<QLabel>("lblAltFuel").isVisible());
  EXPECT_NE(Label("lblTotIFR"), total);

  // Without figures the labels stay, and the window and the log say why.
  const QString last = Label("lblTotIFR");
  AircraftRec none = Fuelled();
  none.MaxRange = 0;
  const int errors = session.protocol.ErrorCount();
  window->Editor().TakeAircraft(none);
  EXPECT_EQ(Label("lblTotIFR"), last);
  EXPECT_EQ(Label("lblFault"), "No new figures: the aircraft's data give no fuel figures.");
  EXPECT_TRUE(Find<QLabel>("lblFault").isVisible());
  EXPECT_EQ(session.protocol.ErrorCount(), errors + 1);
  window->Editor().NewPlan();
  EXPECT_EQ(Label("lblFault"), "No new figures: the plan takes no time.");
  window->Editor().StartPlan(0, 1);
  window->Editor().TakeAircraft(Fuelled());
  EXPECT_FALSE(Find<QLabel>("lblFault").isVisible());
}

TEST_F(FuelWindow, IsPrinted) {
  Open().Editor().StartPlan(0, 1);
  std::vector<std::string> paper;
  frmFuel& fuel = OpenFuel();
  fuel.print = [&](const auto& lines) { return paper = lines, true; };
  QTest::mouseClick(&Find<QPushButton>("cmdPrint"), Qt::LeftButton);
  ASSERT_GT(paper.size(), 10U);
  EXPECT_EQ(paper[0], Label("fraFuel").toStdString());
  EXPECT_EQ(paper[1], "Slow Twin");
  EXPECT_NE(std::find(paper.begin(), paper.end(), Label("lblTripFuel").toStdString()), paper.end());
}

TEST(PrintLines, TakesAsManyPagesAsItNeeds) {
  const TemporaryFolder folder;
  const auto pagesOf = [&](std::size_t count) {
    const auto path = folder.Path() / "list.pdf";
    QPdfWriter paper(QString::fromStdString(path.string()));
    EXPECT_TRUE(PrintLines(paper, std::vector<std::string>(count, "Aircraft: Slow Twin")));
    const std::string text = folder.Read("list.pdf");
    const std::size_t at = text.find("/Count ");
    return at == std::string::npos ? 0 : std::stoi(text.substr(at + 7));
  };
  EXPECT_EQ(pagesOf(1), 1);
  EXPECT_EQ(pagesOf(40), 1);
  EXPECT_GT(pagesOf(400), 5);
  QPdfWriter nowhere(QString::fromStdString((folder.Path() / "no" / "list.pdf").string()));
  EXPECT_FALSE(PrintLines(nowhere, {"Aircraft: Slow Twin"}));
}

// The window alone, over a file of two aircraft.
class AircraftWindow : public testing::Test {
 protected:
  AircraftWindow() {
    std::filesystem::create_directory(folder.Path() / "user");
    AircraftRec second = Fuelled();
    second.Number = 5;
    second.Name = "Fast Twin";
    list = {Fuelled(), second};
    WriteAircraftFile(file, list);
    window = std::make_unique<frmAircraft>(file, list, 5, messages);
    window->show();
  }
  template <class Control>
  Control& Find(const QString& name) {
    auto* control = window->findChild<Control*>(name);
    if (control == nullptr) throw std::runtime_error("no control " + name.toStdString());
    return *control;
  }
  void Trigger(const QString& menu) { Find<QAction>(menu).trigger(); }
  QListWidget& List() { return Find<QListWidget>("lstAircraft"); }
  QString Field(const QString& name) { return Find<QLineEdit>("txt" + name).text(); }
  QString Fault(const QString& name) { return Find<QLabel>("txt" + name + "Fault").text(); }
  void Type(const QString& name, const QString& text) {
    auto& field = Find<QLineEdit>("txt" + name);
    field.selectAll();
    QTest::keyClick(&field, Qt::Key_Delete);
    QTest::keyClicks(&field, text);
  }
  void Ok() { QTest::mouseClick(&Find<QPushButton>("cmdOK"), Qt::LeftButton); }

  const TemporaryFolder folder;
  const std::filesystem::path file = folder.Path() / "user" / "aircraft.vlm";
  std::vector<AircraftRec> list;
  HeardMessages messages;
  std::unique_ptr<frmAircraft> window;
};

TEST_F(AircraftWindow, ShowsTheAircraftInUseAndChoosesAnother) {
  EXPECT_EQ(List().count(), 2);
  EXPECT_EQ(List().currentRow(), 1);
  EXPECT_EQ(Field("Name"), "Fast Twin");
  EXPECT_EQ(Field("MaxFuel"), "2000");
  QTest::keyClicks(&Find<QLineEdit>("txtMaxFuel"), "9");
  EXPECT_EQ(Field("MaxFuel"), "2000") << "before it is edited";
  QTest::keyClick(&List(), Qt::Key_Up);
  EXPECT_EQ(Field("Name"), "Slow Twin");
  std::filesystem::remove(file);
  Ok();
  EXPECT_EQ(window->result(), QDialog::Accepted);
  EXPECT_EQ(window->Chosen().Number, 3);
  EXPECT_EQ(ReadAircraftFile(file).aircraft, list) << "the whole file is written anew";
}

TEST_F(AircraftWindow, RefusesWhatDoesNotFlyAndWritesWhatDoes) {
  Trigger("mnuEdit");
  Type("CruiseSpeed", "12x-.4");
  EXPECT_EQ(Field("CruiseSpeed"), "124") << "digits only";
  Type("CruiseSpeed", "0");
  Type("MaxWeight", "50");
  Type("ClimbRate", "29000");
  Type("CruiseFlightLevel", "400");
  Ok();
  EXPECT_EQ(Fault("CruiseSpeed"), "1 to 2500");
  EXPECT_EQ(Fault("EmptyWeight"), "more than the maximum weight");
  EXPECT_EQ(Fault("ClimbRate"), "too steep for the climb speed");
  EXPECT_EQ(Fault("CruiseFlightLevel"), "above the ceiling");
  EXPECT_EQ(Fault("MaxFuel"), "");
  EXPECT_TRUE(window->isVisible());
  Type("CruiseSpeed", "250");
  Type("MaxWeight", "12000");
  Type("ClimbRate", "1500");
  Type("CruiseFlightLevel", "300");
  Type("Name", "Faster, Twin");
  Ok();
  EXPECT_EQ(List().item(1)->text(), "Faster, Twin") << "taken into the list";
  EXPECT_EQ(ReadAircraftFile(file).aircraft, list) << "and not yet into the file";
  Ok();
  const std::vector<AircraftRec> read = ReadAircraftFile(file).aircraft;
  ASSERT_EQ(read.size(), 2U);
  EXPECT_EQ(read[0], list[0]);
  EXPECT_EQ(read[1].Name, "Faster, Twin");
  EXPECT_EQ(read[1].CruiseSpeed, 250);
  EXPECT_EQ(read[1].Number, 5);
  EXPECT_EQ(read[1].ApproachAltitude, 5000);
}

TEST_F(AircraftWindow, AddsAndDeletes) {
  Trigger("mnuNew");
  QTest::keyClick(window.get(), Qt::Key_Escape);
  EXPECT_EQ(List().count(), 2) << "given up";
  EXPECT_TRUE(window->isVisible());
  Trigger("mnuNew");
  Type("Name", "Glider");
  Ok();
  ASSERT_EQ(List().count(), 3);
  EXPECT_EQ(window->Chosen().Number, 1) << "no aircraft has it";
  messages.answer = false;
  Trigger("mnuDelete");
  EXPECT_EQ(messages.texts.back(), "Do you wish to delete the aircraft Glider?");
  EXPECT_EQ(List().count(), 3);
  messages.answer = true;
  for (int i = 0; i < 3; ++i)
    Trigger("mnuDelete");
  EXPECT_EQ(List().count(), 1) << "the last one stays";
  EXPECT_FALSE(Find<QAction>("mnuDelete").isEnabled());
}

TEST_F(AircraftWindow, LosesNothingUnasked) {
  Trigger("mnuDelete");
  messages.answer = false;
  QTest::keyClick(window.get(), Qt::Key_Escape);
  EXPECT_TRUE(window->isVisible());
  // A folder where the file should be cannot be replaced by it.
  std::filesystem::remove(file);
  std::filesystem::create_directories(file / "in the way");
  Ok();
  EXPECT_TRUE(window->isVisible());
  EXPECT_NE(messages.texts.back().find(file.string()), std::string::npos) << messages.texts.back();
  EXPECT_EQ(List().count(), 1) << "the change is still there";
  messages.answer = true;
  QTest::mouseClick(&Find<QPushButton>("cmdCancel"), Qt::LeftButton);
  EXPECT_FALSE(window->isVisible());
  EXPECT_EQ(window->result(), QDialog::Rejected);
}

TEST_F(AircraftWindow, PrintsOneOrAll) {
  std::vector<std::string> paper;
  window->print = [&](const auto& lines) { return paper = lines, true; };
  QTest::keyClick(&List(), Qt::Key_Up);
  Trigger("mnuSelected");
  EXPECT_EQ(paper, AircraftLines({list[0]}));
  Trigger("mnuCurrent");
  EXPECT_EQ(paper, AircraftLines({list[1]}));
  Trigger("mnuAll");
  EXPECT_EQ(paper, AircraftLines(list));
  window->print = [](const auto&) { return false; };
  Trigger("mnuAll");
  EXPECT_EQ(messages.texts.back(), "The list could not be printed.");
}

TEST_F(MapWindow, TheListOfAircraftChangesTheMenuAndThePlan) {
  folder.Write("user/aircraft.vlm", "");
  session.aircraft = session.aircraftList[0] = Fuelled();
  Open().Editor().StartPlan(0, 1);
  const int minutes = session.plan.TotalMinutes;
  QTimer::singleShot(0, [&] {
    auto* list = qobject_cast<frmAircraft*>(QApplication::activeModalWidget());
    ASSERT_NE(list, nullptr);
    list->findChild<QAction*>("mnuNew")->trigger();
    QLineEdit* speed = list->findChild<QLineEdit*>("txtCruiseSpeed");
    speed->selectAll();
    QTest::keyClicks(speed, "480");
    list->accept();
    list->accept();
  });
  Trigger("mnuAircraftList");
  EXPECT_EQ(session.aircraft.CruiseSpeed, 480);
  EXPECT_EQ(session.settings.AIRCRAFT, 1);
  EXPECT_LT(session.plan.TotalMinutes, minutes * 2 / 3);
  EXPECT_TRUE(Find<QAction>("mnuAircraft(1)").isChecked());
  Trigger("mnuAircraft(3)");
  EXPECT_EQ(session.plan.TotalMinutes, minutes);
  EXPECT_EQ(session.settings.AIRCRAFT, 3);
}

}  // namespace
