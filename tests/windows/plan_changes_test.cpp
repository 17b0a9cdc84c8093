// What the pilot does to the plan in the main window: routes, route strings,
// rows deleted, and all of it undone.
#include <QLineEdit>
#include <QTableView>

#include "tests/windows/map_window.h"

namespace {

class PlanChanges : public MapWindow {
 protected:
  std::string Codes() {
    std::string codes;
    for (const PlanWaypoint& row : session.plan.rows)
      codes += (codes.empty() ? "" : " ") + row.Code.Text();
    return codes;
  }
  QLineEdit& Route() { return Find<QLineEdit>("txtRoute"); }
  void Type(const QString& text) {
    Trigger("mnuRoute");
    QTest::keyClicks(&Route(), text);
  }
};

TEST_F(PlanChanges, ARouteStringBecomesThePlan) {
  Open();
  EXPECT_FALSE(Find<QToolButton>("cmdRoute").isEnabled());
  Type("edda-a");
  EXPECT_EQ(Route().text(), "EDDAA") << "capitals, and no punctuation";
  EXPECT_FALSE(Find<QToolButton>("cmdRoute").isEnabled()) << "too short for two airports";
  Type("edda a v1 c eddb");
  EXPECT_EQ(Route().text(), "EDDA A V1 C EDDB") << "what was selected is typed over";
  Press("cmdRoute");
  EXPECT_EQ(Codes(), "EDDA A B C EDDB");
  EXPECT_EQ(Route().text(), "EDDA A V1 C EDDB");
  Type("edda eddb");
  QTest::keyClick(&Route(), Qt::Key_Return);
  EXPECT_EQ(Codes(), "EDDA EDDB");
  EXPECT_TRUE(messages.texts.empty());
  EXPECT_EQ(pointer.depth, 0);
}

TEST_F(PlanChanges, AWrongRouteStringIsToldAndThePlanBeforeComesBack) {
  Open().Editor().StartPlan(0, 1);
  Trigger("mnuCreateLoAlt");
  const std::string before = Codes();
  Type("xxxx a eddb");
  QTest::keyClick(&Route(), Qt::Key_Return);
  EXPECT_EQ(messages.texts.back(), "Invalid String! Departure airport missing!");
  EXPECT_EQ(Codes(), "");
  Trigger("mnuUndo");
  EXPECT_EQ(Codes(), before);
  EXPECT_EQ(Route().text(), "EDDA A V1 C V2 Z EDDB");
}

TEST_F(PlanChanges, TheNavaidBuilderTakesWhatTheMapShows) {
  Open();
  EXPECT_FALSE(Find<QAction>("mnuCreateNavaid").isEnabled());
  window->Editor().StartPlan(0, 1);
  Press("cmdCreateFP");
  EXPECT_EQ(session.plan.RouteMethod, RouteGenerator::navaid);
  for (const char* kind : {"mnuVOR", "mnuNDB", "mnuIntersection"})
    Find<QAction>(kind).setChecked(false);
  Press("cmdCreateFP");
  EXPECT_EQ(messages.texts.back(),
            "You need to have at least one of these buttons selected:\n          VOR, NDB, Intersection");
}

TEST_F(PlanChanges, RowsAreDeletedByTheirKey) {
  Open().Editor().StartPlan(0, 1);
  Trigger("mnuCreateLoAlt");
  ASSERT_EQ(Codes(), "EDDA A B C Z EDDB");
  auto& table = Find<QTableView>("grdWPTable");
  table.selectRow(2);
  QTest::keyClick(&table, Qt::Key_Delete);
  EXPECT_EQ(Codes(), "EDDA A C Z EDDB");
  for (const int airport : {0, 4}) {
    table.selectRow(airport);
    QTest::keyClick(&table, Qt::Key_Delete);
    EXPECT_EQ(Codes(), "EDDA A C Z EDDB") << "airports stay";
  }
  Trigger("mnuDeleteEnrouteWPs");
  EXPECT_EQ(Codes(), "EDDA EDDB");
  EXPECT_EQ(messages.texts.back(), "Are you sure you want to delete all enroute waypoints?");
  EXPECT_EQ(Route().text(), "");
  EXPECT_FALSE(Find<QToolButton>("cmdRoute").isEnabled());
  Trigger("mnuDeleteEnrouteWPs");
  EXPECT_EQ(messages.texts.back(), "There is no flight plan with waypoints to be deleted!");
}

TEST_F(PlanChanges, EverythingIsUndoneAndRedone) {
  Open();
  EXPECT_FALSE(Find<QAction>("mnuUndo").isEnabled());
  window->Editor().StartPlan(0, 1);
  Trigger("mnuCreateHiAlt");
  const std::string high = Codes();
  auto& table = Find<QTableView>("grdWPTable");
  table.selectRow(1);
  QTest::keyClick(&table, Qt::Key_Delete);
  Trigger("mnuNewFP");
  EXPECT_EQ(Codes(), "");
  Trigger("mnuUndo");
  Trigger("mnuUndo");
  EXPECT_EQ(Codes(), high);
  Trigger("mnuUndo");
  EXPECT_EQ(Codes(), "EDDA EDDB");
  EXPECT_TRUE(Find<QAction>("mnuRedo").isEnabled());
  Trigger("mnuRedo");
  EXPECT_EQ(Codes(), high);
  for (int i = 0; i < 5; ++i)
    Trigger("mnuUndo");
  EXPECT_EQ(Codes(), "");
  EXPECT_FALSE(Find<QAction>("mnuUndo").isEnabled());
}

TEST_F(PlanChanges, AnotherAircraftIsNoChangeToUndo) {
  AircraftRec fast = SlowTwin();
  fast.Number = 4;
  fast.CruiseSpeed = 480;
  session.aircraftList.push_back(fast);
  Open().Editor().StartPlan(0, 1);
  Trigger("mnuCreateLoAlt");
  const int slowMinutes = session.plan.TotalMinutes;
  Trigger("mnuAircraft(4)");
  EXPECT_LT(session.plan.TotalMinutes, slowMinutes);
  Trigger("mnuUndo");
  EXPECT_EQ(Codes(), "EDDA EDDB") << "the route is what was undone";
  Trigger("mnuRedo");
  EXPECT_LT(session.plan.TotalMinutes, slowMinutes) << "the times are those of the aircraft that flies now";
}

}  // namespace
