// The chart of an airport's departures or arrivals: what it shows for a chosen
// runway, how it is fitted to its page, and its drawing. The small map of the
// window and the printer show the same.
#pragma once

#include "flightplan/procedure_path.h"
#include "flightplan/procedure_text.h"
#include "map/draw_map.h"

// One direction of a runway, as the list of runways has it.
struct RunwayChoice {
  std::string id;
  std::int32_t lengthFeet = 0;

  std::string ListText() const;  // "07C  (13079ft)"
};

// Both directions of every runway in file order; helipads are none.
std::vector<RunwayChoice> RunwayChoices(const NavDatabase& database, std::int32_t airport);

// True for a procedure of this runway, and for one of any runway.
bool IsForRunway(const SidStarEntry& entry, std::string_view runway);

// Brings the procedures for a runway in front of the others, without changing
// their order otherwise. An empty runway changes nothing.
void PutRunwayFirst(std::vector<SidStarEntry>& entries, std::string_view runway);

// What an arrival's text says of the runway it leads to; nothing if the airport has no such end.
std::optional<LandingRunway> LandingOn(const NavDatabase& database, std::int32_t airport,
                                       std::string_view runway);

class ProcedureChart {
 public:
  // airport: row of the airport table. entries: all of the airport's.
  ProcedureChart(const NavDatabase& database, ProcedureKind kind, std::int32_t airport,
                 std::vector<SidStarEntry> entries);

  ProcedureKind Kind() const { return kind; }
  std::int32_t Airport() const { return airport; }
  std::string AirportCode() const;  // UTF-8

  // Shows the procedures of this runway; none is picked then.
  void ShowRunway(const std::string& id);
  const std::string& Runway() const { return runway; }
  const std::vector<SidStarEntry>& Shown() const { return shown; }

  // Picks one of Shown(), -1: none.
  void Pick(int index);
  int Picked() const { return picked; }

  // "Departure for EDDF Rwy 07C".
  std::string Heading() const;
  // The reading text of the picked one; empty if none is.
  std::string Text() const;

  // Brings the airport and everything shown onto a page of so many units.
  void FitView(MapView& view, SurfacePoint page) const;
  // Texts have a halo if the surface has it at the call.
  void Draw(DrawSurface& surface, const Projection& projection, const ColorSettings& colors) const;
  // The coastlines below it, everything in the pilot's colours.
  void DrawWithMap(DrawSurface& surface, MapView& view, const Settings& settings) const;

 private:
  void DrawRunways(DrawSurface& surface, const Projection& projection, const ColorSettings& colors) const;
  void DrawNames(DrawSurface& surface, const Projection& projection, const ColorSettings& colors) const;

  const NavDatabase& database;
  ProcedureKind kind;
  std::int32_t airport;
  std::vector<SidStarEntry> entries;
  std::string runway;
  std::vector<SidStarEntry> shown;
  std::vector<ProcedurePath> paths;  // of shown
  int picked = -1;
};
