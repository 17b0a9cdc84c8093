// The status panels below the map.
#include "tests/windows/map_window.h"

namespace {

class Panels : public MapWindow {};

TEST_F(Panels, TheStatusPanels) {
  Open();
  const std::pair<int, const char*> tips[] = {
      {0, "Click UTC / LOCAL"},
      {1, "LeftClick Zoom IN/RightClick Zoom OUT"},
      {2, "Magnetic Variation"},
      {3, "Aircraft Coordinates"},
      {4, "LeftClick Select AC / RightClick AC on Map ON/OFF"},
      {5, "Click Coordinates / To / From Cursor Position"},
      {6, "Fuel"},
  };
  for (const auto& [panel, tip] : tips)
    EXPECT_EQ(Find<QLabel>(QString("lblMapStatus(%1)").arg(panel)).toolTip(), tip);
  EXPECT_TRUE(Panel(4).isEmpty() && Panel(6).isEmpty());
  EXPECT_TRUE(Panel(0).endsWith(" UTC"));
  ClickPanel(0);
  EXPECT_TRUE(Panel(0).endsWith(" LOCAL"));
  EXPECT_TRUE(Panel(2).startsWith("MagVar: "));
  ClickPanel(3);
  EXPECT_EQ(Panel(3), "50.0000 / 008.5000");
  ClickPanel(3);
  EXPECT_TRUE(Panel(3).startsWith("N50")) << Panel(3).toStdString();
}

TEST_F(Panels, ThePanelsStayWhereTheyAre) {
  Open();
  PointAt(5000, 3000);
  QApplication::processEvents();
  const auto places = [&] {
    std::vector<QRect> found;
    QApplication::processEvents();
    for (const int panel : {0, 1, 2, 3, 5})
      found.push_back(Find<QLabel>(QString("lblMapStatus(%1)").arg(panel)).geometry());
    return found;
  };
  const std::vector<QRect> before = places();
  const std::function<void()> changes[] = {
      [&] { ClickPanel(0); },
      [&] { Trigger("mnu2000NM"); },
      [&] { Trigger("mnu3NM"); },
      [&] {
        session.settings.DECSEC = 0;
        Look(-77.888F, -166.6666F, "mnu10NM");
      },
      [&] { QTest::mouseClick(&Map(), Qt::LeftButton, Qt::NoModifier, QPoint(50, 50)); },
      [&] { ClickPanel(3); },
      [&] { ClickPanel(5); },
  };
  for (const auto& change : changes) {
    change();
    EXPECT_EQ(places(), before);
  }
}

TEST_F(Panels, ThePointersPanelHasThreeModes) {
  Open();
  Look(0, 5, "mnu400NM");
  PointAt(PixelOf(1, 5));
  const auto mood = [&] { return Find<QLabel>("lblMapStatus(5)").property("mood").toString(); };
  struct Case {
    const char* name;
    const char* text;
    const char* mood;
  };
  const Case cases[] = {{"To Cursor Position", "To: ", "to"},
                        {"From Cursor Position", "From: ", "from"},
                        {"Coordinates", "N0", ""}};
  for (const Case& c : cases) {
    ClickPanel(5);
    EXPECT_EQ(Panel(5), c.name);
    EXPECT_EQ(mood(), c.mood);
    PointAt(PixelOf(1, 5) + QPoint(1, 0));
    EXPECT_EQ(Panel(5), c.name) << "for a moment, also while the pointer moves";
    QTest::qWait(1300);
    EXPECT_TRUE(Panel(5).startsWith(c.text)) << Panel(5).toStdString();
  }
  const QString before = Panel(5);
  QTest::keyClick(&Map(), Qt::Key_PageDown);
  EXPECT_NE(Panel(5), before) << "a zoom moves the place below the resting pointer";
}

}  // namespace
