// Route segments with real clicks and keys: saved from one plan, put into
// another, deleted.
#include <QListWidget>
#include <QRadioButton>
#include <QTimer>

#include "tests/windows/map_window.h"
#include "windows/frmSaveSegment.h"

namespace {

class SegmentWindow : public MapWindow {
 protected:
  SegmentWindow() {
    RunwayRec runway;
    runway.strRwyID = "09";
    runway.strRwyIDRecip = "27";
    runway.intLength = 9000;
    session.database.runways = {runway};
    session.database.airports[0].lngRunways = 1;
    session.database.airports[0].firstRunway = 0;
  }

  void OpenWithRoute() {
    Open();
    window->Editor().StartPlan(0, 1);
    window->Editor().GenerateRoute(AirwayNetwork::lowAltitude);
    ASSERT_EQ(Codes(), "EDDA A B C Z EDDB");
  }

  // Runs the menu's command; hands act on the window that it opens.
  void WithDialog(const QString& menu, const std::function<void(frmSaveSegment&)>& hands) {
    bool seen = false;
    QTimer::singleShot(0, window.get(), [&] {
      auto* shown = qobject_cast<frmSaveSegment*>(QApplication::activeModalWidget());
      if (shown == nullptr) return;
      seen = true;
      dialog = shown;
      hands(*shown);
      if (shown->isVisible()) QTest::keyClick(shown, Qt::Key_Escape);
    });
    Trigger(menu);
    QApplication::processEvents();
    EXPECT_TRUE(seen) << menu.toStdString();
  }

  template <class Control>
  Control& In(const QString& name) {
    auto* control = dialog->findChild<Control*>(name);
    if (control == nullptr) throw std::runtime_error("no control " + name.toStdString());
    return *control;
  }
  void Choose(SegmentType type) {
    In<QRadioButton>(QString("optSegmentType(%1)").arg(static_cast<int>(type))).click();
  }
  void ClickItem(const QString& list, int row, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
    auto& widget = In<QListWidget>(list);
    QTest::mouseClick(widget.viewport(), Qt::LeftButton, modifiers,
                      widget.visualItemRect(widget.item(row)).center());
  }
  void Ok() { QTest::mouseClick(&In<QPushButton>("cmdOK"), Qt::LeftButton); }
  std::string LastMessage() const { return messages.texts.empty() ? "" : messages.texts.back(); }

  std::string Codes() const {
    std::string codes;
    for (const PlanWaypoint& row : session.plan.rows)
      codes += (codes.empty() ? "" : " ") + row.Code.Text();
    return codes;
  }

  frmSaveSegment* dialog = nullptr;
};

TEST_F(SegmentWindow, TheMenusFollowThePlan) {
  Open();
  const auto enabled = [&] {
    return std::pair(Find<QAction>("mnuOpenSegment").isEnabled(),
                     Find<QAction>("mnuSaveSegment").isEnabled());
  };
  EXPECT_EQ(enabled(), std::pair(false, false)) << "without a plan";
  window->Editor().StartPlan(0, 1);
  EXPECT_EQ(enabled(), std::pair(true, true));
  window->Editor().Change("test (", [&] { session.plan.MissingWaypoints = true; });
  EXPECT_EQ(enabled(), std::pair(false, false)) << "with waypoints that the database lacks";
}

TEST_F(SegmentWindow, AnEnrouteSegmentGoesFromOnePlanIntoAnother) {
  OpenWithRoute();
  const std::vector<PlanWaypoint> saved(session.plan.rows.begin() + 2, session.plan.rows.begin() + 4);
  WithDialog("mnuSaveSegment", [&](frmSaveSegment& window) {
    EXPECT_EQ(window.windowTitle(), " Save Segment");
    EXPECT_EQ(In<QLabel>("lblFpWaypoints").text(), "Select waypoints for segment");
    Choose(SegmentType::enroute);
    EXPECT_EQ(In<QLabel>("lblMessage").text(), "No segments available!");
    Ok();
    EXPECT_EQ(LastMessage(), "You have to select waypoints for the segment!");
    ClickItem("lstFpWaypoints", 0);
    Ok();
    EXPECT_EQ(messages.texts.size(), 2U) << "an airport is none";
    const QImage before = In<SegmentMap>("pctSid").grab().toImage();
    ClickItem("lstFpWaypoints", 2);
    ClickItem("lstFpWaypoints", 3, Qt::ShiftModifier);
    EXPECT_NE(In<SegmentMap>("pctSid").grab().toImage(), before) << "the preview follows the selection";
    Ok();
    EXPECT_EQ(LastMessage(), "You have to specify a description!");
    QTest::keyClicks(&In<QLineEdit>("txtSegments"), "B+C, middle");
    Ok();
    EXPECT_EQ(LastMessage(), "You have to specify a file name!");
    QTest::keyClicks(&In<QLineEdit>("txtSegFilename"), "a/b");
    Ok();
    EXPECT_NE(LastMessage().find("a/b"), std::string::npos);
    In<QLineEdit>("txtSegFilename").clear();
    QTest::keyClicks(&In<QLineEdit>("txtSegFilename"), "middle");
    QTest::keyClick(&In<QLineEdit>("txtSegFilename"), Qt::Key_Return);
    EXPECT_FALSE(window.isVisible());
  });
  EXPECT_TRUE(
      folder.Read("Segments/Enroute/middle.enr").starts_with("[VLM Segment]\r\nB+C, middle\r\nWP=Int,B,"));

  window->Editor().StartPlan(1, 2);
  messages.texts.clear();
  WithDialog("mnuOpenSegment", [&](frmSaveSegment& window) {
    EXPECT_EQ(window.windowTitle(), " Open Segment");
    EXPECT_EQ(In<QLabel>("lblFpWaypoints").text(), "Select waypoint for insertion");
    Ok();
    EXPECT_EQ(LastMessage(), "No segments available!") << "the departure has none";
    Choose(SegmentType::enroute);
    ASSERT_EQ(In<QListWidget>("lstSegments").count(), 1);
    EXPECT_EQ(In<QListWidget>("lstSegments").item(0)->text(), "B+C, middle");
    Ok();
    EXPECT_EQ(LastMessage(), "You have to select a waypoint for insertion!");
    ClickItem("lstFpWaypoints", 1);
    Ok();
    EXPECT_EQ(LastMessage(), "you cannot select the final waypoint for insertion!");
    const auto zoom = In<SegmentMap>("pctSid").View().ZoomIndex;
    QTest::keyClick(&In<QListWidget>("lstFiles"), '+');
    EXPECT_EQ(In<SegmentMap>("pctSid").View().ZoomIndex, zoom - 1);
    ClickItem("lstFpWaypoints", 0);
    QTest::keyClick(&window, Qt::Key_Return);
  });
  EXPECT_EQ(Codes(), "EDDB B C AFIL");
  for (std::size_t i = 0; i < saved.size(); ++i) {
    const PlanWaypoint& row = session.plan.rows[i + 1];
    EXPECT_EQ(row.Airway, saved[i].Airway);
    EXPECT_EQ(row.DbIndex, saved[i].DbIndex);
    EXPECT_EQ(row.Lon, saved[i].Lon);
  }
  EXPECT_EQ(messages.texts.size(), 3U);
  Trigger("mnuUndo");
  EXPECT_EQ(Codes(), "EDDB AFIL");
}

TEST_F(SegmentWindow, AnAirportsSegmentsShareItsFile) {
  OpenWithRoute();
  session.plan.DepartureID = "27";
  const auto save = [&](const char* description, const QString& runway) {
    WithDialog("mnuSaveSegment", [&](frmSaveSegment&) {
      EXPECT_EQ(In<QLabel>("lblAirport").text(), "EDDA  EDDA Airport");
      EXPECT_EQ(In<QComboBox>("cmbRunway").currentText(), "27") << "the start's";
      In<QComboBox>("cmbRunway").setCurrentText(runway);
      ClickItem("lstFpWaypoints", 1);
      QTest::keyClicks(&In<QLineEdit>("txtSegments"), description);
      Ok();
    });
  };
  save("East", "09");
  save("Everywhere", "Any");
  const std::string text = folder.Read("Segments/Departures/EDDA.dep");
  const std::size_t second = text.find("[BEGIN]\r\nRwy: ANY\r\nEverywhere");
  EXPECT_TRUE(text.starts_with("[BEGIN]\r\nRwy: 09\r\nEast\r\nWP=Int,A,"));
  ASSERT_NE(second, std::string::npos);

  WithDialog("mnuOpenSegment", [&](frmSaveSegment&) {
    auto& segments = In<QListWidget>("lstSegments");
    ASSERT_EQ(segments.count(), 2);
    EXPECT_EQ(segments.item(0)->text(), "09   East");
    EXPECT_EQ(segments.item(1)->text(), "Any   Everywhere");
    messages.answer = false;
    QTest::keyClick(&segments, Qt::Key_Delete);
    EXPECT_EQ(segments.count(), 2);
    messages.answer = true;
    QTest::keyClick(&segments, Qt::Key_Delete);
    ASSERT_EQ(segments.count(), 1);
    EXPECT_EQ(folder.Read("Segments/Departures/EDDA.dep"), text.substr(second));
    QTest::keyClick(&In<QListWidget>("lstFiles"), Qt::Key_Delete);
    EXPECT_EQ(LastMessage(), "Are you sure you want to delete this File?");
    EXPECT_EQ(segments.count(), 0);
    EXPECT_EQ(In<QLabel>("lblMessage").text(), "No segments available!");
  });
  EXPECT_FALSE(std::filesystem::exists(folder.Path() / "Segments/Departures/EDDA.dep"));
}

TEST_F(SegmentWindow, OtherFilesAreRefusedAndBrokenLinesTold) {
  folder.Write("Segments/Arrivals/EDDB.arr", "my notes");
  folder.Write("Segments/Enroute/a.enr", "[BEGIN]\nANY\n");
  folder.Write("Segments/Enroute/b.enr", "[VLM Segment]\nhalf\nWP=Fix,X,X,1,2,0,0,0,1,5\nWP=Fix,Y,Y,1");
  OpenWithRoute();
  WithDialog("mnuOpenSegment", [&](frmSaveSegment&) {
    ClickItem("lstFpWaypoints", 0);
    Choose(SegmentType::arrival);
    Ok();
    EXPECT_EQ(LastMessage(), "This is no valid segment file");
    Choose(SegmentType::enroute);
    Ok();
    EXPECT_EQ(LastMessage(), "This is no valid enroute file");
    ClickItem("lstFiles", 1);
    EXPECT_EQ(In<QLabel>("lblMessage").text(), "line 4: the waypoint is not complete; it is left out");
    Ok();
  });
  EXPECT_EQ(Codes(), "EDDA X A B C Z EDDB");
}

TEST_F(SegmentWindow, AnExistingFileIsReplacedOnYesAlone) {
  OpenWithRoute();
  folder.Write("Segments/Enroute/old.enr", "[VLM Segment]\nold\n");
  for (const bool answer : {false, true}) {
    messages.answer = answer;
    WithDialog("mnuSaveSegment", [&](frmSaveSegment&) {
      Choose(SegmentType::enroute);
      ClickItem("lstFpWaypoints", 1);
      ClickItem("lstFiles", 0);
      EXPECT_EQ(In<QLineEdit>("txtSegFilename").text(), "old");
      QTest::keyClicks(&In<QLineEdit>("txtSegments"), "new");
      Ok();
    });
    EXPECT_EQ(folder.Read("Segments/Enroute/old.enr").starts_with("[VLM Segment]\r\nnew"), answer);
  }
}

}  // namespace
