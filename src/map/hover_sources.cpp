// The table of the database's hover sources: place, name, condition, search.
#include "map/hover_sources.h"

#include "base/code_page.h"
#include "map/airspace_kinds.h"

namespace {

constexpr std::int16_t farRange = 2000;
constexpr std::int16_t fixRange = 150;
constexpr std::int16_t parkingRange = 10;

}  // namespace

std::string JoinedWords(std::initializer_list<std::string_view> words) {
  std::string joined;
  for (const std::string_view word : words) {
    if (word.empty()) continue;
    if (!joined.empty()) joined += ' ';
    joined += CodePageToUtf8(word);
  }
  return joined;
}

std::vector<HoverSource> DatabaseHoverSources() {
  using On = const HoverQuestion&;
  return {
      {HoverPlace::airports, "airports",
       [](On q) { return q.switches.mnuAirport && q.switches.btnIcao && q.RangeNM() <= farRange; },
       FindAirports},
      {HoverPlace::vors, "vor", [](On q) { return q.switches.mnuVOR && q.RangeNM() <= farRange; }, FindVors},
      {HoverPlace::ndbs, "ndb", [](On q) { return q.switches.mnuNDB && q.RangeNM() <= farRange; }, FindNdbs},
      {HoverPlace::intersections, "intersections",
       [](On q) {
         return q.switches.mnuIntersection || q.switches.mnuVictor || q.switches.mnuJet || q.planShown;
       },
       FindIntersections},
      {HoverPlace::fixes, "fixes", [](On q) { return q.switches.mnuGPSFix && q.RangeNM() <= fixRange; },
       FindFixes},
      {HoverPlace::userWaypoints, "user waypoints",
       [](On q) { return q.switches.mnuUserWP && q.RangeNM() <= fixRange; }, FindUserWaypoints},
      {HoverPlace::sunTimes, "sun times",
       [](On q) { return q.switches.mnuSunrise && q.switches.mnuAirport && q.RangeNM() <= farRange; },
       FindSunTimes},
      {HoverPlace::airspaces, "airspaces",
       [](On q) { return q.switches.mnuCtrz || q.switches.mnuAir1 || q.switches.mnuAir2; }, FindAirspaces},
      {HoverPlace::parkings, "parking",
       [](On q) { return q.switches.mnuAirport && q.RangeNM() <= parkingRange; }, FindParkings},
  };
}
