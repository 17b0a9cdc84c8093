// The three route builders and the route string on the world, against the same
// work done by walking over the whole tables (tests/flightplan/plain_builders.h).
// Both have to make the same plan; a difference ends the run.
#include <benchmark/benchmark.h>
#include <time.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <functional>
#include <random>
#include <utility>

#include "bench/world.h"
#include "flightplan/airway_route.h"
#include "tests/flightplan/plain_builders.h"

namespace {

class SilentMessages : public MessageBox {
 public:
  void Show(std::string_view, MessageIcon) override {}
  bool AskYesNo(std::string_view, MessageIcon) override { return false; }
};

// Of the processor for this thread: what else the machine does is not counted.
double MillisecondsNow() {
  timespec now{};
  clock_gettime(CLOCK_THREAD_CPUTIME_ID, &now);
  return static_cast<double>(now.tv_sec) * 1e3 + static_cast<double>(now.tv_nsec) / 1e6;
}

double MillisecondsOf(const std::function<void()>& work) {
  const double start = MillisecondsNow();
  work();
  return MillisecondsNow() - start;
}

// One case: how the builder makes its plan and how the plain one does. Both
// begin with a plan between two airports, or with none.
struct Task {
  FlightPlan start;
  std::function<bool(FlightPlan&)> own;
  std::function<bool(FlightPlan&)> plain;
  std::string name;
};

FlightPlan Made(const Task& task, const std::function<bool(FlightPlan&)>& builder) {
  FlightPlan plan = task.start;
  builder(plan);
  return plan;
}

// ratio: the plain time / the own time; median, worst: of the own, in ms;
// rows: of all plans together, between the airports.
void Run(benchmark::State& state, const std::vector<Task>& tasks) {
  std::size_t rows = 0;
  double plainTime = 0;
  for (const Task& task : tasks) {
    FlightPlan plain;
    plainTime += MillisecondsOf([&] { plain = Made(task, task.plain); });
    const FlightPlan own = Made(task, task.own);
    if (own.rows != plain.rows) {
      std::fprintf(stderr, "%s: the plans differ\n", task.name.c_str());
      std::abort();
    }
    rows += own.rows.size() < 2 ? 0 : own.rows.size() - 2;
  }
  std::vector<double> best(tasks.size(), 1e9);
  double ownTime = 0;
  for ([[maybe_unused]] auto iteration : state) {
    for (std::size_t i = 0; i < tasks.size(); ++i) {
      const double time = MillisecondsOf([&] { benchmark::DoNotOptimize(Made(tasks[i], tasks[i].own)); });
      best[i] = std::min(best[i], time);
      ownTime += time;
    }
  }
  ownTime /= static_cast<double>(state.iterations());
  std::vector<std::pair<double, std::string>> times;
  for (std::size_t i = 0; i < tasks.size(); ++i)
    times.emplace_back(best[i], tasks[i].name);
  std::sort(times.begin(), times.end());
  state.SetLabel("worst: " + times.back().second);
  state.counters["ratio"] = plainTime / ownTime;
  state.counters["median"] = times[times.size() / 2].first;
  state.counters["worst"] = times.back().first;
  state.counters["tasks"] = static_cast<double>(tasks.size());
  state.counters["rows"] = static_cast<double>(rows);
}

struct World {
  const NavDatabase& database = BenchWorld();
  AircraftRec aircraft;
  SilentMessages messages;
  PlanContext context{database, aircraft, messages};
  AirwaySearch search{database};
};

// Plans between airports drawn with a fixed seed.
std::vector<FlightPlan> RandomPlans(const World& world, std::size_t count) {
  std::mt19937 random(20261122);
  std::uniform_int_distribution<int> anyAirport(0, world.database.AirportCount() - 1);
  std::vector<FlightPlan> plans(count);
  for (FlightPlan& plan : plans) {
    const int departure = anyAirport(random);
    SetDepartureAndDestination(plan, world.context, departure, anyAirport(random));
  }
  return plans;
}

std::string NameOf(const FlightPlan& plan) {
  return plan.rows.front().Code.Text() + '-' + plan.rows.back().Code.Text();
}

void CreateAirwayRoute(benchmark::State& state, char level) {
  World world;
  std::vector<Task> tasks;
  for (const FlightPlan& start : RandomPlans(world, 200)) {
    tasks.push_back(
        {start,
         [&world, level](FlightPlan& plan) {
           int row = 0;
           return CreateAirwayRoute(plan, world.context, world.search, level, row);
         },
         [&world, level](FlightPlan& plan) { return PlainAirwayBuilder(plan, world.context, level).Run(0); },
         NameOf(start)});
  }
  Run(state, tasks);
}
BENCHMARK_CAPTURE(CreateAirwayRoute, high, 'J')->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(CreateAirwayRoute, low, 'V')->Unit(benchmark::kMillisecond);

void CreateNavaidRoute(benchmark::State& state) {
  World world;
  std::vector<Task> tasks;
  for (const FlightPlan& start : RandomPlans(world, 30)) {
    tasks.push_back(
        {start,
         [&world](FlightPlan& plan) {
           int row = 0;
           return CreateNavaidRoute(plan, world.context, {}, {}, row);
         },
         [&world](FlightPlan& plan) { return PlainNavaidBuilder(plan, world.context, {}, {}).Run(); },
         NameOf(start)});
  }
  Run(state, tasks);
}
BENCHMARK(CreateNavaidRoute)->Unit(benchmark::kMillisecond);

// Over the Atlantic, Europe, the United States, Asia and the Pacific.
const char* const routes[] = {
    "EDDF UBIDU UL607 PELIX UN852 SPY UL7 SUM UM125 SIDER G11 MY G3 KEF 5E20 YR J564 PQI J49 BGR J80 BAF J77 "
    "GANDE J37 DUEYS KJFK",
    "EGLL BENSU UW70 COWLY UN615 DCS UN864 TLA UL613 FINDO UM87 BAMRA UN584 SUM UM125 SIDER G11 MY G3 KEF "
    "5E20 YR J564 PQI J55 BOS KBOS",
    "LFPG PON UN872 NIK UA24 TOLEN UM624 TULIP UL74 VENAS UL7 SUM UM125 SIDER G11 MY G3 KEF 5E20 YR J564 PQI "
    "J49 BGR J80 BAF J77 GANDE J37 DUEYS KEWR",
    "LPPT LISGU UZ18 GANSU UN975 NARTA UN745 SNT UN741 DIGUN UL435 BUTUX L435 NUTRE A637 MLSAP N2E ZQA BR49V "
    "FOWEE B646 ELLEE A509 EONNS KMIA",
    "EGLL BIG T420 ALESO T20 ABB A2 MTD LFPG",
    "EDDF GIGET UN850 ABUKA UL607 ALGOI UM738 AMTEL UM727 TAQ LIRF",
    "LEMD RBO UN867 DGO UN858 VADOM UN874 VEKIN UN873 HELEN UZ708 VES UN873 ARS UY36 ELTOK ESSA",
    "EHAM SUPAM UL603 ARNEM UB1 DIDAM UL603 OBEDI UL172 VIW UL608 TELSI UB1 BOSNA UL604 TRN UL607 XORKI LGAV",
    "LOWW WGM L156 LANUX L858 TABEM M725 GERGA Z400 ALM EKCH",
    "EDDM AMPEG T103 KPT G60 BODAN T102 KUDES N871 TELNO W112 FRI G5 SPR Y58 GVA G5 MEN A27 PPG B384 GIR "
    "H110 MAMUK LEBL",
    "KJFK JERSY J75 COPES J230 LARRI J110 VHP J80 MCI J24 SLN J102 ALS J110 RSK J64 TBC J128 RUSTT J10 LAX32 "
    "KLAX",
    "KSEA NORMY J12 BLUIT J90 MWH J34 HLN J136 BIL J151 STL J45 YULEE J81 ORL J53 BRIKL KMIA",
    "KORD OBK J101 JOT J96 NORIS J105 FUZ KDFW",
    "KBOS MILIS V16 ORW V475 BDR V433 LGA V123 DAVYS V213 ENO V157 RIC V20 SUG V222 LOGEN KATL",
    "KSFO DYBLO J84 EKR J116 FQF KDEN",
    "KMSP FGT V161 RST V503 CID V67 BRL V580 STL V335 GLASS V9 SQS V11 JAN V9 RYTHM KMSY",
    "VHHH CH A1 APU G587 LEKOS M750 MANEP Y753 JAKAL A1 SAKIT W28 XA W23 PQ RJTT",
    "WSSS PU B469 SJ G579 VJR R325 VIH W531 VPL B579 PUT L515 OBMOG M770 JJS P646 BBN R460 LLK M890 JAL R594 "
    "SSB VIDP",
    "RJTT DF Y20 AKANE Y18 YME V59 JEC G585 SEL G597 DONVO A326 CG 6AW5 OKTON 6AW3 VM W40 WFNB ZBAA",
    "VTBS BKK G463 BETNO N895 PTN G472 VASLA G210 TELEM N894 LATEM A791 NADNI OMDB",
    "VABB BBB B466 DORAM N571 GUNIP B466 VJR WSSS",
    "ZSPD PUD A593 EPGAM 6AW3 HUR 6AW1 GM B339 UDA A575 UNWW R480 BN R481 IMANA R834 OGMAN R480 ROLEP G553 "
    "NOGRI A300 OK R488 RP R480 SF 6E23 RW UUEE",
    "YSSY NOBAR B450 SY L521 AA NZAA",
    "PHNL BAMBO V12 MAGGI R463 ALCOA C1173H OAK J1 FIM KLAX",
    "PHNL SHIGI V12 KATHS A450 PHILY G223 ADKAK OTR20 CVC RJAA",
    "YBBN BN B578 LTO B599 NN NFFN",
    "NZAA TIREE H275 SF H140 OT H216 KABAS H252 AA G599 TAF B595 IAI V1 ROWIN V7 LNY V16 SAKKI PHNL",
    "KSFO SAU C1173N FARRA C1173M PYE J501 TOU J523 YZP TRK18 KATCH B327 ODK R341 CHUUK R591 SPY G469 PINTT "
    "A590 PABBA OTR5 TYE RJTT",
    "YPPH CLIFY B469 IVPEM T97 MTP Q32 GTH H44 SY YSSY",
    "RJTT TYE OTR5 PABBA A590 PINTT G469 SPY R591 CHUUK R341 ODK B327 KATCH TRK18 YZP J523 YZT J502 SEA KSEA",
};

void ParseRoute(benchmark::State& state) {
  World world;
  std::vector<Task> tasks;
  for (const char* route : routes) {
    const std::string text = route;
    tasks.push_back(
        {{},
         [&world, text](FlightPlan& plan) { return ParseRoute(plan, world.context, text); },
         [&world, text](FlightPlan& plan) { return PlainRouteReader(plan, world.context).Run(text); },
         text.substr(0, text.find(' ')) + text.substr(text.rfind(' '))});
  }
  Run(state, tasks);
}
BENCHMARK(ParseRoute)->Unit(benchmark::kMillisecond);

}  // namespace
