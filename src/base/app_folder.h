// The application folder and the names below it. The program's own names are
// written with "\" and in whatever letter case they were first given; on a
// file system that minds the case they are found all the same.
#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

// Turns a name such as "\database\FS09\airport.vlm" into a path below folder.
// Each part is taken as it stands if it exists so, else in the letter case in
// which it exists (the first in byte order if there are several), else as it
// stands. ".." parts are dropped: the result never leaves the folder.
std::filesystem::path ResolveBelow(const std::filesystem::path& folder, std::string_view name);

class AppFolder {
 public:
  explicit AppFolder(std::filesystem::path root) : root(std::move(root)) {}

  const std::filesystem::path& Root() const { return root; }
  std::filesystem::path Resolve(std::string_view name) const { return ResolveBelow(root, name); }

 private:
  std::filesystem::path root;
};

// The application folder when the command line names one (home), else the
// environment's VELMORA_HOME, else XDG_DATA_HOME/velmora, else
// HOME/.local/share/velmora, else "velmora" in the current folder. Always an
// absolute path; the folder need not exist.
std::filesystem::path DefaultAppFolder(const std::optional<std::string>& home);
