// The searches that run while the pilot types: airports by their texts, against
// folding and looking at the texts of every airport for each search; waypoints
// by their idents, against measuring the distance to each.
#include <benchmark/benchmark.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>

#include "base/folded_text.h"
#include "bench/world.h"
#include "flightplan/plan_rows.h"
#include "flightplan/waypoint_search.h"
#include "navdata/airport_search.h"
#include "navdata/geodesy.h"

namespace {

using Clock = std::chrono::steady_clock;

constexpr const char* typedAirports[] = {
    "e",          "ed",     "edd",           "eddf", "l", "lon",    "lond",         "london",      "par",
    "paris orly", "united", "united states", "san",  "s", "new yo", "united k gat", "intl united", "zzzzzz"};
constexpr const char* typedIdents[] = {"F", "FF", "FFM", "S", "SOB", "SOBRA", "A", "AB", "ZZZZZ", "N50 E008"};

double Seconds(Clock::time_point start) {
  return std::chrono::duration<double>(Clock::now() - start).count();
}

bool HasWordBeginning(const std::string& words, const std::string& beginning) {
  return words.find(" " + beginning) != std::string::npos;
}

// How many airports have all the words, looked up in the table itself.
std::size_t CountByScan(const NavDatabase& database, const std::string& typed) {
  std::vector<std::string> words;
  const std::string sought = Folded(typed, Umlauts::plain, Apostrophes::join);
  for (std::size_t at = 0; at < sought.size();) {
    const std::size_t end = std::min(sought.find(' ', at), sought.size());
    words.push_back(sought.substr(at, end - at));
    at = end + 1;
  }
  std::size_t count = 0;
  for (std::int32_t row = 0; row < database.AirportCount(); ++row) {
    const AirportRec& airport = database.airports[static_cast<std::size_t>(row)];
    std::string text;
    for (const std::string_view part :
         {airport.strCode.View(), airport.strName.View(), airport.strCity.View(), airport.strState.View(),
          airport.strCountry.View()})
      for (const Apostrophes apostrophes : {Apostrophes::join, Apostrophes::part})
        text += " " + Folded(part, Umlauts::plain, apostrophes);
    count += std::all_of(words.begin(), words.end(),
                         [&](const std::string& word) { return HasWordBeginning(text, word); })
                 ? 1
                 : 0;
  }
  return count;
}

// ratio: the scan's time / own time; worstMs: of one search.
void AirportsWhileTyping(benchmark::State& state) {
  const NavDatabase& database = BenchWorld();
  const auto prepared = Clock::now();
  const AirportSearch search(database);
  state.counters["prepareMs"] = Seconds(prepared) * 1000;
  for (const char* typed : typedAirports) {
    if (search.Find(typed).total == CountByScan(database, typed)) continue;
    std::fprintf(stderr, "airports for '%s': the search and the scan differ\n", typed);
    std::abort();
  }
  double own = 0;
  double scan = 0;
  double worst = 0;
  for ([[maybe_unused]] auto iteration : state) {
    for (const char* typed : typedAirports) {
      const auto start = Clock::now();
      benchmark::DoNotOptimize(search.Find(typed));
      const double took = Seconds(start);
      own += took;
      worst = std::max(worst, took);
    }
    state.PauseTiming();
    const auto start = Clock::now();
    for (const char* typed : typedAirports)
      benchmark::DoNotOptimize(CountByScan(database, typed));
    scan += Seconds(start);
    state.ResumeTiming();
  }
  state.counters["ratio"] = scan / own;
  state.counters["worstMs"] = worst * 1000;
}
BENCHMARK(AirportsWhileTyping)->Unit(benchmark::kMillisecond);

class SilentMessages : public MessageBox {
 public:
  void Show(std::string_view, MessageIcon) override {}
  bool AskYesNo(std::string_view, MessageIcon) override { return false; }
};

// The distances of all objects from a place, each table walked once.
float WalkDistances(const NavDatabase& database, const PlanWaypoint& from) {
  float sum = 0;
  const auto walk = [&](const auto& table) {
    for (const auto& row : table)
      sum += GreatCircleDistance(from.Lat, from.Lon, row.sngLat, row.sngLon);
  };
  walk(database.intersections);
  walk(database.vors);
  walk(database.ndbs);
  walk(database.fixes);
  return sum;
}

// ratio: the time to measure to every object / own time, for each search.
void WaypointsWhileTyping(benchmark::State& state) {
  const NavDatabase& database = BenchWorld();
  const AircraftRec aircraft;
  SilentMessages messages;
  FlightPlan plan;
  SetDepartureAndDestination(plan, {database, aircraft, messages}, 0, 1);
  double own = 0;
  double walk = 0;
  double worst = 0;
  for ([[maybe_unused]] auto iteration : state) {
    for (const char* typed : typedIdents) {
      const auto start = Clock::now();
      benchmark::DoNotOptimize(FindWaypoints(plan, database, typed));
      const double took = Seconds(start);
      own += took;
      worst = std::max(worst, took);
    }
    state.PauseTiming();
    const auto start = Clock::now();
    benchmark::DoNotOptimize(WalkDistances(database, plan.Row(0)));
    walk += Seconds(start) * static_cast<double>(std::size(typedIdents));
    state.ResumeTiming();
  }
  state.counters["ratio"] = walk / own;
  state.counters["worstMs"] = worst * 1000;
}
BENCHMARK(WaypointsWhileTyping)->Unit(benchmark::kMillisecond);

}  // namespace
