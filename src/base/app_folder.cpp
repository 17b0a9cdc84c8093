#include "base/app_folder.h"

#include <cstdlib>
#include <system_error>

#include "base/fixed_text.h"

namespace fs = std::filesystem;

namespace {

std::optional<std::string> NameInAnyCase(const fs::path& folder, std::string_view name) {
  std::optional<std::string> found;
  std::error_code error;
  for (fs::directory_iterator entry(folder, error), end; !error && entry != end; entry.increment(error)) {
    std::string candidate = entry->path().filename().string();
    if (EqualNoCase(candidate, name) && (!found || candidate < *found)) found = std::move(candidate);
  }
  return found;
}

std::optional<fs::path> FromEnvironment(const char* variable) {
  const char* value = std::getenv(variable);
  if (value == nullptr || *value == '\0') return std::nullopt;
  return fs::path(value);
}

}  // namespace

fs::path ResolveBelow(const fs::path& folder, std::string_view name) {
  fs::path path = folder;
  while (!name.empty()) {
    const std::size_t end = std::min(name.find_first_of("\\/"), name.size());
    const std::string_view part = name.substr(0, end);
    name.remove_prefix(std::min(end + 1, name.size()));
    if (part.empty() || part == "." || part == "..") continue;
    std::error_code error;
    const fs::path asGiven = path / part;
    if (fs::exists(asGiven, error)) {
      path = asGiven;
    } else {
      path /= NameInAnyCase(path, part).value_or(std::string(part));
    }
  }
  return path;
}

fs::path DefaultAppFolder(const std::optional<std::string>& home) {
  fs::path folder;
  if (home && !home->empty()) {
    folder = *home;
  } else if (const auto own = FromEnvironment("VELMORA_HOME")) {
    folder = *own;
  } else if (const auto data = FromEnvironment("XDG_DATA_HOME")) {
    folder = *data / "velmora";
  } else if (const auto user = FromEnvironment("HOME")) {
    folder = *user / ".local/share/velmora";
  } else {
    folder = "velmora";
  }
  std::error_code error;
  const fs::path absolute = fs::absolute(folder, error);
  return error ? folder : absolute.lexically_normal();
}
