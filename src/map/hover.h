// What lies under the resting pointer. Like the layers, the sources are one
// ordered list: a source says when it is searched and what it finds; upper
// floors bring their own, and FindUnderPointer() asks them all in the order
// below. Every hit adds its lines to the box.
#pragma once

#include <chrono>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "map/map_switches.h"
#include "map/map_view.h"
#include "map/status_panels.h"
#include "navdata/nav_database.h"
#include "settings/settings.h"

// The one search order, complete: also the places of sources that the upper
// floors bring.
enum class HoverPlace {
  airports = 1,
  onlineStations = 2,
  ivaoControl = 3,
  vatsimControl = 4,
  onlineAirports = 5,
  vors = 6,
  ndbs = 7,
  intersections = 8,
  fixes = 9,
  userWaypoints = 10,
  trackWaypoints = 11,
  sunTimes = 12,
  weather = 13,
  airspaces = 14,
  parkings = 15,
  aiAirborne = 16,
  aiGround = 17,
  networkAircraft = 18,
};

struct HoverLine {
  std::string text;      // UTF-8
  bool heading = false;  // first line of an entry
  friend bool operator==(const HoverLine&, const HoverLine&) = default;
};

constexpr std::size_t maxHoverLines = 100;

// Everything that a search reads. Cheap to make anew for each search.
struct HoverQuestion {
  const MapView& view;
  const NavDatabase& database;
  const Settings& settings;
  const MapSwitches& switches;
  float x = 0;  // the pointer, map units
  float y = 0;
  bool connected = false;  // to a simulator: bearings count from the aircraft
  bool planShown = false;  // the plan's panel is open
  PositionFormat format = PositionFormat::degreesMinutes;
  std::chrono::sys_days today{};  // UTC
  Projection projection = view.CurrentProjection();

  std::int16_t RangeNM() const { return view.RangeNM(); }
  // Near: less than dx, dy units away. Exactly dx is not near.
  bool Near(float lat, float lon, std::int32_t dx, std::int32_t dy) const;
  // For the place indexes: a box that misses no place that Near() accepts.
  GeoBox SearchBox(std::int32_t dx, std::int32_t dy) const;
  // As PositionText() with the settings' style.
  std::string PositionLine(float lat, float lon) const;
};

struct HoverSource {
  HoverPlace place;
  std::string_view name;
  std::function<bool(const HoverQuestion&)> shown;
  // Appends the lines of every row that is near, in row order.
  std::function<void(const HoverQuestion&, std::vector<HoverLine>&)> find;
};

// The sources that tell of the navigation database: airports, VOR, NDB,
// intersections, fixes, user waypoints, sun times, airspaces, parking.
std::vector<HoverSource> DatabaseHoverSources();

// Sources in the order of their places; equal places stay as they come.
std::vector<HoverSource> InSearchOrder(std::vector<HoverSource> sources);

// Asks all sources that are shown, in the list's order. At most maxHoverLines
// lines; what comes later is lost. sources must be in search order.
std::vector<HoverLine> FindUnderPointer(const HoverQuestion& question,
                                        const std::vector<HoverSource>& sources);

// tmrMousePos: one tick asks what to do by where the pointer is. The box comes
// after the pointer has rested from one tick to the next.
enum class HoverTick {
  close,   // the pointer has moved: take the box away
  search,  // it rests: search and show what is found
};

class HoverRest {
 public:
  HoverTick Tick(float x, float y);
  // The pointer has left the map: the next tick counts as moved.
  void Forget() { known = false; }

 private:
  bool known = false;
  float lastX = 0;
  float lastY = 0;
};
