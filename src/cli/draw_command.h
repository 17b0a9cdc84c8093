// "velmora-cli draw": the map as a picture, by the same layers as the window.
#pragma once

#include <CLI/CLI.hpp>
#include <optional>
#include <string>
#include <vector>

#include "cli/cli_output.h"

struct DrawRequest {
  double centerLat = 50;
  double centerLon = 8.5;
  bool centerGiven = false;
  std::optional<int> rangeNM;    // a range of the zoom table
  std::optional<int> zoomIndex;  // or its row; neither: the settings' row
  int width = 1600;
  int height = 1000;
  std::vector<std::string> layers;  // by their names; empty: those of the default switches
  std::string planFile;             // empty: no plan; without a centre and a range it is shown whole
  std::string out;                  // a .png file
};

// Adds the command's options; they are put into request when the command line is parsed.
void AddDrawCommand(CLI::App& app, DrawRequest& request);

// Draws the picture and writes it whole. Prints the result as the other
// commands do; the exit code. The map's scale is the plain scale of its row.
int RunDraw(const CliOptions& options, const DrawRequest& request);
