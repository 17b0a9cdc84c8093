// Standard departures and arrivals with real clicks: taken from the list, shown
// on the chart, printed, deleted.
#include <QListWidget>
#include <QPdfWriter>
#include <QTemporaryDir>
#include <QTimer>
#include <QTreeWidget>

#include "tests/flightplan/procedure_bytes.h"
#include "tests/windows/map_window.h"
#include "windows/frmDepArr.h"
#include "windows/frmDisplaySidStar.h"
#include "windows/procedure_page.h"

namespace {

class ProcedureWindows : public MapWindow {
 protected:
  ProcedureWindows() {
    RunwayRec runway;
    runway.strRwyID = "09";
    runway.strRwyIDRecip = "27";
    runway.sngHeading = 90;
    runway.intLength = 9000;
    session.database.runways = {runway};
    for (int row = 0; row < 2; ++row) {
      AirportRec& airport = session.database.airports[static_cast<std::size_t>(row)];
      airport.lngRunways = 1;
      airport.firstRunway = 0;
    }
  }

  void WriteFiles() {
    std::vector<std::byte> sids, stars;
    AppendProcedure(sids, "EDDA", "27", "WEST1A", {{"X", 0, -1, 270}});
    AppendProcedure(sids, "EDDA", "09", "EAST1A", {{"A", 0, 0.3F, 90}, {"OFF", 0.4F, 2, 80}});
    AppendProcedure(sids, "EDDA", "00", "ANY1X", {{"B", 0, 3, 90}});
    AppendProcedure(stars, "EDDB", "00", "IN1A", {{"C", 0, 6, 90}, {"Z", 0, 9.8F, 90}});
    const auto text = [](const std::vector<std::byte>& bytes) {
      return std::string_view(reinterpret_cast<const char*>(bytes.data()), bytes.size());
    };
    folder.Write("database/sid.vlm", text(sids));
    folder.Write("database/star.vlm", text(stars));
  }

  void OpenWithPlan() {
    Open();
    window->Editor().StartPlan(0, 1);
    session.plan.DepartureID = "09";
  }

  // Runs the menu's command; hands act on the dialog that it opens.
  template <class Dialog>
  void WithDialog(const QString& menu, std::function<void(Dialog&)> hands) {
    bool seen = false;
    QTimer::singleShot(0, window.get(), [&] {
      auto* dialog = qobject_cast<Dialog*>(QApplication::activeModalWidget());
      if (dialog == nullptr) return;
      seen = true;
      hands(*dialog);
      if (dialog->isVisible()) dialog->reject();
    });
    Trigger(menu);
    QApplication::processEvents();
    EXPECT_TRUE(seen) << menu.toStdString();
  }

  std::string Codes() const {
    std::string codes;
    for (const PlanWaypoint& row : session.plan.rows)
      codes += (codes.empty() ? "" : " ") + row.Code.Text();
    return codes;
  }
};

QStringList Items(const QListWidget& list) {
  QStringList items;
  for (int i = 0; i < list.count(); ++i)
    items << list.item(i)->text();
  return items;
}

TEST_F(ProcedureWindows, AskForAPlanAndForTheirFiles) {
  Open();
  Press("cmdSIDSTAR");
  Trigger("mnuSelectStar");
  EXPECT_EQ(messages.texts, (std::vector<std::string>(2, "You have to file a flight plan first!!")));
  window->Editor().StartPlan(0, 1);
  messages.texts.clear();
  for (const char* menu : {"mnuSelectSid", "mnuSelectStar", "mnuDepArr"})
    Trigger(menu);
  ASSERT_EQ(messages.texts.size(), 3u);
  EXPECT_NE(messages.texts[0].find("sid.vlm"), std::string::npos) << messages.texts[0];
  EXPECT_NE(messages.texts[1].find("star.vlm"), std::string::npos);
  for (const std::string& text : messages.texts)
    EXPECT_NE(text.find("velmora-dbmanager --cifp DIR"), std::string::npos) << text;
}

TEST_F(ProcedureWindows, TakeOneFromTheList) {
  WriteFiles();
  OpenWithPlan();
  EXPECT_FALSE(Find<QAction>("mnuDeleteSid").isEnabled());
  WithDialog<frmDisplaySidStar>("mnuSelectSid", [&](frmDisplaySidStar& dialog) {
    EXPECT_EQ(dialog.windowTitle(), "Select SIDs for EDDA");
    auto& list = *dialog.findChild<QListWidget*>("lstSidStar");
    EXPECT_EQ(Items(list), (QStringList{"Rwy 09   EAST1A", "Any Rwy    ANY1X", "Rwy 27   WEST1A"}))
        << "those of the start runway first";
    const auto& steps = *dialog.findChild<QTreeWidget*>("lstSteps");
    EXPECT_EQ(steps.topLevelItemCount(), 2);
    QTest::keyClick(&list, Qt::Key_Down);
    EXPECT_EQ(steps.topLevelItemCount(), 1);
    EXPECT_EQ(steps.topLevelItem(0)->text(0), "B");
    QTest::keyClick(&list, Qt::Key_Up);
    QTest::keyClick(&dialog, Qt::Key_Return);
  });
  EXPECT_EQ(Codes(), "EDDA A EDDB") << "OFF is known to no table";
  EXPECT_EQ(session.plan.SidName, "EAST1A");
  EXPECT_TRUE(Find<QAction>("mnuDeleteSid").isEnabled());

  WithDialog<frmDisplaySidStar>("mnuSelectStar", [&](frmDisplaySidStar& dialog) {
    auto& list = *dialog.findChild<QListWidget*>("lstSidStar");
    const QPoint first = list.visualItemRect(list.item(0)).center();
    QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, first);
    QTest::mouseDClick(list.viewport(), Qt::LeftButton, {}, first);
  });
  ASSERT_EQ(Codes(), "EDDA A C Z EDDB");

  // Its line comes and goes with the menu entry, which repaints.
  QApplication::processEvents();
  const int before = painted;
  Trigger("mnuDisplaySid");
  Map().repaint();
  EXPECT_GT(painted, before);
  EXPECT_FALSE(session.switches.mnuDisplaySid);

  messages.answer = true;
  Trigger("mnuDeleteStar");
  EXPECT_EQ(messages.texts.back(), "Are you sure you want to delete the STAR?");
  EXPECT_EQ(Codes(), "EDDA A EDDB");
  Trigger("mnuUndo");
  EXPECT_EQ(Codes(), "EDDA A C Z EDDB");
}

TEST_F(ProcedureWindows, AnAirportWithoutAnyHasAnEmptyList) {
  WriteFiles();
  Open();
  window->Editor().StartPlan(1, 0);
  WithDialog<frmDisplaySidStar>("mnuSelectSid", [&](frmDisplaySidStar& dialog) {
    EXPECT_EQ(dialog.findChild<QListWidget*>("lstSidStar")->count(), 0);
    EXPECT_EQ(dialog.findChild<QLabel*>("lblEmpty")->text(), "EDDB has no SIDs in the database.");
    EXPECT_FALSE(dialog.findChild<QPushButton*>("cmdOK")->isEnabled());
    QTest::keyClick(&dialog, Qt::Key_Return);
    QTest::keyClick(&dialog, Qt::Key_Escape);
  });
  EXPECT_TRUE(session.plan.SidName.empty());
}

TEST_F(ProcedureWindows, TheChartShowsARunwaysProcedures) {
  WriteFiles();
  OpenWithPlan();
  WithDialog<frmDepArr>("mnuDepArr", [&](frmDepArr& dialog) {
    auto& runways = *dialog.findChild<QListWidget*>("lstRwy");
    auto& procedures = *dialog.findChild<QListWidget*>("lstProcedures");
    auto& message = *dialog.findChild<QLabel*>("lblMessage");
    auto& frame = *dialog.findChild<QGroupBox*>("SIDFrame");
    auto& toggle = *dialog.findChild<QPushButton*>("cmdSIDSTAR");
    EXPECT_EQ(Items(runways), (QStringList{"09  (09000ft)", "27  (09000ft)"}));
    EXPECT_EQ(frame.title(), "Departure for EDDA Rwy 09");
    EXPECT_EQ(Items(procedures), (QStringList{"EAST1A", "ANY1X  (any)"}));
    const QImage all = dialog.findChild<QWidget*>("SIDMap")->grab().toImage();

    QTest::mouseClick(procedures.viewport(), Qt::LeftButton, {},
                      procedures.visualItemRect(procedures.item(0)).center());
    EXPECT_EQ(message.text(), "On track 090°  to A. On track 080°  to OFF");
    EXPECT_NE(dialog.findChild<QWidget*>("SIDMap")->grab().toImage(), all) << "the picked one stands out";

    QTest::mouseClick(runways.viewport(), Qt::LeftButton, {},
                      runways.visualItemRect(runways.item(1)).center());
    EXPECT_EQ(frame.title(), "Departure for EDDA Rwy 27");
    EXPECT_EQ(Items(procedures), (QStringList{"WEST1A", "ANY1X  (any)"}));

    const ProcedureChart* printed = nullptr;
    dialog.print = [&](const ProcedureChart& chart) {
      printed = &chart;
      QPdfWriter paper(QString::fromStdString((folder.Path() / "page.pdf").string()));
      EXPECT_TRUE(PrintProcedure(chart, paper));
    };
    QTest::mouseClick(dialog.findChild<QPushButton*>("cmdPrint"), Qt::LeftButton);
    ASSERT_NE(printed, nullptr);
    EXPECT_GT(folder.Read("page.pdf").size(), 2000u);

    QTest::mouseClick(&toggle, Qt::LeftButton);
    EXPECT_EQ(frame.title(), "Arrival for EDDB Rwy 09");
    EXPECT_EQ(toggle.text(), "&Arrival");
    EXPECT_EQ(Items(procedures), QStringList{"IN1A  (any)"});
  });
}

}  // namespace
