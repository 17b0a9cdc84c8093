// velmora-cli: what the window does with a mouse, from a shell.

#include <CLI/CLI.hpp>
#include <cstdio>
#include <iostream>

#include "cli/commands.h"
#ifdef VELMORA_HAS_DRAW
#include "cli/draw_command.h"
#include "cli/print_command.h"
#endif

namespace {

struct CommandLine {
  std::string home;
  std::string simulator;
  bool json = false;
  std::string ident;
  std::vector<double> positions;
  PlanRequest plan;
  OpenRequest open;
  bool direct = false;
  bool navaid = false;
  bool low = false;
  bool high = false;
  int aircraft = 0;
#ifdef VELMORA_HAS_DRAW
  DrawRequest draw;
  PrintRequest print;
#endif
};

CliOptions OptionsOf(const CommandLine& line) {
  CliOptions options{AppFolder(DefaultAppFolder(line.home.empty() ? std::nullopt : std::optional(line.home))),
                     {},
                     line.json};
  if (!line.simulator.empty()) options.blnFSX = static_cast<std::int16_t>(line.simulator == "2004" ? 0 : -1);
  return options;
}

void TakeKinds(const std::vector<std::string>& names, NavaidKinds& kinds) {
  kinds = {false, false, false};
  for (const std::string& name : names) {
    if (name == "vor") {
      kinds.vor = true;
    } else if (name == "ndb") {
      kinds.ndb = true;
    } else if (name == "int") {
      kinds.intersection = true;
    } else {
      throw CLI::ValidationError("--kinds", "knows vor, ndb and int, not " + name);
    }
  }
}

PlanMode ModeOf(const CommandLine& line, const CLI::App& plan) {
  if (line.navaid) return PlanMode::navaid;
  if (line.low) return PlanMode::lowAltitude;
  if (line.high) return PlanMode::highAltitude;
  return plan.count("--route") > 0 ? PlanMode::route : PlanMode::direct;
}

void AddFileOptions(CLI::App& command, PlanFiles& files) {
  command.add_option("--save", files.saveAs, "Save the plan as FILE.pln")->type_name("FILE");
  command.add_option("--export", files.formats, "Write it for other programs; \"all\" for every format")
      ->delimiter(',')
      ->type_name("FORMAT[,FORMAT]");
  command.add_option("--out", files.out, "Folder of the exported files, this one if not given")
      ->type_name("DIR");
}

CLI::App* AddPlanCommand(CLI::App& app, CommandLine& line) {
  CLI::App* plan = app.add_subcommand("plan", "Build a plan between two airports");
  plan->add_option("DEP", line.plan.departure, "Departure airport")->required();
  plan->add_option("DEST", line.plan.destination, "Destination airport")->required();
  CLI::Option_group* mode = plan->add_option_group("MODE", "How the route is made");
  mode->add_flag("--direct", line.direct, "Straight to the destination");
  mode->add_flag("--navaid", line.navaid, "From navaid to navaid");
  mode->add_flag("--low", line.low, "Low altitude (victor) airways");
  mode->add_flag("--high", line.high, "High altitude (jet) airways");
  mode->add_option("--route", line.plan.route, "A route string")->type_name("TEXT");
  mode->require_option(1);
  plan->add_option_function<std::vector<std::string>>(
          "--kinds", [&line](const std::vector<std::string>& kinds) { TakeKinds(kinds, line.plan.kinds); },
          "What --navaid may use: vor, ndb, int; all if not given")
      ->delimiter(',')
      ->type_name("A,B,C");
  plan->add_option("--sid", line.plan.sid, "Name of a departure")->type_name("NAME");
  plan->add_option("--star", line.plan.star, "Name of an arrival")->type_name("NAME");
  plan->add_option("--alternate", line.plan.alternate, "Alternate airport")->type_name("ICAO");
  plan->add_option("--aircraft", line.aircraft, "Number of the aircraft");
  AddFileOptions(*plan, line.plan.files);
  return plan;
}

int RunCommand(const CommandLine& line, const CLI::App& app, const CLI::App& plan) {
  const CliOptions options = OptionsOf(line);
  if (app.got_subcommand("info")) return RunInfo(options);
  if (app.got_subcommand("find")) return RunFind(options, line.ident);
  if (app.got_subcommand("course")) return RunCourse(options, line.positions);
  if (app.got_subcommand("aircraft")) return RunAircraft(options);
  if (app.got_subcommand("open")) return RunOpen(options, line.open);
#ifdef VELMORA_HAS_DRAW
  if (app.got_subcommand("draw")) return RunDraw(options, line.draw);
  if (app.got_subcommand("print")) return RunPrint(options, line.print);
#endif
  PlanRequest request = line.plan;
  request.mode = ModeOf(line, plan);
  if (plan.count("--aircraft") > 0) request.aircraft = line.aircraft;
  return RunPlan(options, request);
}

void AddCommands(CLI::App& app, CommandLine& line) {
  app.add_subcommand("info", "What the database holds");
  app.add_subcommand("find", "Everything with an ident")
      ->add_option("IDENT", line.ident, "Ident")
      ->required();
  app.add_subcommand("course", "Distance and course between two positions")
      ->add_option("LAT1 LON1 LAT2 LON2", line.positions, "Degrees, north and east positive")
      ->expected(4)
      ->required();
  app.add_subcommand("aircraft", "The aircraft file");
  CLI::App* open = app.add_subcommand("open", "A saved plan, ours or of another program");
  open->add_option("FILE", line.open.file, "The plan file (.pln, .fms, .fgfp, .fpl, .gpx, .sfp)")->required();
  AddFileOptions(*open, line.open.files);
#ifdef VELMORA_HAS_DRAW
  AddDrawCommand(app, line.draw);
  AddPrintCommand(app, line.print);
#endif
}

int ParseAndRun(int argc, char** argv) {
  CommandLine line;
  CLI::App app{"Velmora from the command line"};
  app.name("velmora-cli");
  app.require_subcommand(1);
  app.fallthrough();
  app.add_option("--home", line.home, "The application folder")->type_name("DIR");
  app.add_option("--fs", line.simulator, "Database of this simulator")->check(CLI::IsMember({"2004", "X"}));
  app.add_flag("--json", line.json, "One JSON document on standard output");
  app.set_version_flag("--version", "Velmora 8.6");
  AddCommands(app, line);
  const CLI::App* plan = AddPlanCommand(app, line);
  try {
    app.parse(argc, argv);
  } catch (const CLI::ParseError& error) {
    if (error.get_exit_code() == static_cast<int>(CLI::ExitCodes::Success)) return app.exit(error);
    std::cerr << "velmora-cli: " << error.what()
              << "\nUsage: velmora-cli [--home DIR] [--fs 2004|X] COMMAND [ARGUMENTS] [--json]\n";
    return exitWrongUsage;
  }
  return RunCommand(line, app, *plan);
}

}  // namespace

int main(int argc, char** argv) {
  try {
    return ParseAndRun(argc, argv);
  } catch (const std::exception& error) {
    std::fprintf(stderr, "velmora-cli: %s\n", error.what());
  } catch (...) {
    std::fputs("velmora-cli: unknown error\n", stderr);
  }
  return exitNotDone;
}
