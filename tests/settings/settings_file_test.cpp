#include "settings/settings_file.h"

#include <gtest/gtest.h>

#include "tests/temporary_folder.h"

TEST(SettingsFile, WhatIsMissingHasItsDefault) {
  for (const char* text : {"", "[User]\r\n", "nonsense", "SCALE=3"}) {
    const ReadIniResult result = ReadSettings(text);
    EXPECT_TRUE(result.successful) << text;
    EXPECT_EQ(result.settings.SCALE, 6);
    EXPECT_EQ(result.settings.AIRCRAFT, 12);
    EXPECT_EQ(result.settings.GC, -1);
    EXPECT_DOUBLE_EQ(result.settings.FAFDIST, 8.5);
    EXPECT_EQ(result.settings.FPSEL, 81);
    EXPECT_EQ(result.settings.colors.LAND, 12079);
    EXPECT_EQ(result.settings.NATRACKFILE, "North Atlantic Tracks");
    EXPECT_EQ(result.settings.COUNTRY, 75);
  }
}

TEST(SettingsFile, NumbersAreTheNumericValueOfTheText) {
  const Settings s =
      ReadSettings("[user]\nscale=13 NM\nMAPWIN=x\nFuel=1\n[FLIGHTPLAN]\nFafDist=7.25\n").settings;
  EXPECT_EQ(s.SCALE, 13);
  EXPECT_EQ(s.MAPWIN, 0);
  EXPECT_EQ(s.FUEL, 1);
  EXPECT_DOUBLE_EQ(s.FAFDIST, 7.25);
}

TEST(SettingsFile, ANumberThatDoesNotFitLeavesTheDefaultAndIsTold) {
  const ReadIniResult result = ReadSettings("[User]\nSCALE=70000\nMZOOM=-1\nTRACEALT=20000\n");
  EXPECT_FALSE(result.successful);
  EXPECT_EQ(result.settings.SCALE, 6);
  EXPECT_EQ(result.settings.MZOOM, 0);
  EXPECT_EQ(result.settings.TRACEALT, 20000);
}

TEST(SettingsFile, RoundTripKeepsEverySettingAndTheOlderFile) {
  const TemporaryFolder folder;
  const AppFolder home(folder.Path());
  folder.Write("vlm.ini", "; by hand\r\n[Own]\r\nKey=1\r\n");
  Settings settings;
  settings.SCALE = 3;
  settings.FAFDIST = 0.1;
  settings.colors.HILITE = 16777215;
  settings.FPPATH09 = "/home/pilot/Pläne";
  settings.IVAOVPW = "geheim";
  settings.FSX = -1;
  settings.SHOW = -1;
  ASSERT_TRUE(WriteIni(home, settings));
  EXPECT_EQ(folder.Read("vlmini.old"), "; by hand\r\n[Own]\r\nKey=1\r\n");
  const std::string first = folder.Read("vlm.ini");
  EXPECT_EQ(first.rfind("; by hand\r\n[Own]\r\nKey=1\r\n", 0), 0u);
  EXPECT_EQ(first.find("geheim"), std::string::npos);
  EXPECT_NE(folder.Read("VLMDbManager.ini").find("FSLAST=10"), std::string::npos);

  Settings back = ReadIni(home).settings;
  EXPECT_EQ(back.FPPATH09, settings.FPPATH09);
  back.IVAOVPW = DecodeIvaoPWord(back.IVAOVPW);
  ASSERT_TRUE(WriteIni(home, back));
  EXPECT_EQ(folder.Read("vlm.ini"), first);
  EXPECT_EQ(folder.Read("vlmini.old"), first);
}

TEST(SettingsFile, TheSimulatorsFoldersStayUnlessTheyAreGiven) {
  const TemporaryFolder folder;
  const AppFolder home(folder.Path());
  folder.Write("VLMDbManager.ini", "[FS]\r\nFSPATH09=/old\r\nFSPATH10=/x\r\n");
  ASSERT_TRUE(WriteIni(home, Settings()));
  EXPECT_EQ(ReadSimulatorPaths(home).fsPath09, "/old");
  const std::string before = folder.Read("VLMDbManager.ini");
  const SimulatorPaths paths{"/spiele/Flüge", ""};
  ASSERT_TRUE(WriteIni(home, Settings(), nullptr, &paths));
  EXPECT_EQ(ReadSimulatorPaths(home).fsPath09, paths.fsPath09);
  EXPECT_EQ(ReadSimulatorPaths(home).fsPath10, "");
  EXPECT_EQ(folder.Read("VLMDbManagerini.old"), before);
}

TEST(SettingsFile, AFolderInThePlaceOfTheFileIsTold) {
  const TemporaryFolder folder;
  std::filesystem::create_directory(folder.Path() / "vlm.ini");
  EXPECT_FALSE(ReadIni(AppFolder(folder.Path())).successful);
  std::string reason;
  EXPECT_FALSE(WriteIni(AppFolder(folder.Path()), Settings(), &reason));
  EXPECT_FALSE(reason.empty());
}

TEST(SettingsFile, PasswordScrambling) {
  // Worked by hand: 'a' 0x61 ^ 'p' 0x70 = 0x11, 'b' 0x62 ^ 'd' 0x64 = 0x06.
  EXPECT_EQ(EncodeIvaoPWord("ab"), "1106");
  EXPECT_EQ(DecodeIvaoPWord("1106"), "ab");
  EXPECT_EQ(DecodeIvaoPWord(""), "");
  EXPECT_EQ(DecodeIvaoPWord("1106F"), "ab");
  const std::string longer = "a password longer than the key";
  EXPECT_EQ(DecodeIvaoPWord(EncodeIvaoPWord(longer)), longer);
}
