// Builds the whole database of an application folder from navigation data:
// every file that the start-up reads. The new database replaces the old one
// only when it is complete.
#pragma once

#include <filesystem>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "dbmanager/rejects.h"
#include "dbmanager/source_files.h"

struct BuildDate {
  int year = 0;
  int month = 0;
  int day = 0;
};

// Today in UTC.
BuildDate Today();

struct BuildOptions {
  std::filesystem::path home;
  std::filesystem::path dataFolder;
  SourceKind source = SourceKind::bundled;
  std::filesystem::path sourceFolder;          // not for bundled
  std::vector<std::filesystem::path> openAir;  // none: circles around towered airports
  std::filesystem::path cifp;                  // procedures; empty: those that are there stay
  BuildDate date = Today();                    // of the magnetic variation
};

struct BuildReport {
  struct Row {
    std::string what;
    std::size_t read = 0;
    std::size_t written = 0;
    std::string remark;
  };
  std::vector<Row> rows;
  std::vector<std::string> notes;
  Rejects rejects;
  std::string cycle;
  std::size_t files = 0;
  std::size_t bytes = 0;
  double seconds = 0;
  std::string failure;  // one line; empty if all went well
};

// Called now and then with the step at hand ("reading airports") and how much
// is done, 0 to 1. False cancels the build.
using BuildProgress = std::function<bool(std::string_view step, double done)>;

// True if the new database is in place. Otherwise the old one is as it was and
// report.failure says why.
bool BuildDatabase(const BuildOptions& options, const BuildProgress& progress, BuildReport& report);

// Only the departures and arrivals (options.cifp); everything else stays as it is.
bool BuildProcedures(const BuildOptions& options, const BuildProgress& progress, BuildReport& report);

// The same as BuildDatabase() from the bundled data as of today.
bool BuildBundledDatabase(const std::filesystem::path& home, const std::filesystem::path& dataFolder,
                          const BuildProgress& progress, BuildReport& report);

// The folder with the bundled data: where this build's sources have it, else
// share/velmora beside the folder of the running program.
std::filesystem::path DefaultDataFolder();

// The report as a table for people: read, written, notes, rejected lines.
std::string FormatReport(const BuildReport& report);
