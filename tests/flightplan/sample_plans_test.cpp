// Plans that other programs wrote, from a folder beside the project (the
// variable VELMORA_SAMPLES, else ../shared/samples): every file is read with as
// many points as a plain count over its text finds.
#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>

#include "base/fixed_text.h"
#include "flightplan/formats/foreign_plan.h"

namespace {

namespace fs = std::filesystem;

fs::path SamplesFolder() {
  if (const char* named = std::getenv("VELMORA_SAMPLES")) return fs::path(named) / "flightplans";
  return fs::path(VELMORA_SOURCE_DIR) / ".." / "shared" / "samples" / "flightplans";
}

std::size_t Count(const std::string& text, const std::string& what) {
  std::size_t count = 0;
  for (std::size_t at = text.find(what); at != std::string::npos; at = text.find(what, at + what.size()))
    ++count;
  return count;
}

// Lines that begin with a number and have at least five words.
std::size_t CountXPlaneRows(const std::string& text) {
  std::size_t count = 0;
  std::istringstream lines(text);
  for (std::string line; std::getline(lines, line);) {
    std::istringstream words(line);
    std::string word;
    std::size_t number = 0;
    for (; words >> word; ++number)
      if (number == 0 && word.find_first_not_of("0123456789") != std::string::npos) break;
    count += number >= 5 ? 1 : 0;
  }
  return count;
}

std::size_t ExpectedPoints(const std::string& text) {
  if (text.find("<SimBase.Document") != std::string::npos)
    return Count(text, "<ATCWaypoint ") + Count(text, "<ATCWaypoint>");
  if (text.find("<PropertyList") != std::string::npos) return Count(text, "<wp ") + Count(text, "<wp>");
  if (text.find("waypoint.") != std::string::npos) return Count(text, "\nwaypoint.");
  if (text.find("[SBFlightPlan]") != std::string::npos) return 0;
  return CountXPlaneRows(text);
}

TEST(SamplePlans, EveryFileIsRead) {
  const fs::path folder = SamplesFolder();
  if (!fs::exists(folder))
    GTEST_SKIP() << "no sample plans in " << folder << " (VELMORA_SAMPLES names another place)";
  std::size_t files = 0;
  for (const fs::directory_entry& entry : fs::recursive_directory_iterator(folder)) {
    if (!entry.is_regular_file()) continue;
    SCOPED_TRACE(entry.path().filename());
    std::ifstream file(entry.path(), std::ios::binary);
    const std::string text(std::istreambuf_iterator<char>(file), {});
    const std::optional<ForeignPlan> plan = ReadForeignPlan(text);
    ASSERT_TRUE(plan.has_value());
    ++files;
    EXPECT_EQ(plan->points.size(), ExpectedPoints(text));
    const std::string& departure =
        plan->departure.code.empty() ? plan->points.front().code : plan->departure.code;
    const std::string& destination =
        plan->destination.code.empty() ? plan->points.back().code : plan->destination.code;
    for (const std::string& airport : {departure, destination}) {
      EXPECT_GE(airport.size(), 3U);
      EXPECT_LE(airport.size(), 4U);
      EXPECT_NE(text.find(airport), std::string::npos);
    }
    // Only the newest simulator's plans give no positions.
    const bool hasPlaces =
        text.find("WorldPosition") != std::string::npos || text.find("<ATCWaypoint") == std::string::npos;
    for (const ForeignPoint& point : plan->points)
      EXPECT_EQ(point.place.has_value(), hasPlaces) << point.code;
  }
  EXPECT_GT(files, 0U);
}

}  // namespace
