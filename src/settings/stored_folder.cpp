#include "settings/stored_folder.h"

#include <system_error>

#include "base/code_page.h"

namespace fs = std::filesystem;

namespace {

constexpr std::size_t longestSetting = 256;

bool IsSeparator(char c) {
  return c == '\\' || c == '/';
}

// What stands behind the program's own folder; nothing if the path is elsewhere.
std::string_view BelowHome(const AppFolder& home, std::string_view path) {
  const std::string& root = home.Root().native();
  const bool below = path.size() > root.size() && path.starts_with(root) && IsSeparator(path[root.size()]);
  return below ? path.substr(root.size()) : std::string_view{};
}

}  // namespace

fs::path FolderOf(const AppFolder& home, std::string_view stored) {
  if (stored.empty()) return {};
  std::string_view text = stored;
  while (text.size() > 1 && IsSeparator(text.back()))
    text.remove_suffix(1);
  if (!text.starts_with('/')) return home.Resolve(text);
  const std::string_view below = BelowHome(home, text);
  if (!below.empty()) return home.Resolve(below);
  fs::path asGiven{std::string(text)};
  std::error_code error;
  if (fs::exists(asGiven, error)) return asGiven;
  std::string separated(text);
  for (char& c : separated)
    if (c == '\\') c = '/';
  return separated;
}

std::string StoredFolder(const fs::path& folder) {
  std::string text = folder.string();
  while (text.size() > 1 && IsSeparator(text.back()))
    text.pop_back();
  return text + '\\';
}

bool CanBeStored(std::string_view text) {
  const std::string inFile = Utf8ToCodePage(text);
  return inFile.size() <= longestSetting && CodePageToUtf8(inFile) == text;
}
