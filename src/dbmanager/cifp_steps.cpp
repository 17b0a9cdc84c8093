#include "dbmanager/cifp_steps.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "dbmanager/earth.h"

namespace {

template <std::size_t N>
bool IsOneOf(std::string_view word, const std::array<std::string_view, N>& words) {
  return std::find(words.begin(), words.end(), word) != words.end();
}

// Ends where a radial or a distance of its navaid is reached, or follows an arc around it.
bool NeedsNavaid(std::string_view pathTerminator) {
  constexpr std::array<std::string_view, 8> kinds = {"AF", "CD", "CF", "CR", "FD", "VD", "VR", "PI"};
  return IsOneOf(pathTerminator, kinds);
}

// Its length field is the distance from the navaid at which it ends.
bool EndsAtDme(std::string_view pathTerminator) {
  constexpr std::array<std::string_view, 3> kinds = {"CD", "FD", "VD"};
  return IsOneOf(pathTerminator, kinds);
}

bool IsHold(std::string_view pathTerminator) {
  constexpr std::array<std::string_view, 3> kinds = {"HA", "HF", "HM"};
  return IsOneOf(pathTerminator, kinds);
}

std::string AltitudeWord(const CifpAltitude& altitude) {
  return altitude.flightLevel
             ? "FL" + std::string(altitude.feet < 10000 ? "0" : "") + std::to_string(altitude.feet / 100)
             : std::to_string(altitude.feet);
}

// What the altitude fields say: lowest and highest, equal for "at".
struct AltitudeLimits {
  std::optional<CifpAltitude> lowest, highest;
};

AltitudeLimits LimitsOf(const CifpLeg& leg) {
  const auto& first = leg.altitude1;
  const auto& second = leg.altitude2;
  switch (leg.altitudeKind) {
    case '+':
    case 'H':
    case 'J':
    case 'V':
      return {first, std::nullopt};
    case '-':
    case 'Y':
      return {std::nullopt, first};
    case 'C':
      return {second, std::nullopt};
    case 'B':
      if (!first || !second) return {second, first};
      return first->feet < second->feet ? AltitudeLimits{first, second} : AltitudeLimits{second, first};
    default:
      return {first, first};
  }
}

std::string AltitudeWords(const AltitudeLimits& limits) {
  if (limits.lowest && limits.highest && limits.lowest->feet == limits.highest->feet)
    return AltitudeWord(*limits.lowest);
  return (limits.lowest ? "+" + AltitudeWord(*limits.lowest) : "") +
         (limits.highest ? "-" + AltitudeWord(*limits.highest) : "");
}

double Within360(double angle) {
  const double within = std::fmod(angle, 360.0);
  return within < 0 ? within + 360 : within;
}

bool SamePlace(SourcePosition a, SourcePosition b) {
  return DistanceNM(a, b) < 0.01;
}

class StepMaker {
 public:
  StepMaker(std::optional<SourcePosition> start, const CifpFinder& find, const CifpVariation& variation)
      : at(start), find(find), variation(variation) {}

  void Add(const CifpLeg& leg) {
    if (leg.fix.Empty()) return AddOnward(leg, false);
    const auto place = find(leg.fix);
    if (!place) return;
    const bool joined = !steps.empty() && lastFix == leg.fix.ident && at && SamePlace(*at, *place);
    if (!LeavesItsFix(leg)) {
      // A part that begins at the fix where the one before has ended adds its limits only.
      if (joined && !IsHold(leg.pathTerminator)) return JoinLimits(leg);
      return AddAtFix(leg, *place, joined);
    }
    if (!joined) {
      CifpLeg initial;
      initial.pathTerminator = "IF";
      initial.fix = leg.fix;
      AddAtFix(initial, *place, false);
    }
    AddOnward(leg, true);
  }

  std::vector<ProcedureStepFileRecord> Take() {
    const auto known = std::find_if(steps.begin(), steps.end(), [](const auto& step) { return step.placed; });
    if (known == steps.end()) return {};
    std::vector<ProcedureStepFileRecord> records;
    records.reserve(steps.size());
    for (auto step = steps.begin(); step != steps.end(); ++step) {
      if (step < known) {
        step->record.sngLat = known->record.sngLat;
        step->record.sngLon = known->record.sngLon;
      }
      records.push_back(step->record);
    }
    return records;
  }

 private:
  struct Step {
    ProcedureStepFileRecord record;
    bool placed = false;
  };

  ProcedureStepFileRecord RecordOf(const CifpLeg& leg) const {
    ProcedureStepFileRecord record;
    record.strType = leg.pathTerminator;
    record.strText = ProcedureStepText(leg);
    const AltitudeLimits limits = LimitsOf(leg);
    const auto& altitude = limits.lowest ? limits.lowest : limits.highest;
    record.sngAltitude = altitude ? static_cast<float>(altitude->feet) : 0;
    if (NeedsNavaid(leg.pathTerminator) && !leg.navaid.Empty()) {
      // North is radial 360: 0 means that there is none.
      if (leg.theta) record.intValue = static_cast<std::int16_t>(std::lround(*leg.theta * 10));
      if (leg.theta && record.intValue == 0) record.intValue = 3600;
      if (leg.rho) record.sngDme = static_cast<float>(*leg.rho);
    }
    const double length = leg.distance.value_or(0);
    (EndsAtDme(leg.pathTerminator) ? record.sngDme : record.sngDistance) = static_cast<float>(length);
    return record;
  }

  double MagneticTrack(double trueTrack, SourcePosition place) const {
    return Within360(trueTrack - variation(place));
  }

  void Push(ProcedureStepFileRecord record) {
    if (at) {
      record.sngLat = static_cast<float>(at->lat);
      record.sngLon = static_cast<float>(at->lon);
    }
    steps.push_back({record, at.has_value()});
  }

  void AddAtFix(const CifpLeg& leg, SourcePosition place, bool hold) {
    ProcedureStepFileRecord record = RecordOf(leg);
    if (!hold) record.strCode = leg.fix.ident;
    const bool moved = at && !SamePlace(*at, place);
    if (leg.course)
      record.sngTrack = static_cast<float>(leg.trueCourse ? MagneticTrack(*leg.course, place) : *leg.course);
    else if (moved)
      record.sngTrack = static_cast<float>(MagneticTrack(TrueCourse(*at, place), *at));
    if (moved && record.sngDistance == 0 && !IsHold(leg.pathTerminator))
      record.sngDistance = static_cast<float>(DistanceNM(*at, place));
    at = place;
    lastFix = leg.fix.ident;
    Push(record);
  }

  // A leg that ends at no fix.
  void AddOnward(const CifpLeg& leg, bool fromFix) {
    ProcedureStepFileRecord record = RecordOf(leg);
    const double east = at ? variation(*at) : 0;
    if (leg.course)
      record.sngTrack = static_cast<float>(leg.trueCourse ? Within360(*leg.course - east) : *leg.course);
    if (at && leg.course && record.sngDistance > 0 && leg.pathTerminator != "PI") {
      at = Offset(*at, leg.trueCourse ? *leg.course : *leg.course + east, record.sngDistance);
      lastFix = {};
    } else if (!fromFix) {
      lastFix = {};
    }
    Push(record);
  }

  void JoinLimits(const CifpLeg& leg) {
    ProcedureStepFileRecord& last = steps.back().record;
    const ProcedureStepFileRecord next = RecordOf(leg);
    if (last.strText.Empty()) last.strText = next.strText;
    if (last.sngAltitude == 0) last.sngAltitude = next.sngAltitude;
  }

  std::vector<Step> steps;
  std::optional<SourcePosition> at;
  std::string_view lastFix;  // of the last step; empty: it ends at none
  const CifpFinder& find;
  const CifpVariation& variation;
};

}  // namespace

bool LeavesItsFix(const CifpLeg& leg) {
  constexpr std::array<std::string_view, 5> kinds = {"FA", "FC", "FD", "FM", "PI"};
  return IsOneOf(leg.pathTerminator, kinds);
}

std::string ProcedureStepText(const CifpLeg& leg) {
  constexpr std::size_t room = 20;
  std::vector<std::string> words;
  if (leg.turn != ' ') words.emplace_back(1, leg.turn);
  if (NeedsNavaid(leg.pathTerminator) && !leg.navaid.Empty() && leg.navaid.ident.size() <= 5)
    words.push_back("@" + std::string(leg.navaid.ident));
  words.push_back(AltitudeWords(LimitsOf(leg)));
  if (leg.speed > 0)
    words.push_back((leg.speedKind == '+' || leg.speedKind == '-' ? std::string(1, leg.speedKind) : "") +
                    std::to_string(leg.speed) + "KT");
  std::string text;
  for (const std::string& word : words) {
    const std::size_t blank = text.empty() ? 0 : 1;
    if (word.empty() || text.size() + blank + word.size() > room) continue;
    text += std::string(blank, ' ') + word;
  }
  return text;
}

std::vector<ProcedureStepFileRecord> MakeProcedureSteps(std::span<const CifpPart* const> parts,
                                                        std::optional<SourcePosition> start,
                                                        const CifpFinder& find,
                                                        const CifpVariation& variation) {
  StepMaker maker(start, find, variation);
  for (const CifpPart* part : parts)
    for (const CifpLeg& leg : part->legs)
      maker.Add(leg);
  return maker.Take();
}
