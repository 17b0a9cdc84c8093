#include "flightplan/procedure_file.h"

#include <stdexcept>

#include "base/binary.h"
#include "base/files.h"
#include "navdata/file_records.h"

namespace {

constexpr std::size_t mostEntries = 1000;

ProcedureStep StepOf(const ProcedureStepFileRecord& record) {
  ProcedureStep step;
  step.Type = record.strType;
  step.Code = record.strCode;
  step.Text = record.strText;
  step.Value = record.intValue;
  step.Lat = record.sngLat;
  step.Lon = record.sngLon;
  step.Track = record.sngTrack;
  step.Distance = record.sngDistance;
  step.Altitude = record.sngAltitude;
  step.Dme = record.sngDme;
  return step;
}

}  // namespace

std::string SidStarEntry::ListText() const {
  return (AnyRunway() ? "Any Rwy " : "Rwy " + Runway.Text()) + "   " + Name.Text();
}

ProcedureList ParseProcedures(std::span<const std::byte> bytes, std::string_view airport) {
  const std::string wanted = AsciiUpper(Trimmed(airport));
  ProcedureList list;
  ByteReader reader(bytes);
  while (!reader.AtEnd()) {
    ProcedureFileHeader header;
    if (!reader.ReadRecord(header)) break;
    const bool ours = AsciiUpper(header.strAirport.View()) == wanted && list.entries.size() < mostEntries;
    SidStarEntry entry{header.strAirport, header.strRunway, header.strName, {}};
    for (int i = 0; i < header.bytSteps; ++i) {
      ProcedureStepFileRecord record;
      if (!reader.ReadRecord(record)) {
        list.complete = false;
        return list;
      }
      if (ours) entry.Steps.push_back(StepOf(record));
    }
    if (ours) list.entries.push_back(std::move(entry));
  }
  list.complete = reader.AtEnd();
  return list;
}

ProcedureList LoadProcedures(const AppFolder& home, ProcedureKind kind, std::string_view airport) {
  const auto path = home.Resolve(ProcedureFileName(kind));
  std::string reason;
  const auto contents = ReadWholeFile(path, &reason);
  if (!contents) throw std::runtime_error(path.string() + ": " + reason);
  return ParseProcedures(contents->Bytes(), airport);
}
