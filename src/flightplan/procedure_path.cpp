#include "flightplan/procedure_path.h"

#include <algorithm>
#include <cmath>

#include "base/code_page.h"

namespace {

constexpr float samePlaceNM = 0.05F;
constexpr float straightOutNM = 1;      // behind the runway's end, before the first turn
constexpr double feetForEachNM = 500;   // of a climb
constexpr double shortestHint = 1.5;    // NM
constexpr double longestHint = 6;       // NM
constexpr double plainHint = 3;         // NM
constexpr double farthestMeeting = 60;  // NM

bool EndsOnTheControllersWord(const ProcedureStep& step) {
  return step.Type == "FM" || step.Type == "VM";
}

bool IsHold(const ProcedureStep& step) {
  return step.Type == "HA" || step.Type == "HF" || step.Type == "HM";
}

bool EndsAtAnIntercept(const ProcedureStep& step) {
  return step.Type == "CI" || step.Type == "VI" || step.Type == "CR" || step.Type == "VR";
}

float Apart(Position a, Position b) {
  return a == b ? 0 : GreatCircleDistance(a.lat, a.lon, b.lat, b.lon);
}

// How far along a true track from here the course into a fix is met, NM;
// nothing if it is not met ahead, or only behind the fix.
std::optional<double> MeetingDistance(Position here, double track, Position fix, double courseIn) {
  const double cosine = std::cos(DegToRad(here.lat));
  const double east = std::remainder(static_cast<double>(fix.lon) - here.lon, 360.0) * 60 * cosine;
  const double north = (static_cast<double>(fix.lat) - here.lat) * 60;
  const double sinTrack = std::sin(DegToRad(track)), cosTrack = std::cos(DegToRad(track));
  const double sinIn = std::sin(DegToRad(courseIn)), cosIn = std::cos(DegToRad(courseIn));
  const double cross = sinTrack * cosIn - cosTrack * sinIn;
  if (std::abs(cross) < 0.05) return std::nullopt;  // all but parallel
  const double along = (east * cosIn - north * sinIn) / cross;
  const double beforeFix = (north * sinTrack - east * cosTrack) / cross;
  if (along < 0.2 || along > farthestMeeting || beforeFix < 0) return std::nullopt;
  return along;
}

class PathMaker {
 public:
  PathMaker(const std::optional<RunwayStart>& start, const MagneticVariationGrid& variation)
      : start(start), variation(variation) {
    if (start) at = start->threshold;
  }

  ProcedurePath Make(std::span<const ProcedureStep> steps) {
    std::optional<Position> before = at;  // of the step before, as it is stored
    for (std::size_t i = 0; i < steps.size(); ++i) {
      const ProcedureStep& step = steps[i];
      const Position place{step.Lat, step.Lon};
      if (!IsOnMap(place)) continue;
      const bool ownPlace = !step.Code.Empty() || !before || Apart(*before, place) > samePlaceNM;
      const bool first = i == 0;
      before = place;
      if (ownPlace)
        GoTo(step, place, first);
      else if (!IsHold(step))
        GoAlong(step, i + 1 < steps.size() ? &steps[i + 1] : nullptr);
      vectored = EndsOnTheControllersWord(step);
    }
    return std::move(path);
  }

 private:
  void Draw(Position to) {
    if (at && Apart(*at, to) > samePlaceNM) path.legs.push_back({*at, to, vectored});
    at = to;
  }

  void DrawOn(double trueTrack, double distance) {
    Draw(GreatCircleOffset(at->lat, at->lon, static_cast<float>(trueTrack), static_cast<float>(distance)));
  }

  // An aircraft flies over the runway before it turns.
  void LeaveRunway() {
    if (start) DrawOn(start->heading, start->lengthNM + straightOutNM);
  }

  void GoTo(const ProcedureStep& step, Position place, bool first) {
    if (first) LeaveRunway();
    Draw(place);
    if (!step.Code.Empty()) path.marks.push_back({place, CodePageToUtf8(step.Code.View())});
  }

  void GoAlong(const ProcedureStep& step, const ProcedureStep* next) {
    if (!at) return;
    const double track = static_cast<double>(step.Track) + variation.MagVarLookup(at->lat, at->lon);
    vectored = vectored || EndsOnTheControllersWord(step);
    DrawOn(track, LengthOf(step, track, next));
  }

  double LengthOf(const ProcedureStep& step, double trueTrack, const ProcedureStep* next) const {
    if (step.Distance > 0) return step.Distance;
    if (EndsAtAnIntercept(step) && next != nullptr && next->Type == "CF") {
      const double courseIn = static_cast<double>(next->Track) + variation.MagVarLookup(next->Lat, next->Lon);
      if (const auto met = MeetingDistance(*at, trueTrack, {next->Lat, next->Lon}, courseIn)) return *met;
    }
    if (step.Altitude > 0) return std::clamp(step.Altitude / feetForEachNM, shortestHint, longestHint);
    return plainHint;
  }

  const std::optional<RunwayStart>& start;
  const MagneticVariationGrid& variation;
  ProcedurePath path;
  std::optional<Position> at;
  bool vectored = false;
};

std::string_view WithoutZero(std::string_view id) {
  id = Trimmed(id);
  return id.size() > 1 && id.front() == '0' ? id.substr(1) : id;
}

}  // namespace

ProcedurePath PathOf(std::span<const ProcedureStep> steps, const std::optional<RunwayStart>& start,
                     const MagneticVariationGrid& variation) {
  return PathMaker(start, variation).Make(steps);
}

bool SameRunway(std::string_view a, std::string_view b) {
  return EqualNoCase(WithoutZero(a), WithoutZero(b));
}

std::optional<RunwayStart> RunwayEnd(const NavDatabase& database, std::int32_t airport, std::string_view id) {
  if (airport < 0 || static_cast<std::size_t>(airport) >= database.airports.size()) return std::nullopt;
  for (const RunwayRec& runway : database.Runways(database.airports[static_cast<std::size_t>(airport)])) {
    const bool own = SameRunway(runway.strRwyID.View(), id);
    if (!own && !SameRunway(runway.strRwyIDRecip.View(), id)) continue;
    RunwayStart end;
    end.heading = static_cast<float>(NormalizeDeg(runway.sngHeading + (own ? 0.0 : 180.0)));
    end.lengthNM = static_cast<float>(FeetToNM(runway.intLength));
    end.threshold =
        GreatCircleOffset(runway.sngLat, runway.sngLon, static_cast<float>(NormalizeDeg(end.heading + 180.0)),
                          end.lengthNM / 2);
    return end;
  }
  return std::nullopt;
}
