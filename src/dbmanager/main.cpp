// velmora-dbmanager: makes an application folder's database from open
// navigation data.
#include <unistd.h>

#include <CLI/CLI.hpp>
#include <atomic>
#include <chrono>
#include <csignal>
#include <cstdio>
#include <iostream>

#include "base/app_folder.h"
#include "dbmanager/build_database.h"

namespace {

std::atomic<bool> stopAsked{false};
static_assert(std::atomic<bool>::is_always_lock_free);

void AskToStop(int) {
  stopAsked = true;
}

constexpr int exitDone = 0, exitFailed = 1, exitUsage = 2;

bool ParseDate(const std::string& text, BuildDate& date) {
  char behind = 0;
  if (std::sscanf(text.c_str(), "%4d-%2d-%2d%c", &date.year, &date.month, &date.day, &behind) != 3)
    return false;
  const std::chrono::year_month_day day{std::chrono::year(date.year),
                                        std::chrono::month(static_cast<unsigned>(date.month)),
                                        std::chrono::day(static_cast<unsigned>(date.day))};
  return day.ok();
}

// One line that is written over and over, on a terminal only.
class ProgressLine {
 public:
  bool Show(std::string_view step, double done) {
    if (terminal) {
      std::fprintf(stderr, "\r%3.0f %%  %-40.*s", done * 100, static_cast<int>(step.size()), step.data());
      std::fflush(stderr);
    }
    return !stopAsked;
  }
  void Clear() const {
    if (terminal) std::fprintf(stderr, "\r%-48s\r", "");
  }

 private:
  bool terminal = isatty(STDERR_FILENO) != 0;
};

int Run(const BuildOptions& options, bool proceduresOnly) {
  std::signal(SIGINT, AskToStop);
  std::signal(SIGTERM, AskToStop);
  std::signal(SIGHUP, AskToStop);
  ProgressLine line;
  BuildReport report;
  const auto show = [&](std::string_view step, double done) { return line.Show(step, done); };
  const bool built =
      proceduresOnly ? BuildProcedures(options, show, report) : BuildDatabase(options, show, report);
  line.Clear();
  if (!built) {
    std::cerr << "velmora-dbmanager: " << report.failure << "; the database is as it was\n";
    return exitFailed;
  }
  std::cout << FormatReport(report);
  if (proceduresOnly)
    std::cout << "sid.vlm and star.vlm in " << (options.home / "database").string() << "\n";
  else
    std::cout << "Database of cycle " << (report.cycle.empty() ? "unknown" : report.cycle) << " in "
              << options.home.string() << "\n";
  return exitDone;
}

int Main(int argumentCount, char** arguments) {
  CLI::App app("Makes Velmora's database from open navigation data.", "velmora-dbmanager");
  std::optional<std::string> home, flightGear, xPlane, cifp, data, dateText;
  std::vector<std::string> openAir;
  bool bundled = false;
  app.add_option("--home", home, "application folder");
  CLI::Option_group* source = app.add_option_group("source", "where the navigation data come from");
  source->add_flag("--bundled", bundled, "the world that comes with Velmora");
  source->add_option("--flightgear", flightGear, "an installed FlightGear data folder")->type_name("DIR");
  source->add_option("--xplane", xPlane, "an installed X-Plane 11 or 12")->type_name("DIR");
  source->require_option(0, 1);
  app.add_option("--openair", openAir, "airspaces in the OpenAir format")->type_name("FILE");
  app.add_option("--cifp", cifp, "an X-Plane 11 or 12, its data folder, or its folder CIFP: SIDs and STARs")
      ->type_name("DIR");
  app.add_option("--data", data, "folder with the bundled data")->type_name("DIR");
  app.add_option("--date", dateText, "day of the magnetic variation (default: today)")
      ->type_name("YYYY-MM-DD");

  BuildOptions options;
  try {
    app.parse(argumentCount, arguments);
    if (dateText && !ParseDate(*dateText, options.date))
      throw CLI::ValidationError("--date", "is no day YYYY-MM-DD");
    if (source->count_all() == 0 && !cifp)
      throw CLI::RequiredError("--bundled, --flightgear, --xplane or --cifp");
  } catch (const CLI::ParseError& error) {
    if (error.get_exit_code() == 0) return app.exit(error);
    std::cerr
        << "velmora-dbmanager: " << error.what() << "\n"
        << "usage: velmora-dbmanager [--home DIR] (--bundled | --flightgear DIR | --xplane DIR | --cifp DIR) "
           "[--openair FILE...] [--cifp DIR] [--data DIR] [--date YYYY-MM-DD]\n";
    return exitUsage;
  }
  if (cifp) options.cifp = *cifp;
  options.home = DefaultAppFolder(home);
  options.dataFolder = data ? std::filesystem::path(*data) : DefaultDataFolder();
  if (flightGear) {
    options.source = SourceKind::flightGear;
    options.sourceFolder = *flightGear;
  } else if (xPlane) {
    options.source = SourceKind::xPlane;
    options.sourceFolder = *xPlane;
  }
  options.openAir.assign(openAir.begin(), openAir.end());
  return Run(options, source->count_all() == 0);
}

}  // namespace

int main(int argumentCount, char** arguments) {
  try {
    return Main(argumentCount, arguments);
  } catch (const std::exception& error) {
    std::fprintf(stderr, "velmora-dbmanager: %s\n", error.what());
    return exitFailed;
  }
}
