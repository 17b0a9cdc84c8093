#include "settings/folder_check.h"

#include <unistd.h>

#include <filesystem>
#include <system_error>

#include "settings/stored_folder.h"

FolderCheck CheckFolder(const AppFolder& home, std::string_view folder, bool ofSimulator) {
  if (folder.empty()) return {};
  const std::filesystem::path path = FolderOf(home, folder);
  if (folder.front() != '/' && folder.front() != '\\')
    return {FolderState::unusable, "The whole path is needed, from / on."};
  std::error_code error;
  const std::filesystem::file_status status = std::filesystem::status(path, error);
  if (status.type() == std::filesystem::file_type::not_found) {
    if (ofSimulator) return {FolderState::unusable, "There is no such folder."};
    return {FolderState::missing, "There is no such folder."};
  }
  if (!std::filesystem::is_directory(status)) return {FolderState::unusable, "This is no folder."};
  if (ofSimulator && !std::filesystem::exists(ResolveBelow(path, "scenery.cfg"), error))
    return {FolderState::unusable, "There is no scenery.cfg in this folder."};
  if (!ofSimulator && access(path.c_str(), W_OK | X_OK) != 0)
    return {FolderState::unusable, "Nothing can be written into this folder."};
  return {};
}

std::string CreateFolderFor(const AppFolder& home, std::string_view folder) {
  std::error_code error;
  std::filesystem::create_directories(FolderOf(home, folder), error);
  return error ? "It cannot be created: " + error.message() + "." : std::string();
}
