#include <algorithm>
#include <chrono>
#include <iostream>

#include "cli/commands.h"
#include "startup/session.h"
#include "startup/start_checks.h"

namespace {

Json TableCounts(const NavDatabase& db) {
  const auto coded = std::count_if(db.intersections.begin(), db.intersections.end(),
                                   [](const IntersectionRec& row) { return !row.strCode.Empty(); });
  return {{"airports", db.AirportCount()},
          {"runways", db.runways.size()},
          {"frequencies", db.frequencies.size()},
          {"parkings", db.parkings.size()},
          {"ils", db.ils.size()},
          {"pendingIls", db.pendingIls.size()},
          {"vors", db.vors.size()},
          {"ndbs", db.ndbs.size()},
          {"intersections", coded},
          {"victorLinks", db.lowConnections.size()},
          {"jetLinks", db.highConnections.size()},
          {"fixes", db.fixes.size()},
          {"victorAirways", db.victorAirways.size()},
          {"jetAirways", db.jetAirways.size()},
          {"airspaces", db.airspaces.size()},
          {"taxiways", db.taxiways.size()},
          {"polygons", db.polygons.size()},
          {"markers", db.markers.size()},
          {"msa", db.msa.size()},
          {"worldPolygons", db.worldPolygons.shapes.size()},
          {"worldLines", db.worldLines.shapes.size()},
          {"userWaypoints", db.userWaypoints.size()}};
}

}  // namespace

int RunInfo(const CliOptions& options) {
  const auto start = std::chrono::steady_clock::now();
  const auto world = OpenWorld(options);
  if (!world) return exitNotDone;
  const std::chrono::duration<double, std::milli> loadTime = std::chrono::steady_clock::now() - start;
  Session session(options.home);
  ReadAirac(session);
  const Json document = {{"home", options.home.Root().string()},
                         {"fsVersion", world->blnFSX == 0 ? "2004" : "X"},
                         {"airac", session.strAiracCycle},
                         {"loadMs", loadTime.count()},
                         {"tables", TableCounts(world->database)}};
  if (options.json) {
    PrintJson(document);
    return exitDone;
  }
  std::cout << "Application folder  " << options.home.Root().string()
            << "\nDatabase            Flight Simulator " << (world->blnFSX == 0 ? "2004" : "X")
            << "\nAIRAC               " << session.strAiracCycle << "\nLoaded in           "
            << static_cast<int>(loadTime.count()) << " ms\n\n";
  for (const auto& [name, count] : document["tables"].items()) {
    std::cout << name << std::string(20 - std::min<std::size_t>(name.size(), 19), ' ') << count << '\n';
  }
  return exitDone;
}
