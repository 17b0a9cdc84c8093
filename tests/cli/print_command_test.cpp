#include "cli/print_command.h"

#include <gtest/gtest.h>

#include "cli/commands.h"
#include "tests/startup/small_home.h"

namespace {

int Pages(const std::string& pdf) {
  const std::size_t at = pdf.find("/Count ");
  return pdf.starts_with("%PDF") && at != std::string::npos ? std::stoi(pdf.substr(at + 7)) : 0;
}

TEST(Print, WritesAsManyPagesAsAreWanted) {
  const SmallHome home;
  const CliOptions options{AppFolder(home.Path()), std::nullopt, true};
  PlanRequest plan;
  plan.departure = "EDDF";
  plan.destination = "EDDM";
  const std::string saved = (home.Path() / "plan.pln").string();
  plan.files.saveAs = saved;
  testing::internal::CaptureStdout();
  ASSERT_EQ(RunPlan(options, plan), exitDone);
  testing::internal::GetCapturedStdout();
  const struct {
    std::vector<std::string> pages;
    int count;
  } cases[] = {{{}, 3}, {{"map"}, 1}, {{"waypoints", "zones", "map"}, 3}};
  for (const auto& c : cases) {
    const PrintRequest request{saved, (home.Path() / "plan.pdf").string(), c.pages, "A4"};
    testing::internal::CaptureStdout();
    EXPECT_EQ(RunPrint(options, request), exitDone);
    const Json document = Json::parse(testing::internal::GetCapturedStdout());
    EXPECT_EQ(document["pages"], c.count);
    EXPECT_EQ(document["out"], request.out);
    EXPECT_EQ(Pages(home.Folder().Read("plan.pdf")), c.count);
  }
  const std::string before = home.Folder().Read("plan.pdf");
  for (const auto& [file, out] : {std::pair{saved, home.Path() / "missing" / "plan.pdf"},
                                  {std::string("/nowhere.pln"), home.Path() / "plan.pdf"}}) {
    testing::internal::CaptureStderr();
    EXPECT_EQ(RunPrint(options, {file, out.string(), {}, "A4"}), exitNotDone);
    const std::string reason = testing::internal::GetCapturedStderr();
    EXPECT_NE(reason.find(file == saved ? "missing" : "nowhere"), std::string::npos) << reason;
  }
  EXPECT_EQ(home.Folder().Read("plan.pdf"), before);
}

}  // namespace
