#include "cli/print_command.h"

#include <QGuiApplication>
#include <cstdio>

#include "base/files.h"
#include "cli/plan_output.h"
#include "flightplan/printed_plan.h"
#include "flightplan/route_string.h"
#include "windows/route_map_page.h"

namespace {

constexpr std::pair<const char*, bool PrintChoices::*> pageNames[] = {
    {"info", &PrintChoices::information},
    {"waypoints", &PrintChoices::waypoints},
    {"procedures", &PrintChoices::procedures},
    {"zones", &PrintChoices::zones},
    {"map", &PrintChoices::map}};

std::vector<std::string> PageNames() {
  std::vector<std::string> names;
  for (const auto& page : pageNames)
    names.emplace_back(page.first);
  return names;
}

PrintChoices ChoicesOf(const PrintRequest& request) {
  if (request.pages.empty()) return {};
  PrintChoices choices{false, false, false, false, false};
  for (const auto& [name, flag] : pageNames)
    for (const std::string& wanted : request.pages)
      if (wanted == name) choices.*flag = true;
  return choices;
}

// None where the file is missing: what the plan itself has is printed.
std::vector<SidStarEntry> ProceduresOf(const CliOptions& options, ProcedureKind kind,
                                       const FlightPlan& plan) {
  const bool sid = kind == ProcedureKind::sid;
  if ((sid ? plan.SidName : plan.StarName).empty()) return {};
  try {
    return LoadProcedures(options.home, kind, plan.Row(sid ? 0 : plan.DestinationRow()).Code.View()).entries;
  } catch (const std::runtime_error& error) {
    std::fprintf(stderr, "velmora-cli: %s\n", error.what());
    return {};
  }
}

int PagesIn(const PlacedPages& placed) {
  return static_cast<int>(placed.pages.size());
}

}  // namespace

void AddPrintCommand(CLI::App& app, PrintRequest& request) {
  CLI::App* print = app.add_subcommand("print", "Print a saved plan into a PDF file");
  print->add_option("FILE", request.planFile, "The plan file (.pln)")->required();
  print->add_option("--out", request.out, "The printed plan")->type_name("FILE.pdf")->required();
  print
      ->add_option("--pages", request.pages,
                   "Of info, waypoints, procedures, zones and map; all but the map if not given")
      ->delimiter(',')
      ->check(CLI::IsMember(PageNames()))
      ->type_name("A,B,C");
  print->add_option("--paper", request.paper, "A4, A5 or Letter; A4 if not given")
      ->check(CLI::IsMember({"A4", "A5", "Letter"}))
      ->type_name("SIZE");
}

int RunPrint(const CliOptions& options, const PrintRequest& request) {
  OpenedPlan opened;
  if (!OpenPlan(options, request.planFile, opened)) return exitNotDone;
  const FlightPlan& plan = opened.plan;

  qputenv("QT_QPA_PLATFORM", "offscreen");
  int argc = 1;
  char name[] = "velmora-cli";
  char* argv[] = {name, nullptr};
  const QGuiApplication application(argc, argv);
  const std::string route = RouteStringFromPlan(plan);
  const PrintedPlan printed = BuildPrintedPlan(
      {plan, opened.Context(), opened.settings, route, ProceduresOf(options, ProcedureKind::sid, plan),
       ProceduresOf(options, ProcedureKind::star, plan)},
      ChoicesOf(request));
  const QPageSize paper(PaperNamed(QString::fromStdString(request.paper)));
  const QByteArray pdf = PdfOf(printed, paper, RouteMapDrawer(plan, opened.world->database, opened.settings));
  const int pages = PagesIn(LayOutPages(printed, paper));
  std::string reason;
  if (!ReplaceFile(request.out, std::string_view(pdf.constData(), static_cast<std::size_t>(pdf.size())),
                   &reason))
    return Fail("the plan was not printed: " + reason);
  if (options.json)
    PrintJson({{"out", request.out}, {"pages", pages}, {"messages", opened.messages.ToJson()}});
  else
    std::printf("%s: %d page%s\n", request.out.c_str(), pages, pages == 1 ? "" : "s");
  return exitDone;
}
