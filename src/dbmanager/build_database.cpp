#include "dbmanager/build_database.h"

#include <unistd.h>

#include <chrono>
#include <cmath>
#include <unordered_map>

#include "base/app_folder.h"
#include "dbmanager/airport_files.h"
#include "dbmanager/airspace_file.h"
#include "dbmanager/airway_ends.h"
#include "dbmanager/airway_files.h"
#include "dbmanager/cifp_files.h"
#include "dbmanager/first_aircraft.h"
#include "dbmanager/ground_files.h"
#include "dbmanager/navaid_files.h"
#include "dbmanager/small_files.h"
#include "dbmanager/source_error.h"
#include "dbmanager/staged_database.h"
#include "dbmanager/world_files.h"
#include "flightplan/aircraft_file.h"
#include "navdata/magnetic_variation.h"

namespace fs = std::filesystem;

namespace {

void RequireComplete(bool complete, const fs::path& file) {
  if (!complete) throw BuildError(file.string() + ": ends without its closing row 99; is it cut off?");
}

// All the sources in memory.
struct World {
  std::vector<SourceAirport> airports;
  NavData navaids;
  FixData fixes;
  AirwayData airways;
  std::vector<SourceAirspace> airspaces;
  Outlines land, countries;
  MagneticModel model;
};

class Builder {
 public:
  Builder(const BuildOptions& options, const BuildProgress& progress, BuildReport& report)
      : options(options), progress(progress), report(report) {}

  void Build() {
    files = FindSourceFiles(options.source, options.sourceFolder, options.dataFolder);
    StagedDatabase staged(options.home);
    ReadWorld();
    WriteVariation(staged);
    WriteAirways(staged);
    WriteAirports(staged);
    WriteWorldOutlines(staged);
    WriteRest(staged);
    for (const char* name :
         {"region", "country", "state", "city", "airport", "ils", "taxi", "poly", "marker"}) {
      staged.WriteAgain("database/FS09/" + std::string(name) + ".vlm",
                        "database/FS10/" + std::string(name) + ".vlm");
    }
    Step("swapping the new database in", 0.97);
    report.files = staged.FilesWritten();
    report.bytes = staged.BytesWritten();
    staged.SwapIn();
    progress("done", 1);
  }

  void BuildProceduresOnly() {
    const fs::path modelFile = options.dataFolder / "wmm2025.txt";
    StagedDatabase staged(options.home);
    Step("reading the magnetic model", 0);
    LineReader modelLines(modelFile);
    world.model = MagneticModel::Read(modelLines);
    year = DecimalYear(options.date.year, options.date.month, options.date.day);
    WriteProcedures(staged, 0.01, 0.95);
    Step("swapping the new procedures in", 0.97);
    report.files = staged.FilesWritten();
    report.bytes = staged.BytesWritten();
    staged.SwapIn();
    progress("done", 1);
  }

 private:
  void Step(std::string_view name, double done) {
    step = name;
    stepDone = done;
    KeepOn();
  }

  void KeepOn(double more = 0) {
    if (!progress(step, stepDone + more)) throw BuildCancelled();
  }

  void Row(const char* what, std::size_t read, std::size_t written, std::string remark = "") {
    report.rows.push_back({what, read, written, std::move(remark)});
  }

  void ReadWorld() {
    Step("reading the magnetic model", 0);
    LineReader modelLines(files.magneticModel);
    world.model = MagneticModel::Read(modelLines);
    Step("reading outlines", 0.01);
    world.land = ReadTopoJson(ReadWholeSource(files.land), "land", files.land.filename().string());
    world.countries =
        ReadTopoJson(ReadWholeSource(files.countries), "countries", files.countries.filename().string());
    Step("reading navaids", 0.04);
    LineReader navLines(files.navaids);
    world.navaids = ReadNavDat(navLines, report.rejects);
    RequireComplete(world.navaids.complete, files.navaids);
    report.cycle = world.navaids.head.cycle;
    Step("reading fixes", 0.06);
    LineReader fixLines(files.fixes);
    world.fixes = ReadFixDat(fixLines, report.rejects);
    RequireComplete(world.fixes.complete, files.fixes);
    Step("reading airways", 0.09);
    const AirwayEnds ends(world.navaids, world.fixes.fixes);
    LineReader awyLines(files.airways);
    world.airways = ReadAwyDat(
        awyLines,
        [&](std::string_view ident, std::string_view region, int kind) {
          return ends.Find(ident, region, kind);
        },
        report.rejects);
    RequireComplete(world.airways.complete, files.airways);
    for (const fs::path& file : options.openAir)
      ReadAirspaces(file);
    ReadAirports();
  }

  void ReadAirspaces(const fs::path& file) {
    Step("reading airspaces", 0.14);
    LineReader lines(file);
    for (SourceAirspace& airspace : ReadOpenAir(lines, report.rejects)) {
      world.airspaces.push_back(std::move(airspace));
    }
  }

  void ReadAirports() {
    Step("reading airports", 0.15);
    std::unordered_map<std::string, std::size_t> rowOf;
    for (std::size_t i = 0; i < files.airports.size(); ++i) {
      LineReader lines(files.airports[i]);
      const auto take = [&](SourceAirport&& airport) {
        if (++airportsRead % 500 == 0)
          KeepOn(0.4 * static_cast<double>(std::min<std::size_t>(airportsRead, 40000)) / 40000);
        // A scenery pack's airport takes the place of the same airport before.
        const auto [place, fresh] = rowOf.try_emplace(airport.code, world.airports.size());
        if (!fresh && i > 0) {
          world.airports[place->second] = std::move(airport);
        } else {
          world.airports.push_back(std::move(airport));
        }
      };
      const AptData data = ReadAptDat(lines, take, report.rejects);
      if (i == 0) RequireComplete(data.complete, files.airports[i]);
    }
  }

  void WriteVariation(StagedDatabase& staged) {
    Step("computing magnetic variation", 0.57);
    year = DecimalYear(options.date.year, options.date.month, options.date.day);
    const auto bytes = MakeVariationGrid(world.model, year, [&] {
      KeepOn();
      return true;
    });
    grid = MagneticVariationGrid::FromBytes(bytes);
    staged.Write("magvar09.qtr", bytes);
    staged.WriteAgain("magvar09.qtr", "magvar10.qtr");
  }

  double GridVariation(SourcePosition p) const {
    return grid.MagVarLookup(static_cast<float>(p.lat), static_cast<float>(p.lon));
  }

  void WriteAirways(StagedDatabase& staged) {
    Step("making airways", 0.65);
    const auto variation = [&](SourcePosition p) { return GridVariation(p); };
    const AirwayFiles airways = MakeAirwayFiles(world.airways.segments, world.navaids, variation);
    staged.Write("database/dijinter.vlm", airways.dijinter);
    staged.Write("database/vicways.vlm", airways.vicways);
    staged.Write("database/jetways.vlm", airways.jetways);
    Step("making navaids", 0.73);
    const NavaidFiles navaids = MakeNavaidFiles(world.navaids, world.fixes.fixes, airways.points, variation);
    staged.Write("database/vor.vlm", navaids.vor);
    staged.Write("database/ndb.vlm", navaids.ndb);
    staged.Write("database/fixes.vlm", navaids.fixes);
    staged.Write("database/FS09/marker.vlm", navaids.marker);
    Row("VOR, TACAN, DME", world.navaids.vors.size() + world.navaids.dmes.size(), navaids.vors,
        std::to_string(world.navaids.pairedDmes) + " DME rows belong to a VOR or ILS");
    Row("NDB", world.navaids.ndbs.size(), navaids.ndbs);
    Row("markers", world.navaids.markers.size(), navaids.markers);
    Row("fixes", world.fixes.fixes.size(), navaids.fixRows,
        std::to_string(navaids.fixesOnAirways) + " others are airway points");
    Row("airway segments", world.airways.segments.size(), airways.lowSegments + airways.highSegments,
        "one for each name: " + std::to_string(airways.lowSegments) + " low, " +
            std::to_string(airways.highSegments) + " high");
    Row("airway points", airways.intersections + airways.pointsLeftOut, airways.intersections,
        std::to_string(airways.lowLinks) + " low and " + std::to_string(airways.highLinks) + " high links");
    if (airways.pointsLeftOut > 0) {
      report.notes.push_back("Left out for want of room: the " + std::to_string(airways.pointsLeftOut) +
                             " airway points with the fewest links, and " +
                             std::to_string(airways.segmentsLeftOut) + " segments to them.");
    }
    if (airways.linksLeftOut > 0) {
      report.notes.push_back("Left out: " + std::to_string(airways.linksLeftOut) +
                             " links beyond 255 of one point, the longest ones.");
    }
    if (airways.repeatedSegments > 0) {
      report.notes.push_back(
          "Repeated airway segments, kept once: " + std::to_string(airways.repeatedSegments) + ".");
    }
    if (world.navaids.satelliteRows > 0) {
      report.notes.push_back("Rows of satellite landing systems, not kept: " +
                             std::to_string(world.navaids.satelliteRows) + ".");
    }
  }

  void WriteAirports(StagedDatabase& staged) {
    Step("making airports", 0.78);
    const CountryOutlines outlines(world.countries);
    airportFiles = MakeAirportFiles(
        world.airports, world.navaids.localizers, "apt.dat",
        [&](SourcePosition p) { return world.model.Declination(p, year); },
        [&](SourcePosition p) { return outlines.Near(p); }, report.rejects);
    const std::string folder = "database/FS09/";
    staged.Write(folder + "airport.vlm", airportFiles.airport);
    staged.Write(folder + "ils.vlm", airportFiles.ils);
    staged.Write(folder + "region.vlm", airportFiles.region);
    staged.Write(folder + "country.vlm", airportFiles.country);
    staged.Write(folder + "state.vlm", airportFiles.state);
    staged.Write(folder + "city.vlm", airportFiles.city);
    Row("airports", airportsRead, airportFiles.places.size(),
        std::to_string(airportFiles.countries) + " countries");
    Row("runways", airportFiles.runways + airportFiles.helipads, airportFiles.runways + airportFiles.helipads,
        std::to_string(airportFiles.helipads) + " of them helipads");
    Row("frequencies", airportFiles.frequencies, airportFiles.frequencies);
    Row("parking positions", airportFiles.parkings, airportFiles.parkings);
    Row("ILS, localizers", world.navaids.localizers.size(), airportFiles.airportIls + airportFiles.pendingIls,
        std::to_string(airportFiles.pendingIls) + " at airports that are not in the file");
    Step("making taxiways and pavement", 0.86);
    const GroundFiles ground = MakeGroundFiles(world.airports);
    staged.Write(folder + "taxi.vlm", ground.taxi);
    staged.Write(folder + "poly.vlm", ground.poly);
    Row("taxiways", ground.taxiways, ground.taxiways);
    Row("pavement", ground.polygons, ground.polygons, std::to_string(ground.polygonPoints) + " points");
  }

  void WriteWorldOutlines(StagedDatabase& staged) {
    Step("making outlines", 0.93);
    const WorldFile coasts = MakeWorldPolygons(world.land);
    const WorldFile borders = MakeWorldLines(world.countries);
    staged.Write("map/worldpolygon.bin", coasts.bytes);
    staged.Write("map/worldline.bin", borders.bytes);
    Row("coastlines", coasts.shapes, coasts.shapes, std::to_string(coasts.points) + " points");
    Row("borders", borders.shapes, borders.shapes, std::to_string(borders.points) + " points");
  }

  void WriteRest(StagedDatabase& staged) {
    Step("making airspaces", 0.95);
    const bool approximate = world.airspaces.empty();
    const AirspaceFile airspaces =
        approximate ? MakeControlZones(airportFiles.places) : MakeAirspaceFile(world.airspaces);
    if (airspaces.airspaces == 0)
      throw BuildError("the sources give no airspace and no airport with a tower");
    staged.Write("database/airspace.vlm", airspaces.bytes);
    staged.Write("database/msa.vlm", std::string_view{});
    Row("airspaces", world.airspaces.size(), airspaces.airspaces,
        approximate ? "approximate circles around towered airports" : "");
    LineReader stationLines(files.weatherStations);
    const WeatherStations stations = MakeWeatherStations(stationLines, airportFiles.places);
    staged.Write("database/WxStation.txt", stations.text);
    Row("weather stations", stations.read, stations.written);
    staged.Write("database/AIRAC.INI", MakeAiracText(report.cycle));
    staged.Write("VLM_intro.bmp", ReadWholeSource(files.introPicture));
    if (!fs::exists(ResolveBelow(options.home, "user/aircraft.vlm"))) {
      staged.Write("user/aircraft.vlm", AircraftText(FirstAircraft()));
    }
    if (options.cifp.empty())
      report.notes.push_back("sid.vlm and star.vlm stay as they are: --cifp DIR makes them.");
    else
      WriteProcedures(staged, 0.96, 0.01);
  }

  void WriteProcedures(StagedDatabase& staged, double from, double share) {
    Step("making procedures", from);
    // Tracks are magnetic to a tenth of a degree at best: one value per square degree does.
    std::unordered_map<int, double> variations;
    const auto variation = [&](SourcePosition p) {
      const int lat = static_cast<int>(std::floor(p.lat)), lon = static_cast<int>(std::floor(p.lon));
      const auto [found, fresh] = variations.try_emplace(lat * 1000 + lon, 0.0);
      if (fresh) found->second = world.model.Declination({lat + 0.5, lon + 0.5}, year);
      return found->second;
    };
    ProcedureReport read;
    const ProcedureFiles procedures = MakeProcedureFiles(
        FindCifpSources(options.cifp), variation, [&](double done) { KeepOn(share * done); }, report.rejects,
        read);
    staged.Write("database/sid.vlm", procedures.sid);
    staged.Write("database/star.vlm", procedures.star);
    Row("SIDs", procedures.sids.procedures, procedures.sids.entries, "one for each runway and transition");
    Row("STARs", procedures.stars.procedures, procedures.stars.entries,
        std::to_string(read.airports) + " airports have procedures");
  }

  const BuildOptions& options;
  const BuildProgress& progress;
  BuildReport& report;
  SourceFiles files;
  World world;
  AirportFiles airportFiles;
  MagneticVariationGrid grid;
  double year = 0;
  std::size_t airportsRead = 0;
  std::string step;
  double stepDone = 0;
};

}  // namespace

BuildDate Today() {
  const std::chrono::year_month_day today{
      std::chrono::floor<std::chrono::days>(std::chrono::system_clock::now())};
  return {static_cast<int>(today.year()), static_cast<int>(static_cast<unsigned>(today.month())),
          static_cast<int>(static_cast<unsigned>(today.day()))};
}

namespace {

bool Run(void (Builder::*build)(), const BuildOptions& options, const BuildProgress& progress,
         BuildReport& report) {
  const auto start = std::chrono::steady_clock::now();
  try {
    (Builder(options, progress, report).*build)();
  } catch (const std::exception& error) {
    report.failure = error.what();
  }
  report.seconds = std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
  return report.failure.empty();
}

}  // namespace

bool BuildDatabase(const BuildOptions& options, const BuildProgress& progress, BuildReport& report) {
  return Run(&Builder::Build, options, progress, report);
}

bool BuildProcedures(const BuildOptions& options, const BuildProgress& progress, BuildReport& report) {
  return Run(&Builder::BuildProceduresOnly, options, progress, report);
}

bool BuildBundledDatabase(const fs::path& home, const fs::path& dataFolder, const BuildProgress& progress,
                          BuildReport& report) {
  BuildOptions options;
  options.home = home;
  options.dataFolder = dataFolder;
  return BuildDatabase(options, progress, report);
}

fs::path DefaultDataFolder() {
  fs::path ofSources = VELMORA_DATA_FOLDER;
  std::error_code error;
  if (fs::is_directory(ofSources, error)) return ofSources;
  const fs::path program = fs::read_symlink("/proc/self/exe", error);
  return program.parent_path() / "../share/velmora";
}
