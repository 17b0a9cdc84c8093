// Airports, start and waypoints chosen with real keys and clicks.
#include "windows/frmSelectAP.h"

#include <gtest/gtest.h>

#include <QSignalSpy>

#include "tests/windows/map_window.h"
#include "windows/waypoint_entry.h"

namespace {

// EDDA has a runway and two gates.
class SelectAP : public testing::Test {
 protected:
  SelectAP() {
    AirportRec& airport = world.database.airports[0];
    airport.strCity = std::string_view("Libreville");
    airport.strCountry = std::string_view("Gabon");
    airport.lngElevation = 1230;
    airport.lngRunways = 1;
    RunwayRec& runway = world.database.runways.emplace_back();
    runway.strRwyID = std::string_view("09");
    runway.strRwyIDRecip = std::string_view("27");
    runway.sngHeading = 90;
    runway.intLength = 8000;
    airport.lngParkings = 2;
    for (const int number : {1, 2}) {
      ParkingRec& gate = world.database.parkings.emplace_back();
      gate.lngName = 12;
      gate.lngNumber = number;
    }
    world.database.airports[1].strCountry = std::string_view("Kenya");
  }

  frmSelectAP& Open(const AirportChoice& opening = {}) {
    dialog = std::make_unique<frmSelectAP>(plan, world.database, opening);
    dialog->show();
    QApplication::setActiveWindow(dialog.get());
    QApplication::processEvents();
    return *dialog;
  }

  template <class Control>
  Control& Find(const QString& name) {
    auto* control = dialog->findChild<Control*>(name);
    if (control == nullptr) throw std::runtime_error("no control " + name.toStdString());
    return *control;
  }
  QLineEdit& Text(const QString& name) { return Find<QLineEdit>(name); }
  QString Label(const QString& name) { return Find<QLabel>(name).text(); }
  // To whatever has the keyboard.
  void Type(const QString& keys) { QTest::keyClicks(dialog->focusWidget(), keys); }
  void Press(Qt::Key key) { QTest::keyClick(dialog->focusWidget(), key); }
  void EnterAndType(const QString& field, const QString& keys) {
    Text(field).setFocus();
    Text(field).selectAll();
    Type(keys);
  }
  QString Focus() { return dialog->focusWidget()->objectName(); }
  int Row(const char* code) { return world.Airport(code); }
  void MakePlan() {
    SetDepartureAndDestination(plan, context, Row("EDDA"), Row("EDDB"));
    PlanWaypoint between;
    between.Sym = std::string_view("Fix");
    between.Code = std::string_view("MID");
    between.Lon = 5;
    int after = 0;
    InsertWaypoint(plan, context, after, between, true);
  }

  DrawnWorld world{windowWorld + "airport EDDC 1 9 500\n"};
  AircraftRec aircraft = SlowTwin();
  HeardMessages messages;
  PlanContext context{world.database, aircraft, messages};
  FlightPlan plan;
  std::unique_ptr<frmSelectAP> dialog;
};

TEST_F(SelectAP, CodesTypedOneBehindTheOtherMakeAPlan) {
  Open();
  EXPECT_EQ(Focus(), "txtDepAP");
  EXPECT_FALSE(Find<QPushButton>("cmdOK").isEnabled());
  Type("edda");
  EXPECT_EQ(Label("lblDepName"), "EDDA Airport");
  EXPECT_EQ(Label("lblDepNameDetails"), "Libreville, Gabon  ·  1,230 ft  ·  runway 8,000 ft  ·  var. E 00°");
  EXPECT_FALSE(Find<QPushButton>("cmdOK").isEnabled()) << "there is no destination yet";
  Press(Qt::Key_Return);
  EXPECT_EQ(Focus(), "txtDestAP");
  EXPECT_EQ(dialog->result(), 0);
  Type("EDDB");
  EXPECT_EQ(Label("lblDistance"), "Great circle distance 600 NM, true course 090°");
  EXPECT_EQ(Find<QPushButton>("cmdOK").text(), "&Create plan");
  Press(Qt::Key_Return);
  EXPECT_EQ(dialog->result(), QDialog::Accepted);
  EXPECT_EQ(dialog->Choice().departure, Row("EDDA"));
  EXPECT_EQ(dialog->Choice().destination, Row("EDDB"));
  EXPECT_EQ(dialog->Choice().alternate, -1);
  EXPECT_FALSE(dialog->Choice().start);
}

TEST_F(SelectAP, NamesAreLookedForAndTakenFromTheList) {
  Open();
  Type("libre");
  EXPECT_EQ(Find<AirportList>("lstAirports").Count(), 1);
  EXPECT_EQ(dialog->Choice().departure, -1) << "a name is no choice yet";
  Press(Qt::Key_Tab);
  EXPECT_EQ(Text("txtDepAP").text(), "EDDA") << "leaving the field takes the best";

  EnterAndType("txtDestAP", "airport");
  EXPECT_EQ(Label("lblList"), "Destination: 4 airports");
  Press(Qt::Key_Down);
  Press(Qt::Key_Down);
  Press(Qt::Key_Up);
  const std::int32_t second = Find<AirportList>("lstAirports").Selected();
  Press(Qt::Key_Return);
  EXPECT_EQ(dialog->Choice().destination, second);
  EXPECT_EQ(Focus(), "cmdOK");

  EnterAndType("txtDestAP", "xyz");
  EXPECT_EQ(Label("lblDestNameDetails"), "No airport matches “xyz”");
  EXPECT_EQ(Find<AirportList>("lstAirports").Count(), 0);
  EXPECT_FALSE(Find<QPushButton>("cmdOK").isEnabled());
  Press(Qt::Key_Return);
  EXPECT_EQ(dialog->result(), 0) << "nothing is there to be taken";

  EnterAndType("txtDestAP", "kenya");
  auto& list = Find<AirportList>("lstAirports");
  QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, list.visualRect(list.model()->index(0, 1)).center());
  EXPECT_EQ(dialog->Choice().destination, Row("EDDB"));
  Press(Qt::Key_Escape);
  EXPECT_EQ(dialog->result(), QDialog::Rejected);
}

TEST_F(SelectAP, AnotherAlternateOrStartLeavesTheRoute) {
  MakePlan();
  Open(ChoiceOf(plan, world.database));
  EXPECT_EQ(Label("lblChange"), "The route stays; only start and alternate change");
  EXPECT_EQ(Find<QPushButton>("cmdOK").text(), "&OK");
  EnterAndType("txtAltAP", "eddc");
  EXPECT_TRUE(Label("lblAltNameDetails").endsWith("85 NM from EDDB"))
      << Label("lblAltNameDetails").toStdString();
  auto& start = Find<StartPositionBox>("lstDep");
  start.setFocus();
  EXPECT_EQ(Text("txtAltAP").text(), "EDDC") << "a field that is left shows the code";
  start.lineEdit()->selectAll();
  Type("27");
  Press(Qt::Key_Return);
  EXPECT_EQ(dialog->result(), 0) << "Enter has taken the start";
  ASSERT_TRUE(dialog->Choice().start);
  EXPECT_EQ(dialog->Choice().start->id, "27");
  EXPECT_FALSE(IsNewPlan(dialog->Choice(), plan));
  QTest::mouseClick(&Find<QPushButton>("cmdOK"), Qt::LeftButton);
  ApplyAirports(plan, context, dialog->Choice());
  EXPECT_EQ(plan.RowCount(), 3);

  Open(ChoiceOf(plan, world.database));
  EXPECT_EQ(Text("txtAltAP").text(), "EDDC");
  EXPECT_EQ(Find<StartPositionBox>("lstDep").currentText(), "27  (08000ft)");
  QTest::mouseClick(&Find<QPushButton>("cmdNoAlternate"), Qt::LeftButton);
  EXPECT_EQ(dialog->Choice().alternate, -1);
  EnterAndType("txtAltAP", "nowhere");
  EXPECT_FALSE(Find<QPushButton>("cmdOK").isEnabled()) << "an alternate half typed";
  Text("txtAltAP").clear();
  Type(" ");
  QTest::mouseClick(&Find<QPushButton>("cmdSwap"), Qt::LeftButton);
  EXPECT_EQ(dialog->Choice().departure, Row("EDDB"));
  EXPECT_EQ(dialog->Choice().destination, Row("EDDA"));
  EXPECT_FALSE(dialog->Choice().start) << "the runway was the other airport's";
  EXPECT_EQ(Label("lblChange"), "The new plan replaces the present route");
}

TEST_F(SelectAP, ALocalFlightIsToldQuietly) {
  Open({Row("EDDA"), Row("EDDA"), Row("EDDA"), std::nullopt});
  EXPECT_EQ(Label("lblDistance"), "A local flight: departure and destination are the same");
  EXPECT_TRUE(Find<QPushButton>("cmdOK").isEnabled());
  EXPECT_TRUE(Label("lblAltNameDetails").endsWith("the destination itself"));
  Open({Row("EDDA"), -1, -1, std::nullopt});
  EXPECT_EQ(Focus(), "txtDestAP") << "the keyboard begins where something is missing";
}

// ---- the start positions alone

TEST_F(SelectAP, StartsAreSearchedByTyping) {
  StartPositionBox box;
  box.ShowAirport(world.database, Row("EDDA"));
  QSignalSpy chosen(&box, &StartPositionBox::StartChosen);
  const struct {
    const char* typed;
    const char* id;  // null: the airport's own position
    bool told;
  } cases[] = {{"27", "27", true},         {"a 2", "Gate A 2", true},
               {"gate", "Gate A 1", true}, {"zzz", "Gate A 1", false},
               {"9", "09", true},          {"09  (08000ft)", "09", false},
               {"", nullptr, true},        {"reference", nullptr, false}};
  for (const auto& c : cases) {
    chosen.clear();
    box.lineEdit()->selectAll();
    QTest::keyClick(&box, Qt::Key_Backspace);
    QTest::keyClicks(&box, c.typed);
    QTest::keyClick(&box, Qt::Key_Return);
    EXPECT_EQ(box.Chosen() == nullptr, c.id == nullptr) << c.typed;
    if (box.Chosen() != nullptr && c.id != nullptr) {
      EXPECT_EQ(box.Chosen()->id, c.id) << c.typed;
    }
    EXPECT_EQ(chosen.count(), c.told ? 1 : 0) << c.typed;
  }
  QTest::keyClick(&box, Qt::Key_Down);
  ASSERT_TRUE(box.Chosen());
  EXPECT_EQ(box.Chosen()->id, "09") << "the arrow passes over the line between the groups";
  QTest::keyClicks(&box, "xx");
  QTest::keyClick(&box, Qt::Key_Escape);
  EXPECT_EQ(box.currentText(), "09  (08000ft)");

  box.ShowAirport(world.database, Row("EDDB"));
  EXPECT_FALSE(box.isEnabled()) << "no runway, no gate";
  EXPECT_EQ(box.currentText(), "Airport reference point");
  SetDepartureAndDestination(plan, context, Row("EDDA"), Row("EDDB"));
  plan.DepartureType = "Gate";
  plan.DepartureID = "Gate A 2";
  chosen.clear();
  box.ShowPlan(world.database, plan);
  EXPECT_EQ(box.currentText(), "Gate A 2");
  EXPECT_EQ(chosen.count(), 0);
}

// ---- a waypoint by hand

TEST_F(SelectAP, AWaypointIsPickedWithKeysOrAClick) {
  MakePlan();
  WaypointEntry entry(plan, world.database);
  entry.show();
  QSignalSpy picked(&entry, &WaypointEntry::WaypointPicked);
  auto* text = entry.findChild<QLineEdit*>("txtManWP");
  auto* list = entry.findChild<QTableView*>("lstWP");
  ASSERT_TRUE(text && list);
  EXPECT_FALSE(list->isVisible());
  const auto code = [&](int row) { return list->model()->index(row, FoundWaypointModel::code).data(); };
  const auto lastPicked = [&] { return picked.last().first().value<PlanWaypoint>().Code.Text(); };

  QTest::keyClicks(text, "b");
  ASSERT_EQ(list->model()->rowCount(), 1);
  EXPECT_TRUE(list->isVisible());
  EXPECT_EQ(list->model()->index(0, FoundWaypointModel::distance).data(), "120 NM");
  EXPECT_EQ(list->model()->index(0, FoundWaypointModel::course).data(), "270°/270°");
  QTest::keyClick(text, Qt::Key_Return);
  ASSERT_EQ(picked.count(), 1);
  EXPECT_EQ(lastPicked(), "B");
  EXPECT_EQ(text->text(), "") << "ready for the next";
  EXPECT_FALSE(list->isVisible());

  for (const char* ident : {"BA", "BB", "BC"}) {
    VorRec& vor = world.database.vors.emplace_back();
    vor.strCode = std::string_view(ident);
    vor.sngFrequency = 113.6F;
    vor.sngLon = 5;
  }
  QTest::keyClicks(text, "b");
  EXPECT_EQ(list->model()->rowCount(), 4);
  EXPECT_EQ(code(0), "B");
  QTest::keyClick(text, Qt::Key_Down);
  QTest::keyClick(text, Qt::Key_Down);
  QTest::keyClick(text, Qt::Key_Return);
  EXPECT_EQ(lastPicked(), "BB");
  QTest::keyClicks(text, "b");
  const QModelIndex third = list->model()->index(3, FoundWaypointModel::name);
  QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, list->visualRect(third).center());
  EXPECT_EQ(lastPicked(), "BC");

  QTest::keyClicks(text, "n1 e2");
  QTest::keyClick(text, Qt::Key_Return);
  EXPECT_EQ(lastPicked(), "WP01");
  const int before = static_cast<int>(picked.count());
  QTest::keyClicks(text, "nothing");
  QTest::keyClick(text, Qt::Key_Return);
  EXPECT_EQ(picked.count(), before);
  EXPECT_EQ(text->text(), "nothing");
  QTest::keyClick(text, Qt::Key_Escape);
  EXPECT_EQ(text->text(), "");
}

// ---- in the main window

class AirportsInTheWindow : public MapWindow {
 protected:
  void ChooseOnMap(float lon, const QString& role) {
    Look(0, lon, "mnu50NM");
    const QPoint pixel = PixelOf(0, lon);
    QContextMenuEvent ask(QContextMenuEvent::Mouse, pixel, Map().mapToGlobal(pixel));
    QApplication::sendEvent(&Map(), &ask);
    auto& menu = Find<QMenu>("mnuMapContext");
    auto* roles = menu.findChild<QMenu*>("mnuAirportRole");
    ASSERT_TRUE(roles);
    roles->findChild<QAction*>(role)->trigger();
    menu.close();
    QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  }

  // Types into the dialog as soon as it is open; one that is never answered is closed.
  void WhenItOpens(std::function<void(frmSelectAP&)> hands) {
    answer = std::move(hands);
    timer.setInterval(5);
    timer.start();
  }

  AirportsInTheWindow() {
    QObject::connect(&timer, &QTimer::timeout, [this] {
      auto* dialog = qobject_cast<frmSelectAP*>(QApplication::activeModalWidget());
      if (dialog == nullptr) return;
      timer.stop();
      ++opened;
      answer(*dialog);
      if (dialog->isVisible()) dialog->reject();
    });
  }

  QTimer timer;
  std::function<void(frmSelectAP&)> answer;
  int opened = 0;
};

TEST_F(AirportsInTheWindow, AreChosenInTheDialogAndOnTheMap) {
  Open();
  WhenItOpens([](frmSelectAP& dialog) {
    EXPECT_EQ(dialog.findChild<QLineEdit*>("txtDepAP")->text(), "EDDA");
    auto* destination = dialog.findChild<QLineEdit*>("txtDestAP");
    QTest::keyClicks(destination, "eddb");
    QTest::keyClick(destination, Qt::Key_Return);
  });
  ChooseOnMap(0, "mnuDeparture");
  ASSERT_EQ(opened, 1) << "the destination is missing";
  ASSERT_EQ(session.plan.RowCount(), 2);

  ChooseOnMap(10, "mnuAlternate");
  EXPECT_EQ(opened, 1) << "nothing is lost: nothing is asked";
  EXPECT_EQ(session.plan.AlternateIndex, 1);
  Trigger("mnuUndo");
  EXPECT_EQ(session.plan.AlternateIndex, -1);
  Trigger("mnuRedo");
  EXPECT_EQ(session.plan.AlternateIndex, 1);

  Trigger("mnuCreateLoAlt");
  const int rows = session.plan.RowCount();
  ASSERT_GT(rows, 2);
  WhenItOpens([](frmSelectAP& dialog) { dialog.reject(); });
  ChooseOnMap(0, "mnuDestination");
  EXPECT_EQ(opened, 2) << "the route would be lost";
  EXPECT_EQ(session.plan.RowCount(), rows);
  WhenItOpens([](frmSelectAP& dialog) { dialog.accept(); });
  Trigger("mnuSelectAP");
  EXPECT_EQ(opened, 3);
  EXPECT_EQ(session.plan.RowCount(), rows) << "the same airports leave the route";
}

TEST_F(AirportsInTheWindow, StartAndWaypointsAreChosenInThePanel) {
  RunwayRec& runway = session.database.runways.emplace_back();
  runway.strRwyID = std::string_view("09");
  runway.strRwyIDRecip = std::string_view("27");
  runway.sngHeading = 90;
  runway.intLength = 12000;
  session.database.airports[0].lngRunways = 1;
  Open().Editor().StartPlan(0, 1);
  auto& start = Find<StartPositionBox>("lstDep");
  QTest::keyClicks(&start, "27");
  start.lineEdit()->setText("27");
  QTest::keyClick(&start, Qt::Key_Return);
  EXPECT_EQ(session.plan.DepartureID, "27");
  EXPECT_GT(session.plan.Row(0).Lon, 0.01F);

  auto& text = Find<QLineEdit>("txtManWP");
  for (const char* ident : {"b", "c"}) {
    QTest::keyClicks(&text, ident);
    QTest::keyClick(&text, Qt::Key_Return);
  }
  ASSERT_EQ(session.plan.RowCount(), 4);
  EXPECT_EQ(session.plan.Row(1).Code, "B");
  EXPECT_EQ(session.plan.Row(2).Code, "C") << "one goes behind the other";
  for (int changes = 0; changes < 3; ++changes)
    Trigger("mnuUndo");
  EXPECT_EQ(session.plan.RowCount(), 2);
  EXPECT_EQ(start.currentText(), "Airport reference point");
}

}  // namespace
