// Where the fixes that procedures name lie: the fixes, VORs, NDBs and
// localizers of one installation by ident and region, and the airport's own
// runways.
#pragma once

#include <optional>
#include <vector>

#include "base/fixed_text.h"
#include "dbmanager/cifp_airport.h"
#include "dbmanager/fix_dat.h"
#include "dbmanager/nav_dat.h"

class CifpPlaces {
 public:
  CifpPlaces(const FixData& fixes, const NavData& navaids);

  // The fix of this name that an airport's procedure means: one of the kind
  // that the section tells before one of any other, a terminal fix of the
  // airport before another airport's, the nearest to near of what is left.
  // Nothing if no fix of that region has the ident.
  std::optional<SourcePosition> Find(const CifpFixName& name, std::string_view airport,
                                     std::optional<SourcePosition> near) const;

 private:
  enum class Kind : std::uint8_t { fix, vor, ndb, localizer };
  struct Place {
    FixedText<10> ident;
    FixedText<2> region;
    FixedText<5> airport;  // of a terminal fix or a localizer
    Kind kind = Kind::fix;
    SourcePosition position;
  };

  static bool KindFits(Kind kind, const CifpFixName& name);
  void Add(const std::string& ident, const std::string& region, std::string_view airport, Kind kind,
           SourcePosition position);

  std::vector<Place> places;  // by ident, then region
};
