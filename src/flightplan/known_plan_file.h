// The file that the plan is in, as far as it is in one, and whether the plan
// has changed since it was saved or opened.
#pragma once

#include <filesystem>
#include <string>

#include "flightplan/flight_plan.h"
#include "navdata/nav_database.h"

class KnownPlanFile {
 public:
  // The plan has just been written into the file, or read from it.
  void Took(const FlightPlan& plan, const NavDatabase& database, std::filesystem::path newFile);
  // The file is forgotten once the plan is another: none, or one between other airports.
  void Follow(const FlightPlan& plan);
  void Forget() { *this = KnownPlanFile{}; }

  // Empty: none is known.
  const std::filesystem::path& File() const { return file; }
  // The file's name without its extension; "Unspecified" without a file.
  std::string Name() const;

  // True if the plan as it would be saved now is not what the file holds. Two
  // airports without a file count as nothing to save, and so does a plan that
  // may not be saved.
  bool Modified(const FlightPlan& plan, const NavDatabase& database) const;

 private:
  std::filesystem::path file;
  std::string text;  // what the file holds
  std::int32_t departure = -1;
  std::int32_t destination = -1;
};
