// Plans in and out of files, in the main window and in frmSaveRoute.
#include <QCheckBox>
#include <QDropEvent>
#include <QLineEdit>
#include <QMenu>
#include <QMimeData>
#include <QRadioButton>

#include "flightplan/recent_plans.h"
#include "tests/windows/map_window.h"

namespace {

namespace fs = std::filesystem;

class PlanFiles : public MapWindow {
 protected:
  std::string Codes() {
    std::string codes;
    for (const PlanWaypoint& row : session.plan.rows)
      codes += (codes.empty() ? "" : " ") + row.Code.Text();
    return codes;
  }
  // A plan over the low airways, in the file saved.pln.
  void SaveRoute() {
    Open().Editor().StartPlan(0, 1);
    Trigger("mnuCreateLoAlt");
    ChooseFile(file);
    Trigger("mnuSaveFPAs");
  }
  void Drop(const fs::path& dropped) {
    QMimeData dragged;
    dragged.setUrls({QUrl::fromLocalFile(QString::fromStdString(dropped.string()))});
    QDragEnterEvent enter(QPoint(100, 100), Qt::CopyAction, &dragged, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(window.get(), &enter);
    EXPECT_TRUE(enter.isAccepted());
    QDropEvent drop(QPointF(100, 100), Qt::CopyAction, &dragged, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(window.get(), &drop);
  }
  QString Title() { return window->windowTitle(); }

  fs::path file = folder.Path() / "plans" / "saved.pln";
  fs::path unsaved = folder.Path() / "user" / "unsaved.pln";
};

TEST_F(PlanFiles, ASavedPlanIsOpenedOrDroppedOnTheWindow) {
  SaveRoute();
  const std::string saved = Codes();
  EXPECT_EQ(Title(), "Velmora 8.6 <saved>[*]");
  EXPECT_EQ(session.settings.FPSEL, 1);
  EXPECT_EQ(session.settings.FPPATH09, file.parent_path().string() + "\\");
  Trigger("mnuNewFP");
  EXPECT_EQ(Title(), "Velmora 8.6[*]");
  Trigger("mnuOpenFP");
  EXPECT_EQ(Codes(), saved);
  EXPECT_EQ(Title(), "Velmora 8.6 <saved>[*]");
  EXPECT_TRUE(messages.texts.empty());
  EXPECT_EQ(messages.askedToSave, 0) << "nothing was changed";
  EXPECT_TRUE(Find<QAction>("mnuCreateHiAlt").isEnabled());
  Trigger("mnuUndo");
  EXPECT_EQ(Codes(), "") << "opening is a change like any other";
  Drop(file);
  EXPECT_EQ(Codes(), saved);
}

TEST_F(PlanFiles, APlanOfAnotherProgramIsImportedAndHasNoFileYet) {
  SaveRoute();
  session.protocol.Open(session.home);
  const std::string before = Codes();
  const std::string saved = folder.Read("plans/saved.pln");
  const std::string theirs = "I\n3 version\n0\n1\n1 EDDA 0 0 0\n11 NOWHR 0 1 3\n1 EDDB 0 0 10\n";
  folder.Write("theirs.fms", theirs);
  window->askImportFile = [&](const QString&) {
    return QString::fromStdString((folder.Path() / "theirs.fms").string());
  };
  Trigger("mnuImport");
  EXPECT_EQ(Codes(), "EDDA NOWHR EDDB");
  ASSERT_EQ(messages.texts.size(), 1U);
  EXPECT_NE(messages.texts[0].find("NOWHR is not in the database"), std::string::npos);
  EXPECT_NE(folder.Read("VLM_Protocol.log").find("NOWHR is not in the database"), std::string::npos);
  EXPECT_EQ(Title(), "Velmora 8.6[*]");
  Trigger("mnuSaveFP");
  EXPECT_EQ(folder.Read("plans/saved.pln"), saved) << "the plan that was there before is not written over";
  EXPECT_EQ(folder.Read("theirs.fms"), theirs);
  Trigger("mnuUndo");
  EXPECT_EQ(Codes(), before);
  messages.answer = false;
  Drop(folder.Path() / "theirs.fms");
  EXPECT_EQ(Codes(), "EDDA NOWHR EDDB");
  window->askImportFile = [&](const QString&) { return QString::fromStdString(file.string()); };
  Trigger("mnuImport");
  EXPECT_EQ(Codes(), before) << "a plan of ours is opened";
  EXPECT_EQ(Title(), "Velmora 8.6 <saved>[*]");
  EXPECT_EQ(pointer.depth, 0);
}

TEST_F(PlanFiles, AFileThatIsNoPlanLeavesThePlan) {
  Open().Editor().StartPlan(0, 1);
  folder.Write("other.pln", "[Flightplan]\r\ntype=IFR\r\n");
  Drop(folder.Path() / "other.pln");
  EXPECT_EQ(messages.texts.back(), "This file is no flight plan of a kind that can be imported!");
  Drop("/nowhere/at/all.pln");
  EXPECT_TRUE(messages.texts.back().starts_with("The flight plan could not be opened."));
  EXPECT_EQ(Codes(), "EDDA EDDB");
  EXPECT_EQ(pointer.depth, 0);
}

TEST_F(PlanFiles, APlanWithMissingWaypointsIsShownAndNotChanged) {
  SaveRoute();
  const std::string saved = Codes();
  for (IntersectionRec& intersection : session.database.intersections)
    if (intersection.strCode == "B") intersection.sngLon += 3;
  Trigger("mnuOpenFP");
  EXPECT_EQ(Codes(), saved);
  EXPECT_TRUE(messages.texts.back().starts_with("Some waypoints are missing in current database!"));
  for (const char* command :
       {"mnuCreateNavaid", "mnuCreateLoAlt", "mnuCreateHiAlt", "mnuSaveFPAs", "mnuSaveFP", "mnuManWP"})
    EXPECT_FALSE(Find<QAction>(command).isEnabled()) << command;
}

TEST_F(PlanFiles, SavingAgainGoesIntoTheKnownFile) {
  Open();
  constexpr const char* nameless = "No flight plan specified; use menu <save as..>!";
  Trigger("mnuSaveFP");
  EXPECT_EQ(messages.texts, std::vector<std::string>{nameless});
  SaveRoute();
  const fs::path exported = folder.Path() / "FSplan" / "RC" / "saved.pln";
  session.settings.FPSEL = 1 | 2;
  Trigger("mnuDeleteEnrouteWPs");
  EXPECT_TRUE(window->isWindowModified());
  Trigger("mnuSaveFP");
  EXPECT_FALSE(window->isWindowModified());
  EXPECT_EQ(folder.Read("plans/saved.pln").find("WP="), std::string::npos);
  EXPECT_FALSE(fs::exists(exported)) << "the own format alone";
  // Another flight does not go into the file of this one.
  window->Editor().StartPlan(0, 2);
  Trigger("mnuSaveFP");
  EXPECT_EQ(messages.texts.back(), nameless);
}

TEST_F(PlanFiles, AChangedPlanIsNotLostWithoutAQuestion) {
  SaveRoute();
  const auto change = [&] { window->Editor().DeleteRow(1); };
  const auto lose = [&](int how) {
    if (how == 0) Trigger("mnuNewFP");
    if (how == 1) Drop(file);
    if (how == 2) window->close();
  };
  for (const int how : {0, 1, 2}) {
    ChooseFile(file);
    Trigger("mnuOpenFP");
    change();
    // The pilot goes back.
    messages.savesFirst.reset();
    const std::string changed = Codes();
    lose(how);
    EXPECT_EQ(Codes(), changed) << how;
    EXPECT_TRUE(window->isVisible()) << how;
    const int asked = messages.askedToSave;
    // Yes, but the file cannot be written: nothing is lost.
    messages.savesFirst = true;
    fs::rename(file, folder.Path() / "kept.pln");
    fs::create_directory(file);
    const std::string before = Codes();
    lose(how);
    EXPECT_EQ(messages.askedToSave, asked + 1) << how;
    EXPECT_EQ(Codes(), before) << how;
    EXPECT_TRUE(window->isVisible());
    EXPECT_TRUE(messages.texts.back().starts_with("The flight plan could not be saved.")) << how;
    fs::remove(file);
    fs::rename(folder.Path() / "kept.pln", file);
    // Yes: the file is the changed plan.
    lose(how);
    EXPECT_EQ(folder.Read("plans/saved.pln").find(",A,A,"), std::string::npos) << how;
    messages.savesFirst = false;
  }
  EXPECT_FALSE(window->isVisible());
}

TEST_F(PlanFiles, AfterACrashThePlanIsOffered) {
  Open().Editor().StartPlan(0, 1);
  Trigger("mnuCreateLoAlt");
  const std::string lost = Codes();
  QTRY_VERIFY_WITH_TIMEOUT(fs::exists(unsaved), 10000);
  window.reset();  // no closeEvent: as if the machine had failed
  session.plan = {};

  Open();
  QTest::qWait(4000);  // the pilot takes his time
  window->Begin({}, false);
  ASSERT_EQ(messages.texts.size(), 1u);
  EXPECT_EQ(messages.texts[0], unsavedPlanText);
  EXPECT_EQ(Codes(), lost);
  EXPECT_TRUE(fs::exists(unsaved)) << "it is not saved yet";
  window->close();
  EXPECT_FALSE(fs::exists(unsaved));
  Open().Begin(folder.Path() / "gone.pln", true);
  EXPECT_EQ(messages.texts.size(), 2u) << "only the file of the command line that is not there";
  EXPECT_NE(messages.texts.back().find("gone.pln: No such file"), std::string::npos);
}

TEST_F(PlanFiles, PlansLastUsedAreInTheMenu) {
  SaveRoute();
  const std::string saved = Codes();
  auto& menu = Find<QMenu>("mnuRecent");
  const auto list = [&] { Q_EMIT static_cast<QMenu*>(menu.parent())->aboutToShow(); };
  Trigger("mnuNewFP");
  list();
  ASSERT_EQ(menu.actions().size(), 1);
  EXPECT_TRUE(menu.actions()[0]->text().startsWith("&1  saved\t"));
  menu.actions()[0]->trigger();
  EXPECT_EQ(Codes(), saved);
  fs::remove(file);
  list();
  menu.actions()[0]->trigger();
  EXPECT_EQ(messages.texts.back(), "The flight plan " + file.string() + " is no longer there.");
  EXPECT_TRUE(RecentPlans(session.settings).empty());
}

// ---- the window that saves

class SaveWindow : public PlanFiles {
 protected:
  // Runs body with the window on the screen.
  void In(const char* menu, const std::function<void(frmSaveRoute&)>& body) {
    window->showSaveRoute = [body](frmSaveRoute& dialog) {
      dialog.show();
      body(dialog);
      return dialog.result() == QDialog::Accepted;
    };
    Trigger(menu);
  }
  template <class Control>
  static Control& In(QDialog& dialog, const char* name) {
    auto* control = dialog.findChild<Control*>(name);
    if (control == nullptr) throw std::runtime_error(std::string("no control ") + name);
    return *control;
  }
  static void Ok(QDialog& dialog) { QTest::mouseClick(&In<QPushButton>(dialog, "cmdOK"), Qt::LeftButton); }
};

TEST_F(SaveWindow, TakesNameKindAndFormats) {
  Open().Editor().StartPlan(0, 1);
  session.settings.FPSEL = 1 | 1 << 9;
  In("mnuSaveFPAs", [&](frmSaveRoute& dialog) {
    EXPECT_EQ(In<QLabel>(dialog, "lblPlanName").text(), "Unspecified");
    EXPECT_TRUE(In<QRadioButton>(dialog, "optIFR").isChecked());
    EXPECT_TRUE(In<QCheckBox>(dialog, "chckFormat(9)").isChecked());
    EXPECT_FALSE(In<QCheckBox>(dialog, "chckFormat(1)").isChecked());
    EXPECT_EQ(dialog.Folder(), folder.Path() / "FSplan") << "made where no folder is set";
    EXPECT_EQ(In<QLineEdit>(dialog, "txtFileName").text(), "EDDAEDDB") << "proposed";
    In<QLineEdit>(dialog, "txtFileName").clear();
    Ok(dialog);
    EXPECT_EQ(messages.texts, std::vector<std::string>{"Please specify file name!"});
    QTest::keyClicks(&In<QLineEdit>(dialog, "txtFileName"), "a/b");
    Ok(dialog);
    EXPECT_EQ(In<QLabel>(dialog, "lblFault").text().left(25), "A file name cannot hold a");
    In<QLineEdit>(dialog, "txtFileName").setText("trip.pln");
    EXPECT_EQ(In<QLabel>(dialog, "lblFormat(9)").toolTip(),
              QString::fromStdString((folder.Path() / "FSplan/PM/trip.pln").string()));
    In<QRadioButton>(dialog, "optVFR").click();
    In<QCheckBox>(dialog, "chckFormat(1)").click();
    In<QCheckBox>(dialog, "chckFormat(9)").click();
    Ok(dialog);
    EXPECT_EQ(dialog.result(), QDialog::Accepted);
  });
  EXPECT_EQ(session.settings.FPSEL, 1 | 1 << 1);
  EXPECT_NE(folder.Read("FSplan/trip.pln").find("type=VFR\r\n"), std::string::npos);
  EXPECT_TRUE(fs::exists(folder.Path() / "FSplan/RC/trip.pln"));
  EXPECT_FALSE(fs::exists(folder.Path() / "FSplan/PM/trip.pln"));
  EXPECT_EQ(Title(), "Velmora 8.6 <trip>[*]");
}

TEST_F(SaveWindow, AsksBeforeAnotherPlanIsReplacedAndStaysOpenWhenThePlanIsNotSaved) {
  SaveRoute();
  const std::string before = folder.Read("plans/saved.pln");
  window->Editor().StartPlan(0, 2);
  messages.answer = false;
  ChooseFile(file);
  Trigger("mnuSaveFPAs");
  EXPECT_EQ(messages.texts.back(), "There is already:\n" + file.string() + "\nDo you wish to replace it?");
  EXPECT_EQ(folder.Read("plans/saved.pln"), before);
  folder.Write("blocked", "no folder");
  ChooseFile(folder.Path() / "blocked" / "trip.pln");
  Trigger("mnuSaveFPAs");
  EXPECT_TRUE(messages.texts.back().starts_with("The flight plan could not be saved."));
  EXPECT_EQ(Title(), "Velmora 8.6[*]");
}

TEST_F(SaveWindow, TheListIsWalkedByKeyboard) {
  SaveRoute();
  folder.Write("plans/old/older.pln", "no plan");
  folder.Write("plans/old/notes.txt", "");
  In("mnuOpenFP", [&](frmSaveRoute& dialog) {
    auto& list = In<PlanList>(dialog, "flstFPlan");
    auto& preview = In<QLabel>(dialog, "lblPreview");
    EXPECT_EQ(list.File(), file) << "the plan's own file is selected";
    EXPECT_TRUE(preview.text().contains("EDDA A V1 C V2 Z EDDB")) << preview.text().toStdString();
    EXPECT_EQ(In<QPushButton>(dialog, "cmdDirChange").text(), "&go directly to Velmora directory");
    QTest::keyClicks(&list, "old");
    QTest::keyClick(&list, Qt::Key_Return);
    EXPECT_EQ(dialog.Folder(), file.parent_path() / "old");
    EXPECT_EQ(list.topLevelItemCount(), 2) << "the way up and the one plan";
    EXPECT_EQ(preview.text(), "Sorry! This is not a valid VLM flight plan!");
    QTest::keyClick(&list, Qt::Key_Delete);
    EXPECT_FALSE(fs::exists(file.parent_path() / "old" / "older.pln"));
    EXPECT_EQ(messages.texts.back(), "Do you wish to delete older.pln?");
    QTest::keyClick(&list, Qt::Key_Backspace);
    EXPECT_EQ(dialog.Folder(), file.parent_path());
    list.Select("saved.pln");
    In<QPushButton>(dialog, "cmdDirChange").click();
    EXPECT_EQ(dialog.Folder(), folder.Path() / "FSplan");
    EXPECT_EQ(In<QPushButton>(dialog, "cmdDirChange").text(), "&go directly to FS flight plan directory");
    In<QPushButton>(dialog, "cmdDirChange").click();
    list.Select("saved.pln");
    QTest::keyClick(&list, Qt::Key_Return);
    EXPECT_EQ(dialog.ChosenFile(), file);
  });
}

}  // namespace
