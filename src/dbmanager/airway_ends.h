// Where the ends of an airway segment are that its source names only by ident,
// region and kind.
#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <unordered_map>

#include "dbmanager/fix_dat.h"
#include "dbmanager/nav_dat.h"

class AirwayEnds {
 public:
  AirwayEnds(const NavData& navaids, std::span<const SourceFix> fixes) {
    for (const SourceNavaid& ndb : navaids.ndbs)
      Add(ndb.ident, ndb.region, ndb.position, ndbKind);
    for (const auto* list : {&navaids.vors, &navaids.dmes}) {
      for (const SourceNavaid& vor : *list)
        Add(vor.ident, vor.region, vor.position, vorKind);
    }
    for (const SourceFix& fix : fixes)
      Add(fix.ident, fix.region, fix.position, fixKind);
  }

  // The first point of the sources that has all three.
  std::optional<SourcePosition> Find(std::string_view ident, std::string_view region, int kind) const {
    const auto found = places.find(KeyOf(CodePageOf(ident), CodePageOf(region), kind));
    return found == places.end() ? std::nullopt : std::optional(found->second);
  }

 private:
  static constexpr int ndbKind = 2, vorKind = 3, fixKind = 11;

  static std::string KeyOf(const std::string& ident, const std::string& region, int kind) {
    return ident + ' ' + region + ' ' + std::to_string(kind);
  }

  void Add(const std::string& ident, const std::string& region, SourcePosition position, int kind) {
    places.try_emplace(KeyOf(ident, region, kind), position);
  }

  std::unordered_map<std::string, SourcePosition> places;
};
