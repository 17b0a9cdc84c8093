// The options, by the pilot's hands, over the map.
#include <QComboBox>
#include <QListWidget>
#include <QPushButton>
#include <QTimer>

#include "settings/settings_file.h"
#include "tests/windows/map_window.h"
#include "windows/frmOptions.h"
#include "windows/style.h"

namespace {

class OptionsWindow : public MapWindow {
 protected:
  // Opens the options over the map; what is still open after act is cancelled.
  void InOptions(const std::function<void(frmOptions&)>& act) {
    if (!window) Open();
    QTimer::singleShot(0, qApp, [&] {
      auto* options = qobject_cast<frmOptions*>(QApplication::activeModalWidget());
      ASSERT_NE(options, nullptr);
      act(*options);
      if (options->isVisible()) options->reject();
    });
    Trigger("mnuOptions");
  }
  template <class Control>
  Control& In(frmOptions& options, const QString& name) {
    auto* control = options.findChild<Control*>(name);
    if (control == nullptr) throw std::runtime_error("no control " + name.toStdString());
    return *control;
  }
  void Type(frmOptions& options, const QString& field, const QString& text) {
    auto& edit = In<QLineEdit>(options, field);
    edit.selectAll();
    text.isEmpty() ? QTest::keyClick(&edit, Qt::Key_Delete) : QTest::keyClicks(&edit, text);
  }
  void Click(frmOptions& options, const QString& button) {
    QTest::mouseClick(&In<QAbstractButton>(options, button), Qt::LeftButton);
  }
  void ShowPage(frmOptions& options, OptionGroup group) {
    In<QListWidget>(options, "lstGroups").setCurrentRow(static_cast<int>(group));
  }
  QString Refusal(frmOptions& options, const QString& key) {
    const auto& label = In<QLabel>(options, "refusal_" + key);
    return label.isVisibleTo(label.parentWidget()) ? label.text() : QString();
  }
};

TEST_F(OptionsWindow, AWrongValueIsRefusedBesideItsField) {
  InOptions([&](frmOptions& options) {
    ShowPage(options, OptionGroup::plan);
    EXPECT_EQ(In<QLineEdit>(options, "updnSecLength").text(), "50");
    EXPECT_FALSE(In<QPushButton>(options, "cmdRefused").isVisible());
    Type(options, "updnSecLength", "5");
    Type(options, "updnSecWidth", "100");
    EXPECT_EQ(Refusal(options, "SECLEN"), "From 10 to 500 NM.");
    EXPECT_EQ(Refusal(options, "SECWIDTH"), QString::fromUtf8("From 1 to 90°."));
    EXPECT_FALSE(In<QPushButton>(options, "cmdOK").isEnabled());
    EXPECT_FALSE(In<QPushButton>(options, "cmdApply").isEnabled());
    EXPECT_EQ(In<QPushButton>(options, "cmdRefused").text(), "2 values are refused");
    EXPECT_EQ(In<QListWidget>(options, "lstGroups").currentItem()->text(), "Flight plan (2)");
    ShowPage(options, OptionGroup::map);
    Click(options, "cmdRefused");
    EXPECT_TRUE(In<QLineEdit>(options, "updnSecLength").isVisible());
    Type(options, "updnSecLength", "60");
    QTest::keyClick(&In<QLineEdit>(options, "updnSecLength"), Qt::Key_Up);
    Type(options, "updnSecWidth", "45");
    EXPECT_EQ(Refusal(options, "SECWIDTH"), "");
    EXPECT_EQ(session.settings.SECLEN, 50);
    Click(options, "cmdOK");
    EXPECT_FALSE(options.isVisible());
  });
  EXPECT_EQ(session.settings.SECLEN, 61);
  EXPECT_EQ(session.settings.SECWIDTH, 45);
  EXPECT_EQ(ReadIni(session.home).settings.SECLEN, 61);
  EXPECT_TRUE(messages.texts.empty());
}

TEST_F(OptionsWindow, AColourShowsOnTheMapAsItIsTried) {
  InOptions([&](frmOptions& options) {
    ShowPage(options, OptionGroup::groundColors);
    QApplication::processEvents();
    const int before = painted;
    options.Row("LAND").askColor = [&](const QString& color, const auto& tried) {
      EXPECT_EQ(color, "#2f2f00");
      tried("#ff0000");
      QApplication::processEvents();
      EXPECT_GT(painted, before);
      EXPECT_EQ(session.settings.colors.LAND, 255);
      return QString();
    };
    Click(options, "opt_LAND");
    EXPECT_EQ(session.settings.colors.LAND, 12079);
    options.Row("LAND").askColor = [](const QString&, const auto&) { return QString("#00ff00"); };
    Click(options, "opt_LAND");
    EXPECT_EQ(session.settings.colors.LAND, 65280);
    options.reject();
  });
  EXPECT_EQ(session.settings.colors.LAND, 12079);
}

TEST_F(OptionsWindow, EachSetKeepsItsColours) {
  Open();
  Trigger("mnuNight");
  EXPECT_FALSE(IsNightStyle());
  EXPECT_EQ(session.settings.colors.LAND, dayColors.LAND);
  InOptions([&](frmOptions& options) {
    ShowPage(options, OptionGroup::groundColors);
    options.Row("LAND").SetText("#00ff00");
    EXPECT_FALSE(options.Row("LAND").IsDefault());
    auto& set = In<QComboBox>(options, "opt_NIGHT");
    EXPECT_EQ(set.currentText(), "Day");
    QTest::keyClick(&set, Qt::Key_Down);
    EXPECT_TRUE(IsNightStyle());
    EXPECT_EQ(options.Row("LAND").Text(), "#2f2f00");
    EXPECT_TRUE(options.Row("LAND").IsDefault());
    Click(options, "cmdOK");
  });
  EXPECT_TRUE(Find<QAction>("mnuNight").isChecked());
  EXPECT_EQ(session.settings.colors.LAND, nightColors.LAND);
  Trigger("mnuNight");
  EXPECT_EQ(session.settings.colors.LAND, 65280);
}

TEST_F(OptionsWindow, AFolderIsLookedForAndCanBeCreated) {
  const QString missing = QString::fromStdString((folder.Path() / "plans" / "gpx").string());
  InOptions([&](frmOptions& options) {
    ShowPage(options, OptionGroup::folders);
    EXPECT_TRUE(In<QLineEdit>(options, "opt_RADCONPATH").placeholderText().endsWith("FSplan/RC"));
    options.Row("GPXPATH").askFolder = [&](const QString&) { return missing; };
    Click(options, "browse_GPXPATH");
    EXPECT_EQ(Refusal(options, "GPXPATH"), "There is no such folder.");
    EXPECT_FALSE(In<QPushButton>(options, "cmdOK").isEnabled());
    Click(options, "create_GPXPATH");
    EXPECT_EQ(Refusal(options, "GPXPATH"), "");
    ShowPage(options, OptionGroup::start);
    Type(options, "opt_FSPATH10", missing);
    EXPECT_EQ(Refusal(options, "FSPATH10"), "There is no scenery.cfg in this folder.");
    folder.Write("plans/gpx/Scenery.cfg", "");
    Type(options, "opt_FSPATH09", missing);
    Type(options, "opt_FSPATH10", "");
    Click(options, "cmdOK");
  });
  EXPECT_EQ(session.settings.GPXPATH, missing.toStdString());
  EXPECT_EQ(ReadSimulatorPaths(session.home).fsPath09, missing.toStdString());
  EXPECT_EQ(session.strFSPath, missing.toStdString());
}

TEST_F(OptionsWindow, AFolderThatIsGoneStopsNothingElse) {
  session.settings.GPXPATH = "/no/such/folder";
  InOptions([&](frmOptions& options) {
    ShowPage(options, OptionGroup::folders);
    EXPECT_EQ(Refusal(options, "GPXPATH"), "There is no such folder.");
    EXPECT_TRUE(In<QPushButton>(options, "cmdOK").isEnabled());
  });
}

// With it Velmora would not start again.
TEST_F(OptionsWindow, ASimulatorWithoutDatabaseIsRefused) {
  InOptions([&](frmOptions& options) {
    QTest::keyClick(&In<QComboBox>(options, "opt_FSX"), Qt::Key_Down);
    EXPECT_EQ(Refusal(options, "FSX"), "It has no database yet: run the Database Manager first.");
    folder.Write("database/FS10/airport.vlm", "x");
    QTest::keyClick(&In<QComboBox>(options, "opt_FSX"), Qt::Key_Up);
    QTest::keyClick(&In<QComboBox>(options, "opt_FSX"), Qt::Key_Down);
    EXPECT_EQ(Refusal(options, "FSX"), "");
  });
}

TEST_F(OptionsWindow, DefaultsComeBackByFieldPageAndAll) {
  session.settings.SECLEN = 60;
  session.settings.SECWIDTH = 40;
  session.settings.MMCOUNTERSET = 20;
  InOptions([&](frmOptions& options) {
    ShowPage(options, OptionGroup::plan);
    EXPECT_EQ(In<QToolButton>(options, "restore_SECLEN").toolTip(), "The default is 50");
    EXPECT_FALSE(In<QToolButton>(options, "restore_GC").isEnabled());
    Click(options, "restore_SECLEN");
    EXPECT_EQ(options.Row("SECLEN").Text(), "50");
    EXPECT_EQ(options.Row("SECWIDTH").Text(), "40");
    Click(options, "cmdRestorePage");
    EXPECT_EQ(options.Row("SECWIDTH").Text(), "30");
    EXPECT_EQ(options.Row("MMCOUNTERSET").Text(), "20");
    Click(options, "cmdRestoreAll");
    EXPECT_EQ(options.Row("MMCOUNTERSET").Text(), "10");
  });
  EXPECT_EQ(session.settings.SECLEN, 60);  // cancelled
  UseColorSet(session.settings, false);
  session.settings.colors.LAND = 0;
  InOptions([&](frmOptions& options) {
    ShowPage(options, OptionGroup::groundColors);
    Click(options, "cmdRestorePage");
    EXPECT_EQ(options.Row("NIGHT").Text(), "0");
    EXPECT_EQ(session.settings.colors.LAND, dayColors.LAND);
  });
}

TEST_F(OptionsWindow, OptionsAreFoundByTheirWords) {
  InOptions([&](frmOptions& options) {
    const auto shown = [&] {
      QStringList names;
      for (const OptionRow* row : options.findChildren<OptionRow*>())
        if (row->isVisible()) names.append(row->objectName());
      return names;
    };
    Type(options, "txtFindOption", "UNIT fuel");
    EXPECT_EQ(shown(), QStringList{"row_FUEL"});
    Type(options, "txtFindOption", "zzz");
    EXPECT_EQ(shown(), QStringList{});
    Type(options, "txtFindOption", "");
    EXPECT_TRUE(shown().contains("row_FSX"));
  });
}

TEST_F(OptionsWindow, AFileThatCannotBeWrittenIsToldAndNothingIsLost) {
  std::filesystem::create_directory(folder.Path() / "vlm.ini");
  InOptions([&](frmOptions& options) {
    options.Row("SECLEN").SetText("70");
    Click(options, "cmdOK");
    EXPECT_TRUE(options.isVisible());
    ASSERT_EQ(messages.texts.size(), 1u);
    EXPECT_EQ(messages.texts[0].rfind("Error in writing VLM.INI file\n\n", 0), 0u);
    EXPECT_GT(messages.texts[0].size(), iniWriteFailedText.size() + 5);
  });
  EXPECT_EQ(session.settings.SECLEN, 70);
}

}  // namespace
