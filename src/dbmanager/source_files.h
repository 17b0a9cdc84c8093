// Which files a build reads: the bundled world, an installed FlightGear data
// folder or an installed X-Plane.
#pragma once

#include <filesystem>
#include <vector>

enum class SourceKind { bundled, flightGear, xPlane };

// path, or path with ".gz" behind it; an empty path if neither is a file.
std::filesystem::path PlainOrPacked(const std::filesystem::path& path);

struct SourceFiles {
  // The later replaces airports of the earlier. Only the first must end with
  // its closing row: scenery packs often have none.
  std::vector<std::filesystem::path> airports;
  std::filesystem::path navaids, fixes, airways;
  std::filesystem::path weatherStations;
  std::filesystem::path land, countries, magneticModel, introPicture;
};

// data: the folder with the bundled data, which gives the outlines, the
// magnetic model and the picture in every case. Throws BuildError naming the
// file that is missing.
SourceFiles FindSourceFiles(SourceKind kind, const std::filesystem::path& folder,
                            const std::filesystem::path& data);
