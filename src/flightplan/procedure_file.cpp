#include "flightplan/procedure_file.h"

#include <stdexcept>

#include "base/binary.h"
#include "base/files.h"
#include "navdata/file_records.h"

namespace {

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
    if (!reader.ReadRecord(header)) {
      list.complete = false;
      return list;
    }
    const std::size_t size = header.bytSteps * RecordSize<ProcedureStepFileRecord>();
    const auto records = reader.ReadBytes(size);
    if (records.size() < size) {
      list.complete = false;
      return list;
    }
    if (AsciiUpper(header.strAirport.View()) != wanted || list.entries.size() == mostListedProcedures)
      continue;
    SidStarEntry entry{header.strAirport, header.strRunway, header.strName, {}};
    ByteReader steps(records);
    for (ProcedureStepFileRecord record; steps.ReadRecord(record);)
      entry.Steps.push_back(StepOf(record));
    list.entries.push_back(std::move(entry));
  }
  return list;
}

ProcedureList LoadProcedures(const AppFolder& home, ProcedureKind kind, std::string_view airport) {
  const auto path = home.Resolve(ProcedureFileName(kind));
  std::string reason;
  const auto contents = ReadWholeFile(path, &reason);
  if (!contents)
    throw std::runtime_error(reason + ". Departures and arrivals are made by velmora-dbmanager --cifp DIR");
  return ParseProcedures(contents->Bytes(), airport);
}
