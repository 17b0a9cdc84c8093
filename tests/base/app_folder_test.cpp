#include "base/app_folder.h"

#include <gtest/gtest.h>

#include "tests/temporary_folder.h"

TEST(AppFolder, NamesAreFoundInAnyLetterCase) {
  const TemporaryFolder folder;
  folder.Write("Database/fs09/AIRPORT.VLM", "x");
  folder.Write("VLM_intro.bmp", "x");
  const AppFolder home(folder.Path());
  EXPECT_EQ(home.Resolve("\\database\\FS09\\airport.vlm"), folder.Path() / "Database/fs09/AIRPORT.VLM");
  EXPECT_EQ(home.Resolve("VLM_Intro.bmp"), folder.Path() / "VLM_intro.bmp");
  // What does not exist keeps its spelling, below what does.
  EXPECT_EQ(home.Resolve("\\DATABASE\\vor.vlm"), folder.Path() / "Database/vor.vlm");
}

TEST(AppFolder, TheExactNameWinsOverAnotherCase) {
  const TemporaryFolder folder;
  folder.Write("MAP/a", "x");
  folder.Write("map/a", "x");
  EXPECT_EQ(AppFolder(folder.Path()).Resolve("\\map\\a"), folder.Path() / "map/a");
  EXPECT_EQ(AppFolder(folder.Path()).Resolve("\\Map\\a"), folder.Path() / "MAP/a");
}

TEST(AppFolder, ANameNeverLeavesTheFolder) {
  const AppFolder home("/somewhere");
  EXPECT_EQ(home.Resolve("..\\..\\etc\\passwd"), std::filesystem::path("/somewhere/etc/passwd"));
}

TEST(AppFolder, ChosenByArgumentThenEnvironment) {
  setenv("VELMORA_HOME", "/own", 1);
  setenv("XDG_DATA_HOME", "/data", 1);
  setenv("HOME", "/user", 1);
  EXPECT_EQ(DefaultAppFolder("/given"), "/given");
  EXPECT_EQ(DefaultAppFolder(std::nullopt), "/own");
  unsetenv("VELMORA_HOME");
  EXPECT_EQ(DefaultAppFolder(std::nullopt), "/data/velmora");
  unsetenv("XDG_DATA_HOME");
  EXPECT_EQ(DefaultAppFolder(std::nullopt), "/user/.local/share/velmora");
}
