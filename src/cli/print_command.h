// "velmora-cli print": the printed plan of a saved plan as a PDF file.
#pragma once

#include <CLI/CLI.hpp>
#include <string>
#include <vector>

#include "cli/cli_output.h"

struct PrintRequest {
  std::string planFile;
  std::string out;  // a .pdf file, replaced whole
  std::vector<std::string>
      pages;                 // of "info", "waypoints", "procedures", "zones", "map"; empty: the first four
  std::string paper = "A4";  // or "A5", "Letter"
};

// Adds the command's options; they are put into request when the command line is parsed.
void AddPrintCommand(CLI::App& app, PrintRequest& request);

// Writes the file. Prints the result as the other commands do; the exit code.
int RunPrint(const CliOptions& options, const PrintRequest& request);
