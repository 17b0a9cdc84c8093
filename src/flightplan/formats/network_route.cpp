#include "flightplan/formats/network_route.h"

#include <algorithm>
#include <string_view>

#include "flightplan/formats/export_rows.h"
#include "flightplan/formats/route_points.h"

namespace {

std::string LastCharacters(std::string_view text, std::size_t count) {
  return std::string(text.substr(text.size() - std::min(count, text.size())));
}

// The network's name of the track on which the row is reached; empty: no track.
std::string TrackName(const PlanWaypoint& row) {
  const std::string_view airway = row.Airway.View();
  if (airway.starts_with("Track ")) return "NAT" + LastCharacters(airway, 1);
  if (airway.starts_with("PTrack ")) return "PAC" + std::string(Trimmed(LastCharacters(airway, 2)));
  return {};
}

class RouteWords {
 public:
  void Add(std::string_view word) {
    if (!text.empty()) text += ' ';
    text += word;
  }

  std::string text;
};

}  // namespace

std::string NetworkRoute(const PlanExport& plan, RouteLegs legs) {
  RouteWords words;
  std::string lastTrack;
  for (const PlanWaypoint* row : RowsBetween(plan)) {
    if (IsUserPosition(*row)) continue;
    const std::string track = TrackName(*row);
    if (track.empty()) {
      if (legs == RouteLegs::named) words.Add(row->HasAirway() ? row->Airway.View() : "DCT");
      words.Add(row->Code.View());
    } else if (track != lastTrack) {
      words.Add(track);
    }
    lastTrack = track;
  }
  if (legs == RouteLegs::named) words.Add("DCT");
  return words.text;
}
