#include "dbmanager/cifp_procedures.h"

#include <algorithm>
#include <map>

#include "base/fixed_text.h"

namespace {

constexpr std::size_t mostSteps = 255;
constexpr std::string_view anyRunway = "00";

// The parts of one procedure.
struct ProcedureParts {
  std::string_view name;
  std::vector<const CifpPart*> runways, common, enroute;
};

std::vector<ProcedureParts> ByName(const CifpAirport& airport, bool star) {
  std::vector<ProcedureParts> procedures;
  std::map<std::string_view, std::size_t> rowOf;
  for (const CifpPart& part : airport.parts) {
    if (part.star != star) continue;
    const auto [found, fresh] = rowOf.try_emplace(part.name, procedures.size());
    if (fresh) procedures.push_back({part.name, {}, {}, {}});
    ProcedureParts& procedure = procedures[found->second];
    switch (part.kind) {
      case CifpPartKind::runwayTransition:
        procedure.runways.push_back(&part);
        break;
      case CifpPartKind::common:
        procedure.common.push_back(&part);
        break;
      case CifpPartKind::enrouteTransition:
        procedure.enroute.push_back(&part);
        break;
    }
  }
  return procedures;
}

bool IsRunway(std::string_view transition) {
  return transition.size() >= 4 && transition.starts_with("RW") && transition[2] >= '0' &&
         transition[2] <= '9' && transition[3] >= '0' && transition[3] <= '9';
}

// "RW09B": the parallel runways 09L, 09R ...
bool IsParallel(std::string_view transition) {
  return IsRunway(transition) && transition.size() == 5 && transition[4] == 'B';
}

// The runways of a transition's name; none if it names none.
std::vector<std::string> RunwaysOf(std::string_view transition, const CifpAirport& airport) {
  if (!IsRunway(transition)) return {};
  const std::string_view id = transition.substr(2);
  if (!IsParallel(transition)) return {std::string(id)};
  std::vector<std::string> parallel;
  for (const CifpRunway& runway : airport.runways)
    if (runway.id.size() == 3 && runway.id.substr(0, 2) == id.substr(0, 2)) parallel.emplace_back(runway.id);
  if (parallel.empty())
    for (const char side : {'L', 'R'})
      parallel.push_back(std::string(id.substr(0, 2)) + side);
  return parallel;
}

// The part of a runway: one of its own before one of the parallels, that
// before one that names no runway. None: nullptr.
const CifpPart* PartFor(const std::string& runway, const std::vector<const CifpPart*>& parts,
                        const CifpAirport& airport) {
  const CifpPart* best = nullptr;
  int bestRank = 0;
  for (const CifpPart* part : parts) {
    const std::vector<std::string> own = RunwaysOf(part->transition, airport);
    const bool named = std::find(own.begin(), own.end(), runway) != own.end();
    const int rank = named ? (IsParallel(part->transition) ? 2 : 3) : own.empty() ? 1 : 0;
    if (rank <= bestRank) continue;
    best = part;
    bestRank = rank;
  }
  return best;
}

// The runways that a procedure is for, "00" for any.
std::vector<std::string> RunwaysOf(const ProcedureParts& procedure, const CifpAirport& airport) {
  std::vector<std::string> runways;
  bool general = false;
  const auto add = [&](const std::vector<const CifpPart*>& parts) {
    for (const CifpPart* part : parts) {
      const std::vector<std::string> named = RunwaysOf(part->transition, airport);
      runways.insert(runways.end(), named.begin(), named.end());
      general = general || named.empty();
    }
  };
  add(procedure.runways);
  // Behind runway transitions a common part without a runway is for those runways only.
  const bool hasRunwayParts = !procedure.runways.empty();
  const bool generalRunwayPart = general;
  add(procedure.common);
  if (hasRunwayParts) general = generalRunwayPart;
  std::sort(runways.begin(), runways.end());
  runways.erase(std::unique(runways.begin(), runways.end()), runways.end());
  if (general || runways.empty()) runways.emplace_back(anyRunway);
  return runways;
}

std::optional<SourcePosition> MiddleOf(const std::vector<CifpRunway>& runways) {
  if (runways.empty()) return std::nullopt;
  const SourcePosition first = runways.front().threshold;
  SourcePosition sum;
  for (const CifpRunway& runway : runways) {
    sum.lat += runway.threshold.lat - first.lat;
    sum.lon += runway.threshold.lon - first.lon;
  }
  const auto count = static_cast<double>(runways.size());
  return SourcePosition{first.lat + sum.lat / count, first.lon + sum.lon / count};
}

class AirportWriter {
 public:
  AirportWriter(std::string_view code, std::string_view file, const CifpAirport& airport,
                const CifpPlaces& places, const CifpVariation& variation, Rejects& rejects)
      : code(code),
        file(file),
        airport(airport),
        places(places),
        variation(variation),
        rejects(rejects),
        middle(MiddleOf(airport.runways)) {}

  void Write(bool star, std::vector<std::byte>& bytes, ProcedureTotals& totals) {
    for (const ProcedureParts& procedure : ByName(airport, star)) {
      ++totals.procedures;
      for (const std::string& runway : RunwaysOf(procedure, airport)) {
        const bool shared = !procedure.runways.empty() || !procedure.common.empty();
        if (shared) totals.entries += WriteEntry(star, procedure, runway, nullptr, bytes);
        for (const CifpPart* transition : procedure.enroute)
          totals.entries += WriteEntry(star, procedure, runway, transition, bytes);
      }
    }
  }

  void TellUnknownFixes() {
    for (const CifpPart& part : airport.parts)
      for (const CifpLeg& leg : part.legs)
        if (!leg.fix.Empty() && !PlaceOf(leg.fix))
          rejects.Add(file, leg.line,
                      "no fix " + std::string(leg.fix.ident) + " in region " + std::string(leg.fix.region));
  }

 private:
  std::optional<SourcePosition> PlaceOf(const CifpFixName& fix) const {
    if (fix.section == 'P' && fix.subsection == 'G') return ThresholdOf(fix.ident);
    if (fix.section == 'P' && fix.subsection == 'A') return middle;
    const auto place = places.Find(fix, code, middle);
    return place ? place : ThresholdOf(fix.ident);
  }

  std::optional<SourcePosition> ThresholdOf(std::string_view ident) const {
    if (ident.starts_with("RW")) ident.remove_prefix(2);
    for (const CifpRunway& runway : airport.runways)
      if (runway.id == ident) return runway.threshold;
    return std::nullopt;
  }

  bool WriteEntry(bool star, const ProcedureParts& procedure, const std::string& runway,
                  const CifpPart* transition, std::vector<std::byte>& bytes) {
    std::vector<const CifpPart*> parts;
    for (const CifpPart* part : {PartFor(runway, procedure.runways, airport),
                                 PartFor(runway, procedure.common, airport), transition})
      if (part != nullptr) parts.push_back(part);
    if (star) std::reverse(parts.begin(), parts.end());
    const auto start = star ? std::nullopt : ThresholdOf(runway) ? ThresholdOf(runway) : middle;
    const auto steps = MakeProcedureSteps(
        parts, start, [this](const CifpFixName& fix) { return PlaceOf(fix); }, variation);
    const std::string name =
        std::string(procedure.name) + (transition ? "." + std::string(transition->transition) : "");
    if (steps.empty() || steps.size() > mostSteps) {
      rejects.Add(file, 0, name + (steps.empty() ? ": no place is known" : ": more than 255 steps"));
      return false;
    }
    ProcedureFileHeader header;
    header.strAirport = code;
    header.strRunway = runway;
    header.strName = name;
    header.bytSteps = static_cast<std::uint8_t>(steps.size());
    AppendRecord(bytes, header);
    for (const ProcedureStepFileRecord& step : steps)
      AppendRecord(bytes, step);
    return true;
  }

  std::string_view code;
  std::string_view file;
  const CifpAirport& airport;
  const CifpPlaces& places;
  const CifpVariation& variation;
  Rejects& rejects;
  const std::optional<SourcePosition> middle;
};

}  // namespace

void AppendProcedures(std::string_view code, std::string_view file, const CifpAirport& airport,
                      const CifpPlaces& places, const CifpVariation& variation, ProcedureFiles& files,
                      Rejects& rejects) {
  AirportWriter writer(code, file, airport, places, variation, rejects);
  writer.TellUnknownFixes();
  writer.Write(false, files.sid, files.sids);
  writer.Write(true, files.star, files.stars);
}
