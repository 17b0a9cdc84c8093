// "velmora-cli draw": the map as a picture, by the same layers as the window.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "cli/cli_output.h"

struct DrawRequest {
  double centerLat = 0;
  double centerLon = 0;
  std::optional<int> rangeNM;    // a range of the zoom table
  std::optional<int> zoomIndex;  // or its row; neither: the settings' row
  int width = 1600;
  int height = 1000;
  std::vector<std::string> layers;  // coastlines, airports, jet, victor, plan; empty: all
  std::string planFile;             // empty: no plan
  std::string out;                  // a .png file
};

// "LAT,LON" and "WxH" as the command line has them; nothing if they are not so.
struct CenterText {
  double lat;
  double lon;
};
std::optional<CenterText> ParseCenter(const std::string& text);
struct SizeText {
  int width;
  int height;
};
std::optional<SizeText> ParseSize(const std::string& text);

// Draws the picture and writes it whole. Prints the result as the other
// commands do; the exit code. The map's scale is the plain scale of its row.
int RunDraw(const CliOptions& options, const DrawRequest& request);
