#include "windows/frmSelectAP.h"

#include <gtest/gtest.h>

#include <QTest>

#include "tests/windows/window_world.h"

namespace {

TEST(SelectAP, FindsTheAirportsWhileTheyAreTyped) {
  DrawnWorld world(windowWorld);
  frmSelectAP dialog(world.database, -1, -1);
  auto* departure = dialog.findChild<QLineEdit*>("txtDepAP");
  auto* destination = dialog.findChild<QLineEdit*>("txtDestAP");
  auto* name = dialog.findChild<QLabel*>("lblDepName");
  auto* ok = dialog.findChild<QPushButton*>("cmdOK");
  ASSERT_TRUE(departure && destination && name && ok);
  EXPECT_FALSE(ok->isEnabled());

  QTest::keyClicks(departure, "edda");
  EXPECT_EQ(departure->text(), "EDDA");
  EXPECT_EQ(name->text(), "EDDA Airport");
  EXPECT_FALSE(ok->isEnabled()) << "there is no destination yet";

  QTest::keyClicks(destination, "XXXX");
  EXPECT_EQ(dialog.DestinationRow(), -1);
  EXPECT_FALSE(ok->isEnabled());
  EXPECT_EQ(dialog.findChild<QLabel*>("lblDestName")->text(), "No airport has the code XXXX");

  destination->clear();
  QTest::keyClicks(destination, "EDDB ");
  EXPECT_TRUE(ok->isEnabled());
  EXPECT_EQ(dialog.DepartureRow(), world.Airport("EDDA"));
  EXPECT_EQ(dialog.DestinationRow(), world.Airport("EDDB"));
  EXPECT_EQ(dialog.findChild<QLabel*>("lblDistance")->text(), "Great circle distance 600 NM");

  QTest::keyClick(departure, Qt::Key_Backspace);
  EXPECT_FALSE(ok->isEnabled());
  EXPECT_EQ(dialog.DepartureRow(), -1);
}

TEST(SelectAP, OpensWithThePlansAirports) {
  DrawnWorld world(windowWorld);
  const frmSelectAP dialog(world.database, world.Airport("EDDA"), world.Airport("EDDB"));
  EXPECT_EQ(dialog.findChild<QLineEdit*>("txtDestAP")->text(), "EDDB");
  EXPECT_TRUE(dialog.findChild<QPushButton*>("cmdOK")->isEnabled());
}

}  // namespace
