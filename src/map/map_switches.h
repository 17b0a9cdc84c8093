// What the pilot has switched on: one flag for each checkable menu item and
// ribbon of the map, named after its control.
#pragma once

struct MapSwitches {
  bool mnuCoastlines = true;
  bool mnuLatLong = false;
  bool mnuCtrz = false;  // control zones
  bool mnuAir1 = false;  // controlled airspaces
  bool mnuAir2 = false;  // restricted airspaces
  bool mnuCompass = false;
  bool mnuMSA = false;
  bool mnuAirport = true;
  bool mnuILS = true;
  bool mnuVOR = true;
  bool mnuNDB = true;
  bool mnuIntersection = false;  // all of them; else those of the airways that are shown
  bool mnuVictor = true;
  bool mnuJet = true;
  bool mnuGPSFix = false;
  bool mnuUserWP = true;
  bool mnuSunrise = false;  // sun times in the box of an airport
  bool mnuAutozoom = false;
  bool mnuAoM = true;          // the map follows the aircraft
  bool profileChosen = false;  // the pilot has switched the vertical picture himself
  bool mnuProfile = false;     // the vertical picture; counts once it is chosen

  bool mnuDisplaySid = true;  // the plan's departure and arrival; not stored
  bool mnuDisplayStar = true;

  bool btnIcao = true;   // codes
  bool btnName = false;  // names
  bool btnFreq = false;  // frequencies and altitudes

  friend bool operator==(const MapSwitches&, const MapSwitches&) = default;
};
