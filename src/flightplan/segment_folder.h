// Where segments are kept: "\Segments" below the application folder with
// "Departures", "Arrivals" and "Enroute". A departure or arrival is added to
// the file of its airport, an enroute segment is a file of its own. Files are
// replaced whole. reason, where given, names the file and says why not.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include "base/app_folder.h"
#include "flightplan/segment_file.h"

std::filesystem::path SegmentFolder(const AppFolder& home, SegmentType type);

// Makes the folders that are missing.
bool MakeSegmentFolders(const AppFolder& home, std::string* reason);

// The files of a type by name: all enroute files, else the airport's own if
// there is one. airportCode: UTF-8.
std::vector<std::filesystem::path> SegmentFiles(const AppFolder& home, SegmentType type,
                                                std::string_view airportCode);

// What the pilot wants to save. Texts are UTF-8.
struct SegmentToSave {
  SegmentType type = SegmentType::departure;
  std::string airportCode;  // of a departure or arrival
  std::string fileName;     // of an enroute segment, with or without extension
  RouteSegment segment;
};

// The file that it goes to.
std::filesystem::path SegmentFileFor(const AppFolder& home, const SegmentToSave& wanted);

// What the pilot is told if it cannot be saved so; empty: it can.
std::string SavingFault(const SegmentToSave& wanted);

// False if a file could not be written, or what stands in the airport's file is
// no segment file: nothing has changed then.
bool SaveSegment(const AppFolder& home, const SegmentToSave& wanted, std::string* reason);

// Takes one segment out of an airport's file, and the file away with the last
// one. segment must have been read from text. False if the file is not text any more.
bool DeleteSegment(const std::filesystem::path& file, std::string_view text, const StoredSegment& segment,
                   std::string* reason);

// Removes a segment file: .enr, .dep, .arr or .sgm; no other.
bool DeleteSegmentFile(const std::filesystem::path& file, std::string* reason);
