#include "windows/frmMap.h"

#include <gtest/gtest.h>

#include <QAction>
#include <QApplication>
#include <QPushButton>
#include <QTest>
#include <QToolButton>
#include <QWheelEvent>
#include <set>

#include "base/files.h"
#include "settings/settings_file.h"
#include "tests/temporary_folder.h"
#include "tests/windows/window_world.h"
#include "windows/frmSelectAP.h"

namespace {

class NoPointer : public PointerShape {
 public:
  void SetHourglass(bool on) override { depth += on ? 1 : -1; }
  int depth = 0;
};

class Window : public testing::Test {
 protected:
  Window() : session(AppFolder(folder.Path())) {
    session.database = std::move(world.database);
    session.aircraft = SlowTwin();
    session.aircraftList = {session.aircraft};
  }

  frmMap& Open() {
    window = std::make_unique<frmMap>(session, messages, pointer);
    window->show();
    QApplication::processEvents();
    return *window;
  }

  template <class Control>
  Control& Find(const QString& name) {
    auto* control = window->findChild<Control*>(name);
    if (control == nullptr) throw std::runtime_error("no control " + name.toStdString());
    return *control;
  }
  void Press(const QString& button) { QTest::mouseClick(&Find<QToolButton>(button), Qt::LeftButton); }
  QString Panel(int index) { return Find<QLabel>(QString("lblMapStatus(%1)").arg(index)).text(); }

  // Answers the modal dialog that opens next.
  template <class Answer>
  void WhenDialogOpens(const Answer& answer) {
    QTimer::singleShot(0, window.get(), [answer] {
      auto* dialog = qobject_cast<frmSelectAP*>(QApplication::activeModalWidget());
      ASSERT_NE(dialog, nullptr);
      answer(*dialog);
    });
  }

  TemporaryFolder folder;
  DrawnWorld world{windowWorld};
  HeardMessages messages;
  NoPointer pointer;
  Session session;
  std::unique_ptr<frmMap> window;
};

TEST_F(Window, OpensAtItsSizeWithItsControls) {
  Open();
  EXPECT_EQ(window->size(), QSize(1600, 1000));
  EXPECT_FLOAT_EQ(session.view.MapSizeFactor, 1);
  EXPECT_TRUE(session.view.MapReady);
  EXPECT_EQ(Panel(1), "30NM");
  for (const char* name : {"mnuNewFP", "mnuCreateLoAlt", "mnuCreateHiAlt", "mnu3NM", "mnu10NM", "mnu50NM",
                           "mnu100NM", "mnu200NM", "mnu400NM", "mnu800NM", "mnu2000NM", "mnuCoastlines",
                           "mnuAirport", "mnuVictor", "mnuJet", "mnuSaveFPAs"})
    EXPECT_NE(window->findChild<QAction*>(name), nullptr) << name;
  EXPECT_FALSE(Find<QAction>("mnuCreateHiAlt").isEnabled()) << "there is no plan";
  EXPECT_FALSE(Find<QAction>("mnuSaveFPAs").isEnabled());
}

TEST_F(Window, ZoomsByKeysButtonsMenusAndTheRangePanel) {
  Open();
  struct Case {
    const char* why;
    std::function<void()> act;
    const char* range;
  };
  const auto key = [&](Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
    return [this, key, modifiers] { QTest::keyClick(window.get(), key, modifiers); };
  };
  const Case cases[] = {
      {"Page Up", key(Qt::Key_PageUp), "50NM"},
      {"minus", key(Qt::Key_Minus), "75NM"},
      {"minus of the number pad", key(Qt::Key_Minus, Qt::KeypadModifier), "100NM"},
      {"Page Down", key(Qt::Key_PageDown), "75NM"},
      {"plus", key(Qt::Key_Plus), "50NM"},
      {"plus of the number pad", key(Qt::Key_Plus, Qt::KeypadModifier), "30NM"},
      {"cmdUnzoom", [&] { Press("cmdUnzoom"); }, "50NM"},
      {"cmdZoom", [&] { Press("cmdZoom"); }, "30NM"},
      {"mnu400NM", [&] { Find<QAction>("mnu400NM").trigger(); }, "400NM"},
      {"left click on the range",
       [&] { QTest::mouseClick(&Find<QLabel>("lblMapStatus(1)"), Qt::LeftButton); }, "300NM"},
      {"right click on the range",
       [&] { QTest::mouseClick(&Find<QLabel>("lblMapStatus(1)"), Qt::RightButton); }, "400NM"},
  };
  for (const Case& c : cases) {
    c.act();
    EXPECT_EQ(Panel(1), c.range) << c.why;
  }
  EXPECT_TRUE(messages.texts.empty());
}

TEST_F(Window, TellsWhenTheZoomEnds) {
  session.settings.SCALE = 0;
  Open();
  Press("cmdZoom");
  EXPECT_EQ(messages.texts, std::vector<std::string>{"Maximum zoom!"});
  EXPECT_EQ(Panel(1), "1NM");
}

TEST_F(Window, WheelZoomsOnlyWhenTheSettingsSaySo) {
  for (const bool on : {false, true}) {
    session.settings.MZOOM = on ? 1 : 0;
    Open();
    auto& map = Find<MapCanvas>("Map");
    const QPointF middle(map.width() / 2.0, map.height() / 2.0);
    QWheelEvent toward(middle, map.mapToGlobal(middle), {}, {0, -120}, Qt::NoButton, Qt::NoModifier,
                       Qt::NoScrollPhase, false);
    QApplication::sendEvent(&map, &toward);
    EXPECT_EQ(Panel(1), on ? "50NM" : "30NM");
  }
}

TEST_F(Window, AClickRecentres) {
  Open();
  Find<QAction>("mnu400NM").trigger();
  auto& map = Find<MapCanvas>("Map");
  const float lat = session.view.MapCenterLat;
  const float lon = session.view.MapCenterLon;
  const double pixelsPerUnit = PagePlacement(map.width(), map.height()).PixelsPerUnit();
  // Two degrees of latitude are 2100 units at 400 NM.
  const QPoint above(map.width() / 2, static_cast<int>(map.height() / 2.0 - 2100 * pixelsPerUnit));
  QTest::mouseClick(&map, Qt::LeftButton, Qt::NoModifier, above);
  EXPECT_NEAR(session.view.MapCenterLat, lat + 2, 0.02);
  EXPECT_NEAR(session.view.MapCenterLon, lon, 0.02);
  EXPECT_EQ(Panel(1), "400NM");
  QTest::mouseClick(&map, Qt::LeftButton, Qt::ShiftModifier, QPoint(20, 20));
  EXPECT_NEAR(session.view.MapCenterLat, lat + 2, 0.02) << "with Shift held the map stays";
}

TEST_F(Window, ADragBoxZoomsToItsHeight) {
  Open();
  Find<QAction>("mnu400NM").trigger();
  auto& map = Find<MapCanvas>("Map");
  const double pixelsPerUnit = PagePlacement(map.width(), map.height()).PixelsPerUnit();
  const int half = static_cast<int>(std::lround(1750 / 2 * pixelsPerUnit));  // 100 NM high in all
  const QPoint middle(map.width() / 2, map.height() / 2);
  QTest::mousePress(&map, Qt::LeftButton, Qt::NoModifier, middle - QPoint(100, half));
  QTest::mouseMove(&map, middle + QPoint(100, half));
  QTest::mouseRelease(&map, Qt::LeftButton, Qt::NoModifier, middle + QPoint(100, half));
  EXPECT_EQ(Panel(1), "100NM");
}

TEST_F(Window, StretchingItScalesTheMap) {
  Open();
  Find<QAction>("mnu400NM").trigger();
  window->resize(800, 700);
  QApplication::processEvents();
  EXPECT_FLOAT_EQ(session.view.MapSizeFactor, 0.5F);
  EXPECT_EQ(session.view.MapScale, 525);
  EXPECT_EQ(Panel(1), "400NM");
}

TEST_F(Window, LayersComeAndGoWithMenuAndRibbonInStep) {
  Open();
  session.view.MapCenterLat = 0;
  session.view.MapCenterLon = 5;
  Find<QAction>("mnu400NM").trigger();
  const QImage with = window->grab().toImage();
  Press("rbnAirport");
  EXPECT_FALSE(Find<QAction>("mnuAirport").isChecked());
  EXPECT_NE(window->grab().toImage(), with);
  Find<QAction>("mnuAirport").trigger();
  EXPECT_TRUE(Find<QToolButton>("rbnAirport").isChecked());
}

TEST_F(Window, MakesAndSavesAHighAltitudePlan) {
  Open();
  WhenDialogOpens([](frmSelectAP& dialog) {
    QTest::keyClicks(dialog.findChild<QLineEdit*>("txtDepAP"), "EDDA");
    QTest::keyClicks(dialog.findChild<QLineEdit*>("txtDestAP"), "EDDB");
    QTest::mouseClick(dialog.findChild<QPushButton*>("cmdOK"), Qt::LeftButton);
  });
  Press("cmdSelectAP");
  ASSERT_EQ(session.plan.RowCount(), 2);
  EXPECT_TRUE(Find<QFrame>("pnlFlightplan").isVisible());
  EXPECT_NEAR(session.view.MapCenterLon, 5, 0.01) << "the map shows the plan";

  Press("cmdHiAlt");
  const auto& table = *Find<QTableView>("grdWPTable").model();
  ASSERT_EQ(table.rowCount(), 4) << (messages.texts.empty() ? "" : messages.texts.front());
  const auto cell = [&](int row, int column) { return table.index(row, column).data().toString(); };
  EXPECT_EQ(cell(1, LegTableModel::code), "A");
  EXPECT_EQ(cell(2, LegTableModel::code), "Z");
  EXPECT_EQ(cell(2, LegTableModel::airway), "UL1");
  EXPECT_EQ(cell(2, LegTableModel::distance), "570 NM");
  EXPECT_EQ(cell(2, LegTableModel::course), "090°/090°");
  EXPECT_EQ(cell(0, LegTableModel::distance), "");
  EXPECT_EQ(Find<QLabel>("lblFlightDistance").text(), "600");
  EXPECT_EQ(pointer.depth, 0) << "the hourglass is gone";

  Press("cmdLoAlt");
  EXPECT_EQ(table.rowCount(), 6);

  const std::filesystem::path file = folder.Path() / "test.pln";
  window->askPlanFile = [&](const QString&) {
    return QString::fromStdString((folder.Path() / "test").string());
  };
  Press("cmdSaveFPAs");
  const auto saved = ReadWholeFile(file);
  ASSERT_TRUE(saved);
  EXPECT_NE(saved->Text().find("title=EDDA to EDDB"), std::string_view::npos);

  Find<QAction>("mnuNewFP").trigger();
  EXPECT_EQ(session.plan.RowCount(), 0);
  EXPECT_FALSE(Find<QFrame>("pnlFlightplan").isVisible());
  EXPECT_FALSE(Find<QToolButton>("cmdHiAlt").isEnabled());
}

TEST_F(Window, AnUnwritablePlanFileIsToldAndNothingElseHappens) {
  Open();
  window->StartPlan(0, 1);
  window->askPlanFile = [](const QString&) { return QString("/nowhere/at/all.pln"); };
  Press("cmdSaveFPAs");
  ASSERT_EQ(messages.texts.size(), 1u);
  EXPECT_TRUE(messages.texts[0].starts_with("The flight plan could not be saved."));
}

TEST_F(Window, ASelectedRowIsWhereTheNextRouteGoes) {
  Open();
  window->StartPlan(0, 1);
  Press("cmdLoAlt");
  auto& table = Find<QTableView>("grdWPTable");
  table.selectRow(2);
  EXPECT_EQ(session.plan.SelectedRow, 2);
  QTest::keyClick(&table, Qt::Key_Escape);
  EXPECT_EQ(session.plan.SelectedRow, 0);
}

TEST_F(Window, ClosingWritesTheSettings) {
  Open();
  Find<QAction>("mnu400NM").trigger();
  window->close();
  EXPECT_EQ(ReadIni(AppFolder(folder.Path())).settings.SCALE, 13);
}

}  // namespace
