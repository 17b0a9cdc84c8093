#include "startup/start_checks.h"

#include <gtest/gtest.h>

#include "settings/settings_file.h"
#include "tests/temporary_folder.h"

TEST(ReadAirac, FieldsAreTrimmedAndJoined) {
  const struct {
    const char *text, *cycle;
    bool installed;
  } cases[] = {{"2013.10", "2013.10", true},
               {" 2013.10 , Velmora\r\n\"August\"\r\n", "2013.10 - Velmora - August", true},
               {"", "No AIRAC cycle installed!", false}};
  for (const auto& c : cases) {
    const TemporaryFolder folder;
    folder.Write("database/airac.ini", c.text);
    Session session{AppFolder(folder.Path())};
    EXPECT_EQ(ReadAirac(session), c.installed);
    EXPECT_EQ(session.strAiracCycle, c.cycle);
  }
}

TEST(FlightplanFolders, DefaultsAreCreatedExceptTheOneThatIsNot) {
  const TemporaryFolder folder;
  Session session{AppFolder(folder.Path())};
  session.settings.IVAOPATH = "/given";
  EXPECT_TRUE(SetFlightplanFolders(session));
  EXPECT_EQ(session.settings.IVAOPATH, "/given");
  EXPECT_EQ(session.settings.PROMAGPATH, (folder.Path() / "FSplan/PM").string());
  EXPECT_TRUE(std::filesystem::is_directory(folder.Path() / "FSplan/SquawkBox"));
  EXPECT_TRUE(std::filesystem::is_directory(folder.Path() / "FSplan/FSInn"));
  EXPECT_FALSE(std::filesystem::exists(folder.Path() / "FSplan/IVAO"));
  EXPECT_FALSE(std::filesystem::exists(folder.Path() / "FSplan/PM"));
}

TEST(SimulatorPath, FollowsTheVersion) {
  const TemporaryFolder folder;
  folder.Write("vlmdbmanager.INI", "[fs]\r\nFSPATH09=C:\\FS9\r\nFSPATH10=C:\\FSX\r\n");
  Session session{AppFolder(folder.Path())};
  for (const auto& [fsx, path] : {std::pair{0, "C:\\FS9"}, {-1, "C:\\FSX"}}) {
    session.settings.FSX = static_cast<std::int16_t>(fsx);
    SetCurrentFSPath(session);
    EXPECT_EQ(session.strFSPath, path);
  }
}

TEST(Password, IsUnscrambledInPlaceUnlessEmpty) {
  Session session{AppFolder("/nowhere")};
  DecryptIvaoPWord(session);
  EXPECT_EQ(session.settings.IVAOVPW, "");
  session.settings.IVAOVPW = EncodeIvaoPWord("geheim");
  DecryptIvaoPWord(session);
  EXPECT_EQ(session.settings.IVAOVPW, "geheim");
}

TEST(ValidAscii, TheThreeRanges) {
  for (const int code : {32, 122, 128, 167, 192, 255})
    EXPECT_TRUE(CheckValidAscii(code)) << code;
  for (const int code : {-1, 31, 123, 127, 168, 191, 256})
    EXPECT_FALSE(CheckValidAscii(code)) << code;
}
