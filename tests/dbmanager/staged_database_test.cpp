#include "dbmanager/staged_database.h"

#include <gtest/gtest.h>
#include <sys/resource.h>

#include <csignal>

#include "dbmanager/source_error.h"
#include "tests/temporary_folder.h"

namespace {

namespace fs = std::filesystem;

std::size_t Leftovers(const fs::path& home) {
  std::size_t count = 0;
  for (const auto& entry : fs::directory_iterator(home)) {
    if (entry.path().filename().string().starts_with(".new-database.")) ++count;
  }
  return count;
}

TEST(StagedDatabase, ShowsNothingBeforeTheSwap) {
  const TemporaryFolder home;
  home.Write("Database/vor.vlm", "old");  // in another letter case
  {
    StagedDatabase staged(home.Path());
    staged.Write("database/vor.vlm", std::string_view("new"));
    staged.Write("magvar09.qtr", std::string_view("grid"));
    EXPECT_EQ(home.Read("Database/vor.vlm"), "old");
    EXPECT_FALSE(fs::exists(home.Path() / "magvar09.qtr"));
  }
  EXPECT_EQ(home.Read("Database/vor.vlm"), "old");
  EXPECT_EQ(Leftovers(home.Path()), 0u);
  {
    StagedDatabase staged(home.Path());
    staged.Write("database/FS09/a.vlm", std::string_view("new"));
    staged.WriteAgain("database/FS09/a.vlm", "database/FS10/a.vlm");
    staged.SwapIn();
  }
  EXPECT_EQ(home.Read("Database/FS10/a.vlm"), "new");
  EXPECT_EQ(home.Read("Database/vor.vlm"), "old");  // not replaced: the pilot's
  EXPECT_FALSE(fs::exists(home.Path() / "database"));
  EXPECT_EQ(Leftovers(home.Path()), 0u);
}

TEST(StagedDatabase, ClearsAwayWhatAKilledRunLeft) {
  const TemporaryFolder home;
  home.Write(".new-database.aaaaaa/database/vor.vlm", "half");
  // Killed between the two renames of a file system that cannot exchange.
  home.Write(".new-database.bbbbbb/old-database/vor.vlm", "whole");
  const StagedDatabase staged(home.Path());
  EXPECT_EQ(home.Read("database/vor.vlm"), "whole");
  EXPECT_EQ(Leftovers(home.Path()), 1u);  // its own
}

TEST(StagedDatabase, LetsOnlyOneWorkAtATime) {
  const TemporaryFolder home;
  const StagedDatabase staged(home.Path());
  EXPECT_THROW(StagedDatabase(home.Path()), BuildError);
}

TEST(StagedDatabase, SaysThatTheHomeCannotBeWritten) {
  const TemporaryFolder home;
  home.Write("file", "");
  EXPECT_THROW(StagedDatabase(home.Path() / "file"), BuildError);
}

// A full disk, as far as a process can make one for itself: no file may grow
// beyond a limit.
TEST(StagedDatabase, AFullDiskIsAnError) {
  const TemporaryFolder home;
  home.Write("database/vor.vlm", "old");
  rlimit before{};
  ASSERT_EQ(getrlimit(RLIMIT_FSIZE, &before), 0);
  const auto oldHandler = std::signal(SIGXFSZ, SIG_IGN);
  {
    StagedDatabase staged(home.Path());
    staged.Write("database/small.vlm", std::string(1000, 'x'));
    const rlimit tight{4096, before.rlim_max};
    ASSERT_EQ(setrlimit(RLIMIT_FSIZE, &tight), 0);
    EXPECT_THROW(staged.Write("database/vor.vlm", std::string(100000, 'x')), BuildError);
    setrlimit(RLIMIT_FSIZE, &before);
  }
  std::signal(SIGXFSZ, oldHandler);
  EXPECT_EQ(home.Read("database/vor.vlm"), "old");
  EXPECT_FALSE(fs::exists(home.Path() / "database/small.vlm"));
  EXPECT_EQ(Leftovers(home.Path()), 0u);
}

TEST(StagedDatabase, BringsLinksAndFoldersOfThePilot) {
  const TemporaryFolder home;
  home.Write("database/mine/deep/a.txt", "a");
  fs::create_symlink("mine/deep/a.txt", home.Path() / "database/link.txt");
  StagedDatabase staged(home.Path());
  staged.Write("database/vor.vlm", std::string_view("new"));
  staged.SwapIn();
  EXPECT_EQ(home.Read("database/mine/deep/a.txt"), "a");
  EXPECT_TRUE(fs::is_symlink(home.Path() / "database/link.txt"));
  EXPECT_EQ(home.Read("database/link.txt"), "a");
}

}  // namespace
