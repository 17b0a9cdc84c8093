#include "dbmanager/cifp_places.h"

#include <algorithm>
#include <tuple>

#include "dbmanager/earth.h"

namespace {

constexpr std::string_view enroute = "ENRT";

}  // namespace

CifpPlaces::CifpPlaces(const FixData& fixes, const NavData& navaids) {
  places.reserve(fixes.fixes.size() + navaids.vors.size() + navaids.dmes.size() + navaids.ndbs.size() +
                 navaids.localizers.size());
  for (const SourceFix& fix : fixes.fixes)
    Add(fix.ident, fix.region, fix.terminal == enroute ? "" : fix.terminal, Kind::fix, fix.position);
  for (const auto* table : {&navaids.vors, &navaids.dmes})
    for (const SourceNavaid& navaid : *table)
      Add(navaid.ident, navaid.region, "", Kind::vor, navaid.position);
  for (const SourceNavaid& navaid : navaids.ndbs)
    Add(navaid.ident, navaid.region, "", Kind::ndb, navaid.position);
  for (const SourceLocalizer& localizer : navaids.localizers)
    Add(localizer.ident, localizer.region, localizer.airport, Kind::localizer, localizer.position);
  std::stable_sort(places.begin(), places.end(), [](const Place& a, const Place& b) {
    return std::tuple(a.ident.Raw(), a.region.Raw()) < std::tuple(b.ident.Raw(), b.region.Raw());
  });
}

void CifpPlaces::Add(const std::string& ident, const std::string& region, std::string_view airport, Kind kind,
                     SourcePosition position) {
  Place& place = places.emplace_back();
  place.ident = ident;
  place.region = region;
  place.airport = airport;
  place.kind = kind;
  place.position = position;
}

bool CifpPlaces::KindFits(Kind kind, const CifpFixName& name) {
  switch (name.section) {
    case 'D':
      return kind == (name.subsection == 'B' ? Kind::ndb : Kind::vor);
    case 'P':
    case 'H':
      if (name.subsection == 'N') return kind == Kind::ndb;
      return kind == (name.subsection == 'I' ? Kind::localizer : Kind::fix);
    default:
      return kind == Kind::fix;
  }
}

std::optional<SourcePosition> CifpPlaces::Find(const CifpFixName& name, std::string_view airport,
                                               std::optional<SourcePosition> near) const {
  const FixedText<10> ident(name.ident);
  const FixedText<2> region(name.region);
  const auto wanted = std::tuple(ident.Raw(), region.Raw());
  auto place = std::lower_bound(places.begin(), places.end(), wanted, [](const Place& at, const auto& key) {
    return std::tuple(at.ident.Raw(), at.region.Raw()) < key;
  });
  const Place* best = nullptr;
  std::tuple<bool, bool, double> bestRank;
  for (; place != places.end() && std::tuple(place->ident.Raw(), place->region.Raw()) == wanted; ++place) {
    const bool elsewhere =
        name.section == 'P' ? !(place->airport == airport) : name.section == 'E' && !place->airport.Empty();
    const std::tuple rank(!KindFits(place->kind, name), elsewhere,
                          near ? DistanceNM(place->position, *near) : 0.0);
    if (best != nullptr && !(rank < bestRank)) continue;
    best = &*place;
    bestRank = rank;
  }
  return best != nullptr ? std::optional(best->position) : std::nullopt;
}
