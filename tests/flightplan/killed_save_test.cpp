// A save that is cut short at any moment leaves the plan of before or the new one.
#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <random>
#include <thread>

#include "base/files.h"
#include "flightplan/plan_file.h"
#include "tests/flightplan/plan_cases.h"
#include "tests/temporary_folder.h"

namespace {

std::string PlanText(PlanCase which) {
  CasePlan plan(which);
  return WritePlan(plan.plan, plan.world.database, PlanFormat::FS);
}

// Saves one plan over the other until it is killed.
[[noreturn]] void SaveForever(const std::filesystem::path& path, const std::string& first,
                              const std::string& second) {
  for (bool even = true;; even = !even)
    if (!ReplaceFile(path, even ? first : second)) _exit(1);
}

TEST(KilledSave, LeavesTheOldPlanOrTheNewOne) {
  const TemporaryFolder folder;
  const auto path = folder.Path() / "plan.pln";
  const std::string old = PlanText(PlanCase::airwaysAndProcedures);
  // Many times as long, so that the writing itself takes its time.
  std::string other = PlanText(PlanCase::dateLine);
  while (other.size() < 300000)
    other += "WP=1,Fix,MANDA,MANDA,-12.2500,179.5000,0.00,10.9205,0.000,1,0\r\n";
  std::mt19937 random(20260102);
  std::uniform_int_distribution<int> microseconds(0, 6000);
  int olds = 0;
  int news = 0;
  for (int i = 0; i < 200; ++i) {
    ASSERT_TRUE(ReplaceFile(path, old));
    const pid_t child = fork();
    ASSERT_GE(child, 0);
    if (child == 0) SaveForever(path, other, old);
    std::this_thread::sleep_for(std::chrono::microseconds(microseconds(random)));
    kill(child, SIGKILL);
    int status = 0;
    ASSERT_EQ(waitpid(child, &status, 0), child);
    ASSERT_TRUE(WIFSIGNALED(status)) << "a save failed by itself";
    const std::string found = folder.Read("plan.pln");
    ASSERT_TRUE(found == old || found == other) << "kill " << i << ": " << found.size() << " bytes";
    ++(found == old ? olds : news);
  }
  // The kills came before and after the renaming.
  EXPECT_GT(olds, 0);
  EXPECT_GT(news, 0);
}

}  // namespace
