// A departure or arrival as its file has it, for tests.
#pragma once

#include <cstddef>
#include <string_view>
#include <vector>

#include "base/binary.h"
#include "navdata/file_records.h"

struct FileStep {
  const char* code;
  float lat, lon;
  float track = 0;
};

inline void AppendProcedure(std::vector<std::byte>& bytes, const char* airport, const char* runway,
                            const char* name, const std::vector<FileStep>& steps) {
  ProcedureFileHeader header;
  header.strAirport = std::string_view(airport);
  header.strRunway = std::string_view(runway);
  header.strName = std::string_view(name);
  header.bytSteps = static_cast<std::uint8_t>(steps.size());
  AppendRecord(bytes, header);
  for (const FileStep& step : steps) {
    ProcedureStepFileRecord record;
    record.strType = std::string_view("TF");
    record.strCode = std::string_view(step.code);
    record.sngLat = step.lat;
    record.sngLon = step.lon;
    record.sngTrack = step.track;
    AppendRecord(bytes, record);
  }
}
