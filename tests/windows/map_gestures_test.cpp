// The gestures on the map, each done to the real controls.
#include <QContextMenuEvent>
#include <QRegularExpression>
#include <QTableView>

#include "tests/windows/map_window.h"

namespace {

class Gestures : public MapWindow {
 protected:
  void RestAt(QPoint pixel) {
    PointAt(pixel + QPoint(1, 0));
    PointAt(pixel);
    QTest::qWait(650);  // two ticks of tmrMousePos
  }
  QImage Shown() { return Map().grab().toImage(); }

  QMenu& OpenMenu(QPoint pixel) {
    QContextMenuEvent ask(QContextMenuEvent::Mouse, pixel, Map().mapToGlobal(pixel));
    QApplication::sendEvent(&Map(), &ask);
    return Find<QMenu>("mnuMapContext");
  }
  QAction& Item(QMenu& menu, const QString& name) {
    auto* action = menu.findChild<QAction*>(name);
    if (action == nullptr) throw std::runtime_error("no item " + name.toStdString());
    return *action;
  }
  void Choose(QMenu& menu, const QString& name) {
    Item(menu, name).trigger();
    menu.close();
    QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  }
};

TEST_F(Gestures, AClickRecentres) {
  Open();
  Look(50, 8.5F, "mnu400NM");
  // Two degrees of latitude are 2100 units at 400 NM.
  const QPoint above = PixelOf(52, 8.5F);
  QTest::mouseClick(&Map(), Qt::LeftButton, Qt::NoModifier, above);
  EXPECT_NEAR(session.view.MapCenterLat, 52, 0.01);
  EXPECT_NEAR(session.view.MapCenterLon, 8.5, 0.02);
  EXPECT_EQ(Panel(1), "400NM");
  EXPECT_FLOAT_EQ(session.view.AircraftLat, session.view.MapCenterLat)
      << "the clicked place is the reference";
  EXPECT_TRUE(Panel(3).startsWith("N52")) << Panel(3).toStdString();
  QTest::mouseClick(&Map(), Qt::LeftButton, Qt::ShiftModifier, QPoint(20, 20));
  EXPECT_NEAR(session.view.MapCenterLat, 52, 0.01) << "with Shift held the map stays";
}

TEST_F(Gestures, ADragBoxZoomsToItsHeight) {
  Open();
  Look(50, 8.5F, "mnu400NM");
  Trigger("mnuAutozoom");
  const QPoint middle = PixelOf(50, 8.5F);
  const QPoint half(100, PixelOf(49.1667F, 8.5F).y() - middle.y());  // 100 NM high in all
  DragFrom(middle - half, middle + half);
  EXPECT_EQ(Panel(1), "100NM");
  EXPECT_NEAR(session.view.MapCenterLat, 50, 0.02);
  EXPECT_FALSE(Find<QAction>("mnuAutozoom").isChecked());
  EXPECT_FALSE(session.view.mnuAutozoom);
  // As high as a tremble of the hand: only the centre moves.
  DragFrom(middle, middle + QPoint(40, 4));
  EXPECT_EQ(Panel(1), "100NM");
  EXPECT_TRUE(messages.texts.empty());
}

TEST_F(Gestures, EscapeGivesADragBoxUp) {
  Open();
  const float lat = session.view.MapCenterLat;
  QTest::mousePress(&Map(), Qt::LeftButton, Qt::NoModifier, QPoint(100, 100));
  PointAt(QPoint(400, 400));
  QTest::keyClick(&Map(), Qt::Key_Escape);
  QTest::mouseRelease(&Map(), Qt::LeftButton, Qt::NoModifier, QPoint(400, 400));
  EXPECT_EQ(session.view.MapCenterLat, lat);
}

TEST_F(Gestures, ArrowsPanAndF12ComesBackToTheAircraft) {
  Open();
  Look(50, 8.5F, "mnu400NM");
  session.view.AircraftLat = 47.25F;
  session.view.AircraftLon = -3.5F;
  QTest::keyClick(&Map(), Qt::Key_F12);
  EXPECT_EQ(session.view.MapCenterLat, 47.25F);
  EXPECT_EQ(session.view.MapCenterLon, -3.5F);
  QTest::keyClick(&Map(), Qt::Key_Up);
  EXPECT_GT(session.view.MapCenterLat, 47.5F);
  QTest::keyClick(&Map(), Qt::Key_Right);
  EXPECT_GT(session.view.MapCenterLon, -3);
}

TEST_F(Gestures, TheWheelZoomsOnlyWhenTheSettingsSaySo) {
  Open();
  Wheel(-120);
  EXPECT_EQ(Panel(1), "30NM");
  Trigger("mnuMouseZoom");
  EXPECT_EQ(session.settings.MZOOM, 1);
  struct Turn {
    int delta;
    const char* range;
  };
  const Turn turns[] = {
      {-120, "50NM"},  {120, "30NM"},      {-60, "30NM"}, {-60, "50NM"},  // half steps are summed
      {-480, "200NM"},                                                    // a burst that came as one
      {100, "200NM"},  {-100, "200NM"},                                   // there and back
      {12000, "1NM"},  {-12000, "4000NM"},
  };
  for (const Turn& turn : turns) {
    Wheel(turn.delta);
    EXPECT_EQ(Panel(1), turn.range) << turn.delta;
  }
  EXPECT_TRUE(messages.texts.empty()) << "the wheel never asks for what would be refused";
}

TEST_F(Gestures, WithTheWheelOnTheFocusFollowsThePointer) {
  for (const bool on : {false, true}) {
    session.settings.MZOOM = on ? 1 : 0;
    Open();
    QApplication::setActiveWindow(window.get());
    Find<QToolButton>("cmdZoom").setFocus();
    EXPECT_FALSE(Map().hasFocus());
    PointAt(5000, on ? 3000 : 4000);
    EXPECT_EQ(Map().hasFocus(), on);
    window.reset();
  }
}

TEST_F(Gestures, TheRibbonIsThereWhileThePointerIsAtTheTop) {
  Open();
  const auto& ribbon = Find<ToggleRibbon>("pnlToggleButtons");
  EXPECT_FALSE(ribbon.isVisible());
  struct Case {
    float x, y;
    bool visible;
  };
  const Case cases[] = {
      {5000, 480, true}, {5000, 520, false}, {5000, 5, true}, {11000, 300, true}, {20, 4000, false}};
  for (const Case& c : cases) {
    PointAt(c.x, c.y);
    EXPECT_EQ(ribbon.isVisible(), c.visible) << c.x << ", " << c.y;
  }
  PointAt(5000, 100);
  QEvent leave(QEvent::Leave);
  QApplication::sendEvent(&Map(), &leave);
  EXPECT_FALSE(ribbon.isVisible());
}

TEST_F(Gestures, MeasuringFollowsThePointerAndStaysOnItsPlaces) {
  Open();
  Look(0, 5, "mnu400NM");
  auto& label = Find<QLabel>("lblMeasure");
  PointAt(5000, 100);
  Press("rbnMeasure");
  EXPECT_FALSE(label.isVisible());
  const QPoint from = PixelOf(0, 4);
  const QPoint to = PixelOf(0, 6);
  QTest::mousePress(&Map(), Qt::LeftButton, Qt::NoModifier, from);
  EXPECT_TRUE(label.text().startsWith("0.0NM/")) << label.text().toStdString();
  PointAt(to);
  EXPECT_TRUE(label.isVisible());
  const QRegularExpression caption("^(\\d+\\.\\d)NM/(\\d+)°/(\\d+)°$");
  const auto match = caption.match(label.text());
  ASSERT_TRUE(match.hasMatch()) << label.text().toStdString();
  EXPECT_NEAR(match.captured(1).toDouble(), 120, 0.5);
  EXPECT_NEAR(match.captured(2).toDouble() + session.view.MapMagVar, 90, 1.1);
  EXPECT_TRUE(QRect(to, QSize(60, 60)).contains(label.pos())) << "beside the pointer";
  QTest::mouseRelease(&Map(), Qt::LeftButton, Qt::NoModifier, to);
  const QString measured = label.text();
  const float centre = session.view.MapCenterLon;

  QTest::keyClick(&Map(), Qt::Key_PageUp);
  EXPECT_EQ(label.text(), measured);
  EXPECT_TRUE(QRect(PixelOf(0, 4), QSize(60, 60)).contains(label.pos()))
      << "at the line's start after a zoom";
  window->resize(1000, 800);
  QApplication::processEvents();
  EXPECT_TRUE(QRect(PixelOf(0, 4), QSize(60, 60)).contains(label.pos())) << "and after a resize";
  EXPECT_EQ(session.view.MapCenterLon, centre) << "the click measured, it did not recentre";

  QTest::keyClick(&Map(), Qt::Key_Escape);
  EXPECT_FALSE(label.isVisible());
  EXPECT_FALSE(Find<QToolButton>("rbnMeasure").isChecked());
  EXPECT_FALSE(Find<QAction>("mnuMeasure").isChecked());
}

TEST_F(Gestures, NothingThatMovesWithThePointerPaintsTheMap) {
  Open();
  Look(0, 5, "mnu400NM");
  Shown();
  painted = 0;
  for (int step = 0; step < 20; ++step) {
    PointAt(QPoint(100 + 20 * step, 300));
    QApplication::processEvents();
  }
  RestAt(PixelOf(0, 0));
  QTest::mousePress(&Map(), Qt::LeftButton, Qt::NoModifier, QPoint(300, 300));
  for (int step = 0; step < 20; ++step) {
    PointAt(QPoint(300 + 10 * step, 300 + 10 * step));
    Shown();
  }
  QTest::keyClick(&Map(), Qt::Key_Escape);
  QTest::mouseRelease(&Map(), Qt::LeftButton, Qt::NoModifier, QPoint(500, 500));
  Trigger("mnuMeasure");
  DragFrom(QPoint(300, 300), QPoint(600, 400));
  Shown();
  QTest::keyClick(&Map(), Qt::Key_Escape);
  Shown();
  EXPECT_EQ(painted, 0);
}

TEST_F(Gestures, ABurstOfInputIsOneRepaint) {
  session.settings.MZOOM = 1;
  Open();
  QApplication::processEvents();
  painted = 0;
  for (int step = 0; step < 5; ++step)
    QTest::keyClick(&Map(), Qt::Key_PageUp, Qt::NoModifier, -1);
  for (int step = 0; step < 3; ++step)
    Wheel(120);
  QTest::keyClick(&Map(), Qt::Key_Left, Qt::NoModifier, -1);
  EXPECT_EQ(Panel(1), "75NM") << "the view has changed at once";
  Shown();
  QApplication::processEvents();
  EXPECT_EQ(painted, 1);
  for (int width = 1500; width > 1400; width -= 10)
    window->resize(width, 900);
  QApplication::processEvents();
  Shown();
  EXPECT_LE(painted, 3);
}

TEST_F(Gestures, ARestingPointerOpensTheBoxAndAMoveClosesIt) {
  Open();
  Look(0, 5, "mnu400NM");
  const QImage plain = Shown();
  const QPoint airport = PixelOf(0, 0);
  PointAt(airport);
  EXPECT_EQ(Shown(), plain) << "not at once";
  RestAt(airport);
  const QImage boxed = Shown();
  EXPECT_NE(boxed, plain);
  PointAt(airport + QPoint(200, 200));
  EXPECT_EQ(Shown(), plain);
  RestAt(airport);
  EXPECT_EQ(Shown(), boxed);
  QTest::keyClick(&Map(), Qt::Key_Escape);
  QTest::qWait(650);
  EXPECT_EQ(Shown(), plain) << "what Escape has closed stays closed while the pointer rests";
}

TEST_F(Gestures, TheRightButtonsMenu) {
  Open();
  Look(0, 5, "mnu400NM");
  const QPoint airport = PixelOf(0, 0);
  {
    QMenu& menu = OpenMenu(airport);
    EXPECT_TRUE(Item(menu, "mnuHighlight(0)").text().contains("EDDA"));
    Choose(menu, "mnuHighlight(0)");
    EXPECT_TRUE(session.selection.Holds(SelectedObject::airport, 0));
    Trigger("mnuClearHighlight");
    EXPECT_EQ(session.selection.SelectedObjectIndex, -1);
  }
  {
    Choose(OpenMenu(PixelOf(1, 4)), "mnuCentreHere");
    EXPECT_NEAR(session.view.MapCenterLat, 1, 0.01);
    EXPECT_NEAR(session.view.MapCenterLon, 4, 0.01);
  }
  {
    Choose(OpenMenu(PixelOf(0, 4)), "mnuMeasureFrom");
    EXPECT_TRUE(Find<QToolButton>("rbnMeasure").isChecked());
    PointAt(PixelOf(0, 5));
    const QString text = Find<QLabel>("lblMeasure").text();
    EXPECT_NEAR(text.section("NM", 0, 0).toDouble(), 60, 0.5) << text.toStdString();
    QTest::mouseClick(&Map(), Qt::LeftButton, Qt::NoModifier, PixelOf(0, 5));
    PointAt(PixelOf(0, 6));
    EXPECT_EQ(Find<QLabel>("lblMeasure").text(), text) << "the click has ended the line";
  }
}

TEST_F(Gestures, TheKeyboardOpensTheMapsMenuFromEverywhere) {
  Open();
  window->Editor().StartPlan(0, 1);
  QApplication::setActiveWindow(window.get());
  Find<QTableView>("grdWPTable").setFocus();
  for (const auto& [key, modifiers] :
       {std::pair(Qt::Key_F10, Qt::ShiftModifier), std::pair(Qt::Key_Menu, Qt::NoModifier)}) {
    QTest::keyClick(&Find<QTableView>("grdWPTable"), key, modifiers);
    auto& menu = Find<QMenu>("mnuMapContext");
    EXPECT_TRUE(menu.isVisible());
    Choose(menu, "mnuCentreHere");
  }
}

TEST_F(Gestures, TheSelectedWaypointsBearingLine) {
  Open();
  window->Editor().StartPlan(0, 1);
  QApplication::processEvents();
  auto& label = Find<QLabel>("lblCourseRadial");
  Find<QTableView>("grdWPTable").selectRow(1);
  PointAt(PixelOf(0, 5));
  EXPECT_FALSE(label.isVisible()) << "the switch is off";
  Trigger("mnuBearingLine");
  PointAt(PixelOf(0, 6));
  ASSERT_TRUE(label.isVisible());
  auto& ribbon = Find<ToggleRibbon>("pnlToggleButtons");
  PointAt(5000, 300);
  EXPECT_TRUE(ribbon.isVisible());
  EXPECT_FALSE(ribbon.geometry().intersects(label.geometry())) << "the label keeps off the ribbon";
  PointAt(PixelOf(0, 6));
  EXPECT_TRUE(label.text().contains("HDG: ") && label.text().contains("RDL: ")) << label.text().toStdString();
  Trigger("mnuInbound");
  EXPECT_TRUE(label.text().contains("Inbound: ")) << label.text().toStdString();
  EXPECT_NEAR(label.text().section(" NM", 0, 0).trimmed().toDouble(), 240, 1);
  Find<QTableView>("grdWPTable").clearSelection();
  EXPECT_FALSE(label.isVisible());
}

TEST_F(Gestures, StretchingTheWindowScalesTheMapAndEndsTheAutozoom) {
  session.settings.MENU |= 1 << 12;
  Open();
  EXPECT_EQ(window->minimumSize(), QSize(669, 577));
  Find<QAction>("mnu400NM").trigger();
  Trigger("mnuAutozoom");
  window->resize(800, 700);
  QApplication::processEvents();
  EXPECT_FLOAT_EQ(session.view.MapSizeFactor, 0.5F);
  EXPECT_EQ(session.view.MapScale, 525);
  EXPECT_EQ(Panel(1), "400NM");
  EXPECT_FALSE(Find<QAction>("mnuAutozoom").isChecked());
}

}  // namespace
