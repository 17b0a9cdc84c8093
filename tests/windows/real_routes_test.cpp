// Whole flights planned in the window over the bundled world, as a pilot plans
// them: airports typed, a builder's button pressed, the plan saved and read back.
#include <QLineEdit>
#include <QTableView>
#include <fstream>
#include <sstream>

#include "dbmanager/build_database.h"
#include "flightplan/aircraft_file.h"
#include "flightplan/plan_legs.h"
#include "flightplan/plan_reader.h"
#include "navdata/geodesy.h"
#include "startup/world_load.h"
#include "tests/windows/map_window.h"

namespace {

class RealRoutes : public MapWindow {
 protected:
  // Builds the world that every installation has.
  void OpenWorld() {
    BuildOptions options;
    options.home = folder.Path();
    options.dataFolder = std::filesystem::path(VELMORA_SOURCE_DIR) / "data";
    BuildReport report;
    ASSERT_TRUE(BuildDatabase(
        options, [](std::string_view, double) { return true; }, report))
        << report.failure;
    WorldLoad load = LoadWorld(session.home);
    ASSERT_EQ(load.error, "");
    session.database = std::move(load.database);
    session.aircraftList = ReadAircraftFile(session.home.Resolve(aircraftFileName)).aircraft;
    Open();
    // What the map looks like is not asked here.
    Map().drawPicture = [](DrawSurface&) {};
    ChooseFile(PlanFile());
  }

  std::string PlanFile() const { return (folder.Path() / "saved.pln").string(); }

  void Fly(int aircraft) {
    session.aircraft = ReadAircraft(session.aircraftList, aircraft).value();
    Trigger(QString("mnuAircraft(%1)").arg(aircraft));
  }

  void ChooseAirports(const QString& departure, const QString& destination) {
    QTimer::singleShot(0, window.get(), [&] {
      QWidget* dialog = QApplication::activeModalWidget();
      ASSERT_NE(dialog, nullptr);
      for (const QString& code : {departure, destination}) {
        QTest::keyClicks(dialog->focusWidget(), code);
        QTest::keyClick(dialog->focusWidget(), Qt::Key_Return);
      }
    });
    Press("cmdSelectAP");
  }

  std::string Codes(const FlightPlan& plan) {
    std::string codes;
    for (const PlanWaypoint& row : plan.rows)
      codes += row.Code.Text() + " ";
    return codes;
  }

  // The plan's figures follow from its rows, and the window shows them.
  void ExpectTrueFigures() {
    const FlightPlan& plan = session.plan;
    double distance = 0;
    for (int i = 1; i < plan.RowCount(); ++i) {
      const PlanWaypoint& row = plan.Row(i);
      const PlanWaypoint& before = plan.Row(i - 1);
      EXPECT_FLOAT_EQ(row.Dist, GreatCircleDistance(before.Lat, before.Lon, row.Lat, row.Lon))
          << row.Code.View();
      distance += row.Dist;
    }
    EXPECT_NEAR(plan.TotalDistance, distance, plan.RowCount() / 2.0);
    EXPECT_NEAR(plan.TotalMinutes, ShowEta(plan).back(), 1);
    EXPECT_EQ(Find<QLabel>("lblFlightDistance").text().toInt(), plan.TotalDistance);
    EXPECT_GE(Find<QTableView>("grdWPTable").model()->rowCount(), plan.RowCount());
  }

  void ExpectItComesBackFromItsFile() {
    Trigger("mnuSaveFPAs");
    std::ifstream file(PlanFile(), std::ios::binary);
    std::stringstream text;
    text << file.rdbuf();
    FlightPlan read;
    ASSERT_TRUE(ReadPlan(read, window->Editor().Context(), text.str()).valid);
    EXPECT_FALSE(read.MissingWaypoints);
    EXPECT_EQ(Codes(read), Codes(session.plan));
    EXPECT_EQ(read.TotalMinutes, session.plan.TotalMinutes);
  }
};

TEST_F(RealRoutes, ArePlannedWithTheButtons) {
  OpenWorld();
  if (HasFatalFailure()) return;
  struct Route {
    const char* departure;
    const char* destination;
    int aircraft;
    const char* button;
    RouteKind kind;
    int fewestRows;
    double longestDetour;  // of the great circle
    int oddThousands;      // of the level
  };
  const Route routes[] = {
      {"EDDF", "KJFK", 12, "cmdHiAlt", RouteKind::highAltitude, 20, 1.15, 0},
      {"EGLL", "LFPG", 8, "cmdLoAlt", RouteKind::lowAltitude, 4, 1.5, 1},
      {"YSSY", "NZAA", 12, "cmdHiAlt", RouteKind::highAltitude, 4, 1.15, 1},
      {"EDFE", "EDDN", 1, "cmdCreateFP", RouteKind::navaid, 4, 1.1, 1},
  };
  for (const Route& route : routes) {
    SCOPED_TRACE(std::string(route.departure) + " to " + route.destination);
    Trigger("mnuNewFP");
    messages.texts.clear();
    Fly(route.aircraft);
    ChooseAirports(route.departure, route.destination);
    ASSERT_EQ(Codes(session.plan), std::string(route.departure) + " " + route.destination + " ");
    const double direct = session.plan.Row(1).Dist;
    Press(route.button);
    const FlightPlan& plan = session.plan;
    EXPECT_TRUE(messages.texts.empty()) << messages.texts.back();
    EXPECT_EQ(plan.RouteType, route.kind);
    EXPECT_GE(plan.RowCount(), route.fewestRows);
    EXPECT_LE(plan.TotalDistance, direct * route.longestDetour);
    EXPECT_EQ(plan.CruiseFL / 10 % 2, route.oddThousands) << plan.CruiseFL;
    ExpectTrueFigures();
    ExpectItComesBackFromItsFile();
    EXPECT_EQ(pointer.depth, 0);
  }

  // A short hop by hand: two navaids typed, the second behind the first.
  Trigger("mnuNewFP");
  Fly(1);
  ChooseAirports("EDFE", "EDFM");
  for (const char* ident : {"CHA", "NKR"}) {
    Trigger("mnuManWP");
    QTest::keyClicks(&Find<QLineEdit>("txtManWP"), ident);
    QTest::keyClick(&Find<QLineEdit>("txtManWP"), Qt::Key_Return);
  }
  EXPECT_EQ(Codes(session.plan), "EDFE CHA NKR EDFM ");
  ExpectTrueFigures();
  ExpectItComesBackFromItsFile();
}

}  // namespace
