#include "navdata/database_files.h"

DatabaseFile OpenDatabaseFile(const DatabaseLocation& location, std::string_view folder,
                              std::string_view name) {
  const auto path = location.home.Resolve(std::string(folder) + std::string(name));
  return {std::string(name), ReadWholeFile(path).value_or(FileBytes())};
}
