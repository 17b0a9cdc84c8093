// The plan's panel: the table with its layouts, its row of the alternate, its
// keys, and the figures around it.
#include <QLineEdit>
#include <QScrollBar>
#include <QTableView>

#include "flightplan/plan_rows.h"
#include "tests/windows/map_window.h"

namespace {

class PlanPanel : public MapWindow {
 protected:
  PlanPanel() { session.settings.FUEL = 2; }

  void OpenPlan() {
    Open().Editor().StartPlan(0, 1);
    Trigger("mnuCreateLoAlt");
    QApplication::processEvents();
    ASSERT_EQ(session.plan.RowCount(), 6);
  }
  void GiveAlternate() {
    window->Editor().Change("alternate (",
                            [this] { SetAlternate(session.plan, window->Editor().Context(), 2); });
  }
  QTableView& Table() { return Find<QTableView>("grdWPTable"); }
  QString Cell(int row, LegColumn column) {
    return Table().model()->index(row, static_cast<int>(column)).data().toString();
  }
  QString Label(const QString& name) { return Find<QLabel>(name).text(); }
  void ClickRow(int row) {
    QTest::mouseClick(Table().viewport(), Qt::LeftButton, {},
                      Table().visualRect(Table().model()->index(row, 1)).center());
  }
  void Key(int key) { QTest::keyClick(&Table(), static_cast<Qt::Key>(key)); }
};

TEST_F(PlanPanel, TheExtendedLayoutHasTheColumnsOfTheFlight) {
  OpenPlan();
  const int normal = window->findChild<QFrame*>("pnlFlightplan")->width();
  for (int column = 0; column < legColumns; ++column)
    EXPECT_EQ(Table().isColumnHidden(column), column >= 7) << column;
  Trigger("mnuExtTable");
  QApplication::processEvents();
  for (int column = 0; column < legColumns; ++column)
    EXPECT_FALSE(Table().isColumnHidden(column)) << column;
  EXPECT_GT(window->findChild<QFrame*>("pnlFlightplan")->width(), normal + 200);
  EXPECT_EQ(Table().model()->headerData(10, Qt::Horizontal).toString(), "Fuel (kg)");
  EXPECT_FALSE(Table().horizontalScrollBar()->isVisible());
  window->Editor().TakeRoute("EDDA A EDDB");
  EXPECT_FALSE(Find<QAction>("mnuExtTable").isChecked()) << "a route string's plan has the normal layout";
  EXPECT_FALSE(Find<QAction>("mnuExtTable").isEnabled());
  EXPECT_TRUE(Table().isColumnHidden(7));
}

TEST_F(PlanPanel, NoCellIsCutButNames) {
  OpenPlan();
  Trigger("mnuExtTable");
  Trigger("mnuShowCoords");
  session.plan.Row(1).Code = "MUMMO";
  for (PlanWaypoint& row : session.plan.rows) {
    row.Lon = -100.5f;
    row.Dist = 3999;
    row.Freq = 112.45f;
  }
  FillWPTableWithNavLog(session.navLog, session.plan, 1, 41000, 512, 600, 100000);
  QApplication::processEvents();
  const QFontMetrics font = Table().fontMetrics();
  for (int column = 0; column < legColumns; ++column) {
    const int needed = font.horizontalAdvance(Cell(1, static_cast<LegColumn>(column))) + 10;
    EXPECT_LE(needed, Table().columnWidth(column)) << column;
  }
}

TEST_F(PlanPanel, CoordinatesTakeTheNamesPlace) {
  OpenPlan();
  EXPECT_EQ(Cell(2, LegColumn::name), "B (V1 60-200)");
  Trigger("mnuShowCoords");
  EXPECT_EQ(Cell(2, LegColumn::name), "N00°00.0000' E003°00.0000'");
  Trigger("mnuShowCoords");
  EXPECT_EQ(Cell(2, LegColumn::name), "B (V1 60-200)");
}

TEST_F(PlanPanel, KeysAndClicksSelectTheInsertionPoint) {
  OpenPlan();
  ClickRow(2);
  EXPECT_EQ(session.plan.SelectedRow, 2);
  EXPECT_TRUE(Label("lblHint").contains("behind B"));
  Key(Qt::Key_Down);
  EXPECT_EQ(session.plan.SelectedRow, 3);
  Key(Qt::Key_Delete);
  EXPECT_EQ(session.plan.Row(3).Code.Text(), "Z");
  EXPECT_EQ(session.plan.SelectedRow, 2);
  Key(Qt::Key_Up);
  EXPECT_EQ(session.plan.SelectedRow, 1) << "the keys go on from the selected row";
  Key(Qt::Key_Escape);
  EXPECT_EQ(session.plan.SelectedRow, 0);
  EXPECT_FALSE(Table().selectionModel()->hasSelection());
  ClickRow(0);
  EXPECT_EQ(session.plan.SelectedRow, 0);
  EXPECT_TRUE(Label("lblHint").contains("everything"));
}

TEST_F(PlanPanel, DoubleClickAndEnterBringTheMapToTheRow) {
  OpenPlan();
  ClickRow(3);
  QTest::mouseDClick(Table().viewport(), Qt::LeftButton, {},
                     Table().visualRect(Table().model()->index(3, 1)).center());
  EXPECT_FLOAT_EQ(session.view.MapCenterLon, 6);
  Key(Qt::Key_Up);
  Key(Qt::Key_Return);
  EXPECT_FLOAT_EQ(session.view.MapCenterLon, 3);
}

TEST_F(PlanPanel, TheAlternatesRowAsksToReplaceTheDestination) {
  OpenPlan();
  GiveAlternate();
  ASSERT_EQ(Table().model()->rowCount(), 7);
  EXPECT_EQ(Cell(6, LegColumn::name), "Alternate: AFIL Airport");
  messages.answer = false;
  ClickRow(6);
  EXPECT_EQ(messages.texts.back(), "Do you wish to replace arrival by alternate airport?");
  EXPECT_EQ(session.plan.SelectedRow, 0) << "nothing is inserted behind the alternate";
  EXPECT_EQ(session.plan.DestinationIndex, 1);
  Key(Qt::Key_Delete);
  EXPECT_EQ(session.plan.RowCount(), 6);
  messages.answer = true;
  Key(Qt::Key_Return);
  EXPECT_EQ(session.plan.DestinationIndex, 2);
  EXPECT_EQ(Table().model()->rowCount(), 6);
  EXPECT_EQ(Label("lblPlanTitle"), "EDDA  →  AFIL");
  Trigger("mnuUndo");
  EXPECT_EQ(session.plan.DestinationIndex, 1);
  EXPECT_EQ(Table().model()->rowCount(), 7);
}

TEST_F(PlanPanel, TheLevelIsSteppedByButtonsAndKeys) {
  Open();
  EXPECT_FALSE(Find<QAction>("mnuLevelUp").isEnabled());
  window->Editor().StartPlan(0, 1);
  const int level = session.plan.CruiseFL;
  const auto buttons = Find<QFrame>("updnFL").findChildren<QToolButton*>();
  ASSERT_EQ(buttons.size(), 2);
  QTest::mouseClick(buttons.front(), Qt::LeftButton);
  EXPECT_EQ(session.plan.CruiseFL, level - 20);
  EXPECT_EQ(Label("lblFL"), QString::number(level - 20));
  QTest::mouseClick(buttons.back(), Qt::LeftButton);
  EXPECT_EQ(session.plan.CruiseFL, level);
  QTest::keyClick(window.get(), Qt::Key_Down, Qt::ControlModifier);
  EXPECT_EQ(session.plan.CruiseFL, level - 20);
  QTest::keyClick(&Table(), Qt::Key_Up, Qt::ControlModifier);
  EXPECT_EQ(session.plan.CruiseFL, level) << "with the keyboard in the table too";
}

TEST_F(PlanPanel, FiguresShowThePlanAndAreEmptiedWithIt) {
  Open();
  const auto figures = [this] {
    QStringList texts;
    for (const char* name : {"lblFlightDistance", "lblETE", "lblFL", "lblCruiseSpeed", "lblSID", "lblSTAR"})
      texts << Label(name);
    return texts.join("|");
  };
  EXPECT_EQ(figures(), "00000|00:00|000|000||");
  window->Editor().StartPlan(0, 1);
  EXPECT_EQ(figures(), "600|02:38|250|240||");
  EXPECT_EQ(Label("lblCurrentAC"), "Slow Twin");
  window->Editor().Change("sid (", [this] { session.plan.SidName = "SOBRA1"; });
  EXPECT_EQ(Label("lblSID"), "SOBRA1");
  EXPECT_TRUE(Find<QLabel>("lblSIDNone").isHidden());
  EXPECT_FALSE(Find<QLabel>("lblSTARNone").isHidden());
  Trigger("mnuCreateLoAlt");
  Trigger("mnuDeleteEnrouteWPs");
  EXPECT_EQ(figures(), "00000|00:00|000|240||");
  Trigger("mnuNewFP");
  EXPECT_EQ(figures(), "00000|00:00|000|000||");
}

TEST_F(PlanPanel, APlanThatCannotBeChangedIsOnlyShown) {
  OpenPlan();
  GiveAlternate();
  window->Editor().Change("missing (", [this] { session.plan.MissingWaypoints = true; });
  ClickRow(2);
  Key(Qt::Key_Delete);
  EXPECT_EQ(session.plan.RowCount(), 6);
  ClickRow(6);
  EXPECT_TRUE(messages.texts.empty());
  EXPECT_TRUE(Label("lblHint").contains("not changed or saved"));
}

TEST_F(PlanPanel, AWaypointTypedGoesBehindTheSelectedRow) {
  OpenPlan();
  ClickRow(2);
  Trigger("mnuManWP");
  auto& entry = Find<QLineEdit>("txtManWP");
  QTest::keyClicks(&entry, "0.5,4");
  QTest::keyClick(&entry, Qt::Key_Return);
  ASSERT_EQ(session.plan.RowCount(), 7);
  EXPECT_FLOAT_EQ(session.plan.Row(3).Lon, 4);
  EXPECT_EQ(session.plan.SelectedRow, 3);
  EXPECT_EQ(Cell(4, LegColumn::code), "C");
}

TEST_F(PlanPanel, TheWaypointFieldIsReachedFromEverywhere) {
  Open();
  Trigger("mnuManWP");
  EXPECT_EQ(messages.texts.back(),
            "Select the departure and destination airports first by pressing the button <Select Airport>!");
  OpenPlan();
  Trigger("mnuShowPlan");
  EXPECT_FALSE(Find<QLineEdit>("txtManWP").isVisible());
  Trigger("mnuManWP");
  EXPECT_TRUE(Find<QLineEdit>("txtManWP").isVisible());
}

TEST_F(PlanPanel, TheStartIsChosenBesideThePlan) {
  AirportRec& airport = session.database.airports[0];
  airport.lngRunways = 1;
  airport.firstRunway = static_cast<std::uint32_t>(session.database.runways.size());
  RunwayRec& runway = session.database.runways.emplace_back();
  runway.strRwyID = std::string_view("09");
  runway.strRwyIDRecip = std::string_view("27");
  runway.intLength = 6000;
  OpenPlan();
  auto& lstDep = Find<StartPositionBox>("lstDep");
  ASSERT_EQ(lstDep.Starts().size(), 2u);
  lstDep.Select(0);
  Q_EMIT lstDep.StartChosen();
  EXPECT_EQ(session.plan.DepartureID, "09");
  Trigger("mnuUndo");
  EXPECT_EQ(session.plan.DepartureID, "");
  EXPECT_EQ(lstDep.Chosen(), nullptr);
}

TEST_F(PlanPanel, AChangeIsToldToTheTableOnce) {
  OpenPlan();
  int resets = 0;
  int changes = 0;
  QObject::connect(Table().model(), &QAbstractItemModel::modelReset, window.get(), [&] { ++resets; });
  QObject::connect(Table().model(), &QAbstractItemModel::dataChanged, window.get(), [&] { ++changes; });
  ClickRow(2);
  EXPECT_EQ(resets + changes, 0);
  window->Editor().StepLevel(false);
  EXPECT_EQ(resets, 0) << "the same rows";
  EXPECT_EQ(changes, 1);
  Key(Qt::Key_Delete);
  EXPECT_EQ(resets, 1);
  EXPECT_EQ(changes, 1);
}

TEST_F(PlanPanel, TheLogIsShownAndGoesWithItsPlan) {
  OpenPlan();
  FillWPTableWithNavLog(session.navLog, session.plan, 1, 25000, 240, 75, 100);
  FillWPTableWithNavLog(session.navLog, session.plan, 2, 25000, 250, 120, 90);
  ClickRow(1);
  Key(Qt::Key_Delete);
  EXPECT_EQ(Cell(1, LegColumn::groundSpeed), "250 kt") << "the log stays with its waypoint";
  window->Editor().StartPlan(0, 1);
  EXPECT_FALSE(session.navLog.referenceFuel.has_value());
  EXPECT_EQ(Cell(1, LegColumn::groundSpeed), "");
}

}  // namespace
