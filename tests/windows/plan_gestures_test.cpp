// What the pointer does to the plan on the map, and the vertical picture below it.
#include <QContextMenuEvent>
#include <QTableView>

#include "map/switch_settings.h"
#include "tests/windows/map_window.h"
#include "windows/profile_strip.h"

namespace {

class PlanGestures : public MapWindow {
 protected:
  PlanGestures() {
    session.database = DrawnWorld(windowWorld + "vor VVV 1 4.5\n").database;
    Open().Editor().StartPlan(0, 1);
    Trigger("mnuCreateLoAlt");
    Look(0, 5, "mnu400NM");
    Shown();
    painted = 0;
  }

  std::string Codes() {
    std::string codes;
    for (const PlanWaypoint& row : session.plan.rows)
      codes += (codes.empty() ? "" : " ") + row.Code.Text();
    return codes;
  }
  QImage Shown() { return Map().grab().toImage(); }
  QTableView& Table() { return Find<QTableView>("grdWPTable"); }
  ProfileStrip& Strip() { return Find<ProfileStrip>("profileStrip"); }
  QLabel& Label() { return Find<QLabel>("lblPlanDrag"); }

  void Click(QPoint at, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
    QTest::mouseClick(&Map(), Qt::LeftButton, modifiers, at);
  }
  void RightClick(QPoint at) {
    QContextMenuEvent ask(QContextMenuEvent::Mouse, at, Map().mapToGlobal(at));
    QApplication::sendEvent(&Map(), &ask);
  }
  QStringList MenuAt(QPoint at, const QString& choose = {}) {
    RightClick(at);
    auto& menu = Find<QMenu>("mnuMapContext");
    QStringList texts;
    for (const QAction* action : menu.actions())
      texts << action->text().remove('&');
    if (auto* chosen = menu.findChild<QAction*>(choose)) chosen->trigger();
    menu.close();
    QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    return texts;
  }
};

const std::string insertionText =
    "You have to specify an insertion point!\nClick on the table row AFTER which the \nwaypoint is to be "
    "inserted!";

TEST_F(PlanGestures, AWaypointIsPulledToAnotherPlace) {
  ASSERT_EQ(Codes(), "EDDA A B C Z EDDB");
  const FlightPlan before = session.plan;
  const QImage plain = Shown();
  const QPoint from = PixelOf(0, 3);
  QTest::mousePress(&Map(), Qt::LeftButton, Qt::NoModifier, from);
  for (int step = 1; step <= 20; ++step) {
    PointAt(from + QPoint(0, -3 * step));
    Shown();
  }
  EXPECT_TRUE(Label().isVisible());
  EXPECT_TRUE(Label().text().startsWith("N00")) << Label().text().toStdString();
  EXPECT_EQ(Map().cursor().shape(), Qt::ClosedHandCursor);
  EXPECT_NE(Shown(), plain);
  EXPECT_EQ(painted, 0) << "only what hangs on the pointer is drawn";
  EXPECT_EQ(session.plan, before);
  QTest::mouseRelease(&Map(), Qt::LeftButton, Qt::NoModifier, from + QPoint(0, -60));
  EXPECT_EQ(Codes(), "EDDA A WP01 C Z EDDB");
  EXPECT_EQ(session.plan.Row(2).Sym, "Uwp");
  EXPECT_NEAR(session.plan.Row(2).Lon, 3, 0.02);
  EXPECT_GT(session.plan.Row(2).Lat, 0.4);
  EXPECT_FALSE(session.plan.Row(2).HasAirway() || session.plan.Row(3).HasAirway());
  EXPECT_FALSE(Label().isVisible());
  EXPECT_EQ(session.view.MapCenterLon, 5) << "a pull is no drag box";
  Trigger("mnuUndo");
  EXPECT_EQ(Codes(), "EDDA A B C Z EDDB") << "one change";
  EXPECT_TRUE(session.plan.Row(3).HasAirway());
}

TEST_F(PlanGestures, ALegIsPulledOntoANavaid) {
  const QPoint from = PixelOf(0, 4.5F);
  QTest::mousePress(&Map(), Qt::LeftButton, Qt::NoModifier, from);
  PointAt(PixelOf(1, 4.5F) + QPoint(8, 0));
  EXPECT_EQ(Label().text(), "VOR VVV");
  QTest::mouseRelease(&Map(), Qt::LeftButton, Qt::NoModifier, PixelOf(1, 4.5F) + QPoint(8, 0));
  EXPECT_EQ(Codes(), "EDDA A B VVV C Z EDDB");
  EXPECT_EQ(session.plan.Row(3).Lat, 1) << "its place, not the pointer's";
  EXPECT_FALSE(session.plan.Row(4).HasAirway());
  EXPECT_EQ(Table().selectionModel()->selectedRows().value(0).row(), 3);
}

TEST_F(PlanGestures, WhatIsNotPulled) {
  const QPoint from = PixelOf(0, 3);
  QTest::mousePress(&Map(), Qt::LeftButton, Qt::NoModifier, from);
  PointAt(from + QPoint(0, -60));
  QTest::keyClick(&Map(), Qt::Key_Escape);
  EXPECT_FALSE(Label().isVisible());
  QTest::mouseRelease(&Map(), Qt::LeftButton, Qt::NoModifier, from + QPoint(0, -60));
  EXPECT_EQ(Codes(), "EDDA A B C Z EDDB") << "given up";
  EXPECT_EQ(session.view.MapCenterLon, 5);

  DragFrom(from, QPoint(Map().width() + 50, 300));
  EXPECT_EQ(Codes(), "EDDA A B C Z EDDB") << "let go beside the map";

  Trigger("mnuMeasure");
  DragFrom(from, from + QPoint(0, -60));
  EXPECT_EQ(Codes(), "EDDA A B C Z EDDB") << "measured";
  QTest::keyClick(&Map(), Qt::Key_Escape);

  DragFrom(from, from + QPoint(0, -60), Qt::ShiftModifier);
  EXPECT_EQ(Codes(), "EDDA A B C Z EDDB");

  session.plan.Row(2).Kind = RowKind::sid;
  session.plan.Row(1).Kind = RowKind::sid;
  PointAt(from);
  EXPECT_EQ(Map().cursor().shape(), Qt::ForbiddenCursor);
  EXPECT_TRUE(Map().toolTip().startsWith("Part of the SID")) << Map().toolTip().toStdString();
  DragFrom(from, from + QPoint(0, -60));
  EXPECT_EQ(Codes(), "EDDA A B C Z EDDB");
  Look(0, 5, "mnu400NM");
  PointAt(PixelOf(1, 1));
  EXPECT_EQ(Map().cursor().shape(), Qt::CrossCursor);
  EXPECT_EQ(Map().toolTip(), "");
}

TEST_F(PlanGestures, AClickPicksAWaypointAndRecentresElsewhere) {
  Table().clearSelection();
  Click(PixelOf(0, 6) + QPoint(3, 2));
  EXPECT_EQ(session.plan.SelectedRow, 3);
  EXPECT_EQ(Table().selectionModel()->selectedRows().value(0).row(), 3);
  EXPECT_EQ(session.view.MapCenterLon, 5);
  Click(PixelOf(0, 0));
  EXPECT_EQ(Table().selectionModel()->selectedRows().value(0).row(), 0) << "an airport, too";
  EXPECT_EQ(session.view.MapCenterLon, 5);
  Click(PixelOf(0, 7.5F));
  EXPECT_NEAR(session.view.MapCenterLon, 7.5, 0.02) << "on a leg";
  Click(PixelOf(1, 4));
  EXPECT_NEAR(session.view.MapCenterLat, 1, 0.02);
  EXPECT_EQ(Codes(), "EDDA A B C Z EDDB");
}

TEST_F(PlanGestures, ClicksInsertBehindTheSelectedRow) {
  Table().clearSelection();
  Click(PixelOf(1, 4.5F), Qt::ControlModifier);
  EXPECT_EQ(messages.texts, std::vector<std::string>{insertionText});
  EXPECT_EQ(Codes(), "EDDA A B C Z EDDB");
  EXPECT_EQ(session.view.MapCenterLat, 0);

  Table().selectRow(2);
  Click(PixelOf(1, 4.5F) + QPoint(5, 5), Qt::ControlModifier);
  EXPECT_EQ(Codes(), "EDDA A B VVV C Z EDDB");
  QTest::keyClick(window.get(), Qt::Key_I, Qt::ControlModifier);
  EXPECT_TRUE(Find<QToolButton>("cmdInsertWP").isChecked());
  PointAt(PixelOf(1, 1));
  const QImage away = Shown();
  PointAt(PixelOf(1, 4.5F));
  EXPECT_EQ(Label().text(), "Insert VOR VVV");
  EXPECT_NE(Shown(), away) << "what would be taken is ringed";
  Table().clearSelection();
  PointAt(PixelOf(1, 4.4F));
  EXPECT_EQ(Label().text(), "Select the table row to insert behind");
  Table().selectRow(3);
  PointAt(PixelOf(1, 5));
  EXPECT_TRUE(Label().text().startsWith("Insert N0")) << Label().text().toStdString();
  Click(PixelOf(1, 5));
  Click(PixelOf(1, 5.4F));
  EXPECT_EQ(Codes(), "EDDA A B VVV # # C Z EDDB") << "one behind the other";
  EXPECT_EQ(session.plan.Row(5).Sym, "Uwp");
  EXPECT_NEAR(session.plan.Row(5).Lon, 5.4, 0.02);
  RightClick(PixelOf(1, 4.5F) + QPoint(0, -40));
  EXPECT_EQ(Codes(), "EDDA A B VVV # # # C Z EDDB") << "the right button takes the place alone";
  DragFrom(PixelOf(-1, 4), PixelOf(-1.2F, 4.2F));
  EXPECT_EQ(Codes(), "EDDA A B VVV # # # C Z EDDB") << "a drag box is no click";
  QTest::keyClick(&Map(), Qt::Key_Escape);
  EXPECT_FALSE(Find<QAction>("mnuInsertWP").isChecked());
  EXPECT_FALSE(Label().isVisible());
  for (int i = 0; i < 4; ++i)
    Trigger("mnuUndo");
  EXPECT_EQ(Codes(), "EDDA A B C Z EDDB") << "each is a change";

  Table().selectRow(0);
  Click(PixelOf(1, 4.5F), Qt::ControlModifier);
  EXPECT_EQ(Codes(), "EDDA VVV A B C Z EDDB") << "the departure is a row to insert behind";
  Trigger("mnuNewFP");
  EXPECT_FALSE(Find<QAction>("mnuInsertWP").isEnabled());
  Click(PixelOf(1, 4), Qt::ControlModifier);
  EXPECT_EQ(messages.texts.size(), 1u) << "without a plan a click is a click";
}

TEST_F(PlanGestures, TheRightButtonsMenuKnowsThePlan) {
  QStringList texts = MenuAt(PixelOf(0, 3), "mnuDeleteHere");
  EXPECT_TRUE(texts.contains("Select B")) << texts.join(", ").toStdString();
  EXPECT_TRUE(texts.contains("Delete B from the plan"));
  EXPECT_TRUE(texts.contains("Insert Int B here"));
  EXPECT_EQ(Codes(), "EDDA A C Z EDDB");
  texts = MenuAt(PixelOf(0, 0), "mnuSelectHere");
  EXPECT_FALSE(texts.contains("Delete EDDA from the plan"));
  EXPECT_EQ(Table().selectionModel()->selectedRows().value(0).row(), 0);
  MenuAt(PixelOf(1, 4.5F), "mnuInsertHere");
  EXPECT_EQ(Codes(), "EDDA VVV A C Z EDDB");
  MenuAt(PixelOf(1, 1), "mnuInsertPositionHere");
  EXPECT_EQ(Codes(), "EDDA VVV # A C Z EDDB");
  session.plan.MissingWaypoints = true;
  texts = MenuAt(PixelOf(0, 6));
  EXPECT_TRUE(texts.contains("Select C"));
  EXPECT_FALSE(texts.join(", ").contains("Insert") || texts.join(", ").contains("Delete"));
}

TEST_F(PlanGestures, TheVerticalPictureMarksPlacesOnTheMap) {
  ASSERT_TRUE(Strip().isVisible());
  const QImage plain = Shown();
  const QPoint middle(Strip().width() / 2, Strip().height() / 2);
  QTest::mouseMove(&Strip(), middle);
  ASSERT_TRUE(Strip().Marked());
  EXPECT_NEAR(*Strip().Marked(), 300, 30);
  const double marked = *Strip().Marked();
  EXPECT_NE(Shown(), plain);
  EXPECT_EQ(painted, 0);
  QTest::mouseClick(&Strip(), Qt::LeftButton, Qt::NoModifier, middle);
  EXPECT_NEAR(session.view.MapCenterLon, marked / 60, 0.001);
  Shown();
  EXPECT_EQ(painted, 1);
  QEvent leave(QEvent::Leave);
  QApplication::sendEvent(&Strip(), &leave);
  EXPECT_FALSE(Strip().Marked());

  QTest::keyClick(&Strip(), Qt::Key_Right);
  EXPECT_EQ(*Strip().Marked(), 0);
  QTest::keyClick(&Strip(), Qt::Key_Right, Qt::ControlModifier);
  EXPECT_NEAR(*Strip().Marked(), 18, 0.01) << "the next waypoint";
  QTest::keyClick(&Strip(), Qt::Key_Right);
  EXPECT_NEAR(*Strip().Marked(), 24, 0.01);
  QTest::keyClick(&Strip(), Qt::Key_Left, Qt::ControlModifier);
  QTest::keyClick(&Strip(), Qt::Key_Return);
  EXPECT_NEAR(session.view.MapCenterLon, 0.3, 0.001);
  QTest::keyClick(&Strip(), Qt::Key_End);
  Trigger("mnuNewFP");
  EXPECT_FALSE(Strip().isVisible());
  EXPECT_FALSE(Strip().Marked()) << "no mark of a flight that is gone";
}

TEST_F(PlanGestures, TheVerticalPictureIsThePilotsChoice) {
  window->resize(1366, 660);
  QApplication::processEvents();
  EXPECT_FALSE(Strip().isVisible()) << "a low window keeps its room for the map";
  window->resize(1366, 768);
  QApplication::processEvents();
  EXPECT_TRUE(Strip().isVisible());
  QTest::keyClick(window.get(), Qt::Key_F5);
  EXPECT_FALSE(Strip().isVisible());
  window->resize(1600, 1000);
  QApplication::processEvents();
  EXPECT_FALSE(Strip().isVisible()) << "once switched it stays so";
  StoreSwitches(session.switches, session.settings);
  const MapSwitches stored = SwitchesFrom(session.settings);
  EXPECT_TRUE(stored.profileChosen);
  EXPECT_FALSE(stored.mnuProfile);
  const int before = painted;
  for (const int level : {100, 140}) {
    session.plan.CruiseFL = level;
    window->Editor().Change("test", [] {});
  }
  Trigger("mnuProfile");
  EXPECT_TRUE(Strip().isVisible());
  EXPECT_EQ(Strip().Profile().level, 14000);
  Shown();
  EXPECT_LE(painted - before, 3);
}

}  // namespace
