#include "windows/frmMap.h"

#include <QPushButton>
#include <QShortcut>
#include <QTableView>
#include <set>

#include "base/files.h"
#include "settings/settings_file.h"
#include "tests/windows/map_window.h"
#include "windows/frmSelectAP.h"

namespace {

class Window : public MapWindow {
 protected:
  // Answers the modal dialog that opens next.
  template <class Answer>
  void WhenDialogOpens(const Answer& answer) {
    QTimer::singleShot(0, window.get(), [answer] {
      auto* dialog = qobject_cast<frmSelectAP*>(QApplication::activeModalWidget());
      ASSERT_NE(dialog, nullptr);
      answer(*dialog);
    });
  }
};

TEST_F(Window, OpensWithItsControls) {
  Open();
  EXPECT_FLOAT_EQ(session.view.MapSizeFactor, 1);
  EXPECT_TRUE(session.view.MapReady);
  EXPECT_EQ(Panel(1), "30NM");
  for (const char* name : {"mnuNewFP", "mnuCreateLoAlt", "mnuCreateHiAlt", "mnuSaveFPAs", "mnu3NM", "mnu10NM",
                           "mnu50NM", "mnu100NM", "mnu200NM", "mnu400NM", "mnu800NM", "mnu2000NM"})
    EXPECT_NE(window->findChild<QAction*>(name), nullptr) << name;
  EXPECT_FALSE(Find<QAction>("mnuCreateHiAlt").isEnabled()) << "there is no plan";
  EXPECT_FALSE(Find<QAction>("mnuSaveFPAs").isEnabled());
}

TEST_F(Window, OpensWithAStoredRangeThatItsFirstCentreCannotHave) {
  session.settings.SCALE = 20;
  Open();
  EXPECT_EQ(session.view.ZoomIndex, 19);
  EXPECT_TRUE(messages.texts.empty()) << messages.texts.front();
}

struct SwitchCase {
  const char* menu;
  const char* button;
  bool MapSwitches::*flag;
};
constexpr SwitchCase switchCases[] = {
    {"mnuCoastlines", "rbnCoastlines", &MapSwitches::mnuCoastlines},
    {"mnuLatLong", "rbnLatLong", &MapSwitches::mnuLatLong},
    {"mnuCompass", "rbnCompass", &MapSwitches::mnuCompass},
    {"mnuMSA", "rbnMSA", &MapSwitches::mnuMSA},
    {"mnuAirport", "rbnAirport", &MapSwitches::mnuAirport},
    {"mnuILS", "rbnILS", &MapSwitches::mnuILS},
    {"mnuVOR", "btnVor", &MapSwitches::mnuVOR},
    {"mnuNDB", "btnNdb", &MapSwitches::mnuNDB},
    {"mnuIntersection", "btnInter", &MapSwitches::mnuIntersection},
    {"mnuGPSFix", "rbnGPSFix", &MapSwitches::mnuGPSFix},
    {"mnuUserWP", "rbnUserWP", &MapSwitches::mnuUserWP},
    {"mnuVictor", "rbnVictor", &MapSwitches::mnuVictor},
    {"mnuJet", "rbnJet", &MapSwitches::mnuJet},
    {"mnuCtrz", "rbnCtrz", &MapSwitches::mnuCtrz},
    {"mnuAir1", "rbnAir1", &MapSwitches::mnuAir1},
    {"mnuAir2", "rbnAir2", &MapSwitches::mnuAir2},
    {"mnuSunrise", "rbnSunrise", &MapSwitches::mnuSunrise},
    {"mnuIcao", "btnIcao", &MapSwitches::btnIcao},
    {"mnuName", "btnName", &MapSwitches::btnName},
    {"mnuFreq", "btnFreq", &MapSwitches::btnFreq},
    {"mnuAutozoom", nullptr, &MapSwitches::mnuAutozoom},
    {"mnuAoM", nullptr, &MapSwitches::mnuAoM},
};

TEST_F(Window, EverySwitchHasItsMenuAndItsRibbonInStep) {
  Open();
  PointAt(5000, 100);  // the ribbon is there
  for (const SwitchCase& c : switchCases) {
    auto& menu = Find<QAction>(c.menu);
    const bool before = session.switches.*c.flag;
    EXPECT_EQ(menu.isChecked(), before) << c.menu;
    menu.trigger();
    EXPECT_EQ(session.switches.*c.flag, !before) << c.menu;
    if (c.button == nullptr) continue;
    auto& button = Find<QToolButton>(c.button);
    EXPECT_EQ(button.isChecked(), !before) << c.button << " follows the menu";
    Press(c.button);
    EXPECT_EQ(menu.isChecked(), before) << c.menu << " follows the ribbon";
    EXPECT_EQ(session.switches.*c.flag, before) << c.button;
  }
}

TEST_F(Window, ASwitchChangesThePicture) {
  Open();
  session.view.MapCenterLat = 0;
  session.view.MapCenterLon = 5;
  Find<QAction>("mnu400NM").trigger();
  const QImage with = window->grab().toImage();
  Find<QAction>("mnuAirport").trigger();
  EXPECT_NE(window->grab().toImage(), with);
}

TEST_F(Window, EveryToggleOfTheRibbonHasAPictureOfItsOwnAndATip) {
  Open();
  std::set<QByteArray> pictures;
  const auto buttons = Find<ToggleRibbon>("pnlToggleButtons").findChildren<QToolButton*>();
  EXPECT_EQ(buttons.size(), 22);
  for (const QToolButton* button : buttons) {
    const QImage picture = button->icon().pixmap(20, 20).toImage();
    ASSERT_FALSE(picture.isNull()) << button->objectName().toStdString();
    pictures.emplace(reinterpret_cast<const char*>(picture.constBits()), picture.sizeInBytes());
    EXPECT_TRUE(button->toolTip().contains('(')) << button->objectName().toStdString() << " tells its keys";
  }
  EXPECT_EQ(pictures.size(), 22u);
  EXPECT_EQ(Find<QToolButton>("cmdZoom").toolTip(), "Zoom in (Page Down)");
}

TEST_F(Window, TheRibbonFitsASmallScreen) {
  Open();
  window->resize(1366, 768);
  window->Editor().StartPlan(0, 1);
  QApplication::processEvents();
  const auto& ribbon = Find<ToggleRibbon>("pnlToggleButtons");
  EXPECT_LT(ribbon.height(), 60) << "one row beside the plan";
  window->resize(669, 577);
  QApplication::processEvents();
  EXPECT_LE(ribbon.width(), Find<MapCanvas>("Map").width());
}

TEST_F(Window, NoTwoCommandsShareAKey) {
  Open();
  std::map<QString, QString> owners;
  const auto take = [&](const QKeySequence& keys, const QString& owner) {
    if (keys.isEmpty()) return;
    const auto [at, isNew] = owners.emplace(keys.toString(), owner);
    EXPECT_TRUE(isNew) << keys.toString().toStdString() << ": " << owner.toStdString() << " and "
                       << at->second.toStdString();
  };
  for (const QAction* action : window->findChildren<QAction*>())
    take(action->shortcut(), action->objectName());
  for (const QShortcut* shortcut : window->findChildren<QShortcut*>())
    take(shortcut->key(), "key");
  EXPECT_GT(owners.size(), 30u);
}

TEST_F(Window, NoTwoItemsOfAMenuShareALetter) {
  Open();
  for (const QMenu* menu : window->findChildren<QMenu*>()) {
    if (menu->objectName() == "mnuAircraft") continue;  // names of the pilot's own
    std::set<QChar> letters;
    for (const QAction* action : menu->actions()) {
      const qsizetype mark = action->text().indexOf('&');
      if (mark < 0) continue;
      EXPECT_TRUE(letters.insert(action->text()[mark + 1].toLower()).second)
          << menu->title().toStdString() << ": " << action->text().toStdString();
    }
  }
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
  const auto cell = [&](int row, LegColumn column) {
    return table.index(row, static_cast<int>(column)).data().toString();
  };
  EXPECT_EQ(cell(1, LegColumn::code), "A");
  EXPECT_EQ(cell(2, LegColumn::code), "Z");
  EXPECT_EQ(cell(2, LegColumn::name), "Z (UL1 210-240)");
  EXPECT_EQ(cell(2, LegColumn::distance), "570 NM");
  EXPECT_EQ(cell(2, LegColumn::course), "090°/090°");
  EXPECT_EQ(cell(0, LegColumn::distance), "");
  EXPECT_EQ(Find<QLabel>("lblFlightDistance").text(), "600");
  EXPECT_EQ(pointer.depth, 0) << "the hourglass is gone";

  Press("cmdLoAlt");
  EXPECT_EQ(table.rowCount(), 6);

  const std::filesystem::path file = folder.Path() / "test.pln";
  ChooseFile(folder.Path() / "test");
  Press("cmdSaveFPAs");
  const auto saved = ReadWholeFile(file);
  ASSERT_TRUE(saved);
  EXPECT_NE(saved->Text().find("title=EDDA to EDDB"), std::string_view::npos);

  Find<QAction>("mnuNewFP").trigger();
  EXPECT_EQ(session.plan.RowCount(), 0);
  EXPECT_FALSE(Find<QFrame>("pnlFlightplan").isVisible());
  EXPECT_FALSE(Find<QToolButton>("cmdHiAlt").isEnabled());
}

TEST_F(Window, ASelectedRowIsWhereTheNextRouteGoes) {
  Open();
  window->Editor().StartPlan(0, 1);
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

TEST_F(Window, SwitchesAndPlaceComeBackAfterARestart) {
  Open();
  EXPECT_TRUE(Find<QAction>("mnuRemWinPos").isChecked()) << "a first start remembers";
  for (const char* name : {"mnuJet", "mnuGPSFix", "btnName", "mnuAir2", "mnuCompass", "mnuAutozoom"}) {
    const QString menu = QString(name).replace("btn", "mnu");
    Find<QAction>(menu).trigger();
  }
  Find<QAction>("mnuMouseZoom").trigger();
  const MapSwitches before = session.switches;
  ASSERT_NE(before, MapSwitches());
  window->setGeometry(30, 40, 700, 640);
  Find<QAction>("mnuAutozoom").setChecked(true);
  window->close();

  session.settings = ReadIni(AppFolder(folder.Path())).settings;
  session.switches = {};
  window = std::make_unique<frmMap>(session, messages, pointer);
  window->show();
  QApplication::processEvents();
  EXPECT_EQ(session.switches, before);
  EXPECT_TRUE(Find<QAction>("mnuGPSFix").isChecked());
  EXPECT_TRUE(Find<MapCanvas>("Map").wheelZooms);
  EXPECT_EQ(window->geometry(), QRect(30, 40, 700, 640));

  Find<QAction>("mnuRemWinPos").trigger();
  window->setGeometry(10, 10, 680, 600);
  window->close();
  const Settings kept = ReadIni(AppFolder(folder.Path())).settings;
  EXPECT_EQ(kept.REMWINPOS, 0);
  EXPECT_EQ(kept.WINX, 30) << "the place is only written while it is remembered";
}

TEST_F(Window, AMaximisedWindowComesBackMaximised) {
  Open();
  window->showMaximized();
  QApplication::processEvents();
  window->close();
  session.settings = ReadIni(AppFolder(folder.Path())).settings;
  EXPECT_EQ(session.settings.MAPWIN, 2);
  window = std::make_unique<frmMap>(session, messages, pointer);
  window->show();
  EXPECT_TRUE(window->isMaximized());
}

}  // namespace
