#include "map/follow_aircraft.h"

#include <cmath>

namespace {

constexpr std::int32_t leastAglFt = 500;  // above it and leastTas the periodic recentring runs
constexpr std::int32_t leastTas = 50;
constexpr int groundRow = 1;  // 2 NM
constexpr int airRow = 7;     // 50 NM

// True if the map really moves: near a pole the centre is held back.
bool CentreOn(MapView& view, Position place) {
  const Position before{view.MapCenterLat, view.MapCenterLon};
  view.MapCenterLat = place.lat;
  view.MapCenterLon = place.lon;
  view.MapCenterLat = view.LimitCenterLat(place.lat);
  return Position{view.MapCenterLat, view.MapCenterLon} != before;
}

bool PeriodicRecentring(MapView& view, std::int32_t& counter, const AircraftFacts& aircraft,
                        const FollowOptions& options) {
  if (!options.mnuAoM || !options.movingMap) return false;
  if (aircraft.aglFt <= leastAglFt || aircraft.tas <= leastTas) return false;
  if (++counter < 2 * options.MMCOUNTERSET) return false;
  counter = 0;
  return CentreOn(view, aircraft.position);
}

// Keeps the aircraft, and what lies an eighth of the range ahead, on the map.
bool KeepInFrame(MapView& view, const AircraftFacts& aircraft, const FollowOptions& options) {
  const auto outside = [&](Position place) {
    return OutsideFrame(view.LonToX(place.lon), view.LatToY(place.lat), options.frame);
  };
  const auto ahead = [&](float distance) {
    return GreatCircleOffset(aircraft.position.lat, aircraft.position.lon, aircraft.trueHdg, distance);
  };
  if (outside(aircraft.position)) return CentreOn(view, aircraft.position);
  if (!outside(ahead(static_cast<float>(view.RangeNM()) / 8))) return false;
  return CentreOn(view, ahead(GreatCircleDistance(aircraft.position.lat, aircraft.position.lon,
                                                  view.MapCenterLat, view.MapCenterLon)));
}

}  // namespace

bool OutsideFrame(std::int32_t x, std::int32_t y, const FollowFrame& frame) {
  const auto atX = static_cast<float>(x);
  const auto atY = static_cast<float>(y);
  return atX <= frame.left || atY <= frame.top || atX >= frame.right || atY >= frame.bottom;
}

ZoomAnswer AutomaticZoom(MapView& view, bool airborne) {
  const int row = airborne ? airRow : groundRow;
  if (!view.mnuAutozoom || view.ZoomIndex == row) return {};
  return view.SetZoom(row, false);
}

FollowAnswer ShowFSPosition(MapView& view, std::int32_t& counter, const AircraftFacts& aircraft,
                            const FollowOptions& options) {
  FollowAnswer answer;
  if (!std::isfinite(aircraft.position.lat) || !std::isfinite(aircraft.position.lon)) return answer;
  view.AircraftLat = aircraft.position.lat;
  view.AircraftLon = aircraft.position.lon;
  answer.repaint = PeriodicRecentring(view, counter, aircraft, options);
  if (!options.minimised && options.mnuAoM && KeepInFrame(view, aircraft, options)) answer.repaint = true;
  view.MapMagVar = aircraft.magVar;
  if (AutomaticZoom(view, aircraft.airborne).repaint) answer.repaint = true;
  answer.setPlane = aircraft.connected || answer.repaint;
  return answer;
}
