#include "base/files.h"

#include <gtest/gtest.h>
#include <sys/resource.h>

#include <csignal>

#include "tests/temporary_folder.h"

TEST(Files, ReplacedWholeAndReadBack) {
  const TemporaryFolder folder;
  const auto path = folder.Path() / "plan.pln";
  EXPECT_TRUE(ReplaceFile(path, std::string_view("old")));
  EXPECT_TRUE(ReplaceFile(path, std::string_view("new\0er", 6)));
  EXPECT_EQ(ReadWholeFile(path)->Text(), std::string_view("new\0er", 6));
  // Nothing is left beside it.
  EXPECT_EQ(std::distance(std::filesystem::directory_iterator(folder.Path()), {}), 1);
}

TEST(Files, AFailedWriteLeavesTheOldFileAndSaysWhy) {
  const TemporaryFolder folder;
  const auto path = folder.Path() / "vlm.ini";
  ASSERT_TRUE(ReplaceFile(path, std::string_view("old")));
  // As on a full disk: the system writes no more than 64 KiB into one file.
  rlimit before{};
  getrlimit(RLIMIT_FSIZE, &before);
  const auto oldHandler = std::signal(SIGXFSZ, SIG_IGN);
  const rlimit small{65536, before.rlim_max};
  setrlimit(RLIMIT_FSIZE, &small);
  std::string reason;
  const bool written = ReplaceFile(path, std::string(200000, 'x'), &reason);
  setrlimit(RLIMIT_FSIZE, &before);
  std::signal(SIGXFSZ, oldHandler);
  EXPECT_FALSE(written);
  EXPECT_NE(reason.find("vlm.ini"), std::string::npos);
  EXPECT_EQ(folder.Read("vlm.ini"), "old");
  EXPECT_EQ(std::distance(std::filesystem::directory_iterator(folder.Path()), {}), 1);
}

TEST(Files, WhatCannotBeReadIsToldNotThrown) {
  const TemporaryFolder folder;
  std::string reason;
  EXPECT_FALSE(ReadWholeFile(folder.Path() / "missing", &reason));
  EXPECT_NE(reason.find("missing"), std::string::npos);
  EXPECT_FALSE(ReadWholeFile(folder.Path(), &reason));
  EXPECT_EQ(FileSizeOrZero(folder.Path() / "missing"), 0u);
  EXPECT_FALSE(ReplaceFile(folder.Path() / "no" / "such" / "folder", std::string_view("x"), &reason));
}
