#include <cmath>
#include <cstdio>

#include "cli/commands.h"
#include "navdata/geodesy.h"

int RunCourse(const CliOptions& options, const std::vector<double>& positions) {
  for (std::size_t i = 0; i < 4; ++i) {
    const double limit = i % 2 == 0 ? 90 : 180;
    if (!(std::fabs(positions[i]) <= limit)) {
      std::fprintf(
          stderr, "velmora-cli: %s\n",
          i % 2 == 0 ? "a latitude lies between -90 and 90" : "a longitude lies between -180 and 180");
      return exitWrongUsage;
    }
  }
  const auto lat1 = static_cast<float>(positions[0]);
  const auto lon1 = static_cast<float>(positions[1]);
  const auto lat2 = static_cast<float>(positions[2]);
  const auto lon2 = static_cast<float>(positions[3]);
  const float distance = GreatCircleDistance(lat1, lon1, lat2, lon2);
  const float course = GreatCircleCourse(lat1, lon1, lat2, lon2);
  const float rhumb = RhumbCourse(lat1, lon1, lat2, lon2);
  if (options.json) {
    PrintJson({{"distanceNM", JsonNumber(distance)},
               {"trueCourse", JsonNumber(course)},
               {"rhumbCourse", JsonNumber(rhumb)}});
  } else {
    std::printf("%.1f NM, true course %05.1f°, rhumb line %05.1f°\n", static_cast<double>(distance),
                static_cast<double>(course), static_cast<double>(rhumb));
  }
  return exitDone;
}
