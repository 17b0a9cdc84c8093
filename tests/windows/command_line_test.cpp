#include "windows/command_line.h"

#include <gtest/gtest.h>

namespace {

TEST(CommandLine, TakesItsOwnOptionsOut) {
  struct Case {
    std::vector<std::string> arguments;
    std::optional<std::string> home;
    std::string rest;
    bool error;
  };
  const Case cases[] = {
      {{}, {}, "", false},
      {{"1"}, {}, "1", false},
      // A folder's letters must not choose the simulator.
      {{"--home", "/x/Z190", "0"}, "/x/Z190", "0", false},
      {{"0", "--home=/x/1", "Z"}, "/x/1", "0 Z", false},
      {{"--home"}, {}, "", true},
      {{"--home="}, "", "", true},
  };
  for (const Case& c : cases) {
    const CommandLine line = TakeOptions(c.arguments);
    EXPECT_EQ(line.home, c.home);
    EXPECT_EQ(line.rest, c.rest);
    EXPECT_EQ(!line.error.empty(), c.error);
  }
  const CommandLine line = TakeOptions({"0", "/x/Z19.pln", "Z"});
  EXPECT_EQ(line.plan, "/x/Z19.pln");
  EXPECT_EQ(line.rest, "0 Z") << "a plan's letters must not choose the simulator";
  EXPECT_EQ(TakeOptions({"a.pln"}).plan, std::filesystem::current_path() / "a.pln");
  EXPECT_NE(TakeOptions({"a.pln", "b.pln"}).error, "");
  EXPECT_TRUE(TakeOptions({"--help"}).help);
  EXPECT_TRUE(TakeOptions({"--version"}).version);
}

}  // namespace
